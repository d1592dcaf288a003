"""The application without its window, running in the guest."""

import re

from guest import AS_USER

PROBE_LOG = "/tmp/probe.log"
# The whole range of speeds that one byte of the pot's can tell, up to the far end's.
SETTINGS = r"[General]\nMyCall=N0CALL\nWKSpeedPotMinimum=60\nWKSpeedPotRange=31\n"


class Probe:
    """Started when it is made, with settings of its own; `present` has the ports of the start."""

    def __init__(self, guest):
        self._guest = guest
        guest.probe.drain()
        home = guest.read(f"{AS_USER} mktemp -d")
        file = f"{home}/quorvel/quorvel.conf"
        guest.read(f"mkdir -m 777 {home}/quorvel && printf '{SETTINGS}' >{file} && "
                   f"chmod 666 {file}")
        self._pid = guest.start(
            f"XDG_CONFIG_HOME={home} XDG_RUNTIME_DIR={home} {AS_USER} /run/quorvel-port-probe "
            f"<>/dev/virtio-ports/probe >&0 2>>{PROBE_LOG}")
        lines = self.expect("watching")
        self.present = [each.removeprefix("present ") for each in lines if "present" in each]

    def choose(self, name):
        """Chooses the keyer's port. What was told until it was done."""
        self._guest.probe.send(f"choose {name}")
        return self.expect("keyer (dis)?connected")

    def type(self, text):
        self._guest.probe.send(f"type {text}")

    def tune(self):
        """Keys the transmitter down."""
        self._guest.probe.send("tune")

    def kill(self):
        self._guest.read(f"kill -KILL {self._pid}")

    def guards(self):
        """The processes of key guards, whose names the kernel cuts short."""
        return self._guest.read("pgrep -x quorvel-key-gua || :").split()

    def expect(self, pattern):
        """What the probe tells, up to and with the first line that the pattern fits."""
        return self._guest.probe.expect(f'"{pattern}" of the probe',
                                        lambda line: re.fullmatch(pattern, line))

    def quit(self):
        self._guest.probe.send("quit")
        self.expect("ended")

    def open_ports(self):
        """The serial ports that the probe has open, as paths."""
        links = self._guest.read(f"for each in /proc/{self._pid}/fd/*; do readlink $each; done; :")
        return [each for each in links.splitlines() if "/dev/ttyUSB" in each]

    def processor_time_during(self, seconds):
        """How many seconds the probe is busy during the next ones."""
        stat = f"cat /proc/{self._pid}/stat"
        lines = self._guest.read(f"getconf CLK_TCK; {stat}; sleep {seconds}; {stat}").splitlines()
        # The name of the program, in brackets, may hold anything; times are the 14th and 15th.
        before, after = (sum(map(int, each.rpartition(")")[2].split()[11:13]))
                         for each in lines[1:])
        return (after - before) / int(lines[0])
