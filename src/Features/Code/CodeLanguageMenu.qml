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
        model: CodeLanguageList.rawTexts

        OVMenuItem {
            required property string modelData

            checkable: true
            checked: CodeLanguageList.label(root.language) === text
            text: CodeLanguageList.label(modelData)
            onTriggered: root.picked(modelData)
        }

        onObjectAdded: (index, object) => root.insertItem(index, object as OVMenuItem)
        onObjectRemoved: (index, object) => root.removeItem(object as OVMenuItem)
    }
}
