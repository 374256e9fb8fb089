"""The opening and closing spring, picture by picture."""

import math
import time
import unittest

from case import IslandTest
from film import Camera, reversals

RESPONSE, DAMPING = 0.32, 0.82  # of the spring; a second, and as a share of what would not swing over
FRAME = 1 / 60  # a picture shows where the island is when the next one comes
LEAST_PICTURES = 3  # on the way between a tenth and nine tenths of it, however busy the machine is


def farthest(elapsed):
    """What share of its way a spring has reached at most so long after it was let go."""
    frequency = 2 * math.pi / RESPONSE
    damped = frequency * math.sqrt(1 - DAMPING**2)
    elapsed = min(elapsed, math.pi / damped)  # there it turns
    swing = math.cos(damped * elapsed) + DAMPING * frequency / damped * math.sin(damped * elapsed)
    return 1 - math.exp(-DAMPING * frequency * elapsed) * swing


class SpringTest(IslandTest):
    defaults = {"autoCollapseDelay": 30, "islandAppearance": "classic"}

    def test_opens_and_closes_in_one_sweep(self):
        camera = Camera(self.desktop)
        for expected in ("expanded", "collapsed"):
            with self.subTest(expected):
                frames = camera.film(self.island.toggle)
                self.island.wait_for("Presentation", expected)
                self.check(frames)
                time.sleep(0.2)

    def check(self, frames):
        for frame in frames:
            self.assertLessEqual(abs(frame.left - frame.right), self.scale, f"off the centre: {frame}")
        for edge in ("left", "bottom"):
            course = [getattr(frame, edge) for frame in frames]
            self.assertLessEqual(reversals(course), 1, f"{edge}: {course}")
            way = course[-1] - course[0]
            self.assertGreater(abs(way), 100 * self.scale)
            shares = [(place - course[0]) / way for place in course]
            # A busy machine shows the island late, but never where it is not yet.
            for frame, share in zip(frames, shares):
                early = share - farthest(frame.at - frames[0].at + FRAME)
                self.assertLessEqual(early * abs(way), 2 * self.scale, f"{edge} ahead of its time: {frame} {frames[0]}")
            seen = sum(0.1 < share < 0.9 for share in shares)
            self.assertGreaterEqual(seen, LEAST_PICTURES, f"{edge} jumps: {course}")


class SharpSpringTest(SpringTest):
    scale = 2


if __name__ == "__main__":
    unittest.main(verbosity=2)
