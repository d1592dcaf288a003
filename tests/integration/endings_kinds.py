"""The ways in which the application is ended, or may be, and what each has to come to. Each takes a
station and the name of the state that it is in."""

import pathlib
import signal
import time

from endings_states import HAS_ALERT, HAS_PREFERENCES, KEY_IS_DOWN, NOTHING_IS_KEYED, RECORDS
from endings_station import KEY_UP
from helper import Helper

HERE = pathlib.Path(__file__).parent
STOPPED = 10  # seconds
# The guard has to hear nothing for 3 s; its words take the line a sixth of a second, and the rest is
# the machine's.
KEY_UP_AFTER_SILENCE = 3.4

# Bytes, as patterns. Text may be on its way.
TEXT = "([45][0-9a-f] )*"
ONE_ON_ITS_WAY = "([45][0-9a-f])?"
CLEAR = "0a"
SILENCE = f"0b 00 {CLEAR}"
HOST_CLOSE = "00 03"
LEAVING = f"{TEXT}{SILENCE} {HOST_CLOSE}"
GUARDS_WORDS = f"{'13 ' * 15}{SILENCE} {HOST_CLOSE}"
KEY_UP_BYTES = "0b 00"
GREETING = "13 13 13 13 00 04 55 00 02 .* 07"


# What the next start says of a death, by what was kept.
DEATHS = {"tune\n": "Quorvel ended while tune was on",
          "sending\n": "Quorvel ended while it was sending"}


class Ending:
    """In order: key up, host closed, and gone."""

    status = 0

    def prepare(self, station):
        """What the environment of the application has to be."""
        return {}

    def end(self, station, state):
        raise NotImplementedError

    def expect(self, station, state):
        station.expect_gone(self.status)
        station.expect_key_up()
        station.expect_written(self.bytes(state))
        station.expect_guards(0)
        station.assertEqual(station.record(), "")

    def bytes(self, state):
        return HOST_CLOSE if state in NOTHING_IS_KEYED else LEAVING


class Quit(Ending):
    def end(self, station, state):
        if state in HAS_ALERT:
            # The first keys of an alert are kept from it.
            station.menu_item("Quit").press_unanswered()
        else:
            station.desktop.press("ctrl+q")


class WindowClosed(Ending):
    """The main window goes first, and with it all that is keyed or waits to be. An alert keeps it
    from being closed."""

    def end(self, station, state):
        station.dismiss_alerts()
        station.begin_ending()
        self._close(station, station.window_number)
        if state in HAS_ALERT | HAS_PREFERENCES | {"memory load"}:
            self._expect_of_main_window(station, state)
            station.begin_ending()
            self._close(station, station.quorvel.wait_for("the preferences",
                                                          lambda: self._other_window(station)))

    def bytes(self, state):
        if state in HAS_ALERT | HAS_PREFERENCES | {"memory load", "idle"}:
            return HOST_CLOSE
        if state == "beacon waiting":
            return f"{CLEAR} {HOST_CLOSE}"
        return f"{self._stop(state)} {SILENCE} {HOST_CLOSE}"

    def _stop(self, state):
        return f"{KEY_UP_BYTES} {CLEAR}" if state in KEY_IS_DOWN else f"{TEXT}{CLEAR}"

    def _expect_of_main_window(self, station, state):
        """It is over before the other window goes."""
        station.expect_key_up()
        station.expect_written("" if state == "memory load" else self._stop(state))

    def _other_window(self, station):
        number = station.desktop.xdotool("getactivewindow")
        return number if number != station.window_number and \
            station.desktop.active_process() == station.quorvel.pid else None

    def _close(self, station, number):
        station.desktop.xdotool("windowactivate", "--sync", number)
        station.desktop.press("alt+F4")


class Signal(Ending):
    def __init__(self, number):
        self._number = number

    def end(self, station, state):
        station.quorvel.send(self._number)


class Killed(Signal):
    """The guard lets go of the key, and what is kept tells a next start."""

    def __init__(self, number):
        super().__init__(number)
        self.status = -number

    def expect(self, station, state):
        station.expect_gone(self.status)
        station.expect_key_up()
        station.expect_written(f"{TEXT}{GUARDS_WORDS}")
        station.expect_guards(0)
        station.assertEqual(station.record(), RECORDS.get(state, ""))
        if state in RECORDS:
            self._expect_told_of(station, DEATHS[station.record()])

    def _expect_told_of(self, station, words):
        """The next start keys up first of all, and says why."""
        began = time.monotonic()
        station.start_and_connect(began)
        station.wait_for_silence()
        station.assertRegex(station.written(began), f"^{GREETING} {KEY_UP_BYTES}$")
        station.expect_ready(words)


