"""Media players on a private desktop: real ones with generated tracks, and one that plays by script."""

import contextlib
import http.server
import subprocess
import threading
import time
from pathlib import Path

from gi.repository import Gio, GLib

from bus import Bus
from desktop import end_process, wait_until

MPRIS = "org.mpris.MediaPlayer2"
PLAYER = MPRIS + ".Player"
PATH = "/org/mpris/MediaPlayer2"
_PROPERTIES = "org.freedesktop.DBus.Properties"
_MICROSECONDS = 1e6

# mpv's own scripts would open a window; without a sound device it plays at the same pace.
_MPV = ["mpv", "--no-config", "--load-scripts=no", "--no-video", "--ao=null", "--no-terminal"]
_MPV += ["--script=/usr/lib/mpv-mpris/mpris.so"]


def make_track(folder, title, artist, seconds, cover=None, size=300):
    """A track of silence in a folder of its own, beside the cover art if a colour is given for it."""
    folder = Path(folder) / title
    folder.mkdir(parents=True)
    track = folder / "track.flac"
    silence = ["-f", "lavfi", "-i", "anullsrc=r=8000:cl=mono", "-t", str(seconds)]
    _ffmpeg(*silence, "-metadata", f"title={title}", "-metadata", f"artist={artist}", track)
    if cover:
        make_cover(folder / "cover.jpg", cover, size)
    return str(track)


def make_cover(path, colors, size=300):
    """Colours as of ffmpeg, one or the two ends of a gradient as "red:blue"."""
    first, _, second = colors.partition(":")
    gradient = f"gradients=s={size}x{size}:c0={first}:c1={second or first}:x0=0:y0=0:x1={size}:y1={size}"
    _ffmpeg("-f", "lavfi", "-i", gradient, "-frames:v", "1", path)
    return path.as_uri()


def _ffmpeg(*arguments):
    subprocess.run(["ffmpeg", "-loglevel", "error", "-y", *arguments], stdin=subprocess.DEVNULL, check=True)


class Player:
    """A process that speaks MPRIS, asked and commanded as any other program would."""

    def __init__(self, bus, process, name):
        self.bus, self.process, self.name = bus, process, name

    def get(self, member):
        return self.bus.get(self.name, PATH, PLAYER, member)

    def send(self, method, arguments=None):
        self.bus.call(self.name, PATH, PLAYER, method, arguments)

    def position(self):
        return self.get("Position") / _MICROSECONDS

    def title(self):
        return self.get("Metadata").get("xesam:title")

    def seek_to(self, seconds):
        where = GLib.Variant("(ox)", (self.get("Metadata")["mpris:trackid"], int(seconds * _MICROSECONDS)))
        self.send("SetPosition", where)

    def kill(self):
        self.process.kill()
        self.process.wait()

    def end(self):
        end_process(self.process)


def start_mpv(desktop, bus, *arguments):
    """mpv with its MPRIS plug-in, as soon as it is on the bus."""
    process = desktop.spawn([*_MPV, *arguments], "mpv.log")
    names = f"{MPRIS}.mpv.instance{process.pid}", f"{MPRIS}.mpv"

    def name():
        own = [n for n in names if bus.owns(n) and bus.process_of(n) == process.pid]
        return own[0] if own else None

    return Player(bus, process, wait_until(name, what="mpv on the bus: " + desktop.log("mpv.log")))


_PAGE = """<title>Page</title><audio id="audio" src="track.flac" loop></audio><script>
navigator.mediaSession.metadata = new MediaMetadata({{title: "{title}", artist: "{artist}", artwork:
    [{{src: "cover.jpg", sizes: "300x300", type: "image/jpeg"}}]}});
audio.play()</script>"""
_CHROMIUM = ["chromium", "--headless", "--no-sandbox", "--disable-gpu", "--disable-dev-shm-usage", "--no-first-run"]
_CHROMIUM += ["--disable-background-networking", "--disable-component-update", "--disable-sync"]
_CHROMIUM += ["--password-store=basic", "--autoplay-policy=no-user-gesture-required"]


