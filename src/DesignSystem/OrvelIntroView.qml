pragma ComponentBehavior: Bound

import QtQuick
import Orvel.DesignSystem

/// The short sequence at the start of the program: the mark draws itself. A key or a press ends it early, and with
/// motion off there is none.
FocusScope {
    id: root

    property real outlineProgress: 0
    property real fillProgress: 0
    property real captionOpacity: 0
    property real markScale: 0.86
    property real glow: 0
    property bool isFinished: false

    signal finished

    function run() {
        if (Theme.motionEnabled)
            sequence.start()
        else
            finish()
    }

    function finish() {
        if (isFinished)
            return
        isFinished = true
        sequence.stop()
        finished()
    }

    focus: true
    Accessible.ignored: true
    Keys.onPressed: event => {
        event.accepted = true
        root.finish()
    }

    OVBackground {
        anchors.fill: parent
        plain: root.outlineProgress === 0
    }

    Image {
        anchors.centerIn: mark
        height: width
        opacity: root.glow * (Theme.dark ? 0.3 : 0.1)
        source: root.glow > 0 ? "image://orvel-glows/" + String(Theme.accent).slice(1) : ""
        width: 420
    }

    OrvelMark {
        id: mark

        anchors.centerIn: parent
        anchors.verticalCenterOffset: -24
        color: Theme.accent
        fillProgress: root.fillProgress
        height: width
        outlineProgress: root.outlineProgress
        width: 112 * root.markScale
    }

    // The first frame waits for no font.
    OVLazyLoader {
        active: root.captionOpacity > 0
        anchors.horizontalCenter: parent.horizontalCenter
        anchors.top: mark.bottom
        anchors.topMargin: 28

        sourceComponent: OVText {
            font.letterSpacing: 2
            font.weight: Font.DemiBold
            opacity: root.captionOpacity
            role: OVText.CardTitle
            text: "Orvel"
        }
    }

    TapHandler {
        onTapped: root.finish()
    }

    ParallelAnimation {
        id: sequence

        NumberAnimation { target: root; properties: "outlineProgress,markScale"; to: 1; duration: 1050; easing.type: Easing.InOutQuad }
        SequentialAnimation {
            PauseAnimation { duration: 950 }
            NumberAnimation { target: root; property: "fillProgress"; to: 1; duration: 900; easing.type: Easing.InOutQuad }
        }
        SequentialAnimation {
            PauseAnimation { duration: 1050 }
            NumberAnimation { target: root; property: "glow"; to: 1; duration: 600; easing.type: Easing.InOutQuad }
        }
        SequentialAnimation {
            PauseAnimation { duration: 1500 }
            NumberAnimation { target: root; property: "captionOpacity"; to: 1; duration: 500; easing.type: Easing.OutQuad }
        }
        SequentialAnimation {
            PauseAnimation { duration: 2350 }
            ScriptAction { script: root.finish() }
        }
    }
}
