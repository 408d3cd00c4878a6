pragma ComponentBehavior: Bound

import QtQuick
import Orvel.Dashboard
import Orvel.DesignSystem
import Orvel.Today

/// The pages that changed last, and those that the user marked.
OVTitledCard {
    id: root

    required property DashboardViewModel viewModel

    symbol: "books.vertical"
    title: qsTr("Library")
    trailing: OVChipGroup {
        choices: root.viewModel.libraryTabs
        current: root.viewModel.libraryTab
        Accessible.name: root.title
        onChosen: raw => root.viewModel.libraryTab = raw
    }

    OVCardList {
        id: list
        model: root.viewModel.library
        width: parent.width
        Accessible.name: root.title

        delegate: PageLineRow { }
    }

    OVPressable {
        leftPadding: Theme.space8
        rightPadding: Theme.space8
        text: root.viewModel.morePagesText
        visible: text !== ""
        x: -Theme.space8
        onClicked: root.viewModel.showMorePages()

        contentItem: OVButtonContent {
            color: Theme.ovInkSecondary
            symbol: "chevron.down"
            text: root.viewModel.morePagesText
            trailing: true
        }
    }

    OVText {
        color: Theme.ovInkSecondary
        text: root.viewModel.emptyLibraryText
        visible: list.count === 0
        width: parent.width
        wrapMode: Text.Wrap
    }
}
