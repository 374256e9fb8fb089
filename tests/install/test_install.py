"""The installed tree: which files, and that they name each other rightly wherever the tree stands."""

import os
import re
import subprocess
import tempfile
import unittest
from pathlib import Path

ID = "com.quillmere.Quillmere"
HELPERS = ["browser-tabs", "ddc-brightness", "front-tab", "place-name", "spotify-artwork", "spotify-url", "unread-mail"]
SYMBOLS = ["", "-capsule", "-hourglass", "-stop-circle", "-timer", "-xmark-circle"]
FILES = {
    "bin/quillmere",
    "bin/quillmerectl",
    *(f"libexec/quillmere/{name}" for name in HELPERS),
    f"share/applications/{ID}.desktop",
    "share/dbus-1/interfaces/com.quillmere.Island.xml",
    "share/dbus-1/interfaces/com.quillmere.Shortcuts.xml",
    f"share/dbus-1/services/{ID}.service",
    "share/doc/quillmere/copyright",
    f"share/gnome-shell/search-providers/{ID}.search-provider.ini",
    f"share/icons/hicolor/scalable/apps/{ID}.svg",
    *(f"share/icons/hicolor/symbolic/apps/{ID}{name}-symbolic.svg" for name in SYMBOLS),
    f"share/krunner/dbusplugins/{ID}.desktop",
    "share/man/man1/quillmere.1",
    "share/man/man1/quillmerectl.1",
    f"share/metainfo/{ID}.metainfo.xml",
    "share/quillmere/icons/hicolor/scalable/status/island-symbolic.svg",
}


def run(*command):
    result = subprocess.run(command, capture_output=True, text=True, stdin=subprocess.DEVNULL, check=False)
    return result.returncode, result.stdout + result.stderr


class InstallTest(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.prefix = Path(cls.enterClassContext(tempfile.TemporaryDirectory(prefix="quillmere-")))
        status, output = run(
            os.environ["CMAKE"], "--install", os.environ["QUILLMERE_BUILD"], "--prefix", str(cls.prefix)
        )
        if status:
            raise AssertionError(output)

    def share(self, path):
        return self.prefix / "share" / path

    def test_installs_these_files_and_no_others(self):
        found = {str(path.relative_to(self.prefix)) for path in self.prefix.rglob("*") if path.is_file()}
        self.assertEqual(found, FILES)

    def test_every_command_named_is_there(self):
        for path in (f"applications/{ID}.desktop", f"dbus-1/services/{ID}.service"):
            commands = re.findall(r"^Exec=(\S+)", self.share(path).read_text(), re.M)
            self.assertTrue(commands)
            for command in commands:
                self.assertTrue(os.access(command, os.X_OK), f"{path}: {command}")
                self.assertTrue(Path(command).is_relative_to(self.prefix), command)

    def test_every_action_is_announced_and_described(self):
        entry = self.share(f"applications/{ID}.desktop").read_text()
        announced = re.search(r"^Actions=(.*);$", entry, re.M).group(1).split(";")
        self.assertEqual(announced, re.findall(r"^\[Desktop Action (.*)\]$", entry, re.M))

    def test_other_programs_understand_the_descriptions(self):
        for command in (
            ["desktop-file-validate", self.share(f"applications/{ID}.desktop")],
            ["desktop-file-validate", self.share(f"krunner/dbusplugins/{ID}.desktop")],
            ["appstreamcli", "validate", "--no-net", "--explain", self.share(f"metainfo/{ID}.metainfo.xml")],
        ):
            status, output = run(*map(str, command))
            self.assertEqual(status, 0, output)
            self.assertNotRegex(output, r"(?m)(warning|error):|^[WE]:")

    def test_it_starts(self):
        for program in ("quillmere", "quillmerectl"):
            status, output = run(str(self.prefix / "bin" / program), "--version")
            self.assertEqual((status, output), (0, f"{program} {os.environ['QUILLMERE_VERSION']}\n"))


if __name__ == "__main__":
    unittest.main(verbosity=2)
