# Copyright (c) 2026 The Dropshade authors
# SPDX-License-Identifier: MIT
"""Measures on a virtual desktop what a library of 100 palettes of 26 by 11 swatches costs the start
and the memory of the program, beside its own with the three palettes of a fresh install.

usage: library_bench.py FOLDER_OF_DROPSHADE [rounds]
"""

import json
import os
import pathlib
import sqlite3
import statistics
import sys
import time
import uuid

from desktop_bench import end, memory, seconds_to_icon
from virtual_desktop import VirtualDesktop

DATA = 5


def new_id():
    return str(uuid.uuid4()).upper()


def library():
    def swatch(number):
        return {"id": new_id(), "value": f"#{number * 7919 & 0xFFFFFF:06x}", "label": f"violet-{number % 11}00"}
    return [{"id": new_id(), "name": f"Palette {palette}", "lastModified": 7e8 + palette,
             "scales": [{"id": new_id(), "name": f"Scale {scale}",
                         "swatches": [swatch(286 * palette + 11 * scale + shade) for shade in range(11)]}
                        for scale in range(26)]}
            for palette in range(100)]


def store_library(path):
    connection = sqlite3.connect(path)
    with connection:
        connection.execute("INSERT OR REPLACE INTO defaults VALUES ('userPalettes', ?, ?)",
                           (DATA, json.dumps(library()).encode()))
    connection.close()


def measure(desktop, program, rounds):
    starts = []
    for _ in range(rounds):
        taken, child = seconds_to_icon(desktop, program)
        starts.append(taken)
        end(desktop, child)
    _, child = seconds_to_icon(desktop, program)
    time.sleep(2)
    size = memory(child.pid)[0]
    end(desktop, child)
    return statistics.median(starts) * 1000, size


def main(ours, rounds=20):
    program = os.path.join(ours, "dropshade")
    with VirtualDesktop(1920, 1080) as desktop:
        _, child = seconds_to_icon(desktop, program)
        time.sleep(2)
        end(desktop, child)
        fresh = measure(desktop, program, int(rounds))
        config = pathlib.Path(desktop.environment["XDG_CONFIG_HOME"])
        store_library(config / "dropshade" / "defaults.sqlite")
        large = measure(desktop, program, int(rounds))
    for what, (start, size) in (("three palettes", fresh), ("a hundred palettes", large)):
        print(f"{what:20} start to icon {start:6.1f} ms, resident {size:6.1f} MB")


if __name__ == "__main__":
    main(*sys.argv[1:])
