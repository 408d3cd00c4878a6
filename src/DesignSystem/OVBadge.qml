import QtQuick
import Orvel.DesignSystem

/// A small coloured label. The tones are those of the C++ `BadgeTone`, in its order.
Rectangle {
    id: root

    enum Tone { Neutral, Info, Warning, Success, Danger }

    property int tone: OVBadge.Neutral
    property string text
    property string symbol

    readonly property color toneColor: [Theme.ovInkSecondary, Theme.ovInfo, Theme.ovWarning, Theme.ovSuccess,
                                        Theme.ovDanger][tone]
    // Pure tones are too light to read on their own wash.
    readonly property color inkColor: tone === OVBadge.Neutral ? Theme.ovInkSecondary
                                                               : Qt.tint(toneColor, Qt.alpha(Theme.ovInk, 0.4))

    border.color: Theme.inkMode ? Theme.ovBorderStrong : "transparent"
    border.width: Theme.inkMode ? Theme.lineWidth : 0
    color: Theme.inkMode ? "transparent"
         : tone === OVBadge.Neutral ? Theme.ovSubtle : Qt.alpha(toneColor, Theme.dark ? 0.16 : 0.12)
    implicitHeight: content.implicitHeight + 6
    implicitWidth: content.implicitWidth + Theme.space8 * 2
    radius: Theme.cornerMark
    Accessible.name: text
    Accessible.role: Accessible.StaticText

    OVButtonContent {
        id: content

        anchors.centerIn: parent
        color: root.inkColor
        iconSize: Theme.sizeCaption + 1
        symbol: root.symbol
        text: root.text
        textSize: Theme.sizeCaption
        width: Math.min(implicitWidth, root.width - Theme.space8 * 2)
    }
}
