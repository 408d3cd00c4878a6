import QtQuick
import Orvel.Calendar
import Orvel.DesignSystem

/// The ways of events into the calendar and out of it.
OVMenu {
    id: root

    required property CalendarInterchange interchange

    OVMenuItem {
        symbol: "square.and.arrow.down"
        text: qsTr("Import calendar file…")
        onTriggered: root.interchange.chooseFile()
    }

    OVMenuItem {
        symbol: "square.and.arrow.up"
        text: qsTr("Export calendar…")
        onTriggered: root.interchange.save()
    }
}
