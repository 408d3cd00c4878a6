pragma ComponentBehavior: Bound

import QtQuick
import Orvel.DesignSystem
import Orvel.Projects
import Orvel.Session

/// A project on the grid: a click or Return opens it.
ScreenGridCard {
    id: card

    required property ProjectsViewModel viewModel
    required property var projectID
    required property string icon
    required property string name
    required property string details
    required property var status
    required property string dueText
    required property bool isTemplate
    required property string tasksText
    required property string percentText
    required property double progress
    readonly property bool actionsShown: hovered || visualFocus || (contextMenu.openMenu?.visible ?? false)

    function open() {
        Orvel.ui.selectProject(projectID)
    }

    /// Does what the key stands for; false for any other key.
    function act(key: int): bool {
        switch (key) {
        case Qt.Key_Return:
        case Qt.Key_Enter:
        case Qt.Key_Space:
            open()
            return true
        case Qt.Key_S:
            statusButton.openMenu()
            return true
        case Qt.Key_T:
            ProjectActions.toggleTemplate(projectID)
            return true
        case Qt.Key_Delete:
            ProjectActions.remove(projectID)
            return true
        }
        return false
    }

    Accessible.name: qsTr("%1, %2, %3, %4").arg(name).arg(status.label).arg(tasksText).arg(percentText)
    Accessible.role: Accessible.Button
    Accessible.onPressAction: open()
    Keys.onPressed: event => {
        const plain = !(event.modifiers & (Qt.ControlModifier | Qt.AltModifier | Qt.MetaModifier))
        event.accepted = plain && act(event.key)
        if (!event.accepted)
            contextMenu.handleKey(event)
    }
    onClicked: open()

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
        anchors.bottom: statusButton.top
        anchors.bottomMargin: Theme.space8
        anchors.left: mark.left
        anchors.right: nameText.right
        anchors.top: nameText.bottom
        anchors.topMargin: Theme.space4
        color: Theme.ovInkSecondary
        maximumLineCount: 2
        role: OVText.Dense
        text: card.details
        verticalAlignment: Text.AlignTop
        wrapMode: Text.Wrap
        Accessible.ignored: true
    }

    ProjectStatusButton {
        id: statusButton
        anchors.bottom: tasks.top
        anchors.bottomMargin: Theme.space12
        anchors.left: mark.left
        byKeyboard: card.visualFocus
        projectID: card.projectID
        status: card.status
        statuses: card.viewModel.statuses
    }

    OVText {
        anchors.left: statusButton.right
        anchors.leftMargin: Theme.space12
        anchors.right: nameText.right
        anchors.verticalCenter: statusButton.verticalCenter
        color: Theme.ovInkSecondary
        role: OVText.Caption
        text: card.dueText
        Accessible.ignored: true
    }

    OVText {
        id: tasks
        anchors.bottom: bar.top
        anchors.bottomMargin: Theme.space8
        anchors.left: mark.left
        anchors.right: percent.left
        anchors.rightMargin: Theme.space8
        color: Theme.ovInkSecondary
        role: OVText.Caption
        text: card.tasksText
        Accessible.ignored: true
    }

    OVText {
        id: percent
        anchors.baseline: tasks.baseline
        anchors.right: nameText.right
        color: Theme.ovInkSecondary
        role: OVText.Caption
        text: card.percentText
        Accessible.ignored: true
    }

    OVProgressBar {
        id: bar
        anchors.bottom: parent.bottom
        anchors.bottomMargin: Theme.space16
        anchors.left: mark.left
        anchors.right: nameText.right
        value: card.progress
        Accessible.ignored: true
    }

    ProjectCardActions {
        isTemplate: card.isTemplate
        name: card.name
        projectID: card.projectID
        shown: card.actionsShown
    }

    OVContextMenuArea {
        id: contextMenu

        menu: OVMenu {
            OVMenuItem {
                shortcutText: qsTr("Return")
                symbol: "target"
                text: qsTr("Open")
                onTriggered: card.open()
            }

            OVMenuItem {
                shortcutText: "S"
                symbol: "circle.dotted"
                text: qsTr("Status…")
                onTriggered: Qt.callLater(statusButton.openMenu)
            }

            OVMenuItem {
                shortcutText: "T"
                symbol: "star"
                text: qsTr("Keep as template")
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
