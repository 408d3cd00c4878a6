import QtQuick
import Orvel.Onboarding
import Orvel.Session
import Orvel.Testing

/// The real first run, worked with real mouse and key events; what counts in the end is what stands in the file.
Item {
    id: root

    property OnboardingView view

    width: 1000
    height: 800

    Component {
        id: screen

        OnboardingView {
            anchors.fill: parent
            focus: true
        }
    }

    ScreenTestCase {
        id: test

        name: "OnboardingView"
        scene: root.view

        function init() {
            Workspace.resetToFirstRun()
            root.width = 1000
            root.height = 800
        }

        function open() {
            root.view = createTemporaryObject(screen, root)
            root.view.forceActiveFocus()
            waitForRendering(root.view)
        }

        /// The visible item that assistive tools know by this name.
        function find(name, from = root.view) {
            for (let i = from.children.length - 1; i >= 0; --i) {
                const child = from.children[i]
                if (!child.visible)
                    continue
                const found = child.Accessible.name === name ? child : find(name, child)
                if (found)
                    return found
            }
            return null
        }

        function isAt(step, title) {
            tryVerify(() => find("Step " + step + " of 6"), 2000, "step " + step)
            tryVerify(() => find(title), 2000, title)
            // A page on its way out takes no part.
            tryVerify(() => !pages().busy, 2000, "the page has come")
        }

        /// The view's stack of pages.
        function pages(from = root.view) {
            for (let i = 0; i < from.children.length; ++i) {
                const child = from.children[i]
                const found = child.busy !== undefined && child.depth !== undefined ? child : pages(child)
                if (found)
                    return found
            }
            return null
        }

        function test_byMouse() {
            open()
            isAt(1, "Welcome to Orvel")
            verify(!find("Back"))
            click("Get started")
            isAt(2, "Make it yours")
            verify(!focused().visualFocus)
            type("Ada")
            click("Workspace name")
            type("Studio")
            click("🪐")
            click("Continue")
            isAt(3, "Choose your tools")
            click("Clear")
            click("Tasks")
            click("Habits")
            click("Habits")
            click("Continue")
            isAt(4, "Start with a little content")
            verify(!find("You've hidden every module. The workspace will be empty until you re-enable some in Settings."))
            click("Add example content")
            click("Back")
            isAt(3, "Choose your tools")
            compare(find("Tasks").checked, true)
            compare(find("Notes").checked, false)
            click("Continue")
            isAt(4, "Start with a little content")
            compare(find("Add example content").checked, true)
            click("Continue")
            isAt(5, "Pick a look")
            click("Dark")
            click("Continue")
            isAt(6, "You're all set")
            verify(!find("Skip setup"))
            for (const line of ["Name: Ada", "Workspace: Studio", "Modules: 1 enabled", "Example content: Included",
                                "Appearance: Dark"])
                verify(find(line), line)
            compare(saved().settings.userName, "")
            compare(saved().settings.hasCompletedOnboarding, false)
            click("Enter workspace")
            const file = saved()
            compare(file.settings.hasCompletedOnboarding, true)
            compare(file.settings.userName, "Ada")
            compare(file.settings.workspaceName, "Studio")
            compare(file.settings.workspaceIcon, "🪐")
            compare(file.settings.appearance, "dark")
            compare(file.settings.hiddenModules.length, 13)
            verify(!file.settings.hiddenModules.includes("tasks"))
            compare(file.tasks.length, 5)
        }

        function test_byKeysAlone() {
            open()
            compare(focused().Accessible.name, "Get started")
            keyClick(Qt.Key_Return)
            isAt(2, "Make it yours")
            compare(focused().Accessible.name, "Your name")
            type("Ada")
            keyClick(Qt.Key_Tab)
            compare(focused().Accessible.name, "Workspace name")
            type("Studio")
            keyClick(Qt.Key_Tab)
            compare(focused().Accessible.name, "🧠")
            keyClick(Qt.Key_Right)
            keyClick(Qt.Key_Right)
            compare(focused().Accessible.name, "🌱")
            verify(focused().visualFocus)
            verify(focused().checked)
            keyClick(Qt.Key_Return)

            isAt(3, "Choose your tools")
            compare(focused().Accessible.name, "Continue")
            verify(focused().visualFocus)
            while (focused().Accessible.name !== "Dashboard")
                keyClick(Qt.Key_Backtab)
            keyClick(Qt.Key_Right)
            keyClick(Qt.Key_Down)
            compare(focused().Accessible.name, "Calendar")
            keyClick(Qt.Key_Space)
            compare(find("Calendar").checked, false)
            keyClick(Qt.Key_End)
            compare(focused().Accessible.name, "Reader")
            keyClick(Qt.Key_Down)
            keyClick(Qt.Key_Space)
            keyClick(Qt.Key_Tab)
            compare(focused().Accessible.name, "Back")
            keyClick(Qt.Key_Tab)
            keyClick(Qt.Key_Space)

            isAt(4, "Start with a little content")
            keyClick(Qt.Key_Backtab)
            keyClick(Qt.Key_Backtab)
            compare(focused().Accessible.name, "Add example content")
            keyClick(Qt.Key_Space)
            keyClick(Qt.Key_Escape)
            isAt(3, "Choose your tools")
            keyClick(Qt.Key_Left, Qt.AltModifier)
            isAt(2, "Make it yours")
            compare(focused().text, "Ada")
            keyClick(Qt.Key_Return)
            isAt(3, "Choose your tools")
            keyClick(Qt.Key_Return)
            isAt(4, "Start with a little content")
            keyClick(Qt.Key_Return)

            isAt(5, "Pick a look")
            keyClick(Qt.Key_Backtab)
            keyClick(Qt.Key_Backtab)
            compare(focused().Accessible.name, "System")
            keyClick(Qt.Key_Right)
            compare(find("Light").checked, true)
            keyClick(Qt.Key_Return)
            isAt(6, "You're all set")
            compare(focused().Accessible.name, "Enter workspace")
            keyClick(Qt.Key_Return)
            const settings = saved().settings
            compare(settings.hasCompletedOnboarding, true)
            compare(settings.userName, "Ada")
            compare(settings.workspaceName, "Studio")
            compare(settings.workspaceIcon, "🌱")
            compare(settings.hiddenModules.join(), "calendar,reader")
            compare(settings.appearance, "light")
            verify(saved().habits.length > 0)
        }

        function test_skipping() {
            Orvel.ui.select("settings")
            open()
            keyClick(Qt.Key_Escape)
            isAt(1, "Welcome to Orvel")
            click("Skip setup")
            isAt(6, "You're all set")
            verify(find("Name: Not set"))
            click("Back")
            isAt(5, "Pick a look")
            click("Skip setup")
            isAt(6, "You're all set")
            keyClick(Qt.Key_Return)
            const file = saved()
            compare(file.settings.hasCompletedOnboarding, true)
            compare(file.settings.hiddenModules.length, 0)
            compare(file.pages.length, 1)
            compare(Orvel.ui.selection.text, "dashboard")
        }

        function test_withoutModules() {
            open()
            click("Get started")
            click("Continue")
            isAt(3, "Choose your tools")
            click("Clear")
            click("Continue")
            isAt(4, "Start with a little content")
            verify(find("You've hidden every module. The workspace will be empty until you re-enable some in Settings."))
            click("Skip setup")
            isAt(6, "You're all set")
            verify(find("Modules: None"))
        }

        function test_theFocusStaysInSight() {
            root.width = 720
            root.height = 480
            open()
            click("Get started")
            click("Continue")
            isAt(3, "Choose your tools")
            for (let i = 0; i < 4 && focused().Accessible.name !== "Dashboard"; ++i)
                keyClick(Qt.Key_Backtab)
            const stack = pages()
            for (const key of [Qt.Key_End, Qt.Key_Home]) {
                keyClick(key)
                waitForRendering(root.view, 200)
                const top = focused().mapToItem(stack, 0, 0).y
                verify(top >= 0, "below the header: " + top)
                verify(top + focused().height <= stack.height, "above the footer: " + top)
            }
            verify(find("Continue").mapToItem(root.view, 0, 0).y < 480)
        }
    }
}
