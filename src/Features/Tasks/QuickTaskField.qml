import QtQuick
import Orvel.DesignSystem
import Orvel.Session

/// A field for tasks as they come to mind: it is ready for the next one at once.
FocusScope {
    id: root

    property string placeholderText: qsTr("New task")

    function submit() {
        if (TaskActions.add(field.text))
            field.clear()
        field.forceActiveFocus(Qt.OtherFocusReason)
    }

    implicitHeight: Math.max(field.implicitHeight, button.implicitHeight)

    OVTextField {
        id: field
        anchors.verticalCenter: parent.verticalCenter
        focus: true
        placeholderText: root.placeholderText
        symbol: "plus"
        width: button.x - Theme.space8
        onAccepted: root.submit()
    }

    OVPrimaryButton {
        id: button
        anchors.right: parent.right
        anchors.verticalCenter: parent.verticalCenter
        enabled: !TaskActions.isBlank(field.text)
        symbol: "checkmark"
        text: qsTr("Add task")
        onClicked: root.submit()
    }
}
