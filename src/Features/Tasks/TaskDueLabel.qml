pragma ComponentBehavior: Bound

import QtQuick
import Orvel.DesignSystem
import Orvel.Session

/// When a task is due. It opens a picker to change that, also for a task that is not due at all.
OVPressable {
    id: label

    required property date due
    required property bool isOverdue
    /// Whether the keyboard works the row, so that the place in the picker shows at once.
    required property bool byKeyboard
    property date now: Orvel.now()
    readonly property OVPopup popup: loader.item as OVPopup

    signal picked(moment: date)
    signal cleared()

    function open() {
        now = Orvel.now()
        loader.load()
        popup.open()
    }

    tabStop: false
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

    OVLazyLoader {
        id: loader

        sourceComponent: OVDatePopup {
            parent: label
            x: label.width - width
            byKeyboard: label.byKeyboard
            clearable: label.text !== ""
            now: label.now
            showsTime: true
            value: label.due
            onCleared: label.cleared()
            onEdited: moment => label.picked(moment)
        }
    }
}
