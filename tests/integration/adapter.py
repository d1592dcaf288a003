"""An adapter that can be pulled out and plugged in again, between the application and a keyer that
goes on all the while; a process of its own, which notes every byte that passes.

Usage: adapter.py KEYER_PORT LINK LOG
It is told "plug" and "pull", a line each, and answers each with a line.
"""

import os
import pathlib
import select
import sys
import time
import tty

# As long as a device node stays when its adapter has been pulled out.
NODE_STAYS = 0.03


class Adapter:
    def __init__(self, keyer, link, log):
        self._keyer = os.open(keyer, os.O_RDWR | os.O_NOCTTY | os.O_NONBLOCK)
        tty.setraw(self._keyer)
        self._link = pathlib.Path(link)
        self._log = open(log, "w", encoding="ascii", buffering=1)
        self._master = self._slave = None

    def run(self):
        while True:
            watched = [sys.stdin.fileno(), self._keyer]
            if self._master is not None:
                watched.append(self._master)
            for ready in select.select(watched, [], [])[0]:
                if ready == sys.stdin.fileno():
                    command = sys.stdin.readline().strip()
                    if not command:
                        return
                    getattr(self, command)()
                    print("done", flush=True)
                elif ready == self._keyer:
                    self._pass_on(self._keyer, self._master, "host")
                elif ready == self._master:
                    self._pass_on(self._master, self._keyer, "keyer")

    def plug(self):
        self._master, self._slave = os.openpty()
        os.set_blocking(self._master, False)
        # It stays open, so that there is no last close, which would be an end of the line.
        tty.setraw(self._slave)
        self._link.parent.mkdir(parents=True, exist_ok=True, mode=0o700)
        self._link.symlink_to(os.ttyname(self._slave))

    def pull(self):
        for descriptor in (self._slave, self._master):
            os.close(descriptor)
        self._master = self._slave = None
        time.sleep(NODE_STAYS)
        self._link.unlink()

    def _pass_on(self, source, target, name):
        try:
            data = os.read(source, 4096)
        except BlockingIOError:
            return
        now = time.monotonic()
        for byte in data:
            self._log.write(f"{now:.6f} {name} {byte:02x}\n")
        if target is not None:
            os.write(target, data)


if __name__ == "__main__":
    Adapter(*sys.argv[1:4]).run()
