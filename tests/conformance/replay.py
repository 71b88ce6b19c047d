#!/usr/bin/env python3
"""Replays the recorded calls with nothing but ctypes, and compares results and memory.

    replay.py LIBRARY CALLS

README.md tells the form of the calls. Whoever writes a port or a binding begins by translating this file.
"""
import ctypes
import struct
import sys


class WaveBuffer(ctypes.Structure):
    _fields_ = [("format", ctypes.c_int32), ("count", ctypes.c_int32), ("data", ctypes.c_void_p)]


def memory_of(words):
    """Hexadecimal bytes, and runs of one byte as 00*512."""
    made = bytearray()
    for word in words:
        value, _, count = word.partition("*")
        made += bytes.fromhex(value) * int(count or 1)
    return made


def calls_in(path):
    """Calls: lists of lines, each a list of words."""
    with open(path, encoding="ascii") as file:
        first, *calls = file.read().split("\n\n")
    if first != "tessaro calls 1":
        sys.exit(f"{path}: not a set of calls")
    return [[line.split() for line in call.splitlines()] for call in calls]


def replay(library, call):
    """Makes one call; returns what is not as it was recorded."""
    name, blocks, arguments = call[0][1], {}, []
    wrong = []
    for kind, *words in call[1:]:
        if kind == "block":
            data = memory_of(words[1:]) + b"\xA5" * 16  # with a fence
            blocks[words[0]] = (ctypes.c_ubyte * len(data)).from_buffer(data)
        elif kind in ("image", "memory"):
            arguments.append(ctypes.c_void_p(ctypes.addressof(blocks[words[0]]) + int(words[1])))
        elif kind == "sound":
            arguments.append(ctypes.byref(WaveBuffer(int(words[1]), int(words[2]), ctypes.addressof(blocks[words[0]]))))
        elif kind == "number":
            arguments.append(ctypes.c_uint32(int(words[0]) & 0xFFFFFFFF))
        elif kind == "float":
            arguments.append(ctypes.c_float(*struct.unpack(">f", bytes.fromhex(words[0]))))
        elif kind == "double":
            arguments.append(ctypes.c_double(*struct.unpack(">d", bytes.fromhex(words[0]))))
        elif kind == "result":
            before = {key: bytes(block) for key, block in blocks.items()}
            function = getattr(library, name)
            function.restype = None if words[0] == "void" else getattr(ctypes, "c_" + words[0][:-2])
            result = function(*arguments)
            if result not in (None, int(words[1])):
                wrong.append(f"result {result}, recorded {words[1]}")
        elif kind == "after":
            before[words[0]] = bytes(memory_of(words[1:])) + b"\xA5" * 16
        elif kind == "any":
            before[words[0]] = bytes(blocks[words[0]])
    for key, wanted in before.items():
        if bytes(blocks[key]) != wanted:
            at = next(i for i, (a, b) in enumerate(zip(bytes(blocks[key]), wanted)) if a != b)
            wrong.append(f"block {key} differs from byte {at} on")
    return wrong


def main():
    load = ctypes.WinDLL if hasattr(ctypes, "WinDLL") else ctypes.CDLL
    library = load(sys.argv[1])
    made, failed = 0, 0
    for call in calls_in(sys.argv[2]):
        made += 1
        wrong = replay(library, call)
        if wrong:
            failed += 1
            print(f"call {made}, {call[0][1]}: {'; '.join(wrong)}")
    print(f"{made} calls replayed, {failed} came out otherwise")
    return failed > 0 or made == 0


if __name__ == "__main__":
    sys.exit(main())
