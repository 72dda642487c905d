# Copyright (c) 2026 The Dropshade authors
# SPDX-License-Identifier: MIT
"""The program's windows on a Wayland desktop, with a real mouse and real keys."""

import json
import unittest

from wayland_case import MENU, WaylandCase, wait_until

CONVERT, PALETTES, CONTRAST, SETTINGS = ("Color Picker", "Palettes", "Check Contrast",
                                         "Dropshade Settings")
DELETE = "Delete this color?"
ROWS = {CONVERT: 2, PALETTES: 3, CONTRAST: 4, SETTINGS: 8}
GROUND = (0x33, 0x66, 0x99)
# In the convert window.
HUE, FIELD, SAMPLER, THIRD_ROW = 180, (150, 246), (304, 246), 379
# In the palettes window: the header of the first palette, and its first swatch.
HEADER, SWATCH, SWATCH_STEP, SCALE_STEP = (60, 68), (138, 108), 33, 38


class WaylandWindows(WaylandCase):
    # As most desktops have it; by itself sway tiles windows that can be resized.
    MORE = 'for_window [app_id="org.dropshade.Dropshade"] floating enable'

    def tearDown(self):
        self.assertNotIn("This plugin does not support", self.desktop.output())

    def prepare_desktop(self):
        self.start_portal()

    def open(self, title):
        self.choose(ROWS[title])
        return self.desktop.wait_for_window(title)

    def shows_ground(self, x, y):
        return self.desktop.pixel(round(x), round(y)) == GROUND

    # Convert

    def test_a_typed_color_is_copied_by_a_click_on_a_row_and_the_window_closes(self):
        _, _, width, _ = self.open(CONVERT)
        self.hand.type_text("  #fF0080 ")
        self.desktop.wait_until_still()
        self.click_in(CONVERT, width / 2, THIRD_ROW)
        self.wait_for_clipboard("rgb(255 0 128)")
        self.wait_for_no_window(CONVERT)

    def test_a_drag_past_the_end_of_the_hue_stays_at_the_end(self):
        _, _, width, _ = self.open(CONVERT)
        self.hand.type_text("#00FF00")
        self.desktop.wait_until_still()
        self.hand.drag(self.at(CONVERT, width / 2, HUE), self.at(CONVERT, width + 20, HUE + 30))
        self.click_in(CONVERT, *FIELD)
        self.hand.key("Control_L", "a")
        self.hand.key("Control_L", "c")
        self.wait_for_clipboard("#FF0000")

    def test_the_window_is_away_while_a_color_is_sampled_and_comes_back_with_it(self):
        left, top, _, _ = self.open(CONVERT)
        self.click_in(CONVERT, *SAMPLER)
        wait_until(lambda: not self.desktop.window(CONVERT), "the window to hide")
        self.desktop.wait_for_window(CONVERT)
        self.click_in(CONVERT, 200, THIRD_ROW)
        self.wait_for_clipboard("rgb(255 128 1)")

    def test_the_size_is_remembered_and_the_place_kept_for_other_desktops(self):
        def stored_frame():
            return [int(number) for number in (self.setting("windowFrame.ConvertWindow") or "").split()]
        self.assertEqual(self.open(CONVERT)[2:], (400, 600))
        self.desktop.sway(f'[title="{CONVERT}"] resize set width 500 px')
        self.desktop.sway(f'[title="{CONVERT}"] move position 20 60')
        self.desktop.wait_until_still()
        resized = self.desktop.area(CONVERT)[2:]
        self.assertGreater(resized[0], 480)
        self.hand.key("Escape")
        self.wait_for_no_window(CONVERT)
        # The middle of the screen for a window of 400 by 600.
        self.assertEqual(stored_frame(), [439, 99, *resized])
        self.assertEqual(self.open(CONVERT)[2:], resized)
        self.hand.key("Escape")
        self.wait_for_no_window(CONVERT)
        self.assertEqual(stored_frame(), [439, 99, *resized])

    # Contrast

    def test_the_well_opens_beside_the_window_and_changes_the_color_until_escape(self):
        left, top, width, _ = self.open(CONTRAST)
        x, y = left + width + 100, top + 60
        self.assertTrue(self.shows_ground(x, y))
        self.click_in(CONTRAST, 32, 52)
        wait_until(lambda: not self.shows_ground(x, y), "the popover")
        self.desktop.wait_until_still()
        before = self.desktop.pixel(left + 30, top + 300)
        self.hand.click(x, y)
        wait_until(lambda: self.desktop.pixel(left + 30, top + 300) != before, "another color")
        self.save_screenshot(f"wayland-well-{self.SCALE}x.png")
        self.hand.key("Escape")
        wait_until(lambda: self.shows_ground(x, y), "the popover to close")
        self.assertEqual(self.desktop.focused_title(), CONTRAST)

    def test_a_click_beside_a_menu_of_the_window_closes_it_and_keeps_the_window(self):
        left, top, width, height = self.open(CONTRAST)
        below = left + width - 60, top + 120
        before = self.desktop.grab(*below, 60, 120)
        self.click_in(CONTRAST, width - 32, 52)
        wait_until(lambda: self.desktop.grab(*below, 60, 120) != before, "the menu")
        self.desktop.wait_until_still()
        self.hand.click(left - 50, top + height - 10)
        wait_until(lambda: self.desktop.grab(*below, 60, 120) == before, "the menu to close")
        self.assertTrue(self.desktop.window(CONTRAST))

    # Palettes

    def stored_scale(self, index):
        """A scale of the first palette, of which some are there from the beginning."""
        return json.loads(self.setting("userPalettes"))[0]["scales"][index]

    def swatch_at(self, scale, index):
        return self.at(PALETTES, SWATCH[0] + index * SWATCH_STEP, SWATCH[1] + scale * SCALE_STEP)

    def open_first_palette(self):
        self.open(PALETTES)
        self.click_in(PALETTES, *HEADER)
        self.desktop.wait_until_still()

    def test_a_swatch_moves_to_another_scale_where_it_is_dropped(self):
        self.open_first_palette()
        self.hand.drag(self.swatch_at(1, 0), self.swatch_at(2, 1), steps=20)
        wait_until(lambda: len(self.stored_scale(2)["swatches"]) == 11, "the swatch in its new scale")
        self.assertEqual(len(self.stored_scale(1)["swatches"]), 9)

    def test_a_click_on_the_name_of_a_scale_renames_it(self):
        self.open_first_palette()
        x, y = self.swatch_at(1, 0)
        self.hand.click(x - 90, y)
        self.desktop.wait_until_still()
        self.hand.type_text("Ash")
        self.hand.key("Return")
        wait_until(lambda: self.stored_scale(1)["name"] == "Ash", "the new name")

    def test_the_wheel_scrolls_the_palettes_and_the_row_under_the_pointer_takes_the_click(self):
        self.open_first_palette()
        self.hand.move(*self.swatch_at(4, 5))
        before = self.desktop.pixel(*self.swatch_at(8, 5))
        self.hand.scroll(20)
        self.desktop.wait_until_still()
        self.assertNotEqual(self.desktop.pixel(*self.swatch_at(8, 5)), before)
        self.hand.scroll(-20)
        self.desktop.wait_until_still()
        self.assertEqual(self.desktop.pixel(*self.swatch_at(8, 5)), before)
        self.hand.click(*self.swatch_at(2, 5))
        self.wait_for_clipboard("#FF6B6B")

    def test_a_swatch_goes_to_another_window_as_its_text(self):
        self.open(CONVERT)
        self.desktop.sway(f'[title="{CONVERT}"] move position 20 60')
        self.open_first_palette()
        self.desktop.sway(f'[title="{PALETTES}"] move position 600 60')
        self.desktop.wait_until_still()
        self.hand.drag_without_release(self.swatch_at(2, 5), self.at(CONVERT, *FIELD), steps=30)
        # The field must have said that it takes the text.
        self.desktop.wait_until_still()
        self.hand.release()
        self.desktop.sway(f'[title="{CONVERT}"] focus')
        self.desktop.wait_for_window(CONVERT)
        self.click_in(CONVERT, 200, THIRD_ROW)
        self.wait_for_clipboard("rgb(255 107 107)")

    # Settings

    def test_a_picker_opens_under_itself_and_takes_keys(self):
        _, _, width, _ = self.open(SETTINGS)
        self.click_in(SETTINGS, width - 80, 154)
        self.desktop.wait_until_still()
        self.save_screenshot(f"wayland-picker-{self.SCALE}x.png")
        self.hand.key("Down")
        self.hand.key("Return")
        wait_until(lambda: self.setting("copySound") == "ding", "the chosen sound")


