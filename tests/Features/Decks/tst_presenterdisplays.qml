import QtQuick
import QtTest
import Orvel.Decks
import Orvel.Testing

/// A talk with two displays. Runs where there are two.
Item {
    id: root

    property DeckPresenterLayer talk

    width: 800
    height: 600

    Component {
        id: screen

        DeckPresenterLayer { anchors.fill: parent }
    }

    TestCase {
        id: test

        name: "PresenterDisplays"
        when: windowShown

        function init() {
            if (Qt.application.screens.length < 2)
                return skip("there is one display only")
            Workspace.reset()
            Workspace.stopMotion()
            root.talk = createTemporaryObject(screen, root)
            Workspace.present(Workspace.addDeck("Talk", [{ title: "a", notes: "Breathe" }, { title: "b" }, { title: "c" }]))
            tryVerify(() => audience()?.visible)
            tryVerify(() => root.talk.view.activeFocus)
        }

        function audience() {
            return root.talk.view?.audience ?? null
        }

        function test_theSlideFillsTheOtherDisplayAndNotesStay() {
            const other = Qt.application.screens[1]
            compare(audience().screen.name, other.name)
            compare(audience().visibility, Window.FullScreen)
            compare(audience().width, other.width)
            verify(root.talk.view.notesShown)
            keyClick(Qt.Key_Right)
            compare(root.talk.presenter.index, 1)
            compare(audience().slideIndex, 1)
        }

        function test_keysAndClicksThereGoOn() {
            audience().keyPressed({ key: Qt.Key_PageDown, modifiers: Qt.NoModifier })
            compare(root.talk.presenter.index, 1)
            tryVerify(() => audience().contentItem.width === Qt.application.screens[1].width)
            mouseClick(audience().contentItem)
            compare(root.talk.presenter.index, 2)
            mouseClick(audience().contentItem, 10, 10, Qt.RightButton)
            compare(root.talk.presenter.index, 1)
            keyClick(Qt.Key_Escape)
            tryVerify(() => !root.talk.view)
        }

        function test_theWindowAloneWhereThatIsChosen() {
            root.talk.displays.choose(root.talk.displays.own)
            tryVerify(() => !audience())
            root.talk.displays.choose(1)
            tryVerify(() => audience()?.visible)
            audience().close()
            tryVerify(() => !audience())
        }
    }
}
