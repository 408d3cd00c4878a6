import QtQuick
import Orvel.Pages

/// The word that a menu was asked for: a misspelt one, with what may have been meant, or one of the user's own.
QtObject {
    id: root

    property BlockField field: null
    property int begin: -1
    property int end: -1
    /// The misspelt word; empty for none.
    property string misspelt: ""
    /// The word of the user's own; empty for none.
    property string own: ""
    property list<string> suggestions

    property var _then: null

    readonly property Connections _answers: Connections {
        target: Spelling
        function onSuggested(word, suggestions) {
            const then = root._then
            if (!then || word !== root.misspelt)
                return
            root._then = null
            // The text may have changed meanwhile.
            if (root.field?.spelling.wordAt(root.begin) !== word)
                return
            root.suggestions = suggestions
            then()
        }
    }

    /// Looks at a place in a text, and calls back once it is known what may have been meant there.
    /// @param text a BlockField, or null for a place without one
    function look(text: var, position: int, then: var) {
        field = text
        begin = text ? text.spelling.wordBegin(position) : -1
        end = text ? text.spelling.wordEnd(position) : -1
        misspelt = text ? text.spelling.wordAt(position) : ""
        own = text ? text.spelling.ownWordAt(position) : ""
        suggestions = []
        _then = misspelt !== "" ? then : null
        if (_then)
            Spelling.suggest(misspelt)
        else
            then()
    }

    function correct(suggestion: string) {
        field?.editor.correctWord(field.blockID, begin, end, misspelt, suggestion)
    }
}
