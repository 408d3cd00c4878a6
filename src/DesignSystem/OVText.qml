import QtQuick
import Orvel.DesignSystem

/// A piece of text in one of the type roles. What does not fit is elided, and the whole text shows as a tooltip.
Text {
    id: root

    enum Role { Body, Dense, Caption, Section, CardTitle, ScreenTitle, Tile, Code }

    property int role: OVText.Body
    /// The whole text as the tooltip shows it: without the marks of a styled text.
    property string plainText: text
    property QtObject elisionTip: null

    onTruncatedChanged: {
        if (truncated && elisionTip === null)
            elisionTip = Qt.createComponent("OVElisionTip.qml").createObject(root, { label: root })
    }

    color: role === OVText.Caption ? Theme.ovInkTertiary
         : role === OVText.Section ? Theme.ovInkSecondary : Theme.ovInk
    elide: Text.ElideRight
    font.family: role === OVText.Code ? Theme.codeFamily : Theme.fontFamily
    font.letterSpacing: role === OVText.ScreenTitle ? -0.4 * Theme.fontScale : 0
    font.pixelSize: {
        switch (role) {
        case OVText.Dense: return Theme.sizeDense
        case OVText.Caption: return Theme.sizeCaption
        case OVText.Section: return Theme.sizeSection
        case OVText.CardTitle: return Theme.sizeCardTitle
        case OVText.ScreenTitle: return Theme.sizeScreenTitle
        case OVText.Tile: return Theme.sizeTile
        case OVText.Code: return Theme.sizeCode
        default: return Theme.sizeBody
        }
    }
    font.weight: role >= OVText.Section && role <= OVText.Tile ? Font.DemiBold : Theme.textWeight
    lineHeight: wrapMode === Text.NoWrap ? 1 : 1.35
    textFormat: Text.PlainText
    verticalAlignment: Text.AlignVCenter
    Accessible.name: plainText
    Accessible.role: Accessible.StaticText
}
