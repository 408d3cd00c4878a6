pragma ComponentBehavior: Bound

import QtQuick
import Orvel.DesignSystem
import Orvel.Session
import Orvel.Transfer

/// Takes Markdown files that are dropped on the window, and all that importing and exporting shows.
DropArea {
    id: area

    readonly property alias transfer: markdown

    function openImport() {
        (importSheet.load() as OVSheet).open()
    }

    function openExport() {
        (exportSheet.load() as OVSheet).open()
    }

    keys: ["text/uri-list"]
    onDropped: drop => {
        drop.acceptProposedAction()
        markdown.read(drop.urls)
        openImport()
    }
    onEntered: drag => drag.accepted = markdown.takes(drag.urls)

    MarkdownTransfer {
        id: markdown
        session: Orvel
        onMessage: text => toast.show(text)
    }

    // Above the screens, while what takes the files is below them.
    Rectangle {
        anchors.fill: parent
        anchors.margins: Theme.space12
        parent: area.Window.contentItem
        z: 1000
        border.color: Theme.accent
        border.width: 2
        color: Qt.alpha(Theme.ovSurface, 0.85)
        radius: Theme.cornerSheet
        visible: area.containsDrag

        OVEmptyState {
            anchors.centerIn: parent
            symbol: "doc.badge.plus"
            title: qsTr("Drop Markdown files or a folder to import them as pages")
            width: parent.width
        }
    }

    OVLazyLoader {
        id: importSheet

        sourceComponent: MarkdownImportSheet {
            transfer: markdown
        }
    }

    OVLazyLoader {
        id: exportSheet

        sourceComponent: MarkdownExportSheet {
            transfer: markdown
        }
    }

    OVToast {
        id: toast
    }
}
