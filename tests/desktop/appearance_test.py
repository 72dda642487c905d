# Copyright (c) 2026 The Dropshade authors
# SPDX-License-Identifier: MIT
"""Light and dark, as the desktop's portal says, and the loupe in both at scale 1 and 2."""

import unittest

from desktop_settings import DesktopSettings
from dropshade_case import DropshadeCase, wait_until

PLATE = {"light": (0x1F, 0x1F, 0x1F), "dark": (0x3D, 0x3D, 0x3D)}
CENTER = (640, 400)
INK = [(27, 39, 64), (52, 84, 148), (242, 178, 99), (231, 111, 81), (244, 241, 222)]


class Appearance(DropshadeCase):
    VARIABLES = {}

    @classmethod
    def prepare_desktop(cls):
        rectangles = [(0, 0, cls.WIDTH, cls.HEIGHT, INK[4])]
        for index in range(40):
            rectangles.append((40 + 30 * index, 120 + 9 * index, 18, 400 - 5 * index,
                               INK[index % 4]))
            rectangles.append((620 + index, 380 + index, 3, 3, INK[(index * 3) % 4]))
        cls.desktop.paint(rectangles)
        cls.appearance = DesktopSettings(cls.desktop)

    def darkest_and_lightest_of_icon(self):
        x, y, width, height = self.icon
        levels = [sum(self.desktop.pixel(x + dx, y + dy))
                  for dx in range(width) for dy in range(height)]
        return min(levels), max(levels)

    def test_the_icon_changes_its_ink_with_the_desktop_while_the_program_runs(self):
        self.appearance.set_scheme("light")
        wait_until(lambda: self.darkest_and_lightest_of_icon()[0] < 3 * 60, "dark ink")
        self.appearance.set_scheme("dark")
        wait_until(lambda: self.darkest_and_lightest_of_icon()[1] > 3 * 230, "light ink")

    def show_loupe(self, name, scale, scheme):
        self.click_icon(3)
        self.wait_for_loupe()
        self.desktop.move(*CENTER)
        wait_until(lambda: self.desktop.shows_loupe(*CENTER, scale), "the loupe")
        plate = (CENTER[0], CENTER[1] + round(94 * scale))
        wait_until(lambda: self.desktop.pixel(*plate) == PLATE[scheme], "the plate")
        reach = round(170 * scale)
        self.save_screenshot(f"loupe-{scheme}-{name}.png",
                             (CENTER[0] - reach, CENTER[1] - round(110 * scale), 2 * reach,
                              round(260 * scale)))
        self.desktop.key("Escape")
        self.wait_for_no_loupe()

    def test_the_loupe_is_drawn_in_the_desktops_scheme(self):
        for scheme in ("dark", "light"):
            self.appearance.set_scheme(scheme)
            self.show_loupe("1x", 1.0, scheme)


class AppearanceAtScale2(Appearance):
    VARIABLES = {"QT_SCALE_FACTOR": "2"}

    def test_the_loupe_is_drawn_in_the_desktops_scheme(self):
        for scheme in ("dark", "light"):
            self.appearance.set_scheme(scheme)
            self.show_loupe("2x", 2.0, scheme)


if __name__ == "__main__":
    unittest.main(verbosity=2)
