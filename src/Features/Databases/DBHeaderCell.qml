import QtQuick
import Orvel.Databases
import Orvel.DesignSystem

/// The head of a column: the symbol of its type, its name, and a menu of what can be done with it.
OVPressable {
    id: root

    required property RecordsViewModel records
    required property int column
    property var property: records.columnsRevision >= 0 ? records.column(column) : null

    signal deleteRequested(var propertyID)

    function openMenu() {
        menu.openBeside(root, 0, 0, height)
        menu.currentIndex = visualFocus ? 0 : -1
    }

    leftPadding: Theme.space12
    radius: Theme.cornerMark
    rightPadding: Theme.space8
    text: property.name
    OVAccessible.role: Accessible.ButtonMenu
    onClicked: openMenu()

    contentItem: Item {
        OVIcon {
            id: icon
            anchors.verticalCenter: parent.verticalCenter
            color: Theme.ovInkTertiary
            size: Theme.sizeBody
            symbol: root.property.symbol
        }

        OVText {
            anchors.left: icon.right
            anchors.leftMargin: Theme.space8
            anchors.right: parent.right
            anchors.verticalCenter: parent.verticalCenter
            color: Theme.ovInkSecondary
            maximumLineCount: 1
            role: OVText.Section
            text: root.property.name
            Accessible.ignored: true
        }
    }

    OVMenu {
        id: menu
        name: root.text

        OVMenuItem {
            destructive: true
            symbol: "trash"
            text: qsTr("Delete property")
            onTriggered: root.deleteRequested(root.property.propertyID)
        }
    }
}
