#!/usr/bin/env python3
"""Tests of translated.py: texts that a user reads are found, others are not."""

import unittest

import translated


class Translated(unittest.TestCase):
    def texts(self, source):
        return [text for _, text in translated.unmarked(source)]

    def test_shown_texts_are_found(self):
        for source, text in {
            'text: "Add"': '"Add"',
            'OVChip { checked: true; text: "All" }': '"All"',
            'Accessible.name: root.label + " done"': '" done"',
            'placeholderText: empty ? "Nothing" : qsTr("More")': '"Nothing"',
            'toolTip: {\n    if (a)\n        return "Long ago"\n    return ""\n}': '"Long ago"',
            'title: root.wide\n    ? "Wide"\n    : qsTr("Narrow")': '"Wide"',
            'property string label: "Name"': '"Name"',
        }.items():
            with self.subTest(source=source):
                self.assertEqual(self.texts(source), [text])

    def test_other_strings_pass(self):
        for source in (
            'text: qsTr("Add")',
            'text: qsTr("%1 of %2").arg(a)',
            'symbol: "plus"; text: root.title',
            'text: root.kind === "page" ? qsTr("Page") : ""',
            'text: names["first"] + " · "',
            'text: "Orvel"',
            'text: shortcuts.keys("palette")',
            '// text: "Add"',
            'objectName: "text: one"',
            'text: root.title\nsymbol: "checkmark circle"',
        ):
            with self.subTest(source=source):
                self.assertEqual(self.texts(source), [])

    def test_sentences_of_cxx_are_found(self):
        for source in (
            'return u"No such page"_s;',
            'setText(QStringLiteral("Page not found"));',
            'qCWarning(log) << 1; show(u"It is gone"_s);',
        ):
            with self.subTest(source=source):
                self.assertEqual(len(list(translated.unmarked_cxx(source))), 1)
        for source in (
            'return tr("No such page");',
            'qCWarning(log) << u"No such page"_s;',
            'key = u"square.grid.2x2"_s;',
            'sql = u"select a from b"_s;',
            '// u"No such page"_s',
        ):
            with self.subTest(source=source):
                self.assertEqual(list(translated.unmarked_cxx(source)), [])

    def test_lines_are_told(self):
        source = 'Item {\n    /* a\n comment */\n    text: "Add"\n}\n'
        self.assertEqual(list(translated.unmarked(source)), [(4, '"Add"')])


if __name__ == "__main__":
    unittest.main()
