import QtQuick
import QtQuick.Templates as T
import Orvel.DesignSystem

/// A short message at the lower edge of the window, which goes by itself; a later one replaces an earlier
/// one. It can offer one action, such as undo. The keyboard never goes there, and it stays while the pointer is
/// over it.
T.Popup {
    id: toast

    property string text: ""
    property string symbol: ""
    property string actionText: ""
    /// In milliseconds.
    property int duration: actionText === "" ? Theme.toastDuration : Theme.toastActionDuration
    /// Height of what stands at the lower edge of the window, which the toast stays clear of.
    property real lift: 0

    signal actionTriggered()

    /// Shows the message, with an optional action.
    function show(text: string, actionText = "") {
        toast.text = text
        toast.actionText = actionText
        open()
        if (timer.running)
            timer.restart()
    }

    parent: T.Overlay.overlay
    x: Math.round((parent.width - width) / 2)
    y: parent.height - implicitHeight - Theme.space32 - lift + rise
    width: Math.min(implicitWidth, parent.width - 2 * Theme.space16)
    implicitWidth: contentWidth + leftPadding + rightPadding
    implicitHeight: contentHeight + topPadding + bottomPadding
    horizontalPadding: Theme.space16
    verticalPadding: Theme.space8
    closePolicy: T.Popup.NoAutoClose
    OVAccessible.name: text
    OVAccessible.role: Accessible.AlertMessage

    property real rise: 0

    background: OVPopupSurface { radius: Math.min(height / 2, Theme.cornerSheet) }
    enter: OVEnter { rises: true }
    exit: OVExit { sinks: true }

    contentItem: Item {
        implicitWidth: icon.span + message.implicitWidth + (action.visible ? action.width + Theme.space16 : 0)
        implicitHeight: Math.max(message.implicitHeight, Theme.rowHeight)

        HoverHandler { id: pointer }

        OVIcon {
            id: icon
            readonly property real span: visible ? width + Theme.space8 : 0
            anchors.verticalCenter: parent.verticalCenter
            visible: toast.symbol !== ""
            symbol: toast.symbol
            size: Theme.iconRow
            color: Theme.ovInkSecondary
        }

        OVText {
            id: message
            x: icon.span
            width: parent.width - x - (action.visible ? action.width + Theme.space16 : 0)
            anchors.verticalCenter: parent.verticalCenter
            text: toast.text
            role: OVText.Dense
        }

        OVSecondaryButton {
            id: action
            objectName: "action"
            anchors.right: parent.right
            anchors.rightMargin: -Theme.space8
            anchors.verticalCenter: parent.verticalCenter
            tabStop: false
            visible: toast.actionText !== ""
            text: toast.actionText
            onClicked: {
                toast.close()
                toast.actionTriggered()
            }
        }
    }

    Timer {
        id: timer
        interval: toast.duration
        running: toast.visible && !pointer.hovered
        onTriggered: toast.close()
    }
}
