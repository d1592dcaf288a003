"""Tlf, a contest logger that runs in a terminal, worked as by its operator."""

import contextlib
import fcntl
import os
import pty
import select
import signal
import struct
import termios
import threading

from waiting import wait_for

RULES = """CONTEST_MODE
F1=CQ TEST %
F2=@ DE %
F3=@ 5NN #
CQ_TU_MSG=TU %
"""

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


def wait_until_it_hears(tlf, shown_speed):
    """It throws keys away that come before it is ready. At 40 WPM before and after."""
    def presses_and_sees(key, before):
        tlf.press(key)
        with contextlib.suppress(AssertionError):
            return wait_for("another speed", lambda: shown_speed() != before, patience=1)
    wait_for("a key to count", lambda: presses_and_sees(PAGE_UP, "40 WPM, set here"))
    while shown_speed() != "40 WPM, set here":
        presses_and_sees(PAGE_DOWN, shown_speed())
