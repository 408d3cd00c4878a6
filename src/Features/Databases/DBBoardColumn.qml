pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Orvel.Databases
import Orvel.DesignSystem

/// The records of a board that share a value, as cards below each other.
Item {
    id: root

    required property int index
    required property string label
    required property int count
    required property int tone
    required property var cards
    required property RecordsViewModel records
    required property RecordKeys keys
    required property var shownColumns
    /// The card that has the cursor; -1 for none in this column.
    required property int currentPlace

    signal pointed(place: int, column: int)
    signal finished(key: int)
    signal addRequested()

    function cardAt(place: int): DBRecordCard {
        list.forceLayout()
        list.positionViewAtIndex(place, ListView.Contain)
        return list.itemAtIndex(place) as DBRecordCard
    }

    Accessible.name: qsTr("%1, %2").arg(label).arg(count)
    Accessible.role: Accessible.Grouping

    Item {
        id: head
        height: Theme.rowHeight
        width: parent.width

        OVBadge {
            anchors.verticalCenter: parent.verticalCenter
            text: DisplayText.shown(root.label)
            tone: root.tone
            width: Math.min(implicitWidth, parent.width - number.width - Theme.space16)
            x: Theme.space4

            OVText {
                id: number
                anchors.left: parent.right
                anchors.leftMargin: Theme.space8
                anchors.verticalCenter: parent.verticalCenter
                role: OVText.Caption
                text: root.count
            }
        }
    }

    ListView {
        id: list
        anchors.bottom: addButton.top
        anchors.bottomMargin: Theme.space4
        anchors.top: head.bottom
        anchors.topMargin: Theme.space4
        boundsBehavior: Flickable.StopAtBounds
        cacheBuffer: 0
        clip: true
        keyNavigationEnabled: false
        model: root.cards
        spacing: Theme.space8
        width: parent.width
        T.ScrollBar.vertical: OVScrollBar { }

        delegate: DBRecordCard {
            required property int index

            isCurrent: index === root.currentPlace
            keys: root.keys
            records: root.records
            shownColumns: root.shownColumns
            width: ListView.view.width
            onFinished: key => root.finished(key)
            onPointed: column => root.pointed(index, column)
        }
    }

    OVPressable {
        id: addButton
        anchors.bottom: parent.bottom
        height: Theme.rowHeight
        text: qsTr("New record in %1").arg(root.label)
        toolTip: text
        width: parent.width
        tabStop: false
        onClicked: root.addRequested()

        contentItem: Item {
            OVIcon {
                anchors.centerIn: parent
                symbol: "plus"
            }
        }
    }
}
