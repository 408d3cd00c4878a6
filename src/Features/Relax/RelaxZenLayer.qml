pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Orvel.DesignSystem
import Orvel.Relax

/// A layer over the whole window that holds nothing but the stage. Its controls go after a while; a press anywhere or
/// a key brings them back.
T.Popup {
    id: root

    required property RelaxViewModel relax
    required property VideoPanelViewModel video
    property alias seconds: stage.seconds
    property bool showControls: true

    closePolicy: T.Popup.CloseOnEscape
    focus: true
    height: T.Overlay.overlay?.height ?? 0
    padding: 0
    parent: T.Overlay.overlay
    visible: relax.zenMode
    width: T.Overlay.overlay?.width ?? 0

    onAboutToHide: relax.zenMode = false
    onAboutToShow: {
        showControls = true
        hiding.restart()
        content.forceActiveFocus()
    }

    background: null
    enter: Transition {
        NumberAnimation { property: "opacity"; from: 0; to: 1; duration: Theme.durationScreen }
    }
    exit: Transition {
        NumberAnimation { property: "opacity"; to: 0; duration: Theme.durationScreen }
    }
    contentItem: FocusScope {
        id: content
        focus: true

        Keys.onPressed: event => {
            event.accepted = true
            if (event.key === Qt.Key_Space)
                root.relax.isPlaying = !root.relax.isPlaying
            else if (event.key === Qt.Key_Right)
                root.relax.nextScene()
            else
                event.accepted = false
        }
        // Whatever takes the focus by Tab has to be seen.
        Keys.onTabPressed: event => {
            root.showControls = true
            event.accepted = false
        }

        RelaxStage {
            id: stage
            anchors.fill: parent
            labelsShown: root.showControls
            live: root.visible
            pageIsInteractive: false
            relax: root.relax
            video: root.video
        }

        TapHandler {
            onTapped: {
                hiding.stop()
                root.showControls = !root.showControls
            }
        }

        Timer {
            id: hiding
            interval: 3000
            onTriggered: root.showControls = false
        }

        FocusScope {
            id: controls
            anchors.fill: parent
            enabled: root.showControls
            focus: true
            opacity: root.showControls ? 1 : 0
            visible: opacity > 0

            Behavior on opacity {
                NumberAnimation { duration: 2 * Theme.durationScreen }
            }

            StageButton {
                anchors.margins: Theme.space16
                anchors.right: parent.right
                anchors.top: parent.top
                symbol: "xmark"
                text: qsTr("Leave Zen mode")
                onClicked: root.relax.zenMode = false
            }

            Flow {
                anchors.bottom: parent.bottom
                anchors.bottomMargin: Theme.space48
                anchors.horizontalCenter: parent.horizontalCenter
                spacing: Theme.space8
                width: Math.min(parent.width - 2 * Theme.space16, oneLine)

                readonly property real oneLine: scenes.implicitWidth + 2 * (Theme.iconButtonSize + spacing)

                StageButton {
                    focus: true
                    symbol: root.relax.isPlaying ? "pause.fill" : "play.fill"
                    text: root.relax.isPlaying ? qsTr("Pause") : qsTr("Play")
                    onClicked: root.relax.isPlaying = !root.relax.isPlaying
                }

                StageButton {
                    symbol: "shuffle"
                    text: qsTr("Shuffle scene")
                    onClicked: root.relax.nextScene()
                }

                ZenScenes {
                    id: scenes
                    relax: root.relax
                }
            }
        }
    }
}
