# Copyright (c) 2026 The Dropshade authors
# SPDX-License-Identifier: MIT
"""Makes the sounds of a copy: resources/sounds/*.aiff, 16 bit, 48 kHz, mono.

usage: make_sounds.py FOLDER

The bytes are the same on every machine: only additions, multiplications, divisions and square roots
are used, which IEEE 754 rounds in one way. The C library's sine and power may differ in their last
bit from one processor to the next.
"""

import math
import pathlib
import random
import struct
import sys

RATE = 48000
LOUDNESS = -18.0  # of the loudest fifth of a second, in LUFS
LOUDNESS_WINDOW = RATE // 5
HIGHEST_PEAK = 0.8
EDGE = RATE // 500  # zero samples at either end


# Arithmetic

def sine(turns):
    """The sine of an angle in whole turns."""
    x = (turns - math.floor(turns + 0.5)) * 4.0  # quarter turns, -2 to 2
    x = 2.0 - x if x > 1.0 else -2.0 - x if x < -1.0 else x
    x *= 1.5707963267948966
    square = x * x
    total = 0.0
    for divisor in (210.0, 156.0, 110.0, 72.0, 42.0, 20.0, 6.0):
        total = (1.0 - total) * square / divisor
    return x * (1.0 - total)


def power_of_two(exponent):
    whole = math.floor(exponent)
    x = (exponent - whole) * 0.6931471805599453
    total = 1.0
    for divisor in range(14, 0, -1):
        total = 1.0 + total * x / divisor
    return math.ldexp(total, whole)


def decay(time, half_life):
    return power_of_two(-time / half_life)


def ramp(position):
    """A smooth way from 0 to 1, level at both ends."""
    position = min(max(position, 0.0), 1.0)
    return 0.5 - 0.5 * sine(position / 2.0 + 0.25)


# Building blocks: each takes seconds and hertz, and gives a list of samples

def render(seconds, sample):
    """`sample(time)` for each moment."""
    return [sample(index / RATE) for index in range(round(seconds * RATE))]


def glide(seconds, frequency, wave=sine):
    """A tone whose `frequency(time)` may change."""
    turns = 0.0
    samples = []
    for index in range(round(seconds * RATE)):
        samples.append(wave(turns))
        turns += frequency(index / RATE) / RATE
    return samples


def shaped(samples, attack, level=lambda time: 1.0, release=0.03):
    """Gives the samples a loudness over time, with a smooth beginning and end."""
    length = len(samples) / RATE
    return [value * level(index / RATE) * ramp(index / RATE / attack) *
            ramp((length - index / RATE) / release) for index, value in enumerate(samples)]


def mixed(*parts):
    """Adds parts (start, samples) up."""
    length = max(round(start * RATE) + len(samples) for start, samples in parts)
    result = [0.0] * length
    for start, samples in parts:
        first = round(start * RATE)
        for index, value in enumerate(samples):
            result[first + index] += value
    return result


def noise(seconds, seed):
    source = random.Random(seed)
    return [2.0 * source.random() - 1.0 for _ in range(round(seconds * RATE))]


def band(samples, frequency, sharpness):
    """What is near `frequency(time)`, by a state-variable filter."""
    low = middle = 0.0
    result = []
    for index, value in enumerate(samples):
        step = sine(frequency(index / RATE) / RATE / 2.0)
        step = step / math.sqrt(1.0 - step * step)
        damping = 1.0 / sharpness
        high = (value - low - (damping + step) * middle) / (1.0 + damping * step + step * step)
        middle += step * high
        result.append(middle)
        low += step * middle
        middle += step * high
    return result


def partials(*amplitudes):
    """A wave of harmonics, loudest first."""
    return lambda turns: sum(amplitude * sine(turns * (number + 1))
                             for number, amplitude in enumerate(amplitudes) if amplitude)


ROUND = partials(1.0, 0.0, 0.16, 0.0, 0.05)
HOLLOW = partials(1.0, 0.0, 0.33, 0.0, 0.2, 0.0, 0.14, 0.0, 0.11)
BUZZ = partials(*(1.0 / number for number in range(1, 26)))


def note(seconds, frequency, half_life, wave=ROUND, attack=0.004):
    return shaped(glide(seconds, lambda time: frequency, wave), attack,
                  lambda time: decay(time, half_life))


# The sounds

def coin():
    return mixed((0.0, note(0.085, 987.77, 0.2)), (0.075, note(0.40, 1318.51, 0.075)))


def collect():
    steps = (1046.50, 1318.51, 1567.98, 2093.00)
    return mixed(*((0.06 * index, note(0.28, frequency, 0.045))
                   for index, frequency in enumerate(steps)))


def drop():
    fall = shaped(glide(0.28, lambda time: 480.0 + 1150.0 * ramp(time / 0.13)), 0.006,
                  lambda time: decay(time, 0.045))
    splash = shaped(glide(0.16, lambda time: 900.0 + 1500.0 * ramp(time / 0.08)), 0.006,
                    lambda time: 0.35 * decay(time, 0.03))
    return mixed((0.0, fall), (0.115, splash))


