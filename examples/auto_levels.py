"""Stretches the levels of all pictures of a folder.

auto_levels.py FOLDER OUT [--how balance|channels|reverse|gentle] [--give-up 0.5]
"""

import argparse
import sys
from pathlib import Path

from tessaro import Image


def main():
    parser = argparse.ArgumentParser(description="Stretches the levels of all pictures of a folder.")
    parser.add_argument("folder", type=Path)
    parser.add_argument("out", type=Path)
    parser.add_argument("--how", default="balance", choices=("balance", "channels", "reverse", "gentle"))
    parser.add_argument(
        "--give-up", type=float, default=0.5, metavar="PERCENT", help="of the values at either end"
    )
    given = parser.parse_args()

    paths = sorted(
        p for p in given.folder.iterdir() if p.suffix.lower() in (".png", ".jpg", ".jpeg", ".gif", ".bmp")
    )
    given.out.mkdir(parents=True, exist_ok=True)
    for k, path in enumerate(paths):
        print(f"\r{k + 1} of {len(paths)}: {path.name:40.40}", end="", file=sys.stderr)
        image = Image.open(path)
        values = image.width * image.height * (3 if given.how == "balance" else 1)
        image.levels(round(values * given.give_up / 100), given.how)
        image.save(given.out / (path.stem + ".png"))
    print(file=sys.stderr)


if __name__ == "__main__":
    main()
