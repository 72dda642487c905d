# Copyright (c) 2026 The Dropshade authors
# SPDX-License-Identifier: MIT
"""The main job on X11, by real clicks and keys: sample a pixel, read its text in another process."""

import unittest

from dropshade_case import DropshadeCase, hex_text, wait_until

PLAIN_TEXT_TYPES = {"UTF8_STRING", "STRING", "TEXT", "COMPOUND_TEXT", "text/plain",
                    "text/plain;charset=utf-8", "text/plain;charset=UTF-8"}
PROTOCOL_TYPES = {"TARGETS", "MULTIPLE", "TIMESTAMP", "SAVE_TARGETS"}


class Sampling(DropshadeCase):

    def start_pick(self):
        self.desktop.own_clipboard("before")
        self.click_icon(3)
        self.wait_for_loupe()

    def test_a_right_click_and_a_click_copy_the_pixel_under_the_pointer(self):
        color = self.desktop.pixel(333, 444)
        self.assertEqual(self.pick(333, 444), hex_text(color))

    def test_a_control_click_starts_a_pick_too(self):
        color = self.desktop.pixel(700, 300)
        self.desktop.own_clipboard("before")
        self.click_icon(1, "Control_L")
        self.wait_for_loupe()
        self.desktop.click(700, 300)
        self.assertEqual(self.copied_text(), hex_text(color))

    def test_only_plain_text_is_on_the_clipboard(self):
        self.pick(100, 100)
        types = set(self.desktop.clipboard_types())
        self.assertIn("UTF8_STRING", types)
        self.assertLessEqual(types, PLAIN_TEXT_TYPES | PROTOCOL_TYPES)

    def test_escape_leaves_clipboard_and_counter_alone_and_the_next_pick_works(self):
        counted = self.copies_counted()
        self.start_pick()
        self.desktop.key("Escape")
        self.wait_for_no_loupe()
        self.assertEqual(self.desktop.clipboard_text(), "before")
        self.assertEqual(self.copies_counted(), counted)
        color = self.desktop.pixel(50, 60)
        self.assertEqual(self.pick(50, 60), hex_text(color))
        self.assertEqual(self.copies_counted(), counted + 1)

    def test_two_quick_triggers_start_one_sampler(self):
        counted = self.copies_counted()
        self.desktop.own_clipboard("before")
        self.click_icon(3)
        self.desktop.click(button=3)
        self.wait_for_loupe()
        self.assertEqual(self.loupe_windows(), 2)
        self.desktop.move(200, 200)
        wait_until(lambda: self.desktop.shows_loupe(200, 200), "the loupe at the pixel")
        self.desktop.click()
        self.copied_text()
        self.assertEqual(self.copies_counted(), counted + 1)

    def test_return_picks_what_the_arrow_keys_moved_to(self):
        color = self.desktop.pixel(400 + 10 + 10 - 1, 300 + 10 - 1)
        self.start_pick()
        self.desktop.move(400, 300)
        self.desktop.key("Shift_L", "Right")
        self.desktop.key("Shift_L", "Right")
        self.desktop.key("Shift_L", "Down")
        self.desktop.key("Left")
        self.desktop.key("Up")
        wait_until(lambda: self.desktop.pointer() == (419, 309), "the pointer to follow the keys")
        self.desktop.key("Return")
        self.assertEqual(self.copied_text(), hex_text(color))

    def test_the_wheel_and_the_plus_key_zoom_and_the_pixel_stays(self):
        color = self.desktop.pixel(640, 400)
        self.start_pick()
        self.desktop.move(640, 400)
        wait_until(lambda: self.desktop.shows_loupe(640, 400), "the loupe")
        frame = [(640, 400 - half - 1) for half in (6, 8, 12)]
        white = (255, 255, 255)
        wait_until(lambda: self.desktop.pixel(*frame[0]) == white, "the frame of 12")
        self.desktop.click(button=4)
        wait_until(lambda: self.desktop.pixel(*frame[1]) == white, "the frame of 16")
        self.desktop.key("plus")
        wait_until(lambda: self.desktop.pixel(*frame[2]) == white, "the frame of 24")
        self.desktop.click(button=5)
        wait_until(lambda: self.desktop.pixel(*frame[1]) == white, "the frame of 16 again")
        self.desktop.click()
        self.assertEqual(self.copied_text(), hex_text(color))

    def test_each_corner_of_the_screen_gives_its_own_pixel(self):
        for x in (0, self.WIDTH - 1):
            for y in (0, self.HEIGHT - 1):
                with self.subTest(x=x, y=y):
                    color = self.desktop.pixel(x, y)
                    self.assertEqual(self.pick(x, y), hex_text(color))

    def test_the_loupe_never_samples_itself(self):
        color = self.desktop.pixel(500, 480)
        self.start_pick()
        for x in range(420, 500, 4):
            self.desktop.move(x, 400)
        wait_until(lambda: self.desktop.shows_loupe(496, 400), "the loupe")
        self.desktop.click(500, 480)
        self.assertEqual(self.copied_text(), hex_text(color))

    def test_the_screen_is_as_before_once_the_loupe_has_gone(self):
        before = self.desktop.grab(300, 100, 400, 400)
        self.pick(500, 300)
        wait_until(lambda: self.desktop.grab(300, 100, 400, 400) == before, "the old picture")

    def test_no_window_beneath_sees_any_of_the_click_that_picks(self):
        with self.desktop.listening_window(300, 300, 200, 200) as window:
            self.start_pick()
            self.desktop.move(400, 400)
            self.desktop.press()
            wait_until(lambda: self.loupe_windows() == 1, "the picture to go")
            self.desktop.release()
            self.wait_for_no_loupe()
            self.assertEqual(window.clicks_seen(), [])
            self.desktop.click(400, 400)
            wait_until(window.clicks_seen, "a click after the pick")

    def test_the_menus_quick_pick_does_not_see_the_menu(self):
        color = self.desktop.pixel(self.WIDTH - 60, 50)
        self.desktop.own_clipboard("before")
        self.click_icon()
        self.desktop.wait_for_menu()
        self.desktop.key("Down")
        self.desktop.key("Return")
        self.wait_for_loupe()
        self.desktop.click(self.WIDTH - 60, 50)
        self.assertEqual(self.copied_text(), hex_text(color))

    def test_the_text_gets_to_the_clipboard_though_another_program_copied_during_the_sample(self):
        color = self.desktop.pixel(600, 500)
        self.start_pick()
        self.desktop.own_clipboard("copied meanwhile")
        self.desktop.click(600, 500)
        self.assertEqual(self.copied_text("copied meanwhile"), hex_text(color))

    def test_the_text_is_still_there_for_every_later_reader(self):
        text = self.pick(10, 700)
        for _ in range(3):
            self.assertEqual(self.desktop.clipboard_text(), text)


