import QtQuick
import Orvel.DesignSystem
import Orvel.Pages

/// A rule across the page. It takes the focus as a whole, so that keys reach its menu.
BlockBody {
    id: root

    activeFocusOnTab: false
    implicitHeight: Theme.space32
    Accessible.name: qsTr("Divider")
    Accessible.role: Accessible.Separator
    Keys.forwardTo: [root.keyTarget]
    onActiveFocusChanged: tellFocus(activeFocus)

    Rectangle {
        anchors.verticalCenter: parent.verticalCenter
        color: root.activeFocus ? Theme.accent : Theme.ovBorderStrong
        height: root.activeFocus ? 2 : Theme.lineWidth
        radius: height / 2
        width: parent.width
    }

    TapHandler {
        onTapped: root.forceActiveFocus(Qt.MouseFocusReason)
    }
}
