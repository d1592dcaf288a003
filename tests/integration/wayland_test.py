"""Quorvel on a Wayland desktop: what such a desktop withholds, and what becomes of the key when it
goes.

Usage: wayland_test.py QUORVEL VIRTUAL_KEYER [TEST...]
"""

import base64
import signal
import struct
import time

from activation_proxy import ActivationProxy
from program import LONG_TEXT, NO_PORT, PORT, SETTINGS, ProgramTest, run_tests
from waiting import wait_for
from wayland_desktop import SIZE, WaylandDesktop

# Seconds.
KEY_UP, EXIT = 1.0, 1.0


def kept_place(x, y, width, height):
    """A window's place in the toolkit's words, for the settings."""
    frame = content = struct.pack(">4i", x, y, x + width - 1, y + height - 1)
    data = struct.pack(">IHH", 0x1D9D0CB, 3, 0) + frame + content + \
        struct.pack(">i??i", 0, False, False, 1280) + content
    return base64.b64encode(data).decode()


class WaylandTest(ProgramTest):
    desktop_kind = WaylandDesktop

    def test_a_window_gets_its_size_again_if_not_its_place(self):
        keyer, quorvel, window = self.start_connected(
            SETTINGS + f"MainWindowPlace={kept_place(300, 200, 900, 600)}\n")
        self.assertEqual(window.children()[0].size(), (900, 600))
        self.desktop.type("k")
        keyer.has_keyed("K")
        self.terminate(keyer, quorvel)

    def test_an_alert_has_the_keyboard_wherever_it_stands(self):
        self.write_settings(SETTINGS.replace(PORT, "None"))
        quorvel = self.start_quorvel()
        alert = self.wait_for_alert(quorvel, NO_PORT)
        self.assertGreater(alert.size(), (0, 0))
        for of_alert, of_screen in zip(alert.size(), SIZE):
            self.assertLess(of_alert, of_screen)
        self.answer_alert(quorvel, NO_PORT)
        window = self.active_window(quorvel)
        self.desktop.type("k")
        quorvel.wait_for("the text", lambda: window.find("Keyboard").text() == "K")
        self.assertEqual(quorvel.end(), 0)

    def test_a_second_start_has_the_first_ask_to_come_to_the_front(self):
        """With what the desktop's menu gave the second one, without which no compositor listens."""
        display = self.directory / "runtime/proxy"
        proxy = ActivationProxy(display, self.desktop.environment["WAYLAND_DISPLAY"])
        self.addCleanup(proxy.close)
        self.environment["WAYLAND_DISPLAY"] = str(display)
        keyer, quorvel, _ = self.start_connected()
        self.environment["XDG_ACTIVATION_TOKEN"] = "of-the-menu"
        self.assertEqual(self.start_quorvel().status(), 0)
        quorvel.wait_for("the request", lambda: "of-the-menu" in proxy.asked())
        self.assertEqual(proxy.asked().count("of-the-menu"), 1)
        self.active_window(quorvel)
        self.desktop.type("k")
        keyer.has_keyed("K")
        self.terminate(keyer, quorvel)

    def test_a_second_start_leaves_the_first_as_it_was(self):
        """This compositor lets no program ask to come to the front."""
        keyer, quorvel, window = self.start_connected()
        second = self.start_quorvel()
        self.assertEqual(second.status(), 0)
        self.assertEqual(second.errors(), "")
        self.active_window(quorvel)
        self.desktop.type("k")
        keyer.has_keyed("K")
        self.assertEqual(window.find("Keyboard").text(), "K")
        self.terminate(keyer, quorvel)

    def test_text_goes_on_while_nothing_can_be_shown(self):
        compositor, keyer, quorvel, window = self.start_on_other_compositor()
        self.send_long_text(keyer, window)
        compositor.send(signal.SIGSTOP)
        keyed = len(keyer.keyed())
        keyer.wait_for("more of the text", lambda: len(keyer.keyed()) > keyed + 10)
        self.assertEqual(quorvel.end(), 0)
        compositor.send(signal.SIGCONT)
        self.expect_closed(keyer)

    def test_the_compositor_goes_while_nothing_is_keyed(self):
        compositor, keyer, quorvel, _ = self.start_on_other_compositor()
        self.expect_key_up_without(compositor, keyer, quorvel)
        self.expect_told_of(keyer, None)

    def test_the_compositor_goes_while_text_is_sent(self):
        compositor, keyer, quorvel, window = self.start_on_other_compositor()
        self.send_long_text(keyer, window)
        self.expect_key_up_without(compositor, keyer, quorvel)
        self.assertLess(len(keyer.keyed()), len(LONG_TEXT))
        self.expect_told_of(keyer, "Quorvel ended while it was sending")

    def test_the_compositor_goes_while_tune_is_on(self):
        compositor, keyer, quorvel, window = self.start_on_other_compositor()
        window.find("Tune").press()
        keyer.wait_for("the key", keyer.is_key_down)
        self.expect_key_up_without(compositor, keyer, quorvel)
        self.expect_told_of(keyer, "Quorvel ended while tune was on")

    def start_on_other_compositor(self):
        """Which has no keyboard: what is done there is done as a screen reader does it."""
        compositor, self.environment["WAYLAND_DISPLAY"] = self.enterContext(
            self.desktop.other_compositor())
        keyer = self.start_keyer()
        self.write_settings(SETTINGS)
        quorvel = self.start_quorvel()
        window = quorvel.wait_for("the window", lambda: self.desktop.application(quorvel.pid))
        quorvel.wait_for("the controls", lambda: window.find("Speed"))
        self.wait_for_speed(quorvel, window)
        return compositor, keyer, quorvel, window

    def send_long_text(self, keyer, window):
        window.find("Message 8: Again").press()
        keyer.wait_for("some of the text", lambda: len(keyer.keyed()) > 5)

    def expect_key_up_without(self, compositor, keyer, quorvel):
        """The toolkit ends the program at once, so that it is its guard that lets go."""
        held_up, began = quorvel.held_up() + keyer.held_up(), time.monotonic()
        compositor.send(signal.SIGKILL)
        wait_for("the end", lambda: quorvel.held_up() >= 0 and quorvel.has_ended())
        gone = time.monotonic() - began
        keyer.wait_for("the end of host mode", keyer.is_left)
        self.assertFalse(keyer.is_key_down())
        left = time.monotonic() - began
        held_up = quorvel.held_up() + keyer.held_up() - held_up
        print(f"gone after {gone:.2f} s, the keyer left after {left:.2f} s, "
              f"{held_up:.2f} s of it for a processor")
        self.assertNotEqual(quorvel.status(), 0)
        self.assertLess(gone - held_up, EXIT)
        self.assertLess(left - held_up, EXIT + KEY_UP)
        changes = keyer.events("key")
        time.sleep(1)
        self.assertEqual(keyer.events("key"), changes)

    def expect_told_of(self, keyer, words):
        """The next start, on the usual compositor, says so in the window, and sends."""
        self.environment["WAYLAND_DISPLAY"] = self.desktop.environment["WAYLAND_DISPLAY"]
        quorvel = self.start_quorvel()
        window = self.active_window(quorvel)
        self.wait_for_speed(quorvel, window)
        told = {each.name() for each in window.all() if "ended while" in each.name()}
        self.assertEqual([words in each for each in told], [True] if words else [], told)
        before = keyer.keyed()
        self.desktop.type("k")
        keyer.wait_for("the letter", lambda: keyer.keyed() == before + "K")
        self.terminate(keyer, quorvel)


if __name__ == "__main__":
    run_tests()
