import QtQuick
import QtTest
import Orvel.DesignSystem
import Orvel.Gallery
import Orvel.Testing

/// What assistive technology makes of the components in the gallery.
Item {
    id: root

    width: 1240
    height: 820

    Component {
        id: galleryComponent

        Gallery {
            anchors.fill: parent
        }
    }

    TestCase {
        name: "Accessibility"
        when: windowShown

        function items() {
            return Assistive.items(root.Window.window)
        }

        function find(description) {
            return items().find(item => Assistive.describe(item) === description) ?? null
        }

        function show() {
            const gallery = createTemporaryObject(galleryComponent, root)
            waitForRendering(gallery)
            return gallery
        }

        // First while no assistive technology is there: in the order of their names, this one is the first.
        function test_aRolesWhenItAppears() {
            show()
            Assistive.begin()
            checkRoles()
        }

        function checkRoles() {
            const seen = items().map(item => Assistive.describe(item))
            const expected = [
                "Heading Gallery", "Heading Buttons and chips",
                "Button Add", "Button New page", "Button Disabled disabled", "Button Cancel",
                "Button More", "Button Close disabled",
                "CheckBox All checked", "CheckBox Open", "CheckBox Upcoming disabled",
                "CheckBox Off", "CheckBox On checked", "CheckBox Not yet", "CheckBox Done checked",
                "PageTabList Priority", "PageTab medium selected", "PageTab high",
                "ComboBox Kind", "Slider Volume",
                "RadioButton #2E6BE6 checked", "RadioButton #D6336C",
                "EditableText New task", "EditableText Search", "EditableText Workspace name", "EditableText Notes",
                "Button Due: Nov 18, 2026",
                "Table Wednesday, 18 November 2026", "SpinBox Hours", "SpinBox Minutes",
                "MenuBar Menu bar", "MenuItem File", "MenuItem Duplicate", "MenuItem Rename disabled",
                "MenuItem Pinned checked", "ButtonMenu Page menu",
                "Grouping Sessions today, 4", "StaticText Planning", "ProgressBar Done",
                "Button Add your first habit"
            ]
            const missing = expected.filter(description => !seen.includes(description))
            compare(missing.join("; "), "")
        }

        function test_everyControlHasAName() {
            show()
            Assistive.begin()
            const nameless = items().filter(item => (Assistive.isFocusable(item) || Assistive.canPress(item))
                                            && Assistive.describe(item).split(" ").length < 2)
            compare(nameless.map(item => String(item)).join("; "), "")
        }

        function test_pressActs() {
            show()
            Assistive.begin()
            let pressed = 0
            const silent = []
            for (const item of items()) {
                if (item.clicked === undefined || !Assistive.canPress(item))
                    continue
                let count = 0
                const note = () => ++count
                item.clicked.connect(note)
                Assistive.press(item)
                item.clicked.disconnect(note)
                ++pressed
                if (count !== (item.enabled ? 1 : 0))
                    silent.push(Assistive.describe(item) + " " + count)
            }
            compare(silent.join("; "), "")
            verify(pressed > 60, pressed)
        }

        function test_pressChanges_data() {
            return [
                { tag: "switch", before: "CheckBox Off", after: "CheckBox Off checked" },
                { tag: "check box", before: "CheckBox Not yet", after: "CheckBox Not yet checked" },
                { tag: "segment", before: "PageTab high", after: "PageTab high selected" },
                { tag: "swatch", before: "RadioButton #D6336C", after: "RadioButton #D6336C checked" },
                { tag: "day", before: "Button Thursday, 19 November 2026",
                  after: "Button Thursday, 19 November 2026 selected" }
            ]
        }
        function test_pressChanges(data) {
            show()
            Assistive.begin()
            verify(find(data.before))
            Assistive.press(find(data.before))
            verify(find(data.after))
        }

        function test_pressOpensWhatHasAName_data() {
            return [
                { tag: "dialog", press: "Button Dialog", opens: "AlertMessage Delete this deck?" },
                { tag: "sheet", press: "Button Sheet", opens: "Dialog New project" },
                { tag: "combo box", press: "ComboBox Kind", opens: "Dialog Kind" },
                { tag: "menu bar", press: "MenuItem File", opens: "PopupMenu File" }
            ]
        }
        function test_pressOpensWhatHasAName(data) {
            show()
            Assistive.begin()
            Assistive.press(find(data.press))
            tryVerify(() => find(data.opens) !== null)
        }
    }
}
