"""A battery and a charger without hardware, watched by the real UPower on a system bus of the desktop's own."""

import subprocess
import sys

from desktop import wait_until

_POWER_SUPPLIES = """
import gi, subprocess, sys
gi.require_version("UMockdev", "1.0")
from gi.repository import UMockdev
bed = UMockdev.Testbed.new()
charger = bed.add_device("power_supply", "AC", None, ["type", "Mains", "online", "0"], [])
battery = bed.add_device("power_supply", "BAT0", None,
    ["type", "Battery", "scope", "System", "present", "1", "status", "Discharging", "technology", "Li-ion",
     "energy_full", "60000000", "energy_full_design", "60000000", "energy_now", "12600000", "power_now", "10000000",
     "voltage_now", "12000000", "capacity", "21"], [])
upower = subprocess.Popen(["/usr/libexec/upowerd"])
for line in sys.stdin:
    percent, status, online = line.split()
    bed.set_attribute(battery, "capacity", percent)
    bed.set_attribute(battery, "energy_now", str(int(percent) * 600000))
    bed.set_attribute(battery, "status", status)
    bed.set_attribute(charger, "online", online)
    bed.uevent(charger, "change")
    bed.uevent(battery, "change")
    print("done", flush=True)
upower.kill()
upower.wait()
"""


class Battery:
    """Starts on battery at 21 %. Has to be there before the program starts."""

    def __init__(self, desktop):
        self.desktop = desktop
        desktop.start_system_bus()
        history = desktop.dir / "upower"
        history.mkdir()
        env = desktop.env | {"UPOWER_HISTORY_DIR": str(history)}
        command = ["umockdev-wrapper", "/usr/bin/python3", "-c", _POWER_SUPPLIES]
        self._supplies = desktop.spawn(
            command, "upower.log", env=env, stdin=subprocess.PIPE, stdout=subprocess.PIPE, text=True
        )
        wait_until(lambda: "percentage" in self.upower(), what="UPower")

    def upower(self):
        return self.desktop.run("upower", "-i", "/org/freedesktop/UPower/devices/DisplayDevice", check=False)

    def set(self, percent, plugged_in=False, status=None):
        status = status or ("Charging" if plugged_in else "Discharging")
        print(percent, status, int(plugged_in), file=self._supplies.stdin, flush=True)
        if self._supplies.stdout.readline() != "done\n":
            sys.exit("the power supplies ended: " + self.desktop.log("upower.log"))
