import QtQuick
import QtQuick.Templates as T
import Orvel.DesignSystem
import Orvel.Session
import Orvel.Shell

/// The detail pane: one screen at a time, the next one fading in over the last.
T.StackView {
    id: root

    readonly property string identity: detail.identity

    function show() {
        if (depth === 0)
            push(detail.source, detail.properties, T.StackView.Immediate)
        else
            replace(null, detail.source, detail.properties)
    }

    clip: true
    Accessible.role: Accessible.Pane

    replaceEnter: Transition {
        NumberAnimation { property: "opacity"; from: 0; to: 1; duration: Theme.durationScreen }
    }
    replaceExit: Transition {
        NumberAnimation { property: "opacity"; from: 1; to: 0; duration: Theme.durationScreen }
    }

    DetailViewModel {
        id: detail

        store: Orvel.store
        themeRevision: ThemeRevision.value
        ui: Orvel.ui
        onScreenChanged: root.show()
    }
}
