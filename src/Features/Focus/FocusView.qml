import QtQuick
import QtQuick.Layouts
import Orvel.DesignSystem
import Orvel.Focus
import Orvel.Session

/// The screen of the focus timer. Space starts and pauses, R resets, 1 to 4 choose the length, L logs the session.
FocusScope {
    id: root

    readonly property bool inSight: visible && Window.visibility !== Window.Hidden && Window.visibility !== Window.Minimized

    /// Does what the key stands for; false for any other key.
    function act(key: int): bool {
        if (key >= Qt.Key_1 && key < Qt.Key_1 + focusTimer.presets.length) {
            focusTimer.choosePreset(key - Qt.Key_1)
            return true
        }
        switch (key) {
        case Qt.Key_Space:
            focusTimer.toggleRunning()
            return true
        case Qt.Key_R:
            focusTimer.reset()
            return true
        case Qt.Key_L:
            focusTimer.logSession()
            return true
        }
        return false
    }

    Keys.onPressed: event => {
        const plain = !(event.modifiers & (Qt.ControlModifier | Qt.AltModifier | Qt.MetaModifier)) && !event.isAutoRepeat
        event.accepted = plain && act(event.key)
    }

    FocusViewModel {
        id: focusTimer
        active: root.visible
        session: Orvel
        watched: root.inSight
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
            viewModel: focusTimer
        }

        FocusTaskPicker {
            Layout.fillWidth: true
            viewModel: focusTimer
        }

        RowLayout {
            Layout.bottomMargin: Theme.space32
            Layout.fillWidth: true
            spacing: Theme.space16

            component Figure: OVTile {
                Layout.fillWidth: true
                Layout.preferredWidth: 1
            }

            Figure { label: qsTr("Sessions today"); symbol: "flame"; value: focusTimer.sessionsText }
            Figure { label: qsTr("Minutes focused"); symbol: "clock"; value: focusTimer.minutesText }
            Figure { label: qsTr("Default length"); symbol: "timer"; value: focusTimer.defaultText }
        }
    }
}
