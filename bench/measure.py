"""Measures the whole program on a private desktop (virtual display, compositor, real sound server).

    /usr/bin/python3 -B bench/measure.py [--build build] [--minute 60] [--scale 1]

Prints Markdown tables. Needs a quiet machine; nothing here is asserted. Resolutions: a pixel is asked
for about every 0.1 ms, the clock is monotonic, idle processor time is the scheduler's own in ns.
"""

import argparse
import contextlib
import os
import sys
import time
from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent
sys.path.insert(0, str(ROOT / "tests" / "program"))
sys.path.insert(1, str(ROOT / "bench"))

from backlight import Backlight  # noqa: E402
from desktop import PrivateDesktop, end_process  # noqa: E402
from film import Camera  # noqa: E402
from island import Island, is_black  # noqa: E402
from media import Media  # noqa: E402
from power import Battery  # noqa: E402
from weather import WeatherServers  # noqa: E402


def percentile(values, part):
    ordered = sorted(values)
    return ordered[min(len(ordered) - 1, round(part * (len(ordered) - 1)))]


def spread(values, digits=1):
    p50, p95 = percentile(values, 0.5), percentile(values, 0.95)
    return f"p50 {p50:.{digits}f}, p95 {p95:.{digits}f}, max {max(values):.{digits}f} ms (n = {len(values)})"


def milliseconds(seconds):
    return seconds * 1000


def quiet_half(desktop):
    """A battery, and weather that has come."""
    Battery(desktop)
    WeatherServers(desktop).start()
    local = desktop.dir / "config" / "quillmere" / "local.json"
    local.parent.mkdir(parents=True)
    local.write_text('{"weatherPlace": {"name": "Lisbon", "latitude": 38.7, "longitude": -9.1}}')


