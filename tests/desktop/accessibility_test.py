# Copyright (c) 2026 The Dropshade authors
# SPDX-License-Identifier: MIT
"""The program as a screen reader meets it: by the accessibility bus, and without mouse or keys."""

import json
import signal
import unittest

from accessibility_case import AccessibilityCase, wait_until
from palettes_case import palette, scale

CONTROLS = {"push button", "check box", "radio button", "slider", "text", "tree", "list item"}


class Accessibility(AccessibilityCase):

    def setUp(self):
        super().setUp()
        library = [palette("Sea", scale("Deep", "#000080", "#0000ff")),
                   palette("Land", scale("Wood", "#008000"))]
        self.store("userPalettes", json.dumps(library).encode())
        self.store("collapsedPaletteIds", [library[1]["id"]])
        self.program.send(signal.SIGKILL)  # It would save what it has.
        self.restart_program()

    def open(self, action, title):
        self.activate_action(action)
        self.wait_for_window(title)

    def open_with_listener(self, action, title):
        """The listener's path, once it has heard of the window: the program learns a moment after it
        that somebody listens."""
        path = self.listen()
        self.open(action, title)
        wait_until(lambda: self.heard(path), "news of the window")
        return path

    def names(self, window, role):
        return [thing["name"] for thing in self.things(window) if thing["role"] == role]

    def expect_all_named(self, window):
        things = self.things(window)
        self.assertIn(things[0]["role"], ("frame", "window"))
        controls = [thing for thing in things if thing["role"] in CONTROLS]
        self.assertGreater(len(controls), 5)
        for thing in controls:
            self.assertTrue(thing["name"], thing)
            if "sensitive" in thing["states"]:
                self.assertTrue(thing["actions"], thing)

    def test_every_control_of_a_window_has_a_role_a_name_and_something_to_do(self):
        for action, title in (("palettes", "Palettes"), ("contrast", "Check Contrast"),
                              ("convert", "Color Picker")):
            with self.subTest(window=title):
                self.open(action, title)
                self.expect_all_named(title)

    def test_a_palette_opens_and_a_color_is_copied_without_mouse_or_keys(self):
        self.open("palettes", "Palettes")
        self.assertIn("#0000ff", self.names("Palettes", "push button"))
        self.do("Palettes", "push button", "Land", "Press")
        wait_until(lambda: "#008000" in self.names("Palettes", "push button"), "the other palette")
        self.desktop.own_clipboard("before")
        self.do("Palettes", "push button", "#008000", "Press")
        wait_until(lambda: self.desktop.clipboard_text() == "#008000", "the copied text")

    def test_a_screen_reader_is_told_of_a_copy(self):
        path = self.open_with_listener("contrast", "Check Contrast")
        self.do("Check Contrast", "push button", "Copy", "Press")
        notices = wait_until(lambda: [heard["name"] for heard in self.heard(path)
                                      if heard["role"] == "notification"], "the announcement")
        self.assertIn("#FFFFFF", notices[0])

    def test_a_menu_opens_for_a_color_and_its_rows_have_names(self):
        path = self.open_with_listener("palettes", "Palettes")
        self.do("Palettes", "push button", "#0000ff", "ShowMenu")
        wait_until(self.desktop.open_menu, "the menu")
        wait_until(lambda: [heard for heard in self.heard(path)
                            if heard["role"] == "popup menu"], "news of the menu")
        self.desktop.key("Escape")

    def test_the_alert_before_a_deletion_says_what_it_asks(self):
        self.open("palettes", "Palettes")
        self.do("Palettes", "push button", "#0000ff", "ShowMenu")
        self.desktop.wait_for_menu()
        self.desktop.key("Up")
        self.desktop.key("Return")
        things = self.things("Delete this color?")
        self.assertEqual(things[0]["role"], "alert")
        self.do("Delete this color?", "push button", "Delete", "Press")
        wait_until(lambda: "#0000ff" not in self.names("Palettes", "push button"),
                   "the color to go")

    def test_nothing_of_a_closed_window_is_left(self):
        self.open("palettes", "Palettes")
        self.assertTrue(self.things("Palettes"))
        self.desktop.key("Escape")
        self.wait_for_no_window("Palettes")
        wait_until(lambda: not self.ask("list", "Palettes"), "the window to leave the tree")


if __name__ == "__main__":
    unittest.main(verbosity=2)
