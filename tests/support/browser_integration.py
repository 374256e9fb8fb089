"""Stands in for the host program of KDE's browser integration: answers searches for "youtu"."""
from gi.repository import Gio, GLib

XML = """<node><interface name="org.kde.krunner1"><method name="Match">
<arg type="s" direction="in"/><arg type="a(sssida{sv})" direction="out"/></method></interface></node>"""

def tab(title, **properties):
    return ("1", title, "icon", 100, 0.9, properties)

def call(bus, sender, path, interface, method, arguments, invocation):
    tabs = [tab("Song - YouTube", urls=GLib.Variant("as", ["https://youtu.be/1"])),
            tab("One text", urls=GLib.Variant("s", "https://youtube.example/2")),
            tab("No address", subtext=GLib.Variant("s", "youtube.example"))]
    found = tabs if arguments.unpack() == ("youtu",) else []
    invocation.return_value(GLib.Variant("(a(sssida{sv}))", (found,)))

bus = Gio.bus_get_sync(Gio.BusType.SESSION)
bus.register_object("/TabsRunner", Gio.DBusNodeInfo.new_for_xml(XML).interfaces[0], call, None, None)
Gio.bus_own_name_on_connection(bus, "org.kde.plasma.browser_integration", 0,
                               lambda *_: print("ready", flush=True), None)
GLib.MainLoop().run()
