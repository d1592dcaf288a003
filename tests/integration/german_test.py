"""The built programs as an operator finds them whose desktop is German.

Usage: german_test.py QUORVEL VIRTUAL_KEYER [TEST...]
"""

import signal
import subprocess

from program import PORT, QUORVEL, VIRTUAL_KEYER, Keyer, ProgramTest, run_tests

NO_PORT = "Für den WinKeyer ist kein Port festgelegt."
PLUGGED_IN = f"Der serielle Port {PORT} wurde eingesteckt."
UNPLUGGED = f"Der WinKeyer am seriellen Port {PORT} wurde ausgesteckt."
MENUS = ["Datei", "Bearbeiten", "Senden", "Keyer", "QSO", "Fenster", "Hilfe"]
# Within what the speed pot spans by default.
SPEED = 30


class GermanKeyer(Keyer):
    plugged_in = f"Eingesteckt als {PORT}"


class GermanTest(ProgramTest):
    shielded = "Nimmt Tasten an, wenn Sie eine Sekunde nicht getippt haben"

    def setUp(self):
        super().setUp()
        self.environment.update(LC_ALL="de_DE.UTF-8", LANG="de_DE.UTF-8")
        self.environment.pop("LANGUAGE", None)

    def test_from_the_first_alert_to_the_first_message(self):
        quorvel = self.start_quorvel()
        self.answer_alert(quorvel, NO_PORT)
        window = self.main_window(quorvel)
        bar = next(each for each in window.all() if each.role() == "menu bar")
        self.assertEqual([each.name() for each in bar.children()], MENUS)
        keyer = GermanKeyer(self.environment, self.home, SPEED)
        self.addCleanup(keyer.end, signal.SIGKILL)
        alert = self.wait_for_alert(quorvel, PLUGGED_IN)
        self.assertIsNotNone(alert.find("Ja"), alert.describe())
        self.assertIsNotNone(alert.find("Nein"), alert.describe())
        self.answer_alert(quorvel, PLUGGED_IN)
        quorvel.wait_for("the status", lambda: window.find("Zustand des Keyers").description()
                         == f"Mit {PORT} verbunden: bereit")
        self.main_window(quorvel)
        self.desktop.press("F1")
        # What goes on the air is what it is in every language.
        keyer.wait_for("the message",
                       lambda: keyer.output().replace(" ", "") == "CQTESTYOURCALLYOURCALL")
        keyer.end()
        self.answer_alert(quorvel, UNPLUGGED)
        self.assertEqual(quorvel.end(), 0)
        self.assertIn(f"WKPortName={PORT}", self.settings.read_text())

    def test_the_guide_is_german(self):
        quorvel = self.start_quorvel()
        self.answer_alert(quorvel, NO_PORT)
        self.main_window(quorvel)
        self.desktop.press("alt+h")
        self.desktop.press("a")
        quorvel.wait_for("the guide", lambda: any(
            "Beim ersten Start sagt Quorvel" in each.text()
            for window in self.desktop.application(quorvel.pid).children()
            for each in window.all() if each.name() == "Erster Start"))
        self.assertEqual(quorvel.end(), 0)

    def test_the_command_lines_are_german(self):
        for program, words in ((QUORVEL, "Aufruf: quorvel [Optionen]"),
                               (VIRTUAL_KEYER, "Ein Morse-Keyer aus Software")):
            environment = dict(self.environment)
            environment.pop("DISPLAY")
            told = subprocess.run([program, "--help"], env=environment, text=True, check=True,
                                  stdout=subprocess.PIPE).stdout
            self.assertIn(words, told)
            self.assertIn("--version", told)

    def main_window(self, quorvel):
        """The main window, once what is typed goes to its keyboard view."""
        def is_active():
            application = self.desktop.application(quorvel.pid)
            keyboard = application and application.find("Tastatur")
            return (keyboard and keyboard.is_in_state("focused") and not self.alerts(quorvel)
                    and self.desktop.active_process() == quorvel.pid and application)
        return quorvel.wait_for("the window", is_active)


if __name__ == "__main__":
    run_tests()
