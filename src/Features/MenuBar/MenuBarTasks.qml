pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Orvel.DesignSystem
import Orvel.MenuBar

/// The tasks that are due today, each with a button that ticks it off. One stop for Tab.
Column {
    id: root

    required property MenuBarViewModel viewModel

    spacing: Theme.space4

    OVText {
        color: Theme.ovInkSecondary
        role: OVText.Section
        text: qsTr("DUE TODAY")
        width: parent.width
        Accessible.role: Accessible.Heading
    }

    ListView {
        id: list

        readonly property ListFocus keys: ListFocus {
            view: list
        }

        boundsBehavior: Flickable.StopAtBounds
        clip: contentHeight > height
        currentIndex: 0
        height: Math.min(contentHeight, 5 * Theme.rowHeight)
        highlightFollowsCurrentItem: false
        keyNavigationEnabled: false
        model: root.viewModel.tasks
        width: parent.width
        Accessible.name: qsTr("Due today")
        Accessible.role: Accessible.List
        Keys.onPressed: event => event.accepted = keys.press(event.key)
        onCountChanged: {
            if (activeFocus && count > 0)
                keys.focus(currentIndex)
        }
        T.ScrollBar.vertical: OVScrollBar { }

        delegate: OVPressable {
            id: row

            required property int index
            required property var taskID
            required property string title

            implicitHeight: Theme.rowHeight
            leftPadding: Theme.space4
            pressedScale: 1
            rightPadding: Theme.space8
            tabStop: ListView.isCurrentItem || activeFocus
            text: title
            toolTip: ""
            width: list.width
            Accessible.name: qsTr("Complete %1").arg(title)
            OVAccessible.role: Accessible.CheckBox
            onClicked: {
                list.currentIndex = index
                root.viewModel.finishTask(taskID)
            }

            contentItem: Row {
                spacing: Theme.space8

                OVIcon {
                    id: mark

                    anchors.verticalCenter: parent.verticalCenter
                    color: row.hovered ? Theme.ovInk : Theme.ovInkSecondary
                    size: Theme.iconButton
                    symbol: row.hovered || row.visualFocus ? "checkmark.circle" : "circle"
                }

                OVText {
                    anchors.verticalCenter: parent.verticalCenter
                    maximumLineCount: 1
                    role: OVText.Dense
                    text: row.title
                    width: parent.width - mark.width - parent.spacing
                    Accessible.ignored: true
                }
            }
        }
    }
}
