"""A machine with a USB serial adapter: QEMU, with a shell in it."""

import contextlib
import pathlib
import re

from channel import PATIENCE, Channel
from monitor import Monitor
from process import Process

ADAPTER = {"driver": "usb-serial", "id": "adapter", "bus": "usb.0", "chardev": "wire",
           "serial": "WK0001", "always-plugged": "on"}
# An ordinary user of serial ports, as far as the guest's kernel can tell.
AS_USER = "setpriv --reuid=12345 --regid=12345 --groups=dialout --no-new-privs"
# Two who are in no group.
SEATED, ANOTHER = 12346, 12347
AS_NO_MEMBER = "setpriv --reuid={0} --regid={0} --clear-groups --no-new-privs"

BOOT_PATIENCE = 120  # seconds; a host with other work takes a few times as long as an idle one


class Guest:
    """Booted when it is made, and ended by end(). The adapter is plugged in.

    `image` has the kernel, the first root and the packages; `directory` gets sockets and logs."""

    def __init__(self, image, directory, environment):
        self._directory = directory
        self._qemu = Process(self._command(pathlib.Path(image)), environment, directory)
        self._channels = []
        self._started = []
        try:
            self._monitor = self._connect(Monitor, "monitor")
            self._shell = self._connect(Channel, "shell")
            self.probe = self._connect(Channel, "probe")
            self.is_plugged = True
            # Heard by the shell as soon as there is one.
            self.run(":", BOOT_PATIENCE)
        except BaseException:
            print(f"The guest said last:\n{self.log()}", flush=True)
            self.end()
            raise

    def end(self):
        for channel in self._channels:
            channel.close()
        self._qemu.end()

    def run(self, command, patience=PATIENCE):
        """Runs a command of the shell's as root; its exit status, and what it said."""
        self._shell.send(f"{{ {command}\n}} </dev/null 2>&1; echo \"=end $?\"")
        *output, end = self._shell.expect(f"the end of {command}",
                                          lambda line: re.fullmatch(r"=end \d+", line), patience)
        return int(end.split()[1]), "\n".join(output)

    def read(self, command):
        """What a command says that has to succeed."""
        status, output = self.run(command)
        assert status == 0, f"{command}: {output}"
        return output

    def start(self, command):
        """Starts one program, with its redirections, beside the shell; its process id."""
        pid = int(self.read(f"{command} & echo $!"))
        self._started.append(pid)
        return pid

    def kill_started(self):
        """Ends at once what was started and still runs."""
        if self._started:
            pids = " ".join(map(str, self._started))
            self.run(f"kill -KILL {pids}; wait {pids}")
            self._started.clear()

    def pull(self):
        """Pulls the adapter out."""
        assert "return" in self._monitor.execute("device_del", id=ADAPTER["id"])
        self.is_plugged = False

    def plug(self):
        """Plugs the adapter in. The wire to it is free a moment after it was pulled out."""
        self._monitor.execute_soon("device_add", **ADAPTER)
        self.is_plugged = True

    def seat(self, uid):
        """Has the user sit at the machine, as the manager of the sessions would write it down."""
        self.read("mkdir -p /run/systemd/seats && "
                  f"printf 'IS_SEAT0=1\\nACTIVE=1\\nACTIVE_UID={uid}\\n' >/run/systemd/seats/seat0")

    @contextlib.contextmanager
    def udev_held(self):
        """Meanwhile udev tells of nothing; it does afterwards."""
        self.read("udevadm control --stop-exec-queue")
        try:
            yield
        finally:
            self.read("udevadm control --start-exec-queue")

    def line_settings(self):
        """What the adapter was told of the line, as (name, value), in the order of the telling."""
        trace = (self._directory / "trace.txt").read_text()
        return re.findall(r"usb_serial_set_(baud|data) dev \S+ (.*)", trace)

    def log(self):
        """What the guest's kernel and QEMU said last, for whoever reads a failure."""
        console = self._console()
        said = console.read_text(errors="replace") if console.exists() else ""
        return "\n".join((said + self._qemu.errors()).splitlines()[-20:])

    def wire(self):
        """The socket that is the adapter's far end."""
        return self._directory / "wire"

    def _console(self):
        return self._directory / "console.txt"

    def _connect(self, kind, name):
        path = self._directory / name
        self._qemu.wait_for(f"QEMU's {name}", path.exists)
        channel = kind(path)
        self._channels.append(channel)
        return channel

    def _command(self, image):
        return ["qemu-system-x86_64", "-machine", "q35", "-accel", "tcg", "-smp", "1", "-m", "512",
                "-nodefaults", "-no-user-config", "-display", "none", "-no-reboot",
                "-kernel", image / "kernel", "-initrd", image / "initrd",
                "-append", "console=ttyS0 panic=-1 mitigations=off",
                "-chardev", f"file,id=console,path={self._console()}",
                "-device", "isa-serial,chardev=console",
                *self._share("host", "/"), *self._share("packages", image / "root"),
                "-device", "virtio-serial-pci,id=channels",
                *self._channel(1, "shell"), *self._channel(2, "probe"),
                "-qmp", f"unix:{self._directory / 'monitor'},server=on,wait=off",
                "-chardev", f"socket,id=wire,path={self.wire()},server=on,wait=off",
                "-device", "qemu-xhci,id=usb",
                "-device", ",".join(f"{key}={value}" for key, value in ADAPTER.items()),
                "-trace", "usb_serial_*", "-D", self._directory / "trace.txt"]

    @staticmethod
    def _share(name, path):
        return ["-fsdev", f"local,id={name},path={path},security_model=none,readonly=on,"
                          "multidevs=remap",
                "-device", f"virtio-9p-pci,fsdev={name},mount_tag={name}"]

    def _channel(self, number, name):
        path = self._directory / name
        return ["-chardev", f"socket,id={name},path={path},server=on,wait=off", "-device",
                f"virtserialport,bus=channels.0,nr={number},chardev={name},name={name}"]
