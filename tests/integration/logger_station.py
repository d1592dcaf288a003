"""A station whose Quorvel accepts text from loggers."""

import pathlib
import socket
import subprocess

from program import QUORVEL, SETTINGS, ProgramTest
from waiting import PATIENCE

QUORVEL_SEND = pathlib.Path(QUORVEL).with_name("quorvel-send")


def free_port():
    with socket.socket(socket.AF_INET, socket.SOCK_DGRAM) as each:
        each.bind(("127.0.0.1", 0))
        return each.getsockname()[1]


class LoggerStationTest(ProgramTest):
    """Takes from `port`, and starts programs that send to it."""

    def start_listening(self, port=None):
        """Keyer, application and its window, which hears loggers."""
        self.port = port or free_port()
        keyer, quorvel, window = self.start_connected(
            f"{SETTINGS}AcceptLoggers=true\nLoggerPort={self.port}\n")
        self.wait_for_status(quorvel, window, f"Loggers: port {self.port}")
        return keyer, quorvel, window

    def wait_for_status(self, quorvel, window, text):
        quorvel.wait_for(f"the status {text}",
                         lambda: text in window.find("Keyer status").description())

    def wait_for_set_speed(self, quorvel, window, wpm):
        quorvel.wait_for(f"{wpm} WPM", lambda: window.find("Speed").description() ==
                         f"{wpm} WPM, set here")

    def sender(self, *arguments, text=None):
        """A quorvel-send that has been started, with `text` for its standard input."""
        process = subprocess.Popen(
            [QUORVEL_SEND, "--port", str(self.port), *arguments], text=True,
            stdin=subprocess.DEVNULL if text is None else subprocess.PIPE, stderr=subprocess.PIPE)
        self.addCleanup(process.stderr.close)
        self.addCleanup(process.wait)
        self.addCleanup(process.kill)
        if text is not None:
            process.stdin.write(text)
            process.stdin.close()
        return process

    def send(self, *arguments, text=None):
        """The exit status of a quorvel-send."""
        return self.sender(*arguments, text=text).wait(PATIENCE)
