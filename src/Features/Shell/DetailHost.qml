import QtQuick
import QtQuick.Templates as T
import Orvel.DesignSystem
import Orvel.Session
import Orvel.Shell

/// The detail pane: one screen at a time, the next one fading in over the last. The keyboard goes along to another
/// place, but for who walks through the places by keys, and to them as well where a screen has a `wantsKeyboard` that
/// is true.
T.StackView {
    id: root

    readonly property string identity: detail.identity
    /// Whether the keyboard's focus is in what leads from place to place.
    property bool navigationHasFocus: false
    property string shownPlace

    function show() {
        const isFirst = depth === 0
        const hadFocus = activeFocus
        const isNewPlace = detail.place !== shownPlace
        const screen = isFirst ? push(detail.source, detail.properties, T.StackView.Immediate)
                               : replace(null, detail.source, detail.properties)
        shownPlace = detail.place
        screen.focus = true
        // What lies above the workspace when it comes, such as the intro, keeps the keyboard.
        if (!isFirst && (hadFocus || isNewPlace && (!navigationHasFocus || screen.wantsKeyboard === true)))
            screen.forceActiveFocus(Qt.OtherFocusReason)
    }

    clip: true
    Accessible.role: Accessible.Pane

    replaceEnter: Transition {
        NumberAnimation { property: "opacity"; from: 0; to: 1; duration: Theme.durationScreen }
    }
    replaceExit: Transition {
        NumberAnimation { property: "opacity"; from: 1; to: 0; duration: Theme.durationScreen }
    }

    DetailViewModel {
        id: detail

        store: Orvel.store
        themeRevision: ThemeRevision.value
        ui: Orvel.ui
        onScreenChanged: root.show()
    }
}
