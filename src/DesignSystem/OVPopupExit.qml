import QtQuick
import Orvel.DesignSystem

/// How menus and other small popups close.
Transition {
    NumberAnimation { property: "opacity"; to: 0; duration: Theme.durationMenu / 2; easing.type: Easing.InCubic }
}
