"""Google's four endpoints on the loopback, and a browser whose user agrees to everything."""

import base64
import datetime
import hashlib
import http.server
import json
import sys
import threading
import time
import urllib.parse

CLIENT_ID = "123456-abc.apps.googleusercontent.com"
SCHEME = "com.googleusercontent.apps.123456-abc"
SERVICE, ACCOUNT = "com.quillmere.google", "google-refresh-token"
SCOPES = (
    "openid email https://www.googleapis.com/auth/gmail.readonly https://www.googleapis.com/auth/calendar.readonly"
)
AGREE = ["client_id", "redirect_uri", "response_type", "scope", "code_challenge", "code_challenge_method"]
EXCHANGE = ["client_id", "redirect_uri", "grant_type", "code", "code_verifier"]
REFRESH = ["client_id", "grant_type", "refresh_token"]

# Sees the page, is sent back, and has the desktop open the address it is sent to.
BROWSER = """
import http.client, os, subprocess, sys, urllib.parse
open(sys.argv[1], "a").write(sys.argv[2].partition("?")[0] + "\\n")
url = urllib.parse.urlsplit(sys.argv[2])
if url.path.startswith("/o/oauth2/"):
    server = http.client.HTTPConnection(url.netloc)
    server.request("GET", url.path + "?" + url.query)
    address = server.getresponse().getheader("Location")
    if address:
        sys.exit(subprocess.run(["gio", "open", address]).returncode)
"""


