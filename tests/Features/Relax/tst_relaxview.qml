import QtQuick
import QtTest
import Orvel.Relax
import Orvel.Session
import Orvel.Testing

/// The real screen, worked with real mouse and key events.
Item {
    id: root

    property RelaxView view

    width: 1000
    height: 760

    Component {
        id: screen

        RelaxView {
            anchors.fill: parent
            focus: true
        }
    }

    TestCase {
        id: test

        name: "RelaxView"
        when: windowShown

        function init() {
            Workspace.reset()
        }

        function open() {
            root.view = createTemporaryObject(screen, root)
            root.view.forceActiveFocus()
            waitForRendering(root.view)
        }

        function find(name, from = root.view) {
            for (let i = 0; i < from.children.length; ++i) {
                const child = from.children[i]
                if (!child.visible || child.opacity === 0)
                    continue
                const found = child.Accessible.name === name ? child : find(name, child)
                if (found)
                    return found
            }
            return null
        }

        function shown(name, from = root.view) {
            tryVerify(() => find(name, from) !== null, 3000, "shows " + name)
            return find(name, from)
        }

        function windowContent() {
            return root.Window.contentItem
        }

        function scene(from = root.view) {
            return find(root.view.relax.sceneLabel, from)
        }

        function links() {
            return JSON.parse(Workspace.saved()).settings.relaxLinks.map(link => link.name).join()
        }

        function test_playsAndPauses() {
            open()
            const before = scene().seconds
            tryVerify(() => scene().seconds > before)
            compare(root.view.Window.activeFocusItem.Accessible.name, "Pause")
            keyClick(Qt.Key_Space)
            shown("Paused")
            const still = scene().seconds
            wait(120)
            compare(scene().seconds, still)
            mouseClick(shown("Shuffle scene"))
            shown("Ocean")
            keyClick(Qt.Key_Space)
            tryVerify(() => scene().seconds > still)
            // A screen that is not seen draws nothing.
            const picture = scene()
            root.view.visible = false
            const hidden = picture.seconds
            wait(120)
            compare(picture.seconds, hidden)
        }

        function test_isStillWithoutMotion() {
            Workspace.stopMotion()
            open()
            const before = scene().seconds
            wait(120)
            compare(scene().seconds, before)
            mouseClick(shown("Breathing guide"))
            shown("Breathe in, 4")
            verify(find("Follow the circle") === null)
        }

        function test_choosesScenesByKeys() {
            open()
            const thumbnail = name => {
                const stage = find(root.view.relax.sceneLabel)
                const siblings = stage.parent.children
                for (let i = 0; i < siblings.length; ++i) {
                    const found = siblings[i] === stage ? null : find(name, siblings[i])
                    if (found)
                        return found
                }
                return null
            }
            thumbnail("Aurora").forceActiveFocus(Qt.TabFocusReason)
            keyClick(Qt.Key_Right)
            compare(root.view.relax.scene, "ocean")
            verify(thumbnail("Ocean").activeFocus)
            keyClick(Qt.Key_Left)
            keyClick(Qt.Key_Left)
            compare(root.view.relax.scene, "aurora")
        }

        function test_zenMode() {
            open()
            mouseClick(shown("Zen mode"))
            tryVerify(() => root.view.relax.zenMode)
            shown("Leave Zen mode", windowContent())
            keyClick(Qt.Key_Right)
            compare(root.view.relax.scene, "ocean")
            tryVerify(() => find("Leave Zen mode", windowContent()) === null, 5000)
            mouseClick(windowContent(), 500, 300)
            shown("Leave Zen mode", windowContent())
            mouseClick(shown("Leave Zen mode", windowContent()))
            tryVerify(() => !root.view.relax.zenMode)
            compare(root.view.Window.activeFocusItem.Accessible.name, "Zen mode")
            keyClick(Qt.Key_Return)
            tryVerify(() => root.view.relax.zenMode)
            keyClick(Qt.Key_Escape)
            tryVerify(() => !root.view.relax.zenMode)
        }

        function test_breathes() {
            open()
            mouseClick(shown("Breathing guide"))
            shown("Breathe in, 4")
            shown("Breathe in, 2")
            mouseClick(shown("Breathing guide"))
            tryVerify(() => find("Breathe in, 2") === null)
        }

        function test_savesAndPlaysLinks() {
            open()
            root.view.video.videoURL = "https://example.org/rain.mp4"
            root.view.video.saveCurrentLink()
            compare(links(), "rain.mp4")
            root.view.video.videoURL = ""
            const chip = shown("rain.mp4")
            chip.forceActiveFocus(Qt.TabFocusReason)
            keyClick(Qt.Key_Return)
            tryVerify(() => root.view.relax.useVideo)
            compare(root.view.video.videoURL, "https://example.org/rain.mp4")
            keyClick(Qt.Key_Delete)
            compare(links(), "")
            shown("Saved links collect here, one tap away next time.")
        }
    }
}
