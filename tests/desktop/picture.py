# Copyright (c) 2026 The Dropshade authors
# SPDX-License-Identifier: MIT
"""A harbour at dusk, drawn as a PNG: a picture with some large colours and some rare ones."""

import math

from virtual_desktop import write_png

SKY = [(0x24, 0x32, 0x5C), (0x3E, 0x46, 0x7C), (0x62, 0x56, 0x92), (0x90, 0x66, 0x96),
       (0xC0, 0x78, 0x90), (0xE0, 0x90, 0x80), (0xEE, 0xAE, 0x80)]
SEA = [(0xC8, 0x80, 0x84), (0x9A, 0x68, 0x8A), (0x6A, 0x56, 0x80), (0x48, 0x4A, 0x76),
       (0x30, 0x3E, 0x66), (0x22, 0x30, 0x54), (0x1A, 0x24, 0x44)]
SUN, SAIL, HULL = (0xFC, 0xEC, 0xC8), (0xC8, 0x42, 0x3C), (0x14, 0x18, 0x2E)


def color_at(x, y):
    """x and y from 0 to 1."""
    horizon = 0.6
    if math.hypot((x - 0.64) * 1.5, y - 0.53) < 0.09 and y < horizon:
        return SUN
    if 0.79 < x < 0.86 and 0.42 < y < 0.66 and (x - 0.79) < (y - 0.42) * 0.35:
        return SAIL
    if 0.77 < x < 0.88 and 0.66 < y < 0.70:
        return HULL
    if y < horizon and y > 0.55 - 0.06 * math.sin(x * 9.0) - 0.02 * math.sin(x * 23.0):
        return (0x5A, 0x48, 0x78)
    if y < horizon:
        return SKY[int(y / horizon * len(SKY))]
    if abs(x - 0.64) < 0.07 and int(y * 90) % 3 == 0 and y < 0.9:
        return SUN
    return SEA[min(int((y - horizon) / (1 - horizon) * len(SEA)), len(SEA) - 1)]


def write_harbour(path, width=600, height=400):
    def row(y):
        return b"\0" + bytes(channel for x in range(width)
                             for channel in color_at((x + 0.5) / width, (y + 0.5) / height))
    rows = [row(y) for y in range(height)]
    write_png(path, width, height, b"".join(rows))
