"""Signing in to Google by a browser and a scheme handler, with a real keyring; and its news."""

import json
import signal
import subprocess
import time
import unittest

from case import BUILD, DesktopTest
from desktop import wait_until
from google import ACCOUNT, CLIENT_ID, SCHEME, SERVICE, GoogleServers, event
from keyring import Keyring

SETTINGS = {"googleClientID": f" {CLIENT_ID} ", "googlePollInterval": 10.0, "emailHUDDuration": 3.0}


class GoogleTest(DesktopTest):
    def setUp(self):
        super().setUp()
        self.servers = self.enterContext(GoogleServers(self.desktop))
        self.choices, self.choices_before = self.servers.install_browser()
        self.entry = self.desktop.dir / "data" / "applications" / "com.quillmere.Quillmere.sign-in.desktop"

    def start(self, **more):
        local = self.desktop.dir / "config" / "quillmere" / "local.json"
        local.parent.mkdir(parents=True, exist_ok=True)
        local.write_text(json.dumps({"debugLogEnabled": True}))
        self.island = self.start_island(SETTINGS | more)

    def sign_in(self):
        before = self.island.output().count("[Google] signed in")
        self.island.ctl("action", "sign-in-to-google")
        wait_until(lambda: self.island.output().count("[Google] signed in") > before, 20, "the sign-in")
        self.assertEqual(self.servers.faults, [])

    def email(self):
        return json.loads(self.island.defaults_file.read_text()).get("googleAccountEmail", "")

    def activities(self):
        return {activity["title"]: activity.get("subtitle") for activity in self.island.get("Activities")}

    def is_unregistered(self):
        return not self.entry.exists() and self.choices.read_text().rstrip("\n") == self.choices_before

    def leaks(self, published=True):
        """Files that hold a token, and tokens that the program published."""
        found = [
            (path, secret)
            for path in self.desktop.dir.rglob("*")
            if path.is_file()
            for secret in self.servers.secrets()
            if secret.encode() in path.read_bytes()
        ]
        state = self.island.ctl("get") if published else ""
        return found + [secret for secret in self.servers.secrets() if secret in state]

    def test_news_of_an_account_until_it_is_revoked(self):
        keyring = Keyring(self.desktop)
        self.servers.expires_in = 61  # every poll has to refresh
        self.start(showGmailHUD=True, showGoogleCalendarHUD=True, disableActivityDuringEvents=True)
        self.assertEqual(self.servers.requests, [])
        self.sign_in()
        wait_until(self.is_unregistered, what="the end of the handler")
        self.assertEqual(keyring.lookup(SERVICE, ACCOUNT), self.servers.refresh_token)
        wait_until(lambda: self.email() == "ada@example.org", what="the account in the settings")

        self.servers.messages = {"old": ("Grace <g@example.org>", "Old")}
        self.servers.events = [
            {"id": "all day", "summary": "Holiday", "start": {"date": "2026-11-21"}},
            event("soon", "Stand-up", 3, hangoutLink="https://meet.example/soon", htmlLink="https://no.example"),
            event("later", "Lunch", 4),
        ]
        hud = wait_until(lambda: self.island.hud(), 45, "the event", step=0.2)
        self.assertEqual((hud["type"], hud["title"]), ("calendar", "Stand-up"))
        self.assertRegex(hud["subtitle"], r"^\d{1,2}:\d\d [AP]M$")
        self.assertEqual(hud["contentURL"], "https://meet.example/soon")
        self.assertEqual(self.servers.paths().count("/token"), 2)  # both asked with the same refreshed token
        self.desktop.run("xdotool", "mousemove", str(self.desktop.primary.width // 2), "40", "click", "1")
        wait_until(lambda: "https://meet.example/soon" in self.servers.visited.read_text(), what="the meeting")
        self.desktop.run("xdotool", "mousemove", "10", "700")

        self.servers.messages = {"new": ("Adá Lovelace <ada@example.org>", "Lünch?")} | self.servers.messages
        self.servers.messages["unlisted"] = ("Grace <g@example.org>", "Of last year")
        self.servers.dates["unlisted"] = int(time.time() - 3e7) * 1000
        self.servers.events[2] = event("later", "Lunch", 4)
        with self.island.watch() as watcher:
            # Both may come in the same moment; then only the later one is published as a HUD.
            wait_until(lambda: self.activities().keys() == {"Lünch?", "Lunch"}, 45, "the message and the other event")
            told = {hud["title"] for _, hud in watcher.huds()}
        self.assertEqual(self.activities()["Lünch?"], "Adá Lovelace")
        self.assertLessEqual(told, {"Lünch?", "Lunch"})
        self.assertEqual(self.leaks(), [])

        # A message that comes during a meeting is fetched, but not shown.
        self.servers.today = [event("now", "Meeting", -1)]
        asked = len(self.servers.paths())
        wait_until(lambda: any("maxAttendees" in path for path in self.servers.paths()[asked:]), 45, "the day", step=0.2)
        self.servers.messages = {"unheard": ("Ada <ada@example.org>", "Not now")} | self.servers.messages
        wait_until(lambda: any("/unheard?" in path for path in self.servers.paths()), 45, "the message", step=0.2)

        self.servers.refusal = (400, b'{"error": "invalid_grant"}')
        wait_until(lambda: not keyring.lookup(SERVICE, ACCOUNT), 45, "the end of the token", step=0.2)
        wait_until(lambda: not self.email(), what="the end of the account")
        self.assertNotIn("Not now", self.activities())
        self.assertEqual(self.servers.faults, [])
        self.assertNotIn("poll failed", self.island.output())

    def test_signing_out_and_redirects_nobody_waits_for(self):
        keyring = Keyring(self.desktop)
        self.start()
        self.sign_in()
        address = f"{SCHEME}:/oauth2redirect?code=again"
        wait_until(self.is_unregistered, what="the end of the handler")
        self.assertNotEqual(subprocess.run(["gio", "open", address], env=self.desktop.env).returncode, 0)
        self.desktop.run(f"{BUILD}/bin/quillmere", address)
        wait_until(lambda: f"Nothing here opens {SCHEME}:/oauth2redirect\n" in self.island.output(), what="the refusal")
        self.assertEqual(self.servers.paths().count("/token"), 1)
        self.island.ctl("action", "sign-out-of-google")
        wait_until(lambda: not keyring.lookup(SERVICE, ACCOUNT), what="the end of the token")
        self.assertEqual(self.leaks(), [])

        # While a sign-in waits, only its own address ends it; and a crash leaves nothing for long.
        self.servers.agrees = False
        self.island.ctl("action", "sign-in-to-google")
        wait_until(lambda: self.servers.paths()[-1].startswith("/o/oauth2/"), what="the page")
        for wrong in (f"{SCHEME}:/other?code=x", f"{SCHEME}://host/oauth2redirect?code=x", "file:///tmp/x"):
            self.desktop.run(f"{BUILD}/bin/quillmere", wrong)
        self.assertEqual(self.servers.paths().count("/token"), 1)
        self.assertTrue(self.entry.exists())
        self.desktop.run("desktop-file-validate", str(self.entry))
        self.island.process.send_signal(signal.SIGKILL)
        self.island.wait_for_exit()
        self.assertFalse(self.is_unregistered())
        self.island.start()
        wait_until(self.is_unregistered, what="what the crash left to go")
        self.assertEqual(self.servers.faults, [])

    def test_without_an_open_keyring_nothing_is_kept(self):
        for words, is_locked in (("There is no keyring", False), ("Your keyring is locked", True)):
            if is_locked:
                Keyring(self.desktop).lock()
            self.start()
            self.island.ctl("action", "sign-in-to-google")
            wait_until(lambda: f"[Google] Sign-in failed: {words}" in self.island.output(), 40, words)
            wait_until(self.is_unregistered, what="the end of the handler")
            self.island.stop()
            self.assertEqual((self.email(), self.leaks(published=False)), ("", []))


if __name__ == "__main__":
    unittest.main(verbosity=2)
