"""The weather from loopback servers: what is shown, what is announced, and what bad answers do."""

import datetime
import json
import re
import time
import unittest
import zoneinfo

from case import DesktopTest
from desktop import PrivateDesktop, wait_until
from keyring import Keyring
from location import LocationService, can_mount
from weather import WeatherServers, apple_forecast, forecast

LISBON = {"name": "Lisbon", "latitude": 38.71667, "longitude": -9.13333, "timeZone": "Europe/Lisbon"}

BAD_ANSWERS = [
    (200, b"<html>not JSON</html>"),
    (200, b"[]"),
    (200, b'{"current": {"temperature_2m": "warm", "weather_code": 2}}'),
    (200, b'{"current": {"temperature_2m": 21.5}}'),
    (200, b'{"current": ' + b"[" * 100_000),
    (200, b" " * 30_000_000),
    (503, b"busy"),
    0.5,
    (429, json.dumps(forecast()).encode()),
]


class WeatherTest(DesktopTest):
    def start(self, place=None):
        self.servers = self.enterContext(WeatherServers(self.desktop))
        if place:
            local = self.desktop.dir / "config" / "quillmere" / "local.json"
            local.parent.mkdir(parents=True)
            local.write_text(json.dumps({"weatherPlace": place}))
        self.island = self.start_island()

    def weather(self):
        return self.island.get("Weather")

    def test_a_typed_place_is_where_we_are(self):
        self.start(place=LISBON)
        wait_until(self.weather, what="the weather")
        record = self.weather()
        self.assertEqual(
            (record["locationName"], record["conditionLabel"], record["conditionIcon"], record["source"]),
            ("Lisbon", "Partly Cloudy", "cloud.sun.fill", "openMeteo"),
        )
        self.assertEqual([hour["hour"] for hour in record["hourlyForecast"]], list(range(14, 22)))
        self.assertEqual(
            self.servers.requests,
            ["/v1/forecast?latitude=38.71667&longitude=-9.13333&current=temperature_2m,weather_code,"
             "apparent_temperature,relative_humidity_2m,wind_speed_10m,visibility&daily=temperature_2m_max,"
             "temperature_2m_min&hourly=temperature_2m,weather_code&forecast_hours=8&temperature_unit=celsius"
             "&timezone=auto"],
        )  # fmt: skip
        self.island.wait_out_mute()
        self.assertEqual(self.island.hud(), {}, "not announced in the launch mute")

        self.servers.answer = forecast(-5.6, 75)
        self.island.type_place("Elsewhere", 60.5, -9.1)
        hud = wait_until(lambda: self.island.hud(), what="the announcement")
        self.assertEqual((hud["type"], hud["title"]), ("weather", "-6° Heavy Snow"))
        self.assertTrue(hud["subtitle"].startswith("Elsewhere"), hud)

    def test_bad_answers_keep_the_record(self):
        self.start(place=LISBON)
        record = wait_until(self.weather, what="the weather")
        for number, answer in enumerate(BAD_ANSWERS):
            asked = len(self.servers.requests)
            self.servers.answer = answer
            self.island.type_place("Lisbon", 10.0 + number, -9.1)
            wait_until(lambda: len(self.servers.requests) > asked, what=f"request {number}")
        time.sleep(1)
        self.assertEqual(self.weather(), record)
        self.servers.answer = forecast(3)
        self.island.type_place("Lisbon", 38.7, -9.1)
        wait_until(lambda: self.weather()["temperature"] == 3, what="better weather")

    def test_a_token_in_the_keyring_opens_the_first_service(self):
        keyring = Keyring(self.desktop)
        keyring.store("com.quillmere.weatherkit", "developer-token", "aaa.bbb.ccc")
        zone = zoneinfo.ZoneInfo("Pacific/Auckland")  # where it is tomorrow already
        now = datetime.datetime.now(zone)
        self.servers = self.enterContext(WeatherServers(self.desktop))
        self.servers.apple = apple_forecast(now)
        self.island = self.start_island()
        self.island.type_place("Auckland", -36.85, 174.76, zone.key)
        record = wait_until(self.weather, 15, "the weather")
        self.assertEqual(self.servers.token, "Bearer aaa.bbb.ccc")
        self.assertEqual(
            (record["source"], record["temperature"], record["conditionCode"], record["highTemp"], record["lowTemp"]),
            ("appleWeather", 3.26, 66, 6.0, -1.0),
        )
        self.assertEqual((record["humidity"], record["visibility"]), (55, 8.123))
        hours = [hour["hour"] for hour in record["hourlyForecast"]]
        self.assertEqual(len(hours), 8)
        self.assertIn(hours[0], (now.hour, (now.hour + 1) % 24))  # the hour may end meanwhile

        for refusal in ((401, b"{}"), (200, b"{}"), {"currentWeather": {"temperature": "cold"}}):
            self.servers.apple = refusal
            self.servers.answer = forecast(len(self.servers.requests))
            self.island.type_place("Auckland", -36.85 - len(self.servers.requests) / 100, 174.76, zone.key)
            wait_until(lambda: self.weather()["temperature"] == self.servers.answer["current"]["temperature_2m"], 10,
                       f"the other service after {refusal}")  # fmt: skip
        self.assertNotIn("aaa.bbb", self.island.output())

    def test_nobody_knows_where_we_are(self):
        self.start()
        self.island.wait_out_mute()
        self.assertEqual((self.weather(), self.servers.requests), ({}, []))

    @unittest.skipUnless(can_mount(), "GeoClue cannot be configured without a mount")
    def test_the_machine_knows_where_it_is(self):
        for allowed, place in ((True, "London"), (False, None)):
            with self.subTest(allowed=allowed), PrivateDesktop() as self.desktop:
                with LocationService(self.desktop, 51.5074, -0.1278, allowed) as service:
                    self.start()
                    if allowed:
                        record = wait_until(self.weather, 20, "the weather")
                        self.assertEqual(record["locationName"], place)
                        # What is only accurate to a town GeoClue blurs within it.
                        asked = re.search(r"latitude=([\d.-]+)&longitude=([\d.-]+)&", self.servers.requests[0])
                        self.assertAlmostEqual(float(asked[1]), 51.5, delta=0.3)
                        self.assertAlmostEqual(float(asked[2]), -0.13, delta=0.3)
                    else:
                        denied = "[WeatherService] Authorization changed: 2"
                        wait_until(lambda: denied in self.island.output(), 20, "the refusal")
                        self.assertEqual((self.weather(), service.requests), ({}, 0))
                    self.island.stop()


if __name__ == "__main__":
    unittest.main()
