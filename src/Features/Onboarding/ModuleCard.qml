import QtQuick
import Orvel.DesignSystem

/// A module to keep or to hide.
OVPressable {
    id: root

    required property string symbol
    required property string blurb

    bottomPadding: topPadding
    leftPadding: Theme.space12
    rightPadding: Theme.space12
    topPadding: Theme.space8
    Accessible.checkable: true
    Accessible.checked: checked
    Accessible.description: blurb
    OVAccessible.role: Accessible.CheckBox

    background: Rectangle {
        border.color: root.hovered ? Theme.ovBorderStrong : Theme.ovBorder
        border.width: Theme.lineWidth
        color: root.checked ? Theme.ovSubtle : Theme.ovSurface
        radius: root.radius

        Behavior on color {
            ColorAnimation { duration: Theme.durationHover }
        }
    }
    contentItem: Item {
        implicitHeight: words.height

        OVIcon {
            id: icon

            color: root.checked ? Theme.ovInk : Theme.ovInkTertiary
            filled: root.checked
            size: Theme.iconButton
            symbol: root.symbol
            y: Math.round((name.height - height) / 2)
        }

        Column {
            id: words

            spacing: 2
            width: parent.width

            Item {
                height: name.height
                width: parent.width

                OVText {
                    id: name

                    anchors.left: parent.left
                    anchors.leftMargin: icon.width + Theme.space8
                    anchors.right: box.left
                    anchors.rightMargin: Theme.space4
                    color: root.checked ? Theme.ovInk : Theme.ovInkSecondary
                    font.weight: Font.Medium
                    role: OVText.Dense
                    text: root.text
                    Accessible.ignored: true
                }

                Rectangle {
                    id: box

                    anchors.right: parent.right
                    anchors.verticalCenter: parent.verticalCenter
                    border.color: Theme.ovBorderStrong
                    border.width: root.checked ? 0 : Theme.lineWidth
                    color: root.checked ? Theme.accent : "transparent"
                    height: width
                    radius: width / 2
                    width: Theme.iconRow

                    OVIcon {
                        anchors.centerIn: parent
                        color: Theme.onAccent
                        size: Theme.iconRow - 6
                        symbol: "checkmark"
                        visible: root.checked
                    }
                }
            }

            // Two lines for all, so that the cards of a row are one height.
            Item {
                height: 2 * line.implicitHeight
                width: parent.width

                OVText {
                    id: line

                    font.pixelSize: Theme.sizeCaption
                    lineHeight: description.lineHeight
                    text: " "
                    visible: false
                }

                OVText {
                    id: description

                    color: Theme.ovInkSecondary
                    maximumLineCount: 2
                    opacity: root.checked ? 1 : 0.8
                    role: OVText.Caption
                    text: root.blurb
                    width: parent.width
                    wrapMode: Text.Wrap
                    Accessible.ignored: true
                }
            }
        }
    }
}
