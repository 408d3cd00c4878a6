import QtQuick
import Orvel.DesignSystem
import Orvel.Relax

/// What the breathing guide is, and a way to begin it.
OVCard {
    id: root

    required property RelaxViewModel relax

    contentItem: Column {
        spacing: Theme.space12

        OVText {
            Accessible.role: Accessible.Heading
            role: OVText.CardTitle
            text: qsTr("Breathing")
            width: parent.width
        }

        OVText {
            color: Theme.ovInkSecondary
            text: qsTr("A 4-7-8 pattern: inhale for four, hold for seven, exhale for eight. Turn on the guide above to follow along.")
            width: parent.width
            wrapMode: Text.Wrap
        }

        OVSecondaryButton {
            symbol: "play.circle"
            text: qsTr("Start a calm minute")
            onClicked: root.relax.breathing = true
        }
    }
}
