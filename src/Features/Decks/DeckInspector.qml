pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Orvel.Decks
import Orvel.DesignSystem

/// What the deck and the selected slide hold, as plain fields.
FocusScope {
    id: root

    required property DeckEditorViewModel editor

    /// Gives a field of the slide the keyboard.
    function edit(field: string) {
        for (let i = 0; i < fields.count; ++i) {
            const row = fields.itemAt(i) as InspectorField
            if (row?.field === field)
                row.edit()
        }
    }

    Rectangle {
        anchors.fill: parent
        border.color: Theme.ovBorder
        border.width: Theme.lineWidth
        color: Theme.ovSurface
        radius: Theme.cornerCard
    }

    Flickable {
        id: view
        anchors.fill: parent
        anchors.margins: Theme.lineWidth
        boundsBehavior: Flickable.StopAtBounds
        clip: true
        contentHeight: column.height + 2 * Theme.space16
        T.ScrollBar.vertical: OVScrollBar { }

        Column {
            id: column
            spacing: Theme.space12
            width: view.width - 2 * Theme.space16
            x: Theme.space16
            y: Theme.space16

            OVSectionHeader {
                text: qsTr("Deck")
                width: parent.width
            }

            InspectorLine {
                content: root.editor.title
                label: qsTr("Title")
                placeholder: qsTr("Untitled")
                width: parent.width
                onEdited: (text, caret) => root.editor.setTitle(text, caret)
            }

            InspectorLine {
                content: root.editor.summary
                label: qsTr("Summary")
                placeholder: qsTr("One line about this talk")
                width: parent.width
                onEdited: (text, caret) => root.editor.setSummary(text, caret)
            }

            InspectorLine {
                content: root.editor.author
                label: qsTr("Author")
                width: parent.width
                onEdited: (text, caret) => root.editor.setAuthor(text, caret)
            }

            OVSwitch {
                checked: root.editor.showNumbers
                indicatorTrailing: true
                text: qsTr("Page numbers")
                width: parent.width
                onToggled: {
                    root.editor.setShowNumbers(checked)
                    checked = Qt.binding(() => root.editor.showNumbers)
                }
            }

            OVDivider { width: parent.width }

            OVSectionHeader {
                text: qsTr("Slide")
                width: parent.width
            }

            OVText {
                color: Theme.ovInkSecondary
                text: qsTr("No slide selected.")
                visible: !root.editor.hasSlide
                width: parent.width
            }

            OVComboBox {
                currentIndex: root.editor.kindIndex
                model: root.editor.kinds
                textRole: "label"
                valueRole: "raw"
                visible: root.editor.hasSlide
                width: parent.width
                Accessible.name: qsTr("Layout")
                onActivated: root.editor.setKind(currentValue)
            }

            Repeater {
                id: fields
                model: root.editor.fields

                delegate: InspectorField {
                    editor: root.editor
                    width: column.width
                }
            }

            OVDivider {
                visible: root.editor.hasSlide
                width: parent.width
            }

            OVSectionHeader {
                text: qsTr("Notes")
                visible: root.editor.hasSlide
                width: parent.width
            }

            InspectorArea {
                content: root.editor.notes
                label: ""
                minimumLines: 5
                placeholder: qsTr("Speaker notes")
                visible: root.editor.hasSlide
                width: parent.width
                onEdited: (text, caret) => root.editor.setText("notes", text, caret)
            }
        }
    }
}