@contextlib.contextmanager
def chromium_playing(desktop, bus, title, artist, cover):
    """Chromium with a page that tells what it plays, as a player once it is on the bus."""
    folder = Path(make_track(desktop.dir, title, artist, 60, cover)).parent
    (folder / "page.html").write_text(_PAGE.format(title=title, artist=artist))

    class Handler(http.server.SimpleHTTPRequestHandler):
        def __init__(self, *arguments):
            super().__init__(*arguments, directory=folder)

        def log_message(self, *_):
            pass

    with http.server.ThreadingHTTPServer(("127.0.0.1", 0), Handler) as server:
        threading.Thread(target=server.serve_forever, daemon=True).start()
        page = f"http://127.0.0.1:{server.server_port}/page.html"
        process = desktop.spawn([*_CHROMIUM, f"--user-data-dir={desktop.dir}/chromium", page], "chromium.log")
        name = f"{MPRIS}.chromium.instance{process.pid}"
        try:
            wait_until(lambda: bus.owns(name), 40, what="Chromium on the bus")
            yield Player(bus, process, name)
        finally:
            end_process(process)
            server.shutdown()


class ScriptedPlayer:
    """A player in this process: shows what it is told to, and counts how often its position is asked."""

    _INTERFACE = f"""<node><interface name="{PLAYER}">
        <property name="PlaybackStatus" type="s" access="read"/><property name="Rate" type="d" access="read"/>
        <property name="Position" type="x" access="read"/><property name="Metadata" type="a{{sv}}" access="read"/>
        <property name="CanSeek" type="b" access="read"/></interface></node>"""

    def __init__(self, desktop, name="scripted"):
        self.asked = 0
        self._started = time.monotonic()
        self._metadata = {}
        self._context = GLib.MainContext()
        self._loop = GLib.MainLoop(self._context)
        ready = threading.Event()
        self._thread = threading.Thread(target=self._run, args=(desktop, name, ready), daemon=True)
        self._thread.start()
        if not ready.wait(10):
            raise AssertionError("the scripted player did not start")

    def __enter__(self):
        return self

    def __exit__(self, *_):
        self._loop.quit()
        self._thread.join()
        self._connection.close_sync(None)

    def _run(self, desktop, name, ready):
        self._context.push_thread_default()
        self._connection = Bus(desktop).connection
        interface = Gio.DBusNodeInfo.new_for_xml(self._INTERFACE).interfaces[0]
        self._connection.register_object(PATH, interface, None, self._property, None)
        Gio.bus_own_name_on_connection(self._connection, f"{MPRIS}.{name}", 0, lambda *_: ready.set(), None)
        self._loop.run()

    def _property(self, _connection, _sender, _path, _interface, name):
        if name == "Position":
            self.asked += 1
        return {
            "PlaybackStatus": GLib.Variant("s", "Playing"),
            "Rate": GLib.Variant("d", 1),
            "Position": GLib.Variant("x", int((time.monotonic() - self._started) * _MICROSECONDS)),
            "Metadata": GLib.Variant("a{sv}", self._metadata),
            "CanSeek": GLib.Variant("b", False),
        }[name]

    def play(self, title, art=None, seconds=600):
        self._started = time.monotonic()
        self._metadata = {
            "mpris:trackid": GLib.Variant("o", f"/track/{abs(hash(title))}"),
            "xesam:title": GLib.Variant("s", title),
        }
        if seconds is not None:
            self._metadata["mpris:length"] = GLib.Variant("x", int(seconds * _MICROSECONDS))
        if art:
            self._metadata["mpris:artUrl"] = GLib.Variant("s", art)
        self.announce()

    def announce(self):
        changed = {"Metadata": GLib.Variant("a{sv}", self._metadata), "PlaybackStatus": GLib.Variant("s", "Playing")}
        signal = GLib.Variant("(sa{sv}as)", (PLAYER, changed, []))
        self._connection.emit_signal(None, PATH, _PROPERTIES, "PropertiesChanged", signal)
