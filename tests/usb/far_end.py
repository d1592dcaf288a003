"""What the adapter's serial line leads to: the virtual keyer."""

from process import Process

SPEED = 90


class FarEnd:
    """Runs until end(). The keyer keeps the pace of a real line; the emulated adapter has none."""

    def __init__(self, virtual_keyer, wire, directory, environment):
        self._transcript = directory / "transcript.txt"
        self._keyer = Process([virtual_keyer, "--headless", "--speed", str(SPEED), "--transcript",
                               self._transcript], environment, directory)
        self._wire = None
        try:
            self._keyer.wait_for("the keyer", lambda: "Plugged in as" in self._keyer.errors())
            port = directory / "quorvel/ports/usbserial-virtual"
            self._wire = Process(["socat", f"UNIX-CONNECT:{wire}", f"OPEN:{port},raw,echo=0"],
                                 environment, directory)
        except BaseException:
            self.end()
            raise

    def end(self):
        for each in (self._wire, self._keyer):
            if each:
                each.end()

    def keyed(self):
        """What was read from the key line. A busy machine may make a word space of a letter
        space, so that neither counts."""
        return self._keyer.output().replace(" ", "").replace("\n", "")

    def echoes(self):
        """The text that was echoed to the host, from the transcript."""
        lines = self._transcript.read_text().splitlines()
        codes = (int(line.split()[2], 16) for line in lines if line.split()[1] == "host")
        return "".join(chr(each) for each in codes if 0x20 < each < 0x7F)

    def wait_for_key(self, is_down):
        """Until the key line is down, or up, for all that the transcript says."""
        def is_so():
            changes = [line.split()[2] for line in self._transcript.read_text().splitlines()
                       if line.split()[1] == "key"]
            return changes[-1:] == (["down"] if is_down else ["up"])
        self._wire.wait_for(f"the key to {'fall' if is_down else 'rise'}", is_so)

    def wait_until_keyed(self, text):
        """Until the text is the last that was keyed and echoed."""
        self._wire.wait_for(f"{text} on the key line", lambda: self.keyed().endswith(text))
        self._wire.wait_for(f"{text} in the echoes", lambda: self.echoes().endswith(text))

    def wait_for_keying(self):
        """Until a few more letters are keyed."""
        count = len(self.keyed()) + 5
        self._wire.wait_for("letters on the key line", lambda: len(self.keyed()) > count)
