"""Both programs as an operator has them, and what every test does with them."""

import pathlib
import shutil
import signal
import subprocess
import sys
import tempfile
import unittest

from desktop import REPEAT_DELAY, Desktop
from port import Port
from process import Process

PORT = "usbserial-virtual"
QUORVEL, VIRTUAL_KEYER = sys.argv[1:3]

# What alerts say.
NO_PORT = "There is no port defined for the WinKeyer."
UNPLUGGED = f"The WinKeyer using serial port {PORT} has been unplugged."
PLUGGED_IN = f"The serial port {PORT} has been plugged in."

LONG_TEXT = "PARIS" * 200
# Fast, so that a long text takes little time. A pot byte has room for 32 speeds.
SPEED = 90
SETTINGS = f"""[General]
WKPortName={PORT}
MyCall=N0CALL
WKSpeedPotMinimum=60
WKSpeedPotRange=31
Message8={LONG_TEXT}
"""


class Keyer(Process):
    """The virtual keyer's program, plugged in, its speed pot at `speed`."""

    # What it says once it is.
    plugged_in = "Plugged in as"

    def __init__(self, environment, directory, speed=SPEED, profile="default", is_paddled=False,
                 is_headless=True, is_scripted=False):
        self._transcript = directory / "transcript.txt"
        self._registers = directory / "registers.txt"
        super().__init__([VIRTUAL_KEYER, *(["--headless"] if is_headless else []), "--speed", str(speed), "--profile", profile,
                          "--transcript", self._transcript, "--registers", self._registers,
                          *(["--paddle"] if is_paddled else []),
                          *(["--script", "-"] if is_scripted else [])],
                         environment, directory,
                         stdin=(subprocess.PIPE if is_paddled or is_scripted
                                else subprocess.DEVNULL))
        self.wait_for("the keyer", lambda: self.plugged_in in self.errors())

    def keyed(self):
        """What was read from the key line. A busy machine may make a word space of a letter
        space, so that neither counts."""
        return self.output().replace(" ", "")

    def events(self, kind):
        """The times, in milliseconds, and the words of what the transcript tells of `kind`."""
        lines = (line.split() for line in self._transcript.read_text().splitlines())
        return [(float(line[0]), line[2]) for line in lines if line[1] == kind]

    def answers(self):
        """The bytes that went to the application, in the transcript's words."""
        return [word for _, word in self.events("host")]

    def registers(self):
        """What the keyer holds now, and its memory: texts by name."""
        lines = self._registers.read_text().splitlines()
        return {name: value for name, _, value in (line.partition(" ") for line in lines)}

    def is_left(self):
        """Whether no host has it in host mode: then it goes by what its memory holds, and the
        SETTINGS are others."""
        registers = self.registers()
        return registers["pot-minimum"] == registers["memory-pot-minimum"]

    def is_key_down(self):
        """What the transcript last says of the key line."""
        changes = [word for _, word in self.events("key")]
        return changes[-1:] == ["down"]

    def echoes(self):
        """The text that was echoed."""
        text = (int(each, 16) for each in self.answers())
        return "".join(chr(each) for each in text if 0x20 < each < 0x7F).removeprefix("U")

    def has_keyed(self, text):
        self.wait_for(f"{text} on the key line", lambda: self.keyed() == text)
        self.wait_for(f"{text} in the echoes", lambda: self.echoes() == text)


