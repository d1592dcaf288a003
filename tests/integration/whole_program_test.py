"""Both programs as an operator has them: a window that takes keys and clicks, and a keyer.

Usage: whole_program_test.py QUORVEL VIRTUAL_KEYER [TEST...]
"""

import os
import tty

from program import (LONG_TEXT, NO_PORT, PLUGGED_IN, PORT, SETTINGS, SPEED, UNPLUGGED, Keyer,
                     ProgramTest, run_tests)
from waiting import wait_for


class WholeProgramTest(ProgramTest):
    def test_the_operator_sends(self):
        keyer, quorvel, window = self.start_connected()
        keyboard = window.find("Keyboard")
        self.desktop.type("cq de n0call")
        keyer.has_keyed("CQDEN0CALL")

        self.desktop.press("F1")
        keyer.has_keyed("CQDEN0CALL" + "CQTESTN0CALLN0CALL")
        self.desktop.click(window.find("Message 2: Exchange"))
        keyer.has_keyed("CQDEN0CALL" + "CQTESTN0CALLN0CALL" + "5NNNH")
        self.assertEqual(keyboard.text(), "CQ DE N0CALL CQ TEST N0CALL N0CALL 5NN NH")
        self.close_window(keyer, quorvel)

    def test_escape_stops(self):
        keyer, quorvel, window = self.start_connected()
        self.desktop.press("F8")
        keyer.wait_for("some of the text", lambda: len(keyer.keyed()) > 5)
        self.desktop.press("Escape")
        wait_for("the text to go", lambda: window.find("Keyboard").text() == "")
        self.desktop.type("k")
        keyer.wait_for("the new text", lambda: keyer.keyed().endswith("K"))
        before = keyer.keyed().removesuffix("K")
        self.assertTrue(LONG_TEXT.startswith(before), before)
        self.assertLess(len(before), len(LONG_TEXT))
        self.terminate(keyer, quorvel)

    def test_a_stop_overtakes_what_waits_for_the_line(self):
        # They sound of nothing and have no echo, and take the line three minutes.
        keyer, quorvel, window = self.start_connected(
            SETTINGS.replace(LONG_TEXT, "|" * 20000))
        self.desktop.press("F8")
        quorvel.wait_for("the text", lambda: len(window.find("Keyboard").text()) == 20000)
        self.desktop.press("Escape")
        self.desktop.type("k")
        keyer.has_keyed("K")
        self.terminate(keyer, quorvel)

    def test_a_signal_ends_it_in_mid_text(self):
        keyer, quorvel, _ = self.start_connected()
        self.desktop.press("F8")
        keyer.wait_for("some of the text", lambda: len(keyer.keyed()) > 5)
        self.terminate(keyer, quorvel)
        self.assertLess(len(keyer.keyed()), len(LONG_TEXT))

    def test_without_a_port(self):
        self.write_settings(SETTINGS.replace(PORT, "None"))
        quorvel = self.start_quorvel()
        self.answer_alert(quorvel, NO_PORT)
        window = self.active_window(quorvel)
        self.desktop.type("cq")
        quorvel.wait_for("the text", lambda: window.find("Keyboard").text() == "CQ")
        self.assertEqual(self.alerts(quorvel), [])
        self.assertEqual(quorvel.end(), 0)

    def test_the_cable_is_pulled_and_plugged_in_again(self):
        keyer, quorvel, window = self.start_connected()
        self.desktop.press("F8")
        keyer.wait_for("some of the text", lambda: len(keyer.keyed()) > 5)
        self.assertEqual(keyer.end(), 0)
        self.answer_alert(quorvel, UNPLUGGED)

        keyer = Keyer(self.environment, self.home)
        self.answer_alert(quorvel, PLUGGED_IN)
        self.wait_for_speed(quorvel, window)
        self.active_window(quorvel)
        self.desktop.type("test")
        keyer.has_keyed("TEST")
        self.terminate(keyer, quorvel)

    def test_a_keyer_that_starts_anew_when_its_port_is_opened(self):
        self.write_settings(SETTINGS)
        keyer = self.start_keyer(profile="boot-loader")
        quorvel = self.start_quorvel()
        window = self.active_window(quorvel)
        self.wait_for_speed(quorvel, window)
        self.desktop.type("test")
        keyer.has_keyed("TEST")
        self.assertEqual(quorvel.end(), 0)

    def test_a_keyer_that_never_answers(self):
        far_end, line = os.openpty()
        self.addCleanup(os.close, far_end)
        tty.setraw(line)
        ports = self.runtime / "quorvel/ports"
        ports.mkdir(parents=True, mode=0o700)
        (ports / PORT).symlink_to(os.ttyname(line))
        os.close(line)
        self.write_settings(SETTINGS)
        quorvel = self.start_quorvel()
        window = self.active_window(quorvel)
        notice = f"The keyer on {PORT} does not answer. Look at its power, its cable, and whether " \
            "this is its port."
        quorvel.wait_for("the notice", lambda: window.find(notice))
        os.read(far_end, 4096)
        window.find("Ask again").press()
        quorvel.wait_for("the greeting", lambda: os.read(far_end, 4096).startswith(b"\x13"))
        os.write(far_end, b"U\x17\xC8\x9E")
        quorvel.wait_for("the speed",
                         lambda: window.find("Speed").description() == f"{SPEED} WPM")
        self.assertFalse(window.find(notice).is_in_state("showing"))
        self.assertEqual(quorvel.end(), 0)

    def test_a_link_that_is_removed_lets_go_of_the_key(self):
        keyer, quorvel, _ = self.start_connected()
        self.desktop.press("ctrl+t")
        keyer.wait_for("the key", keyer.is_key_down)
        (self.runtime / "quorvel/ports" / PORT).unlink()
        keyer.wait_for("the key to rise", lambda: not keyer.is_key_down())
        self.answer_alert(quorvel, UNPLUGGED)
        self.assertEqual(quorvel.end(), 0)


if __name__ == "__main__":
    run_tests()
