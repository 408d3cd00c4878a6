pragma ComponentBehavior: Bound

import QtQuick
import Orvel.Decks
import Orvel.DesignSystem

/// A text field of the selected slide, of one line or of several.
Item {
    id: row

    required property string field
    required property string label
    required property string placeholder
    required property string content
    required property string hint
    required property bool isMultiLine
    required property DeckEditorViewModel editor

    function edit() {
        const input = isMultiLine ? (area.item as InspectorArea)?.input : (line.item as InspectorLine)?.input
        input?.forceActiveFocus(Qt.ShortcutFocusReason)
    }

    implicitHeight: Math.max(area.implicitHeight, line.implicitHeight)

    OVLazyLoader {
        id: area
        active: row.isMultiLine
        anchors.fill: parent

        sourceComponent: InspectorArea {
            content: row.content
            hint: row.hint
            label: row.label
            placeholder: row.placeholder
            onEdited: (text, caret) => row.editor.setText(row.field, text, caret)
        }
    }

    OVLazyLoader {
        id: line
        active: !row.isMultiLine
        anchors.fill: parent

        sourceComponent: InspectorLine {
            content: row.content
            label: row.label
            placeholder: row.placeholder
            onEdited: (text, caret) => row.editor.setText(row.field, text, caret)
        }
    }
}
