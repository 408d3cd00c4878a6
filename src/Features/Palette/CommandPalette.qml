import QtQuick
import QtQuick.Templates as T
import Orvel.DesignSystem
import Orvel.Palette
import Orvel.Session

/// One field over the whole workspace: it finds records by their texts, and opens them. Open while
/// `Orvel.ui.isSearchPresented`.
Item {
    id: root

    PaletteViewModel {
        id: finder

        search: Orvel.search
        session: Orvel
        store: Orvel.store
        ui: Orvel.ui
    }

    T.Popup {
        id: popup

        readonly property OVFocusReturn focusReturn: OVFocusReturn { popup: popup }
        /// Room for what stands below the field.
        readonly property real room: (parent?.height ?? 0) - y - field.height - line.height - Theme.space24

        closePolicy: T.Popup.CloseOnEscape | T.Popup.CloseOnPressOutside
        focus: true
        height: field.height + line.height + (nothing.visible ? nothing.height : list.height)
        modal: true
        parent: T.Overlay.overlay
        visible: Orvel.ui.isSearchPresented
        width: Math.min(Theme.readingWidth, parent.width - 2 * Theme.space24)
        x: Math.round((parent.width - width) / 2)
        y: Math.round(parent.height / 8)
        onAboutToHide: Orvel.ui.isSearchPresented = false
        onAboutToShow: {
            finder.begin()
            field.clear()
            list.reveal()
        }

        T.Overlay.modal: OVScrim { }
        background: OVPopupSurface { radius: Theme.cornerSheet }
        enter: OVEnter { }
        exit: OVExit { }

        contentItem: FocusScope {
            focus: true
            Accessible.name: qsTr("Command palette")
            Accessible.role: Accessible.Dialog

            OVTextField {
                id: field

                clearable: true
                focus: true
                font.pixelSize: Theme.sizeCardTitle
                height: Theme.fieldHeight + Theme.space16
                inputMethodHints: Qt.ImhNoPredictiveText
                placeholderText: qsTr("Search pages, tasks, projects and databases…")
                plain: true
                symbol: "magnifyingglass"
                width: parent.width - 2 * x
                x: Theme.space16 + Theme.space4
                background: null
                Accessible.description: finder.highlightedText
                onAccepted: finder.openHighlighted()
                onTextChanged: finder.query = text

                Keys.onPressed: event => event.accepted = list.moveHighlight(event)
            }

            OVDivider {
                id: line

                anchors.top: field.bottom
                height: nothing.visible || list.count > 0 ? implicitHeight : 0
                width: parent.width
            }

            PaletteList {
                id: list

                anchors.top: line.bottom
                height: Math.min(naturalHeight, popup.room)
                finder: finder
                width: parent.width
            }

            Item {
                id: nothing

                anchors.top: line.bottom
                clip: true
                height: Math.min(emptyState.implicitHeight + 2 * Theme.space32, popup.room)
                visible: finder.isNothingFound
                width: parent.width

                OVEmptyState {
                    id: emptyState

                    message: finder.nothingFoundText
                    symbol: "magnifyingglass"
                    title: qsTr("No results")
                    width: parent.width - 2 * x
                    x: Theme.space24
                    y: Theme.space32
                }
            }
        }
    }
}
