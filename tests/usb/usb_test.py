"""The application's own serial and hot-plug code on the kernel's own driver and udev.

Usage: usb_test.py IMAGE VIRTUAL_KEYER [TEST...]
The modules of the integration tests have to be in PYTHONPATH.
"""

import contextlib
import os
import pathlib
import signal
import sys
import tempfile
import time
import traceback
import unittest

from far_end import FarEnd
from guest import ANOTHER, AS_NO_MEMBER, AS_USER, SEATED, Guest
from probe import PROBE_LOG, Probe
from report import Report

NAME = "usbserial-WK0001"
LONG_TEXT = "PARIS" * 100
SPIN = 0.5  # of a processor's time; what waits takes a twentieth, more on a busy host


class AdapterTest(unittest.TestCase):
    """The guest is one for all; each test starts with the adapter plugged in, and a new probe."""

    guest = None
    far_end = None
    quorvel = None

    def setUp(self):
        self.addCleanup(self.leave)
        self.probe = Probe(self.guest)

    def leave(self):
        """The next test finds the adapter where this one did, also when this one has failed."""
        self.guest.kill_started()
        if self.guest.is_plugged:
            self.guest.pull()
        self.guest.read("until ! ls /dev/ttyUSB*; do sleep 0.1; done")
        self.guest.plug()
        self.guest.read("until ls /dev/serial/by-id/*; do sleep 0.1; done; udevadm settle")

    def test_1_lists_the_adapter(self):
        """the adapter is listed by the name that its serial number gives it"""
        adapters = [each for each in self.probe.present if "usb" in each.lower()]
        self.assertEqual(adapters, [f"{NAME} /dev/ttyUSB0"])

    def test_2_sets_the_line(self):
        """the adapter is told 1200 baud, 8 data bits, no parity, 2 stop bits"""
        before = len(self.guest.line_settings())
        self.connect()
        told = dict(self.guest.line_settings()[before:])
        self.assertEqual(told, {"baud": "baud rate 1200",
                                "data": "parity N, data bits 8, stop bits 2"})

    def test_3_opens_for_itself_alone(self):
        """nobody else who may use serial ports can open the open port"""
        other = f"{AS_USER} stty -F /dev/ttyUSB0"
        self.assertEqual(self.guest.run(other)[0], 0)
        self.connect()
        status, output = self.guest.run(other)
        self.assertNotEqual(status, 0)
        self.assertIn("Device or resource busy", output)
        self.probe.quit()
        self.assertEqual(self.guest.run(other)[0], 0)

    def test_4_keys_a_session(self):
        """a typed text is echoed and keyed by the keyer behind the adapter"""
        self.connect()
        self.probe.expect("speed 90 WPM")
        self.type("CQ CQ DE N0CALL K")
        self.probe.quit()

    def test_5_survives_the_pulled_cable(self):
        """pulled out while it sends, the port is closed, nothing spins, and it comes back"""
        self.connect()
        self.assertEqual(len(self.probe.guards()), 1)
        self.start_long_text()
        with self.guest.udev_held():
            self.guest.pull()
            self.expect_idle("before udev told of it")
        self.expect_removed()
        self.expect_idle("without the adapter")
        # One that held the node would have the adapter come back on another.
        self.assertEqual(self.probe.guards(), [])
        self.plug("/dev/ttyUSB0")
        self.type("TEST AGAIN")

    def test_6_follows_it_to_another_node(self):
        """while somebody holds on to the old node, it comes back on another one"""
        self.guest.start(f"{AS_USER} sleep 1000 </dev/ttyUSB0")
        self.connect()
        self.start_long_text()
        self.guest.pull()
        self.expect_removed()
        self.plug("/dev/ttyUSB1")
        self.type("TEST ON THE OTHER")

    def test_7_lets_go_of_the_key_when_it_is_killed(self):
        """killed in tune, the key goes up, and the port is free for the next one"""
        self.connect()
        self.probe.tune()
        self.far_end.wait_for_key(True)
        self.probe.kill()
        self.far_end.wait_for_key(False)
        self.guest.read("while pgrep -x quorvel-key-gua; do sleep 0.1; done")
        self.assertEqual(self.guest.run(f"{AS_USER} stty -F /dev/ttyUSB0")[0], 0)

    def test_8_lets_in_who_sits_at_the_machine(self):
        """who sits at the machine may open the adapter without a group, and no modem service asks it"""
        look = "stty -F /dev/ttyUSB0"
        self.assertNotEqual(self.guest.run(f"{AS_NO_MEMBER.format(SEATED)} {look}")[0], 0)
        self.guest.seat(SEATED)
        # As when somebody logs in.
        self.guest.read("udevadm trigger --action=change --settle /dev/ttyUSB0")
        self.guest.read(f"{AS_NO_MEMBER.format(SEATED)} {look}")
        self.assertNotEqual(self.guest.run(f"{AS_NO_MEMBER.format(ANOTHER)} {look}")[0], 0)
        told = self.guest.read("udevadm info --query=property /dev/ttyUSB0")
        self.assertIn("ID_MM_DEVICE_IGNORE=1", told)

    def test_9_says_what_is_in_the_way(self):
        """the check of the ports tells a refused adapter, a held one and a keyer apart"""
        check = f"{self.quorvel} --check-ports 2>/dev/null"
        _, report = self.guest.run(f"{AS_NO_MEMBER.format(ANOTHER)} {check}")
        self.assertIn(f"{NAME} (/dev/ttyUSB0, FTDI FT232)", report)
        self.assertIn("You may not open it: the members of the group dialout may.", report)
        self.assertIn("Whoever sits at this machine may as well", report)
        before = len(self.guest.line_settings())
        status, report = self.guest.run(f"{AS_USER} {check}")
        self.assertEqual(status, 0, report)
        self.assertIn("Nothing is in the way.", report)
        self.assertEqual(self.guest.line_settings()[before:], [])
        status, report = self.guest.run(
            f"{AS_USER} {self.quorvel} --check-ports --ask-keyer {NAME} 2>/dev/null")
        self.assertEqual(status, 0, report)
        self.assertIn("A keyer answers on it.", report)
        self.guest.start(f"{AS_USER} sleep 1000 </dev/ttyUSB0")
        _, report = self.guest.run(f"{AS_USER} {check}")
        self.assertIn("Another program has it open: sleep (process", report)

    def connect(self):
        self.assertEqual(self.probe.choose(NAME),
                         [f"opened {NAME} /dev/ttyUSB0", "keyer connected"])

    def type(self, text):
        self.probe.type(text)
        self.far_end.wait_until_keyed(text.replace(" ", ""))

    def start_long_text(self):
        self.probe.type(LONG_TEXT)
        self.far_end.wait_for_keying()

    def expect_removed(self):
        # The port is closed before the link to the keyer is taken down, which would try to use it.
        self.assertEqual(self.probe.expect("keyer .*")[-5:], [
            f"closed {NAME} /dev/ttyUSB0", "speed ",
            f"alert The WinKeyer using serial port {NAME} has been unplugged.",
            f"removed {NAME} /dev/ttyUSB0", "keyer disconnected"])
        self.assertEqual(self.probe.open_ports(), [])

    def expect_idle(self, when):
        """A pulled adapter's descriptor is readable for ever; a loop over it takes all time."""
        busy = self.probe.processor_time_during(2)
        print(f"  {when} the application was busy for {busy:.2f} of 2 s")
        self.assertLess(busy, 2 * SPIN)

    def plug(self, node):
        self.guest.plug()
        self.assertEqual(self.probe.expect("keyer .*"), [
            f"alert The serial port {NAME} has been plugged in.",
            f"opened {NAME} {node}", f"arrived {NAME} {node}", "keyer connected"])


