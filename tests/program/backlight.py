"""A backlight without hardware, in a /sys that only the program sees."""

import os


class Backlight:
    """Of the desktop's programs; has to be there before they start. `percent` is what it starts at."""

    _MAXIMUM = 1000

    def __init__(self, desktop, percent=50):
        root = desktop.dir / "hardware"
        device = root / "sys" / "devices" / "intel_backlight"
        device.mkdir(parents=True)
        by_class = root / "sys" / "class" / "backlight"
        by_class.mkdir(parents=True)
        (by_class / device.name).symlink_to("../../devices/intel_backlight")
        (device / "subsystem").symlink_to("../../class/backlight")
        for name, value in {"type": "raw", "max_brightness": self._MAXIMUM, "uevent": ""}.items():
            (device / name).write_text(f"{value}\n")
        self._level = device / "brightness"
        self._level.touch()
        self.set(percent)
        desktop.hardware_env = {"LD_PRELOAD": "libumockdev-preload.so.0", "UMOCKDEV_DIR": str(root)}
        desktop.hardware_env["ASAN_OPTIONS"] = desktop.env.get("ASAN_OPTIONS", "") + ":verify_asan_link_order=0"

    def set(self, percent):
        # In place and always as long: a reader that keeps the file open finds a whole number at any time.
        with open(self._level, "r+b", buffering=0) as file:
            file.write(b"%-5d\n" % round(percent * self._MAXIMUM / 100))
