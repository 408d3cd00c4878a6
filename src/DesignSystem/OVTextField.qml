pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Orvel.DesignSystem

/// A single-line text field with an optional icon before and a clear button after the text.
T.TextField {
    id: field

    /// The product's name of an icon before the text; empty for none.
    property string symbol: ""
    /// Whether a button to empty the field shows while it holds text.
    property bool clearable: false
    property bool invalid: false
    /// Without frame, for text that is edited where it stands.
    property bool plain: false
    /// Whether the text is written into the store as it is typed, so that undo and redo are left to the
    /// application's history.
    property bool storeBacked: false
    readonly property bool visualFocus: activeFocus && (focusReason === Qt.TabFocusReason
                                        || focusReason === Qt.BacktabFocusReason
                                        || focusReason === Qt.ShortcutFocusReason)

    /// The user asks for undo or redo in a field that is `storeBacked`.
    signal undoRequested()
    signal redoRequested()

    /// Empties the field as the user would.
    function empty() {
        clear()
        textEdited()
    }

    implicitWidth: Theme.fieldWidth
    implicitHeight: plain ? contentHeight + topPadding + bottomPadding
                          : Math.max(Theme.fieldHeight, contentHeight + Theme.space8)
    leftPadding: (plain ? 0 : Theme.space12) + (symbol !== "" ? Theme.iconRow + Theme.space8 : 0)
    rightPadding: (plain ? 0 : Theme.space12) + clearButton.width
    verticalAlignment: TextInput.AlignVCenter
    selectByMouse: true
    // A long text shows its beginning until it is edited.
    autoScroll: activeFocus || (contextMenu.openMenu?.visible ?? false)
    hoverEnabled: true
    font.family: Theme.fontFamily
    font.pixelSize: Theme.sizeBody
    color: Theme.ovInk
    placeholderTextColor: Theme.ovInkTertiary
    selectionColor: Theme.selection
    selectedTextColor: Theme.ovInk
    opacity: enabled ? 1 : Theme.disabledOpacity

    Accessible.name: placeholderText
    Keys.onPressed: event => {
        if (!storeBacked || !undoKeys.handle(event))
            contextMenu.handleKey(event)
    }

    cursorDelegate: OVCaret { }

    background: OVFieldSurface {
        visible: !field.plain || field.visualFocus
        color: field.plain ? "transparent" : Theme.ovSurface
        border.width: field.plain ? 0 : Theme.lineWidth
        hovered: field.hovered && field.enabled
        active: field.activeFocus
        invalid: field.invalid
        ringVisible: field.visualFocus
    }

    OVText {
        x: field.leftPadding
        width: field.width - field.leftPadding - field.rightPadding
        height: field.height
        visible: !field.length && !field.preeditText
        text: field.placeholderText
        font: field.font
        color: field.placeholderTextColor
        horizontalAlignment: field.horizontalAlignment
        Accessible.ignored: true
    }

    OVIcon {
        x: field.plain ? 0 : Theme.space12
        anchors.verticalCenter: parent.verticalCenter
        visible: field.symbol !== ""
        symbol: field.symbol
        size: Theme.iconRow
        color: field.activeFocus ? Theme.ovInkSecondary : Theme.ovInkTertiary
    }

    OVLazyLoader {
        id: clearButton
        anchors.right: parent.right
        anchors.rightMargin: Theme.space4
        anchors.verticalCenter: parent.verticalCenter
        active: field.clearable && field.length > 0 && field.enabled
        sourceComponent: OVIconButton {
            symbol: "xmark"
            text: qsTr("Clear")
            tabStop: false
            color: Theme.ovInkTertiary
            iconSize: Theme.iconRow - 2
            onClicked: field.empty()
        }
    }

    OVContextMenuArea {
        id: contextMenu
        focusTarget: field
        menu: OVTextMenu {
            storeBacked: field.storeBacked
            target: field
            onRedoRequested: field.redoRequested()
            onUndoRequested: field.undoRequested()
        }
    }

    OVUndoKeys {
        id: undoKeys
        onRedoRequested: field.redoRequested()
        onUndoRequested: field.undoRequested()
    }
}
