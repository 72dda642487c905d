#!/usr/bin/env python3
# Copyright (c) 2026 The Dropshade authors
# SPDX-License-Identifier: MIT
"""Times Pillow's quantisers on packed RGB pixels.

    pillow_quantize.py FILE WIDTH HEIGHT COLOURS RUNS

A line for each: its name, the milliseconds of processor time of each run, and its palette as red,green,blue triples.
"""
import sys
import time

from PIL import Image

METHODS = (
    ("Pillow median cut", {"method": 0}),
    ("Pillow fast octree", {"method": 2}),
    ("Pillow K-means", {"method": 0, "kmeans": 1}),
)


def main():
    name, width, height, colors, runs = sys.argv[1], *map(int, sys.argv[2:])
    with open(name, "rb") as file:
        image = Image.frombytes("RGB", (width, height), file.read())
    for title, options in METHODS:
        times = []
        for _ in range(runs):
            start = time.process_time()
            result = image.quantize(colors, dither=0, **options)
            times.append((time.process_time() - start) * 1e3)
        used = {index for _, index in result.getcolors()}
        palette = result.getpalette()
        triples = [",".join(map(str, palette[3 * i:3 * i + 3])) for i in sorted(used)]
        print(title, " ".join(f"{t:.4f}" for t in times), " ".join(triples), sep="\t")


main()
