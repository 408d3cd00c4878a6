import QtQuick
import Orvel.DesignSystem

/// A filter or a sort of a view: the property, what is asked of it, and a button to take the rule away.
Rectangle {
    id: root

    required property var ruleID
    required property string propertyName
    required property string label
    required property string value
    /// Whether the label is a button.
    property bool toggles: false
    property real maximumWidth: Infinity

    signal toggled()
    signal removed()

    border.color: Theme.ovBorder
    border.width: Theme.lineWidth
    color: Theme.ovSurface
    implicitHeight: Theme.chipHeight + Theme.space4
    implicitWidth: Math.min(row.implicitWidth + Theme.space8, maximumWidth)
    radius: Theme.cornerField

    Row {
        id: row
        height: parent.height
        leftPadding: Theme.space8
        spacing: Theme.space8

        OVBadge {
            anchors.verticalCenter: parent.verticalCenter
            text: root.propertyName
            width: Math.min(implicitWidth, root.maximumWidth / 3)
        }

        OVText {
            anchors.verticalCenter: parent.verticalCenter
            color: Theme.ovInkSecondary
            role: OVText.Dense
            text: root.label
            visible: !root.toggles
        }

        OVPressable {
            anchors.verticalCenter: parent.verticalCenter
            horizontalPadding: Theme.space4
            text: root.label
            verticalPadding: Theme.space4
            visible: root.toggles
            Accessible.name: qsTr("%1, %2").arg(root.propertyName).arg(root.label)
            onClicked: root.toggled()

            contentItem: OVText {
                color: Theme.ovInk
                role: OVText.Dense
                text: root.label
                Accessible.ignored: true
            }
        }

        OVText {
            anchors.verticalCenter: parent.verticalCenter
            role: OVText.Dense
            text: DisplayText.shown(root.value)
            visible: text !== ""
            width: Math.min(implicitWidth, root.maximumWidth / 3)
        }

        OVIconButton {
            anchors.verticalCenter: parent.verticalCenter
            iconSize: Theme.sizeCaption
            implicitHeight: Theme.chipHeight
            implicitWidth: Theme.chipHeight
            symbol: "xmark"
            text: qsTr("Remove")
            Accessible.name: qsTr("Remove: %1").arg(root.propertyName)
            onClicked: root.removed()
        }
    }
}