def private_environment(directory):
    return {"PATH": os.environ["PATH"], "LC_ALL": "C.UTF-8", "XDG_RUNTIME_DIR": str(directory)}


def run(image, virtual_keyer, names, report):
    with contextlib.ExitStack() as stack:
        directory = pathlib.Path(stack.enter_context(
            tempfile.TemporaryDirectory(prefix="quorvel-usb.")))
        environment = private_environment(directory)
        begin = time.monotonic()
        guest = AdapterTest.guest = Guest(image, directory, environment)
        stack.callback(guest.end)
        print(f"the guest has booted ({time.monotonic() - begin:.1f} s)", flush=True)
        AdapterTest.quorvel = pathlib.Path(virtual_keyer).resolve().with_name("quorvel")
        far_end = AdapterTest.far_end = FarEnd(virtual_keyer, guest.wire(), directory, environment)
        stack.callback(far_end.end)
        loader = unittest.TestLoader()
        loader.testNamePatterns = [f"*{each}*" for each in names] or None
        loader.loadTestsFromTestCase(AdapterTest).run(report)
        if report.failed:
            print(f"The guest said last:\n{guest.log()}\n{guest.run(f'cat {PROBE_LOG}')[1]}")


def stop(*_):
    signal.signal(signal.SIGTERM, signal.SIG_IGN)
    # unittest takes everything else for the failure of a test.
    raise KeyboardInterrupt


def main():
    signal.signal(signal.SIGTERM, stop)
    report = Report()
    try:
        run(sys.argv[1], sys.argv[2], sys.argv[3:], report)
    except KeyboardInterrupt:
        report.failed += 1
        print("stopped before the end, which counts as one failed test")
    except Exception:
        report.failed += 1
        traceback.print_exc()
        print("the guest failed, which counts as one failed test")
    print(report.summary())
    return 0 if report.passed and not report.failed else 1


if __name__ == "__main__":
    sys.exit(main())
