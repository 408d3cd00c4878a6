pragma ComponentBehavior: Bound

import QtQuick
import Orvel.DesignSystem
import Orvel.Reader

/// The books that are on their way, each with a way to cancel it.
Column {
    id: root

    /// A row that has the focus is about to go.
    signal focusLeft()

    visible: rows.count > 0

    Connections {
        target: BookDownloads.rows

        function onRowsAboutToBeRemoved(parent, first, last) {
            for (let i = first; i <= last; ++i) {
                if (rows.itemAt(i)?.hasFocus ?? false)
                    root.focusLeft()
            }
        }
    }

    Repeater {
        id: rows
        model: BookDownloads.rows

        Item {
            id: row

            required property var number
            required property string title
            required property string progressText
            readonly property bool hasFocus: cancel.activeFocus
            readonly property string state: progressText === "" ? qsTr("Downloading") : qsTr("Downloading %1").arg(progressText)

            Accessible.description: state
            Accessible.name: title
            Accessible.role: Accessible.ListItem
            height: texts.implicitHeight + 2 * Theme.space8
            width: root.width

            OVBusyMark {
                anchors.verticalCenter: parent.verticalCenter
                running: row.visible
                x: Theme.space8
            }

            Column {
                id: texts
                anchors.verticalCenter: parent.verticalCenter
                spacing: 2
                width: cancel.x - x - Theme.space8
                x: Theme.space8 + Theme.iconRow + Theme.space8

                OVText {
                    Accessible.ignored: true
                    color: Theme.ovInkSecondary
                    role: OVText.Dense
                    text: row.title
                    width: parent.width
                }

                OVText {
                    Accessible.ignored: true
                    role: OVText.Caption
                    text: row.state
                    width: parent.width
                }
            }

            OVIconButton {
                id: cancel
                anchors.right: parent.right
                anchors.verticalCenter: parent.verticalCenter
                symbol: "xmark"
                text: qsTr("Cancel the download")
                Accessible.name: qsTr("Cancel the download of %1").arg(row.title)
                onClicked: BookDownloads.cancel(row.number)
            }
        }
    }
}
