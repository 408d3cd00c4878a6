pragma ComponentBehavior: Bound

import QtQuick
import Orvel.DesignSystem
import Orvel.Reader

/// The search field over the results, and in place of missing results a word on that.
ScreenHeader {
    id: root

    required property DiscoverViewModel viewModel
    property bool showsBack: false
    readonly property bool hasFailed: viewModel.phase === DiscoverViewModel.Phase.failed

    signal backRequested()
    /// The user goes on to the results.
    signal exited()

    function focusSearch() {
        search.forceActiveFocus(Qt.ShortcutFocusReason)
        search.selectAll()
    }

    bottomGap: Theme.space12
    emptyAction: hasFailed ? qsTr("Try again") : ""
    emptyActionSymbol: "arrow.clockwise"
    emptyMessage: hasFailed ? viewModel.failure : qsTr("Try a different title or author.")
    emptySymbol: hasFailed ? "wifi.exclamationmark" : "magnifyingglass"
    emptyTitle: hasFailed ? qsTr("Offline") : qsTr("No matches")
    isEmpty: hasFailed || viewModel.phase === DiscoverViewModel.Phase.nothingFound
    subtitle: qsTr("Free, public-domain books  -  no account needed.")
    title: qsTr("Discover")
    onEmptyActionTriggered: viewModel.searchNow()

    OVPressable {
        id: back
        height: visible ? Theme.buttonHeight : 0
        leftPadding: 0
        rightPadding: Theme.space12
        text: qsTr("Library")
        visible: root.showsBack
        onClicked: root.backRequested()

        contentItem: OVButtonContent {
            color: Theme.ovInkSecondary
            symbol: "chevron.left"
            text: back.text
        }
    }

    OVSearchField {
        id: search
        focus: true
        placeholderText: qsTr("Search books")
        text: root.viewModel.query
        width: parent.width
        Keys.onDownPressed: root.exited()
        onTextEdited: root.viewModel.query = text
    }

    OVText {
        color: Theme.ovInkSecondary
        text: qsTr("Search by title or author to begin.")
        visible: root.viewModel.phase === DiscoverViewModel.Phase.idle
        width: parent.width
        wrapMode: Text.Wrap
    }

    Row {
        spacing: Theme.space8
        visible: root.viewModel.phase === DiscoverViewModel.Phase.loading

        OVBusyMark {
            anchors.verticalCenter: parent.verticalCenter
            running: parent.visible
        }

        OVText {
            color: Theme.ovInkSecondary
            text: qsTr("Searching Project Gutenberg…")
        }
    }
}
