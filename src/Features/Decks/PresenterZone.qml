import QtQuick
import Orvel.Decks
import Orvel.DesignSystem

/// The side of the stage where a press goes to the next slide or back.
MouseArea {
    id: zone

    required property DeckPresenterViewModel presenter
    required property bool forward
    /// Whether the pointer has moved of late; one that rests is hidden.
    required property bool pointerShown
    readonly property bool leads: forward ? presenter.hasNext : presenter.index > 0

    signal moved()

    cursorShape: !pointerShown ? Qt.BlankCursor : leads ? Qt.PointingHandCursor : Qt.ArrowCursor
    height: parent.height
    hoverEnabled: true
    width: Math.round(parent.width * 0.16)
    onClicked: presenter.advance(forward ? 1 : -1)
    onPositionChanged: moved()

    Rectangle {
        anchors.centerIn: parent
        color: PresenterStyle.stage
        height: Theme.space48
        opacity: zone.containsMouse && zone.pointerShown && zone.leads ? 0.5 : 0
        radius: height / 2
        width: height

        Behavior on opacity {
            NumberAnimation { duration: Theme.durationHover }
        }

        OVIcon {
            anchors.centerIn: parent
            color: PresenterStyle.ink
            size: Theme.iconTile
            symbol: zone.forward ? "chevron.right" : "chevron.left"
        }
    }
}
