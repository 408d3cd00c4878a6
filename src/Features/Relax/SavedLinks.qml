pragma ComponentBehavior: Bound

import QtQuick
import Orvel.DesignSystem
import Orvel.Relax

/// The saved links as chips, one stop for Tab.
FocusScope {
    id: root

    required property VideoPanelViewModel video
    property int current: 0

    function focusLink(index: int) {
        current = Math.max(0, Math.min(index, chips.count - 1))
        if (chips.count > 0)
            chips.itemAt(current).forceActiveFocus(Qt.TabFocusReason)
    }

    /// Deletes a link; the focus goes to its neighbour.
    function remove(index: int, linkID: var) {
        const hadFocus = activeFocus
        video.deleteLink(linkID)
        if (hadFocus)
            Qt.callLater(focusLink, index)
    }

    implicitHeight: flow.implicitHeight

    Flow {
        id: flow
        Accessible.name: qsTr("Saved links")
        Accessible.role: Accessible.List
        spacing: Theme.space8
        width: root.width

        Repeater {
            id: chips
            model: root.video.links

            FocusScope {
                id: chip

                required property int index
                required property var linkID
                required property string name
                required property string url
                required property bool isActive

                Keys.onDeletePressed: root.remove(index, linkID)
                Keys.onLeftPressed: root.focusLink(index - 1)
                Keys.onRightPressed: root.focusLink(index + 1)
                implicitHeight: Theme.chipHeight
                implicitWidth: Math.min(play.implicitWidth, flow.width)

                onActiveFocusChanged: {
                    if (activeFocus)
                        root.current = index
                }

                OVChip {
                    id: play
                    OVAccessible.role: Accessible.Button
                    checked: chip.isActive
                    focus: true
                    height: parent.height
                    rightPadding: erase.width + Theme.space4
                    symbol: chip.isActive ? "waveform" : "play"
                    tabStop: chip.index === root.current || activeFocus
                    text: chip.name
                    toolTip: chip.url
                    width: parent.width
                    onClicked: root.video.playLink(chip.linkID)
                }

                OVIconButton {
                    id: erase
                    Accessible.name: qsTr("Delete: %1").arg(chip.name)
                    anchors.right: parent.right
                    anchors.verticalCenter: parent.verticalCenter
                    height: Theme.chipHeight
                    iconSize: Theme.sizeCaption
                    radius: height / 2
                    symbol: "xmark"
                    tabStop: false
                    text: qsTr("Delete this link")
                    width: height
                    onClicked: root.remove(chip.index, chip.linkID)
                }
            }
        }
    }
}
