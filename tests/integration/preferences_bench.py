"""What every test of the preferences does with them."""

from program import PORT, ProgramTest

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


class PreferencesBench(ProgramTest):
    def setUp(self):
        super().setUp()
        self.expected = dict(DEFAULTS)

    def start(self):
        self.keyer = self.start_keyer(POT_SPEED)
        self.quorvel = self.start_quorvel()
        self.application = self.active_window(self.quorvel)
        self.expect_registers("the settings")

    def start_with(self, settings):
        """Keyer and application, with these settings besides the port."""
        self.write_settings(SETTINGS + settings)
        self.keyer = self.start_keyer(POT_SPEED)
        self.quorvel = self.start_quorvel()
        self.application = self.active_window(self.quorvel)
        self.wait_for("the link", self.is_connected)
        self.expected = {name: self.keyer.registers()[name] for name in DEFAULTS}

    def open_preferences(self):
        self.desktop.press("ctrl+comma")

        def preferences():
            return next((each for each in self.application.children()
                         if each.is_in_state("active") and each.find("WinKeyer")), None)
        self.pane = self.wait_for("the preferences", preferences)
        self.controls = {}

    def open_pane(self):
        self.open_preferences()
        self.open_keyers_pane()

    def open_keyers_pane(self):
        self.controls = {}
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

    def open_messages(self):
        self.controls = {}
        self.pane.find("Messages").press()
        self.wait_for("the messages", lambda: self.pane.find("Beacon interval"))

    def is_connected(self):
        return self.application.find("Speed").description() == f"{POT_SPEED} WPM"
