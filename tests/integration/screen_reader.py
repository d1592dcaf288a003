"""Orca on a test's desktop, and what it speaks: through a speech dispatcher of the test's own, whose one
voice is a file."""

import pathlib
import signal

from process import Process
from waiting import wait_for

WRITER = pathlib.Path(__file__).parent / "speech_writer.py"
DISPATCHER = f"""CommunicationMethod "unix_socket"
LogLevel 1
AddModule "writer" "{WRITER}" "writer.conf"
DefaultModule writer
DefaultLanguage "en"
"""


class ScreenReader:
    def __init__(self, desktop, directory):
        self._spoken = directory / "spoken"
        self._spoken.touch()
        self._heard = 0
        settings = directory / "speech"
        (settings / "modules").mkdir(parents=True)
        (settings / "speechd.conf").write_text(DISPATCHER)
        (settings / "modules/writer.conf").touch()
        socket = directory / "speech.socket"
        environment = dict(desktop.environment, SPOKEN_FILE=str(self._spoken),
                           SPEECHD_ADDRESS=f"unix_socket:{socket}",
                           XDG_DATA_HOME=str(directory / "data"))
        self._dispatcher = Process(
            ["speech-dispatcher", "--run-single", "--config-dir", settings, "--socket-path", socket,
             "--communication-method", "unix_socket", "--pid-file", directory / "speech.pid",
             "--log-dir", directory, "--timeout", "0"], environment, directory)
        try:
            self._dispatcher.wait_for("the speech dispatcher", socket.exists)
            self._orca = Process(["orca", "--replace", "--user-prefs", directory / "orca"],
                                 environment, directory)
        except BaseException:
            self._dispatcher.end()
            raise

    def end(self):
        self._orca.end(signal.SIGKILL)  # it takes its time to say farewell
        self._dispatcher.end()

    def lines(self):
        """All that it has spoken, in order."""
        return self._spoken.read_text(encoding="utf-8").splitlines()

    def hears(self, *wanted):
        """Waits until all of it has been spoken since what was heard last, in this order, each at the
        beginning of a line; what was spoken in all of that."""
        def found():
            lines = self.lines()
            at = self._heard
            for each in wanted:
                at = next((i + 1 for i in range(at, len(lines)) if lines[i].startswith(each)), None)
                if at is None:
                    return None
            return lines[self._heard:at]
        try:
            spoken = wait_for(f"{wanted} to be spoken", found)
        except AssertionError as failure:
            raise AssertionError(f"{failure}; it spoke {self.lines()[self._heard:]}") from None
        self._heard += len(spoken)
        return spoken
