# Copyright (c) 2026 The Dropshade authors
# SPDX-License-Identifier: MIT
"""Measures the program on a virtual desktop, beside a bare Qt tray program in the same run.

usage: desktop_bench.py FOLDER_OF_DROPSHADE FOLDER_OF_BARE_TRAY [rounds]
"""

import os
import pathlib
import statistics
import sys
import time

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[1] / "tools"))

from Xlib import X, display  # noqa: E402

from virtual_desktop import VirtualDesktop, wait_until  # noqa: E402

IDLE_SECONDS = 10


def seconds_to_icon(desktop, program):
    """From exec to the icon's window being on the screen."""
    started = time.monotonic()
    child = desktop.start([program])
    while not desktop.has_tray_icon():
        pass
    taken = time.monotonic() - started
    return taken, child


def end(desktop, child):
    child.end()
    wait_until(lambda: not desktop.has_tray_icon(), "the icon to go")


def memory(pid):
    """Resident and proportional set size in MB."""
    sizes = {}
    with open(f"/proc/{pid}/smaps_rollup") as file:
        for line in file:
            name, _, rest = line.partition(":")
            if name in ("Rss", "Pss"):
                sizes[name] = int(rest.split()[0]) / 1024
    return sizes["Rss"], sizes["Pss"]


def wake_ups(pid):
    """Voluntary context switches of all threads so far."""
    total = 0
    for thread in os.listdir(f"/proc/{pid}/task"):
        with open(f"/proc/{pid}/task/{thread}/status") as file:
            total += next(int(line.split()[1]) for line in file
                          if line.startswith("voluntary_ctxt_switches"))
    return total


def percentile(values, percent):
    return sorted(values)[min(len(values) - 1, int(len(values) * percent / 100))]


class ClipboardReader:
    """Another client, with its connection and window ready, so that no process start is measured."""

    def __init__(self, name):
        self.display = display.Display(name)
        self.window = self.display.screen().root.create_window(0, 0, 1, 1, 0, 0, X.InputOnly)
        self.clipboard, self.utf8, self.place = (
            self.display.intern_atom(atom) for atom in ("CLIPBOARD", "UTF8_STRING", "DROPSHADE_BENCH"))

    def owner(self):
        owner = self.display.get_selection_owner(self.clipboard)
        return owner.id if owner != X.NONE else None

    def text(self):
        self.window.convert_selection(self.clipboard, self.utf8, self.place, X.CurrentTime)
        self.display.flush()
        while True:
            event = self.display.next_event()
            if event.type == X.SelectionNotify:
                break
        value = self.window.get_full_property(self.place, X.AnyPropertyType)
        return value.value.decode() if value else ""


def pick_latencies(desktop, rounds):
    """From the click in the loupe to another client's having the text, in seconds."""
    reader = ClipboardReader(desktop.environment["DISPLAY"])
    x, y, width, height = desktop.tray_icon()
    taken = []
    for index in range(rounds):
        desktop.own_clipboard("before")
        other = reader.owner()
        desktop.click(x + width // 2, y + height // 2, button=3)
        wait_until(desktop.keyboard_is_grabbed, "the loupe")
        target = (200 + 13 * index % 1500, 300 + 7 * index % 500)
        desktop.move(*target)
        wait_until(lambda: desktop.shows_loupe(*target), "the loupe at the pixel")
        started = time.monotonic()
        desktop.press()
        while reader.owner() == other:
            pass
        text = reader.text()
        taken.append(time.monotonic() - started)
        desktop.release()
        assert text.startswith("#"), text
        wait_until(lambda: not desktop.keyboard_is_grabbed(), "the loupe to go")
        time.sleep(0.02)
    return taken


def frames(desktop, moves):
    """Seconds from a movement of the pointer to the loupe's ring being there."""
    x, y, width, height = desktop.tray_icon()
    desktop.click(x + width // 2, y + height // 2, button=3)
    wait_until(desktop.keyboard_is_grabbed, "the loupe")
    taken = []
    for index in range(moves):
        target = (300 + 11 * index % 1300, 300 + 5 * index % 400)
        started = time.monotonic()
        desktop.move(*target)
        while not desktop.shows_loupe(*target):
            pass
        taken.append(time.monotonic() - started)
    desktop.key("Escape")
    wait_until(lambda: not desktop.keyboard_is_grabbed(), "the loupe to go")
    return taken


def main(ours, floor, rounds=20):
    programs = {"dropshade": os.path.join(ours, "dropshade"), "bare tray": os.path.join(floor, "BareTray")}
    with VirtualDesktop(1920, 1080) as desktop:
        starts = {name: [] for name in programs}
        for _ in range(int(rounds)):
            for name, program in programs.items():
                taken, child = seconds_to_icon(desktop, program)
                starts[name].append(taken)
                end(desktop, child)
        sizes, idle = {}, {}
        for name, program in programs.items():
            _, child = seconds_to_icon(desktop, program)
            time.sleep(2)
            sizes[name] = memory(child.pid)
            before = wake_ups(child.pid)
            time.sleep(IDLE_SECONDS)
            idle[name] = wake_ups(child.pid) - before
            end(desktop, child)
        _, child = seconds_to_icon(desktop, programs["dropshade"])
        latencies = pick_latencies(desktop, 40)
        moves = frames(desktop, 100)
        end(desktop, child)
    report(starts, sizes, idle, latencies, moves)


def report(starts, sizes, idle, latencies, moves):
    def line(what, ours, floor, unit):
        ratio = f"{ours / floor:.2f}" if floor else "-"
        print(f"{what:34} {ours:8.1f} {floor:8.1f} {ratio:>6}  {unit}")
    print(f"{'':34} {'ours':>8} {'floor':>8} {'ratio':>6}")
    median = {name: statistics.median(values) * 1000 for name, values in starts.items()}
    line("start to icon, median", median["dropshade"], median["bare tray"], "ms")
    line("resident memory", sizes["dropshade"][0], sizes["bare tray"][0], "MB")
    line("proportional memory", sizes["dropshade"][1], sizes["bare tray"][1], "MB")
    line(f"wake-ups in {IDLE_SECONDS} idle seconds", idle["dropshade"], idle["bare tray"], "")
    for what, values in (("click to text in another client", latencies), ("move to drawn loupe", moves)):
        print(f"{what}: median {statistics.median(values) * 1000:.1f} ms, "
              f"95th percentile {percentile(values, 95) * 1000:.1f} ms")


if __name__ == "__main__":
    main(*sys.argv[1:])
