import QtQuick
import Orvel.DesignSystem
import Orvel.Shell

/// One line of the sidebar that opens, folds or does something.
OVPressable {
    id: root

    property string symbol
    /// Shown instead of the symbol.
    property string emoji
    /// Quiet text at the right end.
    property string detail
    property int depth: 0
    property bool chosen: false
    property bool showsIcon: true
    property bool foldable: false
    property bool collapsed: false
    /// Whether a button for the menu of the row shows under the pointer.
    property bool hasMenu: false

    readonly property color ink: chosen || hovered ? Theme.ovInk : Theme.ovInkSecondary
    readonly property real indent: depth * Theme.space16
    readonly property bool showsMenuButton: hasMenu && (hovered || visualFocus || menuButton.hovered)

    signal menuRequested(Item from, real x, real y)

    clickFocus: true
    implicitHeight: Theme.rowHeight
    leftPadding: Theme.space8 + 2 + indent
    pressedScale: 1
    rightPadding: Theme.space8 + 2
    tabStop: ListView.isCurrentItem || activeFocus
    Accessible.name: detail === "" ? text : qsTr("%1, %2").arg(text).arg(detail)
    OVAccessible.role: Accessible.ListItem
    Accessible.selected: chosen

    background: HoverWash {
        chosen: root.chosen
        hovered: root.hovered
        pressed: root.down
        radius: root.radius
    }
    contentItem: Item {
        RowIcon {
            id: icon

            anchors.verticalCenter: parent.verticalCenter
            color: root.ink
            emoji: root.emoji
            filled: root.chosen
            symbol: root.symbol
            visible: root.showsIcon
        }

        OVText {
            id: title

            anchors.verticalCenter: parent.verticalCenter
            color: root.ink
            font.weight: root.chosen ? Font.Medium : Font.Normal
            maximumLineCount: 1
            role: OVText.Dense
            text: root.text
            width: trailing.x - x - Theme.space8
            x: root.showsIcon ? icon.width + Theme.space8 + 2 : 0
            Accessible.ignored: true
        }

        Row {
            id: trailing

            anchors.right: parent.right
            anchors.verticalCenter: parent.verticalCenter
            layoutDirection: Qt.RightToLeft
            spacing: Theme.space4

            OVIcon {
                anchors.verticalCenter: parent.verticalCenter
                color: Theme.ovInkTertiary
                rotation: root.collapsed ? -90 : 0
                size: Theme.iconRow - 4
                symbol: "chevron.down"
                visible: root.foldable

                Behavior on rotation {
                    NumberAnimation { duration: Theme.durationScreen; easing.type: Easing.OutCubic }
                }
            }

            OVText {
                anchors.verticalCenter: parent.verticalCenter
                role: OVText.Caption
                text: root.detail
                visible: text !== ""
                Accessible.ignored: true
            }

            OVIconButton {
                id: menuButton

                tabStop: false
                iconSize: Theme.iconRow
                implicitHeight: Theme.rowHeight - 8
                implicitWidth: visible ? implicitHeight : 0
                symbol: "ellipsis"
                text: qsTr("More")
                visible: root.showsMenuButton
                onClicked: root.menuRequested(menuButton, 0, height + Theme.space4)
            }
        }
    }

    TapHandler {
        acceptedButtons: Qt.RightButton
        enabled: root.hasMenu
        onTapped: eventPoint => root.menuRequested(root, eventPoint.position.x, eventPoint.position.y)
    }
}
