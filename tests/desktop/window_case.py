# Copyright (c) 2026 The Dropshade authors
# SPDX-License-Identifier: MIT
"""What the tests of the program's windows share: opening one from the menu, and a hand in it."""

import pathlib
import subprocess

from desktop_settings import DesktopSettings
from dropshade_case import DropshadeCase, wait_until

GROUND = {"dark": (0x1E, 0x1E, 0x1E), "light": (0xF4, 0xF4, 0xF4)}
MENU_ROWS = {"convert": 2, "contrast": 4}

# The fonts that the look was drawn with, where they are installed.
FONTS = """<?xml version="1.0"?><!DOCTYPE fontconfig SYSTEM "fonts.dtd"><fontconfig>
<dir>/usr/share/fonts</dir><cachedir prefix="xdg">fontconfig</cachedir>
<match target="pattern"><test name="family"><string>Sans Serif</string></test>
<edit name="family" mode="assign" binding="strong"><string>Inter</string></edit></match>
<match target="pattern"><test name="family"><string>monospace</string></test>
<edit name="family" mode="assign" binding="strong"><string>JetBrains Mono</string></edit></match>
</fontconfig>"""


class WindowCase(DropshadeCase):
    """The desktop with a portal, `self.appearance`; `self.scale` is that of the program."""

    scale = 1

    @classmethod
    def prepare_desktop(cls):
        cls.desktop.paint([(0, 0, cls.WIDTH, cls.HEIGHT, (0xD4, 0xD4, 0xD4))])
        fonts = pathlib.Path(cls.desktop.environment["HOME"]) / "fonts.conf"
        fonts.write_text(FONTS)
        cls.desktop.environment["FONTCONFIG_FILE"] = str(fonts)
        cls.appearance = DesktopSettings(cls.desktop)

    def start_program(self, **variables):
        return super().start_program(QT_SCALE_FACTOR=str(self.scale), **variables)

    def setUp(self):
        super().setUp()
        self.checks_before = self.copies_counted()

    def checks_made(self):
        """Colours copied and sampled since the test began."""
        return self.copies_counted() - self.checks_before

    # Windows

    def window(self, title):
        """The managed window of that title, or None."""
        def search(window, depth):
            try:
                name = window.get_full_text_property(
                    self.desktop.display.intern_atom("_NET_WM_NAME"))
                if name == title and window.get_wm_state() and \
                        window.get_attributes().map_state == 2:
                    return window
                children = window.query_tree().children if depth < 3 else []
            except Exception:  # The window has gone meanwhile.
                return None
            return next((found for child in children if (found := search(child, depth + 1))), None)
        return search(self.desktop.root, 0)

    def area(self, title):
        """x, y, width, height of the window's content on the screen."""
        window = self.window(title)
        return self.desktop.rectangle_of(window) if window else None

    def has_keyboard(self, title):
        atom = self.desktop.display.intern_atom("_NET_ACTIVE_WINDOW")
        active = self.desktop.root.get_full_property(atom, 0)
        window = self.window(title)
        return bool(window and active and active.value[0] == window.id)

    def open_window(self, which, title):
        self.desktop.pause_after_closing_click()
        self.click_icon()
        self.desktop.wait_for_menu()
        for _ in range(MENU_ROWS[which]):
            self.desktop.key("Down")
        self.desktop.key("Return")
        return self.wait_for_window(title)

    def wait_for_window(self, title):
        wait_until(lambda: self.has_keyboard(title), f"the window {title}")
        self.desktop.wait_until_still()
        return self.area(title)

    def wait_for_no_window(self, title):
        wait_until(lambda: not self.window(title), f"{title} to close")

    def at(self, title, x, y):
        """The place on the screen of a place in the window, in logical pixels."""
        left, top, _, _ = self.area(title)
        return left + round(x * self.scale), top + round(y * self.scale)

    def click_in(self, title, x, y, button=1):
        self.desktop.click(*self.at(title, x, y), button=button)

    def type_text(self, text):
        subprocess.run(["xdotool", "type", "--delay", "4", text], check=True,
                       env=self.desktop.environment)

    def save_window(self, title, name, margin=40):
        left, top, width, height = self.area(title)
        x, y = max(0, left - margin), max(0, top - margin)
        self.save_screenshot(name, (x, y, min(width + 2 * margin, self.WIDTH - x),
                                    min(height + 2 * margin, self.HEIGHT - y)))
