"""How the desktop of a test wants programs to look, told by a portal as desktops do."""

from gi.repository import GLib

from bus import Bus
from desktop import wait_until

PORTAL = "org.freedesktop.portal.Desktop"
PATH = "/org/freedesktop/portal/desktop"
SETTINGS = "org.freedesktop.portal.Settings"
DARK, LIGHT = 1, 2


class Appearance:
    """Start it before the program."""

    def __init__(self, desktop, scheme, contrast=False):
        self.bus = Bus(desktop)
        desktop.spawn(
            ["/usr/bin/python3", "-m", "dbusmock", "--session", PORTAL, PATH, SETTINGS], "portal.log",
        )  # fmt: skip
        wait_until(lambda: self.bus.owns(PORTAL), what="the portal")
        wishes = {"color-scheme": scheme, "contrast": int(contrast)}
        values = ", ".join(f"'{name}': dbus.UInt32({value}, variant_level=1)" for name, value in wishes.items())
        answer = f"ret = {{'org.freedesktop.appearance': {{{values}}}}}"
        self.bus.call(
            PORTAL, PATH, "org.freedesktop.DBus.Mock", "AddMethod",
            GLib.Variant("(sssss)", (SETTINGS, "ReadAll", "as", "a{sa{sv}}", answer)),
        )  # fmt: skip
