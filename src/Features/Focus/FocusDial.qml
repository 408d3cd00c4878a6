import QtQuick
import QtQuick.Layouts
import Orvel.DesignSystem
import Orvel.Focus

/// The card of the timer: the ring with the time that remains, the linked task, the buttons and the lengths.
FocusScope {
    id: root

    required property FocusViewModel viewModel
    /// Whether it is visible to the user.
    required property bool inSight
    /// Of the whole screen: in a low one the ring is smaller, so that the buttons below it are in sight.
    required property real screenHeight

    // In milliseconds: within it the end of the ring moves by a pixel. The ring seems to glide if it is drawn as often;
    // that is done each second anyhow.
    readonly property real glideInterval: viewModel.minutes * 60000 / (Math.PI * ring.width * Screen.devicePixelRatio)

    implicitHeight: card.implicitHeight

    Timer {
        interval: Math.max(50, root.glideInterval)
        repeat: true
        running: root.inSight && root.viewModel.isRunning && Theme.motionEnabled && root.glideInterval < 1000
        onTriggered: root.viewModel.glide()
    }

    OVCard {
        id: card
        focus: true
        padding: Theme.space32
        width: root.width

        contentItem: ColumnLayout {
            spacing: Theme.space24

            OVProgressRing {
                id: ring
                Layout.alignment: Qt.AlignHCenter
                implicitWidth: Math.round(Math.min(Theme.timerRing, Math.max(0.6 * Theme.timerRing, 0.45 * root.screenHeight)))
                value: root.viewModel.progress
                Accessible.name: qsTr("%1, %2").arg(time.text).arg(stateWord.text)

                Column {
                    anchors.centerIn: parent
                    width: parent.width

                    OVAnimatedNumber {
                        id: time
                        anchors.horizontalCenter: parent.horizontalCenter
                        font.pixelSize: Theme.sizePageTitle
                        rolls: !root.viewModel.isRunning
                        text: root.viewModel.timeText
                        Accessible.ignored: true
                    }

                    OVText {
                        id: stateWord
                        color: Theme.ovInkSecondary
                        horizontalAlignment: Text.AlignHCenter
                        text: root.viewModel.stateText
                        width: parent.width
                        Accessible.ignored: true
                    }
                }
            }

            FocusLinkedTask {
                Layout.alignment: Qt.AlignHCenter
                Layout.maximumWidth: card.availableWidth
                viewModel: root.viewModel
                visible: root.viewModel.hasTask
            }

            Flow {
                id: buttons
                readonly property real oneLine: primary.width + reset.width + log.width + 2 * spacing
                Layout.alignment: Qt.AlignHCenter
                Layout.preferredWidth: Math.min(oneLine, card.availableWidth)
                spacing: Theme.space8

                OVPrimaryButton {
                    id: primary
                    focus: true
                    // In a narrow place the buttons need the room.
                    keyText: root.width >= 2 * Theme.fieldWidth ? qsTr("Space") : ""
                    symbol: root.viewModel.primarySymbol
                    text: root.viewModel.primaryText
                    onClicked: root.viewModel.toggleRunning()
                }

                OVSecondaryButton {
                    id: reset
                    symbol: "arrow.counterclockwise"
                    text: qsTr("Reset")
                    toolTip: qsTr("Key: %1").arg("R")
                    onClicked: root.viewModel.reset()
                }

                OVSecondaryButton {
                    id: log
                    enabled: root.viewModel.canLog
                    symbol: "checkmark"
                    text: qsTr("Log session")
                    toolTip: qsTr("Key: %1").arg("L")
                    onClicked: {
                        // The button can't be pressed twice, so the focus goes on.
                        if (activeFocus)
                            primary.forceActiveFocus(Qt.TabFocusReason)
                        root.viewModel.logSession()
                    }
                }
            }

            FocusPresets {
                Layout.alignment: Qt.AlignHCenter
                viewModel: root.viewModel
            }
        }
    }
}
