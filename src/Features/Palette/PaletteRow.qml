import QtQuick
import Orvel.DesignSystem

/// One place that the palette can open, below the header of its group where it is the first.
Item {
    id: row

    required property int index
    required property string header
    /// As `Text.StyledText`.
    required property string title
    required property string name
    required property string subtitle
    required property string symbol
    required property string emoji
    required property string keys
    property bool highlighted: false
    property int groupGap
    property int headerHeight
    property int rowHeight

    signal triggered()

    height: rowHeight + (header !== "" ? groupGap + headerHeight : 0)
    Accessible.name: subtitle !== "" ? name + ", " + subtitle : name
    Accessible.role: Accessible.ListItem
    Accessible.selectable: true
    Accessible.selected: highlighted
    Accessible.onPressAction: triggered()

    OVText {
        height: row.headerHeight
        role: OVText.Section
        text: row.header
        visible: text !== ""
        width: parent.width - 2 * x
        x: Theme.space16 + Theme.space4
        y: row.groupGap
        Accessible.role: Accessible.Heading
    }

    Rectangle {
        id: body

        anchors.bottom: parent.bottom
        // In the dark the wash of a pointer is too faint to say which row Return opens.
        color: !row.highlighted ? "transparent" : Theme.dark ? Theme.ovBorder : Theme.ovHover
        height: row.rowHeight
        radius: Theme.cornerField
        width: parent.width - 2 * x
        x: Theme.space8

        TapHandler {
            onTapped: row.triggered()
        }

        OVIcon {
            anchors.verticalCenter: parent.verticalCenter
            color: Theme.accentIcons ? Theme.accent : row.highlighted ? Theme.ovInk : Theme.ovInkSecondary
            symbol: row.emoji === "" ? row.symbol : ""
            x: Theme.space12
        }

        OVEmoji {
            anchors.verticalCenter: parent.verticalCenter
            clip: implicitWidth > width
            text: row.emoji
            width: Theme.iconRow
            x: Theme.space12
        }

        OVText {
            id: titleText

            readonly property real room: keysText.x - x - Theme.space12
            readonly property real subtitleRoom: row.subtitle !== "" ? Math.min(room * 0.4, Math.ceil(subtitleMetrics.advanceWidth) + Theme.space12) : 0

            anchors.verticalCenter: parent.verticalCenter
            // The subtitle follows the text, whichever way that reads.
            horizontalAlignment: Text.AlignLeft
            maximumLineCount: 1
            plainText: row.name
            text: row.title
            textFormat: Text.StyledText
            width: room - subtitleRoom
            x: Theme.space12 + Theme.iconRow + Theme.space12
            Accessible.ignored: true
        }

        // The label itself would measure differently once it is cut.
        TextMetrics {
            id: subtitleMetrics
            font: subtitleText.font
            text: row.subtitle
        }

        OVText {
            id: subtitleText

            anchors.baseline: titleText.baseline
            color: Theme.ovInkSecondary
            horizontalAlignment: Text.AlignLeft
            maximumLineCount: 1
            role: OVText.Dense
            text: row.subtitle
            width: keysText.x - x - Theme.space12
            x: titleText.x + Math.ceil(titleText.contentWidth) + Theme.space12
            Accessible.ignored: true
        }

        OVText {
            id: keysText

            anchors.verticalCenter: parent.verticalCenter
            color: Theme.ovInkTertiary
            role: OVText.Caption
            text: row.keys
            x: parent.width - width - (text !== "" ? Theme.space12 : 0)
            Accessible.ignored: true
        }
    }
}
