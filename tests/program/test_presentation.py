"""The island under the hand: it opens, shows its pages and closes again as asked."""

import time
import unittest

from backlight import Backlight
from case import IslandTest
from desktop import wait_until
from drag import Drag

GRACE, COLLAPSE_DELAY = 0.35, 0.6


class PresentationTest(IslandTest):
    defaults = {"autoCollapseDelay": COLLAPSE_DELAY, "showFileTray": True}

    @classmethod
    def prepare(cls):
        cls.backlight = Backlight(cls.desktop)

    def setUp(self):
        self.leave()
        super().setUp()

    def point(self, x, y, *more):
        """`x` from the middle of the screen."""
        self.desktop.run("xdotool", "mousemove", str(self.desktop.primary.width // 2 + x), str(y), *more)

    def leave(self):
        self.point(0, 600)

    def open(self):
        self.point(0, 16, "click", "1")
        self.island.wait_for("Presentation", "expanded")

    def turn_to(self, page, dot):
        # The dots take no press before the island has unfolded.
        self.desktop.screen.until_still((self.desktop.primary.width // 2 - 150, 190, 300, 30))
        self.point(dot, 206, "click", "1")
        self.island.wait_for("Page", page)

    def presentations(self, watcher):
        return [presentation for _, presentation in watcher.changes("Presentation")]

    def test_two_quick_taps(self):
        with self.island.watch() as watcher:
            self.point(0, 16, "click", "--repeat", "2", "--delay", "40", "1")
            watcher.wait_for_changes("Presentation", 2)
            self.leave()
            time.sleep(GRACE + COLLAPSE_DELAY + 0.3)
            self.assertEqual(self.presentations(watcher), ["expanded", "collapsed"])

    def test_stays_under_the_pointer_and_closes_behind_it(self):
        with self.island.watch() as watcher:
            self.open()
            time.sleep(2 * COLLAPSE_DELAY)
            self.assertEqual(self.island.get("Presentation"), "expanded")
            leaving = time.monotonic()
            self.leave()
            left = time.monotonic()
            _, (collapsed, _) = watcher.wait_for_changes("Presentation", 2)
        self.assertGreater(collapsed - leaving, GRACE + COLLAPSE_DELAY)
        self.assertLess(collapsed - left, GRACE + COLLAPSE_DELAY + 1)

    def test_volume_while_browsing(self):
        self.open()
        self.turn_to("fileTray", 21)
        with self.island.watch() as watcher:
            self.desktop.set_volume(41)
            self.island.wait_for_hud(0.41)
            time.sleep(0.3)
            self.assertGreater(self.island.bar(self.desktop.primary, 206), 50)
            wait_until(lambda: not self.island.hud(), what="the end of the HUD")
            self.assertEqual(watcher.changes("Presentation") + watcher.changes("Page"), [])
        self.turn_to("main", -21)

    def test_brightness(self):
        with self.island.watch() as watcher:
            self.backlight.set(60)
            self.assertEqual(self.island.wait_for_hud(0.6)["type"], "brightness")
            self.assertEqual(self.island.get("Presentation"), "hud")
            self.island.wait_until_collapsed()
            for percent in (61, 62, 63):
                self.backlight.set(percent)
                time.sleep(0.3)
            self.assertEqual(len(watcher.huds()), 1)

    def test_a_dragged_file_opens_the_tray(self):
        for drop in (False, True):
            with self.subTest(drop=drop), Drag(self.desktop, "file:///tmp/a%20file.txt") as drag:
                self.island.wait_for("Presentation", "expanded")
                self.island.wait_for("Page", "fileTray")
                if drop:
                    drag.move_to(self.desktop.primary.width // 2, 100)
                drag.drop()
                if drop:
                    hud = wait_until(self.island.hud, what="the HUD of the file")
                    self.assertEqual((hud["title"], hud["subtitle"]), ("File Added", "a file.txt"))
                self.leave()
                self.island.wait_for("Page", "main")
                self.island.wait_until_collapsed()

    def test_a_dragged_text_opens_nothing(self):
        with self.island.watch() as watcher, Drag(self.desktop) as drag:
            drag.move_to(self.desktop.primary.width // 2, 10)
            drag.drop()
            self.leave()
            time.sleep(0.4)
            self.assertEqual(watcher.changes("Presentation") + watcher.huds(), [])


if __name__ == "__main__":
    unittest.main(verbosity=2)
