#!/usr/bin/env python3
# Copyright (c) 2026 The Dropshade authors
# SPDX-License-Identifier: MIT
"""Writes ContrastReferencePairs.inc: pairs of 8-bit colours with their WCAG 2 ratio and APCA Lc.

The two measures are worked out here from their published definitions in decimal arithmetic of 50
digits, so that the table owes nothing to the program's own doubles:

    python3 contrast_reference_pairs.py > ContrastReferencePairs.inc
"""
from decimal import Decimal as D, getcontext

getcontext().prec = 50


def power(base, exponent):
    return D(0) if base == 0 else (base.ln() * D(exponent)).exp()


def channels(color):
    return [D(color >> shift & 0xFF) / 255 for shift in (16, 8, 0)]


def weighted(values, weights):
    return sum((value * D(weight) for value, weight in zip(values, weights)), D(0))


def wcag_luminance(color):
    linear = [c / D("12.92") if c <= D("0.04045") else power((c + D("0.055")) / D("1.055"), "2.4")
              for c in channels(color)]
    return weighted(linear, ("0.2126", "0.7152", "0.0722"))


def wcag_ratio(first, second):
    low, high = sorted((wcag_luminance(first), wcag_luminance(second)))
    return (high + D("0.05")) / (low + D("0.05"))


def apca_luminance(color):
    y = weighted([power(c, "2.4") for c in channels(color)], ("0.2126729", "0.7151522", "0.072175"))
    black = D("0.022")
    return y + power(black - y, "1.414") if y < black else y


def apca_lc(text, background):
    t, b = apca_luminance(text), apca_luminance(background)
    if abs(b - t) < D("0.0005"):
        return D(0)
    if b > t:
        contrast = (power(b, "0.56") - power(t, "0.57")) * D("1.14")
        return D(0) if contrast < D("0.1") else (contrast - D("0.027")) * 100
    contrast = (power(b, "0.65") - power(t, "0.62")) * D("1.14")
    return D(0) if contrast > D("-0.1") else (contrast + D("0.027")) * 100


def pairs():
    corners = [0x000000, 0xFFFFFF, 0xFF0000, 0x00FF00, 0x0000FF, 0xFFFF00, 0xFF00FF, 0x00FFFF,
               0x777777, 0x888888, 0x0A0A0A, 0x0B0B0B]
    yield from ((a, b) for a in corners for b in corners)
    # A linear congruential generator, so that the table is the same in every Python.
    state = 20260101
    for _ in range(256):
        drawn = []
        for _ in range(2):
            state = (state * 6364136223846793005 + 1442695040888963407) % 2**64
            drawn.append(state >> 40)
        yield tuple(drawn)


def main():
    print("// Copyright (c) 2026 The Dropshade authors\n// SPDX-License-Identifier: MIT")
    print("// {text, background, WCAG 2 ratio, APCA Lc}, written by contrast_reference_pairs.py.")
    for text, background in pairs():
        print(f"{{0x{text:06x}, 0x{background:06x}, {wcag_ratio(text, background):.20f}, "
              f"{apca_lc(text, background):.20f}}},")


main()
