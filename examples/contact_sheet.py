"""Thumbnails of the pictures of a folder, on one sheet.

contact_sheet.py FOLDER sheet.png [--columns 4] [--edge 160]
"""

import argparse
import sys
from pathlib import Path

from tessaro import Image

GAP = 12


def main():
    parser = argparse.ArgumentParser(description="Puts thumbnails of a folder's pictures on one sheet.")
    parser.add_argument("folder", type=Path)
    parser.add_argument("sheet", type=Path)
    parser.add_argument("--columns", type=int, default=4)
    parser.add_argument("--edge", type=int, default=160, help="of a thumbnail, in pixels")
    given = parser.parse_args()

    paths = sorted(
        p for p in given.folder.iterdir() if p.suffix.lower() in (".png", ".jpg", ".jpeg", ".gif", ".bmp")
    )
    if not paths:
        sys.exit(f"there are no pictures in {given.folder}")
    columns, cell = min(given.columns, len(paths)), given.edge + GAP
    rows = -(-len(paths) // columns)
    sheet = Image(GAP + columns * cell, GAP + rows * cell)
    sheet.gradient(0xFF303848, 0xFF202530, 0xFF202530, 0xFF101218)

    for k, path in enumerate(paths):
        print(f"\r{k + 1} of {len(paths)}: {path.name:40.40}", end="", file=sys.stderr)
        try:
            small = Image.open(path).fit(given.edge, given.edge)
        except ValueError as error:  # one that cannot be read does not spoil the sheet
            print(f"\n{path.name}: {error}", file=sys.stderr)
            continue
        x = GAP + k % columns * cell + (given.edge - small.width) // 2
        y = GAP + k // columns * cell + (given.edge - small.height) // 2
        shadow = Image(small.width + 12, small.height + 12)
        shadow.fill(0xB0000000, (6, 6, small.width, small.height)).blur(4)
        sheet.blend(shadow, x - 2, y - 1)
        sheet.blend(small, x, y)
    print(file=sys.stderr)
    sheet.save(given.sheet)


if __name__ == "__main__":
    main()
