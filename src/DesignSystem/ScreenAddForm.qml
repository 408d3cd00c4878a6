import QtQuick
import Orvel.DesignSystem

/// The form for a new record above the rows of a screen: its title and the choices that are put into the form. In a
/// narrow place these stand below the title. Return in the title adds, Ctrl+Return everywhere.
FocusScope {
    id: form

    /// Stands before the title; empty for nothing.
    property string label
    property alias placeholderText: field.placeholderText
    property alias title: field.text
    default property alias choices: choices.data
    readonly property int inset: Theme.space12
    readonly property bool stacked: choices.oneLine + Theme.fieldWidth + labelText.room + 2 * inset > width

    signal titleEdited(title: string)
    signal submitted()

    function submit() {
        submitted()
        focusTitle()
    }

    function focusTitle() {
        field.forceActiveFocus(Qt.OtherFocusReason)
    }

    implicitHeight: stacked ? field.height + choices.height + 3 * inset : choices.height + 2 * inset

    Keys.onPressed: event => {
        if ((event.key === Qt.Key_Return || event.key === Qt.Key_Enter) && event.modifiers & Qt.ControlModifier) {
            submit()
            event.accepted = true
        }
    }

    OVCard {
        anchors.fill: parent
    }

    OVText {
        id: labelText

        readonly property int room: text === "" ? 0 : Math.ceil(implicitWidth) + Theme.space12

        anchors.verticalCenter: field.verticalCenter
        color: Theme.ovInkSecondary
        font.weight: Font.Medium
        role: OVText.Dense
        text: form.label
        x: Theme.space16
    }

    OVTextField {
        id: field
        focus: true
        height: Theme.buttonHeight
        plain: true
        symbol: "plus"
        width: form.stacked ? form.width - x - form.inset : choices.x - x - Theme.space12
        x: Theme.space16 + labelText.room
        y: form.inset
        onAccepted: form.submit()
        onTextEdited: form.titleEdited(text)
    }

    Flow {
        id: choices

        readonly property real oneLine: Array.from(children).filter(child => child.visible)
                                             .reduce((sum, child) => sum + child.width + spacing, -spacing)

        spacing: Theme.space8
        width: Math.min(oneLine, form.width - 2 * form.inset)
        x: form.width - width - form.inset
        y: form.height - height - form.inset
    }
}
