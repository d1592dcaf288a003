"""Bytes as an adapter hands them over that collects them for a while, or a machine that is late, and
what overtakes those that wait for the line.

Usage: line_test.py QUORVEL VIRTUAL_KEYER [TEST...]
"""

import time

from far_end import FarEndTest, PacedReader
from program import SETTINGS, run_tests

CLEAR_BUFFER = b"\x0a"
STOPS = 5
LONGEST_STOP = 0.1  # seconds


class LineTest(FarEndTest):
    def test_an_echo_and_a_break_in_in_one_read_are_both(self):
        quorvel, window, far_end = self.start_on_far_end()
        greeting = len(far_end.received())
        self.desktop.type("etet")
        quorvel.wait_for("the text", lambda: window.find("Keyboard").text() == "ETET")
        far_end.say(b"E\xC6")
        quorvel.wait_for("the break-in", lambda: window.find("Keyboard").text() == "")
        # The second letter was due with the echo; nothing is after the break-in.
        self.desktop.press("Escape")
        quorvel.wait_for("the stop", lambda: far_end.received().endswith(b"\x0a"))
        self.assertEqual(far_end.received()[greeting:], b"ET\x0a")
        self.assertEqual(quorvel.end(), 0)

    def test_a_button_pressed_and_let_go_of_in_one_read_is_pressed_once(self):
        quorvel, window, far_end = self.start_on_far_end(SETTINGS + "Message1=K\n")
        far_end.say(b"\xC9\xC8")
        quorvel.wait_for("the message", lambda: window.find("Keyboard").text())
        far_end.say(b"K\xC0\x80")
        quorvel.wait_for("the speed after it",
                         lambda: window.find("Speed").description() == "60 WPM")
        self.assertEqual(window.find("Keyboard").text(), "K")
        self.assertEqual(quorvel.end(), 0)

    def test_a_stop_overtakes_what_is_queued(self):
        """Half spaces have no echo that they could wait for. How long a key takes to come through the
        desktop of a busy machine is not the application's: the quickest stop counts, and none may
        wait for what is queued."""
        quorvel, window, far_end = self.start_on_far_end(
            SETTINGS.replace("Message8=", "Message7=") + f"Message8={'|' * 20000}\n")
        line = PacedReader(far_end)
        taken = []
        for _ in range(STOPS):
            before = line.count()
            self.desktop.press("F8")
            quorvel.wait_for("half spaces", lambda: line.count() > before + 50)
            held_up, began = quorvel.held_up(), time.monotonic()
            self.desktop.press("Escape")
            came = quorvel.wait_for("the stop", lambda: line.time_of(CLEAR_BUFFER, before))
            taken.append(came - began - (quorvel.held_up() - held_up))
            quorvel.wait_for("an empty text", lambda: window.find("Keyboard").text() == "")
        print("\nseconds from Escape to the keyer:", *(f"{each:.3f}" for each in taken))
        self.assertLess(min(taken), LONGEST_STOP)
        self.assertLess(max(taken), 10 * LONGEST_STOP)
        self.assertEqual(quorvel.end(), 0)


if __name__ == "__main__":
    run_tests()
