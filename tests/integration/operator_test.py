"""What an operator meets between two contacts: the caret, line ends, fields and their limits.

Usage: operator_test.py QUORVEL VIRTUAL_KEYER [TEST...]
"""

from program import SPEED, ProgramTest, run_tests

# More than a field of the toolkit takes by itself.
VERY_LONG = 40_000


class OperatorTest(ProgramTest):
    def test_the_caret_in_sent_text_is_told_of(self):
        keyer, quorvel, window = self.start_connected()
        self.desktop.type("test")
        keyer.has_keyed("TEST")
        self.desktop.press("Home")
        self.wait_for_status(quorvel, window, "Typing here sends again", True)
        self.desktop.press("End")
        self.wait_for_status(quorvel, window, "Typing here sends again", False)
        self.desktop.type("k")
        keyer.has_keyed("TESTK")
        self.terminate(keyer, quorvel)

    def test_a_line_end_parts_words(self):
        keyer, quorvel, window = self.start_connected()
        self.desktop.type("cq")
        self.desktop.press("Return")
        self.desktop.press("KP_Enter")
        self.desktop.type("de")
        keyer.has_keyed("CQDE")
        self.assertEqual(window.find("Keyboard").text(), "CQ DE")
        self.terminate(keyer, quorvel)

    def test_a_word_behind_a_message_stands_apart_after_an_edit_too(self):
        keyer, quorvel, window = self.start_connected()
        self.press_switch(quorvel, window, "Pause")
        self.desktop.press("F3")
        self.desktop.press("BackSpace")
        self.desktop.press("ctrl+z")
        self.desktop.type("tu")
        quorvel.wait_for("the text", lambda: window.find("Keyboard").text() == "TU N0CALL TU")
        self.press_switch(quorvel, window, "Pause", to=False)
        keyer.has_keyed("TUN0CALLTU")
        self.terminate(keyer, quorvel)

    def test_two_letters_in_one_survive_a_correction(self):
        """They come to the keyer together, or not at all: alone, "{" would stop all sending."""
        keyer, quorvel, window = self.start_connected()
        self.press_switch(quorvel, window, "Pause")
        self.desktop.type("e {ar")
        quorvel.wait_for("the text", lambda: window.find("Keyboard").text() == "E {AR")
        self.desktop.press("BackSpace")
        quorvel.wait_for("its withdrawal", lambda: window.find("Keyboard").text() == "E ")
        self.press_switch(quorvel, window, "Pause", to=False)
        keyer.has_keyed("E")
        self.desktop.type("r k")
        keyer.wait_for("the sign", lambda: keyer.keyed() == "E+K")
        self.terminate(keyer, quorvel)

    def test_the_call_is_typed_anew_and_keeps_out_what_cannot_be_sent(self):
        keyer, quorvel, window = self.start_connected()
        call = window.find("Their call")
        self.desktop.press("ctrl+l")
        self.desktop.type("w9x-y")
        quorvel.wait_for("the call", lambda: call.text() == "W9XY")
        self.desktop.press("ctrl+l")
        self.desktop.press("minus")
        self.desktop.press("F5")
        keyer.has_keyed("W9XY")
        self.assertEqual(call.text(), "W9XY")
        self.desktop.press("ctrl+l")
        self.desktop.type("k1a")
        quorvel.wait_for("the next call", lambda: call.text() == "K1A")
        self.desktop.press("F11")
        quorvel.wait_for("no call", lambda: call.text() == "")
        self.assertEqual(window.find("Serial number").text(), "2")
        self.terminate(keyer, quorvel)

    def test_one_pass_over_a_pasted_call_for_each_edit(self):
        keyer, quorvel, window = self.start_connected()
        self.desktop.press("ctrl+j")
        self.wait_for_title(quorvel, "Sent")
        self.desktop.press("ctrl+f")
        self.desktop.type("W9----X")
        for keys in ("ctrl+a", "ctrl+c", "Escape"):
            self.desktop.press(keys)
        self.active_window(quorvel)
        call = window.find("Their call")
        self.desktop.press("ctrl+l")
        self.desktop.press("ctrl+v")
        quorvel.wait_for("what one pass leaves", lambda: call.text() == "W9--X")
        # Which is no edit.
        self.desktop.press("Return")
        self.desktop.press("Left")
        self.desktop.press("BackSpace")
        quorvel.wait_for("what the next one leaves", lambda: call.text() == "W9X")
        self.terminate(keyer, quorvel)

    def test_fields_take_texts_of_any_length(self):
        keyer, quorvel, window = self.start_connected()
        window.find("Their call").set_text("a" * VERY_LONG)
        quorvel.wait_for("the call",
                         lambda: window.find("Their call").text() == "A" * VERY_LONG)
        window.find("Their call").set_text("")
        self.desktop.press("ctrl+comma")
        self.wait_for_title(quorvel, "General")
        application = self.desktop.application(quorvel.pid)
        application.find("Messages").press()
        field = quorvel.wait_for("the field",
                                 lambda: application.find("Message 7"))
        field.set_text("e" * VERY_LONG)
        quorvel.wait_for("the message", lambda: field.text() == "E" * VERY_LONG)
        self.terminate(keyer, quorvel)
        self.assertIn(f"Message7={'E' * VERY_LONG}\n", self.settings.read_text())

    def test_message_keys_are_the_main_windows(self):
        keyer, quorvel, window = self.start_connected()
        self.desktop.press("alt+h")
        self.desktop.press("g")
        self.wait_for_title(quorvel, "Guide")
        for number in range(1, 9):
            self.desktop.press(f"F{number}")
        self.desktop.press("ctrl+q")
        self.assertEqual(quorvel.status(), 0)
        self.assertEqual(keyer.keyed(), "")
        self.expect_closed(keyer)

    def test_what_is_typed_into_a_menu_sends_nothing(self):
        """The keys that open one are beside others: Alt, and the menu key."""
        keyer, quorvel, window = self.start_connected()
        self.desktop.type("e")
        keyer.has_keyed("E")
        for keys in ("ctrl+a", "ctrl+c", "End"):
            self.desktop.press(keys)
        for keys, text in [("Menu", "p"), ("alt+e", "p"), ("alt+k", "t "), ("alt+s", "1 ")]:
            self.desktop.press(keys)
            self.desktop.type(text)
            self.desktop.press("Escape")
        self.desktop.type("k")
        keyer.has_keyed("EK")
        self.assertEqual(window.find("Keyboard").text(), "K")
        self.terminate(keyer, quorvel)

    def test_the_middle_button_sends_nothing(self):
        """It is the wheel, and would paste what was selected last, anywhere."""
        keyer, quorvel, window = self.start_connected()
        self.desktop.press("ctrl+l")
        self.desktop.type("w9xyz")
        self.desktop.press("ctrl+a")
        self.desktop.press("ctrl+k")
        self.desktop.point(window.find("Keyboard"))
        self.desktop.xdotool("click", "2")
        self.desktop.type("k")
        keyer.has_keyed("K")
        self.assertEqual(window.find("Keyboard").text(), "K")
        self.terminate(keyer, quorvel)

    def test_a_stop_ends_high_speed_too(self):
        keyer, quorvel, window = self.start_connected()
        self.desktop.press("ctrl+h")
        self.expect_switch(quorvel, window, "High-speed CW", True)
        quorvel.wait_for("its rate",
                         lambda: window.find("Speed").description().endswith(" LPM"))
        self.desktop.press("Escape")
        self.expect_switch(quorvel, window, "High-speed CW", False)
        self.assertEqual(window.find("Speed").description(), f"{SPEED} WPM")
        self.terminate(keyer, quorvel)

    def wait_for_status(self, quorvel, window, words, is_there):
        quorvel.wait_for(words, lambda: (
            words in window.find("Keyer status").description()) == is_there)

    def wait_for_title(self, quorvel, words):
        quorvel.wait_for(words, lambda: words in (
            self.desktop.xdotool("getactivewindow", "getwindowname") or ""))


if __name__ == "__main__":
    run_tests()
