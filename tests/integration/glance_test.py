"""What the operator sees at a glance: how long tune has been on, when the beacon sends again, how much
waits, which call was sent, and that no keyer is connected.

Usage: glance_test.py QUORVEL VIRTUAL_KEYER [TEST...]
"""

import re
import signal

from picture import Picture
from program import PLUGGED_IN, SETTINGS, UNPLUGGED, Keyer, ProgramTest, run_tests

NOT_CONNECTED = "Not connected: nothing is sent"


class GlanceTest(ProgramTest):
    def test_tune_counts_its_seconds(self):
        keyer, quorvel, window = self.start_connected()
        self.desktop.press("ctrl+t")
        keyer.wait_for("the key", keyer.is_key_down)
        seconds = []

        def has_counted():
            shown = re.search(r"TRANSMITTING.* (\d+) s$", self.shown(window, "TRANSMITTING") or "")
            if shown and int(shown[1]) not in seconds:
                seconds.append(int(shown[1]))
            return seconds and seconds[-1] >= 2
        quorvel.wait_for("two seconds", has_counted)
        self.assertEqual(seconds, sorted(seconds))
        self.desktop.press("Escape")
        keyer.wait_for("the key to rise", lambda: not keyer.is_key_down())
        quorvel.wait_for("the strip to go",
                         lambda: self.shown(window, "TRANSMITTING") is None)
        self.terminate(keyer, quorvel)

    def test_the_beacon_counts_down(self):
        """On the screen alone: a screen reader would speak every second."""
        keyer, quorvel, window = self.start_connected(SETTINGS + "BeaconInterval=4\n")
        self.press_switch(quorvel, window, "Beacon")
        status, switch = window.find("Keyer status"), window.find("Beacon")
        self.desktop.press("F7")
        keyer.has_keyed("?")
        quorvel.wait_for("the rest", lambda: "idle (beacon on)" in status.refresh().description())
        pictures = {"status": [], "switch": []}

        def has_counted():
            for name, element in (("status", status), ("switch", switch)):
                picture = Picture.of(self.desktop, element).pixels
                if picture not in pictures[name]:
                    pictures[name].append(picture)
            return len(keyer.keyed()) > 1
        keyer.wait_for("the beacon again", has_counted)
        # 4, 3, 2 and 1; the first and the last may have been too short to be seen.
        for name, seen in pictures.items():
            self.assertGreaterEqual(len(seen), 3, name)
        self.desktop.press("Escape")
        self.expect_switch(quorvel, window, "Beacon", False)
        quorvel.wait_for("the end of the beacon",
                         lambda: "beacon" not in status.refresh().description())
        self.terminate(keyer, quorvel)

    def test_what_waits_is_counted(self):
        keyer, quorvel, window = self.start_connected()
        self.press_switch(quorvel, window, "Pause")
        self.desktop.type("cq de")
        quorvel.wait_for("five", lambda: self.shown(window, "5 waiting"))
        self.desktop.press("BackSpace")
        quorvel.wait_for("four", lambda: self.shown(window, "4 waiting"))
        self.press_switch(quorvel, window, "Pause", to=False)
        keyer.has_keyed("CQD")
        quorvel.wait_for("none", lambda: self.shown(window, "waiting", at_the_end=True) is None)
        self.desktop.press("F8")
        counts = [self.waiting(quorvel, window) for _ in range(3)]
        self.assertEqual(counts, sorted(counts, reverse=True))
        quorvel.wait_for("fewer", lambda: self.waiting(quorvel, window) < counts[0])
        self.desktop.press("Escape")
        quorvel.wait_for("none", lambda: self.shown(window, "waiting", at_the_end=True) is None)
        self.terminate(keyer, quorvel)

    def test_the_call_that_was_sent_stands_beside_the_sign(self):
        keyer, quorvel, window = self.start_connected()
        keyboard = window.find("Keyboard")
        self.press_switch(quorvel, window, "Pause")
        self.desktop.press("F5")
        quorvel.wait_for("the sign", lambda: keyboard.text() == "~")
        sign = keyboard.extents_of(0)
        self.desktop.press("ctrl+l")
        self.desktop.type("w9xyz")
        self.press_switch(quorvel, window, "Pause", to=False)
        keyer.has_keyed("W9XYZ")
        quorvel.wait_for("room for a call", lambda: keyboard.extents_of(0)[2] > 3 * sign[2])
        x, y, width, height = keyboard.extents_of(0)
        beside = (x + sign[2], y, width - sign[2] - 2, height)
        quorvel.wait_for("a call", lambda: Picture.at(self.desktop, *beside).colors() > 1)
        # It is shown, and is no part of the text.
        self.assertEqual(keyboard.text(), "~")
        self.terminate(keyer, quorvel)

    def test_the_next_contact_has_another_call(self):
        keyer, quorvel, window = self.start_connected()
        call, number = window.find("Their call"), window.find("Serial number")
        self.press_switch(quorvel, window, "Pause")
        self.desktop.press("ctrl+l")
        self.desktop.type("w9xyz")
        self.desktop.press("F5")
        self.desktop.press("F11")
        quorvel.wait_for("an empty field", lambda: call.text() == "")
        self.assertEqual(number.text(), "2")
        self.desktop.type("k1b")
        self.desktop.press("F5")
        # It was another call: the same contact, and the sign that waits is its.
        self.desktop.press("alt+w")
        quorvel.wait_for("an empty field", lambda: call.text() == "")
        self.assertEqual(number.text(), "2")
        self.desktop.type("k1a")
        quorvel.wait_for("the call", lambda: call.text() == "K1A")
        self.press_switch(quorvel, window, "Pause", to=False)
        keyer.has_keyed("W9XYZK1A")
        self.terminate(keyer, quorvel)

    def test_without_a_keyer_it_is_said_and_leads_to_the_ports(self):
        keyer, quorvel, window = self.start_connected()
        self.assertIsNone(self.shown(window, NOT_CONNECTED))
        keyer.end(signal.SIGKILL)
        self.answer_alert(quorvel, UNPLUGGED)
        self.active_window(quorvel)
        strip = quorvel.wait_for("the strip", lambda: self.shown(window, NOT_CONNECTED))
        self.assertIn("is forgotten when a keyer is connected", strip)
        self.desktop.type("tu")
        self.desktop.press("F4")
        keyboard = window.find("Keyboard")
        quorvel.wait_for("the text", lambda: keyboard.text() == "TU N0CALL")
        self.assertEqual(keyboard.description(), NOT_CONNECTED)
        self.assertIsNone(self.shown(window, "waiting", at_the_end=True))

        self.desktop.click(self.showing(window, "Choose port"))
        quorvel.wait_for("the choice of port", lambda: "General" in self.desktop.active_title())
        self.desktop.press("alt+F4")
        self.active_window(quorvel)

        keyer = Keyer(self.environment, self.home)
        self.addCleanup(keyer.end, signal.SIGKILL)
        self.answer_alert(quorvel, PLUGGED_IN)
        self.wait_for_speed(quorvel, window)
        quorvel.wait_for("the strip to go", lambda: self.shown(window, NOT_CONNECTED) is None)
        self.active_window(quorvel)
        self.assertEqual(keyboard.refresh().text(), "")
        self.desktop.type("k")
        keyer.has_keyed("K")
        self.terminate(keyer, quorvel)

    def showing(self, window, name):
        """The element of that name that is there to be seen; None when there is none."""
        return next((each for each in window.all()
                     if each.name() == name and each.is_in_state("showing")), None)

    def shown(self, window, words, at_the_end=False):
        """The label that is seen and begins, or ends, with these words; None when there is none."""
        return next((each.name() for each in window.all()
                     if each.role() == "label" and each.is_in_state("showing")
                     and (each.name().endswith(words) if at_the_end
                          else words in each.name())), None)

    def waiting(self, quorvel, window):
        shown = quorvel.wait_for("a number",
                                 lambda: self.shown(window, " waiting", at_the_end=True))
        return int(shown.split()[0])


if __name__ == "__main__":
    run_tests()
