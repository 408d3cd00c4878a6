pragma ComponentBehavior: Bound

import QtQuick
import Orvel.DesignSystem
import Orvel.Habits

/// The form for a new habit. Return adds it, Escape closes the form.
FocusScope {
    id: root

    required property HabitsViewModel viewModel
    readonly property var accents: viewModel.accents
    readonly property int inset: Theme.space24

    function focusName() {
        field.forceActiveFocus(Qt.TabFocusReason)
    }

    implicitHeight: column.implicitHeight + 2 * inset

    Keys.onEscapePressed: viewModel.composing = false

    NumberAnimation on opacity { from: 0; to: 1; duration: Theme.durationScreen }

    OVCard {
        anchors.fill: parent
    }

    component Label: OVText {
        role: OVText.Section
        Accessible.ignored: true
    }

    Column {
        id: column
        spacing: Theme.space24
        width: root.width - 2 * root.inset
        x: root.inset
        y: root.inset

        OVText {
            role: OVText.CardTitle
            text: qsTr("New habit")
            width: parent.width
            Accessible.role: Accessible.Heading
        }

        OVTextField {
            id: field
            focus: true
            placeholderText: qsTr("Habit name, for example Walk after lunch")
            text: root.viewModel.name
            width: parent.width
            onAccepted: root.viewModel.addHabit()
            onTextEdited: root.viewModel.name = text
        }

        OVEmojiRow {
            icon: root.viewModel.emoji
            icons: root.viewModel.emojiChoices
            label: qsTr("ICON")
            labelRole: OVText.Section
            scrolls: true
            width: parent.width
            onAccepted: root.viewModel.addHabit()
            onChosen: icon => root.viewModel.emoji = icon
        }

        Column {
            spacing: Theme.space8
            width: parent.width

            Label { text: qsTr("COLOUR") }

            ArrowGrid {
                id: colors

                columns: Math.max(1, Math.floor((width + spacing) / (Theme.chipHeight + spacing)))
                current: Math.max(0, root.accents.findIndex(accent => accent.raw === root.viewModel.accent))
                items: swatches
                spacing: Theme.space8
                width: parent.width
                Accessible.name: qsTr("Colour")
                Accessible.role: Accessible.Grouping
                onMoved: index => root.viewModel.accent = root.accents[index].raw

                Repeater {
                    id: swatches
                    model: root.accents

                    OVColorSwatch {
                        required property int index
                        required property var modelData

                        chosen: index === colors.current
                        color: Theme.dark ? modelData.dark : modelData.light
                        focusPolicy: chosen ? Qt.TabFocus : Qt.NoFocus
                        markColor: Theme.dark ? modelData.onDark : modelData.onLight
                        text: modelData.label
                        onClicked: {
                            colors.follow(index)
                            root.viewModel.accent = modelData.raw
                        }
                    }
                }
            }
        }

        Column {
            spacing: Theme.space8
            width: parent.width

            Label { text: qsTr("WEEKLY GOAL") }

            ArrowGrid {
                id: goals

                columns: 7
                current: root.viewModel.target - 1
                items: chips
                spacing: Theme.space8
                Accessible.name: qsTr("Weekly goal")
                Accessible.role: Accessible.Grouping
                onMoved: index => root.viewModel.target = index + 1

                Repeater {
                    id: chips
                    model: 7

                    OVChip {
                        required property int index

                        checked: index === goals.current
                        tabStop: checked
                        text: index + 1
                        width: Theme.chipHeight + Theme.space8
                        Accessible.name: qsTr("%1× a week").arg(index + 1)
                        OVAccessible.role: Accessible.RadioButton
                        onClicked: {
                            goals.follow(index)
                            root.viewModel.target = index + 1
                        }
                    }
                }
            }
        }

        Row {
            spacing: Theme.space8

            OVPrimaryButton {
                enabled: root.viewModel.canAdd
                symbol: "checkmark"
                text: qsTr("Add habit")
                onClicked: root.viewModel.addHabit()
            }

            OVSecondaryButton {
                text: qsTr("Cancel")
                onClicked: root.viewModel.composing = false
            }
        }
    }
}
