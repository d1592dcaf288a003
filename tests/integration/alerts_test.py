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

    def while_typing(self, quorvel, text, action):
        """Does something in mid-sentence that brings an alert, which must outlast the sentence.
        Yields what the action does."""
        typing = threading.Thread(target=self.desktop.type, args=(SENTENCE, 120))
        typing.start()
        done = action()
        self.wait_for_alert(quorvel, text)
        self.assertTrue(typing.is_alive(), "the sentence was too short")
        typing.join()
        alert = self.wait_for_alert(quorvel, text)
        self.assertTrue(self.is_shielded(alert), alert.describe())
        return done


if __name__ == "__main__":
    run_tests()
