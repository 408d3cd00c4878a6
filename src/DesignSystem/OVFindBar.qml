import QtQuick
import Orvel.DesignSystem

/// The search within what a screen shows, and below it, where the screen can do that, the field to replace what is
/// found. It binds the keys to search, as long as its screen is shown.
FocusScope {
    id: root

    required property TextFinder finder
    /// Whether there is anything to search.
    property bool canFind: true
    property alias placeholder: field.placeholderText
    /// What the user has selected, which is looked for first.
    property string selectedText: ""
    readonly property int fieldWidth: Math.min(1.5 * Theme.fieldWidth, width - rowButtons.width - 2 * Theme.space12)

    /// Escape or the button: the screen takes the keyboard back.
    signal closeRequested()
    /// The screen tells where the user is before the search begins: at the beginning of what is selected, or behind it.
    signal aboutToOpen(behind: bool)

    /// What to look for: the line that is selected.
    function wanted(): string {
        if (activeFocus)
            return ""
        aboutToOpen(false)
        return /[\n\u2028\u2029]/.test(selectedText) ? "" : selectedText
    }

    function step(forward: bool) {
        if (!finder.isOpen)
            aboutToOpen(forward)
        if (forward)
            finder.next()
        else
            finder.previous()
    }

    implicitHeight: rows.height + 2 * Theme.space8
    visible: finder.isOpen

    Keys.onEscapePressed: closeRequested()

    Connections {
        target: root.finder

        function onOpened() {
            field.forceActiveFocus(Qt.ShortcutFocusReason)
            field.selectAll()
        }
    }

    Shortcut {
        enabled: root.canFind
        sequence: "Ctrl+F"
        onActivated: root.finder.open(root.wanted())
    }

    Shortcut {
        enabled: root.canFind && root.finder.canReplace
        sequence: "Ctrl+H"
        onActivated: root.finder.openReplace(root.wanted())
    }

    Shortcut {
        enabled: root.canFind
        sequence: "Ctrl+G"
        onActivated: root.step(true)
    }

    Shortcut {
        enabled: root.canFind
        sequence: "Ctrl+Shift+G"
        onActivated: root.step(false)
    }

    Column {
        id: rows

        anchors.horizontalCenter: parent.horizontalCenter
        spacing: Theme.space8
        y: Theme.space8

        Row {
            spacing: Theme.space4

            OVTextField {
                id: field

                focus: true
                inputMethodHints: Qt.ImhNoPredictiveText
                placeholderText: qsTr("Find")
                rightPadding: Theme.space12 + count.width
                symbol: "magnifyingglass"
                text: root.finder.query
                width: root.fieldWidth
                Keys.onDownPressed: root.finder.next()
                Keys.onPressed: event => {
                    const isReturn = event.key === Qt.Key_Return || event.key === Qt.Key_Enter
                    event.accepted = isReturn
                    if (isReturn && event.modifiers & Qt.ShiftModifier)
                        root.finder.previous()
                    else if (isReturn)
                        root.finder.next()
                }
                Keys.onUpPressed: root.finder.previous()
                onTextEdited: root.finder.query = text

                OVText {
                    id: count

                    anchors.right: parent.right
                    anchors.rightMargin: Theme.space12
                    anchors.verticalCenter: parent.verticalCenter
                    color: Theme.ovInkSecondary
                    leftPadding: text === "" ? 0 : Theme.space8
                    role: OVText.Caption
                    text: root.finder.countText
                }
            }

            Row {
                id: rowButtons

                anchors.verticalCenter: field.verticalCenter
                spacing: Theme.space4

                OVIconButton {
                    enabled: root.finder.count > 0
                    symbol: "chevron.up"
                    text: qsTr("Previous match")
                    onClicked: root.finder.previous()
                }

                OVIconButton {
                    enabled: root.finder.count > 0
                    symbol: "chevron.down"
                    text: qsTr("Next match")
                    onClicked: root.finder.next()
                }

                OVIconButton {
                    checked: root.finder.isReplacing
                    symbol: "arrow.left.arrow.right"
                    text: qsTr("Replace")
                    visible: root.finder.canReplace
                    Accessible.checkable: true
                    Accessible.checked: checked
                    onClicked: root.finder.isReplacing = !root.finder.isReplacing
                }

                OVIconButton {
                    symbol: "xmark"
                    text: qsTr("Close")
                    onClicked: root.closeRequested()
                }
            }
        }

        OVLazyLoader {
            active: root.finder.isReplacing
            height: active ? implicitHeight : 0
            visible: active

            sourceComponent: Row {
                spacing: Theme.space8

                OVTextField {
                    placeholderText: qsTr("Replace with")
                    text: root.finder.replacement
                    width: root.fieldWidth
                    Keys.onPressed: event => {
                        event.accepted = event.key === Qt.Key_Return || event.key === Qt.Key_Enter
                        if (event.accepted)
                            root.finder.replace()
                    }
                    onTextEdited: root.finder.replacement = text
                }

                OVSecondaryButton {
                    anchors.verticalCenter: parent.verticalCenter
                    enabled: root.finder.count > 0
                    text: qsTr("Replace")
                    onClicked: root.finder.replace()
                }

                OVSecondaryButton {
                    anchors.verticalCenter: parent.verticalCenter
                    enabled: root.finder.count > 0
                    text: qsTr("All")
                    Accessible.name: qsTr("Replace all")
                    onClicked: root.finder.replaceAll()
                }
            }
        }
    }

    OVDivider {
        anchors.bottom: parent.bottom
        width: parent.width
    }
}
