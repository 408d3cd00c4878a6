pragma ComponentBehavior: Bound

import QtQuick
import Orvel.DesignSystem

/// A number whose digits roll to their new values. All digits are equally wide, so nothing jumps; signs such as
/// those of "2/5", "24:59" or "80%" stand between them.
Item {
    id: root

    property string text
    property alias color: sample.color
    property alias role: sample.role
    property alias font: sample.font

    implicitHeight: sample.implicitHeight
    implicitWidth: cells.implicitWidth
    Accessible.name: text
    Accessible.role: Accessible.StaticText

    OVText {
        id: sample

        role: OVText.Tile
        text: "0"
        visible: false
    }

    FontMetrics {
        id: metrics

        // The widest digit of every family at hand.
        readonly property real digitWidth: Math.ceil(Math.max(advanceWidth("0"), advanceWidth("4"), advanceWidth("8")))

        font: sample.font
    }

    Row {
        id: cells

        height: root.implicitHeight
        layoutDirection: Qt.RightToLeft

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
                width: isDigit ? metrics.digitWidth : other.implicitWidth

                OVText {
                    id: other

                    color: sample.color
                    font: sample.font
                    height: cell.height
                    text: cell.character
                    visible: !cell.isDigit
                    Accessible.ignored: true
                }

                Column {
                    visible: cell.isDigit
                    y: cell.isDigit ? -cell.height * Number(cell.character) : 0

                    Behavior on y {
                        NumberAnimation { duration: Theme.durationSpring; easing.type: Easing.OutCubic }
                    }

                    Repeater {
                        model: cell.isDigit ? 10 : 0

                        OVText {
                            required property int index

                            color: sample.color
                            font: sample.font
                            height: cell.height
                            horizontalAlignment: Text.AlignHCenter
                            text: index
                            width: cell.width
                            Accessible.ignored: true
                        }
                    }
                }
            }
        }
    }
}
