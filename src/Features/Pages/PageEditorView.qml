import QtQuick
import Orvel.DesignSystem
import Orvel.Pages
import Orvel.Session

/// The editor of one page: its blocks below each other in one scrolling column.
FocusScope {
    id: root

    required property var pageID
    readonly property string title: editor.title

    Accessible.name: title
    Accessible.role: Accessible.Pane

    PageEditorViewModel {
        id: editor
        pageID: root.pageID
        store: Orvel.store
    }

    ScreenList {
        anchors.fill: parent
        focus: true
        maximumWidth: Theme.readingWidth
    }
}
