pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Orvel.Databases
import Orvel.DesignSystem

/// The records as cards in one column a value. Only columns and cards in sight are made. The cards are one stop for
/// Tab: Up and Down go from value to value and on to the next card, Left and Right from column to column.
FocusScope {
    id: root

    required property RecordsViewModel records
    readonly property var shownColumns: {
        const columns = []
        for (let i = 0; i < records.columnCount; ++i)
            if (i !== records.groupColumn || i === 0)
                columns.push(i)
        return columns
    }
    property int group: 0
    property int place: 0
    /// The record with the cursor, which is followed to where it goes.
    property var recordID

    function column(): DBBoardColumn {
        list.positionViewAtIndex(group, ListView.Contain)
        return list.itemAtIndex(group) as DBBoardColumn
    }

    function cell(): DBValueCell {
        return column()?.cardAt(place)?.cellAt(recordKeys.column) ?? null
    }

    function show(toGroup: int, toPlace: int, toColumn: int) {
        group = Math.max(0, Math.min(list.count - 1, toGroup))
        const count = column()?.count ?? 0
        place = Math.max(0, Math.min(count - 1, toPlace))
        recordKeys.column = shownColumns.includes(toColumn) ? toColumn : 0
        recordID = records.recordIn(group, place)
        recordKeys.row = records.rowOf(recordID)
        cell()
    }

    function move(groups: int, steps: int): bool {
        recordKeys.ringShown = true
        const next = shownColumns.indexOf(recordKeys.column) + steps
        const count = column()?.count ?? 0
        if (groups !== 0 || (next >= 0 && next < shownColumns.length))
            show(group + groups, place, shownColumns[Math.max(0, Math.min(next, shownColumns.length - 1))])
        else if (next < 0 && place > 0)
            show(group, place - 1, shownColumns[shownColumns.length - 1])
        else if (next > 0 && place + 1 < count)
            show(group, place + 1, shownColumns[0])
        return true
    }

    function press(event: KeyEvent): bool {
        switch (event.key) {
        case Qt.Key_Left: return move(-1, 0)
        case Qt.Key_Right: return move(1, 0)
        case Qt.Key_Up: return move(0, -1)
        case Qt.Key_Down: return move(0, 1)
        case Qt.Key_PageUp:
            show(group, place - 1, recordKeys.column)
            return true
        case Qt.Key_PageDown:
            show(group, place + 1, recordKeys.column)
            return true
        case Qt.Key_Home:
            show(0, 0, 0)
            return true
        case Qt.Key_End:
            show(list.count - 1, 0, 0)
            return true
        case Qt.Key_Menu:
            return column()?.cardAt(place)?.openMenu() ?? false
        }
        return recordKeys.press(event)
    }

    function editingFinished(key: int) {
        if (key === 0)
            return
        surface.forceActiveFocus(Qt.OtherFocusReason)
        recordKeys.ringShown = true
        if (key === Qt.Key_Tab || key === Qt.Key_Down || key === Qt.Key_Return || key === Qt.Key_Enter)
            move(0, 1)
        else if (key === Qt.Key_Backtab || key === Qt.Key_Up)
            move(0, -1)
    }

    /// Goes to a record, wherever it stands now.
    function follow(id: var, toColumn: int) {
        const toGroup = records.groupOf(id)
        list.forceLayout()
        if (toGroup >= 0)
            show(toGroup, records.placeInGroup(id), toColumn)
    }

    function addTo(label: string) {
        follow(records.addRecord(label), 0)
        surface.forceActiveFocus(Qt.OtherFocusReason)
        recordKeys.openRequested("")
    }

    RecordKeys {
        id: recordKeys
        records: root.records
        onNewRequested: root.addTo(root.column()?.label ?? "")
        onOpenRequested: typed => root.cell()?.open(typed)
    }

    Connections {
        target: root.records
        function onLaidOut() {
            if (!root.activeFocus || root.recordID === undefined)
                return
            if (root.records.groupOf(root.recordID) >= 0)
                root.follow(root.recordID, recordKeys.column)
            else
                root.show(root.group, root.place, recordKeys.column)
        }
        function onRevealed(row, column) {
            surface.forceActiveFocus(Qt.OtherFocusReason)
            recordKeys.ringShown = true
            root.follow(root.records.recordAt(row), Math.max(0, column))
        }
    }

    Item {
        id: surface

        readonly property QtObject editTarget: recordKeys

        activeFocusOnTab: list.count > 0 || activeFocus
        anchors.fill: parent
        focus: true
        Accessible.name: root.records.describe(recordKeys.row, recordKeys.column)
        Accessible.role: Accessible.Table
        Keys.onPressed: event => event.accepted = Window.activeFocusItem === surface && root.press(event)
        onActiveFocusChanged: {
            if (!activeFocus)
                return
            // Without records it would hold the keyboard where nobody sees it.
            if (list.count === 0)
                return addButton.forceActiveFocus(Qt.TabFocusReason)
            recordKeys.ringShown = true
            root.show(root.group, root.place, recordKeys.column)
        }

        ListView {
            id: list
            anchors.fill: parent
            boundsBehavior: Flickable.StopAtBounds
            cacheBuffer: 0
            clip: true
            keyNavigationEnabled: false
            model: root.records.groups
            orientation: ListView.Horizontal
            spacing: Theme.space16
            T.ScrollBar.horizontal: OVScrollBar { }

            delegate: DBBoardColumn {
                currentPlace: index === root.group && surface.activeFocus ? root.place : -1
                height: ListView.view.height - Theme.space12
                keys: recordKeys
                records: root.records
                shownColumns: root.shownColumns
                width: Math.round(264 * Theme.fontScale)
                onAddRequested: root.addTo(label)
                onFinished: key => root.editingFinished(key)
                onPointed: (place, column) => {
                    root.show(index, place, column)
                    surface.forceActiveFocus(Qt.MouseFocusReason)
                    recordKeys.ringShown = false
                }
            }
        }
    }

    OVText {
        anchors.centerIn: parent
        color: Theme.ovInkSecondary
        text: qsTr("No records")
        visible: list.count === 0
    }

    OVSecondaryButton {
        id: addButton
        anchors.horizontalCenter: parent.horizontalCenter
        anchors.top: parent.verticalCenter
        anchors.topMargin: Theme.space24
        symbol: "plus"
        text: qsTr("New record")
        visible: list.count === 0
        onClicked: root.addTo("")
    }
}
