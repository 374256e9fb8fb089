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

    def assert_reaches(self, y, x, delta=0.6):
        left, right = self.island.shape(self.desktop.primary, y)
        self.assertAlmostEqual(left, -x, delta=delta)
        self.assertAlmostEqual(right, x, delta=delta)

    def test_shapes(self):
        self.at_rest()
        for size, rest in (([126, 32], 0), ([300, 44], 40)):
            if rest:
                self.show(rest)
            self.assertEqual(self.island.get("Frame")[2:], size)
            self.assert_reaches(size[1] // 2, size[0] / 2)
            self.assert_reaches(0, size[0] / 2 + 4, delta=2)  # the ears meet the screen's edge
            self.assertIsNone(self.island.shape(self.desktop.primary, size[1] + 1))

    def test_bar_is_as_long_as_the_level(self):
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
