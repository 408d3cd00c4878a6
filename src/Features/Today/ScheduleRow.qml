import QtQuick
import Orvel.DesignSystem
import Orvel.Session

/// What a day holds, one line of it; Return and a click go to where it comes from.
OVCardListRow {
    id: line

    required property string title
    required property string timeText
    required property bool hasTime
    required property string kindText
    required property int tone
    required property bool isTask
    required property bool isDone
    /// Whether a line without a time says so.
    property bool namesAllDay: true
    readonly property string shownTime: hasTime || namesAllDay ? timeText : ""

    Accessible.name: shownTime === "" ? qsTr("%1, %2").arg(title).arg(kindText)
                                       : qsTr("%1, %2, %3").arg(shownTime).arg(title).arg(kindText)
    onActivated: Orvel.ui.select(isTask ? "tasks" : "calendar")

    OVToneColors {
        id: colors
        tone: line.tone
    }

    TextMetrics {
        id: widestTime
        font: time.font
        text: line.timeText === "" ? "" : qsTr("All-day")
    }

    OVText {
        id: time
        anchors.verticalCenter: parent.verticalCenter
        color: Theme.ovInkSecondary
        role: OVText.Caption
        text: line.shownTime
        width: Math.ceil(widestTime.advanceWidth) + Theme.space4
        Accessible.ignored: true
    }

    Rectangle {
        id: bar
        anchors.left: time.right
        anchors.leftMargin: Theme.space8
        anchors.verticalCenter: parent.verticalCenter
        color: line.tone === OVBadge.Neutral ? Theme.ovBorderStrong : colors.tint
        height: parent.height - Theme.space16
        radius: width / 2
        width: 3
    }

    OVText {
        anchors.left: bar.right
        anchors.leftMargin: Theme.space12
        anchors.right: kind.left
        anchors.rightMargin: Theme.space12
        anchors.verticalCenter: parent.verticalCenter
        color: line.isDone ? Theme.ovInkTertiary : Theme.ovInk
        font.strikeout: line.isDone
        text: line.title
        Accessible.ignored: true
    }

    OVBadge {
        id: kind
        anchors.right: parent.right
        anchors.verticalCenter: parent.verticalCenter
        // As on the calendar.
        capitalization: Font.Capitalize
        text: line.kindText
        tone: line.tone
        Accessible.ignored: true
    }
}
