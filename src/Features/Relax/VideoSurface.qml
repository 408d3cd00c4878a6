pragma ComponentBehavior: Bound

import QtQuick
import Orvel.DesignSystem
import Orvel.Relax

/// What a pasted link plays in. Both players come from packages that a machine may lack; the surface then says
/// which, and offers the browser for a page of the web.
Rectangle {
    id: root

    required property url url
    required property bool isMedia
    required property bool isPlaying
    /// Whether the mouse reaches the page that plays.
    property bool isInteractive: true
    readonly property color ink: Qt.rgba(1, 1, 1, 0.92)
    readonly property string refusal: isMedia ? "" : WebPlayer.refusal
    readonly property string missing: isMedia ? qsTr("To play video files, install the package qml6-module-qtmultimedia.")
                                              : qsTr("To play pages of the web, install the package qml6-module-qtwebengine.")

    color: Qt.rgba(0, 0, 0, 1)

    Loader {
        id: player
        anchors.fill: parent
        source: root.isMedia ? "LoopingVideoView.qml" : root.refusal === "" ? "WebVideoView.qml" : ""

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

        Binding {
            property: "isInteractive"
            target: player.item
            value: root.isInteractive
            when: player.status === Loader.Ready
        }
    }

    Column {
        anchors.centerIn: parent
        spacing: Theme.space12
        visible: root.refusal !== "" || player.status === Loader.Error
        width: parent.width - 2 * Theme.space24

        OVText {
            color: root.ink
            horizontalAlignment: Text.AlignHCenter
            text: root.refusal !== "" ? root.refusal : root.missing
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
