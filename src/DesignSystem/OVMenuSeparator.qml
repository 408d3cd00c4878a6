import QtQuick
import QtQuick.Templates as T
import Orvel.DesignSystem

/// A hair line between groups of menu entries.
T.MenuSeparator {
    id: separator

    implicitWidth: leftPadding + rightPadding
    implicitHeight: topPadding + bottomPadding + Theme.lineWidth
    topPadding: Theme.space4
    bottomPadding: Theme.space4
    leftPadding: Theme.space12
    rightPadding: Theme.space12

    contentItem: Rectangle {
        implicitHeight: Theme.lineWidth
        color: Theme.ovBorder
    }
}
