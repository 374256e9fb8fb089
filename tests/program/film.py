"""The island on its way from one size to another, frame by frame."""

import time
from typing import NamedTuple

_ROW = 15.5  # logical units below the top edge: there even the pill is as wide as it gets
_DARK = 40  # the island with the cards in it; around it even the deepest shadow is lighter


class Frame(NamedTuple):
    """How far the island reaches from the middle of the monitor's top edge, in device pixels."""

    at: float  # time.monotonic()
    left: int
    right: int
    bottom: int


def _dark(data):
    """The first dark pixel and the one after the last; an empty range where there is none."""
    pixels = range(0, len(data), 4)
    dark = [i // 4 for i in pixels if max(data[i : i + 3]) <= _DARK]
    return (dark[0], dark[-1] + 1) if dark else (0, 0)


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
        """Row and column of one picture: the screen may be painted anew between two looks at it."""
        row = self._screen.raw(*self._row)
        while True:
            column, again = self._screen.raw(*self._column), self._screen.raw(*self._row)
            if again == row:
                return row, column
            row = again

    def film(self, action, still=0.4, timeout=5.0, pause=0.0003):
        """The picture before `action` with the time it began at, then every different one until none has come for
        `still` seconds after the first change.

        `action` starts the process that sets the island in motion; it has to have ended well by then.
        """
        before = self._shot()
        shots = [(time.monotonic(), before)]
        process = action()
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
        first, end = _dark(row)
        return Frame(at, self._half - first, end - self._half, _dark(column)[1])


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
