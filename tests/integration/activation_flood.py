"""Calls the application to the front, without end, as fast as the bus takes it."""

from gi.repository import Gio, GLib

NAME = "org.quorvel.Quorvel"
CALLS_AT_A_TIME = 200


def call():
    message = Gio.DBusMessage.new_method_call(
        NAME, "/org/quorvel/Quorvel", "org.freedesktop.Application", "Activate")
    message.set_body(GLib.Variant("(a{sv})", ({},)))
    message.set_flags(Gio.DBusMessageFlags.NO_REPLY_EXPECTED)
    return message


def main():
    bus = Gio.bus_get_sync(Gio.BusType.SESSION)
    calls = 0
    while True:
        for _ in range(CALLS_AT_A_TIME):
            bus.send_message(call(), Gio.DBusSendMessageFlags.NONE)
        bus.flush_sync()
        calls += CALLS_AT_A_TIME
        print(calls, flush=True)


if __name__ == "__main__":
    main()
