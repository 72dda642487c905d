# Copyright (c) 2026 The Dropshade authors
# SPDX-License-Identifier: MIT
"""The palettes window, by mouse and keys, as a user has it."""

import json
import pathlib
import threading
import unittest

from dropshade_case import wait_until
from palettes_case import TOP_BAR, PalettesCase, palette, scale
from xdnd import Source, Target

DEEP = ["#000080", "#0000ff", "#00ffff"]


def palette_json(name):
    return json.dumps({"name": name, "scales": [
        {"name": "One", "swatches": [{"label": "night", "value": "#123456"}]}]})


class Clicks(PalettesCase):
    def test_a_click_copies_in_the_format_of_the_settings(self):
        self.desktop.own_clipboard("before")
        self.desktop.click(*self.swatch_at(0, 1))
        self.assertEqual(self.copied_text(), "#0000FF")
        self.assertTrue(self.find_window("Palettes"))
        self.assertEqual(self.copies_counted(), 1)

    def test_closes_after_a_copy_where_the_switch_says_so(self):
        self.desktop.click(*self.at(391, TOP_BAR / 2))
        wait_until(lambda: self.setting("closePaletteDialogOnCopy") == 1, "the setting")
        self.desktop.click(*self.swatch_at(0, 1))
        wait_until(lambda: not self.find_window("Palettes"), "the window to go")

    def test_opening_a_palette_closes_the_other_and_is_remembered(self):
        self.desktop.click(*self.header_at(1))
        wait_until(lambda: self.collapsed() == {self.library[0]["id"]}, "the collapsed set")

    def collapsed(self):
        data = self.setting("collapsedPaletteIds") or b""
        return {item["id"] for item in self.library if item["id"].encode("utf-16-le") in data}

    def test_escape_and_control_w_close_it(self):
        for keys in (("Escape",), ("Control_L", "w")):
            self.desktop.key(*keys)
            wait_until(lambda: not self.find_window("Palettes"), "the window to go")
            self.open_palettes()

    def test_a_click_elsewhere_takes_the_name_and_escape_does_not(self):
        self.desktop.click(*self.label_at(0, 30))
        self.desktop.wait_until_still()
        self.type_text("abyss")
        self.desktop.click(*self.at(400, 500))
        wait_until(lambda: self.stored_palettes()[0]["scales"][0]["name"] == "abyss", "the name")
        self.desktop.wait_until_still()
        self.desktop.click(*self.label_at(0, 30))
        self.desktop.wait_until_still()
        self.type_text("deep")
        self.desktop.key("Escape")
        self.desktop.wait_until_still()
        self.desktop.key("Escape")
        wait_until(lambda: not self.find_window("Palettes"), "the window to go")
        self.assertEqual(self.stored_palettes()[0]["scales"][0]["name"], "abyss")

    def type_text(self, text):
        for letter in text:
            self.desktop.key(letter)

    def test_an_edit_is_seen_at_once_and_cancelled_with_the_very_text(self):
        self.edit_second_swatch("tan")
        place = self.swatch_at(0, 1)
        wait_until(lambda: self.desktop.pixel(*place) == (0xD2, 0xB4, 0x8C), "the new color")
        self.desktop.key("Escape")
        wait_until(lambda: self.desktop.pixel(*place) == (0, 0, 255), "the former color")
        wait_until(lambda: self.stored_values() == DEEP, "the former text")

    def test_an_edit_ends_as_hexadecimal_digits(self):
        self.edit_second_swatch("tan")
        self.desktop.key("Return")
        wait_until(lambda: self.stored_values() == ["#000080", "#d2b48c", "#00ffff"], "the edit")

    def edit_second_swatch(self, text):
        self.desktop.click(*self.swatch_at(0, 1), button=3)
        self.desktop.wait_for_menu()
        self.desktop.key("Down")
        self.desktop.key("Return")
        self.desktop.wait_until_still()
        self.desktop.key("Shift_L", "Tab")
        self.desktop.key("Control_L", "a")
        self.type_text(text)

    def test_delete_asks_and_shift_does_not(self):
        self.choose_delete()
        self.desktop.wait_until_still()
        self.save_screenshot("palettes-delete-color.png")
        self.desktop.key("Escape")
        self.desktop.wait_until_still()
        self.desktop.key_down("Shift_L")
        self.choose_delete()
        self.desktop.key_up("Shift_L")
        wait_until(lambda: self.stored_values() == ["#000080", "#00ffff"], "the deletion")

    def choose_delete(self):
        self.desktop.click(*self.swatch_at(0, 1), button=3)
        self.desktop.wait_for_menu()
        self.desktop.key("Up")
        self.desktop.key("Return")


