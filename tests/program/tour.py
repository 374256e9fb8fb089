"""Plays real events on private desktops and leaves numbered screenshots of what the island shows.

    python3 tour.py --build <build directory> --out <directory for the PNGs>
"""

import argparse
import contextlib
import re
import time
from pathlib import Path

from appearance import DARK, LIGHT, Appearance
from assistant import Assistant
from backlight import Backlight
from bus import Bus
from desktop import PipeWireDesktop, PrivateDesktop, end_process, wait_until
from drag import Drag
from google import CLIENT_ID, GoogleServers, event
from island import Island, is_black
from keyring import Keyring
from players import make_track, start_mpv
from power import Battery
from reader import Reader
from wayland import WaylandDesktop
from weather import WeatherServers, forecast

STRIP = 300  # logical units of the screen's top that a screenshot shows
GALLERY = "light", 2  # the desktop whose pictures the documentation shows
PAGES = ("main", "weather", "system", "fileTray", "timer")
SETTINGS = {
    "autoCollapseDelay": 0.7, "showFileTray": True, "idleActivityMostRecent": True, "enableClaudeCode": True,
    "batteryHUDDuration": 2.0, "enablePomodoro": True, "enableCountdownTimer": True, "showSlackHUD": True,
}  # fmt: skip


class Album:
    def __init__(self, out):
        self.out = Path(out)
        self.out.mkdir(parents=True, exist_ok=True)
        for old in self.out.glob("[0-9]*-*.png"):
            old.unlink()
        self.count = 0

    def add(self, picture, name):
        self.count += 1
        path = self.out / f"{self.count:03}-{name}.png"
        picture.save(path)
        print(path, flush=True)


