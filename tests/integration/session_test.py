"""Quorvel in its session: started twice, with a damaged settings file, and without a bus.

Usage: session_test.py QUORVEL VIRTUAL_KEYER [TEST...]
"""

import contextlib
import os
import select
import signal
import subprocess
import tty

from program import NO_PORT, PORT, QUORVEL, SETTINGS, ProgramTest, run_tests


def guards_of(quorvel):
    """The processes of its key guards."""
    found = subprocess.run(["pgrep", "-P", str(quorvel.pid), "quorvel-key-gua"], text=True,
                           stdout=subprocess.PIPE, check=False)
    return [int(each) for each in found.stdout.split()]


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
        self.answer_alert(first, NO_PORT)
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

    def test_a_line_that_takes_nothing_does_not_hold_up_the_end(self):
        far_end, line = os.openpty()
        self.addCleanup(os.close, far_end)
        self.addCleanup(os.close, line)
        ports = self.runtime / "quorvel/ports"
        ports.mkdir(parents=True, mode=0o700)
        (ports / PORT).symlink_to(os.ttyname(line))
        # Else there is room again once the program has made it raw.
        tty.setraw(line)
        os.set_blocking(line, False)
        # What is full is not so for long, until the far end's buffer has no room either.
        while select.select([], [line], [], 0.5)[1]:
            with contextlib.suppress(BlockingIOError):
                os.write(line, b"|" * 4096)
        self.write_settings(SETTINGS)
        quorvel = self.start_quorvel()
        window = self.active_window(quorvel)
        quorvel.wait_for("the link", lambda: window.find("Keyer status").description().startswith(
            f"Connected to {PORT}"))
        self.desktop.press("ctrl+t")
        quorvel.wait_for("tune", lambda: window.find("Tune").is_in_state("checked"))
        self.assertEqual(quorvel.end(), 0)

    def test_without_a_bus_it_runs(self):
        keyer = self.start_keyer()
        self.write_settings(SETTINGS)
        self.environment["DBUS_SESSION_BUS_ADDRESS"] = "unix:path=/nowhere"
        quorvel = self.start_quorvel()
        keyer.wait_for("the greeting", lambda: keyer.answers()[-1:] and
                       0x80 <= int(keyer.answers()[-1], 16) < 0xC0)
        self.terminate(keyer, quorvel)

    def test_without_a_bus_a_second_start_leaves_the_first_alone(self):
        keyer = self.start_keyer()
        self.write_settings(SETTINGS)
        self.environment["DBUS_SESSION_BUS_ADDRESS"] = "unix:path=/nowhere"
        first = self.start_quorvel()
        keyer.wait_for("the greeting", lambda: keyer.answers()[-1:] and
                       0x80 <= int(keyer.answers()[-1], 16) < 0xC0)
        second = self.start_quorvel()
        second.wait_for("the message", lambda: "running already" in second.errors())
        second.wait_for("the alert", lambda: self.desktop.active_process() == second.pid)
        self.desktop.press("Return")
        self.assertEqual(second.status(), 1)
        self.assertIn(f"WKPortName={PORT}", self.settings.read_text())
        self.terminate(keyer, first)

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

    def test_the_next_start_lets_go_of_a_key_that_nobody_else_could(self):
        """Whatever ended the program ended its guard as well."""
        keyer, quorvel, window = self.start_connected()
        window.find("Tune").press()
        keyer.wait_for("the key", keyer.is_key_down)
        for guard in guards_of(quorvel):
            os.kill(guard, signal.SIGKILL)
        # It replaces one that is killed, once.
        quorvel.wait_for("another guard", lambda: guards_of(quorvel))
        for process in guards_of(quorvel) + [quorvel.pid]:
            os.kill(process, signal.SIGSTOP)
        for process in guards_of(quorvel) + [quorvel.pid]:
            os.kill(process, signal.SIGKILL)
        quorvel.status()
        self.assertTrue(keyer.is_key_down())

        quorvel = self.start_quorvel()
        window = self.active_window(quorvel)
        keyer.wait_for("the key to rise", lambda: not keyer.is_key_down())
        quorvel.wait_for("the notice", lambda: any(
            "ended while tune was on" in each.name() for each in window.all()))
        window.find("Close notice").press()
        quorvel.wait_for("the notice to go", lambda: not any(
            "ended while tune was on" in each.name() and each.is_in_state("showing")
            for each in window.all()))
        self.terminate(keyer, quorvel)
        self.assertFalse((self.home / "state/quorvel/keying").exists())

    def test_a_program_that_hangs_in_tune_loses_the_key_and_goes_on(self):
        keyer, quorvel, window = self.start_connected()
        window.find("Tune").press()
        keyer.wait_for("the key", keyer.is_key_down)
        quorvel.send(signal.SIGSTOP)
        keyer.wait_for("the key to rise", lambda: not keyer.is_key_down())
        quorvel.send(signal.SIGCONT)
        quorvel.wait_for("the notice", lambda: any(
            "did not react" in each.name() for each in window.all()))
        quorvel.wait_for("Tune to be off", lambda: not window.find("Tune").is_in_state("checked"))
        self.wait_for_speed(quorvel, window)
        self.desktop.type("k")
        keyer.wait_for("the letter", lambda: keyer.keyed().endswith("K"))
        self.terminate(keyer, quorvel)

    def test_a_damaged_settings_file_is_put_aside_and_reported(self):
        self.write_settings("this is no setting")
        quorvel = self.start_quorvel()
        self.answer_alert(quorvel, "Your settings could not be read.")
        self.answer_alert(quorvel, NO_PORT)
        self.assertEqual(quorvel.end(), 0)
        aside = list(self.settings.parent.glob("quorvel.conf.corrupt-*"))
        self.assertEqual([each.read_text() for each in aside], ["this is no setting"])


if __name__ == "__main__":
    run_tests()
