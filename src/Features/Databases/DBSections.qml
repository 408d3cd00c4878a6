import QtQuick
import Orvel.DesignSystem

/// Makes what stands over the records of a day. It has a file of its own because a view of this Qt version cannot make
/// a section of a bound component.
QtObject {
    readonly property Component label: OVText {
        required property string section

        bottomPadding: Theme.space4
        leftPadding: Theme.space12
        role: OVText.Section
        text: section
        topPadding: Theme.space16
        width: ListView.view?.width ?? implicitWidth
        Accessible.role: Accessible.Heading
    }
}
