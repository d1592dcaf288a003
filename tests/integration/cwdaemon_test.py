"""The daemon that loggers know, and Quorvel, make the same of the same datagrams: what they answer, and
how long they key.

Usage: cwdaemon_test.py QUORVEL VIRTUAL_KEYER [TEST...]
"""

import select
import socket
import time

from logger_station import LoggerStationTest, free_port
from process import Process
from program import run_tests
from waiting import PATIENCE

# At which both begin here.
SPEED = b"\x1b225"
# By how much an answer is later where it waits until the keyer is idle, as it does behind joined
# letters: three dits.
IDLE = 0.144
# Of a second and of what is keyed: bytes on the line, the keyer's own start, and a busy machine.
TOLERANCE, SHARE = 0.15, 0.04
ATTEMPTS = 6


class Line:
    """To one of the two."""

    def __init__(self, port):
        self._socket = socket.socket(socket.AF_INET, socket.SOCK_DGRAM)
        self._socket.connect(("127.0.0.1", port))

    def send(self, *datagrams):
        for each in datagrams:
            self._socket.send(each)

    def reply(self):
        assert select.select([self._socket], [], [], PATIENCE)[0], "nothing is answered"
        return self._socket.recv(4096)

    def answers(self):
        try:
            self.send(SPEED, b"\x1bh", b"e")
            return select.select([self._socket], [], [], 1)[0] and self.reply() == b"h\r\n"
        except ConnectionRefusedError:
            return False

    def close(self):
        self._socket.close()


class CwdaemonTest(LoggerStationTest):
    """Its sound is off, and it keys no device: how long it keys is told by its answer."""

    def start_both(self):
        self.keyer, self.quorvel, _ = self.start_listening()
        port = free_port()
        daemon = Process(["cwdaemon", "--nofork", "--cwdevice", "null", "--system", "n", "--port", port],
                         dict(self.environment, PATH="/usr/sbin:/usr/bin:/bin"), self.home)
        self.addCleanup(daemon.end)
        self.lines = [Line(port), Line(self.port)]
        for each in self.lines:
            self.addCleanup(each.close)
            daemon.wait_for("an answer", each.answers)

    def compare(self, *datagrams, later=0):
        """The one reply, which is the same, after the same time, to the last of these. A busy machine
        makes both late, and each a different time: the shortest of several counts."""
        shortest = [PATIENCE, PATIENCE]
        for _ in range(ATTEMPTS):
            replies, times = zip(*(self._ask(line, datagrams) for line in self.lines))
            self.assertEqual(*replies)
            shortest = [min(each) for each in zip(shortest, times)]
            apart = abs(shortest[0] + later - shortest[1])
            if apart < TOLERANCE + SHARE * shortest[0]:
                return replies[0]
        self.fail((datagrams, shortest))

    @staticmethod
    def _ask(line, datagrams):
        line.send(*datagrams)
        begin = time.monotonic()
        return line.reply(), time.monotonic() - begin

    def end_both(self):
        self.terminate(self.keyer, self.quorvel)

    def test_replies_and_times(self):
        self.start_both()
        self.assertEqual(self.compare(b"\x1bh", b"paris paris"), b"h\r\n")
        self.assertEqual(self.compare(b"paris^"), b"paris\r\n")
        self.assertEqual(self.compare(b"Paris 5nn^\r\n").lower(), b"paris 5nn\r\n")
        self.assertEqual(self.compare(b"\x1bh7", b"eee"), b"h7\r\n")
        self.end_both()

    def test_speeds(self):
        self.start_both()
        for request in (b"\x1b240", b"\x1b215", b"\x1b23", b"\x1b261", b"\x1b225x", b"\x1b2", b"\x1b2-9"):
            self.compare(request, b"\x1bh", b"paris")
        self.compare(SPEED, b"\x1bh", b"++paris--paris")
        self.compare(b"\x1bh", b"paris")
        self.end_both()

    def test_signs(self):
        """But for `~`, of which the daemon makes two dits, and its manual half of one, as Quorvel does."""
        self.start_both()
        for each in b"*=<(!&>":
            self.compare(b"\x1bh", bytes([each]) * 3, later=IDLE if each in b"!>" else 0)
        self.end_both()

    def test_an_abort_is_told(self):
        self.start_both()
        for line in self.lines:
            line.send(b"\x1bh", b"paris paris paris paris paris")
            time.sleep(0.5)  # in the midst of it
            line.send(b"\x1b4")
            self.assertEqual(line.reply(), b"break\r\n")
        self.compare(b"\x1bh", b"paris")
        self.end_both()

    def test_what_is_no_request_is_ignored(self):
        self.start_both()
        for each in (b"\x1bz", b"\x1b", b"\x1bg", b"\x1bc0", b"\x1bc-1", b"\x1bcx", b"\x1b79x"):
            self.compare(each, b"\x1bh", b"ee")
        self.end_both()


if __name__ == "__main__":
    run_tests()
