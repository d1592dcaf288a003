"""A program that runs beside the test."""

import os
import pathlib
import signal
import subprocess

from processor_waits import ProcessorWaits
from waiting import PATIENCE, wait_for


class Process:
    """Runs from its making until end() or its own end; what it prints goes to files."""

    def __init__(self, command, environment, logs, pass_fds=(), stdin=subprocess.DEVNULL):
        name = pathlib.Path(command[0]).name
        number = len(list(logs.glob(f"{name}.*.out")))
        self._out = logs / f"{name}.{number}.out"
        self._err = logs / f"{name}.{number}.err"
        with self._out.open("wb") as out, self._err.open("wb") as err:
            self._process = subprocess.Popen(
                [str(each) for each in command], stdin=stdin, stdout=out, stderr=err,
                env=environment, pass_fds=pass_fds)
        self.pid = self._process.pid
        self._waits = ProcessorWaits(self.pid)

    def tell(self, text):
        """On its standard input, which has to be a pipe."""
        self._process.stdin.write(text.encode())
        self._process.stdin.flush()

    def output(self):
        return self._out.read_text(errors="replace")

    def errors(self):
        return self._err.read_text(errors="replace")

    def is_running(self):
        return self._process.poll() is None

    def has_ended(self):
        """As is_running(), but leaves what the system knows of it where it is."""
        return os.waitid(os.P_PID, self.pid, os.WEXITED | os.WNOHANG | os.WNOWAIT) is not None

    def held_up(self):
        """For how many seconds it has had to wait for a processor."""
        return self._waits.seconds()

    def wait_for(self, what, condition):
        """As wait_for(), but fails at once when the program has ended."""
        def met():
            if not self.is_running():
                raise AssertionError(f"{self._process.args[0]} has ended with "
                                     f"{self._process.returncode}: {self.errors()}")
            return condition()
        return wait_for(what, met)

    def send(self, number=signal.SIGTERM):
        self._process.send_signal(number)

    def status(self):
        """Waits for the program to end by itself; its exit status."""
        return self._process.wait(PATIENCE)

    def end(self, number=signal.SIGTERM):
        """Ends the program, if it runs, by a signal; its exit status."""
        if self.is_running():
            self.send(number)
        try:
            return self.status()
        except subprocess.TimeoutExpired:
            self._process.kill()
            self._process.wait()
            raise
