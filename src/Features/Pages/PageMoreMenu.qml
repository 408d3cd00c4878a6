import QtQuick
import Orvel.DesignSystem
import Orvel.Pages
import Orvel.Session

/// What can be done with a page besides editing it.
OVMenu {
    id: root

    required property PageHeaderViewModel header

    onAboutToShow: actions.open(header.pageID)

    OVMenuItem {
        symbol: "doc.on.doc"
        text: qsTr("Duplicate page")
        onTriggered: actions.duplicate()
    }

    FolderChoiceMenu {
        actions: PageMenuViewModel {
            id: actions

            noFolderTitle: qsTr("None")
            session: Orvel
        }
    }

    OVMenuItem {
        symbol: root.header.isNote ? "doc.text" : "note.text"
        text: root.header.convertText
        onTriggered: root.header.convert()
    }

    SpellingMenu { }

    OVMenuSeparator { }

    OVMenuItem {
        destructive: true
        symbol: "trash"
        text: qsTr("Delete page")
        onTriggered: root.header.deletePage()
    }
}
