pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Orvel.DesignSystem

/// A button that shows one of several values and opens the list of them.
T.ComboBox {
    id: control

    /// Shown while no value is chosen.
    property string placeholderText: ""

    implicitWidth: Theme.fieldWidth
    implicitHeight: Math.max(Theme.fieldHeight, implicitContentHeight + Theme.space8)
    leftPadding: Theme.space12
    rightPadding: Theme.space12 + indicator.width + spacing
    spacing: Theme.space8
    hoverEnabled: true
    wheelEnabled: false
    opacity: enabled ? 1 : Theme.disabledOpacity
    font.family: Theme.fontFamily
    font.pixelSize: Theme.sizeBody

    Accessible.onPressAction: if (enabled) popup.open()
    Keys.onReleased: event => {
        const opens = !popup.visible && (event.key === Qt.Key_Return || event.key === Qt.Key_Enter)
        event.accepted = opens
        if (opens)
            popup.open()
    }

    contentItem: OVText {
        text: control.displayText || control.placeholderText
        font: control.font
        color: control.displayText !== "" ? Theme.ovInk : Theme.ovInkTertiary
    }

    indicator: OVIcon {
        x: control.width - width - Theme.space12
        anchors.verticalCenter: parent?.verticalCenter
        symbol: "chevron.up.chevron.down"
        size: Theme.iconRow - 2
        color: Theme.ovInkTertiary
    }

    background: OVFieldSurface {
        color: control.down && !control.popup.visible ? Theme.ovHover : Theme.ovSurface
        hovered: (control.hovered || control.popup.visible) && control.enabled
        ringVisible: control.visualFocus && !control.popup.visible
    }

    delegate: OVChoice {
        required property int index

        width: ListView.view.width
        text: control.textAt(index)
        chosen: control.currentIndex === index
        highlighted: control.highlightedIndex === index
    }

    popup: OVPopup {
        name: control.Accessible.name
        y: control.height + Theme.space4
        width: control.width
        height: Math.min(implicitHeight, (control.Window.height || implicitHeight) - 2 * Theme.space8)
        padding: Theme.space4

        contentItem: ListView {
            implicitHeight: Math.min(contentHeight, 10 * Theme.rowHeight)
            model: control.delegateModel
            currentIndex: control.highlightedIndex
            highlightMoveDuration: 0
            boundsBehavior: Flickable.StopAtBounds
            clip: contentHeight > height

            T.ScrollBar.vertical: OVScrollBar { }
        }
    }
}
