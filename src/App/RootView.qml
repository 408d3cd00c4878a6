pragma ComponentBehavior: Bound

import QtQuick
import Orvel.App
import Orvel.DesignSystem

/// The layers of the window: the background, the workspace below its menu bar, and for a moment after the start
/// the intro on top of all.
FocusScope {
    id: root

    required property OrvelCommands commands
    required property RootViewModel model
    required property bool showsMenuBar
    /// Once a launch, and not where motion is unwanted.
    property bool showIntro: true

    focus: true

    Component.onCompleted: {
        if (!Theme.motionEnabled)
            showIntro = false
    }

    OVBackground {
        anchors.fill: parent
    }

    FadingLayer {
        anchors.fill: parent
        shown: true
        // Behind the intro there is time to build the workspace piece by piece.
        asynchronous: root.showIntro

        sourceComponent: FocusScope {
            focus: true

            OrvelMenuBar {
                id: menuBar
                anchors { left: parent.left; right: parent.right; top: parent.top }
                commands: root.commands
                height: visible ? implicitHeight : 0
                visible: root.showsMenuBar
            }
        }
    }

    FadingLayer {
        anchors.fill: parent
        shown: root.showIntro
        z: 10

        sourceComponent: OrvelIntroView {
            onFinished: root.showIntro = false
            Component.onCompleted: run()
        }
    }
}
