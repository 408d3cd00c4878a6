pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Orvel.DesignSystem

/// Something that can be pressed, by pointer or by Space and Return. The base of every button, and by itself a plain
/// one around any content, such as a card that opens something.
///
/// Say what it is by `OVAccessible.role` if it is no button.
T.AbstractButton {
    id: root

    /// Size while pressed, as a part of the whole.
    property real pressedScale: 0.98
    /// Corner radius of the wash and of the focus ring.
    property real radius: Theme.cornerField
    /// Whether Tab stops here. False for a part of a row, a card or a group that is one stop for Tab.
    property bool tabStop: true
    /// Whether a press by the pointer takes the focus.
    property bool clickFocus: false
    /// Shown after a while under the pointer.
    property string toolTip
    /// Whether the pointer leaves a wash.
    property bool washed: true
    readonly property bool tipWanted: toolTip !== "" && (hovered || visualFocus)
    property QtObject tip: null
    property Item ring: null

    /// Does what a press by the pointer does.
    function activate() {
        if (!enabled)
            return
        hideTip()
        if (checkable)
            toggle()
        clicked()
    }

    /// Ctrl+Return is left to the form that the control is in.
    function activateBy(event: var) {
        event.accepted = !(event.modifiers & Qt.ControlModifier)
        if (event.accepted)
            activate()
    }

    // A press makes the tip needless, and may open a menu where the tip would show.
    function hideTip() {
        if (tip)
            tip.shown = false
    }

    // Not set by `activeFocusOnTab`, which the policy would set again.
    focusPolicy: (tabStop ? Qt.TabFocus : Qt.NoFocus) | (clickFocus ? Qt.ClickFocus : Qt.NoFocus)
    hoverEnabled: true
    implicitHeight: implicitContentHeight + topPadding + bottomPadding
    implicitWidth: implicitContentWidth + leftPadding + rightPadding
    opacity: enabled ? 1 : Theme.disabledOpacity
    scale: down ? pressedScale : 1
    Accessible.name: text
    Accessible.onPressAction: activate()
    Accessible.onToggleAction: activate()
    OVAccessible.role: Accessible.Button

    background: HoverWash {
        chosen: root.checked
        hovered: root.washed && root.hovered && root.enabled
        pressed: root.washed && root.down
        radius: root.radius
    }

    Keys.onReturnPressed: event => activateBy(event)
    Keys.onEnterPressed: event => activateBy(event)
    onPressed: hideTip()
    onTipWantedChanged: {
        if (tipWanted && !tip)
            tip = tipComponent.createObject(root)
        if (tip)
            tip.shown = tipWanted
    }
    onVisualFocusChanged: {
        if (visualFocus && !ring)
            ring = ringComponent.createObject(root)
    }

    Behavior on scale {
        NumberAnimation { duration: Theme.durationHover; easing.type: Easing.OutCubic }
    }

    // Ring and tip are made when they are first wanted: a list has many of these.
    Component {
        id: ringComponent

        OVFocusRing {
            shown: root.visualFocus
            targetRadius: root.radius
        }
    }

    Component {
        id: tipComponent

        OVToolTip {
            target: root
            text: root.toolTip
        }
    }
}
