"""Tlf, a contest logger that runs in a terminal, sends through Quorvel, worked as by its operator.

Usage: tlf_test.py QUORVEL VIRTUAL_KEYER [TEST...]
"""

from logger_station import LoggerStationTest
from program import run_tests
from tlf import ENTER, ESCAPE, F1, PAGE_DOWN, PAGE_UP, Tlf, wait_until_it_hears

CQ = "CQTESTN0CALL"


class TlfTest(LoggerStationTest):
    def start(self):
        keyer, quorvel, window = self.start_listening()
        tlf = Tlf(self.home, self.port)
        self.addCleanup(tlf.end)
        self.wait_for_set_speed(quorvel, window, 40)  # what it asks for at its start
        wait_until_it_hears(tlf, lambda: window.find("Speed").description())
        return keyer, quorvel, window, tlf

    def test_a_call_and_a_contact_are_keyed(self):
        keyer, quorvel, window, tlf = self.start()
        tlf.press(F1)
        keyer.has_keyed(CQ)
        self.wait_for_status(quorvel, window, "last from tlf")
        tlf.press("K1ABC")
        tlf.press(ENTER)
        keyer.has_keyed(CQ + "K1ABC5NN001")
        tlf.press("14")
        tlf.press(ENTER)
        keyer.has_keyed(CQ + "K1ABC5NN001" + "TUN0CALL")
        self.terminate(keyer, quorvel)

    def test_escape_stops_in_mid_text(self):
        keyer, quorvel, _, tlf = self.start()
        tlf.press(F1)
        keyer.wait_for("its begin", lambda: keyer.keyed().startswith("CQ"))
        tlf.press(ESCAPE)
        quorvel.wait_for("the keyer to be idle", lambda: keyer.answers()[-1] == "C0")
        stopped = keyer.keyed()
        self.assertLess(len(stopped), len(CQ))
        tlf.press(F1)
        keyer.wait_for("the next", lambda: keyer.keyed().endswith("N0CALL"))
        # The letter that was under way may be one of which nothing is known.
        self.assertTrue(keyer.keyed().endswith(CQ), keyer.keyed())
        self.assertLess(len(keyer.keyed()), 2 * len(CQ))
        self.terminate(keyer, quorvel)

    def test_faster_and_slower(self):
        keyer, quorvel, window, tlf = self.start()
        tlf.press(PAGE_UP)
        self.wait_for_set_speed(quorvel, window, 42)
        tlf.press(PAGE_DOWN)
        self.wait_for_set_speed(quorvel, window, 40)
        tlf.press(F1)
        keyer.has_keyed(CQ)
        self.terminate(keyer, quorvel)

    def test_the_operator_sends_between(self):
        keyer, quorvel, _, tlf = self.start()
        tlf.press(F1)
        keyer.wait_for("its begin", lambda: keyer.keyed().startswith("C"))
        self.desktop.type("op")
        tlf.press(F1)
        keyer.has_keyed(CQ + "OP" + CQ)
        self.terminate(keyer, quorvel)

    def test_escape_of_the_operator_stops_it(self):
        keyer, quorvel, _, tlf = self.start()
        tlf.press(F1)
        tlf.press(F1)
        keyer.wait_for("its begin", lambda: keyer.keyed().startswith("CQ"))
        self.desktop.press("Escape")
        quorvel.wait_for("the keyer to be idle", lambda: keyer.answers()[-1] == "C0")
        self.assertLess(len(keyer.keyed()), len(CQ))
        self.desktop.type("e")
        quorvel.wait_for("what is typed", lambda: keyer.keyed().endswith("E"))
        self.assertNotIn("N0CALL", keyer.keyed())
        self.terminate(keyer, quorvel)


if __name__ == "__main__":
    run_tests()
