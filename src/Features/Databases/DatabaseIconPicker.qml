pragma ComponentBehavior: Bound

import QtQuick
import Orvel.Databases
import Orvel.DesignSystem

/// The icon of a database, and behind it the icons to choose from.
OVPressable {
    id: root

    required property DatabasesViewModel viewModel
    readonly property int columns: 4

    function open() {
        const reason = visualFocus ? Qt.TabFocusReason : Qt.PopupFocusReason
        menu.open()
        choices.focusChoice(Math.max(0, viewModel.icons.indexOf(viewModel.icon)), reason)
    }

    padding: Theme.space4
    text: qsTr("Icon")
    toolTip: menu.visible ? "" : qsTr("Change icon")
    Accessible.name: qsTr("Icon, %1").arg(viewModel.icon)
    OVAccessible.role: Accessible.ButtonMenu
    Keys.onDownPressed: open()
    onClicked: open()

    contentItem: OVEmoji {
        size: Theme.sizeScreenTitle + Theme.space4
        text: root.viewModel.icon
    }

    OVPopup {
        id: menu
        name: qsTr("Icon")
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
                model: root.viewModel.icons

                delegate: OVPressable {
                    id: choice

                    required property int index
                    required property string modelData

                    implicitHeight: Theme.fieldHeight
                    implicitWidth: Theme.fieldHeight
                    pressedScale: 0.94
                    text: modelData
                    OVAccessible.role: Accessible.MenuItem
                    Accessible.selected: modelData === root.viewModel.icon
                    Keys.onDownPressed: choices.focusChoice(index + root.columns)
                    Keys.onLeftPressed: choices.focusChoice(index - 1)
                    Keys.onRightPressed: choices.focusChoice(index + 1)
                    Keys.onUpPressed: choices.focusChoice(index - root.columns)
                    onClicked: {
                        root.viewModel.setIcon(modelData)
                        menu.close()
                    }

                    background: HoverWash {
                        chosen: choice.modelData === root.viewModel.icon
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
