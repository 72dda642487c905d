# Copyright (c) 2026 The Dropshade authors
# SPDX-License-Identifier: MIT
"""Measures how long the status menu takes from the click to its picture on the screen, without
colours to show and with 50 recent colours and 500 favourites, and then its submenu of favourites.

Then the time from a shortcut's release to its action, by HotKeyBench.

usage: menu_bench.py FOLDER_OF_DROPSHADE FOLDER_OF_HOT_KEY_BENCH [rounds]
"""

import contextlib
import json
import os
import pathlib
import random
import sqlite3
import statistics
import subprocess
import sys
import time
import uuid

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[1] / "tools"))

from virtual_desktop import VirtualDesktop, wait_until  # noqa: E402

RECENTS, FAVOURITES = 50, 500
DATA, INTEGER = 5, 2
BUDGET_MILLISECONDS = 50.0
# The ground of a menu in the light theme.
GROUND = (0xFB, 0xFB, 0xFB)


def store_path(desktop):
    return next(pathlib.Path(desktop.environment["XDG_CONFIG_HOME"]).rglob("defaults.sqlite"), None)


def new_id():
    return str(uuid.uuid4()).upper()


def remember_colors(path):
    """Favourites on the first swatches of the library, in no order, and recent colours."""
    randomly = random.Random(1)
    with contextlib.closing(sqlite3.connect(path)) as settings, settings:
        row = settings.execute("SELECT value FROM defaults WHERE key = 'userPalettes'").fetchone()
        pins = [{"id": new_id(), "paletteId": palette["id"], "paletteName": palette["name"],
                 "scaleId": scale["id"], "scaleName": scale["name"], "swatchId": swatch["id"],
                 "value": swatch["value"], "pinnedAt": 700000000}
                for palette in json.loads(row[0]) for scale in palette["scales"]
                for swatch in scale["swatches"]]
        randomly.shuffle(pins)
        recents = [{"id": new_id(), "red": randomly.random(), "green": randomly.random(),
                    "blue": randomly.random(), "alpha": 1.0} for _ in range(RECENTS)]
        for key, kind, value in (("pinnedColors", DATA, json.dumps(pins[:FAVOURITES]).encode()),
                                 ("recentColors", DATA, json.dumps(recents).encode()),
                                 ("recentColorsLimit", INTEGER, RECENTS)):
            settings.execute("INSERT OR REPLACE INTO defaults(key, type, value) VALUES (?, ?, ?)",
                             (key, kind, value))
    return min(len(pins), FAVOURITES)


def processor_seconds(pid):
    """What the program's threads have run so far."""
    total = 0
    for thread in os.listdir(f"/proc/{pid}/task"):
        with open(f"/proc/{pid}/task/{thread}/schedstat") as file:
            total += int(file.read().split()[0])
    return total / 1e9


def openings(desktop, pid, rounds):
    """Seconds from the press of the button to the last row's ground, by the clock and of processor
    time of the program, for each opening."""
    x, y, width, height = desktop.tray_icon()
    taken = []
    for _ in range(rounds + 1):
        desktop.move(x + width // 2, y + height // 2)
        time.sleep(0.3)
        before = processor_seconds(pid)
        started = time.monotonic()
        desktop.press()
        left, top, across, down = wait_until(desktop.open_menu, "the menu")
        while desktop.pixel(left + across // 2, top + down - 10) != GROUND:
            pass
        taken.append((time.monotonic() - started, processor_seconds(pid) - before))
        desktop.release()
        desktop.key("Escape")
        wait_until(lambda: not desktop.open_menu(), "the menu to close")
    # The first opening of a process makes fonts and drawings that all later ones share.
    return taken[0], taken[1:]


def submenu_opening(desktop, pid):
    """The same from the key to the picture of the favourites."""
    x, y, width, height = desktop.tray_icon()
    time.sleep(0.3)
    desktop.click(x + width // 2, y + height // 2)
    desktop.wait_for_menu()
    for _ in range(8):
        desktop.key("Down")
    time.sleep(0.2)
    before = processor_seconds(pid)
    started = time.monotonic()
    desktop.key("Right")
    wait_until(lambda: len(desktop.open_menus()) == 2, "the favourites")
    left, top, _, down = desktop.open_menus()[-1]
    while desktop.pixel(left + 12, top + down // 2) != GROUND:
        pass
    taken = time.monotonic() - started, processor_seconds(pid) - before
    desktop.key("Escape")
    desktop.key("Escape")
    return taken


def line(what, first, later):
    clock, processor = zip(*later)
    print(f"{what:42} first {first[0] * 1000:5.1f} ms ({first[1] * 1000:4.1f} of the processor), "
          f"then median {statistics.median(clock) * 1000:5.1f} ms "
          f"({statistics.median(processor) * 1000:4.1f}), least {min(clock) * 1000:5.1f} ms")


def main(folder, bench_folder, rounds=20):
    program = os.path.join(folder, "dropshade")
    with VirtualDesktop() as desktop:
        child = desktop.start([program])
        desktop.tray_icon()
        time.sleep(1.5)  # The palettes are loaded by then.
        empty = openings(desktop, child.pid, int(rounds))
        child.end()
        pinned = remember_colors(store_path(desktop))
        wait_until(lambda: not desktop.has_tray_icon(), "the icon to go")
        child = desktop.start([program])
        desktop.tray_icon()
        time.sleep(1.5)
        full = openings(desktop, child.pid, int(rounds))
        favourites = submenu_opening(desktop, child.pid)
        child.end()
        keys = subprocess.run([os.path.join(bench_folder, "HotKeyBench")], env=desktop.environment,
                              capture_output=True, text=True, check=False)
    line("click to menu, no colours", *empty)
    line(f"click to menu, {RECENTS} recents, {pinned} favourites", *full)
    print(f"key to the submenu of {pinned} favourites: {favourites[0] * 1000:.1f} ms "
          f"({favourites[1] * 1000:.1f} of the processor)")
    print(keys.stdout, end="")
    least = min(clock for clock, _ in full[1]) * 1000
    if keys.returncode != 0:
        sys.exit("HotKeyBench is over its budget")
    if least > BUDGET_MILLISECONDS:
        sys.exit(f"over the budget of {BUDGET_MILLISECONDS} ms: {least:.1f} ms")


if __name__ == "__main__":
    main(*sys.argv[1:])
