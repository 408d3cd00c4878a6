import QtQuick
import Orvel.DesignSystem

/// The colours of a tone: of what lies under words in it, and of the words.
QtObject {
    /// An `OVBadge.Tone`.
    required property int tone

    readonly property color tint: [Theme.ovInkSecondary, Theme.ovInfo, Theme.ovWarning, Theme.ovSuccess,
                                   Theme.ovDanger][tone]
    readonly property color fill: Theme.inkMode ? "transparent"
                                : tone === OVBadge.Neutral ? Theme.ovSubtle : Qt.alpha(tint, Theme.dark ? 0.16 : 0.12)
    // Pure tones are too light to read on their own wash.
    readonly property color ink: tone === OVBadge.Neutral ? Theme.ovInkSecondary : Qt.tint(tint, Qt.alpha(Theme.ovInk, 0.4))
}
