import QtQuick
import Orvel.Pages

/// The menus of a list of blocks, which are made when they are first asked for. It lies over the list and takes
/// clicks with the right button.
Item {
    id: root

    required property BlockKeys list
    readonly property PageEditorViewModel editor: list.editor
    /// The text whose menu is or was open.
    property BlockField menuField: null
    readonly property bool menuOpen: (menu.item as BlockMenu)?.visible ?? false
    readonly property BlockRow menuRow: (menu.item as BlockMenu)?.row ?? null

    /// Opens the menu of a block; by keys from the row itself, with the word that the caret is in.
    function openMenu(row: var, from: Item) {
        const field = row.part.input as BlockField
        const isInText = from === row && field?.activeFocus && !list.selection.active
        spelled.look(isInText ? field : null, field?.cursorPosition ?? 0, () => {
            menu.active = true;
            (menu.item as BlockMenu).openFor(row, from)
        })
    }

    /// Opens the menu of what is at this point: of the selected blocks or of a text.
    function openAt(x: real, y: real) {
        const row = list.rowAt(list.indexAt(list.width / 2, y + list.contentY))
        if (!row || !list.selection.includes(row.index)) {
            openTextMenu(row, x, y)
            return
        }
        pointMark.x = x
        pointMark.y = y
        openMenu(row, pointMark)
    }

    function openTextMenu(row: var, x: real, y: real) {
        const field = row?.part.input as BlockField
        const place = field?.mapFromItem(root, x, y)
        if (!field?.contains(place))
            return
        field.forceActiveFocus(Qt.MouseFocusReason)
        menuField = field
        const position = field.positionAt(place.x, place.y)
        spelled.look(field, position, () => {
            textMenu.active = true
            const shown = textMenu.item as BlockTextMenu
            shown.link = editor.linkIn(field.text, position)
            shown.popup(field, place.x, place.y)
        })
    }

    function openToneMenu(row: var, from: Item) {
        tones.active = true
        const toneMenu = tones.item as ChoiceMenu
        toneMenu.row = row
        toneMenu.openBeside(from, 0, 0, from.height)
    }

    TapHandler {
        acceptedButtons: Qt.RightButton
        gesturePolicy: TapHandler.WithinBounds
        onTapped: eventPoint => root.openAt(eventPoint.position.x, eventPoint.position.y)
    }

    SpelledWord { id: spelled }

    // Goes with the page, as a call for later would not.
    Timer {
        id: textMenuEnd
        interval: 0
        onTriggered: textMenu.active = (textMenu.item as BlockTextMenu)?.visible ?? false
    }

    // Where a menu was asked for with the mouse.
    Item { id: pointMark }

    Connections {
        target: root.editor
        function onSlashTypesChanged() {
            if (root.editor.slashTypes.length > 0)
                slash.active = true
        }
    }

    // A Loader of this Qt version cannot make a bound component.
    // qmllint disable unqualified
    Loader {
        id: menu
        active: false
        sourceComponent: BlockMenu {
            editor: root.editor
            word: spelled
        }
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
            word: spelled
            // Its text may go before the next one is asked for.
            onClosed: textMenuEnd.start()
        }
    }

    Loader {
        id: slash
        active: false
        sourceComponent: SlashMenu {
            column: root.list.columnX
            editor: root.editor
            row: root.list.currentItem as BlockRow
            visible: root.editor.slashTypes.length > 0
        }
    }
    // qmllint enable unqualified
}