class PatientDesktop(WaylandCase):
    """On a desktop that shows a window only when it was drawn with the keyboard it was given."""

    MORE = WaylandWindows.MORE
    PATIENCE = 60

    def wait_until_shown(self, title):
        left, top, width, height = wait_until(lambda: self.desktop.area(title), title)
        middle = round(left + width / 2), round(top + height / 2)
        wait_until(lambda: self.desktop.pixel(*middle) != GROUND, f"{title} on the screen")

    def test_all_windows_show_at_once(self):
        for title, row in ROWS.items():
            with self.subTest(title):
                self.ask_for_menu()
                self.wait_until_shown(MENU)
                for _ in range(row):
                    self.hand.key("Down")
                self.hand.key("Return")
                self.wait_until_shown(title)
                self.hand.key("Escape")
                self.wait_for_no_window(title)

    def test_an_alert_shows_at_once_over_its_window(self):
        self.choose(ROWS[PALETTES])
        left, top, width, height = self.desktop.wait_for_window(PALETTES)
        self.click_in(PALETTES, *HEADER)
        self.desktop.wait_until_still()
        middle = left + width // 2, top + height // 2, 40, 40
        before = self.desktop.grab(*middle)
        self.hand.click(*self.at(PALETTES, *SWATCH), button=3)
        self.desktop.wait_until_still()
        self.hand.key("Up")
        self.hand.key("Return")
        wait_until(lambda: self.desktop.focused_title() == DELETE, "the alert")
        wait_until(lambda: self.desktop.grab(*middle) != before, "the alert on the screen")
        self.save_screenshot("wayland-alert.png")


if __name__ == "__main__":
    unittest.main(verbosity=2)
