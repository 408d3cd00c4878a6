pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import Orvel.DesignSystem

GallerySection {
    title: "Intro, at three moments"

    Flow {
        Layout.fillWidth: true
        spacing: Theme.space16

        Repeater {
            model: [[0.4, 0, 0, 0], [1, 0.4, 0.5, 0], [1, 1, 1, 1]]

            OrvelIntroView {
                required property var modelData

                captionOpacity: modelData[3]
                clip: true
                fillProgress: modelData[1]
                focus: false
                glow: modelData[2]
                height: 300
                markScale: 0.86 + 0.14 * modelData[0]
                outlineProgress: modelData[0]
                width: 360
            }
        }
    }
}
