import QtQuick
import QtQuick.Templates as T
import Orvel.Decks
import Orvel.DesignSystem
import Orvel.Session

/// The presentation over the whole window, while `Orvel.ui.presentingDeckID` names a deck.
Item {
    id: root

    readonly property alias presenter: talk
    readonly property alias displays: displays
    readonly property alias view: content.item

    DeckPresenterViewModel {
        id: talk
        session: Orvel
    }

    PresenterDisplays { id: displays }

    T.Popup {
        id: popup

        readonly property OVFocusReturn focusReturn: OVFocusReturn { popup: popup }

        closePolicy: T.Popup.NoAutoClose
        dim: false
        focus: true
        height: parent?.height ?? 0
        modal: true
        parent: T.Overlay.overlay
        visible: talk.isPresenting
        width: parent?.width ?? 0
        OVAccessible.name: qsTr("Presentation")
        OVAccessible.role: Accessible.Pane

        contentItem: Loader {
            id: content
            active: talk.isPresenting
            focus: true

            // A Loader of this Qt version cannot make a bound component.
            // qmllint disable unqualified
            sourceComponent: Component {
                DeckPresenterView {
                    displays: root.displays
                    focus: true
                    presenter: talk
                }
            }
            // qmllint enable unqualified
        }
    }
}
