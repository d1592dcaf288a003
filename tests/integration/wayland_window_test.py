"""What the operator does in the main window, and what comes up while he types, on a Wayland desktop.

Usage: wayland_window_test.py QUORVEL VIRTUAL_KEYER [TEST...]
"""

import unittest

import alerts_test
import held_key_test
import main_window_test
import whole_program_test
from program import run_tests
from wayland_desktop import WaylandDesktop


class WaylandWindowTest(alerts_test.AlertsTest, held_key_test.HeldKeyTest,
                        main_window_test.MainWindowTest, whole_program_test.WholeProgramTest):
    desktop_kind = WaylandDesktop


# Where the compositor has a hand in it: keys, clicks, menus, and which window has the keyboard.
CHOSEN = [
    "test_what_is_typed_answers_nothing",
    "test_escape_stops",
    "test_escape_stops_from_a_menu_and_from_the_guide",
    "test_a_screen_repeats_a_held_key",
    "test_tune_switches_once",
    "test_a_shortcut_whose_modifier_goes_first_is_no_text",
    "test_a_message_is_sent_once",
    "test_by_keyboard_alone",
    "test_after_a_click_on_a_button_and_a_menu_text_is_text",
    "test_the_preferences_take_no_message_key_and_let_quit",
]


def load_tests(_loader, _tests, _pattern):
    return unittest.TestSuite(map(WaylandWindowTest, CHOSEN))


if __name__ == "__main__":
    run_tests()
