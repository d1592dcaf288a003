"""A program of the tests that is told what to do, a line at a time, and says when it has done it."""

import subprocess
import sys

from processor_waits import ProcessorWaits
from waiting import PATIENCE


class Helper:
    def __init__(self, script, *arguments, environment=None):
        self._process = subprocess.Popen(
            [sys.executable, "-B", script, *map(str, arguments)], stdin=subprocess.PIPE,
            stdout=subprocess.PIPE, text=True, env=environment)

        self._waits = ProcessorWaits(self._process.pid)

    def held_up(self):
        """For how many seconds it has had to wait for a processor."""
        return self._waits.seconds()

    def tell(self, command):
        self._process.stdin.write(f"{command}\n")
        self._process.stdin.flush()

    def hear(self):
        """The next line that it says."""
        line = self._process.stdout.readline().strip()
        assert line, f"{self._process.args} has ended"
        return line

    def do(self, command):
        self.tell(command)
        return self.hear()

    def end(self):
        """It ends with what it is told."""
        try:
            self._process.communicate(timeout=PATIENCE)
        except subprocess.TimeoutExpired:
            self._process.kill()
            self._process.communicate()
            raise
