pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import Orvel.DesignSystem

GallerySection {
    id: section

    property int chosenSwatch: 0

    title: "Choices"

    Flow {
        Layout.fillWidth: true
        spacing: Theme.space24

        OVSwitch { text: "Off" }
        OVSwitch { checked: true; text: "On" }
        OVSwitch { checked: true; focusReason: Qt.TabFocusReason; text: "Pressed"; down: true }
        OVSwitch { checked: true; enabled: false; text: "Disabled" }
        OVCheckBox { text: "Not yet" }
        OVCheckBox { checked: true; text: "Done" }
        OVCheckBox { checkState: Qt.PartiallyChecked; text: "Some"; tristate: true }
        OVCheckBox { checked: true; enabled: false; text: "Disabled" }
    }

    OVSwitch {
        Layout.fillWidth: true
        Layout.maximumWidth: Theme.readingWidth
        checked: true
        detail: "Warm paper, high contrast, serif and no motion."
        indicatorTrailing: true
        text: "E-ink display mode"
    }

    Flow {
        Layout.fillWidth: true
        spacing: Theme.space16

        OVSegmentedControl { currentIndex: 1; model: ["low", "medium", "high"]; Accessible.name: "Priority"; onActivated: index => currentIndex = index }
        OVSegmentedControl { enabled: false; model: ["Month", "Week", "Day", "Agenda"]; Accessible.name: "View" }
        OVComboBox { currentIndex: 1; model: ["Page", "Note", "Task"]; Accessible.name: "Kind" }
        OVComboBox { currentIndex: -1; model: ["Page"]; placeholderText: "Choose a kind"; Accessible.name: placeholderText }
        OVComboBox { enabled: false; model: ["Disabled"]; Accessible.name: "Disabled" }
        OVSlider { value: 0.4; Accessible.name: "Volume" }
        OVSlider { enabled: false; value: 0.7; Accessible.name: "Disabled" }
    }

    Flow {
        Layout.fillWidth: true
        spacing: Theme.space8

        Repeater {
            model: ["#2E6BE6", "#7C5CFC", "#0F9B8E", "#2E9E5B", "#C07A10", "#D6336C"]

            OVColorSwatch {
                required property int index
                required property string modelData

                chosen: section.chosenSwatch === index
                color: modelData
                text: modelData
                onClicked: section.chosenSwatch = index
            }
        }
    }
}
