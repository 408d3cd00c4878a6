import QtQuick
import Orvel.DesignSystem

/// One day of a date picker: today in the accent, the chosen day filled, the keyboard's day in a ring.
Item {
    id: cell

    required property int index
    required property string number
    required property bool inMonth
    required property bool today
    required property bool chosen
    required property string label
    property bool current: false

    signal tapped()

    Accessible.role: Accessible.Button
    Accessible.name: label
    Accessible.selected: chosen
    Accessible.onPressAction: cell.tapped()

    Rectangle {
        id: fill
        anchors.fill: parent
        anchors.margins: 2
        radius: Theme.cornerField
        color: cell.chosen ? Theme.accent : Theme.ovHover
        opacity: cell.chosen || hover.hovered ? 1 : 0
    }

    Rectangle {
        anchors.fill: fill
        visible: cell.current
        radius: fill.radius
        color: "transparent"
        border.width: 2
        border.color: Theme.focusRing
        anchors.margins: cell.chosen ? -2 : 0
    }

    OVText {
        anchors.centerIn: parent
        text: cell.number
        role: OVText.Dense
        font.weight: cell.today || cell.chosen ? Font.DemiBold : Font.Normal
        color: cell.chosen ? Theme.onAccent
             : cell.inMonth ? Theme.ovInk : Theme.ovInkTertiary
        Accessible.ignored: true
    }

    Rectangle {
        anchors.horizontalCenter: parent.horizontalCenter
        anchors.bottom: fill.bottom
        anchors.bottomMargin: 3
        visible: cell.today
        width: 4
        height: 4
        radius: 2
        color: cell.chosen ? Theme.onAccent : Theme.accent
    }

    HoverHandler { id: hover }

    TapHandler {
        gesturePolicy: TapHandler.ReleaseWithinBounds
        onTapped: cell.tapped()
    }
}
