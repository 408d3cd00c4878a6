import QtQuick
import Orvel.DesignSystem

/// One number of the day.
Rectangle {
    id: root

    required property string label
    required property string symbol
    required property int value

    border.color: Theme.ovBorder
    border.width: Theme.lineWidth
    color: Theme.ovSubtle
    implicitHeight: column.implicitHeight + 2 * Theme.space8
    radius: Theme.cornerField
    Accessible.name: qsTr("%1, %2").arg(label).arg(value)
    Accessible.role: Accessible.StaticText

    Column {
        id: column

        anchors.centerIn: parent
        spacing: 2
        width: parent.width - Theme.space8

        Row {
            anchors.horizontalCenter: parent.horizontalCenter
            spacing: Theme.space4

            OVIcon {
                anchors.verticalCenter: parent.verticalCenter
                size: Theme.sizeBody
                symbol: root.symbol
            }

            OVAnimatedNumber {
                role: OVText.CardTitle
                text: String(root.value)
                Accessible.ignored: true
            }
        }

        OVText {
            color: Theme.ovInkSecondary
            font.pixelSize: Theme.sizeCaption
            horizontalAlignment: Text.AlignHCenter
            text: root.label
            width: parent.width
            Accessible.ignored: true
        }
    }
}
