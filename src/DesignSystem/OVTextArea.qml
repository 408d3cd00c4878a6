pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Orvel.DesignSystem

/// A text field of several lines, which grows with its text up to a height and then scrolls.
FocusScope {
    id: root

    property int minimumLines: 3
    /// 0 for any number; the area then grows with its text.
    property int maximumLines: 12
    /// Without frame, for text that is edited where it stands.
    property bool plain: false
    /// Whether the text is written into the store as it is typed, so that undo and redo are left to the
    /// application's history.
    property bool storeBacked: false
    property string placeholderText: ""
    property alias text: area.text
    property alias readOnly: area.readOnly
    property alias font: area.font
    property alias textFormat: area.textFormat
    property alias input: area
    readonly property int lineHeight: Math.max(Math.ceil(metrics.lineSpacing), Math.round(area.font.pixelSize * 1.5))
    readonly property int framePadding: plain ? 0 : Theme.space8
    /// The lines' spacing lies below each; half of the last one's goes above the first.
    readonly property int lead: plain ? 0 : Math.floor((lineHeight - metrics.lineSpacing) / 2)
    readonly property real contentLimit: maximumLines > 0 ? maximumLines * lineHeight : Infinity

    signal editingFinished()
    /// The user asks for undo or redo in an area that is `storeBacked`.
    signal undoRequested()
    signal redoRequested()

    function moveFocus(event: KeyEvent, forward: bool) {
        const reason = forward ? Qt.TabFocusReason : Qt.BacktabFocusReason
        area.nextItemInFocusChain(forward).forceActiveFocus(reason)
        event.accepted = true
    }

    implicitWidth: Theme.fieldWidth
    implicitHeight: Math.ceil(Math.max(minimumLines * lineHeight, Math.min(area.contentHeight, contentLimit)))
                    + 2 * framePadding
    opacity: enabled ? 1 : Theme.disabledOpacity

    FontMetrics {
        id: metrics
        font: area.font
    }

    LineSpacing {
        document: area.textDocument
        distance: root.lineHeight - Math.ceil(metrics.lineSpacing)
    }

    OVFieldSurface {
        anchors.fill: parent
        visible: !root.plain || ringVisible
        color: root.plain ? "transparent" : Theme.ovSurface
        border.width: root.plain ? 0 : Theme.lineWidth
        hovered: area.hovered && root.enabled
        active: area.activeFocus
        ringVisible: area.activeFocus && (area.focusReason === Qt.TabFocusReason
                                          || area.focusReason === Qt.BacktabFocusReason
                                          || area.focusReason === Qt.ShortcutFocusReason)
    }

    Flickable {
        id: flickable
        anchors.fill: parent
        anchors.topMargin: root.framePadding + root.lead
        anchors.bottomMargin: root.framePadding - root.lead
        boundsBehavior: Flickable.StopAtBounds
        clip: true

        T.ScrollBar.vertical: OVScrollBar { }

        T.TextArea.flickable: T.TextArea {
            id: area
            focus: true
            leftPadding: root.plain ? 0 : Theme.space12
            rightPadding: root.plain ? 0 : Theme.space12
            wrapMode: TextEdit.Wrap
            selectByMouse: true
            hoverEnabled: true
            font.family: Theme.fontFamily
            font.pixelSize: Theme.sizeBody
            color: Theme.ovInk
            selectionColor: Theme.selection
            selectedTextColor: Theme.ovInk
            cursorDelegate: OVCaret { }
            Accessible.name: root.Accessible.name || root.placeholderText
            Keys.onPressed: event => {
                if (!root.storeBacked || !undoKeys.handle(event))
                    contextMenu.handleKey(event)
            }
            Keys.onTabPressed: event => root.moveFocus(event, true)
            Keys.onBacktabPressed: event => root.moveFocus(event, false)
            onEditingFinished: root.editingFinished()
        }
    }

    OVText {
        x: area.leftPadding
        y: root.framePadding + root.lead
        width: root.width - area.leftPadding - area.rightPadding
        visible: area.length === 0 && area.preeditText === ""
        text: root.placeholderText
        font: area.font
        color: Theme.ovInkTertiary
        Accessible.ignored: true
    }

    OVContextMenuArea {
        id: contextMenu
        focusTarget: area
        menu: OVTextMenu {
            storeBacked: root.storeBacked
            target: area
            onRedoRequested: root.redoRequested()
            onUndoRequested: root.undoRequested()
        }
    }

    OVUndoKeys {
        id: undoKeys
        onRedoRequested: root.redoRequested()
        onUndoRequested: root.undoRequested()
    }
}
