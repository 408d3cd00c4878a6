import QtQuick
import Orvel.DesignSystem
import Orvel.Pages
import Orvel.Session

/// What is shown above the blocks of a page.
FocusScope {
    id: root

    required property var pageID

    /// What is selected in the page, for its counts: blocks, or else a text.
    property PageSelection selection: null
    property string selectedText: ""
    /// Without everything but the title.
    property bool titleOnly: false
    readonly property alias isUnnamed: header.isUnnamed

    signal zenRequested()
    /// The user goes on from the title to what is below it.
    signal leaveDown()

    /// @param caret where it goes in the title; -1 for its end
    function focusTitle(caret: int) {
        title.cursorPosition = caret < 0 ? title.length : Math.min(caret, title.length)
        title.forceActiveFocus(Qt.OtherFocusReason)
    }

    implicitHeight: column.implicitHeight

    // The focus must not stay in what is hidden.
    onTitleOnlyChanged: title.focus = true

    PageHeaderViewModel {
        id: header

        pageID: root.pageID
        selectedText: root.selectedText
        selection: root.selection
        session: Orvel
        onTitleCut: message => toast.show(message)
        onTitleRestored: caret => root.focusTitle(caret)
    }

    OVToast {
        id: toast
    }

    Column {
        id: column

        bottomPadding: Theme.space24
        topPadding: root.titleOnly ? 2 * Theme.space48 : Theme.space16
        width: parent.width

        Column {
            bottomPadding: Theme.space8
            spacing: Theme.space32
            visible: !root.titleOnly
            width: parent.width

            PageTopBar {
                header: header
                width: parent.width
                onMessage: text => toast.show(text)
                onZenRequested: root.zenRequested()
            }

            PageIconPicker {
                header: header
                x: -leftPadding
            }
        }

        PageTitleField {
            id: title

            focus: true
            header: header
            width: parent.width
            onLeaveDown: root.leaveDown()
        }

        PageMetaRow {
            header: header
            topPadding: Theme.space12
            visible: !root.titleOnly
            width: parent.width
        }
    }
}
