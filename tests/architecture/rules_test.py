"""Feeds the rules small trees, each with one fault, and holds them to finding it."""

import sys
import tempfile
import unittest
from pathlib import Path

import rules
from dependency_table import DependencyTable, TableError
from qt_headers import QtHeaders
from source_tree import SourceTree

QT = QtHeaders(sys.argv[1])
TABLE = """# Some document

| folder | may include | Qt modules |
|---|---|---|
| low | nothing of ours | Core |
| low/deep | low | Core, DBus |
| middle | low | Gui |
| high | low, middle | Widgets |
| virtualkeyer/core | nothing of ours | none |
| tests/support | low | Test |
| tests/integration | anything | any |
| tests/X | X, what X may include, tests/support | Test |

| folder | may include | Qt modules |
| high | of another table | Widgets |
"""
HEADER = "// What it is for.\n\n#pragma once\n"


class RulesTest(unittest.TestCase):
    def setUp(self):
        directory = tempfile.TemporaryDirectory()
        self.addCleanup(directory.cleanup)
        self.root = Path(directory.name)
        self.write("docs/architecture.md", TABLE)
        for folder in ("low", "low/deep", "middle", "high", "tests/support"):
            self.write(f"{folder}/Thing.h", HEADER)

    def write(self, path, text):
        file = self.root / path
        file.parent.mkdir(parents=True, exist_ok=True)
        file.write_text(text, encoding="utf-8")

    def tree(self):
        return SourceTree(self.root)

    def table(self):
        return DependencyTable.read(self.root)

    def including(self, path, line):
        """What is wrong with a file `path` that has one include."""
        self.write(path, f"#include {line}\n")
        return rules.forbidden_includes(self.tree(), self.table(), QT)

    def linking(self, path, text):
        self.write(path, text)
        return rules.forbidden_links(self.tree(), self.table())

    def assertOne(self, violations, beginning):
        self.assertEqual(len(violations), 1, violations)
        self.assertTrue(violations[0].startswith(beginning), violations[0])

    def test_includes_of_ours(self):
        """An include is found when, and only when, the table does not allow it"""
        allowed = [
            ("high/A.cpp", '"middle/Thing.h"'), ("high/A.cpp", '"high/Thing.h"'),
            ("tests/high/A.cpp", '"high/Thing.h"'), ("tests/high/A.cpp", '"low/Thing.h"'),
            ("tests/low/deep/A.cpp", '"low/Thing.h"'),
            ("tests/high/A.cpp", '"tests/support/Thing.h"'),
            ("tests/support/A.cpp", '"low/Thing.h"'),
            ("tests/integration/A.cpp", '"low/deep/Thing.h"'),
        ]
        forbidden = [
            ("middle/A.cpp", '"high/Thing.h"'), ("low/A.cpp", '"low/deep/Thing.h"'),
            ("low/A.cpp", "<middle/Thing.h>"), ("low/A.h", '"middle/Thing.h"'),
            ("high/A.cpp", '"low/deep/Thing.h"'), ("high/A.cpp", '"tests/support/Thing.h"'),
            ("virtualkeyer/core/A.cpp", '"low/Thing.h"'),
            ("tests/middle/A.cpp", '"high/Thing.h"'), ("tests/low/deep/A.cpp", '"high/Thing.h"'),
            ("tests/support/A.cpp", '"high/Thing.h"'),
        ]
        for path, include in allowed:
            with self.subTest(path=path, include=include):
                self.assertEqual(self.including(path, include), [])
            (self.root / path).unlink()
        for path, include in forbidden:
            with self.subTest(path=path, include=include):
                self.assertOne(self.including(path, include), f"{path}:1: ")
            (self.root / path).unlink()

    def test_includes_that_lead_nowhere(self):
        """An include names a file of the project from the top, or one that Qt's tools write"""
        self.write("high/Window.ui", "<ui/>")
        for include in ('"ui_Window.h"', '"A.moc"', '"moc_A.cpp"', "<vector>", "<libudev.h>"):
            with self.subTest(include=include):
                self.assertEqual(self.including("high/A.cpp", include), [])
        for include in ('"Thing.h"', '"ui_Other.h"', '"B.moc"', "<QNoSuchThing>", "WHAT_EVER"):
            with self.subTest(include=include):
                self.assertOne(self.including("high/A.cpp", include), "high/A.cpp:1: ")

    def test_includes_of_qt(self):
        """A header of Qt is found when its module is not the folder's"""
        allowed = [
            ("low/A.cpp", "<QString>"), ("low/deep/A.cpp", "<QDBusConnection>"),
            ("middle/A.cpp", "<QColor>"), ("middle/A.cpp", "<QString>"),
            ("high/A.cpp", "<QWidget>"), ("high/A.cpp", "<QtGui/QColor>"),
            ("tests/low/A.cpp", "<QTest>"), ("tests/high/A.cpp", "<QWidget>"),
            ("tests/integration/A.cpp", "<QWidget>"),
        ]
        forbidden = [
            ("low/A.cpp", "<QWidget>"), ("low/A.cpp", "<qwidget.h>"), ("low/A.cpp", "<QtWidgets>"),
            ("low/A.cpp", "<QtWidgets/QWidget>"), ("low/A.cpp", "<QDBusConnection>"),
            ("middle/A.cpp", "<QWidget>"), ("high/A.cpp", "<QTest>"),
            ("virtualkeyer/core/A.cpp", "<QString>"), ("tests/low/A.cpp", "<QColor>"),
        ]
        for path, include in allowed:
            with self.subTest(path=path, include=include):
                self.assertEqual(self.including(path, include), [])
            (self.root / path).unlink()
        for path, include in forbidden:
            with self.subTest(path=path, include=include):
                self.assertOne(self.including(path, include), f"{path}:1: ")
            (self.root / path).unlink()

    def test_links(self):
        """A link is found when the table does not allow it, also one over several lines"""
        self.write("low/CMakeLists.txt", "quorvel_library(low QT SOURCES A.cpp LINK Qt6::Core)\n")
        self.write("high/CMakeLists.txt", "set(A 1)\nadd_library(high-parts STATIC A.cpp)\n")
        path = "middle/CMakeLists.txt"
        self.assertEqual(self.linking(path, "quorvel_library(middle LINK low Qt6::Gui)\n"), [])
        self.assertEqual(self.linking(path, "quorvel_library(middle # high-parts Qt6::Widgets\n)"),
                         [])
        for text in ("quorvel_library(middle\n    SOURCES A.cpp\n    LINK low high-parts)\n",
                     "quorvel_library(middle LINK Qt6::Widgets)\n",
                     "target_link_libraries(middle PUBLIC Qt6::Gui\n    Qt6::DBus)\n",
                     "set(A 1)\ntarget_link_libraries(middle PRIVATE high-parts)\n"):
            with self.subTest(text=text):
                self.assertOne(self.linking(path, text), f"{path}: ")

    def test_link_without_row(self):
        """A folder without a row links no Qt"""
        self.assertOne(self.linking("tests/CMakeLists.txt", "link_libraries(Qt6::Widgets)\n"),
                       "tests/CMakeLists.txt: ")

    def test_rows(self):
        """A folder of sources without a row is found; what is built is not looked at"""
        self.assertEqual(rules.folders_without_row(self.tree(), self.table()), [])
        self.write("build/dev/moc.cpp", "")
        self.write("elsewhere/CMakeCache.txt", "")
        self.write("elsewhere/deep/moc.cpp", "")
        self.assertEqual(rules.folders_without_row(self.tree(), self.table()), [])
        self.write("low/other/A.cpp", "")
        self.assertOne(rules.folders_without_row(self.tree(), self.table()), "low/other: ")

    def test_row_of_tests(self):
        """Tests of a folder that there is not have no row"""
        self.write("tests/lowest/A.cpp", "")
        self.assertOne(rules.folders_without_row(self.tree(), self.table()), "tests/lowest: ")

    def test_keyer_core(self):
        """Qt in the virtual keyer's core is found even if the table allows it"""
        self.write("virtualkeyer/core/A.cpp", "#include <vector>\n#include <QString>\n")
        self.assertOne(rules.qt_in_keyer_core(self.tree(), QT), "virtualkeyer/core/A.cpp:2: ")

    def test_length(self):
        """500 lines fit, one more does not, in C++, CMake, Python and shell"""
        for path in ("low/A.cpp", "low/CMakeLists.txt", "tests/a.py", "dev", "scripts/run.sh"):
            with self.subTest(path=path):
                self.write(path, "\n" * 500)
                self.assertEqual(rules.long_files(self.tree()), [])
                self.write(path, "\n" * 501)
                self.assertOne(rules.long_files(self.tree()), f"{path}: 501 lines")
            (self.root / path).unlink()
        self.write("guard/main.cpp", "\n" * 201)
        self.assertOne(rules.long_files(self.tree()), "guard/main.cpp: 201 lines, 200 at most")

    def test_macros(self):
        """A macro in a header is found, one in a source is not"""
        self.write("low/A.cpp", "#define A 1\n")
        self.assertEqual(rules.macros_in_headers(self.tree()), [])
        self.write("low/A.h", HEADER + "  # define A 1\n")
        self.assertOne(rules.macros_in_headers(self.tree()), "low/A.h:4: ")

    def test_guards(self):
        """A header without #pragma once at its beginning is found"""
        self.assertEqual(rules.headers_without_guard(self.tree()), [])
        for text in ("", "#include <vector>\n#pragma once\n", "#ifndef A\n#endif\n"):
            with self.subTest(text=text):
                self.write("low/A.h", text)
                self.assertOne(rules.headers_without_guard(self.tree()), "low/A.h: ")

    def test_skips(self):
        """Each way of leaving a test out is found, in C++, Python and CMake"""
        for path, line in (("tests/low/A.cpp", "QSK" 'IP("no display");'),
                           ("tests/low/A.cpp", "GTEST_S" "KIP();"),
                           ("tests/low/a.py", "self.skipT" 'est("no display")'),
                           ("tests/low/a.py", "@unittest.s" "kipIf(True)"),
                           ("tests/CMakeLists.txt", "SKIP_RETURN" "_CODE 77")):
            with self.subTest(line=line):
                self.write(path, f"\n{line}\n")
                self.assertOne(rules.skipped_tests(self.tree()), f"{path}:2: ")
            (self.root / path).unlink()

    def test_leftovers(self):
        """Each mark is found as a word of its own, in code, documents and scripts"""
        for mark in ("TO" "DO", "FIX" "ME", "X" "XX"):
            for path in ("low/A.cpp", "README.md", "dev", "low/CMakeLists.txt", "low/a.py"):
                with self.subTest(mark=mark, path=path):
                    self.write(path, f"a{mark} {mark}b\n# {mark}: later\n")
                    self.assertOne(rules.leftovers(self.tree()), f"{path}:2: ")
                (self.root / path).unlink()

    def test_tables(self):
        """A document without the table, and a table of unknown folders, are refused"""
        for document in ("# Nothing\n", TABLE.replace("| low, middle |", "| low, midle |")):
            with self.subTest(document=document), self.assertRaises(TableError):
                DependencyTable(document)


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1], verbosity=2)
