pragma ComponentBehavior: Bound

import QtQuick
import Orvel.DesignSystem
import Orvel.Relax

/// The video behind the scenes: a pasted link, and the links that are saved.
OVCard {
    id: root

    required property VideoPanelViewModel video

    signal stopRequested()

    contentItem: Column {
        spacing: Theme.space12

        OVText {
            Accessible.role: Accessible.Heading
            role: OVText.CardTitle
            text: qsTr("Ambient video")
            width: parent.width
        }

        OVText {
            color: Theme.ovInkSecondary
            text: qsTr("Paste a YouTube or Streamable link, or a direct video file. Orvel loops it quietly behind your scenes.")
            width: parent.width
            wrapMode: Text.Wrap
        }

        Flow {
            id: linkRow
            spacing: Theme.space8
            width: parent.width

            readonly property real buttons: play.width + (stop.visible ? stop.width + spacing : 0) + spacing

            OVTextField {
                placeholderText: qsTr("YouTube, Streamable or a direct video link")
                symbol: "link"
                text: root.video.videoURL
                width: Math.max(Math.min(Theme.fieldWidth, linkRow.width), linkRow.width - linkRow.buttons)
                onAccepted: root.video.playPastedLink()
                onTextEdited: root.video.videoURL = text
            }

            OVPrimaryButton {
                id: play
                height: Theme.fieldHeight
                symbol: root.video.hasSource ? "arrow.clockwise" : "play.fill"
                text: root.video.hasSource ? qsTr("Reload") : qsTr("Play")
                onClicked: root.video.playPastedLink()
            }

            OVSecondaryButton {
                id: stop
                height: Theme.fieldHeight
                symbol: "stop.fill"
                text: qsTr("Stop")
                visible: root.video.hasSource
                onClicked: root.stopRequested()
            }
        }

        Row {
            spacing: Theme.space8
            visible: root.video.notice !== ""
            width: parent.width

            OVIcon {
                anchors.verticalCenter: parent.verticalCenter
                symbol: "info.circle"
            }

            OVText {
                color: Theme.ovInkSecondary
                role: OVText.Dense
                text: root.video.notice
                width: parent.width - Theme.iconRow - parent.spacing
                wrapMode: Text.Wrap
            }
        }

        Flow {
            spacing: Theme.space8
            visible: root.video.hasSource
            width: parent.width

            OVBadge {
                height: Theme.fieldHeight
                symbol: "play.rectangle"
                text: root.video.sourceLabel
            }

            OVTextField {
                placeholderText: qsTr("Name this link (optional)")
                text: root.video.linkName
                width: Math.min(Theme.fieldWidth, parent.width)
                onAccepted: root.video.saveCurrentLink()
                onTextEdited: root.video.linkName = text
            }

            OVSecondaryButton {
                height: Theme.fieldHeight
                symbol: "plus"
                text: qsTr("Save")
                onClicked: root.video.saveCurrentLink()
            }
        }

        OVDivider {
            width: parent.width
        }

        OVText {
            color: Theme.ovInkSecondary
            role: OVText.Dense
            text: qsTr("Saved links collect here, one tap away next time.")
            visible: !root.video.hasLinks
            width: parent.width
            wrapMode: Text.Wrap
        }

        SavedLinks {
            video: root.video
            visible: root.video.hasLinks
            width: parent.width
        }
    }
}
