import QtQuick
import Orvel.DesignSystem
import Orvel.Session
import Orvel.Settings
import Orvel.Testing

/// The real screen, worked with real mouse and key events; what counts in the end is what stands in the file.
Item {
    id: root

    property SettingsView view

    width: 1100
    height: 700

    Component {
        id: screen

        SettingsView {
            anchors.fill: parent
            focus: true
        }
    }

    ScreenTestCase {
        id: test

        name: "SettingsView"
        scene: root.view

        function init() {
            Workspace.reset()
            Workspace.stopMotion()
            root.width = 1100
            root.height = 700
            root.view = createTemporaryObject(screen, root)
            root.view.forceActiveFocus()
            waitForRendering(root.view)
        }

        /// The visible item that assistive tools know by this name.
        function find(name, from = root.view) {
            for (let i = 0; i < from.children.length; ++i) {
                const child = from.children[i]
                if (!child.visible)
                    continue
                const found = child.Accessible.name === name && !child.Accessible.ignored ? child : find(name, child)
                if (found)
                    return found
            }
            return null
        }

        /// Within the section of this title.
        function findIn(section, name) {
            return find(name, find(section, column()).parent)
        }

        function column(from = root.view) {
            for (let i = 0; i < from.children.length; ++i) {
                const child = from.children[i]
                const found = child.sections !== undefined && child.laidOut !== undefined ? child : column(child)
                if (found)
                    return found
            }
            return null
        }

        function jumpTo(title) {
            mouseClick(find(title, find("Sections")))
            waitForRendering(root.view)
        }

        function middle(item) {
            return item.mapToItem(root, item.width / 2, item.height / 2)
        }

        function press(item) {
            const place = middle(item)
            verify(place.y > 0 && place.y < root.height, "in view")
            mouseClick(root, place.x, place.y)
            waitForRendering(root.view)
        }

        function settings() {
            return JSON.parse(Workspace.saved()).settings
        }

        function test_whatIsPressedStaysUnderThePointer_data() {
            return [
                { section: "Typography", name: "Huge", field: "fontScale", value: 1.25 },
                { section: "Typography", name: "Serif", field: "font", value: "serif" },
                { section: "Navigation", name: "spacious", field: "density", value: "spacious" },
                { section: "Themes", name: "Forest", field: "preset", value: "forest" }
            ]
        }

        function test_whatIsPressedStaysUnderThePointer(data) {
            jumpTo(data.section)
            const item = findIn(data.section, data.name)
            const place = item.mapToItem(root, 0, 0).y
            press(item)
            compare(settings().theme[data.field], data.value)
            compare(findIn(data.section, data.name), item)
            verify(item.checked)
            fuzzyCompare(item.mapToItem(root, 0, 0).y, place, 1)
        }

        function test_inkModeKeepsItsSwitchAndTheFocus() {
            jumpTo("Reading & display")
            const item = find("E-ink display mode")
            item.forceActiveFocus(Qt.TabFocusReason)
            waitForRendering(root.view)
            const place = item.mapToItem(root, 0, 0).y
            for (const on of [true, false]) {
                keyClick(Qt.Key_Space)
                waitForRendering(root.view)
                compare(settings().inkMode, on)
                compare(item.checked, on)
                compare(focused(), item)
                fuzzyCompare(item.mapToItem(root, 0, 0).y, place, 1)
            }
        }

        function test_eachGroupIsOneStop() {
            const stops = []
            for (let i = 0; i < 60; ++i) {
                keyClick(Qt.Key_Tab)
                const name = focused().Accessible.name
                if (name === stops[0])
                    break
                stops.push(name)
            }
            compare(stops.slice(0, 9).join(), "Themes,Shortcuts,Paper,Mono,Mist,System,Default,Sidebar,Show labels in tab bar and dock")
            verify(stops.includes("Dashboard"))
            verify(!stops.includes("Today"))
            compare(stops.filter(name => name === "Themes").length, 1)
            compare(stops.slice(-4).join(), "Show tasks due today,Re-run onboarding,Reset workspace,Check for updates")
        }

        function test_arrowsChoose() {
            findIn("Accent", "Mono").forceActiveFocus(Qt.TabFocusReason)
            keyClick(Qt.Key_Right)
            keyClick(Qt.Key_Right)
            compare(settings().theme.accent, "blue")
            compare(focused().Accessible.name, "Blue")
            verify(focused().visualFocus)
            keyClick(Qt.Key_End)
            compare(settings().theme.accent, "red")
            // A command from elsewhere moves the stop for Tab along.
            keyClick(Qt.Key_Tab)
            Workspace.setAccent("green")
            keyClick(Qt.Key_Backtab)
            tryVerify(() => focused().Accessible.name === "Green")

            // Modules are only passed; Space flips them.
            findIn("Navigation modules", "Dashboard").forceActiveFocus(Qt.TabFocusReason)
            keyClick(Qt.Key_Right)
            compare(settings().hiddenModules, [])
            keyClick(Qt.Key_Space)
            compare(settings().hiddenModules, ["today"])
            compare(focused().checked, false)
            keyClick(Qt.Key_Return)
            compare(settings().hiddenModules, [])
        }

        function test_textIsTakenAsItIsTyped() {
            jumpTo("Workspace")
            const field = findIn("Workspace", "Workspace name")
            press(field)
            keyClick(Qt.Key_A, Qt.ControlModifier)
            for (const character of "Lab")
                keyClick(character)
            compare(settings().workspaceName, "Lab")
            compare(field.cursorPosition, 3)
            keyClick(Qt.Key_Left)
            keyClick("x")
            compare(settings().workspaceName, "Laxb")
            compare(field.cursorPosition, 3)
            press(find("🪐"))
            compare(settings().workspaceIcon, "🪐")
        }

        function test_theIndexFollowsAndLeads() {
            const index = find("Sections")
            compare(index.shown, 0)
            mouseWheel(root, 700, 400, 0, -120 * 6)
            tryVerify(() => index.shown > 0)
            jumpTo("Orvel")
            compare(index.shown, 14)
            jumpTo("Updates")
            compare(index.shown, 13)
            keyClick(Qt.Key_Home)

            index.keys.focus(1)
            keyClick(Qt.Key_Down)
            compare(index.shown, 2)
            compare(focused().Accessible.name, "Background")
            keyClick(Qt.Key_Return)
            compare(focused().Accessible.name, "Mist")
            root.width = 820
            tryVerify(() => !find("Sections"))
        }

        function test_focusComesIntoView() {
            for (let i = 0; i < 20; ++i) {
                keyClick(Qt.Key_Tab)
                const item = focused()
                const top = item.mapToItem(root.view, 0, 0).y
                verify(top >= 0 && top + item.height <= root.view.height, item.Accessible.name)
            }
        }

        function test_emojiGrowOnceTheyAreSeen() {
            const emoji = Array.from(find("🚀").contentItem.children)[0]
            const before = emoji.size
            findIn("Typography", "Huge").clicked()
            waitForRendering(root.view)
            compare(emoji.size, before)
            find("🚀").forceActiveFocus(Qt.TabFocusReason)
            tryCompare(emoji, "size", Theme.iconTile)
            verify(emoji.size > before)
        }

        function test_resetAsksFirst() {
            Workspace.addTasks(2)
            Workspace.setAccent("rose")
            find("Reset workspace").forceActiveFocus(Qt.TabFocusReason)
            keyClick(Qt.Key_Return)
            tryVerify(() => focused().text === "Cancel")
            keyClick(Qt.Key_Return)
            tryVerify(() => focused().text === "Reset workspace")
            compare(JSON.parse(Workspace.saved()).tasks.length, 2)
            keyClick(Qt.Key_Return)
            tryVerify(() => focused().text === "Cancel")
            keyClick(Qt.Key_Tab)
            compare(focused().text, "Reset everything")
            keyClick(Qt.Key_Return)
            tryVerify(() => !settings().hasCompletedOnboarding)
            compare(JSON.parse(Workspace.saved()).tasks.length, 0)
            compare(settings().theme.accent, "mono")
        }

        function test_hugeTextInASmallWindowOverlapsNothing() {
            root.width = 590
            root.height = 570
            findIn("Typography", "Huge").clicked()
            waitForRendering(root.view)
            const sections = column().sections
            let bottom = 0
            for (let i = 0; i < sections.length; ++i) {
                const section = sections[i]
                const top = section.mapToItem(column(), 0, 0).y
                verify(top >= bottom, section.title)
                bottom = top + section.height
                verify(noneBeyond(section), section.title)
            }
        }

        /// Whether all that is shown stays within the section's width.
        function noneBeyond(section, item = section) {
            for (let i = 0; i < item.children.length; ++i) {
                const child = item.children[i]
                if (!child.visible || child.clip)
                    continue
                const left = child.mapToItem(section, 0, 0).x
                if (child.Accessible.name !== "" && (left < -1 || left + child.width > section.width + 1))
                    return false
                if (!noneBeyond(section, child))
                    return false
            }
            return true
        }
    }
}
