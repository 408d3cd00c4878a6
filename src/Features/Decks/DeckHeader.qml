import QtQuick
import Orvel.Decks
import Orvel.DesignSystem

/// The title of the open deck, where it stands to be changed, and what can be done with the deck.
Item {
    id: root

    required property DecksViewModel decks
    required property DeckEditorViewModel editor
    property bool railShown: true
    property bool inspectorShown: false
    readonly property bool isTight: width < 480 * Theme.fontScale

    signal railRequested()
    signal inspectorToggled()
    signal deleteRequested()
    signal presentRequested()
    /// The user is done with the title.
    signal titleDone()

    function editTitle() {
        title.forceActiveFocus(Qt.TabFocusReason)
        title.selectAll()
    }

    implicitHeight: actions.height

    Connections {
        target: root.editor
        function onDeckChanged() {
            title.text = root.editor.title
        }
        function onDeckIDChanged() {
            title.text = root.editor.title
            title.deckID = root.editor.deckID
        }
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

        property var deckID: root.editor.deckID

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
        text: root.editor.title
        Keys.onEscapePressed: {
            text = root.editor.title
            root.titleDone()
        }
        onAccepted: root.titleDone()
        onEditingFinished: {
            root.editor.rename(deckID, text)
            text = root.editor.title
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

        OVIconButton {
            id: more
            anchors.verticalCenter: parent.verticalCenter
            OVAccessible.role: Accessible.ButtonMenu
            symbol: "ellipsis"
            text: qsTr("More")
            onClicked: menu.openBeside(more, 0, -Theme.space4, height + Theme.space4)

            DeckMenu {
                id: menu
                deckID: root.editor.deckID
                decks: root.decks
                onDeleteRequested: root.deleteRequested()
                onRenameRequested: root.editTitle()
            }
        }

        OVIconButton {
            anchors.verticalCenter: parent.verticalCenter
            checked: root.inspectorShown
            symbol: "slider.horizontal.3"
            text: qsTr("Toggle inspector")
            onClicked: root.inspectorToggled()
        }

        OVPrimaryButton {
            enabled: root.editor.slideCount > 0
            keyText: root.isTight ? "" : qsTr("Ctrl Shift P")
            symbol: "play"
            text: qsTr("Present")
            toolTip: root.isTight ? qsTr("Ctrl Shift P") : ""
            onClicked: root.presentRequested()
        }
    }
}
