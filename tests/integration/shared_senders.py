"""Those who share a keyer: the operator, loggers, scripts, and programs that send bare datagrams.

Each knows what it had sent since begin(), as items in its order, and what it was told of them.
"""

import select
import socket

from tlf import ENTER, F1, Tlf, wait_until_it_hears
from traffic_station import MESSAGES
from xlog import Xlog

WORDS = "CQ DE UR RST 5NN TNX FER CALL OP NAME QTH HR WX FB OM RIG ANT PWR 73 GL EE TEST GM GA".split()
LABELS = {1: "CQ", 3: "Acknowledge", 4: "My Call", 7: "?", 8: "Again"}
OPERATOR, MESSAGE, LOGGER = 0, 1, 4


def letters(text):
    return text.replace(" ", "").replace("`", "N0CALL").upper()


class Item:
    """A text that was sent. `is_keyed` is what its sender was told, None where nobody tells."""

    def __init__(self, text, message=0):
        self.text, self.message, self.is_keyed = letters(text), message, None


class Sender:
    def __init__(self, station, random):
        self.station, self.random = station, random
        self.begin()

    def begin(self):
        self.items = []

    def words(self, most=4):
        return " ".join(self.random.choices(WORDS, k=self.random.randint(1, most)))

    def hear(self):
        """Notes what it is told; whether that is all there is to be told."""
        return True

    def owns(self, run):
        raise NotImplementedError


class Typist(Sender):
    """The operator at Quorvel's own keyboard."""
    name = "operator"

    def send(self):
        if self.random.random() < 0.5:
            text = self.words()
            self.station.desktop.type(f" {text.lower()} ", self.random.choice([1, 8, 30]))
            # What is typed one behind the other is one text.
            if self.items and not self.items[-1].message:
                text = self.items.pop().text + text
            self.items.append(Item(text))
        else:
            self.press(self.random.choice([1, 3, 4, 7]))

    def press(self, number):
        self.station.desktop.press(f"F{number}")
        self.items.append(Item(MESSAGES[number], number))

    def owns(self, run):
        return run.source in (OPERATOR, MESSAGE)


class Datagrams(Sender):
    """A program that sends datagrams, and asks to be told of each."""
    name = "datagrams"

    def begin(self):
        super().begin()
        self._socket = socket.socket(socket.AF_INET, socket.SOCK_DGRAM)
        self.station.addCleanup(self._socket.close)
        self._socket.connect(("127.0.0.1", self.station.port))
        self._port = self._socket.getsockname()[1]
        self._told = []

    def send(self):
        text = self.words()
        item = Item(text)
        if self.random.random() < 0.5:
            item.told = f"h{len(self.items)}"
            self.tell(f"\x1bh{len(self.items)}")
            self.tell(text)
        else:
            item.told = text
            self.tell(f"{text}^")
        self.items.append(item)

    def tell(self, request):
        self._socket.send(request.encode())

    def hear(self):
        while select.select([self._socket], [], [], 0)[0]:
            self._told.append(self._socket.recv(4096).decode().removesuffix("\r\n"))
        if len(self._told) < len(self.items):
            return False
        self.station.assertEqual(len(self._told), len(self.items), self._told)
        told = list(self._told)
        for each in self.items:
            each.is_keyed = each.told in told
            told.remove(each.told if each.is_keyed else "break")
        return True

    def owns(self, run):
        return run.source == LOGGER and run.number == self._port


class Script(Sender):
    """quorvel-send, one for each text."""
    name = "quorvel-send"

    def send(self):
        text = self.words(6)
        item = Item(text)
        item.process = self.station.sender("--wait", text.lower())
        self.items.append(item)
        # Who starts later may be heard earlier.
        self.station.wait("it to be heard", lambda: self._is_heard(item))

    def _is_heard(self, item):
        """It asks whether anybody listens, and waits for an answer from then on."""
        with open(f"/proc/{item.process.pid}/wchan", encoding="ascii") as file:
            return "poll" in file.read() or item.process.poll() is not None

    def hear(self):
        if any(each.process.poll() is None for each in self.items):
            return False
        for each in self.items:
            self.station.assertIn(each.process.returncode, (0, 1))
            each.is_keyed = each.process.returncode == 0
        return True

    def owns(self, run):
        """It is gone with its answer, and on a busy machine before its name is looked for."""
        is_nameless = not run.name and not any(
            each.owns(run) for each in self.station.senders if each != self)
        return run.source == LOGGER and (run.name == self.name or is_nameless)


class Contester(Sender):
    """Tlf and its operator."""
    name = "tlf"

    def __init__(self, station, random):
        super().__init__(station, random)
        self._contacts = 0
        self.tlf = Tlf(station.home, station.port)
        station.addCleanup(self.tlf.end)
        station.wait_for_set_speed(station.quorvel, station.window, 40)
        wait_until_it_hears(self.tlf, lambda: station.window.find("Speed").description())

    def send(self):
        self.tlf.press(F1)
        self.items.append(Item("CQ TEST N0CALL"))

    def contact(self):
        """A whole one, whose parts follow one another at once."""
        self._contacts += 1
        call = f"K{self._contacts % 10}{''.join(self.random.choices('ABCDEFGHKLMNPRSTUVWXYZ', k=3))}"
        for keys in (call, ENTER, "14", ENTER):
            self.tlf.press(keys)
        self.items.append(Item(f"{call} 5NN {self._contacts:03}"))
        self.items.append(Item("TU N0CALL"))

    def owns(self, run):
        return run.source == LOGGER and run.name == self.name


class Hobbyist(Sender):
    """Xlog and its operator."""
    name = "xlog"
    buttons = {"F1": "CQ DE N0CALL N0CALL TEST", "F4": "TU 73"}

    def __init__(self, station, random):
        super().__init__(station, random)
        self.xlog = Xlog(station.desktop, station.environment, station.home)
        station.addCleanup(self.xlog.end)
        self.xlog.open_keyer()
        station.wait_for_set_speed(station.quorvel, station.window, 24)

    def send(self):
        button = self.random.choice(list(self.buttons))
        self.xlog.press_button(button)
        self.items.append(Item(self.buttons[button]))

    def owns(self, run):
        return run.source == LOGGER and run.name == self.name
