"""Bytes as an adapter hands them over that collects them for a while, or a machine that is late.

Usage: line_test.py QUORVEL VIRTUAL_KEYER [TEST...]
"""

from far_end import FarEndTest
from program import SETTINGS, run_tests


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


if __name__ == "__main__":
    run_tests()
