pragma ComponentBehavior: Bound

import QtQuick
import Orvel.Databases
import Orvel.DesignSystem
import Orvel.Session

/// The one editor of a value, whatever its type, in every layout: words become a field where they stand, choices open
/// a menu, dates a picker, and a box is checked at once.
Item {
    id: root

    required property RecordsViewModel records
    required property var recordID
    required property var values
    required property int column
    /// Whether the cursor is here.
    property bool current: false
    /// Whether the keyboard moved it here, so that its ring shows.
    property bool ringShown: false
    /// Space before and after the value.
    property int padding: Theme.space12
    readonly property bool editing: editor.active
    readonly property bool popupOpen: popup?.visible ?? false
    readonly property bool isField: cell.kind >= DBValueDisplay.Field && cell.kind <= DBValueDisplay.Progress
    property var cell: records.columnsRevision >= 0 ? records.cell(values, column) : null
    property QtObject popup: null
    /// What the popup was opened for; the cell may come to stand for another value before it has closed.
    property var openedRecord
    property int openedColumn: -1

    /// The pointer pressed the cell.
    signal pointed()
    /// The editing has ended with this key; 0 for none.
    signal finished(key: int)

    /// Lets the user edit the value in the way of its type.
    /// @param typed what the user has typed to begin; it replaces the value
    function open(typed = "") {
        if (isField)
            edit(typed)
        else if (cell.kind === DBValueDisplay.Check)
            records.toggleCheck(recordID, column)
        else if (cell.kind === DBValueDisplay.Date)
            openPopup(datePopup, "")
        else if (cell.kind !== DBValueDisplay.None)
            openPopup(optionMenu, typed)
    }

    function edit(typed: string) {
        records.beginEdit(recordID, column)
        editor.active = true
        const field = editor.item as DBCellEditor
        field.begin(typed)
    }

    /// Ends the editing; what was typed stays.
    function finish(key = 0) {
        // It would write into what the cell stands for next.
        popup?.close()
        if (!editing)
            return
        closeEditor()
        records.endEdit()
        finished(key)
    }

    function closeEditor() {
        editor.active = false
        // Else its empty place would keep the focus.
        editor.focus = false
    }

    function cancel() {
        // First, since the field ends the editing as it goes.
        records.cancelEdit()
        closeEditor()
        finished(Qt.Key_Escape)
    }

    function openPopup(component: Component, typed: string) {
        const byKeyboard = ringShown
        popup?.destroy()
        popup = component.createObject(root)
        // The record keeps its place until the popup has gone.
        records.beginEdit(recordID, column)
        openedRecord = recordID
        openedColumn = column
        const menu = popup as DBOptionMenu
        if (!menu)
            return popup.open()
        menu.openBeside(root, 0, 0, height)
        if (byKeyboard)
            menu.begin(typed)
    }

    function popupClosed() {
        records?.endEditOf(openedRecord, openedColumn)
    }

    // The popup closes only after its cell has gone.
    Component.onDestruction: {
        if (popupOpen)
            popupClosed()
    }

    implicitHeight: Theme.rowHeight + Theme.space4
    Accessible.name: qsTr("%1: %2").arg(cell.name).arg(cell.shown)
    Accessible.role: Accessible.Cell

    // Where cells are made for what is in sight, one may come to stand for another value.
    onColumnChanged: finish()

    HoverHandler {
        id: pointer
        cursorShape: root.isField ? Qt.IBeamCursor : Qt.ArrowCursor
    }

    TapHandler {
        enabled: !root.editing
        gesturePolicy: TapHandler.WithinBounds
        onTapped: {
            root.pointed()
            root.open()
        }
    }

    Rectangle {
        anchors.fill: parent
        anchors.margins: 2
        color: root.editing ? Theme.ovSurface : Theme.ovHover
        radius: Theme.cornerMark
        visible: root.editing || root.popupOpen || (pointer.hovered && root.cell.kind !== DBValueDisplay.None)
    }

    OVLazyLoader {
        active: root.current && (root.ringShown || root.editing)
        anchors.fill: parent
        z: 1

        sourceComponent: OVFocusRing {
            anchors.margins: 1
            shown: true
            targetRadius: Theme.cornerMark - 4
        }
    }

    DBValueDisplay {
        anchors.fill: parent
        anchors.leftMargin: root.padding
        anchors.rightMargin: root.padding
        cell: root.cell
        visible: !root.editing
    }

    OVLazyLoader {
        id: editor
        anchors.fill: parent
        anchors.leftMargin: root.padding
        anchors.rightMargin: Theme.space4

        sourceComponent: DBCellEditor {
            cell: root.cell
            onCanceled: root.cancel()
            onFinished: key => root.finish(key)
            onWritten: text => taken = root.records.write(root.recordID, root.column, text)
        }
    }

    Component {
        id: optionMenu

        DBOptionMenu {
            chosen: root.cell.kind === DBValueDisplay.Choices ? root.cell.chosen : [root.cell.text]
            multiple: root.cell.kind === DBValueDisplay.Choices
            name: root.cell.name
            onClosed: root.popupClosed()
            options: root.records.column(root.column).options
            onPicked: option => {
                if (multiple)
                    root.records.toggleOption(root.recordID, root.column, option)
                else
                    root.records.setValue(root.recordID, root.column, option)
            }
        }
    }

    Component {
        id: datePopup

        OVDatePopup {
            byKeyboard: root.ringShown
            clearable: true
            now: Orvel.now()
            value: root.cell.day
            onClosed: root.popupClosed()
            onCleared: root.records.setValue(root.recordID, root.column, "")
            onEdited: moment => root.records.setDay(root.recordID, root.column, moment)
        }
    }
}
