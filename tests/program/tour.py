"""Plays real events on private desktops and leaves numbered screenshots of what the island shows.

    python3 tour.py --build <build directory> --out <directory for the PNGs>
"""

import argparse
import contextlib
import time
from pathlib import Path

from desktop import PrivateDesktop
from island import Island

STRIP = 300  # logical units of the screen's top that a screenshot shows


class Tour:
    def __init__(self, out):
        self.out = Path(out)
        self.out.mkdir(parents=True, exist_ok=True)
        for old in self.out.glob("[0-9][0-9]-*.png"):
            old.unlink()
        self.count = 0

    def visit(self, desktop, island, look):
        """All stops on one desktop; `look` names it in the file names."""
        suffix = f"{look}-{desktop.scale}x"

        def shoot(name, monitor=desktop.primary, height=STRIP):
            self.save(desktop, monitor, f"{name}-{suffix}", height)

        def settled(name, monitor=desktop.primary):
            desktop.screen.until_still((monitor.x, monitor.y, monitor.width, 100 * desktop.scale), quiet=0.2)
            shoot(name, monitor)

        island.wait_out_mute()
        settled("collapsed")

        with desktop.sound_console() as console:
            console.set_volume(40)
            self.growing(desktop, shoot)
            settled("volume-40")
            for percent in (20, 75):
                console.set_volume(percent)
                island.wait_for_hud(percent / 100)
                settled(f"volume-{percent}")
            console.set_volume(100)
            island.wait_for_hud(1)
            time.sleep(0.05)
            shoot("volume-100-bump")
            settled("volume-100")
            console.set_volume(0)
            island.wait_for_hud(0)
            settled("volume-0")
            console.set_volume(60)
            island.wait_for_hud(0.6)

        desktop.set_muted(True)
        island.wait_for_hud(0)
        settled("muted")
        desktop.set_muted(False)
        island.wait_for_hud(0.6)
        settled("unmuted")
        shoot("whole-screen", height=982)

        desktop.plug(desktop.secondary)
        desktop.make_primary(desktop.secondary)
        time.sleep(0.5)
        desktop.set_volume(50)
        island.wait_for_hud(0.5)
        settled("second-monitor", desktop.secondary)
        desktop.unplug(desktop.secondary)
        island.wait_until_collapsed()
        settled("first-monitor-again")

    @staticmethod
    def growing(desktop, shoot):
        """Catches the island on its way from the pill to the HUD."""
        monitor, scale = desktop.primary, desktop.scale
        beside_pill = (monitor.x + monitor.width // 2 - 110 * scale, monitor.y + 10 * scale, 1, 1)
        desktop.screen.until_changed(beside_pill, desktop.screen.raw(*beside_pill), timeout=3)
        shoot("growing")

    def save(self, desktop, monitor, name, height):
        picture = desktop.screen.grab(monitor.x, monitor.y, monitor.width, min(monitor.height, height * desktop.scale))
        self.count += 1
        path = self.out / f"{self.count:02}-{name}.png"
        picture.save(path)
        print(path, flush=True)


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--build", required=True)
    parser.add_argument("--out", required=True)
    options = parser.parse_args()
    build = Path(options.build).resolve()
    tour = Tour(options.out)
    for look, scale in [("dark", 1), ("dark", 2), ("light", 1), ("light", 2)]:
        with contextlib.ExitStack() as stack:
            desktop = stack.enter_context(PrivateDesktop(scale, look))
            island = stack.enter_context(Island(desktop, build))
            tour.visit(desktop, island, look)
            if faults := island.faults():
                raise SystemExit("\n".join(faults))


if __name__ == "__main__":
    main()
