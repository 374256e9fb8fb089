"""What measure.py measures with players: the playhead, what a playing track costs, artwork, a storm of changes."""

import json
import subprocess
import time
from pathlib import Path

from bus import BUS_NAME, Bus
from desktop import wait_until
from island import Island
from players import ScriptedPlayer, make_cover, make_track, start_mpv

HOSTILE_PLAYER = Path(__file__).resolve().parent.parent / "tests" / "support" / "hostile_player.py"


class Media:
    def __init__(self, measurement):
        self.measurement = measurement

    # -- playhead -------------------------------------------------------------------------------

    def playhead(self):
        """What is published against the player's own position, through a minute of everything."""
        with self.measurement.running() as (desktop, island):
            bus = Bus(desktop)
            names = {"One": 40, "Two": 30, "Three": 20}
            tracks = [make_track(desktop.dir, name, "A", length) for name, length in names.items()]
            player = start_mpv(desktop, bus, *tracks)
            sampler = Sampler(bus, player, names)
            sampler.sample(8, "play")
            for step, length, action in [
                ("pause on the island", 5, lambda: island.ctl("action", "play-pause")),
                ("play on the island", 6, lambda: island.ctl("action", "play-pause")),
                ("seek in the player", 6, lambda: player.seek_to(30)),
                ("seek back in the player", 5, lambda: player.seek_to(10)),
                ("next", 6, lambda: island.ctl("action", "next-track")),
                ("seek to the end, next track", 8, lambda: player.seek_to(27)),
                ("pause in the player", 4, lambda: player.send("Pause")),
                ("seek while paused", 4, lambda: player.seek_to(12)),
                ("play in the player", 6, lambda: player.send("Play")),
                ("previous", 5, lambda: island.ctl("action", "previous-track")),
            ]:
                action()
                sampler.sample(length, step)
            for step, followed, fresh, stale in sampler.rows:
                self.measurement.row(
                    f"playhead, {step}",
                    f"there after {followed:.2f} s, then at most {fresh:.2f} s off when published, "
                    f"{stale:.2f} at any time",
                )

    # -- cost -----------------------------------------------------------------------------------

    def costs(self, seconds=20):
        with self.measurement.running({"autoCollapseDelay": 60, "nowPlayingIdleDuration": 60}) as (desktop, island):
            bus = Bus(desktop)
            player = start_mpv(desktop, bus, make_track(desktop.dir, "One", "A", 600, "teal:orange"))
            wait_until(lambda: bus.now_playing().get("isPlaying"), what="the track")
            time.sleep(2)
            self.cost(island, seconds, "a track playing in the wings")
            island.toggle().wait(5)
            time.sleep(2)
            self.cost(island, seconds, "a track playing on the page")
            player.send("Pause")
            time.sleep(4)
            self.cost(island, seconds, "the track paused on the page")
            island.toggle().wait(5)
            time.sleep(2)
            self.cost(island, seconds, "the track paused in the wings")

    def cost(self, island, seconds, what):
        cpu, begun = island.cpu_seconds(), time.monotonic()
        (voluntary, _, _), _ = self.measurement.activity(island, seconds)
        passed = time.monotonic() - begun
        share = (island.cpu_seconds() - cpu) / passed
        self.measurement.row(
            f"CPU, {what}", f"{100 * share:.1f} % of a core, {voluntary / passed:.1f} voluntary switches a second"
        )

    # -- artwork --------------------------------------------------------------------------------

    def artwork(self, changes):
        """Memory over track after track with a picture of 3000 by 3000 pixels each."""
        with self.measurement.running({"autoCollapseDelay": 60}) as (desktop, island):
            bus = Bus(desktop)
            colors = ["teal:orange", "red:blue", "green:white", "purple:yellow"]
            covers = [make_cover(desktop.dir / f"{i}.jpg", c, 3000) for i, c in enumerate(colors)]
            before = island.memory()["Private_Dirty"]
            self.measurement.row("memory written, no track yet", f"{before} KiB")
            with ScriptedPlayer(desktop) as player:
                done, shown = 0, set()
                for target in (1, 20, 100, changes):
                    while done < target:
                        done += 1
                        player.play(f"Track {done}", covers[done % len(covers)])
                        time.sleep(0.33)  # longer than a player has to wait until it is asked again
                        shown.add(bus.now_playing().get("title"))
                        if done in (2, 12):  # the page and the wings have seen artwork both
                            island.toggle().wait(5)
                    time.sleep(3)
                    now = island.memory()["Private_Dirty"]
                    self.measurement.row(
                        f"memory written after {done} tracks with large artwork, {len(shown - {None})} of them shown",
                        f"{now} KiB ({now - before:+} since the row above)",
                    )
                    before = now

    # -- storm ----------------------------------------------------------------------------------

    def storm(self, seconds=10):
        """A thousand announcements a second; the longest time that the main thread did not answer."""
        logged = {"debugLogEnabled": True, "debugLogCategories": ["POLLER"]}

        def log_polls(desktop):
            Island.write_file(desktop.dir / "config" / "quillmere" / "local.json", json.dumps(logged))

        with self.measurement.running(hardware=log_polls) as (desktop, island):
            bus = Bus(desktop)
            player = desktop.spawn(
                ["/usr/bin/python3", str(HOSTILE_PLAYER)], "hostile.log", stdin=subprocess.PIPE, stdout=subprocess.PIPE
            )
            wait_until(lambda: bus.now_playing().get("title") == "Good", what="the player")
            player.stdout.readline()
            quiet = answers(bus, seconds)
            before, busy = polls(desktop), main_thread(island)
            player.stdin.write(b"storm %d\n" % (1000 * seconds))
            player.stdin.flush()
            begun = time.monotonic()
            stormy = answers(bus, seconds)
            asked = int(player.stdout.readline())
            passed = time.monotonic() - begun
            self.measurement.row(
                f"{1000 * seconds / passed:.0f} announcements a second for {passed:.0f} s",
                f"{(polls(desktop) - before) / passed:.2f} polls a second; the player was asked for its "
                f"properties {asked / passed:.1f} times a second",
            )
            share = (main_thread(island) - busy) / passed
            self.measurement.row("main thread in the storm and of the questions", f"busy {100 * share:.1f} %")
            for what, times in (("quiet", quiet), ("in the storm", stormy)):
                self.measurement.row(f"answer of the main thread, 200 questions a second, {what}", self.spread(times))
            player.stdin.write(b"storm %d\n" % (1000 * seconds))
            player.stdin.flush()
            self.measurement.row(
                "longest stretches of the main thread between two sleeps, in the storm, at most",
                self.spread(stretches(island, seconds)),
            )
            player.stdout.readline()

    @staticmethod
    def spread(times):
        ordered = sorted(1000 * t for t in times)
        p50, p99 = ordered[len(ordered) // 2], ordered[len(ordered) * 99 // 100]
        return f"p50 {p50:.2f}, p99 {p99:.2f}, max {ordered[-1]:.2f} ms (n = {len(ordered)})"


def polls(desktop):
    (path,) = desktop.dir.rglob("debug.log")
    return path.read_text().count("[POLLER]")


def main_thread(island):
    """Its time on a processor so far, in seconds."""
    return island.main_thread()[2] / 1e9


def stretches(island, seconds):
    """Processor time that the main thread spent between one sleep and the next, in seconds.

    Unlike the time of an answer it holds no waiting for a processor, so it is told rightly on a busy machine.
    Stretches that fall between two looks are added up, and what was used while a sleep came in between
    counts for both sides: each figure is an upper bound.
    """
    found, used, end = [], 0, time.monotonic() + seconds
    last = island.main_thread()
    while time.monotonic() < end:
        sleeps, _, time_used = now = island.main_thread()
        used += time_used - last[2]
        if sleeps != last[0]:
            found.append(used / 1e9)
            used = time_used - last[2]
        last = now
    return found


def answers(bus, seconds):
    """Times that the answer of a question to the main thread took, the bus included."""
    found, end = [], time.monotonic() + seconds
    while time.monotonic() < end:
        asked = time.monotonic()
        bus.get(BUS_NAME, "/com/quillmere/Quillmere", "com.quillmere.Island", "Frame")
        found.append(time.monotonic() - asked)
        time.sleep(max(0, asked + 0.005 - time.monotonic()))
    return found


class Sampler:
    """Compares both positions about fifty times a second."""

    REACHED = 0.3  # seconds

    def __init__(self, bus, player, lengths):
        self.bus, self.player, self.lengths = bus, player, lengths
        self.rows = []

    def difference(self):
        record = self.bus.now_playing()
        position, title = self.player.position(), self.player.title()
        if record.get("title") != title or "mediaProgress" not in record:
            return float("inf"), None
        return abs(record["mediaProgress"] * self.lengths[title] - position), record["mediaProgress"]

    def sample(self, seconds, step):
        """After an action: how long until both agree, and how far they are apart from then on.

        A track that ends meanwhile is an action, too.
        """
        now = begun = since = time.monotonic()
        followed, agree, fresh, stale, last = 0.0, False, 0.0, 0.0, None
        while now < begun + seconds:
            off, progress = self.difference()
            now = time.monotonic()
            if agree and off == float("inf"):
                agree, since = False, now
            elif not agree and off <= self.REACHED and now > begun + 0.1:
                agree, followed = True, max(followed, now - since)
            if agree:
                stale = max(stale, off)
                fresh = max(fresh, off) if progress != last else fresh
            last = progress
            time.sleep(0.02)
        self.rows.append((step, followed if agree else float("inf"), fresh, stale))
