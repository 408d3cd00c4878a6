import QtQuick
import Orvel.DesignSystem
import Orvel.Session
import Orvel.Settings

/// The values of a setting side by side, of which one is selected. One stop for Tab; the arrow keys move the choice.
/// The items get `cellWidth`, take `tabStop` from `current`, and call `press`.
ArrowGrid {
    id: root

    property alias field: choices.field
    property alias delegate: repeater.delegate
    /// Least width of an item; as many stand in a row as find room, up to `maximumColumns`.
    property int minimumCellWidth: 100
    property int maximumColumns: 4
    /// Whether all items are as high as the tallest, which is `cellHeight`.
    property bool evenHeights: false
    readonly property real cellHeight: {
        let height = 0
        for (let i = 0; evenHeights && i < children.length; ++i)
            height = Math.max(height, children[i].implicitHeight)
        return height
    }
    readonly property int cellWidth: Math.floor((width - (columns - 1) * spacing) / columns)
    /// Whether the setting has one value, so that a key that leads to a choice makes it.
    property bool exclusive: true

    function press(index: int) {
        follow(index)
        choices.choose(index)
    }

    columns: Math.max(1, Math.min(maximumColumns, repeater.count, Math.floor((width + spacing) / (minimumCellWidth + spacing))))
    items: repeater
    spacing: Theme.space8
    Accessible.role: Accessible.Grouping
    onMoved: index => {
        if (exclusive)
            choices.choose(index)
    }

    SettingChoices {
        id: choices

        session: Orvel
        onCurrentIndexChanged: {
            if (currentIndex >= 0 && currentIndex !== root.current)
                root.follow(currentIndex)
        }
    }

    Repeater {
        id: repeater

        model: choices.rows
    }
}
