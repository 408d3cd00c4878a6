import QtQuick
import Orvel.Decks
import Orvel.DesignSystem

/// A deck on a black stage, one slide at a time.
FocusScope {
    id: root

    required property DeckPresenterViewModel presenter
    readonly property var window: Window.window
    property int visibilityBefore: Window.Windowed
    property bool madeFull: false
    readonly property int pointerShape: pointer.cursorShape
    readonly property bool notesShown: PresenterStyle.showingNotes
    readonly property size fitted: presenter.fittedSize(Qt.size(width, height), notesShown ? notes.notesHeight : -1)

    function toggleFullScreen() {
        if (window.visibility === Window.FullScreen) {
            window.visibility = visibilityBefore
        } else {
            visibilityBefore = window.visibility
            window.visibility = Window.FullScreen
            madeFull = true
        }
    }

    function press(key: int): bool {
        switch (key) {
        case Qt.Key_Right:
        case Qt.Key_Down:
        case Qt.Key_Space:
        case Qt.Key_PageDown:
            presenter.advance(1)
            return true
        case Qt.Key_Left:
        case Qt.Key_Up:
        case Qt.Key_PageUp:
            presenter.advance(-1)
            return true
        case Qt.Key_Home:
            presenter.showFirst()
            return true
        case Qt.Key_End:
            presenter.showLast()
            return true
        case Qt.Key_Escape:
            presenter.close()
            return true
        case Qt.Key_N:
            PresenterStyle.showingNotes = !PresenterStyle.showingNotes
            return true
        case Qt.Key_B:
        case Qt.Key_Period:
            presenter.blanked = !presenter.blanked
            return true
        case Qt.Key_T:
            presenter.restartTimer()
            return true
        case Qt.Key_F:
            toggleFullScreen()
            return true
        }
        return false
    }

    Accessible.name: qsTr("Presentation of %1").arg(presenter.title)
    Accessible.role: Accessible.Pane
    Keys.onPressed: event => {
        const plain = !(event.modifiers & (Qt.ControlModifier | Qt.AltModifier | Qt.MetaModifier))
        event.accepted = plain && press(event.key)
    }
    Component.onDestruction: {
        // A window that is full for the talk alone goes back to what it was.
        if (madeFull && window.visibility === Window.FullScreen)
            window.visibility = visibilityBefore
    }

    IdleInhibitor {
        reason: qsTr("A presentation is running")
        active: true
    }

    // Nothing below is reached by the pointer.
    MouseArea {
        id: pointer

        function wake() {
            rest.restart()
            cursorShape = Qt.ArrowCursor
        }

        acceptedButtons: Qt.AllButtons
        anchors.fill: parent
        hoverEnabled: true
        onPositionChanged: wake()
        onWheel: wheel => wheel.accepted = true

        Timer {
            id: rest
            interval: PresenterStyle.pointerRest
            running: true
            onTriggered: pointer.cursorShape = Qt.BlankCursor
        }
    }

    Rectangle {
        anchors.fill: parent
        color: PresenterStyle.stage
    }

    Item {
        id: stage
        anchors.bottom: notes.visible ? notes.top : bar.top
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.top: parent.top

        PresenterSlide {
            id: slide
            anchors.centerIn: parent
            height: Math.round(root.fitted.height)
            presenter: root.presenter
            visible: root.presenter.hasSlide && !root.presenter.blanked
            width: Math.round(root.fitted.width)
        }

        OVText {
            anchors.centerIn: parent
            color: PresenterStyle.inkSecondary
            text: qsTr("This deck has no slides")
            visible: !root.presenter.hasSlide
        }

        PresenterZone {
            anchors.left: parent.left
            forward: false
            presenter: root.presenter
            onMoved: pointer.wake()
        }

        PresenterZone {
            anchors.right: parent.right
            forward: true
            presenter: root.presenter
            onMoved: pointer.wake()
        }
    }

    PresenterNotes {
        id: notes

        readonly property real notesHeight: Math.min(PresenterStyle.notesHeight, maxHeight)

        anchors.bottom: bar.top
        height: notesHeight + 90 - Theme.space16
        maxHeight: Math.max(Theme.space48, root.height - 160 - 210)
        presenter: root.presenter
        visible: root.notesShown
        width: parent.width
    }

    PresenterBar {
        id: bar
        anchors.bottom: parent.bottom
        presenter: root.presenter
        width: parent.width
        onFullScreenRequested: root.toggleFullScreen()
    }
}
