import QtQuick
import QtQuick.Templates as T
import Orvel.DesignSystem

/// A small floating surface for content of any kind. It stays inside the window.
T.Popup {
    id: popup

    /// What it is, for assistive technology.
    property string name: ""
    readonly property OVFocusReturn focusReturn: OVFocusReturn { popup: popup }

    implicitWidth: contentWidth + leftPadding + rightPadding
    implicitHeight: contentHeight + topPadding + bottomPadding
    margins: Theme.space8
    padding: Theme.space12
    transformOrigin: Item.Top
    OVAccessible.name: name

    background: OVPopupSurface { }
    enter: OVEnter { }
    exit: OVExit { }
}
