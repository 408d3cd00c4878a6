pragma ComponentBehavior: Bound

import QtQuick
import Orvel.Calendar
import Orvel.DesignSystem

/// What adding the events of a file would do.
OVSheet {
    id: sheet

    required property CalendarInterchange interchange

    component Count: Item {
        required property string label
        required property int count

        height: visible ? Theme.rowHeight : 0
        visible: count > 0
        width: parent.width
        Accessible.name: qsTr("%1: %2").arg(label).arg(count)
        Accessible.role: Accessible.StaticText

        OVText {
            anchors.left: parent.left
            anchors.right: number.left
            anchors.verticalCenter: parent.verticalCenter
            text: parent.label
            Accessible.ignored: true
        }

        OVText {
            id: number
            anchors.right: parent.right
            anchors.verticalCenter: parent.verticalCenter
            font.weight: Font.DemiBold
            text: parent.count
            Accessible.ignored: true
        }
    }

    maximumWidth: Theme.promptWidth
    subtitle: interchange.fileName
    title: qsTr("Import events")
    onAboutToShow: (add.enabled ? add : cancel).focus = true

    Column {
        width: parent.width

        OVText {
            color: Theme.ovInkSecondary
            text: sheet.interchange.knownCount > 0 ? qsTr("Everything in this file is in your calendar already.")
                                                   : qsTr("There are no events in this file.")
            visible: !add.enabled
            width: parent.width
            wrapMode: Text.Wrap
        }

        Count {
            count: sheet.interchange.newCount
            label: qsTr("New events")
        }

        Count {
            count: sheet.interchange.knownCount
            label: qsTr("Already in your calendar")
        }

        Count {
            count: sheet.interchange.seriesCount
            label: qsTr("Repeating events")
        }

        Count {
            count: sheet.interchange.occurrenceCount
            label: qsTr("Single events made of these")
        }
    }

    Column {
        spacing: Theme.space4
        visible: sheet.interchange.losses.length > 0
        width: parent.width

        OVSectionHeader {
            text: qsTr("Good to know")
            width: parent.width
        }

        Repeater {
            model: sheet.interchange.losses

            OVText {
                required property string modelData

                color: Theme.ovInkSecondary
                role: OVText.Dense
                text: modelData
                width: parent?.width ?? 0
                wrapMode: Text.Wrap
            }
        }
    }

    footer: Row {
        anchors.right: parent.right
        spacing: Theme.space8

        OVSecondaryButton {
            id: cancel
            text: qsTr("Cancel")
            onClicked: sheet.close()
        }

        OVPrimaryButton {
            id: add
            enabled: sheet.interchange.newCount > 0
            text: qsTr("Add to calendar")
            onClicked: {
                sheet.interchange.addEvents()
                sheet.close()
            }
        }
    }
}
