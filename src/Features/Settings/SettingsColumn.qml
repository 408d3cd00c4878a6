import QtQuick
import Orvel.DesignSystem
import Orvel.Session
import Orvel.Settings

/// All the settings in their order, one section below the other.
Column {
    id: root

    /// The sections in their order.
    readonly property list<SettingsSection> sections: [
        themes, accent, background, typography, navigation, surfaces, appearance, modules, workspace, focusTimer, reading,
        menuBar, data, updates, about
    ]
    readonly property SettingsViewModel viewModel: SettingsViewModel {
        session: Orvel
    }

    /// What the user sees of the column.
    property real viewTop: 0
    property real viewBottom: height

    /// Something may have another place now.
    signal laidOut

    spacing: Theme.space32
    onPositioningComplete: laidOut()

    ThemesSection { id: themes; onLaidOut: root.laidOut() }
    AccentSection { id: accent; onLaidOut: root.laidOut() }
    BackgroundSection { id: background; onLaidOut: root.laidOut() }
    TypographySection { id: typography; onLaidOut: root.laidOut() }
    NavigationSection { id: navigation; onLaidOut: root.laidOut() }
    SurfacesSection { id: surfaces; onLaidOut: root.laidOut() }
    AppearanceSection { id: appearance; onLaidOut: root.laidOut() }
    ModulesSection { id: modules; onLaidOut: root.laidOut() }

    WorkspaceSection {
        id: workspace

        inView: y < root.viewBottom && y + height > root.viewTop
        viewModel: root.viewModel
        onLaidOut: root.laidOut()
    }

    SettingsSection {
        id: focusTimer

        title: qsTr("Focus")
        onLaidOut: root.laidOut()

        SettingChips {
            field: "defaultFocusMinutes"
            label: qsTr("Default session length")
            width: parent.width
        }
    }

    ReadingSection { id: reading; viewModel: root.viewModel; onLaidOut: root.laidOut() }

    SettingsSection {
        id: menuBar

        title: qsTr("Menu bar")
        onLaidOut: root.laidOut()

        OVText {
            color: Theme.ovInkSecondary
            text: qsTr("Click the menu bar icon for a quick view of today, fast task capture and shortcuts.")
            width: parent.width
            wrapMode: Text.Wrap
        }

        Column {
            width: parent.width

            OVSwitch {
                checked: root.viewModel.menuBarEnabled
                indicatorTrailing: true
                text: qsTr("Show Orvel in the menu bar")
                width: parent.width
                onToggled: root.viewModel.menuBarEnabled = checked
            }

            SettingSwitch {
                field: "menuBarShowsTasks"
                text: qsTr("Show tasks due today")
            }
        }
    }

    DataSection { id: data; viewModel: root.viewModel; onLaidOut: root.laidOut() }
    UpdatesSection { id: updates; viewModel: root.viewModel; onLaidOut: root.laidOut() }

    SettingsSection {
        id: about

        title: qsTr("Orvel")
        onLaidOut: root.laidOut()

        OVText {
            color: Theme.ovInkSecondary
            text: qsTr("Orvel is a calm workspace for your pages, tasks, projects and notes, which stores everything on this device.")
            width: parent.width
            wrapMode: Text.Wrap
        }
    }
}
