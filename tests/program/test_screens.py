"""Monitors come, go and change places under the running program."""

import unittest

from case import IslandTest
from desktop import wait_until

PILL = (-63, 63)
HUD = (-150, 150)


class ScreensTest(IslandTest):
    def reaches(self, monitor, width, y=16):
        def there():
            shape = self.island.shape(monitor, y)
            return shape and abs(shape[0] - width[0]) <= 1 and abs(shape[1] - width[1]) <= 1

        wait_until(there, 5, f"an island {width} wide on {monitor.name}")

    def shows_hud_on(self, monitor, percent):
        self.desktop.set_volume(percent)
        self.island.wait_for_hud(percent / 100)
        self.reaches(monitor, HUD)
        self.island.wait_until_collapsed()
        self.reaches(monitor, PILL)

    def test_follows_the_main_monitor(self):
        first, second = self.desktop.primary, self.desktop.secondary
        self.shows_hud_on(first, 40)

        self.desktop.plug(second)
        self.shows_hud_on(first, 45)

        self.desktop.make_primary(second)
        self.reaches(second, PILL)
        self.assertIsNone(self.island.shape(first, 16))
        self.shows_hud_on(second, 50)

        self.desktop.unplug(second)
        self.reaches(first, PILL)
        self.shows_hud_on(first, 55)

        self.desktop.plug(second, primary=True)
        self.shows_hud_on(second, 60)
        self.desktop.unplug(first)
        self.shows_hud_on(second, 65)
        self.desktop.plug(first)
        self.desktop.unplug(second)
        self.shows_hud_on(first, 70)

    def test_unplugged_while_a_hud_is_up(self):
        first, second = self.desktop.primary, self.desktop.secondary
        self.desktop.plug(second, primary=True)
        self.desktop.set_volume(30)
        self.island.wait_for_hud(0.3)
        self.desktop.unplug(second)
        self.reaches(first, PILL)
        self.shows_hud_on(first, 35)

    def test_without_any_monitor_for_a_while(self):
        first = self.desktop.primary
        for percent in (20, 25):
            self.desktop.unplug(first)
            self.desktop.turn_output_off()
            self.desktop.set_volume(percent)
            self.island.wait_for_hud(percent / 100)
            self.desktop.turn_output_on()
            self.desktop.plug(first)
            self.island.wait_until_collapsed()
            self.shows_hud_on(first, percent + 1)


if __name__ == "__main__":
    unittest.main(verbosity=2)
