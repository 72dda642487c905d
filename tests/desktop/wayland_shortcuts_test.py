# Copyright (c) 2026 The Dropshade authors
# SPDX-License-Identifier: MIT
"""Shortcuts on a desktop that has the keys itself: asked for and heard through the real portal."""

import signal
import subprocess
import unittest

from dropshade_case import wait_until
from wayland_case import WaylandCase

SETTINGS = "Dropshade Settings"
CONVERT = "Color Picker"
BACKEND = "org.freedesktop.impl.portal.desktop.dropshadetest"


class WaylandShortcuts(WaylandCase):

    def prepare_desktop(self):
        self.start_portal()

    def ask_desktop(self, method, *arguments):
        """What the desktop behind the portal says."""
        result = subprocess.run(
            ["dbus-send", "--session", "--print-reply=literal", f"--dest={BACKEND}",
             "/org/freedesktop/portal/desktop", f"org.dropshade.TestPortal.{method}",
             *(f"string:{argument}" for argument in arguments)],
            env=self.desktop.environment, capture_output=True, text=True, check=True)
        return result.stdout

    def bindings(self):
        return int(self.ask_desktop("Bindings").split()[-1])

    def open_settings(self):
        self.open_menu()
        self.hand.key("Control_L", "comma")
        return self.desktop.wait_for_window(SETTINGS)

    def choose_keys(self):
        self.open_settings()
        # Backwards the last shortcut comes first.
        self.hand.key("Shift_L", "Tab")
        self.desktop.wait_until_still()
        self.save_screenshot("wayland-shortcuts-unbound.png")
        self.hand.key("space")
        wait_until(lambda: self.bindings() == 1, "the desktop to be asked for keys")
        self.desktop.wait_until_still()

    def tap(self, name):
        self.ask_desktop("Press", name)
        self.ask_desktop("Release", name)

    def test_a_user_who_wants_no_keys_is_never_asked(self):
        self.open_settings()
        self.assertEqual(self.bindings(), 0)

    def test_the_desktop_is_asked_from_the_settings_and_its_keys_work_from_anywhere(self):
        self.choose_keys()
        self.assertIn("pickColor Quick Pick", self.ask_desktop("Wishes"))
        self.save_screenshot("wayland-shortcuts-bound.png")
        self.hand.key("Control_L", "w")
        self.wait_for_no_window(SETTINGS)
        self.ask_desktop("Press", "pickColor")
        self.assertIsNone(self.desktop.clipboard_text())
        self.ask_desktop("Release", "pickColor")
        self.wait_for_clipboard("#FF8001")
        self.tap("convert")
        self.desktop.wait_for_window(CONVERT)

    def test_a_key_that_is_changed_in_the_desktop_shows_in_the_open_settings(self):
        self.choose_keys()
        left, top, width, height = self.desktop.area(SETTINGS)
        before = self.desktop.grab(left, top, width, height)
        self.ask_desktop("ChangeKey", "palettes", "F7")
        wait_until(lambda: self.desktop.grab(left, top, width, height) != before, "the new key")

    def test_the_next_start_has_the_keys_again_without_a_word(self):
        self.choose_keys()
        self.program.end()
        self.start_program()
        wait_until(lambda: self.bindings() == 2, "the keys to be had again")
        self.tap("convert")
        self.desktop.wait_for_window(CONVERT)

    def test_a_portal_that_is_killed_is_asked_for_the_keys_again(self):
        self.choose_keys()
        self.portal.send(signal.SIGKILL)
        self.portal.wait()
        self.run_portal()
        wait_until(lambda: self.bindings() == 2, "the keys to be had again")
        self.tap("convert")
        self.desktop.wait_for_window(CONVERT)


if __name__ == "__main__":
    unittest.main(verbosity=2)
