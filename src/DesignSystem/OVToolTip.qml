pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Orvel.DesignSystem

/// A word of explanation by the pointer. It costs next to nothing until it shows.
OVLazyLoader {
    id: root

    property string text
    /// Whether it is wanted; it shows after a while of that.
    property bool shown: false
    /// What it explains; it shows below, or above where there is no room.
    property Item target: parent as Item

    onShownChanged: if (!shown) active = false

    visible: false

    sourceComponent: T.ToolTip {
        id: bubble

        bottomPadding: 5
        closePolicy: T.Popup.NoAutoClose
        delay: 0
        implicitHeight: contentItem.implicitHeight + topPadding + bottomPadding
        implicitWidth: Math.min(contentItem.implicitWidth, Theme.fieldWidth * 4 / 3) + leftPadding + rightPadding
        leftPadding: 8
        margins: 8
        parent: root.target
        rightPadding: 8
        text: DisplayText.shown(root.text)
        timeout: -1
        topPadding: 5
        visible: true
        x: root.target ? Math.round((root.target.width - width) / 2) : 0
        y: root.target ? root.target.height + 6 : 0

        background: Rectangle {
            border.color: Theme.ovBorderStrong
            border.width: Theme.inkMode ? Theme.lineWidth : 0
            color: Theme.inkMode ? Theme.ovSurface : Theme.dark ? Theme.ovBorderStrong : Theme.ovInk
            radius: Theme.cornerMark
        }
        contentItem: Text {
            color: Theme.inkMode || Theme.dark ? Theme.ovInk : Theme.ovCanvas
            font.family: Theme.fontFamily
            font.pixelSize: Theme.sizeCaption
            text: bubble.text
            textFormat: Text.PlainText
            elide: Text.ElideRight
            maximumLineCount: 12
            wrapMode: Text.Wrap
        }
        enter: Transition {
            NumberAnimation { property: "opacity"; from: 0; to: 1; duration: Theme.durationMenu }
        }
        exit: Transition {
            NumberAnimation { property: "opacity"; to: 0; duration: Theme.durationMenu }
        }
    }

    Timer {
        interval: Theme.tooltipDelay
        running: root.shown && root.text !== "" && !root.active
        onTriggered: root.active = true
    }
}
