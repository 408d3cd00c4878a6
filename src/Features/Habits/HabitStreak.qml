import QtQuick
import Orvel.DesignSystem

/// How many days in a row a habit was done.
Rectangle {
    id: root

    required property int streak
    required property color tint

    color: Theme.inkMode ? "transparent" : Qt.alpha(tint, Theme.dark ? 0.16 : 0.12)
    border.color: Theme.ovBorderStrong
    border.width: Theme.inkMode ? Theme.lineWidth : 0
    implicitHeight: row.implicitHeight + Theme.space4
    implicitWidth: row.implicitWidth + 2 * Theme.space8
    radius: height / 2
    Accessible.name: qsTr("Streak: %1").arg(streak)
    Accessible.role: Accessible.StaticText

    Row {
        id: row
        anchors.centerIn: parent
        spacing: Theme.space4

        OVIcon {
            anchors.verticalCenter: parent.verticalCenter
            color: root.tint
            size: Theme.sizeDense
            symbol: "flame.fill"
        }

        OVAnimatedNumber {
            color: Theme.ovInk
            font.weight: Font.DemiBold
            role: OVText.Caption
            text: root.streak
            Accessible.ignored: true
        }
    }
}
