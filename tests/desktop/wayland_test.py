# Copyright (c) 2026 The Dropshade authors
# SPDX-License-Identifier: MIT
"""The program on a Wayland desktop: a colour by the real portal, its text on the real clipboard."""

import unittest

from wayland_case import WaylandCase, wait_until


class Wayland(WaylandCase):

    def prepare_desktop(self):
        self.start_portal()

    def pick(self):
        self.ask_panel("Click", "SecondaryActivate")

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
