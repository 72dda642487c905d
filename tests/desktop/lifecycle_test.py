# Copyright (c) 2026 The Dropshade authors
# SPDX-License-Identifier: MIT
"""How the program comes and goes: trays that start late, second starts, ends of sessions."""

import signal
import unittest

from dropshade_case import DropshadeCase, hex_text, wait_until


class Lifecycle(DropshadeCase):

    def test_a_left_click_opens_the_menu_and_a_second_one_closes_it(self):
        self.click_icon()
        self.desktop.wait_for_menu()
        self.save_screenshot("menu.png")
        self.desktop.click()
        wait_until(lambda: not self.desktop.open_menu(), "the menu to close")

    def test_the_menu_closes_on_escape_and_opens_again_at_the_next_click(self):
        for _ in range(3):
            self.click_icon()
            self.desktop.wait_for_menu()
            self.desktop.key("Escape")
            wait_until(lambda: not self.desktop.open_menu(), "the menu to close")
            self.desktop.pause_after_closing_click()

    def test_a_second_start_hands_over_to_the_first_and_ends_with_0(self):
        second = self.start_program()
        self.assertEqual(second.wait(), 0)
        self.desktop.wait_for_menu()
        self.assertIsNone(self.program.returncode)
        self.desktop.key("Escape")

    def test_quit_in_the_menu_ends_with_0(self):
        self.click_icon()
        self.desktop.wait_for_menu()
        self.desktop.key("Up")
        self.desktop.key("Return")
        self.assertEqual(self.program.wait(), 0)

    def test_the_end_of_a_session_is_an_orderly_quit(self):
        for number in (signal.SIGTERM, signal.SIGINT, signal.SIGHUP):
            with self.subTest(signal=number):
                self.program.send(number)
                self.assertEqual(self.program.wait(), 0)
                wait_until(lambda: not self.desktop.has_tray_icon(), "the icon to go")
                self.program = self.start_program()
                self.icon = self.desktop.tray_icon()

    def test_a_quit_while_the_loupe_is_up_frees_the_pointer_and_the_keyboard(self):
        self.click_icon(3)
        self.wait_for_loupe()
        self.program.send(signal.SIGTERM)
        self.assertEqual(self.program.wait(), 0)
        self.wait_for_no_loupe()


class LateTray(DropshadeCase):
    TRAY = False

    def test_a_tray_that_starts_after_the_program_still_gets_the_icon(self):
        wait_until(lambda: self.desktop.bus_has_name("org.dropshade.Dropshade"), "the program")
        self.assertFalse(self.desktop.has_tray_icon())
        tray = self.desktop.start_tray()
        self.desktop.tray_icon()
        tray.end()
        wait_until(lambda: not self.desktop.has_tray_icon(), "the icon to go with its tray")
        tray = self.desktop.start_tray()
        self.icon = self.desktop.tray_icon()
        self.click_icon()
        self.desktop.wait_for_menu()
        self.desktop.key("Escape")
        tray.end()


class NoMessageBus(DropshadeCase):
    VARIABLES = {"DBUS_SESSION_BUS_ADDRESS": "unix:path=/nonexistent"}

    def test_without_a_message_bus_the_program_still_picks(self):
        color = self.desktop.pixel(200, 300)
        self.assertEqual(self.pick(200, 300), hex_text(color))


if __name__ == "__main__":
    unittest.main(verbosity=2)
