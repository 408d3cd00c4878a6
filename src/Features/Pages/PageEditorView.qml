import QtQuick
import Orvel.DesignSystem
import Orvel.Pages
import Orvel.Session

/// The editor of one page: its blocks below each other in one scrolling column, and the same over the whole
/// window while nothing shall distract.
FocusScope {
    id: root

    required property var pageID
    readonly property string title: editor.title
    readonly property alias editor: editor
    readonly property alias list: list

    /// A page that nobody has named yet is waiting for its name.
    readonly property bool wantsKeyboard: (list.above as PageHeader).isUnnamed

    // A page that has its name takes the keys that lead into it; no other key changes it before.
    Component.onCompleted: {
        list.focus = wantsKeyboard
        editor.finder.showSoughtText()
    }

    Accessible.name: title
    Accessible.role: Accessible.Pane

    PageEditorViewModel {
        id: editor
        pageID: root.pageID
        session: Orvel
        finder: PageFinder {
            pageID: root.pageID
            session: Orvel
        }
        // The change of the list's place costs the focus.
        onIsZenChanged: Qt.callLater(list.restoreFocus)
        onMessage: text => toast.show(text)
    }

    OVToast {
        id: toast
    }

    FocusScope {
        id: place
        anchors.fill: parent
        focus: true

        Keys.onPressed: event => {
            event.accepted = Window.activeFocusItem === place
            if (event.accepted)
                list.enterByKey(event)
        }
    }

    ZenLayer {
        id: zen
        editor: editor
    }

    PageFindBar {
        id: findBar
        editor: editor
        list: list
        parent: list.parent
        width: parent.width
    }

    BlockList {
        id: list
        anchors.fill: parent
        anchors.topMargin: findBar.visible ? findBar.height : 0
        clip: findBar.visible
        editor: editor
        focus: true
        parent: editor.isZen ? zen.place : place

        above: PageHeader {
            focus: true
            pageID: root.pageID
            selectedText: list.selectedText
            selection: editor.selection
            titleOnly: editor.isZen
            onLeaveDown: list.focusFirst()
            onZenRequested: editor.isZen = true
        }
        onLeftForwards: zen.focusExit()
        onLeftUp: (above as PageHeader).focusTitle(-1)
    }
}
