pragma ComponentBehavior: Bound

import QtQuick
import QtQml.Models
import Orvel.DesignSystem

/// A menu of `Choice`s, with a check mark at the present one.
OVMenu {
    id: root

    property var choices: []
    /// The raw text of the present choice.
    property string current
    /// Whether the present choice carries a mark.
    property bool marks: true
    /// The entry that chooses nothing; empty for none.
    property string noneText

    signal picked(raw: string)

    OVMenuItem {
        checkable: true
        checked: root.current === ""
        enabled: visible
        height: visible ? implicitHeight : 0
        text: root.noneText
        visible: root.noneText !== ""
        onTriggered: root.picked("")
    }

    Instantiator {
        model: root.choices

        OVMenuItem {
            required property var modelData

            checkable: root.marks
            checked: root.marks && root.current === modelData.raw
            symbol: modelData.symbol
            text: modelData.label.replace(/&/g, "&&")
            onTriggered: root.picked(modelData.raw)
        }

        onObjectAdded: (index, object) => root.insertItem(index + 1, object as OVMenuItem)
        onObjectRemoved: (index, object) => root.removeItem(object as OVMenuItem)
    }
}
