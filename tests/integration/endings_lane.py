"""Cells of the table of endings, one after the other, on a desktop of their own.

Usage: endings_lane.py QUORVEL VIRTUAL_KEYER
It is told STATE:ENDING, a line for each cell, and answers each with a line of JSON.
"""

import contextlib
import io
import json
import sys
import unittest

from endings_kinds import ENDINGS
from endings_states import MORE_SETTINGS, STATES
from endings_station import EndingStation


class Cell(EndingStation):
    def __init__(self, state, ending):
        self.result = {"state": state, "ending": ending}
        name = f"{state} {ending}".replace(" ", "_")
        setattr(self, name, self.run_cell)
        super().__init__(name)

    def run_cell(self):
        state = self.result["state"]
        ending = ENDINGS[self.result["ending"]]()
        self.start_station(ending.prepare(self), MORE_SETTINGS.get(state, ""))
        STATES[state](self)
        self.begin_ending()
        ending.end(self, state)
        ending.expect(self, state)
        # Everything else was as it has to be.
        self.result["is only late"] = self.result.get("is late", False)
        self.assertFalse(self.result["is only late"], self.result)

    def outcome(self):
        """Runs the cell; what there is to say of it, with the log of one that failed."""
        outcome = unittest.TestResult()
        with contextlib.redirect_stderr(io.StringIO()) as log:
            self.run(outcome)
        self.result["is green"] = outcome.wasSuccessful()
        if not outcome.wasSuccessful():
            faults = [text for _, text in outcome.failures + outcome.errors]
            self.result["log"] = "\n".join([*faults, log.getvalue()])
        return self.result


def main():
    Cell.setUpClass()
    try:
        for line in sys.stdin:
            print(json.dumps(Cell(*line.strip().split(":")).outcome()), flush=True)
    finally:
        Cell.doClassCleanups()


if __name__ == "__main__":
    main()
