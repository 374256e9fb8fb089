"""The setup window of the first run, by keyboard and as a screen reader sees it."""

import json
import unittest

from assistant import Assistant
from case import BUILD, DesktopTest
from desktop import wait_until
from reader import Reader

TITLE = "Quillmere Setup"


class SetupTest(DesktopTest):
    def setUp(self):
        super().setUp()
        self.reader = Reader(self.desktop, TITLE)
        self.addCleanup(self.reader.close)

    def windows(self):
        return self.desktop.run("xdotool", "search", "--onlyvisible", "--name", TITLE, check=False).split()

    def open(self):
        self.island = self.start_island(first_run=True)
        wait_until(self.windows, what="the setup window")
        wait_until(lambda: self.reader.has("focused", "Continue", "push button"), what="the focus")

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
        wait_until(lambda: "Mail" in self.reader.shown("check box"), what="Mail")
        self.assertTrue(self.reader.has("checked", "Volume", "check box"))
        self.assertFalse(self.reader.has("checked", "Slack and Discord", "check box"))
        self.reader.press("Slack and Discord", "check box")
        self.reader.press("Volume", "check box")
        wait_until(
            lambda: [self.stored().get(key) for key in ("showSlackHUD", "showDiscordHUD", "showVolumeHUD")]
            == [True, True, False],
            what="the choices in the file",
        )

        self.reader.press("Continue", "push button")
        wait_until(lambda: "Slack and Discord" in self.reader.shown("list item"), what="Slack and Discord")
        self.assertNotIn("Volume", self.reader.shown("list item"))

        self.reader.press("Continue", "push button")
        self.reader.press("Start at login", "check box")
        entry = self.desktop.dir / "config" / "autostart" / "com.quillmere.Quillmere.desktop"
        wait_until(entry.exists, what="the autostart entry")
        self.reader.press("Done", "push button")
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
        self.reader.press("Claude Code", "check box")
        self.assertFalse(self.reader.has("checked", "Claude Code", "check box"))
        program.with_name("away").rename(program)

        def choose():
            self.reader.press("Claude Code", "check box")
            return self.reader.has("checked", "Claude Code", "check box")

        wait_until(choose, what="it to be found", step=0.2)
        wait_until(assistant.settings.exists, what="its hooks")
        self.assertIn(str(assistant.hook), assistant.hooks()["Stop"][0])

    def test_is_left_at_any_time(self):
        endings = {
            "Escape": lambda: self.press_keys("Escape"),
            "Skip": lambda: self.reader.press("Skip", "push button"),
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
