#!/usr/bin/env python3
"""Renders the tunes of the about window into a folder: render.py data/tunes

Each is a loop of 16-bit mono WAV whose last notes ring on into its beginning. The same score gives
the same bytes.
"""

import array
import math
import pathlib
import sys
import wave

RATE = 22050
PEAK = 0.42
STEPS = {"c": 0, "d": 2, "e": 4, "f": 5, "g": 7, "a": 9, "b": 11}

# A voice is its partials (multiple of the pitch, strength, seconds to decay to about a third), its
# attack in seconds, and its loudness.
BELL = ([(1, 1.0, 0.55), (2, 0.35, 0.3), (4, 0.12, 0.12)], 0.006, 0.8)
MARIMBA = ([(1, 1.0, 0.24), (4, 0.22, 0.06), (10, 0.04, 0.02)], 0.004, 0.9)
STRING = ([(1, 1.0, 0.7), (2, 0.5, 0.45), (3, 0.25, 0.3), (4, 0.1, 0.2)], 0.012, 0.55)
PAD = ([(1, 1.0, 1.3), (2, 0.25, 0.9), (3, 0.08, 0.6)], 0.16, 0.5)
BASS = ([(1, 1.0, 0.5), (2, 0.3, 0.2)], 0.01, 0.75)

# A tune is the length of a beat in seconds and its voices. A voice's line has an item per beat:
# "-" is a rest, "/" splits the beat, and "+" plays notes together. 4 is the middle octave.
TUNES = [
    # First Light: a music box that climbs and comes home.
    (0.42, [
        (BELL, "e5/g5 c6/g5 b5/g5 e5/d5 a4/c5 e5/a5 g5/e5 d5/- "
               "e5/g5 c6/d6 e6/d6 b5/g5 a5/c6 g5/e5 d5/e5 c5/-"),
        (PAD, "c4+e4+g4 - - - a3+c4+e4 - - - c4+e4+g4 - g3+b3+d4 - f3+a3+c4 - g3+b3+d4 -"),
        (BASS, "c3 - - - a2 - - - c3 - g2 - f2 - g2 -"),
    ]),
    # Market Day: a marimba in a hurry.
    (0.36, [
        (MARIMBA, "d5/f5 a5/f5 g5/e5 c5/e5 f5/d5 a4/d5 e5/f5 g5/- "
                  "a5/f5 c6/a5 b5/g5 d5/g5 a5/g5 f5/e5 d5/c5 d5/-"),
        (MARIMBA, "d4/a4 d4/a4 c4/g4 c4/g4 d4/f4 d4/f4 c4/e4 c4/g4 "
                  "f4/a4 f4/a4 g4/b4 g4/b4 f4/a4 c4/g4 a3/g4 d4/a4"),
        (BASS, "d3 -/d3 c3 -/c3 d3 -/d3 c3 -/c3 f3 -/f3 g2 -/g2 f3 c3 a2 d3"),
    ]),
    # Penny Waltz: three beats, plucked.
    (0.38, [
        (STRING, "g5 - b5 a5 - g5 e5 - c5 d5 - - b4 - d5 g5 - f5 e5/d5 c5/b4 a4 g4 - -"),
        (STRING, "- b3+d4 b3+d4 - c4+f4 c4+f4 - g3+c4 g3+c4 - f4+a4 f4+a4 "
                 "- d4+g4 d4+g4 - b3+d4 b3+d4 - e4+g4 c4+f4 - b3+d4 d4+f4"),
        (BASS, "g2 - - f2 - - c3 - - d3 - - b2 - - g2 - - c3 - d3 g2 - -"),
    ]),
    # Sold: four slow chords with bells above them.
    (0.46, [
        (PAD, "f3+a3+c4+e4 - - - e3+g3+b3+d4 - - - d3+f3+a3+c4 - - - g3+b3+d4+f4 - c4+e4+g4 -"),
        (BELL, "- c6 -/a5 e5 - b5 -/g5 d5 - a5 f5/c5 e5 - f5/d5 e5/g5 c6"),
        (BASS, "f2 - - f2 e2 - - e2 d2 - - d2 g2 - c3 -"),
    ]),
]


def frequency(note):
    """The frequency of a note such as "c4", in hertz."""
    tone = STEPS[note[0]] + 12 * (int(note[1]) - 4)
    return 440.0 * 2 ** ((tone - STEPS["a"]) / 12)


def notes(line, beat):
    """The notes of a voice's line: when each begins, in seconds, and its name."""
    for number, slot in enumerate(line.split()):
        parts = slot.split("/")
        for place, chord in enumerate(parts):
            for note in chord.split("+"):
                if note != "-":
                    yield (number + place / len(parts)) * beat, note


def add_tone(loop, start, pitch, voice):
    partials, attack, loudness = voice
    first = round(start * RATE)
    for multiple, strength, decay in partials:
        if pitch * multiple > RATE * 0.4:
            continue
        angle = 2 * math.pi * pitch * multiple / RATE
        for i in range(round(decay * 6 * RATE)):
            rise = min(1.0, i / (attack * RATE))
            fall = math.exp(-i / (decay * RATE))
            loop[(first + i) % len(loop)] += loudness * strength * rise * fall * math.sin(angle * i)


def render(beat, voices):
    """The samples of a tune, as 16-bit numbers."""
    beats = {len(line.split()) for _, line in voices}
    assert len(beats) == 1, beats
    loop = [0.0] * round(beats.pop() * beat * RATE)
    for voice, line in voices:
        for start, note in notes(line, beat):
            add_tone(loop, start, frequency(note), voice)
    echo = round(beat * 0.75 * RATE)
    wet = [dry + 0.18 * loop[i - echo] for i, dry in enumerate(loop)]
    scale = PEAK * 32767 / max(map(abs, wet))
    return array.array("h", (round(sample * scale) for sample in wet))


def main():
    folder = pathlib.Path(sys.argv[1])
    for number, (beat, voices) in enumerate(TUNES):
        samples = render(beat, voices)
        if sys.byteorder == "big":
            samples.byteswap()
        with wave.open(str(folder / f"tune-{number}.wav"), "wb") as file:
            file.setparams((1, 2, RATE, 0, "NONE", ""))
            file.writeframes(samples.tobytes())


if __name__ == "__main__":
    main()
