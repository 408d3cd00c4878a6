import QtQuick
import Orvel.DesignSystem

/// The dimmed window behind a dialog or a sheet.
Rectangle {
    color: Theme.ovScrim

    Behavior on opacity {
        NumberAnimation { duration: Theme.durationScreen }
    }
}
