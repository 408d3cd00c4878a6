import QtQuick
import Orvel.DesignSystem

/// A database in the rail.
Item {
    id: row

    required property var tableID
    required property string icon
    required property string name
    required property bool isStarred
    readonly property bool isSelected: ListView.isCurrentItem
    /// Whether the keyboard is in the list.
    property bool ringShown: false

    signal picked()
    signal deleteRequested()

    function handleKey(event: KeyEvent) {
        event.accepted = false
        menuArea.handleKey(event)
    }

    Accessible.name: name
    Accessible.role: Accessible.ListItem
    Accessible.selected: isSelected
    Accessible.onPressAction: picked()
    implicitHeight: Theme.rowHeight + Theme.space4

    HoverWash {
        chosen: row.isSelected
        hovered: pointer.hovered

        OVFocusRing {
            anchors.margins: 1
            shown: row.ringShown && row.isSelected
            targetRadius: Theme.cornerField - 5
        }
    }

    HoverHandler {
        id: pointer
    }

    TapHandler {
        gesturePolicy: TapHandler.WithinBounds
        onTapped: row.picked()
    }

    OVEmoji {
        id: emoji
        anchors.verticalCenter: parent.verticalCenter
        size: Theme.iconButton
        text: row.icon
        x: Theme.space8
    }

    OVText {
        Accessible.ignored: true
        anchors.left: emoji.right
        anchors.leftMargin: Theme.space8
        anchors.right: star.left
        anchors.verticalCenter: parent.verticalCenter
        color: row.isSelected || pointer.hovered ? Theme.ovInk : Theme.ovInkSecondary
        font.weight: row.isSelected ? Font.Medium : Theme.textWeight
        maximumLineCount: 1
        role: OVText.Dense
        text: row.name
    }

    OVIcon {
        id: star
        anchors.right: parent.right
        anchors.rightMargin: visible ? Theme.space8 : 0
        anchors.verticalCenter: parent.verticalCenter
        color: Theme.ovWarning
        filled: true
        size: Theme.sizeCaption
        symbol: "star"
        visible: row.isStarred
        width: visible ? size : Theme.space8
    }

    OVContextMenuArea {
        id: menuArea
        // A Loader of this Qt version cannot make a bound component.
        // qmllint disable unqualified
        menu: Component {
            OVMenu {
                OVMenuItem {
                    destructive: true
                    shortcutText: "Del"
                    symbol: "trash"
                    text: qsTr("Delete")
                    onTriggered: row.deleteRequested()
                }
            }
        }
        // qmllint enable unqualified
    }
}
