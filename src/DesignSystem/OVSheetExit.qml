import QtQuick
import Orvel.DesignSystem

/// How sheets and dialogs go.
Transition {
    ParallelAnimation {
        NumberAnimation { property: "opacity"; to: 0; duration: Theme.durationMenu; easing.type: Easing.InCubic }
        NumberAnimation { property: "rise"; to: 12; duration: Theme.durationMenu; easing.type: Easing.InCubic }
    }
}
