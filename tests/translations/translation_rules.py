"""What can be wrong with a text in another language, as far as a program sees it. Each rule takes
the original, its translation and the language, and tells what is wrong, or nothing."""

import re
from collections import Counter

# The keys whose names stand in the texts, where the keyboards of a language have other ones.
KEY_NAMES = {"Ctrl": {"de": "Strg"}, "Esc": {"fr": "Échap"},
             "End": {"de": "Ende", "fr": "Fin", "es": "Fin", "it": "Fine"}}
KEY = re.compile(r"\b(?:Ctrl|Esc|End(?! (?:it|that)\b)|F\d+)\b")
# What is filled in, by us or by the toolkit.
PLACEHOLDER = re.compile(r"%(?:L?\d+|n|p)")
TAG = re.compile(r"</?[a-z][^<>]*>")
MNEMONIC = re.compile(r"(?<!&)&(?:&&)*(?=[^&\s])")
# The signs that tell what kind of text it is, and those of other scripts for the same.
ENDS = {".": ".。", ":": ":：", "…": "…", "...": "...", "?": "?？", "!": "!！"}
# What stands for something else in a message that is sent.
TOKENS = "`~#{|^"


def _different(pattern, source, translation):
    return Counter(pattern.findall(source)) != Counter(pattern.findall(translation))


def placeholders(source, translation, _language):
    if _different(PLACEHOLDER, source, translation):
        return "has other placeholders"
    return None


def tags(source, translation, _language):
    return "has other tags" if _different(TAG, source, translation) else None


def tokens(source, translation, _language):
    if any(source.count(each) != translation.count(each) for each in TOKENS):
        return "has other tokens"
    return None


def mnemonic(source, translation, _language):
    if len(MNEMONIC.findall(source)) != len(MNEMONIC.findall(translation)):
        return "has a mnemonic too many or too few"
    return None


def keys(source, translation, language):
    wanted = [KEY_NAMES.get(each, {}).get(language, each) for each in KEY.findall(source)]
    if any(not re.search(rf"(?<![A-Za-z]){each}(?![a-z])", translation) for each in wanted):
        return f"does not name {', '.join(wanted)}"
    return None


def _end(text):
    text = text.rstrip()
    return next((each for each, signs in ENDS.items()
                 if text.endswith(signs if len(signs) > 2 else tuple(signs))), "")


def end(source, translation, _language):
    """A space at an end is where another text is added. What is nothing but signs is free."""
    if not re.search(r"\w", source):
        return None
    if _end(source) != _end(re.sub(r"\(&\w\)", "", translation)):
        return "ends otherwise"
    spaces = [(re.match(r"\s*", each)[0], re.search(r"\s*$", each)[0])
              for each in (source, translation)]
    return "begins or ends with other spaces" if spaces[0] != spaces[1] else None


def quotes(_source, translation, _language):
    if re.search(r"\w'\w", translation):
        return "has the apostrophe of a typewriter"
    return None


RULES = (placeholders, tags, tokens, mnemonic, keys, end, quotes)


def faults(message, language):
    """All that is wrong with one of a file's texts."""
    if message.state:
        return [message.state]
    if not all(each.strip() for each in message.translations):
        return ["is empty"]
    found = (rule(message.source, each, language)
             for each in message.translations for rule in RULES)
    return [each for each in found if each]
