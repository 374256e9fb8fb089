"""Drags real content through a private desktop: a GTK window offers it, the pointer carries it."""

import sys
import time
from pathlib import Path

from desktop import end_process, wait_until

_SOURCE = Path(__file__).resolve().parent.parent / "support" / "gtk_drag_source.py"
_HANDLE = (200, 400)  # a point inside that window


class Drag:
    """Held from entry to drop(): of `urls`, or of a text where there are none."""

    def __init__(self, desktop, *urls):
        self._desktop = desktop
        self._log = f"drag-{time.monotonic_ns()}.log"
        self._source = desktop.spawn([sys.executable, str(_SOURCE), "a text", "1", *urls], self._log)
        wait_until(lambda: "ready" in desktop.log(self._log), what="something to drag")

    def __enter__(self):
        self.move(*_HANDLE)
        self._point("mousedown", "1")
        wait_until(self._has_begun, what="the drag")
        self.move_to(_HANDLE[0], _HANDLE[1] + 20)
        return self

    def _has_begun(self):
        self._desktop.run("xdotool", "mousemove_relative", "--", "3", "1")
        return "begun" in self._desktop.log(self._log)

    def __exit__(self, *_):
        self._point("mouseup", "1")
        end_process(self._source)

    def _point(self, *arguments):
        self._desktop.run("xdotool", *arguments)

    def move(self, x, y):
        # To a place the pointer is put without a motion; only the last step is one as of a real mouse.
        self._point("mousemove", str(x - 1), str(y), "mousemove_relative", "1", "0")
        time.sleep(0.02)  # every source looks at the pointer at its own pace

    def move_to(self, x, y, steps=10):
        """There as a hand moves, point after point."""
        for step in range(steps + 1):
            self.move(x, y + 2 * (steps - step))

    def drop(self):
        self._point("mouseup", "1")
        wait_until(lambda: "done" in self._desktop.log(self._log), what="the end of the drag")
