pragma ComponentBehavior: Bound

import QtQuick
import Orvel.DesignSystem
import Orvel.Reader

/// A book that was found, with the way to read it.
ScreenListRow {
    id: row

    required property var number
    required property string title
    required property string author
    required property bool hasText
    required property bool isInLibrary
    required property bool isDownloading
    required property string progressText
    required property DiscoverViewModel viewModel
    readonly property string state: isDownloading ? qsTr("Downloading %1").arg(progressText)
                                  : !hasText ? qsTr("No text") : isInLibrary ? qsTr("In your library") : ""

    fadesIn: false
    rowHeight: texts.implicitHeight + 2 * Theme.space12

    Accessible.description: state
    Accessible.focusable: true
    Accessible.name: qsTr("%1, %2").arg(title).arg(author)
    Accessible.role: Accessible.ListItem
    Accessible.onPressAction: viewModel.read(number)
    Keys.onPressed: event => {
        const isReturn = [Qt.Key_Return, Qt.Key_Enter, Qt.Key_Space].includes(event.key)
        const isCancel = isDownloading && [Qt.Key_Escape, Qt.Key_Delete].includes(event.key)
        event.accepted = isReturn || isCancel || list.keys.press(event.key)
        if (isReturn)
            viewModel.read(number)
        else if (isCancel)
            viewModel.downloads.cancel(number)
    }

    HoverWash {
        anchors.bottomMargin: 1
        anchors.topMargin: 1
        hovered: row.hovered
    }

    OVFocusRing {
        anchors.margins: 1
        shown: row.visualFocus
    }

    OVIcon {
        anchors.verticalCenter: parent.verticalCenter
        size: Theme.iconHeader
        symbol: "book"
        x: Theme.space12
    }

    Column {
        id: texts
        anchors.verticalCenter: parent.verticalCenter
        spacing: 2
        width: actions.x - x - Theme.space12
        x: Theme.space12 + Theme.iconHeader + Theme.space12

        OVText {
            Accessible.ignored: true
            text: row.title
            width: parent.width
        }

        OVText {
            Accessible.ignored: true
            color: Theme.ovInkSecondary
            role: OVText.Caption
            text: row.author
            width: parent.width
        }
    }

    Row {
        id: actions
        anchors.right: parent.right
        anchors.rightMargin: Theme.space12
        anchors.verticalCenter: parent.verticalCenter
        height: Theme.buttonHeight
        spacing: Theme.space8

        OVBusyMark {
            anchors.verticalCenter: parent.verticalCenter
            running: row.isDownloading
        }

        OVText {
            anchors.verticalCenter: parent.verticalCenter
            color: Theme.ovInkSecondary
            role: OVText.Caption
            text: row.isDownloading ? row.progressText : row.hasText ? "" : row.state
            visible: text !== ""
            Accessible.ignored: true
        }

        OVIconButton {
            anchors.verticalCenter: parent.verticalCenter
            symbol: "xmark"
            tabStop: false
            text: qsTr("Cancel the download")
            visible: row.isDownloading
            onClicked: row.viewModel.downloads.cancel(row.number)
        }

        OVSecondaryButton {
            anchors.verticalCenter: parent.verticalCenter
            symbol: row.isInLibrary ? "book.closed" : ""
            tabStop: false
            text: qsTr("Read")
            visible: row.hasText && !row.isDownloading
            Accessible.name: qsTr("Read: %1").arg(row.title)
            onClicked: row.viewModel.read(row.number)
        }
    }
}
