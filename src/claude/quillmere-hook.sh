#!/bin/bash
# Quillmere Claude Code Hook — forwards events to Quillmere via Unix socket
#
# Runs on every event of the assistant, with the event's JSON on standard input. Prints nothing,
# never fails and never waits for Quillmere: what could wait happens in the background, with nothing
# of the assistant's held open.

SOCKET="@SOCKET_PATH@"

# Not running, or somebody else's: then nobody is to be told anything.
[[ -S $SOCKET && -O $SOCKET && ! -L $SOCKET ]] || exit 0

{ INPUT=$(cat); } 2>/dev/null

# Python gets the event as data and the text below as its only code. Isolated: no file in the
# project's directory and no variable of its environment becomes code.
{ printf '%s' "$INPUT" | python3 -I -S -c "$(cat <<'PYTHON'
import json, os, re, signal, socket, struct, sys

try:
    event = json.loads(sys.stdin.buffer.read().decode("utf-8"))
except Exception:
    event = None


def value(key, cut=None):
    """What a shell variable would hold of the printed value: no NUL, no line breaks at the end."""
    try:
        found = event.get(key, "")
        text = str(found if cut is None else found[:cut])
        return text.encode("utf-8").decode("utf-8").replace("\0", "").rstrip("\n")
    except Exception:
        return ""


STATUS = {
    "UserPromptSubmit": "processing",
    "PreCompact": "compacting",
    "SessionStart": "waiting_for_input",
    "SessionEnd": "ended",
    "PreToolUse": "running_tool",
    "PostToolUse": "processing",
    "PermissionRequest": "waiting_for_input",
    "Stop": "waiting_for_input",
    "SubagentStop": "waiting_for_input",
}

name = value("hook_event_name")
fields = {
    "session_id": value("session_id"),
    "cwd": value("cwd"),
    "event": name,
    "status": STATUS.get(name, "unknown"),
    "tool": value("tool_name") or None,
    "tool_use_id": value("tool_use_id") or None,
    "permission_mode": value("permission_mode") or None,
}
prompt = value("prompt", 100)

# An event is only sent if its values could stand as they are between quotes: single ones, and
# triple ones for the prompt.
END_OF_LITERAL = r"(?<!\\)\\(\\\\)*\Z"
if any(re.search(r"['\r\n]|" + END_OF_LITERAL, text) for text in fields.values() if text):
    sys.exit()
if re.search(r"'''|'\Z|" + END_OF_LITERAL, prompt):
    sys.exit()

message = json.dumps(dict(fields, user_prompt=prompt or None, interactive=True))
try:
    with socket.socket(socket.AF_UNIX, socket.SOCK_STREAM) as quillmere:
        # The end, were Quillmere too busy or stopped; in five seconds the event is old news.
        signal.alarm(5)
        quillmere.connect(sys.argv[1])
        listener = quillmere.getsockopt(socket.SOL_SOCKET, socket.SO_PEERCRED, 12)
        if struct.unpack("3i", listener)[1] == os.geteuid():
            quillmere.sendall(message.encode("utf-8"))
except Exception:
    pass
PYTHON
)" "$SOCKET"; } >/dev/null 2>&1 &
exit 0
