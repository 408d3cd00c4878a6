pragma ComponentBehavior: Bound

import QtQuick
import QtQml.Models
import Orvel.DesignSystem

/// The options of a property, with a check mark at each that is chosen.
OVMenu {
    id: root

    required property var options
    required property var chosen
    /// Whether several can be chosen; otherwise "Empty" chooses none.
    required property bool multiple

    signal picked(option: string)

    /// Goes to what is chosen, or to the option that begins with what the user has typed.
    function begin(typed: string) {
        const chosenIndex = options.indexOf(chosen[0])
        currentIndex = chosenIndex < 0 ? (multiple ? 2 : 0) : chosenIndex + 2
        if (typed.trim() !== "")
            jumpTo(typed)
        itemAt(currentIndex)?.forceActiveFocus(Qt.TabFocusReason)
    }

    OVMenuItem {
        checkable: true
        checked: root.chosen[0] === ""
        enabled: visible
        height: visible ? implicitHeight : 0
        text: qsTr("Empty")
        visible: !root.multiple
        onTriggered: root.picked("")
    }

    OVMenuSeparator {
        height: visible ? implicitHeight : 0
        visible: !root.multiple
    }

    Instantiator {
        model: root.multiple ? root.options : []

        DBOptionItem {
            required property string modelData

            chosen: root.chosen.includes(modelData)
            title: modelData
            onClicked: root.picked(modelData)
        }

        onObjectAdded: (index, object) => root.insertItem(index + 2, object as DBOptionItem)
        onObjectRemoved: (index, object) => root.removeItem(object as DBOptionItem)
    }

    Instantiator {
        model: root.multiple ? [] : root.options

        OVMenuItem {
            required property string modelData

            checkable: true
            checked: root.chosen.includes(modelData)
            text: modelData.replace(/&/g, "&&")
            onTriggered: root.picked(modelData)
        }

        onObjectAdded: (index, object) => root.insertItem(index + 2, object as OVMenuItem)
        onObjectRemoved: (index, object) => root.removeItem(object as OVMenuItem)
    }
}
