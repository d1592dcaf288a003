"""Holds the texts in other languages against the sources and the rules.

Usage: translations_test.py ROOT
"""

import shutil
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

from translation_file import TranslationFile
from translation_rules import faults

ROOT = Path(sys.argv[1])
PATHS = sorted(ROOT.glob("translations/quorvel_*.ts"))


class TranslationsTest(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.files = [TranslationFile(path) for path in PATHS]

    def assertNone(self, violations):
        if violations:
            self.fail("\n" + "\n".join(violations))

    def test_there_is_something_to_look_at(self):
        self.assertGreaterEqual({each.language for each in self.files},
                                {"de", "es", "fr", "it", "ja"})
        for file in self.files:
            self.assertGreater(len(file.messages), 300, file.path.name)

    def test_the_languages_are_what_the_names_say(self):
        for file in self.files:
            self.assertTrue(file.declared_language.startswith(file.language), file.path.name)

    def test_every_text_is_whole(self):
        """Nothing unfinished or left over, and every text in keeping with the original"""
        self.assertNone([f"{file.path.name}: {each.context}: {each.source!r} {fault}: "
                         f"{each.translations}"
                         for file in self.files for each in file.messages
                         for fault in faults(each, file.language)])

    def test_the_sources_have_no_other_texts(self):
        """What ./dev translate would change has been changed"""
        with tempfile.TemporaryDirectory() as directory:
            copies = [Path(shutil.copy(path, directory)) for path in PATHS]
            done = subprocess.run(["bash", "scripts/translate.sh", *map(str, copies)], cwd=ROOT,
                                  stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True,
                                  check=False)
            self.assertEqual(done.returncode, 0, done.stdout)
            self.assertNone([f"{path.name}: run ./dev translate, then translate what is new"
                             for path, copy in zip(PATHS, copies)
                             if path.read_bytes() != copy.read_bytes()])


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1], verbosity=2)
