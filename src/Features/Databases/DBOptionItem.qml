import QtQuick
import QtQuick.Templates as T
import Orvel.DesignSystem

/// An option of several that can be chosen together. Unlike other entries it leaves its menu open.
T.ItemDelegate {
    id: item

    required property string title
    required property bool chosen

    activeFocusOnTab: true
    focusPolicy: Qt.TabFocus
    hoverEnabled: true
    implicitHeight: Theme.rowHeight
    implicitWidth: label.x + label.implicitWidth + leftPadding + rightPadding
    leftPadding: Theme.space12
    rightPadding: Theme.space12
    width: ListView.view?.width ?? implicitWidth
    Accessible.checkable: true
    Accessible.checked: chosen
    Accessible.name: title
    Keys.onEnterPressed: clicked()
    Keys.onReturnPressed: clicked()
    OVAccessible.role: Accessible.MenuItem

    background: Rectangle {
        color: item.down ? Theme.ovSubtle : Theme.ovHover
        opacity: item.hovered || item.activeFocus || item.down ? 1 : 0
        radius: Theme.cornerField
    }
    contentItem: Item {
        OVIcon {
            anchors.verticalCenter: parent.verticalCenter
            size: Theme.iconRow
            symbol: "checkmark"
            visible: item.chosen
        }

        OVText {
            id: label
            anchors.verticalCenter: parent.verticalCenter
            role: OVText.Dense
            text: item.title
            width: Math.min(implicitWidth, parent.width - x)
            x: Theme.iconRow + Theme.space8
            Accessible.ignored: true
        }
    }
}
