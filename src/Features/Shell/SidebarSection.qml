import QtQuick
import Orvel.DesignSystem

/// The small title over a part of the sidebar. Where it folds, it is pressed to do so.
FocusScope {
    id: root

    required property int index
    required property string title
    required property bool isCollapsed
    property bool foldable: false
    /// What the button at the right end does; without it there is none.
    property string actionText

    readonly property bool lit: heading.hovered || action.hovered || heading.visualFocus

    signal clicked
    /// The heading was clicked, so that the keyboard goes on from it.
    signal pressed
    /// The heading has the focus by keys.
    signal ringShown
    signal actionTriggered

    implicitHeight: heading.y + heading.height

    OVPressable {
        id: heading

        clickFocus: root.foldable
        focus: true
        height: Theme.rowHeight - Theme.space4
        hoverEnabled: root.foldable
        leftPadding: Theme.space8 + 2
        pressedScale: 1
        tabStop: root.foldable && (root.ListView.isCurrentItem || activeFocus)
        text: root.title
        washed: false
        width: root.width
        y: Theme.space8
        Accessible.name: text
        OVAccessible.role: root.foldable ? Accessible.ListItem : Accessible.Heading
        onClicked: root.clicked()
        onPressed: root.pressed()
        onVisualFocusChanged: if (visualFocus) root.ringShown()

        contentItem: Item {
            OVText {
                id: label

                anchors.verticalCenter: parent.verticalCenter
                color: root.foldable && root.lit ? Theme.ovInkSecondary : Theme.ovInkTertiary
                role: OVText.Section
                text: heading.text
                width: Math.min(implicitWidth, parent.width - caret.width - action.width - Theme.space8)
                Accessible.ignored: true
            }

            OVIcon {
                id: caret

                anchors.verticalCenter: parent.verticalCenter
                color: Theme.ovInkTertiary
                opacity: root.lit || root.isCollapsed ? 1 : 0
                rotation: root.isCollapsed ? -90 : 0
                size: Theme.iconRow - 4
                symbol: "chevron.down"
                visible: root.foldable
                x: label.width + Theme.space4

                Behavior on opacity {
                    NumberAnimation { duration: Theme.durationHover }
                }
                Behavior on rotation {
                    NumberAnimation { duration: Theme.durationScreen; easing.type: Easing.OutCubic }
                }
            }
        }
    }

    OVIconButton {
        id: action

        anchors.right: parent.right
        anchors.rightMargin: Theme.space4
        anchors.verticalCenter: heading.verticalCenter
        height: Theme.rowHeight - Theme.space8
        iconSize: Theme.iconRow
        opacity: root.lit ? 1 : 0
        symbol: "plus"
        tabStop: false
        text: root.actionText
        visible: root.actionText !== ""
        width: height
        onClicked: root.actionTriggered()

        Behavior on opacity {
            NumberAnimation { duration: Theme.durationHover }
        }
    }
}
