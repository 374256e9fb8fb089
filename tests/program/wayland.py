"""A private Wayland desktop: sway without hardware in the place of display and window manager."""

import dataclasses
import io
import json
import os
import socket
import struct
import subprocess

from PIL import Image

from desktop import Monitor, PrivateDesktop, wait_until

_NOBODY = 65534
LEFT, RIGHT = 272, 273  # as evdev numbers them


class WaylandDesktop(PrivateDesktop):
    """One output, as large as the first monitor of the X desktop."""

    def __init__(self, scale=1):
        super().__init__(scale)
        self.primary = dataclasses.replace(self.primary, name="HEADLESS-1")

    def _start_display(self):
        # sway refuses to run as root, and what it makes belongs to it alone.
        self._uid = os.getuid() or _NOBODY
        # libwayland has no frame pointers: to tell Qt's leaks from ours takes the slow way up the stack.
        self.env["ASAN_OPTIONS"] = self.env.get("ASAN_OPTIONS", "") + ":fast_unwind_on_malloc=0"
        self.dir.chmod(0o711)
        self._start_compositor()
        self.screen = WaylandScreen(self)
        self.pointer = Pointer(self)

    def _start_compositor(self):
        mode = f"resolution {self.primary.width}x{self.primary.height} scale {self.scale}"
        self.env |= self._start_sway("sway", {"WLR_BACKENDS": "headless"}, [f"output HEADLESS-1 {mode}"])

    def _start_sway(self, name, backend, config):
        """Returns the environment of its clients."""
        runtime = self.dir / name
        runtime.mkdir(mode=0o700)
        config = [*config, "output * bg #3c5a93 solid_color", "default_border none", "xwayland disable"]
        (runtime / "config").write_text("\n".join(config) + "\n")
        command = ["sway", "-c", str(runtime / "config")]
        if os.getuid() == 0:
            os.chown(runtime, self._uid, self._uid)
            (runtime / "config").chmod(0o644)
            command = ["setpriv", f"--reuid={self._uid}", f"--regid={self._uid}", "--clear-groups", *command]
        own = {"XDG_RUNTIME_DIR": str(runtime), "HOME": str(runtime), "XDG_CONFIG_HOME": str(runtime)}
        own |= {"WLR_RENDERER": "pixman", "WLR_LIBINPUT_NO_DEVICES": "1"}
        process = self.spawn(command, f"{name}.log", env=self.env | own | backend)
        clients = {
            "SWAYSOCK": f"{runtime}/sway-ipc.{self._uid}.{process.pid}.sock",
            "WAYLAND_DISPLAY": str(runtime / "wayland-1"),
        }
        wait_until(lambda: "focused" in self.sway("-t", "get_outputs", clients=clients), what=name)
        return clients

    def sway(self, *command, clients=None):
        command = ["swaymsg", "-s", (clients or self.env)["SWAYSOCK"], "-r", *command]
        return self.run(*command, check=clients is None)

    def monitors(self):
        found = []
        for output in json.loads(self.sway("-t", "get_outputs")):
            rect, scale = output["rect"], self.scale
            size = rect["width"] * scale, rect["height"] * scale
            found.append(Monitor(output["name"], *size, rect["x"] * scale, rect["y"] * scale))
        return sorted(found, key=lambda monitor: monitor.x)


class NestedDesktop(WaylandDesktop):
    """sway in a sway: its outputs are windows of the outer one and can be closed there."""

    def _start_compositor(self):
        mode = f"output HEADLESS-1 resolution {self.primary.width}x{self.primary.height}"
        self._outer = self._start_sway("outer", {"WLR_BACKENDS": "headless"}, [mode])
        backend = {"WLR_BACKENDS": "wayland", "WLR_WL_OUTPUTS": "2"} | self._outer
        self.env |= self._start_sway("inner", backend, ["output WL-1 position 0 0"])
        wait_until(lambda: len(self.monitors()) == 2, what="two outputs")

    def unplug(self, monitor):
        self.sway(f'[title="{monitor.name}$"] kill', clients=self._outer)
        wait_until(lambda: monitor.name not in [m.name for m in self.monitors()], what="the output to go")

    def plug(self):
        self.sway("create_output")


class WaylandScreen:
    """Pixels as grim sees them, by the coordinates of the X desktop: device pixels of its monitors."""

    def __init__(self, desktop):
        self._desktop = desktop

    def close(self):
        self._desktop.pointer.close()

    def shot(self, monitor):
        command = ["grim", "-s", str(self._desktop.scale), "-o", monitor.name, "-t", "ppm", "-"]
        shot = subprocess.run(command, env=self._desktop.env, capture_output=True, check=True, timeout=20)
        return Image.open(io.BytesIO(shot.stdout)).convert("RGB")

    def grab(self, x, y, width, height):
        monitor = next(m for m in self._desktop.monitors() if m.x <= x < m.x + m.width)
        left = x - monitor.x
        return self.shot(monitor).crop((left, y, left + width, y + height))

    def pixel(self, x, y):
        return self.grab(x, y, 1, 1).getpixel((0, 0))


class Pointer:
    """A pointing device at sway's seat, by zwlr_virtual_pointer_v1: clients hear of no pointer without one."""

    _REGISTRY, _SYNC, _MANAGER, _POINTER = 2, 3, 4, 5
    _INTERFACE = b"zwlr_virtual_pointer_manager_v1"

    def __init__(self, desktop):
        self._desktop = desktop
        self._socket = socket.socket(socket.AF_UNIX)
        self._socket.settimeout(10)
        self._socket.connect(desktop.env["WAYLAND_DISPLAY"])
        self._send(1, 1, struct.pack("I", self._REGISTRY))
        self._send(1, 0, struct.pack("I", self._SYNC))
        text = struct.pack("I", len(self._INTERFACE) + 1) + self._INTERFACE + b"\0"
        binding = struct.pack("I", self._find_manager()) + text + struct.pack("II", 1, self._MANAGER)
        self._send(self._REGISTRY, 0, binding)
        self._send(self._MANAGER, 0, struct.pack("II", 0, self._POINTER))

    def _send(self, target, opcode, arguments):
        self._socket.sendall(struct.pack("II", target, (8 + len(arguments)) << 16 | opcode) + arguments)

    def _find_manager(self):
        while True:
            source, head = struct.unpack("II", self._socket.recv(8, socket.MSG_WAITALL))
            body = self._socket.recv((head >> 16) - 8, socket.MSG_WAITALL)
            if source == self._SYNC:
                raise AssertionError("the compositor has no virtual pointers")
            if source == self._REGISTRY and self._INTERFACE in body:
                return struct.unpack_from("I", body)[0]

    def close(self):
        self._socket.close()

    def move(self, x, y):
        """In logical units of the whole desktop."""
        self._desktop.sway(f"seat - cursor set {x} {y}")

    def click(self, x, y, button=LEFT):
        self.move(x, y)
        for state in (1, 0):
            self._send(self._POINTER, 2, struct.pack("III", 0, button, state))
            self._send(self._POINTER, 4, b"")

    def scroll(self, notches):
        """Positive is towards the user."""
        wheel, vertical, step = 0, 0, 15 * 256 * notches
        self._send(self._POINTER, 5, struct.pack("I", wheel))
        self._send(self._POINTER, 7, struct.pack("IIii", 0, vertical, step, notches))
        self._send(self._POINTER, 4, b"")
