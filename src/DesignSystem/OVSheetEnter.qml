import QtQuick
import Orvel.DesignSystem

/// How sheets and dialogs appear: they rise a little while fading in. The popup has a property "rise".
Transition {
    ParallelAnimation {
        NumberAnimation { property: "opacity"; from: 0; to: 1; duration: Theme.durationScreen; easing.type: Easing.OutCubic }
        NumberAnimation { property: "rise"; from: 12; to: 0; duration: Theme.durationScreen; easing.type: Easing.OutCubic }
    }
}
