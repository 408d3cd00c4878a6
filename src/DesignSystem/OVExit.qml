import QtQuick
import Orvel.DesignSystem

/// How floating things go.
Transition {
    id: root

    property bool sinks: false
    readonly property int duration: sinks ? Theme.durationMenu : Theme.durationMenu / 2

    ParallelAnimation {
        NumberAnimation { property: "opacity"; to: 0; duration: root.duration; easing.type: Easing.InCubic }
        NumberAnimation {
            property: root.sinks ? "rise" : "scale"
            to: root.sinks ? 12 : 1
            duration: root.duration
            easing.type: Easing.InCubic
        }
    }
}
