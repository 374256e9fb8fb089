"""What is really on the screen, to the pixel."""

import unittest

from case import IslandTest


class LookTest(IslandTest):
    """At 1x and at 2x; every length here is in logical units."""

    def at_rest(self):
        monitor = self.desktop.primary
        area = (monitor.x, monitor.y, monitor.width, 120 * self.scale)
        return self.desktop.screen.until_still(area)

    def show(self, percent):
        self.desktop.set_volume(percent)
        self.island.wait_for_hud(percent / 100)
        return self.at_rest()

    def test_pill(self):
        self.at_rest()
        left, right = self.island.shape(self.desktop.primary, 16)
        self.assertAlmostEqual(left, -63, delta=0.6)
        self.assertAlmostEqual(right, 63, delta=0.6)
        self.assertIsNone(self.island.shape(self.desktop.primary, 33))
        self.assertEqual(self.island.get("Frame")[2:], [126, 32])

    def test_ears_meet_the_edge(self):
        self.at_rest()
        left, right = self.island.shape(self.desktop.primary, 0)
        self.assertLess(left, -65)
        self.assertGreater(right, 65)

    def test_hud(self):
        self.show(40)
        left, right = self.island.shape(self.desktop.primary, 22)
        self.assertAlmostEqual(left, -150, delta=0.6)
        self.assertAlmostEqual(right, 150, delta=0.6)
        self.assertIsNone(self.island.shape(self.desktop.primary, 45))
        self.assertEqual(self.island.get("Frame")[2:], [300, 44])

    def test_bar_is_as_long_as_the_level(self):
        # A longer stay than the HUD's is not needed: the whole row is read at once.
        lengths = {}
        for percent in (25, 50, 75):
            self.show(percent)
            lengths[percent] = self.island.bar(self.desktop.primary)
        track = lengths[75] / 0.75
        self.assertGreater(track, 150)
        for percent, length in lengths.items():
            self.assertAlmostEqual(length / track, percent / 100, delta=0.03)

    def test_back_to_the_pill_to_the_last_pixel(self):
        before = self.at_rest()
        self.assertNotEqual(self.show(60), before)
        self.island.wait_until_collapsed()
        self.assertEqual(self.at_rest(), before)


class LookAtTwiceTheScaleTest(LookTest):
    scale = 2


if __name__ == "__main__":
    unittest.main(verbosity=2)
