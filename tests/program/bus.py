"""The private session bus as another program on it sees it: questions, and the island's announcements."""

import threading
import time

from gi.repository import Gio, GLib

from desktop import wait_until

BUS_NAME = "com.quillmere.Quillmere"
_ISLAND_PATH, _ISLAND = "/com/quillmere/Quillmere", "com.quillmere.Island"
_PROPERTIES = "org.freedesktop.DBus.Properties"
_DAEMON = "org.freedesktop.DBus"


class Bus:
    """A connection of ours to the desktop's session bus; a question takes well below a millisecond."""

    def __init__(self, desktop):
        flags = Gio.DBusConnectionFlags
        self.connection = Gio.DBusConnection.new_for_address_sync(
            desktop.env["DBUS_SESSION_BUS_ADDRESS"],
            flags.AUTHENTICATION_CLIENT | flags.MESSAGE_BUS_CONNECTION, None, None,
        )  # fmt: skip
        self.connection.set_exit_on_close(False)

    def call(self, name, path, interface, method, arguments=None):
        answer = self.connection.call_sync(
            name, path, interface, method, arguments, None, Gio.DBusCallFlags.NO_AUTO_START, 5000, None
        )
        return answer.unpack()

    def get(self, name, path, interface, member):
        return self.call(name, path, _PROPERTIES, "Get", GLib.Variant("(ss)", (interface, member)))[0]

    def owns(self, name):
        return self.ask_daemon("NameHasOwner", name)

    def process_of(self, name):
        return self.ask_daemon("GetConnectionUnixProcessID", name)

    def ask_daemon(self, method, name):
        return self.call(_DAEMON, "/", _DAEMON, method, GLib.Variant("(s)", (name,)))[0]

    def now_playing(self):
        """The record that the island publishes; empty if there is none."""
        return self.get(BUS_NAME, _ISLAND_PATH, _ISLAND, "NowPlaying")

    def ping(self):
        """Of the island's main thread."""
        self.call(BUS_NAME, "/", "org.freedesktop.DBus.Peer", "Ping")


class Watcher:
    """Every change of the island's properties with the time it came at, in order. Works before the
    program is there, and sees it come and go."""

    def __init__(self, desktop):
        self._changes = []
        self._bus = Bus(desktop)
        self._context = GLib.MainContext()
        self._over = threading.Event()
        ready = threading.Event()
        self._thread = threading.Thread(target=self._run, args=(ready,), daemon=True)
        self._thread.start()
        if not ready.wait(10):
            raise AssertionError("the watcher did not start")

    def __enter__(self):
        return self

    def __exit__(self, *_):
        self._over.set()
        self._context.wakeup()
        self._thread.join()
        self._bus.connection.close_sync(None)

    def _run(self, ready):
        self._context.push_thread_default()
        # From anybody: who asks for the signals of one name misses those that come before GLib knows its owner.
        self._bus.connection.signal_subscribe(
            None, _PROPERTIES, "PropertiesChanged", _ISLAND_PATH, _ISLAND, Gio.DBusSignalFlags.NONE, self._changed
        )
        self._bus.owns(BUS_NAME)  # answered after the subscription
        ready.set()
        while not self._over.is_set():
            self._context.iteration(True)

    def _changed(self, _connection, _sender, _path, _interface, _signal, arguments):
        self._changes.append((time.monotonic(), arguments.unpack()[1]))

    def changes(self, name):
        """(time, value) of the changes of the property `name`."""
        return [(at, values[name]) for at, values in list(self._changes) if name in values]

    def wait_for_changes(self, name, count, timeout=10.0):
        """Waits until the property has changed so often and returns the changes."""
        try:
            wait_until(lambda: len(self.changes(name)) >= count, timeout, f"{count} changes of {name}")
        except AssertionError as error:
            raise AssertionError(f"{error}, only for {self._changes}") from None
        return self.changes(name)

    def huds(self):
        """(time, value) of every HUD that came; its going is no HUD."""
        return [change for change in self.changes("CurrentHUD") if change[1]]
