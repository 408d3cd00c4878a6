pragma ComponentBehavior: Bound

import QtQuick
import Orvel.DesignSystem
import Orvel.Relax

/// The scenes by their names on the stage, one stop for Tab.
Row {
    id: root

    required property RelaxViewModel relax

    function choose(index: int) {
        const next = Math.max(0, Math.min(index, names.count - 1))
        relax.scene = relax.scenes[next].raw
        names.itemAt(next).forceActiveFocus(Qt.TabFocusReason)
    }

    Accessible.name: qsTr("Scenes")
    Accessible.role: Accessible.Grouping
    spacing: Theme.space4

    Repeater {
        id: names
        model: root.relax.scenes

        OVPressable {
            id: name

            required property int index
            required property var modelData

            Accessible.checked: checked
            Keys.onLeftPressed: root.choose(index - 1)
            Keys.onRightPressed: root.choose(index + 1)
            OVAccessible.role: Accessible.RadioButton
            checked: modelData.raw === root.relax.scene && !root.relax.useVideo
            implicitHeight: Theme.iconButtonSize
            leftPadding: Theme.space8
            radius: height / 2
            rightPadding: Theme.space8
            tabStop: modelData.raw === root.relax.scene || activeFocus
            text: modelData.label
            onClicked: root.relax.scene = modelData.raw

            background: Rectangle {
                border.color: Qt.rgba(1, 1, 1, name.checked ? 0.8 : 0)
                border.width: 1
                color: Qt.rgba(0, 0, 0, name.hovered || name.checked ? 0.56 : 0.42)
                radius: name.radius
            }
            contentItem: OVText {
                Accessible.ignored: true
                color: Qt.rgba(1, 1, 1, 0.94)
                horizontalAlignment: Text.AlignHCenter
                role: OVText.Caption
                text: name.text
            }
        }
    }
}
