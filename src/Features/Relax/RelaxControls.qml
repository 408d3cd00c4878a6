pragma ComponentBehavior: Bound

import QtQuick
import Orvel.DesignSystem
import Orvel.Relax

/// The controls below the stage.
Flow {
    id: root

    required property RelaxViewModel relax

    component MinutesItem: OVMenuItem {
        required property int minutes

        text: qsTr("%1 minutes").arg(minutes)
        onTriggered: root.relax.setSleepTimer(minutes)
    }

    spacing: Theme.space8

    OVPrimaryButton {
        focus: true
        symbol: root.relax.isPlaying ? "pause.fill" : "play.fill"
        text: root.relax.isPlaying ? qsTr("Pause") : qsTr("Play")
        onClicked: root.relax.isPlaying = !root.relax.isPlaying
    }

    OVSecondaryButton {
        symbol: "shuffle"
        text: qsTr("Shuffle scene")
        onClicked: root.relax.nextScene()
    }

    OVMenuButton {
        symbol: root.relax.isSleepSet ? "moon.zzz.fill" : "moon.zzz"
        text: root.relax.isSleepSet ? qsTr("Sleeping soon") : qsTr("Sleep timer")

        menu: OVMenu {
            OVMenuItem {
                checkable: true
                checked: !root.relax.isSleepSet
                text: qsTr("Off")
                onTriggered: root.relax.setSleepTimer(0)
            }

            OVMenuSeparator { }

            MinutesItem { minutes: root.relax.sleepMinutes[0] }
            MinutesItem { minutes: root.relax.sleepMinutes[1] }
            MinutesItem { minutes: root.relax.sleepMinutes[2] }
            MinutesItem { minutes: root.relax.sleepMinutes[3] }
            MinutesItem { minutes: root.relax.sleepMinutes[4] }
        }
    }

    OVSwitch {
        checked: root.relax.breathing
        height: Theme.buttonHeight
        leftPadding: Theme.space8
        text: qsTr("Breathing guide")
        onToggled: root.relax.breathing = checked
    }
}
