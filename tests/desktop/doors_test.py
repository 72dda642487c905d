# Copyright (c) 2026 The Dropshade authors
# SPDX-License-Identifier: MIT
"""Ways in without a mouse and without an icon: the keyboard, the bus, a second start."""

import json
import time
import unittest
import uuid

from Xlib import X

from dropshade_case import DropshadeCase, hex_text, wait_until

# How long the program waits for a status area before it says that there is none.
HOST_PATIENCE_SECONDS = 10


def new_id():
    return str(uuid.uuid4()).upper()


class KeyboardOnly(DropshadeCase):
    """The pointer stays where it is: in the middle of the screen, over no menu."""

    def open_by_second_start(self):
        self.desktop.pause_after_closing_click()
        self.assertEqual(self.start_program().wait(), 0)
        self.desktop.wait_for_menu()

    def remember_colors(self):
        """A recent colour, and a pin on the first swatch of the first palette."""
        wait_until(lambda: self.setting("userPalettes"), "the first palettes")
        palette = json.loads(self.setting("userPalettes"))[0]
        scale = palette["scales"][0]
        swatch = scale["swatches"][0]
        pin = {"id": new_id(), "paletteId": palette["id"], "paletteName": palette["name"],
               "scaleId": scale["id"], "scaleName": scale["name"], "swatchId": swatch["id"],
               "value": swatch["value"], "pinnedAt": 700000000}
        recent = {"id": new_id(), "red": 1, "green": 0, "blue": 0.2, "alpha": 1}
        self.store("pinnedColors", json.dumps([pin]).encode())
        self.store("recentColors", json.dumps([recent]).encode())
        self.restart_program()
        return swatch["value"]

    def test_the_first_row_picks(self):
        self.open_by_second_start()
        self.desktop.key("Down")
        self.desktop.key("Return")
        self.wait_for_loupe()
        self.desktop.key("Escape")
        self.wait_for_no_loupe()

    def test_a_favourite_and_a_recent_color_are_copied_and_count_for_nothing(self):
        value = self.remember_colors()
        counted = self.copies_counted()
        self.desktop.own_clipboard("before")
        self.open_by_second_start()
        # Quick Pick, three windows, three new palettes, Favorites.
        for _ in range(8):
            self.desktop.key("Down")
        self.desktop.key("Right")
        wait_until(lambda: len(self.desktop.open_menus()) == 2, "the submenu")
        self.save_screenshot("menu-favourites.png")
        self.desktop.key("Return")
        self.assertEqual(self.copied_text().lower(), value.lower())

        self.desktop.own_clipboard("before")
        self.open_by_second_start()
        for _ in range(9):
            self.desktop.key("Down")
        self.desktop.key("Right")
        wait_until(lambda: len(self.desktop.open_menus()) == 2, "the submenu")
        self.desktop.key("Return")
        self.assertEqual(self.copied_text(), "#FF0033")
        self.assertEqual(self.copies_counted(), counted)

    def test_the_key_of_a_row_works_while_the_menu_is_open(self):
        self.open_by_second_start()
        self.desktop.key("Control_L", "q")
        self.assertEqual(self.program.wait(), 0)

    def test_escape_closes_a_submenu_first_and_then_the_menu(self):
        self.remember_colors()
        self.open_by_second_start()
        for _ in range(8):
            self.desktop.key("Down")
        self.desktop.key("Right")
        wait_until(lambda: len(self.desktop.open_menus()) == 2, "the submenu")
        self.desktop.key("Escape")
        wait_until(lambda: len(self.desktop.open_menus()) == 1, "the submenu to close")
        self.desktop.key("Escape")
        wait_until(lambda: not self.desktop.open_menus(), "the menu to close")


class Bus(DropshadeCase):
    TRAY = False

    def setUp(self):
        super().setUp()
        wait_until(lambda: self.desktop.bus_has_name("org.dropshade.Dropshade"), "the program")

    def test_the_action_of_the_desktop_entry_picks(self):
        color = self.desktop.pixel(300, 200)
        self.desktop.own_clipboard("before")
        self.activate_action("quick-pick")
        self.wait_for_loupe()
        self.desktop.click(300, 200)
        self.assertEqual(self.copied_text(), hex_text(color))

    def test_the_program_opens_its_menu_when_activated(self):
        answer = self.call_program("Activate", "{}")
        self.assertEqual(answer.returncode, 0, answer.stderr)
        self.desktop.wait_for_menu()
        self.desktop.key("Escape")

    def test_an_unknown_action_is_refused(self):
        answer = self.call_program("ActivateAction", "dance", "[]", "{}")
        self.assertNotEqual(answer.returncode, 0)
        self.assertIn("InvalidArgs", answer.stderr)


class NoStatusArea(DropshadeCase):
    TRAY = False

    def test_the_program_says_once_how_it_is_reached(self):
        wait_until(self.managed_windows, "a word about it", HOST_PATIENCE_SECONDS + 10)
        self.save_screenshot("no-status-area.png")
        self.desktop.key("Return")
        wait_until(lambda: not self.managed_windows(), "the message to go")
        self.restart_program()
        time.sleep(HOST_PATIENCE_SECONDS + 2)
        self.assertEqual(self.managed_windows(), [])

    def managed_windows(self):
        names = self.desktop.root.get_full_property(
            self.desktop.display.intern_atom("_NET_CLIENT_LIST"), X.AnyPropertyType)
        return list(names.value) if names else []


if __name__ == "__main__":
    unittest.main(verbosity=2)
