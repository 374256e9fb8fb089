"""Bluetooth headsets on both kinds of sound server: the HUD, and the activity it leaves behind."""

import unittest

from case import DesktopTest
from desktop import PipeWireDesktop, PrivateDesktop, wait_until


class HeadsetTest(DesktopTest):
    kind = PrivateDesktop

    def test_tells_of_a_headset_that_comes(self):
        headset = self.desktop.connect_headset()
        island = self.start_island({"idleActivityMostRecent": True})
        with island.watch() as watcher:
            island.wait_out_mute()
            # Of the headset: the program hears this server. Put back, as PipeWire gives the next sink of that name
            # the volume of this one, and a volume that changes then is told instead of the headset.
            for volume in (40, self.desktop.volume()):
                self.desktop.set_volume(volume)
                island.wait_for_hud(volume / 100)
            island.wait_until_collapsed()
            told = [hud for _, hud in watcher.huds() if hud["type"] == "bluetooth"]
            self.assertEqual(told, [], "the headset was there before")
        self.assertEqual(island.get("Activities"), [])

        self.desktop.disconnect_headset(headset)
        headset = self.desktop.connect_headset("Kitchen", "speaker")
        hud = self.wait_for_headset(island)
        self.assertEqual((hud["title"], hud["subtitle"]), ("Kitchen", "Connected"))
        speaker = hud["icon"]
        wait_until(lambda: island.get("Presentation") == "collapsed", 8, "the end of the HUD")
        self.assertEqual([activity["title"] for activity in island.get("Activities")], ["Kitchen"])
        wait_until(lambda: island.get("Frame")[2] == 126 + 2 * 44, what="the wings")

        self.desktop.disconnect_headset(headset)
        self.desktop.connect_headset("My air pods Pro")
        hud = self.wait_for_headset(island)
        self.assertEqual(hud["title"], "My air pods Pro")
        self.assertNotEqual(hud["icon"], speaker)

    def wait_for_headset(self, island):
        def shown():
            hud = island.hud()
            return hud if hud.get("type") == "bluetooth" else None

        return wait_until(shown, 5, "the HUD of the headset")


class HeadsetOnPipeWireTest(HeadsetTest):
    kind = PipeWireDesktop


if __name__ == "__main__":
    unittest.main(verbosity=2)
