import QtQuick
import Orvel.DesignSystem
import Orvel.Pages
import Orvel.Session

/// The way back from a page and what can be done with it as a whole.
Item {
    id: root

    required property PageHeaderViewModel header
    /// By which the icons at the ends stand inside their buttons.
    readonly property real overhang: (Theme.iconButtonSize - Theme.iconButton) / 2

    signal zenRequested()
    /// A sentence on how something went.
    signal message(text: string)

    implicitHeight: Math.max(back.implicitHeight, actions.implicitHeight)

    PageShareViewModel {
        id: share

        pageID: root.header.pageID
        session: Orvel
        onMessage: text => root.message(text)
    }

    Row {
        anchors.verticalCenter: parent.verticalCenter
        spacing: Theme.space8
        x: -root.overhang

        OVPressable {
            id: back

            implicitHeight: Theme.iconButtonSize
            leftPadding: Theme.space4
            rightPadding: Theme.space8
            text: root.header.backText
            onClicked: root.header.goBack()

            contentItem: OVButtonContent {
                color: back.hovered ? Theme.ovInk : Theme.ovInkSecondary
                symbol: "chevron.left"
                text: back.text
            }
        }

        OVBadge {
            anchors.verticalCenter: parent.verticalCenter
            text: root.header.kindText
            visible: root.header.isNote
        }
    }

    Row {
        id: actions

        anchors.right: parent.right
        anchors.rightMargin: -root.overhang
        anchors.verticalCenter: parent.verticalCenter
        spacing: Theme.space4

        OVMenuIcon {
            menu: OVMenu {
                OVMenuItem {
                    text: qsTr("Copy as Markdown")
                    onTriggered: share.copyMarkdown()
                }

                OVMenuItem {
                    text: qsTr("Copy as plain text")
                    onTriggered: share.copyPlainText()
                }
            }
            symbol: "doc.on.doc"
            text: qsTr("Copy")
        }

        OVMenuIcon {
            menu: PageShareMenu { share: share }
            symbol: "square.and.arrow.up"
            text: qsTr("Export page")
        }

        OVIconButton {
            symbol: "arrow.up.left.and.arrow.down.right"
            text: qsTr("Zen mode")
            onClicked: root.zenRequested()
        }

        OVIconButton {
            checked: root.header.isFavorite
            color: checked ? Theme.ovWarning : Theme.ovInkSecondary
            symbol: "star"
            text: qsTr("Favorite")
            Accessible.checkable: true
            Accessible.checked: checked
            onClicked: root.header.toggleFavorite()
        }

        OVMenuIcon {
            menu: PageMoreMenu { header: root.header }
            symbol: "ellipsis"
            text: qsTr("More")
        }
    }
}
