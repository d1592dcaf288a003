"""The login service of a system bus, which announces the machine's sleep and wake-up.

Usage: login_service.py, with the bus as DBUS_SYSTEM_BUS_ADDRESS.
It is told "sleep" and "wake", a line each, and answers each with a line; "sleep" when nobody holds
the sleep up any more.
"""

import os
import select
import sys

import gi

gi.require_version("Gio", "2.0")
from gi.repository import Gio, GLib  # noqa: E402

PATH = "/org/freedesktop/login1"
INTERFACE = "org.freedesktop.login1.Manager"
DESCRIPTION = f"""<node><interface name='{INTERFACE}'>
  <method name='Inhibit'>
    <arg type='s' direction='in'/><arg type='s' direction='in'/>
    <arg type='s' direction='in'/><arg type='s' direction='in'/>
    <arg type='h' direction='out'/>
  </method>
  <signal name='PrepareForSleep'><arg type='b'/></signal>
</interface></node>"""
LONGEST_DELAY = 5  # seconds, as the service comes


class LoginService:
    def __init__(self):
        self._locks = []
        self._loop = GLib.MainLoop()
        self._bus = Gio.bus_get_sync(Gio.BusType.SYSTEM)
        interface = Gio.DBusNodeInfo.new_for_xml(DESCRIPTION).interfaces[0]
        self._bus.register_object(PATH, interface, self._called, None, None)
        Gio.bus_own_name_on_connection(self._bus, "org.freedesktop.login1",
                                       Gio.BusNameOwnerFlags.NONE, self._owned, None)
        GLib.io_add_watch(sys.stdin, GLib.IO_IN | GLib.IO_HUP, self._told)

    def run(self):
        self._loop.run()

    def _owned(self, *_):
        print("ready", flush=True)

    def _called(self, _bus, _sender, _path, _interface, _method, _arguments, invocation):
        ours, theirs = os.pipe()
        self._locks.append(ours)
        descriptors = Gio.UnixFDList.new_from_array([theirs])
        invocation.return_value_with_unix_fd_list(GLib.Variant("(h)", (0,)), descriptors)

    def _told(self, *_):
        command = sys.stdin.readline().strip()
        if not command:
            self._loop.quit()
            return False
        self._announce(command == "sleep")
        if command == "sleep":
            self._wait_for_locks()
        print("done", flush=True)
        return True

    def _announce(self, is_start):
        self._bus.emit_signal(None, PATH, INTERFACE, "PrepareForSleep",
                              GLib.Variant("(b)", (is_start,)))
        self._bus.flush_sync()

    def _wait_for_locks(self):
        """Nothing is ever written to them: what is readable has been let go of."""
        for lock in self._locks:
            select.select([lock], [], [], LONGEST_DELAY)
            os.close(lock)
        self._locks.clear()


if __name__ == "__main__":
    LoginService().run()
