import QtQuick
import Orvel.Decks
import Orvel.DesignSystem

/// Below the slide: where in the deck it is, how long the talk has taken, and what can be done by hand.
Item {
    id: root

    required property DeckPresenterViewModel presenter
    required property PresenterDisplays displays

    signal fullScreenRequested()

    implicitHeight: PresenterStyle.barHeight

    Row {
        id: place
        anchors.verticalCenter: parent.verticalCenter
        spacing: Theme.space4
        x: Theme.space16

        PresenterButton {
            enabled: root.presenter.index > 0
            symbol: "chevron.left"
            text: qsTr("Previous slide")
            onClicked: root.presenter.advance(-1)
        }

        PresenterButton {
            enabled: root.presenter.hasNext
            symbol: "chevron.right"
            text: qsTr("Next slide")
            onClicked: root.presenter.advance(1)
        }

        OVText {
            anchors.verticalCenter: parent.verticalCenter
            color: PresenterStyle.ink
            leftPadding: Theme.space8
            role: OVText.Dense
            text: root.presenter.positionText
        }
    }

    Rectangle {
        anchors.left: place.right
        anchors.leftMargin: Theme.space16
        anchors.right: actions.left
        anchors.rightMargin: Theme.space16
        anchors.verticalCenter: parent.verticalCenter
        color: PresenterStyle.track
        height: 4
        radius: 2
        visible: width > Theme.space48
        Accessible.name: qsTr("Progress")
        Accessible.role: Accessible.ProgressBar

        Rectangle {
            color: PresenterStyle.ink
            height: parent.height
            radius: 2
            width: parent.width * root.presenter.progress

            Behavior on width {
                NumberAnimation { duration: Theme.durationScreen; easing.type: Easing.OutCubic }
            }
        }
    }

    Row {
        id: actions
        anchors.right: parent.right
        anchors.rightMargin: Theme.space16
        anchors.verticalCenter: parent.verticalCenter
        spacing: Theme.space4

        OVPressable {
            id: timer
            anchors.verticalCenter: parent.verticalCenter
            implicitHeight: Theme.iconButtonSize
            leftPadding: Theme.space8
            rightPadding: Theme.space8
            text: qsTr("Restart the timer")
            toolTip: qsTr("Restart the timer, T")
            onClicked: root.presenter.restartTimer()

            background: Rectangle {
                color: timer.hovered ? PresenterStyle.hover : "transparent"
                radius: Theme.cornerField
            }
            contentItem: OVText {
                Accessible.ignored: true
                color: PresenterStyle.ink
                font.family: Theme.codeFamily
                role: OVText.Dense
                text: root.presenter.elapsedText
            }
        }

        PresenterButton {
            checked: PresenterStyle.showingNotes
            symbol: "note.text"
            text: qsTr("Notes")
            toolTip: qsTr("Notes, N")
            onClicked: PresenterStyle.showingNotes = !PresenterStyle.showingNotes
        }

        PresenterButton {
            checked: root.presenter.blanked
            symbol: root.presenter.blanked ? "eye.slash" : "eye"
            text: qsTr("Blank the screen")
            toolTip: qsTr("Blank the screen, B")
            onClicked: root.presenter.blanked = !root.presenter.blanked
        }

        PresenterButton {
            id: displayButton
            checked: root.displays.audience >= 0
            symbol: "display"
            text: qsTr("Display for the slide")
            visible: root.displays.names.length > 1
            onClicked: {
                const byKey = visualFocus
                displayMenu.openBeside(displayButton, 0, -Theme.space4, height + Theme.space4)
                displayMenu.currentIndex = byKey ? 0 : -1
            }

            PresenterDisplayMenu {
                id: displayMenu
                displays: root.displays
            }
        }

        PresenterButton {
            symbol: root.Window.visibility === Window.FullScreen ? "arrow.down.right.and.arrow.up.left"
                                                                : "arrow.up.left.and.arrow.down.right"
            text: qsTr("Full screen")
            toolTip: qsTr("Full screen, F")
            onClicked: root.fullScreenRequested()
        }

        PresenterButton {
            symbol: "xmark"
            text: qsTr("Exit presentation (Esc)")
            onClicked: root.presenter.close()
        }
    }
}
