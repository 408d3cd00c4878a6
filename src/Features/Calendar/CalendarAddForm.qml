import QtQuick
import Orvel.Calendar
import Orvel.DesignSystem
import Orvel.Session

/// The form for a new event on the selected day.
ScreenAddForm {
    id: root

    required property CalendarViewModel viewModel
    readonly property EventForm form: viewModel.form
    readonly property var kinds: form.kinds

    label: viewModel.addLabel
    placeholderText: qsTr("Event title")
    title: form.title
    onSubmitted: viewModel.addEvent()
    onTitleEdited: title => form.title = title

    Row {
        height: Theme.buttonHeight
        spacing: Theme.space8

        OVChip {
            anchors.verticalCenter: parent.verticalCenter
            checked: root.form.timeEnabled
            symbol: "clock"
            text: qsTr("Time")
            onClicked: root.form.timeEnabled = !root.form.timeEnabled
        }

        OVDateField {
            anchors.verticalCenter: parent.verticalCenter
            compact: true
            name: qsTr("Time")
            now: Orvel.now()
            showsDate: false
            showsTime: true
            value: root.form.time
            visible: root.form.timeEnabled
            onAboutToOpen: now = Orvel.now()
            onEdited: moment => root.form.time = moment
        }
    }

    Row {
        height: Theme.buttonHeight
        spacing: Theme.space8

        OVSegmentedControl {
            anchors.verticalCenter: parent.verticalCenter
            currentIndex: root.kinds.findIndex(choice => choice.raw === root.form.kind)
            model: root.kinds.map(choice => choice.label)
            Accessible.name: qsTr("Kind")
            onActivated: index => root.form.kind = root.kinds[index].raw
        }

        OVPrimaryButton {
            anchors.verticalCenter: parent.verticalCenter
            enabled: root.form.canAdd
            text: qsTr("Add")
            Accessible.name: qsTr("Add event")
            onClicked: root.submit()
        }
    }
}
