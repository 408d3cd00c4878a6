import QtQuick
import Orvel.DesignSystem

/// The text of a control with an optional quieter line below it, centred in the height it is given.
Item {
    id: pair

    property string title: ""
    property string detail: ""
    property alias font: titleText.font
    property real leftPadding: 0
    property real rightPadding: 0

    implicitWidth: leftPadding + Math.max(titleText.implicitWidth, detailText.implicitWidth) + rightPadding
    implicitHeight: column.implicitHeight

    Column {
        id: column
        x: pair.leftPadding
        width: pair.width - pair.leftPadding - pair.rightPadding
        anchors.verticalCenter: parent.verticalCenter
        spacing: 2

        OVText {
            id: titleText
            width: parent.width
            visible: text !== ""
            text: pair.title
            color: Theme.ovInk
            Accessible.ignored: true
        }

        OVText {
            id: detailText
            width: parent.width
            visible: text !== ""
            text: pair.detail
            role: OVText.Caption
            color: Theme.ovInkSecondary
            wrapMode: Text.Wrap
            Accessible.ignored: true
        }
    }
}
