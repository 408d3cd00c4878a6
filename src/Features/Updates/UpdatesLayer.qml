import QtQuick
import Orvel.Session

/// The place of the dialogs about updates, which are made when there is the first thing to say.
Loader {
    id: root

    required property UpdateService updates
    readonly property bool hasNews: updates.isOffering || updates.notice !== ""

    onHasNewsChanged: {
        if (hasNews && status === Loader.Null)
            setSource("UpdateDialogs.qml", { "updates": updates })
    }
}
