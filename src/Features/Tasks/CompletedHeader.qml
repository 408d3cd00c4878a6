import QtQuick
import Orvel.DesignSystem

/// The row over the completed tasks, which folds and unfolds them.
ScreenListRow {
    id: row

    required property int count
    required property bool showDone

    signal toggled()

    rowHeight: Theme.space16 + Theme.rowHeight + Theme.space4

    Accessible.focusable: true
    Accessible.checkable: true
    Accessible.checked: showDone
    Accessible.name: qsTr("Completed, %1").arg(count)
    Accessible.role: Accessible.CheckBox
    Accessible.onPressAction: button.activate()
    Accessible.onToggleAction: button.activate()
    Keys.onPressed: event => {
        switch (event.key) {
        case Qt.Key_Space:
        case Qt.Key_Return:
        case Qt.Key_Enter:
            button.activate()
            event.accepted = true
            break
        default:
            event.accepted = row.list.keys.press(event.key)
        }
    }

    OVPressable {
        id: button
        tabStop: false
        height: Theme.rowHeight
        leftPadding: Theme.space8
        rightPadding: Theme.space8
        width: parent.width
        y: Theme.space16
        Accessible.ignored: true
        onClicked: row.toggled()

        contentItem: Row {
            spacing: Theme.space8

            OVIcon {
                anchors.verticalCenter: parent.verticalCenter
                rotation: row.showDone ? 0 : -90
                size: Theme.sizeCaption + 2
                symbol: "chevron.down"

                Behavior on rotation {
                    NumberAnimation { duration: Theme.durationScreen; easing.type: Easing.OutCubic }
                }
            }

            OVText {
                anchors.verticalCenter: parent.verticalCenter
                role: OVText.Section
                text: qsTr("Completed")
            }

            OVText {
                anchors.verticalCenter: parent.verticalCenter
                role: OVText.Caption
                text: row.count
            }
        }

        OVFocusRing {
            shown: row.visualFocus
        }
    }
}
