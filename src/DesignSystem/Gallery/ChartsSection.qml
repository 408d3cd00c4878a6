import QtQuick
import QtQuick.Layouts
import Orvel.DesignSystem

GallerySection {
    id: section

    readonly property var week: ["Monday", "Tuesday", "Wednesday", "Thursday", "Friday", "Saturday", "Sunday"]
    readonly property var values: [3, 5, 0, 7, 2, 4, 1]
    readonly property var points: week.map((day, index) => ({
        "label": day, "shortLabel": day.slice(0, 3), "value": values[index], "valueText": String(values[index])
    }))

    /// So many values in no order.
    function many(count: int): var {
        return Array.from({ "length": count }, (nothing, index) => ({
            "label": "Label " + (index + 1), "shortLabel": String(index + 1),
            "value": index * 7 % 11, "valueText": String(index * 7 % 11)
        }))
    }

    title: "Charts"

    GridLayout {
        id: grid

        Layout.fillWidth: true
        columnSpacing: Theme.space16
        columns: grid.width > 800 ? 3 : 1
        rowSpacing: Theme.space16

        component Frame: OVCard {
            Layout.alignment: Qt.AlignTop
            Layout.fillWidth: true
            Layout.preferredWidth: 1
        }

        Frame {
            contentItem: OVRingChart {
                colors: [Theme.ovInkSecondary, Theme.ovInfo, Theme.ovSuccess]
                name: "Task status"
                points: [
                    { "label": "To do", "value": 12, "valueText": "12", "symbol": "circle" },
                    { "label": "In progress", "value": 4, "valueText": "4", "symbol": "circle.dotted" },
                    { "label": "Done", "value": 30, "valueText": "30", "symbol": "checkmark.circle" }
                ]
                unit: "tasks"
            }
        }

        Frame { contentItem: OVLineChart { name: "Done"; points: section.points } }
        Frame { contentItem: OVBarChart { name: "Pages"; points: section.points } }

        Frame {
            contentItem: OVBarChart {
                colors: ["#2E6BE6", "#7C5CFC", "#0F9B8E", "#2E9E5B", "#C07A10", "#D6336C", "#D33E3E"]
                name: "Habits"
                points: section.points
                valuesShown: true
            }
        }

        Frame {
            contentItem: OVBarChart {
                horizontal: true
                maximum: 100
                name: "Progress"
                points: [
                    { "label": "Launch Orvel", "value": 80, "valueText": "80%" },
                    { "label": "A name that is much too long for the place that it gets in a chart", "value": 33, "valueText": "33%" },
                    { "label": "Garden", "value": 0, "valueText": "0%" }
                ]
            }
        }

        Frame {
            contentItem: OVBarChart {
                name: "Huge"
                points: [
                    { "label": "January 2026", "shortLabel": "Jan", "value": 1250000, "valueText": "1,250,000" },
                    { "label": "February 2026", "shortLabel": "Feb", "value": 980000, "valueText": "980,000" },
                    { "label": "March 2026", "shortLabel": "Mar", "value": 12, "valueText": "12" }
                ]
            }
        }

        Frame { contentItem: OVLineChart { name: "Sixty labels"; points: section.many(60) } }
        Frame { contentItem: OVBarChart { name: "Sixty bars"; points: section.many(60) } }

        Frame {
            contentItem: OVBarChart {
                colors: points.map((point, index) => index % 2 ? Theme.ovInfo : Theme.ovSuccess)
                name: "Twenty values"
                points: section.many(20)
                valuesShown: true
            }
        }

        Frame {
            contentItem: OVRingChart {
                colors: [Theme.ovInkSecondary, Theme.ovInfo, Theme.ovSuccess]
                name: "A single part"
                points: [
                    { "label": "To do", "value": 0, "valueText": "0", "symbol": "circle" },
                    { "label": "In progress", "value": 0, "valueText": "0", "symbol": "circle.dotted" },
                    { "label": "Done", "value": 1234567, "valueText": "1,234,567", "symbol": "checkmark.circle" }
                ]
                unit: "tasks"
            }
        }

        Frame { contentItem: OVLineChart { name: "A single value"; points: section.points.slice(0, 1) } }
        Frame { contentItem: OVBarChart { name: "A single bar"; points: section.points.slice(0, 1) } }
        Frame { contentItem: OVRingChart { name: "No parts"; points: []; unit: "tasks" } }
        Frame { contentItem: OVLineChart { name: "No values"; points: [] } }
        Frame { contentItem: OVBarChart { name: "No bars"; points: [] } }
    }
}
