pragma ComponentBehavior: Bound

import QtQuick
import Orvel.Calendar
import Orvel.DesignSystem
import Orvel.Session

/// Takes a calendar file that is dropped on the screen, and all that importing shows.
DropArea {
    id: area

    readonly property alias interchange: files

    keys: ["text/uri-list"]
    onDropped: drop => {
        drop.acceptProposedAction()
        files.open(drop.urls)
    }

    CalendarInterchange {
        id: files
        session: Orvel
        onOpened: (sheet.load() as OVSheet).open()
    }

    Rectangle {
        anchors.fill: parent
        anchors.margins: Theme.space12
        border.color: Theme.accent
        border.width: 2
        color: Qt.alpha(Theme.ovSurface, 0.85)
        radius: Theme.cornerSheet
        visible: area.containsDrag

        OVEmptyState {
            anchors.centerIn: parent
            symbol: "calendar.badge.plus"
            title: qsTr("Drop a calendar file to import its events")
            width: parent.width
        }
    }

    OVLazyLoader {
        id: sheet

        sourceComponent: CalendarImportSheet {
            interchange: files
        }
    }
}
