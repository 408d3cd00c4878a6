import QtQuick
import QtQuick.Templates as T
import Orvel.DesignSystem

/// Something that can be pressed, by pointer or by Space and Return. The base of every button, and by itself a plain
/// one around any content, such as a card that opens something.
T.AbstractButton {
    id: root

    /// Size while pressed, as a part of the whole.
    property real pressedScale: 0.98
    /// Corner radius of the wash and of the focus ring.
    property real radius: Theme.cornerField
    /// Shown after a while under the pointer.
    property string toolTip
    /// Whether the pointer leaves a wash.
    property bool washed: true

    /// Does what a press by the pointer does.
    function activate() {
        tip.isDone = true
        if (checkable)
            toggle()
        clicked()
    }

    activeFocusOnTab: true
    focusPolicy: Qt.TabFocus
    hoverEnabled: true
    implicitHeight: implicitContentHeight + topPadding + bottomPadding
    implicitWidth: implicitContentWidth + leftPadding + rightPadding
    opacity: enabled ? 1 : Theme.disabledOpacity
    scale: down ? pressedScale : 1
    Accessible.name: text

    background: HoverWash {
        chosen: root.checked
        hovered: root.washed && root.hovered && root.enabled
        pressed: root.washed && root.down
        radius: root.radius
    }

    Keys.onReturnPressed: activate()
    Keys.onEnterPressed: activate()
    onPressed: tip.isDone = true

    Behavior on scale {
        NumberAnimation { duration: Theme.durationHover; easing.type: Easing.OutCubic }
    }

    OVFocusRing {
        shown: root.visualFocus
        targetRadius: root.radius
    }

    OVToolTip {
        id: tip

        readonly property bool wanted: root.hovered || root.visualFocus
        /// Who presses knows already, and may get a menu where it would show.
        property bool isDone: false

        shown: wanted && !isDone
        onWantedChanged: isDone = false
        target: root
        text: root.toolTip
    }
}
