import QtQuick
import Orvel.DesignSystem
import Orvel.Session

/// Tells what was just done, with a way to undo it, and what an undo did out of sight. The next action takes its place.
OVToast {
    id: toast

    onActionTriggered: Orvel.undo.undo()
    onAboutToHide: Orvel.undo.dismissMessage()

    readonly property Connections undo: Connections {
        target: Orvel.undo

        function onMessageChanged() {
            if (Orvel.undo.message !== "")
                toast.show(Orvel.undo.message, Orvel.undo.messageOffersUndo ? qsTr("Undo") : "")
            else
                toast.close()
        }
    }
}
