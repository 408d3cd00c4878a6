import QtQuick
import QtQuick.Templates as T
import Orvel.DesignSystem

/// A question or a message in the middle of the window. Return takes the main button, Escape the other one.
/// Further content goes below the message.
T.Dialog {
    id: dialog

    readonly property OVFocusReturn focusReturn: OVFocusReturn { popup: dialog }
    property string message: ""
    property string acceptText: qsTr("OK")
    /// Empty for a dialog with one button.
    property string rejectText: ""
    /// Whether accepting takes something away.
    property bool destructive: false
    property bool acceptEnabled: true
    /// Whether the focus is on the other button at first, so that Return takes nothing away.
    property bool cautious: false
    default property alias content: extra.data
    property real rise: 0

    function acceptByKey() {
        // A key that the other button left alone is not meant for this one.
        if (acceptEnabled && !rejectButton.activeFocus)
            acceptButton.activate()
    }

    parent: T.Overlay.overlay
    x: Math.round((parent.width - width) / 2)
    y: Math.round((parent.height - height) / 2) + rise
    width: Math.min(Theme.dialogWidth, parent.width - 2 * Theme.space16)
    implicitHeight: contentHeight + topPadding + bottomPadding
    padding: Theme.space24
    modal: true
    focus: true
    closePolicy: T.Popup.CloseOnEscape
    // It would open with the focus where it was when it closed.
    onAboutToShow: {
        if (cautious)
            rejectButton.focus = true
    }
    OVAccessible.name: title
    OVAccessible.role: Accessible.AlertMessage

    T.Overlay.modal: OVScrim { }
    background: OVPopupSurface { radius: Theme.cornerSheet }
    enter: OVEnter { rises: true }
    exit: OVExit { sinks: true }

    contentItem: Column {
        spacing: Theme.space8

        Keys.onReturnPressed: dialog.acceptByKey()
        Keys.onEnterPressed: dialog.acceptByKey()

        OVText {
            width: parent.width
            visible: text !== ""
            text: dialog.title
            role: OVText.CardTitle
            wrapMode: Text.Wrap
        }

        OVText {
            width: parent.width
            visible: text !== ""
            text: dialog.message
            color: Theme.ovInkSecondary
            wrapMode: Text.Wrap
        }

        FocusScope {
            id: scope
            width: parent.width
            height: extra.height
            visible: extra.children.length > 0
            focus: visible

            Column {
                id: extra
                width: parent.width
                topPadding: Theme.space8
                spacing: Theme.space12
            }
        }

        Row {
            anchors.right: parent.right
            topPadding: Theme.space16
            spacing: Theme.space8

            OVSecondaryButton {
                id: rejectButton
                visible: dialog.rejectText !== ""
                text: dialog.rejectText
                onClicked: dialog.reject()
            }

            OVPrimaryButton {
                id: acceptButton
                text: dialog.acceptText
                destructive: dialog.destructive
                focus: !scope.visible && !dialog.cautious
                enabled: dialog.acceptEnabled
                onClicked: dialog.accept()
            }
        }
    }
}
