import QtQuick
import QtMultimedia
import Orvel.DesignSystem

/// Loops a video file without sound. It fills the view, and tells after six seconds if the file can't be played.
Item {
    id: root

    property url url
    property bool isPlaying: true
    property bool failed: false

    function follow() {
        if (isPlaying)
            player.play()
        else
            player.pause()
    }

    clip: true

    onIsPlayingChanged: follow()
    onUrlChanged: {
        failed = false
        check.restart()
        follow()
    }

    MediaPlayer {
        id: player
        loops: MediaPlayer.Infinite
        source: root.url
        videoOutput: output
    }

    VideoOutput {
        id: output
        anchors.fill: parent
        fillMode: VideoOutput.PreserveAspectCrop
    }

    Timer {
        id: check
        interval: 6000
        onTriggered: root.failed = player.error !== MediaPlayer.NoError
                                   || player.mediaStatus === MediaPlayer.InvalidMedia
    }

    Column {
        anchors.centerIn: parent
        spacing: Theme.space8
        visible: root.failed

        OVIcon {
            anchors.horizontalCenter: parent.horizontalCenter
            color: Qt.rgba(1, 1, 1, 0.9)
            size: Theme.iconTile
            symbol: "exclamationmark.triangle"
        }

        OVText {
            color: Qt.rgba(1, 1, 1, 0.9)
            text: qsTr("This file can't be played here.")
        }
    }
}
