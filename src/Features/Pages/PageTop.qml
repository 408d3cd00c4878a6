import QtQuick
import Orvel.Pages

/// What stands above the blocks: everything of the page, or its title alone.
FocusScope {
    id: root

    required property PageEditorViewModel editor
    required property var pageID

    signal leaveDown()

    function focusTitle() {
        zenTitle.focusTitle()
    }

    implicitHeight: zenTitle.implicitHeight

    ZenTitle {
        id: zenTitle
        editor: root.editor
        focus: true
        width: parent.width
        onLeaveDown: root.leaveDown()
    }
}
