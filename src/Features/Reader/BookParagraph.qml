import QtQuick
import Orvel.DesignSystem
import Orvel.Reader

/// A row of a book: a paragraph, a piece of a long one, or a heading.
Item {
    id: root

    required property int index
    required property string text
    required property bool isHeading
    required property bool continues
    required property BookViewModel book
    property int columnWidth: 0
    property int lineHeight: 0
    property int textSize: 0
    property string family

    readonly property int gapAbove: isHeading ? 2 * lineHeight : 0
    readonly property int gapBelow: Math.round(isHeading ? lineHeight : lineHeight / 2)

    /// The place in the text at a point of the row.
    function positionAt(x: real, y: real): int {
        return words.positionAt(x - words.x, y - words.y)
    }

    /// Where the line with this place of the text stands in the row.
    function lineAt(position: int): rect {
        const line = words.positionToRectangle(position)
        return Qt.rect(line.x + words.x, line.y + words.y, line.width, line.height)
    }

    function marksOf(revision: int): var {
        return book.finder.marksIn(index)
    }

    function showSelection() {
        const part = book.selection.inRow(index)
        if (part.x !== part.y)
            words.select(part.x, part.y)
        else if (words.selectedText !== "")
            words.deselect()
    }

    Accessible.name: text
    Accessible.role: isHeading ? Accessible.Heading : Accessible.Paragraph
    implicitHeight: gapAbove + words.height + gapBelow

    Component.onCompleted: showSelection()

    Connections {
        target: root.book.selection

        function onChanged() {
            root.showSelection()
        }
    }

    TextEdit {
        id: words
        Accessible.ignored: true
        activeFocusOnPress: false
        color: Theme.ovInk
        enabled: false
        font.family: root.family
        font.pixelSize: root.isHeading ? Math.round(root.textSize * 1.15) : root.textSize
        font.weight: root.isHeading ? Font.DemiBold : Font.Normal
        horizontalAlignment: root.isHeading ? Text.AlignHCenter : Text.AlignLeft
        persistentSelection: true
        readOnly: true
        selectedTextColor: Theme.ovInk
        selectionColor: Theme.selection
        text: root.text
        textFormat: TextEdit.PlainText
        width: root.columnWidth
        wrapMode: TextEdit.Wrap
        x: Math.round((root.width - width) / 2)
        y: root.gapAbove

        OVFindMarks {
            anchors.fill: parent
            document: words.textDocument
            marks: root.marksOf(root.book.finder.revision)
            z: -1
        }
    }

    LineSpacing {
        distance: Math.max(0, root.lineHeight - Math.ceil(metrics.height))
        document: words.textDocument
    }

    FontMetrics {
        id: metrics
        font: words.font
    }
}
