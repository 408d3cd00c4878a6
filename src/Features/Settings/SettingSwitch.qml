import QtQuick
import Orvel.DesignSystem
import Orvel.Session

/// A setting that is on or off.
OVSwitch {
    property alias field: setting.field

    checked: setting.value === true
    indicatorTrailing: true
    width: parent?.width ?? implicitWidth
    onToggled: setting.set(checked)

    Setting {
        id: setting

        session: Orvel
    }
}
