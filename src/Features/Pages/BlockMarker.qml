import QtQuick
import Orvel.DesignSystem
import Orvel.Pages

/// What stands before the text of a block: a bullet, a number, a check box or the icon of a tone.
Item {
    id: root

    required property PageEditorViewModel editor
    required property var blockID
    /// The text of the block, or what it is while there is none.
    required property string label
    required property string marker
    required property string numberText
    /// As wide as any number of the list.
    required property string widestNumber
    required property bool isChecked
    required property int tone
    required property string toneSymbol
    readonly property color toneColor: [Theme.ovInfo, Theme.ovSuccess, Theme.ovWarning, Theme.ovDanger][tone]
    /// What takes the focus here; null for nothing.
    readonly property Item control: (marker === "check" || marker === "tone") ? part.item as Item : null

    signal toneMenuRequested(from: Item)

    implicitWidth: part.item?.implicitWidth ?? 0

    // A Loader of this Qt version cannot make a bound component.
    // qmllint disable unqualified
    Component {
        id: bullet
        Item {
            implicitWidth: dot.width
            Rectangle {
                id: dot
                anchors.verticalCenter: parent.verticalCenter
                color: Theme.ovInkSecondary
                height: width
                radius: width / 2
                width: Math.round(Theme.sizeReading * 0.36)
                x: Theme.space8
            }
        }
    }

    Component {
        id: number
        Item {
            implicitWidth: Theme.space4 + Math.ceil(widest.advanceWidth)

            TextMetrics {
                id: widest
                font: shown.font
                text: root.widestNumber
            }

            OVText {
                id: shown
                anchors.right: parent.right
                anchors.rightMargin: Theme.space8
                anchors.verticalCenter: parent.verticalCenter
                color: Theme.ovInkSecondary
                font.pixelSize: Theme.sizeReading
                text: root.numberText
            }
        }
    }

    Component {
        id: check
        OVCheckBox {
            checked: root.isChecked
            activeFocusOnTab: false
            focusPolicy: Qt.NoFocus
            Accessible.name: root.label
            onToggled: root.editor.toggleChecked(root.blockID)
        }
    }

    Component {
        id: toneButton
        OVPressable {
            id: button
            tabStop: false
            implicitWidth: Theme.iconHeader + 2
            radius: Theme.cornerMark
            toolTip: qsTr("Tone")
            Accessible.name: qsTr("Tone: %1").arg(root.editor.toneLabels[root.tone])
            OVAccessible.role: Accessible.ButtonMenu
            onClicked: root.toneMenuRequested(button)

            contentItem: Item {
                OVIcon {
                    anchors.centerIn: parent
                    color: root.toneColor
                    size: Theme.iconHeader
                    symbol: root.toneSymbol
                }
            }
        }
    }
    // qmllint enable unqualified

    Loader {
        id: part
        height: parent.height
        sourceComponent: root.marker === "bullet" ? bullet
                       : root.marker === "number" ? number
                       : root.marker === "check" ? check
                       : root.marker === "tone" ? toneButton : null
    }
}
