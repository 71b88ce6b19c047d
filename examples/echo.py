"""An echo that is designed by ear: change a number, listen, change it again.

echo.py voice.wav out.wav [--delay 180] [--echoes 24] [--fade 0.75] [--wander 0.6] [--level 0.5]
"""

import argparse
from pathlib import Path

from tessaro import Reverb, Sound

EARLY = 199  # frames by which the library's echoes come before their delay is over


def taps(rate, delay, echoes, fade, wander):
    """Echoes that grow weaker and denser and change sides: left gain, right gain, frames to the next."""
    side, gain, distance = 1.0, 1.0, rate * delay / 1000
    for _ in range(echoes):
        yield 100 * gain * (1 + wander * side) / 2, 100 * gain * (1 - wander * side) / 2, distance
        side, gain, distance = -side, gain * fade, max(rate / 200, distance * 0.93)


def main():
    parser = argparse.ArgumentParser(description="Adds echoes to a sound.")
    parser.add_argument("sound", type=Path)
    parser.add_argument("out", type=Path)
    parser.add_argument("--delay", type=float, default=180, help="milliseconds to the first echo")
    parser.add_argument("--echoes", type=int, default=24)
    parser.add_argument("--fade", type=float, default=0.75, help="from one echo to the next")
    parser.add_argument("--wander", type=float, default=0.6, help="from side to side: 0 to 1")
    parser.add_argument("--level", type=float, default=0.5)
    given = parser.parse_args()

    dry = Sound.open(given.sound).convert(bits=64, channels=2)
    pattern = list(taps(dry.rate, given.delay, given.echoes, given.fade, given.wander))
    tail = round(sum(distance for _, _, distance in pattern)) + dry.rate // 2
    wet = Sound(dry.frames + tail, dry.rate, 64, 2).write(dry)
    first = round(dry.rate * given.delay / 1000) + EARLY
    Reverb(pattern, given.level, predelay=first).apply(wet)
    wet.convert(bits=16).save(given.out)
    print(f"{given.echoes} echoes over {tail / dry.rate:.2f} seconds")


if __name__ == "__main__":
    main()
