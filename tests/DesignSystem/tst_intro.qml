import QtQuick
import QtTest
import Orvel.DesignSystem

TestCase {
    id: test

    name: "Intro"
    visible: true
    when: windowShown
    width: 400
    height: 300

    Component {
        id: introOfItsOwn

        OrvelIntroView { anchors.fill: parent }
    }

    SignalSpy { id: finished; signalName: "finished" }

    function begin() {
        const intro = createTemporaryObject(introOfItsOwn, test)
        finished.target = intro
        finished.clear()
        intro.forceActiveFocus()
        intro.run()
        compare(finished.count, 0)
        return intro
    }

    function test_aKeyEndsItOnce() {
        const intro = begin()
        keyClick(Qt.Key_Escape)
        compare(finished.count, 1)
        keyClick(Qt.Key_Escape)
        intro.finish()
        compare(finished.count, 1)
    }

    function test_aPressEndsIt() {
        const intro = begin()
        mouseClick(intro)
        compare(finished.count, 1)
    }
}
