"""Every control of the main window, worked by its name and by the keyboard alone.

Usage: main_window_test.py QUORVEL VIRTUAL_KEYER [TEST...]
"""

import signal

from program import NO_PORT, PLUGGED_IN, PORT, SETTINGS, ProgramTest, run_tests

# Button, key, and what the keyer keys of it.
MESSAGES = [
    ("Message 1: CQ", "F1", "CQTESTN0CALLN0CALL"),
    ("Message 2: Exchange", "F2", "5NNNH"),
    ("Message 3: Acknowledge", "F3", "TUN0CALL"),
    ("Message 4: My Call", "F4", "N0CALL"),
    ("Message 5: Their Call", "F5", "W9XYZ"),
    ("Message 6: Call?", "F6", "CALL?"),
    ("Message 7: ?", "F7", "?"),
]


class MainWindowTest(ProgramTest):
    def test_by_name(self):
        keyer, quorvel, window = self.start_connected()
        window.find("Their call").focus()
        self.desktop.type("w9xyz")
        quorvel.wait_for("their call", lambda: window.find("Their call").text() == "W9XYZ")

        keyed = ""
        for name, _, text in MESSAGES:
            window.find(name).press()
            keyed += text
            keyer.has_keyed(keyed)

        window.find("Increment serial number").press()
        quorvel.wait_for("002", lambda: window.find("Serial number").text() == "2")
        window.find("Decrement serial number").press()
        quorvel.wait_for("001", lambda: window.find("Serial number").text() == "1")

        self.press_switch(quorvel, window, "Tune")
        keyer.wait_for("the key", keyer.is_key_down)
        quorvel.wait_for("a warning",
                         lambda: "tun" in window.find("Keyer status").description().lower())
        self.press_switch(quorvel, window, "Tune", to=False)
        keyer.wait_for("the key to rise", lambda: not keyer.is_key_down())

        self.press_switch(quorvel, window, "High-speed CW")
        self.press_switch(quorvel, window, "High-speed CW", to=False)

        window.find("Stop").press()
        quorvel.wait_for("an empty text", lambda: window.find("Keyboard").text() == "")
        window.find("Keyboard").focus()
        self.press_switch(quorvel, window, "Pause")
        self.desktop.type("k")
        quorvel.wait_for("the text", lambda: window.find("Keyboard").text() == "K")
        self.press_switch(quorvel, window, "Pause", to=False)
        keyer.wait_for("the letter", lambda: keyer.keyed().endswith("K"))
        self.terminate(keyer, quorvel)

    def test_by_keyboard_alone(self):
        keyer, quorvel, window = self.start_connected()
        self.tab_to(quorvel, window, "Their call")
        self.desktop.type("w9xyz")
        keyed = ""
        for _, key, text in MESSAGES:
            self.desktop.press(key)
            keyed += text
            keyer.has_keyed(keyed)

        self.tab_to(quorvel, window, "Increment serial number")
        self.desktop.press("space")
        quorvel.wait_for("002", lambda: window.find("Serial number").text() == "2")
        self.desktop.press("ctrl+t")
        keyer.wait_for("the key", keyer.is_key_down)
        self.desktop.press("Escape")
        keyer.wait_for("the key to rise", lambda: not keyer.is_key_down())
        self.expect_switch(quorvel, window, "Tune", False)

        self.tab_to(quorvel, window, "Keyboard")
        for key, name in (("ctrl+h", "High-speed CW"), ("ctrl+b", "Beacon"), ("ctrl+p", "Pause")):
            self.desktop.press(key)
            self.expect_switch(quorvel, window, name, True)
            self.desktop.press(key)
            self.expect_switch(quorvel, window, name, False)
        self.desktop.type("k")
        keyer.wait_for("the letter", lambda: keyer.keyed().endswith("K"))
        self.desktop.press("ctrl+q")
        self.assertEqual(quorvel.status(), 0)
        self.expect_closed(keyer)

    def test_the_beacon_goes_on_until_it_is_stopped(self):
        keyer, quorvel, window = self.start_connected(SETTINGS + "BeaconInterval=0.2\n")
        self.press_switch(quorvel, window, "Beacon")
        window.find("Message 7: ?").press()
        keyer.wait_for("three beacons", lambda: keyer.keyed().startswith("???"))
        self.desktop.press("Escape")
        self.expect_switch(quorvel, window, "Beacon", False)
        self.terminate(keyer, quorvel)

    def test_a_tuned_transmitter_is_let_go_at_the_end(self):
        """Ahead of all else: of the two seconds that the keyer is then given, the second begins
        with the end of host mode, which lets go as well."""
        keyer, quorvel, window = self.start_connected()
        self.press_switch(quorvel, window, "Tune")
        keyer.wait_for("the key", keyer.is_key_down)
        self.assertEqual(quorvel.end(signal.SIGHUP), 0)
        self.assertFalse(keyer.is_key_down())
        after_the_end = self.expect_closed(keyer)
        key_up, _ = keyer.events("key")[-1]
        self.assertGreater(after_the_end - key_up, 1500)

    def test_escape_stops_from_a_menu_and_from_the_guide(self):
        keyer, quorvel, window = self.start_connected()
        self.press_switch(quorvel, window, "Tune")
        keyer.wait_for("the key", keyer.is_key_down)
        self.desktop.press("alt+h")
        quorvel.wait_for("the menu", lambda: self.is_menu_open(window, "Guide"))
        self.desktop.press("Escape")
        keyer.wait_for("the key to rise", lambda: not keyer.is_key_down())
        # What is typed next is text, and chooses nothing in the menus.
        self.active_window(quorvel)
        self.desktop.type("kt")
        keyer.wait_for("the text", lambda: keyer.echoes() == "KT")

        self.press_switch(quorvel, window, "Tune")
        keyer.wait_for("the key", keyer.is_key_down)
        self.desktop.press("alt+h")
        quorvel.wait_for("the menu", lambda: self.is_menu_open(window, "Guide"))
        self.desktop.press("g")
        quorvel.wait_for("the guide", lambda: "Guide" in self.desktop.active_title())
        self.desktop.press("Escape")
        keyer.wait_for("the key to rise", lambda: not keyer.is_key_down())
        self.active_window(quorvel)
        self.terminate(keyer, quorvel)

    def test_after_a_click_on_a_button_and_a_menu_text_is_text(self):
        keyer, quorvel, window = self.start_connected()
        self.desktop.click(window.find("Tune"))
        keyer.wait_for("the key", keyer.is_key_down)
        self.desktop.click(window.find("Tune"))
        keyer.wait_for("the key to rise", lambda: not keyer.is_key_down())
        self.desktop.type("cq cq de n0call")
        keyer.wait_for("the text", lambda: keyer.echoes() == "CQCQDEN0CALL")

        self.desktop.click(self.menu_title(window, "Keyer"))
        quorvel.wait_for("the menu", lambda: self.is_menu_open(window, "Tune"))
        self.desktop.type("tu  tu ")
        self.assertTrue(self.is_menu_open(window, "Tune"))
        self.desktop.press("Escape")
        quorvel.wait_for("the menu to go", lambda: not self.is_menu_open(window, "Tune"))
        self.desktop.type("k")
        keyer.wait_for("the letter", lambda: keyer.keyed().endswith("K"))
        self.assertFalse(keyer.is_key_down())
        self.terminate(keyer, quorvel)

    def test_the_preferences_take_no_message_key_and_let_quit(self):
        keyer, quorvel, window = self.start_connected()
        self.desktop.press("ctrl+comma")
        quorvel.wait_for("the preferences", lambda: "General" in self.desktop.active_title())
        self.desktop.press("F1")
        self.desktop.press("ctrl+q")
        self.assertEqual(quorvel.status(), 0)
        self.assertEqual(keyer.keyed(), "")
        self.expect_closed(keyer)

    def test_a_plugged_port_may_be_refused(self):
        self.write_settings(SETTINGS.replace(PORT, "None"))
        quorvel = self.start_quorvel()
        self.answer_alert(quorvel, NO_PORT)
        window = self.active_window(quorvel)
        keyer = self.start_keyer()
        self.answer_alert(quorvel, PLUGGED_IN, "Escape")
        self.active_window(quorvel)
        self.desktop.type("k")
        quorvel.wait_for("the text", lambda: window.find("Keyboard").text() == "K")
        self.assertEqual(quorvel.end(), 0)
        self.assertIn("WKPortName=None", self.settings.read_text())
        self.assertEqual(keyer.answers(), [])
        self.assertEqual(keyer.end(), 0)

    def tab_to(self, quorvel, window, name):
        """Presses Tab until the control has the keyboard."""
        for _ in range(40):
            if window.find(name).is_in_state("focused"):
                return
            focused = self.focused(window)
            self.desktop.press("Tab")
            quorvel.wait_for("the focus to move", lambda: self.focused(window) != focused)
        self.fail(f"Tab does not lead to {name}: {window.describe()}")

    def menu_title(self, window, name):
        return next(each for each in window.all()
                    if each.role() == "menu item" and each.name() == name)

    def is_menu_open(self, window, item):
        return any(each.name() == item and each.is_in_state("showing")
                   for each in window.all() if "menu" in each.role())

    def focused(self, window):
        return next((each.name() for each in window.all() if each.is_in_state("focused")), None)


if __name__ == "__main__":
    run_tests()
