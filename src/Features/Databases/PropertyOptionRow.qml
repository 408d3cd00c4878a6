import QtQuick
import Orvel.DesignSystem

/// An option of a property in its form, with the colour that its name gives it.
Item {
    id: line

    required property int index
    required property int optionID
    required property string text
    required property int tone
    required property bool isFirst
    required property bool isLast
    readonly property OVToneColors colors: OVToneColors { tone: line.tone }

    signal renamed(text: string)
    signal moveRequested(places: int)
    signal removeRequested()
    /// The user goes on to the field so many rows further down.
    signal goRequested(places: int)

    function focusField() {
        field.forceActiveFocus(Qt.TabFocusReason)
    }

    height: Theme.fieldHeight
    Accessible.name: text
    Accessible.role: Accessible.ListItem

    Rectangle {
        id: mark
        anchors.verticalCenter: parent.verticalCenter
        color: line.colors.ink
        height: Theme.space8
        radius: width / 2
        width: height
        x: Theme.space4
    }

    OVTextField {
        id: field
        anchors.left: mark.right
        anchors.leftMargin: Theme.space8
        anchors.right: actions.left
        anchors.rightMargin: Theme.space4
        Accessible.name: qsTr("Option %1").arg(line.index + 1)
        Component.onCompleted: text = line.text
        Keys.onDownPressed: event => {
            if (event.modifiers & Qt.AltModifier)
                line.moveRequested(1)
            else
                line.goRequested(1)
        }
        Keys.onUpPressed: event => {
            if (event.modifiers & Qt.AltModifier)
                line.moveRequested(-1)
            else
                line.goRequested(-1)
        }
        onAccepted: line.goRequested(1)
        onActiveFocusChanged: {
            if (!activeFocus)
                text = line.text
        }
        onTextEdited: line.renamed(text)
    }

    Row {
        id: actions
        anchors.right: parent.right
        anchors.verticalCenter: parent.verticalCenter

        OVIconButton {
            enabled: !line.isFirst
            iconSize: Theme.iconRow
            symbol: "arrow.up"
            tabStop: false
            text: qsTr("Move up")
            onClicked: line.moveRequested(-1)
        }

        OVIconButton {
            enabled: !line.isLast
            iconSize: Theme.iconRow
            symbol: "arrow.down"
            tabStop: false
            text: qsTr("Move down")
            onClicked: line.moveRequested(1)
        }

        OVIconButton {
            iconSize: Theme.iconRow
            symbol: "xmark"
            text: qsTr("Remove")
            Accessible.name: qsTr("Remove: %1").arg(line.text)
            onClicked: line.removeRequested()
        }
    }
}
