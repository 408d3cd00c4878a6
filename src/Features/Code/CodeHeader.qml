import QtQuick
import Orvel.Code
import Orvel.DesignSystem

/// The title of the open document, where it stands to be changed, and what can be done with it.
Item {
    id: root

    required property CodeViewModel viewModel
    property bool railShown: true
    property bool didCopy: false
    readonly property bool isTight: width < 560 * Theme.fontScale
    readonly property bool isTightest: width < 420 * Theme.fontScale
    readonly property CodeRun run: CodeDesk.run(viewModel.selectedID)
    readonly property string runText: run.running ? qsTr("Stop") : qsTr("Run snippet")
    readonly property string runSymbol: run.running ? "stop" : "play"
    readonly property string runKey: run.running ? qsTr("Esc") : qsTr("Ctrl R")

    signal railRequested()
    signal deleteRequested()
    /// The user is done with the title.
    signal titleDone()

    function editTitle() {
        title.forceActiveFocus(Qt.TabFocusReason)
        title.selectAll()
    }

    /// Runs what the user sees, with what is still being composed.
    function runSnippet() {
        Qt.inputMethod.commit() // qmllint disable
        viewModel.runSnippet()
    }

    function runOrStop() {
        if (run.running)
            run.stop()
        else
            runSnippet()
    }

    implicitHeight: actions.height

    Connections {
        target: root.viewModel
        function onDocumentChanged() {
            title.text = root.viewModel.title
        }
        function onSelectionChanged() {
            title.text = root.viewModel.title
            title.documentID = root.viewModel.selectedID
        }
    }

    Timer {
        id: copied
        interval: 1600
        onTriggered: root.didCopy = false
    }

    OVIconButton {
        id: railButton
        anchors.verticalCenter: parent.verticalCenter
        symbol: "sidebar.left"
        text: qsTr("Show the list")
        visible: !root.railShown
        onClicked: root.railRequested()
    }

    OVTextField {
        id: title

        property var documentID: root.viewModel.selectedID

        Accessible.name: qsTr("Title")
        anchors.left: railButton.visible ? railButton.right : parent.left
        anchors.leftMargin: railButton.visible ? Theme.space8 : 0
        anchors.right: actions.left
        anchors.rightMargin: Theme.space8
        anchors.verticalCenter: parent.verticalCenter
        color: elided.visible ? "transparent" : Theme.ovInk
        font.pixelSize: Theme.sizeCardTitle
        font.weight: Font.DemiBold
        placeholderText: qsTr("Untitled")
        plain: true
        text: root.viewModel.title
        Keys.onEscapePressed: {
            text = root.viewModel.title
            root.titleDone()
        }
        onAccepted: root.titleDone()
        onEditingFinished: {
            root.viewModel.rename(documentID, text)
            text = root.viewModel.title
        }

        OVText {
            id: elided
            Accessible.ignored: true
            anchors.fill: parent
            font: title.font
            text: title.text
            visible: !title.autoScroll && title.contentWidth > title.width
        }
    }

    Row {
        id: actions
        anchors.right: parent.right
        height: Theme.buttonHeight
        spacing: Theme.space8

        OVMenuButton {
            anchors.verticalCenter: parent.verticalCenter
            Accessible.name: qsTr("Language: %1").arg(root.viewModel.language.label)
            plain: true
            text: root.viewModel.language.label
            toolTip: qsTr("Language")

            menu: CodeLanguageMenu {
                language: root.viewModel.language.raw
                onPicked: raw => root.viewModel.setLanguage(raw)
            }
        }

        OVIconButton {
            anchors.verticalCenter: parent.verticalCenter
            color: root.didCopy ? Theme.ovSuccess : Theme.ovInkSecondary
            symbol: root.didCopy ? "checkmark" : "doc.on.doc"
            text: root.didCopy ? qsTr("Copied") : qsTr("Copy code")
            onClicked: {
                Qt.inputMethod.commit() // qmllint disable
                root.viewModel.copySource()
                root.didCopy = true
                copied.restart()
            }
        }

        OVIconButton {
            id: more
            anchors.verticalCenter: parent.verticalCenter
            OVAccessible.role: Accessible.ButtonMenu
            symbol: "ellipsis"
            text: qsTr("More")
            onClicked: menu.openBeside(more, 0, -Theme.space4, height + Theme.space4)

            CodeDocumentMenu {
                id: menu
                documentID: root.viewModel.selectedID
                viewModel: root.viewModel
                onDeleteRequested: root.deleteRequested()
                onRenameRequested: root.editTitle()
            }
        }

        OVIconButton {
            anchors.verticalCenter: parent.verticalCenter
            color: Theme.ovInk
            symbol: root.runSymbol
            text: root.runText
            toolTip: qsTr("%1, %2").arg(root.runText).arg(root.runKey)
            visible: root.isTightest
            onClicked: root.runOrStop()
        }

        OVPrimaryButton {
            keyText: root.isTight ? "" : root.runKey
            symbol: root.runSymbol
            text: root.runText
            toolTip: root.isTight ? root.runKey : ""
            visible: !root.isTightest
            onClicked: root.runOrStop()
        }
    }
}
