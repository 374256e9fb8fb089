"""Do Not Disturb of a desktop that keeps it in its settings, and of one that leaves it to its notification server."""

import unittest

from case import DesktopTest
from desktop import wait_until
from reader import Reader
from wayland import WaylandDesktop

WINDOW = "Quillmere Settings"


class FocusTest(DesktopTest):
    def start(self):
        self.island = self.start_island({"focusHUDDuration": 1.0, "focusAllowSound": False})
        self.island.wait_out_mute()

    def shows(self, word):
        hud = wait_until(self.island.hud, 5, "the HUD")
        self.assertEqual((hud["type"], hud["title"], hud["subtitle"]), ("focus", "Do Not Disturb", word))
        self.island.wait_until_collapsed()


class GnomeTest(FocusTest):
    def set_banners(self, shown):
        self.desktop.run("gsettings", "set", "org.gnome.desktop.notifications", "show-banners", shown)

    def test_its_switch_is_shown_and_holds_back(self):
        self.desktop.env["XDG_CURRENT_DESKTOP"] = "GNOME"
        self.desktop.spawn(["/usr/libexec/dconf-service"], "dconf.log")
        reader = Reader(self.desktop, WINDOW)
        self.addCleanup(reader.close)
        self.set_banners("false")  # before the start: no news
        self.start()
        self.set_banners("true")
        self.shows("Off")
        self.set_banners("false")
        self.shows("On")
        self.desktop.set_volume(30)
        self.set_banners("true")
        self.shows("Off")  # and not the volume
        self.desktop.set_volume(60)
        self.island.wait_for_hud(0.6)

        self.island.ctl("action", "settings")
        wait_until(lambda: reader.pages(), what="the window")
        reader.press("Focus", "list item")
        for state, shown in ("off", "true"), ("on", "false"):
            self.set_banners(shown)
            told = f"Do Not Disturb is {state} in GNOME."
            wait_until(lambda text=told: text in str(reader.tree()), what=told)


class SwayTest(FocusTest):
    kind = WaylandDesktop

    def test_its_notification_center_may_come_late(self):
        self.desktop.env["GSETTINGS_BACKEND"] = "memory"  # its own settings: they stay only if they can be kept
        self.start()
        self.desktop.spawn(["swaync"], "swaync.log")
        self.desktop.run("gdbus", "wait", "--session", "--timeout", "10", "org.erikreider.swaync.cc")
        self.desktop.run("swaync-client", "--dnd-on", "--skip-wait")
        self.shows("On")
        self.desktop.run("swaync-client", "--toggle-dnd", "--skip-wait")
        self.shows("Off")


if __name__ == "__main__":
    unittest.main()
