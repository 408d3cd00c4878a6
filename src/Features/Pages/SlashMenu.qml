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

    function place() {
        const top = parent.mapToItem(null, 0, 0).y
        const below = parent.Window.height - top - parent.height
        const fits = below >= implicitHeight + 2 * Theme.space8 || below >= top
        height = Math.min(implicitHeight, (fits ? below : top) - 2 * Theme.space8)
        y = fits ? parent.height : -height
    }

    bottomPadding: Theme.space4
    closePolicy: T.Popup.NoAutoClose
    focus: false
    implicitHeight: contentHeight + topPadding + bottomPadding
    implicitWidth: Theme.menuWidth + Theme.space48 + leftPadding + rightPadding
    leftPadding: Theme.space4
    margins: Theme.space8
    parent: row
    rightPadding: Theme.space4
    topPadding: Theme.space4
    transformOrigin: T.Popup.TopLeft
    x: column

    onAboutToShow: place()
    onImplicitHeightChanged: if (visible) place()

    background: OVPopupSurface { }
    enter: OVEnter { }
    exit: OVExit { }
    contentItem: ListView {
        id: list
        boundsBehavior: Flickable.StopAtBounds
        clip: interactive
        implicitHeight: contentHeight
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
