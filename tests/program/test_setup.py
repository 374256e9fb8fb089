"""The setup window of the first run, by keyboard and as a screen reader sees it."""

import json
import unittest

from accessibility import ScreenReader
from assistant import Assistant
from case import BUILD, DesktopTest
from desktop import wait_until

TITLE = "Quillmere Setup"


class SetupTest(DesktopTest):
    def setUp(self):
        super().setUp()
        self.reader = ScreenReader(self.desktop)
        self.addCleanup(self.reader.close)

    def windows(self):
        return self.desktop.run("xdotool", "search", "--onlyvisible", "--name", TITLE, check=False).split()

    def open(self):
        self.island = self.start_island(first_run=True)
        wait_until(self.windows, what="the setup window")
        self.reader.wait_for_focus("push button", "Continue")

    def press_keys(self, *keys):
        self.desktop.run("xdotool", "key", "--delay", "60", *keys)

    def stored(self):
        path = self.island.defaults_file
        return json.loads(path.read_text()) if path.exists() else {}

    def wait_until_gone(self):
        wait_until(lambda: not self.windows(), what="the window to go")
        wait_until(lambda: self.stored().get("hasCompletedOnboarding"), what="its end to be stored")
        self.assertTrue(self.island.is_alive())

    def test_leads_through_all_steps(self):
        self.open()
        geometry = self.desktop.run("xdotool", "getwindowgeometry", "--shell", self.windows()[0])
        self.assertIn("WIDTH=520\nHEIGHT=420", geometry)
        self.assertEqual(self.island.get("Presentation"), "collapsed")  # the island is there as well

        self.press_keys("Return")
        self.reader.wait_for("check box", "Mail")
        self.assertTrue(self.reader.is_checked("Volume"))
        self.assertFalse(self.reader.is_checked("Slack and Discord"))
        self.reader.press("check box", "Slack and Discord")
        self.reader.press("check box", "Volume")
        wait_until(
            lambda: [self.stored().get(key) for key in ("showSlackHUD", "showDiscordHUD", "showVolumeHUD")]
            == [True, True, False],
            what="the choices in the file",
        )

        self.reader.press("push button", "Continue")
        self.reader.wait_for("list item", "Slack and Discord")
        self.assertNotIn("Volume", self.reader.names("list item"))

        self.reader.press("push button", "Continue")
        self.reader.press("check box", "Start at login")
        entry = self.desktop.dir / "config" / "autostart" / "com.quillmere.Quillmere.desktop"
        wait_until(entry.exists, what="the autostart entry")
        self.reader.press("push button", "Done")
        self.wait_until_gone()

        self.assertEqual(self.island.stop(), 0)
        self.island.start()
        self.assertEqual(self.windows(), [])

    def test_the_assistant_can_be_chosen_once_it_is_there(self):
        assistant = Assistant(self.desktop, BUILD)
        program = assistant.home / ".local/bin/claude"
        program.rename(program.with_name("away"))
        self.open()
        self.press_keys("Return")
        self.reader.press("check box", "Claude Code")
        self.assertFalse(self.reader.is_checked("Claude Code"))
        program.with_name("away").rename(program)

        def choose():
            self.reader.press("check box", "Claude Code")
            return self.reader.is_checked("Claude Code")

        wait_until(choose, what="it to be found", step=0.2)
        wait_until(assistant.settings.exists, what="its hooks")
        self.assertIn(str(assistant.hook), assistant.hooks()["Stop"][0])

    def test_is_left_at_any_time(self):
        endings = {
            "Escape": lambda: self.press_keys("Escape"),
            "Skip": lambda: self.reader.press("push button", "Skip"),
            "closed": lambda: self.press_keys("alt+F4"),
        }
        for name, end in endings.items():
            with self.subTest(name):
                self.open()
                end()
                self.wait_until_gone()
                self.assertEqual(self.island.stop(), 0)
                self.island.defaults_file.unlink()

    def test_comes_again_when_the_program_ended_with_it_open(self):
        self.open()
        self.assertEqual(self.island.stop(), 0)
        self.assertNotIn("hasCompletedOnboarding", self.stored())


if __name__ == "__main__":
    unittest.main(verbosity=2)
