pragma ComponentBehavior: Bound

import QtQuick
import Orvel.DesignSystem

/// What a pasted link plays in. The player of files comes from a package that a machine may lack; the surface then
/// says which. For a page of the web it offers the browser.
Rectangle {
    id: root

    required property url url
    required property bool isMedia
    required property bool isPlaying
    readonly property color ink: Qt.rgba(1, 1, 1, 0.92)

    color: Qt.rgba(0, 0, 0, 1)

    Loader {
        id: player
        anchors.fill: parent
        source: root.isMedia ? "LoopingVideoView.qml" : ""

        Binding {
            property: "url"
            target: player.item
            value: root.url
            when: player.status === Loader.Ready
        }

        Binding {
            property: "isPlaying"
            target: player.item
            value: root.isPlaying
            when: player.status === Loader.Ready
        }
    }

    Column {
        anchors.centerIn: parent
        spacing: Theme.space12
        visible: !root.isMedia || player.status === Loader.Error
        width: parent.width - 2 * Theme.space24

        OVText {
            color: root.ink
            horizontalAlignment: Text.AlignHCenter
            text: root.isMedia ? qsTr("To play video files, install the package qml6-module-qtmultimedia.")
                               : qsTr("Orvel has no web player on this machine.")
            width: parent.width
            wrapMode: Text.Wrap
        }

        OVSecondaryButton {
            anchors.horizontalCenter: parent.horizontalCenter
            symbol: "arrow.up.right"
            text: qsTr("Open in the browser")
            visible: !root.isMedia
            onClicked: Qt.openUrlExternally(root.url)
        }
    }
}
