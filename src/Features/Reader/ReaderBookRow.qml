pragma ComponentBehavior: Bound

import QtQuick
import Orvel.DesignSystem
import Orvel.Reader

/// A book of the library in the rail.
FocusScope {
    id: row

    required property int index
    required property var bookID
    required property string title
    required property string author
    required property ReaderViewModel reader
    required property ListFocus keys
    property int inset: 0
    property bool isOpen: false
    readonly property ListView list: ListView.view as ListView
    readonly property bool isRinged: activeFocus && keys.ringShown

    signal opened()

    function remove() {
        const count = list.count
        if (activeFocus && count > 1)
            keys.focus(index + 1 < count ? index + 1 : index - 1, Qt.TabFocusReason)
        reader.remove(bookID)
    }

    Accessible.focusable: true
    Accessible.name: qsTr("%1, %2").arg(title).arg(author)
    Accessible.role: Accessible.ListItem
    Accessible.selected: isOpen
    Accessible.onPressAction: opened()
    activeFocusOnTab: activeFocus || ((list?.currentIndex ?? -1) < 0 ? index === Math.max(0, reader.selectedRow)
                                                                 : ListView.isCurrentItem)
    height: texts.implicitHeight + 2 * Theme.space8
    width: list?.width ?? 0

    onActiveFocusChanged: {
        if (!activeFocus)
            return
        list.currentIndex = index
        list.positionViewAtIndex(index, ListView.Contain)
    }
    Keys.onPressed: event => {
        const plain = !(event.modifiers & (Qt.ControlModifier | Qt.AltModifier | Qt.MetaModifier))
        if (plain && keys.press(event.key))
            event.accepted = true
        else if (plain && [Qt.Key_Return, Qt.Key_Enter, Qt.Key_Space].includes(event.key)) {
            opened()
            event.accepted = true
        } else if (plain && (event.key === Qt.Key_Delete || event.key === Qt.Key_Backspace)) {
            remove()
            event.accepted = true
        } else {
            event.accepted = false
            menuArea.handleKey(event)
        }
    }

    Item {
        anchors.fill: parent
        anchors.leftMargin: row.inset
        anchors.rightMargin: row.inset

        HoverWash {
            chosen: row.isOpen
            hovered: pointer.hovered

            OVFocusRing {
                anchors.margins: 1
                shown: row.isRinged
                targetRadius: Theme.cornerField - 5
            }
        }

        OVIcon {
            color: row.isOpen ? Theme.ovInk : Theme.ovInkSecondary
            filled: row.isOpen
            symbol: "book.closed"
            x: Theme.space8
            y: texts.y + Math.round((titleLine.height - height) / 2)
        }

        Column {
            id: texts
            anchors.verticalCenter: parent.verticalCenter
            spacing: 2
            width: parent.width - x - Theme.space8
            x: Theme.space8 + Theme.iconRow + Theme.space8

            OVText {
                id: titleLine
                Accessible.ignored: true
                color: row.isOpen || pointer.hovered ? Theme.ovInk : Theme.ovInkSecondary
                font.weight: row.isOpen ? Font.Medium : Theme.textWeight
                role: OVText.Dense
                text: row.title
                width: parent.width
            }

            OVText {
                Accessible.ignored: true
                role: OVText.Caption
                text: row.author
                width: parent.width
            }
        }

        HoverHandler {
            id: pointer
        }

        TapHandler {
            gesturePolicy: TapHandler.WithinBounds
            onTapped: row.opened()
        }
    }

    OVContextMenuArea {
        id: menuArea
        menu: OVMenu {
            OVMenuItem {
                symbol: "book"
                text: qsTr("Open")
                onTriggered: row.opened()
            }

            OVMenuItem {
                destructive: true
                shortcutText: "Del"
                symbol: "trash"
                text: qsTr("Remove from library")
                onTriggered: row.remove()
            }
        }
    }
}
