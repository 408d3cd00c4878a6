import QtQuick
import Orvel.Decks
import Orvel.DesignSystem

/// A deck in the rail, with its first slide.
Item {
    id: row

    required property var deckID
    required property string title
    required property string detail
    required property var cover
    readonly property bool isSelected: ListView.isCurrentItem
    required property DecksViewModel decks
    /// Whether the keyboard is in the list.
    property bool ringShown: false

    signal picked()
    signal renameRequested()
    signal deleteRequested()

    function handleKey(event: KeyEvent) {
        event.accepted = false
        menuArea.handleKey(event)
    }

    Accessible.name: qsTr("%1, %2").arg(title).arg(detail)
    Accessible.role: Accessible.ListItem
    Accessible.selected: isSelected
    Accessible.onPressAction: picked()
    implicitHeight: Math.max(texts.implicitHeight, picture.height) + 2 * Theme.space8

    HoverWash {
        chosen: row.isSelected
        hovered: pointer.hovered

        OVFocusRing {
            anchors.margins: 1
            shown: row.ringShown && row.isSelected
            targetRadius: Theme.cornerField - 5
        }
    }

    HoverHandler { id: pointer }

    TapHandler {
        gesturePolicy: TapHandler.WithinBounds
        onTapped: row.picked()
    }

    SlideCanvas {
        id: picture
        anchors.verticalCenter: parent.verticalCenter
        height: Math.round(width * 9 / 16)
        shown: row.cover
        width: Math.round(52 * Theme.fontScale)
        x: Theme.space8

        Rectangle {
            anchors.fill: parent
            anchors.margins: -1
            border.color: Theme.ovBorder
            border.width: Theme.lineWidth
            color: "transparent"
        }
    }

    Column {
        id: texts
        anchors.verticalCenter: parent.verticalCenter
        spacing: 2
        width: parent.width - x - Theme.space8
        x: picture.x + picture.width + Theme.space12

        OVText {
            Accessible.ignored: true
            color: row.isSelected || pointer.hovered ? Theme.ovInk : Theme.ovInkSecondary
            font.weight: row.isSelected ? Font.Medium : Theme.textWeight
            maximumLineCount: 1
            role: OVText.Dense
            text: row.title
            width: parent.width
        }

        OVText {
            Accessible.ignored: true
            maximumLineCount: 1
            role: OVText.Caption
            text: row.detail
            width: parent.width
        }
    }

    OVContextMenuArea {
        id: menuArea
        // A Loader of this Qt version cannot make a bound component.
        // qmllint disable unqualified
        menu: Component {
            DeckMenu {
                deckID: row.deckID
                decks: row.decks
                onDeleteRequested: row.deleteRequested()
                onRenameRequested: row.renameRequested()
            }
        }
        // qmllint enable unqualified
    }
}
