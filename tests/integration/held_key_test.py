"""Keys that are held down on a screen that repeats them, while the machine is busy.

Usage: held_key_test.py QUORVEL VIRTUAL_KEYER [TEST...]
"""

import contextlib
import subprocess
import time

from far_end import FarEndTest
from program import SETTINGS, run_tests

LOAD = 20
# Some fifty repeats.
HELD = 2  # seconds


@contextlib.contextmanager
def busy_machine():
    """As many processes that want the processor all the time."""
    spinners = [subprocess.Popen(["sh", "-c", "while :; do :; done"]) for _ in range(LOAD)]
    try:
        yield
    finally:
        for each in spinners:
            each.kill()
        for each in spinners:
            each.wait()


class HeldKeyTest(FarEndTest):
    def hold(self, keys):
        with busy_machine(), self.desktop.hold(keys):
            time.sleep(HELD)

    def test_a_screen_repeats_a_held_key(self):
        # Without repeats the other tests would see nothing.
        keyer, quorvel, window = self.start_connected()
        self.press_switch(quorvel, window, "Pause")
        with self.desktop.hold("e"):
            quorvel.wait_for("repeats", lambda: len(window.find("Keyboard").text()) > 5)
        self.terminate(keyer, quorvel)

    def test_tune_switches_once(self):
        keyer, quorvel, window = self.start_connected()
        for is_on in (True, False):
            self.hold("ctrl+t")
            self.expect_switch(quorvel, window, "Tune", is_on)
        self.assertEqual([word for _, word in keyer.events("key")], ["down", "up"])
        self.terminate(keyer, quorvel)

    def test_a_shortcut_whose_modifier_goes_first_is_no_text(self):
        keyer, quorvel, window = self.start_connected()
        with self.desktop.hold("ctrl+t"):
            self.expect_switch(quorvel, window, "Tune", True)
            self.desktop.xdotool("keyup", "ctrl")
            time.sleep(HELD)
        self.expect_switch(quorvel, window, "Tune", True)
        self.assertEqual(window.find("Keyboard").text(), "")
        self.assertEqual([word for _, word in keyer.events("key")], ["down"])
        self.terminate(keyer, quorvel)

    def test_every_switch_and_the_stop_act_once(self):
        quorvel, _, far_end = self.start_on_far_end(SETTINGS + "WKHSCWSpeed=1000 lpm\n")
        greeting = len(far_end.received())
        with busy_machine():
            for keys in ("ctrl+p", "ctrl+p", "ctrl+h", "ctrl+h", "ctrl+t", "ctrl+t", "Escape"):
                with self.desktop.hold(keys):
                    time.sleep(HELD)
        # Behind all that was held.
        self.desktop.press("ctrl+p")
        expected = bytes.fromhex("0601 0600 1d0a 0200 0b01 0b00 0a 0601")
        quorvel.wait_for("the last switch",
                         lambda: len(far_end.received()) >= greeting + len(expected))
        self.assertEqual(far_end.received()[greeting:].hex(" "), expected.hex(" "))
        self.assertEqual(quorvel.end(), 0)

    def test_a_message_is_sent_once(self):
        keyer, quorvel, window = self.start_connected(SETTINGS + "Message2=TEST\n")
        self.hold("F2")
        keyer.has_keyed("TEST")
        self.assertEqual(window.find("Keyboard").text(), "TEST")
        self.terminate(keyer, quorvel)

    def test_the_number_steps_once(self):
        keyer, quorvel, window = self.start_connected()
        self.hold("ctrl+Up")
        quorvel.wait_for("002", lambda: window.find("Serial number").text() == "2")
        self.desktop.press("ctrl+Up")
        quorvel.wait_for("003", lambda: window.find("Serial number").text() == "3")
        self.terminate(keyer, quorvel)


if __name__ == "__main__":
    run_tests()
