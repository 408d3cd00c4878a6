pragma ComponentBehavior: Bound

import QtQuick
import Orvel.DesignSystem

/// The shortcuts of one category.
Column {
    id: group

    required property var shortcuts

    OVSectionHeader {
        height: Theme.chipHeight
        text: group.shortcuts.title
        width: group.width
    }

    Repeater {
        model: group.shortcuts.rows

        Item {
            id: row

            required property var modelData

            height: Theme.fieldHeight
            width: group.width
            Accessible.name: row.modelData.title + ", " + row.modelData.keys
            Accessible.role: Accessible.ListItem

            OVIcon {
                anchors.verticalCenter: parent.verticalCenter
                color: Theme.accentIcons ? Theme.accent : Theme.ovInkSecondary
                symbol: row.modelData.symbol
            }

            OVText {
                anchors.verticalCenter: parent.verticalCenter
                text: row.modelData.title
                width: caps.x - x - Theme.space12
                x: Theme.iconRow + Theme.space12
                Accessible.ignored: true
            }

            Row {
                id: caps

                anchors.right: parent.right
                anchors.verticalCenter: parent.verticalCenter
                spacing: Theme.space4

                Repeater {
                    model: row.modelData.caps

                    OVKeyCap {
                        required property string modelData

                        text: modelData
                    }
                }
            }
        }
    }
}
