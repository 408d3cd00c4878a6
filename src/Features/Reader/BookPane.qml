pragma ComponentBehavior: Bound

import QtQuick
import Orvel.DesignSystem
import Orvel.Reader
import Orvel.Session

/// The open book: its header, its text, and how far the user has come in it.
FocusScope {
    id: root

    required property ReaderViewModel reader
    required property BookViewModel book

    signal backRequested()
    /// The text is to be downloaded, since it is not on disk.
    signal fetchRequested()

    function focusText() {
        (text.visible ? text : header).forceActiveFocus(Qt.TabFocusReason)
    }

    function openFind() {
        book.finder.open()
    }

    function closeFind() {
        book.finder.close()
        focusText()
    }

    ShownFinder {
        active: findBar.canFind
        finder: root.book.finder
        session: Orvel
    }

    Keys.onEscapePressed: event => {
        event.accepted = true
        if (findBar.visible)
            closeFind()
        else if (!book.selection.isEmpty)
            book.selection.clear()
        else
            backRequested()
    }

    Connections {
        target: root.book

        // What is hidden while the text is being read has lost the focus.
        function onLoaded() {
            if (text.visible && root.activeFocus && !findBar.activeFocus)
                text.forceActiveFocus(Qt.OtherFocusReason)
        }
    }

    BookHeader {
        id: header
        author: root.book.author
        canFind: text.visible
        reader: root.reader
        title: root.book.title
        width: parent.width
        onBackRequested: root.backRequested()
        onFindRequested: root.openFind()
    }

    OVFindBar {
        id: findBar
        anchors.top: header.bottom
        canFind: root.visible && text.visible
        finder: root.book.finder
        placeholder: qsTr("Find in book")
        width: parent.width
        onCloseRequested: root.closeFind()
    }

    BookText {
        id: text
        Keys.forwardTo: [keys]
        anchors.bottom: footer.top
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.top: findBar.visible ? findBar.bottom : header.bottom
        book: root.book
        focus: true
        fontScale: root.reader.fontScale
        serif: root.reader.serif
        visible: !root.book.isLoading && !root.book.isMissing
    }

    BookPointer {
        anchors.fill: text
        reading: text
        selection: root.book.selection
        visible: text.visible
        onFindRequested: root.openFind()
    }

    BookKeys {
        id: keys
        reading: text
        selection: root.book.selection
    }

    Item {
        id: footer
        anchors.bottom: parent.bottom
        height: text.visible ? timeLeft.implicitHeight + 2 * Theme.space8 : 0
        visible: text.visible
        width: parent.width

        Rectangle {
            color: Theme.ovBorder
            height: 2
            width: parent.width

            Rectangle {
                color: Theme.accent
                height: parent.height
                width: Math.round(parent.width * root.book.progress)
            }
        }

        OVText {
            id: timeLeft
            anchors.horizontalCenter: parent.horizontalCenter
            anchors.verticalCenter: parent.verticalCenter
            color: Theme.ovInkSecondary
            role: OVText.Caption
            text: root.book.timeLeftText
        }
    }

    OVAppear {
        anchors.centerIn: parent
        visible: root.book.isMissing
        width: Math.min(implicitWidth, parent.width - 2 * Theme.screenPaddingNarrow)

        OVEmptyState {
            actionSymbol: "square.and.arrow.down"
            actionText: qsTr("Download it")
            symbol: "book"
            title: qsTr("This book's text isn't on disk yet.")
            width: parent.width
            onActionTriggered: root.fetchRequested()
        }
    }
}
