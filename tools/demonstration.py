# Copyright (c) 2026 The Dropshade authors
# SPDX-License-Identifier: MIT
"""Shows the main job on a virtual desktop: control-click the icon, click a pixel, read the clipboard.

usage: demonstration.py PROGRAM FOLDER
"""

import os
import sys

from virtual_desktop import VirtualDesktop, wait_until

BACKGROUND = (38, 42, 51)
COLORS = [(229, 57, 53), (251, 140, 0), (253, 216, 53), (67, 160, 71), (30, 136, 229), (94, 53, 177)]
TILE = 150
TOP = 300


def main(program, folder):
    os.makedirs(folder, exist_ok=True)
    with VirtualDesktop(1280, 800) as desktop:
        tiles = [(100 + index * (TILE + 36), TOP, TILE, TILE, color)
                 for index, color in enumerate(COLORS)]
        desktop.paint([(0, 0, 1280, 800, BACKGROUND), *tiles])
        desktop.start([program])
        x, y, width, height = desktop.tray_icon()
        desktop.screenshot(os.path.join(folder, "1-status-item.png"))

        print("control-click on the status item")
        desktop.move(x + width // 2, y + height // 2)
        desktop.key_down("Control_L")
        desktop.click()
        desktop.key_up("Control_L")
        wait_until(lambda: (0, 0, 1280, 800) in desktop.windows(), "the loupe")

        left, top, *_, color = tiles[4]
        target = (left + 2, top + 2)
        print(f"click in the loupe at {target}, where the screen is #%02X%02X%02X" % color)
        desktop.move(*target)
        wait_until(lambda: desktop.shows_loupe(*target), "the loupe around the pixel")
        desktop.screenshot(os.path.join(folder, "2-loupe.png"))
        desktop.click()
        wait_until(desktop.clipboard_owner, "the clipboard")
        print("the clipboard, as another process reads it:", desktop.clipboard_text())
    print("screenshots:", os.path.abspath(folder))


if __name__ == "__main__":
    main(*sys.argv[1:])
