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
                /// Whether it is too long for one line even in the smaller size.
                readonly property bool breaks: oneLine.advanceWidth * Theme.sizeCardTitle > width * Theme.sizeScreenTitle

                Layout.fillWidth: true
                // Else it counts on the one line that it had before.
                elide: breaks ? Text.ElideNone : Text.ElideRight
                fontSizeMode: breaks ? Text.FixedSize : Text.HorizontalFit
                lineHeight: 1
                maximumLineCount: breaks ? 3 : 1
                minimumPixelSize: Theme.sizeCardTitle
                role: breaks ? OVText.CardTitle : OVText.ScreenTitle
                text: root.title
                wrapMode: breaks ? Text.Wrap : Text.NoWrap
                Accessible.role: Accessible.Heading

                TextMetrics {
                    id: oneLine
                    font.family: Theme.fontFamily
                    font.pixelSize: Theme.sizeScreenTitle
                    font.weight: Font.DemiBold
                    text: root.title
                }
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
