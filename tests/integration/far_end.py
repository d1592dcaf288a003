"""The far end of the keyer's port in the test's own hands."""

import os
import select
import threading
import time
import tty

from program import PORT, SETTINGS, SPEED, ProgramTest

# Echo, version, no button, and the speed pot as the SETTINGS have it.
ANSWERS = bytes([0x55, 23, 0xC8, 0x80 + SPEED - 60])


class FarEnd:
    """A terminal that is plugged in as a port; what the application sends to it, as it is."""

    def __init__(self, link):
        self._master, slave = os.openpty()
        tty.setraw(slave)
        link.parent.mkdir(mode=0o700, parents=True, exist_ok=True)
        link.symlink_to(os.ttyname(slave))
        # A port that somebody else has open is refused.
        os.close(slave)
        self._received = b""

    def received(self):
        """All of it until now."""
        while select.select([self._master], [], [], 0)[0]:
            try:
                self._received += os.read(self._master, 4096)
            except OSError:
                break  # nobody has the port open
        return self._received

    def say(self, data):
        assert os.write(self._master, data) == len(data)

    def descriptor(self):
        return self._master

    def close(self):
        os.close(self._master)


class PacedReader(threading.Thread):
    """Takes the bytes off a far end as a line of 1200 baud does, and notes when each had come."""

    BYTE_TIME = 11 / 1200

    def __init__(self, far_end):
        super().__init__(daemon=True)
        self._master = far_end.descriptor()
        self._times = []
        self._bytes = bytearray()
        self.start()

    def run(self):
        free = 0.0
        while True:
            try:
                select.select([self._master], [], [])
                byte = os.read(self._master, 1)
            except OSError:
                return  # closed, or nobody has the port open
            begin = max(time.monotonic(), free)
            free = begin + self.BYTE_TIME
            time.sleep(max(0.0, free - time.monotonic()))
            self._times.append(free)
            self._bytes += byte

    def count(self):
        return len(self._times)

    def time_of(self, byte, since):
        """When that byte had come, of those from the `since`th on; None if it has not."""
        at = self._bytes.find(byte, since)
        return self._times[at] if at >= 0 else None


class FarEndTest(ProgramTest):
    def start_on_far_end(self, settings=SETTINGS):
        """The application, its window and the far end, whose keyer has answered."""
        far_end = FarEnd(self.runtime / "quorvel/ports" / PORT)
        self.addCleanup(far_end.close)
        self.write_settings(settings)
        quorvel = self.start_quorvel()
        window = self.active_window(quorvel)
        quorvel.wait_for("the greeting", lambda: far_end.received().endswith(b"\x07"))
        far_end.say(ANSWERS)
        self.wait_for_speed(quorvel, window)
        return quorvel, window, far_end
