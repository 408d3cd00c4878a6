import QtQuick
import Orvel.DesignSystem
import Orvel.Session
import Orvel.Settings

/// The names of the workspace and its user, and its emoji.
SettingsSection {
    id: root

    required property SettingsViewModel viewModel
    property bool inView: true
    readonly property Setting icon: Setting {
        field: "workspaceIcon"
        session: Orvel
    }

    title: qsTr("Workspace")

    SettingField {
        field: "workspaceName"
        label: qsTr("Workspace name")
        placeholderText: qsTr("My Workspace")
    }

    SettingField {
        field: "userName"
        label: qsTr("Your name")
        placeholderText: qsTr("Maya")
    }

    OVEmojiRow {
        icon: root.icon.value ?? ""
        icons: root.viewModel.workspaceIcons
        inView: root.inView
        label: qsTr("Workspace icon")
        width: parent.width
        onChosen: icon => root.icon.set(icon)
    }
}
