"""The record of what was sent, in its window and in its file.

Usage: sent_test.py QUORVEL VIRTUAL_KEYER [TEST...]
"""

import contextlib
import csv
import signal
import sqlite3
import stat
import subprocess
import time

from logger_station import QUORVEL_SEND, free_port
from program import LONG_TEXT, SETTINGS, run_tests
from sent_record import SentRecordTest


class SentTest(SentRecordTest):
    def texts(self):
        return [each[0] for each in self.rows()]

    def wait_for_texts(self, quorvel, *texts):
        quorvel.wait_for(f"{texts} in the record", lambda: self.texts() == list(texts))

    def wait_for_lines(self, quorvel, *texts):
        quorvel.wait_for(f"the lines {texts}", lambda: [
            each[1] for each in self.lines(quorvel)] == list(texts))

    def expect_enabled(self, quorvel, name, is_enabled=True):
        quorvel.wait_for(f"{name} to be {'on' if is_enabled else 'off'}",
                         lambda: self.sent_window(quorvel).find(name).is_in_state(
                             "sensitive") == is_enabled)

    def click_button(self, quorvel, name):
        self.desktop.click(
            quorvel.wait_for(name, lambda: self.sent_window(quorvel).find(name)))

    def test_what_is_sent_is_there_with_who_and_how(self):
        port = free_port()
        keyer, quorvel, window = self.start_connected(
            f"{SETTINGS}AcceptLoggers=true\nLoggerPort={port}\n")
        self.desktop.press("F1")
        self.wait_for_texts(quorvel, "CQ TEST N0CALL N0CALL")
        self.desktop.type("tu")
        keyer.wait_for("the typed text", lambda: keyer.keyed().endswith("TU"))
        subprocess.run([QUORVEL_SEND, "--port", str(port), "--wait", "agn"], check=True, timeout=60,
                       env=self.environment)
        self.desktop.press("F8")
        keyer.wait_for("the long text", lambda: keyer.keyed().endswith("PARIS"))
        self.desktop.press("Escape")
        quorvel.wait_for("four runs", lambda: len(self.rows()) == 4)
        rows = self.rows()
        self.assertEqual(rows[0], ("CQ TEST N0CALL N0CALL", 1, "CQ", 0))
        self.assertEqual([each[0] for each in rows[1:3]], ["TU", "AGN"])
        self.assertEqual(rows[2][2], "quorvel-send")
        self.assertTrue(LONG_TEXT.startswith(rows[3][0]), rows[3][0])
        self.assertEqual(stat.S_IMODE(self.record.stat().st_mode), 0o600)

        self.open_window(quorvel)
        quorvel.wait_for("four lines", lambda: len(self.lines(quorvel)) == 4
                         and all(line[1] for line in self.lines(quorvel)))
        lines = self.lines(quorvel)
        self.assertEqual([line[3] for line in lines],
                         ["F8 Again", "Logger quorvel-send", "Typed", "F1 CQ"])
        self.assertEqual(lines[0][4], f"Stopped at character {len(rows[3][0])}")
        self.assertEqual([line[4] for line in lines[1:]], ["Sent"] * 3)
        self.assertEqual(lines[1][2], "90 WPM")
        written = time.mktime(time.strptime(lines[3][0], "%Y-%m-%d %H:%M:%S")) - time.timezone
        self.assertLess(abs(written - time.time()), 600)
        self.terminate(keyer, quorvel)

    def test_it_is_live_and_is_searched(self):
        keyer, quorvel, window = self.start_connected()
        self.desktop.type("k")
        self.wait_for_texts(quorvel, "K")
        self.open_window(quorvel)
        self.wait_for_lines(quorvel, "K")
        self.application(quorvel).find("Message 4: My Call").press()
        self.wait_for_lines(quorvel, "N0CALL", "K")
        # What is typed is searched for, wherever the focus is, and not sent.
        self.desktop.type("n0c")
        self.wait_for_lines(quorvel, "N0CALL")
        self.assertEqual(self.sent_window(quorvel).find("Find").text(), "n0c")
        self.desktop.press("Return")
        self.desktop.press("F1")
        self.desktop.press("space")
        self.desktop.press("ctrl+a")
        self.desktop.press("BackSpace")
        self.wait_for_lines(quorvel, "N0CALL", "K")
        self.assertEqual(keyer.keyed(), "KN0CALL")
        self.terminate(keyer, quorvel)

    def application(self, quorvel):
        return self.desktop.application(quorvel.pid)

    def count_is(self, quorvel, text):
        """Whether the window says so, without a look at the lines."""
        window = self.sent_window(quorvel)
        return window and any(each.name() == text for each in window.children())

    def test_a_line_is_sent_again_by_its_button_alone(self):
        keyer, quorvel, window = self.start_connected()
        self.desktop.press("F4")
        self.wait_for_texts(quorvel, "N0CALL")
        self.open_window(quorvel)
        self.wait_for_lines(quorvel, "N0CALL")
        self.expect_enabled(quorvel, "Send Again")
        row = next(each for each in self.table(quorvel).all() if each.name() == "N0CALL")
        self.desktop.click(row)
        self.assertIsNotNone(self.desktop.xdotool("click", "--repeat", 2, "--delay", 50, 1))
        for key in ("Return", "KP_Enter", "F1", "Delete"):
            self.desktop.press(key)
        self.desktop.type(" cq cq ")
        self.desktop.press("ctrl+a")
        self.desktop.press("BackSpace")
        self.wait_for_lines(quorvel, "N0CALL")
        self.assertEqual(keyer.keyed(), "N0CALL")
        self.desktop.click(row)
        self.expect_enabled(quorvel, "Send Again")
        self.click_button(quorvel, "Send Again")
        keyer.has_keyed("N0CALLN0CALL")
        # A space that is typed behind the click presses it no more.
        self.desktop.press("space")
        self.desktop.press("space")
        self.wait_for_texts(quorvel, "N0CALL", "N0CALL")
        self.assertEqual(keyer.keyed(), "N0CALLN0CALL")
        self.terminate(keyer, quorvel)

    def test_escape_stops_what_is_being_sent(self):
        keyer, quorvel, window = self.start_connected()
        self.desktop.press("F8")
        keyer.wait_for("the long text", lambda: keyer.keyed().endswith("PARIS"))
        self.open_window(quorvel)
        self.desktop.press("Escape")
        quorvel.wait_for("the run", lambda: len(self.rows()) == 1)
        self.assertEqual(self.rows()[0][3], 1)
        self.assertLess(len(keyer.keyed()), len(LONG_TEXT))
        quorvel.wait_for("the window to go", lambda: not self.sent_window(quorvel))
        self.terminate(keyer, quorvel)

    def test_a_message_is_made_of_a_line(self):
        keyer, quorvel, window = self.start_connected(SETTINGS + "Message2=\n")
        self.desktop.type("tu 73")
        self.wait_for_texts(quorvel, "TU 73")
        self.open_window(quorvel)
        self.wait_for_lines(quorvel, "TU 73")
        self.expect_enabled(quorvel, "Send Again")
        self.click_button(quorvel, "Make Message")
        self.desktop.press("Down")
        self.desktop.press("Down")
        self.desktop.press("Return")
        quorvel.wait_for("the setting", lambda: "Message2=TU 73" in self.settings.read_text())
        self.terminate(keyer, quorvel)

    def test_it_is_copied_and_saved(self):
        keyer, quorvel, window = self.start_connected()
        self.desktop.type("eee")
        self.wait_for_texts(quorvel, "EEE")
        self.open_window(quorvel)
        self.wait_for_lines(quorvel, "EEE")
        self.expect_enabled(quorvel, "Send Again")
        self.desktop.press("ctrl+c")
        self.desktop.press("ctrl+f")
        self.desktop.press("ctrl+v")
        quorvel.wait_for("the copied line", lambda: "EEE" in self.sent_window(
            quorvel).find("Find").text())
        self.desktop.press("ctrl+a")
        self.desktop.press("BackSpace")
        self.wait_for_lines(quorvel, "EEE")
        target = self.home / "sent.csv"
        self.click_button(quorvel, "Save as CSV…")
        quorvel.wait_for("the dialog", lambda: self.desktop.active_title().startswith("Save as CSV"))
        self.desktop.press("ctrl+a")
        self.desktop.type(str(target))
        self.desktop.press("Return")
        quorvel.wait_for("the file", target.exists)
        with open(target, encoding="utf-8", newline="") as file:
            table = list(csv.reader(file))
        self.assertEqual(table[0], ["UTC", "Text", "Speed", "Sent by", "How it ended"])
        self.assertEqual(table[1][1:], ["EEE", "90 WPM", "Typed", "Sent"])
        self.terminate(keyer, quorvel)

    def test_nothing_is_recorded_where_it_is_switched_off(self):
        keyer, quorvel, window = self.start_connected(SETTINGS + "KeepRecord=false\n")
        self.desktop.press("F4")
        keyer.has_keyed("N0CALL")
        self.assertFalse(self.record.parent.exists())
        dialog = self.open_window(quorvel)
        dialog.find("Keep a record of what is sent, for").press()
        quorvel.wait_for("the setting", lambda: "KeepRecord=true" in self.settings.read_text())
        self.application(quorvel).find("Message 4: My Call").press()
        self.wait_for_texts(quorvel, "N0CALL")
        self.terminate(keyer, quorvel)

    def test_a_crash_loses_the_run_in_progress_alone(self):
        keyer, quorvel, window = self.start_connected()
        self.desktop.press("F4")
        self.wait_for_texts(quorvel, "N0CALL")
        self.desktop.press("F8")
        keyer.wait_for("the long text", lambda: keyer.keyed().endswith("PARIS"))
        quorvel.end(signal.SIGKILL)
        self.assertEqual(self.texts(), ["N0CALL"])
        with contextlib.closing(sqlite3.connect(self.record)) as record:
            self.assertEqual(record.execute("PRAGMA integrity_check").fetchone()[0], "ok")
        self.assertEqual(keyer.end(), 0)

    def test_a_record_that_cannot_be_kept_is_told_and_sent_all_the_same(self):
        self.record.parent.parent.mkdir(parents=True)
        self.record.parent.write_text("no folder")
        keyer, quorvel, window = self.start_connected()
        self.desktop.press("F4")
        keyer.has_keyed("N0CALL")
        quorvel.wait_for("the notice", lambda: any(
            each.name().startswith("What you send cannot be recorded") for each in window.all()))
        self.desktop.press("F4")
        keyer.has_keyed("N0CALLN0CALL")
        self.terminate(keyer, quorvel)

    def test_a_locked_record_holds_nothing_up(self):
        keyer, quorvel, window = self.start_connected()
        self.desktop.press("F4")
        self.wait_for_texts(quorvel, "N0CALL")
        with contextlib.closing(sqlite3.connect(self.record, isolation_level=None)) as record:
            record.execute("BEGIN EXCLUSIVE")
            self.desktop.press("F4")
            keyer.has_keyed("N0CALLN0CALL")
            quorvel.wait_for("the notice", lambda: any(
                "database is locked" in each.name() for each in window.all()))
            self.desktop.press("F4")
            keyer.has_keyed("N0CALL" * 3)
            record.execute("COMMIT")
        self.desktop.press("F4")
        self.wait_for_texts(quorvel, *["N0CALL"] * 4)
        self.terminate(keyer, quorvel)

    def test_a_million_runs(self):
        self.record.parent.mkdir(parents=True)
        keyer, quorvel, window = self.start_connected()
        self.desktop.press("F4")
        self.wait_for_texts(quorvel, "N0CALL")
        with contextlib.closing(sqlite3.connect(self.record)) as record:
            record.execute(
                "WITH RECURSIVE c(n) AS (SELECT 2 UNION ALL SELECT n + 1 FROM c WHERE n < 1000000)"
                " INSERT INTO run SELECT n, begun + n, 'CQ ' || n, '', 25, NULL, 1, 1, 'CQ', 0"
                " FROM c, (SELECT begun FROM run)")
            record.commit()
        self.desktop.press("ctrl+j")
        quorvel.wait_for("the count", lambda: self.count_is(quorvel, "1,000,000 sent"))
        self.desktop.press("ctrl+End")
        self.desktop.press("ctrl+Home")
        self.desktop.type("77777")
        quorvel.wait_for("the search", lambda: self.count_is(quorvel, "19 found"))
        self.assertEqual(keyer.keyed(), "N0CALL")
        self.terminate(keyer, quorvel)


if __name__ == "__main__":
    run_tests()
