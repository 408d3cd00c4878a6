import QtQuick
import Orvel.Decks
import Orvel.DesignSystem
import Orvel.Session

/// The decks: the rail, the open deck and the inspector. Where there is no room for all three, rail and inspector
/// take turns, and in a narrow window each takes the place of the deck.
FocusScope {
    id: root

    readonly property alias decks: decks
    readonly property alias editor: editor
    readonly property alias deckExport: deckExport
    readonly property alias pane: pane
    readonly property bool isNarrow: width < 720 * Theme.fontScale
    readonly property bool hasRoomForAll: width >= 1120 * Theme.fontScale
    readonly property int padding: isNarrow ? Theme.screenPaddingNarrow : Theme.space24
    /// What the user wants to see, as far as there is room.
    property bool railWanted: true
    property bool showInspector: width >= 1120 * Theme.fontScale
    property bool railOverDeck: false
    readonly property bool railShown: isNarrow ? railOverDeck : railWanted && (hasRoomForAll || !showInspector)

    function toggleRail() {
        if (isNarrow) {
            railOverDeck = !railOverDeck
        } else if (railShown) {
            railWanted = false
        } else {
            railWanted = true
            if (!hasRoomForAll)
                showInspector = false
        }
    }

    function toggleInspector() {
        showInspector = !showInspector
        railOverDeck = false
    }

    function open(deckID) {
        pane.commit()
        decks.select(deckID)
        railOverDeck = false
    }

    function makeDeck(themeID: string) {
        pane.commit()
        decks.newDeck(themeID)
        railOverDeck = false
        pane.editTitle()
    }

    function ask(deckID) {
        dialogs.ask(deckID, rail.activeFocus)
    }

    // What is hidden would keep the keyboard.
    onRailShownChanged: {
        if (rail.activeFocus && !railShown)
            pane.focusSlides()
        else if (pane.activeFocus && isNarrow && railShown)
            rail.focusList()
    }
    onShowInspectorChanged: {
        if (inspector.activeFocus && !showInspector)
            pane.focusSlides()
    }
    Keys.onEscapePressed: event => {
        event.accepted = isNarrow && (railOverDeck || showInspector)
        railOverDeck = false
        if (event.accepted)
            showInspector = false
    }

    DecksViewModel {
        id: decks
        active: root.visible
        session: Orvel
        onSlideRevealed: (slideID, field, caret) => {
            editor.selectSlide(slideID)
            if (field === "notes" || inspector.activeFocus)
                return
            pane.slide.edit(field, caret)
        }
    }

    DeckEditorViewModel {
        id: editor
        active: root.visible
        deckID: decks.deckID
        session: Orvel
    }

    DeckExportViewModel {
        id: deckExport
        deckID: decks.deckID
        session: Orvel
    }

    DeckKeys {
        active: root.visible && root.enabled && !decks.isEmpty && !dialogs.busy
        editor: editor
        pane: pane
    }

    OVAppear {
        anchors.centerIn: parent
        anchors.verticalCenterOffset: -Theme.space48
        visible: decks.isEmpty
        width: Math.min(implicitWidth, root.width - 2 * root.padding)

        OVEmptyState {
            actionSymbol: "plus"
            actionText: qsTr("New deck")
            message: qsTr("Shape a talk, then export it to PowerPoint, PDF or Markdown.")
            symbol: "rectangle.on.rectangle"
            title: qsTr("No decks yet")
            width: parent.width
            onActionTriggered: root.makeDeck("")
        }
    }

    FocusScope {
        id: desk
        anchors.fill: parent
        anchors.margins: root.padding
        enabled: visible
        focus: true
        visible: !decks.isEmpty

        DeckRail {
            id: rail
            decks: decks
            height: parent.height
            visible: root.railShown
            width: root.isNarrow ? parent.width : Math.round(Math.min(220 * Theme.fontScale, root.width * 0.3))
            onDeleteRequested: deckID => root.ask(deckID)
            onEditRequested: {
                root.railOverDeck = false
                pane.focusSlides()
            }
            onHideRequested: root.toggleRail()
            onNewRequested: themeID => root.makeDeck(themeID)
            onPicked: deckID => root.open(deckID)
            onRenameRequested: {
                root.railOverDeck = false
                pane.editTitle()
            }
        }

        DeckPane {
            id: pane
            readonly property real end: inspector.visible && !root.isNarrow ? inspector.width + Theme.space16 : 0

            deckExport: deckExport
            decks: decks
            editor: editor
            focus: true
            height: parent.height
            inspectorShown: root.showInspector
            railShown: rail.visible
            visible: !root.isNarrow || !root.railOverDeck
            width: parent.width - x - end
            x: rail.visible && !root.isNarrow ? rail.width + Theme.space24 : 0
            onDeleteRequested: deckID => root.ask(deckID)
            onInspectorRequested: field => {
                root.showInspector = true
                inspector.edit(field)
            }
            onInspectorToggled: root.toggleInspector()
            onRailRequested: root.toggleRail()
        }

        DeckInspector {
            id: inspector
            anchors.right: parent.right
            editor: editor
            enabled: visible
            height: parent.height - y
            visible: root.showInspector && (!root.isNarrow || !root.railOverDeck)
            width: Math.round(Math.min(256 * Theme.fontScale, parent.width))
            // Over the deck it leaves the way to hide it free.
            y: root.isNarrow ? Theme.buttonHeight + Theme.space8 : 0
        }
    }

    DeckDialogs {
        id: dialogs
        deckExport: deckExport
        decks: decks
        onClosed: isFromRail => {
            // The row that had the focus may be gone.
            if (isFromRail && !decks.isEmpty)
                rail.focusList()
        }
    }
}
