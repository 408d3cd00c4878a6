pragma ComponentBehavior: Bound

import QtQuick
import Orvel.Databases
import Orvel.DesignSystem

/// The records of a view in the layout of the view.
FocusScope {
    id: root

    required property RecordsViewModel records
    readonly property var layouts: ({ "table": table, "list": list, "calendar": calendar, "board": board,
                                      "gallery": gallery })

    OVLazyLoader {
        active: root.records.hasView
        anchors.fill: parent
        focus: true
        sourceComponent: root.layouts[root.records.layout]
    }

    Component {
        id: table

        DBTableLayout {
            focus: true
            records: root.records
        }
    }

    Component {
        id: list

        DBTableLayout {
            emptyMessage: qsTr("Add a record to get started.")
            emptySymbol: "list.bullet.indent"
            emptyTitle: qsTr("No records")
            focus: true
            listLike: true
            records: root.records
        }
    }

    Component {
        id: calendar

        DBTableLayout {
            canAdd: root.records.dateColumn >= 0
            emptyMessage: canAdd ? qsTr("Give a record a %1 to see it here.").arg(root.records.dateName)
                                 : qsTr("Calendar views need at least one date property.")
            emptySymbol: "calendar"
            emptyTitle: canAdd ? qsTr("No dated records") : qsTr("Add a date property")
            focus: true
            listLike: true
            records: root.records
            sectioned: true
        }
    }

    Component {
        id: board

        DBBoardLayout {
            focus: true
            records: root.records
        }
    }

    Component {
        id: gallery

        DBGalleryLayout {
            focus: true
            records: root.records
        }
    }
}
