import QtQuick
import QtTest
import Orvel.DesignSystem

Item {
    width: 900
    height: 600

    // As in a program's window, what has the focus lies in a scope of its own.
    FocusScope {
        focus: true
        width: 100
        height: 600

        Item {
            id: opener
            activeFocusOnTab: true
            focus: true
            height: 30
            width: 100
        }
    }

    OVMenu {
        id: menu
        OVMenuItem { id: copyItem; text: "Copy"; symbol: "doc.on.doc"; shortcutText: "Ctrl C" }
        OVMenuSeparator { }
        OVMenuItem { text: "Cannot be"; enabled: false }
        OVMenu {
            id: submenu
            title: "Move to"
            OVMenuItem { id: folderItem; text: "Folder" }
        }
        OVMenuItem { id: checkItem; text: "Pinned"; checkable: true }
        OVMenuItem { id: deleteItem; text: "Delete this page and everything that was ever written on it"; destructive: true }
    }

    OVMenu {
        id: longMenu
        Repeater {
            model: 60
            OVMenuItem { text: "Entry " + index }
        }
    }

    OVMenuBar {
        id: bar
        y: 40
        width: 400
        OVMenu {
            id: fileMenu
            title: "&File"
            OVMenuItem { id: newItem; text: "&New" }
        }
        OVMenu {
            id: viewMenu
            title: "&View"
            OVMenuItem { text: "&Zoom" }
        }
    }

    SignalSpy { id: copied; target: copyItem; signalName: "triggered" }
    SignalSpy { id: filed; target: folderItem; signalName: "triggered" }
    SignalSpy { id: deleted; target: deleteItem; signalName: "triggered" }

    TestCase {
        name: "Menus"
        when: windowShown

        function init() {
            opener.forceActiveFocus(Qt.TabFocusReason)
            copied.clear()
            filed.clear()
            deleted.clear()
        }

        function openMenu() {
            menu.popup(opener, 20, 20)
            tryCompare(menu, "opened", true)
        }

        function closed(which) {
            tryCompare(which, "visible", false)
        }

        function test_opensBesideAndNeverOver_data() {
            return [
                { tag: "room below", y: 0, below: true },
                { tag: "the menu just fits below", y: 600 - 30 - 8 - menu.implicitHeight, below: true },
                { tag: "no room below", y: 600 - 30 - 7 - menu.implicitHeight, below: false },
                { tag: "at the end", y: 570, below: false }
            ]
        }
        function test_opensBesideAndNeverOver(data) {
            opener.y = data.y
            menu.openBeside(opener, 0, 0, opener.height)
            tryCompare(menu, "opened", true)
            const top = menu.contentItem.mapToItem(opener, 0, 0).y - menu.topPadding
            compare(top, data.below ? opener.height : -menu.height)
            menu.close()
            closed(menu)
            opener.y = 0
        }

        function test_arrowsSkipWhatCannotBeChosen() {
            openMenu()
            keyClick(Qt.Key_Down)
            compare(menu.currentIndex, 0)
            keyClick(Qt.Key_Down)
            compare(menu.currentIndex, 3)
            keyClick(Qt.Key_Up)
            keyClick(Qt.Key_Return)
            compare(copied.count, 1)
            closed(menu)
            verify(opener.activeFocus)
        }

        function test_escapeReturnsTheFocus() {
            openMenu()
            keyClick(Qt.Key_Escape)
            closed(menu)
            verify(opener.activeFocus)
            compare(copied.count, 0)
        }

        function test_lettersJump() {
            openMenu()
            keyClick(Qt.Key_D)
            compare(menu.currentIndex, 5)
            keyClick(Qt.Key_C)
            compare(menu.currentIndex, 0)
            keyClick(Qt.Key_D)
            keyClick(Qt.Key_Return)
            compare(deleted.count, 1)
            closed(menu)
        }

        function test_submenuByKeys() {
            openMenu()
            keyClick(Qt.Key_M)
            keyClick(Qt.Key_Right)
            tryCompare(submenu, "opened", true)
            keyClick(Qt.Key_Left)
            tryCompare(submenu, "visible", false)
            verify(menu.visible)
            keyClick(Qt.Key_Right)
            tryCompare(submenu, "opened", true)
            keyClick(Qt.Key_Return)
            compare(filed.count, 1)
            closed(menu)
        }

        function test_checkableKeepsItsState() {
            openMenu()
            keyClick(Qt.Key_P)
            keyClick(Qt.Key_Space)
            compare(checkItem.checked, true)
            closed(menu)
        }

        function test_isAsWideAsItsWidestItem() {
            openMenu()
            for (let i = 0; i < menu.count; ++i)
                verify(menu.itemAt(i).width >= menu.itemAt(i).implicitWidth)
            verify(menu.hasLeadingColumn)
            menu.close()
            closed(menu)
        }

        function test_staysInsideTheWindow() {
            longMenu.popup(opener, 860, 560)
            tryCompare(longMenu, "opened", true)
            const corner = longMenu.contentItem.mapToItem(null, 0, 0)
            verify(corner.y >= 0)
            verify(corner.y + longMenu.contentItem.height <= 600)
            verify(corner.x + longMenu.contentItem.width <= 900)
            verify(longMenu.contentItem.interactive)
            longMenu.close()
            closed(longMenu)
        }

        function test_menuBarByF10AndArrows() {
            keyClick(Qt.Key_F10)
            compare(bar.itemAt(0).highlighted, true)
            keyClick(Qt.Key_Down)
            tryCompare(fileMenu, "opened", true)
            keyClick(Qt.Key_Right)
            tryCompare(viewMenu, "opened", true)
            closed(fileMenu)
            keyClick(Qt.Key_Escape)
            closed(viewMenu)
            verify(opener.activeFocus)
        }

        function test_menuBarByAltAlone() {
            keyPress(Qt.Key_Alt, Qt.AltModifier)
            keyRelease(Qt.Key_Alt, Qt.NoModifier)
            tryCompare(bar.itemAt(0), "highlighted", true)
            keyClick(Qt.Key_Right)
            compare(bar.itemAt(1).highlighted, true)
            keyClick(Qt.Key_Down)
            tryCompare(viewMenu, "opened", true)
            keyClick(Qt.Key_Escape)
            closed(viewMenu)
            verify(opener.activeFocus)
            keyPress(Qt.Key_Alt, Qt.AltModifier)
            keyRelease(Qt.Key_Alt, Qt.NoModifier)
            keyClick(Qt.Key_Escape)
            compare(bar.itemAt(0).highlighted, false)
            verify(opener.activeFocus)
        }

        function test_escapeUnderAPointerAtRestLetsTheMenuBarGo() {
            mouseMove(bar.itemAt(0), 5, 5)
            mouseClick(bar.itemAt(0), 5, 5)
            tryCompare(fileMenu, "opened", true)
            keyClick(Qt.Key_Escape)
            closed(fileMenu)
            tryCompare(opener, "activeFocus", true)
            mouseMove(bar.itemAt(1), 5, 5)
            tryCompare(bar.itemAt(1), "hovered", true)
            verify(!viewMenu.visible)
            mouseMove(opener, 50, 10)
            tryCompare(bar.itemAt(0), "highlighted", false)
        }

        function test_menuBarByMnemonic() {
            compare(bar.itemAt(1).Accessible.name, "View")
            keyClick(Qt.Key_V, Qt.AltModifier)
            tryCompare(viewMenu, "opened", true)
            keyClick(Qt.Key_Escape)
            closed(viewMenu)
        }

        function test_names() {
            compare(copyItem.Accessible.name, "Copy")
        }
    }
}
