"""The keyer's pane of the preferences, worked by what a screen reader sees of it, against the
registers of the keyer.

Usage: preferences_test.py QUORVEL VIRTUAL_KEYER [TEST...]
"""

from program import PORT, ProgramTest, run_tests

# Everything at its default but the port, so that nothing of it is in the file.
SETTINGS = f"""[General]
WKPortName={PORT}
MyCall=N0CALL
"""

# Where the speed pot stands, within the default range.
POT_SPEED = 30

DEFAULTS = {
    "mode": 0x15, "speed": 0, "sidetone": 0x8A, "weighting": 50, "lead-in": 0, "tail": 10,
    "pot-minimum": 13, "pot-range": 32, "first-extension": 0, "compensation": 0, "farnsworth": 10,
    "switchpoint": 50, "ratio": 50, "pin-configuration": 0x06, "wpm": POT_SPEED}

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
    ("Sidetone on", "pin-configuration", 0x02), ("Only for the paddle", "sidetone", 0x80),
    ("Key output 1", "pin-configuration", 0x04), ("Key output 2", "pin-configuration", 0x08),
    ("PTT enabled", "pin-configuration", 0x01)]
MESSAGES = ["CQ CQ DE N0CALL", "5NN 001", "TU", "QRL?", "TEST =", "73 / GL"]


class PreferencesTest(ProgramTest):
    def setUp(self):
        super().setUp()
        self.expected = dict(DEFAULTS)

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
        for title, bits in (("Bug", 0x30), ("Ultimatic", 0x20), ("Iambic B", 0x00)):
            self.choose("Key mode", title, mode=self.expected["mode"] & ~0x30 | bits)
        for title, bits in (("Dashes", 0x40), ("Dots", 0x80)):
            self.choose("Ultimatic priority", title, **{"pin-configuration": 0x06 | bits})
        self.set_numbers([("Switchpoint", 65, {"switchpoint": 65})])
        self.press("Dit/dah memory", switchpoint=0)
        self.press("Dit/dah memory", switchpoint=65)
        for switch in PADDLE_SWITCHES:
            self.toggle(*switch)

    def work_sidetone_and_ptt(self):
        self.turn_to("Sidetone and PTT")
        for switch in OUTPUT_SWITCHES:
            self.toggle(*switch)
        self.choose("Pitch", "1000 Hz", sidetone=self.expected["sidetone"] & 0x80 | 4)
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

    def open_messages(self):
        self.pane.find("Messages").press()
        self.wait_for("the messages", lambda: self.pane.find("Beacon interval"))

    def is_connected(self):
        return self.application.find("Speed").description() == f"{POT_SPEED} WPM"

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

    # What the operator does.

    def start(self):
        self.keyer = self.start_keyer(POT_SPEED)
        self.quorvel = self.start_quorvel()
        self.application = self.active_window(self.quorvel)
        self.expect_registers("the settings")

    def open_preferences(self):
        self.desktop.press("ctrl+comma")

        def preferences():
            return next((each for each in self.application.children()
                         if each.is_in_state("active") and each.find("WinKeyer")), None)
        self.pane = self.wait_for("the preferences", preferences)
        self.controls = {}

    def open_pane(self):
        self.open_preferences()
        self.pane.find("WinKeyer").press()
        self.wait_for("the keyer's pane", lambda: self.pane.find("Groups of settings"))

    def turn_to(self, group):
        tabs = next(each for each in self.pane.all() if each.role() == "page tab list")
        next(each for each in tabs.children() if each.name() == group).press()
        self.wait_for(group, lambda: tabs.name() == group)  # it is named after the tab in front

    def control(self, name):
        """Looked for once: all of the pane are there from its opening on."""
        if name not in self.controls:
            self.controls[name] = self.pane.labelled(name) or self.pane.find(name)
            self.assertIsNotNone(self.controls[name], f"{name} in {self.pane.describe()}")
        return self.controls[name]

    def set_numbers(self, steps):
        for name, number, changes in steps:
            self.control(name).set_value(number)
            self.expect(f"{name} {number}", changes)

    def toggle(self, name, register, bit):
        was_on = self.control(name).is_in_state("checked")
        self.assertEqual(was_on, bool(self.expected[register] & bit))
        self.press(name, **{register: self.expected[register] ^ bit})
        self.assertEqual(self.control(name).is_in_state("checked"), not was_on)

    def press(self, name, **changes):
        self.control(name).press()
        self.expect(name, changes)

    def choose(self, name, title, **changes):
        self.pick(name, title)
        self.expect(f"{name} {title}", changes)

    def pick(self, name, title):
        control = self.control(name)
        items = next(each for each in control.all() if each.role() == "list")
        titles = [each.name() for each in items.children()]
        control.press()
        self.wait_for("the list", lambda: items.is_in_state("showing"))
        for key in ["Home", *["Down"] * titles.index(title), "Return"]:
            self.desktop.press(key)
        self.wait_for(title, lambda: control.name() == title)  # it is named after what is chosen

    def type_into(self, name, text, key=None, **changes):
        control = self.control(name)
        control.focus()
        self.wait_for(f"the focus of {name}", lambda: control.is_in_state("focused"))
        self.desktop.press("ctrl+a")
        self.desktop.type(text)
        if key:
            self.desktop.press(key)
        self.expect(f"{name} {text}", changes)

    def expect(self, cause, changes):
        self.expected = self.expected | changes
        self.expect_registers(cause)

    def expect_registers(self, cause):
        """All of them, so that nothing else may have changed either."""
        expected = {name: str(value) for name, value in self.expected.items()}

        def held():
            registers = self.keyer.registers()
            return {name: registers[name] for name in expected}
        try:
            self.wait_for(cause, lambda: held() == expected)
        except AssertionError as error:
            raise AssertionError(f"{error}: {held()} instead of {expected}") from error

    def wait_for(self, what, condition):
        return self.quorvel.wait_for(what, condition)


if __name__ == "__main__":
    run_tests()
