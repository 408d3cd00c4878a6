pragma ComponentBehavior: Bound

import QtQuick
import Orvel.DesignSystem

/// A mark for each step: those behind are filled, the one at hand is long.
Row {
    id: root

    required property int count
    required property int current
    /// The same in words.
    required property string text

    spacing: Theme.space8 - 2
    Accessible.name: text
    Accessible.role: Accessible.Indicator

    Repeater {
        model: root.count

        Rectangle {
            required property int index

            color: index <= root.current ? Theme.accent : Theme.ovBorderStrong
            height: 6
            opacity: index < root.current ? 0.45 : 1
            radius: height / 2
            width: index === root.current ? 22 : height

            Behavior on width {
                NumberAnimation { duration: Theme.durationSpring; easing: Theme.springEasing }
            }
            Behavior on color {
                ColorAnimation { duration: Theme.durationScreen }
            }
            Behavior on opacity {
                NumberAnimation { duration: Theme.durationScreen }
            }
        }
    }
}
