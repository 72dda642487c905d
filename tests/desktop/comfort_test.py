# Copyright (c) 2026 The Dropshade authors
# SPDX-License-Identifier: MIT
"""High contrast and stillness, where the user of the desktop wishes for them."""

import time
import unittest

from Xlib import X, error

from desktop_settings import DesktopSettings
from dropshade_case import wait_until
from palettes_case import PalettesCase
from settings_test import LOGIN_ROW, SETTINGS, TOGGLES, SettingsCase

LINE_OF_CONTRAST = bytes((0x76, 0x76, 0x76))
# Ten hairlines across the window, to begin with.
PIXELS_OF_LINES = 4000
TOGGLE_SECONDS = 0.3
FADE_SECONDS = 0.4
OPAQUE = 0xFFFFFFFF


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


class Fades(PalettesCase):
    """On a desktop that says it blends windows, which asks for no more than to be told how much."""

    @classmethod
    def prepare_desktop(cls):
        super().prepare_desktop()
        cls.appearance = DesktopSettings(cls.desktop)
        blender = cls.desktop.root.create_window(0, 0, 1, 1, 0, X.CopyFromParent)
        blender.set_selection_owner(cls.desktop.display.intern_atom("_NET_WM_CM_S0"), X.CurrentTime)
        cls.desktop.display.sync()

    def opacities(self):
        """Of the windows that know one, as the X server knows it."""
        atom = self.desktop.display.intern_atom("_NET_WM_WINDOW_OPACITY")
        found = []
        for child in self.desktop.root.query_tree().children:
            try:
                value = child.get_full_property(atom, X.AnyPropertyType)
                if value and child.get_attributes().map_state == X.IsViewable:
                    found.append(value.value[0])
            except error.XError:
                continue  # It has gone meanwhile.
        return found

    def steps(self, key):
        """How many opacities between nothing and all were seen after that key."""
        seen = set()
        self.desktop.key(key)
        end = time.monotonic() + FADE_SECONDS
        while time.monotonic() < end:
            seen.update(self.opacities())
        return len(seen - {0, OPAQUE})

    def steps_of_an_editor(self):
        """The same while it opens, and while it closes."""
        self.desktop.click(*self.swatch_at(0, 1), button=3)
        self.desktop.wait_for_menu()
        self.desktop.key("Down")
        opening = self.steps("Return")
        self.desktop.wait_for_menu()
        return opening, self.steps("Escape")

    def test_a_popover_comes_and_goes_by_steps(self):
        wait_until(lambda: min(self.steps_of_an_editor()) > 1, "steps both ways")
        self.assertEqual(self.opacities(), [], "nothing is left of it")

    def test_a_popover_is_there_and_gone_at_once_where_nothing_is_to_move(self):
        self.appearance.set_reduced_motion(True)
        self.addCleanup(self.appearance.set_reduced_motion, False)
        self.assertEqual(self.steps_of_an_editor(), (0, 0))


if __name__ == "__main__":
    unittest.main(verbosity=2)
