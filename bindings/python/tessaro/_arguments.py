"""What every argument goes through on its way to the library: nothing gets by that reaches foreign memory."""

import ctypes
import struct
from operator import index as _index

_nothing = ctypes.c_ubyte()
_word_bits = 8 * ctypes.sizeof(ctypes.c_void_p)

#: What classic decoders are given for a stream when they are to make nothing.
scratch = bytes(4096)


def signed(name, value, bits=32):
    """A number as a C integer of so many bits has it; unsigned ones, as colours are, wrap."""
    value = _index(value)
    half = 1 << (bits - 1)
    if -half <= value < half:
        return value
    if half <= value < 2 * half:
        return value - 2 * half
    raise OverflowError(f"{name} does not fit in {bits} bits: {value}")


def unsigned(name, value):
    value = _index(value)
    if 0 <= value <= 0xFFFFFFFF:
        return value
    if -0x80000000 <= value < 0:
        return value + 0x100000000
    raise OverflowError(f"{name} does not fit in 32 bits: {value}")


def word(name, value):
    return signed(name, value, _word_bits)


def within(name, value, low, high):
    if (low is not None and value < low) or (high is not None and value > high):
        limits = f"at least {low}" if high is None else f"{low}..{high}"
        raise ValueError(f"{name} must be {limits}, not {value}")


def div(a, b):
    """C's quotient of integers."""
    return a // b if (a < 0) == (b < 0) else -(-a // b)


