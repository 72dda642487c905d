# Copyright (c) 2026 The Dropshade authors
# SPDX-License-Identifier: MIT
"""What the tests on the virtual desktop share: the program, started anew for each test."""

import contextlib
import os
import pathlib
import sqlite3
import struct
import subprocess
import sys
import unittest

PROJECT = pathlib.Path(__file__).resolve().parents[2]
sys.path.insert(0, str(PROJECT / "tools"))

from virtual_desktop import VirtualDesktop, wait_until  # noqa: E402

PROGRAM = os.environ.get("DROPSHADE", str(PROJECT / "build/release/src/dropshade"))
SCREENSHOTS = pathlib.Path(os.environ.get("SCREENSHOTS", "screenshots"))


def stored_form(value):
    """How the store numbers the type of a value, and the form that it keeps it in."""
    if isinstance(value, bool):
        return 1, int(value)
    if isinstance(value, int):
        return 2, value
    if isinstance(value, str):
        return 4, value.encode("utf-16-le")
    if isinstance(value, bytes):
        return 5, value
    return 6, b"".join(struct.pack("<I", len(text)) + text.encode("utf-16-le") for text in value)


def hex_text(color):
    return "#%02X%02X%02X" % color


class RunningProgram:
    """What a test reads and keeps of the program that runs on its `self.desktop`."""

    def setting(self, key):
        """What the store holds under the key; None where it is unset or nothing was ever written."""
        folder = pathlib.Path(self.desktop.environment["XDG_CONFIG_HOME"])
        file = next(folder.rglob("defaults.sqlite"), None)
        if not file:
            return None
        # The file is there a moment before its table.
        with contextlib.closing(sqlite3.connect(file)) as settings, \
                contextlib.suppress(sqlite3.OperationalError):
            row = settings.execute("SELECT value FROM defaults WHERE key = ?", (key,)).fetchone()
            return row and row[0]
        return None

    def store(self, key, value):
        """Another process writes a truth value, a number, a string, bytes of data or a list of
        strings, which the program made a store for."""
        folder = pathlib.Path(self.desktop.environment["XDG_CONFIG_HOME"])
        wait_until(lambda: self.setting("didImportLegacyContainerPrefs"), "the store")
        file = next(folder.rglob("defaults.sqlite"))
        kind, stored = stored_form(value)
        with contextlib.closing(sqlite3.connect(file, timeout=5)) as settings, settings:
            settings.execute("INSERT OR REPLACE INTO defaults(key, type, value) VALUES (?, ?, ?)",
                             (key, kind, stored))

    def copies_counted(self):
        return self.setting("totalChecksCount") or 0

    def call_program(self, method, *arguments):
        """Calls the program over the bus as the desktop does; what it answers."""
        return subprocess.run(
            ["gdbus", "call", "--session", "--dest", "org.dropshade.Dropshade", "--object-path",
             "/org/dropshade/Dropshade", "--method", f"org.freedesktop.Application.{method}",
             *arguments],
            env=self.desktop.environment, capture_output=True, text=True, check=False, timeout=20)

    def activate_action(self, action):
        """Chooses an action of the desktop entry."""
        answer = self.call_program("ActivateAction", action, "[]", "{}")
        self.assertEqual(answer.returncode, 0, answer.stderr)

    def save_screenshot(self, name, area=None):
        SCREENSHOTS.mkdir(parents=True, exist_ok=True)
        self.desktop.screenshot(str(SCREENSHOTS / name), area)


class DropshadeCase(RunningProgram, unittest.TestCase):
    """One desktop for a class of tests; `self.program` is running and has its icon in the tray."""

    WIDTH, HEIGHT, DEPTH = 1280, 800, 24
    TRAY = True
    VARIABLES = {}

    @classmethod
    def setUpClass(cls):
        cls.desktop = VirtualDesktop(cls.WIDTH, cls.HEIGHT, cls.DEPTH, tray=cls.TRAY)
        cls.desktop.__enter__()
        cls.addClassCleanup(cls.desktop.__exit__)
        cls.prepare_desktop()

    @classmethod
    def prepare_desktop(cls):
        cls.desktop.paint_noise(seed=20260101)

    def setUp(self):
        self.desktop.move(self.WIDTH // 2, self.HEIGHT // 2)
        self.program = self.start_program()
        self.addCleanup(self.end_program)
        if self.TRAY:
            self.icon = self.desktop.tray_icon()

    def start_program(self, **variables):
        return self.desktop.start([PROGRAM], **{**self.VARIABLES, **variables})

    def restart_program(self):
        """Ends the program and starts it again, with its icon where the desktop has a tray."""
        self.end_program()
        self.program = self.start_program()
        if self.TRAY:
            self.icon = self.desktop.tray_icon()
        wait_until(lambda: self.desktop.bus_has_name("org.dropshade.Dropshade"), "the program")

    def end_program(self):
        self.program.end()
        wait_until(lambda: not self.desktop.has_tray_icon(), "the icon to go")

    # The flow of a pick

    def click_icon(self, button=1, *modifiers):
        x, y, width, height = self.icon
        self.desktop.move(x + width // 2, y + height // 2)
        for name in modifiers:
            self.desktop.key_down(name)
        self.desktop.click(button=button)
        for name in modifiers:
            self.desktop.key_up(name)

    def loupe_windows(self):
        """Two while the loupe is up: the picture, and above it the one that takes the input."""
        return self.desktop.windows().count((0, 0, self.WIDTH, self.HEIGHT))

    def wait_for_loupe(self):
        wait_until(lambda: self.loupe_windows() == 2, "the loupe")
        # It has the keyboard a moment later, when the panel's own grab has ended.
        wait_until(self.desktop.keyboard_is_grabbed, "the loupe's keyboard")

    def wait_for_no_loupe(self):
        wait_until(lambda: self.loupe_windows() == 0, "the loupe to go")
        wait_until(lambda: not self.desktop.keyboard_is_grabbed(), "the keyboard to be free")

    def pick(self, x, y):
        """A whole pick by the right click; the text that another process then reads."""
        self.desktop.own_clipboard("before")
        self.click_icon(3)
        self.wait_for_loupe()
        self.desktop.click(x, y)
        return self.copied_text()

    def copied_text(self, before="before"):
        try:
            wait_until(lambda: self.desktop.clipboard_text() != before, "the copied text")
        except TimeoutError:
            self.fail(f"no text copied; pointer {self.desktop.pointer()}, loupe windows "
                      f"{self.loupe_windows()}, copies counted {self.copies_counted()}, "
                      f"clipboard owner {self.desktop.clipboard_owner()}, "
                      f"program ended {self.program.returncode}\n{self.desktop.output()}")
        self.wait_for_no_loupe()
        return self.desktop.clipboard_text()
