#!/usr/bin/env python3
"""A second reader and writer of every stream format, written from docs/formats.md alone.

    formats.py LIBRARY [docs/formats.md]

compares them with the library byte for byte, on structured and random data of odd lengths and on damaged streams, and reads the
test vectors of the document. It is slow, plain and meant to be read: whoever writes a port begins here.
"""
import ctypes
import random
import re
import sys


class Ended(Exception):
    """The stream ended before the wanted bytes were made."""


class Bits:
    """Reads a bit stream, the most significant bit of each byte first."""

    def __init__(self, stream):
        self.stream, self.at = stream, 0

    def take(self, count):
        value = 0
        for _ in range(count):
            if self.at >= 8 * len(self.stream):
                raise Ended
            value = value << 1 | self.stream[self.at >> 3] >> (7 - (self.at & 7)) & 1
            self.at += 1
        return value

    def ones(self, most=None):
        """Counts ones up to a zero, which is read too; after `most` ones the next bit ends the field whatever it is."""
        count = 0
        while count != most and self.take(1):
            count += 1
        if count == most:
            self.take(1)
        return count


class BitWriter:
    def __init__(self):
        self.bits = []

    def put(self, value, count):
        self.bits += [value >> i & 1 for i in range(count - 1, -1, -1)]

    def ones(self, count):
        self.bits += [1] * count + [0]

    def finish(self):
        """The last byte is filled up with zeros; a whole one follows where nothing was pending."""
        self.put(0, 8 - len(self.bits) % 8)
        return bytes(int("".join(map(str, self.bits[i:i + 8])), 2) for i in range(0, len(self.bits), 8))


def keeps(a, b, top_bits):
    return (a ^ b) >> (8 - top_bits) == 0


# ---- Transforms

