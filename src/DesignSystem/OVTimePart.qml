import QtQuick
import Orvel.DesignSystem

/// The hours or the minutes of a time picker.
Item {
    id: root

    required property ClockTime clock
    required property int part
    property string text: ""
    property string name: ""

    /// No further digit fits.
    signal finished()
    signal accepted()

    implicitWidth: Math.round(Theme.sizeCardTitle * 3)
    implicitHeight: column.implicitHeight
    activeFocusOnTab: true

    Accessible.role: Accessible.SpinBox
    Accessible.name: name
    Accessible.description: text
    Accessible.focusable: true
    Accessible.onIncreaseAction: clock.step(part, 1)
    Accessible.onDecreaseAction: clock.step(part, -1)

    onActiveFocusChanged: clock.endTyping()
    Keys.onUpPressed: clock.step(part, 1)
    Keys.onDownPressed: clock.step(part, -1)
    Keys.onReturnPressed: accepted()
    Keys.onEnterPressed: accepted()
    Keys.onPressed: event => {
        const isDigit = event.text.length === 1 && event.text >= "0" && event.text <= "9"
        if (isDigit) {
            if (clock.typeDigit(part, Number(event.text)))
                finished()
        } else if (event.key === Qt.Key_PageUp) {
            clock.step(part, 10)
        } else if (event.key === Qt.Key_PageDown) {
            clock.step(part, -10)
        }
        event.accepted = isDigit || event.key === Qt.Key_PageUp || event.key === Qt.Key_PageDown
    }

    Column {
        id: column
        width: parent.width

        OVIconButton {
            anchors.horizontalCenter: parent.horizontalCenter
            symbol: "chevron.up"
            text: qsTr("Later")
            tabStop: false
            autoRepeat: true
            onClicked: root.clock.step(root.part, 1)
        }

        Rectangle {
            width: parent.width
            height: Math.max(Theme.fieldHeight, digits.implicitHeight + Theme.space8)
            radius: Theme.cornerField
            color: root.activeFocus ? Theme.ovHover : Theme.ovSubtle
            border.width: root.activeFocus ? 2 : Theme.lineWidth
            border.color: root.activeFocus ? Theme.focusRing : Theme.ovBorder

            OVText {
                id: digits
                anchors.centerIn: parent
                text: root.text
                role: OVText.CardTitle
                Accessible.ignored: true
            }

            TapHandler {
                onTapped: root.forceActiveFocus(Qt.MouseFocusReason)
            }
        }

        OVIconButton {
            anchors.horizontalCenter: parent.horizontalCenter
            symbol: "chevron.down"
            text: qsTr("Earlier")
            tabStop: false
            autoRepeat: true
            onClicked: root.clock.step(root.part, -1)
        }
    }

    OVWheelSteps {
        onStepped: steps => root.clock.step(root.part, steps)
    }
}
