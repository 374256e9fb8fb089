"""What the coding assistant does, from its hooks to the bus and the pill."""

import json
import unittest

from assistant import Assistant
from case import BUILD, DesktopTest
from desktop import wait_until

PILL, WORDY_WINGS = 126, 2 * 84
EVENTS = {
    "UserPromptSubmit", "SessionStart", "PreToolUse", "PostToolUse", "PreCompact", "PermissionRequest", "Stop",
    "SubagentStop", "SessionEnd",
}  # fmt: skip
THEIRS = {"model": "large", "hooks": {"Stop": [{"hooks": [{"type": "command", "command": "notify-send done"}]}]}}


class ClaudeCodeTest(DesktopTest):
    def setUp(self):
        super().setUp()
        self.assistant = Assistant(self.desktop, BUILD)
        self.assistant.settings.parent.mkdir()
        self.assistant.settings.write_text(json.dumps(THEIRS))
        self.island = self.start_island({"enableClaudeCode": True})
        self.assistant.wait_until_listened_to()

    def report(self, event, **more):
        """Returns what the program says once the event has come to it."""
        self.assertEqual(self.assistant.report(event, **more), (0, b""))
        return wait_until(lambda: self.said_of(event), 8, f"{event} to arrive")

    def said_of(self, event):
        said = self.island.get("ClaudeCode")
        return said if said.get("sessionId") == event else None

    def wait_for_width(self, width):
        wait_until(lambda: self.island.get("Frame")[2] == width, what=f"a pill of {width}")

    def dot(self):
        """The colour of the dot in the left wing."""
        middle = self.desktop.primary.width // 2
        return self.desktop.screen.pixel(middle - (PILL + WORDY_WINGS) // 2 + 16, 16)

    def wait_for_dot(self, colour):
        wait_until(lambda: max(abs(a - b) for a, b in zip(self.dot(), colour)) <= 12, what=f"a dot of {colour}")

    def test_shows_every_event(self):
        hooks = self.assistant.hooks()
        self.assertEqual(set(hooks), EVENTS)
        self.assertEqual([command for command in hooks["Stop"] if "quillmere" not in command], ["notify-send done"])
        canary = self.desktop.dir / "canary"
        prompt = f"don't \"touch\" $(touch {canary}) `touch {canary}` שלום 👩‍💻"
        nested = {"file_path": "/a'b", "edits": [{"old": "'''\n\\" * 100_000, "new": {"deep": [None, 1 << 62]}}]}
        for event, more, status, tool in [
            ("SessionStart", {"source": "startup"}, "working", None),
            ("UserPromptSubmit", {"prompt": prompt}, "working", None),
            ("PreToolUse", {"tool_name": "Edit", "tool_input": nested}, "working", "Editing file"),
            ("PermissionRequest", {"tool_name": "Bash", "tool_input": nested}, "waiting", "Running command"),
            ("PostToolUse", {"tool_name": "mcp__x__y", "tool_response": nested}, "working", "mcp__x__y"),
            ("PreCompact", {"trigger": "auto"}, "compacting", "mcp__x__y"),
            ("SubagentStop", {}, "idle", "mcp__x__y"),
            ("Stop", {"stop_hook_active": False}, "idle", "mcp__x__y"),
            ("SessionEnd", {"reason": "exit"}, "idle", "mcp__x__y"),
        ]:
            with self.subTest(event):
                said = self.report(event, **more)
                told = None if event == "SessionStart" else prompt[:100]
                self.assertEqual(
                    said | {"currentTool": said.get("currentTool"), "lastPrompt": said.get("lastPrompt")},
                    {"isActive": status != "idle", "status": status, "sessionId": event, "projectName": "a demo",
                     "currentTool": tool, "lastPrompt": told},
                )  # fmt: skip
                self.wait_for_width(PILL + (WORDY_WINGS if status != "idle" else 0))
                colours = {"working": (217, 120, 86), "waiting": (100, 181, 255), "compacting": (255, 213, 74)}
                if status in colours:
                    self.wait_for_dot(colours[status])
        self.assertFalse(canary.exists(), "a value ran as code")

    def test_sleeps_when_nobody_listens(self):
        self.assertEqual(self.report("PreCompact")["status"], "compacting")
        self.assertEqual(self.island.stop(), 0)
        self.assertFalse(self.listens())
        self.assert_hooks_stay()

        self.island.write_defaults({"enableClaudeCode": False})
        self.island.start()
        self.assert_hooks_stay()
        self.assertFalse(self.listens())
        self.assertEqual(self.island.get("ClaudeCode"), {"isActive": False, "status": "idle"})
        self.assertEqual(self.island.get("Frame")[2], PILL)

    def assert_hooks_stay(self):
        self.assertEqual(set(self.assistant.hooks()), EVENTS)
        self.assertEqual(self.assistant.report("UserPromptSubmit", prompt="anybody there?"), (0, b""))

    def listens(self):
        return (self.assistant.tmp / "quillmere-claude.sock").exists()


if __name__ == "__main__":
    unittest.main()
