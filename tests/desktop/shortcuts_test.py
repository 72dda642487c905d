# Copyright (c) 2026 The Dropshade authors
# SPDX-License-Identifier: MIT
"""Global shortcuts by real keys: on release, once, whatever is locked, open or in the way."""

import json
import pathlib
import subprocess
import time
import unittest

from Xlib import X, XK, display
from Xlib.ext import xtest

from dropshade_case import DropshadeCase, hex_text, wait_until

HOST = str(pathlib.Path(__file__).with_name("status_notifier_host.py"))
CONTROL, OPTION = 0x1000, 0x800
KEY_C = 8
KEYS = ("Control_L", "Alt_L", "c")
# Far from the icon, where the loupe comes up.
UNDER_THE_MENU = (1000, 300)
# Long enough for what must not come.
QUIET_SECONDS = 0.4


def shortcut(key_code, modifiers):
    return json.dumps({"carbonKeyCode": key_code, "carbonModifiers": modifiers})


class ShortcutCase(DropshadeCase):

    def setUp(self):
        super().setUp()
        self.store("KeyboardShortcuts_pickColor", shortcut(KEY_C, CONTROL | OPTION))
        self.restart_program()

    def hold_keys(self):
        for name in KEYS:
            self.desktop.key_down(name)

    def release_keys(self):
        for name in reversed(KEYS):
            self.desktop.key_up(name)

    def assert_picks_once(self):
        """The loupe that is coming up is the only one."""
        self.wait_for_loupe()
        color = self.desktop.pixel(345, 456)
        self.desktop.own_clipboard("before")
        counted = self.copies_counted()
        self.desktop.click(345, 456)
        self.assertEqual(self.copied_text(), hex_text(color))
        wait_until(lambda: self.copies_counted() > counted, "the copy to be counted")
        time.sleep(QUIET_SECONDS)
        self.assertEqual(self.loupe_windows(), 0)
        self.assertEqual(self.copies_counted(), counted + 1)


class Shortcuts(ShortcutCase):

    def test_a_held_shortcut_does_nothing_until_its_release_and_then_picks_once(self):
        self.hold_keys()
        time.sleep(1.0)  # The key repeats meanwhile.
        self.assertEqual(self.loupe_windows(), 0)
        self.release_keys()
        self.assert_picks_once()

    def test_it_works_with_the_lock_keys_on(self):
        for locks in (["Num_Lock"], ["Caps_Lock"], ["Num_Lock", "Caps_Lock"]):
            with self.subTest(locks=locks):
                for name in locks:
                    self.desktop.key(name)
                self.desktop.key(*KEYS)
                for name in locks:
                    self.desktop.key(name)
                self.assert_picks_once()

    def test_it_works_while_the_menu_is_open_and_the_menu_is_not_in_the_picture(self):
        before = self.desktop.pixel(*UNDER_THE_MENU)
        self.click_icon()
        self.desktop.wait_for_menu()
        self.desktop.key(*KEYS)
        self.wait_for_loupe()
        self.assertIsNone(self.desktop.open_menu())
        self.assertEqual(self.desktop.pixel(*UNDER_THE_MENU), before)
        self.assert_picks_once()

    def test_it_works_in_an_open_submenu(self):
        self.desktop.key(*KEYS)
        self.assert_picks_once()
        self.click_icon()
        self.desktop.wait_for_menu()
        # Quick Pick, three windows, three new palettes, Recent Colors.
        for _ in range(8):
            self.desktop.key("Down")
        self.desktop.key("Right")
        wait_until(lambda: len(self.desktop.open_menus()) == 2, "the submenu")
        self.desktop.key(*KEYS)
        self.assert_picks_once()

    def test_it_works_after_the_menu_has_closed(self):
        self.click_icon()
        self.desktop.wait_for_menu()
        self.desktop.key("Escape")
        wait_until(lambda: not self.desktop.open_menu(), "the menu to close")
        self.desktop.key(*KEYS)
        self.assert_picks_once()

    def test_other_combinations_of_the_key_do_nothing(self):
        self.desktop.key("Control_L", "c")
        self.desktop.key("Control_L", "Alt_L", "Shift_L", "c")
        time.sleep(QUIET_SECONDS)
        self.assertEqual(self.loupe_windows(), 0)

    def test_it_goes_on_when_the_layout_is_switched(self):
        self.addCleanup(self.use_layout, "us")
        code = self.desktop._key_code("c")
        for layout in ("gr", "de", "us,ru"):
            with self.subTest(layout=layout):
                self.use_layout(layout)
                self.press_by_code(code)
                self.assert_picks_once()

    def use_layout(self, layout):
        subprocess.run(["setxkbmap", layout], env=self.desktop.environment, check=True)
        # The news comes to every program on its own.
        self.desktop.wait_until_still()
        self.desktop.display.sync()

    def press_by_code(self, code):
        """The same key, whatever it makes now."""
        self.desktop.key_down("Control_L")
        self.desktop.key_down("Alt_L")
        for kind in (X.KeyPress, X.KeyRelease):
            xtest.fake_input(self.desktop.display, kind, code)
        self.desktop.key_up("Alt_L")
        self.desktop.key_up("Control_L")

    def test_a_combination_of_another_program_is_left_to_it_with_a_line_of_output(self):
        self.end_program()
        other = display.Display(self.desktop.environment["DISPLAY"])
        self.addCleanup(other.close)
        root = other.screen().root
        code = other.keysym_to_keycode(XK.string_to_keysym("c"))
        root.grab_key(code, X.ControlMask | X.Mod1Mask, False, X.GrabModeAsync, X.GrabModeAsync)
        other.sync()
        self.program = self.start_program()
        self.icon = self.desktop.tray_icon()
        wait_until(lambda: "Error registering hotkey ⌃⌥C:" in self.desktop.output(), "the line")
        self.desktop.key(*KEYS)
        wait_until(other.pending_events, "the other program's key")
        time.sleep(QUIET_SECONDS)
        self.assertEqual(self.loupe_windows(), 0)
        self.assertEqual(self.pick(20, 30), hex_text(self.desktop.pixel(20, 30)))


class ShortcutsOverStatusNotifier(ShortcutCase):
    TRAY = False

    def setUp(self):
        self.host = self.desktop.start(["/usr/bin/python3", HOST])
        self.addCleanup(self.host.end)
        super().setUp()
        wait_until(lambda: self.ask("Items"), "the item on the panel")

    def ask(self, method, *arguments):
        result = subprocess.run(
            ["gdbus", "call", "--session", "--dest", "org.dropshade.TestHost", "--object-path",
             "/StatusNotifierWatcher", "--method", f"org.dropshade.TestHost.{method}", *arguments],
            env=self.desktop.environment, capture_output=True, text=True, check=False)
        return "'" in result.stdout

    def test_it_works_while_the_menu_is_open(self):
        self.ask("Click", "Activate")
        self.desktop.wait_for_menu()
        self.desktop.key(*KEYS)
        self.assert_picks_once()


if __name__ == "__main__":
    unittest.main(verbosity=2)
