import QtQuick
import Orvel.DesignSystem
import Orvel.Relax

/// Leads through the breath: a circle that grows and shrinks, the phase and its seconds. Where motion is unwanted the
/// words alone change, with a slow fade.
Item {
    id: root

    /// The room there is.
    property real maximumSize: 400
    property alias guide: breath
    readonly property real size: Math.min(200 * Theme.fontScale, maximumSize - 2 * Theme.space16)
    readonly property color ink: Qt.rgba(1, 1, 1, 0.96)

    Accessible.name: qsTr("%1, %2").arg(breath.phase).arg(breath.secondsLeft)
    Accessible.role: Accessible.StaticText
    implicitHeight: size
    implicitWidth: size

    BreathingGuide {
        id: breath
        running: root.visible
        smooth: Theme.motionEnabled
    }

    // Dark enough for the words on every scene.
    Rectangle {
        anchors.centerIn: parent
        color: Qt.rgba(0, 0, 0, 0.3)
        height: root.size
        radius: height / 2
        width: height
    }

    Rectangle {
        anchors.centerIn: parent
        antialiasing: true
        border.color: Qt.rgba(1, 1, 1, 0.7)
        border.width: 2
        color: Qt.rgba(1, 1, 1, 0.16)
        height: root.size * breath.scale
        radius: height / 2
        width: height
    }

    Column {
        anchors.centerIn: parent
        spacing: Theme.space4

        OVText {
            id: phase

            property string shown: breath.phase

            Accessible.ignored: true
            anchors.horizontalCenter: parent.horizontalCenter
            color: root.ink
            role: OVText.CardTitle
            text: breath.phase
            onShownChanged: fade.restart()

            NumberAnimation on opacity {
                id: fade
                duration: 900
                easing.type: Easing.InOutSine
                from: 0.25
                running: false
                to: 1
            }
        }

        OVText {
            Accessible.ignored: true
            anchors.horizontalCenter: parent.horizontalCenter
            color: root.ink
            role: OVText.Body
            text: breath.secondsLeft
        }

        OVText {
            Accessible.ignored: true
            anchors.horizontalCenter: parent.horizontalCenter
            color: root.ink
            role: OVText.Caption
            text: qsTr("Follow the circle")
            visible: breath.smooth
        }
    }
}
