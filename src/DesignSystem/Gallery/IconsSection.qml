pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import Orvel.DesignSystem

GallerySection {
    title: "Icons"

    Flow {
        Layout.fillWidth: true
        spacing: Theme.space16

        Repeater {
            model: ["square.grid.2x2", "sun.max", "timer", "checkmark.square", "calendar", "target", "note.text",
                    "cylinder.split.1x2", "chevron.left.forwardslash.chevron.right", "rectangle.on.rectangle", "flame",
                    "chart.line.uptrend.xyaxis", "leaf", "book", "gearshape", "magnifyingglass", "ellipsis", "trash",
                    "textformat.size.larger", "text.quote", "moon.zzz", "circle.hexagongrid", "doc.questionmark"]

            Column {
                required property string modelData

                spacing: Theme.space8

                OVIcon { symbol: parent.modelData }
                OVIcon { color: Theme.ovInk; filled: true; symbol: parent.modelData }
                OVIcon { color: Theme.accent; size: Theme.iconTile; symbol: parent.modelData }
            }
        }
    }
}
