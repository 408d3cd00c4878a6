import QtQuick
import QtTest
import Orvel.Testing

/// A test of a screen by real mouse and key events, with the file that it writes.
TestCase {
    /// Where items are looked for.
    required property Item scene

    when: windowShown

    /// The first visible item within another that assistive tools know by this name; null if there is none.
    function find(name, from = scene) {
        for (let i = 0; i < from.children.length; ++i) {
            const child = from.children[i]
            if (!child.visible)
                continue
            const found = child.Accessible.name === name ? child : find(name, child)
            if (found)
                return found
        }
        return null
    }

    /// Clicks an item as soon as it is there.
    function click(name, from = scene) {
        tryVerify(() => find(name, from) !== null, 2000, "shows " + name)
        mouseClick(find(name, from))
    }

    function type(text) {
        for (const character of text)
            keyClick(character)
    }

    function focused() {
        return scene.Window.activeFocusItem
    }

    /// The workspace as it stands in the file.
    function saved() {
        return JSON.parse(Workspace.saved())
    }
}
