import QtQuick
import Orvel.DesignSystem
import Orvel.Pages

/// A block of text, with what marks its kind.
BlockBody {
    id: root

    required property string storedText
    required property string placeholder
    required property string label
    required property int headingLevel
    required property string marker
    required property string numberText
    required property string widestNumber
    required property bool isChecked
    required property int tone
    required property string toneSymbol
    required property string partText

    readonly property bool isCallout: marker === "tone"
    readonly property int headingSize: [Theme.sizeReading, Theme.sizeHeading1, Theme.sizeHeading2, Theme.sizeHeading3][headingLevel]
    readonly property int headingGap: [Theme.space4, Theme.space24, Theme.space16, Theme.space12][headingLevel]
    readonly property int markerWidth: marker === "" ? 0 : marker === "bar" ? Theme.space16
                                     : Math.max(Theme.space24 + Theme.space4, mark.implicitWidth + Theme.space8)

    signal toneMenuRequested(from: Item)

    function stops(): list<Item> {
        const control = mark.control
        return control ? [control, field] : [field]
    }

    firstLineCenter: mark.y + mark.height / 2
    implicitHeight: field.implicitHeight + (isCallout ? Theme.space4 * 2 : 0) + part.height
    input: field

    // The card of a callout or the bar of a quote.
    Rectangle {
        border.color: Qt.alpha(mark.toneColor, Theme.inkMode ? 1 : 0.3)
        border.width: root.isCallout ? Theme.lineWidth : 0
        color: root.isCallout ? Qt.alpha(mark.toneColor, Theme.inkMode ? 0 : 0.09) : Theme.ovInkTertiary
        height: field.height + 2 * field.y - 2 * Theme.space4
        radius: root.isCallout ? Theme.cornerField : width / 2
        visible: root.isCallout || root.marker === "bar"
        width: root.isCallout ? root.width : 3
        y: Theme.space4
    }

    BlockMarker {
        id: mark
        editor: root.editor
        blockID: root.blockID
        height: field.lineHeight
        isChecked: root.isChecked
        label: root.storedText === "" ? root.label : root.storedText
        marker: root.marker
        numberText: root.numberText
        widestNumber: root.widestNumber
        tone: root.tone
        toneSymbol: root.toneSymbol
        width: root.markerWidth
        x: root.isCallout ? Theme.space12 : 0
        y: field.y + field.gapAbove
        onToneMenuRequested: from => root.toneMenuRequested(from)
    }

    BlockField {
        id: field
        anchors.left: mark.right
        anchors.right: parent.right
        anchors.rightMargin: root.isCallout ? Theme.space12 : 0
        blockID: root.blockID
        color: root.isChecked ? Theme.ovInkTertiary : root.marker === "bar" ? Theme.ovInkSecondary : Theme.ovInk
        editor: root.editor
        focus: true
        font.italic: root.marker === "bar"
        font.letterSpacing: root.headingLevel === 1 ? -0.3 * Theme.fontScale : 0
        font.pixelSize: root.headingSize
        font.strikeout: root.isChecked
        font.weight: root.headingLevel > 0 ? Font.DemiBold : Theme.textWeight
        gapAbove: root.isCallout ? Theme.space8 : root.headingGap
        gapBelow: root.isCallout ? Theme.space8 : Theme.space4
        lineRatio: root.headingLevel > 0 ? 1.3 : 1.6
        placeholder: root.placeholder
        storedText: root.storedText
        y: root.isCallout ? Theme.space4 : 0
        Accessible.name: root.label
        Keys.forwardTo: [root.keyTarget]
    }

    BlockPart {
        id: part
        editor: root.editor
        anchors.left: field.left
        anchors.right: parent.right
        anchors.top: field.bottom
        blockID: root.blockID
        text: root.partText
    }
}
