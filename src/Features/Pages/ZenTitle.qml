import QtQuick
import Orvel.DesignSystem
import Orvel.Pages

/// The title of the page where nothing else stands above the blocks.
FocusScope {
    id: root

    required property PageEditorViewModel editor

    signal leaveDown()

    function focusTitle() {
        field.cursorPosition = field.length
        field.forceActiveFocus(Qt.OtherFocusReason)
    }

    implicitHeight: field.y + field.height + Theme.space12

    TextEdit {
        id: field
        color: Theme.ovInk
        focus: true
        font.family: Theme.fontFamily
        font.letterSpacing: -0.6 * Theme.fontScale
        font.pixelSize: Theme.sizePageTitle
        font.weight: Font.Bold
        selectByMouse: true
        selectedTextColor: Theme.ovInk
        selectionColor: Theme.selection
        textFormat: TextEdit.PlainText
        width: parent.width
        wrapMode: TextEdit.Wrap
        y: 2 * Theme.space48
        Accessible.name: qsTr("Title")
        Accessible.role: Accessible.EditableText
        Keys.onDownPressed: root.leaveDown()
        Keys.onEnterPressed: root.leaveDown()
        Keys.onReturnPressed: root.leaveDown()
        Keys.onTabPressed: root.leaveDown()

        cursorDelegate: OVCaret { }

        FieldText {
            id: content
            composing: field.inputMethodComposing
            document: field.textDocument
            text: root.editor.title
            onEdited: text => {
                root.editor.setTitle(text)
                content.setText(root.editor.title)
            }
        }

        OVText {
            color: Theme.ovInkTertiary
            font: field.font
            text: qsTr("Untitled")
            visible: field.length === 0 && field.preeditText === ""
            Accessible.ignored: true
        }
    }
}
