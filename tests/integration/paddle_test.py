"""What the operator sends while the paddle is in use.

Usage: paddle_test.py QUORVEL VIRTUAL_KEYER [TEST...]
"""

import signal

from program import SETTINGS, Keyer, ProgramTest, run_tests

# A contact that is held for the length of a test would be let go of by the keyer's watchdog.
PADDLED = SETTINGS + "WKDisablePaddleWatchdog=true\n"
MESSAGE = "Message 2: Exchange"
EXCHANGE = "5NN NH"
# What is read of them; at this speed they run into one sign.
DITS = "EISH5*"
WAITS = "What you send waits for the paddle to be free"


class PaddleTest(ProgramTest):
    def start_paddled(self):
        """As start_connected(), and the paddle's dit contact is closed."""
        self.write_settings(PADDLED)
        keyer = Keyer(self.environment, self.home, is_paddled=True)
        self.addCleanup(keyer.end, signal.SIGKILL)
        quorvel = self.start_quorvel()
        window = self.active_window(quorvel)
        self.wait_for_speed(quorvel, window)
        keyer.tell(".")
        self.wait_for_status(quorvel, window, "break-in (paddle)")
        return keyer, quorvel, window

    def test_a_message_waits_until_the_paddle_is_free(self):
        """In the keyer it would lose its first letters."""
        keyer, quorvel, window = self.start_paddled()
        self.desktop.press("F2")
        self.desktop.press("F2")
        self.desktop.type("tu")
        self.desktop.click(window.find("Message 7: ?"))
        self.wait_for_status(quorvel, window, WAITS)
        self.wait_for_waiting(quorvel, window, len(f"{EXCHANGE} TU ?"))
        for name, text in ((MESSAGE, EXCHANGE), ("Message 7: ?", "?")):
            self.assertEqual(window.find(name).description(), f"Waits for the paddle: {text}")
        self.assertEqual(keyer.echoes(), "")
        self.assertTrue(set(keyer.keyed()) <= set(DITS), keyer.keyed())

        keyer.tell(" ")
        keyer.wait_for("all of it", lambda: keyer.echoes() == "5NNNHTU?")
        keyer.wait_for("it on the key line", lambda: keyer.keyed().endswith("5NNNHTU?"))
        self.wait_for_status(quorvel, window, WAITS, False)
        self.wait_for_waiting(quorvel, window, 0)
        self.assertEqual(window.find(MESSAGE).description(), EXCHANGE)
        self.terminate(keyer, quorvel)

    def test_escape_drops_what_waits_for_the_paddle(self):
        keyer, quorvel, window = self.start_paddled()
        self.desktop.press("F2")
        self.desktop.type("tu")
        self.wait_for_waiting(quorvel, window, len(f"{EXCHANGE} TU"))
        self.desktop.press("Escape")
        self.wait_for_status(quorvel, window, WAITS, False)
        self.wait_for_waiting(quorvel, window, 0)
        quorvel.wait_for("the button as it was",
                         lambda: window.find(MESSAGE).description() == EXCHANGE)
        self.assertEqual(window.find("Keyboard").text(), "")

        keyer.tell(" ")
        self.wait_for_status(quorvel, window, "idle")
        self.desktop.type("k")
        keyer.wait_for("the letter", lambda: keyer.echoes() == "K")
        keyer.wait_for("it on the key line", lambda: keyer.keyed().endswith("K"))
        self.assertTrue(set(keyer.keyed()) <= set(DITS + "K"), keyer.keyed())
        self.terminate(keyer, quorvel)

    def wait_for_status(self, quorvel, window, words, is_there=True):
        quorvel.wait_for(f"{words} {'there' if is_there else 'gone'}", lambda: (
            words in window.find("Keyer status").description()) == is_there)

    def wait_for_waiting(self, quorvel, window, count):
        """On the screen, for everyone; nothing stands there where nothing waits."""
        shown = f"{count} waiting" if count else ""
        quorvel.wait_for(f"{count} to wait", lambda: any(
            each.description() == "Characters that are still to be sent" and each.name() == shown
            for each in window.all()))


if __name__ == "__main__":
    run_tests()
