"""The settings window as a screen reader and a keyboard find it, and what it does to the files."""

import json
import re
import time
import unittest
from pathlib import Path

from case import DesktopTest
from desktop import wait_until
from keyring import Keyring
from players import ScriptedPlayer
from reader import Reader

TITLE = "Quillmere Settings"
DOC = Path(__file__).resolve().parent.parent.parent / "docs" / "settings.md"
LOCAL = {"cloudFolder", "debugLogEnabled"}
NO_KEYRING = (
    "No keyring was found, and the sign-in is kept nowhere else. Install the package gnome-keyring, or turn on the "
    "secret service of KeePassXC or KWallet."
)
OTHER_FIELDS = {"Search settings"}
ABSENT = {
    "Lock Screen", "Clipboard", "Camera Mirror", "Network Speed", "App Shortcuts", "Quick Notes", "Bookmarks",
    "Reminders",
}  # fmt: skip


def documented():
    """The keys of all settings, and those that are said to be on no page."""
    text = DOC.read_text()
    keys = set(re.findall(r"^\| `(\w+)` \| .* \| .* \| S? ?\| .* \|$", text, re.M))
    hidden = set(re.findall(r"`(\w+)`", text.partition("### On no page")[2].partition("\n## ")[0]))
    return keys, hidden


