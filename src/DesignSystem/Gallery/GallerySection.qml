import QtQuick
import QtQuick.Layouts
import Orvel.DesignSystem

/// One titled part of the gallery.
ColumnLayout {
    id: root

    property alias title: header.text

    spacing: Theme.space12

    OVSectionHeader {
        id: header

        Layout.fillWidth: true
    }
}
