import QtQuick
import Orvel.Calendar
import Orvel.DesignSystem

/// The frame of the calendar: rows of a day or the agenda, and a note at the end.
ScreenList {
    id: list

    required property CalendarViewModel viewModel

    keys.stopsAt: row => viewModel.isItem(row)
    maximumWidth: Theme.gridWidth
    model: viewModel.rows
    screen: "calendar"

    footer: Item {
        height: note.height + Theme.space24
        width: list.width

        OVText {
            id: note
            color: Theme.ovInkSecondary
            horizontalAlignment: Text.AlignHCenter
            role: OVText.Caption
            text: qsTr("Tasks with due dates appear automatically. Manage them on the Tasks page.")
            topPadding: Theme.space12
            width: list.columnWidth
            wrapMode: Text.Wrap
            x: list.columnX
        }
    }
}
