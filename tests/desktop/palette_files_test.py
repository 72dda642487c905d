# Copyright (c) 2026 The Dropshade authors
# SPDX-License-Identifier: MIT
"""Palette files out of the palettes window and back into it, through the panels, by mouse and keys."""

import pathlib
import shutil
import signal
import unittest

from dropshade_case import wait_until
from palettes_case import PalettesCase, palette, scale

FORMATS = ["ase", "clr", "css", "html", "json", "pdf", "txt", "png"]
BEGINNINGS = {"ase": b"ASEF\x00\x01\x00\x00", "clr": b"bplist00", "json": b'{\n  "name" : "Sea"',
              "pdf": b"%PDF-", "png": b"\x89PNG\r\n"}


class PaletteFilesCase(PalettesCase):

    WINDOW = (560, 620)

    def setUp(self):
        super().setUp()
        # Where panels open.
        self.documents = pathlib.Path(self.desktop.environment["HOME"], "Documents")
        shutil.rmtree(self.documents, ignore_errors=True)
        self.documents.mkdir()

    def ask_for_export(self, extension):
        """By the menu of the first palette's header, down to the panel with its name ready."""
        self.desktop.click(*self.header_at(0), button=3)
        self.desktop.wait_for_menu()
        for _ in range(3):
            self.desktop.key("Down")
        self.desktop.key("Right")
        for _ in range(FORMATS.index(extension)):
            self.desktop.key("Down")
        self.desktop.key("Return")
        self.wait_for_panel("Export Palette")

    def wait_for_panel(self, title):
        self.wait_for_window(title)
        self.desktop.wait_until_still()

    def export(self, extension):
        self.ask_for_export(extension)
        self.desktop.key("Return")
        file = self.documents / f"Sea.{extension}"
        content = wait_until(lambda: file.exists() and file.read_bytes(), file.name)
        wait_until(lambda: not self.find_window("Export Palette"), "the panel to go")
        self.desktop.wait_until_still()
        return content

    def wait_for_alert(self, title):
        self.wait_for_window(title)
        self.desktop.key("Return")
        wait_until(lambda: not self.find_window(title), "the alert to go")

    def names(self):
        return [item["name"] for item in self.stored_palettes()]

    def import_file(self, name):
        """By the menu of the button for new palettes, and the name typed into the panel."""
        left, top = self.origin()
        self.desktop.click(left + self.WINDOW[0] - 60, top + 24)
        self.desktop.wait_for_menu()
        for _ in range(3):
            self.desktop.key("Down")
        self.desktop.key("Return")
        self.wait_for_panel("New Palette from File")
        for character in name:
            keys = ["Shift_L"] if character.isupper() else []
            self.desktop.key(*keys, {".": "period"}.get(character, character.lower()))
        self.desktop.key("Return")


class PaletteFiles(PaletteFilesCase):

    def test_a_palette_goes_out_as_files_of_the_name_that_the_panel_offers(self):
        for extension in ("clr", "png", "pdf"):
            self.assertTrue(self.export(extension).startswith(BEGINNINGS[extension]))

    def test_a_palette_that_went_out_comes_back_under_a_name_of_its_own(self):
        for extension in ("ase", "json"):
            self.assertTrue(self.export(extension).startswith(BEGINNINGS[extension]))
        self.import_file("Sea.ase")
        wait_until(lambda: self.names()[0] == "Sea (2)", "the palette to come back")
        scales = self.stored_palettes()[0]["scales"]
        self.assertEqual([scale["name"] for scale in scales], ["Deep", "Shore"])
        self.assertEqual(self.stored_values(0, 1), ["#d2b48c", "#fff8dc"])

    def test_a_file_that_is_no_palette_is_told_and_changes_nothing(self):
        (self.documents / "a.json").write_text("{")
        before = self.names()
        self.import_file("a.json")
        self.wait_for_alert("Couldn't import palette")
        self.assertEqual(self.names(), before)

    def test_a_folder_that_vanishes_under_the_panel_is_told(self):
        self.ask_for_export("txt")
        shutil.rmtree(self.documents)
        self.desktop.key("Return")
        self.wait_for_alert("Couldn't export palette")
        self.assertIsNone(self.program.returncode)


class LargePaletteFiles(PaletteFilesCase):

    def palettes(self):
        return [palette("Sea", *[scale(f"Scale {row}", *[f"#{row:02x}{column:02x}ff"
                                                         for column in range(11)])
                                 for row in range(26)])]

    def test_a_session_that_ends_during_an_export_leaves_the_whole_file(self):
        self.ask_for_export("png")
        self.desktop.key("Return")
        wait_until(lambda: not self.find_window("Export Palette"), "the panel to go")
        self.program.send(signal.SIGTERM)
        self.assertEqual(self.program.wait(), 0)
        content = (self.documents / "Sea.png").read_bytes()
        self.assertTrue(content.startswith(BEGINNINGS["png"]))
        self.assertEqual(content[-8:-4], b"IEND")


if __name__ == "__main__":
    unittest.main(verbosity=2)
