pragma ComponentBehavior: Bound

import QtQuick
import Orvel.DesignSystem
import Orvel.Session

/// The star and the bin in the corner of a card.
OVLazyLoader {
    id: root

    required property var projectID
    required property string name
    required property bool isTemplate
    required property bool shown

    active: shown
    anchors.right: parent?.right
    anchors.rightMargin: Theme.space8
    anchors.top: parent?.top
    anchors.topMargin: Theme.space12

    sourceComponent: Row {
        OVIconButton {
            color: root.isTemplate ? Theme.ovWarning : Theme.ovInkSecondary
            filled: root.isTemplate
            iconSize: Theme.iconRow
            symbol: "star"
            tabStop: false
            text: root.isTemplate ? qsTr("Back to the projects") : qsTr("Keep as template")
            Accessible.checkable: true
            Accessible.checked: root.isTemplate
            Accessible.name: qsTr("Template: %1").arg(root.name)
            onClicked: ProjectActions.toggleTemplate(root.projectID)
        }

        OVIconButton {
            iconSize: Theme.iconRow
            symbol: "trash"
            tabStop: false
            text: qsTr("Delete")
            Accessible.name: qsTr("Delete: %1").arg(root.name)
            onClicked: ProjectActions.remove(root.projectID)
        }
    }
}
