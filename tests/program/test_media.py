"""Real players on the island: what plays, where it is, who is shown, and that commands arrive."""

import json
import re
import time
import unittest

from bus import Bus
from case import IslandTest
from desktop import wait_until
from island import Island
from players import ScriptedPlayer, chromium_playing, make_track, start_mpv

IDLE = 1.5  # seconds

# Wide enough for a busy machine; bench/measure.py tells how near the playhead really is.
NEAR = 1.0

REAL = r"-?\d+\.\d\d"
TRUTH = "(?:true|false)"
LINES = {
    "POLLER": rf'title="[^"]*" (?:elapsed={REAL} dur={REAL} playing={TRUTH}|NO_DURATION — direct set)',
    "PROGRESS": (
        rf'POLL track="[^"]*" sameTrack={TRUTH} timerRunning={TRUTH} pollPlaying={TRUTH} pollElapsed={REAL} '
        rf"lastPoll={REAL} pollChanged={TRUTH} interp={REAL} dur={REAL} pausedPolls=\d+"
        rf"|EMIT timerRunning={TRUTH} base={REAL} delta={REAL} elapsed={REAL} dur={REAL}"
        rf"|(?:NEW_TRACK seeding|RESUME seeding|SEEK_WHILE_PAUSED reseeding) base={REAL}"
        rf"|SEEK_DETECTED drift={REAL} reseeding base={REAL}"
        rf"|POLL_CHANGED_BUT_CLOSE drift={REAL} ignoring"
        rf"|CONFIRMED_PAUSE freezing at {REAL}"
    ),
}


def near(pixel, color):
    return max(abs(one - other) for one, other in zip(pixel, color)) < 40


