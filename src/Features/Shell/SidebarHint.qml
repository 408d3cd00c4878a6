import QtQuick
import Orvel.DesignSystem

/// The quiet line where there are no pages yet; pressing it makes the first.
OVPressable {
    id: root

    required property int index
    required property string title

    /// The row has the focus by keys.
    signal ringShown

    onVisualFocusChanged: if (visualFocus) ringShown()

    clickFocus: true
    leftPadding: Theme.space8 + 2
    rightPadding: Theme.space8 + 2
    bottomPadding: Theme.space8
    topPadding: Theme.space8
    pressedScale: 1
    tabStop: ListView.isCurrentItem || activeFocus
    text: title
    Accessible.name: text
    OVAccessible.role: Accessible.ListItem

    contentItem: OVText {
        color: root.hovered ? Theme.ovInkSecondary : Theme.ovInkTertiary
        role: OVText.Caption
        text: root.text
        wrapMode: Text.Wrap
        Accessible.ignored: true
    }
}
