"""The sound server is absent, dies, returns, or is beaten with changes; the island lives through it."""

import time
import unittest

from case import SANITIZED, DesktopTest, IslandTest
from desktop import wait_until


class SoundServerTest(DesktopTest):
    def change_until_shown(self, island, timeout=20.0):
        """A server that is back is noticed within the retry interval: change until a change is shown."""
        level = iter(range(1, 99))

        def shown():
            percent = next(level)
            self.desktop.set_volume(percent)
            time.sleep(0.3)
            hud = island.hud()
            return hud and abs(hud["level"] - percent / 100) < 1e-6

        wait_until(shown, timeout, "the HUD of a change", step=0.2)

    def test_killed_and_started_again(self):
        island = self.start_island()
        island.wait_out_mute()
        for _ in range(2):
            self.desktop.set_volume(60)
            self.change_until_shown(island)
            self.desktop.kill_sound_server()
            island.wait_until_collapsed()
            self.desktop.start_sound_server()
            self.change_until_shown(island)
        self.assertTrue(island.is_alive())


class StormTest(IslandTest):
    def storm(self, percents, last):
        with self.desktop.sound_console() as console:
            console.storm(percents)
            console.set_volume(last)
        hud = self.island.wait_for_hud(last / 100, timeout=10)
        self.island.wait_until_collapsed()
        return hud

    def test_ten_thousand_changes(self):
        percents = [(i * 37) % 101 for i in range(10_000)]
        self.assertEqual(self.storm(percents, 43)["icon"], "speaker.wave.2.fill")
        # The first storm sets the heap's high-water mark (bench/measure.py tells how high). From
        # there on as many changes again must not add to it: what is looked for here is a leak.
        before = self.island.memory()["Private_Dirty"]
        self.storm(percents, 71)
        if not SANITIZED:  # a sanitizer keeps freed memory on purpose
            self.assertLessEqual(self.island.memory()["Private_Dirty"] - before, 1024)


if __name__ == "__main__":
    unittest.main(verbosity=2)
