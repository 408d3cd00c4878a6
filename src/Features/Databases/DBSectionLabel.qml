import QtQuick
import Orvel.DesignSystem

/// The day over the records of a calendar.
OVText {
    required property string section

    bottomPadding: Theme.space4
    leftPadding: Theme.space12
    role: OVText.Section
    text: section
    topPadding: Theme.space16
    Accessible.role: Accessible.Heading
}
