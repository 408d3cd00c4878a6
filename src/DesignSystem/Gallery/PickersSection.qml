import QtQuick
import QtQuick.Layouts
import Orvel.DesignSystem

GallerySection {
    id: section

    property date moment: new Date(2026, 10, 18, 14, 30)
    readonly property date today: new Date(2026, 10, 22, 9, 0)

    title: "Pickers"

    Flow {
        Layout.fillWidth: true
        spacing: Theme.space12

        OVDateField { now: section.today; name: "Due"; value: section.moment; onEdited: moment => section.moment = moment }
        OVDateField { now: section.today; clearable: true; showsTime: true; value: section.moment; onEdited: moment => section.moment = moment }
        OVDateField { now: section.today; placeholderText: "No date" }
        OVDateField { now: section.today; enabled: false; value: section.moment }
        OVDateField { now: section.today; compact: true; placeholderText: "Due date" }
        OVDateField { now: section.today; compact: true; value: section.moment; onEdited: moment => section.moment = moment }
        OVDateField { now: section.today; compact: true; showsDate: false; showsTime: true; value: section.moment; onEdited: moment => section.moment = moment }
    }

    Flow {
        Layout.fillWidth: true
        spacing: Theme.space32

        OVDatePicker {
            clearable: true
            now: section.today
            showsToday: true
            value: section.moment
            onChosen: moment => section.moment = moment
        }

        OVTimePicker {
            value: section.moment
            onEdited: moment => section.moment = moment
        }
    }
}
