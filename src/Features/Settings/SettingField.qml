import QtQuick
import Orvel.DesignSystem
import Orvel.Session

/// A setting that is a text, taken as it is typed.
OVField {
    id: root

    property alias field: setting.field

    text: setting.value ?? ""
    width: parent?.width ?? implicitWidth
    onTextEdited: setting.set(text)

    Setting {
        id: setting

        session: Orvel
    }
}
