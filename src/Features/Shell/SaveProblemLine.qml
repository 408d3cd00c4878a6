import QtQuick
import Orvel.DesignSystem
import Orvel.Session

/// One quiet line about the workspace file: that it is not saved, as long as that lasts, or else what happened to the
/// file, until the user dismisses it. Without either it takes no room.
Item {
    id: root

    readonly property SaveScheduler saves: Orvel.store.saves
    readonly property bool isProblem: saves.problem !== ""
    readonly property string message: isProblem ? saves.problem : saves.notice

    implicitHeight: visible ? Math.max(Theme.rowHeight, label.implicitHeight) + 2 * Theme.space4 : 0
    visible: message !== ""
    Accessible.name: message
    Accessible.role: Accessible.AlertMessage

    Rectangle {
        anchors.fill: parent
        color: Theme.ovSurface
    }

    OVDivider {
        anchors { left: parent.left; right: parent.right; top: parent.top }
    }

    OVIcon {
        id: icon
        anchors { left: parent.left; leftMargin: Theme.space16; verticalCenter: parent.verticalCenter }
        color: root.isProblem ? Theme.ovWarning : Theme.ovInkSecondary
        size: Theme.iconRow
        symbol: root.isProblem ? "exclamationmark.triangle" : "info.circle"
    }

    OVText {
        id: label
        anchors {
            left: icon.right
            leftMargin: Theme.space8
            right: dismiss.left
            rightMargin: Theme.space8
            verticalCenter: parent.verticalCenter
        }
        role: OVText.Dense
        text: root.message
        wrapMode: Text.Wrap
        Accessible.ignored: true
    }

    OVIconButton {
        id: dismiss
        objectName: "dismiss"
        anchors { right: parent.right; rightMargin: Theme.space8; verticalCenter: parent.verticalCenter }
        symbol: "xmark"
        text: qsTr("Dismiss")
        visible: !root.isProblem
        width: visible ? implicitWidth : 0
        onClicked: root.saves.dismissNotice()
    }
}
