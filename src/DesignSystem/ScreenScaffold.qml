import QtQuick
import QtQuick.Layouts
import QtQuick.Templates as T
import Orvel.DesignSystem

/// The frame of a screen: its content in one centred column, padded, scrolling where it is too long.
/// Children lie in a `ColumnLayout`. What gets the focus is scrolled into view, and keys that it makes no use of
/// scroll.
FocusScope {
    id: root

    /// Widest the column gets: one of the theme's reading, list and grid widths.
    property int maximumWidth: Theme.listWidth
    /// Without it the column has exactly the height of the screen, and a list in it scrolls by itself.
    property bool scrolls: true
    property alias spacing: column.spacing
    property alias contentY: flickable.contentY
    readonly property int padding: width < 760 ? Theme.screenPaddingNarrow : Theme.screenPadding
    default property alias content: column.data

    /// Scrolls so far that an item in the column is in sight, from its top on where it is higher than that.
    function reveal(item: Item) {
        const top = item.mapToItem(column, 0, 0).y + column.y - padding
        const bottom = top + item.height + 2 * padding
        const y = Math.min(top, Math.max(contentY, bottom - flickable.height))
        contentY = Math.max(0, Math.min(y, flickable.contentHeight - flickable.height))
    }

    Keys.onPressed: event => {
        const steps = {
            [Qt.Key_Up]: -Theme.space48,
            [Qt.Key_Down]: Theme.space48,
            [Qt.Key_PageUp]: -flickable.height,
            [Qt.Key_PageDown]: flickable.height,
            [Qt.Key_Home]: -flickable.contentHeight,
            [Qt.Key_End]: flickable.contentHeight
        }
        event.accepted = event.modifiers === Qt.NoModifier && event.key in steps && flickable.interactive
        if (event.accepted)
            contentY = Math.max(0, Math.min(contentY + steps[event.key], flickable.contentHeight - flickable.height))
    }

    Connections {
        enabled: root.scrolls && root.activeFocus
        target: root.Window.window

        function onActiveFocusItemChanged() {
            for (let item = root.Window.activeFocusItem; item; item = item.parent) {
                if (item === column)
                    return root.reveal(root.Window.activeFocusItem)
            }
        }
    }

    Flickable {
        id: flickable

        anchors.fill: parent
        boundsBehavior: Flickable.StopAtBounds
        clip: contentHeight > height
        contentHeight: root.scrolls ? column.implicitHeight + 2 * column.y : height
        interactive: contentHeight > height
        T.ScrollBar.vertical: OVScrollBar { }

        ColumnLayout {
            id: column

            height: root.scrolls ? implicitHeight : flickable.height - y
            spacing: Theme.space16
            width: Math.max(0, Math.min(root.maximumWidth, flickable.width - 2 * root.padding))
            x: Math.round((flickable.width - width) / 2)
            y: Math.round(root.padding * 1.25)
        }
    }
}
