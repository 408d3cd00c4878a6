import QtQuick
import Orvel.DesignSystem
import Orvel.Pages

/// The text of a block: one line that wraps, joined with the stored text.
TextEdit {
    id: field

    required property PageEditorViewModel editor
    required property var blockID
    required property string storedText
    property string placeholder
    /// Of a line of text, against the size of the font.
    property real lineRatio: 1.6
    readonly property int lineHeight: Math.max(Math.ceil(metrics.lineSpacing), Math.round(font.pixelSize * lineRatio))
    readonly property int extraHeight: lineHeight - Math.ceil(metrics.lineSpacing)
    /// The spacing lies below each line; half of it goes above the first.
    readonly property int lead: Math.floor(extraHeight / 2)
    readonly property alias spelling: spelling
    /// What the Edit menu acts on: its pasting makes the blocks that the clipboard names.
    readonly property BlockFieldEdit editTarget: BlockFieldEdit {
        blockID: field.blockID
        editor: field.editor
        input: field
    }
    /// Free room above and below the lines.
    property int gapAbove: Theme.space4
    property int gapBelow: Theme.space4

    // A TextEdit without text is as high as its font, without any distance between lines.
    bottomPadding: gapBelow + lead - (length > 0 ? extraHeight : Math.ceil(metrics.height) - Math.ceil(metrics.lineSpacing))
    color: Theme.ovInk
    font.family: Theme.fontFamily
    font.pixelSize: Theme.sizeReading
    font.weight: Theme.textWeight
    selectByMouse: true
    selectedTextColor: Theme.ovInk
    selectionColor: Theme.selection
    textFormat: TextEdit.PlainText
    topPadding: gapAbove + lead
    wrapMode: TextEdit.Wrap
    Accessible.name: placeholder
    Accessible.role: Accessible.EditableText

    cursorDelegate: OVCaret { }

    FieldText {
        id: content
        composing: field.inputMethodComposing
        document: field.textDocument
        text: field.storedText
        onEdited: text => content.setText(field.editor.setText(field.blockID, text, field.cursorPosition))
    }

    FieldLinks {
        caret: field.activeFocus ? field.cursorPosition : -1
        color: Theme.accent
        document: field.textDocument
        text: field.storedText
    }

    BlockMarks {
        anchors.fill: parent
        blockID: field.blockID
        document: field.textDocument
        editor: field.editor
        origin: Qt.point(field.leftPadding, field.topPadding)
        storedText: field.storedText
        z: -1
    }

    SpellingMarks {
        id: spelling
        anchors.fill: parent
        caret: field.activeFocus ? field.cursorPosition : -1
        checker: Spelling
        color: Theme.inkMode ? Theme.ovInkSecondary : Theme.ovDanger
        document: field.textDocument
        origin: Qt.point(field.leftPadding, field.topPadding)
        z: -1
    }

    FontMetrics {
        id: metrics
        font: field.font
    }

    LineSpacing {
        distance: field.extraHeight
        document: field.textDocument
    }

    OVText {
        color: Theme.ovInkTertiary
        font.family: field.font.family
        font.italic: field.font.italic
        font.pixelSize: field.font.pixelSize
        font.weight: field.font.weight
        // A text that is not seen is not laid out either.
        text: visible ? field.placeholder : ""
        visible: field.length === 0 && field.preeditText === ""
        width: field.width
        y: field.topPadding
        Accessible.ignored: true
    }
}
