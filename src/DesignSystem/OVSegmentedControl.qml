pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Orvel.DesignSystem

/// A few choices side by side, of which one holds. One stop for Tab; the arrow keys move the choice. It never
/// changes `currentIndex` itself: bind it, and write what `activated` says to where it comes from.
T.Control {
    id: control

    /// The texts of the choices.
    property list<string> model
    property int currentIndex: 0

    /// The user chose another one.
    signal activated(index: int)

    function choose(index: int) {
        if (index < 0 || index >= model.length || index === currentIndex)
            return
        activated(index)
    }

    implicitWidth: implicitContentWidth + leftPadding + rightPadding
    implicitHeight: implicitContentHeight + topPadding + bottomPadding
    padding: 3
    focusPolicy: Qt.StrongFocus
    opacity: enabled ? 1 : Theme.disabledOpacity
    font.family: Theme.fontFamily
    font.pixelSize: Theme.sizeDense

    OVAccessible.role: Accessible.PageTabList
    Keys.onLeftPressed: choose(currentIndex - 1)
    Keys.onRightPressed: choose(currentIndex + 1)

    background: Rectangle {
        radius: Theme.cornerField
        color: Theme.ovSubtle
        border.width: Theme.lineWidth
        border.color: Theme.ovBorder

        OVFocusRing {
            shown: control.visualFocus
            targetRadius: Theme.cornerField
        }
    }

    contentItem: Item {
        implicitWidth: row.implicitWidth
        implicitHeight: row.implicitHeight

        Rectangle {
            readonly property Item segment: segments.count > 0 ? segments.itemAt(control.currentIndex) : null
            x: segment?.x ?? 0
            width: segment?.width ?? 0
            height: parent.height
            radius: Theme.cornerMark
            color: Theme.ovSurface
            border.width: Theme.lineWidth
            border.color: Theme.ovBorderStrong

            Behavior on x {
                NumberAnimation { duration: Theme.durationHover; easing.type: Easing.OutCubic }
            }
            Behavior on width {
                NumberAnimation { duration: Theme.durationHover; easing.type: Easing.OutCubic }
            }
        }

        Row {
            id: row

            Repeater {
                id: segments
                model: control.model

                Item {
                    id: segment

                    required property int index
                    required property string modelData
                    readonly property bool current: index === control.currentIndex

                    implicitWidth: label.implicitWidth + 2 * Theme.space16
                    implicitHeight: Math.max(Theme.chipHeight - 2, label.implicitHeight + Theme.space4)

                    Accessible.role: Accessible.PageTab
                    Accessible.name: modelData
                    Accessible.selected: current
                    Accessible.onPressAction: if (control.enabled) control.choose(index)

                    OVText {
                        id: label
                        anchors.centerIn: parent
                        text: segment.modelData
                        font.family: control.font.family
                        font.pixelSize: control.font.pixelSize
                        font.weight: segment.current ? Font.Medium : Font.Normal
                        color: segment.current || hover.hovered ? Theme.ovInk : Theme.ovInkSecondary
                        Accessible.ignored: true
                    }

                    HoverHandler { id: hover; enabled: control.enabled }

                    TapHandler {
                        onTapped: {
                            control.forceActiveFocus(Qt.MouseFocusReason)
                            control.choose(segment.index)
                        }
                    }
                }
            }
        }
    }
}
