"""A screen reader's view of a window on a private desktop, and a hand to use it by.

The library that speaks to the accessibility bus keeps one connection for the life of its process, and
every private desktop has a bus of its own: so it runs in a process per desktop, which answers one line
of JSON for each line it is given.
"""

import json
import subprocess
import sys
import time

LAUNCHER = "/usr/libexec/at-spi-bus-launcher"


class Reader:
    """Of the window of this title. Start it before the program that is to be read."""

    def __init__(self, desktop, window):
        self.window = window
        desktop.hardware_env["QT_LINUX_ACCESSIBILITY_ALWAYS_ON"] = "1"
        desktop.spawn([LAUNCHER, "--launch-immediately"], "accessibility.log")
        self._process = desktop.spawn(
            ["/usr/bin/python3", "-B", __file__], "reader.log",
            stdin=subprocess.PIPE, stdout=subprocess.PIPE, text=True,
        )  # fmt: skip

    def close(self):
        self._process.stdin.close()
        self._process.wait(10)
        self._process.stdout.close()

    def _ask(self, verb, *arguments):
        self._process.stdin.write(json.dumps([verb, self.window, *arguments]) + "\n")
        self._process.stdin.flush()
        answer = json.loads(self._process.stdout.readline())
        if "error" in answer:
            raise AssertionError(answer["error"])
        return answer["result"]

    def tree(self):
        """Everything in the window, from top to bottom: role, name, description, states, value."""
        return self._ask("tree")

    def shown(self, role):
        """The names of what can be seen now."""
        return [item["name"] for item in self.tree() if item["role"] == role and "showing" in item["states"]]

    def pages(self):
        """Of the list in the window, if it is there."""
        return [item["name"] for item in self.tree() if item["role"] == "list item"]

    def has(self, state, name, role):
        items = [item for item in self.tree() if (item["name"], item["role"]) == (name, role)]
        return any(state in item["states"] for item in items)

    def press(self, name, role=None, description=None):
        self._ask("press", name, role, description)

    def set_value(self, name, value):
        self._ask("set_value", name, value)

    def focus(self, name, role=None):
        self._ask("focus", name, role)


# -- the process of its own ---------------------------------------------------------------------


class _Agent:
    def __init__(self):
        import gi

        gi.require_version("Atspi", "2.0")
        from gi.repository import Atspi

        self.atspi = Atspi
        Atspi.init()

    def window(self, title):
        desktop = self.atspi.get_desktop(0)
        for i in range(desktop.get_child_count()):
            application = desktop.get_child_at_index(i)
            for j in range(application.get_child_count() if application else 0):
                window = application.get_child_at_index(j)
                if window and window.get_name() == title:
                    return window
        return None

    def everything(self, item):
        item.clear_cache()
        yield item
        for i in range(item.get_child_count()):
            child = item.get_child_at_index(i)
            if child:
                yield from self.everything(child)

    def find(self, title, name, role=None, description=None):
        deadline = time.monotonic() + 5
        while time.monotonic() < deadline:
            window = self.window(title)
            for item in self.everything(window) if window else ():
                if item.get_name() != name or role not in (None, item.get_role_name()):
                    continue
                if description in (None, item.get_description()):
                    return item
            time.sleep(0.05)
        raise LookupError(f"no {role or 'item'} {name!r} in {title!r}")

    def tree(self, title):
        window = self.window(title)
        return [self.describe(item) for item in self.everything(window)] if window else []

    def describe(self, item):
        states = item.get_state_set().get_states()
        value = item.get_value_iface()
        return {
            "role": item.get_role_name(),
            "name": item.get_name(),
            "description": item.get_description(),
            "states": sorted(state.value_nick for state in states),
            "value": value.get_current_value() if value else None,
            "range": [value.get_minimum_value(), value.get_maximum_value()] if value else None,
        }

    def press(self, title, name, role, description):
        item = self.find(title, name, role, description)
        action = item.get_action_iface()
        names = [action.get_action_name(i) for i in range(action.get_n_actions())]
        wanted = next((n for n in ("Press", "Toggle") if n in names), None)
        if wanted is None:
            raise LookupError(f"{name!r} cannot be pressed: {names}")
        action.do_action(names.index(wanted))

    def set_value(self, title, name, value):
        for item in self.everything(self.window(title)):
            if item.get_name() == name and item.get_value_iface():
                return item.get_value_iface().set_current_value(value)
        raise LookupError(f"nothing with a value is called {name!r}")

    def focus(self, title, name, role):
        self.find(title, name, role).get_component_iface().grab_focus()


def _answer(agent, line):
    verb, *arguments = json.loads(line)
    try:
        return {"result": getattr(agent, verb)(*arguments)}
    except Exception as error:  # of any kind: the test tells of it
        return {"error": f"{verb}{arguments}: {error!r}"}


def _main():
    agent = _Agent()
    for line in sys.stdin:
        print(json.dumps(_answer(agent, line)), flush=True)


if __name__ == "__main__":
    _main()
