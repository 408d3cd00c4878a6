import QtQuick
import Orvel.DesignSystem

/// The field that stands in place of a row while a folder is named. Losing the focus keeps what was typed.
Item {
    id: root

    property string symbol
    property alias placeholderText: field.placeholderText

    property bool isEnding: false

    signal edited(string text)
    signal committed
    signal cancelled

    function begin(text: string) {
        field.text = text
        field.selectAll()
        field.forceActiveFocus(Qt.OtherFocusReason)
    }

    function end(byUser: bool) {
        if (isEnding)
            return
        isEnding = true
        if (byUser)
            cancelled()
        else
            committed()
    }

    implicitHeight: Theme.rowHeight

    OVTextField {
        id: field

        anchors.fill: parent
        font.pixelSize: Theme.sizeDense
        leftPadding: Theme.space8 + 2 + (root.symbol === "" ? 0 : Theme.iconRow + Theme.space8 + 2)
        onTextEdited: root.edited(text)
        onAccepted: root.end(false)
        onActiveFocusChanged: {
            // A menu over the field and another window only borrow the focus.
            const borrowed = focusReason === Qt.PopupFocusReason || focusReason === Qt.ActiveWindowFocusReason
            if (!activeFocus && !borrowed)
                root.end(false)
        }
        Keys.onEscapePressed: root.end(true)
        Keys.onUpPressed: event => event.accepted = true
        Keys.onDownPressed: event => event.accepted = true
    }

    OVIcon {
        anchors.verticalCenter: parent.verticalCenter
        symbol: root.symbol
        visible: root.symbol !== ""
        x: Theme.space8 + 2
    }
}
