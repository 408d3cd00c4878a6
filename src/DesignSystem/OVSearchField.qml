import QtQuick
import Orvel.DesignSystem

/// A field for a search text: Escape empties it before it does anything else.
OVTextField {
    id: field

    symbol: "magnifyingglass"
    clearable: true
    placeholderText: qsTr("Search")
    inputMethodHints: Qt.ImhNoPredictiveText

    Keys.onEscapePressed: event => {
        event.accepted = field.length > 0
        if (field.length > 0)
            field.empty()
    }
}
