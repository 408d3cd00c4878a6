import QtQuick
import QtQuick.Templates as T
import Orvel.DesignSystem

/// Offers a newer build, and shows how far its installation is. It cannot be left while that goes on.
OVSheet {
    id: prompt

    property string version
    /// What is new, as plain text.
    property string notes
    property bool installing: false
    /// From 0 to 1, and the same in words.
    property real progress: 0
    property string progressText
    /// Why the last try failed.
    property string error

    signal updateRequested
    signal laterRequested

    maximumWidth: Theme.promptWidth
    closePolicy: installing ? T.Popup.NoAutoClose : T.Popup.CloseOnEscape | T.Popup.CloseOnPressOutside
    accessibleName: heading.text
    // A user who is typing when it opens must not restart the program by the next Return or Space.
    onOpened: laterButton.forceActiveFocus(Qt.PopupFocusReason)

    Column {
        width: parent.width
        spacing: Theme.space8

        OVIcon {
            symbol: "arrow.down.circle"
            size: Theme.iconEmpty
            color: Theme.accent
        }

        OVText {
            id: heading
            width: parent.width
            text: qsTr("Orvel %1 is available").arg(prompt.version)
            role: OVText.CardTitle
            wrapMode: Text.Wrap
        }

        OVText {
            width: parent.width
            text: qsTr("A newer build is ready. Orvel will quit and reopen itself to finish updating.")
            color: Theme.ovInkSecondary
            wrapMode: Text.Wrap
        }
    }

    Column {
        width: parent.width
        spacing: Theme.space4
        visible: prompt.notes !== ""

        OVText {
            text: qsTr("WHAT'S NEW")
            role: OVText.Section
        }

        OVText {
            width: parent.width
            text: prompt.notes
            role: OVText.Dense
            elide: Text.ElideNone
            wrapMode: Text.Wrap
        }
    }

    footer: [
        Column {
            width: parent.width
            spacing: Theme.space8
            visible: prompt.installing

            OVProgressBar {
                width: parent.width
                value: prompt.progress
                Accessible.name: qsTr("Download")
            }

            OVText {
                width: parent.width
                text: prompt.progressText
                role: OVText.Dense
                color: Theme.ovInkSecondary
                wrapMode: Text.Wrap
            }
        },
        OVText {
            width: parent.width
            visible: text !== ""
            text: prompt.error
            role: OVText.Dense
            color: Theme.ovDanger
            wrapMode: Text.Wrap
            Accessible.role: Accessible.AlertMessage
        },
        Row {
            anchors.right: parent.right
            spacing: Theme.space8

            OVSecondaryButton {
                id: laterButton
                text: qsTr("Later")
                enabled: !prompt.installing
                onClicked: prompt.laterRequested()
            }

            OVPrimaryButton {
                text: prompt.installing ? qsTr("Updating…") : qsTr("Update & restart")
                enabled: !prompt.installing
                onClicked: prompt.updateRequested()
            }
        }
    ]
}
