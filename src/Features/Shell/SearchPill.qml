import QtQuick
import Orvel.DesignSystem
import Orvel.Session
import Orvel.Shell

/// Opens the search; it looks like the field that then comes.
OVPressable {
    id: root

    required property NavigationViewModel navigation

    implicitHeight: Theme.buttonHeight
    implicitWidth: Theme.sidebarWidth
    leftPadding: Theme.space12
    radius: height / 2
    rightPadding: Theme.space12
    text: qsTr("Search")
    Accessible.name: qsTr("%1, %2").arg(text).arg(keys.text)
    onClicked: Orvel.ui.isSearchPresented = true

    background: Rectangle {
        border.color: root.hovered ? Theme.ovBorderStrong : Theme.ovBorder
        border.width: Theme.lineWidth
        color: root.down ? Theme.ovSubtle : Theme.ovSurface
        radius: root.radius
    }
    contentItem: Item {
        OVIcon {
            id: icon

            anchors.verticalCenter: parent.verticalCenter
            color: Theme.ovInkTertiary
            symbol: "magnifyingglass"
        }

        OVText {
            anchors.verticalCenter: parent.verticalCenter
            color: Theme.ovInkSecondary
            role: OVText.Dense
            text: root.text
            width: keys.x - x - Theme.space8
            x: icon.width + Theme.space8
            Accessible.ignored: true
        }

        OVText {
            id: keys

            anchors.right: parent.right
            anchors.verticalCenter: parent.verticalCenter
            role: OVText.Caption
            text: root.navigation.keys("palette")
            Accessible.ignored: true
        }
    }
}
