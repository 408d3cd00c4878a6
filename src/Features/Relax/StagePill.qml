import QtQuick
import Orvel.DesignSystem

/// A label on the stage. A scene has the same colours in every appearance, and so has what stands on it.
Rectangle {
    id: root

    property string symbol
    property string text
    readonly property color ink: Qt.rgba(1, 1, 1, 0.94)

    Accessible.name: text
    Accessible.role: Accessible.StaticText
    color: Qt.rgba(0, 0, 0, 0.42)
    implicitHeight: content.implicitHeight + Theme.space8
    implicitWidth: content.implicitWidth + 2 * Theme.space12
    radius: height / 2

    OVButtonContent {
        id: content
        anchors.centerIn: parent
        color: root.ink
        iconSize: Theme.sizeBody
        symbol: root.symbol
        text: root.text
        textSize: Theme.sizeCaption
    }
}
