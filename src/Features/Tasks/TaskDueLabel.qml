import QtQuick
import Orvel.DesignSystem

/// When a task is due. It opens a picker to change that, also for a task that is not due at all.
OVPressable {
    id: label

    required property date due
    required property bool isOverdue
    readonly property OVPopup popup: loader.item as OVPopup

    signal picked(moment: date)
    signal cleared()

    function open() {
        loader.active = true
        popup.open()
    }

    activeFocusOnTab: false
    focusPolicy: Qt.NoFocus
    horizontalPadding: text === "" ? 0 : Theme.space4
    implicitHeight: Theme.chipHeight
    radius: Theme.cornerMark
    onClicked: open()

    contentItem: OVText {
        color: label.isOverdue ? Theme.ovDanger : Theme.ovInkTertiary
        role: OVText.Caption
        text: label.text
        Accessible.ignored: true
    }

    Loader {
        id: loader
        active: false

        sourceComponent: OVPopup {
            parent: label
            x: label.width - width
            y: label.height + Theme.space4
            focus: true

            onOpened: picker.forceActiveFocus(Qt.PopupFocusReason)

            contentItem: OVDatePicker {
                id: picker
                clearable: label.text !== ""
                showsToday: true
                value: label.due
                onChosen: moment => {
                    label.picked(moment)
                    label.popup.close()
                }
                onCleared: {
                    label.cleared()
                    label.popup.close()
                }
            }
        }
    }
}
