import QtQuick
import QtTest
import Orvel.DesignSystem
import Orvel.Updates

Item {
    id: root

    width: 720
    height: 560

    UpdatePromptView {
        id: prompt
        version: "1.5.0"
    }

    SignalSpy { id: updates; target: prompt; signalName: "updateRequested" }
    SignalSpy { id: laters; target: prompt; signalName: "laterRequested" }

    TestCase {
        name: "UpdatePrompt"
        when: windowShown
        visible: true

        function init() {
            prompt.installing = false
            prompt.notes = ""
            prompt.error = ""
            prompt.open()
            tryCompare(prompt, "opened", true)
            updates.clear()
            laters.clear()
        }
        function cleanup() {
            prompt.installing = false
            prompt.close()
            tryCompare(prompt, "visible", false)
        }

        function texts(item) {
            let found = item.visible && item.text ? [item.text] : []
            for (let i = 0; item.visible && i < item.children.length; ++i)
                found = found.concat(texts(item.children[i]))
            return found
        }

        function test_showsWhatStandsAtEachStage() {
            const always = [
                "Orvel 1.5.0 is available",
                "A newer build is ready. Orvel will quit and reopen itself to finish updating."
            ]
            const expect = lines => {
                const shown = texts(prompt.contentItem)
                for (const line of lines)
                    verify(shown.includes(line), line + " in " + shown)
            }
            expect([...always, "Later", "Update & restart"])
            verify(!texts(prompt.contentItem).includes("WHAT'S NEW"))

            prompt.notes = "Faster <b>search</b>"
            prompt.error = "The update couldn't be unpacked."
            expect([...always, "WHAT'S NEW", "Faster <b>search</b>", "The update couldn't be unpacked."])

            prompt.progressText = "40% — this can take a moment on a slow connection."
            prompt.installing = true
            expect([...always, prompt.progressText, "Updating…", "Later"])
        }

        function test_keysDecide() {
            keyClick(Qt.Key_Return)
            compare(updates.count, 1)
            keyClick(Qt.Key_Backtab, Qt.ShiftModifier)
            keyClick(Qt.Key_Space)
            compare(laters.count, 1)
            keyClick(Qt.Key_Escape)
            tryCompare(prompt, "visible", false)
        }

        function test_cannotBeLeftWhileInstalling() {
            prompt.installing = true
            keyClick(Qt.Key_Escape)
            mouseClick(root, 4, 4)
            keyClick(Qt.Key_Return)
            wait(Theme.durationMenu + 50)
            verify(prompt.opened)
            compare(updates.count, 0)
        }

        function test_longNotesScrollInASmallWindow() {
            prompt.notes = "Many things are better now, and some are new. ".repeat(80)
            verify(prompt.height <= root.height)
            verify(prompt.y >= 0)
        }
    }
}
