import QtQuick
import Orvel.App
import Orvel.DesignSystem
import Orvel.Session
import Orvel.Updates

/// The layers of the window: the background, the workspace or what comes before it, the onboarding, and for a moment
/// after the start the intro on top of all.
FocusScope {
    id: root

    required property OrvelCommands commands
    /// Once a launch, and not where motion is unwanted.
    property bool showIntro: Theme.motionEnabled
    /// Whether the first frame is drawn. What it does not show is made after it.
    property bool isDrawn: false
    /// Whether a frame with the workspace, or what comes before it, is drawn. What opens over them is made after it.
    property bool isSettled: false
    /// The intro runs on while the layer below it is built. Later a layer is there at once, to take the place of the
    /// other one.
    property bool starting: true
    /// Whether a layer is still on its way.
    readonly property bool loading: workspace.loading || onboarding.loading

    function followFrame() {
        if (!isDrawn) {
            isDrawn = true;
            Orvel.updates.checkRegularly(root);
        } else {
            isSettled = !starting;
        }
    }

    focus: true

    // From here on the choice of motion has no say in it.
    Component.onCompleted: showIntro = showIntro

    Connections {
        enabled: !root.isSettled
        target: root.Window.window

        // In a turn of its own, so that the frame is out before anything else is made.
        function onFrameSwapped() {
            Qt.callLater(root.followFrame);
        }
    }

    OVBackground {
        anchors.fill: parent
        plain: !root.isDrawn
        // The intro stands on a background of its own.
        visible: !root.showIntro
    }

    FadingLayer {
        id: workspace

        anchors.fill: parent
        asynchronous: root.starting
        held: !root.isDrawn
        page: "WorkspaceLayer.qml"
        pageProperties: ({ "commands": root.commands, "isSettled": root.isSettled })
        shown: Orvel.settings.hasCompletedOnboarding
        onLoaded: root.starting = false
    }

    Binding {
        property: "isSettled"
        target: workspace.item
        value: root.isSettled
        when: workspace.item !== null
    }

    FadingLayer {
        id: onboarding

        anchors.fill: parent
        asynchronous: root.starting
        held: !root.isDrawn
        page: "OnboardingLayer.qml"
        shown: !Orvel.settings.hasCompletedOnboarding
        onLoaded: root.starting = false
    }

    UpdatesLayer {
        anchors.fill: parent
        enabled: !root.showIntro
        updates: Orvel.updates
    }

    FadingLayer {
        id: intro

        anchors.fill: parent
        page: "../DesignSystem/OrvelIntroView.qml"
        shown: root.showIntro
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
