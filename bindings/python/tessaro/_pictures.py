"""Picture files, and what is optional."""

import ctypes
import glob
import os
import sys

from . import _library
from . import functions as f


def numpy_or_none():
    try:
        import numpy
    except ImportError:
        return None
    return numpy


def decode_picture(image, data):
    """A new image of the class `image` with the picture of a file."""
    size = len(data)
    if not 64 <= size <= 8388608:
        raise ValueError(f"a picture file has 64 to 8388608 bytes, not {size}: open others with Pillow")
    width, height = ctypes.c_int32(), ctypes.c_int32()
    f.DecodeImageHead(data, size, width, height)
    if not width.value or not height.value:
        raise ValueError(
            "the picture cannot be loaded: " + (_missing() or "it is damaged or of an unknown format")
        )
    pixels = [round(extent.value * 96 / 2540) for extent in (width, height)]
    if height.value < pixels[0] or width.value < pixels[1]:
        raise ValueError(
            f"the picture, {pixels[0]} x {pixels[1]}, is over 26 times as long as wide or the reverse: use Pillow"
        )
    made = image(*pixels)
    if sys.platform == "win32":
        _decode_on_windows(made, data)
    else:
        f.DecodeImage(made, data, size)
    return made


def _missing():
    """What keeps every picture from being loaded, if anything does."""
    if sys.platform == "win32":
        return None
    beside = os.path.join(os.path.dirname(os.path.realpath(_library.path)), "libtessaro-pictures.so*")
    try:
        for module in glob.glob(beside):
            ctypes.CDLL(module)
    except OSError as error:
        return (
            f"a library for picture files is missing ({error}). Install it (Debian: libjpeg62-turbo, libpng16-16, "
            f"libgif7), or open the file with Pillow and use Image.from_pillow()"
        )
    return None


def _decode_on_windows(image, data):
    """There pictures are drawn on a device context: on a bitmap of the system's, then they are copied."""
    gdi = ctypes.WinDLL("gdi32")
    for name in ("CreateCompatibleDC", "CreateDIBSection", "SelectObject"):
        getattr(gdi, name).restype = ctypes.c_void_p

    class Header(ctypes.Structure):
        _fields_ = [(n, ctypes.c_uint32) for n in ("size", "width", "height", "planes_bits", "compression")]
        _fields_ += [(n, ctypes.c_uint32) for n in ("image", "x", "y", "used", "important", "palette")]

    header = Header(40, image.width, -image.height & 0xFFFFFFFF, 1 | 32 << 16)
    bits = ctypes.c_void_p()
    device = ctypes.c_void_p(gdi.CreateCompatibleDC(None))
    bitmap = ctypes.c_void_p(
        gdi.CreateDIBSection(device, ctypes.byref(header), 0, ctypes.byref(bits), None, 0)
    )
    if not bitmap:
        gdi.DeleteDC(device)
        raise MemoryError("the system has no room for the picture")
    old = ctypes.c_void_p(gdi.SelectObject(device, bitmap))
    try:
        f.DecodeImage(device.value, data, len(data))
        gdi.GdiFlush()
        pixels = image._memory()
        pixels[:] = ctypes.string_at(bits, pixels.nbytes)
    finally:
        gdi.SelectObject(device, old)
        gdi.DeleteObject(bitmap)
        gdi.DeleteDC(device)
