import QtQuick
import QtQuick.Templates as T
import Orvel.DesignSystem

/// A slim, quiet row of menus inside the window. Alt or F10 goes to it; arrow keys move along it.
T.MenuBar {
    id: bar

    implicitWidth: contentWidth + leftPadding + rightPadding
    implicitHeight: contentHeight + topPadding + bottomPadding
    horizontalPadding: Theme.space8
    verticalPadding: Theme.space4 / 2
    spacing: 0

    readonly property MenuBarKeys keys: MenuBarKeys { menuBar: bar }

    Accessible.name: qsTr("Menu bar")

    delegate: OVMenuBarItem {
        onMenuLeft: if (bar.activeFocus) bar.keys.toggle()
    }
    background: Item { }

    contentItem: Row {
        spacing: bar.spacing

        Repeater {
            model: bar.contentModel
        }
    }

    Shortcut {
        sequence: "F10"
        onActivated: bar.keys.toggle()
    }
}
