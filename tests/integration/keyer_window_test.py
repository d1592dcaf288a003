"""The virtual keyer's window: plug, knob, buttons, paddle, lamps, registers, memory and text, worked
by the mouse, by keys and as a screen reader does, and beside the application.

Usage: keyer_window_test.py QUORVEL VIRTUAL_KEYER [TEST...]
"""

import signal
import subprocess

from port import Port
from program import PORT, SETTINGS, VIRTUAL_KEYER, Keyer, ProgramTest, run_tests

# Host mode, version 2 status, serial echo, the speed from the knob within 10 to 40.
GREETING = b"\x00\x02\x00\x0b\x0e\x04\x05\x0a\x1e\x00\x02\x00"
SPEED = 20


class KeyerWindowTest(ProgramTest):
    def start_window(self, speed=SPEED):
        """The keyer, and its window as soon as it has the keyboard."""
        keyer = Keyer(self.environment, self.home, speed, is_headless=False)
        self.addCleanup(keyer.end, signal.SIGKILL)
        window = keyer.wait_for("the keyer's window",
                                lambda: self.desktop.application(keyer.pid))
        keyer.wait_for("the keyboard", lambda: self.desktop.active_process() == keyer.pid
                       and window.find("Dit paddle"))
        return keyer, window

    def open_port(self):
        """The host's end of the line, with the keyer in host mode."""
        port = Port(self.runtime / "quorvel/ports" / PORT)
        self.addCleanup(port.__exit__)
        port.write(GREETING)
        self.assertEqual(port.read(2), b"\x17\xc8")
        return port

    def window_of(self, keyer, *acts):
        """Does this to the keyer's window, by its number."""
        number = keyer.wait_for("the window's number", lambda: self.desktop.xdotool(
            "search", "--name", "^Virtual keyer$")).splitlines()[-1]
        for act in acts:
            assert self.desktop.xdotool(act, number) is not None, act

    def lamp(self, window, name):
        return next(each for each in window.all() if each.name() in (f"{name}: on", f"{name}: off"))

    def is_lit(self, window, name):
        return self.lamp(window, name).name().endswith(": on")

    def elements(self, keyer):
        """How many times the key has gone down."""
        return [word for _, word in keyer.events("key")].count("down")

    def holds_still(self, keyer):
        """Whether the key is up and the paddle's break-in has ended, which takes no time limit: a
        paddle that is held keys on until the watchdog stops it, with its break-in."""
        return not keyer.is_key_down() and [word for _, word in keyer.events("ptt")][-1:] == ["off"]

    def test_everything_is_named_and_reached_by_the_tabulator(self):
        keyer, window = self.start_window()
        wanted = {each.name() for each in window.all()
                  if each.is_in_state("focusable") and each.is_in_state("showing")
                  and each.is_in_state("enabled")
                  and each.role() not in ("table cell", "list item", "frame", "page tab", "filler")}
        self.assertNotIn("", wanted, window.describe())
        reached = set()
        for _ in range(3 * len(wanted)):
            self.desktop.press("Tab")
            reached |= {each.name() for each in window.all() if each.is_in_state("focused")}
        self.assertLessEqual({"Plugged in", "Speed knob", "Push-button 1", "Push-button 4",
                              "Dit paddle", "Dah paddle", "Keyed text", "Registers"}, reached)
        self.assertLessEqual(wanted - {"Keyed text"}, reached | {"Registers", "Memory"})
        self.assertEqual(keyer.end(), 0)

    def test_what_a_host_does_is_seen(self):
        keyer, window = self.start_window()
        port = self.open_port()
        port.write(b"\x03\x3c\x04\x05\x14PARIS")
        keyer.wait_for("the text", lambda: window.find("Keyed text").text().strip() == "PARIS")
        for text in ("60 %", "50 ms", "200 ms", "10 to 40 WPM", "20 WPM, from the knob"):
            self.assertIsNotNone(window.find(text), text)
        port.write(b"\x0b\x01")
        for lamp in ("Key", "PTT", "Busy", "Wait"):
            keyer.wait_for(lamp, lambda: self.is_lit(window, lamp))
        self.assertFalse(self.is_lit(window, "Break-in"))
        port.write(b"\x0b\x00")
        for lamp in ("Key", "PTT", "Busy", "Wait"):
            keyer.wait_for(lamp, lambda: not self.is_lit(window, lamp))
        port.write(b"\x06\x01" + b"E" * 90)
        keyer.wait_for("a full buffer", lambda: self.is_lit(window, "XOFF"))
        self.assertEqual(keyer.end(), 0)

    def test_knob_and_buttons_reach_the_host(self):
        keyer, window = self.start_window()
        port = self.open_port()
        window.find("Speed knob").set_value(33)
        self.assertEqual(port.read(1), bytes([0x80 + 33 - 10]))
        self.assertIsNotNone(window.find("33 WPM"))
        window.find("Push-button 3").press()
        self.assertEqual(port.read(2), b"\xcc\xc8")
        window.find("Push-button 4").focus()
        with self.desktop.hold("space"):
            self.assertEqual(port.read(1), b"\xd8")
        self.assertEqual(port.read(1), b"\xc8")
        self.assertEqual(keyer.end(), 0)

    def test_the_plug_is_an_adapters(self):
        keyer, window = self.start_window()
        link = self.runtime / "quorvel/ports" / PORT
        port = self.open_port()
        port.write(b"\x0b\x01")
        keyer.wait_for("the key", lambda: self.is_lit(window, "Key"))
        window.find("Plugged in").press()
        keyer.wait_for("the port to go", lambda: not link.is_symlink())
        keyer.wait_for("the key to go up", lambda: not self.is_lit(window, "Key"))
        self.assertFalse(keyer.is_key_down())
        window.find("Plugged in").press()
        keyer.wait_for("the port", link.exists)
        self.open_port()
        self.assertEqual(keyer.end(), 0)

    def test_two_keys_held_together_squeeze(self):
        keyer, window = self.start_window()
        with self.desktop.hold("f"):
            keyer.wait_for("a dit", lambda: self.elements(keyer) >= 2)
            self.assertTrue(self.is_lit(window, "Break-in"))
            with self.desktop.hold("j"):
                keyer.wait_for("a squeeze", lambda: self.elements(keyer) >= 8)
        keyer.wait_for("silence", lambda: self.holds_still(keyer))
        times = [at for at, _ in keyer.events("key")]
        lengths = [round((up - down) / 60) for down, up in zip(times[::2], times[1::2])]
        self.assertIn([1, 3, 1, 3], [lengths[i:i + 4] for i in range(len(lengths))])
        self.assertEqual(keyer.end(), 0)

    def test_the_mouse_holds_a_paddle(self):
        keyer, window = self.start_window()
        self.desktop.point(window.find("Dah paddle"))
        self.desktop.xdotool("mousedown", 1)
        keyer.wait_for("dahs", lambda: self.elements(keyer) >= 3)
        self.desktop.xdotool("mouseup", 1)
        keyer.wait_for("silence", lambda: self.holds_still(keyer))
        keyer.wait_for("the letters", lambda: window.find("Keyed text").text().strip())
        self.assertLessEqual(set(window.find("Keyed text").text().strip()), set("TMO0*"))
        self.assertEqual(keyer.end(), 0)

    def test_a_paddle_opens_when_the_keyboard_goes_elsewhere(self):
        """The release of the key goes elsewhere, too."""
        keyer, window = self.start_window()
        for keys in ("f", "j"):
            before = self.elements(keyer)
            with self.desktop.hold(keys):
                keyer.wait_for("an element", lambda: self.elements(keyer) >= before + 2)
                self.window_of(keyer, "windowminimize")
                keyer.wait_for("silence", lambda: self.holds_still(keyer))
            self.window_of(keyer, "windowmap", "windowactivate")
            keyer.wait_for("the keyboard", lambda: self.desktop.active_process() == keyer.pid)
            self.assertTrue(self.holds_still(keyer))
        self.assertEqual(keyer.end(), 0)

    def test_a_stored_message_is_played(self):
        keyer, window = self.start_window(speed=40)
        image = bytearray(256)
        image[:17] = bytes([0xA5, 0, 0, 5, 50, 0, 0, 10, 40, 0, 0, 0, 50, 50, 7, 0, 15])
        image[17:24] = bytes([27, 24] + [16] * 5)
        image[24:27] = bytes([0x15, 0x1B, 0x80 | 0x02])  # CQE
        with Port(self.runtime / "quorvel/ports" / PORT) as port:
            port.write(b"\x00\x0d" + bytes(image) + b"\x00\x04Z")
            self.assertEqual(port.read(1), b"Z")
        window.find("Memory").press()
        keyer.wait_for("the message", lambda: window.find("Message 1: CQE"))
        self.assertFalse(window.find("Play message 2").is_in_state("sensitive"))
        window.find("Play message 1").press()
        keyer.wait_for("the text", lambda: window.find("Keyed text").text().strip() == "CQE")
        self.assertEqual(keyer.end(), 0)

    def test_the_kind_of_keyer_changes_while_it_runs(self):
        keyer, window = self.start_window()
        port = self.open_port()
        port.write(b"E")
        self.assertEqual(port.read(3), b"\xc4E\xc0")
        window.find("Kind of keyer").press()
        keyer.wait_for("the kinds", lambda: window.find("Kinds of keyer").is_in_state("showing"))
        kind = next(each for each in window.all() if each.name().startswith("no-echo:"))
        self.desktop.click(kind)
        self.desktop.press("space")
        keyer.wait_for("no echo", lambda: kind.refresh().is_in_state("checked"))
        port.write(b"E")
        self.assertEqual(port.read(2), b"\xc4\xc0")
        self.assertEqual(keyer.end(), 0)

    def test_what_is_typed_in_the_one_window_is_read_in_the_other(self):
        keyer, window = self.start_window(speed=90)
        self.write_settings(SETTINGS)
        quorvel = self.start_quorvel()
        application = self.active_window(quorvel)
        quorvel.wait_for("the speed", lambda: application.find("Speed").description() == "90 WPM")
        self.desktop.type("cq test")
        keyer.wait_for("the text", lambda: "".join(
            window.find("Keyed text").text().split()) == "CQTEST")
        self.desktop.press("F8")
        keyer.wait_for("the message", lambda: len(window.find("Keyed text").text()) > 20)
        window.find("Dit paddle").press()
        quorvel.wait_for("the break-in", lambda: application.find("Keyboard").text() == "")
        keyer.wait_for("its end", lambda: not self.is_lit(window, "Break-in"))
        self.assertFalse(keyer.is_key_down())
        self.assertEqual(quorvel.end(), 0)
        self.assertEqual(keyer.end(), 0)

    def test_the_log_of_the_line_is_in_words(self):
        keyer, window = self.start_window()
        window.find("Line log").press()
        keyer.wait_for("the log", lambda: window.find("Log of the line").is_in_state("showing"))
        port = self.open_port()
        port.write(b"\x04\x00\x0aE")
        self.assertEqual(port.read(3), b"\xc4E\xc0")
        for words in ("Open the keyer", "open, version 23", "Set PTT lead/tail 0, 100 ms",
                      "04 00 0A", "text E", "status: busy", "echo E", "status: idle"):
            keyer.wait_for(words, lambda words=words: window.find(words))
        # Letters that work the paddle are letters here.
        window.find("Filter of the log").focus()
        self.desktop.type("fj")
        keyer.wait_for("the filter", lambda: window.find("Filter of the log").text() == "fj")
        keyer.wait_for("no rows", lambda: not window.find("text E"))
        self.assertEqual(self.elements(keyer), 1)
        self.assertEqual(keyer.end(), 0)

    def test_the_scope_measures_what_is_keyed(self):
        keyer, window = self.start_window()
        window.find("Scope").press()
        scope = window.find("Scope of key and PTT")
        keyer.wait_for("the scope", lambda: scope.refresh().is_in_state("showing"))
        port = self.open_port()
        port.write(b"A")
        self.assertEqual(port.read(3), b"\xc4A\xc0")
        scope.focus()
        keyer.wait_for("PTT to go off", lambda: self.holds_still(keyer))
        # Past PTT's end to the letter's beginning, and with the other cursor to its second element.
        for _ in range(5):
            self.desktop.press("ctrl+Left")
        keyer.wait_for("the dit", lambda: scope.refresh().description() == "dit 60.0 ms")
        for _ in range(3):
            self.desktop.press("ctrl+shift+Left")
        keyer.wait_for("the measure", lambda: scope.refresh().description()
                       == "120.0 ms: dit 60.0, space 60.0")
        self.assertEqual(scope.value(), 120)
        self.assertEqual(keyer.end(), 0)

    def test_without_a_sound_device_it_says_that_it_is_silent(self):
        keyer, window = self.start_window()
        keyer.wait_for("the word", lambda: window.find("No sound device: it is silent.")
                       .is_in_state("showing"))
        self.assertFalse(window.find("Volume").is_in_state("sensitive"))
        self.assertEqual(keyer.end(), 0)

    def test_a_recorded_script_does_the_same_again(self):
        keyer, window = self.start_window()
        window.find("Record a script").press()
        with self.desktop.hold("j"):
            keyer.wait_for("a dah", lambda: self.elements(keyer) >= 1)
        keyer.wait_for("silence", lambda: self.holds_still(keyer))
        window.find("Speed knob").set_value(31)
        window.find("Record a script").press()
        keyer.wait_for("the question", lambda: self.desktop.active_title() == "Save the script")
        script = self.home / "recorded"
        self.desktop.type(str(script))
        self.desktop.press("Return")
        keyer.wait_for("the script", script.exists)
        keyed = keyer.keyed()
        self.assertEqual(keyer.end(), 0)
        lines = script.read_text().splitlines()
        self.assertEqual([line.split(" ", 2)[2] for line in lines],
                         ["paddle dah down", "paddle dah up", "knob 31"])
        script.write_text(script.read_text() + "after 2\n")
        again = subprocess.run([VIRTUAL_KEYER, "--fast", "--script", script], text=True,
                               stdout=subprocess.PIPE, timeout=60, check=True)
        self.assertEqual(again.stdout.replace(" ", ""), keyed)

    def test_without_its_display_it_goes_on_without_a_window(self):
        gone = dict(self.environment, DISPLAY=":4242")
        keyer = Keyer(gone, self.home, SPEED, is_headless=False)
        self.addCleanup(keyer.end, signal.SIGKILL)
        keyer.wait_for("the plug", lambda: "Plugged in as" in keyer.errors())
        self.assertIn("No window can be shown", keyer.errors())
        self.assertEqual(keyer.end(), 0)

    def test_closing_the_window_pulls_the_plug(self):
        keyer, _ = self.start_window()
        self.desktop.press("alt+F4")
        self.assertEqual(keyer.status(), 0)
        self.assertFalse((self.runtime / "quorvel/ports" / PORT).is_symlink())


if __name__ == "__main__":
    run_tests()
