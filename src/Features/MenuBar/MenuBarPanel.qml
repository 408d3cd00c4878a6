pragma ComponentBehavior: Bound

import QtQuick
import Orvel.DesignSystem
import Orvel.MenuBar
import Orvel.Session

/// What the icon on the desktop's panel opens: the numbers of the day, a field for a task, what is due, and ways into
/// the window.
FocusScope {
    id: root

    /// Whether it is shown.
    property bool active: true
    readonly property MenuBarViewModel viewModel: MenuBarViewModel {
        active: root.active
        session: Orvel
    }

    readonly property bool listsTasks: viewModel.listsTasks

    /// The window is to come to the front.
    signal openRequested

    /// Puts the caret into the field.
    function begin() {
        quickAdd.field.forceActiveFocus(Qt.OtherFocusReason)
    }

    function go(place: string) {
        Orvel.ui.select(place)
        openRequested()
    }

    // The task ticked off last may have had the focus.
    onListsTasksChanged: {
        if (!listsTasks && active)
            Qt.callLater(begin)
    }

    implicitHeight: column.implicitHeight
    implicitWidth: Math.round(320 * Theme.fontScale)
    Accessible.name: qsTr("Orvel")
    Accessible.role: Accessible.Pane

    Rectangle {
        anchors.fill: parent
        border.color: Theme.ovBorderStrong
        border.width: Theme.lineWidth
        color: Theme.ovSurface
    }

    Column {
        id: column

        readonly property real inner: width - 2 * padding

        padding: Theme.space16
        spacing: Theme.space12
        width: parent.width

        MenuBarHeader {
            viewModel: root.viewModel
            width: column.inner
        }

        Row {
            spacing: Theme.space8
            width: column.inner

            MenuBarStat {
                label: qsTr("Open")
                symbol: "checkmark.square"
                value: root.viewModel.openCount
                width: (column.inner - 2 * parent.spacing) / 3
            }

            MenuBarStat {
                label: qsTr("Due")
                symbol: "clock"
                value: root.viewModel.dueCount
                width: (column.inner - 2 * parent.spacing) / 3
            }

            MenuBarStat {
                label: qsTr("Habits")
                symbol: "flame"
                value: root.viewModel.habitCount
                width: (column.inner - 2 * parent.spacing) / 3
            }
        }

        MenuBarQuickAdd {
            id: quickAdd

            viewModel: root.viewModel
            width: column.inner
        }

        OVLazyLoader {
            active: root.listsTasks
            visible: active
            width: column.inner

            sourceComponent: MenuBarTasks {
                viewModel: root.viewModel
            }
        }

        Grid {
            columnSpacing: Theme.space8
            columns: 2
            rowSpacing: Theme.space4
            width: column.inner

            Repeater {
                model: [
                    { "text": qsTr("Dashboard"), "symbol": "square.grid.2x2", "place": "dashboard" },
                    { "text": qsTr("Today"), "symbol": "sun.max", "place": "today" },
                    { "text": qsTr("Focus"), "symbol": "timer", "place": "focus" },
                    { "text": qsTr("Relax"), "symbol": "leaf", "place": "relax" }
                ]

                OVSecondaryButton {
                    required property var modelData

                    symbol: modelData.symbol
                    text: modelData.text
                    width: Math.floor((column.inner - Theme.space8) / 2)
                    onClicked: root.go(modelData.place)
                }
            }
        }

        Column {
            width: column.inner

            OVDivider {
                width: parent.width
            }

            Item {
                height: Theme.space8
                width: 1
            }

            MenuBarLink {
                symbol: "macwindow"
                text: qsTr("Open Orvel")
                width: parent.width
                onClicked: root.openRequested()
            }

            MenuBarLink {
                symbol: "gearshape"
                text: qsTr("Settings")
                width: parent.width
                onClicked: root.go("settings")
            }

            MenuBarLink {
                symbol: "power"
                text: qsTr("Quit Orvel")
                width: parent.width
                onClicked: Qt.quit()
            }
        }
    }
}
