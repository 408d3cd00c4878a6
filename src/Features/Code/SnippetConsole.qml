import QtQuick
import QtQuick.Layouts
import Orvel.Code
import Orvel.DesignSystem

/// What the run of a snippet prints, under a line that tells how it went.
FocusScope {
    id: root

    required property CodeRun run
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
            symbol: root.run.statusSymbol
            text: root.run.statusWord
            tone: root.run.statusTone
            visible: root.run.hasResult
        }

        OVBusyMark {
            running: root.run.running
            visible: running
        }

        OVText {
            color: Theme.ovInkSecondary
            role: OVText.Caption
            text: root.run.durationText
            visible: text !== ""
        }

        OVText {
            id: tool
            Layout.fillWidth: true
            color: Theme.ovInkSecondary
            maximumLineCount: 1
            role: OVText.Caption
            text: root.run.tool

            HoverHandler {
                id: toolPointer
            }

            OVToolTip {
                shown: toolPointer.hovered && tool.text !== ""
                target: tool
                text: root.run.toolTip
            }
        }

        OVIconButton {
            color: root.didCopy ? Theme.ovSuccess : Theme.ovInkSecondary
            iconSize: Theme.iconRow
            symbol: root.didCopy ? "checkmark" : "doc.on.doc"
            text: root.didCopy ? qsTr("Copied") : qsTr("Copy output")
            visible: root.run.hasResult && root.run.output !== ""
            onClicked: {
                root.run.copyOutput()
                root.didCopy = true
                copied.restart()
            }
        }

        OVIconButton {
            iconSize: Theme.iconRow
            symbol: "xmark"
            text: qsTr("Hide output")
            onClicked: CodeDesk.showConsole = false
        }
    }

    ConsoleText {
        anchors.bottom: parent.bottom
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.top: head.bottom
        color: root.run.hasResult ? Theme.ovInk : Theme.ovInkSecondary
        focus: true
        text: root.run.consoleText || qsTr("Run the snippet to see its output.")
        topPadding: Theme.space4
    }
}
