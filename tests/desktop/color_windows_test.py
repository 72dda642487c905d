# Copyright (c) 2026 The Dropshade authors
# SPDX-License-Identifier: MIT
"""The convert and the contrast window, with real keys and clicks."""

import subprocess
import unittest

from window_case import GROUND, WindowCase, wait_until

CONVERT, CONTRAST = "Color Picker", "Check Contrast"
SQUARE, HUE = (16, 16, 368, 144), (16, 172, 368, 16)
FIELD = (150, 246)
SAMPLER, COPY, CLOSE_ON_COPY = (304, 246), (336, 246), (368, 246)
FIRST_ROW = 277 + 12 + 16 + 4 + 14


class ConvertWindow(WindowCase):

    def open(self, clipboard="no color"):
        self.desktop.own_clipboard(clipboard)
        self.open_window("convert", CONVERT)

    def copied_by(self, act):
        before = self.desktop.clipboard_text()
        act()
        wait_until(lambda: self.desktop.clipboard_text() != before, "another text to be copied")
        return self.desktop.clipboard_text()

    def click_row(self, index):
        self.click_in(CONVERT, 200, FIRST_ROW + 28 * index)

    def retype(self, text):
        self.desktop.key("Control_L", "a")
        self.type_text(text)
        self.desktop.wait_until_still()

    def field_text(self):
        """By the clipboard, as a user would take it."""
        self.click_in(CONVERT, *FIELD)
        self.desktop.wait_until_still()
        self.desktop.key("Control_L", "a")
        return self.copied_by(lambda: self.desktop.key("Control_L", "c"))

    def test_a_typed_color_is_copied_by_a_click_on_a_row_and_the_window_closes(self):
        self.open()
        self.retype("  #ff0080 ")
        self.assertEqual(self.copied_by(lambda: self.click_row(2)), "rgb(255 0 128)")
        self.wait_for_no_window(CONVERT)
        self.assertEqual(self.checks_made(), 1)

    def test_it_opens_with_a_color_that_another_program_has_copied(self):
        self.open("hsl(330 100% 50%)")
        self.assertEqual(self.copied_by(lambda: self.click_row(0)), "#FF0080")

    def test_closing_and_reopening_keeps_text_and_color(self):
        self.open()
        self.retype("rebeccapurple")
        self.desktop.key("Escape")
        self.wait_for_no_window(CONVERT)
        self.open("nothing that is a color")
        self.assertEqual(self.field_text(), "rebeccapurple")
        self.assertEqual(self.copied_by(lambda: self.click_row(0)), "#663399")

    def test_dragging_the_saturation_away_and_back_keeps_the_hue(self):
        self.open()
        self.retype("#0040FF")
        x, y, width, _ = SQUARE
        self.desktop.move(*self.at(CONVERT, x + width, y))
        self.desktop.press()
        for share in (0.5, 0.0, -0.5, 0.5, 1.0, 1.5):
            self.desktop.move(*self.at(CONVERT, x + width * share, y))
            self.desktop.wait_until_still()
        self.desktop.release()
        self.assertEqual(self.copied_by(lambda: self.click_row(0)), "#0040FF")

    def test_a_drag_past_the_end_of_the_hue_stays_at_the_end(self):
        self.open()
        self.retype("#00FF00")
        x, y, width, _ = HUE
        self.desktop.move(*self.at(CONVERT, x + width / 2, y + 8))
        self.desktop.press()
        self.desktop.move(*self.at(CONVERT, 600, 400))
        self.desktop.release()
        self.desktop.wait_until_still()
        self.assertEqual(self.copied_by(lambda: self.click_row(0)), "#FF0000")

    def test_a_text_that_is_no_color_is_marked_and_copies_nothing(self):
        self.open("untouched")
        self.retype("#ff008")
        self.click_row(2)
        self.click_in(CONVERT, *COPY)
        self.desktop.wait_until_still()
        self.assertTrue(self.window(CONVERT))
        self.assertEqual(self.desktop.clipboard_text(), "untouched")
        self.assertEqual(self.checks_made(), 0)

    def test_a_sample_comes_back_with_its_color_and_copies_nothing(self):
        self.open("untouched")
        self.click_in(CONVERT, *SAMPLER)
        self.wait_for_loupe()
        self.desktop.click(20, 700)
        self.wait_for_window(CONVERT)
        self.assertEqual(self.desktop.clipboard_text(), "untouched")
        self.assertEqual(self.copied_by(lambda: self.click_row(0)), "#D4D4D4")
        self.assertEqual(self.checks_made(), 2)

    def test_a_cancelled_sample_brings_the_window_back_where_it_was(self):
        self.open()
        before = self.area(CONVERT)
        self.click_in(CONVERT, *SAMPLER)
        self.wait_for_loupe()
        self.desktop.key("Escape")
        self.wait_for_window(CONVERT)
        self.assertEqual(self.area(CONVERT), before)

    def test_without_the_setting_the_window_stays_after_a_copy(self):
        self.open()
        self.retype("red")
        self.click_in(CONVERT, *CLOSE_ON_COPY)
        self.assertEqual(self.copied_by(lambda: self.click_row(3)), "rgb(255 0 0 / 1)")
        self.assertTrue(self.window(CONVERT))
        wait_until(lambda: self.setting("closeConvertDialogOnCopy") is not None, "the setting")

    def test_keys_alone_reach_a_row_and_copy_it(self):
        self.open()
        self.retype("red")
        for _ in range(5):  # clear, sampler, copy, close-on-copy, the first row
            self.desktop.key("Tab")
        self.desktop.key("Down")
        self.desktop.key("Down")
        self.assertEqual(self.copied_by(lambda: self.desktop.key("Return")), "rgb(255 0 0)")

    def test_the_frame_is_remembered_across_a_close_and_ctrl_w_closes(self):
        self.open()
        left, top, width, height = self.area(CONVERT)
        window = str(self.window(CONVERT).id)
        subprocess.run(["xdotool", "windowmove", window, "120", "90"], check=True,
                       env=self.desktop.environment)
        wait_until(lambda: self.area(CONVERT)[:2] != (left, top), "the window to move")
        self.desktop.wait_until_still()
        moved = self.area(CONVERT)
        self.assertNotEqual(moved[:2], (left, top))
        self.desktop.key("Control_L", "w")
        self.wait_for_no_window(CONVERT)
        self.open()
        self.assertEqual(self.area(CONVERT), moved)
        self.assertEqual((width, height), (400, 600))