def ceil_div(a, b):
    return -(-a // b)


def bytes_of(format):
    return {8888: 4, 888: 3, 565: 2, 555: 2, 1555: 2, 4444: 2}.get(format, 0)


def view_of(name, value):
    """The bytes of anything that has some; of images and sounds those of their pixels and samples."""
    memory = getattr(value, "_memory", None)
    if memory is not None:
        return memory()
    try:
        view = memoryview(value)
    except TypeError:
        raise TypeError(
            f"{name}: expected an object with the buffer protocol, not {type(value).__name__}"
        ) from None
    if not view.c_contiguous:
        raise ValueError(f"{name}: the memory is not contiguous; pass a copy")
    return view


def memory(name, value, size, written, begin=0):
    """A pointer into a buffer of at least `size` bytes, which begins at `begin` seen from the pointer."""
    view = view_of(name, value)
    if view.nbytes < size:
        raise ValueError(f"{name}: {size} bytes are needed, {view.nbytes} given")
    offset = -begin if size > 0 else 0
    if view.readonly:
        if written:
            raise ValueError(f"{name} is written to, but the memory given is read-only")
        data = view.obj if isinstance(view.obj, bytes) and len(view.obj) == view.nbytes else view.tobytes()
        if not offset:
            return data
        view = memoryview(bytearray(data))
    if not view.nbytes:
        return ctypes.byref(_nothing)
    return ctypes.byref(ctypes.c_ubyte.from_buffer(view, offset))


def text(name, value, size):
    """Text that ends with a zero: a short one gets it here."""
    data = bytes(view_of(name, value))
    return data if len(data) >= size or 0 in data else data.ljust(size, b"\0")


def address(name, value, index, width, written):
    """A place from which words are counted: any address, or a buffer that holds the word."""
    try:
        return ctypes.c_void_p(_index(value))
    except TypeError:
        pass
    view = view_of(name, value)
    if index < 0 or (index + 1) * width > view.nbytes:
        raise ValueError(f"{name}: word {index} lies outside of {view.nbytes} bytes")
    return memory(name, value, width, written)


class ImageMemory:
    """An image record that is known to tell the truth."""

    __slots__ = ("pointer", "width", "height", "pitch", "first", "readonly")

    def __init__(self, view, offset=0):
        """Reads the record at `offset` bytes of a view on bytes; raises where it leaves the memory."""
        total = view.nbytes

        def inside(what, at, size):
            if at < 0 or at + size > total:
                raise ValueError(
                    f"the image record lies: {what} would be bytes {at}..{at + size - 1} of {total}"
                )

        inside("the record", offset, 4)
        dims, pixels = struct.unpack_from("<hh", view, offset)
        inside("the dimensions", offset + dims, 6)
        self.width, self.height, self.pitch = struct.unpack_from("<hhh", view, offset + dims)
        self.first = offset + pixels
        if self.width > 0 and self.height > 0:
            low = min(0, self.pitch * (self.height - 1))
            size = abs(self.pitch) * (self.height - 1) + 4 * self.width
            inside("the pixels", self.first + low, size)
            for what, at, length in (("record", offset, 4), ("dimensions", offset + dims, 6)):
                if at < self.first + low + size and at + length > self.first + low:
                    raise ValueError(f"the image record lies: its pixels would cover its {what}")
        self.readonly = view.readonly
        if self.readonly:
            view = bytearray(view)
        self.pointer = ctypes.byref(ctypes.c_ubyte.from_buffer(view, offset))


def image(name, value, written):
    """The record of an image, or at the start of a buffer, where it is checked."""
    record = getattr(value, "_record", None)
    try:
        found = record() if record is not None else ImageMemory(view_of(name, value).cast("B"))
        if not isinstance(found, ImageMemory):
            raise TypeError(f"expected an image, not {type(value).__name__}")
    except (TypeError, ValueError) as error:
        raise type(error)(error.args[0] if name in error.args[0] else f"{name}: {error}") from None
    if written and found.readonly:
        raise ValueError(f"{name} is written to, but the memory given is read-only")
    return found


def image_or_device(name, value, written):
    """On Windows a device context may stand for an image."""
    if isinstance(value, int):
        import sys

        if sys.platform != "win32":
            raise TypeError(f"{name}: an image is needed; device contexts are there on Windows only")
        return ctypes.c_void_p(value)
    return image(name, value, written).pointer


class WaveBuffer(ctypes.Structure):
    _fields_ = [("format", ctypes.c_int32), ("count", ctypes.c_int32), ("data", ctypes.c_void_p)]


class SoundMemory:
    """A wave buffer whose memory is there."""

    __slots__ = ("pointer", "size", "readonly", "_record", "_kept")

    def __init__(self, format, count, data):
        view = view_of("data", data)
        tag = format & 0xFF  # the width of a sample and the number of channels, which is 1 or 2
        bits, channels = tag & 0xF8, tag & 7
        size = max(count, 0) * (bits // 8) * channels if bits in (8, 16, 24, 64) and channels in (1, 2) else 0
        if view.nbytes < size:
            raise ValueError(f"{count} frames need {size} bytes, {view.nbytes} given")
        self.size = view.nbytes
        self.readonly = view.readonly
        if self.readonly:
            view = bytearray(view)
        self._kept = ctypes.c_ubyte.from_buffer(view) if view.nbytes else _nothing
        self._record = WaveBuffer(format, count, ctypes.addressof(self._kept))
        self.pointer = ctypes.byref(self._record)


def sound(name, value, written, size=0):
    """The wave buffer of a sound, or of a format code, a number of frames and their memory."""
    record = getattr(value, "_record", None)
    try:
        if record is not None:
            found = record()
        elif isinstance(value, tuple) and len(value) == 3:
            found = SoundMemory(signed("format", value[0]), signed("count", value[1]), value[2])
        else:
            found = None
        if not isinstance(found, SoundMemory):
            raise TypeError(f"expected a Sound or (format, count, data), not {type(value).__name__}")
    except (TypeError, ValueError) as error:
        raise type(error)(f"{name}: {error}") from None
    if found.size < size:
        raise ValueError(f"{name}: {size} bytes of samples are needed, {found.size} given")
    if written and found.readonly:
        raise ValueError(f"{name} is written to, but the memory given is read-only")
    return found


_lasting = []


def function(name, value, kind, lasting=False):
    """A function that the library calls: a callable, or the address of one."""
    if not isinstance(value, kind):
        if not callable(value) and not isinstance(value, int):
            raise TypeError(f"{name}: expected a callable, not {type(value).__name__}")
        value = kind(value)
    if lasting:
        _lasting.append(value)  # it is called after this call, until the library is told otherwise
    return value
