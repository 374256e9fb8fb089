"""Volume changes of the real sound server, as the bus tells of the HUD."""

import json
import time
import unittest

from case import DesktopTest, IslandTest
from desktop import wait_until
from island import LAUNCH_MUTE


class VolumeTest(IslandTest):
    def test_level_and_icon(self):
        for percent, shown, icon in [
            (33, 0.33, "speaker.wave.2.fill"),
            (66, 0.66, "speaker.wave.3.fill"),
            (130, 1.00, "speaker.wave.3.fill"),
        ]:
            with self.subTest(percent=percent):
                self.desktop.set_volume(percent)
                hud = self.island.wait_for_hud(shown)
                self.assertEqual((hud["type"], hud["title"], hud["icon"]), ("volume", "Volume", icon))
                self.assertEqual(self.island.get("Presentation"), "hud")

    def test_empties_again_after_its_duration(self):
        with self.island.watch() as watcher:
            changed = time.monotonic()
            self.desktop.set_volume(40)
            self.island.wait_for_hud(0.4)
            self.island.wait_until_collapsed()
            (shown, _), (gone, _) = watcher.wait_for_changes("CurrentHUD", 2)
        # We hear of each a little late: the first could seem too late, the second never too early.
        self.assertGreater(gone - changed, 1.5)
        self.assertLess(gone - shown, 2.5)

    def test_takes_the_switch_from_the_file(self):
        self.addCleanup(self.island.write_defaults, {})
        console = self.desktop.sound_console()
        self.addCleanup(console.__exit__)
        self.island.write_defaults({"showVolumeHUD": False, "aStrangersKey": [1, 2]})
        level = iter(range(10, 95))

        def silent():
            console.set_volume(next(level))
            time.sleep(0.3)
            return not self.island.hud()

        self.island.wait_until_collapsed()
        wait_until(silent, what="the HUD to stay away", step=2)
        with self.island.watch() as watcher:
            for _ in range(5):
                console.set_volume(next(level))
                time.sleep(0.1)
            self.assertEqual(watcher.huds(), [])
        self.assertEqual(json.loads(self.island.defaults_file.read_text())["aStrangersKey"], [1, 2])

        self.island.write_defaults({"showVolumeHUD": True})
        wait_until(lambda: not silent(), what="the HUD to come back")


class LaunchTest(DesktopTest):
    def test_nothing_shows_in_the_first_seconds(self):
        island = self.start_island()
        with island.watch() as watcher, self.desktop.sound_console() as console:
            percent = 0
            while not watcher.huds() and time.monotonic() < island.started + 2 * LAUNCH_MUTE:
                percent = (percent + 7) % 100
                console.set_volume(percent)
                time.sleep(0.05)
            first = watcher.huds()[0][0]
        self.assertGreaterEqual(first - island.spawned, LAUNCH_MUTE)
        self.assertLess(first - island.started, LAUNCH_MUTE + 0.9)


if __name__ == "__main__":
    unittest.main(verbosity=2)
