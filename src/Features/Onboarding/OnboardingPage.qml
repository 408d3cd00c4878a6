import QtQuick
import QtQuick.Templates as T
import Orvel.DesignSystem
import Orvel.Onboarding

/// The frame of a step: its title and subtitle, and its content below them in a column that scrolls where it is too
/// long, following the keyboard's focus.
FocusScope {
    id: root

    required property OnboardingViewModel onboarding
    /// What wants the keyboard first; nothing leaves it to the button that goes on.
    property Item firstFocus: null
    /// Stands above the title where there is room.
    property alias hero: heroPlace.data
    /// Stands at the right end of the subtitle.
    property alias trailing: trailingPlace.data
    property alias spacing: column.spacing
    default property alias content: column.data

    /// The user is done with the step.
    signal accepted

    function reveal(item: Item) {
        let inside = item
        while (inside && inside !== column)
            inside = inside.parent
        if (!inside)
            return
        const top = item.mapToItem(flickable.contentItem, 0, 0).y - Theme.space16
        const bottom = top + item.height + 2 * Theme.space16
        const lowest = Math.max(0, flickable.contentHeight - flickable.height)
        flickable.contentY = Math.max(0, Math.min(lowest, top, Math.max(flickable.contentY, bottom - flickable.height)))
    }

    // What it says is decided once: the words of the next step must not show on a page that is leaving.
    Component.onCompleted: {
        title.text = onboarding.title
        subtitle.text = onboarding.subtitle
    }
    Window.onActiveFocusItemChanged: reveal(Window.activeFocusItem)

    Flickable {
        id: flickable

        anchors.fill: parent
        boundsBehavior: Flickable.StopAtBounds
        clip: interactive
        contentHeight: column.height + Theme.space8 + Theme.space24
        interactive: contentHeight > height
        T.ScrollBar.vertical: OVScrollBar { }

        Column {
            id: column

            spacing: Theme.space24
            width: flickable.width - 2 * x
            x: Theme.space32
            y: Theme.space8

            Column {
                spacing: Theme.space8
                width: parent.width

                Item {
                    id: heroPlace

                    height: childrenRect.height > 0 ? childrenRect.height + Theme.space16 : 0
                    visible: height > 0 && root.height > 480 * Theme.fontScale
                    width: parent.width
                }

                OVText {
                    id: title

                    role: OVText.ScreenTitle
                    width: parent.width
                    wrapMode: Text.Wrap
                    Accessible.role: Accessible.Heading
                }

                Item {
                    height: Math.max(subtitle.height, trailingPlace.height)
                    width: parent.width

                    OVText {
                        id: subtitle

                        anchors.verticalCenter: parent.verticalCenter
                        color: Theme.ovInkSecondary
                        width: parent.width - (trailingPlace.width > 0 ? trailingPlace.width + Theme.space16 : 0)
                        wrapMode: Text.Wrap
                    }

                    Row {
                        id: trailingPlace

                        anchors.right: parent.right
                        anchors.verticalCenter: parent.verticalCenter
                        spacing: Theme.space8
                    }
                }
            }
        }
    }
}
