# Copyright (c) 2026 The Dropshade authors
# SPDX-License-Identifier: MIT
"""The settings and about windows by real clicks and keys; shortcuts recorded on a real keyboard."""

import contextlib
import json
import pathlib
import sqlite3
import subprocess
import time
import unittest

from Xlib import X, XK, display

from dropshade_case import wait_until
from window_case import GROUND, WindowCase

SETTINGS = "Dropshade Settings"
ABOUT = "About"
# From the menu's end.
ROWS_UP = {SETTINGS: 4, ABOUT: 3}
CONTROL, OPTION, COMMAND = 0x1000, 0x800, 0x100
KEY_C, KEY_P, KEY_SPACE, KEY_F7 = 8, 35, 49, 98
PICK, CONVERT, PALETTES, CONTRAST = range(4)
NAMES = ["pickColor", "convert", "palettes", "checkContrast"]
LEFT, CONTROLS = 100, 368
LOGIN_ROW, SYNC_ROW, RECENT_ROW = 197, 280, 115
TOGGLES = 438
# Long enough for what must not come.
QUIET_SECONDS = 0.4


class SettingsCase(WindowCase):
    HEIGHT = 1100

    def open(self, title):
        self.desktop.pause_after_closing_click()
        self.click_icon()
        self.desktop.wait_for_menu()
        for _ in range(ROWS_UP[title]):
            self.desktop.key("Up")
        self.desktop.key("Return")
        return self.wait_for_window(title)

    def recorder(self, row):
        """The middle of a recorder, in the window: they end the form, a row of 41 each."""
        _, _, _, height = self.area(SETTINGS)
        return CONTROLS - 40, height / self.scale - 48 - 41 * (4 - row) + 20

    def shortcut(self, row):
        text = self.setting("KeyboardShortcuts_" + NAMES[row])
        if not text:
            return None
        fields = json.loads(text)
        return fields["carbonKeyCode"], fields["carbonModifiers"]

    def record(self, row, *keys):
        self.click_in(SETTINGS, *self.recorder(row))
        self.desktop.wait_until_still()
        self.desktop.key(*keys)

    def wait_for_shortcut(self, row, key_code, modifiers):
        wait_until(lambda: self.shortcut(row) == (key_code, modifiers),
                   f"the shortcut, which is {self.shortcut(row)}")

    def forget_shortcuts(self):
        folder = pathlib.Path(self.desktop.environment["XDG_CONFIG_HOME"])
        for file in folder.rglob("defaults.sqlite"):
            with contextlib.closing(sqlite3.connect(file)) as settings:
                settings.execute("DELETE FROM defaults WHERE key LIKE 'KeyboardShortcuts%'")
                settings.commit()

    def wait_for_alert(self):
        wait_until(lambda: not self.has_keyboard(SETTINGS), "the alert")
        self.desktop.wait_until_still()

    def wait_for_no_alert(self):
        wait_until(lambda: self.has_keyboard(SETTINGS), "the alert to go")
        self.desktop.wait_until_still()


