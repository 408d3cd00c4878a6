pragma ComponentBehavior: Bound

import QtQuick
import Orvel.Databases
import Orvel.DesignSystem

/// The filters, the sorts and the grouping of a view.
Rectangle {
    id: root

    required property ViewSettingsViewModel settings
    readonly property real innerWidth: width - 2 * Theme.space16

    border.color: Theme.ovBorder
    border.width: Theme.lineWidth
    color: Theme.ovSurface
    implicitHeight: column.implicitHeight + 2 * Theme.space16
    radius: Theme.cornerCard

    component Part: Column {
        id: part

        property string title

        spacing: Theme.space8
        width: parent.width

        OVText {
            role: OVText.Section
            text: part.title
            width: parent.width
            Accessible.role: Accessible.Heading
        }
    }

    Column {
        id: column
        spacing: Theme.space16
        width: root.innerWidth
        x: Theme.space16
        y: Theme.space16

        Part {
            title: qsTr("FILTERS")

            Flow {
                spacing: Theme.space8
                visible: filters.count > 0
                width: parent.width

                Repeater {
                    id: filters
                    model: root.settings.filters

                    ViewRule {
                        maximumWidth: root.innerWidth
                        onRemoved: root.settings.removeFilter(ruleID)
                    }
                }
            }

            Flow {
                spacing: Theme.space8
                width: parent.width

                OVMenuButton {
                    text: root.settings.filterPropertyName || qsTr("Property")
                    width: Math.min(implicitWidth, root.innerWidth)

                    menu: ChoiceMenu {
                        choices: root.settings.properties
                        current: root.settings.filterProperty
                        onPicked: raw => root.settings.filterProperty = raw
                    }
                }

                OVMenuButton {
                    text: root.settings.filterOpLabel
                    Accessible.name: qsTr("Condition: %1").arg(text)

                    menu: ChoiceMenu {
                        choices: root.settings.operators
                        current: root.settings.filterOp
                        onPicked: raw => root.settings.filterOp = raw
                    }
                }

                OVTextField {
                    implicitHeight: Theme.buttonHeight
                    placeholderText: qsTr("Value")
                    text: root.settings.filterValue
                    visible: root.settings.takesValue
                    width: Math.min(Math.round(160 * Theme.fontScale), root.innerWidth)
                    onAccepted: root.settings.addFilter()
                    onTextEdited: root.settings.filterValue = text
                }

                OVSecondaryButton {
                    enabled: root.settings.canAddFilter
                    text: qsTr("Add filter")
                    onClicked: root.settings.addFilter()
                }
            }
        }

        Part {
            title: qsTr("SORTS")

            Flow {
                spacing: Theme.space8
                width: parent.width

                Repeater {
                    model: root.settings.sorts

                    ViewRule {
                        maximumWidth: root.innerWidth
                        toggles: true
                        onRemoved: root.settings.removeSort(ruleID)
                        onToggled: root.settings.toggleSort(ruleID)
                    }
                }

                OVMenuButton {
                    plain: true
                    text: qsTr("+ Add sort")

                    menu: ChoiceMenu {
                        choices: root.settings.properties
                        marks: false
                        onPicked: raw => root.settings.addSort(raw)
                    }
                }
            }
        }

        Part {
            title: qsTr("GROUP BY")

            OVMenuButton {
                text: root.settings.groupName
                width: Math.min(implicitWidth, root.innerWidth)
                Accessible.name: qsTr("Group by: %1").arg(text)

                menu: ChoiceMenu {
                    choices: root.settings.properties
                    current: root.settings.group
                    noneText: qsTr("None")
                    onPicked: raw => root.settings.group = raw
                }
            }
        }
    }
}
