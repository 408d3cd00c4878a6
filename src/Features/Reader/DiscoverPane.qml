pragma ComponentBehavior: Bound

import QtQuick
import Orvel.DesignSystem
import Orvel.Reader

/// The search of the catalogue and what it found.
FocusScope {
    id: root

    required property DiscoverViewModel viewModel
    /// Whether the way back to the library is shown.
    property bool showsBack: false

    signal backRequested()

    function focusSearch() {
        header.focusSearch()
    }

    Keys.onEscapePressed: backRequested()

    Shortcut {
        enabled: root.visible
        sequence: "Ctrl+F"
        onActivated: root.focusSearch()
    }

    ScreenList {
        id: list
        anchors.fill: parent
        focus: true
        maximumWidth: Theme.readingWidth
        model: root.viewModel.results

        above: DiscoverHeader {
            id: header
            focus: true
            showsBack: root.showsBack
            viewModel: root.viewModel
            onBackRequested: root.backRequested()
            onExited: list.keys.focus(0, Qt.TabFocusReason)
        }
        delegate: CatalogueResult { viewModel: root.viewModel }
        onExited: edge => {
            if (edge === Qt.TopEdge)
                header.focusSearch()
        }
    }
}
