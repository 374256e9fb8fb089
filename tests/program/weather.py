"""The servers of the weather on the loopback: both forecasts and the search for places."""

import contextlib
import datetime
import http.server
import json
import threading
import time
import urllib.parse

DAY, HOUR = datetime.timedelta(days=1), datetime.timedelta(hours=1)
HOURS = [("21", 2), ("22", 2), ("23", 0), ("23", 0), ("21", 3), ("19", 61), ("17", 63), ("16", 95)]


def forecast(temperature=21.2, code=2):
    return {
        "timezone": "Europe/Lisbon",
        "current": {
            "time": "2026-11-21T14:00", "temperature_2m": temperature, "weather_code": code,
            "apparent_temperature": 19.4, "relative_humidity_2m": 62, "wind_speed_10m": 13.7, "visibility": 24140.0,
        },
        "daily": {"time": ["2026-11-21"], "temperature_2m_max": [23.8], "temperature_2m_min": [13.9]},
        "hourly": {
            "time": [f"2026-11-21T{14 + hour}:00" for hour in range(8)],
            "temperature_2m": [float(degrees) for degrees, _ in HOURS],
            "weather_code": [code for _, code in HOURS],
        },
    }  # fmt: skip


def apple_forecast(now):
    """As of the aware time `now`: hours from two before it on, today and tomorrow."""
    hour = now.replace(minute=0, second=0, microsecond=0)

    def text(time):
        return time.astimezone(datetime.timezone.utc).strftime("%Y-%m-%dT%H:%M:%SZ")

    midnight = hour.replace(hour=0)
    return {
        "currentWeather": {
            "asOf": text(now), "conditionCode": "Hail", "daylight": True, "humidity": 0.545, "temperature": 3.26,
            "temperatureApparent": 0.5, "windSpeed": 20.0, "visibility": 8123.0,
        },
        "forecastDaily": {
            "days": [
                {"forecastStart": text(midnight + day * DAY), "temperatureMax": 6.0 + day, "temperatureMin": -1.0}
                for day in (0, 1)
            ]
        },
        "forecastHourly": {
            "hours": [
                {"forecastStart": text(hour + ahead * HOUR), "temperature": float(ahead), "conditionCode": "Cloudy"}
                for ahead in range(-2, 12)
            ]
        },
    }  # fmt: skip


PLACES = {
    "results": [
        {"name": "Lisbon", "latitude": 38.71667, "longitude": -9.13333, "timezone": "Europe/Lisbon",
         "country": "Portugal", "admin1": "Lisbon"},
        {"name": "Lisbon", "latitude": 40.77201, "longitude": -80.76813, "timezone": "America/New_York",
         "country": "United States", "admin1": "Ohio"},
        {"name": "Lisburn", "latitude": 54.52337, "longitude": -6.03527, "timezone": "Europe/London",
         "country": "United Kingdom", "admin1": "Northern Ireland"},
    ]
}  # fmt: skip


class WeatherServers:
    """Use as a context manager, or start() it, before the program starts. `answer` is the public forecast's and `apple` the other's: an object, or (status, bytes),
    or a number of seconds to keep it waiting."""

    def __init__(self, desktop):
        self.answer = forecast()
        self.apple = (401, b"{}")
        self.token = None
        self.requests = []
        owner = self

        class Handler(http.server.BaseHTTPRequestHandler):
            def do_GET(self):
                owner.requests.append(self.path)
                answer = owner.answer
                if self.path.startswith("/api/v1/weather/"):
                    answer = owner.apple
                    owner.token = self.headers.get("Authorization")
                if urllib.parse.urlparse(self.path).path == "/v1/search":
                    answer = PLACES if "Lis" in self.path else {}
                if isinstance(answer, (int, float)):
                    time.sleep(answer)
                    return
                status, body = answer if isinstance(answer, tuple) else (200, json.dumps(answer).encode())
                self.send_response(status)
                self.send_header("Content-Type", "application/json")
                self.send_header("Content-Length", str(len(body)))
                self.end_headers()
                with contextlib.suppress(ConnectionError):  # who reads no further may leave
                    self.wfile.write(body)

            def log_message(self, *_):
                pass

        self._server = http.server.ThreadingHTTPServer(("127.0.0.1", 0), Handler)
        self._server.daemon_threads = True
        address = f"http://127.0.0.1:{self._server.server_port}"
        for name in ("OPEN_METEO", "PLACE_SEARCH", "WEATHERKIT"):
            desktop.env[f"QUILLMERE_{name}_URL"] = address

    def start(self):
        threading.Thread(target=self._server.serve_forever, daemon=True).start()

    def __enter__(self):
        self.start()
        return self

    def __exit__(self, *_):
        self._server.shutdown()
        self._server.server_close()
