import QtQuick
import Orvel.DesignSystem

/// The date over the items of a day in the agenda. The focus does not stop here.
ScreenListRow {
    id: row

    required property string dateText
    required property bool isToday

    rowHeight: Theme.space16 + Theme.rowHeight

    OVText {
        id: label
        anchors.bottom: parent.bottom
        height: Theme.rowHeight
        color: row.isToday ? Theme.ovInk : Theme.ovInkSecondary
        role: OVText.Section
        text: row.dateText
        Accessible.role: Accessible.Heading
    }

    OVBadge {
        anchors.left: label.right
        anchors.leftMargin: Theme.space8
        anchors.verticalCenter: label.verticalCenter
        text: qsTr("Today")
        tone: OVBadge.Info
        visible: row.isToday
    }
}
