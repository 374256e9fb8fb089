"""The coding assistant on a private desktop: installed in its home, and running the hooks it is told to.

Its socket has one fixed path in /tmp, where the user's own program may be listening. So both ends of it, the
program and the hooks, run with a /tmp of their own.
"""

import json
import os
import subprocess
import unittest
from pathlib import Path

from desktop import wait_until

SOCKET_NAME = "quillmere-claude.sock"

# Shows only the given paths in /tmp, and runs a command there.
_IN_PRIVATE_TMP = """
view=$1; shift
while [ "$1" != -- ]; do
  mkdir -p "$view/${1#/tmp/}" && mount --bind "$1" "$view/${1#/tmp/}" || exit
  shift
done
shift
mount --rbind "$view" /tmp && exec "$@"
"""


class Assistant:
    def __init__(self, desktop, build):
        self.desktop = desktop
        self.tmp = desktop.dir / "tmp"
        self.tmp.mkdir()
        self.home = desktop.dir / "home"
        self.hook = self.home / ".claude/hooks/quillmere-hook.sh"
        self.settings = self.home / ".claude/settings.json"
        self.project = self.home / "projects/a demo"
        self.project.mkdir(parents=True)
        program = self.home / ".local/bin/claude"
        program.parent.mkdir(parents=True)
        program.touch(mode=0o755)

        unshare = ["unshare", "--mount"] if os.geteuid() == 0 else ["unshare", "--mount", "--map-root-user"]
        if subprocess.run([*unshare, "true"], capture_output=True, check=False).returncode:
            raise unittest.SkipTest("no mount namespaces here")
        shown = [desktop.dir, Path(build).resolve(), Path("/tmp/.X11-unix")]
        shown = [str(path) for path in shown if path.is_relative_to("/tmp")]
        self.prefix = [*unshare, "sh", "-c", _IN_PRIVATE_TMP, "sh", str(self.tmp), *shown, "--"]
        desktop.prefix = self.prefix

    def wait_until_listened_to(self):
        wait_until((self.tmp / SOCKET_NAME).is_socket, what="the socket")

    def hooks(self):
        """The commands it would run, by event."""
        events = json.loads(self.settings.read_text()).get("hooks", {})
        return {name: [hook["command"] for group in groups for hook in group["hooks"]]
                for name, groups in events.items()}  # fmt: skip

    def report(self, event, **more):
        """Runs the hook as the assistant does; returns what it ended with and printed."""
        data = {"session_id": event, "transcript_path": "/t.jsonl", "cwd": str(self.project),
                "hook_event_name": event, **more}  # fmt: skip
        result = subprocess.run(
            [*self.prefix, "bash", str(self.hook)], input=json.dumps(data).encode(), capture_output=True,
            env=self.desktop.env, cwd=self.project, timeout=10, check=False,
        )  # fmt: skip
        return result.returncode, result.stdout + result.stderr
