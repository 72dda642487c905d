# Copyright (c) 2026 The Dropshade authors
# SPDX-License-Identifier: MIT
"""The status item on panels that speak StatusNotifierItem instead of XEmbed."""

import pathlib
import subprocess
import unittest

from dropshade_case import DropshadeCase, hex_text, wait_until

HOST = str(pathlib.Path(__file__).with_name("status_notifier_host.py"))


class StatusNotifier(DropshadeCase):
    TRAY = False

    def setUp(self):
        super().setUp()
        self.host = None
        self.addCleanup(lambda: self.host and self.host.end())

    def start_host(self):
        self.host = self.desktop.start(["/usr/bin/python3", HOST])
        wait_until(lambda: self.ask("Items"), "the item on the panel")

    def ask(self, method, *arguments):
        """The words of the host's answer; none while it is not there."""
        result = subprocess.run(
            ["dbus-send", "--session", "--print-reply=literal", "--dest=org.dropshade.TestHost",
             "/StatusNotifierWatcher", f"org.dropshade.TestHost.{method}",
             *(f"string:{argument}" for argument in arguments)],
            env=self.desktop.environment, capture_output=True, text=True, check=False)
        words = result.stdout.replace("array", "").split()
        return [word for word in words if word not in ("[", "]")]

    def pick_after(self, method, *modifiers):
        color = self.desktop.pixel(345, 456)
        self.desktop.own_clipboard("before")
        for name in modifiers:
            self.desktop.key_down(name)
        self.ask("Click", method)
        self.wait_for_loupe()
        for name in modifiers:
            self.desktop.key_up(name)
        self.desktop.click(345, 456)
        self.assertEqual(self.copied_text(), hex_text(color))

    def test_a_panel_that_starts_after_the_program_gets_the_item_in_several_sizes(self):
        wait_until(lambda: self.desktop.bus_has_name("org.dropshade.Dropshade"), "the program")
        self.start_host()
        sizes = self.ask("IconSizes")
        self.assertIn("22x22", sizes)
        self.assertIn("44x44", sizes)

    def test_each_click_that_a_panel_may_send_picks_or_opens_the_menu(self):
        self.start_host()
        self.pick_after("ContextMenu")
        self.pick_after("SecondaryActivate")
        self.pick_after("Activate", "Control_L")
        self.ask("Click", "Activate")
        self.desktop.wait_for_menu()
        self.desktop.key("Escape")
        wait_until(lambda: not self.desktop.open_menu(), "the menu to close")

    def test_the_item_comes_back_when_the_panel_starts_anew(self):
        self.start_host()
        self.host.end()
        self.start_host()
        self.pick_after("SecondaryActivate")


if __name__ == "__main__":
    unittest.main(verbosity=2)
