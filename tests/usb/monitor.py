"""QEMU's machine protocol: how devices are pulled out and plugged in."""

import json
import time

from channel import PATIENCE, Channel


class Monitor:
    def __init__(self, path):
        self._channel = Channel(path)
        self._channel.expect("QEMU's greeting", lambda line: "QMP" in json.loads(line))
        assert "return" in self.execute("qmp_capabilities")

    def close(self):
        self._channel.close()

    def execute(self, command, **arguments):
        """The answer, whether it is "return" or "error"."""
        self._channel.send(json.dumps({"execute": command, "arguments": arguments}))
        lines = self._channel.expect(f"the answer to {command}",
                                     lambda line: {"return", "error"} & json.loads(line).keys())
        return json.loads(lines[-1])

    def execute_soon(self, command, **arguments):
        """Asks again while QEMU is not ready for it."""
        deadline = time.monotonic() + PATIENCE
        while "error" in (answer := self.execute(command, **arguments)):
            assert time.monotonic() < deadline, f"{command}: {answer}"
            time.sleep(0.1)
