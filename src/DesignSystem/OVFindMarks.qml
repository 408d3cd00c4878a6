import QtQuick
import Orvel.DesignSystem

/// The marks of a search behind a text.
OVTextMarks {
    color: Theme.inkMode ? Qt.alpha(Theme.ovInk, 0.14) : Qt.alpha(Theme.ovWarning, Theme.dark ? 0.3 : 0.25)
    currentColor: Theme.inkMode ? Qt.alpha(Theme.ovInk, 0.34) : Qt.alpha(Theme.ovWarning, 0.6)
    visible: marks.count > 0
}
