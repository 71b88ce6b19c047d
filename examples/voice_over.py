"""Lays a voice over music: the music steps back where there is speech, and a limiter keeps the sum in bounds.

voice_over.py voice.wav music.wav out.wav [--music 0.7] [--duck 0.3]
"""

import argparse
import sys
from pathlib import Path

import tessaro
from tessaro import Sound

BLOCK = 2205  # a twentieth of a second


def loudness(sound, start):
    """The greatest sample of a block, 0 to 1."""
    block = memoryview(sound.cut(start, BLOCK).array).cast("B").cast("h")
    return max(max(block), -min(block)) / 32768


def main():
    parser = argparse.ArgumentParser(description="Lays a voice over music.")
    parser.add_argument("voice", type=Path)
    parser.add_argument("music", type=Path)
    parser.add_argument("out", type=Path)
    parser.add_argument("--music-gain", type=float, default=0.8)
    parser.add_argument("--duck", type=float, default=0.3, help="the music's gain under speech")
    given = parser.parse_args()

    voice = Sound.open(given.voice).convert(bits=16, channels=2, rate=44100)
    music = Sound.open(given.music).convert(bits=16, channels=2, rate=44100)
    mixed = Sound(voice.frames + 44100)  # a second of music to end with
    gain = given.music_gain
    for start in range(0, mixed.frames, BLOCK):
        print(f"\r{100 * start // mixed.frames} %", end="", file=sys.stderr)
        aim = given.duck if start < voice.frames and loudness(voice, start) > 0.02 else given.music_gain
        gain += (aim - gain) * (0.5 if aim < gain else 0.1)  # it steps back at once and returns slowly
        count = min(BLOCK, mixed.frames - start)
        if music.frames > count:
            mixed.mix(music.cut(start % (music.frames - count), count), start, gain)
    mixed.mix(voice, 0, 0.9)
    print("\r100 %", file=sys.stderr)

    limiter = tessaro.Limiter(step=0.05)
    limiter.apply(mixed.convert(bits=64)).convert(bits=16).save(given.out)


if __name__ == "__main__":
    main()
