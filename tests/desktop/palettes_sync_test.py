# Copyright (c) 2026 The Dropshade authors
# SPDX-License-Identifier: MIT
"""Two machines that share a folder: what one deletes while the other has it in its hand."""

import json
import unittest

from dropshade_case import PROGRAM, wait_until
from palettes_case import PalettesCase
from virtual_desktop import VirtualDesktop


class TwoMachines(PalettesCase):
    @classmethod
    def setUpClass(cls):
        super().setUpClass()
        cls.other = VirtualDesktop(800, 720)
        cls.other.__enter__()
        cls.addClassCleanup(cls.other.__exit__)
        folder = cls.desktop.environment["HOME"] + "/shared"
        cls.SETTINGS = {"iCloudSyncEnabled": True, "syncTransport": "folder", "syncFolder": folder}

    def on_other(self, work):
        """Does `work` with the other desktop for one's own."""
        here, self.desktop = self.desktop, self.other
        try:
            return work()
        finally:
            self.desktop = here

    def start_other(self):
        program = self.other.start([PROGRAM])
        self.addCleanup(program.end)

        def prepare():
            wait_until(lambda: self.setting("userPalettes"), "the other's own palettes")
            program.end()
            self.store("userPalettes", json.dumps([]).encode())
            for key, value in self.SETTINGS.items():
                self.store(key, value)

        self.on_other(prepare)
        again = self.other.start([PROGRAM])
        self.addCleanup(again.end)
        wait_until(lambda: self.on_other(
            lambda: len(self.stored_palettes()) == 2), "the palettes to arrive", 30)

    def delete_first_on_other(self):
        """Without a mouse: to the first header, and away with it."""
        here = self.window

        def delete():
            self.open_palettes()
            self.desktop.key("Tab")
            self.desktop.key("Shift_L", "Delete")
            wait_until(lambda: len(self.stored_palettes()) == 1, "the deletion")

        self.on_other(delete)
        self.window = here

    def test_a_palette_deleted_elsewhere_ends_the_drag_in_it(self):
        self.start_other()
        self.drag(self.swatch_at(0, 0), self.swatch_at(1, 0.9))
        self.delete_first_on_other()
        wait_until(lambda: [item["name"] for item in self.stored_palettes()] == ["Land"],
                   "the deletion to arrive", 30)
        self.desktop.wait_until_still()
        self.save_screenshot("palettes-deleted-elsewhere.png")
        self.desktop.move(*self.swatch_at(1, 1.5))
        self.desktop.release()
        self.desktop.wait_until_still()
        self.assertEqual([item["name"] for item in self.stored_palettes()], ["Land"])
        self.assertIsNone(self.program.returncode)


if __name__ == "__main__":
    unittest.main(verbosity=2)
