# Copyright (c) 2026 The Dropshade authors
# SPDX-License-Identifier: MIT
"""High contrast and stillness, where the user of the desktop wishes for them."""

import time
import unittest

from dropshade_case import wait_until
from settings_test import LOGIN_ROW, SETTINGS, TOGGLES, SettingsCase

LINE_OF_CONTRAST = bytes((0x76, 0x76, 0x76))
# Ten hairlines across the window, to begin with.
PIXELS_OF_LINES = 4000
TOGGLE_SECONDS = 0.3


class Comfort(SettingsCase):

    def setUp(self):
        super().setUp()
        self.open(SETTINGS)

    def picture(self):
        return self.desktop.grab(*self.area(SETTINGS))

    def pixels_of_lines(self):
        data = self.picture()
        return sum(data[at:at + 3] == LINE_OF_CONTRAST for at in range(0, len(data), 4))

    def pictures_of_a_toggle(self):
        """How many different pictures there are of a toggle from a click until it holds still."""
        x, y = self.at(SETTINGS, TOGGLES, LOGIN_ROW)
        self.desktop.move(x, y)
        self.desktop.wait_until_still()
        seen = {self.desktop.grab(x - 24, y - 16, 48, 32)}
        self.desktop.click()
        end = time.monotonic() + TOGGLE_SECONDS
        while time.monotonic() < end:
            seen.add(self.desktop.grab(x - 24, y - 16, 48, 32))
        self.assertGreater(len(seen), 1, "the toggle has been clicked")
        return len(seen)

    def check_contrast(self, wish):
        before = self.picture()
        usual = self.pixels_of_lines()
        wish(True)
        wait_until(lambda: self.pixels_of_lines() > usual + PIXELS_OF_LINES, "strong lines")
        self.save_window(SETTINGS, "settings-high-contrast.png")
        wish(False)
        wait_until(lambda: self.picture() == before, "the usual lines")

    def check_stillness(self, wish):
        # From the picture at rest by the pressed one to the other side, and nothing on the way.
        at_once = 3
        wish(True)
        self.assertLessEqual(max(self.pictures_of_a_toggle() for _ in range(4)), at_once)
        wish(False)
        wait_until(lambda: self.pictures_of_a_toggle() > at_once, "the knob on its way")

    def test_lines_are_strong_where_the_desktop_says_so_while_the_program_runs(self):
        self.check_contrast(self.appearance.set_high_contrast)

    def test_lines_are_strong_where_gnome_says_so(self):
        self.check_contrast(self.appearance.set_gnome_high_contrast)

    def test_nothing_moves_where_the_desktop_says_so_while_the_program_runs(self):
        self.check_stillness(self.appearance.set_reduced_motion)

    def test_nothing_moves_where_gnome_says_so(self):
        self.check_stillness(self.appearance.set_gnome_reduced_motion)


if __name__ == "__main__":
    unittest.main(verbosity=2)
