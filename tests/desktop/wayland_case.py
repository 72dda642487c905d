# Copyright (c) 2026 The Dropshade authors
# SPDX-License-Identifier: MIT
"""What the tests on a Wayland desktop share: a compositor, a panel, and the program with its icon there."""

import pathlib
import subprocess
import tempfile
import time
import unittest

from dropshade_case import PROGRAM, RunningProgram, wait_until
from wayland_desktop import WaylandDesktop

FOLDER = pathlib.Path(__file__).parent
PANEL = str(FOLDER / "status_notifier_host.py")
BACKEND = str(FOLDER / "portal_backend.py")
PORTAL = "/usr/libexec/xdg-desktop-portal"
MENU = "Dropshade"
CLOSING_CLICK = 0.3


class WaylandCase(RunningProgram, unittest.TestCase):
    """A desktop for each test, its hand in `self.hand`, and the program running in it."""

    SCALE = 1
    LAYOUT = "us"
    MORE = ""
    PATIENCE = None

    def setUp(self):
        self.desktop = self.enterContext(
            WaylandDesktop(1280 * self.SCALE, 800 * self.SCALE, self.SCALE, self.LAYOUT, self.MORE,
                           self.PATIENCE))
        self.hand = self.desktop.hand
        self.prepare_desktop()
        self.start_panel()
        self.wait_for_name("org.kde.StatusNotifierWatcher")
        self.program = self.start_program()

    def prepare_desktop(self):
        """What a kind of test needs before the program starts."""

    def start_panel(self):
        self.desktop.start(["/usr/bin/python3", PANEL])

    def has_icon(self):
        return self.ask_panel("Items")

    def start_portal(self):
        """The real portal, by which the program asks the backend of tests."""
        self.portal_folder = self.enterContext(tempfile.TemporaryDirectory())
        self.desktop.start(["/usr/bin/python3", BACKEND, self.portal_folder])
        self.wait_for_name("org.freedesktop.impl.portal.desktop.dropshadetest")
        self.run_portal()

    def run_portal(self):
        self.portal = self.desktop.start([PORTAL], XDG_DESKTOP_PORTAL_DIR=self.portal_folder)
        self.wait_for_name("org.freedesktop.portal.Desktop")

    def start_program(self):
        program = self.desktop.start([PROGRAM], QT_QPA_PLATFORM="wayland")
        wait_until(self.has_icon, "the icon")
        return program

    def wait_for_name(self, name):
        wait_until(lambda: self.desktop.bus_has_name(name), name)

    def ask_panel(self, method, *arguments):
        result = subprocess.run(
            ["dbus-send", "--session", "--print-reply=literal", "--dest=org.dropshade.TestHost",
             "/StatusNotifierWatcher", f"org.dropshade.TestHost.{method}",
             *(f"string:{argument}" for argument in arguments)],
            env=self.desktop.environment, capture_output=True, text=True, check=False)
        return [word for word in result.stdout.split() if word.startswith(("org.", ":"))]

    def open_menu(self):
        """The area of the status menu, opened by a click on the icon."""
        self.ask_for_menu()
        return self.desktop.wait_for_window(MENU)

    def ask_for_menu(self):
        # So soon after the menu closed, a click would count as the one that closed it.
        time.sleep(CLOSING_CLICK)
        self.click_icon()

    def click_icon(self):
        self.ask_panel("Click", "Activate")

    def choose(self, row):
        """Chooses that row of the menu, counted from 1 over those that can be chosen, by keys."""
        self.open_menu()
        for _ in range(row):
            self.hand.key("Down")
        self.hand.key("Return")

    def at(self, title, x, y):
        """The place on the screen of a place in the window."""
        left, top, _, _ = self.desktop.area(title)
        return left + x, top + y

    def click_in(self, title, x, y):
        self.hand.click(*self.at(title, x, y))

    def wait_for_no_window(self, title):
        wait_until(lambda: not self.desktop.window(title), f"{title} to close")

    def wait_for_clipboard(self, text):
        wait_until(lambda: self.desktop.clipboard_text() == text, f"{text} on the clipboard")
