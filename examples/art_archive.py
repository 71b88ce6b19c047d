"""Keeps the pictures of a folder in one file, each by the codec that makes it smallest.

art_archive.py FOLDER art.tsa      packs, and prints sizes and times beside zlib and PNG
art_archive.py --unpack art.tsa FOLDER
"""

import argparse
import json
import struct
import sys
import time
import zlib
from pathlib import Path

import tessaro
from tessaro import Image

MAGIC = b"TSA1"


def timed(work, *arguments):
    begin = time.perf_counter()
    result = work(*arguments)
    return result, 1000 * (time.perf_counter() - begin)


def rivals(image, pixels):
    """How others do: name, bytes, milliseconds to make and to read."""
    packed, making = timed(zlib.compress, pixels)
    yield "zlib", len(packed), making, timed(zlib.decompress, packed)[1]
    packed, making = timed(image.to_png)
    yield "PNG", len(packed), making, timed(Image.open, packed)[1]


def row(name, size, pixels, making, reading):
    return f"    {name:8}{size:9} bytes {100 * size / len(pixels):6.1f} %{making:9.2f} ms{reading:9.2f} ms"


def pack(folder, archive):
    entries, streams = [], []
    paths = sorted(
        p for p in folder.iterdir() if p.suffix.lower() in (".png", ".jpg", ".jpeg", ".gif", ".bmp")
    )
    for k, path in enumerate(paths):
        print(f"{k + 1} of {len(paths)}", end="\r", file=sys.stderr)
        image = Image.open(path)
        pixels = image.pack(tessaro.Format.FORMAT_8888)
        print(f"{path.name}, {image.width} x {image.height}, {len(pixels)} bytes")
        best = None
        for name in tessaro.formats:
            if name == "ib18ex" and len(pixels) % 4:
                continue
            stream, making = timed(tessaro.encode, name, pixels)
            if stream is None:
                continue
            again, reading = timed(tessaro.decode, name, stream)
            assert again == pixels
            print(row(name, len(stream), pixels, making, reading))
            if best is None or len(stream) < len(best):
                best = stream
        for name, size, making, reading in rivals(image, pixels):
            print(row(name, size, pixels, making, reading))
        codec = best.format if best else "none"
        entries.append(
            {
                "name": path.stem,
                "width": image.width,
                "height": image.height,
                "codec": codec,
                "size": len(best or pixels),
            }
        )
        streams.append(best or pixels)
    index = json.dumps(entries).encode()
    archive.write_bytes(MAGIC + struct.pack("<I", len(index)) + index + b"".join(streams))


def unpack(archive, folder):
    data = archive.read_bytes()
    if data[:4] != MAGIC:
        sys.exit(f"{archive} is no archive")
    (length,) = struct.unpack_from("<I", data, 4)
    at = 8 + length
    folder.mkdir(parents=True, exist_ok=True)
    for entry in json.loads(data[8:at]):
        stream, at = data[at : at + entry["size"]], at + entry["size"]
        size = 4 * entry["width"] * entry["height"]
        pixels = stream if entry["codec"] == "none" else tessaro.decode(entry["codec"], stream, size)
        image = Image.unpack(pixels, entry["width"], entry["height"], tessaro.Format.FORMAT_8888)
        image.save(folder / (Path(entry["name"]).name + ".png"))


def main():
    parser = argparse.ArgumentParser(description="Keeps the pictures of a folder in one file.")
    parser.add_argument("source", type=Path)
    parser.add_argument("out", type=Path)
    parser.add_argument("--unpack", action="store_true")
    given = parser.parse_args()
    (unpack if given.unpack else pack)(given.source, given.out)


if __name__ == "__main__":
    main()
