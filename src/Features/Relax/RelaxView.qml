import QtQuick
import QtQuick.Layouts
import Orvel.DesignSystem
import Orvel.Relax
import Orvel.Session

/// The screen for slowing down: the stage with its controls, the scenes, the video and the breathing guide.
FocusScope {
    id: root

    readonly property alias relax: relaxModel
    readonly property alias video: videoModel

    RelaxViewModel {
        id: relaxModel
        active: root.visible
        session: Orvel
        onZenModeChanged: {
            // One stage goes on where the other one was.
            if (zenMode)
                zen.seconds = stage.seconds
            else {
                stage.seconds = zen.seconds
                zenButton.forceActiveFocus(Qt.OtherFocusReason)
            }
        }
    }

    VideoPanelViewModel {
        id: videoModel
        active: root.visible
        session: Orvel
        useVideo: relaxModel.useVideo
        onVideoWanted: wanted => relaxModel.useVideo = wanted
    }

    ScreenScaffold {
        id: page
        anchors.fill: parent
        focus: true
        maximumWidth: Theme.listWidth

        OVPageHeader {
            Layout.fillWidth: true
            subtitle: qsTr("Slow down for a while.")
            symbol: "leaf"
            title: qsTr("Relax")

            OVIconButton {
                id: zenButton
                symbol: "arrow.up.left.and.arrow.down.right"
                text: qsTr("Zen mode")
                onClicked: relaxModel.zenMode = true
            }
        }

        RelaxStage {
            id: stage
            Layout.fillWidth: true
            Layout.preferredHeight: Math.round(Math.max(220, Math.min(page.width * 0.5, page.height * 0.56)))
            live: root.visible && !relaxModel.zenMode
            radius: Theme.cornerCard
            relax: relaxModel
            video: videoModel
        }

        RelaxControls {
            Layout.fillWidth: true
            relax: relaxModel
        }

        OVSectionHeader {
            Layout.fillWidth: true
            Layout.topMargin: Theme.space8
            symbol: "photo.on.rectangle.angled"
            text: qsTr("Scenes")
        }

        SceneChoice {
            Layout.fillWidth: true
            relax: relaxModel
        }

        VideoPanel {
            Layout.fillWidth: true
            Layout.topMargin: Theme.space8
            video: videoModel
            onStopRequested: relaxModel.useVideo = false
        }

        BreathingPanel {
            Layout.fillWidth: true
            relax: relaxModel
        }
    }

    RelaxZenLayer {
        id: zen
        relax: relaxModel
        video: videoModel
    }
}
