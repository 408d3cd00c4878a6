import QtQuick
import Orvel.DesignSystem
import Orvel.Relax

/// Shows the scene or the video, with the breathing guide over it and what there is to know at the edges.
Item {
    id: root

    required property RelaxViewModel relax
    required property VideoPanelViewModel video
    /// Whether it is the stage that is seen. Another one rests.
    property bool live: true
    property int radius: 0
    property bool labelsShown: true
    /// Whether a page of the web takes the mouse.
    property bool pageIsInteractive: true
    property alias seconds: ambient.seconds
    readonly property bool showsVideo: relax.useVideo && video.hasSource
    readonly property int inset: Theme.space12

    Accessible.name: showsVideo ? video.sourceLabel : relax.sceneLabel
    Accessible.role: Accessible.Graphic

    // Behind a scene while it appears.
    Rectangle {
        anchors.fill: parent
        color: Qt.rgba(0.05, 0.06, 0.09, 1)
        radius: root.radius
        visible: !Theme.inkMode
    }

    AmbientScene {
        id: ambient
        anchors.fill: parent
        paper: Theme.inkMode
        playing: root.live && root.relax.isPlaying && Theme.motionEnabled
        radius: root.radius
        scene: root.relax.scene
        visible: !root.showsVideo
        onSceneChanged: appearing.restart()

        NumberAnimation on opacity {
            id: appearing
            duration: 2 * Theme.durationSpring
            from: 0.2
            running: false
            to: 1
        }
    }

    OVLazyLoader {
        active: root.showsVideo && root.live
        anchors.fill: parent

        sourceComponent: VideoSurface {
            isInteractive: root.pageIsInteractive
            isMedia: root.video.isMedia
            isPlaying: root.relax.isPlaying
            radius: root.radius
            url: root.video.sourceURL
        }
    }

    Rectangle {
        anchors.fill: parent
        radius: root.radius
        visible: !Theme.inkMode

        gradient: Gradient {
            GradientStop { color: Qt.rgba(0, 0, 0, 0.14); position: 0 }
            GradientStop { color: Qt.rgba(0, 0, 0, 0); position: 0.25 }
            GradientStop { color: Qt.rgba(0, 0, 0, 0); position: 0.7 }
            GradientStop { color: Qt.rgba(0, 0, 0, 0.26); position: 1 }
        }
    }

    OVLazyLoader {
        active: root.relax.breathing && root.live
        anchors.centerIn: parent

        sourceComponent: BreathingOverlay {
            maximumSize: Math.min(root.width, root.height)
        }
    }

    StagePill {
        anchors.bottom: parent.bottom
        anchors.left: parent.left
        anchors.margins: root.inset
        symbol: root.showsVideo ? "play.rectangle" : "sparkles"
        text: root.showsVideo ? root.video.sourceLabel : root.relax.sceneLabel
        visible: root.labelsShown
    }

    StagePill {
        anchors.bottom: parent.bottom
        anchors.margins: root.inset
        anchors.right: parent.right
        symbol: "pause.fill"
        text: qsTr("Paused")
        visible: root.labelsShown && !root.relax.isPlaying
    }

    StagePill {
        anchors.left: parent.left
        anchors.margins: root.inset
        anchors.top: parent.top
        symbol: "moon.zzz.fill"
        text: root.relax.sleepText
        visible: root.relax.isSleepSet
        Accessible.name: qsTr("Sleep timer, %1 left").arg(root.relax.sleepText)
    }
}
