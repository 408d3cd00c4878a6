import QtQuick
import QtQuick.Templates as T
import Orvel.DesignSystem
import Orvel.Reader

/// The text of the open book in one column. Only what is seen is laid out. The place of the user, a row and how
/// much of it is scrolled by, is found again after whatever changes the layout.
FocusScope {
    id: root

    required property BookViewModel book
    property double fontScale: 1
    property bool serif: true

    readonly property string family: serif ? Theme.serifFamily : Theme.fontFamily
    readonly property int textSize: Math.round(Theme.sizeBook * fontScale)
    readonly property int lineHeight: Math.round(textSize * 1.6)
    readonly property int padding: width < 760 ? Theme.screenPaddingNarrow : Theme.screenPadding
    readonly property int columnWidth: Math.min(Theme.bookWidth, Math.ceil(measure.advanceWidth), width - 2 * padding)
    /// The rows.
    readonly property ListView list: rows
    /// How much of the top row is scrolled by, as a part of its height.
    property real topShare: 0
    /// Whether the view is being put to a place, which then is none that the user has come to.
    property bool isPlacing: false

    function scrollBy(distance: real) {
        const end = rows.originY + rows.contentHeight - rows.height
        rows.contentY = Math.max(rows.originY, Math.min(end, rows.contentY + distance))
    }

    /// By a page less a line.
    function turnPage(direction: int) {
        scrollBy(direction * Math.max(lineHeight, rows.height - lineHeight))
    }

    function goToStart() {
        rows.positionViewAtBeginning()
    }

    function goToEnd() {
        rows.positionViewAtEnd()
    }

    /// Takes the row at the top of the view for the user's place.
    function notePlace() {
        if (isPlacing || rows.count === 0)
            return
        const row = rows.indexAt(rows.width / 2, rows.contentY + 1)
        const item = rows.itemAtIndex(row)
        if (!item)
            return
        topShare = Math.max(0, Math.min(1, (rows.contentY - item.y) / item.height))
        book.topRow = row
    }

    /// Shows the user's place again.
    function restorePlace() {
        isPlacing = true
        rows.forceLayout()
        if (book.topRow === 0 && topShare === 0)
            rows.positionViewAtBeginning()
        else
            rows.positionViewAtIndex(book.topRow, ListView.Beginning)
        const item = rows.itemAtIndex(book.topRow)
        if (item && topShare > 0)
            scrollBy(Math.round(topShare * item.height))
        isPlacing = false
    }

    function restoreLater() {
        isPlacing = true
        Qt.callLater(restorePlace)
    }

    /// Brings a place of a row into view.
    function reveal(row: int, start: int) {
        let item = rows.itemAtIndex(row) as BookParagraph
        if (!item) {
            rows.positionViewAtIndex(row, ListView.Beginning)
            item = rows.itemAtIndex(row) as BookParagraph
        }
        const line = item.lineAt(start)
        const top = item.y + line.y - rows.contentY
        if (top < lineHeight || top + line.height > rows.height - lineHeight)
            scrollBy(top - rows.height / 3)
    }

    onColumnWidthChanged: restoreLater()
    onFamilyChanged: restoreLater()
    onTextSizeChanged: restoreLater()

    Connections {
        target: root.book

        function onLoaded() {
            root.topShare = 0
            root.restorePlace()
        }
    }

    Connections {
        target: root.book.finder

        function onShown(row, start) {
            root.reveal(row, start)
        }
    }

    TextMetrics {
        id: measure
        font.family: root.family
        font.pixelSize: root.textSize
        // 66 characters of English, the width of a line that is easy to read.
        text: qsTr("It was in the spring of that year, and the house by the river was ")
    }

    ListView {
        id: rows
        Accessible.name: root.book.title
        Accessible.role: Accessible.Document
        activeFocusOnTab: true
        anchors.fill: parent
        boundsBehavior: Flickable.StopAtBounds
        cacheBuffer: 400
        clip: true
        currentIndex: -1
        focus: true
        highlightFollowsCurrentItem: false
        keyNavigationEnabled: false
        model: root.book.rows
        reuseItems: false
        T.ScrollBar.vertical: OVScrollBar { }

        onContentYChanged: root.notePlace()
        onHeightChanged: Qt.callLater(root.notePlace)

        header: Item {
            height: root.lineHeight
        }
        footer: Item {
            height: 2 * root.lineHeight
        }
        delegate: BookParagraph {
            book: root.book
            columnWidth: root.columnWidth
            family: root.family
            lineHeight: root.lineHeight
            textSize: root.textSize
            width: rows.width
        }
    }
}
