import QtQuick
import Orvel.Decks
import Orvel.DesignSystem

/// The slide on the stage. A new one comes over the last one.
Item {
    id: root

    required property DeckPresenterViewModel presenter
    property int shownIndex: presenter.index

    Connections {
        target: root.presenter

        function onSlideChanged() {
            if (root.shownIndex === root.presenter.index)
                return
            last.shown = present.shown
            present.shown = root.presenter.shown
            entrance.from = (root.presenter.index > root.shownIndex ? 1 : -1) * Theme.space32
            root.shownIndex = root.presenter.index
            arrival.restart()
        }
    }

    SlideCanvas {
        id: last
        anchors.fill: parent
        visible: arrival.running
    }

    SlideCanvas {
        id: present
        height: parent.height
        shown: root.presenter.shown
        width: parent.width
        Accessible.name: qsTr("Slide %1").arg(root.presenter.index + 1)
        Accessible.role: Accessible.Graphic
    }

    ParallelAnimation {
        id: arrival

        readonly property int duration: Theme.motionEnabled ? Theme.durationSpring : 10

        NumberAnimation {
            duration: Math.min(arrival.duration, Theme.durationScreen || arrival.duration)
            from: 0
            property: "opacity"
            target: present
            to: 1
        }

        NumberAnimation {
            id: entrance
            duration: arrival.duration
            easing: Theme.springEasing
            property: "x"
            target: present
            to: 0
        }
    }
}
