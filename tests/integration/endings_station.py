"""What every cell of the table of endings has: keyer, adapter, application, and what was measured."""

import os
import pathlib
import re
import signal
import time

from helper import Helper
from processor_waits import ProcessorWaits
from program import LONG_TEXT, PORT, SPEED, Keyer, ProgramTest
from waiting import wait_for

HERE = pathlib.Path(__file__).parent
SETTINGS = f"""[General]
WKPortName={PORT}
MyCall=N0CALL
WKSpeedPotMinimum=60
WKSpeedPotRange=31
Message8={LONG_TEXT}
BeaconInterval=4
"""
# Seconds.
KEY_UP, EXIT = 1.0, 3.0
# The connect sequence ends with the question where the speed pot stands.
GREETING_END = 0x07


class EndingStation(ProgramTest):
    # In memory: how long a busy disk takes to store the settings is not what the limits are about.
    ROOM = "/dev/shm" if os.access("/dev/shm", os.W_OK) else None

    def start_station(self, environment, more_settings, is_paddled=False):
        """Keyer, adapter and application, connected."""
        self.waits = ProcessorWaits(os.getpid(), with_children=True)
        self.environment.update(environment)
        # The keyer's own link would be a second port.
        keyer_runtime = self.home / "keyer"
        keyer_runtime.mkdir(mode=0o700)
        self.keyer = Keyer(dict(self.environment, XDG_RUNTIME_DIR=str(keyer_runtime)), self.home,
                           is_paddled=is_paddled)
        self.addCleanup(self.keyer.end, signal.SIGKILL)
        self.bytes_log = self.home / "bytes"
        self.adapter = Helper(HERE / "adapter.py", keyer_runtime / "quorvel/ports" / PORT,
                              self.runtime / "quorvel/ports" / PORT, self.bytes_log)
        self.addCleanup(self.adapter.end)
        self.adapter.do("plug")
        self.write_settings(SETTINGS + more_settings)
        self.start_and_connect()

    def start_and_connect(self, since=0):
        self.quorvel = self.start_quorvel()
        self.application = self.active_window(self.quorvel)
        # Other windows have elements of the same names.
        self.window = self.application.children()[0]
        self.window_number = self.desktop.xdotool("getactivewindow")
        self.wait_until_connected(since)

    def wait_until_connected(self, since):
        """Until the keyer has said, as its answer to a greeting since then, where its pot stands."""
        def is_connected():
            asked = [at for at, byte in self.line("keyer", since) if byte == GREETING_END]
            return asked and any(0x80 <= byte < 0xC0 for _, byte in self.line("host", asked[0]))
        self.quorvel.wait_for("the greeting", is_connected)
        self.wait_for_speed(self.quorvel, self.window)

    def find(self, name):
        """In whichever window it is."""
        return self.quorvel.wait_for(name, lambda: self.application.find(name))

    def menu_item(self, name):
        return next(each for each in self.window.all()
                    if "menu item" in each.role() and each.name() == name)

    def begin_ending(self):
        self.begin_held_up = self.held_up()
        self.begin = time.monotonic()

    def passed(self):
        return time.monotonic() - self.begin

    def without_waiting(self, seconds):
        """Without what a busy machine has kept waiting for a processor whoever has a hand in it."""
        return max(0.0, seconds - (self.held_up() - self.begin_held_up))

    def held_up(self):
        return self.waits.seconds()

    # What passed over the line, and what it made of the key.

    def line(self, direction, since=0):
        """Times and values of the bytes to "keyer" or to "host"."""
        lines = (each.split() for each in self.bytes_log.read_text().splitlines())
        found = [(float(at), int(byte, 16)) for at, to, byte in lines if to == direction]
        return [each for each in found if each[0] >= since]

    def written(self, since=None):
        start = self.begin if since is None else since
        return " ".join(f"{byte:02x}" for _, byte in self.line("keyer", start))

    def keyer_clock(self):
        """What to add to the keyer's time, in seconds, to have the machine's: a byte is noted by both
        when it leaves, and the one that was the least late tells best."""
        left = [at / 1000 for at, _ in self.keyer.events("host")]
        came = [at for at, _ in self.line("host")]
        return min(there - here for here, there in zip(left, came))

    def key_up_after(self):
        """Seconds from the beginning of the end until the key is up for good; 0 when it was."""
        clock = self.keyer_clock()
        changes = [at / 1000 + clock for at, _ in self.keyer.events("key")]
        return max(0.0, changes[-1] - self.begin) if changes else 0.0

    def is_silent(self, seconds=0.6):
        """Whether nothing passes and nothing is keyed for a while."""
        before = self.bytes_log.stat().st_size, len(self.keyer.events("key"))
        time.sleep(seconds)
        return before == (self.bytes_log.stat().st_size, len(self.keyer.events("key")))

    def wait_for_silence(self):
        wait_for("the end of what is sent", self.is_silent)

    # What is to be had in the end.

    def expect_gone(self, status):
        def has_ended():
            self.held_up()
            return self.quorvel.has_ended()
        wait_for("the end", has_ended)
        self.result["time"] = self.passed()
        self.result["status"] = self.quorvel.status()
        self.assertEqual(self.result["status"], status)
        self.result["is late"] = self.without_waiting(self.result["time"]) >= EXIT

    def expect_key_up(self, limit=KEY_UP):
        self.wait_for_silence()
        self.assertFalse(self.keyer.is_key_down())
        self.result["key up"] = self.key_up_after()
        self.assertLess(self.without_waiting(self.result["key up"]), limit)

    def expect_written(self, pattern):
        """All that was written from the ending on."""
        self.result["bytes"] = self.written()
        self.assertRegex(self.result["bytes"], re.compile(f"^({pattern})$"))

    def record(self):
        """What is kept, for a next start, of what may be keyed."""
        try:
            return (self.home / "state/quorvel/keying").read_text()
        except FileNotFoundError:
            # Asked for before it is read, it may be gone in between.
            return ""

    def expect_guards(self, count):
        wait_for(f"{count} guards", lambda: len(self.guards()) == count)

    def guards(self):
        """The guards of this application."""
        found = []
        for each in pathlib.Path("/proc").iterdir():
            try:
                if each.name.isdigit() and "quorvel-key-guard" in os.readlink(each / "exe"):
                    environment = (each / "environ").read_bytes()
                    if f"XDG_RUNTIME_DIR={self.runtime}\0".encode() in environment:
                        found.append(int(each.name))
            except OSError:
                pass
        return found

    def expect_ready(self, notice):
        """The program goes on: it says what happened, and nothing where `notice` is empty, its
        switches tell the truth, it stops, sends, and ends in order."""
        self.expect_switch(self.quorvel, self.window, "Tune", False)
        self.expect_guards(1)
        self.window.find("Stop").press()
        self.wait_for_silence()
        if self.window.find("Pause").is_in_state("checked"):
            self.press_switch(self.quorvel, self.window, "Pause", False)
        before = self.keyer.keyed()
        self.window.find("Message 7: ?").press()
        self.keyer.wait_for("a new message", lambda: self.keyer.keyed() == before + "?")
        self.assertEqual(self.window.find("Speed").description(), f"{SPEED} WPM")
        self.assertEqual(len(self.notices()), 1 if notice else 0, self.notices())
        self.assertIn(notice, "".join(self.notices()))
        self.assertEqual(self.quorvel.end(), 0)
        self.assertFalse(self.keyer.is_key_down())
        self.expect_guards(0)
        self.assertEqual(self.record(), "")

    # Alerts on the way.

    def has_alert(self, words):
        return any(words in each.name() for alert in self.alerts(self.quorvel)
                   for each in alert.all())

    def dismiss_alerts(self):
        for alert in self.alerts(self.quorvel):
            button = alert.find("OK")
            if button:
                button.press()
                self.quorvel.wait_for("the alert to go", lambda: alert.find("OK") is None)

    def notices(self):
        """What the strips of the window say."""
        return [each.name() for each in self.window.all() if each.is_in_state("showing")
                and any(child.name() == "Close notice" for child in each.children())]
