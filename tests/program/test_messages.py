"""Who wrote: by a notification that a real daemon shows, and by mail that is delivered."""

import mailbox
import time
import unittest
from email.message import EmailMessage

from case import DesktopTest
from desktop import wait_until

WANTED = {"showSlackHUD": True, "showDiscordHUD": True, "showEmailHUD": True, "emailPollInterval": 30.0}


class MessagesTest(DesktopTest):
    def setUp(self):
        super().setUp()
        self.desktop.start_notification_daemon()
        inbox = self.desktop.dir / "home" / "Maildir"
        self.inbox = mailbox.Maildir(inbox, create=True)
        self.deliver("Old news")
        self.island = self.start_island(WANTED)
        self.island.wait_out_mute()

    def deliver(self, subject):
        mail = EmailMessage()
        mail["From"], mail["Subject"] = "Adá Lovelace <ada@example.org>", subject
        mail["Message-ID"] = f"<{time.monotonic_ns()}@example.org>"
        mail.set_content("Hello.")
        self.inbox.add(mail)

    def send(self, app, entry, title, text):
        self.desktop.run("notify-send", "-a", app, "-h", f"string:desktop-entry:{entry}", title, text)

    def test_chats_are_seen_and_still_shown_and_mail_is_told_once(self):
        with self.island.watch() as watcher:
            self.send("Files", "org.gnome.Nautilus", "Copied", "3 files")
            self.send("Discord", "com.discordapp.Discord", "Ada", "Six <b>o'clock</b>?")
            wait_until(lambda: self.island.hud().get("title") == "Ada", 3, "Discord's HUD")
            self.assertEqual(self.island.hud()["subtitle"], "Six o'clock?")
            self.send("Slack", "slack", "Grace", "Yes")
            wait_until(lambda: self.island.hud().get("title") == "Grace", 3, "Slack's HUD")
            self.assertEqual(self.desktop.run("dunstctl", "count", "displayed").strip(), "3")
            self.deliver("Lünch?")
            wait_until(lambda: self.island.hud().get("type") == "email", 45, "the mail's HUD", step=0.2)
            self.assertEqual((self.island.hud()["title"], self.island.hud()["subtitle"]), ("Lünch?", "Adá Lovelace"))
            self.island.wait_until_collapsed(timeout=10)
            titles = [hud["title"] for _, hud in watcher.huds()]
        self.assertEqual(titles, ["Ada", "Grace", "Lünch?"])


if __name__ == "__main__":
    unittest.main(verbosity=2)
