# Copyright (c) 2026 The Dropshade authors
# SPDX-License-Identifier: MIT
"""The program's windows on a Wayland desktop, with a real mouse and real keys."""

import unittest

from wayland_case import WaylandCase

CONVERT = "Color Picker"


class WaylandWindows(WaylandCase):

    def test_a_typed_color_is_copied_by_a_click_on_a_row_and_the_window_closes(self):
        self.choose(2)
        left, top, width, _ = self.desktop.wait_for_window(CONVERT)
        self.hand.type_text("  #fF0080 ")
        self.desktop.wait_until_still()
        # The third row.
        self.hand.click(left + width / 2, top + 379)
        self.wait_for_clipboard("rgb(255 0 128)")
        self.wait_for_no_window(CONVERT)

    def test_a_drag_past_the_end_of_the_hue_stays_at_the_end(self):
        self.choose(2)
        left, top, width, _ = self.desktop.wait_for_window(CONVERT)
        self.hand.type_text("#00FF00")
        self.desktop.wait_until_still()
        hue = top + 180
        self.hand.drag((left + width / 2, hue), (left + width + 20, hue + 30))
        self.hand.click(left + 150, top + 246)
        self.hand.key("Control_L", "a")
        self.hand.key("Control_L", "c")
        self.wait_for_clipboard("#FF0000")


if __name__ == "__main__":
    unittest.main(verbosity=2)
