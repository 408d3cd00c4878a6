import QtQuick
import Orvel.Code
import Orvel.DesignSystem

/// A document in the rail.
Item {
    id: row

    required property var documentID
    required property string title
    required property string detail
    readonly property bool isSelected: ListView.isCurrentItem
    required property CodeViewModel viewModel
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
    implicitHeight: texts.implicitHeight + 2 * Theme.space8

    HoverWash {
        chosen: row.isSelected
        hovered: pointer.hovered

        OVFocusRing {
            anchors.margins: 1
            shown: row.ringShown && row.isSelected
            targetRadius: Theme.cornerField - 5
        }
    }

    HoverHandler {
        id: pointer
    }

    TapHandler {
        gesturePolicy: TapHandler.WithinBounds
        onTapped: row.picked()
    }

    Column {
        id: texts
        anchors.verticalCenter: parent.verticalCenter
        spacing: 2
        width: parent.width - 2 * Theme.space8
        x: Theme.space8

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
            CodeDocumentMenu {
                documentID: row.documentID
                viewModel: row.viewModel
                onDeleteRequested: row.deleteRequested()
                onRenameRequested: row.renameRequested()
            }
        }
        // qmllint enable unqualified
    }
}