class SamplingAtScale(DropshadeCase):
    """In a picture of noise the neighbour of a pixel has another colour, so one off is wrong."""

    SCALE = "1.25"
    POINTS = [(3, 5), (641, 401), (642, 401), (1279, 799), (100, 777), (1111, 33), (555, 554)]

    @classmethod
    def setUpClass(cls):
        cls.VARIABLES = {"QT_SCALE_FACTOR": cls.SCALE}
        super().setUpClass()

    def test_the_exact_pixel_is_picked(self):
        for point in self.POINTS:
            with self.subTest(scale=self.SCALE, point=point):
                color = self.desktop.pixel(*point)
                self.assertEqual(self.pick(*point), hex_text(color))


class SamplingAtScale15(SamplingAtScale):
    SCALE = "1.5"


class SamplingAtScale2(SamplingAtScale):
    SCALE = "2"


class SamplingOnTwoScreens(DropshadeCase):
    """Two monitors side by side, the right one at twice the scale of the left."""

    WIDTH, HEIGHT = 1600, 600
    VARIABLES = {"QT_SCREEN_SCALE_FACTORS": "LEFT=1;RIGHT=2"}

    @classmethod
    def prepare_desktop(cls):
        super().prepare_desktop()
        cls.desktop.split_into_monitors(("LEFT", 0, 0, 800, 600), ("RIGHT", 800, 0, 800, 600))

    def test_the_exact_pixel_is_picked_on_both(self):
        for point in [(0, 0), (799, 599), (800, 0), (801, 301), (1599, 599), (1203, 57)]:
            with self.subTest(point=point):
                color = self.desktop.pixel(*point)
                self.assertEqual(self.pick(*point), hex_text(color))

    def test_the_loupe_follows_the_pointer_and_takes_each_screens_scale(self):
        self.click_icon(3)
        self.wait_for_loupe()
        self.desktop.move(400, 300)
        wait_until(lambda: self.desktop.shows_loupe(400, 300, 1.0), "the loupe on the left")
        self.desktop.move(1200, 300)
        wait_until(lambda: self.desktop.shows_loupe(1200, 300, 2.0), "the loupe on the right")
        self.desktop.key("Escape")
        self.wait_for_no_loupe()


class SamplingAtDepth16(DropshadeCase):
    """The screen holds 5, 6 and 5 bits a channel; a pick gives what the screen shows."""

    DEPTH = 16

    def test_the_color_is_the_nearest_to_what_the_screen_holds(self):
        value = self.desktop.raw_pixel(321, 123)
        expected = (round((value >> 11) * 255 / 31), round((value >> 5 & 63) * 255 / 63),
                    round((value & 31) * 255 / 31))
        self.assertEqual(self.pick(321, 123), hex_text(expected))


if __name__ == "__main__":
    unittest.main(verbosity=2)
