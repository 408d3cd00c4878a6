import QtQuick
import QtTest
import Orvel.DesignSystem

/// The keyboard and the pointer in lists, grids and groups of buttons.
Item {
    id: root

    width: 900
    height: 700

    ListModel { id: rows }

    component Row: ScreenListRow {
        id: row
        required property string name

        rowHeight: 40
        Accessible.name: name
        Keys.onPressed: event => event.accepted = list.keys.press(event.key)

        OVPressable {
            height: 40
            tabStop: false
            text: "Delete"
            width: 100
            onClicked: rows.remove(row.index)
        }
    }
    component Card: ScreenGridCard {
        id: card
        required property string name

        Accessible.name: name

        OVPressable {
            height: 40
            tabStop: false
            text: "Delete"
            width: 60
            onClicked: rows.remove(card.index)
        }
    }

    Column {
        id: column

        Item { id: first; activeFocusOnTab: true; height: 10; width: 10 }

        FocusScope {
            id: listScope
            height: 240
            width: 900

            ScreenList {
                id: list
                above: Item { OVChip { id: chip; text: "Above" } height: 50 }
                anchors.fill: parent
                delegate: Row { }
                focus: true
                model: rows
            }
        }

        FocusScope {
            height: 240
            width: 900

            ScreenGrid {
                id: grid
                above: Item { height: 20 }
                anchors.fill: parent
                cardHeight: 60
                delegate: Card { }
                focus: true
                model: rows
            }
        }

        Flow {
            Repeater {
                id: group
                model: ["a", "b", "c"]

                OVChip {
                    required property int index
                    required property string modelData
                    tabStop: index === 1 || activeFocus
                    text: modelData
                }
            }
        }

        OVChip { id: last; text: "Last" }
    }

    SignalSpy { id: exits; signalName: "exited" }

    TestCase {
        name: "Lists"
        when: windowShown

        function init() {
            rows.clear()
            for (let i = 0; i < 20; ++i)
                rows.append({ name: "item " + i })
            tryCompare(list, "opening", false)
            tryCompare(grid, "opening", false)
            list.positionViewAtBeginning()
            grid.positionViewAtBeginning()
            tryVerify(() => rests(0, list) && rests(0, grid))
            mouseMove(root, 899, 699)
        }

        function findButton(item) {
            if (item instanceof OVPressable)
                return item
            for (let i = 0; i < item.children.length; ++i) {
                const found = findButton(item.children[i])
                if (found)
                    return found
            }
            return null
        }

        function findRemoval(item) {
            for (let i = 0; i < item.children.length; ++i) {
                if (item.children[i] instanceof OVRemoval)
                    return item.children[i]
            }
            return null
        }

        // Whether an item stands where it will stay.
        function rests(index, view) {
            const item = view.itemAtIndex(index)
            const columns = view.keys.columns
            return item !== null && item.x === index % columns * item.width
                   && item.y === view.originY + view.headerItem.height + Math.floor(index / columns) * item.height
        }

        function focused() {
            return root.Window.activeFocusItem.Accessible.name
        }

        // Parts of rows and cards are no stops, and a group is left and reached at its one stop.
        function test_tabStops() {
            const stops = []
            first.forceActiveFocus(Qt.TabFocusReason)
            for (let i = 0; i < 5; ++i) {
                keyClick(Qt.Key_Tab)
                stops.push(focused())
            }
            compare(stops.join(), "Above,item 0,item 0,b,Last")
            keyClick(Qt.Key_Backtab)
            compare(focused(), "b")
            keyClick(Qt.Key_Backtab)
            compare(focused(), "item 0")
            keyClick(Qt.Key_Backtab)
            keyClick(Qt.Key_Backtab)
            compare(focused(), "Above")
        }

        function test_keys_data() {
            const columns = grid.columns
            const page = Math.floor(240 / 40) - 1
            return [
                { tag: "down", view: list, from: 3, key: Qt.Key_Down, to: 4 },
                { tag: "up", view: list, from: 3, key: Qt.Key_Up, to: 2 },
                { tag: "page down", view: list, from: 3, key: Qt.Key_PageDown, to: 3 + page },
                { tag: "page up at the top", view: list, from: 3, key: Qt.Key_PageUp, to: 0 },
                { tag: "page down at the end", view: list, from: 17, key: Qt.Key_PageDown, to: 19 },
                { tag: "home", view: list, from: 3, key: Qt.Key_Home, to: 0 },
                { tag: "end", view: list, from: 3, key: Qt.Key_End, to: 19 },
                { tag: "beyond the first", view: list, from: 0, key: Qt.Key_Up, to: 0, exit: Qt.TopEdge },
                { tag: "beyond the last", view: list, from: 19, key: Qt.Key_Down, to: 19, exit: Qt.BottomEdge },
                { tag: "card to the right", view: grid, from: 0, key: Qt.Key_Right, to: 1 },
                { tag: "card to the left", view: grid, from: columns, key: Qt.Key_Left, to: columns - 1 },
                { tag: "card below", view: grid, from: 1, key: Qt.Key_Down, to: 1 + columns },
                { tag: "card above", view: grid, from: 1 + columns, key: Qt.Key_Up, to: 1 },
                { tag: "above the first cards", view: grid, from: 1, key: Qt.Key_Up, to: 1, exit: Qt.TopEdge },
                { tag: "last card", view: grid, from: 0, key: Qt.Key_End, to: 19 }
            ]
        }
        function test_keys(data) {
            exits.target = data.view
            exits.clear()
            data.view.keys.focus(data.from)
            compare(focused(), "item " + data.from)
            keyClick(data.key)
            compare(focused(), "item " + data.to)
            verify(data.view.keys.ringShown)
            compare(exits.count, data.exit ? 1 : 0)
            if (data.exit)
                compare(exits.signalArguments[0][0], data.exit)
            const item = data.view.currentItem
            const top = item.mapToItem(data.view, 0, 0).y
            verify(top >= 0 && top + item.height <= data.view.height, top)
        }

        // The view has not been drawn since the row went.
        function test_keysAfterARowWent() {
            list.keys.focus(2)
            rows.remove(1)
            keyClick(Qt.Key_Up)
            compare(focused(), "item 0")
            rows.remove(1)
            rows.remove(1)
            keyClick(Qt.Key_Down)
            compare(focused(), "item 4")
        }

        function test_keysPassWhatTakesNoFocus() {
            list.keys.stopsAt = index => index % 5 !== 0
            list.keys.focus(4)
            keyClick(Qt.Key_Down)
            compare(focused(), "item 6")
            keyClick(Qt.Key_Home)
            compare(focused(), "item 1")
            list.keys.stopsAt = undefined
        }

        function test_theRingIsForKeys() {
            list.keys.focus(2, Qt.MouseFocusReason)
            verify(!list.currentItem.visualFocus)
            keyClick(Qt.Key_Down)
            verify(list.currentItem.visualFocus)
        }

        // A double click deletes one: the next item can be clicked only when the pointer has moved.
        function test_deletingByMouseKeepsThePlace_data() {
            return [
                { tag: "list", view: list, next: 2 },
                { tag: "grid", view: grid, next: 2 }
            ]
        }
        function test_deletingByMouseKeepsThePlace(data) {
            tryVerify(() => rests(1, data.view) && rests(2, data.view))
            const item = data.view.itemAtIndex(1)
            const button = findButton(item)
            const place = button.mapToItem(root, 20, 20)
            const x = place.x
            mouseMove(root, x - 1, place.y)
            mouseMove(root, x, place.y)
            const after = data.view.itemAtIndex(2)
            const where = Qt.point(after.x, after.y)
            const free = Qt.point(item.x, item.y)
            mouseClick(root, x, place.y)
            compare(rows.count, 19)
            tryVerify(() => findRemoval(item)?.content.opacity === 0)
            compare(Qt.point(after.x, after.y), where)
            mouseClick(root, x, place.y)
            compare(rows.count, 19)
            mouseMove(root, x + 3, place.y)
            tryVerify(() => after.x === free.x && after.y === free.y)
            mouseClick(root, x + 3, place.y)
            tryCompare(rows, "count", 18)
        }
    }
}
