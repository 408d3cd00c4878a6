pragma ComponentBehavior: Bound

import QtQuick
import Orvel.DesignSystem
import Orvel.Session
import Orvel.Shell

/// The detail pane: one screen at a time, the next one fading in over the last. Focus follows to another place, unless
/// the user is moving through the places with the keyboard; a screen with a true `wantsKeyboard` takes it even then.
/// Going back to a place shows it as it was left.
FocusScope {
    id: root

    required property ScreenTable screens
    readonly property string identity: detail.identity
    readonly property Item currentItem: pane?.item ?? null
    /// Whether the last screen is still on its way out.
    readonly property bool busy: children.length > 1
    /// Whether the focus is in the navigation around this pane.
    property bool navigationHasFocus: false
    property string shownPlace
    property Loader pane: null

    function show(source: url, properties: var) {
        const hadFocus = activeFocus
        const isNewPlace = detail.place !== shownPlace
        const last = pane
        const kept = last ? ViewStates.keep(last.item) : undefined
        if (last)
            Orvel.visits.keepView(shownPlace, kept)
        const found = isNewPlace ? Orvel.visits.takeView() : kept
        for (let i = 0; i < children.length; ++i) {
            const other = children[i]
            if (other === last)
                other.leave()
            else
                other.destroy()
        }
        pane = paneComponent.createObject(root, { "isShown": last === null })
        pane.setSource(source, properties)
        pane.isShown = true
        shownPlace = detail.place
        // What lies above the workspace when it is first shown, such as the intro, keeps the focus.
        if (last && (hadFocus || isNewPlace && (!navigationHasFocus || currentItem?.wantsKeyboard === true)))
            pane.forceActiveFocus(Qt.OtherFocusReason)
        if (found !== undefined)
            restore(found, isNewPlace || hadFocus)
    }

    function restore(state: var, takesFocus: bool) {
        ViewStates.scroll(currentItem, state)
        if (takesFocus)
            ViewStates.focus(currentItem, state)
        settling.begin(currentItem, state)
    }

    clip: true
    Accessible.role: Accessible.Pane

    component Pane: Loader {
        id: pane

        property bool isShown: false
        property bool isLeaving: false

        function leave() {
            isLeaving = true
            isShown = false
            if (opacity === 0)
                destroy()
        }

        anchors.fill: parent
        enabled: isShown
        focus: isShown
        opacity: isShown ? 1 : 0
        onLoaded: item.focus = true
        onOpacityChanged: {
            if (isLeaving && opacity === 0)
                destroy()
        }
        // A file that makes no item must not leave the pane empty.
        onStatusChanged: {
            if (status === Loader.Error)
                setSource("PlaceNotice.qml", {
                    "symbol": "exclamationmark.triangle",
                    "title": qsTr("This screen can't be shown"),
                    "message": qsTr("Choose another place to go on.")
                })
        }

        Behavior on opacity {
            NumberAnimation { duration: Theme.durationScreen }
        }
    }

    // The focus moves the view, and so does what gets its size late, such as a header.
    Connections {
        id: settling

        property Item screen: null
        property var state
        property int frames: 0

        function begin(screen: Item, state: var) {
            settling.screen = screen
            settling.state = state
            frames = 3
        }

        enabled: frames > 0
        target: root.Window.window

        function onAfterAnimating() {
            --frames
            if (screen === root.currentItem)
                ViewStates.scroll(screen, state)
        }
    }

    Component {
        id: paneComponent

        Pane { }
    }

    DetailViewModel {
        id: detail

        screens: root.screens
        session: Orvel
        onScreenChanged: root.show(detail.source, detail.properties)
    }
}
