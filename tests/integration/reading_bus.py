"""The name on a session's bus by which programs ask for the bus that screen readers read, which is
another desktop's here.

Usage: reading_bus.py ADDRESS, with the session's bus as DBUS_SESSION_BUS_ADDRESS.
It says "ready" when it can be asked, and stays until its input ends, even if the bus goes.
"""

import sys

import gi

gi.require_version("Gio", "2.0")
from gi.repository import Gio, GLib  # noqa: E402

DESCRIPTION = """<node><interface name='org.a11y.Bus'>
  <method name='GetAddress'><arg type='s' direction='out'/></method>
</interface></node>"""


def main():
    loop = GLib.MainLoop()
    bus = Gio.bus_get_sync(Gio.BusType.SESSION)
    bus.set_exit_on_close(False)
    interface = Gio.DBusNodeInfo.new_for_xml(DESCRIPTION).interfaces[0]
    bus.register_object(
        "/org/a11y/bus", interface,
        lambda *call: call[-1].return_value(GLib.Variant("(s)", (sys.argv[1],))), None, None)
    Gio.bus_own_name_on_connection(bus, "org.a11y.Bus", Gio.BusNameOwnerFlags.NONE,
                                   lambda *_: print("ready", flush=True), None)
    GLib.io_add_watch(sys.stdin, GLib.IO_IN | GLib.IO_HUP, lambda *_: loop.quit())
    loop.run()


if __name__ == "__main__":
    main()
