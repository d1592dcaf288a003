"""What the guide has in every language alike."""

import re
from dataclasses import dataclass


@dataclass(frozen=True)
class GuideOutline:
    # How deep each heading is, one after the other.
    headings: tuple
    # How many cells each row of the tables has.
    rows: tuple
    images: tuple
    # Where the links lead, in no order: a language has its own.
    links: tuple
    # What stands between backticks: tokens, commands, files.
    code: tuple
    # How many entries there are in the lists.
    entries: int

    @staticmethod
    def of(text):
        lines = text.splitlines()
        return GuideOutline(
            headings=tuple(len(each.split(" ")[0]) for each in lines if each.startswith("#")),
            rows=tuple(each.replace(r"\|", "").count("|") for each in lines
                       if each.startswith("|")),
            images=tuple(re.findall(r"!\[[^]]+\]\(([^)]+)\)", text)),
            links=tuple(sorted(re.findall(r"(?<!!)\[[^]]+\]\(([^)]+)\)", text))),
            # What stands for the user's name is a word like another.
            code=tuple(sorted(re.sub(r"[A-Z-]{6,}", "", each)
                              for each in re.findall(r"(?<!`)`(?!`)([^`\n]+)`(?!`)", text))),
            entries=sum(1 for each in lines if re.match(r"(?:-|\d+\.) ", each)))
