"""The program as a screen reader sees it: an accessibility bus of the desktop's own, and what is on it."""

import subprocess

from desktop import wait_until

_LAUNCHER = "/usr/libexec/at-spi-bus-launcher"

# In a process of its own, since the library connects to one bus for good. Reads lines
# "<what> <role> <name>" and answers each with one line.
_READER = """
import sys, gi
gi.require_version("Atspi", "2.0")
from gi.repository import Atspi

def walk(node, depth=0):
    if node is None or depth > 20:
        return
    yield node
    for i in range(node.get_child_count()):
        yield from walk(node.get_child_at_index(i), depth + 1)

def shown():
    desktop = Atspi.get_desktop(0)
    for i in range(desktop.get_child_count()):
        for node in walk(desktop.get_child_at_index(i)):
            if node.get_state_set().contains(Atspi.StateType.SHOWING):
                yield node

def answer(what, role, name):
    found = [n for n in shown() if n.get_role_name() == role and (not name or n.get_name() == name)]
    if what == "names":
        return "|".join(n.get_name() for n in found)
    if len(found) != 1:
        return f"{len(found)} found"
    states = found[0].get_state_set()
    if what == "press":
        return str(found[0].do_action(0))
    return str(states.contains({"checked": Atspi.StateType.CHECKED, "focused": Atspi.StateType.FOCUSED}[what]))

for line in sys.stdin:
    try:
        print(answer(*line.rstrip("\\n").split("\\t")), flush=True)
    except Exception as error:
        print(type(error).__name__, flush=True)
"""


class ScreenReader:
    """Must be there before the program is. Things are told apart by role and name."""

    def __init__(self, desktop):
        desktop.env["QT_LINUX_ACCESSIBILITY_ALWAYS_ON"] = "1"
        desktop.env.pop("AT_SPI_BUS_ADDRESS", None)
        desktop.spawn([_LAUNCHER, "--launch-immediately"], "accessibility.log")
        owned = ["gdbus", "call", "--session", "-d", "org.a11y.Bus", "-o", "/org/a11y/bus", "-m", "org.a11y.Bus.GetAddress"]
        wait_until(lambda: "unix:" in desktop.run(*owned, check=False), what="the accessibility bus")
        self._process = desktop.spawn(
            ["/usr/bin/python3", "-c", _READER], "reader.log", stdin=subprocess.PIPE, stdout=subprocess.PIPE, text=True
        )

    def close(self):
        self._process.stdin.close()
        self._process.stdout.close()

    def _ask(self, what, role, name=""):
        self._process.stdin.write(f"{what}\t{role}\t{name}\n")
        self._process.stdin.flush()
        return self._process.stdout.readline().rstrip("\n")

    def names(self, role):
        """Of everything of that role, in order."""
        return [name for name in self._ask("names", role).split("|") if name]

    def is_checked(self, name):
        return self._ask("checked", "check box", name) == "True"

    def wait_for(self, role, name):
        wait_until(lambda: name in self.names(role), what=f"the {role} “{name}”", step=0.1)

    def wait_for_focus(self, role, name):
        wait_until(lambda: self._ask("focused", role, name) == "True", what=f"focus on the {role} “{name}”", step=0.1)

    def press(self, role, name):
        wait_until(lambda: self._ask("press", role, name) == "True", what=f"a press on the {role} “{name}”", step=0.1)
