"""Settings files no editor would write, there when the program starts; and the debug log."""

import os
import unittest

from case import DesktopTest
from desktop import wait_until


def truncated(path):
    path.write_text('{"showVolumeHUD": tr')


def directory(path):
    path.mkdir()


def wrong_types(path):
    path.write_text('{"showVolumeHUD": "yes", "volumeHUDDuration": [], "displaySelection": 7, "islandAppearance": "?"}')


class HostileSettingsTest(DesktopTest):
    def test_starts_and_works(self):
        cases = [(truncated, True, 44), (directory, False, 45), (wrong_types, False, 46)]
        for make, set_aside, volume in cases:
            with self.subTest(make.__name__):
                self.check(make, set_aside, volume)

    def check(self, make, set_aside, volume):
        config = self.desktop.dir / "config" / "quillmere"
        config.mkdir()
        self.addCleanup(lambda: os.path.lexists(config) and self.desktop.run("rm", "-rf", str(config)))
        make(config / "defaults.json")
        content = (config / "defaults.json").read_bytes() if set_aside else b""

        island = self.start_island()
        island.wait_out_mute()
        self.desktop.set_volume(volume)  # another one each time: there and back at once is no change
        island.wait_for_hud(volume / 100)
        self.assertEqual(island.stop(), 0)

        aside = list(config.glob("defaults.json.unreadable-*"))
        if set_aside:
            self.assertEqual([path.read_bytes() for path in aside], [content])
            self.assertIn("defaults.json", island.output())
        self.desktop.run("rm", "-rf", str(config))


class DebugLogTest(DesktopTest):
    def test_off_until_asked_for_and_then_live(self):
        island = self.start_island()
        island.write_file(island.config / "local.json", '{"debugLogEnabled": "true"}')
        island.wait_out_mute()
        self.desktop.set_volume(40)
        island.wait_for_hud(0.4)
        log = self.desktop.dir / "state" / "Logs" / "Quillmere" / "debug.log"
        self.assertEqual(log.read_text(), "")
        self.assertEqual(log.stat().st_mode & 0o077, 0)
        island.write_file(island.config / "local.json", '{"debugLogEnabled": true}')
        wait_until(lambda: "LOG_ENABLED" in log.read_text(), 5, "the log to be switched on live")
        self.assertRegex(
            log.read_text(),
            r"^\n========== Quillmere Session Start .+ ==========\n"
            r"\[\d\d:\d\d:\d\d\.\d{3}\] \[GENERAL\] \[DebugLogSwitch:\d+\] LOG_ENABLED\n$",
        )


if __name__ == "__main__":
    unittest.main(verbosity=2)
