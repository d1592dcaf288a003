"""Feeds the rules texts with one fault each, and holds them to finding it."""

import tempfile
import unittest
from pathlib import Path

from translation_file import TranslationFile
from translation_rules import faults

FILE = """<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="{language}" sourcelanguage="en">
<context>
    <name>Window</name>
    <message>
        <source>{source}</source>
        <translation{state}>{translation}</translation>
    </message>
</context>
</TS>
"""


def escaped(text):
    return text.replace("&", "&amp;").replace("<", "&lt;")


class TranslationRulesTest(unittest.TestCase):
    def faults_of(self, source, translation, language="de", state=""):
        with tempfile.TemporaryDirectory() as directory:
            path = Path(directory, f"quorvel_{language}.ts")
            path.write_text(FILE.format(language=language, source=escaped(source), state=state,
                                        translation=escaped(translation)), encoding="utf-8")
            file = TranslationFile(path)
        self.assertEqual(len(file.messages), 1)
        return faults(file.messages[0], file.language)

    def test_good_ones(self):
        for source, translation, language in (
                ("Connected to %1: idle", "Mit %1 verbunden: bereit", "de"),
                ("%1 of %2 bytes used", "%2 バイト中 %1 バイト使用", "ja"),
                ("&Preferences…", "設定(&P)…", "ja"), ("&Preferences…", "設定…(&P)", "ja"),
                ("Look at it.", "見てください。", "ja"), (" wpm", " wpm", "fr"),
                (", ", "、", "ja"), ("Esc drops it: until Ctrl+C.", "Esc, Strg+C.", "de"),
                ("Code: ", "Code\u00a0: ", "fr"), ("R&D and &&", "&R und &&", "de"),
                ("` and ~", "~ und `", "de"), ("It ends. End it.", "Schluss.", "de"),
                ("All of it...", "Alles...", "de")):
            with self.subTest(source, language=language):
                self.assertEqual(self.faults_of(source, translation, language), [])

    def test_every_fault(self):
        for source, translation, language in (
                ("To %1", "Zu", "de"), ("To %1", "Zu %1 %1", "de"), ("%p%", "%1%", "de"),
                ("&File", "Datei", "de"), ("File", "&Datei", "de"), ("&File", "&Da&tei", "de"),
                ("Choose…", "Wählen", "de"), ("Choose…", "Wählen...", "de"),
                ("Look.", "Sieh", "de"), ("Code: ", "Code:", "de"), (" s", "s", "de"),
                ("Really?", "Wirklich.", "de"), ("<b>Now</b>", "<b>Jetzt<b>", "de"),
                ("` is it", "Das ist es", "de"), ("Press Esc", "Drücken", "de"),
                ("End goes", "End geht", "de"), ("by F3", "mit F4", "de"),
                ("That is it", "C'est cela", "fr"), ("Tune", "  ", "de")):
            with self.subTest(source, translation=translation):
                self.assertEqual(len(self.faults_of(source, translation, language)), 1)

    def test_what_does_not_count(self):
        for state in ("unfinished", "vanished", "obsolete"):
            self.assertEqual(self.faults_of("Yes", "Ja", state=f' type="{state}"'), [state])


if __name__ == "__main__":
    unittest.main(verbosity=2)
