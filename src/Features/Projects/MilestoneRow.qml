import QtQuick
import Orvel.DesignSystem
import Orvel.Projects

/// A step of a project: Space or a click marks it, Delete takes it away.
OVCardListRow {
    id: line

    required property ProjectDetailViewModel viewModel
    required property var milestoneID
    required property string title
    required property bool done

    function remove() {
        stepAside()
        viewModel.removeMilestone(milestoneID)
    }

    Accessible.checkable: true
    Accessible.checked: done
    Accessible.name: title
    Accessible.role: Accessible.CheckBox
    Accessible.onToggleAction: activated()
    Keys.onDeletePressed: remove()
    Keys.onSpacePressed: activated()
    onActivated: viewModel.toggleMilestone(milestoneID)

    OVCheckBox {
        id: box
        anchors.verticalCenter: parent.verticalCenter
        activeFocusOnTab: false
        checked: line.done
        focusPolicy: Qt.NoFocus
        width: indicator.width
        Accessible.ignored: true
        onToggled: {
            line.activated()
            checked = Qt.binding(() => line.done)
        }
    }

    OVText {
        anchors.left: box.right
        anchors.leftMargin: Theme.space12
        anchors.right: bin.left
        anchors.rightMargin: Theme.space8
        anchors.verticalCenter: parent.verticalCenter
        color: line.done ? Theme.ovInkTertiary : Theme.ovInk
        font.strikeout: line.done
        text: DisplayText.shown(line.title)
        Accessible.ignored: true
    }

    OVIconButton {
        id: bin
        anchors.right: parent.right
        anchors.verticalCenter: parent.verticalCenter
        iconSize: Theme.iconRow
        opacity: line.hovered || line.visualFocus ? 1 : 0
        symbol: "xmark"
        tabStop: false
        text: qsTr("Delete")
        Accessible.name: qsTr("Delete: %1").arg(line.title)
        onClicked: line.remove()

        Behavior on opacity {
            NumberAnimation { duration: Theme.durationHover }
        }
    }
}
