import QtQuick
import Orvel.DesignSystem
import Orvel.Settings

/// The paper look, the type of the reader, and what is left of the examples.
SettingsSection {
    id: root

    required property SettingsViewModel viewModel

    title: qsTr("Reading & display")

    SettingSwitch {
        detail: qsTr("Warm paper, high contrast, serif and no motion — styled like an e-reader panel.")
        field: "inkMode"
        text: qsTr("E-ink display mode")
    }

    SettingSwitch {
        field: "readerSerif"
        text: qsTr("Serif type in the reader")
    }

    SettingChips {
        field: "readerFontScale"
        label: qsTr("Reader text size")
        width: parent.width
    }

    OVLazyLoader {
        active: root.viewModel.hasExampleContent
        width: parent.width

        sourceComponent: Column {
            spacing: Theme.space12

            OVDivider {
                width: parent.width
            }

            OVLabelPair {
                detail: qsTr("The sample pages, tasks and habits added during onboarding can be removed in one step.")
                font.weight: Font.Medium
                title: qsTr("Example content")
                width: parent.width
            }

            OVSecondaryButton {
                symbol: "trash"
                text: qsTr("Remove example content")
                onClicked: root.viewModel.removeExampleContent()
            }
        }
    }
}
