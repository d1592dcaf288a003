"""The record of what was sent, by its file and in its window."""

import contextlib
import sqlite3

from program import ProgramTest

HEADINGS = 5


class SentRecordTest(ProgramTest):
    def setUp(self):
        super().setUp()
        self.environment["XDG_DATA_HOME"] = str(self.home / "data")
        self.record = self.home / "data/quorvel/sent.db"

    def rows(self, columns="text, source_number, name, ending", order="number"):
        """Those of each run, the oldest first."""
        if not self.record.exists():
            return []
        with contextlib.closing(sqlite3.connect(self.record, timeout=30)) as record:
            try:
                return record.execute(
                    f"SELECT {columns} FROM run ORDER BY {order}").fetchall()
            except sqlite3.OperationalError:
                return []

    def open_window(self, quorvel):
        self.desktop.press("ctrl+j")
        return quorvel.wait_for("the window of the record", lambda: self.sent_window(quorvel))

    def sent_window(self, quorvel):
        application = self.desktop.application(quorvel.pid)
        if self.desktop.active_title().split(" ")[0] != "Sent":
            return None
        return next((each for each in application.children()
                     if each.role() in ("dialog", "frame") and each.name().startswith("Sent")), None)

    def table(self, quorvel):
        window = self.sent_window(quorvel)
        return window and next((each for each in window.all() if "table" == each.role()), None)

    def lines(self, quorvel):
        """What the list says, a line each; none while a line comes and not all of it can be read."""
        table = self.table(quorvel)
        cells = [each.name() for each in table.children() if each.role() == "table cell"] if table else []
        if len(cells) % HEADINGS:
            return []
        return [cells[first:first + HEADINGS] for first in range(0, len(cells), HEADINGS)]
