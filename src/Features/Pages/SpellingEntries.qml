pragma ComponentBehavior: Bound

import QtQml.Models
import QtQuick
import Orvel.DesignSystem
import Orvel.Pages

/// What a menu offers for a word: first what may have been meant, then to keep or to ignore it.
Instantiator {
    id: root

    required property OVMenu menu
    required property SpelledWord word
    readonly property int offered: word.misspelt !== "" ? Math.max(1, word.suggestions.length) : 0
    readonly property list<string> actions: word.misspelt !== "" ? [qsTr("Add to dictionary"), qsTr("Ignore spelling")]
                                          : word.own !== "" ? [qsTr("Remove from dictionary")] : []
    /// The first entry of the menu that can be chosen.
    readonly property int firstIndex: word.misspelt !== "" && word.suggestions.length === 0 ? 1 : 0

    readonly property Instantiator _separator: Instantiator {
        model: root.count > 0 ? 1 : 0
        onObjectAdded: (index, item) => root.menu.insertItem(root.count, item as OVMenuSeparator)
        onObjectRemoved: (index, item) => root.menu.removeItem(item as OVMenuSeparator)

        delegate: OVMenuSeparator { }
    }

    function act(action: int) {
        if (word.misspelt === "")
            Spelling.remove(word.own)
        else if (action === 0)
            Spelling.add(word.misspelt)
        else
            Spelling.ignore(word.misspelt)
    }

    model: offered + actions.length
    onObjectAdded: (index, item) => menu.insertItem(index, item as OVMenuItem)
    onObjectRemoved: (index, item) => menu.removeItem(item as OVMenuItem)

    delegate: OVMenuItem {
        required property int index

        readonly property int actionIndex: index - root.offered
        readonly property string suggestion: actionIndex < 0 ? root.word.suggestions[index] ?? "" : ""

        enabled: actionIndex >= 0 || suggestion !== ""
        font.weight: suggestion !== "" ? Font.DemiBold : Theme.textWeight
        symbol: actionIndex < 0 ? "" : root.word.misspelt === "" ? "trash" : actionIndex === 0 ? "plus.circle" : "eye.slash"
        text: actionIndex >= 0 ? root.actions[actionIndex] ?? "" : suggestion !== "" ? suggestion.replace(/&/g, "&&") : qsTr("No suggestions")
        onTriggered: {
            if (actionIndex >= 0)
                root.act(actionIndex)
            else
                root.word.correct(suggestion)
        }
    }
}
