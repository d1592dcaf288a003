"""What can be put into the preferences, by keys and by assistive tools, what becomes of it, and
what is told of it.

Usage: preferences_input_test.py QUORVEL VIRTUAL_KEYER [TEST...]
"""

from preferences_bench import PreferencesBench
from program import NO_PORT, run_tests

# Name of a control, its tab, what is typed, what is told, and what is in force.
OUT_OF_RANGE = [
    ("Weighting", "Keying", "99", "99 % is out of range: -40 to 40 %. It stays at 0 %.", "0"),
    ("Weighting", "Keying", "-41", "-41 % is out of range: -40 to 40 %. It stays at 0 %.", "0"),
    ("Dah/dit ratio", "Keying", "4", "4 : 1 is out of range: 1.98 to 3.99 : 1. It stays at 3 : 1.",
     "3"),
    ("Lead-in", "Sidetone and outputs", "300",
     "300 ms is out of range: 0 to 250 ms. It stays at 0 ms.", "0"),
    ("Lowest speed", "Speed", "4", "4 wpm is out of range: 5 to 99 wpm. It stays at 13 wpm.", "13"),
]


class PreferencesInputTest(PreferencesBench):
    def test_text_from_an_assistive_tool_is_stored(self):
        self.start_with("")
        self.open_preferences()
        self.control("My call").set_text("w1aw")
        self.wait_for_setting("MyCall=W1AW")
        self.open_messages()
        self.control("Message 1").set_text("tu de `")
        self.control("Message 1 label").set_text("Thanks")
        self.wait_for_setting("Message1=TU DE `")
        self.wait_for("the button's new name",
                      lambda: self.application.find("Message 1: Thanks"))
        self.control("Beacon interval").set_text("7.5 s")
        self.wait_for_setting("BeaconInterval=7.5")
        self.open_keyers_pane()
        self.control("Weighting").set_text("12 %")
        self.expect("a text for the weighting", {"weighting": 62})
        self.turn_to("Standalone")
        self.control("Message 2").set_text("5nn 73")
        self.wait_for_setting("WKStandaloneMessage2=5NN 73")
        self.control("Save to keyer").press()
        self.wait_for("message 2 in the keyer",
                      lambda: self.keyer.registers()["memory-message2"] == "5NN 73")

    def test_a_disabled_control_cannot_be_set(self):
        self.start_with("WKEnableDitDahMemory=false\nWKPTTEnable=false\n")
        self.open_pane()
        self.turn_to("Paddle")
        switchpoint = self.control("Switchpoint")
        self.assertFalse(switchpoint.is_in_state("enabled"))
        switchpoint.set_value(60)
        switchpoint.set_text("130 % of a dit")
        self.control("Lead-in").set_value(5)
        # What comes after it has arrived, and nothing else has.
        self.turn_to("Keying")
        self.control("Weighting").set_value(5)
        self.expect("the weighting", {"weighting": "55"})
        self.assertEqual(switchpoint.text(), "100 % of a dit")
        self.assertNotIn("WKPaddleSwitchpoint", self.settings.read_text())
        self.assertNotIn("WKPTTLeadTime", self.settings.read_text())

    def test_a_number_out_of_range_is_told_and_nothing_else(self):
        self.start_with("WKPTTEnable=true\n")
        self.open_pane()
        for name, tab, typed, words, in_force in OUT_OF_RANGE:
            with self.subTest(name, typed=typed):
                self.turn_to(tab)
                for key in (None, "Return", "Tab"):
                    self.type_into(name, typed, key)
                    # Beside the control itself its name need not be said.
                    self.wait_for_words(f"{name}: {words}" if key == "Tab" else words)
                    self.assertTrue(self.control(name).description().startswith(words))
                    self.assertTrue(self.control(name).text().startswith(typed))
                self.type_into(name, in_force, "Return")
                self.wait_for("silence", lambda: not self.is_told(f"{name}: ")
                              and not self.is_told(words))

    def test_an_interval_out_of_range_is_told(self):
        self.start_with("")
        self.open_preferences()
        self.open_messages()
        self.type_into("Beacon interval", "4000", "Return")
        self.wait_for_words("4000 s is out of range: 0 to 3600 s. It stays at 4.2 s.")
        self.assertNotIn("BeaconInterval", self.settings.read_text())

    def test_both_decimal_signs_are_read(self):
        # A German's numbers, and yet English texts.
        self.environment.update(LC_ALL="de_DE.UTF-8", LANG="de_DE.UTF-8", LANGUAGE="en")
        self.start_with("")
        self.open_preferences()
        self.open_messages()
        for typed, stored in (("7.5", "7.5"), ("8,5", "8.5")):
            self.type_into("Beacon interval", typed, "Return")
            self.wait_for_setting(f"BeaconInterval={stored}")
            self.assertEqual(self.control("Beacon interval").text(),
                             f"{stored} s".replace(".", ","))

    def test_a_stored_number_out_of_range_is_mended(self):
        self.start_with("WKPTTEnable=true\nWKPTTLeadTime=30\nWKWeighting=-60\n")
        self.open_pane()
        self.assertEqual(self.control("Weighting").text(), "-60 %")
        self.assertIn("stored: -60 %", self.control("Weighting").description())
        self.type_into("Weighting", "-40", "Return", weighting="10")
        self.turn_to("Sidetone and outputs")
        self.assertEqual(self.control("Lead-in").text(), "300 ms")
        self.control("Lead-in").focus()
        self.desktop.press("Down")
        self.expect("an arrow", {"lead-in": "25"})
        self.assertEqual(self.control("Lead-in").text(), "250 ms")

    def test_explanations_need_no_mouse(self):
        self.start_with("")
        self.open_pane()
        self.control("Weighting").focus()
        self.wait_for_words("Above 0 elements grow and the gaps after them shrink, for a heavier "
                            "sound; below 0 it is lighter. -40 to 40 %, default 0 %")
        self.desktop.press("Tab")
        of_ratio = ("How many dits long a dah is: 3 is the standard, more gives a swing. "
                    "1.98 to 3.99 : 1, default 3 : 1")
        self.wait_for_words(of_ratio)
        # Nor does what is wrong elsewhere hide one.
        self.type_into("Weighting", "99", "Tab")
        self.wait_for_words("Weighting: 99 % is out of range: -40 to 40 %. It stays at 0 %. "
                            + of_ratio)

    def test_the_mouse_covers_nothing(self):
        self.start_with("")
        self.open_pane()
        windows = self.windows()
        self.desktop.point(self.control("Compensation"))
        self.wait_for_words("Added to every element and taken from the gap after it, for a "
                            "transmitter that clips elements. "
                            "0 to 250 ms, default 0 ms")
        self.assertEqual(self.windows(), windows)

    def test_every_tab_tells_that_no_keyer_is_connected(self):
        self.write_settings("[General]\nWKPortName=None\n")
        self.quorvel = self.start_quorvel()
        self.answer_alert(self.quorvel, NO_PORT)
        self.application = self.active_window(self.quorvel)
        self.open_preferences()
        self.wait_for("the state of the link",
                      lambda: self.is_told("Not connected") or self.is_told("No serial port is"))
        self.open_messages()
        self.wait_for_words("Not connected")
        self.open_keyers_pane()
        for tab in ("Keying", "Paddle", "Sidetone and outputs", "Speed", "Standalone"):
            self.turn_to(tab)
            self.wait_for_words("Not connected")

    def test_what_keeps_from_saving_is_named(self):
        self.start_with("WKStandaloneMessage3=GR\u00dcN\n")
        self.open_pane()
        self.turn_to("Standalone")
        self.assertIsNotNone(self.pane.find("Message 3: Cannot hold \u201c\u00dc\u201d"))
        self.control("Save to keyer").press()
        self.answer_alert(self.quorvel, "Message 3 holds \u201c\u00dc\u201d, which has no Morse "
                          "code. Take it out and save again.")
        self.type_into("Message 4", "5 $")
        self.wait_for("the mark of a dollar sign",
                      lambda: self.pane.find("Message 4: Ends at \u201c$\u201d"))

    def test_what_has_no_effect_is_off(self):
        self.start_with("")
        self.open_pane()
        self.expect_states({"Ultimatic priority": False, "Pitch": True, "Lead-in": False,
                            "Tail": False, "Paddle hang": False, "Switchpoint": True})
        self.control("PTT enabled").press()
        self.control("Sidetone on").press()
        self.control("Dit/dah memory").press()
        self.turn_to("Paddle")
        self.pick("Key mode", "Ultimatic")
        self.expect_states({"Ultimatic priority": True, "Pitch": False, "Lead-in": True,
                            "Tail": True, "Paddle hang": True, "Switchpoint": False})
        self.assertIsNotNone(self.pane.find("Reset \u201cSidetone on\u201d to its default, on"))

    def test_a_refused_character_changes_nothing(self):
        self.start_with("")
        self.open_preferences()
        self.type_into("My call", "w1aw")
        self.wait_for_setting("MyCall=W1AW")
        self.desktop.press("ctrl+a")
        self.desktop.type("-!")
        self.desktop.press("End")
        self.desktop.type("/p")
        self.wait_for_setting("MyCall=W1AW/P")
        self.desktop.press("ctrl+z")
        self.wait_for_setting("MyCall=W1AW\n", "MyCall=N0CALL\n")

    def test_the_window_is_centred_from_the_first(self):
        self.start_with("")
        places = []
        for _ in range(2):
            self.open_preferences()
            self.wait_for("a place at rest", self.is_at_rest)
            places.append(self.place())
            self.desktop.press("ctrl+w")
            self.wait_for("the end of the window", lambda: not self.pane.is_in_state("active"))
        self.assertEqual(places[0], places[1])

    def expect_states(self, states):
        for name, is_on in states.items():
            self.wait_for(f"{name} {'on' if is_on else 'off'}",
                          lambda: self.control(name).is_in_state("enabled") == is_on)

    def wait_for_setting(self, *lines):
        self.wait_for(lines, lambda: any(each in self.settings.read_text() for each in lines))

    def is_told(self, beginning):
        return any(each.role() == "label" and each.is_in_state("showing")
                   and each.name().startswith(beginning) for each in self.pane.all())

    def wait_for_words(self, words):
        """In a label that can be seen."""
        try:
            self.wait_for(words, lambda: self.is_told(words))
        except AssertionError as error:
            raise AssertionError(f"{error} in {self.pane.describe()}") from error

    def windows(self):
        found = self.desktop.xdotool("search", "--onlyvisible", "--pid", self.quorvel.pid, "")
        return found.split()

    def place(self):
        told = self.desktop.xdotool("getactivewindow", "getwindowgeometry", "--shell")
        return told and [each for each in told.splitlines() if each[:2] in ("X=", "Y=")]

    def is_at_rest(self):
        """Twice the same within a while that a window manager takes for nothing."""
        before = self.place()
        self.desktop.press("shift")  # which the program has to look at after all that came before
        return before is not None and before == self.place()


if __name__ == "__main__":
    run_tests()
