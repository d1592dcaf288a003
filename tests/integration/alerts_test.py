"""Alerts that come up while the operator types.

Usage: alerts_test.py QUORVEL VIRTUAL_KEYER [TEST...]
"""

import threading

from program import PLUGGED_IN, UNPLUGGED, Keyer, ProgramTest, run_tests

# With spaces, which press buttons, and letters that stand on some.
SENTENCE = "yes and no one knows why " * 4


class AlertsTest(ProgramTest):
    def test_what_is_typed_answers_nothing(self):
        keyer, quorvel, window = self.start_connected()
        self.while_typing(quorvel, UNPLUGGED, keyer.end)
        self.answer_alert(quorvel, UNPLUGGED)
        self.active_window(quorvel)

        keyer = self.while_typing(quorvel, PLUGGED_IN,
                                  lambda: Keyer(self.environment, self.home))
        # A "Yes" would have opened the port.
        self.assertEqual(keyer.answers(), [])
        self.answer_alert(quorvel, PLUGGED_IN)
        self.wait_for_speed(quorvel, window)
        self.active_window(quorvel)
        self.desktop.type("test")
        keyer.has_keyed("TEST")
        self.terminate(keyer, quorvel)

    def test_a_window_that_opens_while_typing_takes_no_key(self):
        """It is no alert, which sees to it itself."""
        keyer, quorvel, window = self.start_connected()
        self.desktop.press("ctrl+j")
        quorvel.wait_for("the record", lambda: "Sent" in self.desktop.active_title())
        application = self.desktop.application(quorvel.pid)
        save = quorvel.wait_for("its buttons", lambda: application.find("Save as CSV…"))
        typing = self.begin_to_type()
        save.press()
        dialog = quorvel.wait_for("the choice of a file", lambda: self.window(quorvel, "Save as CSV"))
        field = quorvel.wait_for("a name", lambda: next(
            (each for each in dialog.all() if each.role() == "text"), None))
        self.assertTrue(typing.is_alive(), "the sentence was too short")
        typing.join()
        self.assertEqual(field.text(), "sent.csv")
        self.assertEqual(dialog.refresh().name(),
                         "Save as CSV – takes keys when you have stopped typing")
        quorvel.wait_for("it to take keys", lambda: dialog.refresh().name() == "Save as CSV")
        self.desktop.type("x")
        quorvel.wait_for("another name", lambda: field.refresh().text() == "x")
        self.desktop.press("Escape")
        quorvel.wait_for("the end of the choice",
                         lambda: self.window(quorvel, "Save as CSV") is None)
        self.assertEqual(keyer.keyed(), "")
        self.terminate(keyer, quorvel)

    def window(self, quorvel, name):
        """Once it has the keyboard."""
        return next((each for each in self.desktop.application(quorvel.pid).children()
                     if each.name().startswith(name) and each.is_in_state("active")), None)

    def begin_to_type(self):
        typing = threading.Thread(target=self.desktop.type, args=(SENTENCE, 120))
        typing.start()
        return typing

    def while_typing(self, quorvel, text, action):
        """Does something in mid-sentence that brings an alert, which must outlast the sentence.
        Yields what the action does."""
        typing = self.begin_to_type()
        done = action()
        self.wait_for_alert(quorvel, text)
        self.assertTrue(typing.is_alive(), "the sentence was too short")
        typing.join()
        alert = self.wait_for_alert(quorvel, text)
        self.assertTrue(self.is_shielded(alert), alert.describe())
        return done


if __name__ == "__main__":
    run_tests()