class Tour:
    """The stops on one desktop; `look` names it in the file names."""

    def __init__(self, album, desktop, island, look):
        self.album, self.desktop, self.island = album, desktop, island
        self.suffix = f"{look}-{desktop.scale}x"

    # -- looking and touching, in logical units -------------------------------------------------

    def shoot(self, name, monitor=None, height=STRIP):
        monitor, screen = monitor or self.desktop.primary, self.desktop.screen
        height = min(monitor.height, height * self.desktop.scale)
        self.album.add(screen.grab(monitor.x, monitor.y, monitor.width, height), f"{name}-{self.suffix}")

    def settled(self, name, monitor=None):
        area = monitor or self.desktop.primary
        self.desktop.screen.until_still((area.x, area.y, area.width, 230 * self.desktop.scale), quiet=0.2)
        self.shoot(name, monitor)

    def point(self, x, y, *more):
        """`x` from the middle of the screen."""
        scale = self.desktop.scale
        x, y = self.desktop.primary.width // 2 + round(x * scale), y * scale
        self.desktop.run("xdotool", "mousemove", str(x), str(y), *more)

    def press(self, x, y):
        self.point(x, y, "click", "1")

    def leave(self):
        self.point(0, 600)
        self.island.wait_until_collapsed(timeout=10)

    def open(self):
        self.press(0, 16)
        self.island.wait_for("Presentation", "expanded")

    def turn_to(self, page):
        # The dots take no press before the island has unfolded.
        middle, scale = self.desktop.primary.width // 2, self.desktop.scale
        self.desktop.screen.until_still((middle - 50 * scale, 190 * scale, 100 * scale, 30 * scale), quiet=0.2)
        self.press((PAGES.index(page) - (len(PAGES) - 1) / 2) * 14, 206)
        self.island.wait_for("Page", page)

    # -- the stops ------------------------------------------------------------------------------

    def levels(self):
        self.settled("collapsed")
        with self.desktop.sound_console() as console:
            console.set_volume(40)
            self.growing()
            self.settled("volume-40")
            for percent in (20, 75):
                console.set_volume(percent)
                self.island.wait_for_hud(percent / 100)
                self.settled(f"volume-{percent}")
            console.set_volume(100)
            self.island.wait_for_hud(1)
            time.sleep(0.05)
            self.shoot("volume-100-bump")
            self.settled("volume-100")
            console.set_volume(0)
            self.island.wait_for_hud(0)
            self.settled("volume-0")
            console.set_volume(60)
            self.island.wait_for_hud(0.6)

        self.desktop.set_muted(True)
        self.island.wait_for_hud(0)
        self.settled("muted")
        self.desktop.set_muted(False)
        self.island.wait_for_hud(0.6)
        self.shoot("whole-screen", height=982)

    def growing(self):
        """Catches the island on its way from the pill to the HUD."""
        monitor, scale = self.desktop.primary, self.desktop.scale
        beside_pill = (monitor.x + monitor.width // 2 - 110 * scale, monitor.y + 10 * scale, 1, 1)
        screen = self.desktop.screen
        screen.until_changed(beside_pill, screen.raw(*beside_pill), timeout=3)
        self.shoot("growing")

    def brightness(self, backlight):
        for percent in (60, 90):
            backlight.set(percent)
            self.island.wait_for_hud(percent / 100)
            self.settled(f"brightness-{percent}")
        self.island.wait_until_collapsed()
        backlight.set(91)
        time.sleep(0.5)
        self.shoot("brightness-drift")

    def second_monitor(self):
        first, second = self.desktop.primary, self.desktop.secondary
        self.desktop.plug(second)
        self.desktop.make_primary(second)
        self.settled("second-monitor", second)
        self.desktop.set_volume(50)
        self.island.wait_for_hud(0.5)
        self.settled("second-monitor-volume", second)
        self.desktop.unplug(second)
        self.island.wait_until_collapsed()
        self.settled("first-monitor-again", first)

    def dashboard(self):
        self.open()
        time.sleep(0.08)
        self.shoot("opening")
        self.settled("dashboard")
        self.leave()
        self.settled("left-and-closed")
        self.point(0, 16, "click", "--repeat", "2", "--delay", "120", "1")
        time.sleep(0.1)
        self.shoot("tapped-twice-closing")
        self.settled("tapped-twice")

        self.open()
        self.desktop.set_volume(45)
        self.island.wait_for_hud(0.45)
        self.settled("browsing-volume")
        wait_until(lambda: not self.island.hud(), what="the end of the HUD")
        self.settled("browsing")
        self.turn_to("fileTray")
        self.shoot("turning-the-page")
        self.settled("tray-empty")
        self.turn_to("main")
        self.settled("main-again")
        self.press(240, 40)
        self.settled("outputs")
        self.point(0, 90)
        self.settled("outputs-pointed-at")
        self.leave_picker()

    def leave_picker(self):
        self.press(266, 28)  # its close button
        self.settled("outputs-closed")
        self.leave()

    def weather(self, servers):
        """Nobody knows the place, one is typed, the weather comes; then other weather elsewhere."""
        self.open()
        self.turn_to("weather")
        self.settled("weather-without-a-place")
        self.press(0, 120)
        self.point(0, 190)  # off the places that will be found
        time.sleep(0.5)
        for text, name in (("Qwx", "no-place"), ("Lis", "places")):
            self.desktop.run("xdotool", "type", "--delay", "30", text)
            time.sleep(1.2)
            self.shoot(f"weather-{name}")
            if name == "no-place":
                self.desktop.run("xdotool", "key", "BackSpace", "BackSpace", "BackSpace")
        self.desktop.run("xdotool", "key", "Return")
        wait_until(lambda: self.island.get("Weather"), what="the weather")
        self.settled("weather")
        self.turn_to("main")
        self.leave()
        porto = forecast(13.8, 61), "Porto", 41.15, -8.61
        self.weather_turns(servers, *porto)
        self.settled("weather-hud")
        self.island.wait_until_collapsed(timeout=8)
        self.settled("weather-wings")
        long = "Llanfairpwllgwyngyllgogerychwyrndrobwllllantysiliogogogoch"
        self.weather_turns(servers, forecast(-25.6, 75), long, 53.22, -4.2)
        self.settled("weather-hud-long-name")
        self.island.wait_until_collapsed(timeout=8)
        self.open()
        self.turn_to("weather")
        self.settled("weather-long-name")
        self.turn_to("main")
        self.leave()
        self.weather_turns(servers, *porto)
        self.island.wait_until_collapsed(timeout=8)

    def weather_turns(self, servers, answer, *place):
        servers.answer = answer
        self.island.type_place(*place)
        wait_until(lambda: self.island.hud().get("type") == "weather", what="the HUD of the weather")

    def system(self):
        self.open()
        self.turn_to("system")
        for _ in range(3):
            time.sleep(3.5)  # a sample later: this tour's own load is not what it is to show
            if self.island.get("SystemStats").get("cpuUsage", 100) < 60:
                break
        self.shoot("system")
        self.turn_to("main")
        self.leave()

    def timers(self, last="4s"):
        """`last` is how long the countdown lasts whose end is waited for."""
        self.open()
        self.turn_to("timer")
        self.settled("timer-focus")
        focus, countdown, stopwatch, start = (-76, 52), (-3, 52), (83, 52), (-80, 141)
        self.press(*stopwatch)
        self.settled("timer-stopwatch")
        self.press(*start)
        time.sleep(0.6)
        self.press(*focus)
        time.sleep(0.4)
        self.press(*start)
        time.sleep(2)
        self.shoot("timer-focus-running")
        self.press(*stopwatch)
        time.sleep(4)
        self.shoot("timer-stopwatch-running")
        self.press(*countdown)
        self.settled("timer-countdown")
        self.press(35, 96)  # ten minutes
        time.sleep(3)
        self.shoot("timer-countdown-running")
        self.press(197, 96)  # another length
        for text, name in (("soon", "refused"), ("1:02:03", "with-hours")):
            time.sleep(0.4)
            self.desktop.run("xdotool", "key", "ctrl+a", "type", "--delay", "30", text)
            self.desktop.run("xdotool", "key", "Return")
            time.sleep(0.6)
            self.shoot(f"timer-countdown-{name}")
        self.turn_to("main")
        self.leave()
        time.sleep(0.8)
        self.shoot("timer-wings")
        self.island.ctl("action", "stop-pomodoro")
        self.island.wait_until_collapsed()
        time.sleep(0.8)
        self.shoot("timer-wings-with-hours")
        self.island.ctl("action", "stop-countdown")
        self.island.wait_until_collapsed()
        self.open()
        self.turn_to("timer")
        time.sleep(0.6)
        self.press(*countdown)
        time.sleep(0.4)
        self.press(197, 96)
        time.sleep(0.4)
        self.desktop.run("xdotool", "type", "--delay", "30", last)
        self.desktop.run("xdotool", "key", "Return")
        self.point(0, 600)
        wait_until(lambda: self.island.hud().get("title") == "Timer Complete", 75, "the end of the countdown")
        self.settled("timer-complete")
        self.island.wait_until_collapsed(timeout=10)
        self.open()
        self.turn_to("main")
        self.leave()

    def battery(self, battery):
        """Plugged in and out, down to one warning and no second, armed again by the charger."""
        for percent, plugged_in, name in (
            (22, True, "charging"), (100, True, None), (21, False, "on-battery"), (10, False, "low-battery"),
            (9, False, None), (9, True, "charging-again"), (8, False, "on-battery-again"), (7, False, "low-again"),
        ):  # fmt: skip
            battery.set(percent, plugged_in)
            if name is None:
                time.sleep(1)
                continue
            wait_until(lambda: self.island.hud().get("type") == "battery", 8, name)
            self.settled(name)
            self.island.wait_until_collapsed(timeout=8)
        self.shoot("low-battery-notification", height=982)

    def assistant(self, assistant):
        """Its dot never stands still while it works, so nothing here waits for that."""
        assistant.wait_until_listened_to()
        assistant.report("UserPromptSubmit", prompt="make the HUD spring feel right at 2x")
        assistant.report("PreToolUse", tool_name="Edit")
        wait_until(lambda: self.island.get("ClaudeCode").get("currentTool"), what="the tool")
        time.sleep(0.8)
        self.shoot("assistant")
        self.open()
        time.sleep(0.8)
        self.shoot("dashboard-assistant")
        self.leave()
        assistant.report("Stop")
        self.settled("assistant-stopped")

    def headset(self, name="headset"):
        device = self.desktop.connect_headset()
        wait_until(lambda: self.island.hud().get("type") == "bluetooth", 8, "the HUD of the headset")
        self.settled(name)
        wait_until(lambda: self.island.get("Presentation") == "collapsed", 8, "the end of the HUD")
        self.settled(f"{name}-wings")
        return device

    def activity(self):
        self.open()
        self.settled("dashboard-activity")
        self.leave()

    def messages(self):
        """Somebody writes; then nobody is to disturb."""
        self.desktop.run("notify-send", "-a", "Slack", "-h", "string:desktop-entry:slack", "Grace Hopper",
                         "The tests are green, shall we ship it after lunch?")  # fmt: skip
        wait_until(lambda: self.island.hud().get("type") == "notification", what="the message")
        self.settled("message")
        self.desktop.run("dunstctl", "set-paused", "true")
        wait_until(lambda: self.island.hud().get("type") == "focus", what="the HUD of Do Not Disturb")
        self.settled("do-not-disturb")
        self.desktop.run("dunstctl", "set-paused", "false")
        wait_until(lambda: self.island.hud().get("subtitle") == "Off", what="its end")
        self.settled("do-not-disturb-off")
        self.island.wait_until_collapsed(timeout=10)

    def media(self):
        """A playlist: with cover art, with a title beyond its line, without cover art."""
        bus, folder = Bus(self.desktop), self.desktop.dir
        long = "The Very Long Way Home Through the Harbour and the Rain, Part Two of Three"
        player = start_mpv(
            self.desktop, bus,
            make_track(folder, "First Light", "The Harbour Lights", 227, "0x1fa39a:0xf28a2e"),
            make_track(folder, long, "An Orchestra of Many Names, Its Choir, Its Soloists", 4000, "0x8a2be2:0xff5f87"),
            make_track(folder, "No Cover", "The Harbour Lights", 95),
        )  # fmt: skip

        def plays(title):
            wait_until(lambda: bus.now_playing().get("title") == title, what=title)
            time.sleep(1)

        plays("First Light")
        player.seek_to(83)
        time.sleep(1)
        self.shoot("media-wings")
        self.open()
        time.sleep(1)
        self.shoot("media")
        self.island.ctl("action", "play-pause")
        time.sleep(1)
        self.settled("media-paused")
        left, right, y = self.scrubber()
        self.point(left + 0.6 * (right - left), y, "mousedown", "1")
        self.point(left + 0.8 * (right - left), y)
        self.settled("media-scrubbing")
        self.point(left + 0.8 * (right - left), y, "mouseup", "1")
        wait_until(lambda: abs(player.position() - 0.8 * 227) < 3, what="the player to follow")
        self.settled("media-sought")
        self.point(-200, 180)  # where nothing answers to it
        self.island.ctl("action", "play-pause")
        player.send("Next")
        plays(long)
        self.shoot("media-long-title")
        player.send("Next")
        plays("No Cover")
        self.shoot("media-no-cover")
        self.leave()
        time.sleep(0.5)
        self.shoot("media-wings-no-cover")
        player.end()
        wait_until(lambda: not bus.now_playing(), what="the end of the track")

    def scrubber(self):
        """Its ends, from the middle of the screen, and its height."""
        _, _, width, _ = self.island.get("Frame")
        return 176 - width / 2, width / 2 - 24, 70 if self.island.get("Activities") else 88

    def drags(self):
        with Drag(self.desktop) as drag:
            drag.move_to(self.desktop.primary.width // 2, 10 * self.desktop.scale)
            self.settled("text-dragged")
            drag.drop()
        self.leave()
        with Drag(self.desktop, "file:///tmp/Letter%20to%20the%20editor.odt") as drag:
            self.island.wait_for("Page", "fileTray")
            self.settled("file-dragged")
            drag.move_to(self.desktop.primary.width // 2 + 90 * self.desktop.scale, 120 * self.desktop.scale)
            self.settled("file-over-the-island")
            drag.drop()
            wait_until(lambda: self.island.hud().get("type") == "fileTray", what="the HUD of the file")
            self.settled("file-added")
        self.leave()
        self.open()
        self.settled("dashboard-again")
        self.turn_to("fileTray")
        self.settled("tray-with-a-file")
        self.turn_to("main")
        self.leave()

    def film(self):
        film = self.desktop.spawn(["xev", "-name", "cinema"], "film.log")
        middle = self.desktop.primary.width // 2
        wait_until(lambda: not is_black(self.desktop.screen.pixel(middle, 16)), 5, "the pill to hide")
        self.settled("film")
        self.desktop.set_volume(35)
        self.island.wait_for_hud(0.35)
        self.settled("film-volume")
        end_process(film)
        self.island.wait_until_collapsed()
        self.settled("film-over")


class WaylandTour(Tour):
    """The same basics on a native surface of a Wayland compositor."""

    def settled(self, name, monitor=None):
        time.sleep(0.8)
        self.shoot(name, monitor)

    def point(self, x, y):
        self.desktop.pointer.move(self._middle() + x, y)

    def press(self, x, y):
        self.desktop.pointer.click(self._middle() + x, y)

    def _middle(self):
        return self.desktop.primary.width // self.desktop.scale // 2

    def basics(self):
        self.settled("sway-collapsed")
        self.desktop.set_volume(40)
        self.island.wait_for_hud(0.4)
        self.settled("sway-volume")
        self.island.wait_until_collapsed()
        self.open()
        self.settled("sway-dashboard")
        self.leave()
        self.settled("sway-left-and-closed")


def visit_wayland(album, build, scale):
    with WaylandDesktop(scale) as desktop, Island(desktop, build, SETTINGS) as island:
        island.wait_out_mute()
        WaylandTour(album, desktop, island, "dark").basics()


def visit(album, build, look, scale, kind=PrivateDesktop):
    with contextlib.ExitStack() as stack:
        desktop = stack.enter_context(kind(scale, look))
        backlight = Backlight(desktop)
        assistant = Assistant(desktop, build)
        servers = stack.enter_context(WeatherServers(desktop))
        battery = Battery(desktop)
        desktop.start_notification_daemon()
        island = stack.enter_context(Island(desktop, build, SETTINGS))
        tour = Tour(album, desktop, island, look)
        island.wait_out_mute()
        if kind is PipeWireDesktop:
            tour.headset("pipewire-headset")
        else:
            tour.levels()
            tour.second_monitor()
            tour.dashboard()
            tour.brightness(backlight)
            tour.weather(servers)
            tour.system()
            tour.timers("60s" if (look, scale) == GALLERY else "4s")
            if (look, scale) in (("dark", 1), GALLERY):
                tour.battery(battery)
                tour.headset()
                tour.messages()
                tour.activity()
                tour.media()
                tour.drags()
                tour.film()
            tour.assistant(assistant)
        if faults := island.faults():
            raise SystemExit("\n".join(faults))


def visit_google(album, build):
    """News of a Google account; its polls are half a minute apart."""
    with contextlib.ExitStack() as stack:
        desktop = stack.enter_context(PrivateDesktop(2, "light"))
        servers = stack.enter_context(GoogleServers(desktop))
        servers.install_browser()
        Keyring(desktop)
        wanted = {"googleClientID": CLIENT_ID, "showGmailHUD": True, "showGoogleCalendarHUD": True}
        island = stack.enter_context(Island(desktop, build, SETTINGS | wanted | {"googlePollInterval": 30.0}))
        tour = Tour(album, desktop, island, "light")
        servers.events = [event("soon", "Design review with Grace", 4, hangoutLink="https://meet.example/soon")]
        island.ctl("action", "sign-in-to-google")
        wait_until(lambda: island.hud().get("type") == "calendar", 60, "the event", step=0.2)
        tour.settled("google-event")
        servers.messages = {"new": ("Ada Lovelace <ada@example.org>", "Notes on the engine, and a question")}
        wait_until(lambda: island.hud().get("type") == "email", 60, "the message", step=0.2)
        tour.settled("google-mail")
        if faults := island.faults() + servers.faults:
            raise SystemExit("\n".join(faults))


def visit_setup(album, build, look, scale, language=None):
    """The setup window step by step, as a keyboard goes through it."""
    with PrivateDesktop(scale, "dark") as desktop:
        if look == "dark":
            Appearance(desktop, DARK)
        if language:
            desktop.env |= {"LC_ALL": "", "LANG": f"{language}.UTF-8"}
        with Island(desktop, build, SETTINGS, first_run=True) as island:
            island.wait_out_mute()
            find = ["xdotool", "search", "--sync", "--onlyvisible", "--name", "Quillmere Setup"]
            place = desktop.run(*find, "getwindowgeometry", "--shell")
            x, y, width, height = (int(re.search(rf"^{key}=(\d+)$", place, re.M).group(1))
                                   for key in ("X", "Y", "WIDTH", "HEIGHT"))  # fmt: skip
            for step in ("welcome", "sources", "needs", "finish"):
                time.sleep(0.6)  # the picture on the first page never rests
                name = f"setup-{step}-{look}-{scale}x" + (f"-{language}" if language else "")
                album.add(desktop.screen.grab(x - 24, y - 44, width + 48, height + 68), name)
                desktop.run("xdotool", "key", "Return")
            if faults := island.faults():
                raise SystemExit("\n".join(faults))


def visit_settings(album, build, look, scale, contrast=False):
    """Every page of the settings window."""
    title = "Quillmere Settings"
    with contextlib.ExitStack() as stack:
        desktop = stack.enter_context(PrivateDesktop(scale, look))
        reader = Reader(desktop, title)
        stack.callback(reader.close)
        Appearance(desktop, DARK if look == "dark" else LIGHT, contrast)
        suffix = f"{look}-{scale}x" + ("-contrast" if contrast else "")
        island = stack.enter_context(Island(desktop, build))
        island.ctl("action", "settings")
        search = ("xdotool", "search", "--onlyvisible", "--name", title)
        window = wait_until(lambda: desktop.run(*search, check=False).strip(), what="the settings window")
        wait_until(lambda: reader.pages(), what="its pages")
        facts = desktop.run("xwininfo", "-id", window)
        area = [int(re.search(fact + r":\s+(\d+)", facts).group(1)) for fact in ("left X", "left Y", "Width", "Height")]
        for number, page in enumerate(reader.pages()):
            if number:
                reader.press(page, "list item")
            desktop.screen.until_still(area, quiet=0.3)
            album.add(desktop.screen.grab(*area), f"settings-{page.lower().replace(' ', '-')}-{suffix}")
        if faults := island.faults():
            raise SystemExit("\n".join(faults))


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--build", required=True)
    parser.add_argument("--out", required=True)
    options = parser.parse_args()
    build = Path(options.build).resolve()
    album = Album(options.out)
    for look, scale in [("dark", 1), ("dark", 2), ("light", 1), ("light", 2)]:
        visit(album, build, look, scale)
        visit_settings(album, build, look, scale)
    visit_settings(album, build, "light", 1, contrast=True)
    visit(album, build, "dark", 1, PipeWireDesktop)
    visit_google(album, build)
    for scale in (1, 2):
        visit_wayland(album, build, scale)
    for look, scale, language in (
        ("light", 1, None), ("dark", 2, None), ("light", 3, None), ("light", 1, "de_DE"), ("dark", 1, "ar_EG")
    ):  # fmt: skip
        visit_setup(album, build, look, scale, language)


if __name__ == "__main__":
    main()
