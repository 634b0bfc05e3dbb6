#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The Velvetnook developers
# SPDX-License-Identifier: MIT
"""Makes our sounds, completion.wav and reminder.wav, from nothing but sines.

    resources/sounds/make-sounds.py

A sound is a few struck tones, each with soft overtones that fade faster the higher they are.
"""

import array
import math
import pathlib
import sys
import wave

RATE = 22050  # samples a second
PEAK = 0.30  # of full scale: heard, and startling nobody
ATTACK = 0.008  # seconds until a tone has its strength; a harder one clicks
OVERTONES = [(1.0, 1.0, 1.0), (2.0, 0.28, 1.9), (3.01, 0.09, 3.2)]  # ratio, strength, fading

# The tones of a sound as (starts at, hertz, strength, fades by half in seconds).
SOUNDS = {
    "completion": (1.1, [(0.0, 523.25, 0.8, 0.13), (0.14, 783.99, 1.0, 0.19)]),
    "reminder": (1.2, [(0.0, 392.0, 1.0, 0.22)]),
}


def loudness(time, tones):
    total = 0.0
    for start, hertz, strength, half in tones:
        since = time - start
        if since < 0:
            continue
        attack = min(1.0, since / ATTACK)
        for ratio, part, fading in OVERTONES:
            fade = 0.5 ** (since * fading / half)
            total += strength * part * attack * fade * math.sin(2 * math.pi * hertz * ratio * since)
    return total


def samples(length, tones):
    count = int(length * RATE)
    raw = [loudness(index / RATE, tones) for index in range(count)]
    scale = PEAK * 32767 / max(abs(value) for value in raw)
    ending = int(0.05 * RATE)  # to silence, so that the end does not click
    return array.array(
        "h",
        (round(value * scale * min(1.0, (count - index) / ending)) for index, value in enumerate(raw)),
    )


def main():
    folder = pathlib.Path(__file__).parent
    for name, (length, tones) in SOUNDS.items():
        values = samples(length, tones)
        if sys.byteorder == "big":
            values.byteswap()
        with wave.open(str(folder / f"{name}.wav"), "wb") as out:
            out.setnchannels(1)
            out.setsampwidth(2)
            out.setframerate(RATE)
            out.writeframes(values.tobytes())


if __name__ == "__main__":
    main()
