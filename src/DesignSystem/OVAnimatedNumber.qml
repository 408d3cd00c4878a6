pragma ComponentBehavior: Bound

import QtQuick
import Orvel.DesignSystem

/// A number whose digits roll to their new values. All digits are equally wide, so nothing jumps; signs such as
/// those of "2/5", "24:59" or "80%" stand between them.
Item {
    id: root

    property string text
    property alias color: reel.color
    property alias role: reel.role
    property alias font: reel.font
    /// Without it the digits change at once.
    property bool rolls: true

    readonly property string digits: "0\n1\n2\n3\n4\n5\n6\n7\n8\n9"

    implicitHeight: Math.ceil(metrics.height)
    implicitWidth: cells.implicitWidth
    Accessible.name: text
    Accessible.role: Accessible.StaticText

    // Never shown: its width is that of every digit.
    OVText {
        id: reel

        role: OVText.Tile
        text: "0"
        visible: false
    }

    FontMetrics {
        id: metrics

        font: reel.font
    }

    Row {
        id: cells

        height: root.implicitHeight
        layoutDirection: Qt.RightToLeft
        width: implicitWidth

        Repeater {
            // From the last digit to the first: a digit keeps its place when the number grows longer.
            model: root.text.length

            Item {
                id: cell

                required property int index
                readonly property string character: root.text.charAt(root.text.length - 1 - index)
                readonly property bool isDigit: character >= "0" && character <= "9"

                clip: isDigit
                height: cells.height
                width: isDigit ? reel.implicitWidth : label.implicitWidth

                Text {
                    id: label

                    color: reel.color
                    font: reel.font
                    horizontalAlignment: Text.AlignHCenter
                    lineHeight: cell.isDigit ? cell.height : 1
                    lineHeightMode: cell.isDigit ? Text.FixedHeight : Text.ProportionalHeight
                    text: cell.isDigit ? root.digits : cell.character
                    textFormat: Text.PlainText
                    width: cell.isDigit ? cell.width : implicitWidth
                    y: cell.isDigit ? -cell.height * Number(cell.character) : 0
                    Accessible.ignored: true

                    Behavior on y {
                        enabled: root.rolls
                        NumberAnimation { duration: Theme.durationSpring; easing.type: Easing.OutCubic }
                    }
                }
            }
        }
    }
}
