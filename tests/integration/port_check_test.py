"""The check of the ports, on a terminal without a screen and in its window.

Usage: port_check_test.py QUORVEL VIRTUAL_KEYER [TEST...]
"""

import os
import pathlib
import subprocess

from port import Port
from program import NO_PORT, PORT, QUORVEL, SETTINGS, ProgramTest, run_tests

FREE = "OK: Nothing is in the way."
ANSWERS = "OK: A keyer answers on it."


class PortCheckTest(ProgramTest):
    def check(self, *arguments):
        """On a terminal that has no screen; the exit status, and what it says of the keyer's
        port and what follows that."""
        environment = {name: value for name, value in self.environment.items()
                       if name not in ("DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM")}
        done = subprocess.run([QUORVEL, "--check-ports", *arguments], env=environment, text=True,
                              capture_output=True, timeout=60, check=False)
        return done.returncode, done.stdout[max(done.stdout.find(PORT), 0):]

    def test_without_a_screen(self):
        keyer = self.start_keyer()
        status, report = self.check()
        self.assertEqual(status, 0, report)
        self.assertIn(FREE, report.split("\n\n")[0])
        # It has only looked.
        self.assertEqual(keyer.answers(), [])
        self.assertEqual(keyer.end(), 0)

    def test_asking_takes_an_option(self):
        keyer = self.start_keyer()
        status, report = self.check("--ask-keyer", PORT)
        self.assertEqual(status, 0, report)
        self.assertIn(ANSWERS, report)
        self.assertEqual(keyer.keyed(), "")
        # And leaves the port as it was.
        self.assertEqual(self.check("--ask-keyer", PORT)[0], 0)
        self.assertEqual(keyer.end(), 0)

    def test_a_port_in_use_is_not_touched(self):
        keyer = self.start_keyer()
        with Port(self.runtime / "quorvel/ports" / PORT) as port:
            status, report = self.check("--ask-keyer", PORT)
            self.assertEqual(status, 1)
            self.assertIn(f"Another program has it open: python3 (process {os.getpid()}).", report)
            self.assertIn(f"{PORT} is not asked: it is not there, or not free.", report)
            self.assertEqual(keyer.answers(), [])
            port.write(b"\x00\x04Z")
            self.assertEqual(port.read(1), b"Z")
        self.assertEqual(keyer.end(), 0)

    def test_the_running_application_is_no_rival(self):
        keyer, quorvel, _ = self.start_connected()
        status, report = self.check("--ask-keyer", PORT)
        self.assertEqual(status, 1)
        self.assertIn("OK: Quorvel has it open.", report)
        self.terminate(keyer, quorvel)

    def test_a_port_that_is_chosen_and_missing_is_named(self):
        self.write_settings(SETTINGS)
        _, report = self.check()
        self.assertTrue(report.startswith(f"{PORT}, the port chosen last\n"
                                          "  Problem: It is not there."), report)
        # The settings are only read.
        self.assertEqual(self.settings.read_text(), SETTINGS)

    def test_wrong_arguments_are_refused(self):
        self.assertEqual(self.check("--ask-keyer")[0], 2)
        self.assertEqual(self.check("now")[0], 2)

    def test_a_report_names_no_user(self):
        _, report = self.check()
        self.assertNotIn(str(pathlib.Path.home()), report)

    def test_the_window_tells_and_asks(self):
        self.write_settings("[General]\nWKPortName=None\n")
        keyer = self.start_keyer()
        quorvel = self.start_quorvel()
        self.answer_alert(quorvel, NO_PORT)
        window = self.active_window(quorvel)
        window.find("Check ports").press()
        dialog = quorvel.wait_for("the window of the check", lambda: self.check_window(quorvel))
        ask = self.entry(dialog).find("Ask the keyer")
        self.assertEqual(keyer.answers(), [])
        ask.press()
        quorvel.wait_for("the answer", lambda: self.entry(
            self.check_window(quorvel)).find(ANSWERS))
        self.assertEqual(keyer.keyed(), "")
        self.assertEqual(quorvel.end(), 0)
        self.assertEqual(keyer.end(), 0)

    def check_window(self, quorvel):
        application = self.desktop.application(quorvel.pid)
        return next((each for each in application.children() if each.name().startswith("Check Ports")),
                    None)

    def entry(self, dialog):
        return next(each for each in dialog.all() if each.name().startswith(f"{PORT} ("))


if __name__ == "__main__":
    run_tests()
