import QtQuick
import Orvel.Code
import Orvel.DesignSystem

/// Where the caret is, how long the document is, and how the editor shows it.
Item {
    id: root

    required property CodeViewModel viewModel
    required property int caretLine
    required property int caretColumn
    /// Whether the user works in the editor by keyboard alone.
    property bool byKeyboard: false

    implicitHeight: Theme.iconButtonSize + Theme.space8

    OVDivider {
        width: parent.width
    }

    Row {
        anchors.verticalCenter: parent.verticalCenter
        spacing: Theme.space12
        x: Theme.space12

        OVText {
            color: Theme.ovInkSecondary
            role: OVText.Caption
            text: root.viewModel.language.label
            visible: root.width > 480 * Theme.fontScale
        }

        OVText {
            id: place
            color: Theme.ovInkSecondary
            role: OVText.Caption
            text: qsTr("Line %1, column %2").arg(root.caretLine).arg(root.caretColumn)
        }

        OVText {
            id: count
            color: Theme.ovInkSecondary
            role: OVText.Caption
            text: root.viewModel.lineCountText
            visible: parent.x + place.x + place.width + implicitWidth + 2 * Theme.space12 < controls.x
        }

        OVText {
            role: OVText.Caption
            text: qsTr("Ctrl Tab leaves the editor")
            visible: root.byKeyboard && count.visible
                     && parent.x + count.x + count.width + implicitWidth + 2 * Theme.space12 < controls.x
            Accessible.ignored: true
        }
    }

    Row {
        id: controls
        anchors.right: parent.right
        anchors.rightMargin: Theme.space8
        anchors.verticalCenter: parent.verticalCenter
        spacing: Theme.space4

        OVIconButton {
            checkable: true
            filled: false
            checked: CodeDesk.showConsole
            iconSize: Theme.iconRow
            symbol: "terminal"
            text: qsTr("Show the console")
            onToggled: CodeDesk.showConsole = checked
        }

        OVDivider {
            anchors.verticalCenter: parent.verticalCenter
            vertical: true
        }

        OVIconButton {
            checkable: true
            filled: false
            checked: CodeDesk.wrap
            iconSize: Theme.iconRow
            symbol: "text.alignleft"
            text: qsTr("Wrap long lines")
            onToggled: CodeDesk.wrap = checked
        }

        OVIconButton {
            checkable: true
            filled: false
            checked: CodeDesk.showLineNumbers
            iconSize: Theme.iconRow
            symbol: "list.number"
            text: qsTr("Line numbers")
            onToggled: CodeDesk.showLineNumbers = checked
        }

        OVDivider {
            anchors.verticalCenter: parent.verticalCenter
            vertical: true
        }

        OVIconButton {
            enabled: CodeDesk.canShrink
            iconSize: Theme.iconRow
            symbol: "minus"
            text: qsTr("Smaller text")
            onClicked: --CodeDesk.fontSize
        }

        OVText {
            Accessible.name: qsTr("Text size %1").arg(text)
            anchors.verticalCenter: parent.verticalCenter
            color: Theme.ovInkSecondary
            horizontalAlignment: Text.AlignHCenter
            role: OVText.Caption
            text: CodeDesk.fontSize
            width: 20 * Theme.fontScale
        }

        OVIconButton {
            enabled: CodeDesk.canGrow
            iconSize: Theme.iconRow
            symbol: "plus"
            text: qsTr("Larger text")
            onClicked: ++CodeDesk.fontSize
        }
    }
}
