pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Orvel.Decks
import Orvel.DesignSystem

/// All slides in a row, which is one stop for Tab: the arrows select, with Control they move the slide.
ListView {
    id: list

    required property DeckEditorViewModel editor
    property bool focusByKeys: false
    readonly property bool visualFocus: activeFocus && focusByKeys
    /// Where the dragged slide would go, as the gap before this place; -1 for none.
    readonly property int gap: {
        const slide = currentItem as FilmstripSlide
        if (!slide?.dragged || slide.offset === 0)
            return -1
        return slide.index + slide.offset + (slide.offset > 0 ? 1 : 0)
    }

    signal editRequested()
    /// The last slide is gone, and the keyboard was here.
    signal emptied()

    function remove() {
        editor.deleteSlide()
        if (count === 0)
            return emptied()
        forceActiveFocus(focusByKeys ? Qt.TabFocusReason : Qt.MouseFocusReason)
    }

    function showCurrent() {
        // A row that comes before the current one moves it on, though the selection stays.
        currentIndex = Qt.binding(() => list.editor.selectedIndex)
        positionViewAtIndex(currentIndex, ListView.Contain)
    }

    function press(event: KeyEvent): bool {
        const control = (event.modifiers & Qt.ControlModifier) !== 0
        switch (event.key) {
        case Qt.Key_Left:
        case Qt.Key_Right:
        case Qt.Key_Up:
        case Qt.Key_Down: {
            const step = event.key === Qt.Key_Left || event.key === Qt.Key_Up ? -1 : 1
            if (control)
                editor.moveSlide(step)
            else
                editor.selectAt(editor.selectedIndex + step)
            return true
        }
        case Qt.Key_PageUp:
        case Qt.Key_PageDown:
            editor.selectAt(editor.selectedIndex + (event.key === Qt.Key_PageUp ? -1 : 1))
            return true
        case Qt.Key_Home:
            editor.selectAt(0)
            return true
        case Qt.Key_End:
            editor.selectAt(count - 1)
            return true
        case Qt.Key_Delete:
        case Qt.Key_Backspace:
            remove()
            return true
        case Qt.Key_Return:
        case Qt.Key_Enter:
        case Qt.Key_F2:
            editRequested()
            return true
        }
        return false
    }

    Accessible.name: qsTr("Slides")
    Accessible.role: Accessible.List
    activeFocusOnTab: true
    boundsBehavior: Flickable.StopAtBounds
    clip: true
    currentIndex: editor.selectedIndex
    highlightFollowsCurrentItem: false
    implicitHeight: Math.round(132 * Theme.fontScale * 9 / 16) + Theme.sizeCaption + Theme.space24
    // A slide is dragged, not the list; the wheel and the bar move the list.
    interactive: false
    keyNavigationEnabled: false
    leftMargin: 3
    model: editor.slides
    orientation: ListView.Horizontal
    rightMargin: 3
    spacing: Theme.space8
    T.ScrollBar.horizontal: OVScrollBar { }
    Keys.onPressed: event => {
        event.accepted = !(event.modifiers & (Qt.AltModifier | Qt.MetaModifier)) && press(event)
        if (!event.accepted)
            menuArea.handleKey(event)
    }
    onActiveFocusChanged: focusByKeys = true
    // The row of a slide that has just come is laid out later.
    onCurrentIndexChanged: Qt.callLater(list.showCurrent)

    delegate: FilmstripSlide {
        editor: list.editor
        height: list.height - Theme.space12
        ringShown: list.visualFocus
        width: Math.round(132 * Theme.fontScale)
        onDropped: offset => list.editor.moveSlide(offset)
        onMenuRequested: menuArea.openAt(x - list.contentX + width / 2, height / 2)
        onPicked: {
            list.forceActiveFocus(Qt.MouseFocusReason)
            list.focusByKeys = false
            list.editor.selectSlide(slideID)
        }
        onPulled: sceneX => {
            const x = list.mapFromItem(null, sceneX, 0).x
            edge.step = x < Theme.space32 ? -1 : x > list.width - Theme.space32 ? 1 : 0
        }
        onDraggedChanged: edge.step = 0
    }

    Rectangle {
        color: Theme.accent
        height: list.height - Theme.space32
        parent: list.contentItem
        radius: 1
        visible: list.gap >= 0
        width: 2
        x: list.gap * (Math.round(132 * Theme.fontScale) + list.spacing) - list.spacing / 2 - 1
        y: Theme.space8
        z: 3
    }

    Connections {
        target: list.editor

        function onDeckIDChanged() {
            list.positionViewAtBeginning()
        }
    }

    WheelHandler {
        acceptedDevices: PointerDevice.Mouse | PointerDevice.TouchPad
        orientation: Qt.Vertical
        target: null
        onWheel: event => list.scrollBy(-(event.angleDelta.y || event.angleDelta.x))
    }

    Timer {
        id: edge

        property int step: 0

        interval: 16
        repeat: true
        running: step !== 0
        onTriggered: list.scrollBy(step * Theme.space8)
    }

    function scrollBy(distance: real) {
        contentX = Math.max(originX - leftMargin,
                            Math.min(originX + contentWidth + rightMargin - width, contentX + distance))
    }

    OVContextMenuArea {
        id: menuArea
        menu: SlideMenu {
            editor: list.editor
            onDeleteRequested: list.remove()
        }
    }
}
