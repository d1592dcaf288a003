"""What a desktop does to a program: other programs on its port, its files gone wrong, a bad moment
to end.

Usage: trouble_test.py QUORVEL VIRTUAL_KEYER [TEST...]
"""

import os
import pathlib
import select
import signal
import sys
import time
import tty

from port import Port
from process import Process
from program import PORT, SETTINGS, UNPLUGGED, ProgramTest, run_tests
from waiting import wait_for


FLOOD = pathlib.Path(__file__).with_name("activation_flood.py")
SECONDS_OF_TALK = 8


def megabytes(pid):
    """What a process has of the memory."""
    pages = int(pathlib.Path(f"/proc/{pid}/statm").read_text().split()[1])
    return pages * os.sysconf("SC_PAGESIZE") / 1e6


class TroubleTest(ProgramTest):
    def link(self):
        return self.runtime / "quorvel/ports" / PORT

    def test_a_keyer_that_goes_while_it_is_being_left_holds_nobody_up(self):
        # The host close fails, and nobody may be there to read of it.
        for pause in (0, 0.02, 0.05):
            with self.subTest(pause=pause):
                keyer = self.start_keyer()
                if not self.settings.exists():
                    self.write_settings(SETTINGS)
                self.settings.write_text(SETTINGS)
                quorvel = self.start_quorvel()
                self.wait_for_speed(quorvel, self.active_window(quorvel))
                quorvel.send(signal.SIGTERM)
                time.sleep(pause)
                keyer.end(signal.SIGKILL)
                start = time.monotonic()
                self.assertEqual(quorvel.status(), 0)
                self.assertLess(time.monotonic() - start, 15)

    def test_it_ends_with_a_menu_open(self):
        keyer, quorvel, _ = self.start_connected()
        self.desktop.press("F10")
        self.desktop.press("Down")
        self.terminate(keyer, quorvel)

    def test_a_lock_that_was_left_behind_holds_nobody_up(self):
        self.write_settings(SETTINGS)
        keyer = self.start_keyer()
        for lock in ("without a lock", "with a lock that was left behind"):
            with self.subTest(lock):
                if lock.startswith("with "):
                    self.settings.with_suffix(".conf.lock").touch()
                start = time.monotonic()
                quorvel = self.start_quorvel()
                self.wait_for_speed(quorvel, self.active_window(quorvel))
                seconds = time.monotonic() - start
                print(f"From the start to the keyer's speed {lock}: {seconds:.1f} s")
                self.assertLess(seconds, 20)
                self.assertEqual(quorvel.end(), 0)
        self.assertEqual(keyer.end(), 0)

    def test_settings_that_cannot_be_stored_are_told_of(self):
        keyer, quorvel, _ = self.start_connected()
        self.settings.unlink()
        self.settings.mkdir()
        self.answer_alert(quorvel, "Your settings cannot be stored.")
        self.assertIn(f"Settings are not stored in {self.settings}: Is a directory",
                      quorvel.errors())
        keyer.end(signal.SIGKILL)
        self.answer_alert(quorvel, UNPLUGGED)
        self.settings.rmdir()
        wait_for("the settings to be stored", self.settings.is_file)
        self.assertIn(PORT, self.settings.read_text())
        self.assertEqual(quorvel.end(), 0)

    def test_a_port_that_another_program_reads_is_refused_by_name(self):
        keyer = self.start_keyer()
        self.write_settings(SETTINGS)
        with Port(self.link()):
            quorvel = self.start_quorvel()
            self.answer_alert(quorvel, f"Unable to open the WinKeyer serial port {PORT}.")
            self.assertIn(f"{PORT} is in use by python3 (process {os.getpid()})",
                          quorvel.errors())
            self.assertEqual(quorvel.end(), 0)
        self.assertEqual(keyer.end(), 0)

    def leave_link_behind(self, terminal):
        """What a keyer that could not clean up leaves behind, until a terminal cannot be its own any
        more; the terminal, which is another one where somebody has used the number again."""
        while True:
            os.symlink(terminal, self.link())
            time.sleep(1.1)
            if not os.path.exists(terminal):
                return terminal
            os.unlink(self.link())
            # The lowest numbers are used first.
            ends = [each for _ in range(20) for each in os.openpty()]
            terminal = os.ttyname(ends[-1])
            for each in ends:
                os.close(each)

    def test_the_terminal_of_a_killed_keyer_is_nobodys_port(self):
        keyer = self.start_keyer()
        terminal = os.readlink(self.link())
        keyer.end(signal.SIGKILL)
        wait_for("the link to go", lambda: not os.path.lexists(self.link()))
        self.write_settings(SETTINGS)
        terminal = self.leave_link_behind(terminal)
        shells = []
        self.addCleanup(lambda: [os.close(each) for each in shells])
        while not os.path.exists(terminal):
            shells.extend(os.openpty())
        quorvel = self.start_quorvel()
        self.answer_alert(quorvel, f"The WinKeyer serial port {PORT} is not available.")
        self.assertEqual(quorvel.end(), 0)
        self.assertEqual(select.select(shells, [], [], 0)[0], [])

    def test_calls_without_end_do_not_hold_the_stop_key_up(self):
        keyer, quorvel, window = self.start_connected()
        self.press_switch(quorvel, window, "Tune")
        keyer.wait_for("the key", keyer.is_key_down)
        flood = Process([sys.executable, "-B", FLOOD], self.environment, self.home)
        self.addCleanup(flood.end, signal.SIGKILL)
        flood.wait_for("calls", lambda: len(flood.output().split()) > 100)
        start, held_up = time.monotonic(), quorvel.held_up()
        self.desktop.press("Escape")
        keyer.wait_for("the key to rise", lambda: not keyer.is_key_down())
        taken = time.monotonic() - start
        waited = quorvel.held_up() - held_up
        print(f"{flood.output().split()[-1]} calls; the stop took {taken:.2f} s, "
              f"{waited:.2f} s of it for a processor")
        self.assertLess(taken - waited, 1.5)
        flood.end(signal.SIGKILL)
        self.terminate(keyer, quorvel)

    def test_a_far_end_that_talks_without_end_fills_no_memory(self):
        far_end, near_end = os.openpty()
        tty.setraw(near_end)
        self.addCleanup(os.close, far_end)
        self.link().parent.mkdir(parents=True, mode=0o700)
        self.link().parent.parent.chmod(0o700)
        os.symlink(os.ttyname(near_end), self.link())
        os.close(near_end)
        self.write_settings(SETTINGS)
        quorvel = self.start_quorvel()
        self.active_window(quorvel)
        before = megabytes(quorvel.pid)
        os.set_blocking(far_end, False)
        said, end = 0, time.monotonic() + SECONDS_OF_TALK
        while time.monotonic() < end:
            if select.select([], [far_end], [], 0.1)[1]:
                said += os.write(far_end, b"\x9f" * 4096)
        after = megabytes(quorvel.pid)
        print(f"{said / 1e6:.1f} MB said in {SECONDS_OF_TALK} s; {before:.0f} MB of memory "
              f"before, {after:.0f} MB then")
        self.assertGreater(said, 20_000)
        self.assertLess(after - before, 20)
        self.assertEqual(quorvel.end(), 0)


if __name__ == "__main__":
    run_tests()