class Drags(PalettesCase):
    def test_a_swatch_moves_within_its_scale(self):
        self.drag(self.swatch_at(0, 0), self.swatch_at(0, 2.4))
        self.desktop.release()
        wait_until(lambda: self.stored_values() == ["#0000ff", "#00ffff", "#000080"], "the order")

    def test_a_swatch_moves_to_another_scale_where_the_gap_was(self):
        self.drag(self.swatch_at(0, 0), self.swatch_at(1, 0.9))
        self.save_screenshot("palettes-drag.png")
        self.desktop.release()
        wait_until(lambda: self.stored_values(0, 1) == ["#d2b48c", "#000080", "#fff8dc"],
                   "the swatch in its new scale")
        self.assertEqual(self.stored_values(), ["#0000ff", "#00ffff"])

    def test_a_scale_moves_by_its_grip(self):
        self.desktop.move(*self.label_at(0, 30))
        self.desktop.wait_until_still()
        self.drag(self.label_at(0, 8), self.label_at(1, 8))
        self.desktop.release()
        wait_until(lambda: [item["name"] for item in self.stored_palettes()[0]["scales"]]
                   == ["Shore", "Deep"], "the order")

    def test_a_palette_moves_by_its_header_and_all_collapse(self):
        self.drag(self.header_at(1), self.header_at(0))
        self.desktop.release()
        wait_until(lambda: [item["name"] for item in self.stored_palettes()] == ["Land", "Sea"],
                   "the order")
        wait_until(lambda: all(item["id"].encode("utf-16-le") in self.setting("collapsedPaletteIds")
                               for item in self.library), "all to be collapsed")

    def test_a_short_drag_is_a_click(self):
        self.desktop.own_clipboard("before")
        x, y = self.swatch_at(0, 1)
        self.desktop.move(x, y)
        self.desktop.press()
        self.desktop.move(x + 3, y)
        self.desktop.release()
        self.assertEqual(self.copied_text(), "#0000FF")

    def test_a_drag_from_elsewhere_is_refused_during_one_of_its_own(self):
        file = self.palette_file("other.json", "Other")
        with Source(self.desktop.environment["DISPLAY"],
                    {"text/uri-list": file.as_uri().encode() + b"\r\n"}) as source:
            source.enter(self.window)
            self.assertTrue(source.move(self.window, *self.at(300, 300)))
            source.leave(self.window)
            self.drag(self.swatch_at(0, 0), self.swatch_at(1, 1))
            source.enter(self.window)
            self.assertFalse(source.move(self.window, *self.at(300, 300)))
            source.leave(self.window)
            self.desktop.release()

    def palette_file(self, name, palette_name):
        file = pathlib.Path(self.desktop.environment["HOME"]) / name
        file.write_text(palette_json(palette_name))
        return file


class Scrolling(PalettesCase):
    def palettes(self):
        return [palette("Long", *[scale(f"Scale {number}", *DEEP) for number in range(20)])]

    def test_a_drag_near_the_lower_edge_scrolls_on_and_drops_there(self):
        self.drag(self.swatch_at(0, 0), self.swatch_at(11, 0.4), self.at(120, 585))
        self.desktop.wait_until_still(0.5)
        self.desktop.move(*self.at(120, 555))
        self.save_screenshot("palettes-scrolled.png")
        self.desktop.release()
        wait_until(lambda: len(self.stored_values(0, 0)) == 2, "the swatch to leave its scale")
        target = next(index for index in range(1, 20) if len(self.stored_values(0, index)) == 4)
        self.assertGreater(target, 15)


