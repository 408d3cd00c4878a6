pragma ComponentBehavior: Bound

import QtQuick
import Orvel.DesignSystem

/// An event or a task of a day. Delete takes an event away, Return goes to a task.
ScreenListRow {
    id: row

    required property string title
    required property string notes
    required property string timeText
    required property string kindLabel
    required property int tone
    required property bool isDone
    required property bool isEvent
    required property var eventID
    required property bool isFirst
    required property bool isLast
    readonly property bool actionsShown: hovered || activeFocus || (contextMenu.openMenu?.visible ?? false)

    signal deleteRequested()
    signal taskRequested()
    signal addRequested()

    /// Does what the key stands for; false for any other key. Keys that lead to other days are not for a row.
    function act(key: int): bool {
        switch (key) {
        case Qt.Key_Up:
        case Qt.Key_Down:
        case Qt.Key_End:
            return list.keys.press(key)
        case Qt.Key_Return:
        case Qt.Key_Enter:
            isEvent ? addRequested() : taskRequested()
            return true
        case Qt.Key_Delete:
        case Qt.Key_Backspace:
            if (isEvent)
                deleteRequested()
            return isEvent
        }
        return false
    }

    rowHeight: Math.max(Theme.fieldHeight, texts.height) + Theme.space12
    Accessible.focusable: true
    Accessible.name: timeText === "" ? qsTr("%1, %2").arg(title).arg(kindLabel)
                                     : qsTr("%1, %2, %3").arg(timeText).arg(title).arg(kindLabel)
    Accessible.role: Accessible.ListItem

    Keys.onPressed: event => {
        const plain = !(event.modifiers & (Qt.ControlModifier | Qt.AltModifier | Qt.MetaModifier))
        event.accepted = plain && act(event.key)
        if (!event.accepted)
            contextMenu.handleKey(event)
    }

    OVCardSlice {
        anchors.fill: parent
        dividerLeft: texts.x
        dividerRight: Theme.space16
        isFirst: row.isFirst
        isLast: row.isLast
    }

    HoverWash {
        anchors.margins: Theme.space4
        hovered: row.actionsShown
    }

    OVLazyLoader {
        active: row.visualFocus
        anchors.fill: parent
        anchors.margins: Theme.space4
        z: 1

        sourceComponent: OVFocusRing {
            anchors.margins: 0
            shown: true
        }
    }

    OVContextMenuArea {
        id: contextMenu
        menu: OVMenu {
            OVMenuItem {
                enabled: !row.isEvent
                shortcutText: qsTr("Return")
                symbol: "checkmark.square"
                text: qsTr("Show in Tasks")
                onTriggered: row.taskRequested()
            }

            OVMenuSeparator { }

            OVMenuItem {
                destructive: true
                enabled: row.isEvent
                shortcutText: qsTr("Del")
                symbol: "trash"
                text: qsTr("Delete")
                onTriggered: row.deleteRequested()
            }
        }
    }

    OVText {
        id: timeLabel
        anchors.verticalCenter: parent.verticalCenter
        color: Theme.ovInkSecondary
        // Not every font has digits of one width.
        elide: Text.ElideNone
        role: OVText.Dense
        text: row.timeText
        width: Math.ceil(widest.advanceWidth)
        x: Theme.space16
        Accessible.ignored: true

        TextMetrics {
            id: widest
            font: timeLabel.font
            text: "00:00"
        }
    }

    Column {
        id: texts
        anchors.left: timeLabel.right
        anchors.leftMargin: Theme.space12
        anchors.right: trailing.left
        anchors.rightMargin: Theme.space16
        anchors.verticalCenter: parent.verticalCenter

        OVText {
            color: row.isDone ? Theme.ovInkTertiary : Theme.ovInk
            font.strikeout: row.isDone
            text: row.title
            width: parent.width
            Accessible.ignored: true
        }

        OVLazyLoader {
            active: row.notes !== ""
            width: parent.width

            sourceComponent: OVText {
                color: Theme.ovInkSecondary
                role: OVText.Caption
                text: row.notes
            }
        }
    }

    Row {
        id: trailing
        anchors.right: parent.right
        anchors.rightMargin: Theme.space12
        anchors.verticalCenter: parent.verticalCenter
        spacing: Theme.space8

        OVBadge {
            anchors.verticalCenter: parent.verticalCenter
            text: row.kindLabel
            tone: row.tone
            Accessible.ignored: true
        }

        Item {
            height: Theme.iconButtonSize
            width: Theme.iconButtonSize

            OVLazyLoader {
                active: row.isEvent && row.actionsShown
                anchors.fill: parent

                sourceComponent: OVIconButton {
                    iconSize: Theme.iconRow
                    symbol: "trash"
                    tabStop: false
                    text: qsTr("Delete")
                    Accessible.name: qsTr("Delete: %1").arg(row.title)
                    onClicked: row.deleteRequested()

                    NumberAnimation on opacity { from: 0; to: 1; duration: Theme.durationHover }
                }
            }
        }
    }
}
