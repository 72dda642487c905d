# Copyright (c) 2026 The Dropshade authors
# SPDX-License-Identifier: MIT
"""The status menu on a Wayland desktop, where it is a window of its own."""

import time
import unittest

from wayland_case import MENU, WaylandCase, wait_until

CONVERT = "Color Picker"
CONVERT_ROW = 2
GROUND = (0x33, 0x66, 0x99)
# The middle of the row of recent colours, from the top and from the bottom of the menu.
FIRST_ROW, RECENT_ROW_FROM_BOTTOM = 60, 151
BAR = """bar {
    position top
    tray_output *
    status_command while echo; do sleep 60; done
}
"""


class MenuCase(WaylandCase):

    def wait_for_no_menu(self):
        self.wait_for_no_window(MENU)


class StatusMenu(MenuCase):

    def test_it_has_its_own_size_no_frame_the_keyboard_and_the_middle_of_the_screen(self):
        left, top, width, height = self.open_menu()
        # Either way the desktop draws no frame: it is ours to draw, or nobody does.
        self.assertIn(self.desktop.window(MENU)["border"], ("csd", "none"))
        self.assertTrue(250 < width < 400 and 380 < height < 480, f"{width} x {height}")
        self.assertAlmostEqual(left + width / 2, self.desktop.width / 2, delta=1)
        self.assertAlmostEqual(top + height / 2, self.desktop.height / 2, delta=1)
        # Without a frame the corners show what is under them.
        self.assertEqual(self.desktop.pixel(left, top), GROUND)
        self.assertNotEqual(self.desktop.pixel(left + width // 2, top + 1), GROUND)

    def test_escape_closes_it(self):
        self.open_menu()
        self.hand.key("Escape")
        self.wait_for_no_menu()

    def test_a_click_on_the_desktop_closes_it(self):
        left, top, _, _ = self.open_menu()
        self.hand.click(left - 100, top - 100)
        self.wait_for_no_menu()

    def test_a_second_click_on_the_icon_closes_it_and_a_third_opens_it(self):
        self.open_menu()
        self.click_icon()
        self.wait_for_no_menu()
        self.open_menu()

    def test_it_opens_apart_from_the_programs_windows_and_a_click_into_one_closes_it(self):
        self.choose(CONVERT_ROW)
        left, top, _, _ = self.desktop.wait_for_window(CONVERT)
        menu = self.open_menu()
        self.assertAlmostEqual(menu[1] + menu[3] / 2, self.desktop.height / 2, delta=1)
        # As far from the window's corner as the last row is from the menu's.
        self.hand.click(left + 100, top + menu[3] - 20)
        self.wait_for_no_menu()
        wait_until(lambda: self.desktop.focused_title() == CONVERT, "the keyboard in the window")
        self.assertIsNone(self.program.returncode)

    def test_another_window_that_gets_the_keyboard_closes_it(self):
        self.choose(CONVERT_ROW)
        self.desktop.wait_for_window(CONVERT)
        self.open_menu()
        self.desktop.sway(f'[title="{CONVERT}"] focus')
        self.wait_for_no_menu()


class Submenus(MenuCase):

    def prepare_desktop(self):
        self.start_portal()

    def setUp(self):
        super().setUp()
        # Nothing has been pressed in any of the program's windows yet: a menu that only the pointer
        # goes through must do without.
        self.ask_panel("Click", "SecondaryActivate")
        self.wait_for_clipboard("#FF8001")
        wait_until(self.copies_counted, "the colour to be counted")

    def hover_over_recent_colors(self, menu):
        """Opens the submenu as a hand does, by way of other rows."""
        left, top, width, height = menu
        start, end = top + FIRST_ROW, top + height - RECENT_ROW_FROM_BOTTOM
        for step in range(21):
            self.hand.move(left + width / 4, start + (end - start) * step / 20)
            time.sleep(0.01)
        return end

    def submenu_shows(self, x, y):
        return lambda: self.desktop.pixel(round(x), round(y)) != GROUND

    def test_the_pointer_alone_opens_one_beside_the_menu_and_a_click_there_copies(self):
        menu = self.open_menu()
        y = self.hover_over_recent_colors(menu)
        x = menu[0] + menu[2] + 60
        wait_until(self.submenu_shows(x, y), "the submenu")
        self.desktop.wait_until_still()
        self.save_screenshot("wayland-submenu.png")
        # Over the menu's own rows lies nothing of it.
        self.assertNotEqual(self.desktop.pixel(menu[0] + menu[2] // 2, round(y)), GROUND)
        self.hand.move(menu[0] + menu[2] - 10, y)
        self.assertEqual(self.desktop.clipboard_text(), "#FF8001")
        self.hand.click(x, y)
        self.wait_for_no_menu()

    def test_keys_open_one_and_choose_in_it(self):
        self.open_menu()
        for key in ("Up",) * 5 + ("Right", "Return"):
            self.hand.key(key)
        self.wait_for_no_menu()
        self.wait_for_clipboard("#FF8001")

    def test_a_click_on_the_desktop_closes_it_with_the_menu(self):
        menu = self.open_menu()
        y = self.hover_over_recent_colors(menu)
        wait_until(self.submenu_shows(menu[0] + menu[2] + 60, y), "the submenu")
        self.hand.click(menu[0] - 100, menu[1] - 100)
        self.wait_for_no_menu()
        self.assertEqual(self.desktop.pixel(menu[0] + menu[2] + 60, round(y)), GROUND)

    def test_escape_closes_it_first_and_then_the_menu(self):
        menu = self.open_menu()
        y = self.hover_over_recent_colors(menu)
        shows = self.submenu_shows(menu[0] + menu[2] + 60, y)
        wait_until(shows, "the submenu")
        self.hand.key("Escape")
        wait_until(lambda: not shows(), "the submenu to close")
        self.assertTrue(self.desktop.window(MENU))
        self.hand.key("Escape")
        self.wait_for_no_menu()


class OnSwaysOwnBar(MenuCase):
    """With clicks on the icon itself, and with a rule by which sway puts the menu near it."""

    MORE = (BAR + f'for_window [app_id="org.dropshade.Dropshade" title="^{MENU}$"] '
            "move position 76 ppt 4 ppt")

    def start_panel(self):
        """It is in the desktop's configuration."""

    def has_icon(self):
        area = self.desktop.width - 24, 0, 24, 20
        return len(set(self.desktop.grab(*area)[0::3])) > 2

    def click_icon(self):
        self.hand.click(self.desktop.width - 12, 10)

    def test_clicks_on_the_icon_open_the_menu_there_and_close_it(self):
        left, top, _, _ = self.open_menu()
        self.assertAlmostEqual(left, 0.76 * self.desktop.width, delta=2)
        self.assertAlmostEqual(top, 0.04 * self.desktop.height, delta=24)
        self.click_icon()
        self.wait_for_no_menu()


if __name__ == "__main__":
    unittest.main(verbosity=2)
