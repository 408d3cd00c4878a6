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
            keyClick(Qt.Key_Space)
            compare(laters.count, 1)
            keyClick(Qt.Key_Tab)
            keyClick(Qt.Key_Return)
            compare(updates.count, 1)
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

        function itemWith(item, text) {
            if (item.text === text)
                return item
            for (let i = 0; i < item.children.length; ++i) {
                const found = itemWith(item.children[i], text)
                if (found)
                    return found
            }
            return null
        }
        function isInSight(text) {
            const item = itemWith(prompt.contentItem, text)
            const top = item.mapToItem(prompt.contentItem, 0, 0).y
            return top >= 0 && top + item.height <= prompt.contentItem.height
        }

        function test_longNotesScrollAboveWhatHasToStayInSight() {
            prompt.notes = "Many things are better now, and some are new. ".repeat(80)
            prompt.progressText = "40%"
            prompt.error = "The update download failed."
            prompt.installing = true
            verify(prompt.height <= root.height)
            verify(prompt.y >= 0)
            for (const text of ["40%", prompt.error, "Later", "Updating…"])
                tryVerify(() => isInSight(text), 1000, text)

            prompt.installing = false
            const title = "Orvel 1.5.0 is available"
            for (const [back, onward] of [[Qt.Key_Up, Qt.Key_Down], [Qt.Key_PageUp, Qt.Key_PageDown]]) {
                tryVerify(() => isInSight(title))
                for (let i = 0; i < 4; ++i)
                    keyClick(onward)
                tryVerify(() => !isInSight(title))
                for (let i = 0; i < 8; ++i)
                    keyClick(back)
            }
            keyClick(Qt.Key_PageDown)
            prompt.close()
            tryCompare(prompt, "visible", false)
            prompt.open()
            tryVerify(() => isInSight(title))
            tryCompare(prompt, "opened", true)
            keyClick(Qt.Key_Return)
            compare(laters.count, 1)
        }
    }
}
