pragma ComponentBehavior: Bound

import QtQuick
import Orvel.DesignSystem
import Orvel.Settings

/// The names of all sections, to jump to one. One stop for Tab; the arrow keys go from name to name.
ListView {
    id: list

    required property SettingsColumn settings
    /// The section that is in view.
    property int shown: 0
    readonly property ListFocus keys: ListFocus {
        view: list
    }

    signal chosen(index: int)
    /// A key asks to go on within the section.
    signal entered(index: int)

    boundsBehavior: Flickable.StopAtBounds
    clip: interactive
    currentIndex: shown
    highlightFollowsCurrentItem: false
    interactive: contentHeight > height
    keyNavigationEnabled: false
    model: settings.sections.length
    Accessible.name: qsTr("Sections")
    Accessible.role: Accessible.List
    Keys.onPressed: event => {
        event.accepted = keys.press(event.key)
        if (event.accepted)
            chosen(currentIndex)
    }
    onShownChanged: {
        positionViewAtIndex(shown, ListView.Contain)
        if (!activeFocus)
            currentIndex = shown
    }

    delegate: OVPressable {
        id: row

        required property int index
        readonly property bool isShown: index === list.shown

        implicitHeight: Theme.chipHeight
        leftPadding: Theme.space12
        pressedScale: 1
        rightPadding: Theme.space8
        tabStop: ListView.isCurrentItem || activeFocus
        text: list.settings.sections[index].title
        width: list.width
        Accessible.selected: isShown
        OVAccessible.role: Accessible.ListItem
        Keys.onEnterPressed: list.entered(index)
        Keys.onReturnPressed: list.entered(index)
        onClicked: list.chosen(index)

        background: HoverWash {
            hovered: row.hovered
            pressed: row.down
            radius: row.radius
        }
        contentItem: OVText {
            color: row.isShown || row.hovered ? Theme.ovInk : Theme.ovInkSecondary
            font.weight: row.isShown ? Font.Medium : Theme.textWeight
            maximumLineCount: 1
            role: OVText.Dense
            text: row.text
            Accessible.ignored: true
        }
    }
}
