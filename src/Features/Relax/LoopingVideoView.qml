import QtQuick
import QtMultimedia
import Orvel.DesignSystem
import Orvel.Relax

/// Loops a video file without sound. It fills the view, and says so if the file can't be played.
Item {
    id: root

    property url url
    property bool isPlaying: true
    /// As of the view of a page; a file takes no mouse.
    property bool isInteractive: true
    readonly property alias failed: controller.failed

    clip: true

    Component.onCompleted: controller.start(url)
    Component.onDestruction: controller.stop()
    onUrlChanged: controller.start(url)

    MediaPlayer {
        id: mediaPlayer
        videoOutput: output
    }

    LoopingVideoController {
        id: controller
        isPlaying: root.isPlaying
        player: mediaPlayer
        playerHasError: mediaPlayer.error !== MediaPlayer.NoError
                        || mediaPlayer.mediaStatus === MediaPlayer.InvalidMedia
    }

    VideoOutput {
        id: output
        anchors.fill: parent
        fillMode: VideoOutput.PreserveAspectCrop
        visible: !root.failed
    }

    VideoPicture {
        anchors.fill: parent
        sink: output.videoSink
        visible: !root.failed && GraphicsInfo.api === GraphicsInfo.Software
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
