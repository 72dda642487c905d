# Copyright (c) 2026 The Dropshade authors
# SPDX-License-Identifier: MIT
"""What the tests of the palettes window share: a library of their own, and the window open."""

import json
import signal
import time
import uuid

from Xlib import X, error

from dropshade_case import DropshadeCase, wait_until

TOP_BAR, HEADER, ROW, LINE = 48, 40, 38, 1
LABEL, SWATCH, GAP = 107, 30, 3


def identifier():
    return str(uuid.uuid4()).upper()


def swatch(value, label=None):
    made = {"id": identifier(), "value": value}
    return {**made, "label": label} if label else made


def scale(name, *values):
    return {"id": identifier(), "name": name, "swatches": [swatch(value) for value in values]}


def palette(name, *scales):
    return {"id": identifier(), "name": name, "scales": list(scales), "lastModified": 700000000.5}


class PalettesCase(DropshadeCase):
    """`self.palettes()` is what the program starts with; the first palette is open."""

    SETTINGS = {}

    @classmethod
    def prepare_desktop(cls):
        cls.desktop.paint([(0, 0, cls.WIDTH, cls.HEIGHT, (120, 120, 120))])

    def palettes(self):
        return [palette("Sea", scale("Deep", "#000080", "#0000ff", "#00ffff"),
                        scale("Shore", "#d2b48c", "#fff8dc")),
                palette("Land", scale("Wood", "#008000"))]

    def setUp(self):
        super().setUp()
        self.library = self.palettes()
        self.store("userPalettes", json.dumps(self.library).encode())
        self.store("collapsedPaletteIds", [item["id"] for item in self.library[1:]])
        for key, value in self.SETTINGS.items():
            self.store(key, value)
        self.program.send(signal.SIGKILL)  # It would save what it has.
        self.restart_program()
        self.open_palettes()

    def stored_palettes(self):
        return json.loads(self.setting("userPalettes"))

    def stored_values(self, palette_index=0, scale_index=0):
        swatches = self.stored_palettes()[palette_index]["scales"][scale_index]["swatches"]
        return [item["value"] for item in swatches]

    def open_palettes(self):
        self.activate_action("palettes")
        self.window = self.wait_for_window("Palettes")
        self.desktop.wait_until_still()

    def wait_for_window(self, title):
        """The window of that title, once it is shown and has the keyboard."""
        def find():
            focus = self.desktop.display.get_input_focus().focus
            window = self.find_window(title)
            return window if window and focus == window else None
        return wait_until(find, f"the window {title}")

    def find_window(self, title):
        """The managed window with that title, or None."""
        return self._find_window(self.desktop.root, title)

    def _find_window(self, window, title):
        try:
            if window.get_attributes().map_state != X.IsViewable:
                return None
            if window.get_wm_name() == title and window.get_wm_class():
                return window
            children = window.query_tree().children
        except error.XError:
            return None
        for child in children:
            inner = self._find_window(child, title)
            if inner:
                return inner
        return None

    # Places, in pixels of the screen

    def origin(self):
        return self.desktop.rectangle_of(self.window)[:2]

    def at(self, x, y):
        left, top = self.origin()
        return left + round(x), top + round(y)

    def header_at(self, index, x=200):
        """The header of a palette, while only the first one is open."""
        scales = len(self.library[0]["scales"])
        below = scales * ROW + 12 if index > 0 else 0
        return self.at(x, TOP_BAR + LINE + index * (HEADER + LINE) + below + HEADER / 2)

    def row_top(self, scale_index):
        return TOP_BAR + LINE + HEADER + scale_index * ROW

    def swatch_at(self, scale_index, index):
        return self.at(16 + LABEL + index * (SWATCH + GAP) + SWATCH / 2,
                       self.row_top(scale_index) + ROW / 2)

    def label_at(self, scale_index, x=24):
        return self.at(x, self.row_top(scale_index) + ROW / 2)

    def drag(self, start, *way):
        self.desktop.move(*start)
        self.desktop.press()
        x, y = start
        for target in way:
            for step in range(1, 6):
                self.desktop.move(round(x + (target[0] - x) * step / 5),
                                  round(y + (target[1] - y) * step / 5))
                time.sleep(0.02)  # A hand takes its time, and the window draws meanwhile.
            x, y = target
