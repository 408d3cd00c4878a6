pragma ComponentBehavior: Bound

import QtQuick
import Orvel.DesignSystem

/// A row of an `OVCardList`, which can be pressed and takes the focus as a whole. Its parts are no stops for Tab.
///
/// A row that is removed under the pointer takes the clicks at its place until the pointer moves, so that a second
/// one meets nothing else.
FocusScope {
    id: row

    required property int index
    readonly property OVCardList list: ListView.view as OVCardList
    readonly property bool visualFocus: activeFocus && (list?.keys.ringShown ?? false)
    readonly property alias hovered: pointer.hovered
    default property alias content: face.data

    /// The user clicked the row or pressed Return on it.
    signal activated()

    /// Gives the focus, if the row has it, to another row, or to the stop before the list. For use before the row
    /// is removed.
    function stepAside() {
        if (!activeFocus)
            return
        if (list.count === 1)
            list.leave(false)
        else
            list.keys.focus(index + 1 < list.count ? index + 1 : index - 1,
                            list.keys.ringShown ? Qt.TabFocusReason : Qt.MouseFocusReason)
    }

    activeFocusOnTab: activeFocus
    height: list?.rowHeight ?? 0
    width: ListView.view?.width ?? 0
    Accessible.focusable: true
    Accessible.role: Accessible.ListItem
    Accessible.onPressAction: activated()

    Keys.onBacktabPressed: list.leave(false)
    Keys.onPressed: event => {
        const plain = !(event.modifiers & (Qt.ControlModifier | Qt.AltModifier | Qt.MetaModifier))
        if (plain && (event.key === Qt.Key_Return || event.key === Qt.Key_Enter)) {
            activated()
            event.accepted = true
        } else if (plain && list.keys.press(event.key)) {
            event.accepted = true
        }
    }
    ListView.onRemove: {
        row.ListView.delayRemove = true
        z = 1;
        (removal.createObject(row) as OVRemoval).begin()
    }
    onActiveFocusChanged: {
        if (activeFocus)
            list.currentIndex = index
    }

    HoverWash {
        anchors.leftMargin: -Theme.space8
        anchors.rightMargin: -Theme.space8
        hovered: pointer.hovered
        pressed: press.pressed
    }

    TapHandler {
        id: press
        gesturePolicy: TapHandler.WithinBounds
        onTapped: row.activated()
    }

    Item {
        id: face
        anchors.fill: parent

        HoverHandler {
            id: pointer
        }
    }

    OVLazyLoader {
        active: row.visualFocus
        anchors.fill: parent
        anchors.leftMargin: -Theme.space8
        anchors.rightMargin: -Theme.space8

        sourceComponent: OVFocusRing {
            anchors.margins: 0
            shown: true
            targetRadius: Theme.cornerField - 4
        }
    }

    Component {
        id: removal

        OVRemoval {
            content: face
            fadesFirst: true
            hover: pointer
            onReleased: row.ListView.delayRemove = false
        }
    }
}
