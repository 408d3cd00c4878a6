import QtQuick
import Orvel.DesignSystem

/// The priority of a task as a dot of its tone.
Rectangle {
    id: dot

    /// A choice.
    required property var priority

    color: colors.tint
    implicitHeight: Theme.space8
    implicitWidth: Theme.space8
    radius: height / 2
    Accessible.name: qsTr("Priority: %1").arg(priority.raw)
    Accessible.role: Accessible.Indicator

    OVToneColors {
        id: colors
        tone: dot.priority.tone
    }

    HoverHandler {
        id: pointer
    }

    OVToolTip {
        shown: pointer.hovered
        target: dot
        text: dot.Accessible.name
    }
}
