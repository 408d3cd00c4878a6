pragma ComponentBehavior: Bound

import QtQuick
import QtQml.Models
import Orvel.DesignSystem
import Orvel.Session

/// The statuses that a project can have, its own one marked.
OVMenu {
    id: menu

    required property var projectID
    /// Choices.
    required property var statuses
    /// A raw text.
    required property string status

    name: qsTr("Status")

    Instantiator {
        model: menu.statuses

        delegate: OVMenuItem {
            required property var modelData

            checkable: true
            checked: menu.status === modelData.raw
            text: modelData.label
            onTriggered: ProjectActions.setStatus(menu.projectID, modelData.raw)
        }
        onObjectAdded: (index, object) => menu.insertItem(index, object)
        onObjectRemoved: (index, object) => menu.removeItem(object)
    }
}
