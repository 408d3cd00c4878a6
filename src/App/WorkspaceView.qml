import QtQuick
import Orvel.App
import Orvel.Session
import Orvel.Shell
import Orvel.Transfer

/// Everything in the window once the onboarding is done: the shell around the screens, and over it presentations, the
/// palette and the sheet of shortcuts.
FocusScope {
    id: root

    /// Whether there is time for what is not seen yet.
    property bool isSettled: true
    /// Those of the menus, where there are any.
    property OrvelCommands commands: null

    // Below everything, so that a screen that takes files itself gets them first.
    Loader {
        id: markdown

        readonly property MarkdownLayer sheets: item as MarkdownLayer

        active: root.isSettled
        anchors.fill: parent
        asynchronous: true
        source: "../Transfer/MarkdownLayer.qml"
    }

    Connections {
        target: root.commands
        function onMarkdownExportRequested() {
            markdown.sheets?.openExport()
        }
        function onMarkdownImportRequested() {
            markdown.sheets?.openImport()
        }
    }

    AppShellView {
        id: shell

        anchors { left: parent.left; right: parent.right; top: parent.top; bottom: saveProblem.top }
        focus: true
        screens: OrvelScreens { }
    }

    SaveProblemLine {
        id: saveProblem
        anchors { left: parent.left; right: parent.right; bottom: parent.bottom }
    }

    // Made ahead, so that they open with the next frame.
    Loader {
        active: root.isSettled
        asynchronous: true
        source: "../Decks/DeckPresenterLayer.qml"
    }

    Loader {
        active: root.isSettled
        asynchronous: true
        source: "../Palette/CommandPalette.qml"
    }

    Loader {
        active: Orvel.ui.isShortcutsPresented || status === Loader.Ready
        source: "../Palette/ShortcutsSheet.qml"
    }

    UndoToast {
        lift: shell.bottomHeight + saveProblem.height
    }
}
