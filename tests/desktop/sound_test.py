# Copyright (c) 2026 The Dropshade authors
# SPDX-License-Identifier: MIT
"""What is heard of a copy, on a real sound server."""

import os
import pathlib
import struct
import subprocess
import time
import unittest

from dropshade_case import PROGRAM, PROJECT, DropshadeCase, wait_until
from sound_server import RATE, SAMPLE_BYTES, SoundServer, aiff_samples

SOUND_PROGRAM = pathlib.Path(PROGRAM).with_name("dropshade-sound")
SOUNDS = sorted((PROJECT / "resources" / "sounds").glob("*.aiff"))
NO_DEVICE = 3


def frame(data):
    return struct.pack(">I", len(data)) + data


def sound(name):
    return PROJECT / "resources" / "sounds" / f"{name}.aiff"


class SoundProgram(unittest.TestCase):
    """The program that is heard, fed by hand."""

    @classmethod
    def setUpClass(cls):
        cls.server = cls.enterClassContext(SoundServer())

    def start(self, **variables):
        program = subprocess.Popen([SOUND_PROGRAM], env={**self.server.environment, **variables},
                                   stdin=subprocess.PIPE)
        self.addCleanup(program.wait)
        self.addCleanup(program.kill)
        self.addCleanup(program.stdin.close)
        return program

    @staticmethod
    def feed(program, data):
        program.stdin.write(data)
        program.stdin.flush()

    def test_is_heard_whole_and_untouched_with_every_sound(self):
        program = self.start()
        for path in SOUNDS:
            with self.subTest(sound=path.stem):
                before = len(self.server.heard())
                self.feed(program, frame(path.read_bytes()))
                self.server.wait_for_sound(aiff_samples(path), before)

    def test_is_heard_whole_where_the_sound_is_the_first_thing_it_plays(self):
        for name in ("pop", "ding"):
            with self.subTest(sound=name):
                before = len(self.server.heard())
                self.feed(self.start(), frame(sound(name).read_bytes()))
                self.server.wait_for_sound(aiff_samples(sound(name)), before)

    def test_starts_anew_at_a_second_play(self):
        program, samples = self.start(), aiff_samples(sound("ding"))
        before = len(self.server.heard())
        self.feed(program, frame(sound("ding").read_bytes()))
        opening = samples[:RATE // 8 * SAMPLE_BYTES]
        self.server.wait_until(lambda: self.server.heard().find(opening, before) >= 0, "its opening")
        self.feed(program, frame(sound("ding").read_bytes()))
        second = self.server.wait_for_sound(samples, before)
        first = self.server.heard().find(opening, before)
        self.assertLess(first, second)
        self.assertEqual(self.server.heard().find(samples, before), second, "the first was cut off")

    def test_plays_the_last_of_several_that_come_at_once(self):
        before = len(self.server.heard())
        self.feed(self.start(), b"".join(frame(sound(name).read_bytes()) for name in ("coin", "pop", "plink")))
        self.server.wait_for_sound(aiff_samples(sound("plink")), before)
        self.assertEqual(self.server.heard().find(aiff_samples(sound("pop"))[:2400], before), -1)

    def test_is_silent_for_what_is_no_sound_and_goes_on(self):
        program = self.start()
        before = len(self.server.heard())
        self.feed(program, frame(b"no sound") + frame(b""))
        self.feed(program, frame(sound("pop").read_bytes()))
        self.server.wait_for_sound(aiff_samples(sound("pop")), before)

    def test_ends_by_itself_a_few_seconds_after_the_last_sound(self):
        program = self.start()
        self.feed(program, frame(sound("pop").read_bytes()))
        start = time.monotonic()
        self.assertEqual(program.wait(15), 0)
        self.assertGreater(time.monotonic() - start, 4)

    def test_ends_with_its_input(self):
        program = self.start()
        program.stdin.close()
        self.assertEqual(program.wait(10), 0)

    def test_ends_on_input_that_is_none_of_ours(self):
        program = self.start()
        self.feed(program, b"\xff" * 100)
        self.assertEqual(program.wait(10), 0)

    def test_tells_by_its_exit_code_that_there_is_no_server(self):
        program = self.start(PULSE_SERVER="unix:/nonexistent")
        self.feed(program, frame(sound("pop").read_bytes()))
        self.assertEqual(program.wait(10), NO_DEVICE)


class SoundOfACopy(DropshadeCase):
    """The program that users run."""

    def setUp(self):
        self.server = self.enterContext(SoundServer())
        self.VARIABLES = {"PULSE_SERVER": self.server.environment["PULSE_SERVER"]}
        super().setUp()
        self.heard_before = len(self.server.heard())

    def sound_processes(self):
        found = []
        for folder in pathlib.Path("/proc").glob("[0-9]*"):
            try:
                parent = int((folder / "stat").read_text().rpartition(")")[2].split()[1])
            except (OSError, ValueError):
                continue
            if parent == self.program.pid:
                found.append(int(folder.name))
        return found

    def test_is_a_drop_at_once_and_again_at_the_next(self):
        for position in ((100, 300), (200, 400)):
            self.pick(*position)
            position = self.server.wait_for_sound(aiff_samples(sound("drop")), self.heard_before)
            self.heard_before = position + SAMPLE_BYTES

    def test_leaves_no_process_behind_and_then_is_heard_again(self):
        self.assertEqual(self.sound_processes(), [])
        self.pick(100, 300)
        self.assertEqual(len(self.sound_processes()), 1)
        wait_until(lambda: not self.sound_processes(), "the sound's process to end", 15)
        before = len(self.server.heard())
        self.pick(200, 300)
        self.server.wait_for_sound(aiff_samples(sound("drop")), before)

    def test_holds_up_neither_a_copy_nor_the_end_where_the_server_hangs(self):
        self.server.hang()
        for x in (100, 200, 300):
            self.pick(x, 300)
        self.assertEqual(self.copies_counted(), 3)
        start = time.monotonic()
        self.program.send(15)
        self.assertEqual(self.program.wait(), 0)
        self.assertLess(time.monotonic() - start, 2)


class NoSoundServer(DropshadeCase):
    VARIABLES = {"PULSE_SERVER": "unix:/nonexistent"}

    def test_is_silence_and_a_copy_like_any_other(self):
        for x in (100, 200):
            self.pick(x, 300)
        self.assertEqual(self.copies_counted(), 2)
        self.assertIsNone(self.program.returncode)


if __name__ == "__main__":
    unittest.main()
