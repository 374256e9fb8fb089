"""The part of the desktop's portal that tells whether the user prefers dark windows."""

from desktop import wait_until

_PORTAL = """
import sys, dbus, dbus.service
from dbus.mainloop.glib import DBusGMainLoop
from gi.repository import GLib

class Settings(dbus.service.Object):
    @dbus.service.method("org.freedesktop.portal.Settings", in_signature="as", out_signature="a{sa{sv}}")
    def ReadAll(self, namespaces):
        return {"org.freedesktop.appearance": {"color-scheme": dbus.UInt32(1)}}

DBusGMainLoop(set_as_default=True)
bus = dbus.SessionBus()
settings = Settings(bus, "/org/freedesktop/portal/desktop")
name = dbus.service.BusName("org.freedesktop.portal.Desktop", bus)
print("ready", flush=True)
GLib.MainLoop().run()
"""


def prefer_dark(desktop):
    """From now on; before the program starts."""
    desktop.spawn(["/usr/bin/python3", "-c", _PORTAL], "portal.log")
    wait_until(lambda: "ready" in desktop.log("portal.log"), what="the portal")
