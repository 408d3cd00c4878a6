import QtQuick
import Orvel.Code
import Orvel.DesignSystem

/// The open document: its title and what can be done with it, the editor, the console and the status bar.
FocusScope {
    id: root

    required property CodeViewModel viewModel
    property bool railShown: true
    property alias editor: editor

    signal railRequested()
    signal deleteRequested(var documentID)

    function editTitle() {
        header.editTitle()
    }

    function runSnippet() {
        header.runSnippet()
    }

    Connections {
        target: root.viewModel
        function onSelectionChanged() {
            editor.begin()
        }
    }

    CodeHeader {
        id: header
        railShown: root.railShown
        viewModel: root.viewModel
        width: parent.width
        onDeleteRequested: root.deleteRequested(root.viewModel.selectedID)
        onTitleDone: editor.forceFocus(Qt.TabFocusReason)
        onRailRequested: root.railRequested()
    }

    Rectangle {
        id: sheet
        anchors.bottom: parent.bottom
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.top: header.bottom
        anchors.topMargin: Theme.space12
        border.color: Theme.ovBorder
        border.width: Theme.lineWidth
        color: Theme.ovSurface
        radius: Theme.cornerCard

        CodeEditor {
            id: editor
            anchors.fill: parent
            anchors.bottomMargin: lower.height
            anchors.margins: Theme.lineWidth
            accessibleName: qsTr("Source of %1").arg(root.viewModel.title)
            focus: true
            fontSize: Math.round(root.viewModel.fontSize * Theme.fontScale)
            language: root.viewModel.language
            placeholder: qsTr("Write some code")
            showLineNumbers: root.viewModel.showLineNumbers
            text: root.viewModel.source
            verticalPadding: Theme.space12
            wrap: root.viewModel.wrap
            onEdited: text => root.viewModel.setSource(text)
        }

        OVFocusRing {
            shown: editor.visualFocus
            targetRadius: sheet.radius
        }

        Column {
            id: lower
            anchors.bottom: parent.bottom
            width: parent.width

            SnippetConsole {
                height: Math.round(Math.min(260 * Theme.fontScale, sheet.height * 0.42))
                viewModel: root.viewModel
                visible: root.viewModel.showConsole
                width: parent.width
                onVisibleChanged: {
                    if (!visible && activeFocus)
                        editor.forceFocus(Qt.OtherFocusReason)
                }
            }

            CodeStatusBar {
                caretColumn: editor.caretColumn
                byKeyboard: editor.visualFocus
                caretLine: editor.caretLine
                viewModel: root.viewModel
                width: parent.width
            }
        }
    }
}
