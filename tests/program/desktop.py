"""A private desktop without hardware: display, window manager, compositor, session bus, sound server.

Nothing of the user's own session is seen or touched: home, settings, runtime directory and buses are
fresh and vanish with the desktop. Every process is started here and ended here, by its own id.
"""

import contextlib
import ctypes
import dataclasses
import os
import re
import select
import shutil
import signal
import socket
import subprocess
import tempfile
import time
from pathlib import Path

from PIL import Image

from screen import Screen

_PR_SET_PDEATHSIG = 1
_libc = ctypes.CDLL(None)


def wait_until(condition, timeout=10.0, what="", step=0.02):
    """Polls `condition` until it holds and returns what it returned."""
    deadline = time.monotonic() + timeout
    while True:
        result = condition()
        if result:
            return result
        if time.monotonic() > deadline:
            raise AssertionError(f"waited {timeout} s in vain for {what or condition}")
        time.sleep(step)


@dataclasses.dataclass(frozen=True)
class Monitor:
    """A monitor's place on the display, in device pixels."""

    name: str
    width: int
    height: int
    x: int
    y: int = 0

    def geometry(self):
        # About 110 dots an inch at 1x; only a monitor with a size in millimetres counts as real.
        return f"{self.width}/{self.width // 4}x{self.height}/{self.height // 4}+{self.x}+{self.y}"


def _dies_with_us():
    _libc.prctl(_PR_SET_PDEATHSIG, signal.SIGKILL)


