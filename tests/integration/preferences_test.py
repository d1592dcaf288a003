"""The keyer's pane of the preferences, worked by what a screen reader sees of it, against the
registers of the keyer.

Usage: preferences_test.py QUORVEL VIRTUAL_KEYER [TEST...]
"""

from preferences_bench import SETTINGS, PreferencesBench
from program import PORT, run_tests

# Control, the number to set, and what the registers hold then.
KEYING = [
    ("Weighting", 12, {"weighting": 62}),
    ("Weighting", -40, {"weighting": 10}),
    ("Dah/dit ratio", 3.5, {"ratio": 58}),
    ("Compensation", 7, {"compensation": 7}),
    ("First extension", 25, {"first-extension": 25}),
    ("Farnsworth speed", 18, {"farnsworth": 18}),
]
TIMES = [
    ("Lead-in", 5, {"lead-in": 5}),
    ("Tail", 25, {"tail": 25}),
]
POT = [
    ("Range", 10, {"pot-range": 10, "wpm": 23}),
    ("Lowest speed", 35, {"pot-minimum": 35, "wpm": 35}),
]
# Check box, its register, and the bit there.
PADDLE_SWITCHES = [
    ("Swap paddles", "mode", 0x08), ("Autospace", "mode", 0x02),
    ("Disable watchdog", "mode", 0x80), ("Paddle echo-back", "mode", 0x40),
    ("Serial echo-back", "mode", 0x04)]
OUTPUT_SWITCHES = [
    ("Only for the paddle", "sidetone", 0x80), ("Sidetone on", "pin-configuration", 0x02),
    ("Key output 1", "pin-configuration", 0x04), ("Key output 2", "pin-configuration", 0x08),
    ("PTT enabled", "pin-configuration", 0x01)]
MESSAGES = ["CQ CQ DE N0CALL", "5NN 001", "TU", "QRL?", "TEST =", "73 / GL"]


