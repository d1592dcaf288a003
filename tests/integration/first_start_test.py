"""The first start of a new user, who has no settings yet, until the first message is on the air.

Usage: first_start_test.py QUORVEL VIRTUAL_KEYER [TEST...]
"""

import signal

from program import NO_PORT, PLUGGED_IN, PORT, ProgramTest, run_tests
from waiting import wait_for

# Within what the speed pot spans by default.
SPEED = 30
FIRST_MESSAGE = "CQTESTYOURCALLYOURCALL"


class FirstStartTest(ProgramTest):
    def test_by_keyboard_alone(self):
        quorvel = self.start_quorvel()
        self.answer_alert(quorvel, NO_PORT)
        window = self.active_window(quorvel)
        keyer = self.start_keyer(SPEED)
        self.answer_alert(quorvel, PLUGGED_IN)
        self.expect_connected(quorvel, window)
        self.active_window(quorvel)
        self.desktop.press("F1")
        keyer.has_keyed(FIRST_MESSAGE)
        self.desktop.press("ctrl+q")
        self.assertEqual(quorvel.status(), 0)
        self.expect_closed(keyer)
        self.assertIn(f"WKPortName={PORT}", self.settings.read_text())

    def test_by_mouse_alone(self):
        quorvel = self.start_quorvel()
        self.click_in_alert(quorvel, NO_PORT, "OK")
        window = self.active_window(quorvel)
        keyer = self.start_keyer(SPEED)
        self.click_in_alert(quorvel, PLUGGED_IN, "Yes")
        self.expect_connected(quorvel, window)
        self.active_window(quorvel)
        self.desktop.click(window.find("Message 1: CQ"))
        keyer.has_keyed(FIRST_MESSAGE)
        self.terminate(keyer, quorvel)
        self.assertIn(f"WKPortName={PORT}", self.settings.read_text())

    def test_the_first_alert_stands_in_the_middle_of_the_window(self):
        """Though the window gets its place only after the alert has been made."""
        quorvel = self.start_quorvel()
        alert = self.wait_for_alert(quorvel, NO_PORT)
        window = next(each for each in self.desktop.application(quorvel.pid).children()
                      if each.role() == "frame")

        def is_centred():
            return all(abs(its - other) <= 2
                       for its, other in zip(alert.centre(), window.centre()))
        self.assertGreater(min(window.centre()), 300, "a window that has been put in its place")
        quorvel.wait_for("an alert in the middle", is_centred)
        self.answer_alert(quorvel, NO_PORT)
        self.assertEqual(quorvel.end(), 0)

    def test_the_first_steps_lead_there_without_a_keyer(self):
        quorvel = self.start_quorvel()
        self.click_in_alert(quorvel, NO_PORT, "OK")
        window = self.active_window(quorvel)
        call = window.find("Your call sign")
        self.desktop.click(call)
        quorvel.wait_for("the field to be typed into", lambda: call.is_in_state("focused"))
        self.desktop.type("n0call")
        quorvel.wait_for("the call", lambda: window.find("Step 2, done"))
        window.find("Try without a keyer").press()
        self.answer_alert(quorvel, PLUGGED_IN)
        quorvel.wait_for("a keyer", lambda: window.find("Step 1, done"))
        quorvel.wait_for("the speed", lambda: "WPM" in window.find("Speed").description()
                         and "–" not in window.find("Speed").description())
        window.find("Close first steps").press()
        self.active_window(quorvel)
        self.desktop.press("F1")
        keyboard = window.find("Keyboard")
        quorvel.wait_for("the message",
                         lambda: keyboard.text().strip() == "CQ TEST N0CALL N0CALL")
        port = self.runtime / "quorvel/ports" / PORT
        self.assertTrue(port.is_symlink())
        self.assertEqual(quorvel.end(), 0)
        # The keyer was this program's own.
        self.assertFalse(port.is_symlink())
        self.assertIn("MyCall=N0CALL", self.settings.read_text())

    def test_the_keyer_of_software_ends_with_a_program_that_is_killed(self):
        quorvel = self.start_quorvel()
        self.answer_alert(quorvel, NO_PORT)
        self.active_window(quorvel).find("Try without a keyer").press()
        port = self.runtime / "quorvel/ports" / PORT
        quorvel.wait_for("its port", port.is_symlink)
        quorvel.end(signal.SIGKILL)
        wait_for("its end", lambda: not port.is_symlink())

    def test_the_first_steps_come_until_a_port_is_chosen(self):
        self.write_settings("[General]\nMyCall=N0CALL\n")
        quorvel = self.start_quorvel()
        self.answer_alert(quorvel, NO_PORT)
        window = self.active_window(quorvel)
        self.assertTrue(window.find("First steps").is_in_state("showing"))
        self.assertEqual(quorvel.end(), 0)
        self.settings.write_text("[General]\nWKPortName=None\n")
        quorvel = self.start_quorvel()
        self.answer_alert(quorvel, NO_PORT)
        window = self.active_window(quorvel)
        steps = window.find("First steps")
        self.assertTrue(steps is None or not steps.is_in_state("showing"))
        self.assertEqual(quorvel.end(), 0)

    def click_in_alert(self, quorvel, text, button):
        alert = self.wait_for_alert(quorvel, text)
        self.desktop.click(alert.find(button))
        self.wait_until_gone(quorvel, text)

    def expect_connected(self, quorvel, window):
        quorvel.wait_for("the speed",
                         lambda: window.find("Speed").description() == f"{SPEED} WPM")
        quorvel.wait_for("the status",
                         lambda: window.find("Keyer status").description().startswith(
                             f"Connected to {PORT}"))


if __name__ == "__main__":
    run_tests()
