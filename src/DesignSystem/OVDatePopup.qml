import QtQuick
import Orvel.DesignSystem

/// The pickers of a moment in a popup below its parent. It never changes `value` itself.
OVPopup {
    id: popup

    /// An invalid date while nothing is chosen.
    property date value
    /// The present moment, which marks today.
    required property date now
    property bool showsDate: true
    property bool showsTime: false
    /// Whether the value can be taken away.
    property bool clearable: false
    /// Whether the keyboard opened it, so that its place shows at once.
    property bool byKeyboard: false

    /// The user chose this moment.
    signal edited(moment: date)
    /// The user took the value away.
    signal cleared()

    name: showsDate ? qsTr("Choose a date") : qsTr("Choose a time")
    y: (parent?.height ?? 0) + Theme.space4
    focus: true

    onAboutToShow: {
        if (showsDate)
            datePicker.focusFirst()
        else
            timePicker.focusFirst()
    }

    contentItem: Column {
        spacing: Theme.space12

        OVDatePicker {
            id: datePicker
            visible: popup.showsDate
            value: popup.value
            now: popup.now
            showsToday: true
            clearable: popup.clearable
            ringVisible: popup.byKeyboard
            onChosen: moment => {
                popup.edited(moment)
                if (!popup.showsTime)
                    popup.close()
            }
            onCleared: {
                popup.cleared()
                popup.close()
            }
        }

        Rectangle {
            visible: popup.showsDate && popup.showsTime
            width: parent.width
            height: Theme.lineWidth
            color: Theme.ovBorder
        }

        OVTimePicker {
            id: timePicker
            anchors.horizontalCenter: parent.horizontalCenter
            visible: popup.showsTime
            enabled: !popup.showsDate || !isNaN(popup.value)
            value: isNaN(popup.value) ? popup.now : popup.value
            onEdited: moment => popup.edited(moment)
            onAccepted: popup.close()
        }
    }
}
