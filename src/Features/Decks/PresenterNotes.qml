import QtQuick
import QtQuick.Templates as T
import Orvel.Decks
import Orvel.DesignSystem

/// The notes of the slide and the slide that follows. Its upper edge can be dragged.
Item {
    id: root

    required property DeckPresenterViewModel presenter
    /// The most that its notes can take.
    required property real maxHeight
    /// What the user wants them to take, also while dragging.
    readonly property real wantedHeight: drag.active ? drag.heightNow : presenter.notesHeight

    /// Scrolls the notes by so many pages.
    function scroll(pages: real) {
        view.contentY = Math.max(0, Math.min(view.contentHeight - view.height, view.contentY + pages * view.height))
    }

    Rectangle {
        anchors.fill: parent
        anchors.leftMargin: Theme.space16
        anchors.rightMargin: Theme.space16
        color: PresenterStyle.panel
        radius: Theme.cornerCard
    }

    Item {
        anchors.horizontalCenter: parent.horizontalCenter
        height: Theme.space16
        width: parent.width - 2 * Theme.space32
        z: 1

        Rectangle {
            anchors.horizontalCenter: parent.horizontalCenter
            color: PresenterStyle.track
            height: 4
            radius: 2
            width: Theme.space48
            y: 6
        }

        HoverHandler { cursorShape: Qt.SizeVerCursor }

        DragHandler {
            id: drag

            property real heightBefore: 0
            property real heightNow: 0

            target: null
            xAxis.enabled: false
            onActiveChanged: {
                if (active)
                    heightBefore = heightNow = Math.min(root.presenter.notesHeight, root.maxHeight)
                else
                    root.presenter.notesHeight = heightNow
            }
            onTranslationChanged: {
                if (active)
                    heightNow = Math.max(Theme.space48, Math.min(root.maxHeight, heightBefore - translation.y))
            }
        }
    }

    OVText {
        id: heading
        color: PresenterStyle.inkSecondary
        role: OVText.Section
        text: qsTr("Notes")
        x: Theme.space32
        y: Theme.space16
    }

    Flickable {
        id: view
        anchors.bottom: parent.bottom
        anchors.bottomMargin: Theme.space16
        anchors.left: parent.left
        anchors.leftMargin: Theme.space32
        anchors.right: next.visible ? next.left : parent.right
        anchors.rightMargin: Theme.space32
        anchors.top: heading.bottom
        anchors.topMargin: Theme.space8
        boundsBehavior: Flickable.StopAtBounds
        clip: true
        contentHeight: notes.height
        T.ScrollBar.vertical: OVScrollBar { }

        OVText {
            id: notes
            color: root.presenter.notesText === "" ? PresenterStyle.inkSecondary : PresenterStyle.ink
            elide: Text.ElideNone
            font.pixelSize: Theme.sizeReading
            text: root.presenter.notesText || qsTr("No notes on this slide.")
            width: parent.width
            wrapMode: Text.Wrap
            onTextChanged: view.contentY = 0
        }
    }

    SlideCanvas {
        id: next
        anchors.right: parent.right
        anchors.rightMargin: Theme.space32
        height: Math.round(width * 9 / 16)
        shown: root.presenter.next
        visible: root.presenter.hasNext && root.width > 3 * width
        width: Math.round(Math.max(16, (root.height - heading.y - 2 * Theme.space16) * 16 / 9))
        y: Theme.space16

        OVText {
            anchors.right: parent.left
            anchors.rightMargin: Theme.space8
            color: PresenterStyle.inkSecondary
            role: OVText.Section
            text: qsTr("Next")
        }
    }
}
