import QtQuick
import Orvel.DesignSystem
import Orvel.Pages

/// Below a text that is too long to be laid out as a whole: which part of it is shown, and the way to the others.
Loader {
    id: root

    required property PageEditorViewModel editor
    required property var blockID
    /// Which part it is; empty for a text that is shown whole.
    property string text
    property int leftPadding: 0

    active: text !== ""
    height: item?.implicitHeight ?? 0

    // A Loader of this Qt version cannot make a bound component.
    // qmllint disable unqualified
    sourceComponent: Row {
        leftPadding: root.leftPadding
        spacing: Theme.space4

        OVText {
            anchors.verticalCenter: parent.verticalCenter
            color: Theme.ovInkSecondary
            role: OVText.Caption
            text: root.text
        }

        Repeater {
            model: [-1, 1]

            OVIconButton {
                required property int modelData

                tabStop: false
                enabled: root.text !== "" && root.editor.hasPart(root.blockID, modelData)
                iconSize: Theme.iconRow
                symbol: modelData < 0 ? "chevron.left" : "chevron.right"
                text: modelData < 0 ? qsTr("Earlier text") : qsTr("Later text")
                onClicked: root.editor.showPart(root.blockID, modelData)
            }
        }
    }
    // qmllint enable unqualified
}
