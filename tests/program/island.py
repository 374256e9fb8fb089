"""The program under test, seen only from outside: its process, its bus interface, its files, its pixels."""

import json
import os
import re
import signal
import subprocess
import time
from pathlib import Path

from bus import BUS_NAME, Watcher
from desktop import end_process, wait_until

LAUNCH_MUTE = 3.0  # seconds after launch in which nothing is shown

# Lines that no healthy run prints.
_FAULTS = re.compile(
    r"AddressSanitizer|LeakSanitizer|runtime error|Binding loop|ReferenceError|TypeError|ASSERT|"
    r"Unable to assign|QObject::connect|QTimer|QThread|QPainter::|QBackingStore|No such slot|is not installed|"
    r"Cannot open: qrc"
)


def is_black(pixel):
    return max(pixel) <= 8


def is_white(pixel):
    return min(pixel) >= 200


class Island:
    """One start of the program on a private desktop; ends with the `with` block at the latest. Its user
    has seen the setup window before, unless it is the `first_run`."""

    def __init__(self, desktop, build, defaults=None, first_run=False):
        self.desktop = desktop
        self.program = Path(build) / "bin" / "quillmere"
        self._ctl = Path(build) / "bin" / "quillmerectl"
        self.config = desktop.dir / "config" / "quillmere"
        self._stderr = "quillmere.log"
        self._known = {} if first_run else {"hasCompletedOnboarding": True}
        if defaults is not None or not os.path.lexists(self.config):
            self.write_defaults(defaults or {})

    def __enter__(self):
        self.start()
        return self

    def __exit__(self, kind, *_):
        end_process(self.process)
        if kind:
            print(self.output())

    def start(self):
        env = self.desktop.env | self.desktop.hardware_env
        self.spawned = time.monotonic()
        self.process = self.desktop.spawn([*self.desktop.prefix, str(self.program)], self._stderr, env=env)
        wait_until(self._is_up, timeout=20, what="the island on the bus")
        self.started = time.monotonic()
        return self

    def _is_up(self):
        if self.process.poll() is not None:
            raise AssertionError(f"the program ended with {self.process.returncode}\n{self.output()}")
        return self.ctl("get", "Presentation", check=False).strip()

    def wait_out_mute(self):
        time.sleep(max(0.0, self.started + LAUNCH_MUTE - time.monotonic()))

    # -- what it says ---------------------------------------------------------------------------

    def ctl(self, *arguments, check=True):
        return self.desktop.run(str(self._ctl), *arguments, check=check)

    def toggle(self):
        """Opens or closes the dashboard, without waiting for it."""
        return self.desktop.spawn([str(self._ctl), "action", "toggle-island"], "ctl.log")

    def get(self, name):
        return json.loads(self.ctl("get", name))

    def hud(self):
        return self.get("CurrentHUD")

    def wait_for_hud(self, level, timeout=3.0):
        """Waits for the volume HUD at `level` (0...1) and returns it."""

        def shown():
            hud = self.hud()
            return hud if hud and abs(hud["level"] - level) < 1e-6 else None

        return wait_until(shown, timeout, f"a HUD at {level}")

    def wait_for(self, name, value, timeout=5.0):
        """Waits until the property `name` is `value`."""
        wait_until(lambda: self.get(name) == value, timeout, f"{name} to become {value}")

    def wait_until_collapsed(self, timeout=6.0):
        wait_until(lambda: not self.hud() and self.get("Presentation") == "collapsed", timeout, "the collapsed island")

    def type_place(self, name, latitude, longitude, time_zone="Europe/London"):
        """As if the user had typed it for the weather."""
        local = self.config / "local.json"
        values = json.loads(local.read_text()) if local.exists() else {}
        values["weatherPlace"] = {"name": name, "latitude": latitude, "longitude": longitude, "timeZone": time_zone}
        self.write_file(local, json.dumps(values))

    def watch(self):
        return Watcher(self.desktop)

    def output(self):
        return self.desktop.log(self._stderr)

    def faults(self):
        return [line for line in self.output().splitlines() if _FAULTS.search(line)]

    # -- its files ------------------------------------------------------------------------------

    @property
    def defaults_file(self):
        return self.config / "defaults.json"

    def write_defaults(self, values):
        self.write_file(self.defaults_file, json.dumps(self._known | values))

    @staticmethod
    def write_file(path, text):
        """Replaces the file as an editor would, whole."""
        path.parent.mkdir(parents=True, exist_ok=True)
        new = path.with_name(path.name + ".new")
        new.write_text(text)
        os.replace(new, path)

    # -- its process ----------------------------------------------------------------------------

    def is_alive(self):
        return self.process.poll() is None

    def wait_for_exit(self, timeout=10.0):
        try:
            return self.process.wait(timeout)
        except subprocess.TimeoutExpired:
            raise AssertionError(f"still running {timeout} s later") from None

    def stop(self):
        self.process.send_signal(signal.SIGTERM)
        return self.wait_for_exit()

    def left_behind(self):
        """Processes of the program's session that are still there."""
        session, found = str(self.process.pid), []
        for entry in Path("/proc").iterdir():
            if not entry.name.isdigit():
                continue
            try:
                fields = (entry / "stat").read_text().rpartition(")")[2].split()
                if fields[3] == session and fields[0] != "Z":
                    found.append((entry / "cmdline").read_text().replace("\0", " "))
            except (FileNotFoundError, ProcessLookupError):
                continue
        return found

    def owns_name(self):
        return "true" in self.desktop.run(
            "gdbus", "call", "--session", "-d", "org.freedesktop.DBus", "-o", "/",
            "-m", "org.freedesktop.DBus.NameHasOwner", BUS_NAME,
        )  # fmt: skip

    def memory(self):
        """Sums over its mappings in KiB, e.g. Pss, Private_Clean, Private_Dirty.

        Clean pages of a library are private only while nobody else uses that library: they come and
        go with other programs. Private_Dirty is what this program alone has written.
        """
        text = Path(f"/proc/{self.process.pid}/smaps_rollup").read_text()
        return {key: int(number) for key, number in re.findall(r"^(\w+):\s+(\d+) kB", text, re.M)}

    def cpu_seconds(self):
        fields = Path(f"/proc/{self.process.pid}/stat").read_text().rpartition(")")[2].split()
        return (int(fields[11]) + int(fields[12])) / os.sysconf("SC_CLK_TCK")

    def threads(self):
        """Of every thread that is there now: (voluntary switches, involuntary ones, ns on a processor)."""
        found = {}
        for task in Path(f"/proc/{self.process.pid}/task").iterdir():
            try:
                found[task.name] = self.activity(task)
            except (FileNotFoundError, ProcessLookupError):
                pass  # it ended meanwhile
        return found

    def main_thread(self):
        """The same of the main thread alone."""
        return self.activity(Path(f"/proc/{self.process.pid}/task/{self.process.pid}"))

    @staticmethod
    def activity(task):
        text = (task / "status").read_text()
        voluntary = int(re.search(r"^voluntary_ctxt_switches:\s+(\d+)", text, re.M).group(1))
        involuntary = int(re.search(r"^nonvoluntary_ctxt_switches:\s+(\d+)", text, re.M).group(1))
        return voluntary, involuntary, int((task / "schedstat").read_text().split()[0])

    # -- its pixels -----------------------------------------------------------------------------

    def shape(self, monitor, y):
        """Where the island reaches on the row `y` (logical units below the top edge), as (left, right)
        in logical units from the monitor's centre; None where there is no black in the middle."""
        scale = self.desktop.scale
        row = self.desktop.screen.grab(monitor.x, monitor.y + round(y * scale), monitor.width, 1)
        pixels = list(row.getdata())
        solid = [x for x, pixel in enumerate(pixels) if is_black(pixel)]
        if not solid:
            return None
        centre = monitor.width / 2
        return (solid[0] - centre) / scale, (solid[-1] + 1 - centre) / scale

    def bar(self, monitor, y=22):
        """How much of the bar on the row `y` is filled: the longest white run in logical units, 0 = none."""
        scale = self.desktop.scale
        left = monitor.x + monitor.width // 2 - 150 * scale
        row = self.desktop.screen.grab(left, monitor.y + round(y * scale), 300 * scale, 1)
        longest = run = 0
        for pixel in row.getdata():
            run = run + 1 if is_white(pixel) else 0
            longest = max(longest, run)
        return longest / scale
