import QtQuick
import QtQuick.Layouts
import Orvel.DesignSystem

GallerySection {
    title: "Fields"

    Flow {
        Layout.fillWidth: true
        spacing: Theme.space16

        OVTextField { placeholderText: "New task" }
        OVTextField { text: "Write the quarterly letter"; Accessible.name: "Title" }
        OVTextField { text: "A text that is far too long for its field and goes on"; Accessible.name: "Title" }
        OVTextField { enabled: false; text: "Disabled"; Accessible.name: "Disabled" }
        OVTextField { text: "Edited where it stands"; plain: true; Accessible.name: "Title" }
        OVSearchField { text: "tea" }
        OVSearchField { }
        OVFieldSurface { active: true; height: Theme.fieldHeight; width: Theme.fieldWidth }
        OVFieldSurface { active: true; height: Theme.fieldHeight; ringVisible: true; width: Theme.fieldWidth }
    }

    Flow {
        Layout.fillWidth: true
        spacing: Theme.space16

        OVField { hint: "Shown at the top of the sidebar."; label: "Workspace name"; placeholderText: "My Workspace" }
        OVField { error: "This is no web address."; label: "Address"; text: "nowhere" }
        OVField { enabled: false; label: "Your name"; text: "Zoë" }
    }

    Flow {
        Layout.fillWidth: true
        spacing: Theme.space16

        OVTextArea { placeholderText: "Notes" }
        OVTextArea { maximumLines: 4; text: "One\nTwo\nThree\nFour\nFive\nSix"; Accessible.name: "Lines" }
        OVTextArea { enabled: false; text: "Disabled"; Accessible.name: "Disabled" }
    }
}
