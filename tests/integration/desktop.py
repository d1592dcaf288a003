"""A desktop of the test's own: a screen in memory, a window manager, a bus, and what a screen
reader sees of it."""

import contextlib
import os
import subprocess

from process import Process
from waiting import wait_for

# Milliseconds until a held key repeats, and from one repeat to the next.
REPEAT_DELAY = "250"
REPEAT_INTERVAL = "30"


class Desktop:
    def __init__(self, directory, repeat_delay=REPEAT_DELAY):
        self._directory = directory
        self._repeat_delay = repeat_delay
        self._processes = []
        self._logs = directory / "logs"
        self._logs.mkdir()
        runtime = directory / "runtime"
        runtime.mkdir(mode=0o700)
        self.environment = {
            name: value for name, value in os.environ.items()
            if not name.startswith(("QT_", "XDG_", "DBUS_", "AT_SPI_", "WAYLAND_", "SESSION_"))
            or name == "XDG_DATA_DIRS"}
        self.environment.update(
            HOME=str(directory), XDG_RUNTIME_DIR=str(runtime), GIO_USE_VFS="local",
            LC_ALL="C.UTF-8", GSETTINGS_BACKEND="memory", QT_QPA_PLATFORM="xcb",
            # No sound of the machine's: a server that is named and not there is not started either.
            PULSE_SERVER=f"unix:{runtime}/no-sound",
            QT_LINUX_ACCESSIBILITY_ALWAYS_ON="1", QT_FORCE_STDERR_LOGGING="1")
        try:
            _, self.environment["DISPLAY"] = self.start_screen()
            self._start_bus()
            self._manage_windows()
            self._begin_reading()
        except BaseException:
            self.close()
            raise

    def close(self):
        for process in reversed(self._processes):
            process.end()

    def xdotool(self, *arguments):
        """What it prints; None when it fails."""
        done = subprocess.run(["xdotool", *map(str, arguments)], env=self.environment, text=True,
                              stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, check=False)
        return done.stdout.strip() if done.returncode == 0 else None

    def active_process(self):
        """The process that has the keyboard; None when no window has it."""
        pid = self.xdotool("getactivewindow", "getwindowpid")
        return int(pid) if pid else None

    def active_title(self):
        """What stands over the window that has the keyboard."""
        return self.xdotool("getactivewindow", "getwindowname") or ""

    def press(self, keys):
        assert self.xdotool("key", keys) is not None

    @contextlib.contextmanager
    def hold(self, keys):
        """Presses keys, the last of which repeats for as long as the block runs."""
        assert self.xdotool("keydown", keys) is not None
        try:
            yield
        finally:
            self.xdotool("keyup", keys)

    def type(self, text, delay=20):
        """`delay` in milliseconds, between two characters."""
        assert self.xdotool("type", "--delay", delay, "--", text) is not None

    def click(self, element):
        self.point(element)
        assert self.xdotool("click", 1) is not None

    def point(self, element):
        """Rests the mouse on it."""
        x, y = element.centre()
        assert self.xdotool("mousemove", x - 2, y, "mousemove", "--sync", x, y) is not None

    def application(self, pid):
        """What the screen reader sees of a process; None while it sees nothing."""
        from accessible import Accessible
        return Accessible.application(pid)

    def reading_bus(self):
        """The address of the bus on which the screen reader reads."""
        from accessible import Accessible
        return Accessible.bus()

    def start_screen(self):
        """One more screen, without a window manager; its process and the name of its display."""
        process, number = self._start_and_ask(
            ["Xvfb", "-displayfd", "{descriptor}", "-screen", "0", "1280x960x24", "-nolisten",
             "tcp", "-noreset", "-ardelay", self._repeat_delay, "-arinterval", REPEAT_INTERVAL])
        return process, f":{number}"

    @contextlib.contextmanager
    def other_screen(self):
        """Has the desktop on one more screen for as long as the block runs; the screen's process."""
        usual = self.environment["DISPLAY"]
        screen, self.environment["DISPLAY"] = self.start_screen()
        try:
            self._manage_windows()
            yield screen
        finally:
            screen.end()
            self.environment["DISPLAY"] = usual

    def _manage_windows(self):
        self._start(["openbox"])
        wait_for("the window manager", lambda: self.xdotool("get_desktop") is not None)

    def _start(self, command, pass_fds=()):
        process = Process(command, self.environment, self._logs, pass_fds)
        self._processes.append(process)
        return process

    def _start_and_ask(self, command):
        """Starts a program that says on a descriptor of its own when it is ready; its process and
        what it says."""
        read_end, write_end = os.pipe()
        command = [each.format(descriptor=write_end) for each in command]
        process = self._start(command, (write_end,))
        os.close(write_end)
        with open(read_end, encoding="ascii") as pipe:
            answer = pipe.readline().strip()
        assert answer, f"{command[0]} does not start"
        return process, answer

    def start_bus(self):
        """One more bus; its process and its address."""
        return self._start_and_ask(["dbus-daemon", "--session", "--nofork", "--nopidfile",
                                    f"--address=unix:dir={self._directory}",
                                    "--print-address={descriptor}"])

    def _start_bus(self):
        _, self.environment["DBUS_SESSION_BUS_ADDRESS"] = self.start_bus()

    def _begin_reading(self):
        # The library reads the environment once, when it is loaded.
        os.environ.clear()
        os.environ.update(self.environment)
        from accessible import Accessible
        Accessible.begin()
