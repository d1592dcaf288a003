"""Tlf, a contest logger that runs in a terminal, sends through Quorvel, worked as by its operator.

Usage: tlf_test.py QUORVEL VIRTUAL_KEYER [TEST...]
"""

import contextlib
import fcntl
import os
import pty
import select
import signal
import struct
import termios
import threading

from logger_station import LoggerStationTest
from program import run_tests
from waiting import wait_for

RULES = """CONTEST_MODE
F1=CQ TEST %
F2=@ DE %
F3=@ 5NN #
CQ_TU_MSG=TU %
"""

CQ = "CQTESTN0CALL"
# As the Linux console sends them.
F1, PAGE_UP, PAGE_DOWN, ESCAPE, ENTER = "\x1b[[A", "\x1b[5~", "\x1b[6~", "\x1b", "\r"
SIZE = struct.pack("HHHH", 25, 80, 0, 0)


class Tlf:
    """Runs in a terminal of its own."""

    def __init__(self, directory, port):
        work = directory / "tlf"
        (work / "rules").mkdir(parents=True)
        (work / "rules/quorvel").write_text(RULES)
        (work / "logcfg.dat").write_text(
            f"CALL=N0CALL\nCONTEST=quorvel\nLOGFILE=test.log\nEDITOR=vi\nNETKEYER\n"
            f"NETKEYERHOST=127.0.0.1\nNETKEYERPORT={port}\nCWSPEED=40\n")
        self._pid, self._terminal = pty.fork()
        if self._pid == 0:
            os.chdir(work)
            os.execvpe("tlf", ["tlf", "-n", "-v"],
                       dict(os.environ, TERM="linux", HOME=str(work), LANG="C.UTF-8"))
        fcntl.ioctl(self._terminal, termios.TIOCSWINSZ, SIZE)
        self._is_read = True
        self._reader = threading.Thread(target=self._read)
        self._reader.start()

    def _read(self):
        """What it draws has to go somewhere."""
        while self._is_read:
            if select.select([self._terminal], [], [], 0.1)[0]:
                try:
                    os.read(self._terminal, 65536)
                except OSError:
                    return

    def press(self, keys):
        os.write(self._terminal, keys.encode())

    def end(self):
        os.kill(self._pid, signal.SIGKILL)
        os.waitpid(self._pid, 0)
        self._is_read = False
        self._reader.join()
        os.close(self._terminal)


class TlfTest(LoggerStationTest):
    def start(self):
        keyer, quorvel, window = self.start_listening()
        tlf = Tlf(self.home, self.port)
        self.addCleanup(tlf.end)
        self.wait_for_set_speed(quorvel, window, 40)  # what it asks for at its start
        self.wait_until_it_hears(quorvel, window, tlf)
        return keyer, quorvel, window, tlf

    def wait_until_it_hears(self, quorvel, window, tlf):
        """It throws keys away that come before it is ready."""
        def speed():
            return window.find("Speed").description()

        def presses_and_sees(key, before):
            tlf.press(key)
            with contextlib.suppress(AssertionError):
                return wait_for("another speed", lambda: speed() != before, patience=1)
        quorvel.wait_for("a key to count", lambda: presses_and_sees(PAGE_UP, "40 WPM, set here"))
        while speed() != "40 WPM, set here":
            presses_and_sees(PAGE_DOWN, speed())

    def test_a_call_and_a_contact_are_keyed(self):
        keyer, quorvel, window, tlf = self.start()
        tlf.press(F1)
        keyer.has_keyed(CQ)
        self.wait_for_status(quorvel, window, "last from tlf")
        tlf.press("K1ABC")
        tlf.press(ENTER)
        keyer.has_keyed(CQ + "K1ABC5NN001")
        tlf.press("14")
        tlf.press(ENTER)
        keyer.has_keyed(CQ + "K1ABC5NN001" + "TUN0CALL")
        self.terminate(keyer, quorvel)

    def test_escape_stops_in_mid_text(self):
        keyer, quorvel, _, tlf = self.start()
        tlf.press(F1)
        keyer.wait_for("its begin", lambda: keyer.keyed().startswith("CQ"))
        tlf.press(ESCAPE)
        quorvel.wait_for("the keyer to be idle", lambda: keyer.answers()[-1] == "C0")
        stopped = keyer.keyed()
        self.assertLess(len(stopped), len(CQ))
        tlf.press(F1)
        keyer.wait_for("the next", lambda: keyer.keyed().endswith("N0CALL"))
        # The letter that was under way may be one of which nothing is known.
        self.assertTrue(keyer.keyed().endswith(CQ), keyer.keyed())
        self.assertLess(len(keyer.keyed()), 2 * len(CQ))
        self.terminate(keyer, quorvel)

    def test_faster_and_slower(self):
        keyer, quorvel, window, tlf = self.start()
        tlf.press(PAGE_UP)
        self.wait_for_set_speed(quorvel, window, 42)
        tlf.press(PAGE_DOWN)
        self.wait_for_set_speed(quorvel, window, 40)
        tlf.press(F1)
        keyer.has_keyed(CQ)
        self.terminate(keyer, quorvel)

    def test_the_operator_sends_between(self):
        keyer, quorvel, _, tlf = self.start()
        tlf.press(F1)
        keyer.wait_for("its begin", lambda: keyer.keyed().startswith("C"))
        self.desktop.type("op")
        tlf.press(F1)
        keyer.has_keyed(CQ + "OP" + CQ)
        self.terminate(keyer, quorvel)

    def test_escape_of_the_operator_stops_it(self):
        keyer, quorvel, _, tlf = self.start()
        tlf.press(F1)
        tlf.press(F1)
        keyer.wait_for("its begin", lambda: keyer.keyed().startswith("CQ"))
        self.desktop.press("Escape")
        quorvel.wait_for("the keyer to be idle", lambda: keyer.answers()[-1] == "C0")
        self.assertLess(len(keyer.keyed()), len(CQ))
        self.desktop.type("e")
        quorvel.wait_for("what is typed", lambda: keyer.keyed().endswith("E"))
        self.assertNotIn("N0CALL", keyer.keyed())
        self.terminate(keyer, quorvel)


if __name__ == "__main__":
    run_tests()
