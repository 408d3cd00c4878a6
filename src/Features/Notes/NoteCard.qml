pragma ComponentBehavior: Bound

import QtQuick
import Orvel.DesignSystem
import Orvel.Notes

/// A note on the grid: a click or Return opens it, Delete takes it away.
ScreenGridCard {
    id: card

    required property NotesViewModel viewModel
    required property var noteID
    required property string icon
    required property string title
    required property string preview
    required property bool isBlank
    required property string dateText

    function remove() {
        viewModel.deleteNote(noteID)
    }

    Accessible.name: qsTr("%1, %2, %3").arg(title).arg(preview).arg(dateText)
    Accessible.role: Accessible.Button
    Accessible.onPressAction: viewModel.openNote(noteID)
    Keys.onPressed: event => {
        switch (event.key) {
        case Qt.Key_Return:
        case Qt.Key_Enter:
        case Qt.Key_Space:
            viewModel.openNote(noteID)
            break
        case Qt.Key_Delete:
            remove()
            break
        default:
            return contextMenu.handleKey(event)
        }
        event.accepted = true
    }
    onClicked: viewModel.openNote(noteID)

    OVEmoji {
        id: mark
        size: Theme.iconTile
        text: card.icon
        x: Theme.space16
        y: Theme.space16
    }

    OVText {
        id: titleText
        anchors.left: mark.left
        anchors.right: parent.right
        anchors.rightMargin: Theme.space16
        anchors.top: mark.bottom
        anchors.topMargin: Theme.space12
        font.weight: Font.DemiBold
        maximumLineCount: 1
        text: card.title
        Accessible.ignored: true
    }

    OVText {
        anchors.bottom: date.top
        anchors.bottomMargin: Theme.space4
        anchors.left: titleText.left
        anchors.right: titleText.right
        anchors.top: titleText.bottom
        anchors.topMargin: Theme.space4
        color: card.isBlank ? Theme.ovInkTertiary : Theme.ovInkSecondary
        maximumLineCount: 4
        role: OVText.Dense
        text: card.preview
        verticalAlignment: Text.AlignTop
        wrapMode: Text.Wrap
        Accessible.ignored: true
    }

    OVText {
        id: date
        anchors.bottom: parent.bottom
        anchors.bottomMargin: Theme.space16
        anchors.left: parent.left
        anchors.leftMargin: Theme.space16
        role: OVText.Caption
        text: card.dateText
        Accessible.ignored: true
    }

    OVLazyLoader {
        active: card.hovered || card.visualFocus || (contextMenu.openMenu?.visible ?? false)
        anchors.right: parent.right
        anchors.rightMargin: Theme.space8
        anchors.top: parent.top
        anchors.topMargin: Theme.space8

        sourceComponent: OVIconButton {
            iconSize: Theme.iconRow
            symbol: "trash"
            tabStop: false
            text: qsTr("Delete")
            Accessible.name: qsTr("Delete: %1").arg(card.title)
            onClicked: card.remove()
        }
    }

    OVContextMenuArea {
        id: contextMenu

        menu: OVMenu {
            OVMenuItem {
                shortcutText: qsTr("Return")
                symbol: "note.text"
                text: qsTr("Open")
                onTriggered: card.viewModel.openNote(card.noteID)
            }

            OVMenuSeparator { }

            OVMenuItem {
                destructive: true
                shortcutText: qsTr("Del")
                symbol: "trash"
                text: qsTr("Delete")
                onTriggered: card.remove()
            }
        }
    }
}
