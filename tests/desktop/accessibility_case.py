# Copyright (c) 2026 The Dropshade authors
# SPDX-License-Identifier: MIT
"""A hand for what screen readers see: the program's tree of things on the accessibility bus."""

import json
import os
import subprocess
import sys

from window_case import WindowCase, wait_until

LAUNCHER = "/usr/libexec/at-spi-bus-launcher"
MOST_DEPTH = 14


class AccessibilityCase(WindowCase):
    """The program tells all to the accessibility bus; `self.things` reads it."""

    VARIABLES = {"QT_LINUX_ACCESSIBILITY_ALWAYS_ON": "1"}

    @classmethod
    def prepare_desktop(cls):
        super().prepare_desktop()
        cls.desktop.start([LAUNCHER, "--launch-immediately"])
        wait_until(lambda: cls.desktop.bus_has_name("org.a11y.Bus"), "the accessibility bus")

    def ask(self, *question):
        """What another process finds, by way of this file as a program."""
        result = subprocess.run(["/usr/bin/python3", __file__, *question], capture_output=True,
                                env=self.desktop.environment, text=True, timeout=60, check=False)
        self.assertEqual(result.returncode, 0, result.stderr)
        return json.loads(result.stdout)

    def things(self, window):
        """All that shows in the window: dictionaries of role, name, actions and states."""
        return wait_until(lambda: self.ask("list", window), f"{window} in the tree")

    def do(self, window, role, name, action):
        self.assertTrue(self.ask("do", window, role, name, action), (role, name, action))

    def listen(self):
        """Starts to note what shows itself; `heard` gives it."""
        path = os.path.join(self.desktop.environment["HOME"], "heard.txt")
        listener = self.desktop.start(["/usr/bin/python3", __file__, "listen", path])
        self.addCleanup(listener.end)
        wait_until(lambda: os.path.exists(path), "the listener")
        return path

    @staticmethod
    def heard(path):
        with open(path) as file:
            return [json.loads(line) for line in file]


# What follows runs as a program of its own, on the desktop's buses.

def program():
    import pyatspi
    for application in pyatspi.Registry.getDesktop(0):
        if application and application.name == "dropshade":
            return application
    return None


def window_named(name):
    application = program()
    return next((window for window in application or () if window and window.name == name), None)


def actions_of(thing):
    try:
        action = thing.queryAction()
    except NotImplementedError:
        return []
    return [action.getName(index) for index in range(action.nActions)]


def each(thing, depth=0):
    import pyatspi
    states = thing.getState()
    if not states.contains(pyatspi.STATE_SHOWING):
        return
    yield thing
    for child in thing if depth < MOST_DEPTH else ():
        if child:
            yield from each(child, depth + 1)


def described(thing):
    import pyatspi
    return {"role": thing.getRoleName(), "name": thing.name, "actions": actions_of(thing),
            "states": [pyatspi.stateToString(state) for state in thing.getState().getStates()]}


def list_things(window):
    found = window_named(window)
    print(json.dumps([described(thing) for thing in each(found)] if found else []))


def do_action(window, role, name, action):
    for thing in each(window_named(window)):
        names = actions_of(thing)
        if (thing.getRoleName(), thing.name) == (role, name) and action in names:
            print(json.dumps(thing.queryAction().doAction(names.index(action))))
            return
    print("false")


def listen(path):
    import pyatspi

    def note(event):
        source = event.any_data if event.type.startswith("object:children-changed") else event.source
        try:
            line = json.dumps({"event": str(event.type), "role": source.getRoleName(),
                               "name": source.name})
        except Exception:  # It has gone meanwhile.
            return
        with open(path, "a") as file:
            file.write(line + "\n")
    pyatspi.Registry.registerEventListener(note, "object:children-changed:add",
                                           "object:state-changed:showing", "window:activate")
    open(path, "a").close()
    pyatspi.Registry.start()


if __name__ == "__main__":
    {"list": list_things, "do": do_action, "listen": listen}[sys.argv[1]](*sys.argv[2:])
