"""Reads pixels of an X display through libxcb, on one connection that stays open.

One request is one consistent picture of the area, and a small area costs a tenth of a millisecond:
good enough to see when a pixel changes, which a screenshot of the whole display is not.
"""

import ctypes
import ctypes.util
import time

from PIL import Image

_Z_PIXMAP = 2


class _Cookie(ctypes.Structure):
    _fields_ = [("sequence", ctypes.c_uint)]


class _ScreenIterator(ctypes.Structure):
    # The data points to an xcb_screen_t, which begins with the id of the root window.
    _fields_ = [
        ("data", ctypes.POINTER(ctypes.c_uint32)),
        ("rem", ctypes.c_int),
        ("index", ctypes.c_int),
    ]


def _load():
    xcb = ctypes.CDLL(ctypes.util.find_library("xcb") or "libxcb.so.1")
    p, u16, i16, u32 = ctypes.c_void_p, ctypes.c_uint16, ctypes.c_int16, ctypes.c_uint32
    prototypes = {
        "xcb_connect": (p, [ctypes.c_char_p, p]),
        "xcb_connection_has_error": (ctypes.c_int, [p]),
        "xcb_disconnect": (None, [p]),
        "xcb_get_setup": (p, [p]),
        "xcb_setup_roots_iterator": (_ScreenIterator, [p]),
        "xcb_get_image": (_Cookie, [p, ctypes.c_uint8, u32, i16, i16, u16, u16, u32]),
        "xcb_get_image_reply": (p, [p, _Cookie, p]),
        "xcb_get_image_data": (p, [p]),
        "xcb_get_image_data_length": (ctypes.c_int, [p]),
    }
    for name, (result, arguments) in prototypes.items():
        function = getattr(xcb, name)
        function.restype, function.argtypes = result, arguments
    libc = ctypes.CDLL(None)
    libc.free.argtypes, libc.free.restype = [p], None
    return xcb, libc


class Screen:
    """The root window of a display, everything on it included. Coordinates are device pixels."""

    def __init__(self, display):
        self._xcb, self._libc = _load()
        self._connection = self._xcb.xcb_connect(display.encode(), None)
        if self._xcb.xcb_connection_has_error(self._connection):
            raise RuntimeError(f"no X server at {display}")
        setup = self._xcb.xcb_get_setup(self._connection)
        self._root = self._xcb.xcb_setup_roots_iterator(setup).data[0]

    def close(self):
        self._xcb.xcb_disconnect(self._connection)

    def raw(self, x, y, width, height):
        """The area as bytes, four a pixel (blue, green, red, unused)."""
        cookie = self._xcb.xcb_get_image(
            self._connection, _Z_PIXMAP, self._root, x, y, width, height, 0xFFFFFFFF
        )
        reply = self._xcb.xcb_get_image_reply(self._connection, cookie, None)
        if not reply:
            raise RuntimeError(f"cannot read {width}x{height}+{x}+{y}")
        try:
            length = self._xcb.xcb_get_image_data_length(reply)
            return ctypes.string_at(self._xcb.xcb_get_image_data(reply), length)
        finally:
            self._libc.free(reply)

    def grab(self, x, y, width, height):
        data = self.raw(x, y, width, height)
        return Image.frombytes("RGB", (width, height), data, "raw", "BGRX", width * 4, 1)

    def pixel(self, x, y):
        blue, green, red, _ = self.raw(x, y, 1, 1)
        return red, green, blue

    def until_changed(self, area, before, timeout):
        """The time.monotonic() at which `area` no longer held the bytes `before`; None: it did all along."""
        deadline = time.monotonic() + timeout
        while True:
            if self.raw(*area) != before:
                return time.monotonic()
            if time.monotonic() > deadline:
                return None

    def until_still(self, area, quiet=0.25, timeout=5.0):
        """Waits until `area` has not changed for `quiet` seconds and returns its bytes."""
        deadline = time.monotonic() + timeout
        last, since = self.raw(*area), time.monotonic()
        while time.monotonic() - since < quiet:
            if time.monotonic() > deadline:
                raise AssertionError("the screen never came to rest")
            time.sleep(0.01)
            now = self.raw(*area)
            if now != last:
                last, since = now, time.monotonic()
        return last
