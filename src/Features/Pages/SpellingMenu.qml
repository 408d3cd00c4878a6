pragma ComponentBehavior: Bound

import QtQml.Models
import Orvel.DesignSystem
import Orvel.Pages

/// Whether the spelling is checked, and by which dictionaries.
OVMenu {
    id: root

    title: qsTr("Spelling")

    OVMenuItem {
        checkable: true
        checked: Spelling.isEnabled
        enabled: Spelling.languages.length > 0
        text: qsTr("Check spelling")
        onTriggered: Spelling.isEnabled = !Spelling.isEnabled
    }

    OVMenuSeparator { }

    Instantiator {
        model: Spelling.languages.length
        onObjectAdded: (index, item) => root.insertItem(2 + index, item as OVMenuItem)
        onObjectRemoved: (index, item) => root.removeItem(item as OVMenuItem)

        delegate: OVMenuItem {
            required property int index

            checkable: true
            checked: Spelling.chosenLanguages[index] ?? false
            enabled: Spelling.isEnabled
            text: Spelling.languages[index] ?? ""
            onTriggered: Spelling.toggleLanguage(index)
        }
    }

    OVMenuItem {
        enabled: false
        height: visible ? implicitHeight : 0
        text: Spelling.problem
        visible: Spelling.problem !== ""
    }
}
