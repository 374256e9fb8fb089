"""KDE's wallet service as it starts with a busy session: its name is there at once, its answers come a second later."""

import time

import dbus
import dbus.mainloop.glib
import dbus.service
from gi.repository import GLib

INTERFACE = "org.kde.KWallet"
PASSWORD = 1  # the type of an entry


class Wallet(dbus.service.Object):
    @dbus.service.method(INTERFACE, out_signature="s")
    def networkWallet(self):
        return "kdewallet"

    @dbus.service.method(INTERFACE, in_signature="sxs", out_signature="i")
    def open(self, _wallet, _window, _application):
        return 1

    @dbus.service.method(INTERFACE, in_signature="isss", out_signature="i")
    def entryType(self, _handle, _folder, _key, _application):
        return PASSWORD

    @dbus.service.method(INTERFACE, in_signature="isss", out_signature="s")
    def readPassword(self, _handle, folder, key, _application):
        return f"{folder} {key}"


dbus.mainloop.glib.DBusGMainLoop(set_as_default=True)
bus = dbus.SessionBus()
wallet = Wallet(bus, "/modules/kwalletd5")
name = dbus.service.BusName("org.kde.kwalletd5", bus)
time.sleep(1)
GLib.MainLoop().run()
