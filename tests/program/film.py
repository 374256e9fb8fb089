"""The island on its way from one size to another, frame by frame."""

import time
from typing import NamedTuple

_ROW = 15.5  # logical units below the top edge: there even the pill is as wide as it gets
_BLACK = 8


class Frame(NamedTuple):
    """How far the island reaches from the middle of the monitor's top edge, in device pixels."""

    at: float  # time.monotonic()
    left: int
    right: int
    bottom: int


def _black(data):
    """The first black pixel and the one after the last; an empty range where there is none."""
    pixels = range(0, len(data), 4)
    black = [i // 4 for i in pixels if max(data[i : i + 3]) <= _BLACK]
    return (black[0], black[-1] + 1) if black else (0, 0)


class Camera:
    """Looks at one row and one column of pixels only: a whole picture takes longer than a frame."""

    def __init__(self, desktop):
        self._screen = desktop.screen
        monitor, scale = desktop.primary, desktop.scale
        self._half = 360 * scale
        middle = monitor.x + monitor.width // 2
        self._row = (middle - self._half, monitor.y + int(_ROW * scale), 2 * self._half, 1)
        self._column = (middle, monitor.y, 1, 300 * scale)

    def _shot(self):
        return self._screen.raw(*self._row), self._screen.raw(*self._column)

    def film(self, process, still=0.4, timeout=5.0, pause=0.0003):
        """Every different picture from now until none has come for `still` seconds after the first change.

        `process` is what sets the island in motion: it has to have ended well by then.
        """
        shots = [(time.monotonic(), self._shot())]
        end = shots[0][0] + timeout
        while len(shots) == 1 or time.monotonic() - shots[-1][0] < still:
            if time.monotonic() > end:
                raise AssertionError("the island never moved" if len(shots) == 1 else "it never came to rest")
            time.sleep(pause)
            shot = self._shot()
            if shot != shots[-1][1]:
                shots.append((time.monotonic(), shot))
        if process.wait(5):
            raise AssertionError(f"{process.args} ended with {process.returncode}")
        return [self._frame(at, *shot) for at, shot in shots]

    def _frame(self, at, row, column):
        first, end = _black(row)
        return Frame(at, self._half - first, end - self._half, _black(column)[1])


def reversals(values, tolerance=1):
    """How often a course turns by more than `tolerance`: a spring that swings over once turns once."""
    turns, direction, extreme = 0, 0, values[0]
    for value in values:
        step = value - extreme
        if direction * step >= 0 and step:
            direction, extreme = (1 if step > 0 else -1), value
        elif abs(step) > tolerance:
            turns, direction, extreme = turns + 1, -direction, value
    return turns