class PreferencesTest(PreferencesBench):
    def test_the_registers_follow_every_control(self):
        self.write_settings(SETTINGS)
        self.start()
        self.open_pane()
        self.work_keying()
        self.work_paddle()
        self.work_sidetone_and_ptt()
        self.turn_to("Speed")
        self.set_numbers(POT)
        self.choose("Rate", "2000 lpm")
        self.wait_for("the rate", lambda: "WKHSCWSpeed=2000 lpm" in self.settings.read_text())

    def work_keying(self):
        self.turn_to("Keying")
        self.set_numbers(KEYING)
        self.toggle("Contest spacing", "mode", 0x01)
        self.type_into("Weighting", "8", "Return", weighting=58)
        self.type_into("First extension", "11", "Tab", **{"first-extension": 11})

        self.press("Reset Weighting to 0 %", weighting=50)
        self.press("Reset Dah/dit ratio to 3 : 1", ratio=50)
        self.assertNotIn("WKWeighting", self.settings.read_text())
        words = "Dit 47 ms, dah 127 ms, gap 33 ms, letter space 113 ms"
        self.assertEqual(self.control("Keyed wave of AN").description(),
                         f"{words}, first element 11 ms longer")

    def work_paddle(self):
        self.turn_to("Paddle")
        for title, bits in (("Bug", 0x30), ("Iambic B", 0x00), ("Ultimatic", 0x20)):
            self.choose("Key mode", title, mode=self.expected["mode"] & ~0x30 | bits)
        for title, bits in (("Dashes", 0x40), ("Dots", 0x80)):
            self.choose("Ultimatic priority", title, **{"pin-configuration": 0x06 | bits})
        self.set_numbers([("Switchpoint", 65, {"switchpoint": 65})])
        self.press("Dit/dah memory", switchpoint=0)
        self.press("Dit/dah memory", switchpoint=65)
        for switch in PADDLE_SWITCHES:
            self.toggle(*switch)

    def work_sidetone_and_ptt(self):
        self.turn_to("Sidetone and outputs")
        self.choose("Pitch", "1000 Hz", sidetone=0x84)
        for switch in OUTPUT_SWITCHES:
            self.toggle(*switch)
        self.choose("Paddle hang", "1.66",
                    **{"pin-configuration": self.expected["pin-configuration"] | 0x20})
        self.set_numbers(TIMES)

    def test_settings_last_in_the_keyer_and_in_the_program(self):
        self.write_settings(SETTINGS)
        self.start()
        self.open_pane()
        self.turn_to("Keying")
        self.set_numbers(KEYING)
        self.turn_to("Paddle")
        self.choose("Key mode", "Bug", mode=0x35)
        self.press("Dit/dah memory", switchpoint=0)
        self.toggle("Swap paddles", "mode", 0x08)
        self.save_messages()
        self.pane.find("Send 2").press()
        self.keyer.wait_for("message 2", lambda: self.keyer.keyed() == "5NN001")
        self.terminate(self.keyer, self.quorvel)

        self.start()
        self.open_pane()
        self.expect_everything_to_be_shown()

    def test_the_port_is_chosen(self):
        self.write_settings(SETTINGS)
        self.start()
        self.open_preferences()
        self.pick("Serial port", "None")
        self.wait_for("the end of the link", lambda: not self.is_connected())
        self.pick("Serial port", PORT)
        self.wait_for("the link", self.is_connected)
        # The port that is in use: the link goes down and comes up again.
        before = self.greetings()
        self.pick("Serial port", PORT)
        self.wait_for("another greeting", lambda: self.greetings() == before + 1)
        self.wait_for("the link again", self.is_connected)
        self.assertEqual(self.alerts(self.quorvel), [])
        self.terminate(self.keyer, self.quorvel)

    def test_call_and_messages_hold_at_once_and_last(self):
        self.write_settings(SETTINGS)
        self.start()
        self.open_preferences()
        self.type_into("My call", "w1aw")
        self.open_messages()
        self.type_into("Message 2 label", "Report")
        self.type_into("Message 2", "r 5nn` & #")
        self.control("Beacon interval").set_value(7.5)
        self.wait_for("the button's new name",
                      lambda: self.application.find("Message 2: Report"))
        self.application.find("Message 2: Report").press()
        self.keyer.wait_for("the new text", lambda: self.keyer.keyed() == "R5NNW1AWTT1")
        self.terminate(self.keyer, self.quorvel)

        self.start()
        self.open_preferences()
        self.open_messages()
        self.assertEqual(self.control("Message 2 label").text(), "Report")
        self.assertEqual(self.control("Message 2").text(), "R 5NN`  #")
        self.assertEqual(self.control("Beacon interval").value(), 7.5)
        self.assertIn("MyCall=W1AW", self.settings.read_text())

    def greetings(self):
        """How often the keyer has been asked for the test character."""
        return self.keyer.answers().count("55")

    def save_messages(self):
        self.turn_to("Standalone")
        for number, text in enumerate(MESSAGES, 1):
            self.type_into(f"Message {number}", text.lower())
        self.set_numbers([("Command speed", 15, {})])
        self.press("Message break")
        # Without echoes, which nobody hears there, and with the switchpoint in any case.
        memory = dict(self.expected, mode=0x39, switchpoint=50)
        del memory["wpm"]
        memory |= {"command-speed": 15, "extra-flags": 0x08}
        memory |= {f"message{number}": text for number, text in enumerate(MESSAGES, 1)}
        before = self.expected
        self.press("Save to keyer", **{f"memory-{name}": value for name, value in memory.items()})
        self.expected = before
        self.wait_for("the end of loading",
                      lambda: self.control("Send 2").is_in_state("enabled"))

    def expect_everything_to_be_shown(self):
        for name, number, _ in KEYING:
            if name != "Weighting":
                self.assertAlmostEqual(self.control(name).value(), number, msg=name)
        self.assertEqual(self.control("Weighting").value(), -40)
        self.assertEqual(self.control("Key mode").name(), "Bug")
        self.assertFalse(self.control("Dit/dah memory").is_in_state("checked"))
        self.assertTrue(self.control("Swap paddles").is_in_state("checked"))
        for number, text in enumerate(MESSAGES, 1):
            self.assertEqual(self.control(f"Message {number}").text(), text)
        self.assertEqual(self.control("Command speed").value(), 15)
        self.assertFalse(self.control("Message break").is_in_state("checked"))


if __name__ == "__main__":
    run_tests()
