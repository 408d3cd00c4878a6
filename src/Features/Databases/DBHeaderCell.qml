import QtQuick
import Orvel.Databases
import Orvel.DesignSystem

/// The head of a column: the symbol of its type, its name, and a menu of what can be done with it.
OVPressable {
    id: root

    required property RecordsViewModel records
    required property int column
    property var property: records.columnsRevision >= 0 ? records.column(column) : null

    /// Places to the right that the column has gone since the menu was opened.
    property int places: 0

    /// The column has gone so many places to the right, and with it what the user works at.
    signal moved(places: int)

    function move(step: int) {
        records.moveColumn(column + places, step)
        places += step
    }

    function openMenu() {
        const byKeys = visualFocus
        menu.openBeside(root, 0, 0, height)
        menu.currentIndex = byKeys ? 0 : -1
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

    Keys.onPressed: event => {
        event.accepted = !(event.modifiers & ~Qt.KeypadModifier)
                         && (event.key === Qt.Key_F2 || event.key === Qt.Key_Delete)
        if (!event.accepted)
            return
        if (event.key === Qt.Key_F2)
            records.editProperty(column)
        else if (event.key === Qt.Key_Delete)
            records.removeColumn(column)
    }

    TapHandler {
        acceptedButtons: Qt.RightButton
        onTapped: root.openMenu()
    }

    OVMenu {
        id: menu
        name: root.text
        onClosed: {
            const gone = root.places
            root.places = 0
            if (gone !== 0)
                root.moved(gone)
        }

        OVMenuItem {
            shortcutText: "F2"
            symbol: "pencil"
            text: qsTr("Edit property…")
            onTriggered: root.records.editProperty(root.column)
        }

        OVMenuSeparator { }

        OVMenuItem {
            symbol: "arrow.up"
            text: qsTr("Sort ascending")
            onTriggered: root.records.sortBy(root.column, false)
        }

        OVMenuItem {
            symbol: "arrow.down"
            text: qsTr("Sort descending")
            onTriggered: root.records.sortBy(root.column, true)
        }

        OVMenuSeparator { }

        OVMenuItem {
            enabled: root.records.columnsRevision >= 0 && root.records.canMoveColumn(root.column + root.places, -1)
            symbol: "arrow.left"
            text: qsTr("Move left")
            onTriggered: root.move(-1)
        }

        OVMenuItem {
            enabled: root.records.columnsRevision >= 0 && root.records.canMoveColumn(root.column + root.places, 1)
            symbol: "arrow.right"
            text: qsTr("Move right")
            onTriggered: root.move(1)
        }

        OVMenuSeparator { }

        OVMenuItem {
            destructive: true
            shortcutText: "Del"
            symbol: "trash"
            text: qsTr("Delete property")
            onTriggered: root.records.removeColumn(root.column)
        }
    }
}
