"""What a busy machine costs a program, by the kernel's account."""

import contextlib
import pathlib


class ProcessorWaits:
    """For how many seconds the threads of a process, together, have been ready to run and had to wait
    for a processor; of threads that have ended, what was known of them when this was last asked."""

    def __init__(self, pid, with_children=False):
        self._pid = pid
        self._with_children = with_children
        self._nanoseconds = {}

    def seconds(self):
        waiting = [self._pid]
        while waiting:
            for each in pathlib.Path(f"/proc/{waiting.pop()}/task").glob("*"):
                with contextlib.suppress(OSError):
                    self._nanoseconds[each.name] = int((each / "schedstat").read_text().split()[1])
                    if self._with_children:
                        waiting.extend((each / "children").read_text().split())
        return sum(self._nanoseconds.values()) / 1e9