def ding():
    bell = ((1.0, 1.0, 0.13), (2.0, 0.35, 0.09), (2.76, 0.28, 0.06), (5.40, 0.12, 0.03))
    return mixed(*((0.0, [level * value for value in note(0.56, 1174.66 * ratio, half_life, sine)])
                   for ratio, level, half_life in bell))


def fart():
    flutter = noise(0.45, 3)
    wander = 0.0
    pitches = []
    for index, value in enumerate(flutter):
        wander += (value * 40.0 - wander) / 400.0
        pitches.append(118.0 - 70.0 * index / len(flutter) + 9.0 * sine(index / RATE * 11.0) + 3.0 * wander)
    raw = glide(0.45, lambda time: pitches[min(round(time * RATE), len(pitches) - 1)], BUZZ)
    body = band(raw, lambda time: 520.0 - 450.0 * time, 1.1)
    return shaped(body, 0.015, lambda time: 0.75 + 0.25 * sine(time * 17.0), 0.12)


def plink():
    def overtone(ratio, level, half_life):
        return (0.0, [level * value for value in note(0.32, 1760.0 * ratio, half_life, sine, 0.002)])
    return mixed(overtone(1.0, 1.0, 0.04), overtone(2.002, 0.45, 0.022), overtone(3.01, 0.3, 0.014),
                 overtone(4.02, 0.15, 0.008))


def pop():
    return shaped(glide(0.14, lambda time: 260.0 + 640.0 * ramp(time / 0.05)), 0.003,
                  lambda time: decay(time, 0.022))


def retro():
    steps = (523.25, 783.99, 1046.50, 783.99, 1567.98)
    return mixed(*((0.055 * index, note(0.075 if index < 4 else 0.2, frequency, 0.09, HOLLOW))
                   for index, frequency in enumerate(steps)))


def whoosh():
    def sweep(time):
        return 350.0 + 2400.0 * ramp(time / 0.26) - 1700.0 * ramp((time - 0.24) / 0.26)
    air = band(band(noise(0.52, 7), sweep, 1.6), sweep, 1.2)
    return shaped(air, 0.12, release=0.3)


SOUNDS = (coin, collect, drop, ding, fart, plink, pop, retro, whoosh)


# Levelling

def filtered(samples, feed, back):
    """A filter of the second order in its direct form."""
    x1 = x2 = y1 = y2 = 0.0
    result = []
    for x in samples:
        y = feed[0] * x + feed[1] * x1 + feed[2] * x2 - back[0] * y1 - back[1] * y2
        x1, x2, y1, y2 = x, x1, y, y1
        result.append(y)
    return result


def weighted(samples):
    """As the ear hears it: the filters of ITU-R BS.1770-4, tables 1 and 2, for 48 kHz."""
    head = filtered(samples, (1.53512485958697, -2.69169618940638, 1.19839281085285),
                    (-1.69065929318241, 0.73248077421585))
    return filtered(head, (1.0, -2.0, 1.0), (-1.99004745483398, 0.99007225036621))


def loudest_mean_square(samples):
    squares = [value * value for value in weighted(samples)] + [0.0] * LOUDNESS_WINDOW
    total = loudest = 0.0
    for index, value in enumerate(squares):
        total += value
        if index >= LOUDNESS_WINDOW:
            total -= squares[index - LOUDNESS_WINDOW]
        loudest = max(loudest, total)
    return loudest / LOUDNESS_WINDOW


def loudness(samples):
    """In LUFS, of the loudest fifth of a second: about what the ear takes for one impression."""
    return -0.691 + 10.0 * math.log10(loudest_mean_square(samples))


def levelled(samples):
    wanted = power_of_two((LOUDNESS + 0.691) / 10.0 * 3.321928094887362)
    gain = math.sqrt(wanted / loudest_mean_square(samples))
    return [value * gain for value in samples]


# The file

def aiff(samples):
    """The samples, from -1 to 1, as an AIFF file."""
    # A rate is an 80-bit float: the exponent, then the number shifted until its top bit is set.
    rate = struct.pack(">HQ", 16383 + RATE.bit_length() - 1, RATE << (64 - RATE.bit_length()))
    data = struct.pack(f">{len(samples)}h", *(math.floor(value * 32767.0 + 0.5) for value in samples))
    common = struct.pack(">hIh", 1, len(samples), 16) + rate
    sound = struct.pack(">II", 0, 0) + data
    body = b"".join(name + struct.pack(">I", len(chunk)) + chunk
                    for name, chunk in ((b"COMM", common), (b"SSND", sound)))
    return b"FORM" + struct.pack(">I", 4 + len(body)) + b"AIFF" + body


def make(sound):
    """The bytes of one sound's file."""
    samples = [0.0] * EDGE + levelled(sound()) + [0.0] * EDGE
    peak = max(abs(value) for value in samples)
    if peak > HIGHEST_PEAK:
        raise ValueError(f"{sound.__name__} peaks at {peak:.2f}")
    return aiff(samples)


def main(folder):
    for sound in SOUNDS:
        (pathlib.Path(folder) / f"{sound.__name__}.aiff").write_bytes(make(sound))


if __name__ == "__main__":
    main(*sys.argv[1:])
