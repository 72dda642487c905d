# Copyright (c) 2026 The Dropshade authors
# SPDX-License-Identifier: MIT
"""The program on a Wayland desktop: a colour by the real portal, its text on the real clipboard."""

import pathlib
import subprocess
import tempfile
import unittest

from dropshade_case import PROGRAM, wait_until
from wayland_desktop import WaylandDesktop

FOLDER = pathlib.Path(__file__).parent
PANEL = str(FOLDER / "status_notifier_host.py")
BACKEND = str(FOLDER / "color_portal_backend.py")
PORTAL = "/usr/libexec/xdg-desktop-portal"


class Wayland(unittest.TestCase):

    def setUp(self):
        self.desktop = self.enterContext(WaylandDesktop())
        folder = self.enterContext(tempfile.TemporaryDirectory())
        self.desktop.start(["/usr/bin/python3", BACKEND, folder])
        self.wait_for_name("org.freedesktop.impl.portal.desktop.dropshadetest")
        self.portal = self.desktop.start([PORTAL], XDG_DESKTOP_PORTAL_DIR=folder)
        self.wait_for_name("org.freedesktop.portal.Desktop")
        self.desktop.start(["/usr/bin/python3", PANEL])
        self.wait_for_name("org.kde.StatusNotifierWatcher")
        self.program = self.desktop.start([PROGRAM], QT_QPA_PLATFORM="wayland")
        wait_until(lambda: self.ask_panel("Items"), "the icon")

    def wait_for_name(self, name):
        wait_until(lambda: self.desktop.bus_has_name(name), name)

    def ask_panel(self, method, *arguments):
        result = subprocess.run(
            ["dbus-send", "--session", "--print-reply=literal", "--dest=org.dropshade.TestHost",
             "/StatusNotifierWatcher", f"org.dropshade.TestHost.{method}",
             *(f"string:{argument}" for argument in arguments)],
            env=self.desktop.environment, capture_output=True, text=True, check=False)
        return [word for word in result.stdout.split() if word.startswith(("org.", ":"))]

    def pick(self):
        self.ask_panel("Click", "SecondaryActivate")

    def wait_for_clipboard(self, text):
        wait_until(lambda: self.desktop.clipboard_text() == text, f"{text} on the clipboard")

    def test_a_picked_color_is_on_the_clipboard_though_no_window_has_the_focus(self):
        self.pick()
        self.wait_for_clipboard("#FF8001")
        self.assertIn("text/plain", self.desktop.clipboard_types())

        def is_copied_by_a_later_pick():
            # The first of them is cancelled, and while it is up another one is ignored.
            self.pick()
            return self.desktop.clipboard_text() == "#0080FF"
        wait_until(is_copied_by_a_later_pick, "#0080FF on the clipboard")

    def test_the_text_outlives_the_program(self):
        self.pick()
        self.wait_for_clipboard("#FF8001")
        self.program.end()
        self.assertEqual(self.desktop.clipboard_text(), "#FF8001")

    def test_without_a_portal_a_pick_copies_nothing_and_the_program_goes_on(self):
        self.portal.end()
        self.pick()
        self.pick()
        wait_until(lambda: self.ask_panel("Items"), "the icon")
        self.assertIsNone(self.desktop.clipboard_text())
        self.assertIsNone(self.program.returncode)


if __name__ == "__main__":
    unittest.main(verbosity=2)
