pragma ComponentBehavior: Bound

import QtQuick
import Orvel.DesignSystem
import Orvel.Projects
import Orvel.Session

/// A project that is kept as a template: a click or Return makes a project of it.
ScreenGridCard {
    id: card

    required property ProjectsViewModel viewModel
    required property var projectID
    required property string icon
    required property string name
    required property string details
    required property bool isTemplate

    function use() {
        viewModel.useTemplate(projectID)
    }

    Accessible.name: qsTr("Use template: %1").arg(name)
    Accessible.role: Accessible.Button
    Accessible.onPressAction: use()
    Keys.onPressed: event => {
        switch (event.key) {
        case Qt.Key_Return:
        case Qt.Key_Enter:
        case Qt.Key_Space:
            use()
            break
        case Qt.Key_T:
            ProjectActions.toggleTemplate(projectID)
            break
        case Qt.Key_Delete:
            ProjectActions.remove(projectID)
            break
        default:
            return contextMenu.handleKey(event)
        }
        event.accepted = true
    }
    onClicked: use()

    OVEmoji {
        id: mark
        size: Theme.iconTile
        text: card.icon
        x: Theme.space16
        y: Theme.space16
    }

    OVText {
        id: nameText
        anchors.left: mark.left
        anchors.right: parent.right
        anchors.rightMargin: Theme.space16
        anchors.top: mark.bottom
        anchors.topMargin: Theme.space12
        font.weight: Font.DemiBold
        maximumLineCount: 1
        text: card.name
        Accessible.ignored: true
    }

    OVText {
        anchors.bottom: parent.bottom
        anchors.bottomMargin: Theme.space16
        anchors.left: mark.left
        anchors.right: nameText.right
        anchors.top: nameText.bottom
        anchors.topMargin: Theme.space4
        color: Theme.ovInkSecondary
        maximumLineCount: 2
        role: OVText.Dense
        text: card.details === "" ? qsTr("Your template  -  click to use") : card.details
        verticalAlignment: Text.AlignTop
        wrapMode: Text.Wrap
        Accessible.ignored: true
    }

    ProjectCardActions {
        isTemplate: card.isTemplate
        name: card.name
        projectID: card.projectID
        shown: card.hovered || card.visualFocus || (contextMenu.openMenu?.visible ?? false)
    }

    OVContextMenuArea {
        id: contextMenu

        menu: OVMenu {
            OVMenuItem {
                shortcutText: qsTr("Return")
                symbol: "plus"
                text: qsTr("Use template")
                onTriggered: card.use()
            }

            OVMenuItem {
                symbol: "pencil"
                text: qsTr("Edit template")
                onTriggered: Orvel.ui.selectProject(card.projectID)
            }

            OVMenuItem {
                shortcutText: "T"
                symbol: "star"
                text: qsTr("Back to the projects")
                onTriggered: ProjectActions.toggleTemplate(card.projectID)
            }

            OVMenuSeparator { }

            OVMenuItem {
                destructive: true
                shortcutText: qsTr("Del")
                symbol: "trash"
                text: qsTr("Delete")
                onTriggered: ProjectActions.remove(card.projectID)
            }
        }
    }
}
