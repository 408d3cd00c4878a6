import QtQuick
import Orvel.Decks
import Orvel.DesignSystem

/// A deck on a black stage, one slide at a time.
FocusScope {
    id: root

    required property DeckPresenterViewModel presenter
    required property PresenterDisplays displays
    readonly property var window: Window.window
    /// The window on another display; null if there is none.
    readonly property PresenterAudience audience: audienceLoader.item as PresenterAudience
    property int visibilityBefore: Window.Windowed
    property var fullWindow: null
    readonly property int pointerShape: pointer.cursorShape
    readonly property bool notesShown: PresenterStyle.showingNotes
    readonly property size fitted: presenter.fittedSize(Qt.size(width, height), notesShown ? notes.notesHeight : -1)

    function toggleFullScreen() {
        if (window.visibility === Window.FullScreen) {
            window.visibility = visibilityBefore
        } else {
            visibilityBefore = window.visibility
            window.visibility = Window.FullScreen
            fullWindow = window
        }
    }

    Accessible.name: qsTr("Presentation of %1").arg(presenter.title)
    Accessible.role: Accessible.Pane
    Keys.onPressed: event => keys.take(event)
    Component.onDestruction: {
        // A window that is full for the talk alone goes back to what it was, though the view has left it.
        if (fullWindow?.visibility === Window.FullScreen)
            fullWindow.visibility = visibilityBefore
    }

    IdleInhibitor {
        reason: qsTr("A presentation is running")
        active: true
    }

    PresenterKeys {
        id: keys
        presenter: root.presenter
        onFullScreenRequested: root.toggleFullScreen()
    }

    Binding {
        property: "window"
        target: root.displays
        value: root.window
    }

    Connections {
        target: root.displays

        function onChanged() {
            root.displays.showAudience(root.audience)
        }
    }

    // The slide for the audience; this window is the speaker's then.
    Loader {
        id: audienceLoader
        active: root.displays.audience >= 0
        onLoaded: {
            PresenterStyle.showingNotes = true
            root.displays.showAudience(item)
        }

        // A Loader of this Qt version cannot make a bound component.
        // qmllint disable unqualified
        sourceComponent: Component {
            PresenterAudience {
                presenter: root.presenter
                onActiveChanged: {
                    if (active)
                        root.window.requestActivate()
                }
                onClosing: root.displays.choose(root.displays.own)
                onKeyPressed: event => keys.take(event)
            }
        }
        // qmllint enable unqualified
    }

    // Nothing below is reached by the pointer.
    MouseArea {
        id: pointer

        readonly property bool isShown: cursorShape !== Qt.BlankCursor

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
            pointerShown: pointer.isShown
            presenter: root.presenter
            onMoved: pointer.wake()
        }

        PresenterZone {
            anchors.right: parent.right
            forward: true
            pointerShown: pointer.isShown
            presenter: root.presenter
            onMoved: pointer.wake()
        }
    }

    PresenterNotes {
        id: notes

        readonly property real notesHeight: Math.min(wantedHeight, maxHeight)

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
        displays: root.displays
        presenter: root.presenter
        width: parent.width
        onFullScreenRequested: root.toggleFullScreen()
    }
}
