import QtQuick
import Orvel.Decks
import Orvel.DesignSystem

/// What can be done with the slides: on the left with the selected one, on the right with all of them.
Item {
    id: root

    required property DecksViewModel decks
    required property DeckEditorViewModel editor
    required property DeckExportViewModel deckExport
    readonly property bool isTight: width < 520 * Theme.fontScale

    signal added()
    signal deleteRequested()

    function focusAdd() {
        add.forceActiveFocus(Qt.TabFocusReason)
    }

    implicitHeight: Theme.buttonHeight

    Row {
        height: parent.height
        spacing: Theme.space4

        OVMenuButton {
            id: add
            anchors.verticalCenter: parent.verticalCenter
            plain: true
            symbol: "plus"
            text: root.isTight ? "" : qsTr("New slide")
            toolTip: qsTr("New slide, Ctrl M")
            Accessible.name: qsTr("New slide")

            menu: SlideKindMenu {
                kinds: root.editor.kinds
                onPicked: kind => {
                    root.editor.addSlide(kind)
                    root.added()
                }
            }
        }

        OVIconButton {
            anchors.verticalCenter: parent.verticalCenter
            enabled: root.editor.hasSlide
            symbol: "plus.square.on.square"
            text: qsTr("Duplicate slide")
            toolTip: qsTr("Duplicate slide, Ctrl D")
            onClicked: root.editor.duplicateSlide()
        }

        OVIconButton {
            anchors.verticalCenter: parent.verticalCenter
            enabled: root.editor.selectedIndex > 0
            symbol: "arrow.left"
            text: qsTr("Move left")
            onClicked: root.editor.moveSlide(-1)
        }

        OVIconButton {
            anchors.verticalCenter: parent.verticalCenter
            enabled: root.editor.hasSlide && root.editor.selectedIndex < root.editor.slideCount - 1
            symbol: "arrow.right"
            text: qsTr("Move right")
            onClicked: root.editor.moveSlide(1)
        }

        OVIconButton {
            anchors.verticalCenter: parent.verticalCenter
            enabled: root.editor.hasSlide
            symbol: "trash"
            text: qsTr("Delete slide")
            onClicked: root.deleteRequested()
        }
    }

    Row {
        anchors.right: parent.right
        height: parent.height
        spacing: Theme.space4

        OVMenuButton {
            anchors.verticalCenter: parent.verticalCenter
            plain: true
            symbol: "paintpalette"
            text: root.isTight ? "" : qsTr("Theme")
            toolTip: root.isTight ? qsTr("Theme") : ""
            Accessible.name: qsTr("Theme")

            menu: DeckThemeMenu {
                current: root.editor.themeID
                themes: root.decks.themes
                onPicked: themeID => root.editor.setTheme(themeID)
            }
        }

        OVMenuButton {
            anchors.verticalCenter: parent.verticalCenter
            plain: true
            symbol: "square.and.arrow.up"
            text: root.isTight ? "" : qsTr("Export")
            toolTip: root.isTight ? qsTr("Export") : ""
            Accessible.name: qsTr("Export")

            menu: DeckExportMenu { deckExport: root.deckExport }
        }
    }
}
