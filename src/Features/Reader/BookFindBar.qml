import QtQuick
import Orvel.DesignSystem
import Orvel.Reader

/// The search within the open book.
FocusScope {
    id: root

    required property BookFinder finder

    signal closeRequested()

    function focusField() {
        field.forceActiveFocus(Qt.ShortcutFocusReason)
        field.selectAll()
    }

    implicitHeight: field.height + 2 * Theme.space8

    Keys.onEscapePressed: closeRequested()

    Row {
        anchors.centerIn: parent
        spacing: Theme.space4

        OVTextField {
            id: field
            focus: true
            placeholderText: qsTr("Find in book")
            rightPadding: Theme.space12 + count.width
            symbol: "magnifyingglass"
            text: root.finder.query
            width: Math.min(1.5 * Theme.fieldWidth, root.width - 3 * Theme.iconButtonSize - 4 * Theme.space12)
            Keys.onDownPressed: root.finder.next()
            Keys.onPressed: event => {
                const isReturn = event.key === Qt.Key_Return || event.key === Qt.Key_Enter
                event.accepted = isReturn
                if (isReturn && event.modifiers & Qt.ShiftModifier)
                    root.finder.previous()
                else if (isReturn)
                    root.finder.next()
            }
            Keys.onUpPressed: root.finder.previous()
            onTextEdited: root.finder.query = text

            OVText {
                id: count
                anchors.right: parent.right
                anchors.rightMargin: Theme.space12
                anchors.verticalCenter: parent.verticalCenter
                color: Theme.ovInkSecondary
                leftPadding: text === "" ? 0 : Theme.space8
                role: OVText.Caption
                text: root.finder.countText
            }
        }

        OVIconButton {
            anchors.verticalCenter: field.verticalCenter
            enabled: root.finder.count > 0
            symbol: "chevron.up"
            text: qsTr("Previous match")
            onClicked: root.finder.previous()
        }

        OVIconButton {
            anchors.verticalCenter: field.verticalCenter
            enabled: root.finder.count > 0
            symbol: "chevron.down"
            text: qsTr("Next match")
            onClicked: root.finder.next()
        }

        OVIconButton {
            anchors.verticalCenter: field.verticalCenter
            symbol: "xmark"
            text: qsTr("Close")
            onClicked: root.closeRequested()
        }
    }

    OVDivider {
        anchors.bottom: parent.bottom
        width: parent.width
    }
}