class ContrastWindow(WindowCase):

    BACKGROUND, FOREGROUND = 52, 116  # The middles of the two rows

    def open(self, clipboard="no color"):
        self.desktop.own_clipboard(clipboard)
        self.open_window("contrast", CONTRAST)

    def retype(self, row, text):
        self.click_in(CONTRAST, 200, row)
        self.desktop.wait_until_still()
        self.desktop.key("Control_L", "a")
        self.type_text(text)
        self.desktop.wait_until_still()

    def copied_from(self, row):
        before = self.desktop.clipboard_text()
        self.click_in(CONTRAST, 356, row)
        wait_until(lambda: self.desktop.clipboard_text() != before, "another text to be copied")
        return self.desktop.clipboard_text()

    def test_it_has_its_measures_in_both_modes(self):
        self.open()
        self.assertEqual(self.area(CONTRAST)[2:], (420, 460))
        self.click_in(CONTRAST, 360, 181)
        wait_until(lambda: self.area(CONTRAST)[2:] == (420, 504), "the window of APCA")
        self.assertEqual(self.setting("contrastAlgorithm"), "apca")
        self.click_in(CONTRAST, 280, 181)
        wait_until(lambda: self.area(CONTRAST)[2:] == (420, 460), "the window of WCAG")

    def test_a_fix_from_the_menu_by_keys_repairs_the_pair(self):
        self.open()
        self.retype(self.FOREGROUND, "#C0C0C0")
        self.click_in(CONTRAST, 388, self.FOREGROUND)
        self.desktop.wait_for_menu()
        for _ in range(2):  # Copy As, and past the disabled rows the first fix
            self.desktop.key("Down")
        self.desktop.key("Return")
        self.desktop.wait_until_still()
        # The color itself passes; its text in eight bits is the nearest there is.
        self.assertEqual(self.copied_from(self.FOREGROUND), "#777777")
        self.assertEqual(self.checks_made(), 0)

    def test_swapping_and_reopening_bring_the_pair_back(self):
        self.open()
        self.retype(self.FOREGROUND, "#FF0000")
        self.click_in(CONTRAST, 60, 432)
        self.desktop.wait_until_still()
        self.click_in(CONTRAST, 364, 432)
        self.wait_for_no_window(CONTRAST)
        self.open()
        self.assertEqual(self.copied_from(self.BACKGROUND), "#FF0000")
        self.assertEqual(self.copied_from(self.FOREGROUND), "#FFFFFF")

    def test_a_refused_text_keeps_the_last_good_color(self):
        self.open()
        self.retype(self.BACKGROUND, "#123456zz")
        self.click_in(CONTRAST, 200, self.FOREGROUND)
        self.desktop.wait_until_still()
        self.assertEqual(self.copied_from(self.BACKGROUND), "#123456")

    def test_the_well_changes_the_color_live_and_cancel_takes_it_back(self):
        self.open()
        left, top, _, _ = self.area(CONTRAST)
        before = self.desktop.pixel(left + 30, top + 300)
        self.click_in(CONTRAST, 32, self.BACKGROUND)
        popover = wait_until(self.desktop.open_menu, "the popover")
        self.desktop.wait_until_still()
        self.assertLessEqual(popover[0] + popover[2], left + 16)
        self.desktop.click(popover[0] + popover[2] - 20, popover[1] + 20)
        wait_until(lambda: self.desktop.pixel(left + 30, top + 300) != before, "another color")
        self.desktop.click(popover[0] + popover[2] - 100, popover[1] + popover[3] - 28)
        wait_until(lambda: not self.desktop.open_menu(), "the popover to close")
        wait_until(lambda: self.desktop.pixel(left + 30, top + 300) == before, "the color back")

    def test_clicking_away_from_the_well_keeps_its_color(self):
        self.open()
        self.click_in(CONTRAST, 32, self.BACKGROUND)
        popover = wait_until(self.desktop.open_menu, "the popover")
        self.desktop.wait_until_still()
        self.desktop.click(popover[0] + popover[2] - 12, popover[1] + 12)
        self.desktop.wait_until_still()
        self.desktop.click(*self.at(CONTRAST, 300, 220))
        wait_until(lambda: not self.desktop.open_menu(), "the popover to close")
        self.desktop.wait_until_still()
        self.assertNotEqual(self.copied_from(self.BACKGROUND), "#FFFFFF")

    def test_a_sample_becomes_the_color_of_its_row(self):
        self.open()
        self.click_in(CONTRAST, 324, self.FOREGROUND)
        self.wait_for_loupe()
        self.desktop.click(20, 700)
        self.wait_for_window(CONTRAST)
        self.assertEqual(self.copied_from(self.FOREGROUND), "#D4D4D4")
        self.assertEqual(self.checks_made(), 1)

    def test_a_typed_text_does_not_undo_the_sample_that_came_after_it(self):
        self.open()
        self.retype(self.FOREGROUND, "#FF0000")
        self.click_in(CONTRAST, 324, self.FOREGROUND)
        self.wait_for_loupe()
        self.desktop.click(20, 700)
        self.wait_for_window(CONTRAST)
        self.click_in(CONTRAST, 200, self.FOREGROUND)
        self.desktop.wait_until_still()
        self.click_in(CONTRAST, 200, self.BACKGROUND)
        self.desktop.wait_until_still()
        self.assertEqual(self.copied_from(self.FOREGROUND), "#D4D4D4")

    def test_the_window_follows_the_desktops_scheme_while_it_is_open(self):
        self.open()
        corner = self.at(CONTRAST, 4, 4)
        for scheme in ("dark", "light"):
            self.appearance.set_scheme(scheme)
            wait_until(lambda: self.desktop.pixel(*corner) == GROUND[scheme], scheme)


if __name__ == "__main__":
    unittest.main(verbosity=2)
