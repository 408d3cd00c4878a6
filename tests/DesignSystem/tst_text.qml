import QtQuick
import QtTest
import Orvel.DesignSystem

TestCase {
    id: test

    name: "Text"
    visible: true
    when: windowShown
    width: 400
    height: 300

    Column {
        OVText { id: brief; text: "Plan the week 🧠" }
        OVText { id: lengthy; text: "A title of many words that never fits"; width: 80 }
        OVIcon { id: icon; symbol: "checkmark.square" }
        OVAnimatedNumber { id: number; text: "11" }
        OVAnimatedNumber { id: wide; text: "88" }
        OVChip { id: chip; text: "A chip with far too many words"; width: 90 }
    }

    function test_elidedTextTellsTheWholeOnHover() {
        compare(brief.elisionTip, null)
        verify(lengthy.truncated)
        mouseMove(lengthy, 10, 5)
        tryVerify(() => lengthy.elisionTip.tip?.shown ?? false)
        const tip = lengthy.elisionTip.tip
        tryVerify(() => tip.item !== null && tip.item.opened)
        compare(tip.item.text, lengthy.text)
        const words = lengthy.text
        lengthy.text = (words + " ").repeat(40)
        tryVerify(() => tip.item.height > 4 * tip.item.font.pixelSize)
        verify(tip.item.width < 360, tip.item.width)
        lengthy.text = words
        mouseMove(test, 390, 290)
        tryVerify(() => tip.item === null)
    }

    function test_theHoverOfElidedTextReachesItsControl() {
        mouseMove(chip, 40, 10)
        tryVerify(() => chip.hovered)
        mouseMove(test, 390, 290)
        tryVerify(() => !chip.hovered)
    }

    function test_iconsAreDrawnAtTheirSize() {
        compare(icon.status, Image.Ready)
        compare(icon.width, Theme.iconRow)
        const picture = grabImage(icon)
        let drawn = false
        for (let x = 0; x < picture.width && !drawn; ++x)
            drawn = Qt.colorEqual(picture.pixel(x, picture.height / 2), Theme.ovInkSecondary)
        verify(drawn)
        icon.symbol = "no.such.symbol"
        compare(icon.status, Image.Ready)
    }

    function test_numbersKeepTheirWidth() {
        tryVerify(() => number.implicitWidth > 0)
        compare(number.implicitWidth, wide.implicitWidth)
        const before = wide.implicitWidth
        wide.text = "9:59"
        tryVerify(() => wide.implicitWidth > before)
        compare(wide.Accessible.name, "9:59")
    }
}
