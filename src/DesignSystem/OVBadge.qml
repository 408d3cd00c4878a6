import QtQuick
import Orvel.DesignSystem

/// A small coloured label. The tones are those of the C++ `BadgeTone`, in its order.
Rectangle {
    id: root

    enum Tone { Neutral, Info, Warning, Success, Danger }

    property int tone: OVBadge.Neutral
    property string text
    property string symbol
    property alias capitalization: content.capitalization

    readonly property OVToneColors colors: OVToneColors { tone: root.tone }

    border.color: Theme.inkMode ? Theme.ovBorderStrong : "transparent"
    border.width: Theme.inkMode ? Theme.lineWidth : 0
    color: colors.fill
    implicitHeight: content.implicitHeight + 6
    implicitWidth: content.implicitWidth + Theme.space8 * 2
    radius: Theme.cornerMark
    Accessible.name: text
    Accessible.role: Accessible.StaticText

    OVButtonContent {
        id: content

        anchors.centerIn: parent
        color: root.colors.ink
        iconSize: Theme.sizeCaption + 1
        symbol: root.symbol
        text: root.text
        textSize: Theme.sizeCaption
        width: Math.min(implicitWidth, root.width - Theme.space8 * 2)
    }
}
