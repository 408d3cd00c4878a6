import QtQuick
import Orvel.Code
import Orvel.DesignSystem
import Orvel.Session

/// The open document: its title and what can be done with it, the editor, the console and the status bar.
FocusScope {
    id: root

    required property CodeViewModel viewModel
    property bool railShown: true
    property alias editor: editor
    readonly property alias run: header.run
    /// The document whose place is kept; none while it is still loading.
    property var openDocument

    signal railRequested()
    signal deleteRequested(var documentID)

    function editTitle() {
        header.editTitle()
    }

    function runSnippet() {
        header.runSnippet()
    }

    /// Keeps the place of the document that is open.
    function leave() {
        if (openDocument)
            CodeDesk.leave(openDocument, editor.input.cursorPosition,
                           Qt.point(editor.flickable.contentX, editor.flickable.contentY))
    }

    /// Goes to where the document was left, once there is enough of it.
    function arrive() {
        const place = CodeDesk.place(viewModel.selectedID)
        openDocument = editor.isLoading ? undefined : viewModel.selectedID
        editor.begin(place.caret, place.scroll)
    }

    Component.onCompleted: {
        arrive()
        viewModel.showSoughtText()
    }
    Component.onDestruction: leave()

    Connections {
        target: root.viewModel
        function onSelectionAboutToChange() {
            root.leave()
        }
        function onSelectionChanged() {
            root.arrive()
        }
        function onCaretRestored(caret: int) {
            editor.placeCaret(caret)
        }
    }

    OVFindBar {
        id: findBar

        anchors.top: header.bottom
        canFind: root.visible && root.enabled && !editor.isLoading
        finder: root.viewModel.finder
        placeholder: qsTr("Find in this snippet")
        selectedText: editor.input.activeFocus ? editor.input.selectedText : ""
        width: parent.width
        onAboutToOpen: behind => root.viewModel.finder.startAt(behind ? editor.input.selectionEnd : editor.input.selectionStart)
        onCloseRequested: {
            finder.close()
            if (!root.viewModel.finder.choose())
                editor.forceFocus()
        }
    }

    ShownFinder {
        active: findBar.canFind
        finder: root.viewModel.finder
        session: Orvel
    }

    Connections {
        target: root.viewModel.finder

        function onShown(start, length, selects) {
            if (selects) {
                editor.placeCaret(start + length)
                editor.input.select(start, start + length)
            }
            editor.showStretch(start, length)
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
        anchors.top: findBar.visible ? findBar.bottom : header.bottom
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
            fontSize: Math.round(CodeDesk.fontSize * Theme.fontScale)
            language: root.viewModel.language.raw
            marks: root.viewModel.finder.marks
            placeholder: qsTr("Write some code")
            showLineNumbers: CodeDesk.showLineNumbers
            text: root.viewModel.source
            verticalPadding: Theme.space12
            wrap: CodeDesk.wrap
            onEdited: text => root.viewModel.setSource(text, editor.input.cursorPosition)
            onIsLoadingChanged: {
                if (!isLoading)
                    root.arrive()
            }
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
                run: header.run
                visible: CodeDesk.showConsole
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
