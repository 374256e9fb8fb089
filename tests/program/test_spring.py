"""The opening and closing spring, picture by picture."""

import time
import unittest

from case import IslandTest
from film import Camera, reversals

PEAK_SPEED = 9.0  # of its whole way, a second: what a spring of 0.32 s and damping 0.82 never exceeds
FRAME = 1 / 60


class SpringTest(IslandTest):
    defaults = {"autoCollapseDelay": 30, "islandAppearance": "classic"}

    def test_opens_and_closes_in_one_sweep(self):
        camera = Camera(self.desktop)
        for expected in ("expanded", "collapsed"):
            with self.subTest(expected):
                frames = camera.film(self.island.toggle())
                self.island.wait_for("Presentation", expected)
                self.check(frames)
                time.sleep(0.2)

    def check(self, frames):
        for frame in frames:
            self.assertLessEqual(abs(frame.left - frame.right), self.scale, f"off the centre: {frame}")
        for edge in ("left", "bottom"):
            course = [getattr(frame, edge) for frame in frames]
            self.assertLessEqual(reversals(course), 1, f"{edge}: {course}")
            way = abs(course[-1] - course[0])
            self.assertGreater(way, 100 * self.scale)
            for before, after in zip(frames, frames[1:]):
                step = abs(getattr(after, edge) - getattr(before, edge))
                passed = after.at - before.at + 2 * FRAME  # shown up to a frame later than it is true
                self.assertLessEqual(step, way * PEAK_SPEED * passed, f"{edge} jumps: {before} {after}")


class SharpSpringTest(SpringTest):
    scale = 2


if __name__ == "__main__":
    unittest.main(verbosity=2)
