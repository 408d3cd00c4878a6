pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import Orvel.DesignSystem

GallerySection {
    title: "Type and colour"

    OVText { Layout.fillWidth: true; role: OVText.ScreenTitle; text: "Good morning, Zoë" }
    OVText { Layout.fillWidth: true; role: OVText.CardTitle; text: "Card and sheet title" }
    OVText {
        Layout.fillWidth: true
        Layout.maximumWidth: Theme.readingWidth
        text: "Body text is set at a calm size. Everything you write stays on this machine, in one file that is yours: "
              + "pages, tasks, habits, and the odd ☀️ 🌙 💪 ✍️ 🧠 🗂️ ⚡️ 👩🏽‍🚀. Ελληνικά, кириллица, 日本語, ✓ → ½ €."
        wrapMode: Text.Wrap
    }
    OVText { Layout.fillWidth: true; role: OVText.Dense; text: "Dense rows: 0123456789, 11:11, 1,000" }
    OVText { Layout.fillWidth: true; role: OVText.Caption; text: "Caption, in tertiary ink" }
    OVText { Layout.fillWidth: true; role: OVText.Code; text: "let words = [\"calm\", \"local\"] // => != 0O 1lI 🧠" }
    Row {
        spacing: Theme.space12

        Repeater {
            model: ["🧠", "☀️", "✍️", "🗂️", "🏔️", "👩🏽‍🚀", "A"]

            OVEmoji { required property string modelData; size: Theme.iconTile; text: modelData }
        }
    }
    OVText {
        Layout.preferredWidth: 320
        text: "A title of many words that never fits into the place where it stands and is therefore elided"
    }

    Flow {
        Layout.fillWidth: true
        spacing: Theme.space8

        Repeater {
            model: [Theme.ovCanvas, Theme.ovSidebar, Theme.ovSurface, Theme.ovSubtle, Theme.ovHover, Theme.ovBorder,
                    Theme.ovBorderStrong, Theme.ovInk, Theme.ovInkSecondary, Theme.ovInkTertiary, Theme.ovLink,
                    Theme.ovDanger, Theme.ovWarning, Theme.ovSuccess, Theme.ovInfo, Theme.accent]

            Rectangle {
                required property color modelData

                border.color: Theme.ovBorder
                color: modelData
                height: 32
                radius: Theme.cornerMark
                width: 48
            }
        }
    }
}
