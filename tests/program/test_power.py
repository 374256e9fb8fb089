"""The machine's own battery, as the real UPower tells of it, and what the real notification daemon shows."""

import json
import time
import unittest

from case import DesktopTest
from desktop import wait_until
from power import Battery


class PowerTest(DesktopTest):
    def setUp(self):
        super().setUp()
        self.battery = Battery(self.desktop)
        self.desktop.start_notification_daemon()

    def notifications(self):
        """Titles of all that were shown, the latest first."""
        self.desktop.run("dunstctl", "close-all")
        history = json.loads(self.desktop.run("dunstctl", "history"))
        return [entry["summary"]["data"] for entry in history["data"][0]]

    def wait_for_title(self, title):
        hud = wait_until(lambda: (hud := self.island.hud()).get("title") == title and hud, 8, title)
        self.assertEqual(hud["type"], "battery")
        self.island.wait_until_collapsed(timeout=10)
        return hud

    def stays_quiet(self):
        time.sleep(1.5)
        self.assertEqual(self.island.hud(), {})

    def test_charger_and_one_warning_a_discharge(self):
        self.island = self.start_island({"lowBatteryThreshold": 20.9, "batteryHUDDuration": 1.0})
        self.island.wait_out_mute()
        self.stays_quiet()

        self.battery.set(21, plugged_in=True)
        self.assertEqual(self.wait_for_title("Charging")["icon"], "battery.100.bolt")
        self.battery.set(21)
        self.assertAlmostEqual(self.wait_for_title("On Battery")["level"], 0.21)

        self.battery.set(20)
        self.assertEqual(self.wait_for_title("Low Battery")["subtitle"], "20% remaining")
        self.assertEqual(self.notifications(), ["Low Battery"])
        self.battery.set(19)
        self.stays_quiet()
        self.battery.set(19, plugged_in=True)
        self.wait_for_title("Charging")
        self.battery.set(19)
        self.wait_for_title("On Battery")
        self.battery.set(18)
        self.assertEqual(self.wait_for_title("Low Battery")["subtitle"], "18% remaining")
        self.assertEqual(self.notifications(), ["Low Battery", "Low Battery"])

        self.battery.set(100, plugged_in=True, status="Full")
        self.wait_for_title("Plugged In")


if __name__ == "__main__":
    unittest.main()
