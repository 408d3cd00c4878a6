import QtQuick
import Orvel.DesignSystem

/// The name of a habit, with what was done of it this week and its streak below.
Item {
    id: root

    required property string name
    required property string weekText
    required property int streak
    required property color tint

    height: nameText.implicitHeight + Theme.space4 + Math.max(count.implicitHeight, badge.height)

    OVText {
        id: nameText
        font.weight: Font.DemiBold
        text: root.name
        width: Math.min(implicitWidth, parent.width)
        Accessible.ignored: true
    }

    OVAnimatedNumber {
        id: count
        anchors.bottom: parent.bottom
        anchors.bottomMargin: (Math.max(implicitHeight, badge.height) - implicitHeight) / 2
        color: Theme.ovInkSecondary
        role: OVText.Dense
        text: root.weekText
        Accessible.ignored: true
    }

    HabitStreak {
        id: badge
        anchors.left: count.right
        anchors.leftMargin: Theme.space12
        anchors.verticalCenter: count.verticalCenter
        streak: root.streak
        tint: root.tint
        visible: root.streak > 0
    }
}
