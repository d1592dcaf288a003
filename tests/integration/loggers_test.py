"""Loggers send through Quorvel: quorvel-send and bare datagrams, by the programs as they are.

Usage: loggers_test.py QUORVEL VIRTUAL_KEYER [TEST...]
"""

import socket
import threading
import time

from logger_station import LoggerStationTest, free_port
from program import run_tests

DONE, NOT_KEYED, BAD_OPTIONS, NOBODY_LISTENS = range(4)


class Flood:
    """Sends datagrams, as many as the machine can, while a block runs."""

    def __init__(self, port, datagram):
        self._socket = socket.socket(socket.AF_INET, socket.SOCK_DGRAM)
        self._socket.connect(("127.0.0.1", port))
        self._datagram = datagram
        self._is_on = True
        self._thread = threading.Thread(target=self._send)
        self.count = 0

    def _send(self):
        while self._is_on:
            self._socket.send(self._datagram)
            self.count += 1
            if self.count % 100 == 0:
                time.sleep(0.005)

    def __enter__(self):
        self._thread.start()
        return self

    def __exit__(self, *_):
        self._is_on = False
        self._thread.join()
        self._socket.close()


class LoggersTest(LoggerStationTest):
    def test_a_text_is_keyed_and_waited_for(self):
        keyer, quorvel, window = self.start_listening()
        self.assertEqual(self.send("--wait", "cq cq", "de", "n0call"), DONE)
        keyer.has_keyed("CQCQDEN0CALL")
        self.wait_for_status(quorvel, window, "last from quorvel-send")
        self.assertEqual(self.send("--wait", text="tu\n73\n"), DONE)
        keyer.has_keyed("CQCQDEN0CALLTU73")
        self.terminate(keyer, quorvel)

    def test_a_long_text_is_keyed_whole(self):
        keyer, quorvel, _ = self.start_listening()
        words = ["EIT"[number % 3] + "TE"[number % 2] for number in range(80)]
        self.assertEqual(self.send("--wait", *words), DONE)
        keyer.has_keyed("".join(words))
        self.assertEqual(self.send(*words), DONE)
        keyer.has_keyed("".join(words) * 2)
        self.terminate(keyer, quorvel)

    def test_escape_drops_it(self):
        keyer, quorvel, _ = self.start_listening()
        sender = self.sender("--wait", "--speed", "20", "paris " * 20)
        keyer.wait_for("its begin", lambda: keyer.keyed().startswith("PA"))
        self.desktop.press("Escape")
        self.assertEqual(sender.wait(30), NOT_KEYED)
        self.assertLess(len(keyer.keyed()), 50)
        self.terminate(keyer, quorvel)

    def test_what_cannot_be_keyed_is_told(self):
        keyer, quorvel, window = self.start_listening()
        self.press_switch(quorvel, window, "Pause")
        self.assertEqual(self.send("--wait", "e"), NOT_KEYED)
        self.press_switch(quorvel, window, "Pause", False)
        self.assertEqual(self.send("--wait", "t"), DONE)
        keyer.has_keyed("T")
        self.terminate(keyer, quorvel)

    def test_speed_and_abort(self):
        keyer, quorvel, window = self.start_listening()
        self.assertEqual(self.send("--speed", "33"), DONE)
        self.wait_for_set_speed(quorvel, window, 33)
        sender = self.sender("--wait", "paris " * 20)
        keyer.wait_for("its begin", lambda: keyer.keyed().startswith("PA"))
        self.assertEqual(self.send("--abort"), DONE)
        self.assertEqual(sender.wait(30), NOT_KEYED)
        self.terminate(keyer, quorvel)

    def test_nobody_listens(self):
        self.port = free_port()
        self.assertEqual(self.send("e"), NOBODY_LISTENS)
        self.assertEqual(self.send("--wait", "e"), NOBODY_LISTENS)
        self.assertEqual(self.send("--speed", "e"), BAD_OPTIONS)
        self.assertEqual(self.send("--nonsense"), BAD_OPTIONS)

    def test_the_end_of_the_program_is_told(self):
        keyer, quorvel, _ = self.start_listening()
        sender = self.sender("--wait", "--speed", "20", "paris " * 20)
        keyer.wait_for("its begin", lambda: keyer.keyed().startswith("PA"))
        self.terminate(keyer, quorvel)
        self.assertEqual(sender.wait(30), NOT_KEYED)

    def test_without_the_main_window_nothing_is_keyed(self):
        keyer, quorvel, window = self.start_listening()
        main = self.desktop.xdotool("getactivewindow")
        self.desktop.press("ctrl+comma")
        quorvel.wait_for("the preferences", lambda: self.desktop.xdotool(
            "getactivewindow") not in (main, None))
        sender = self.sender("--wait", "--speed", "20", "paris " * 20)
        keyer.wait_for("its begin", lambda: keyer.keyed().startswith("PA"))
        # As the desktop closes a window that is not the active one.
        self.assertIsNotNone(self.desktop.xdotool("windowactivate", "--sync", main))
        self.desktop.press("alt+F4")
        self.assertEqual(sender.wait(30), NOT_KEYED)
        quorvel.wait_for("the keyer to be idle", lambda: keyer.answers()[-1] == "C0")
        keyed = keyer.keyed()
        self.assertTrue(("PARIS" * 20).startswith(keyed), keyed)
        self.assertLess(len(keyed), 50)
        self.assertEqual(self.send("--wait", "e"), NOT_KEYED)
        self.assertEqual(keyer.keyed(), keyed)
        self.terminate(keyer, quorvel)

    def test_a_flood_holds_up_no_escape(self):
        keyer, quorvel, _ = self.start_listening()
        self.desktop.press("ctrl+t")
        keyer.wait_for("the key", keyer.is_key_down)
        with Flood(self.port, b"\x1b228") as flood:
            quorvel.wait_for("a flood", lambda: flood.count > 5000)
            self.desktop.press("Escape")
            quorvel.wait_for("the key to rise", lambda: not keyer.is_key_down())
        self.desktop.press("Escape")
        keyed = keyer.keyed()
        with Flood(self.port, b"paris^") as flood:
            quorvel.wait_for("a flood", lambda: flood.count > 5000)
        self.desktop.press("Escape")
        quorvel.wait_for("the keyer to be idle", lambda: keyer.answers()[-1] == "C0")
        self.assertLess(len(keyer.keyed()) - len(keyed), 200)
        self.terminate(keyer, quorvel)


if __name__ == "__main__":
    run_tests()
