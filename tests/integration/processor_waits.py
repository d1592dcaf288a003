"""What a busy machine costs a program, by the kernel's account."""

import contextlib
import pathlib


class ProcessorWaits:
    """For how many seconds the threads of a process, together, have been ready to run and had to wait
    for a processor; of threads that have ended, what was known of them when this was last asked."""

    def __init__(self, pid):
        self._tasks = pathlib.Path(f"/proc/{pid}/task")
        self._nanoseconds = {}

    def seconds(self):
        for each in self._tasks.glob("*/schedstat"):
            with contextlib.suppress(OSError):
                self._nanoseconds[each.parent.name] = int(each.read_text().split()[1])
        return sum(self._nanoseconds.values()) / 1e9