class Exchange(PalettesCase):
    def drop(self, offers):
        with Source(self.desktop.environment["DISPLAY"], offers) as source:
            source.enter(self.window)
            place = self.at(300, 400)
            self.assertTrue(source.move(self.window, *place))
            self.desktop.wait_until_still()
            self.save_screenshot(f"palettes-drop-{self.id().split('_')[-1]}.png")
            return source.drop(self.window)

    def file(self, name, text):
        file = pathlib.Path(self.desktop.environment["HOME"]) / name
        file.write_text(text)
        return {"text/uri-list": file.as_uri().encode() + b"\r\n"}

    def test_a_palette_file_is_imported_whatever_the_case_of_its_extension(self):
        self.assertTrue(self.drop(self.file("Brand Colors.JSON", palette_json("inside"))))
        wait_until(lambda: self.stored_palettes()[0]["name"] == "Brand Colors", "the palette")
        self.assertEqual(self.stored_values(), ["#123456"])

    def test_what_is_neither_palette_nor_image_does_nothing(self):
        self.drop(self.file("notes.txt", "hello"))
        self.desktop.wait_until_still()
        self.assertEqual([item["name"] for item in self.stored_palettes()], ["Sea", "Land"])
        self.assertIsNone(self.program.returncode)

    def test_palette_data_from_a_browser_is_imported(self):
        self.assertTrue(self.drop({"application/json": palette_json("Data").encode()}))
        wait_until(lambda: self.stored_palettes()[0]["name"] == "Data", "the palette")

    def test_the_window_is_back_when_a_program_ends_in_the_middle_of_its_drag(self):
        place = self.swatch_at(0, 1)
        with Source(self.desktop.environment["DISPLAY"],
                    self.file("sea.json", palette_json("inside"))) as source:
            source.enter(self.window)
            self.assertTrue(source.move(self.window, *self.at(300, 400)))
            wait_until(lambda: self.desktop.pixel(*place) != (0, 0, 255), "the overlay")
        self.desktop.move(*self.at(300, 400))
        wait_until(lambda: self.desktop.pixel(*place) == (0, 0, 255), "the swatches")

    def test_plain_text_is_refused(self):
        with Source(self.desktop.environment["DISPLAY"], {"text/plain": b"red"}) as source:
            source.enter(self.window)
            self.assertFalse(source.move(self.window, *self.at(300, 400)))
            source.leave(self.window)

    def test_a_swatch_goes_to_another_program_as_color_and_text(self):
        with Target(self.desktop.environment["DISPLAY"], 20, 100, 200, 400) as target:
            hand = threading.Thread(target=self.carry_out)
            hand.start()
            taken, types = target.take("text/plain", "application/x-color")
            hand.join()
        self.assertEqual(taken["text/plain"], b"#0000FF")
        self.assertIn("application/x-color", types)
        self.assertEqual(self.stored_values(), DEEP)

    def carry_out(self):
        self.drag(self.swatch_at(0, 1), self.at(-60, 150), (120, 300), (125, 305))
        self.desktop.wait_until_still()
        self.desktop.release()


class Keys(PalettesCase):
    def test_everything_can_be_reached_and_moved_without_a_mouse(self):
        for key in ("Tab", "Down", "Right"):
            self.desktop.key(key)
        self.desktop.key("Alt_L", "Right")
        wait_until(lambda: self.stored_values() == ["#0000ff", "#000080", "#00ffff"], "the step")
        self.desktop.key("Alt_L", "Down")
        wait_until(lambda: "#000080" in self.stored_values(0, 1), "the step to the next scale")
        self.desktop.own_clipboard("before")
        self.desktop.key("Return")
        self.assertEqual(self.copied_text(), "#000080")
        self.save_screenshot("palettes-keys.png")


class Empty(PalettesCase):
    def palettes(self):
        return []

    def test_a_palette_from_scratch_asks_for_its_name(self):
        self.save_screenshot("palettes-empty.png")
        self.desktop.click(*self.at(280, 407))
        self.desktop.wait_until_still()
        for letter in "mine":
            self.desktop.key(letter)
        self.desktop.key("Return")
        wait_until(lambda: self.stored_palettes()
                   and self.stored_palettes()[0]["name"] == "mine", "the new palette")
        self.assertEqual(self.stored_values(), ["#ffffff", "#808080", "#000000"])


if __name__ == "__main__":
    unittest.main(verbosity=2)
