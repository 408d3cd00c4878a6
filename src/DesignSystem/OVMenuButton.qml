import QtQuick
import Orvel.DesignSystem

/// A button that opens a menu below itself, with an arrow that says so. Down opens it too.
OVPressable {
    id: root

    property string symbol
    property OVMenu menu: null
    /// Without frame, for a button inside a row.
    property bool plain: false

    function open() {
        menu.parent = root
        menu.name = text
        menu.openBeside(root, 0, -Theme.space4, height + Theme.space4)
        menu.currentIndex = visualFocus ? 0 : -1
    }

    implicitHeight: plain ? Theme.chipHeight : Theme.buttonHeight
    leftPadding: plain ? Theme.space8 : Theme.space12
    rightPadding: leftPadding
    OVAccessible.role: Accessible.ButtonMenu
    Keys.onDownPressed: open()
    onClicked: open()

    background: Rectangle {
        readonly property bool active: root.down || (root.menu?.visible ?? false)

        border.color: root.hovered && root.enabled ? Theme.ovBorderStrong : Theme.ovBorder
        border.width: root.plain ? 0 : Theme.lineWidth
        color: active ? Theme.ovHover
             : root.hovered && root.enabled ? (root.plain ? Theme.ovHover : Theme.ovSubtle)
             : root.plain ? "transparent" : Theme.ovSurface
        radius: root.radius

        Behavior on color {
            ColorAnimation { duration: Theme.durationHover }
        }
    }
    contentItem: Item {
        implicitHeight: label.implicitHeight
        implicitWidth: label.implicitWidth + Theme.space8 + arrow.width

        OVButtonContent {
            id: label

            anchors.left: parent.left
            anchors.right: arrow.left
            anchors.rightMargin: Theme.space8
            height: parent.height
            leading: true
            symbol: root.symbol
            text: root.text
        }

        OVIcon {
            id: arrow

            anchors.right: parent.right
            anchors.verticalCenter: parent.verticalCenter
            color: Theme.ovInkTertiary
            size: Theme.sizeCaption
            symbol: "chevron.down"
        }
    }
}
