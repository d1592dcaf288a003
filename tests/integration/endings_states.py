"""The states in which the application is ended. Each takes a station that is connected."""

IMAGE = 256  # bytes, behind the command


def idle(_station):
    pass


def sending(station):
    station.desktop.press("F8")
    station.keyer.wait_for("some of the text", lambda: len(station.keyer.keyed()) > 3)


def tune(station):
    station.desktop.press("ctrl+t")
    station.keyer.wait_for("the key", station.keyer.is_key_down)


def paused_with_text(station):
    """A keyer that says it has nothing to do ends a pause, and on a busy machine it may have come to
    that between two letters."""
    def pauses():
        bytes_written = bytes(byte for _, byte in station.line("keyer"))
        return bytes_written.count(b"\x06\x01")

    def has_paused():
        if not station.window.find("Pause").is_in_state("checked"):
            before = pauses()
            station.desktop.press("ctrl+p")
            station.quorvel.wait_for("the pause's command", lambda: pauses() > before)
        return station.is_silent()
    sending(station)
    station.quorvel.wait_for("the pause", has_paused)
    station.assertFalse(station.keyer.is_key_down())
    station.assertNotEqual(station.window.find("Keyboard").text(), "")


def beacon_waiting(station):
    station.find("Beacon").press()
    station.desktop.press("F7")
    station.keyer.wait_for("the beacon", lambda: station.keyer.keyed() == "?")
    station.quorvel.wait_for("its end", lambda: station.record() == "")


def beacon_sending(station):
    station.find("Beacon").press()
    sending(station)


def memory_load(station):
    standalone_messages(station)
    before = len(station.line("keyer"))
    station.find("Save to keyer").press()
    # The adapter takes all of it at once, and notes it in pieces.
    station.quorvel.wait_for("the load", lambda: len(station.line("keyer")) > before + IMAGE)


def alert_open(station):
    """Over a key that is down."""
    tune(station)
    alert(station)
    station.assertTrue(station.keyer.is_key_down())


def alert_over_sending(station):
    sending(station)
    alert(station)


def alert(station):
    """A standalone message holds what the keyer's memory cannot."""
    standalone_messages(station)
    station.find("Save to keyer").press()
    station.wait_for_alert(station.quorvel, "The keyer's memory could not be written.")


def standalone_messages(station):
    preferences(station)
    station.find("WinKeyer").press()
    station.find("Groups of settings")
    tabs = next(each for each in station.application.all() if each.role() == "page tab list")
    next(each for each in tabs.children() if each.name() == "Standalone").press()
    station.quorvel.wait_for("Standalone", lambda: tabs.name() == "Standalone")


def preferences_open(station):
    """Over a key that is down."""
    tune(station)
    preferences(station)
    station.assertTrue(station.keyer.is_key_down())


def preferences_over_sending(station):
    sending(station)
    preferences(station)


def preferences(station):
    station.menu_item("Preferences…").press()
    station.find("WinKeyer")


STATES = {
    "idle": idle,
    "sending": sending,
    "tune": tune,
    "paused with text": paused_with_text,
    "beacon waiting": beacon_waiting,
    "beacon sending": beacon_sending,
    "memory load": memory_load,
    "alert open": alert_open,
    "preferences open": preferences_open,
    "alert, sending": alert_over_sending,
    "prefs, sending": preferences_over_sending,
}
HAS_ALERT = {"alert open", "alert, sending"}
HAS_PREFERENCES = {"preferences open", "prefs, sending"}
# A window over the sending changes nothing for the endings that ask no window.
ENDINGS_OVER_SENDING = {"Quit", "window closed", "SIGTERM", "SIGKILL", "session end",
                        "adapter pulled", "sleep and wake"}
LIMITED = {"alert, sending": ENDINGS_OVER_SENDING, "prefs, sending": ENDINGS_OVER_SENDING}
MORE_SETTINGS = dict.fromkeys(HAS_ALERT, "WKStandaloneMessage1=É\n")
KEY_IS_DOWN = {"tune", "alert open", "preferences open"}
NOTHING_IS_KEYED = {"idle", "beacon waiting", "memory load"}
# What the record of what is keyed says meanwhile. Text that is held back is in no keyer.
RECORDS = {**dict.fromkeys(KEY_IS_DOWN, "tune\n"),
           **dict.fromkeys(("sending", "beacon sending", "alert, sending", "prefs, sending"),
                           "sending\n")}
