pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Orvel.DesignSystem
import Orvel.Reader

/// The library: the two modes of the reader, and below them the books, which are one stop for Tab.
FocusScope {
    id: root

    required property ReaderViewModel reader
    /// Whether it stands alone and not beside the pane.
    property bool isWhole: false
    readonly property int padding: isWhole ? Theme.screenPaddingNarrow : Theme.space16

    signal bookOpened()

    function focusBooks() {
        if (list.count === 0)
            modes.forceActiveFocus(Qt.TabFocusReason)
        else
            list.keys.focus(root.reader.selectedRow < 0 ? Math.max(0, list.currentIndex) : root.reader.selectedRow, Qt.TabFocusReason)
    }

    Column {
        id: head
        spacing: Theme.space12
        topPadding: Theme.space24
        width: parent.width - 2 * root.padding
        x: root.padding

        OVText {
            Accessible.role: Accessible.Heading
            leftPadding: Theme.space8
            role: OVText.ScreenTitle
            text: qsTr("Reader")
            width: parent.width
        }

        ReaderModes {
            id: modes
            focus: true
            reader: root.reader
            width: parent.width
        }

        OVDivider {
            width: parent.width
        }

        OVText {
            color: Theme.ovInkSecondary
            leftPadding: Theme.space8
            role: OVText.Dense
            text: qsTr("Search millions of free, public-domain classics from Project Gutenberg.")
            visible: root.reader.mode === "discover"
            width: parent.width
            wrapMode: Text.Wrap
        }

        OVText {
            color: Theme.ovInkSecondary
            leftPadding: Theme.space8
            role: OVText.Dense
            text: qsTr("Books you add appear here.")
            visible: root.reader.isEmpty
            width: parent.width
            wrapMode: Text.Wrap
        }

        BookDownloadRows {
            width: parent.width
            onFocusLeft: modes.forceActiveFocus(Qt.TabFocusReason)
        }
    }

    ListView {
        id: list

        readonly property ListFocus keys: ListFocus {
            view: list
            onExited: edge => {
                if (edge === Qt.TopEdge)
                    modes.forceActiveFocus(Qt.TabFocusReason)
            }
        }

        Accessible.name: qsTr("Books")
        Accessible.role: Accessible.List
        anchors.bottom: parent.bottom
        anchors.bottomMargin: Theme.space8
        anchors.top: head.bottom
        anchors.topMargin: Theme.space8
        boundsBehavior: Flickable.StopAtBounds
        clip: true
        currentIndex: -1
        highlightFollowsCurrentItem: false
        keyNavigationEnabled: false
        model: root.reader.books
        spacing: 2
        width: parent.width
        T.ScrollBar.vertical: OVScrollBar { }

        delegate: ReaderBookRow {
            inset: root.padding
            isOpen: index === root.reader.selectedRow
            keys: list.keys
            reader: root.reader
            onOpened: {
                root.reader.open(bookID)
                root.bookOpened()
            }
        }
    }
}
