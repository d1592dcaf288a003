"""Xlog, a logger with windows, sends through Quorvel, worked as by its operator.

Usage: xlog_test.py QUORVEL VIRTUAL_KEYER [TEST...]
"""

from logger_station import LoggerStationTest
from program import run_tests
from xlog import PORT, Xlog

CQ = "CQDEN0CALLN0CALLTEST"


class XlogTest(LoggerStationTest):
    def start(self):
        """Keyer, Quorvel and Xlog's window of the keyer, which has the keyboard."""
        keyer, quorvel, window = self.start_listening(PORT)
        xlog = Xlog(self.desktop, self.environment, self.home)
        self.addCleanup(xlog.end)
        xlog.open_keyer()
        self.wait_for_set_speed(quorvel, window, 24)  # at which it begins
        return keyer, quorvel, window, xlog

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
        xlog.press_button("F4")
        keyer.has_keyed("TU73")
        self.terminate(keyer, quorvel)

    def test_escape_and_its_button_stop_it(self):
        keyer, quorvel, _, xlog = self.start()
        for stop in (lambda: self.desktop.press("Escape"),
                     lambda: xlog.press_button("Stop")):
            before = len(keyer.keyed())
            self.desktop.press("F1")
            keyer.wait_for("its begin", lambda: len(keyer.keyed()) > before + 1)
            stop()
            quorvel.wait_for("the keyer to be idle", lambda: keyer.answers()[-1] == "C0")
            self.assertLess(len(keyer.keyed()) - before, len(CQ))
        self.terminate(keyer, quorvel)


if __name__ == "__main__":
    run_tests()
