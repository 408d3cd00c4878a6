import QtQuick
import QtQuick.Templates as T
import Orvel.DesignSystem

/// A short message at the lower edge of the window, which goes by itself; a later one replaces an earlier
/// one. It can offer one action, such as taking back what was just done.
T.Popup {
    id: toast

    property string text: ""
    property string symbol: ""
    property string actionText: ""
    property int duration: Theme.toastDuration

    signal actionTriggered()

    /// Shows the message, with an optional action.
    function show(text, actionText) {
        toast.text = text
        toast.actionText = actionText ?? ""
        open()
        timer.restart()
    }

    parent: T.Overlay.overlay
    x: Math.round((parent.width - width) / 2)
    y: parent.height - height - Theme.space32 + rise
    width: Math.min(implicitWidth, parent.width - 2 * Theme.space16)
    implicitWidth: contentWidth + leftPadding + rightPadding
    implicitHeight: contentHeight + topPadding + bottomPadding
    horizontalPadding: Theme.space16
    verticalPadding: Theme.space8
    closePolicy: T.Popup.NoAutoClose

    property real rise: 0

    background: OVPopupSurface { radius: Math.min(height / 2, Theme.cornerSheet) }
    enter: OVSheetEnter { }
    exit: OVSheetExit { }

    contentItem: Item {
        implicitWidth: icon.span + message.implicitWidth + (action.visible ? action.width + Theme.space16 : 0)
        implicitHeight: Math.max(message.implicitHeight, Theme.rowHeight)

        Accessible.role: Accessible.AlertMessage
        Accessible.name: toast.text

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
            Accessible.ignored: true
        }

        OVSecondaryButton {
            id: action
            objectName: "action"
            anchors.right: parent.right
            anchors.rightMargin: -Theme.space8
            anchors.verticalCenter: parent.verticalCenter
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
        onTriggered: toast.close()
    }
}
