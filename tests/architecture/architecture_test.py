"""Holds the tree against its rules of structure. Arguments: top of the tree, Qt's headers."""

import sys
import unittest

import rules
from dependency_table import DependencyTable
from qt_headers import QtHeaders
from source_tree import SourceTree

ROOT, QT_INCLUDES = sys.argv[1:3]


class ArchitectureTest(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.tree = SourceTree(ROOT)
        cls.table = DependencyTable.read(ROOT)
        cls.qt = QtHeaders(QT_INCLUDES)

    def assertNone(self, violations):
        if violations:
            self.fail("\n" + "\n".join(violations))

    def test_there_is_something_to_look_at(self):
        """The tree has sources, headers and targets, and Qt's headers are found"""
        self.assertTrue(self.tree.sources() and self.tree.headers() and self.tree.cmake_lists())
        self.assertEqual(self.qt.modules_of("QWidget"), {"Widgets"})
        self.assertEqual(self.qt.modules_of("QString"), {"Core"})

    def test_includes(self):
        """No file includes what the table does not allow its folder"""
        self.assertNone(rules.forbidden_includes(self.tree, self.table, self.qt))

    def test_links(self):
        """No target links what the table does not allow its folder"""
        self.assertNone(rules.forbidden_links(self.tree, self.table))

    def test_rows(self):
        """Every folder with sources has a row in the table"""
        self.assertNone(rules.folders_without_row(self.tree, self.table))

    def test_keyer_core(self):
        """The virtual keyer's core knows no Qt"""
        self.assertNone(rules.qt_in_keyer_core(self.tree, self.qt))

    def test_length(self):
        """No file of code is longer than 500 lines"""
        self.assertNone(rules.long_files(self.tree))

    def test_macros(self):
        """No header defines a macro"""
        self.assertNone(rules.macros_in_headers(self.tree))

    def test_guards(self):
        """Every header begins with #pragma once"""
        self.assertNone(rules.headers_without_guard(self.tree))

    def test_skips(self):
        """No test leaves itself out"""
        self.assertNone(rules.skipped_tests(self.tree))

    def test_leftovers(self):
        """No mark of work left for later"""
        self.assertNone(rules.leftovers(self.tree))


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1], verbosity=2)
