import QtQuick
import QtQuick.Templates as T
import Orvel.Decks
import Orvel.DesignSystem

/// How far an export is, with a way to cancel it. What takes no time to make shows nothing.
T.Popup {
    id: root

    required property DeckExportViewModel deckExport
    property real rise: 0

    closePolicy: T.Popup.NoAutoClose
    horizontalPadding: Theme.space16
    implicitHeight: contentHeight + topPadding + bottomPadding
    implicitWidth: contentWidth + leftPadding + rightPadding
    parent: T.Overlay.overlay
    verticalPadding: Theme.space8
    x: Math.round((parent.width - width) / 2)
    y: parent.height - height - Theme.space32 + rise
    OVAccessible.name: qsTr("Exporting")
    OVAccessible.role: Accessible.AlertMessage

    background: OVPopupSurface { radius: Math.min(height / 2, Theme.cornerSheet) }
    enter: OVEnter { rises: true }
    exit: OVExit { sinks: true }

    contentItem: Row {
        spacing: Theme.space16

        OVText {
            anchors.verticalCenter: parent.verticalCenter
            role: OVText.Dense
            text: qsTr("Exporting")
        }

        OVProgressBar {
            anchors.verticalCenter: parent.verticalCenter
            value: root.deckExport.progress
            width: Math.round(Theme.fieldWidth * 2 / 3)
            Accessible.name: qsTr("Exporting")
        }

        OVSecondaryButton {
            anchors.verticalCenter: parent.verticalCenter
            text: qsTr("Cancel")
            onClicked: root.deckExport.cancel()
        }
    }

    readonly property Timer delay: Timer {
        interval: Theme.tooltipDelay / 2
        running: root.deckExport.making
        onTriggered: root.open()
    }
    readonly property Connections watch: Connections {
        target: root.deckExport

        function onExportingChanged() {
            if (!root.deckExport.making)
                root.close()
        }
    }
}
