import QtQuick
import QtTest
import Orvel.Pages
import Orvel.Session
import Orvel.Testing

Item {
    id: root
    height: 900
    width: 1000

    Component {
        id: view
        PageEditorView { anchors.fill: parent }
    }

    TestCase {
        name: "PageEditor"
        when: windowShown

        function init() {
            Workspace.reset()
        }

        function test_opensAPage() {
            const page = createTemporaryObject(view, root, { pageID: Workspace.addPage("Plan") })
            verify(page)
        }
    }
}
