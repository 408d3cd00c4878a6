#!/usr/bin/env python3
"""Tests of tiers.py: a wrong arrow of each kind fails, and the right ones pass."""

import tempfile
import unittest
from pathlib import Path

import tiers


class Tiers(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.project = Path(folder.name)
        self.add("Foundation/Clock.h", "#pragma once\n")
        self.add("Models/Page.h", '#include "Foundation/Clock.h"\n#include <QString>\n')
        self.add("DesignSystem/CMakeLists.txt", "orvel_add_qml_module(ds TIER DesignSystem URI Orvel.DesignSystem)")
        self.add("Features/Tasks/CMakeLists.txt", "orvel_add_qml_module(tasks TIER Feature URI Orvel.Tasks)")
        self.add("Features/Tasks/TasksView.qml", "import QtQuick\nimport Orvel.DesignSystem\nItem {}\n")
        self.add("Features/Tasks/TasksViewModel.h", '#include "Models/Page.h"\n#include "TaskRow.h"\n')
        self.add("Features/Tasks/TaskRow.h", "")

    def add(self, path, text):
        file = self.project / "src" / path
        file.parent.mkdir(parents=True, exist_ok=True)
        file.write_text(text)

    def assertOneWrong(self, *words):
        wrong = tiers.wrong_arrows(self.project)
        self.assertEqual(len(wrong), 1, wrong)
        for word in words:
            self.assertIn(word, wrong[0])

    def test_downward_arrows_pass(self):
        self.assertEqual(tiers.wrong_arrows(self.project), [])

    def test_an_upward_include_fails(self):
        self.add("Foundation/Bad.cpp", '  #include "Models/Page.h"\n')
        self.assertOneWrong("Foundation/Bad.cpp", "Models/Page.h")

    def test_a_relative_upward_include_fails(self):
        self.add("Foundation/Bad.h", '#include "../Models/Page.h"\n')
        self.assertOneWrong("Foundation/Bad.h")

    def test_an_upward_import_fails(self):
        self.add("DesignSystem/Bad.qml", "import Orvel.Tasks\n")
        self.assertOneWrong("DesignSystem/Bad.qml", "Orvel.Tasks")

    def test_an_import_of_a_folder_fails_like_a_module(self):
        self.add("DesignSystem/Bad.qml", 'import "../Features/Tasks"\n')
        self.assertOneWrong("DesignSystem/Bad.qml")

    def test_an_unknown_module_fails(self):
        self.add("Features/Tasks/Bad.qml", "import Orvel.Nowhere\n")
        self.assertOneWrong("Orvel.Nowhere")

    def test_a_sibling_feature_needs_a_link_line(self):
        self.add("Features/Pages/CMakeLists.txt", "orvel_add_qml_module(pages TIER Feature URI Orvel.Pages)")
        self.add("Features/Pages/PageView.qml", "import Orvel.Tasks\n")
        self.assertOneWrong("Features/Pages/PageView.qml", "Orvel.Tasks")
        self.add("Features/Pages/CMakeLists.txt",
                 "orvel_add_qml_module(pages\n TIER Feature\n URI Orvel.Pages\n BUILDS_ON tasks\n LINKS Qt6::Quick)")
        self.assertEqual(tiers.wrong_arrows(self.project), [])

    def test_a_file_outside_every_tier_fails(self):
        self.add("Helpers/Util.h", "")
        self.assertOneWrong("Helpers/Util.h", "no tier")


if __name__ == "__main__":
    unittest.main()
