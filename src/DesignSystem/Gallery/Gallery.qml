import QtQuick
import QtQuick.Layouts
import Orvel.DesignSystem

/// Every component in every state. Each section is a file of its own.
Item {
    id: root

    property alias contentY: scaffold.contentY

    OVBackground {
        anchors.fill: parent
    }

    ScreenScaffold {
        id: scaffold

        anchors.fill: parent
        maximumWidth: Theme.gridWidth
        spacing: Theme.space32

        OVPageHeader {
            Layout.fillWidth: true
            subtitle: "Every component in every state."
            symbol: "square.grid.2x2"
            title: "Gallery"

            OVSecondaryButton { symbol: "square.and.arrow.up"; text: "Export" }
            OVPrimaryButton { symbol: "plus"; text: "New page" }
        }

        ButtonsSection { Layout.fillWidth: true }
        FieldsSection { Layout.fillWidth: true }
        ChoicesSection { Layout.fillWidth: true }
        PickersSection { Layout.fillWidth: true }
        FloatingSection { Layout.fillWidth: true }
        DisplaySection { Layout.fillWidth: true }
        ChartsSection { Layout.fillWidth: true }
        TypeSection { Layout.fillWidth: true }
        IconsSection { Layout.fillWidth: true }
        IntroSection { Layout.fillWidth: true }
    }
}
