import QtQuick
import QtQuick.Layouts
import Orvel.DesignSystem

/// What stands where there is nothing yet: an icon, a title, a line and at most one action.
ColumnLayout {
    id: root

    property string symbol
    property string title
    property string message
    property string actionText
    property string actionSymbol

    signal actionTriggered

    spacing: Theme.space8

    Rectangle {
        Layout.alignment: Qt.AlignHCenter
        Layout.bottomMargin: Theme.space8
        color: Theme.ovSubtle
        implicitHeight: 72
        implicitWidth: 72
        radius: width / 2

        OVIcon {
            anchors.centerIn: parent
            color: Theme.accentIcons ? Theme.accent : Theme.ovInkSecondary
            size: Math.min(Theme.iconEmpty, 44)
            symbol: root.symbol
        }
    }

    OVText {
        Layout.fillWidth: true
        horizontalAlignment: Text.AlignHCenter
        role: OVText.CardTitle
        text: root.title
        wrapMode: Text.Wrap
    }

    OVText {
        Layout.alignment: Qt.AlignHCenter
        Layout.fillWidth: true
        Layout.maximumWidth: 420 * Theme.fontScale
        color: Theme.ovInkSecondary
        horizontalAlignment: Text.AlignHCenter
        text: root.message
        visible: text !== ""
        wrapMode: Text.Wrap
    }

    OVSecondaryButton {
        Layout.alignment: Qt.AlignHCenter
        Layout.topMargin: Theme.space8
        symbol: root.actionSymbol
        text: root.actionText
        visible: root.actionText !== ""
        onClicked: root.actionTriggered()
    }
}
