import QtQuick
import QtQuick.Templates as T
import Orvel.DesignSystem

/// Hours and minutes, changed by arrow keys, typed digits, the wheel or the arrows above and below.
T.Control {
    id: picker

    /// The moment whose time of day is edited.
    property date value

    signal edited(moment: date)
    /// Return was pressed.
    signal accepted()

    /// Makes the hours what a popup around the picker focuses.
    function focusFirst() {
        hours.focus = true
    }

    implicitWidth: implicitContentWidth + leftPadding + rightPadding
    implicitHeight: implicitContentHeight + topPadding + bottomPadding

    ClockTime {
        id: clock
        value: picker.value
        onEdited: value => picker.edited(value)
    }

    contentItem: Row {
        spacing: Theme.space4

        OVTimePart {
            id: hours
            objectName: "hours"
            clock: clock
            part: ClockTime.Hours
            text: clock.hourText
            name: qsTr("Hours")
            focus: true
            onFinished: minutes.forceActiveFocus(Qt.TabFocusReason)
            onAccepted: picker.accepted()
            Keys.onRightPressed: minutes.forceActiveFocus(Qt.TabFocusReason)
        }

        OVText {
            anchors.verticalCenter: parent.verticalCenter
            text: ":"
            role: OVText.CardTitle
            color: Theme.ovInkTertiary
        }

        OVTimePart {
            id: minutes
            clock: clock
            part: ClockTime.Minutes
            text: clock.minuteText
            name: qsTr("Minutes")
            onAccepted: picker.accepted()
            Keys.onLeftPressed: hours.forceActiveFocus(Qt.BacktabFocusReason)
        }
    }
}