def iwave(source, distance, undo, word=False):
    step, start, size = (2, 0, 0x10000) if word else (1, 128, 0x100)
    samples = [int.from_bytes(source[i:i + step], "little") for i in range(0, len(source) // step * step, step)]
    out = []
    for i, x in enumerate(samples):
        reference = (out if undo else samples)[i - distance] if i >= distance else start
        if undo:
            out.append((reference + (~(x >> 1) if x & 1 else x >> 1)) % size)
        else:
            d = (x - reference + size // 2) % size - size // 2
            out.append(2 * d if d >= 0 else -2 * d - 1)
    return b"".join(x.to_bytes(step, "little") for x in out)


def planes(length, channels):
    """The positions in the order of their planes."""
    return [p for c in range(channels) for p in range(c, length, channels)]


def scatter(data, order):
    out = bytearray(len(data))
    for value, position in zip(data, order):
        out[position] = value
    return bytes(out)


# ---- Readers: bytes of the stream, and how many bytes to make

def read_i(stream, count):
    bits, out, a, b = Bits(stream), bytearray(), 0, 0
    while len(out) < count:
        code = bits.take(3)
        if code < 4:
            a = a & 0xE0 | bits.take(5) if code & 2 else bits.take(8)
            b = b & 0xE0 | bits.take(5) if code & 1 else bits.take(8)
        elif code == 4:
            a = b = bits.take(8)
        elif code == 5:
            a, b = b, bits.take(8)
        elif code == 6:
            a = bits.take(8)
        out += bytes((a, b))
    return bytes(out[:count])


def read_io(stream, count):
    bits, out, group = Bits(stream), bytearray(), bytes(4)
    while len(out) < count:
        if not bits.take(1):
            group = bytes(bits.take(8) for _ in range(4))
        out += group
    return bytes(out[:count])


def read_ib18(stream, count):
    if len(stream) < 256:
        raise Ended
    table, at, out, last = stream[:256], 256, bytearray(), 0

    def literal():
        nonlocal at
        if at >= len(stream):
            raise Ended
        at += 1
        return stream[at - 1]

    while len(out) < count:
        operation = literal()
        if operation >= 0x40:
            one = [None, lambda: last, lambda: table[last], lambda: last][operation >> 6]
            zero = (lambda: table[last]) if operation >= 0xC0 else literal
            makers = [one if operation >> k & 1 else zero for k in range(6)]
        else:
            maker = (lambda: last) if operation & 16 else (lambda: table[last]) if operation & 32 else literal
            makers = [maker] * min(3 << ((operation & 15) + 2), count - len(out))
        for make in makers:
            if len(out) == count:
                break
            last = make()
            out.append(last)
    return bytes(out)


def read_ib18_ex(stream, count):
    return scatter(read_ib18(stream, count), planes(count, 4))


KEPT, FIELD = (0x00, 0xE0, 0xF8), (8, 5, 3)


def mode_of(bits):
    """`0`, `10`, `110`, `111` are 0 to 3."""
    mode = 0
    while mode < 3 and bits.take(1):
        mode += 1
    return mode


def read_iabr(stream, count):
    bits, out, last = Bits(stream), bytearray(), 0
    while len(out) < count:
        size = 4 << bits.ones()
        mode = mode_of(bits)
        for _ in range(min(size, count - len(out))):
            if mode < 3:
                last = last & KEPT[mode] | bits.take(FIELD[mode])
            out.append(last)
    return bytes(out)


def read_inabe(stream, count):
    bits, out, last = Bits(stream), bytearray(), 0
    while len(out) < count:
        size = 4 << bits.ones()
        mode = mode_of(bits)
        if mode < 3:
            short = bits.ones(32)
        for _ in range(min(size, count - len(out))):
            if mode < 3:
                value = bits.take(short)
                if value == (1 << short) - 1:
                    value = bits.take(FIELD[mode])
                last = (last & KEPT[mode] | value) & 0xFF
            out.append(last)
    return bytes(out)


def read_inabe_ex(stream, count):
    return scatter(iwave(read_inabe(stream, count), 1, undo=True), planes(count, 4))


def read_imist(stream, count):
    bits, out, pixel = Bits(stream), bytearray(), [0] * 4
    while len(out) < count:
        for first in (0, 1):
            mode = mode_of(bits)
            for k in (first, first + 2):
                if mode < 3:
                    pixel[k] = pixel[k] & KEPT[mode] | bits.take(FIELD[mode])
        out += bytes(pixel)
    return bytes(out[:count])


def level_of(level):
    """The bits that are taken from the reference, the number that is sent, and where those stand."""
    if level <= 8:
        return 0xFF << (8 - level) & 0xFF, 8 - level, 0
    return 0xFF >> (level - 8), level - 8, 16 - level


def read_inda(stream, count):
    bits, out, level, distance, mask = Bits(stream), bytearray(), 0, 0, 0
    while len(out) < count:
        change = bits.take(3)
        if change & 1:
            level = bits.take(4)
        if change & 2 and level:
            distance = bits.take(3)
        if change & 4 and level:
            mask = bits.take(8)
        taken, sent, shift = level_of(level)
        for j in range(min(8, count - len(out))):
            if mask >> j & 1:
                back = len(out) - (8 - distance)
                reference = out[back] if back >= 0 else 0
                out.append(reference & taken | bits.take(sent) << shift)
            else:
                out.append(bits.take(8))
    return bytes(out)


def read_ica(stream, count):
    bits, out, pixel = Bits(stream), bytearray(), [0] * 4
    while len(out) < count:
        head = bits.take(5)
        if head != 1:
            width = 3 if head & 1 else 5
            for k in range(4):
                if head >> (k + 1) & 1:
                    pixel[k] = pixel[k] >> width << width | bits.take(width)
                else:
                    pixel[k] = bits.take(8)
        out += bytes(pixel)
    return bytes(out[:count])


def read_c2f(stream, size):
    """Returns the bytes that are made, None for those that are left alone."""
    at, out = 0, bytearray()

    def take(count):
        nonlocal at
        if at + count > len(stream):
            raise Ended
        at += count
        return stream[at - count:at]

    def raw(blocks):
        if blocks < 0 or len(out) + 32 * blocks > size:
            raise Ended
        out.extend(take(32 * blocks))

    def run(blocks, flags, base):
        free = [k for k in range(4) if not flags >> (4 + k) & 1]
        if len(out) + 32 * blocks > size or at + 8 * blocks * len(free) > len(stream):
            raise Ended
        for _ in range(8 * blocks):
            pixel = bytearray(base)
            for k in free:
                pixel[k] = take(1)[0]
            out.extend(pixel)

    while True:
        c = take(1)[0]
        if c < 128:
            raw(c)
        else:
            raw(127)
            b = take(1)[0]
            raw(b * 128 + c - 128 - 127)
            if (c, b) == (128, 255):
                continue
        operation = take(1)[0]
        if operation == 0:
            break
        base = bytes(out[-4:]) if out else bytes(4)
        run(operation & 15, operation, base)
        if operation & 15 == 15:
            run(take(1)[0], operation, base)
    t = take(1)[0]
    while t and len(out) < size:
        out.extend(take(1))
        t -= 1
    return list(out) + [0 if i % 2 == 0 else None for i in range(size - len(out))]


# ---- Writers

def write_i(source):
    bits, pa, pb = BitWriter(), 0, 0
    for a, b in zip(source[::2], source[1::2] + bytes(len(source) % 2)):
        if (a, b) == (pa, pb):
            bits.put(7, 3)
        elif b == pb:
            bits.put(6, 3), bits.put(a, 8)
        elif a == pb:
            bits.put(5, 3), bits.put(b, 8)
        elif a == b:
            bits.put(4, 3), bits.put(a, 8)
        else:
            ka, kb = keeps(a, pa, 3), keeps(b, pb, 3)
            bits.put(2 * ka + kb, 3)
            bits.put(a & 31, 5) if ka else bits.put(a, 8)
            bits.put(b & 31, 5) if kb else bits.put(b, 8)
        pa, pb = a, b
    return bits.finish()


def write_io(source):
    bits, before = BitWriter(), bytes(4)
    for i in range(0, len(source), 4):
        group = source[i:i + 4].ljust(4, b"\0")
        bits.put(group == before, 1)
        if group != before:
            bits.put(int.from_bytes(group, "big"), 32)
        before = group
    return bits.finish()


def write_ib18(source, order=None):
    counts = [[0] * 256 for _ in range(256)]
    for p, c in zip(b"\0" + source, source):
        counts[p][c] += 1
    for p in range(256):
        counts[p][p] = -1
    table = bytes(row.index(max(row)) for row in counts)
    data = bytes(source[p] for p in order) if order else source
    byte = lambda i: data[i] if i < len(data) else 0
    out, at, last = bytearray(table), 0, 0
    while at < len(data):
        six = [byte(at + j) for j in range(6)]
        before = [last] + six[:5]
        repeats = sum((x == b) << j for j, (x, b) in enumerate(zip(six, before)))
        guesses = sum((x != b and x == table[b]) << j for j, (x, b) in enumerate(zip(six, before)))
        length = 6
        if repeats == 63:
            doubled, size = 0, 6
            while doubled < 16 and all(byte(at + length + j) == last for j in range(size)):
                length, size, doubled = length + size, 2 * size, doubled + 1
            out.append(0x10 | doubled - 1 if doubled else 0x7F)
        elif guesses == 63:
            out.append(0xBF)
        elif repeats | guesses == 63:
            out.append(0xC0 | repeats)
        else:
            mask, head = (guesses, 0x80) if bin(repeats).count("1") < bin(guesses).count("1") else (repeats, 0x40)
            out.append(head | mask)
            out += bytes(x for j, x in enumerate(six) if not mask >> j & 1)
        at += length
        last = byte(at - 1)
    return bytes(out)


def write_ib18_ex(source):
    return write_ib18(source, planes(len(source), 4))


def units(source):
    """Units of four bytes; the places that a last one lacks keep the bytes of the unit before."""
    unit, out = bytes(4), []
    for i in range(0, len(source), 4):
        some = source[i:i + 4]
        unit = some + unit[len(some):]
        out.append(unit)
    return out


def kind_of(unit, last):
    for kind, top in ((3, 8), (2, 5), (1, 3)):
        if all(keeps(x, last, top) for x in unit):
            return kind
    return 0


def groups(source):
    """(where a group begins, its size, its kind): the size a power of two of units that are all of the kind."""
    all_units, at, emitted = units(source), 0, 0
    while emitted < len(source):
        last = all_units[at - 1][3] if at else 0
        kind, filled, size = kind_of(all_units[at], last), 4, 4
        while emitted + filled + 4 < len(source) and kind_of(all_units[at + filled // 4], all_units[at + filled // 4 - 1][3]) == kind:
            filled += 4
            if filled == 2 * size:
                size = filled
        yield emitted, size, kind
        at, emitted = at + size // 4, emitted + size


def put_mode(bits, mode):
    bits.put((0b0, 0b10, 0b110, 0b111)[mode], (1, 2, 3, 3)[mode])


def write_iabr(source):
    bits = BitWriter()
    for at, size, kind in groups(source):
        bits.ones((size // 4).bit_length() - 1)
        put_mode(bits, kind)
        if kind < 3:
            for x in source[at:at + size]:
                bits.put(x & (1 << FIELD[kind]) - 1, FIELD[kind])
    return bits.finish()


def write_inabe(source):
    bits = BitWriter()
    for at, size, kind in groups(source):
        bits.ones((size // 4).bit_length() - 1)
        put_mode(bits, kind)
        if kind == 3:
            continue
        w = FIELD[kind]
        values = [x & (1 << w) - 1 for x in source[at:at + size]]
        cost = lambda e: sum(e + (w if v >= (1 << e) - 1 else 0) for v in values) + e
        e = min(range(8), key=cost)
        bits.ones(e)
        for v in values:
            if v < (1 << e) - 1:
                bits.put(v, e)
            else:
                bits.put((1 << e) - 1, e), bits.put(v, w)
    return bits.finish()


def write_imist(source):
    bits, before = BitWriter(), bytes(4)
    for i in range(0, len(source), 4):
        some = source[i:i + 4]
        pixel = some + before[len(some):]
        for first in (0, 1):
            mode = min(kind_of(pixel[k:k + 1], before[k]) for k in (first, first + 2))
            put_mode(bits, mode)
            if mode < 3:
                for k in (first, first + 2):
                    bits.put(pixel[k] & (1 << FIELD[mode]) - 1, FIELD[mode])
        before = pixel
    return bits.finish()


def write_inda(source):
    bits, history, level, distance, mask = BitWriter(), bytes(8), 0, 0, 0
    for i in range(0, len(source), 8):
        some = source[i:i + 8]
        block = some + history[len(some):]
        line = history + block
        best, new = 11, (0, distance, 0)
        for l in range(1, 16):
            taken, sent, _ = level_of(l)
            for d in range(8):
                agree = [(x ^ line[8 + j - (8 - d)]) & taken == 0 for j, x in enumerate(block)]
                if (8 - sent) * sum(agree) > best:
                    best, new = (8 - sent) * sum(agree), (l, d, sum(a << j for j, a in enumerate(agree)))
        change = (new[0] != level) + 2 * (new[1] != distance) + 4 * (new[2] != mask)
        level, distance, mask = new
        bits.put(change, 3)
        if change & 1:
            bits.put(level, 4)
        if change & 2 and level:
            bits.put(distance, 3)
        if change & 4 and level:
            bits.put(mask, 8)
        _, sent, shift = level_of(level)
        for j, x in enumerate(block):
            if mask >> j & 1:
                bits.put(x >> shift & (1 << sent) - 1, sent)
            else:
                bits.put(x, 8)
        history = block
    return bits.finish()


def write_ica(source):
    bits, before = BitWriter(), bytes(4)
    for i in range(0, len(source), 4):
        some = source[i:i + 4]
        pixel = some + before[len(some):]
        five = [keeps(x, p, 5) for x, p in zip(pixel, before)]
        three = [keeps(x, p, 3) for x, p in zip(pixel, before)]
        if pixel == before:
            bits.put(1, 5)
        else:
            odd = 3 * sum(three) < 5 * sum(five)
            cut, width = (five, 3) if odd else (three, 5)
            bits.put(odd + sum(c << (k + 1) for k, c in enumerate(cut)), 5)
            for x, c in zip(pixel, cut):
                bits.put(x & (1 << width) - 1, width) if c else bits.put(x, 8)
        before = pixel
    return bits.finish()


def write_c2f(source):
    out, base = bytearray(), bytes(4)
    whole = len(source) // 32
    raw, run, flags = [], [], None

    def segment():
        nonlocal raw, run
        n = len(raw)
        if n < 128:
            out.append(n)
            out.extend(b"".join(raw))
        else:
            out.append(128 + n % 128)
            out.extend(b"".join(raw[:127]))
            out.append(n // 128)
            out.extend(b"".join(raw[127:]))
        if run:
            out.append(flags | min(len(run), 15))
            out.extend(b"".join(run[:15]))
            if len(run) >= 15:
                out.append(len(run) - 15)
                out.extend(b"".join(run[15:]))
        raw, run = [], []

    for i in range(whole):
        block = source[32 * i:32 * i + 32]
        same = [all(block[k + 4 * j] == base[k] for j in range(8)) for k in range(4)]
        base = block[28:]
        if not any(same):
            if run:
                segment()
            raw.append(block)
            if len(raw) == 32640:
                segment()
        else:
            new = sum(s << (4 + k) for k, s in enumerate(same))
            if run and (new != flags or len(run) == 270):
                segment()
            flags = new
            run.append(bytes(x for j, x in enumerate(block) if not same[j % 4]))
    if run:
        segment()
    segment()
    tail = source[32 * whole:].rstrip(b"\0")
    return bytes(out) + bytes((0, len(tail))) + tail


FORMATS = {  # name: minimum, margin, writer, reader
    "i": (49, 48, write_i, read_i),
    "io": (65, 64, write_io, read_io),
    "ib18": (512, 32, write_ib18, read_ib18),
    "ib18 Ex": (512, 32, write_ib18_ex, read_ib18_ex),
    "iabr": (257, 256, write_iabr, read_iabr),
    "inabe": (257, 256, write_inabe, read_inabe),
    "imist": (129, 128, write_imist, read_imist),
    "inda": (65, 64, write_inda, read_inda),
    "ica": (129, 128, write_ica, read_ica),
}


# ---- The comparison

def sample(seed):
    """Data with runs, slow steps, small values and noise."""
    draw = random.Random(seed)
    length = draw.choice((draw.randrange(1, 140), draw.randrange(250, 1100)))
    length -= length % 4 * draw.randrange(2) if length > 4 else 0
    out, x = bytearray(), 0
    style = draw.randrange(6)
    while len(out) < length:
        n = draw.choice((1, 2, 4, 8, 30, 100))
        kind = draw.choice((style, style, draw.randrange(6)))
        if kind == 0:
            out += bytes((x,)) * n
        elif kind == 1:
            out += bytes((x := (x + draw.randrange(-3, 4)) & 255) for _ in range(n))
        elif kind == 2:
            out += bytes(draw.randrange(256) for _ in range(n))
        elif kind == 3:
            out += bytes(draw.choices((x & 255, 0, 7, 9), k=4)) * (n // 4 + 1)
        elif kind == 4:
            out += bytes(draw.randrange(6) for _ in range(n))
        else:
            out += out[-8:] * (n // 8 + 1) if out else b"\1"
        x = out[-1]
    return bytes(out[:length])


class Library:
    def __init__(self, path):
        load = ctypes.WinDLL if hasattr(ctypes, "WinDLL") else ctypes.CDLL
        self.dll = load(path)

    def encode(self, name, source):
        room, written = ctypes.create_string_buffer(2 * len(source) + 64), ctypes.c_uint32(0)
        base, ex = (name.split() + [""])[:2]
        status = getattr(self.dll, base + "Encoder" + ex)(source, room, len(source), ctypes.byref(written))
        return status, room.raw[:written.value]

    def decode(self, function, stream, count, sized):
        room = ctypes.create_string_buffer(b"\xA5" * (count + 8), count + 8)
        sizes = (len(stream), count) if sized else (count,)
        status = getattr(self.dll, function)(bytes(stream) + bytes(0 if sized else 64), room, *sizes)
        assert room.raw[count:] == b"\xA5" * 8, f"{function} wrote behind its destination"
        return status, room.raw[:count]


def expect(what, got, want):
    if got != want:
        sys.exit(f"{what}:\n  library  {got!r:.300}\n  document {want!r:.300}")


def compare(library, rounds):
    compressed = dict.fromkeys([*FORMATS, "c2f"], 0)
    for seed in range(rounds):
        source = sample(seed)
        for name, (minimum, margin, write, read) in FORMATS.items():
            if len(source) < minimum or (name == "ib18 Ex" and len(source) % 4):
                continue
            status, stream = library.encode(name, source)
            mine = write(source)
            base, ex = (name.split() + [""])[:2]
            expect(f"{name} compresses, seed {seed}", status == 0, len(mine) < len(source) - margin)
            if status == 0:
                compressed[name] += 1
                expect(f"{name} stream, seed {seed}", stream.hex(), mine.hex())
                expect(f"{name} read, seed {seed}", library.decode(base + "Decoder" + ex, stream, len(source), False)[1], source)
                expect(f"{name} read by the document, seed {seed}", read(stream, len(source)), source)
            damaged_read(library, base + "Decoder" + ex + "Safe", read, mine, len(source), seed)
            if name == "inabe":
                damaged_read(library, "inabeDecoderExSafe", read_inabe_ex, mine, len(source), seed)
        stream = library.encode("c2f", source)[1]
        expect(f"c2f stream, seed {seed}", stream.hex(), write_c2f(source).hex())
        compressed["c2f"] += 1
        damaged_c2f(library, stream, len(source), seed)
        for name, distance, word in (("11", 1, 0), ("12", 2, 0), ("32", 4, 0), ("21", 1, 1), ("22", 2, 1)):
            coded = iwave(source, distance, False, word)
            expect(f"iwave{name}, seed {seed}", library.encode("iwave" + name, source)[1], coded)
            expect(f"iwave{name} back, seed {seed}", iwave(coded, distance, True, word), source[:len(coded)])
        for channels in (2, 3, 4):
            expect(f"ichshift{channels}, seed {seed}", library.encode(f"ichshift{channels}", source)[1],
                   bytes(source[p] for p in planes(len(source), channels)))
    for name, count in compressed.items():
        assert count > rounds // 30, f"only {count} of the streams of {name} were compared"


def damaged(stream, seed):
    draw = random.Random(seed)
    bad = bytearray(stream[:draw.randrange(len(stream) + 1)] if draw.random() < 0.5 else stream)
    for _ in range(draw.randrange(3)):
        if bad:
            bad[draw.randrange(len(bad))] = draw.choice((0, 255, draw.randrange(256)))
    return bytes(bad)


def damaged_read(library, decoder, read, stream, count, seed):
    for turn in range(2):
        bad = damaged(stream, (seed, decoder, turn).__repr__())
        status, made = library.decode(decoder, bad, count, True)
        try:
            want = read(bad, count)
        except Ended:
            want = None
        expect(f"{decoder}, damaged, seed {seed}.{turn}: {bad.hex()}", status, int(want is None))
        if want is not None:
            expect(f"{decoder}, damaged, seed {seed}.{turn}: {bad.hex()}", made, want)


def damaged_c2f(library, stream, count, seed):
    for bad in (stream, damaged(stream, seed), damaged(stream, seed + 0.5)):
        for size in (count, count + seed % 7, max(count - seed % 40, 0)):
            status, made = library.decode("c2fDecoder", bad, size, True)
            try:
                want = read_c2f(bad, size)
            except Ended:
                want = None
            expect(f"c2f, seed {seed}, size {size}: {bad.hex()}", status, int(want is None))
            if want is not None:
                expect(f"c2f, seed {seed}, size {size}: {bad.hex()}", made,
                       bytes(0xA5 if x is None else x for x in want))


def large(library):
    """The counts of c2f that ordinary data does not reach."""
    noise = random.Random(1).randbytes(32 * 700)
    flat = bytes(range(1, 5)) * 8
    for source in (noise[:32 * 128], noise[:32 * 300 + 5], flat * 40, flat * 600, noise * 47):
        expect("c2f, long runs", library.encode("c2f", source)[1] == write_c2f(source), True)
        expect("c2f, long runs back", library.decode("c2fDecoder", write_c2f(source), len(source), True)[0], 0)
    zeros = flat + bytes(1000)
    expect("ib18, zeros at the end", library.encode("ib18", zeros)[1], write_ib18(zeros))


def vector_source():
    """The source of the document's test vectors."""
    return bytes((n // 64 * 9 if n % 64 > 11 else n * n) & 255 for n in range(523))


def vectors(path, library):
    text = open(path, encoding="utf-8").read()
    found = re.findall(r"^`([a-z0-9 Ex]+)`, (\d+) bytes:\n\n((?:    [0-9A-F ]+\n)+)", text, re.M)
    assert {name for name, _, _ in found} == {*FORMATS, "c2f"} - {"ib18 Ex"}, "a format lacks its vector"
    for name, size, block in found:
        stream = bytes.fromhex(block)
        expect(f"size of the vector of {name}", len(stream), int(size))
        expect(f"vector of {name}", library.encode(name, vector_source())[1].hex(), stream.hex())


if __name__ == "__main__":
    library = Library(sys.argv[1])
    compare(library, 300)
    large(library)
    if len(sys.argv) > 2:
        vectors(sys.argv[2], library)
    print("Every format agrees with its description.")
