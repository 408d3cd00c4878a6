pragma ComponentBehavior: Bound

import QtQuick
import Orvel.DesignSystem
import Orvel.Reader

/// The choice between the library and the search; one stop for Tab.
FocusScope {
    id: root

    required property ReaderViewModel reader

    function choose(index: int) {
        const next = Math.max(0, Math.min(index, rows.count - 1))
        rows.itemAt(next).forceActiveFocus(Qt.TabFocusReason)
    }

    implicitHeight: column.height

    Column {
        id: column
        Accessible.name: qsTr("Show")
        Accessible.role: Accessible.Grouping
        spacing: 2
        width: root.width

        Repeater {
            id: rows
            model: root.reader.modes

            OVPressable {
                id: row

                required property int index
                required property var modelData

                Keys.onDownPressed: root.choose(index + 1)
                Keys.onUpPressed: root.choose(index - 1)
                OVAccessible.role: Accessible.RadioButton
                Accessible.checked: checked
                checked: modelData.raw === root.reader.mode
                focus: checked
                height: Theme.rowHeight
                leftPadding: Theme.space8
                rightPadding: Theme.space8
                tabStop: checked || activeFocus
                text: modelData.label
                width: column.width
                onClicked: root.reader.mode = modelData.raw

                contentItem: Row {
                    spacing: Theme.space8

                    OVIcon {
                        anchors.verticalCenter: parent.verticalCenter
                        color: row.checked ? Theme.ovInk : Theme.ovInkSecondary
                        filled: row.checked
                        symbol: row.modelData.symbol
                    }

                    OVText {
                        Accessible.ignored: true
                        anchors.verticalCenter: parent.verticalCenter
                        color: row.checked ? Theme.ovInk : Theme.ovInkSecondary
                        font.weight: row.checked ? Font.Medium : Theme.textWeight
                        text: row.text
                        width: parent.width - Theme.iconRow - Theme.space8
                    }
                }
            }
        }
    }
}
