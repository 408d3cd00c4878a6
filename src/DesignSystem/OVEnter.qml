import QtQuick
import Orvel.DesignSystem

/// How floating things appear while fading in: menus and other small popups grow out of their anchor, sheets,
/// dialogs and toasts rise. What rises has a property "rise".
Transition {
    id: root

    property bool rises: false
    readonly property int duration: rises ? Theme.durationScreen : Theme.durationMenu

    ParallelAnimation {
        NumberAnimation { property: "opacity"; from: 0; to: 1; duration: root.duration; easing.type: Easing.OutCubic }
        NumberAnimation {
            property: root.rises ? "rise" : "scale"
            from: root.rises ? 12 : 0.97
            to: root.rises ? 0 : 1
            duration: root.duration
            easing.type: Easing.OutCubic
        }
    }
}
