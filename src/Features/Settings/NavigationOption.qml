import QtQuick
import Orvel.DesignSystem
import Orvel.Settings

/// A style of navigation to choose: its picture, its name and a line about it.
OVPressable {
    id: root

    required property string raw
    required property string detail

    padding: Theme.space12
    radius: Theme.cornerCard
    Accessible.checkable: true
    Accessible.checked: checked
    Accessible.description: detail
    OVAccessible.role: Accessible.RadioButton

    background: OVOptionSurface {
        chosen: root.checked
        hovered: root.hovered
        radius: root.radius
    }
    contentItem: Row {
        spacing: Theme.space12

        NavigationPicture {
            id: picture

            anchors.verticalCenter: parent.verticalCenter
            style: root.raw
        }

        OVLabelPair {
            anchors.verticalCenter: parent.verticalCenter
            detail: root.detail
            font.weight: Font.Medium
            title: root.text
            width: parent.width - picture.width - parent.spacing
        }
    }
}
