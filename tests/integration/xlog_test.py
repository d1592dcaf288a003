"""Xlog, a logger with windows, sends through Quorvel, worked as by its operator.

Usage: xlog_test.py QUORVEL VIRTUAL_KEYER [TEST...]
"""

from logger_station import LoggerStationTest
from process import Process
from program import run_tests

# It sends to no other.
PORT = 6789
CQ = "CQDEN0CALLN0CALLTEST"
KEYER_WINDOW = "xlog - keyer"


class XlogTest(LoggerStationTest):
    def start(self):
        """Keyer, Quorvel and Xlog's window of the keyer, which has the keyboard."""
        keyer, quorvel, window = self.start_listening(PORT)
        xlog = Process(["xlog"], dict(self.environment, GTK_MODULES="gail:atk-bridge",
                                      HOME=str(self.home)), self.home)
        self.addCleanup(xlog.end)
        self.wait_for_window(xlog, "xlog - setup")
        self.desktop.press("Return")
        xlog.wait_for("its own window", lambda: self.desktop.active_process() == xlog.pid
                      and self.active_title() != "xlog - setup")
        self.desktop.press("ctrl+r")
        self.wait_for_window(xlog, KEYER_WINDOW)
        self.wait_for_set_speed(quorvel, window, 24)  # at which it begins
        return keyer, quorvel, window, xlog

    def active_title(self):
        return self.desktop.xdotool("getactivewindow", "getwindowname")

    def wait_for_window(self, xlog, title):
        xlog.wait_for(f"the window {title}", lambda: self.active_title() == title)

    def press_button(self, xlog, name):
        """In the window of its keyer, as a screen reader does."""
        windows = self.desktop.application(xlog.pid).children()
        next(each for each in windows if each.name() == KEYER_WINDOW).find(name).press()

    def test_function_keys_are_keyed(self):
        keyer, quorvel, window, _ = self.start()
        self.desktop.press("F1")
        keyer.has_keyed(CQ)
        self.wait_for_status(quorvel, window, "last from xlog")
        self.desktop.press("F3")  # with signs for the speed in it
        keyer.wait_for("the exchange", lambda: keyer.keyed() == f"{CQ}?5NN001")
        self.wait_for_set_speed(quorvel, window, 24)
        self.terminate(keyer, quorvel)

    def test_buttons_are_keyed(self):
        keyer, quorvel, _, xlog = self.start()
        self.press_button(xlog, "F4")
        keyer.has_keyed("TU73")
        self.terminate(keyer, quorvel)

    def test_escape_and_its_button_stop_it(self):
        keyer, quorvel, _, xlog = self.start()
        for stop in (lambda: self.desktop.press("Escape"),
                     lambda: self.press_button(xlog, "Stop")):
            before = len(keyer.keyed())
            self.desktop.press("F1")
            keyer.wait_for("its begin", lambda: len(keyer.keyed()) > before + 1)
            stop()
            quorvel.wait_for("the keyer to be idle", lambda: keyer.answers()[-1] == "C0")
            self.assertLess(len(keyer.keyed()) - before, len(CQ))
        self.terminate(keyer, quorvel)


if __name__ == "__main__":
    run_tests()
