import QtQuick
import Orvel.Settings

/// What moves, shines through and is tinted.
SettingsSection {
    title: qsTr("Surfaces & motion")

    SettingChips {
        capitalized: true
        field: "theme.animation"
        label: qsTr("ANIMATION")
        width: parent.width
    }

    Column {
        width: parent.width

        SettingSwitch {
            field: "theme.glassySurfaces"
            text: qsTr("Glassy surfaces")
        }

        SettingSwitch {
            field: "theme.animatedBackground"
            text: qsTr("Animated background")
        }

        SettingSwitch {
            field: "theme.accentIcons"
            text: qsTr("Tint icons with the accent")
        }

        SettingSwitch {
            field: "theme.showQuote"
            text: qsTr("Show the daily quote on the dashboard")
        }

        SettingSwitch {
            field: "reducedMotion"
            text: qsTr("Reduce motion")
        }
    }
}
