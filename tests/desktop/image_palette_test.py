# Copyright (c) 2026 The Dropshade authors
# SPDX-License-Identifier: MIT
"""A palette from an image: the real sheet, real drops by XDND, the real clipboard, real keys."""

import pathlib
import subprocess
import unittest

from dropshade_case import wait_until
from palettes_case import PalettesCase
from picture import write_harbour
from xdnd import Source

TITLE = "New Palette from Image"
WIDTH, HEIGHT = 460, 600


class ImagePalette(PalettesCase):

    @classmethod
    def prepare_desktop(cls):
        super().prepare_desktop()
        cls.folder = pathlib.Path(cls.desktop.environment["HOME"]) / "pictures"
        cls.folder.mkdir()
        cls.harbour = cls.folder / "harbour_at-dusk.png"
        write_harbour(str(cls.harbour))
        cls.notes = cls.folder / "notes.png"
        cls.notes.write_bytes(b"\x89PNG\r\n\x1a\n and then nothing of it")

    def setUp(self):
        super().setUp()
        self.open_sheet()

    def open_sheet(self):
        """By the second row of the palettes window's menu."""
        self.desktop.click(*self.at(540, 24))
        self.desktop.wait_for_menu()
        for key in ("Down", "Down", "Return"):
            self.desktop.key(key)
        self.sheet = self.wait_for_window(TITLE)
        self.desktop.wait_until_still()

    def in_sheet(self, x, y):
        left, top = self.desktop.rectangle_of(self.sheet)[:2]
        return left + x, top + y

    def drop(self, kinds):
        """A drop of another program in the sheet; whether the sheet took it."""
        with Source(self.desktop.environment["DISPLAY"], kinds) as source:
            source.enter(self.sheet)
            accepted = source.move(self.sheet, *self.in_sheet(WIDTH // 2, 120))
            if accepted:
                source.drop(self.sheet)
            else:
                source.leave(self.sheet)
            return accepted

    def drop_file(self, path):
        return self.drop({"text/uri-list": path.as_uri().encode() + b"\r\n"})

    def copy(self, kind, data):
        """Another program copies that; it lives until something else is copied."""
        subprocess.run(["xclip", "-selection", "clipboard", "-t", kind, "-i"], input=data,
                       env=self.desktop.environment, check=True, timeout=20,
                       stdout=subprocess.DEVNULL)

    def create(self):
        """The palette that the sheet makes: name and values."""
        self.desktop.wait_until_still(0.4)
        self.desktop.key("Control_L", "s")
        self.wait_for_no_sheet()
        made = wait_until(lambda: len(self.stored_palettes()) > len(self.library) and
                          self.stored_palettes()[-1], "the palette in the store")
        scales = made["scales"]
        self.assertEqual([scale["name"] for scale in scales], ["Colors"])
        return made["name"], [swatch["value"] for swatch in scales[0]["swatches"]]

    def wait_for_no_sheet(self):
        wait_until(lambda: not self.find_window(TITLE), "the sheet to go")

    def shows_image(self):
        """The harbour's darkest sky is in the zone's upper part."""
        self.desktop.wait_until_still()
        return self.desktop.pixel(*self.in_sheet(WIDTH // 2, 24)) == (0x24, 0x32, 0x5C)

    # Sources

    def test_a_file_dropped_from_a_file_manager_becomes_a_palette_of_its_name(self):
        self.assertTrue(self.drop_file(self.harbour))
        wait_until(self.shows_image, "the image")
        name, values = self.create()
        self.assertEqual(name, "Harbour At Dusk")
        self.assertEqual(len(values), 8)
        self.assertEqual([palette["name"] for palette in self.stored_palettes()],
                         ["Sea", "Land", "Harbour At Dusk"])

    def test_bytes_dropped_from_a_browser_take_the_name_of_their_address(self):
        self.assertTrue(self.drop({
            "image/png": self.harbour.read_bytes(),
            "text/uri-list": b"https://example.org/pictures/quiet_bay.png\r\n"}))
        wait_until(self.shows_image, "the image")
        self.assertEqual(self.create()[0], "Quiet Bay")

    def test_a_drag_of_text_is_refused(self):
        self.assertFalse(self.drop({"text/plain": b"#FF0000"}))

    def test_a_copied_image_is_pasted_by_a_key_and_leaves_the_name_alone(self):
        self.copy("image/png", self.harbour.read_bytes())
        self.desktop.key("Control_L", "v")
        wait_until(self.shows_image, "the image")
        self.assertEqual(self.create()[0], "Untitled Palette")

    def test_a_copied_file_is_pasted_under_its_name(self):
        self.copy("text/uri-list", self.harbour.as_uri().encode() + b"\r\n")
        self.desktop.key("Control_L", "v")
        wait_until(self.shows_image, "the image")
        self.assertEqual(self.create()[0], "Harbour At Dusk")

    def test_a_file_is_browsed_for_by_a_click_in_the_zone(self):
        self.desktop.click(*self.in_sheet(WIDTH // 2, 120))
        self.wait_for_window("Choose an Image")
        self.desktop.wait_until_still()
        subprocess.run(["xdotool", "type", "--delay", "5", str(self.harbour)], check=True,
                       env=self.desktop.environment)
        self.desktop.key("Return")
        wait_until(self.shows_image, "the image")

    # Failures

    def test_a_damaged_file_leaves_the_image_and_says_so(self):
        self.drop_file(self.harbour)
        wait_until(self.shows_image, "the image")
        self.drop_file(self.notes)
        self.desktop.wait_until_still()
        self.assertTrue(self.shows_image())
        self.assertEqual(self.create()[0], "Harbour At Dusk")

    def test_a_copied_text_is_no_image(self):
        self.desktop.own_clipboard("#FF0000")
        before = self.desktop.grab(*self.desktop.rectangle_of(self.sheet))
        self.desktop.key("Control_L", "v")
        wait_until(lambda: self.desktop.grab(*self.desktop.rectangle_of(self.sheet)) != before,
                   "the message")
        self.assertTrue(self.find_window(TITLE))

    # Controls

    def test_keys_reach_the_count_the_algorithm_the_order_and_the_name(self):
        self.drop_file(self.harbour)
        wait_until(self.shows_image, "the image")
        self.desktop.key("Tab")  # From the remove button to the slider
        for _ in range(6):
            self.desktop.key("Left")
        self.desktop.key("Tab")
        self.desktop.key("Right")  # Median cut
        self.desktop.key("Tab")  # To the order
        self.desktop.key("Tab")
        self.desktop.key("Tab")  # Past the colours
        subprocess.run(["xdotool", "key", "ctrl+a"], check=True, env=self.desktop.environment)
        subprocess.run(["xdotool", "type", "--delay", "5", "Trip"], check=True,
                       env=self.desktop.environment)
        self.desktop.wait_until_still(0.4)
        self.desktop.key("Return")
        self.wait_for_no_sheet()
        made = wait_until(lambda: len(self.stored_palettes()) > len(self.library) and
                          self.stored_palettes()[-1], "the palette in the store")
        self.assertEqual(made["name"], "Trip")
        self.assertEqual(len(made["scales"][0]["swatches"]), 2)

    def test_a_click_on_a_preview_color_copies_it_in_the_users_format(self):
        self.store("colorFormat", "cssRGB")
        self.drop_file(self.harbour)
        wait_until(self.shows_image, "the image")
        self.desktop.wait_until_still(0.4)
        x, y = self.in_sheet(40, HEIGHT - 135)
        color = self.desktop.pixel(x, y)
        self.desktop.own_clipboard("before")
        self.desktop.click(x, y)
        wait_until(lambda: self.desktop.clipboard_text() != "before", "the copied text")
        self.assertEqual(self.desktop.clipboard_text(), "rgb(%d %d %d)" % color)
        self.assertTrue(self.find_window(TITLE))

    def test_escape_and_control_w_close_the_sheet_alone(self):
        for keys in (["Escape"], ["Control_L", "w"]):
            self.desktop.key(*keys)
            self.wait_for_no_sheet()
            self.assertTrue(self.find_window("Palettes"))
            self.open_sheet()

    # The palettes window

    def test_an_image_dropped_on_the_palettes_opens_the_sheet_with_it(self):
        self.desktop.key("Escape")
        self.wait_for_no_sheet()
        with Source(self.desktop.environment["DISPLAY"],
                    {"text/uri-list": self.harbour.as_uri().encode() + b"\r\n"}) as source:
            source.enter(self.window)
            source.move(self.window, *self.at(200, 300))
            self.assertTrue(source.move(self.window, *self.at(200, 301)))
            source.drop(self.window)
        self.sheet = wait_until(lambda: self.find_window(TITLE), "the sheet")
        wait_until(self.shows_image, "the image")
        self.assertEqual(self.create()[0], "Harbour At Dusk")


if __name__ == "__main__":
    unittest.main(verbosity=2)
