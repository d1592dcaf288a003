"""A file of texts in another language, as Qt's tools keep it."""

import xml.etree.ElementTree as ElementTree
from dataclasses import dataclass
from pathlib import Path


@dataclass(frozen=True)
class Message:
    context: str
    source: str
    # Why it counts for nothing: "unfinished", "vanished" or "obsolete"; empty when it counts.
    state: str
    # Several where the text goes with a number.
    translations: tuple


class TranslationFile:
    def __init__(self, path):
        self.path = Path(path)
        root = ElementTree.parse(self.path).getroot()
        # As in the file's name.
        self.language = self.path.stem.removeprefix("quorvel_")
        self.declared_language = root.get("language", "")
        self.messages = [self._message(context.findtext("name"), each)
                         for context in root.iter("context") for each in context.iter("message")]

    @staticmethod
    def _message(context, element):
        translation = element.find("translation")
        forms = translation.findall("numerusform")
        texts = tuple(each.text or "" for each in forms) or (translation.text or "",)
        return Message(context, element.findtext("source"), translation.get("type", ""), texts)

    def translation(self, context, source):
        return next(each.translations[0] for each in self.messages
                    if (each.context, each.source) == (context, source))