class MediaTest(IslandTest):
    defaults = {"nowPlayingIdleDuration": IDLE}

    @classmethod
    def prepare(cls):
        cls.bus = Bus(cls.desktop)
        cls.first = make_track(cls.desktop.dir, "First Light", "The Testers", 100, "teal")
        cls.second = make_track(cls.desktop.dir, "Second Wind", "The Others", 60, "orange")
        logged = {"debugLogEnabled": True, "debugLogCategories": list(LINES)}
        Island.write_file(cls.desktop.dir / "config" / "quillmere" / "local.json", json.dumps(logged))

    def start(self, *arguments):
        player = start_mpv(self.desktop, self.bus, *arguments)
        self.addCleanup(player.end)
        return player

    def setUp(self):
        self.wait_for(title=None)
        super().setUp()

    def wait_for(self, timeout=8, **fields):
        def shown():
            record = self.bus.now_playing()
            return all(record.get(name) == value for name, value in fields.items())

        wait_until(shown, timeout, f"{fields}; it is {self.bus.now_playing()}")

    def playerctl(self, *arguments):
        return self.desktop.run("playerctl", *arguments).strip()

    def log(self):
        """(category, message) of every line."""
        (path,) = self.desktop.dir.rglob("debug.log")
        found = (re.match(r"\[[\d:.]+\] \[(\w+)\] \[\w+:\d+\] (.*)", line) for line in path.read_text().splitlines())
        return [match.groups() for match in found if match]

    def playhead(self, duration):
        return self.bus.now_playing().get("mediaProgress", -1) * duration

    def assert_near(self, player, duration):
        wait_until(
            lambda: abs(self.playhead(duration) - player.position()) < NEAR, 5,
            f"{self.playhead(duration)} to become {player.position()}",
        )  # fmt: skip

    def test_a_playlist_from_its_start_to_its_end(self):
        pill = self.island.get("Frame")[2]
        player = self.start(self.first, self.second)
        self.wait_for(title="First Light", subtitle="The Testers", isPlaying=True, bundleID="mpv")
        wait_until(lambda: self.island.get("Frame")[2] >= pill + 20, what="the wings")
        self.assert_near(player, 100)
        player.seek_to(70)
        self.assert_near(player, 100)

        self.island.ctl("action", "play-pause")
        # An answer that was under way still says that it plays, for a moment.
        wait_until(lambda: self.playerctl("status") == "Paused", what="the player to pause")
        self.wait_for(title="First Light", isPlaying=False)
        frozen = self.playhead(100)
        time.sleep(0.6)
        self.assertEqual(self.playhead(100), frozen)
        self.assert_near(player, 100)

        player.seek_to(30)
        self.assert_near(player, 100)
        player.send("Play")
        self.wait_for(isPlaying=True)
        player.send("Pause")
        self.wait_for(isPlaying=False)
        time.sleep(1.5)
        self.assertLess(abs(self.playhead(100) - player.position()), NEAR)
        self.island.ctl("action", "play-pause")
        wait_until(lambda: self.playerctl("status") == "Playing", what="the player to play")
        self.wait_for(isPlaying=True)
        self.assert_near(player, 100)

        player.seek_to(98.5)
        self.wait_for(title="Second Wind", subtitle="The Others")
        self.assert_near(player, 60)
        self.island.ctl("action", "previous-track")
        wait_until(lambda: self.playerctl("metadata", "title") == "First Light", what="the first track")
        self.wait_for(title="First Light")
        self.island.ctl("action", "next-track")
        wait_until(lambda: self.playerctl("metadata", "title") == "Second Wind", what="the second track")
        self.wait_for(title="Second Wind")
        player.seek_to(58.5)
        player.process.wait(20)
        self.wait_for(title=None)
        wait_until(lambda: self.island.get("Frame")[2] == pill, what="the pill without wings")

        lines = self.log()
        wrong = [(c, m) for c, m in lines if c in LINES and not re.fullmatch(LINES[c], m)]
        self.assertEqual(wrong, [])
        text = "\n".join(message for _, message in lines)
        for message in (
            r'title="First Light" elapsed=.* dur=100.00 playing=true', r'title="First Light" .* playing=false',
            r'title="Second Wind" .* dur=60.00', "NEW_TRACK", "SEEK_DETECTED", "RESUME", "SEEK_WHILE_PAUSED",
        ):  # fmt: skip
            self.assertRegex(text, message)

    def test_the_one_that_began_last_is_shown_while_it_plays(self):
        self.start(self.first)
        self.wait_for(title="First Light")
        other = self.start(self.second)
        self.wait_for(title="Second Wind")
        other.send("Pause")
        self.wait_for(title="First Light")
        other.send("Play")
        self.wait_for(title="Second Wind")
        other.kill()
        self.wait_for(title="First Light")

    def test_a_killed_player_is_forgotten(self):
        player = self.start(self.first)
        self.wait_for(title="First Light", isPlaying=True)
        player.kill()
        killed = time.monotonic()
        self.wait_for(title=None)
        self.assertGreater(time.monotonic() - killed, IDLE - 0.5)

    def test_a_stream_has_no_playhead(self):
        # mpv calls its length what it has received so far.
        player = self.start("--demuxer=rawaudio", "--force-media-title=Noise", "/dev/zero")
        self.wait_for(title="Noise", isPlaying=True, mediaProgress=None)
        player.end()
        with ScriptedPlayer(self.desktop) as player:
            player.play("Endless Radio", seconds=None)
            self.wait_for(title="Endless Radio", isPlaying=True, mediaProgress=None, mediaElapsed=None)
            line = "POLLER", 'title="Endless Radio" NO_DURATION — direct set'
            wait_until(lambda: line in self.log(), what="its line")

    def test_a_page_in_a_browser(self):
        with chromium_playing(self.desktop, self.bus, "Web Song", "Web Artist", "orange") as browser:
            self.wait_for(title="Web Song", subtitle="Web Artist", bundleID="com.google.Chrome", isPlaying=True)
            artwork = self.desktop.primary.width // 2 - 90, 16
            wait_until(lambda: near(self.desktop.screen.pixel(*artwork), (255, 165, 0)), what="its artwork")
            self.island.ctl("action", "play-pause")
            wait_until(lambda: browser.get("PlaybackStatus") == "Paused", what="the page to pause")
            self.wait_for(isPlaying=False)
            self.island.ctl("action", "play-pause")
            wait_until(lambda: browser.get("PlaybackStatus") == "Playing", what="the page to play")
            self.wait_for(isPlaying=True)

    def test_without_media_nobody_is_asked(self):
        with ScriptedPlayer(self.desktop) as player:
            player.play("Asked")
            self.wait_for(title="Asked")
            self.addCleanup(self.island.write_defaults, self.defaults)
            self.island.write_defaults(self.defaults | {"showMediaHUD": False})
            self.wait_for(title=None)
            asked = player.asked
            time.sleep(2.5)
            self.assertEqual(player.asked, asked)
            self.island.write_defaults(self.defaults)
            self.wait_for(title="Asked")


if __name__ == "__main__":
    unittest.main(verbosity=2)
