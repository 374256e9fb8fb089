"""The timers as desktops and scripts drive them, and what the user is told."""

import itertools
import json
import unittest

from case import BUILD, DesktopTest
from desktop import wait_until
from island import BUS_NAME, Island

PATH = "/com/quillmere/Quillmere"


class TimersTest(DesktopTest):
    def start_notification_server(self):
        """A real one, whose history tells what it was given."""
        rules = self.desktop.dir / "dunstrc"
        rules.write_text("[global]\nhistory_length = 50\nstack_duplicates = false\n")
        self.desktop.spawn(["dunst", "-conf", str(rules)], "dunst.log")
        wait_until(lambda: self.owned("org.freedesktop.Notifications"), what="dunst")

    def owned(self, name):
        return "true" in self.gdbus("org.freedesktop.DBus", "/", "org.freedesktop.DBus.NameHasOwner", name)

    def gdbus(self, name, path, method, *arguments):
        return self.desktop.run("gdbus", "call", "--session", "-d", name, "-o", path, "-m", method, *arguments).strip()

    def notified(self):
        """(title, body) of everything shown so far, oldest first."""
        self.desktop.run("dunstctl", "close-all")
        history = json.loads(self.desktop.run("dunstctl", "history"))["data"][0]
        return [(entry["summary"]["data"], entry["body"]["data"]) for entry in reversed(history)]

    def test_four_sessions_are_told_and_the_fourth_break_is_long(self):
        self.start_notification_server()
        lengths = {"pomodoroWorkMinutes": 0.05, "pomodoroShortBreakMinutes": 0.02, "pomodoroLongBreakMinutes": 0.05}
        island = self.start_island(lengths)
        with island.watch() as watcher:
            for session in range(1, 5):
                island.ctl("action", "start-pomodoro")
                done = {"sessionsCompleted": session, "state": "idle"}
                wait_until(lambda: done.items() <= island.get("Timers").items(), 20, f"session {session}", step=0.2)
            states = [timers["state"] for _, timers in watcher.changes("Timers")]
        # The watch may have begun before the program said for the first time that nothing runs.
        begun = itertools.dropwhile(lambda state: state == "idle", states)
        phases = [state for state, _ in itertools.groupby(begun)]
        self.assertEqual(phases, ["working", "shortBreak", "idle"] * 3 + ["working", "longBreak", "idle"])
        expected = []
        for session in range(1, 5):
            expected += [("Focus session complete", f"Time for a break! Session {session} done.")]
            expected += [("Break's over", "Ready to focus again?")]
        wait_until(lambda: len(self.notified()) == len(expected), what="all notifications")
        self.assertEqual(self.notified(), expected)

    def test_without_a_notification_server_the_timer_goes_on(self):
        island = self.start_island({"pomodoroWorkMinutes": 0.02, "pomodoroShortBreakMinutes": 0.02})
        island.ctl("action", "start-pomodoro")
        wait_until(lambda: "[Notifications]" in island.output(), what="the line in the log")
        wait_until(lambda: island.get("Timers")["state"] == "idle", what="the end of the break")
        self.assertEqual(island.get("Timers")["sessionsCompleted"], 1)

    def test_a_countdown_is_announced_once_a_second(self):
        island = self.start_island()
        with island.watch() as watcher:
            self.assertEqual(
                island.ctl("perform", "StartCountdownTimerIntent", "minutes=1"), "Countdown started — 1 minute to go.\n"
            )
            changes = watcher.wait_for_changes("Timers", 5)
        seconds = [timers["elapsedSeconds"] for _, timers in changes]
        self.assertEqual(seconds, sorted(set(seconds)), "the ten ticks of a second are one change")

    def test_the_desktop_starts_the_program_for_an_action(self):
        services = self.desktop.dir / "services"
        services.mkdir()
        program = Island(self.desktop, BUILD).program.resolve()
        (services / f"{BUS_NAME}.service").write_text(f"[D-BUS Service]\nName={BUS_NAME}\nExec={program}\n")
        config = self.desktop.dir / "session.conf"
        config.write_text(config.read_text().replace("<listen>", f"<servicedir>{services}</servicedir><listen>"))
        self.gdbus("org.freedesktop.DBus", "/", "org.freedesktop.DBus.ReloadConfig")

        self.assertFalse(self.owned(BUS_NAME))
        self.desktop.run("gapplication", "action", BUS_NAME, "start-countdown", "7")
        found = self.gdbus(
            BUS_NAME, PATH + "/SearchProvider", "org.gnome.Shell.SearchProvider2.GetInitialResultSet", "['timer', '9']"
        )
        self.assertEqual(found, "(['start-countdown:9'],)")
        timers = self.gdbus(BUS_NAME, PATH, "org.freedesktop.DBus.Properties.Get", "com.quillmere.Island", "Timers")
        self.assertIn("'targetSeconds': <int64 420>", timers)
        self.assertIn("'isRunning': <true>", timers)
        self.desktop.run("gapplication", "action", BUS_NAME, "quit")
        wait_until(lambda: not self.owned(BUS_NAME), what="its end")


if __name__ == "__main__":
    unittest.main(verbosity=2)
