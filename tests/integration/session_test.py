"""Quorvel in its session: started twice, with a damaged settings file, and without a bus.

Usage: session_test.py QUORVEL VIRTUAL_KEYER [TEST...]
"""

import os
import signal

from program import PORT, QUORVEL, SETTINGS, ProgramTest, run_tests


class SessionTest(ProgramTest):
    def test_a_second_start_raises_the_first_one(self):
        keyer, quorvel, _ = self.start_connected()
        self.desktop.xdotool("windowminimize", self.desktop.xdotool("getactivewindow"))
        quorvel.wait_for("the window to go",
                         lambda: self.desktop.active_process() != quorvel.pid)
        second = self.start_quorvel()
        self.assertEqual(second.status(), 0)
        self.active_window(quorvel)
        self.desktop.type("k")
        keyer.has_keyed("K")
        self.terminate(keyer, quorvel)

    def test_a_second_start_does_not_wait_for_one_that_hangs(self):
        self.write_settings(SETTINGS.replace(PORT, "None"))
        first = self.start_quorvel()
        self.answer_alert(first, "There is no port defined for the WinKeyer.")
        os.kill(first.pid, signal.SIGSTOP)
        second = self.start_quorvel()
        second.wait_for("the message", lambda: "does not answer" in second.errors())
        second.wait_for("the alert", lambda: self.desktop.active_process() == second.pid)
        self.desktop.press("Return")
        self.assertEqual(second.status(), 1)
        os.kill(first.pid, signal.SIGCONT)
        self.assertEqual(first.end(), 0)

    def test_it_takes_the_place_of_one_that_is_quitting(self):
        keyer, first, _ = self.start_connected()
        os.kill(first.pid, signal.SIGTERM)
        second = self.start_quorvel()
        self.assertEqual(first.status(), 0)
        window = self.active_window(second)
        self.wait_for_speed(second, window)
        self.terminate(keyer, second)

    def test_it_outlives_the_reader_of_its_log(self):
        keyer = self.start_keyer()
        self.write_settings(SETTINGS)
        quorvel = self.start_quorvel(["bash", "-c", 'exec "$0" 2> >(exec true)', QUORVEL])
        window = self.active_window(quorvel)
        self.wait_for_speed(quorvel, window)
        self.desktop.press("ctrl+t")
        keyer.wait_for("the key", keyer.is_key_down)
        self.press_switch(quorvel, window, "High-speed CW")  # which is logged
        self.desktop.press("Escape")
        quorvel.wait_for("the key to rise", lambda: not keyer.is_key_down())
        self.terminate(keyer, quorvel)

    def test_without_a_bus_it_runs(self):
        keyer = self.start_keyer()
        self.write_settings(SETTINGS)
        self.environment["DBUS_SESSION_BUS_ADDRESS"] = "unix:path=/nowhere"
        quorvel = self.start_quorvel()
        keyer.wait_for("the greeting", lambda: keyer.answers()[-1:] and
                       0x80 <= int(keyer.answers()[-1], 16) < 0xC0)
        self.terminate(keyer, quorvel)

    def test_the_keyer_is_left_when_the_screen_goes(self):
        screen, self.environment["DISPLAY"] = self.desktop.start_screen()
        keyer = self.start_keyer()
        self.write_settings(SETTINGS)
        quorvel = self.start_quorvel()
        window = quorvel.wait_for("the window", lambda: self.desktop.application(quorvel.pid))
        quorvel.wait_for("the speed", lambda: window.find("Speed") is not None)
        self.wait_for_speed(quorvel, window)
        window.find("Tune").press()
        keyer.wait_for("the key", keyer.is_key_down)
        screen.end()
        self.assertNotEqual(quorvel.status(), 0)
        self.assertFalse(keyer.is_key_down())
        self.expect_closed(keyer)

    def test_a_program_that_is_killed_in_tune_leaves_the_key_up(self):
        keyer, quorvel, window = self.start_connected()
        window.find("Tune").press()
        keyer.wait_for("the key", keyer.is_key_down)
        self.assertEqual(quorvel.end(signal.SIGKILL), -signal.SIGKILL)
        keyer.wait_for("the key to rise", lambda: not keyer.is_key_down())
        keyer.wait_for("the end of host mode", keyer.is_left)
        self.expect_closed(keyer)

    def test_a_program_that_hangs_in_tune_loses_the_key_and_goes_on(self):
        keyer, quorvel, window = self.start_connected()
        window.find("Tune").press()
        keyer.wait_for("the key", keyer.is_key_down)
        quorvel.send(signal.SIGSTOP)
        keyer.wait_for("the key to rise", lambda: not keyer.is_key_down())
        quorvel.send(signal.SIGCONT)
        quorvel.wait_for("Tune to be off", lambda: not window.find("Tune").is_in_state("checked"))
        self.wait_for_speed(quorvel, window)
        self.desktop.type("k")
        keyer.wait_for("the letter", lambda: keyer.keyed().endswith("K"))
        self.terminate(keyer, quorvel)

    def test_a_damaged_settings_file_is_put_aside_and_reported(self):
        self.write_settings("this is no setting")
        quorvel = self.start_quorvel()
        self.answer_alert(quorvel, "Your settings could not be read.")
        self.answer_alert(quorvel, "There is no port defined for the WinKeyer.")
        self.assertEqual(quorvel.end(), 0)
        aside = list(self.settings.parent.glob("quorvel.conf.corrupt-*"))
        self.assertEqual([each.read_text() for each in aside], ["this is no setting"])


if __name__ == "__main__":
    run_tests()
