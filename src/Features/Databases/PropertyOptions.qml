pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Orvel.Databases
import Orvel.DesignSystem

/// The options of a property, each in a field of its own: Alt with Up and Down moves it.
ListView {
    id: list

    required property PropertyFormViewModel form

    function focusOption(row: int) {
        positionViewAtIndex(row, ListView.Contain)
        forceLayout()
        const line = itemAtIndex(row) as PropertyOptionRow
        line?.focusField()
    }

    function move(row: int, optionID: int, places: int) {
        form.moveOption(optionID, places)
        focusOption(Math.max(0, Math.min(count - 1, row + places)))
    }

    boundsBehavior: Flickable.StopAtBounds
    clip: true
    height: Math.min(contentHeight, Math.round(280 * Theme.fontScale))
    implicitHeight: height
    keyNavigationEnabled: false
    model: form.options
    spacing: Theme.space4
    Accessible.name: qsTr("Options")
    Accessible.role: Accessible.List
    T.ScrollBar.vertical: OVScrollBar { }

    delegate: PropertyOptionRow {
        isFirst: index === 0
        isLast: index === list.count - 1
        width: list.width - Theme.space8
        onGoRequested: places => list.focusOption(Math.max(0, Math.min(list.count - 1, index + places)))
        onMoveRequested: places => list.move(index, optionID, places)
        onRemoveRequested: {
            const next = Math.min(index, list.count - 2)
            list.form.removeOption(optionID)
            list.focusOption(next)
        }
        onRenamed: text => list.form.renameOption(optionID, text)
    }
}
