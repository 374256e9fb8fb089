#!/usr/bin/python3
"""Cuts the pictures of the README and of docs/gallery.md out of a finished tour.

    /usr/bin/python3 tests/program/tour.py --build build --out build/tour
    /usr/bin/python3 tests/program/gallery.py build/tour
"""

import argparse
import sys
from pathlib import Path

from PIL import Image

IMAGES = Path(__file__).resolve().parent.parent.parent / "docs" / "images"
HUD, WINGS, PAGE = (440, 100), (440, 60), (660, 240)  # logical units
MESSAGE = (440, 120)

# Picture of the tour (light wallpaper, 2x) -> name in docs/images and what is cut out around the island.
PICTURES = {
    "volume-40": ("volume", HUD),
    "muted": ("muted", HUD),
    "brightness-60": ("brightness", HUD),
    "charging": ("charging", HUD),
    "on-battery": ("on-battery", HUD),
    "low-battery": ("low-battery", HUD),
    "headset": ("headset", HUD),
    "file-added": ("file-added", MESSAGE),
    "google-event": ("calendar", MESSAGE),
    "google-mail": ("mail", MESSAGE),
    "message": ("message", MESSAGE),
    "weather-hud": ("weather-hud", MESSAGE),
    "do-not-disturb": ("do-not-disturb", MESSAGE),
    "timer-complete": ("timer-complete", MESSAGE),
    "assistant": ("assistant", WINGS),
    "weather-wings": ("weather-wings", WINGS),
    "media-wings": ("media-wings", WINGS),
    "timer-wings": ("timer-wings", WINGS),
    "dashboard": ("clock", PAGE),
    "dashboard-activity": ("activities", PAGE),
    "dashboard-assistant": ("assistant-card", PAGE),
    "media": ("media", PAGE),
    "weather": ("weather", PAGE),
    "weather-places": ("weather-places", PAGE),
    "weather-without-a-place": ("weather-without-a-place", PAGE),
    "system": ("system", PAGE),
    "timer-focus-running": ("timer-focus", PAGE),
    "timer-countdown-running": ("timer-countdown", PAGE),
    "timer-stopwatch-running": ("timer-stopwatch", PAGE),
    "tray-with-a-file": ("tray", PAGE),
    "outputs": ("outputs", PAGE),
}


# Pictures of the tour that are shown whole.
WHOLE = {
    "settings-now-playing-light-1x": "settings",
    "settings-sound-dark-1x": "settings-dark",
    "setup-welcome-light-1x": "setup",
    "setup-sources-light-1x": "setup-sources",
    "setup-needs-light-1x": "setup-needs",
    "setup-finish-light-1x": "setup-finish",
}


SHEET = 4, 420  # pictures beside each other, and how wide each is


def save(picture, name):
    # A palette of 256 colours is not seen to differ, and half as large.
    picture.convert("RGB").quantize(256, dither=Image.Dither.FLOYDSTEINBERG).save(IMAGES / f"{name}.png", optimize=True)


def sheet(pictures):
    """All of them, small, in the order of the tour."""
    columns, width = SHEET
    with Image.open(pictures[0]) as first:
        height = width * first.height // first.width
    rows = -(-len(pictures) // columns)
    gap = 8
    whole = Image.new("RGB", (columns * (width + gap) - gap, rows * (height + gap) - gap), "white")
    for number, path in enumerate(pictures):
        with Image.open(path) as picture:
            small = picture.convert("RGB").resize((width, height), Image.Resampling.LANCZOS)
        whole.paste(small, (number % columns * (width + gap), number // columns * (height + gap)))
    return whole


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("tour", type=Path)
    tour = parser.parse_args().tour
    missing = []
    for shown, (name, (width, height)) in PICTURES.items():
        found = sorted(tour.glob(f"[0-9]*-{shown}-light-2x.png"))
        if not found:
            missing.append(shown)
            continue
        with Image.open(found[0]) as picture:
            left = (picture.width - 2 * width) // 2
            save(picture.crop((left, 0, left + 2 * width, 2 * height)), name)
    for shown, name in WHOLE.items():
        found = sorted(tour.glob(f"[0-9]*-{shown}.png"))
        if not found:
            missing.append(shown)
            continue
        with Image.open(found[0]) as picture:
            save(picture, name)
    pages = sorted(tour.glob("[0-9]*-settings-*-light-2x.png"))
    if pages:
        save(sheet(pages), "settings-pages")
    else:
        missing.append("the pages of the settings")
    if missing:
        sys.exit("not in the tour: " + ", ".join(missing))


if __name__ == "__main__":
    main()
