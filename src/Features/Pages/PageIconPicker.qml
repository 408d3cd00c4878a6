pragma ComponentBehavior: Bound

import QtQuick
import Orvel.DesignSystem
import Orvel.Pages

/// The icon of a page, and behind it the icons to choose from.
OVPressable {
    id: root

    required property PageHeaderViewModel header
    readonly property int columns: 4

    function open() {
        const reason = visualFocus ? Qt.TabFocusReason : Qt.PopupFocusReason
        menu.open()
        choices.focusChoice(Math.max(0, header.icons.indexOf(header.icon)), reason)
    }

    function choose(icon: string) {
        header.setIcon(icon)
        menu.close()
    }

    padding: Theme.space4
    text: qsTr("Icon")
    toolTip: menu.visible ? "" : qsTr("Change icon")
    Accessible.name: qsTr("Icon, %1").arg(header.icon)
    OVAccessible.role: Accessible.ButtonMenu
    Keys.onDownPressed: open()
    onClicked: open()

    contentItem: OVEmoji {
        size: Theme.iconPage
        text: root.header.icon
    }

    OVPopup {
        id: menu

        padding: Theme.space8
        y: root.height + Theme.space4

        contentItem: Grid {
            id: choices

            function focusChoice(index: int, reason = Qt.TabFocusReason) {
                repeater.itemAt(index)?.forceActiveFocus(reason)
            }

            columns: root.columns
            spacing: Theme.space4

            Repeater {
                id: repeater

                model: root.header.icons

                delegate: OVPressable {
                    id: choice

                    required property int index
                    required property string modelData

                    checkable: false
                    implicitHeight: Theme.fieldHeight
                    implicitWidth: Theme.fieldHeight
                    pressedScale: 0.94
                    text: modelData
                    OVAccessible.role: Accessible.MenuItem
                    Accessible.selected: modelData === root.header.icon
                    Keys.onDownPressed: choices.focusChoice(index + root.columns)
                    Keys.onLeftPressed: choices.focusChoice(index - 1)
                    Keys.onRightPressed: choices.focusChoice(index + 1)
                    Keys.onUpPressed: choices.focusChoice(index - root.columns)
                    onClicked: root.choose(modelData)

                    background: HoverWash {
                        chosen: choice.modelData === root.header.icon
                        hovered: choice.hovered
                        pressed: choice.down
                        radius: choice.radius
                    }
                    contentItem: OVEmoji {
                        size: Theme.iconTile
                        text: choice.modelData
                    }
                }
            }
        }
    }
}
