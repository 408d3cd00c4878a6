import QtQuick
import Orvel.Code
import Orvel.DesignSystem

/// What the last run of a code block came to.
Item {
    id: root

    required property CodeRun run
    readonly property int maximumHeight: 12 * Theme.space24
    readonly property color tone: {
        switch (run.statusTone) {
        case OVBadge.Success: return Theme.ovSuccess
        case OVBadge.Danger: return Theme.ovDanger
        case OVBadge.Warning: return Theme.ovWarning
        default: return Theme.ovInkSecondary
        }
    }

    signal copyRequested()
    signal hideRequested()

    function stops(): list<Item> {
        return copyButton.visible ? [copyButton, hideButton, output] : hideButton.visible ? [hideButton, output] : []
    }

    implicitHeight: head.height + (output.visible ? output.height : 0)

    Keys.onEscapePressed: event => {
        event.accepted = run.running
        run.stop()
    }

    OVDivider { width: parent.width }

    Row {
        id: head
        height: Theme.fieldHeight
        leftPadding: Theme.space12
        spacing: Theme.space8

        OVIcon {
            anchors.verticalCenter: parent.verticalCenter
            symbol: "terminal"
        }

        OVBusyMark {
            anchors.verticalCenter: parent.verticalCenter
            running: root.run.running
            visible: running
        }

        OVText {
            anchors.verticalCenter: parent.verticalCenter
            color: root.tone
            font.weight: Font.DemiBold
            role: OVText.Dense
            text: root.run.statusWord
            visible: text !== ""
        }

        OVText {
            anchors.verticalCenter: parent.verticalCenter
            role: OVText.Caption
            text: root.run.durationText
            visible: text !== ""
        }
    }

    Row {
        anchors.right: parent.right
        anchors.rightMargin: Theme.space4
        anchors.verticalCenter: head.verticalCenter

        OVIconButton {
            id: copyButton
            tabStop: false
            iconSize: Theme.iconRow
            symbol: "doc.on.doc"
            text: qsTr("Copy")
            visible: root.run.output !== ""
            onClicked: root.copyRequested()
        }

        OVIconButton {
            id: hideButton
            tabStop: false
            iconSize: Theme.iconRow
            symbol: "xmark"
            text: qsTr("Hide output")
            visible: root.run.hasResult
            onClicked: root.hideRequested()
        }
    }

    ConsoleText {
        id: output
        height: Math.min(fullHeight, root.maximumHeight)
        padding: Theme.space12
        text: root.run.consoleText
        visible: root.run.hasResult || root.run.output !== ""
        width: parent.width
        y: head.height - Theme.space8
    }
}
