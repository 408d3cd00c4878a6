import QtQuick
import QtQuick.Layouts
import Orvel.DesignSystem

/// The title of a screen with the line below it. What is put into it stands at its right end.
RowLayout {
    id: root

    property string title
    property string subtitle
    property string symbol
    default property alias trailing: trailing.data

    spacing: Theme.space16

    ColumnLayout {
        Layout.fillWidth: true
        spacing: Theme.space4

        RowLayout {
            Layout.fillWidth: true
            spacing: Theme.space12

            OVIcon {
                Layout.alignment: Qt.AlignVCenter
                color: Theme.accentIcons ? Theme.accent : Theme.ovInk
                size: Theme.iconTile
                symbol: root.symbol
                visible: root.symbol !== ""
            }

            OVText {
                Layout.fillWidth: true
                fontSizeMode: Text.HorizontalFit
                minimumPixelSize: Theme.sizeCardTitle
                role: OVText.ScreenTitle
                text: root.title
                Accessible.role: Accessible.Heading
            }
        }

        OVText {
            Layout.fillWidth: true
            color: Theme.ovInkSecondary
            lineHeight: 1
            maximumLineCount: 2
            text: root.subtitle
            visible: text !== ""
            wrapMode: Text.Wrap
        }
    }

    RowLayout {
        id: trailing

        Layout.alignment: Qt.AlignBottom
        spacing: Theme.space8
    }
}
