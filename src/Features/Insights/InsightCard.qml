pragma ComponentBehavior: Bound

import QtQuick
import Orvel.DesignSystem
import Orvel.Insights

/// A chart with its title and a menu to take it elsewhere; a word in its place where there is nothing to draw.
Item {
    id: root

    required property InsightsViewModel viewModel
    required property string title
    required property string symbol
    required property string emptyHint
    /// What the labels and the values of the points are.
    required property string labelHeading
    required property string valueHeading
    required property var points
    /// Makes the `OVChart`.
    required property Component chart
    readonly property bool isEmpty: points.length === 0
    readonly property int inset: Theme.space16
    /// While its picture is taken, the card shows nothing that is for the pointer only.
    property bool posing: false

    signal copied(text: string)

    function copyPicture() {
        posing = true
        viewModel.copyPicture(root)
    }

    function copyNumbers() {
        viewModel.copyNumbers(labelHeading, valueHeading, points)
        copied(qsTr("Numbers copied"))
    }

    implicitHeight: holder.y + (isEmpty ? Theme.chartHint : holder.implicitHeight) + inset
    Accessible.name: title
    Accessible.role: Accessible.Grouping

    Keys.onPressed: event => {
        if (!isEmpty)
            contextMenu.handleKey(event)
    }

    Connections {
        target: root.viewModel

        function onPictureCopied() {
            if (!root.posing)
                return
            root.posing = false
            root.copied(qsTr("Picture copied"))
        }
    }

    OVCard {
        anchors.fill: parent
    }

    OVContextMenuArea {
        id: contextMenu
        enabled: !root.isEmpty

        menu: OVMenu {
            name: root.title

            OVMenuItem {
                symbol: "photo"
                text: qsTr("Copy as picture")
                onTriggered: root.copyPicture()
            }

            OVMenuItem {
                symbol: "tablecells"
                text: qsTr("Copy numbers")
                onTriggered: root.copyNumbers()
            }
        }
    }

    Item {
        id: heading
        height: Theme.iconButtonSize
        width: root.width - 2 * root.inset
        x: root.inset
        y: Theme.space12

        OVIcon {
            id: mark
            anchors.verticalCenter: parent.verticalCenter
            color: Theme.accentIcons ? Theme.accent : Theme.ovInkSecondary
            symbol: root.symbol
        }

        OVText {
            anchors.left: mark.right
            anchors.leftMargin: Theme.space8
            anchors.right: more.left
            anchors.rightMargin: Theme.space8
            anchors.verticalCenter: parent.verticalCenter
            font.weight: Font.DemiBold
            text: root.title
            Accessible.role: Accessible.Heading
        }

        OVIconButton {
            id: more
            anchors.right: parent.right
            anchors.rightMargin: -Theme.space8
            symbol: "ellipsis"
            text: qsTr("More")
            visible: !root.isEmpty && !root.posing
            Accessible.name: qsTr("More: %1").arg(root.title)
            onClicked: contextMenu.openAt(root.width - width - Theme.space8, heading.y + height)
        }
    }

    OVLazyLoader {
        id: holder
        active: !root.isEmpty
        sourceComponent: root.chart
        width: root.width - 2 * root.inset
        x: root.inset
        y: heading.y + heading.height + Theme.space8

        Binding {
            target: holder.item
            property: "points"
            value: root.points
            when: holder.item !== null
        }

        Binding {
            target: holder.item
            property: "name"
            value: root.title
            when: holder.item !== null
        }
    }

    OVText {
        color: Theme.ovInkSecondary
        height: Theme.chartHint
        horizontalAlignment: Text.AlignHCenter
        text: root.emptyHint
        visible: root.isEmpty
        width: holder.width
        wrapMode: Text.Wrap
        x: root.inset
        y: holder.y
    }
}
