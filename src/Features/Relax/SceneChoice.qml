pragma ComponentBehavior: Bound

import QtQuick
import Orvel.DesignSystem
import Orvel.Relax

/// A small picture of each scene, one stop for Tab.
FocusScope {
    id: root

    required property RelaxViewModel relax

    function choose(index: int) {
        const next = Math.max(0, Math.min(index, thumbnails.count - 1))
        relax.scene = relax.scenes[next].raw
        thumbnails.itemAt(next).forceActiveFocus(Qt.TabFocusReason)
    }

    implicitHeight: flow.implicitHeight

    Flow {
        id: flow
        Accessible.name: qsTr("Scenes")
        Accessible.role: Accessible.Grouping
        spacing: Theme.space12
        width: root.width

        readonly property int columns: width < 8 * 100 ? Math.max(2, Math.min(4, Math.floor(width / 120))) : 8

        Repeater {
            id: thumbnails
            model: root.relax.scenes

            OVPressable {
                id: thumbnail

                required property int index
                required property var modelData

                Accessible.checked: checked
                Keys.onLeftPressed: root.choose(index - 1)
                Keys.onRightPressed: root.choose(index + 1)
                OVAccessible.role: Accessible.RadioButton
                checked: modelData.raw === root.relax.scene && !root.relax.useVideo
                focus: modelData.raw === root.relax.scene
                implicitHeight: 74
                implicitWidth: Math.floor((flow.width - (flow.columns - 1) * flow.spacing) / flow.columns)
                radius: Theme.cornerCard
                tabStop: modelData.raw === root.relax.scene || activeFocus
                text: modelData.label
                onClicked: root.relax.scene = modelData.raw

                background: AmbientScene {
                    paper: Theme.inkMode
                    radius: thumbnail.radius
                    scene: thumbnail.modelData.raw
                    seconds: 12
                }
                contentItem: Item {
                    Rectangle {
                        anchors.fill: parent
                        radius: thumbnail.radius

                        gradient: Gradient {
                            GradientStop { color: Qt.rgba(0, 0, 0, 0); position: 0.4 }
                            GradientStop { color: Qt.rgba(0, 0, 0, 0.62); position: 1 }
                        }
                    }

                    Rectangle {
                        anchors.fill: parent
                        border.color: Theme.accent
                        border.width: 2
                        color: "transparent"
                        radius: thumbnail.radius
                        visible: thumbnail.checked
                    }

                    OVText {
                        Accessible.ignored: true
                        anchors.bottom: parent.bottom
                        anchors.bottomMargin: Theme.space8
                        color: Qt.rgba(1, 1, 1, 0.96)
                        font.weight: Font.Medium
                        role: OVText.Caption
                        text: thumbnail.text
                        width: parent.width - 2 * x
                        x: Theme.space12
                    }
                }
            }
        }
    }
}
