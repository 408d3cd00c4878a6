import QtQuick
import Orvel.DesignSystem
import Orvel.Pages

/// The blocks of a page below what is shown above them, in one scrolling column. Only the rows in sight exist,
/// and the one that has the focus.
BlockKeys {
    id: root

    /// The row under the pointer.
    readonly property BlockRow hoveredRow: count > 0 && pointer.hovered
            ? rowAt(indexAt(width / 2, root.mapFromItem(null, 0, pointer.pointerY).y + contentY)) : null
    /// The text whose menu is or was open.
    property BlockField menuField: null
    readonly property bool menuOpen: (menu.item as BlockMenu)?.visible ?? false

    function openMenu(row: BlockRow, from: Item) {
        menu.active = true;
        (menu.item as BlockMenu).openFor(row, from)
    }

    /// Opens the menu of the text at this point.
    function openTextMenu(x: real, y: real) {
        const field = rowAt(indexAt(width / 2, y + contentY))?.part.input as BlockField
        const place = field?.mapFromItem(root, x, y)
        if (!field?.contains(place))
            return
        field.forceActiveFocus(Qt.MouseFocusReason)
        menuField = field
        textMenu.active = true;
        (textMenu.item as BlockTextMenu).popup(field, place.x, place.y)
    }

    function openToneMenu(row: BlockRow, from: Item) {
        tones.active = true
        const toneMenu = tones.item as ChoiceMenu
        toneMenu.row = row
        toneMenu.openBeside(from, 0, 0, from.height)
    }

    draggedRow: drag.row
    // New blocks come while the user types, when nothing else may move.
    addDisplaced: null
    maximumWidth: editor.isZen ? Theme.zenWidth : Theme.readingWidth
    minimumPadding: 2 * Theme.space24 + 2 * Theme.space4
    model: editor.rows
    // A page is there at once, for reading and writing.
    opening: false

    delegate: BlockRow {
        editor: root.editor
        onCaretMoved: Qt.callLater(root.reveal)
        onDeparted: direction => root.step(index, direction)
        onKeyPressed: event => root.handleKey(this, event)
        onTabbed: forward => root.tabFrom(this, forward)
        onToneMenuRequested: from => root.openToneMenu(this, from)
    }
    footer: BlockListFooter {
        columnWidth: root.columnWidth
        columnX: root.columnX
        hasButton: !root.editor.isZen
        width: root.width
        onAddRequested: root.editor.appendBlock()
        onLeftBackwards: root.count > 0 ? root.show(root.count - 1).part.focusByTab(false) : root.exitBackwards()
    }

    Keys.onEscapePressed: event => {
        event.accepted = drag.row !== null
        drag.row = null
    }

    BlockDrag {
        id: drag
        editor: root.editor
        list: root
        parent: root
    }

    BlockChrome {
        id: chrome
        parent: root.contentItem
        z: 2
        row: drag.row ?? (root.menuOpen ? (menu.item as BlockMenu).row : root.caret.typing ? null : root.hoveredRow)
        x: root.columnX - width - Theme.space4
        onDragged: sceneY => drag.move(chrome.shownRow, sceneY)
        onDropped: drag.drop()
        onInsertRequested: root.editor.insertBlock(chrome.shownRow.blockID)
        onMenuRequested: from => root.openMenu(chrome.shownRow, from)
    }

    // What lies beside and below the blocks.
    MouseArea {
        height: root.height
        parent: root.contentItem
        width: root.width
        y: root.contentY
        z: -1
        onClicked: mouse => root.focusBeside(mouse.x, mouse.y)
    }

    HoverHandler {
        id: pointer

        // What moves below a pointer at rest is no move of the pointer.
        readonly property real pointerX: point.scenePosition.x
        readonly property real pointerY: point.scenePosition.y

        parent: root
        onPointerXChanged: root.caret.typing = false
        onPointerYChanged: root.caret.typing = false
    }

    onMenuRequested: row => openMenu(row, row)

    Connections {
        target: root.editor
        function onFocusRequested(row, caret) {
            root.focusBlock(row, caret)
        }
        function onSlashTypesChanged() {
            if (root.editor.slashTypes.length > 0)
                slash.active = true
        }
    }

    TapHandler {
        acceptedButtons: Qt.RightButton
        gesturePolicy: TapHandler.WithinBounds
        parent: root
        onTapped: eventPoint => root.openTextMenu(eventPoint.position.x, eventPoint.position.y)
    }

    // The menus are made when they are first asked for.
    // qmllint disable unqualified
    Loader {
        id: menu
        active: false
        sourceComponent: BlockMenu { editor: root.editor }
    }

    Loader {
        id: tones
        active: false
        sourceComponent: ChoiceMenu {
            property BlockRow row

            current: row?.tone ?? -1
            symbols: root.editor.toneSymbols
            texts: root.editor.toneLabels
            onChosen: tone => root.editor.setTone(row.blockID, tone)
        }
    }

    Loader {
        id: textMenu
        active: false
        sourceComponent: BlockTextMenu {
            target: root.menuField
            // Its text may go before the next one is asked for.
            onClosed: Qt.callLater(() => textMenu.active = false)
        }
    }

    Loader {
        id: slash
        active: false
        sourceComponent: SlashMenu {
            column: root.columnX
            editor: root.editor
            row: root.currentItem as BlockRow
            visible: root.editor.slashTypes.length > 0
        }
    }
    // qmllint enable unqualified
}
