pragma ComponentBehavior: Bound

import QtQml.Models
import QtQuick
import Orvel.DesignSystem

/// The themes of slides, each with a sample of its colours.
OVMenu {
    id: root

    required property var themes
    /// The id of the present theme; empty to mark none.
    property string current: ""

    signal picked(themeID: string)

    Instantiator {
        model: root.themes
        onObjectAdded: (index, item) => root.insertItem(index, item as OVMenuItem)
        onObjectRemoved: (index, item) => root.removeItem(item as OVMenuItem)

        delegate: OVMenuItem {
            id: item

            required property var modelData

            autoExclusive: true
            checkable: root.current !== ""
            checked: root.current === modelData.id
            rightPadding: Theme.space12 + sample.width + Theme.space16
            text: modelData.name
            onTriggered: root.picked(modelData.id)

            Rectangle {
                id: sample
                anchors.right: parent.right
                anchors.rightMargin: Theme.space12
                anchors.verticalCenter: parent.verticalCenter
                border.color: Theme.ovBorderStrong
                border.width: Theme.lineWidth
                color: item.modelData.background
                height: Theme.iconRow + 4
                radius: 3
                width: Math.round(height * 16 / 9)

                Rectangle {
                    color: item.modelData.accent
                    height: 2
                    width: Math.round(parent.width * 0.25)
                    x: Math.round(parent.width * 0.16)
                    y: Math.round(parent.height * 0.26)
                }

                Rectangle {
                    color: item.modelData.ink
                    height: 4
                    width: Math.round(parent.width * 0.6)
                    x: Math.round(parent.width * 0.16)
                    y: Math.round(parent.height * 0.5)
                }
            }
        }
    }
}
