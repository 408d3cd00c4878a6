pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Orvel.DesignSystem

/// A button that shows a day, a time or both, and opens the pickers for them. It never changes `value` itself:
/// bind it, and write what `edited` says to where it comes from.
T.AbstractButton {
    id: field

    /// An invalid date shows the placeholder.
    property date value
    /// The present moment, which marks today; to be set anew at `aboutToOpen`.
    required property date now
    property bool showsDate: true
    property bool showsTime: false
    /// Whether the value can be taken away in the picker.
    property bool clearable: false
    property string placeholderText: qsTr("No date")
    /// What the value is, for assistive tools.
    property string name: ""
    /// A slim pill rather than a field.
    property bool compact: false
    /// The open picker, or null before it is first opened.
    readonly property OVDatePopup popup: loader.item as OVDatePopup

    /// The pickers open.
    signal aboutToOpen()
    /// The user chose this moment.
    signal edited(moment: date)
    /// The user took the value away.
    signal cleared()

    function open() {
        aboutToOpen()
        loader.load()
        popup.byKeyboard = visualFocus
        popup.open()
    }

    /// Ctrl+Return is left to the form that the field is in.
    function openBy(event: var) {
        event.accepted = !(event.modifiers & Qt.ControlModifier)
        if (event.accepted)
            open()
    }

    implicitWidth: implicitContentWidth + leftPadding + rightPadding
    implicitHeight: Math.max(compact ? Theme.chipHeight : Theme.fieldHeight, implicitContentHeight + Theme.space8)
    horizontalPadding: Theme.space12
    hoverEnabled: true
    opacity: enabled ? 1 : Theme.disabledOpacity
    text: label.text || placeholderText
    font.family: Theme.fontFamily
    font.pixelSize: compact ? Theme.sizeCaption : Theme.sizeBody

    Accessible.onPressAction: if (enabled) clicked()
    Accessible.name: name !== "" ? name + ": " + text : text
    Keys.onReturnPressed: event => openBy(event)
    Keys.onEnterPressed: event => openBy(event)
    Keys.onDownPressed: open()
    onClicked: open()

    DateLabel {
        id: label
        value: field.value
        showsDate: field.showsDate
        showsTime: field.showsTime
    }

    contentItem: Item {
        implicitWidth: icon.width + Theme.space8 + content.implicitWidth
        implicitHeight: content.implicitHeight

        OVIcon {
            id: icon
            anchors.verticalCenter: parent.verticalCenter
            symbol: field.showsDate ? "calendar" : "clock"
            size: Theme.iconRow
            color: Theme.ovInkSecondary
        }

        OVText {
            id: content
            anchors.left: icon.right
            anchors.leftMargin: Theme.space8
            anchors.right: parent.right
            anchors.verticalCenter: parent.verticalCenter
            text: field.text
            font: field.font
            color: label.text !== "" ? Theme.ovInk : Theme.ovInkTertiary
        }
    }

    background: OVFieldSurface {
        radius: field.compact ? height / 2 : Theme.cornerField
        color: field.down ? Theme.ovHover : Theme.ovSurface
        hovered: field.hovered && field.enabled
        ringVisible: field.visualFocus
    }

    OVLazyLoader {
        id: loader

        sourceComponent: OVDatePopup {
            parent: field
            value: field.value
            now: field.now
            showsDate: field.showsDate
            showsTime: field.showsTime
            clearable: field.clearable
            onEdited: moment => field.edited(moment)
            onCleared: field.cleared()
        }
    }
}
