"""What the traffic runs on: keyer with its paddle, adapter, login service, application, and what was
heard on the air since the last look."""

import pathlib
import time

from endings_station import EndingStation
from helper import Helper
from program import SPEED
from waiting import wait_for

HERE = pathlib.Path(__file__).parent
# Number of the message and its text; a call and a number stand for themselves.
MESSAGES = {1: "CQ TEST ` `", 2: "5NN #", 3: "TU `", 4: "`", 5: "~", 6: "~ 5NN #", 7: "?",
            8: "PARIS " * 12 + "PARIS"}
SETTINGS = "".join(f'Message{number}="{text}"\n' for number, text in MESSAGES.items())
# For so many seconds nothing must come, where nothing may.
QUIET = 0.4
# Seconds between two letters of what goes on, on a busy machine.
LONGEST_GAP = 0.25
# Signs of two letters, as the key line is read.
MERGED = {"{AR": "+", "{BT": "="}


def on_the_key_line(text):
    """What is read from the key line when `text` is sent. A busy machine may make a word space of a
    letter space, so that neither counts."""
    for letters, sign in MERGED.items():
        text = text.replace(letters, sign)
    return text.replace(" ", "")


class Tail:
    """A file that grows, read on from where the last look ended."""

    def __init__(self, path):
        self._file = open(path, encoding="utf-8", errors="replace")
        self._rest = ""

    def lines(self):
        *lines, self._rest = (self._rest + self._file.read()).split("\n")
        return lines


class TrafficStation(EndingStation):
    """A station for one test, whose acts are given from outside."""

    def start_traffic(self, more_settings=""):
        self._bus, address = self.desktop.start_bus()
        self.addCleanup(self._bus.end)
        bus = dict(self.environment, DBUS_SYSTEM_BUS_ADDRESS=address)
        self._service = Helper(HERE / "login_service.py", environment=bus)
        self.addCleanup(self._service.end)
        self._service.hear()
        self.start_station({"DBUS_SYSTEM_BUS_ADDRESS": address}, more_settings, is_paddled=True)
        self._transcript_path = self.home / "transcript.txt"
        self._transcript = Tail(self._transcript_path)
        self._echoes = ""
        self._status = 0xC0
        self._is_key_down = False
        self._last_line = time.monotonic()
        self._heard = self._keyed = 0
        named = {each.name(): each for each in self.window.all() if "menu" not in each.role()}
        self.keyboard, self.status = named["Keyboard"], named["Keyer status"]
        self.pause, self.call = named["Pause"], named["Their call"]
        self.controls = named
        self.wait("the greeting's echo", lambda: self.echoed() == "U")
        self.take()

    def write_settings(self, text):
        kept = [line for line in text.splitlines() if not line.startswith("Message8=")]
        super().write_settings("\n".join(kept) + "\n" + SETTINGS)

    # The air.

    def listen(self):
        for line in self._transcript.lines():
            self._last_line = time.monotonic()
            _, kind, word, *_ = line.split() + ["", ""]
            if kind == "key":
                self._is_key_down = word == "down"
            elif kind == "host":
                self._note(int(word, 16))

    def _note(self, byte):
        if byte & 0xC0 == 0xC0 and byte & 0x08 == 0:
            self._status = byte
        elif 0x20 <= byte < 0x7F:
            self._echoes += chr(byte)

    def echoed(self):
        """All that was sent for the application since take()."""
        self.listen()
        return self._echoes[self._heard:]

    def keyed(self):
        """All that was keyed since take(), by the application or the paddle."""
        return self.keyer.keyed()[self._keyed:]

    def take(self):
        """What was echoed since the last time."""
        echoed = self.echoed()
        self._heard = len(self._echoes)
        self._keyed = len(self.keyer.keyed())
        return echoed

    def is_key_down(self):
        self.listen()
        return self._is_key_down

    def is_at_rest(self):
        """The keyer is idle by its own word also while it ends a letter that was stopped."""
        self.listen()
        has_paused = time.monotonic() - self._last_line > LONGEST_GAP
        return has_paused and not self._is_key_down and self._status & 0x07 == 0

    def rest(self):
        self.wait("the keyer to rest", self.is_at_rest)

    def stay_quiet(self):
        """Nothing more comes."""
        self.rest()
        before = self.keyer.keyed(), self.echoed()
        time.sleep(QUIET)
        self.rest()
        self.assertEqual((self.keyer.keyed(), self.echoed()), before)

    def describe(self):
        """For whoever reads a failure."""
        return (f"text {self.keyboard.text()!r}, call {self.call.text()!r}, "
                f"{self.status.refresh().description()}, paused: {self.is_paused()}, "
                f"echoes {self.echoed()!r}, keyed {self.keyed()!r}, status {self._status:x}, "
                f"active {self.desktop.xdotool('getactivewindow', 'getwindowname')}\n" +
                "\n".join(self._transcript_path.read_text().splitlines()[-60:]))

    def wait(self, what, condition):
        return self.quorvel.wait_for(what, condition)

    # The operator's surroundings.

    def says(self, words):
        return words in self.status.refresh().description()

    def is_paused(self):
        return self.pause.refresh().is_in_state("checked")

    def wait_for_window(self):
        """Until keys go to the main window, whatever has the focus there."""
        self.wait("the window", lambda: not self.alerts(self.quorvel) and self.desktop.xdotool(
            "getactivewindow") == self.window_number)

    def paddle(self, contact):
        self.keyer.tell(contact)

    def pull(self):
        self.adapter.do("pull")

    def plug(self):
        self.adapter.do("plug")

    def fall_asleep(self):
        self._service.do("sleep")

    def wake(self):
        self._service.do("wake")

    def wait_for_link(self, since):
        """`since` is the time before the port came back."""
        self.wait_until_connected(since)
        wait_for("the greeting's echo", lambda: self.echoed().endswith("U"))
        self.assertEqual(self.window.find("Speed").description(), f"{SPEED} WPM")