class GoogleServers:
    """Use as a context manager before the program starts. What a request has wrong is in `faults`."""

    def __init__(self, desktop):
        self.desktop = desktop
        self.code, self.access_token, self.refresh_token = "4/0Acode-secret", "ya29.access-secret", "1//refresh-secret"
        self.agrees = True
        self.expires_in = 3600
        self.refusal = None  # of the token endpoint: (status, bytes)
        self.messages, self.events = {}, []  # by id: (from, subject)
        self.dates = {}  # by id, in ms since 1970; else when they are listed the first time
        self.today = []
        self.requests, self.faults = [], []
        self.challenge = self.verifier = None
        owner = self

        class Handler(http.server.BaseHTTPRequestHandler):
            def do_GET(self):
                owner.answer(self, "")

            def do_POST(self):
                owner.answer(self, self.rfile.read(int(self.headers["Content-Length"])).decode())

            def log_message(self, *_):
                pass

        self._server = http.server.ThreadingHTTPServer(("127.0.0.1", 0), Handler)
        self._server.daemon_threads = True
        for name in ("GOOGLE_AUTH", "GOOGLE_TOKEN", "GMAIL", "GOOGLE_CALENDAR"):
            desktop.env[f"QUILLMERE_{name}_URL"] = f"http://127.0.0.1:{self._server.server_port}"

    def __enter__(self):
        threading.Thread(target=self._server.serve_forever, daemon=True).start()
        return self

    def __exit__(self, *_):
        self._server.shutdown()
        self._server.server_close()

    def install_browser(self):
        """As the desktop's default, among other choices of its user; returns that file and its text."""
        script = self.desktop.dir / "browser.py"
        script.write_text(BROWSER)
        self.visited = self.desktop.dir / "visited"
        entry = self.desktop.dir / "data" / "applications" / "browser.desktop"
        entry.parent.mkdir(parents=True, exist_ok=True)
        entry.write_text(
            f"[Desktop Entry]\nType=Application\nName=Browser\nExec={sys.executable} {script} {self.visited} %u\n"
            "MimeType=x-scheme-handler/http;x-scheme-handler/https;\n"
        )
        choices = self.desktop.dir / "config" / "mimeapps.list"
        text = (
            "# mine\n[Added Associations]\ntext/plain=browser.desktop;\n\n[Default Applications]\n"
            "x-scheme-handler/http=browser.desktop\nx-scheme-handler/https=browser.desktop"
        )
        choices.write_text(text)
        return choices, text

    def secrets(self):
        return [self.code, self.access_token, self.refresh_token, self.verifier]

    def paths(self):
        return [path for _, path in self.requests]

    # -- the endpoints --------------------------------------------------------------------------

    def answer(self, request, body):
        path, _, query = request.path.partition("?")
        self.requests.append((request.command, request.path))
        routes = {"/o/oauth2/v2/auth": self.agree, "/token": self.give_token}
        answer = routes.get(path, self.serve)(request, urllib.parse.parse_qsl(query or body), query)
        status, headers, text = answer
        request.send_response(status)
        for name, value in headers.items():
            request.send_header(name, value)
        request.send_header("Content-Length", str(len(text)))
        request.end_headers()
        request.wfile.write(text)

    def expect(self, what, seen, wanted):
        if seen != wanted:
            self.faults.append(f"{what}: {seen!r} instead of {wanted!r}")

    @staticmethod
    def moment(text):
        return datetime.datetime.strptime(text, "%Y-%m-%dT%H:%M:%SZ").replace(tzinfo=datetime.timezone.utc)

    def agree(self, _request, pairs, _query):
        values = dict(pairs)
        self.expect("the questions", [name for name, _ in pairs], AGREE)
        self.expect("the client", values["client_id"], CLIENT_ID)
        self.expect("the kind", (values["response_type"], values["code_challenge_method"]), ("code", "S256"))
        self.expect("the scopes", values["scope"], SCOPES)
        self.expect("the way back", values["redirect_uri"], SCHEME + ":/oauth2redirect")
        self.challenge = values["code_challenge"]
        if not self.agrees:
            return 200, {}, b"Do you agree?"
        address = values["redirect_uri"] + "?" + urllib.parse.urlencode({"code": self.code, "scope": SCOPES})
        return 302, {"Location": address}, b""

    def give_token(self, request, pairs, _query):
        values = dict(pairs)
        self.expect("the method", request.command, "POST")
        self.expect("the type", request.headers["Content-Type"], "application/x-www-form-urlencoded")
        self.expect("the client", values["client_id"], CLIENT_ID)
        answer = {"access_token": self.access_token, "expires_in": self.expires_in, "token_type": "Bearer"}
        if values["grant_type"] == "authorization_code":
            self.verifier = values["code_verifier"]
            hashed = base64.urlsafe_b64encode(hashlib.sha256(self.verifier.encode()).digest())
            self.expect("the fields", [name for name, _ in pairs], EXCHANGE)
            self.expect("the code", values["code"], self.code)
            self.expect("the way back", values["redirect_uri"], SCHEME + ":/oauth2redirect")
            self.expect("the proof", hashed.rstrip(b"=").decode(), self.challenge)
            claims = base64.urlsafe_b64encode(json.dumps({"email": "ada@example.org"}).encode()).rstrip(b"=")
            answer |= {"refresh_token": self.refresh_token, "id_token": f"e30.{claims.decode()}.c2ln"}
        else:
            self.expect("the fields", [name for name, _ in pairs], REFRESH)
            self.expect("the token", values["refresh_token"], self.refresh_token)
        if self.refusal:
            return self.refusal[0], {}, self.refusal[1]
        return 200, {"Content-Type": "application/json"}, json.dumps(answer).encode()

    def serve(self, request, pairs, query):
        path = urllib.parse.urlsplit(request.path).path
        self.expect("the bearer", request.headers["Authorization"], "Bearer " + self.access_token)
        if path == "/gmail/v1/users/me/messages":
            self.expect("the search", pairs, [("q", "in:inbox is:unread"), ("maxResults", "10")])
            for id in self.messages:
                self.dates.setdefault(id, int(time.time() * 1000))
            answer = {"messages": [{"id": id} for id in list(self.messages)[:10]]} if self.messages else {}
        elif path.startswith("/gmail/v1/users/me/messages/"):
            self.expect("the fields", query, "format=metadata&metadataHeaders=From&metadataHeaders=Subject")
            id = path.rpartition("/")[2]
            names = zip(("From", "Subject"), self.messages[id])
            headers = [{"name": name, "value": value} for name, value in names]
            answer = {"id": id, "internalDate": str(self.dates[id]), "payload": {"headers": headers}}
        elif path == "/calendar/v3/calendars/primary/events" and "maxAttendees" in dict(pairs):
            begin, end = (self.moment(value) for _, value in pairs[:2])
            self.expect("the day", [begin.astimezone().strftime("%T"), end - begin], ["00:00:00", datetime.timedelta(1)])
            self.expect("the order", pairs[2:4], [("singleEvents", "true"), ("orderBy", "startTime")])
            answer = {"items": self.today}
        elif path == "/calendar/v3/calendars/primary/events":
            names = ["timeMin", "timeMax", "singleEvents", "orderBy", "maxResults"]
            self.expect("the window", [name for name, _ in pairs], names)
            begin, end = (self.moment(value) for _, value in pairs[:2])
            self.expect("its length", end - begin, datetime.timedelta(minutes=5))
            self.expect("the order", pairs[2:], [("singleEvents", "true"), ("orderBy", "startTime"), ("maxResults", "5")])
            answer = {"items": self.events}
        else:
            self.faults.append(f"nobody asks for {request.path}")
            return 404, {}, b"{}"
        return 200, {"Content-Type": "application/json"}, json.dumps(answer).encode()


def event(id, summary, minutes, **more):
    """One that begins so many minutes from now, in another time zone."""
    zone = datetime.timezone(datetime.timedelta(hours=2))
    start = datetime.datetime.now(zone).replace(microsecond=0) + datetime.timedelta(minutes=minutes)
    end = start + datetime.timedelta(hours=1)
    times = {"start": {"dateTime": start.isoformat()}, "end": {"dateTime": end.isoformat()}}
    return {"id": id, "summary": summary} | times | more
