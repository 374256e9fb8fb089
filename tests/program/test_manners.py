"""How the island lives with other windows: the focus, clicks beside it, films, desktops, compositors."""

import re
import time
import unittest

from case import DesktopTest
from desktop import end_process, wait_until
from island import is_black
from weather import WeatherServers


class MannersTest(DesktopTest):
    def start_neighbour(self):
        """A window that fills the screen's top, has the focus, and prints every event it gets."""
        self.desktop.spawn(["xev", "-geometry", "1512x400+0+0", "-name", "neighbour"], "xev.log")
        wait_until(lambda: "neighbour" in self.focused(), what="the focus of the neighbour")

    def focused(self):
        return self.desktop.run("xdotool", "getactivewindow", "getwindowname", check=False)

    def typed_in(self):
        return self.desktop.run("xdotool", "getwindowfocus", "getwindowname", check=False)

    def count(self, event):
        return len(re.findall(rf"^{event}", self.desktop.log("xev.log"), re.M))

    def clicks(self):
        return self.count("ButtonPress")

    def reach(self, *action, clicks):
        """Does `action`, then presses a key: the key and so many clicks reach the neighbour. Events keep their
        order: once the key has come, so has every click before it."""
        before, keys = self.clicks(), self.count("KeyPress")
        self.desktop.run("xdotool", *action, "key", "a")
        wait_until(lambda: self.count("KeyPress") > keys, what="the key")
        self.assertEqual(self.clicks() - before, clicks)

    @staticmethod
    def click(x, y):
        return "mousemove", str(x), str(y), "click", "1"

    def test_focus_and_clicks_stay_with_the_neighbour(self):
        self.start_neighbour()
        island = self.start_island()
        island.wait_out_mute()
        middle = self.desktop.primary.width // 2
        self.desktop.set_volume(40)
        island.wait_for_hud(0.4)
        wait_until(lambda: is_black(self.desktop.screen.pixel(middle - 130, 6)), 3, "the HUD over the neighbour")
        self.assertIn("neighbour", self.focused())

        self.reach(*self.click(middle, 60), clicks=1)  # below the HUD
        self.desktop.set_volume(45)
        island.wait_for_hud(0.45)
        wait_until(lambda: is_black(self.desktop.screen.pixel(middle - 145, 6)), 3, "the HUD over the neighbour")
        self.reach(*self.click(middle - 140, 30), clicks=0)
        island.wait_until_collapsed()
        wait_until(lambda: not is_black(self.desktop.screen.pixel(middle - 70, 16)), 5, "the pill alone")
        self.reach(*self.click(middle - 140, 30), clicks=1)  # where the HUD was
        self.reach(*self.click(middle, 16), clicks=0)  # on the pill

        self.assertIn("neighbour", self.focused())
        self.assertEqual(self.count("FocusOut"), 0)
        self.assertNotIn("quillmere", self.desktop.run("xprop", "-root", "_NET_CLIENT_LIST").lower())

    def test_typing_borrows_the_keyboard(self):
        self.start_neighbour()
        with WeatherServers(self.desktop) as servers:
            island = self.start_island({"autoCollapseDelay": 0.5})
            island.wait_out_mute()
            middle = self.desktop.primary.width // 2

            def press(x, y):
                self.desktop.run("xdotool", *self.click(x, y))

            def type_in_island(text):
                press(middle, 16)
                island.wait_for("Presentation", "expanded")
                if island.get("Page") != "weather":
                    self.desktop.screen.until_still((middle - 150, 190, 300, 30))
                    press(middle, 206)  # of three dots the second
                    island.wait_for("Page", "weather")
                self.desktop.screen.until_still((middle - 300, 0, 600, 200))
                press(middle, 120)
                self.desktop.run("xdotool", "type", "--delay", "30", text)

            def asked_for(text):
                return [request for request in servers.requests if f"name={text}" in request]

            keys = self.count("KeyPress")
            type_in_island("Lisb")
            wait_until(lambda: asked_for("Lisb"), 5, "the search")
            self.assertEqual(self.count("KeyPress"), keys)
            time.sleep(1)
            self.assertEqual(island.get("Presentation"), "expanded", "typing holds it open")
            self.desktop.run("xdotool", "key", "Escape")
            wait_until(lambda: "neighbour" in self.typed_in(), 3, "the keyboard to go back")
            self.desktop.run("xdotool", "key", "b")
            wait_until(lambda: self.count("KeyPress") == keys + 1, 3, "the neighbour's key")
            self.desktop.run("xdotool", "mousemove", str(middle), "600")
            island.wait_until_collapsed()

            type_in_island("Lisbo")
            wait_until(lambda: asked_for("Lisbo"), 5, "the second search")
            press(middle - 500, 300)  # the user turns to the neighbour
            self.desktop.run("xdotool", "key", "c")
            wait_until(lambda: self.count("KeyPress") == keys + 2, 3, "the key after the click")
            island.wait_until_collapsed()
            self.desktop.run("xdotool", "key", "d")
            wait_until(lambda: self.count("KeyPress") == keys + 3, 3, "the key after the collapse")

    def test_a_shortcut_opens_it_for_the_keyboard(self):
        self.start_neighbour()
        island = self.start_island({"enableCountdownTimer": True, "showSystemMonitor": False})
        island.wait_out_mute()

        def key(*names):
            self.desktop.run("xdotool", "key", "--delay", "60", *names)

        def opened():
            island.toggle()
            island.wait_for("Presentation", "expanded")
            wait_until(lambda: "neighbour" not in self.typed_in(), 3, "the keyboard")

        keys = self.count("KeyPress")
        opened()
        for page in ("weather", "timer"):
            key("Right")
            island.wait_for("Page", page)
        key("Left")
        island.wait_for("Page", "weather")
        key("Right", "Tab", "Tab", "space")  # the second of three tools
        key("Tab", "Tab", "Return")  # its first length
        wait_until(lambda: island.get("Timers")["isRunning"], 3, "the countdown")
        self.assertEqual(island.get("Timers")["targetSeconds"], 60)
        key("Left")  # from a control that the page took with it
        island.wait_for("Page", "weather")
        key("Escape")
        island.wait_until_collapsed()
        wait_until(lambda: "neighbour" in self.typed_in(), 3, "the keyboard to go back")
        self.assertEqual(self.count("KeyPress"), keys)
        key("a")
        wait_until(lambda: self.count("KeyPress") == keys + 1, 3, "the neighbour's key")

        opened()
        self.desktop.run("xdotool", *self.click(200, 300))  # the user turns to the neighbour
        wait_until(lambda: "neighbour" in self.typed_in(), 3, "the keyboard to go back")
        island.wait_until_collapsed()
        opened()
        island.wait_until_collapsed()  # by itself
        wait_until(lambda: "neighbour" in self.typed_in(), 3, "the keyboard to go back")

        guest = self.desktop.spawn(["xev", "-name", "guest"], "guest.log")
        wait_until(lambda: "guest" in self.typed_in(), 5, "a window that is left meanwhile")
        island.toggle()
        wait_until(lambda: "guest" not in self.typed_in(), 3, "the keyboard")
        end_process(guest)
        island.wait_until_collapsed()
        wait_until(lambda: "neighbour" in self.typed_in(), 3, "the keyboard to go to who is left")

    def test_opening_and_closing_take_nothing_from_the_neighbour(self):
        self.start_neighbour()
        island = self.start_island()
        island.wait_out_mute()
        middle = self.desktop.primary.width // 2
        beside, inside, below = (middle - 312, 30), (middle - 280, 180), (middle, 232)

        def point(x, y, *more):
            return ["mousemove", str(x), str(y), *more]

        beats = ["click", "--repeat", "10", "--delay", "40", "1"]
        self.reach(*point(*beside, "click", "1"), clicks=1)
        self.reach(*point(middle, 16, "click", "1"), *point(*beside, *beats), clicks=10)  # while it opens
        self.assertEqual(island.get("Presentation"), "expanded")
        self.reach(*point(*below, "click", "1"), *point(*beside, "click", "1"), clicks=2)
        self.reach(*point(*inside, "click", "1"), *point(*below, *beats), clicks=10)  # while it closes
        self.assertEqual(island.get("Presentation"), "collapsed")
        self.reach(*point(*inside, "click", "1"), clicks=1)

        self.assertEqual(self.count("FocusOut"), 0)
        self.assertIn("neighbour", self.focused())

    def test_scrolling_over_the_pill_changes_the_volume(self):
        self.start_neighbour()
        island = self.start_island()
        island.wait_out_mute()
        for button, direction in (("4", 1), ("5", -1)):
            self.desktop.run("xdotool", "mousemove", str(self.desktop.primary.width // 2), "16")
            before = self.desktop.volume()
            self.desktop.run("xdotool", "click", button)
            wait_until(lambda: (self.desktop.volume() - before) * direction > 0, 3, "the volume to move")
            self.desktop.run("xdotool", "mousemove", "20", "300")  # under the pointer it would stay
            island.wait_until_collapsed()
        self.assertEqual(self.clicks(), 0)

    def test_makes_room_for_a_film(self):
        island = self.start_island()
        island.wait_out_mute()
        middle = self.desktop.primary.width // 2

        def is_shown(x=middle, y=16):
            return is_black(self.desktop.screen.pixel(x, y))

        self.assertTrue(is_shown())
        film = self.desktop.spawn(["xev", "-name", "cinema"], "film.log")
        wait_until(lambda: not is_shown(), 5, "the pill to hide")
        self.desktop.set_volume(40)
        wait_until(lambda: is_shown(middle - 130, 6), 3, "the HUD over the film")
        wait_until(lambda: not is_shown(middle - 130, 6) and not is_shown(), 5, "the island to hide again")
        island.write_defaults({"hideInFullscreen": False})
        wait_until(is_shown, 5, "the pill over the film")
        island.write_defaults({"hideInFullscreen": True})
        wait_until(lambda: not is_shown(), 5, "the pill to hide")
        island.write_defaults({"disableInFullscreen": True})
        island.toggle()  # where it is not to be seen it takes no keys, neither now nor later
        island.wait_for("Presentation", "expanded")
        island.wait_until_collapsed()
        end_process(film)
        wait_until(is_shown, 5, "the pill")
        self.assertNotIn("Quillmere", self.typed_in())

    def test_is_on_every_desktop(self):
        island = self.start_island()
        self.desktop.run("xdotool", "set_desktop", "1")
        island.wait_out_mute()
        self.assertEqual(self.desktop.run("xdotool", "get_desktop").strip(), "1")
        self.assertTrue(is_black(self.desktop.screen.pixel(self.desktop.primary.width // 2, 16)))


if __name__ == "__main__":
    unittest.main(verbosity=2)
