pragma ComponentBehavior: Bound

import QtQuick
import Orvel.DesignSystem
import Orvel.Reader
import Orvel.Session

/// The screen for reading free books: the rail with the library, and beside it the open book or the search of the
/// catalogue. In a narrow window rail and pane take turns.
FocusScope {
    id: root

    /// Where the catalogue lies; empty for the public one.
    property alias catalogue: discover.catalogue
    readonly property bool isNarrow: width < 760 * Theme.fontScale
    readonly property bool isDiscovering: reader.mode === "discover"
    /// Whether the rail shows where there is room for one of the two only.
    readonly property bool isRailChosen: !isDiscovering && !reader.hasSelection && !reader.isEmpty

    function openRail() {
        if (isDiscovering)
            reader.mode = "library"
        else
            reader.closeBook()
    }

    /// Puts the focus where the mode is worked with.
    function focusPane() {
        if (isDiscovering)
            discoverPane.focusSearch()
        else if (reader.hasSelection)
            bookPane.focusText()
        else if (rail.visible)
            rail.focusBooks()
    }

    /// A download may have failed while another screen was shown.
    function showError() {
        if (visible && BookDownloads.errorMessage !== "")
            alert.open()
    }

    /// What had the focus may be hidden now.
    function keepFocus() {
        if (activeFocus && !rail.activeFocus)
            focusPane()
    }

    // The window gives the focus to the screen when that is complete.
    Component.onCompleted: Qt.callLater(showError)
    onVisibleChanged: showError()

    ReaderViewModel {
        id: reader
        active: root.visible
        session: Orvel
        onModeChanged: Qt.callLater(root.focusPane)
        onSelectionChanged: Qt.callLater(root.keepFocus)
    }

    BookViewModel {
        id: openBook
        active: root.visible
        bookID: reader.selectedBookID
        session: Orvel
    }

    DiscoverViewModel {
        id: discover
        active: root.visible
        downloads: BookDownloads
        session: Orvel
        onBookReady: bookID => {
            reader.open(bookID)
            root.focusPane()
        }
    }

    Connections {
        target: BookDownloads

        function onBookReady(number, bookID) {
            // A book that is open may have waited for its text.
            if (reader.selectedBookID === bookID && openBook.isMissing)
                openBook.reload()
        }

        function onErrorMessageChanged() {
            root.showError()
        }
    }

    ReaderRail {
        id: rail
        height: parent.height
        isWhole: root.isNarrow
        reader: reader
        visible: !root.isNarrow || root.isRailChosen
        width: root.isNarrow ? parent.width : Math.round(252 * Math.min(Theme.fontScale, 1.2))
        onBookOpened: root.focusPane()
    }

    OVDivider {
        height: parent.height
        visible: rail.visible && !root.isNarrow
        width: Theme.lineWidth
        x: rail.width
    }

    FocusScope {
        id: panes
        anchors.bottom: parent.bottom
        anchors.right: parent.right
        anchors.top: parent.top
        focus: true
        visible: !root.isNarrow || !root.isRailChosen
        width: parent.width - (root.isNarrow ? 0 : rail.width + Theme.lineWidth)

        BookPane {
            id: bookPane
            anchors.fill: parent
            book: openBook
            focus: visible
            reader: reader
            visible: !root.isDiscovering && reader.hasSelection
            onBackRequested: reader.closeBook()
            onFetchRequested: discover.fetchAgain(openBook.bookID)
        }

        DiscoverPane {
            id: discoverPane
            anchors.fill: parent
            focus: visible
            showsBack: root.isNarrow
            viewModel: discover
            visible: root.isDiscovering
            onBackRequested: root.openRail()
        }

        OVAppear {
            anchors.centerIn: parent
            anchors.verticalCenterOffset: -Theme.space24
            visible: !bookPane.visible && !discoverPane.visible
            width: Math.min(implicitWidth, parent.width - 2 * Theme.screenPaddingNarrow)

            OVEmptyState {
                actionSymbol: "sparkle.magnifyingglass"
                actionText: qsTr("Discover books")
                message: reader.isEmpty ? qsTr("Search Project Gutenberg for a free classic to start reading.")
                                        : qsTr("Choose a book of your library to read on, or find another one.")
                symbol: "books.vertical"
                title: reader.isEmpty ? qsTr("Your library is empty") : qsTr("No book is open")
                width: parent.width
                onActionTriggered: reader.mode = "discover"
            }
        }
    }

    OVDialog {
        id: alert
        acceptText: qsTr("OK")
        message: BookDownloads.errorMessage
        title: BookDownloads.failedTitle === "" ? qsTr("The book was not downloaded")
                                                : qsTr("“%1” was not downloaded").arg(BookDownloads.failedTitle)
        onClosed: BookDownloads.dismissError()
    }
}
