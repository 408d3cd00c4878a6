import QtQuick
import QtQuick.Templates as T
import Orvel.DesignSystem

/// A thin bar that shows while something scrolls or is pointed at.
T.ScrollBar {
    id: root

    readonly property bool wide: hovered || pressed

    hoverEnabled: true
    implicitHeight: 12
    implicitWidth: 12
    minimumSize: 0.08
    opacity: size >= 1 ? 0 : policy === T.ScrollBar.AlwaysOn || active || wide ? 1 : 0
    padding: 3
    visible: policy !== T.ScrollBar.AlwaysOff

    contentItem: Item {
        implicitHeight: 6
        implicitWidth: 6

        Rectangle {
            anchors.bottom: parent.bottom
            anchors.right: parent.right
            color: root.pressed ? Theme.ovInkSecondary : Theme.ovInkTertiary
            height: root.horizontal ? (root.wide ? 6 : 4) : parent.height
            opacity: root.wide ? 0.9 : 0.55
            radius: 3
            width: root.horizontal ? parent.width : (root.wide ? 6 : 4)
        }
    }

    Behavior on opacity {
        NumberAnimation { duration: Theme.durationScreen }
    }
}
