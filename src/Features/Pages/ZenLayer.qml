import QtQuick
import QtQuick.Templates as T
import Orvel.DesignSystem
import Orvel.Pages

/// A layer over the whole window that holds nothing but the page.
T.Popup {
    id: root

    required property PageEditorViewModel editor
    readonly property Item place: holder

    function focusExit() {
        exitButton.forceActiveFocus(Qt.TabFocusReason)
    }

    closePolicy: T.Popup.CloseOnEscape
    focus: true
    height: T.Overlay.overlay?.height ?? 0
    parent: T.Overlay.overlay
    visible: editor.isZen
    width: T.Overlay.overlay?.width ?? 0

    onAboutToHide: editor.isZen = false

    background: OVBackground { }
    enter: Transition {
        NumberAnimation { property: "opacity"; from: 0; to: 1; duration: Theme.durationScreen }
    }
    exit: Transition {
        NumberAnimation { property: "opacity"; to: 0; duration: Theme.durationScreen }
    }
    contentItem: FocusScope {
        FocusScope {
            id: holder
            anchors.fill: parent
            focus: true
        }

        OVSecondaryButton {
            id: exitButton
            anchors.margins: Theme.space16
            anchors.right: parent.right
            anchors.top: parent.top
            text: qsTr("Exit")
            toolTip: qsTr("Leave Zen mode")
            onClicked: root.editor.isZen = false
        }
    }
}
