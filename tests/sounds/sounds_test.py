# Copyright (c) 2026 The Dropshade authors
# SPDX-License-Identifier: MIT
"""The sounds of a copy: what is committed is what the generator makes, and is fit to be heard.

usage: sounds_test.py
"""

import math
import pathlib
import struct
import sys
import unittest

PROJECT = pathlib.Path(__file__).resolve().parents[2]
sys.path.insert(0, str(PROJECT / "tools"))
import make_sounds  # noqa: E402

FOLDER = PROJECT / "resources" / "sounds"
NAMES = ["coin", "collect", "drop", "ding", "fart", "plink", "pop", "retro", "whoosh"]
HEADER_SIZE = 54
FULL_SCALE = 32768.0
QUIET = 0.001


def samples_of(name):
    data = (FOLDER / f"{name}.aiff").read_bytes()[HEADER_SIZE:]
    return [value / FULL_SCALE for value in struct.unpack(f">{len(data) // 2}h", data)]


def steepest_step(samples):
    return max(abs(after - before) for before, after in zip(samples, samples[1:]))


class Generator(unittest.TestCase):
    def test_makes_the_sounds_that_are_committed_byte_for_byte(self):
        for sound in make_sounds.SOUNDS:
            with self.subTest(sound=sound.__name__):
                committed = (FOLDER / f"{sound.__name__}.aiff").read_bytes()
                self.assertTrue(make_sounds.make(sound) == committed, "make_sounds.py gives other bytes")

    def test_has_a_sound_for_each_file_and_a_file_for_each_sound(self):
        self.assertEqual([sound.__name__ for sound in make_sounds.SOUNDS], NAMES)
        self.assertEqual(sorted(file.name for file in FOLDER.iterdir()),
                         sorted(f"{name}.aiff" for name in NAMES))

    def test_has_the_sine_and_the_power_of_the_c_library(self):
        for step in range(-2000, 2000):
            self.assertAlmostEqual(make_sounds.sine(step / 700), math.sin(2 * math.pi * step / 700), 10)
            self.assertAlmostEqual(make_sounds.power_of_two(step / 100) / 2 ** (step / 100), 1.0, 12)

    def test_measures_the_calibration_tone_as_the_standard_says(self):
        """BS.1770-4: a sine of 997 Hz at full scale in one channel reads -3.01."""
        tone = [math.sin(2 * math.pi * 997 * index / make_sounds.RATE)
                for index in range(make_sounds.RATE)]
        self.assertAlmostEqual(make_sounds.loudness(tone), -3.01, delta=0.01)


class Sounds(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.samples = {name: samples_of(name) for name in NAMES}

    def check_each(self, check):
        for name, samples in self.samples.items():
            with self.subTest(sound=name):
                check(samples)

    def test_are_aiff_of_16_bit_48_khz_mono(self):
        for name in NAMES:
            with self.subTest(sound=name):
                data = (FOLDER / f"{name}.aiff").read_bytes()
                frames = len(self.samples[name])
                self.assertEqual(struct.unpack(">4sI4s", data[:12]), (b"FORM", len(data) - 8, b"AIFF"))
                self.assertEqual(struct.unpack(">4sIhIh", data[12:28]), (b"COMM", 18, 1, frames, 16))
                self.assertEqual(data[28:38], bytes.fromhex("400ebb80000000000000"))
                self.assertEqual(struct.unpack(">4sIII", data[38:54]), (b"SSND", 8 + 2 * frames, 0, 0))

    def test_are_short(self):
        self.check_each(lambda samples: self.assertTrue(0.1 < len(samples) / make_sounds.RATE < 0.6))

    def test_do_not_clip(self):
        self.check_each(lambda samples: self.assertLessEqual(max(map(abs, samples)), 0.8))

    def test_are_equally_loud(self):
        levels = [make_sounds.loudness(samples) for samples in self.samples.values()]
        self.assertLess(max(levels) - min(levels), 0.1)
        self.assertAlmostEqual(levels[0], -18.0, delta=0.1)

    def test_begin_and_end_in_silence(self):
        self.check_each(lambda samples: self.assertFalse(any(samples[:96] + samples[-96:])))

    def test_begin_and_end_without_a_click(self):
        def check(samples):
            self.assertLess(steepest_step(samples[:150]), 0.2 * max(map(abs, samples)))
            self.assertLess(max(map(abs, samples[-150:])), 0.01)
        self.check_each(check)

    def test_have_no_offset(self):
        self.check_each(lambda samples: self.assertLess(abs(sum(samples) / len(samples)), 2 * QUIET))

    def test_are_heard_within_a_fiftieth_of_a_second_of_their_start(self):
        def check(samples):
            first = next(index for index, value in enumerate(samples) if abs(value) > QUIET)
            self.assertLess(first / make_sounds.RATE, 0.02)
        self.check_each(check)


if __name__ == "__main__":
    unittest.main()