class Recorder(SettingsCase):

    def setUp(self):
        self.forget_shortcuts()
        super().setUp()
        self.open(SETTINGS)

    def test_a_recorded_shortcut_is_stored_and_picks_at_once(self):
        self.record(PICK, "Control_L", "Alt_L", "p")
        self.wait_for_shortcut(PICK, KEY_P, CONTROL | OPTION)
        time.sleep(QUIET_SECONDS)
        self.assertEqual(self.loupe_windows(), 0, "its own recording fires nothing")
        self.desktop.key("Control_L", "Alt_L", "p")
        self.wait_for_loupe()
        self.desktop.key("Escape")
        self.wait_for_no_loupe()

    def test_a_bound_shortcut_is_recorded_and_does_not_fire(self):
        self.record(PICK, "Control_L", "Alt_L", "p")
        self.wait_for_shortcut(PICK, KEY_P, CONTROL | OPTION)
        self.record(CONTRAST, "Control_L", "Alt_L", "p")
        self.wait_for_shortcut(CONTRAST, KEY_P, CONTROL | OPTION)
        time.sleep(QUIET_SECONDS)
        self.assertEqual(self.loupe_windows(), 0)
        self.assertTrue(self.window(SETTINGS))

    def test_plain_letters_are_refused_and_function_keys_are_not(self):
        self.record(PICK, "p")
        self.desktop.key("Shift_L", "p")
        time.sleep(QUIET_SECONDS)
        self.assertIsNone(self.shortcut(PICK))
        self.desktop.key("F7")
        self.wait_for_shortcut(PICK, KEY_F7, 0)

    def test_the_lock_keys_make_no_difference(self):
        self.desktop.key("Num_Lock")
        self.desktop.key("Caps_Lock")
        try:
            self.record(PALETTES, "Super_L", "space")
            self.wait_for_shortcut(PALETTES, KEY_SPACE, COMMAND)
        finally:
            self.desktop.key("Num_Lock")
            self.desktop.key("Caps_Lock")

    def test_backspace_clears_and_the_tab_key_moves_on(self):
        self.record(PICK, "Control_L", "Alt_L", "p")
        self.wait_for_shortcut(PICK, KEY_P, CONTROL | OPTION)
        self.record(PICK, "Tab")
        self.desktop.key("Tab")  # Past the button that clears; the next recorder listens.
        self.desktop.key("Control_L", "Alt_L", "c")
        self.wait_for_shortcut(CONVERT, KEY_C, CONTROL | OPTION)
        self.assertEqual(self.shortcut(PICK), (KEY_P, CONTROL | OPTION))
        self.record(PICK, "BackSpace")
        wait_until(lambda: self.shortcut(PICK) is None, "the shortcut to go")

    def test_escape_ends_a_recording_and_only_then_closes_the_window(self):
        self.record(PICK, "Escape")
        time.sleep(QUIET_SECONDS)
        self.assertTrue(self.window(SETTINGS))
        self.assertIsNone(self.shortcut(PICK))
        self.desktop.key("Escape")
        self.wait_for_no_window(SETTINGS)

    def test_the_keys_that_close_windows_are_recorded_like_others(self):
        self.record(PICK, "Control_L", "w")
        self.wait_for_shortcut(PICK, 13, CONTROL)
        self.assertTrue(self.window(SETTINGS))

    def test_a_key_of_the_edit_menu_gives_an_alert_and_then_it_listens_again(self):
        self.record(PICK, "Control_L", "c")
        self.wait_for_alert()
        self.save_screenshot("recorder-alert.png")
        self.desktop.key("Escape")
        self.wait_for_no_alert()
        self.assertIsNone(self.shortcut(PICK))
        self.desktop.key("Control_L", "Alt_L", "p")
        self.wait_for_shortcut(PICK, KEY_P, CONTROL | OPTION)

    def test_what_another_program_has_can_be_forced_and_shows(self):
        # That program forgot the lock keys, so with one on the combination comes through to us.
        other = display.Display(self.desktop.environment["DISPLAY"])
        code = other.keysym_to_keycode(XK.string_to_keysym("p"))
        other.screen().root.grab_key(code, X.ControlMask, False, X.GrabModeAsync, X.GrabModeAsync)
        other.sync()
        self.desktop.key("Num_Lock")
        try:
            self.record(PICK, "Control_L", "p")
            self.wait_for_alert()
            self.save_screenshot("recorder-system-alert.png")
            self.desktop.key("Escape")
            self.wait_for_no_alert()
            self.assertIsNone(self.shortcut(PICK))
            self.desktop.key("Control_L", "p")
            self.wait_for_alert()
            self.desktop.key("Tab")
            self.desktop.key("space")
            self.wait_for_shortcut(PICK, KEY_P, CONTROL)
        finally:
            self.desktop.key("Num_Lock")
            other.close()

    def test_a_click_elsewhere_ends_the_recording(self):
        self.click_in(SETTINGS, *self.recorder(PICK))
        self.desktop.wait_until_still()
        self.click_in(SETTINGS, LEFT, 30)
        # Clicks go by way of the window manager, and keys overtake them.
        self.desktop.wait_until_still()
        self.desktop.key("Control_L", "Alt_L", "p")
        time.sleep(QUIET_SECONDS)
        self.assertIsNone(self.shortcut(PICK))


