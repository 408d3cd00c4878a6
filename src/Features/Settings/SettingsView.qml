import QtQuick
import QtQuick.Templates as T
import Orvel.DesignSystem
import Orvel.Session
import Orvel.Settings

/// Every choice of the user, in one column; beside it in wide windows the list of its sections.
///
/// A choice may change the size of everything. What the user has just used stays where it was on the screen.
FocusScope {
    id: root

    readonly property int padding: width < 760 ? Theme.screenPaddingNarrow : Theme.screenPadding
    readonly property int headerY: Math.round(padding * 1.25)
    readonly property int columnWidth: Math.max(0, Math.min(Theme.readingWidth, width - 2 * padding))
    readonly property int indexWidth: Math.round(0.9 * Theme.menuWidth)
    readonly property bool hasIndex: width >= Theme.readingWidth + indexWidth + Theme.space24 + 2 * padding
    /// The section at the top of what is shown.
    property int section: 0
    /// What is kept in its place, and its place on the screen.
    property Item anchor: null
    property real anchorY: 0
    /// Whether the column goes to a section that the user has chosen.
    property bool jumping: false
    /// Whether the column is scrolled by the screen itself.
    property bool scrolling: false

    function scrollTo(y: real) {
        scrolling = true
        flickable.contentY = Math.round(Math.max(0, Math.min(y, flickable.contentHeight - flickable.height)))
        scrolling = false
    }

    function topOf(item: Item): real {
        return item.mapToItem(column, 0, 0).y + column.y
    }

    function hold(item: Item) {
        anchor = item
        anchorY = item ? topOf(item) - flickable.contentY : 0
    }

    /// Brings what is held back to its place.
    function restore() {
        if (anchor)
            scrollTo(topOf(anchor) - anchorY)
    }

    function isInColumn(item: Item): bool {
        let inside = item
        while (inside && inside !== column)
            inside = inside.parent
        return inside !== null
    }

    /// What can be pressed at a point of the screen; null for nothing.
    function controlAt(x: real, y: real, from: Item): Item {
        for (let i = from.children.length - 1; i >= 0; --i) {
            const child = from.children[i]
            if (!child.visible || child.z < 0 || !child.contains(child.mapFromItem(root, x, y)))
                continue
            const control = child instanceof T.AbstractButton ? child : controlAt(x, y, child)
            if (control)
                return control
        }
        return null
    }

    /// Scrolls by a key; false for any other key.
    function press(key: int): bool {
        const page = flickable.height - Theme.space48
        switch (key) {
        case Qt.Key_Up: glideTo(flickable.contentY - Theme.space48); return true
        case Qt.Key_Down: glideTo(flickable.contentY + Theme.space48); return true
        case Qt.Key_PageUp: glideTo(flickable.contentY - page); return true
        case Qt.Key_PageDown: glideTo(flickable.contentY + page); return true
        case Qt.Key_Home: glideTo(0); return true
        case Qt.Key_End: glideTo(flickable.contentHeight); return true
        }
        return false
    }

    function glideTo(y: real) {
        hold(null)
        jumping = false
        glide.to = Math.max(0, Math.min(y, flickable.contentHeight - flickable.height))
        glide.restart()
    }

    function enter(index: int) {
        column.sections[index].nextItemInFocusChain(true).forceActiveFocus(Qt.TabFocusReason)
    }

    function jump(index: int) {
        glideTo(topOf(column.sections[index]) - Theme.space16)
        jumping = true
        section = index
    }

    /// The item of the column that has the focus comes into view.
    function reveal(item: Item) {
        if (!item || item === flickable || !isInColumn(item))
            return
        const y = topOf(item) - Theme.space24
        const bottom = topOf(item) + item.height + Theme.space24
        if (y < flickable.contentY)
            scrollTo(y)
        else if (bottom > flickable.contentY + flickable.height)
            scrollTo(bottom - flickable.height)
        hold(item)
    }

    /// Finds the section that is shown, once the user scrolls.
    function follow() {
        const middle = flickable.contentY + flickable.height / 3
        let found = 0
        for (let i = 0; i < column.sections.length; ++i) {
            if (topOf(column.sections[i]) <= middle)
                found = i
        }
        section = flickable.atYEnd && flickable.contentY > 0 ? column.sections.length - 1 : found
    }

    Window.onActiveFocusItemChanged: reveal(Window.activeFocusItem)

    NumberAnimation {
        id: glide

        duration: 1.5 * Theme.durationScreen
        easing.type: Easing.OutCubic
        property: "contentY"
        target: flickable
        onStopped: root.jumping = false
    }

    SettingsIndex {
        anchors.bottom: parent.bottom
        anchors.bottomMargin: Theme.space16
        anchors.top: parent.top
        anchors.topMargin: root.headerY
        settings: column
        shown: root.section
        visible: root.hasIndex
        width: root.indexWidth
        x: column.x - width - Theme.space24
        z: 1
        onChosen: index => root.jump(index)
        onEntered: index => root.enter(index)
    }

    Flickable {
        id: flickable

        anchors.fill: parent
        boundsBehavior: Flickable.StopAtBounds
        contentHeight: column.y + column.height + root.padding
        focus: true
        T.ScrollBar.vertical: OVScrollBar { }
        Keys.onPressed: event => event.accepted = root.press(event.key)
        onContentYChanged: {
            if (root.scrolling)
                return
            root.hold(root.anchor)
            if (!root.jumping)
                root.follow()
        }
        onHeightChanged: root.restore()

        OVPageHeader {
            id: header

            subtitle: qsTr("Make Orvel yours: themes, gradients, fonts, navigation and more.")
            symbol: "gearshape"
            title: qsTr("Settings")
            width: column.width
            x: column.x
            y: root.headerY

            OVSecondaryButton {
                symbol: "keyboard"
                text: qsTr("Shortcuts")
                onClicked: Orvel.ui.isShortcutsPresented = true
            }
        }

        SettingsColumn {
            id: column

            viewBottom: viewTop + flickable.height
            viewTop: flickable.contentY - y
            width: root.columnWidth
            x: Math.max(Math.round((root.width - width) / 2), root.hasIndex ? root.padding + root.indexWidth + Theme.space24 : 0)
            y: header.y + header.height + Theme.space32
            onLaidOut: root.restore()
            onYChanged: root.restore()
        }
    }

    // Sees what is pressed and leaves the press to it.
    MouseArea {
        anchors.fill: parent
        onPressed: event => {
            event.accepted = false
            root.hold(root.controlAt(event.x, event.y, column))
        }
    }
}
