"""Lines to and from a program in the guest, over a socket of QEMU's."""

import select
import socket
import time

PATIENCE = 30  # seconds; only a failure takes that long


class Channel:
    def __init__(self, path):
        self._socket = socket.socket(socket.AF_UNIX, socket.SOCK_STREAM)
        self._socket.connect(str(path))
        self._received = b""

    def close(self):
        self._socket.close()

    def send(self, line):
        self._socket.settimeout(PATIENCE)
        self._socket.sendall(line.encode() + b"\n")

    def _line(self, patience):
        """The next line; None when the time is over."""
        deadline = time.monotonic() + patience
        while b"\n" not in self._received:
            left = deadline - time.monotonic()
            if left < 0 or not select.select([self._socket], [], [], left)[0]:
                return None
            data = self._socket.recv(65536)
            assert data, "the guest has ended"
            self._received += data
        line, _, self._received = self._received.partition(b"\n")
        return line.decode(errors="replace").rstrip("\r")

    def expect(self, what, is_wanted, patience=PATIENCE):
        """The lines up to and with the first that is wanted; fails when none comes."""
        lines = []
        deadline = time.monotonic() + patience
        while True:
            line = self._line(max(0, deadline - time.monotonic()))
            assert line is not None, f"waited in vain for {what}; heard {lines}"
            lines.append(line)
            if is_wanted(line):
                return lines

    def drain(self):
        """What has come by now."""
        lines = []
        while (line := self._line(0)) is not None:
            lines.append(line)
        return lines
