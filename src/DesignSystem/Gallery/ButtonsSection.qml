import QtQuick
import QtQuick.Layouts
import Orvel.DesignSystem

GallerySection {
    title: "Buttons and chips"

    Flow {
        Layout.fillWidth: true
        spacing: Theme.space12

        OVPrimaryButton { text: "Add" }
        OVPrimaryButton { symbol: "plus"; text: "New page" }
        OVPrimaryButton { down: true; text: "Pressed" }
        OVPrimaryButton { text: "Focused"; OVFocusRing { shown: true } }
        OVPrimaryButton { enabled: false; text: "Disabled" }
        OVPrimaryButton { destructive: true; text: "Reset" }
        OVSecondaryButton { text: "Cancel" }
        OVSecondaryButton { symbol: "arrow.counterclockwise"; text: "Reset" }
        OVSecondaryButton { down: true; text: "Pressed" }
        OVSecondaryButton { text: "Focused"; OVFocusRing { shown: true } }
        OVSecondaryButton { enabled: false; text: "Disabled" }
        OVSecondaryButton { destructive: true; symbol: "trash"; text: "Delete" }
    }

    Flow {
        Layout.fillWidth: true
        spacing: Theme.space8

        OVIconButton { symbol: "ellipsis"; text: "More" }
        OVIconButton { down: true; symbol: "trash"; text: "Delete" }
        OVIconButton { symbol: "star"; text: "Favourite"; OVFocusRing { shown: true } }
        OVIconButton { checked: true; symbol: "star"; text: "Favourite" }
        OVIconButton { enabled: false; symbol: "xmark"; text: "Close" }
        Item { height: 1; width: Theme.space16 }
        OVChip { checked: true; text: "All" }
        OVChip { text: "Open" }
        OVChip { symbol: "calendar"; text: "Due date" }
        OVChip { checked: true; symbol: "flag"; text: "High" }
        OVChip { text: "Focused"; OVFocusRing { shown: true; targetRadius: parent.height / 2 } }
        OVChip { enabled: false; text: "Upcoming" }
        OVChip { text: "A chip whose words are far too long for it"; width: 160 }
    }
}
