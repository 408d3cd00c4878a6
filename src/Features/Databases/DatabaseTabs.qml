pragma ComponentBehavior: Bound

import QtQuick
import QtQml.Models
import Orvel.Databases
import Orvel.DesignSystem

/// The views of the database, one stop for Tab, and beside them what changes a view.
Flow {
    id: root

    required property DatabasesViewModel viewModel
    required property bool settingsShown
    /// Filters and sorts of the view.
    required property int ruleCount

    signal propertyRequested()
    signal settingsToggled()
    signal renameRequested(var viewID, string name)

    function go(step: int) {
        viewModel.selectViewBy(step)
        tabs.itemAt(viewModel.viewRow)?.forceActiveFocus(Qt.TabFocusReason)
    }

    spacing: Theme.space8

    Repeater {
        id: tabs
        model: root.viewModel.views

        OVChip {
            id: tab

            required property int index
            required property var viewID
            required property string name
            required property string symbol

            tabStop: checked || activeFocus
            checked: index === root.viewModel.viewRow
            text: name
            width: Math.min(implicitWidth, root.width)
            Accessible.selected: checked
            OVAccessible.role: Accessible.PageTab
            Keys.onLeftPressed: root.go(-1)
            Keys.onRightPressed: root.go(1)
            Keys.onPressed: event => {
                if (event.key === Qt.Key_F2)
                    root.renameRequested(viewID, name)
                else
                    return menuArea.handleKey(event)
                event.accepted = true
            }
            onClicked: root.viewModel.selectView(viewID)

            OVContextMenuArea {
                id: menuArea
                // A Loader of this Qt version cannot make a bound component.
                // qmllint disable unqualified
                menu: Component {
                    OVMenu {
                        OVMenuItem {
                            shortcutText: "F2"
                            symbol: "pencil"
                            text: qsTr("Rename view…")
                            onTriggered: root.renameRequested(tab.viewID, tab.name)
                        }

                        OVMenuItem {
                            destructive: true
                            enabled: tabs.count > 1
                            symbol: "trash"
                            text: qsTr("Delete view")
                            onTriggered: root.viewModel.removeView(tab.viewID)
                        }
                    }
                }
                // qmllint enable unqualified
            }
        }
    }

    OVIconButton {
        id: addButton
        implicitHeight: Theme.chipHeight
        implicitWidth: Theme.chipHeight
        iconSize: Theme.iconRow
        symbol: "plus"
        text: qsTr("New view")
        OVAccessible.role: Accessible.ButtonMenu
        Keys.onDownPressed: clicked()
        onClicked: {
            const byKeys = visualFocus
            addMenu.openBeside(addButton, 0, -Theme.space4, height + Theme.space4)
            addMenu.currentIndex = byKeys ? 0 : -1
        }

        OVMenu {
            id: addMenu
            name: qsTr("New view")

            Instantiator {
                model: root.viewModel.viewTypes

                OVMenuItem {
                    required property var modelData

                    symbol: modelData.symbol
                    text: modelData.label
                    onTriggered: root.viewModel.addView(modelData.raw)
                }

                onObjectAdded: (index, object) => addMenu.insertItem(index, object as OVMenuItem)
                onObjectRemoved: (index, object) => addMenu.removeItem(object as OVMenuItem)
            }
        }
    }

    OVChip {
        Accessible.checkable: false
        OVAccessible.role: Accessible.Button
        symbol: "plus"
        text: qsTr("Property")
        onClicked: root.propertyRequested()
    }

    OVChip {
        checked: root.settingsShown
        symbol: "slider.horizontal.3"
        text: root.ruleCount > 0 ? qsTr("View settings, %1").arg(root.ruleCount) : qsTr("View settings")
        onClicked: root.settingsToggled()
    }
}
