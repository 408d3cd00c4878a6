import QtQuick
import Orvel.Decks
import Orvel.DesignSystem

/// The open deck: its title, the tools, the selected slide and the filmstrip.
FocusScope {
    id: root

    required property DecksViewModel decks
    required property DeckEditorViewModel editor
    required property DeckExportViewModel deckExport
    property alias railShown: header.railShown
    property alias inspectorShown: header.inspectorShown
    readonly property alias slide: slide
    readonly property alias filmstrip: filmstrip

    signal railRequested()
    signal inspectorToggled()
    signal inspectorRequested(field: string)
    signal deleteRequested(deckID: var)

    function editTitle() {
        header.editTitle()
    }

    /// What is being composed belongs to the text before anything else happens.
    function commit() {
        Qt.inputMethod.commit() // qmllint disable
    }

    function present() {
        commit()
        decks.present(editor.deckID)
    }

    function addSlide(kind: string) {
        commit()
        editor.addSlide(kind)
        slide.enter(true)
    }

    function focusSlides() {
        if (editor.hasSlide)
            filmstrip.forceActiveFocus(Qt.TabFocusReason)
        else
            toolbar.focusAdd()
    }

    DeckHeader {
        id: header
        decks: root.decks
        editor: root.editor
        width: parent.width
        onDeleteRequested: root.deleteRequested(root.editor.deckID)
        onInspectorToggled: root.inspectorToggled()
        onPresentRequested: root.present()
        onRailRequested: root.railRequested()
        onTitleDone: root.focusSlides()
    }

    DeckToolbar {
        id: toolbar
        anchors.top: header.bottom
        anchors.topMargin: Theme.space8
        deckExport: root.deckExport
        decks: root.decks
        editor: root.editor
        width: parent.width
        onAdded: slide.enter(true)
        onDeleteRequested: root.editor.deleteSlide()
    }

    Item {
        id: stage
        anchors.bottom: filmstrip.top
        anchors.bottomMargin: Theme.space12
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.top: toolbar.bottom
        anchors.topMargin: Theme.space8

        SlideEditor {
            id: slide
            anchors.fill: parent
            anchors.margins: 1
            editor: root.editor
            enabled: visible
            visible: root.editor.hasSlide
            onExited: forward => {
                if (forward)
                    filmstrip.forceActiveFocus(Qt.TabFocusReason)
                else
                    toolbar.nextItemInFocusChain(true).forceActiveFocus(Qt.BacktabFocusReason)
            }
            onInspectorRequested: field => root.inspectorRequested(field)
        }

        OVEmptyState {
            anchors.centerIn: parent
            actionSymbol: "plus"
            actionText: qsTr("New slide")
            message: qsTr("Add a slide to start building.")
            symbol: "rectangle.on.rectangle"
            title: qsTr("This deck has no slides")
            visible: !root.editor.hasSlide
            width: parent.width
            onActionTriggered: root.addSlide("title")
        }
    }

    Filmstrip {
        id: filmstrip
        anchors.bottom: parent.bottom
        editor: root.editor
        focus: true
        height: root.editor.hasSlide ? implicitHeight : 0
        visible: root.editor.hasSlide
        width: parent.width
        onEditRequested: slide.enter(true)
        onEmptied: toolbar.focusAdd()
    }
}
