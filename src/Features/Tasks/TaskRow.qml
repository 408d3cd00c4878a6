pragma ComponentBehavior: Bound

import QtQuick
import Orvel.DesignSystem
import Orvel.Session
import Orvel.Tasks

/// One task in the list.
ScreenListRow {
    id: row

    required property var taskID
    required property string title
    required property var status
    required property bool isDone
    required property date due
    required property string dueText
    required property bool isOverdue
    required property var priority
    required property bool isFirst
    required property bool isLast
    /// Whether the status goes straight to done and back, rather than round all statuses.
    property bool togglesDone: false

    readonly property bool editing: titleItem.editing
    readonly property bool actionsShown: hovered || activeFocus || (contextMenu.openMenu?.visible ?? false)
                                         || (dueLabel.popup?.visible ?? false)

    /// Removes the task; the focus goes to its neighbour.
    function remove() {
        if (focus && list.count === 1)
            list.exitBackwards()
        else if (focus)
            list.keys.focus(index + 1 < list.count ? index + 1 : index - 1,
                            list.keys.ringShown ? Qt.TabFocusReason : Qt.MouseFocusReason)
        TaskActions.remove(taskID)
    }

    function changeStatus() {
        if (togglesDone)
            TaskActions.toggleDone(taskID)
        else
            TaskActions.cycleStatus(taskID)
    }

    /// Does what the key stands for; false for any other key.
    function act(key: int): bool {
        switch (key) {
        case Qt.Key_Space:
            changeStatus()
            return true
        case Qt.Key_Return:
        case Qt.Key_Enter:
        case Qt.Key_F2:
            titleItem.edit()
            return true
        case Qt.Key_P:
            TaskActions.cyclePriority(taskID)
            return true
        case Qt.Key_D:
            dueLabel.open()
            return true
        case Qt.Key_Delete:
        case Qt.Key_Backspace:
            remove()
            return true
        }
        return false
    }

    rowHeight: Theme.fieldHeight + Theme.space12
    Accessible.name: dueText === "" ? title : title + ", " + dueText
    Accessible.focusable: true
    Accessible.role: Accessible.ListItem
    Accessible.onPressAction: titleItem.edit()
    Accessible.onToggleAction: changeStatus()

    onFocusChanged: {
        if (!focus)
            titleItem.editing = false
    }
    ListView.onPooled: mark.moves = false
    ListView.onReused: mark.moves = true

    Keys.onPressed: event => {
        const plain = !(event.modifiers & (Qt.ControlModifier | Qt.AltModifier | Qt.MetaModifier))
        event.accepted = plain && (list.keys.press(event.key) || (!editing && act(event.key)))
        if (!event.accepted && !editing)
            contextMenu.handleKey(event)
    }

    OVCardSlice {
        anchors.fill: parent
        dividerLeft: titleItem.x
        dividerRight: Theme.space16
        isFirst: row.isFirst
        isLast: row.isLast
    }

    HoverWash {
        anchors.margins: Theme.space4
        hovered: row.actionsShown
    }

    OVLazyLoader {
        active: row.visualFocus && !row.editing
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
        menu: TaskMenu {
            hasDue: row.dueText !== ""
            priority: row.priority.raw
            status: row.status.raw
            taskID: row.taskID
            onDeleteRequested: row.remove()
            onDueRequested: dueLabel.open()
            onEditRequested: titleItem.edit()
        }
    }

    OVPressable {
        id: statusButton
        tabStop: false
        anchors.verticalCenter: parent.verticalCenter
        height: Theme.iconButtonSize
        pressedScale: 0.9
        radius: height / 2
        toolTip: row.status.label
        width: height
        x: Theme.space12
        Accessible.name: qsTr("Status: %1, %2").arg(row.status.label).arg(row.title)
        onClicked: row.changeStatus()

        contentItem: Item {
            TaskStatusMark {
                id: mark
                anchors.centerIn: parent
                isDone: row.isDone
                symbol: row.status.symbol
                tone: row.status.tone
            }
        }
    }

    TaskTitle {
        id: titleItem
        anchors.left: statusButton.right
        anchors.leftMargin: Theme.space8
        anchors.right: trailing.left
        anchors.rightMargin: Theme.space16
        height: parent.height
        isDone: row.isDone
        title: row.title
        onEdited: title => TaskActions.rename(row.taskID, title)
        onFinished: {
            editing = false
            row.list.keys.focus(row.index, Qt.TabFocusReason)
        }
        onPointed: row.list.keys.ringShown = false
    }

    Row {
        id: trailing
        anchors.right: parent.right
        anchors.rightMargin: Theme.space8
        height: parent.height
        spacing: Theme.space8

        TaskDueLabel {
            id: dueLabel
            anchors.verticalCenter: parent.verticalCenter
            byKeyboard: row.list.keys.ringShown
            due: row.due
            isOverdue: row.isOverdue
            text: row.dueText
            Accessible.name: row.dueText === "" ? qsTr("No due date, %1").arg(row.title)
                                                : qsTr("Due: %1, %2").arg(row.dueText).arg(row.title)
            onCleared: TaskActions.clearDue(row.taskID)
            onPicked: moment => TaskActions.setDue(row.taskID, moment)
        }

        OVPressable {
            tabStop: false
            anchors.verticalCenter: parent.verticalCenter
            radius: Theme.cornerMark
            toolTip: qsTr("Priority")
            washed: false
            Accessible.name: qsTr("Priority: %1, %2").arg(row.priority.raw).arg(row.title)
            onClicked: TaskActions.cyclePriority(row.taskID)

            contentItem: OVBadge {
                text: row.priority.raw
                tone: row.priority.tone
                Accessible.ignored: true
            }
        }

        OVLazyLoader {
            active: row.actionsShown
            anchors.verticalCenter: parent.verticalCenter
            height: Theme.iconButtonSize
            width: Theme.iconButtonSize

            sourceComponent: OVIconButton {
                iconSize: Theme.iconRow
                symbol: "xmark"
                tabStop: false
                text: qsTr("Delete")
                Accessible.name: qsTr("Delete: %1").arg(row.title)
                onClicked: row.remove()

                NumberAnimation on opacity { from: 0; to: 1; duration: Theme.durationHover }
            }
        }
    }
}
