import QtQuick
import QtQuick.Templates as T
import Orvel.DesignSystem

/// A surface over the dimmed window for a task of its own: Escape or a click beside it closes it, Tab stays
/// inside, and the focus returns to where it was. Content taller than the window scrolls.
T.Popup {
    id: sheet

    readonly property OVFocusReturn focusReturn: OVFocusReturn { popup: sheet }
    property string title: ""
    property string accessibleName: title
    /// The widest the sheet becomes.
    property real maximumWidth: Theme.sheetWidth
    default property alias content: column.data
    /// How far below its place the sheet stands while it appears.
    property real rise: 0

    parent: T.Overlay.overlay
    x: Math.round((parent.width - width) / 2)
    y: Math.round((parent.height - height) / 2) + rise
    width: Math.min(maximumWidth, parent.width - 2 * Theme.space24)
    height: Math.min(header.height + column.height + topPadding + bottomPadding, parent.height - 2 * Theme.space24)
    padding: Theme.space24
    modal: true
    focus: true
    closePolicy: T.Popup.CloseOnEscape | T.Popup.CloseOnPressOutside

    T.Overlay.modal: OVScrim { }
    background: OVPopupSurface { radius: Theme.cornerSheet }
    enter: OVSheetEnter { }
    exit: OVSheetExit { }

    contentItem: FocusScope {
        focus: true
        Accessible.role: Accessible.Dialog
        Accessible.name: sheet.accessibleName

        Item {
            id: header
            width: parent.width
            height: sheet.title !== "" ? Math.max(Theme.iconButtonSize, titleText.implicitHeight) + Theme.space16 : 0
            visible: sheet.title !== ""

            OVText {
                id: titleText
                anchors.left: parent.left
                anchors.right: closeButton.left
                height: closeButton.height
                text: sheet.title
                role: OVText.CardTitle
            }

            OVIconButton {
                id: closeButton
                anchors.right: parent.right
                anchors.rightMargin: -Theme.space8
                symbol: "xmark"
                text: qsTr("Close")
                onClicked: sheet.close()
            }
        }

        Flickable {
            id: flickable
            anchors.top: header.bottom
            anchors.bottom: parent.bottom
            width: parent.width
            contentWidth: width
            contentHeight: column.height
            boundsBehavior: Flickable.StopAtBounds
            clip: contentHeight > height

            T.ScrollBar.vertical: OVScrollBar { }

            Column {
                id: column
                width: flickable.width
                spacing: Theme.space16
            }
        }
    }
}
