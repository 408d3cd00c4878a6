import QtQuick
import QtQuick.Layouts
import Orvel.Code
import Orvel.DesignSystem

/// What the last run printed, under a line that tells how it went.
FocusScope {
    id: root

    required property CodeViewModel viewModel
    readonly property CodeRun result: viewModel.result
    property bool didCopy: false

    Accessible.name: qsTr("Console")
    Accessible.role: Accessible.Grouping

    Timer {
        id: copied
        interval: 1600
        onTriggered: root.didCopy = false
    }

    OVDivider {
        width: parent.width
    }

    RowLayout {
        id: head
        height: Theme.iconButtonSize + Theme.space8
        spacing: Theme.space8
        width: parent.width - Theme.space12 - Theme.space8
        x: Theme.space12

        OVIcon {
            color: Theme.ovInkSecondary
            size: Theme.iconRow
            symbol: "terminal"
        }

        OVText {
            font.weight: Font.DemiBold
            role: OVText.Dense
            text: qsTr("Console")
        }

        OVBadge {
            symbol: root.result.statusSymbol
            text: root.result.statusWord
            tone: root.result.statusTone
            visible: root.result.hasResult
        }

        OVText {
            color: Theme.ovInkSecondary
            role: OVText.Caption
            text: root.result.durationText
            visible: text !== ""
        }

        OVText {
            id: tool
            Layout.fillWidth: true
            color: Theme.ovInkSecondary
            maximumLineCount: 1
            role: OVText.Caption
            text: root.result.tool

            HoverHandler {
                id: toolPointer
            }

            OVToolTip {
                shown: toolPointer.hovered && tool.text !== ""
                target: tool
                text: root.result.toolTip
            }
        }

        OVIconButton {
            color: root.didCopy ? Theme.ovSuccess : Theme.ovInkSecondary
            iconSize: Theme.iconRow
            symbol: root.didCopy ? "checkmark" : "doc.on.doc"
            text: root.didCopy ? qsTr("Copied") : qsTr("Copy output")
            visible: root.result.output !== ""
            onClicked: {
                root.result.copyOutput()
                root.didCopy = true
                copied.restart()
            }
        }

        OVIconButton {
            iconSize: Theme.iconRow
            symbol: "xmark"
            text: qsTr("Hide output")
            onClicked: root.viewModel.showConsole = false
        }
    }

    ConsoleText {
        anchors.bottom: parent.bottom
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.top: head.bottom
        color: root.result.hasResult ? Theme.ovInk : Theme.ovInkSecondary
        focus: true
        text: root.viewModel.consoleText
        topPadding: Theme.space4
    }
}
