"""Holds the guide's chapters against their list, against each other and against the languages.

Usage: chapters_test.py ROOT
"""

import re
import sys
import unittest
from pathlib import Path

from guide_outline import GuideOutline
from translation_file import TranslationFile

ROOT = Path(sys.argv[1])
GUIDE = ROOT / "docs/guide"
# What names the folder of a language, and the English one's name.
FOLDER = ("Guide", "en")


def read(path):
    return path.read_text(encoding="utf-8")


class GuideTest(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.listed = re.findall(r"^\d+\. \[([^]]+)\]\(en/([a-z-]+)\.md\)$",
                                read(GUIDE / "README.md"), re.MULTILINE)
        cls.chapters = sorted(GUIDE.glob("*/*.md"))

    def test_every_chapter_is_listed_by_its_title(self):
        self.assertGreater(len(self.listed), 15)
        for title, name in self.listed:
            with self.subTest(name):
                self.assertEqual(read(GUIDE / "en" / f"{name}.md").splitlines()[0], f"# {title}")
        self.assertEqual(sorted(name for _, name in self.listed),
                         [each.stem for each in self.chapters if each.parent.name == "en"])

    def test_every_language_has_its_folder(self):
        for path in sorted(ROOT.glob("translations/quorvel_*.ts")):
            file = TranslationFile(path)
            folder = file.translation(*FOLDER)
            with self.subTest(path.name):
                # Where it is not translated, it is shown in English.
                self.assertIn(folder, (FOLDER[1], file.language))
                self.assertTrue((GUIDE / folder).is_dir())

    def test_the_guide_is_the_same_in_every_language(self):
        """As far as its headings, tables, pictures, links, lists and commands go"""
        languages = {each.parent.name for each in self.chapters} - {"en"}
        self.assertGreaterEqual(languages, {"de", "es", "fr", "it", "ja"})
        for language in sorted(languages):
            for _, name in self.listed:
                with self.subTest(f"{language}/{name}"):
                    path = GUIDE / language / f"{name}.md"
                    self.assertEqual(GuideOutline.of(read(path)),
                                     GuideOutline.of(read(GUIDE / "en" / f"{name}.md")))
            self.assertEqual({each.stem for each in (GUIDE / language).glob("*.md")},
                             {name for _, name in self.listed})

    def test_every_link_and_picture_leads_somewhere(self):
        """From where the file is, so that a forge or a pager finds them too"""
        count = 0
        for chapter in [*self.chapters, GUIDE / "README.md"]:
            for target in re.findall(r"\]\(([^)]+)\)", read(chapter)):
                with self.subTest(f"{chapter.relative_to(GUIDE)}: {target}"):
                    self.assertTrue((chapter.parent / target).exists())
                    # A dark picture would be in the program in vain.
                    self.assertNotIn("-dark", target)
                count += 1
        self.assertGreater(count, 100)


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1], verbosity=2)
