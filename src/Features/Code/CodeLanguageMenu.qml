pragma ComponentBehavior: Bound

import QtQuick
import QtQml.Models
import Orvel.Code
import Orvel.DesignSystem

/// All languages, with a check mark at the present one.
OVMenu {
    id: root

    /// The raw text of the present language.
    property string language

    signal picked(raw: string)

    Instantiator {
        model: CodeLanguageList.choices

        OVMenuItem {
            id: item

            required property var modelData

            autoExclusive: true
            checkable: true
            checked: CodeLanguageList.label(root.language) === item.text
            text: item.modelData.label
            onTriggered: root.picked(item.modelData.raw)
        }

        onObjectAdded: (index, object) => root.insertItem(index, object as OVMenuItem)
        onObjectRemoved: (index, object) => root.removeItem(object as OVMenuItem)
    }
}