class ProgramTest(unittest.TestCase):
    """A desktop for all tests of a class, and a home for each."""

    # What an alert says while it takes no keys.
    shielded = "Takes keys when you have stopped typing for a second"
    desktop_kind = Desktop

    # Milliseconds until a held key repeats.
    repeat_delay = REPEAT_DELAY

    # The folder of all homes; None stands for the system's usual one.
    ROOM = None

    @classmethod
    def setUpClass(cls):
        cls.directory = pathlib.Path(tempfile.mkdtemp(prefix="quorvel-test.", dir=cls.ROOM))
        cls.addClassCleanup(shutil.rmtree, cls.directory)
        cls.desktop = cls.desktop_kind(cls.directory, cls.repeat_delay)
        cls.addClassCleanup(cls.desktop.close)

    def setUp(self):
        self.home = self.directory / self.id().split(".")[-1]
        self.runtime = self.home / "runtime"
        self.runtime.mkdir(parents=True, mode=0o700)
        self.environment = dict(self.desktop.environment, XDG_RUNTIME_DIR=str(self.runtime),
                                XDG_CONFIG_HOME=str(self.home / "config"),
                                XDG_STATE_HOME=str(self.home / "state"))
        self.settings = self.home / "config/quorvel/quorvel.conf"

    def write_settings(self, text):
        self.settings.parent.mkdir(parents=True)
        self.settings.write_text(text)

    def start_quorvel(self, command=(QUORVEL,)):
        quorvel = Process(command, self.environment, self.home)
        self.addCleanup(self.tell, quorvel)
        self.addCleanup(quorvel.end, signal.SIGKILL)
        return quorvel

    def start_keyer(self, speed=SPEED, profile="default"):
        keyer = Keyer(self.environment, self.home, speed, profile)
        self.addCleanup(keyer.end, signal.SIGKILL)
        return keyer

    def start_connected(self, settings=SETTINGS):
        """Keyer, application and its window, ready to type."""
        self.write_settings(settings)
        keyer = self.start_keyer()
        quorvel = self.start_quorvel()
        window = self.active_window(quorvel)
        self.wait_for_speed(quorvel, window)
        return keyer, quorvel, window

    def active_window(self, quorvel):
        """The main window, once what is typed goes to its keyboard view."""
        def is_active():
            application = self.desktop.application(quorvel.pid)
            keyboard = application and application.find("Keyboard")
            return (keyboard and keyboard.is_in_state("focused") and not self.alerts(quorvel)
                    and self.desktop.active_process() == quorvel.pid and application)
        return quorvel.wait_for("the window", is_active)

    def wait_for_speed(self, quorvel, window):
        quorvel.wait_for("the speed",
                         lambda: window.find("Speed").description() == f"{SPEED} WPM")

    def alerts(self, quorvel):
        application = self.desktop.application(quorvel.pid)
        children = application.children() if application else []
        return [each for each in children if each.role() == "alert"]

    def answer_alert(self, quorvel, text, key="Return"):
        """Waits for the one alert, which must say this, and presses a key in it as soon as it takes
        keys."""
        alert = self.wait_for_alert(quorvel, text)
        quorvel.wait_for("the alert to take keys", lambda: not self.is_shielded(alert))
        self.desktop.press(key)
        self.wait_until_gone(quorvel, text)

    def wait_for_alert(self, quorvel, text):
        """Waits for the one alert, which must say this."""
        def is_ready():
            alerts = self.alerts(quorvel)
            return (alerts and alerts[0].is_in_state("active")
                    and self.desktop.active_process() == quorvel.pid and alerts)
        alerts = quorvel.wait_for("an alert", is_ready)
        self.assertEqual(len(alerts), 1)
        self.assertIsNotNone(alerts[0].find(text), alerts[0].describe())
        return alerts[0]

    def is_shielded(self, alert):
        """Whether the alert says that it takes no keys yet."""
        hint = alert.find(self.shielded)
        return hint is not None and hint.is_in_state("showing")

    def wait_until_gone(self, quorvel, text):
        quorvel.wait_for("the alert to go", lambda: all(
            each.find(text) is None for each in self.alerts(quorvel)))

    def press_switch(self, quorvel, window, name, to=True):
        window.find(name).press()
        self.expect_switch(quorvel, window, name, to)

    def expect_switch(self, quorvel, window, name, is_on):
        quorvel.wait_for(f"{name} {'on' if is_on else 'off'}",
                         lambda: window.find(name).is_in_state("checked") == is_on)

    def close_window(self, keyer, quorvel):
        self.desktop.press("alt+F4")
        self.assertEqual(quorvel.status(), 0)
        self.expect_closed(keyer)

    def terminate(self, keyer, quorvel):
        self.assertEqual(quorvel.end(), 0)
        self.expect_closed(keyer)

    def expect_closed(self, keyer):
        """The application has left the keyer as it should: a keyer whose host has gone answers
        what the next one asks, and keys nothing of the text between. The answer's time."""
        keyed = keyer.keyed()
        with Port(self.runtime / "quorvel/ports" / PORT) as port:
            port.write(b"EEE\x00\x04Z")
            self.assertEqual(port.read(1), b"Z")
        self.assertEqual(keyer.keyed(), keyed)
        self.assertEqual(keyer.end(), 0)
        return keyer.events("host")[-1][0]

    def tell(self, quorvel):
        """What the application said, for whoever reads a failure."""
        if quorvel.errors():
            print(f"{self.id()}: quorvel said:\n{quorvel.errors()}", file=sys.stderr)


def run_tests():
    unittest.main(argv=[sys.argv[0], *sys.argv[3:]], verbosity=2)
