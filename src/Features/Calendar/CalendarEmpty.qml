import QtQuick
import Orvel.DesignSystem

/// What stands in place of a list without items. It keeps the keyboard's place there.
FocusScope {
    id: root

    property alias title: state.title
    property alias message: state.message
    property int focusReason: Qt.OtherFocusReason

    signal addRequested()

    activeFocusOnTab: true
    implicitHeight: state.implicitHeight + 2 * Theme.space48
    Accessible.focusable: true
    Accessible.name: title
    Accessible.role: Accessible.StaticText
    Keys.onReturnPressed: addRequested()
    Keys.onEnterPressed: addRequested()

    OVEmptyState {
        id: state
        anchors.centerIn: parent
        symbol: "calendar"
        width: parent.width
    }
}