class Rows(SettingsCase):

    def autostart(self):
        return pathlib.Path(self.desktop.environment["XDG_CONFIG_HOME"]) / \
            "autostart/org.dropshade.Dropshade.desktop"

    def test_start_at_login_is_the_desktops_own_entry(self):
        self.open(SETTINGS)
        self.click_in(SETTINGS, TOGGLES, LOGIN_ROW)
        wait_until(self.autostart().exists, "the entry")
        subprocess.run(["desktop-file-validate", str(self.autostart())], check=True)
        self.click_in(SETTINGS, TOGGLES, LOGIN_ROW)
        wait_until(lambda: not self.autostart().exists(), "the entry to go")

    def test_a_login_entry_that_cannot_be_written_leaves_the_toggle_off(self):
        folder = self.autostart().parent
        folder.write_text("a file where the folder should be")
        self.addCleanup(folder.unlink)
        self.open(SETTINGS)
        before = self.desktop.pixel(*self.at(SETTINGS, TOGGLES - 12, LOGIN_ROW))
        self.click_in(SETTINGS, TOGGLES, LOGIN_ROW)
        self.desktop.move(*self.at(SETTINGS, 20, 20))
        self.desktop.wait_until_still()
        self.assertEqual(self.desktop.pixel(*self.at(SETTINGS, TOGGLES - 12, LOGIN_ROW)), before)

    def test_ninety_nine_recent_colors_are_fifty(self):
        self.open(SETTINGS)
        self.click_in(SETTINGS, 430, RECENT_ROW)
        self.desktop.wait_until_still()
        self.desktop.key("Control_L", "a")
        self.type_text("99")
        self.desktop.key("Return")
        wait_until(lambda: self.setting("recentColorsLimit") == 50, "the limit")

    def test_the_window_is_the_same_after_a_close_and_where_the_user_put_it(self):
        first = self.open(SETTINGS)
        self.desktop.key("Escape")
        self.wait_for_no_window(SETTINGS)
        again = self.open(SETTINGS)
        self.assertEqual(first[2:], again[2:])

    def test_sync_shows_where_its_data_is_and_the_window_grows_with_it(self):
        before = self.open(SETTINGS)
        self.click_in(SETTINGS, TOGGLES, SYNC_ROW)
        wait_until(lambda: self.area(SETTINGS)[3] > before[3] + 60, "the fields")
        self.desktop.wait_until_still()
        self.click_in(SETTINGS, TOGGLES, SYNC_ROW)
        wait_until(lambda: self.area(SETTINGS)[3] == before[3], "the fields to go")


class Pictures(SettingsCase):

    def take(self, suffix):
        for scheme in ("light", "dark"):
            self.appearance.set_scheme(scheme)
            for title, name in ((SETTINGS, "settings"), (ABOUT, "about")):
                self.open(title)
                wait_until(lambda: self.desktop.pixel(*self.at(title, 4, 4)) == GROUND[scheme],
                           "the scheme")
                self.desktop.wait_until_still()
                self.save_window(title, f"{name}-{scheme}-{suffix}.png")
                self.desktop.key("Escape")
                self.wait_for_no_window(title)

    def test_both_windows_are_drawn_in_the_desktops_scheme(self):
        self.take("1x")


class PicturesAtScale2(Pictures):
    scale = 2
    HEIGHT = 1800

    def test_both_windows_are_drawn_in_the_desktops_scheme(self):
        self.take("2x")


if __name__ == "__main__":
    unittest.main(verbosity=2)