class PrivateDesktop:
    """Use as a context manager. `scale` is what the desktop asks of every program through Xft.dpi."""

    def __init__(self, scale=1, wallpaper=None, compositor=True):
        self.scale = scale
        self.wallpaper = wallpaper
        self.compositor = compositor
        self.primary = Monitor("QM-A", 1512 * scale, 982 * scale, 0)
        self.secondary = Monitor("QM-B", 1280 * scale, 800 * scale, self.primary.width)
        self.hardware_env = {}  # what shows a program the hardware that was added, see backlight.py
        self.prefix = []  # what the program's command line begins with, see assistant.py
        self._processes = []
        self._sound = None

    # -- life -----------------------------------------------------------------------------------

    def __enter__(self):
        with contextlib.ExitStack() as undo:
            undo.callback(self._end)
            self._make_home()
            self._start_display()
            self._start_bus()
            self.start_sound_server()
            undo.pop_all()
        return self

    def __exit__(self, *_):
        self._end()

    def _make_home(self):
        self.dir = Path(tempfile.mkdtemp(prefix="quillmere-"))
        for name in ("run", "home", "config", "state", "cache", "data"):
            (self.dir / name).mkdir(mode=0o700)
        keep = {
            key: value
            for key, value in os.environ.items()
            if key in ("PATH", "TERM") or re.match(r"(ASAN|UBSAN|LSAN)_OPTIONS", key)
        }
        self.env = keep | {
            "HOME": str(self.dir / "home"),
            "LC_ALL": "C.UTF-8",
            "XDG_RUNTIME_DIR": str(self.dir / "run"),
            "XDG_CONFIG_HOME": str(self.dir / "config"),
            "XDG_STATE_HOME": str(self.dir / "state"),
            "XDG_CACHE_HOME": str(self.dir / "cache"),
            "XDG_DATA_HOME": str(self.dir / "data"),
            "DBUS_SYSTEM_BUS_ADDRESS": f"unix:path={self.dir}/run/system_bus",
        }
        fonts = self.dir / "config" / "fontconfig"
        fonts.mkdir()
        (fonts / "fonts.conf").write_text(
            '<?xml version="1.0"?><!DOCTYPE fontconfig SYSTEM "urn:fontconfig:fonts.dtd"><fontconfig>'
            '<alias binding="strong"><family>sans-serif</family><prefer><family>Inter</family></prefer></alias>'
            '<alias binding="strong"><family>Sans Serif</family><prefer><family>Inter</family></prefer></alias>'
            "</fontconfig>"
        )

        # Alt+F4 closes a window as its close button does. One of the name "cinema" fills the screen, as a film would.
        window_manager = self.dir / "config" / "openbox"
        window_manager.mkdir()
        (window_manager / "rc.xml").write_text(
            '<?xml version="1.0"?><openbox_config xmlns="http://openbox.org/3.4/rc">'
            "<desktops><number>2</number></desktops>"
            '<keyboard><keybind key="A-F4"><action name="Close"/></keybind></keyboard>'
            '<applications><application title="cinema"><fullscreen>yes</fullscreen></application></applications>'
            "</openbox_config>"
        )

    def _start_display(self):
        width = self.secondary.x + self.secondary.width
        height = max(self.primary.height, self.secondary.height)
        # No reset when the last client leaves: the monitors set below have to stay.
        command = ["Xvfb", "-screen", "0", f"{width}x{height}x24", "+extension", "Composite"]
        command += ["-nolisten", "tcp", "-noreset", "-displayfd"]
        self._display, number = self._spawn_telling(command, "xvfb.log")
        self.env["DISPLAY"] = ":" + number
        self.screen = Screen(self.env["DISPLAY"])

        self.plug(self.primary)
        if self.scale != 1:
            self.run("xrdb", "-nocpp", "-merge", "-", text=f"Xft.dpi: {96 * self.scale}\n")
        self.spawn(["openbox"], "openbox.log")
        if self.compositor:
            self.start_compositor()
        wait_until(lambda: "window id" in self.run("xprop", "-root", "_NET_SUPPORTING_WM_CHECK"), what="openbox")
        if self.wallpaper:
            self._paint_wallpaper()
        else:
            self.run("xsetroot", "-solid", "#3c5a93")

    def start_compositor(self):
        self._compositor = self.spawn(["picom", "--backend", "xrender", "--config", "/dev/null"], "picom.log")

    def stop_compositor(self):
        end_process(self._compositor)
        self._processes.remove(self._compositor)

    def kill_display(self):
        self._display.kill()
        self._display.wait()

    def _paint_wallpaper(self):
        canvas = Image.new("RGB", (self.secondary.x + self.secondary.width, self.primary.height))
        for monitor in (self.primary, self.secondary):
            canvas.paste(_wallpaper(self.wallpaper, monitor.width, monitor.height), (monitor.x, monitor.y))
        path = self.dir / "wallpaper.png"
        canvas.save(path, compress_level=1)
        self.run("xwallpaper", "--no-randr", "--maximize", str(path))

    def _start_bus(self):
        self.env["DBUS_SESSION_BUS_ADDRESS"] = self._spawn_bus("session", self.dir / "run" / "bus")

    def start_system_bus(self):
        """Once; the program's own finds none before."""
        if not (self.dir / "system.conf").exists():
            self._spawn_bus("system", self.dir / "run" / "system_bus")

    def start_notification_daemon(self):
        self.spawn(["dunst"], "dunst.log")
        owned = ["dbus-send", "--session", "--print-reply", "--dest=org.freedesktop.DBus", "/org/freedesktop/DBus",
                 "org.freedesktop.DBus.NameHasOwner", "string:org.freedesktop.Notifications"]  # fmt: skip
        wait_until(lambda: "true" in self.run(*owned), what="dunst")

    def _spawn_bus(self, kind, path):
        # No service directories: nothing is started behind our back.
        config = self.dir / f"{kind}.conf"
        config.write_text(
            '<!DOCTYPE busconfig PUBLIC "-//freedesktop//DTD D-Bus Bus Configuration 1.0//EN"'
            ' "http://www.freedesktop.org/standards/dbus/1.0/busconfig.dtd">'
            f"<busconfig><type>{kind}</type><keep_umask/><listen>unix:path={path}</listen>"
            '<auth>EXTERNAL</auth><policy context="default"><allow send_destination="*" eavesdrop="true"/>'
            '<allow eavesdrop="true"/><allow own="*"/></policy></busconfig>'
        )
        # It tells its address once it listens; its socket is there before.
        command = ["dbus-daemon", f"--config-file={config}", "--nofork", "--nopidfile", "--nosyslog"]
        self._spawn_telling([*command, "--print-address"], f"{kind}.log")
        return f"unix:path={path}"

    def _end(self):
        if hasattr(self, "screen"):
            self.screen.close()
        for process in reversed(self._processes):
            end_process(process)
        self._processes.clear()
        if hasattr(self, "dir"):
            shutil.rmtree(self.dir, ignore_errors=True)

    # -- processes ------------------------------------------------------------------------------

    def spawn(self, command, log, **options):
        """Starts a process that lives no longer than this desktop; its output goes to the file `log`."""
        options.setdefault("env", self.env)
        options.setdefault("stdin", subprocess.DEVNULL)
        with open(self.dir / log, "ab") as output:
            options.setdefault("stdout", output)
            process = subprocess.Popen(
                command,
                stderr=output,
                cwd=self.dir,
                start_new_session=True,
                preexec_fn=_dies_with_us,
                **options,
            )
        self._processes.append(process)
        return process

    def _spawn_telling(self, command, log):
        """Spawns a server that is ready when it has written a line to the descriptor whose number ends
        its command line; returns both."""
        ours, theirs = os.pipe()
        with open(ours, "rb", buffering=0) as pipe:
            process = self.spawn([*command, str(theirs)], log, pass_fds=[theirs])
            os.close(theirs)
            told = b""
            while not told.endswith(b"\n"):
                read = pipe.read(256) if select.select([pipe], [], [], 30)[0] else b""
                if not read:
                    raise RuntimeError(f"{command[0]} did not start: {self.log(log)}")
                told += read
        return process, told.decode().strip()

    def run(self, *command, text=None, check=True, timeout=20):
        """Runs a command to its end and returns what it printed."""
        result = subprocess.run(
            command, input=text, stdin=None if text is not None else subprocess.DEVNULL, capture_output=True,
            text=True, env=self.env, cwd=self.dir, timeout=timeout, check=False,
        )
        if check and result.returncode:
            raise RuntimeError(f"{' '.join(command)}: {result.returncode}\n{result.stdout}{result.stderr}")
        return result.stdout

    def log(self, name):
        path = self.dir / name
        return path.read_text(errors="replace") if path.exists() else ""

    # -- monitors -------------------------------------------------------------------------------

    def plug(self, monitor, primary=False):
        # The display has one output; monitors beyond the first hang in the air.
        output = "screen" if monitor == self.primary else "none"
        name = ("*" if primary else "") + monitor.name
        self.run("xrandr", "--setmonitor", name, monitor.geometry(), output)

    def unplug(self, monitor):
        self.run("xrandr", "--delmonitor", monitor.name)

    def make_primary(self, monitor):
        # A monitor cannot be changed in place: it goes and comes back.
        self.unplug(monitor)
        self.plug(monitor, primary=True)

    def turn_output_off(self):
        # The output goes off; only the empty screen that xrandr asks for next is refused.
        self.run("xrandr", "--output", "screen", "--off", check=False)

    def turn_output_on(self):
        self.run("xrandr", "--output", "screen", "--auto")

    # -- sound ----------------------------------------------------------------------------------

    def start_sound_server(self):
        """A server with two sinks that lead nowhere; `speakers` is the default, at 50 %."""
        self._sound_socket = self.dir / "run" / "sound-commands"
        modules = [
            "module-native-protocol-unix auth-anonymous=1",
            f"module-cli-protocol-unix socket={self._sound_socket}",
            "module-null-sink sink_name=speakers sink_properties=\"device.description='Speakers' device.bus=pci\"",
            "module-null-sink sink_name=headphones sink_properties=\"device.description='Headphones' device.bus=usb\"",
        ]
        command = ["pulseaudio", "-n", "--daemonize=no", "--exit-idle-time=-1", "--use-pid-file=no"]
        command += ["--realtime=no", "--high-priority=no", "--log-target=stderr"]
        for module in modules:
            command += ["-L", module]
        self._sound = self.spawn(command, "pulseaudio.log")
        wait_until(lambda: "Server Name" in self.run("pactl", "info", check=False), what="the sound server")
        self.pactl("set-default-sink", "speakers")
        self.set_volume(50)

    def kill_sound_server(self):
        self._sound.kill()
        self._sound.wait()
        self._processes.remove(self._sound)

    def pactl(self, *arguments):
        return self.run("pactl", *arguments)

    def set_volume(self, percent):
        self.pactl("set-sink-volume", "@DEFAULT_SINK@", f"{percent}%")

    def volume(self):
        """Of the default sink, in percent."""
        return int(re.search(r"(\d+)%", self.pactl("get-sink-volume", "@DEFAULT_SINK@")).group(1))

    def set_muted(self, muted):
        self.pactl("set-sink-mute", "@DEFAULT_SINK@", "1" if muted else "0")

    def connect_headset(self, name="AirPods Pro", form_factor="headset"):
        """A Bluetooth sink comes and sound goes to it, as a sound server does it; returns it for
        disconnect_headset. Both kinds of server understand it."""
        sink = "bluez_sink.AA_BB_CC_DD_EE_FF.a2dp_sink"
        properties = f"device.description='{name}' device.bus=bluetooth device.api=bluez"
        properties += f" device.string=AA:BB:CC:DD:EE:FF device.form_factor={form_factor}"
        module = self.pactl("load-module", "module-null-sink", f"sink_name={sink}", f'sink_properties="{properties}"')
        wait_until(lambda: sink in self.pactl("list", "short", "sinks"), what="the headset")
        self.pactl("set-default-sink", sink)
        return module.strip()

    def disconnect_headset(self, headset):
        self.pactl("set-default-sink", "speakers")
        self.pactl("unload-module", headset)

    def sound_console(self):
        return SoundConsole(str(self._sound_socket))


