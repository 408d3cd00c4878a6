import QtQuick
import Orvel.DesignSystem
import Orvel.Session

/// A task as one line of a card: its mark completes it, Return and a click go to the tasks.
OVCardListRow {
    id: line

    required property var taskID
    required property string title
    required property var status
    required property var priority
    required property bool isDone
    /// The mark of an open task.
    property string openSymbol: status.symbol

    function toggle() {
        if (!isDone)
            stepAside()
        TaskActions.toggleDone(taskID)
    }

    Accessible.checkable: true
    Accessible.checked: isDone
    Accessible.name: qsTr("%1, priority %2").arg(title).arg(priority.raw)
    Accessible.onToggleAction: toggle()
    Keys.onSpacePressed: toggle()
    onActivated: Orvel.ui.select("tasks")

    OVPressable {
        id: mark
        anchors.verticalCenter: parent.verticalCenter
        height: Theme.iconButtonSize
        pressedScale: 0.9
        radius: height / 2
        tabStop: false
        toolTip: qsTr("Complete")
        width: height
        x: (Theme.iconButton - width) / 2
        Accessible.name: qsTr("Complete: %1").arg(line.title)
        onClicked: line.toggle()

        contentItem: Item {
            TaskStatusMark {
                anchors.centerIn: parent
                isDone: line.isDone
                symbol: line.openSymbol
                tone: line.status.tone
            }
        }
    }

    OVText {
        anchors.left: mark.right
        anchors.leftMargin: Theme.space4
        anchors.right: dot.left
        anchors.rightMargin: Theme.space12
        anchors.verticalCenter: parent.verticalCenter
        color: line.isDone ? Theme.ovInkTertiary : Theme.ovInk
        font.strikeout: line.isDone
        text: DisplayText.shown(line.title)
        Accessible.ignored: true
    }

    PriorityDot {
        id: dot
        anchors.right: parent.right
        anchors.verticalCenter: parent.verticalCenter
        priority: line.priority
    }
}
