"""A desktop of the test's own whose windows are a Wayland compositor's."""

import contextlib
import signal

from desktop import REPEAT_DELAY, REPEAT_INTERVAL, Desktop
from waiting import wait_for

# Fits into the screen with the frame that the window manager gives it.
SIZE = (1200, 900)
# Without what moves, locks, or takes room.
SETTINGS = f"""[core]
idle-time=0
[keyboard]
repeat-delay={REPEAT_DELAY}
repeat-rate={1000 // int(REPEAT_INTERVAL)}
[shell]
panel-position=none
locking=false
animation=none
startup-animation=none
close-animation=none
[output]
name=X1
mode={SIZE[0]}x{SIZE[1]}
"""


class WaylandDesktop(Desktop):
    """Weston in a window of the screen: a key that is pressed there is one of its seat's. It repeats
    none, and tells its programs how fast they have to."""

    def active_process(self):
        """As programs were told: the compositor tells nobody else."""
        return next((process for process, window in self._windows()
                     if window.is_in_state("active")), None)

    def active_title(self):
        window = self._active_window()
        return window.name() if window else ""

    def point(self, element):
        """In a window that fills the screen: where another one is, only the compositor knows."""
        if self._active_window().size() != SIZE:
            self.press("super+shift+f")
            wait_for("the whole screen", lambda: self._active_window().size() == SIZE)
        x, y = element.centre()
        compositor = self.xdotool("getactivewindow")
        # It learns where the mouse is when that comes in from outside.
        assert self.xdotool("mousemove", 0, 0,
                            "mousemove", "--window", compositor, x - 2, y,
                            "mousemove", "--window", compositor, "--sync", x, y) is not None

    @contextlib.contextmanager
    def other_compositor(self):
        """One more, without a keyboard and a screen, for as long as the block runs; its process and
        its display."""
        compositor, display = self._start_compositor("headless")
        try:
            yield compositor, display
        finally:
            compositor.end(signal.SIGKILL)

    def _manage_windows(self):
        super()._manage_windows()
        self._compositors = 0
        self._settings = self._directory / "weston.ini"
        self._settings.write_text(SETTINGS)
        _, self.environment["WAYLAND_DISPLAY"] = self._start_compositor("x11")
        self.environment["QT_QPA_PLATFORM"] = "wayland"
        wait_for("the compositor's window", self._has_keyboard)

    def _windows(self):
        """What the screen reader sees of all programs, each with its process."""
        from accessible import Accessible
        return ((process, window) for process, application in Accessible.applications()
                for window in application.children())

    def _active_window(self):
        return next((each for _, each in self._windows() if each.is_in_state("active")), None)

    def _has_keyboard(self):
        name = self.xdotool("getactivewindow", "getwindowname")
        return name and name.startswith("Weston")

    def _start_compositor(self, kind):
        self._compositors += 1
        socket = self._directory / "runtime" / f"wayland-{self._compositors}"
        process = self._start(["weston", f"--backend={kind}-backend.so", "--use-pixman",
                               f"--config={self._settings}", f"--socket={socket.name}"])
        process.wait_for("the compositor", socket.exists)
        return process, str(socket)