class Measurement:
    def __init__(self, build, scale):
        self.build, self.scale = Path(build).resolve(), scale
        self.rows = []

    def row(self, what, measured):
        self.rows.append((what, measured))
        print(f"{what}: {measured}", file=sys.stderr, flush=True)

    @contextlib.contextmanager
    def running(self, defaults=None, hardware=lambda desktop: None):
        with PrivateDesktop(self.scale, "dark") as desktop:
            hardware(desktop)
            with Island(desktop, self.build, defaults) as island:
                island.wait_out_mute()
                yield desktop, island

    def area(self, desktop, left, top, width, height):
        """An area given in logical units from the middle of the main monitor's top edge."""
        monitor, s = desktop.primary, desktop.scale
        return (monitor.x + monitor.width // 2 + left * s, monitor.y + top * s, width * s, height * s)

    # -- event -> pixels ------------------------------------------------------------------------

    def latency(self, rounds):
        """From the sound server being told to the first changed pixel on the screen."""
        shown = {"volumeHUDDuration": 30.0}
        with self.running(shown) as (desktop, island), desktop.sound_console() as console:
            row = self.area(desktop, -150, 22, 300, 1)
            console.set_volume(90)
            island.wait_for_hud(0.9)
            changes = []
            for number in range(rounds):
                before = desktop.screen.until_still(row, quiet=0.1)
                started = time.monotonic()
                console.set_volume(20 + (number * 37) % 60)
                changed = desktop.screen.until_changed(row, before, 2)
                if changed is None:
                    raise RuntimeError("a volume change was never seen on the screen")
                changes.append(milliseconds(changed - started))
            self.row("volume change → changed pixels, HUD up", spread(changes))

        with self.running({"volumeHUDDuration": 0.3}) as (desktop, island), desktop.sound_console() as console:
            row = self.area(desktop, -150, 22, 300, 24)
            changes = []
            for number in range(max(10, rounds // 3)):
                before = desktop.screen.until_still(row, quiet=0.5)
                started = time.monotonic()
                console.set_volume(20 + (number * 37) % 60)
                changes.append(milliseconds(desktop.screen.until_changed(row, before, 2) - started))
            self.row("volume change → changed pixels, from the pill", spread(changes))

    def frames(self, rounds=12):
        """Intervals between different pictures while the island grows."""
        with self.running({"volumeHUDDuration": 0.3}) as (desktop, _), desktop.sound_console() as console:
            area = self.area(desktop, -160, 0, 320, 48)
            intervals = []
            for number in range(rounds):
                last = desktop.screen.until_still(area, quiet=0.6)
                console.set_volume(30 + (number * 17) % 40)
                seen, end = None, time.monotonic() + 0.28
                while time.monotonic() < end:
                    now = desktop.screen.raw(*area)
                    if now != last:
                        moment = time.monotonic()
                        if seen is not None:
                            intervals.append(milliseconds(moment - seen))
                        last, seen = now, moment
            self.row("frame intervals while growing", spread(intervals))

    def opening(self, cycles=10):
        """Intervals between different pictures while the dashboard opens and closes, and what it costs."""
        with self.running({"autoCollapseDelay": 60, "islandAppearance": "classic"}) as (desktop, island):
            camera, intervals = Camera(desktop), []
            for number in range(2 * cycles):
                frames = camera.film(island.toggle)
                if number < 2:
                    continue  # they load the pages
                for before, after in zip(frames[1:], frames[2:]):
                    # Towards its rest the island moves by less than a shade of a pixel in a frame.
                    if abs(frames[-1].bottom - after.bottom) > 4 * self.scale:
                        intervals.append(milliseconds(after.at - before.at))
            self.row("frame intervals while the dashboard opens or closes", spread(intervals))
        with self.running({"autoCollapseDelay": 60}) as (_, island):
            self.once(island)
            self.once(island)
            cpu, begun = island.cpu_seconds(), time.monotonic()
            for _ in range(2 * cycles):
                self.once(island)
            spent, passed = island.cpu_seconds() - cpu, time.monotonic() - begun
            self.row(
                f"CPU, dashboard opened or closed every {passed / cycles / 2:.1f} s",
                f"{100 * spent / passed:.1f} % of a core, {milliseconds(spent / cycles / 2):.0f} ms each time",
            )

    @staticmethod
    def once(island):
        island.toggle().wait(5)
        time.sleep(0.8)

    def cycles(self, count=200):
        """Memory of opening and closing the dashboard again and again."""
        with self.running({"autoCollapseDelay": 60}) as (_, island):
            done, before = 0, island.memory()["Private_Dirty"]
            self.row("memory written, dashboard never opened", f"{before} KiB")
            for target in (1, 2, 20, count):
                while done < target:
                    done += 1
                    self.once(island)
                    self.once(island)
                time.sleep(2)
                now = island.memory()["Private_Dirty"]
                self.row(f"memory written after {done} openings", f"{now} KiB ({now - before:+} since the row above)")
                before = now

    def settings(self, count=12):
        """From the request to the window's first picture, and what stays when it is closed again."""
        with self.running() as (desktop, island):
            self.row("memory written, settings never opened", f"{island.memory()['Private_Dirty']} KiB")
            middle = (desktop.primary.width // 2, desktop.primary.height // 2, 8 * self.scale, 8 * self.scale)
            times, closed = [], []
            for _ in range(count):
                before = desktop.screen.until_still(middle, quiet=0.3)
                begun = time.monotonic()
                island.ctl("action", "settings")
                times.append(milliseconds(desktop.screen.until_changed(middle, before, 5) - begun))
                time.sleep(1)
                window = desktop.run("xdotool", "search", "--onlyvisible", "--name", "Quillmere Settings").strip()
                desktop.run("xdotool", "windowfocus", "--sync", window, "key", "Escape")
                time.sleep(2)
                closed.append(island.memory()["Private_Dirty"])
        self.row("settings asked for by a client → window on screen, first time", f"{times[0]:.0f} ms")
        self.row("settings asked for by a client → window on screen, warm", spread(times[1:], 0))
        self.row(
            "memory written, settings closed again",
            f"{closed[0]} KiB the first time, {closed[1]} the second, then {closed[-1] - closed[1]:+} "
            f"in {count - 2} openings",
        )

    # -- start ----------------------------------------------------------------------------------

    def start(self, rounds=12):
        """From exec to the pill's black on the screen, everything in the page cache."""
        times = []
        with PrivateDesktop(self.scale, "dark") as desktop:
            x, y, _, _ = self.area(desktop, 0, 10, 1, 1)
            for number in range(rounds + 2):
                begun = time.monotonic()
                process = desktop.spawn([str(self.build / "bin" / "quillmere")], "quillmere.log")
                while not is_black(desktop.screen.pixel(x, y)):
                    if time.monotonic() > begun + 10:
                        raise RuntimeError("the island never came\n" + desktop.log("quillmere.log"))
                if number >= 2:
                    times.append(milliseconds(time.monotonic() - begun))
                time.sleep(0.3)
                end_process(process)
                while is_black(desktop.screen.pixel(x, y)):
                    time.sleep(0.01)
        self.row("start → island on screen, warm", spread(times, 0))

    # -- idle -----------------------------------------------------------------------------------

    def idle(self, seconds):
        still = {"showSystemMonitor": False}
        self.rest(seconds, "without a brightness", still)
        self.rest(seconds, "with a backlight", still, Backlight)
        self.rest(seconds, "with battery, load and weather", {}, quiet_half)

    def rest(self, seconds, what, defaults, hardware=lambda desktop: None):
        with self.running(defaults, hardware) as (_, island):
            time.sleep(5)
            self.row(f"memory, collapsed, before the first HUD, {what}", self.memory(island))
            begun = time.monotonic()
            (voluntary, involuntary, busy), ended = self.activity(island, seconds)
            passed = time.monotonic() - begun
            self.row(
                f"idle, collapsed, {passed:.0f} s, {what}",
                f"{voluntary / passed:.2f} voluntary and {involuntary / passed:.2f} involuntary switches a second, "
                f"{busy / passed / 1e7:.4f} % of a core; {ended} threads ended meanwhile",
            )

    def countdown(self, seconds=20):
        """A running countdown in the wings, and on its page, which the keyboard turned to."""
        opened = {"enableCountdownTimer": True, "showSystemMonitor": False, "autoCollapseDelay": 600.0}
        with self.running(opened) as (desktop, island):
            island.ctl("perform", "StartCountdownTimerIntent", "minutes=60")
            time.sleep(5)
            self.stretch(island, seconds, "a countdown runs, collapsed")
            island.ctl("action", "toggle-island")
            while island.get("Page") != "timer":
                desktop.run("xdotool", "key", "Right")
                time.sleep(0.5)
            time.sleep(3)
            self.stretch(island, seconds, "a countdown runs, its page is open")

    def stretch(self, island, seconds, what):
        begun = time.monotonic()
        (voluntary, involuntary, busy), _ = self.activity(island, seconds)
        passed = time.monotonic() - begun
        self.row(what, f"{(voluntary + involuntary) / passed:.1f} switches a second, {busy / passed / 1e7:.2f} % of a core")

    @staticmethod
    def activity(island, seconds, step=0.25):
        """Switches and processor time of all threads, and how many threads ended.

        A thread takes its counts with it when it ends, so they are added up step by step and per
        thread: what is lost is at most its last step.
        """
        total, ended = [0, 0, 0], 0
        last, end = island.threads(), time.monotonic() + seconds
        while time.monotonic() < end:
            time.sleep(step)
            now = island.threads()
            ended += len(last.keys() - now.keys())
            for thread, counts in now.items():
                before = last.get(thread, (0, 0, 0))
                total = [sum_ + count - old for sum_, count, old in zip(total, counts, before)]
            last = now
        return total, ended

    def animating(self, seconds=15):
        """The volume moved as by a held key: ten changes a second."""
        with self.running() as (desktop, island), desktop.sound_console() as console:
            cpu, begun, level = island.cpu_seconds(), time.monotonic(), 0
            while time.monotonic() < begun + seconds:
                level += 1
                console.set_volume(20 + level % 60)
                time.sleep(0.1)
            share = (island.cpu_seconds() - cpu) / (time.monotonic() - begun)
            self.row("CPU, ten volume changes a second", f"{100 * share:.1f} % of a core")

    @staticmethod
    def memory(island):
        sums = {key: value / 1024 for key, value in island.memory().items()}
        private = sums["Private_Clean"] + sums["Private_Dirty"]
        return (
            f"PSS {sums['Pss']:.1f} MiB, private {private:.1f} MiB, of which {sums['Private_Dirty']:.1f} written "
            "by it (the rest: library pages that no other program uses now)"
        )

    def growth(self, huds):
        """Memory from before the first HUD on: what the first ones cost is told, not hidden in a warm-up."""
        with self.running({"volumeHUDDuration": 0.02}) as (desktop, island):
            with desktop.sound_console() as console, island.watch() as watcher:
                number, before = 0, island.memory()["Private_Dirty"]
                self.row("memory written, no HUD yet", f"{before} KiB")
                for count in (1, 10, 200, 200 + huds):
                    while number < count:
                        number += 1
                        console.set_volume(20 + (number * 37) % 60)
                        time.sleep(0.05)
                    time.sleep(2)
                    now = island.memory()["Private_Dirty"]
                    seen = len(watcher.huds())
                    self.row(f"memory written after {seen} HUDs", f"{now} KiB ({now - before:+} since the row above)")
                    before = now
            self.row("memory, collapsed, afterwards", self.memory(island))

    def storm(self, starts=5, storms=4):
        """10,000 volume changes at once, again and again; the base is taken when each glyph was shown once."""
        percents, grown = [(i * 37) % 101 for i in range(10_000)], []
        for _ in range(starts):
            with self.running() as (desktop, island), desktop.sound_console() as console:
                for percent in (20, 40, 70):
                    console.set_volume(percent)
                    island.wait_for_hud(percent / 100)
                island.wait_until_collapsed()
                time.sleep(1)
                base, row = island.memory()["Private_Dirty"], []
                for number in range(storms):
                    console.storm(percents)
                    console.set_volume(43 + number % 2)
                    island.wait_until_collapsed(10)
                    time.sleep(1)
                    row.append(island.memory()["Private_Dirty"] - base)
                grown.append(row)
        for number, column in enumerate(zip(*grown), 1):
            self.row(
                f"memory written, added by {number} × 10,000 volume changes",
                f"{min(column)} to {max(column)} KiB over {starts} starts: {', '.join(map(str, column))}",
            )


def machine():
    model = next((line.split(":")[1].strip() for line in open("/proc/cpuinfo") if line.startswith("model name")), "?")
    return f"{os.cpu_count()} × {model}, load {os.getloadavg()[0]:.2f}"


def grab_cost(desktop):
    area = (0, 0, 300, 1)
    begun = time.monotonic()
    for _ in range(500):
        desktop.screen.raw(*area)
    return milliseconds((time.monotonic() - begun) / 500)


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--build", default=str(ROOT / "build"))
    parser.add_argument("--scale", type=int, default=1)
    parser.add_argument("--minute", type=float, default=60, metavar="SECONDS", help="length of the idle measurement")
    parser.add_argument("--rounds", type=int, default=100, help="volume changes timed")
    parser.add_argument("--huds", type=int, default=2000)
    parser.add_argument("--tracks", type=int, default=500, help="changes of track with large artwork")
    parser.add_argument("--only", help="one measurement by name, such as opening")
    options = parser.parse_args()

    print(f"Machine: {machine()}\n")
    measurement = Measurement(options.build, options.scale)
    with PrivateDesktop(options.scale) as desktop:
        measurement.row("asking for a pixel row (resolution)", f"{grab_cost(desktop):.2f} ms")
    measurements = {
        "start": measurement.start,
        "latency": lambda: measurement.latency(options.rounds),
        "frames": measurement.frames,
        "opening": measurement.opening,
        "animating": measurement.animating,
        "idle": lambda: measurement.idle(options.minute),
        "countdown": measurement.countdown,
        "growth": lambda: measurement.growth(options.huds),
        "storm": measurement.storm,
        "cycles": measurement.cycles,
        "settings": measurement.settings,
        "playhead": lambda: Media(measurement).playhead(),
        "media": lambda: Media(measurement).costs(),
        "artwork": lambda: Media(measurement).artwork(options.tracks),
        "mediastorm": lambda: Media(measurement).storm(),
    }
    for name, measure in measurements.items():
        if options.only in (None, name):
            measure()

    print(f"| what, at {options.scale}x | measured |\n|---|---|")
    for what, measured in measurement.rows:
        print(f"| {what} | {measured} |")


if __name__ == "__main__":
    main()
