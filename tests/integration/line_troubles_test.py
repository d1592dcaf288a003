"""A line that goes, and one that nobody reads, as the virtual keyer has them on demand. A row of the
table in docs/keyers.md each.

Usage: line_troubles_test.py QUORVEL VIRTUAL_KEYER [TEST...]
"""

import signal
import time

from program import PLUGGED_IN, SETTINGS, SPEED, UNPLUGGED, Keyer, ProgramTest, run_tests
from waiting import wait_for

LONGEST_END = 15  # seconds


class LineTroublesTest(ProgramTest):
    def start_troubled(self):
        """As start_connected(), with a keyer that is told of its troubles."""
        self.write_settings(SETTINGS)
        keyer = Keyer(self.environment, self.home, SPEED, is_scripted=True)
        self.addCleanup(keyer.end, signal.SIGKILL)
        quorvel = self.start_quorvel()
        window = self.active_window(quorvel)
        self.wait_for_speed(quorvel, window)
        return keyer, quorvel, window

    def come_back(self, keyer, quorvel, window):
        """Answers what is asked when the port has gone and come."""
        self.answer_alert(quorvel, UNPLUGGED)
        self.answer_alert(quorvel, PLUGGED_IN)
        self.wait_for_speed(quorvel, window)

    def test_a_hang_up_in_mid_text_is_told_of_and_ends_it(self):
        keyer, quorvel, window = self.start_troubled()
        self.desktop.press("F8")  # a long text
        keyer.wait_for("text", lambda: len(keyer.keyed()) > 5)
        keyer.tell("trouble hang-up\ntrouble none\n")
        self.come_back(keyer, quorvel, window)
        self.assertFalse(keyer.is_key_down())
        before = keyer.keyed()
        self.assertLess(len(before), 100)
        self.active_window(quorvel)
        self.desktop.type("k")
        # Nothing of the text from before comes first.
        keyer.wait_for("a letter", lambda: keyer.keyed() == before + "K")
        self.terminate(keyer, quorvel)

    def test_a_hang_up_in_tune_ends_with_the_key_up(self):
        keyer, quorvel, window = self.start_troubled()
        self.press_switch(quorvel, window, "Tune")
        keyer.wait_for("tune", keyer.is_key_down)
        keyer.tell("trouble hang-up\ntrouble none\n")
        self.come_back(keyer, quorvel, window)
        keyer.wait_for("the key up", lambda: not keyer.is_key_down())
        self.expect_switch(quorvel, window, "Tune", False)
        self.terminate(keyer, quorvel)

    def test_a_line_that_nobody_reads_holds_nobody_up(self):
        keyer, quorvel, window = self.start_troubled()
        # What the keyer says goes through, so that it is known when it has come to it.
        keyer.tell(f"trouble not-read\nknob {SPEED - 1}\n")
        quorvel.wait_for("the knob",
                         lambda: window.find("Speed").description() == f"{SPEED - 1} WPM")
        self.desktop.type("etet")
        quorvel.wait_for("the text", lambda: window.find("Keyboard").text() == "ETET")
        # It says so, and the stop is taken.
        quorvel.wait_for("a notice", lambda: window.find("Ask again"))
        self.desktop.press("Escape")
        quorvel.wait_for("an empty text", lambda: window.find("Keyboard").text() == "")
        keyer.tell("trouble none\n")
        start = time.monotonic()
        self.assertEqual(quorvel.end(), 0)
        self.assertLess(time.monotonic() - start, LONGEST_END)
        # What stood in the way of the stop, a letter at most, is the one thing that was keyed.
        wait_for("the key up", lambda: not keyer.is_key_down())
        self.assertIn(keyer.keyed(), ("", "E"))
        self.assertEqual(keyer.end(), 0)


if __name__ == "__main__":
    run_tests()
