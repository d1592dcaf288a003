"""A whole first contact with a screen reader, by what Orca speaks: what is said when it has to be, and
that nothing is said over the Morse that is heard.

Usage: orca_test.py QUORVEL VIRTUAL_KEYER [TEST...]
"""

import signal

from program import LONG_TEXT, PORT, SETTINGS, SPEED, Keyer, ProgramTest, run_tests
from screen_reader import ScreenReader

TUNE_IS_ON = "notification ⚠ TRANSMITTING: tune is on. Press Esc to let go."
TYPED = "cq de n0call"
# Between two keys, in milliseconds: a screen reader that is typed over does not finish.
PACE = 200


class OrcaTest(ProgramTest):
    def setUp(self):
        super().setUp()
        self.orca = ScreenReader(self.desktop, self.home)
        self.addCleanup(self.orca.end)
        self.orca.hears("Screen reader on.")

    def plug_in(self):
        """A keyer whose paddle can be touched."""
        keyer = Keyer(self.environment, self.home, SPEED, is_paddled=True)
        self.addCleanup(keyer.end, signal.SIGKILL)
        return keyer

    def start_at_the_keyboard(self):
        """Connected, once Orca has said where the focus is."""
        self.write_settings(SETTINGS)
        keyer = self.plug_in()
        quorvel = self.start_quorvel()
        window = self.active_window(quorvel)
        self.wait_for_speed(quorvel, window)
        self.orca.hears("Quorvel frame.", "Keyboard text.", "Nothing waits to be sent.")
        return keyer, quorvel

    def press_with_control(self, keys, *wanted):
        """The key with Ctrl, which Orca echoes, and what is spoken behind that."""
        self.desktop.press(f"ctrl+{keys}")
        spoken = self.orca.hears("left control", *wanted)
        self.assertEqual(len(spoken), 1 + len(wanted), spoken)

    def type_and_hear(self, text):
        """Each key is spoken, and nothing between."""
        self.desktop.type(text, PACE)
        keys = ["space" if each == " " else each for each in text]
        self.assertEqual(self.orca.hears(*keys), keys)

    def test_from_the_first_start_to_the_first_contact(self):
        quorvel = self.start_quorvel()
        self.orca.hears("alert There is no port defined for the WinKeyer.")
        self.answer_alert(quorvel, "There is no port defined for the WinKeyer.")
        self.orca.hears("Keyboard text.", "Not connected: nothing is sent")
        keyer = self.plug_in()
        plugged_in = f"The serial port {PORT} has been plugged in."
        self.orca.hears(f"alert {plugged_in}")
        self.answer_alert(quorvel, plugged_in)
        self.orca.hears("Keyboard text.", "Nothing waits to be sent.")
        keyer.wait_for("the connection", keyer.answers)
        self.type_and_hear(TYPED)
        keyer.has_keyed(TYPED.replace(" ", "").upper())
        self.assertEqual(quorvel.end(), 0)

    def test_what_is_keyed_is_not_spoken(self):
        keyer, quorvel = self.start_at_the_keyboard()
        self.type_and_hear(TYPED)
        keyer.has_keyed("CQDEN0CALL")
        self.desktop.press("F1")
        keyer.has_keyed("CQDEN0CALL" + "CQTESTN0CALLN0CALL")
        self.type_and_hear("k")
        self.terminate(keyer, quorvel)

    def test_text_that_the_paddle_drops_is_told(self):
        keyer, quorvel = self.start_at_the_keyboard()
        self.desktop.press("F8")
        keyer.wait_for("some of the text", lambda: len(keyer.keyed()) > 3)
        keyer.tell(".")
        self.orca.hears("notification Break-in: what waited was dropped.")
        keyer.tell("\n")
        self.assertLess(len(keyer.keyed()), len(LONG_TEXT))
        # Where nothing waits, the paddle is the operator's own business.
        keyer.wait_for("the keyer to be idle", lambda: keyer.answers()[-1] == "C0")
        keyer.tell(".")
        keyer.wait_for("the paddle", lambda: keyer.answers()[-1] == "C6")
        keyer.tell("\n")
        keyer.wait_for("the keyer to be idle", lambda: keyer.answers()[-1] == "C0")
        self.type_and_hear("k")
        self.assertEqual(quorvel.end(), 0)

    def test_tune_is_told(self):
        keyer, quorvel = self.start_at_the_keyboard()
        self.press_with_control("t", TUNE_IS_ON)
        keyer.wait_for("the key", keyer.is_key_down)
        self.desktop.press("Escape")
        self.orca.hears("notification Tune is off.")
        self.assertFalse(keyer.is_key_down())
        self.terminate(keyer, quorvel)

    def test_switches_and_the_speed_are_told(self):
        keyer, quorvel = self.start_at_the_keyboard()
        for key, name in (("p", "Pause"), ("b", "Beacon"), ("h", "High-speed CW")):
            self.press_with_control(key, f"notification {name}: on.")
            self.press_with_control(key, f"notification {name}: off.")
        self.desktop.press("Prior")
        self.orca.hears(f"notification {SPEED + 2} WPM, set here.")
        self.terminate(keyer, quorvel)

    def test_the_way_to_their_call_is_told_also_when_there_is_one(self):
        keyer, quorvel = self.start_at_the_keyboard()
        for _ in range(2):
            self.press_with_control("l", "Their call text.")
            self.orca.hears("The other station's call sign")
            self.desktop.type("w9", PACE)
            self.orca.hears("w", "9")
            self.press_with_control("m", "Keyboard text.")
            self.orca.hears("Nothing waits to be sent.")
        self.terminate(keyer, quorvel)

    def test_the_preferences_are_told_at_once(self):
        keyer, quorvel = self.start_at_the_keyboard()
        self.press_with_control("comma", "General frame.", "My call text.")
        self.orca.hears("Your own call sign")
        self.desktop.press("Tab")
        self.orca.hears("Serial port combo box.", "Where the keyer is plugged in.")
        self.terminate(keyer, quorvel)

    def test_a_list_tells_its_choices_when_it_is_opened(self):
        keyer, quorvel = self.start_at_the_keyboard()
        self.press_with_control("comma", "General frame.", "My call text.")
        for name in ("Serial port combo box.", "Tune: let go after combo box."):
            self.desktop.press("Tab")
            self.orca.hears("tab", name)
        self.desktop.press("space")
        self.orca.hears("List with 5 items.")
        self.desktop.press("Down")
        self.orca.hears("10 s.")
        self.terminate(keyer, quorvel)

    def test_the_question_mark_leads_to_a_page_that_is_read(self):
        keyer, quorvel = self.start_at_the_keyboard()
        self.press_with_control("comma", "General frame.", "My call text.")
        for name in ("Serial port", "Tune: let go after", "Accept text from loggers",
                     "Guide to these settings push button."):
            self.desktop.press("Tab")
            self.orca.hears("tab", name)
        self.desktop.press("space")
        self.orca.hears("Quorvel Guide.", "Preferences")
        self.desktop.press("Down")
        self.orca.hears("General has your call sign")
        self.desktop.press("Tab")
        self.terminate(keyer, quorvel)

    def test_what_the_guide_finds_is_told(self):
        keyer, quorvel = self.start_at_the_keyboard()
        self.desktop.press("alt+h")
        self.orca.hears("Guide")
        self.desktop.press("g")
        self.orca.hears("Quorvel Guide.", "Contents.")
        self.desktop.press("Down")
        self.orca.hears("The window.")
        self.desktop.press("ctrl+f")
        self.orca.hears("Search text.")
        self.desktop.type("dummy", PACE)
        self.orca.hears("notification Places found: 1.", "y")
        self.desktop.press("Return")
        self.orca.hears("return", "dummy", "selected",
                        "notification Place 1 of 1. Tune safely: Tune into a dummy load first")
        self.desktop.type("zz", PACE)
        self.orca.hears("notification Nothing found.")
        self.terminate(keyer, quorvel)


if __name__ == "__main__":
    run_tests()
