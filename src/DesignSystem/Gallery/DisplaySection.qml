pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import Orvel.DesignSystem

GallerySection {
    title: "Cards, badges and numbers"

    GridLayout {
        id: tiles

        Layout.fillWidth: true
        columnSpacing: Theme.space16
        columns: tiles.width > 800 ? 4 : 2
        rowSpacing: Theme.space16

        OVTile { Layout.fillWidth: true; label: "Sessions today"; symbol: "flame"; value: "4" }
        OVTile { Layout.fillWidth: true; label: "Done today"; symbol: "checkmark.circle.fill"; value: "2/5" }
        OVTile { Layout.fillWidth: true; label: "Time left"; symbol: "timer"; value: "24:59" }
        OVTile { Layout.fillWidth: true; label: "A label that is much too long for its tile"; symbol: "chart.bar"; value: "1,171,111" }
    }

    RowLayout {
        Layout.fillWidth: true
        spacing: Theme.space16

        OVCard {
            Layout.alignment: Qt.AlignTop
            Layout.fillWidth: true
            Layout.preferredWidth: 1

            contentItem: ColumnLayout {
                spacing: Theme.space12

                OVText { Layout.fillWidth: true; role: OVText.CardTitle; text: "Launch Orvel 🚀" }
                OVText {
                    Layout.fillWidth: true
                    color: Theme.ovInkSecondary
                    text: "Get the workspace ready and invite the team."
                    wrapMode: Text.Wrap
                }
                Flow {
                    Layout.fillWidth: true
                    spacing: Theme.space8

                    OVBadge { text: "low" }
                    OVBadge { text: "Planning"; tone: OVBadge.Info }
                    OVBadge { text: "medium"; tone: OVBadge.Warning }
                    OVBadge { symbol: "flame.fill"; text: "12"; tone: OVBadge.Success }
                    OVBadge { text: "high"; tone: OVBadge.Danger }
                }
                OVProgressBar { Layout.fillWidth: true; value: 0.62; Accessible.name: "Progress" }
                OVProgressBar { Layout.fillWidth: true; color: Theme.ovSuccess; value: 1; Accessible.name: "Done" }
                OVProgressBar { Layout.fillWidth: true; value: 0.02; Accessible.name: "Begun" }
                OVProgressRing { implicitWidth: 72; strokeWidth: Theme.space8; value: 0.62; Accessible.name: "Ring" }
                Row {
                    spacing: Theme.space4

                    Repeater {
                        model: ["Ctrl", "Shift", "K"]

                        OVKeyCap { required property string modelData; text: modelData }
                    }
                }
            }
        }

        OVCard {
            Layout.alignment: Qt.AlignTop
            Layout.fillWidth: true
            Layout.preferredWidth: 1

            contentItem: OVEmptyState {
                actionSymbol: "plus"
                actionText: "Add your first habit"
                message: "Habits are the small, repeatable actions that add up. Add your first one to start a streak."
                symbol: "flame"
                title: "No habits yet"
            }
        }

        ColumnLayout {
            Layout.alignment: Qt.AlignTop
            Layout.preferredWidth: 260
            spacing: Theme.space24

            OVGlassCapsule {
                implicitHeight: 44
                implicitWidth: dock.implicitWidth + 24

                Row {
                    id: dock

                    anchors.centerIn: parent
                    spacing: Theme.space4

                    OVIconButton { symbol: "square.grid.2x2"; text: "Dashboard"; radius: width / 2; checked: true }
                    OVIconButton { symbol: "sun.max"; text: "Today"; radius: width / 2 }
                    OVIconButton { symbol: "checkmark.square"; text: "Tasks"; radius: width / 2 }
                    OVIconButton { symbol: "calendar"; text: "Calendar"; radius: width / 2 }
                }
            }

            Row {
                spacing: Theme.space24

                OrvelMark { color: Theme.accent; height: 72; width: 72 }
                OrvelMark { color: Theme.accent; fillProgress: 0; height: 72; outlineProgress: 0.7; width: 72 }
                OrvelMark { color: Theme.accent; height: 24; width: 24 }
            }

            OVPressable {
                padding: Theme.space12
                text: "A pressable row"

                contentItem: Row {
                    spacing: Theme.space8

                    OVIcon { anchors.verticalCenter: parent.verticalCenter; symbol: "note.text" }
                    OVText { text: "A pressable row" }
                }
            }
        }
    }
}
