"""The island as a native surface of a Wayland compositor."""

import re
import socket
import time
import unittest

from PIL import Image

from case import BUILD, DesktopTest
from desktop import end_process, wait_until
from island import Island
from wayland import LEFT, RIGHT, NestedDesktop, WaylandDesktop
from weather import WeatherServers

PILL = (-63, 63)
HUD = (-150, 150)


class WaylandTest(unittest.TestCase):
    kind = WaylandDesktop
    scale = 1

    def setUp(self):
        self.desktop = self.enterContext(self.kind(self.scale))
        self.island = None

    def start(self, defaults=None):
        self.island = self.enterContext(Island(self.desktop, BUILD, defaults))
        self.island.wait_out_mute()
        self.addCleanup(self.check_output)
        self.reaches(PILL)

    def check_output(self):
        self.assertEqual(self.island.faults(), [])
        complaints = [line for line in self.island.output().splitlines() if "[WeatherService]" not in line]
        self.assertNotRegex("\n".join(complaints), r"rror|ailed|\[Wayland")
        status = self.island.stop()
        self.assertEqual(status, 0, self.island.output())

    def reaches(self, width, y=16):
        """Waits for an island of this width on the first monitor as it is by then."""

        def there():
            shape = self.island.shape(self.desktop.monitors()[0], y)
            return shape and abs(shape[0] - width[0]) <= 1 and abs(shape[1] - width[1]) <= 1

        wait_until(there, 5, f"an island {width} wide", step=0.1)

    def shows_hud(self, percent):
        self.desktop.set_volume(percent)
        self.island.wait_for_hud(percent / 100)
        self.reaches(HUD, 22)
        self.island.wait_until_collapsed()
        self.reaches(PILL)

    def start_neighbour(self):
        """A window that fills the screen, has the focus, and prints every event it gets."""
        self.neighbour = self.desktop.spawn(["stdbuf", "-oL", "wev"], "wev.log")
        wait_until(lambda: "activated" in self.desktop.log("wev.log"), what="the neighbour")

    def clicks(self, button=LEFT):
        return len(re.findall(rf"button: {button} .*state: 1", self.desktop.log("wev.log")))

    def activations(self):
        return re.findall(r"xdg_toplevel\] configure:.*", self.desktop.log("wev.log"))