class PipeWireDesktop(PrivateDesktop):
    """The same with PipeWire, which speaks PulseAudio's protocol: no sound_console()."""

    def start_sound_server(self):
        self.spawn(["pipewire"], "pipewire.log")
        # Its socket is there before it listens, and who comes in between gives up for good.
        wait_until(lambda: self.run("pw-cli", "info", "0", check=False), what="PipeWire")
        self.spawn(["wireplumber"], "wireplumber.log")
        self.spawn(["pipewire-pulse"], "pipewire-pulse.log")
        self._wait_for_default("auto_null")
        self.pactl("load-module", "module-null-sink", "sink_name=speakers")
        self.pactl("set-default-sink", "speakers")
        self._wait_for_default("speakers")
        self.set_volume(50)

    def _wait_for_default(self, sink):
        """Until the session manager has chosen it: the server names one of its own before that, but cannot
        change it, and has nothing to play to."""
        command = "pw-metadata", "0", "default.audio.sink"
        wait_until(lambda: f'"{sink}"' in self.run(*command, check=False), what=f"{sink} as the default sink")


class SoundConsole:
    """The sound server's own command line: many changes on one connection, without a process each."""

    def __init__(self, path):
        self._socket = socket.socket(socket.AF_UNIX)
        self._socket.settimeout(30)
        self._socket.connect(path)
        self._socket.sendall(b"hello\n")  # from here on it answers every line with a prompt
        self._read_prompt()

    def __enter__(self):
        return self

    def __exit__(self, *_):
        self._socket.close()

    def _read_prompt(self, prompts=1):
        seen = b""
        while seen.count(b">>> ") < prompts:
            read = self._socket.recv(65536)
            if not read:
                raise RuntimeError("the sound server closed its console")
            seen += read

    def set_volume(self, percent, sink="speakers"):
        self._socket.sendall(f"set-sink-volume {sink} {round(percent * 655.36)}\n".encode())
        self._read_prompt()

    def storm(self, percents, sink="speakers"):
        """Sets all these volumes as fast as the server takes them."""
        batch = 50
        for start in range(0, len(percents), batch):
            part = percents[start : start + batch]
            lines = "".join(f"set-sink-volume {sink} {round(p * 655.36)}\n" for p in part)
            self._socket.sendall(lines.encode())
            self._read_prompt(len(part))


