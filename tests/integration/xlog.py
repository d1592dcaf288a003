"""Xlog, a logger with windows, worked as by its operator."""

import contextlib

from process import Process
from waiting import wait_for

# It sends to no other.
PORT = 6789
KEYER_WINDOW = "xlog - keyer"


class Xlog(Process):
    def __init__(self, desktop, environment, home):
        self._desktop = desktop
        super().__init__(["xlog"], dict(environment, GTK_MODULES="gail:atk-bridge", HOME=str(home)),
                         home)

    def open_keyer(self):
        """Its window for sending, which has the keyboard then."""
        self._wait_for_window("xlog - setup")
        self._desktop.press("Return")
        self.wait_for("its own window", lambda: self._desktop.active_process() == self.pid
                      and self._desktop.active_title() != "xlog - setup")
        self.wait_for(f"the window {KEYER_WINDOW}", self._opens_keyer)

    def _opens_keyer(self):
        """It throws keys away that come before it is ready."""
        self._desktop.press("ctrl+r")
        with contextlib.suppress(AssertionError):
            return wait_for("it", lambda: self._desktop.active_title() == KEYER_WINDOW, patience=3)

    def _wait_for_window(self, title):
        self.wait_for(f"the window {title}", lambda: self._desktop.active_title() == title)

    def press_button(self, name):
        """In the window of its keyer, as a screen reader does."""
        windows = self._desktop.application(self.pid).children()
        next(each for each in windows if each.name() == KEYER_WINDOW).find(name).press()
