import QtQuick
import Orvel.DesignSystem

/// A labelled single-line text field, with a line below it for a hint or for what is wrong.
FocusScope {
    id: root

    property string label: ""
    property string hint: ""
    /// What is wrong with the text; shown in place of the hint.
    property string error: ""
    property alias text: field.text
    property alias placeholderText: field.placeholderText
    property alias symbol: field.symbol
    property alias readOnly: field.readOnly
    property alias input: field

    signal accepted()
    signal textEdited()
    signal editingFinished()

    implicitWidth: field.implicitWidth
    implicitHeight: column.implicitHeight

    Column {
        id: column
        width: parent.width
        spacing: Theme.space4

        OVText {
            width: parent.width
            visible: text !== ""
            text: root.label
            role: OVText.Dense
            font.weight: Font.Medium
            color: Theme.ovInkSecondary
            opacity: root.enabled ? 1 : Theme.disabledOpacity
            Accessible.ignored: true

            TapHandler {
                onTapped: field.forceActiveFocus(Qt.MouseFocusReason)
            }
        }

        OVTextField {
            id: field
            width: parent.width
            focus: true
            invalid: root.error !== ""
            Accessible.name: root.label || placeholderText
            Accessible.description: root.error || root.hint
            onAccepted: root.accepted()
            onTextEdited: root.textEdited()
            onEditingFinished: root.editingFinished()
        }

        OVText {
            width: parent.width
            visible: text !== ""
            text: root.error || root.hint
            role: OVText.Caption
            color: root.error !== "" ? Theme.ovDanger : Theme.ovInkSecondary
            wrapMode: Text.Wrap
            Accessible.ignored: true
        }
    }
}
