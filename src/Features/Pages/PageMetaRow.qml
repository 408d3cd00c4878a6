import QtQuick
import Orvel.DesignSystem
import Orvel.Pages

/// What is known about a page, in one quiet line.
Flow {
    id: root

    required property PageHeaderViewModel header

    component Fact: OVText {
        color: Theme.ovInkSecondary
        role: OVText.Caption
    }
    component Dot: Fact {
        color: Theme.ovInkTertiary
        text: "·"
        Accessible.ignored: true
    }

    spacing: Theme.space8

    Fact { text: root.header.kindText }

    Dot { }

    Fact { text: root.header.editedText }

    Dot { }

    Fact {
        text: root.header.wordsText

        HoverHandler { id: overWords }

        OVToolTip {
            shown: overWords.hovered
            text: root.header.countsText
        }
    }

    Dot { visible: selected.visible }

    Fact {
        id: selected
        color: Theme.ovInk
        text: root.header.selectedWordsText
        visible: text !== ""

        HoverHandler { id: overSelected }

        OVToolTip {
            shown: overSelected.hovered
            text: root.header.selectedCountsText
        }
    }

    Dot { }

    Fact { text: root.header.readingTimeText }

    Dot { }

    Row {
        spacing: Theme.space4

        OVIcon {
            anchors.verticalCenter: parent.verticalCenter
            color: Theme.ovSuccess
            size: Theme.sizeCaption
            symbol: "checkmark"
        }

        Fact { text: qsTr("Saved") }
    }
}
