"""The real GeoClue on a system bus of the desktop's own, finding places by a geolocation server on the loopback."""

import http.server
import json
import subprocess
import threading

from desktop import wait_until

# Its configuration has a fixed path, which only a mount of our own can take another file to.
_IN_A_MOUNT_OF_ITS_OWN = 'mount --bind "$1" /etc/geoclue/geoclue.conf && exec /usr/libexec/geoclue'


def can_mount():
    probe = ["unshare", "-m", "sh", "-c", "mount --bind /etc/geoclue/geoclue.conf /etc/geoclue/geoclue.conf"]
    return subprocess.run(probe, capture_output=True, check=False).returncode == 0


class LocationService:
    """Use as a context manager, before the program starts. Whether the user agrees is `allowed`."""

    def __init__(self, desktop, latitude, longitude, allowed=True):
        self.requests = 0
        owner = self

        class Handler(http.server.BaseHTTPRequestHandler):
            def do_POST(self):
                owner.requests += 1
                self.rfile.read(int(self.headers.get("Content-Length", 0)))
                place = {"location": {"lat": latitude, "lng": longitude}, "accuracy": 25000.0}
                body = json.dumps(place).encode()
                self.send_response(200)
                self.send_header("Content-Type", "application/json")
                self.send_header("Content-Length", str(len(body)))
                self.end_headers()
                self.wfile.write(body)

            def log_message(self, *_):
                pass

        self._desktop = desktop
        self._server = http.server.ThreadingHTTPServer(("127.0.0.1", 0), Handler)
        self._server.daemon_threads = True
        self._configuration = desktop.dir / "geoclue.conf"
        off = "".join(f"[{source}]\nenable=false\n" for source in ("network-nmea", "3g", "cdma", "modem-gps", "compass"))
        self._configuration.write_text(
            f"[agent]\nwhitelist=geoclue-demo-agent\n{off}"
            f"[wifi]\nenable=true\nurl=http://127.0.0.1:{self._server.server_port}/v1/geolocate\nsubmit-data=false\n"
            f"[com.quillmere.Quillmere]\nallowed={str(allowed).lower()}\nsystem=true\nusers=\n"
        )

    def __enter__(self):
        threading.Thread(target=self._server.serve_forever, daemon=True).start()
        self._desktop.start_system_bus()
        env = self._desktop.env | {"GIO_USE_NETWORK_MONITOR": "base"}
        command = ["unshare", "-m", "sh", "-c", _IN_A_MOUNT_OF_ITS_OWN, "geoclue", str(self._configuration)]
        self._desktop.spawn(command, "geoclue.log", env=env)
        has_owner = ["dbus-send", "--system", "--print-reply", "--dest=org.freedesktop.DBus", "/org/freedesktop/DBus",
                     "org.freedesktop.DBus.NameHasOwner", "string:org.freedesktop.GeoClue2"]  # fmt: skip
        wait_until(lambda: "true" in self._desktop.run(*has_owner), what="GeoClue")
        self._desktop.spawn(["/usr/libexec/geoclue-2.0/demos/agent"], "agent.log")
        return self

    def __exit__(self, *_):
        self._server.shutdown()
        self._server.server_close()
