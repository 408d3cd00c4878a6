import QtQuick
import Orvel.DesignSystem
import Orvel.Reader

/// What stands above the text of a book: the way back, what it is, and how it is shown.
FocusScope {
    id: root

    required property ReaderViewModel reader
    property string title
    property string author
    property bool canFind: false
    readonly property int padding: width < 760 ? Theme.space12 : Theme.space16

    signal backRequested()
    signal findRequested()

    implicitHeight: Math.max(back.height, titles.implicitHeight) + 2 * Theme.space8

    OVPressable {
        id: back
        anchors.verticalCenter: parent.verticalCenter
        focus: true
        height: Theme.buttonHeight
        leftPadding: Theme.space8
        rightPadding: Theme.space12
        text: qsTr("Library")
        toolTip: qsTr("Close the book")
        x: root.padding
        onClicked: root.backRequested()

        contentItem: OVButtonContent {
            color: Theme.ovInkSecondary
            symbol: "chevron.left"
            text: back.text
        }
    }

    Column {
        id: titles
        anchors.verticalCenter: parent.verticalCenter
        spacing: 2
        width: Math.max(0, actions.x - x - Theme.space12)
        x: back.x + back.width + Theme.space8

        OVText {
            Accessible.role: Accessible.Heading
            font.weight: Font.DemiBold
            text: root.title
            width: parent.width
        }

        OVText {
            color: Theme.ovInkSecondary
            role: OVText.Caption
            text: root.author
            width: parent.width
        }
    }

    Row {
        id: actions
        anchors.right: parent.right
        anchors.rightMargin: root.padding
        anchors.verticalCenter: parent.verticalCenter
        spacing: Theme.space4

        OVIconButton {
            enabled: root.canFind
            symbol: "magnifyingglass"
            text: qsTr("Find in book")
            onClicked: root.findRequested()
        }

        TextSizeButton {
            enabled: root.reader.canShrink
            letterSize: Theme.sizeCaption
            text: qsTr("Smaller text")
            onClicked: root.reader.adjustScale(-1)
        }

        TextSizeButton {
            enabled: root.reader.canGrow
            letterSize: Theme.sizeCardTitle
            text: qsTr("Larger text")
            onClicked: root.reader.adjustScale(1)
        }

        OVIconButton {
            Accessible.checkable: true
            Accessible.checked: checked
            checked: root.reader.serif
            filled: false
            symbol: "textformat"
            text: qsTr("Serif type")
            onClicked: root.reader.toggleSerif()
        }

        OVIconButton {
            Accessible.checkable: true
            Accessible.checked: checked
            checked: root.reader.inkMode
            symbol: root.reader.inkMode ? "sun.max" : "doc.plaintext"
            text: root.reader.inkMode ? qsTr("Leave e-ink mode") : qsTr("E-ink mode")
            onClicked: root.reader.toggleInk()
        }
    }

    OVDivider {
        anchors.bottom: parent.bottom
        width: parent.width
    }
}
