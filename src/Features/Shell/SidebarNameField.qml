import QtQuick
import Orvel.DesignSystem
import Orvel.Session
import Orvel.Shell

/// The field that stands in place of a row while a folder is named. Losing the focus keeps what was typed.
Item {
    id: root

    required property SidebarViewModel sidebar
    property bool isEnding: false

    function end(isCancelled: bool) {
        if (isEnding)
            return
        isEnding = true
        if (isCancelled)
            sidebar.cancelName()
        else
            sidebar.commitName()
    }

    implicitHeight: Theme.rowHeight

    Component.onCompleted: {
        field.text = sidebar.nameText
        field.selectAll()
        field.forceActiveFocus(Qt.OtherFocusReason)
    }

    OVTextField {
        id: field

        anchors.fill: parent
        font.pixelSize: Theme.sizeDense
        leftPadding: Theme.space8 + 2 + (icon.visible ? Theme.iconRow + Theme.space8 + 2 : 0)
        placeholderText: qsTr("Folder name")
        onTextEdited: root.sidebar.nameText = text
        onAccepted: root.end(false)
        onActiveFocusChanged: {
            // A menu over the field and another window only borrow the focus.
            const borrowed = focusReason === Qt.PopupFocusReason || focusReason === Qt.ActiveWindowFocusReason
            if (!activeFocus && !borrowed)
                root.end(false)
        }
        Keys.onEscapePressed: root.end(true)
    }

    OVIcon {
        id: icon

        anchors.verticalCenter: parent.verticalCenter
        symbol: "folder"
        visible: Orvel.settings.sidebarShowsIcons
        x: Theme.space8 + 2
    }
}