class SurfaceTest(WaylandTest):
    def test_takes_only_the_input_of_the_island(self):
        self.start_neighbour()
        self.start()
        activations = self.activations()
        middle = self.desktop.primary.width // 2
        pointer = self.desktop.pointer

        def clicks_after(x, y):
            before, marks = self.clicks(), self.clicks(RIGHT)
            pointer.click(x, y)
            # Input keeps its order: once this click has come, so has the other one.
            pointer.click(10, 500, RIGHT)
            wait_until(lambda: self.clicks(RIGHT) > marks, 3, "a click on the neighbour")
            return self.clicks() - before

        self.assertEqual(clicks_after(middle - 100, 16), 1, "beside the pill")
        self.desktop.set_volume(40)
        self.island.wait_for_hud(0.4)
        self.reaches(HUD, 22)
        self.assertEqual(clicks_after(middle, 60), 1, "below the HUD")
        self.desktop.set_volume(45)
        self.island.wait_for_hud(0.45)
        self.assertEqual(clicks_after(middle - 100, 16), 0, "on the HUD")
        self.assertEqual(self.activations(), activations, "the focus moved")

    def test_scrolling_over_the_pill_arrives(self):
        self.start({"expandNotchOnHover": False})
        self.desktop.pointer.move(self.desktop.primary.width // 2, 16)
        for notches, direction in ((-1, 1), (1, -1)):
            before = self.desktop.volume()
            self.desktop.pointer.scroll(notches)
            wait_until(lambda: (self.desktop.volume() - before) * direction > 0, 3, "the volume to move")

    def test_a_click_on_the_pill_opens_the_island(self):
        self.start()
        self.desktop.pointer.click(self.desktop.primary.width // 2, 16)
        wait_until(lambda: self.island.get("Presentation") == "expanded", 3, "the open island")
        self.desktop.pointer.click(self.desktop.primary.width // 2, 16)
        wait_until(lambda: self.island.get("Presentation") == "collapsed", 5, "the closed island")

    def keys(self):
        """Pressed so far in the neighbour."""
        return len(re.findall(r"wl_keyboard\] key: .*state: 1", self.desktop.log("wev.log")))

    def test_a_shortcut_opens_it_for_the_keyboard(self):
        self.start_neighbour()
        self.start({"autoCollapseDelay": 10})
        before = self.keys()
        self.island.toggle()
        self.island.wait_for("Presentation", "expanded")
        time.sleep(0.5)
        # Every run is a keyboard of its own; without any the seat has nothing to lend.
        self.desktop.run("wtype", "-s", "500", "-k", "Right", "-s", "500", "-k", "Escape")
        self.island.wait_for("Presentation", "collapsed")
        self.assertEqual(self.island.get("Page"), "weather")
        self.assertEqual(self.keys(), before)
        self.desktop.run("wtype", "-s", "500", "a")
        wait_until(lambda: self.keys() > before, 3, "the neighbour's key")

    def test_typing_borrows_the_keyboard(self):
        self.start_neighbour()
        servers = self.enterContext(WeatherServers(self.desktop))
        self.start({"autoCollapseDelay": 0.5})
        middle, pointer, keys = self.desktop.primary.width // 2, self.desktop.pointer, self.keys

        pointer.click(middle, 16)
        self.island.wait_for("Presentation", "expanded")
        time.sleep(1)
        pointer.click(middle, 206)  # of three dots the second
        self.island.wait_for("Page", "weather")
        time.sleep(1)
        before = keys()
        pointer.click(middle, 120)
        time.sleep(0.5)
        self.desktop.run("wtype", "-s", "500", "-d", "30", "Lisb")
        wait_until(lambda: any("name=Lisb" in request for request in servers.requests), 5, "the search")
        self.assertEqual(keys(), before)
        pointer.click(middle - 500, 400)  # the user turns to the neighbour
        time.sleep(0.3)
        self.desktop.run("wtype", "-s", "500", "a")
        wait_until(lambda: keys() > before, 3, "the neighbour's key")
        wait_until(lambda: self.island.get("Presentation") == "collapsed", 5, "the closed island")

    def test_makes_room_for_a_film(self):
        self.start()
        self.start_neighbour()
        pixel = (self.desktop.primary.width // 2, 16)
        self.desktop.sway("fullscreen enable")
        wait_until(lambda: self.desktop.screen.pixel(*pixel) != (0, 0, 0), 5, "the pill to hide")
        self.desktop.set_volume(40)
        self.island.wait_for_hud(0.4)
        self.reaches(HUD, 22)
        self.desktop.sway("fullscreen disable")
        self.reaches(PILL)
        end_process(self.neighbour)


    def test_another_scale(self):
        self.start()
        # The last one leaves the logical size as it is.
        for scale, mode in ((2, "1512x982"), (1, "1512x982"), (2, "3024x1964")):
            self.desktop.sway(f"output HEADLESS-1 resolution {mode} scale {scale}")
            self.desktop.scale = scale
            monitor = self.desktop.monitors()[0]
            self.reaches(PILL)
            if scale == 2:
                wait_until(lambda: self.has_full_detail(monitor), 3, "an island drawn for this scale")
        self.shows_hud(40)

    def has_full_detail(self, monitor):
        """Whether the curves of the pill are finer than pixels doubled."""
        middle = monitor.width // 2
        pill = self.desktop.screen.shot(monitor).crop((middle - 140, 0, middle + 140, 70))
        doubled = pill.resize((140, 35), Image.NEAREST).resize(pill.size, Image.NEAREST)
        return pill.tobytes() != doubled.tobytes()


class SharpTest(WaylandTest):
    scale = 2

    def test_everything_at_twice_the_size(self):
        self.start()
        self.shows_hud(40)


class OutputsTest(WaylandTest):
    kind = NestedDesktop

    def test_outputs_come_and_go(self):
        first = self.desktop.monitors()[0]
        self.start()
        self.shows_hud(30)
        self.desktop.unplug(first)
        self.shows_hud(35)
        for percent in (40, 50):
            self.desktop.unplug(self.desktop.monitors()[0])
            self.desktop.set_volume(percent)
            self.island.wait_for_hud(percent / 100)
            self.desktop.plug()
            wait_until(self.desktop.monitors, what="an output")
            self.shows_hud(percent + 1)


class ChoiceTest(DesktopTest):
    def test_prefers_x_to_a_compositor_that_keeps_silent(self):
        path = str(self.desktop.dir / "run" / "wayland-9")
        with socket.socket(socket.AF_UNIX) as compositor:
            compositor.bind(path)
            compositor.listen()
            self.desktop.env["WAYLAND_DISPLAY"] = path
            island = self.start_island()
            wait_until(lambda: island.shape(self.desktop.primary, 16) == PILL, 5, "the pill on X")


if __name__ == "__main__":
    unittest.main(verbosity=2)
