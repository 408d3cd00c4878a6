pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Orvel.Databases
import Orvel.DesignSystem

/// The records below each other: as a table with a header, or as a list, where they may stand in sections. They are
/// made only where they are seen. The cells are one stop for Tab, in which a cursor moves.
FocusScope {
    id: root

    required property RecordsViewModel records
    /// Whether it is a list without a header.
    property bool listLike: false
    property bool sectioned: false
    /// What a list without records shows.
    property string emptySymbol
    property string emptyTitle
    property string emptyMessage
    property bool canAdd: true
    readonly property int rowHeight: Theme.rowHeight + Theme.space8
    /// Of the button below the records, with room for its ring.
    readonly property int footHeight: canAdd ? addButton.implicitHeight + 2 * Theme.space4 : 0

    /// Adds a record and begins with its title.
    function addRecord() {
        const row = records.rowOf(records.addRecord())
        list.forceLayout()
        cursor.show(row, 0)
        list.forceActiveFocus(Qt.OtherFocusReason)
        recordKeys.openRequested("")
    }

    RecordKeys {
        id: recordKeys
        records: root.records
        row: list.currentIndex
        onNewRequested: root.addRecord()
        onOpenRequested: typed => {
            cursor.show(row, column)
            list.forceLayout()
            cursor.cell()?.open(typed)
        }
    }

    DBTableCursor {
        id: cursor
        columns: tableColumns
        keys: recordKeys
        list: list
        onLeaveDown: addButton.forceActiveFocus(Qt.TabFocusReason)
    }

    DBSections {
        id: sections
    }

    DBTableColumns {
        id: tableColumns
        listLike: root.listLike
        offset: Math.max(0, list.contentX)
        records: root.records
        viewportWidth: list.width
    }

    Connections {
        target: root.records
        function onLaidOut() {
            // The view does not look at the sections of rows that stay where they are.
            list.section.property = ""
            list.section.property = root.sectioned ? "section" : ""
        }
        function onColumnAdded(column) {
            list.contentX = tableColumns.offsetFor(column)
        }
        function onRevealed(row, column) {
            if (list.activeFocus && recordKeys.row === row && cursor.cell()?.editing)
                return
            recordKeys.ringShown = true
            cursor.show(row, column < 0 ? Math.min(recordKeys.column, root.records.columnCount - 1) : column)
            list.forceActiveFocus(Qt.OtherFocusReason)
        }
    }

    Rectangle {
        id: body
        border.color: Theme.ovBorder
        border.width: Theme.lineWidth
        clip: true
        color: Theme.ovSurface
        height: Math.min(root.height, header.height + list.contentHeight + root.footHeight + 1
                         + (nothing.visible ? nothing.height : 0))
        radius: Theme.cornerField
        width: root.listLike ? root.width : Math.min(root.width, tableColumns.contentWidth + 2)

        DBTableHeader {
            id: header
            columns: tableColumns
            height: root.listLike ? 0 : implicitHeight
            records: root.records
            visible: !root.listLike
            width: list.width
            x: 1
            onColumnWanted: column => list.contentX = tableColumns.offsetFor(column)
            onLeaveDown: list.forceActiveFocus(Qt.TabFocusReason)
        }

        NoRecords {
            id: nothing
            isList: root.listLike
            message: root.emptyMessage
            symbol: root.emptySymbol
            title: root.emptyTitle
            visible: root.records.isEmpty || !root.canAdd
            width: parent.width
            y: header.height
        }

        ListView {
            id: list

            readonly property QtObject editTarget: recordKeys

            activeFocusOnTab: count > 0 || activeFocus
            boundsBehavior: Flickable.StopAtBounds
            cacheBuffer: root.rowHeight * 4
            clip: true
            contentWidth: tableColumns.contentWidth
            currentIndex: -1
            flickableDirection: Flickable.AutoFlickIfNeeded
            focus: true
            height: body.height - y - root.footHeight
            highlightFollowsCurrentItem: false
            keyNavigationEnabled: false
            model: root.records.rows
            reuseItems: true
            section.delegate: sections.label
            section.property: root.sectioned ? "section" : ""
            visible: root.canAdd
            width: parent.width - 2
            x: 1
            y: header.height
            Accessible.name: cursor.description
            Accessible.role: Accessible.Table
            T.ScrollBar.horizontal: OVScrollBar { }
            T.ScrollBar.vertical: OVScrollBar { }

            // A key that the field of a cell has no use for is not one for the cursor.
            Keys.onPressed: event => event.accepted = !cursor.isEditing()
                                                      && (cursor.press(event) || recordKeys.press(event))
            // The view would give it the focus, of which assistive technology knows nothing.
            onCurrentItemChanged: {
                if (currentItem)
                    currentItem.focus = false
            }
            onActiveFocusChanged: {
                if (!activeFocus && cursor.cell()?.popupOpen)
                    return
                if (!activeFocus)
                    return recordKeys.fillColumn = -1
                // The focus may come before the records do.
                if (root.records.isEmpty && root.canAdd)
                    Qt.callLater(list.takeFocus)
                else
                    takeFocus()
            }

            function takeFocus() {
                if (!activeFocus)
                    return
                // Without records it would hold the keyboard where nobody sees it.
                if (root.records.isEmpty && root.canAdd)
                    return addButton.forceActiveFocus(Qt.TabFocusReason)
                recordKeys.ringShown = true
                if (currentIndex < 0)
                    cursor.show(0, 0)
            }

            delegate: DBTableRow {
                columns: tableColumns
                cursorShown: list.activeFocus
                keys: recordKeys
                records: root.records
                onFinished: key => cursor.editingFinished(key)
                onPointed: column => cursor.point(index, column)
            }
        }

        NewRecordButton {
            id: addButton
            anchors.bottom: parent.bottom
            anchors.bottomMargin: Theme.space4
            visible: root.canAdd
            width: Math.min(implicitWidth, list.width)
            x: 1 + Theme.space4
            Keys.onUpPressed: list.forceActiveFocus(Qt.TabFocusReason)
            onClicked: root.addRecord()
        }
    }
}
