import QtQuick
import Orvel.Code
import Orvel.DesignSystem
import Orvel.Session

/// The scratchpad of snippets: the rail of documents, the editor of the open one and its console. In a narrow
/// window rail and editor take turns.
FocusScope {
    id: root

    readonly property alias viewModel: code
    readonly property bool isNarrow: width < 720 * Theme.fontScale
    readonly property int padding: isNarrow ? Theme.screenPaddingNarrow : Theme.screenPadding
    /// Whether the user wants the rail, as far as there is room for both.
    property bool railWanted: true
    property bool railOverEditor: false
    readonly property bool showsRail: isNarrow ? railOverEditor : railWanted

    function toggleRail() {
        if (isNarrow)
            railOverEditor = !railOverEditor
        else
            railWanted = !railWanted
    }

    /// Opens another document once what is being typed has reached the present one.
    function open(documentID) {
        Qt.inputMethod.commit() // qmllint disable
        code.select(documentID)
        railOverEditor = false
    }

    function makeDocument() {
        Qt.inputMethod.commit() // qmllint disable
        code.newDocument()
        railOverEditor = false
        pane.editor.forceFocus(Qt.OtherFocusReason)
    }

    function ask(documentID) {
        question.documentID = documentID
        question.isFromRail = rail.activeFocus
        question.message = qsTr("“%1” will be deleted.").arg(code.titleOf(documentID))
        question.open()
    }

    // What is hidden would keep the keyboard.
    onShowsRailChanged: {
        if (rail.activeFocus && !showsRail)
            pane.editor.forceFocus(Qt.OtherFocusReason)
        else if (pane.activeFocus && isNarrow && showsRail)
            rail.focusList()
    }

    // The list over the editor goes first, since it hides the console too.
    Keys.onEscapePressed: event => {
        const hasListOver = isNarrow && railOverEditor
        event.accepted = hasListOver || pane.run.running || CodeDesk.showConsole
        if (hasListOver)
            railOverEditor = false
        else if (pane.run.running)
            pane.run.stop()
        else
            CodeDesk.showConsole = false
    }

    CodeViewModel {
        id: code
        active: root.visible
        desk: CodeDesk
        session: Orvel
    }

    Shortcut {
        autoRepeat: false
        enabled: root.visible && root.enabled && !question.visible
        sequence: "Ctrl+R"
        onActivated: {
            if (!code.isEmpty)
                pane.runSnippet()
        }
    }

    OVAppear {
        anchors.centerIn: parent
        anchors.verticalCenterOffset: -Theme.space48
        visible: code.isEmpty
        width: Math.min(implicitWidth, root.width - 2 * root.padding)

        OVEmptyState {
            actionSymbol: "plus"
            actionText: qsTr("New snippet")
            message: qsTr("Keep small scripts, notes and reusable snippets together.")
            symbol: "chevron.left.forwardslash.chevron.right"
            title: qsTr("No snippets yet")
            width: parent.width
            onActionTriggered: root.makeDocument()
        }
    }

    FocusScope {
        id: desk
        anchors.fill: parent
        anchors.margins: root.padding
        anchors.topMargin: root.isNarrow ? Theme.space16 : Theme.space24
        enabled: visible
        focus: true
        visible: !code.isEmpty

        CodeRail {
            id: rail
            height: parent.height
            viewModel: code
            visible: root.showsRail
            width: root.isNarrow ? parent.width : Math.round(Math.min(220 * Theme.fontScale, root.width * 0.34))
            onDeleteRequested: documentID => root.ask(documentID)
            onEditRequested: {
                root.railOverEditor = false
                pane.editor.forceFocus(Qt.TabFocusReason)
            }
            onHideRequested: root.toggleRail()
            onNewRequested: root.makeDocument()
            onPicked: documentID => root.open(documentID)
            onRenameRequested: {
                root.railOverEditor = false
                pane.editTitle()
            }
        }

        CodePane {
            id: pane
            focus: true
            height: parent.height
            railShown: rail.visible
            viewModel: code
            visible: !root.isNarrow || !root.railOverEditor
            width: parent.width - x
            x: rail.visible && !root.isNarrow ? rail.width + Theme.space24 : 0
            onDeleteRequested: documentID => root.ask(documentID)
            onRailRequested: root.toggleRail()
        }
    }

    OVDialog {
        id: question

        property var documentID
        property bool isFromRail: false

        acceptText: qsTr("Delete")
        cautious: true
        destructive: true
        rejectText: qsTr("Cancel")
        title: qsTr("Delete this snippet?")
        onAccepted: code.deleteDocument(documentID)
        onClosed: {
            // The row that had the focus may be gone.
            if (isFromRail && !code.isEmpty)
                rail.focusList()
        }
    }
}