class ScreenGone(Ending):
    """The screen is one of the cell's own."""

    status = 1

    def prepare(self, station):
        self._screen = station.enterContext(station.desktop.other_screen())
        return {"DISPLAY": station.desktop.environment["DISPLAY"]}

    def end(self, station, state):
        self._screen.send(signal.SIGKILL)

    def bytes(self, state):
        """Nobody asks what may be keyed."""
        return LEAVING


class BusGone(Ending):
    def prepare(self, station):
        self._bus, address = station.desktop.start_bus()
        station.addCleanup(self._bus.end, signal.SIGKILL)
        environment = {"DBUS_SESSION_BUS_ADDRESS": address}
        readers = Helper(HERE / "reading_bus.py", station.desktop.reading_bus(),
                         environment=dict(station.environment, **environment))
        station.addCleanup(readers.end)
        station.assertEqual(readers.hear(), "ready")
        return environment

    def end(self, station, state):
        self._bus.send(signal.SIGKILL)


class SessionEnd(Ending):
    def prepare(self, station):
        self._manager = Helper(HERE / "session_manager.py", environment=station.environment)
        station.addCleanup(self._manager.end)
        return {"SESSION_MANAGER": self._manager.hear()}

    def end(self, station, state):
        self._manager.tell("end")


class Stopped(Ending):
    """The program hangs for a while, and goes on."""

    def end(self, station, state):
        station.quorvel.send(signal.SIGSTOP)

    def expect(self, station, state):
        is_guarded = state in KEY_IS_DOWN
        while station.passed() < STOPPED:
            time.sleep(0.1)
        station.expect_key_up(KEY_UP_AFTER_SILENCE if is_guarded else KEY_UP)
        station.expect_written(GUARDS_WORDS if is_guarded else ONE_ON_ITS_WAY)
        went_on = time.monotonic()
        station.quorvel.send(signal.SIGCONT)
        station.dismiss_alerts()
        if is_guarded:
            station.wait_until_connected(went_on)
        station.expect_ready("did not react for 3 s while tune was on" if is_guarded else "")


class Pulled(Ending):
    """The keyer has current of its own, and is where it was when the adapter is back."""

    def end(self, station, state):
        station.adapter.do("pull")

    def expect(self, station, state):
        def is_told():
            if station.has_alert("has been unplugged"):
                return True
            station.dismiss_alerts()
            return False
        station.quorvel.wait_for("the alert", is_told)
        station.dismiss_alerts()
        station.expect_guards(0)
        station.assertEqual(station.written(), "")
        station.adapter.do("plug")
        station.quorvel.wait_for("the question", lambda: station.has_alert("has been plugged in"))
        station.begin_ending()
        station.alerts(station.quorvel)[0].find("Yes").press()
        station.wait_until_connected(station.begin)
        station.expect_key_up()
        station.expect_written(f"{GREETING} {KEY_UP_BYTES}" if state in KEY_IS_DOWN else GREETING)
        station.expect_ready("unplugged while tune was on" if state in KEY_IS_DOWN else "")


class Sleep(Ending):
    def prepare(self, station):
        bus, address = station.desktop.start_bus()
        station.addCleanup(bus.end)
        environment = dict(station.environment, DBUS_SYSTEM_BUS_ADDRESS=address)
        self._service = Helper(HERE / "login_service.py", environment=environment)
        station.addCleanup(self._service.end)
        station.assertEqual(self._service.hear(), "ready")
        return {"DBUS_SYSTEM_BUS_ADDRESS": address}

    def end(self, station, state):
        self._service.do("sleep")

    def expect(self, station, state):
        station.expect_key_up()
        station.expect_written(LEAVING)
        station.expect_guards(0)
        woke = time.monotonic()
        self._service.do("wake")
        station.dismiss_alerts()
        station.wait_until_connected(woke)
        station.wait_for_silence()
        station.assertFalse(station.keyer.is_key_down())
        station.assertRegex(station.written(woke), f"^{GREETING}$")
        station.expect_ready("" if state in ("idle", "memory load") else "sleep")


ENDINGS = {
    "Quit": Quit,
    "window closed": WindowClosed,
    "SIGTERM": lambda: Signal(signal.SIGTERM),
    "SIGINT": lambda: Signal(signal.SIGINT),
    "SIGHUP": lambda: Signal(signal.SIGHUP),
    "SIGQUIT": lambda: Signal(signal.SIGQUIT),
    "SIGKILL": lambda: Killed(signal.SIGKILL),
    "SIGSEGV": lambda: Killed(signal.SIGSEGV),
    "X server gone": ScreenGone,
    "session bus gone": BusGone,
    "session end": SessionEnd,
    "adapter pulled": Pulled,
    "sleep and wake": Sleep,
    "SIGSTOP for 10 s": Stopped,
}
