"""A serial port, as some other program than the application opens it."""

import os
import select
import tty

from waiting import PATIENCE


class Port:
    def __init__(self, path):
        self._descriptor = os.open(path, os.O_RDWR | os.O_NOCTTY)
        tty.setraw(self._descriptor)

    def __enter__(self):
        return self

    def __exit__(self, *_):
        os.close(self._descriptor)

    def write(self, data):
        assert os.write(self._descriptor, data) == len(data)

    def read(self, count):
        """Fails when nothing comes for a while."""
        data = b""
        while len(data) < count:
            assert select.select([self._descriptor], [], [], PATIENCE)[0], "nothing is received"
            data += os.read(self._descriptor, count - len(data))
        return data
