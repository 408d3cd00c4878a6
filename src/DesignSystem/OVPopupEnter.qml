import QtQuick
import Orvel.DesignSystem

/// How menus and other small popups open: they grow out of their anchor while fading in.
Transition {
    ParallelAnimation {
        NumberAnimation { property: "opacity"; from: 0; to: 1; duration: Theme.durationMenu; easing.type: Easing.OutCubic }
        NumberAnimation { property: "scale"; from: 0.97; to: 1; duration: Theme.durationMenu; easing.type: Easing.OutCubic }
    }
}
