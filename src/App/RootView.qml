import QtQuick
import Orvel.App
import Orvel.DesignSystem

/// The layers of the window: the background, the workspace, and for a moment after the start the intro on top of
/// all.
FocusScope {
    id: root

    required property OrvelCommands commands
    required property RootViewModel model
    /// Once a launch, and not where motion is unwanted.
    property bool showIntro: Theme.motionEnabled

    focus: true

    Component.onCompleted: {
        // From here on the choice of motion has no say in it.
        showIntro = showIntro
        workspace.setSource("WorkspaceLayer.qml", { "commands": root.commands })
    }

    OVBackground {
        anchors.fill: parent
        // The intro stands on a background of its own.
        visible: !root.showIntro
    }

    FadingLayer {
        id: workspace

        anchors.fill: parent
        shown: true
        // The first frame need not wait for the workspace, and the intro runs on while it is built.
        asynchronous: true
    }

    FadingLayer {
        id: intro

        anchors.fill: parent
        shown: root.showIntro
        source: "../DesignSystem/OrvelIntroView.qml"
        z: 10
        onLoaded: (item as OrvelIntroView).run()

        Connections {
            target: intro.item

            function onFinished() {
                root.showIntro = false;
            }
        }
    }
}