def end_process(process, grace=3.0):
    """Asks a process of ours to end, insists after `grace` seconds."""
    if process.poll() is None:
        process.terminate()
        try:
            process.wait(grace)
        except subprocess.TimeoutExpired:
            process.kill()
            process.wait()


# -- wallpaper ----------------------------------------------------------------------------------

_DARK = [(0.0, (0x7A, 0xA7, 0xD8)), (0.45, (0x3C, 0x5A, 0x93)), (1.0, (0x1F, 0x2B, 0x52))]
_LIGHT = [(0.0, (0xF6, 0xE7, 0xD6)), (0.5, (0xE9, 0xC9, 0xB6)), (1.0, (0xC9, 0xA7, 0xB8))]


def _colour(stops, position):
    position = min(max(position, 0.0), 1.0)
    for (a, from_colour), (b, to_colour) in zip(stops, stops[1:]):
        if position <= b:
            part = (position - a) / (b - a)
            return tuple(round(f + (t - f) * part) for f, t in zip(from_colour, to_colour))
    return stops[-1][1]


def _wallpaper(kind, width, height):
    """A soft gradient: computed small, scaled up smoothly."""
    w, h = 240, max(1, 240 * height // width)

    def dark(x, y):  # light falling in from the upper left
        return (((x / w - 0.2) / 1.2) ** 2 + (y / h / 1.6) ** 2) ** 0.5

    def light(x, y):  # a slanted band from the upper left to the lower right
        across, down = 0.866 * (x - w / 2), 0.5 * (y - h / 2)
        return 0.5 + (across + down) / (0.866 * w + 0.5 * h)

    position, stops = (dark, _DARK) if kind == "dark" else (light, _LIGHT)
    small = Image.new("RGB", (w, h))
    small.putdata([_colour(stops, position(x + 0.5, y + 0.5)) for y in range(h) for x in range(w)])
    return small.resize((width, height), Image.BICUBIC)
