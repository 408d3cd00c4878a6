import QtQuick
import Orvel.DesignSystem
import Orvel.Pages

/// The ways in which a page leaves the program.
OVMenu {
    id: root

    required property PageShareViewModel share

    OVMenuItem {
        symbol: "square.and.arrow.down"
        text: qsTr("Save as Markdown…")
        onTriggered: root.share.save()
    }

    OVMenuItem {
        symbol: "doc.on.doc"
        text: qsTr("Copy Markdown")
        onTriggered: root.share.copyMarkdown()
    }

    OVMenuItem {
        symbol: "arrow.up.right"
        text: qsTr("Open in default program")
        onTriggered: root.share.open()
    }

    OVMenuItem {
        symbol: "envelope"
        text: qsTr("Send as mail")
        onTriggered: root.share.mail()
    }
}
