import QtQuick
import QtQuick.Templates as T
import Orvel.DesignSystem

/// A menu for a button, a menu bar or a right click. It is as wide as its widest item, scrolls when the
/// window is too low for it, and jumps to the item that begins with a typed letter.
T.Menu {
    id: menu

    /// Whether a column for icons and check marks stands before the titles.
    property bool hasLeadingColumn: false
    property real widestItem: 0
    /// What it is, for assistive technology; its title, or the words of the button that opens it.
    property string name: title === "" ? qsTr("Menu") : title.replace(/&(.)/g, "$1")
    readonly property OVFocusReturn focusReturn: OVFocusReturn { popup: menu }

    function measure() {
        const items = []
        for (let i = 0; i < count; ++i)
            items.push(itemAt(i))
        hasLeadingColumn = items.some(item => item.checkable === true || (item.symbol ?? "") !== "")
        widestItem = Math.max(0, ...items.map(item => item.implicitWidth))
    }

    /// Opens below a part of an item, or above it where the window ends too early, but never over it.
    /// @param x of the menu, in the item
    /// @param top of the part
    /// @param bottom of the part
    function openBeside(item: Item, x: real, top: real, bottom: real) {
        measure();
        (contentItem as ListView).forceLayout()
        const below = item.mapToItem(null, 0, bottom).y + implicitHeight + bottomMargin
        const fitsAbove = item.mapToItem(null, 0, top).y >= implicitHeight + topMargin
        popup(item, x, below > item.Window.height && fitsAbove ? top - implicitHeight : bottom)
    }

    function jumpTo(letter: string): bool {
        for (let step = 1; step <= count; ++step) {
            const index = (Math.max(currentIndex, -1) + step + count) % count
            const item = itemAt(index)
            if (item.enabled && (item.title ?? "").toLowerCase().startsWith(letter.toLowerCase())) {
                currentIndex = index
                return true
            }
        }
        return false
    }

    implicitWidth: Math.max(Theme.menuWidth, widestItem) + leftPadding + rightPadding
    implicitHeight: contentHeight + topPadding + bottomPadding
    height: Math.min(implicitHeight, (parent?.Window.height ?? implicitHeight) - topMargin - bottomMargin)
    padding: Theme.space4
    margins: Theme.space8
    overlap: Theme.space4
    focus: true
    transformOrigin: Item.TopLeft
    OVAccessible.name: name

    onAboutToShow: measure()
    // Not bound: the list gives its current item the focus, which may make another one current meanwhile.
    onCurrentIndexChanged: {
        const list = contentItem as ListView
        if (list)
            list.currentIndex = currentIndex
    }

    delegate: OVMenuItem { }
    background: OVPopupSurface { }
    enter: OVEnter { }
    exit: OVExit { }

    contentItem: ListView {
        // Letters reach it before an item is current; the arrows are the menu's.
        focus: true
        keyNavigationEnabled: false
        implicitHeight: contentHeight
        model: menu.contentModel
        interactive: contentHeight > height
        boundsBehavior: Flickable.StopAtBounds
        clip: interactive
        currentIndex: -1
        highlightMoveDuration: 0

        Keys.onPressed: event => {
            if (event.text.trim() !== "" && !(event.modifiers & (Qt.ControlModifier | Qt.AltModifier)))
                event.accepted = menu.jumpTo(event.text)
        }

        T.ScrollBar.vertical: OVScrollBar { }
    }
}
