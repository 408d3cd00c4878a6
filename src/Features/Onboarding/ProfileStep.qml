import QtQuick
import Orvel.DesignSystem
import Orvel.Onboarding

/// Who the user is, and what the workspace is called.
OnboardingPage {
    id: root

    firstFocus: nameField.input

    OVField {
        id: nameField

        label: qsTr("Your name")
        placeholderText: qsTr("Maya")
        text: root.onboarding.name
        width: parent.width
        onAccepted: root.accepted()
        onTextEdited: root.onboarding.name = text
    }

    OVField {
        label: qsTr("Workspace name")
        placeholderText: root.onboarding.defaultWorkspaceName
        text: root.onboarding.workspaceName
        width: parent.width
        onAccepted: root.accepted()
        onTextEdited: root.onboarding.workspaceName = text
    }

    OVEmojiRow {
        icon: root.onboarding.workspaceIcon
        icons: root.onboarding.workspaceIcons
        label: qsTr("Workspace icon")
        width: parent.width
        onAccepted: root.accepted()
        onChosen: icon => root.onboarding.workspaceIcon = icon
    }
}
