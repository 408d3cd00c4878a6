import QtQuick
import Orvel.Decks

/// The slide alone, over the whole of another display. The keys go on to the speaker's window.
Window {
    id: root

    required property DeckPresenterViewModel presenter
    readonly property alias slideIndex: slide.shownIndex

    signal keyPressed(event: var)

    color: PresenterStyle.stage
    flags: Qt.Window | Qt.FramelessWindowHint
    title: qsTr("Presentation of %1").arg(presenter.title)
    transientParent: null

    Item {
        anchors.fill: parent
        focus: true
        Keys.onPressed: event => root.keyPressed(event)

        PresenterSlide {
            id: slide
            anchors.centerIn: parent
            height: Math.round(width * 9 / 16)
            presenter: root.presenter
            visible: root.presenter.hasSlide && !root.presenter.blanked
            width: Math.round(Math.min(parent.width, parent.height * 16 / 9))
        }

        MouseArea {
            acceptedButtons: Qt.LeftButton | Qt.RightButton
            anchors.fill: parent
            cursorShape: Qt.BlankCursor
            onClicked: mouse => root.presenter.advance(mouse.button === Qt.LeftButton ? 1 : -1)
        }
    }
}
