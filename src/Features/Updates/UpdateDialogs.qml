import QtQuick
import Orvel.DesignSystem
import Orvel.Session

/// What the update service tells the user: its offer, and how a check ended that was asked for.
Item {
    id: root

    required property UpdateService updates

    function follow() {
        if (root.updates.isOffering && root.enabled) {
            prompt.version = root.updates.offeredVersion
            prompt.notes = root.updates.offeredNotes
            prompt.open()
        } else {
            prompt.close()
        }
        if (root.updates.notice !== "" && root.enabled) {
            alert.message = root.updates.notice
            alert.open()
        } else {
            alert.close()
        }
    }

    Component.onCompleted: follow()
    onEnabledChanged: follow()

    Connections {
        target: root.updates

        function onAvailableChanged() {
            root.follow();
        }

        function onNoticeChanged() {
            root.follow();
        }
    }

    UpdatePromptView {
        id: prompt

        installing: root.updates.isInstalling
        progress: root.updates.installProgress
        progressText: root.updates.progressText
        error: root.updates.failure
        onUpdateRequested: root.updates.install()
        onLaterRequested: root.updates.postpone()
        onClosed: {
            if (root.updates.isInstalling)
                root.follow()
            else if (root.updates.isOffering && root.enabled)
                root.updates.postpone()
        }
    }

    OVDialog {
        id: alert

        title: qsTr("Check for Updates")
        onClosed: root.updates.clearNotice()
    }
}
