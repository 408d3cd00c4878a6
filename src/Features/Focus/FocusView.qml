import QtQuick
import QtQuick.Layouts
import Orvel.DesignSystem
import Orvel.Focus
import Orvel.Session

/// The screen of the focus timer. Space starts and pauses, R resets, 1 to 4 choose the length, L logs the session.
FocusScope {
    id: root

    /// Its keys work at once, also for a user who came by the sidebar.
    readonly property bool wantsKeyboard: true
    readonly property bool inSight: visible && Window.visibility !== Window.Hidden && Window.visibility !== Window.Minimized

    readonly property FocusViewModel viewModel: FocusViewModel {
        active: root.visible
        session: Orvel
        watched: root.inSight
    }

    /// Does what the key stands for; false for any other key.
    function act(key: int): bool {
        if (key >= Qt.Key_1 && key < Qt.Key_1 + root.viewModel.presets.length) {
            root.viewModel.choosePreset(key - Qt.Key_1)
            return true
        }
        switch (key) {
        case Qt.Key_Space:
            root.viewModel.toggleRunning()
            return true
        case Qt.Key_R:
            root.viewModel.reset()
            return true
        case Qt.Key_L:
            root.viewModel.logSession()
            return true
        }
        return false
    }

    Keys.onPressed: event => {
        const plain = !(event.modifiers & (Qt.ControlModifier | Qt.AltModifier | Qt.MetaModifier)) && !event.isAutoRepeat
        event.accepted = plain && act(event.key)
    }

    ScreenScaffold {
        anchors.fill: parent
        focus: true
        maximumWidth: Theme.readingWidth
        spacing: Theme.space24

        OVPageHeader {
            Layout.fillWidth: true
            subtitle: qsTr("One task at a time. The timer counts sessions per day.")
            symbol: "timer"
            title: qsTr("Focus")
        }

        FocusDial {
            Layout.fillWidth: true
            focus: true
            inSight: root.inSight
            screenHeight: root.height
            viewModel: root.viewModel
        }

        FocusTaskPicker {
            Layout.fillWidth: true
            viewModel: root.viewModel
        }

        RowLayout {
            Layout.bottomMargin: Theme.space32
            Layout.fillWidth: true
            spacing: Theme.space16

            component Figure: OVTile {
                Layout.fillWidth: true
                Layout.preferredWidth: 1
            }

            Figure { label: qsTr("Sessions today"); symbol: "flame"; value: root.viewModel.sessionsText }
            Figure { label: qsTr("Minutes focused"); symbol: "clock"; value: root.viewModel.minutesText }
            Figure { label: qsTr("Default length"); symbol: "timer"; value: root.viewModel.defaultText }
        }
    }
}