class SettingsTest(DesktopTest):
    def setUp(self):
        super().setUp()
        self.reader = Reader(self.desktop, TITLE)
        self.addCleanup(self.reader.close)

    def open_window(self, defaults=None):
        self.island = self.start_island(defaults or {})
        self.island.ctl("action", "settings")
        self.wait_for_window()

    def wait_for_window(self):
        wait_until(lambda: len(self.tree()) > 20, what="the window")
        window = self.windows()[0]
        self.desktop.run("xdotool", "windowfocus", "--sync", window)

    def windows(self):
        return self.desktop.run("xdotool", "search", "--onlyvisible", "--name", TITLE, check=False).split()

    def tree(self):
        return self.reader.tree()

    def item(self, name, role=None):
        found = [i for i in self.tree() if i["name"] == name and role in (None, i["role"])]
        self.assertTrue(found, f"no {role or 'item'} {name}")
        return found[0]

    def open_page(self, name):
        self.reader.press(name, "list item")
        return wait_until(lambda: self.heading() == name and self.tree(), what=f"the page {name}")

    def heading(self):
        return next((i["name"] for i in self.tree() if i["role"] == "heading"), None)

    def type(self, *keys):
        self.desktop.run("xdotool", "key", *keys)

    def stored(self):
        values = {}
        for name in ("defaults.json", "local.json"):
            path = self.island.config / name
            values |= json.loads(path.read_text()) if path.exists() else {}
        return values

    def use(self, item):
        """Moves a control away from where it is; returns whether it was one."""
        role, name = item["role"], item["name"]
        if role in ("check box", "toggle button", "switch"):
            self.reader.press(name, role)
        elif role == "radio button":
            if "checked" in item["states"]:
                return False
            self.reader.press(name, role, item["description"])
        elif role in ("slider", "spin button"):
            low, high = item["range"]
            self.reader.set_value(name, low if item["value"] == high else high)
        elif role in ("text", "entry") and "editable" in item["states"] and name not in OTHER_FIELDS:
            self.reader.focus(name, role)
            self.desktop.run("xdotool", "type", "abc")
            self.type("Return")
        else:
            return False
        return True

    def use_all(self, tree):
        """Uses every control of a page once, of a picker the first that is not chosen."""
        used, pickers = 0, set()
        for item in tree:
            is_choice = item["role"] == "radio button"
            if is_choice and item["description"] in pickers:
                continue
            if self.use(item):
                used += 1
                pickers |= {item["description"]} if is_choice else set()
        return used

    def test_every_control_changes_its_key_and_only_that(self):
        self.open_window()
        pages = self.reader.pages()
        self.assertEqual(len(pages), 26)
        changed = set()
        for page in pages:
            with self.subTest(page=page):
                before = self.stored()
                tree = self.open_page(page)
                used = self.use_all(tree)
                self.assertEqual(used == 0, page in ABSENT)

                def news(before=before):
                    return {key for key, value in self.stored().items() if before.get(key) != value}

                wait_until(lambda: len(news()) >= used, 5, f"{used} keys of {page}: {sorted(news())}")
                self.assertEqual(len(news()), used, sorted(news()))
                changed |= news()
        keys, hidden = documented()
        self.assertEqual(changed - LOCAL, keys - hidden)
        self.assertLessEqual(LOCAL, changed)
        self.assertTrue((self.desktop.dir / "config/autostart/com.quillmere.Quillmere.desktop").exists())
        self.assertTrue((self.desktop.dir / "state/Logs/Quillmere/debug.log").exists())

    def test_a_page_goes_back_to_its_defaults(self):
        self.open_window({"showBatteryHUD": False, "lowBatteryThreshold": 33.0, "showVolumeHUD": False})
        self.open_page("Battery")
        self.assertEqual(self.item("Limit", "slider")["value"], 33)
        self.reader.press("Reset this page", "push button")
        wait_until(lambda: self.item("Limit", "slider")["value"] == 10, what="the slider to go back")
        wait_until(lambda: self.stored().get("showBatteryHUD") is True, what="the file")
        self.assertIs(self.stored()["showVolumeHUD"], False, "of another page")

    def test_what_happens_elsewhere_shows_at_once_and_is_obeyed(self):
        self.open_window()
        self.island.wait_out_mute()
        self.open_page("Sound")
        self.reader.press("Show the volume", None)
        wait_until(lambda: self.stored().get("showVolumeHUD") is False, what="the file")
        with self.desktop.sound_console() as console:
            console.set_volume(31)
            time.sleep(0.5)
            self.assertEqual(self.island.hud(), {})
            self.island.write_defaults({"showVolumeHUD": True, "volumeHUDDuration": 400.0})
            wait_until(lambda: "checked" in self.item("Show the volume")["states"], what="the switch")
            console.set_volume(42)
            self.island.wait_for_hud(0.42)
        self.assertEqual(self.stored()["volumeHUDDuration"], 400, "what is beyond a slider's end stays")

    def wait_for_text(self, text):
        wait_until(lambda: any(i["name"] == text for i in self.tree()), what=f"“{text}”")

    def test_what_is_found_shows_as_it_comes_and_goes(self):
        self.open_window()
        self.open_page("Google")
        self.wait_for_text(NO_KEYRING)
        keyring = Keyring(self.desktop)
        self.wait_for_text("GNOME Keyring. It is unlocked.")
        keyring.lock()
        self.wait_for_text("GNOME Keyring. It is locked, and will ask for its password when it is needed.")
        self.open_page("Now Playing")
        self.wait_for_text("No player is running.")
        with ScriptedPlayer(self.desktop):
            self.wait_for_text("scripted")
        self.wait_for_text("No player is running.")

    def test_figures_are_read_in_the_digits_they_are_written_in(self):
        self.desktop.env |= {"LC_ALL": "", "LANG": "ar_EG.UTF-8"}
        self.open_window()
        self.open_page("Pomodoro")
        self.reader.focus("Work", "spin button")
        self.type("Tab", "ctrl+a", "1", "7", "Return")
        wait_until(lambda: self.stored().get("pomodoroShortBreakMinutes") == 17, what="the typed figure")
        self.assertNotIn("pomodoroWorkMinutes", self.stored(), "which was only passed")

    def test_by_keyboard_alone(self):
        self.open_window()
        self.type("ctrl+f")
        self.desktop.run("xdotool", "type", "fahrenheit")
        wait_until(lambda: len(self.reader.pages()) == 1, what="one result")
        self.type("Return")
        wait_until(lambda: self.heading() == "Weather", what="the page")
        self.type("space")
        wait_until(lambda: self.stored().get("weatherUseFahrenheit"), what="the switch")
        self.type("Escape")  # what was searched for
        wait_until(lambda: len(self.reader.pages()) == 26, what="all pages")
        self.type("ctrl+f", "s", "h", "Down", "Down", "ctrl+f", "Escape", "Tab", "Down")
        wait_until(lambda: self.heading() == "File Tray", what="the page after the one that was open")
        self.type("End")
        wait_until(lambda: self.heading() == "About", what="the last page")
        self.type("Escape")
        wait_until(lambda: not self.windows(), what="the window to close")

    def test_it_opens_once_and_again(self):
        self.open_window()
        for closing in ("ctrl+w", "Escape"):
            window = self.windows()
            self.island.ctl("action", "settings")
            time.sleep(0.3)
            self.assertEqual(self.windows(), window, "the same window")
            self.desktop.run("xdotool", "windowfocus", "--sync", window[0])
            self.type(closing)
            wait_until(lambda: not self.windows(), what="the window to close")
            self.island.ctl("action", "settings")
            wait_until(self.windows, what="the window again")
            self.wait_for_window()


if __name__ == "__main__":
    unittest.main(verbosity=2)
