import QtQuick
import QtQuick.Templates as T
import Orvel.DesignSystem
import Orvel.Pages

/// What a slash at the beginning of a block offers: the types that the block can become, to be chosen with the
/// mouse. The keyboard stays in the field.
T.Popup {
    id: root

    required property PageEditorViewModel editor
    /// The row of the block, below or above which it stands.
    required property BlockRow row
    /// Where the block begins in its row.
    property real column: 0

    /// Rows that have to fit below the block, unless there is less room above it.
    readonly property int leastRows: 5
    property bool isAbove: false
    property real room: 0

    /// Chooses the side once, so that the menu stays where it is while its list gets shorter.
    function place() {
        const above = parent.mapToItem(null, 0, 0).y - 2 * Theme.space8
        const below = parent.Window.height - above - parent.height - 4 * Theme.space8
        isAbove = below < Math.min(implicitHeight, leastRows * Theme.rowHeight) && below < above
        room = isAbove ? above : below
    }

    bottomPadding: Theme.space4
    closePolicy: T.Popup.NoAutoClose
    focus: false
    height: Math.min(implicitHeight, room)
    // The heading and the types, of which the list would only estimate the height.
    implicitHeight: (1 + editor.slashTypes.length) * Theme.rowHeight + topPadding + bottomPadding
    implicitWidth: Theme.menuWidth + Theme.space48 + leftPadding + rightPadding
    leftPadding: Theme.space4
    margins: Theme.space8
    parent: row
    rightPadding: Theme.space4
    topPadding: Theme.space4
    transformOrigin: T.Popup.TopLeft
    x: column
    y: isAbove ? -height : parent.height

    onAboutToShow: place()

    background: OVPopupSurface { }
    enter: OVEnter { }
    exit: OVExit { }
    contentItem: ListView {
        id: list
        boundsBehavior: Flickable.StopAtBounds
        clip: interactive
        interactive: contentHeight > height
        model: root.editor.slashTypes
        T.ScrollBar.vertical: OVScrollBar { }
        Accessible.role: Accessible.PopupMenu
        Accessible.name: qsTr("BASIC BLOCKS")

        header: OVText {
            color: Theme.ovInkTertiary
            height: Theme.rowHeight
            leftPadding: Theme.space12
            role: OVText.Section
            text: qsTr("BASIC BLOCKS")
        }
        delegate: SlashMenuItem {
            required property int modelData

            symbol: root.editor.typeSymbols[modelData]
            text: root.editor.typeLabels[modelData]
            width: list.width
            onClicked: root.editor.applySlash(root.row.blockID, modelData)
        }
    }
}
