import QtQuick
import QtQuick.Templates as T
import Orvel.DesignSystem

/// A surface over the dimmed window for a task of its own: Escape or a click beside it closes it, Tab stays
/// inside, and the focus returns to where it was. Content taller than the window scrolls, also by keys that what
/// has the focus makes no use of.
T.Popup {
    id: sheet

    readonly property OVFocusReturn focusReturn: OVFocusReturn { popup: sheet }
    property string title: ""
    property string accessibleName: title
    /// A line below the title.
    property string subtitle: ""
    /// Stands above the content and stays when that scrolls.
    property alias pinned: pinnedColumn.data
    /// Stands below the content and stays when that scrolls, such as the buttons.
    property alias footer: footerColumn.data
    /// The widest the sheet becomes.
    property real maximumWidth: Theme.sheetWidth
    default property alias content: column.data
    /// How far below its place the sheet stands while it appears.
    property real rise: 0

    parent: T.Overlay.overlay
    x: Math.round((parent.width - width) / 2)
    y: Math.round((parent.height - height) / 2) + rise
    width: Math.min(maximumWidth, parent.width - 2 * Theme.space24)
    height: Math.min(header.height + pinnedColumn.height + column.height + footerColumn.height
                     + topPadding + bottomPadding, parent.height - 2 * Theme.space24)
    padding: Theme.space24
    modal: true
    focus: true
    closePolicy: T.Popup.CloseOnEscape | T.Popup.CloseOnPressOutside
    OVAccessible.name: accessibleName

    onAboutToShow: flickable.contentY = 0

    T.Overlay.modal: OVScrim { }
    background: OVPopupSurface { radius: Theme.cornerSheet }
    enter: OVEnter { rises: true }
    exit: OVExit { sinks: true }

    contentItem: FocusScope {
        focus: true
        Keys.onPressed: event => event.accepted = flickable.scroll(event.key)

        Item {
            id: header
            width: parent.width
            height: sheet.title === "" ? 0 : Math.max(Theme.iconButtonSize, titleText.implicitHeight) + Theme.space16
                    + (sheet.subtitle !== "" ? subtitleText.implicitHeight : 0)
            visible: sheet.title !== ""

            OVText {
                id: titleText
                anchors.left: parent.left
                anchors.right: closeButton.left
                height: closeButton.height
                text: sheet.title
                role: OVText.CardTitle
            }

            OVText {
                id: subtitleText
                anchors.top: titleText.bottom
                visible: text !== ""
                width: parent.width
                color: Theme.ovInkSecondary
                role: OVText.Dense
                text: sheet.subtitle
                wrapMode: Text.Wrap
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

        Column {
            id: pinnedColumn
            anchors.top: header.bottom
            bottomPadding: children.length > 0 ? Theme.space16 : 0
            spacing: Theme.space12
            width: parent.width
        }

        Flickable {
            id: flickable

            function scroll(key: int): bool {
                const end = Math.max(0, contentHeight - height)
                const steps = {
                    [Qt.Key_Up]: -Theme.space48,
                    [Qt.Key_Down]: Theme.space48,
                    [Qt.Key_PageUp]: -height,
                    [Qt.Key_PageDown]: height,
                    [Qt.Key_Home]: -end,
                    [Qt.Key_End]: end
                }
                if (end === 0 || !(key in steps))
                    return false
                contentY = Math.max(0, Math.min(end, contentY + steps[key]))
                return true
            }

            anchors.top: pinnedColumn.bottom
            anchors.bottom: footerColumn.top
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

        OVDivider {
            anchors.bottom: flickable.bottom
            width: parent.width
            visible: flickable.clip && footerColumn.height > 0
        }

        Column {
            id: footerColumn
            anchors.bottom: parent.bottom
            width: parent.width
            topPadding: children.length > 0 ? Theme.space16 : 0
            spacing: Theme.space16
        }
    }
}
