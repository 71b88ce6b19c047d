"""Images that own their memory, or look at a host's."""

from __future__ import annotations

import ctypes
import os
import struct
import zlib
from typing import Any, Optional, Sequence, Tuple, Union

from . import functions as f
from ._arguments import ImageMemory, view_of
from ._pictures import decode_picture, numpy_or_none
from .constants import Choose, Compare, Format, From, Turn

#: x, y, width, height.
Area = Tuple[int, int, int, int]

#: A row may have this many pixels: the bytes from row to row are 16 bits wide and signed.
MAX_WIDTH = 8191
MAX_HEIGHT = 32767

_dims_at, _head = 4, 10  # the record, then the dimensions, then room up to a multiple of 64, then the pixels


class Refused(ValueError):
    """The library did nothing: an argument is unusable, or clipping left nothing."""


def done(status, what):
    """Raises where a status is not 0."""
    if status == 1:
        raise Refused(
            f"{what}: nothing was done, because an argument is unusable or nothing of it lies inside"
        )
    return status


_rules = {
    "copy": f.BBIBlt,
    "add": f.BBIBltAdd,
    "multiply": f.BBIBltMul,
    "subtract": f.BBIBltSub,
    "difference": f.BBIBltXor,
    "darker": f.BBIBltMin,
    "lighter": f.BBIBltMax,
    "invert": f.BBIBltNot,
    "half": f.BBIBltHalfBlend,
    "key": f.BBIBltKeying,
    "tone": f.BBIBltTone,
    "nearer": f.BBIDepth,
    "alpha": f.BBIBltShiftAlpha,
}

_levels = {
    "balance": f.BBIAutoLevelWB,
    "channels": f.BBIAutoLevelRGB,
    "reverse": f.BBIAutoLevelRGBRev,
    "gentle": f.BBIAutoLevelRGBMul,
}


class Image:
    """Pixels of 32 bits, 0xAARRGGBB, in one block with the record that the library reads.

    `array` is a view on them; in memory the channels are blue, green, red, alpha. Methods change the image
    and return it, unless they say that they return another; they raise `Refused` where the library does
    nothing. Colours are numbers, 0xAARRGGBB: an opaque red is 0xFFFF0000.
    """

    #: The order of the channels in `array`.
    channels = "BGRA"

    def __init__(self, width: int, height: int, colour: int = 0) -> None:
        _check_size(width, height)
        size = 4 * width * height
        self._block = bytearray(_head + 64 + size)
        start = ctypes.addressof(ctypes.c_ubyte.from_buffer(self._block))
        pixels = _head + -(start + _head) % 64
        struct.pack_into("<hhhhh", self._block, 0, _dims_at, pixels, width, height, 4 * width)
        self._view = memoryview(self._block)
        self._offset = 0
        self._own = ImageMemory(self._view)
        if colour and size:
            self.fill(colour)

    @classmethod
    def from_buffer(cls, buffer: Any, offset: int = 0) -> Image:
        """An image that a host keeps in its own memory, with its record `offset` bytes behind the start.

        The record is looked at before every call; one that leads out of the buffer raises.
        """
        self = cls.__new__(cls)
        self._block, self._offset, self._own = buffer, offset, None
        self._view = view_of("buffer", buffer).cast("B")
        self._record()
        return self

    def _record(self):
        return self._own or ImageMemory(self._view, self._offset)

    def _memory(self):
        record = self._record()
        if record.pitch != 4 * record.width and record.height > 1:
            raise ValueError("the rows of this image do not follow one another in memory: use its copy()")
        size = 4 * max(record.width, 0) * max(record.height, 0)
        return self._view[record.first : record.first + size]

    @property
    def width(self) -> int:
        return self._record().width

    @property
    def height(self) -> int:
        return self._record().height

    @property
    def pitch(self) -> int:
        """Bytes from one row to the next; negative where rows are stored upwards."""
        return self._record().pitch

    @property
    def size(self) -> Tuple[int, int]:
        return self.width, self.height

    def __repr__(self) -> str:
        return f"<tessaro.Image {self.width} x {self.height}>"

    def __eq__(self, other):
        if not isinstance(other, Image):
            return NotImplemented
        return f.BBICompare(self, other, Compare.PIXELS) == 0

    __hash__ = None

    def __getitem__(self, at: Tuple[int, int]) -> int:
        """image[x, y]: the pixel there, 0xAARRGGBB."""
        return struct.unpack_from("<I", self._view, self._place(at))[0]

    def __setitem__(self, at: Tuple[int, int], colour: int) -> None:
        struct.pack_into("<I", self._view, self._place(at), colour & 0xFFFFFFFF)

    def _place(self, at):
        x, y = at
        record = self._record()
        if not (0 <= x < record.width and 0 <= y < record.height):
            raise IndexError(f"({x}, {y}) lies outside of {record.width} x {record.height} pixels")
        return record.first + y * record.pitch + 4 * x

    # In and out.

    @property
    def array(self) -> Any:
        """The pixels as bytes of (height, width, 4), blue, green, red and alpha: a view, nothing is copied.

        With numpy an array, else a memoryview, which is flat for an image without pixels.
        """
        numpy = numpy_or_none()
        record = self._record()
        shape = (max(record.height, 0), max(record.width, 0), 4)
        if numpy:
            view = self._view
            return (
                numpy.ndarray(shape, numpy.uint8, view, record.first, (record.pitch, 4, 1))
                if 0 not in shape
                else numpy.empty(shape, numpy.uint8)
            )
        view = self._memory()
        return view.cast("B", shape) if 0 not in shape else view

    def _channel(self, k):
        if numpy_or_none():
            return self.array[:, :, k]
        return self._memory()[k::4]

    @property
    def blue(self) -> Any:
        """A view on one channel: (height, width) with numpy, else a flat memoryview."""
        return self._channel(0)

    @property
    def green(self) -> Any:
        return self._channel(1)

    @property
    def red(self) -> Any:
        return self._channel(2)

    @property
    def alpha(self) -> Any:
        return self._channel(3)

    @classmethod
    def from_array(cls, array: Any, channels: Optional[str] = None) -> Image:
        """A new image with the pixels of (height, width) grey bytes or (height, width, 3 or 4) colours.

        `channels` is their order: "RGB" and "RGBA" unless it says "BGR" or "BGRA". Any strides will do. The
        pixels go through the library's own conversions, straight from the array where its rows are dense.
        """
        view = _Rows(array)
        depth = view.depth
        channels = channels or {1: "L", 3: "RGB", 4: "RGBA"}.get(depth)
        if channels not in {1: ("L",), 3: ("RGB", "BGR"), 4: ("RGBA", "BGRA")}.get(depth, ()):
            raise ValueError(f"{depth} channels cannot be {channels}: 1 is L, 3 RGB or BGR, 4 RGBA or BGRA")
        image = cls(view.width, view.height)
        if not view.width or not view.height:
            return image
        if depth == 1:
            view.into(
                f._BBIBltTo32from8,
                image,
                struct.pack("<256I", *(0xFF000000 | 0x010101 * k for k in range(256))),
            )
        else:
            view.into(f._BBIBltTo32from24 if depth == 3 else f._BBIBltTo32from32, image)
            if channels[0] == "R":
                f.BBIChooseRGBA(image, image, From.BLUE, From.GREEN, From.RED, From.ALPHA)
            if depth == 3:
                image.opaque()
        return image

    def to_rgba(self) -> Any:
        """A copy of the pixels, (height, width, 4), in the order that others have: red, green, blue, alpha."""
        return self._swapped().array

    def _swapped(self):
        other = Image(self.width, self.height)
        f.BBIChooseRGBA(other, self, From.BLUE, From.GREEN, From.RED, From.ALPHA)
        return other

    @classmethod
    def from_pillow(cls, picture: Any) -> Image:
        """A new image with the pixels of an image of Pillow's."""
        picture = picture if picture.mode in ("L", "RGB", "RGBA") else picture.convert("RGBA")
        if picture.mode == "L":
            return cls.from_array(_shaped(picture.tobytes(), picture, 1), "L")
        if picture.mode == "RGB":
            return cls.from_array(_shaped(picture.tobytes("raw", "BGR"), picture, 3), "BGR")
        return cls.from_array(_shaped(picture.tobytes("raw", "BGRA"), picture, 4), "BGRA")

    def to_pillow(self) -> Any:
        """An image of Pillow's with a copy of the pixels."""
        from PIL import Image as Pillow

        return Pillow.frombytes("RGBA", self.size, bytes(self._dense()._memory()), "raw", "BGRA")

    @classmethod
    def open(cls, source: Union[str, os.PathLike, bytes]) -> Image:
        """A new image from a picture file, a path or its bytes; opaque where the file has no alpha.

        Rows that a damaged file does not give are black.
        """
        if isinstance(source, (str, os.PathLike)):
            with open(source, "rb") as file:
                source = file.read()
        image = decode_picture(cls, source)
        if f.BBICompare(image, image, Compare.TRANSPARENT) == 0:
            image.opaque()
        return image

    def to_png(self) -> bytes:
        """The image as a PNG file, without alpha where it is opaque."""
        rgba = self._swapped()
        if self.width < 1 or self.height < 1:
            raise ValueError("a PNG file has at least one pixel")
        if self._is_opaque():
            data, depth = bytearray(3 * self.width * self.height), 3
            f.BBIBltTo24As888(data, rgba, self.width * self.height)
        else:
            data, depth = rgba._memory(), 4
        row = depth * self.width
        rows = b"".join(b"\0" + bytes(data[k : k + row]) for k in range(0, row * self.height, row))

        def chunk(name, body):
            return struct.pack(">I", len(body)) + name + body + struct.pack(">I", zlib.crc32(name + body))

        head = struct.pack(">IIBBBBB", self.width, self.height, 8, {3: 2, 4: 6}[depth], 0, 0, 0)
        return (
            b"\x89PNG\r\n\x1a\n"
            + chunk(b"IHDR", head)
            + chunk(b"IDAT", zlib.compress(rows, 6))
            + chunk(b"IEND", b"")
        )

    def save(self, path: Union[str, os.PathLike]) -> Image:
        """Writes a PNG file. Other formats: `to_pillow().save(path)`."""
        if not str(path).lower().endswith(".png"):
            raise ValueError(f"{path}: PNG files are written; for others use to_pillow().save()")
        with open(path, "wb") as file:
            file.write(self.to_png())
        return self

    def _repr_png_(self) -> Optional[bytes]:
        return self.to_png() if self.width > 0 and self.height > 0 else None

    def pack(self, format: int) -> bytes:
        """The pixels in a packed format, as bytes: `Format.FORMAT_565` and others."""
        count = max(self.width, 0) * max(self.height, 0)
        size = {Format.FORMAT_8888: 4, Format.FORMAT_888: 3}.get(Format(format), 2)
        packed = bytearray(count * size)
        f.BBIBltToX(packed, self._dense(), count, format, 0, 1.0)
        return bytes(packed)

    @classmethod
    def unpack(cls, data: Any, width: int, height: int, format: int) -> Image:
        """A new image from pixels in a packed format."""
        image = cls(width, height)
        f.BBIBltToBBIGet(image, data, width * height, Format(format))
        return image

    # Copies.

    def copy(self) -> Image:
        other = Image(self.width, self.height)
        if self.width > 0 and self.height > 0:
            f.BBIBlt(other, self, 0, 0, self.width, self.height, 0, 0)
        return other

    def _dense(self):
        return self if self.pitch == 4 * self.width else self.copy()

    def crop(self, x: int, y: int, width: int, height: int) -> Image:
        """A new image with a part of this one; what lies outside is 0."""
        other = Image(width, height)
        done(f.BBIBlt(other, self, 0, 0, width, height, x, y), "crop")
        return other

    def resize(self, width: int, height: int) -> Image:
        """A new image of another size: halved while that leaves enough, then resampled by a cubic kernel."""
        _check_size(width, height)
        if width < 1 or height < 1 or self.width < 1 or self.height < 1:
            raise Refused("resize: an image has no pixels")
        small = self
        while small.width >= 2 * width and small.height >= 2 * height:
            half = Image(small.width // 2, small.height // 2)
            done(f.BBIBltHalfSize(half, small, 0, 0, half.width, half.height, 0, 0), "resize")
            small = half
        other = Image(width, height)
        done(f.BBILinear(other, small), "resize")
        # The kernel takes what lies outside for transparent black, which shows a little in the outermost rows.
        return other.opaque() if self._is_opaque() else other

    def _is_opaque(self):
        return f.BBICompare(self, self, Compare.OPAQUE) == 0

    def fit(self, width: int, height: int) -> Image:
        """A new image that keeps its proportions and fits into width x height."""
        scale = min(width / self.width, height / self.height)
        return self.resize(max(1, round(self.width * scale)), max(1, round(self.height * scale)))

    def turn(self, how: Turn) -> Image:
        """A new image, turned: `Turn.RIGHT`, `Turn.HALF`, `Turn.LEFT`."""
        how = Turn(how)
        sides = self.size if how == Turn.HALF else self.size[::-1]
        other = Image(*sides)
        done(f.BBIRotation(other, self, how), "turn")
        return other

    # Drawing.

    def fill(self, colour: int, area: Optional[Area] = None) -> Image:
        """Fills the image, or an area (x, y, width, height) of it."""
        done(f.BBIBltColor(self, *self._area(area), 0, 0, colour), "fill")
        return self

    def tint(self, colour: int, factor: float, area: Optional[Area] = None) -> Image:
        """Mixes a colour in; factor 1 fills."""
        done(f.BBIBltColorBlend(self, *self._area(area), colour, factor), "tint")
        return self

    def gradient(
        self, top_left: int, top_right: int, bottom_left: int, bottom_right: int, area: Optional[Area] = None
    ) -> Image:
        """Fills an area with a gradient between four colours."""
        done(
            f.BBIDrawBox(self, *self._area(area), 0, top_left, top_right, bottom_left, bottom_right),
            "gradient",
        )
        return self

    def tiles(self, width: int, height: int, colours: Sequence[int], area: Optional[Area] = None) -> Image:
        """Fills an area with a checkerboard of four colours."""
        done(f.BBIDrawColorTile(self, *self._area(area), 0, width, height, *colours), "tiles")
        return self

    def line(
        self, x0: int, y0: int, x1: int, y1: int, colour: int, end: Optional[int] = None, smooth: bool = False
    ) -> Image:
        """Draws a line with both its ends; towards a second colour, `end`; antialiased if it is smooth."""
        if smooth:
            colours = Image(2, 1)
            colours[0, 0], colours[1, 0] = colour, colour if end is None else end
            done(f.BBIDrawAlphaLine(self, colours, x0, y0, x1, y1), "line")
        elif end is not None:
            colours = Image(2, 1)
            colours[0, 0], colours[1, 0] = colour, end
            done(f.BBIDrawGradationLine(self, colours, x0, y0, x1, y1), "line")
        else:
            done(f.BBIDrawLine(self, x0, y0, x1, y1, 0, colour), "line")
            done(f.BBIDrawLine(self, x0, y0, x0, y0, 0, colour), "line")  # the walk leaves out its start
        return self

    def triangle(self, corners: Sequence[Tuple[int, int]], colour: int) -> Image:
        """Fills the triangle between three corners, with its edges."""
        (x0, y0), (x1, y1), (x2, y2) = corners
        if (x1 - x0) * (y2 - y0) > (x2 - x0) * (y1 - y0):  # clockwise corners leave out their first edge
            x1, y1, x2, y2 = x2, y2, x1, y1
        done(f.BBIDrawTriangleA(self, x0, y0, x1, y1, x2, y2, 0, colour), "triangle")
        return self

    def ellipse(self, x0: int, y0: int, x1: int, y1: int, colours: Union[Image, Sequence[int]]) -> Image:
        """Fills the ellipse between two corners with rings, from the rim to the centre: colours, or an image.

        The last colour is that of the centre pixel alone: for two soft ones, give a gradient image.
        """
        if not isinstance(colours, Image):
            row = list(colours)
            colours = Image(max(len(row), 2), 1)
            for x in range(colours.width):
                colours[x, 0] = row[min(x, len(row) - 1)]
        done(f.BBIDrawLineCircle(self, colours, x0, y0, x1, y1), "ellipse")
        return self

    def flood(self, x: int, y: int, colour: int) -> Area:
        """Fills the area of one colour at (x, y); returns its left, top, right and bottom, all of them inside."""
        edges = [ctypes.c_int32() for _ in range(4)]
        done(f.BBIPaint(self, x, y, colour, *edges), "flood")
        left, top, right, bottom = (edge.value for edge in edges)
        return left, top, right, bottom

    def blit(
        self, source: Image, x: int = 0, y: int = 0, area: Optional[Area] = None, rule: str = "copy"
    ) -> Image:
        """Brings an image, or an area of it, in at (x, y) by a rule.

        The rules are copy, add, multiply, subtract, difference, darker, lighter, invert, half, key (leaves
        out what has the colour of the source's first pixel), tone, nearer (the greater alpha wins) and alpha
        (shows it as grey).
        """
        sx, sy, width, height = source._area(area)
        if rule not in _rules:
            raise ValueError(f"unknown rule {rule!r}: one of {', '.join(_rules)}")
        done(_rules[rule](self, source, x, y, width, height, sx, sy), "blit")
        return self

    def blend(
        self, source: Image, x: int = 0, y: int = 0, opacity: float = 1.0, area: Optional[Area] = None
    ) -> Image:
        """Lays an image over this one by its alpha; this one may be partly transparent."""
        sx, sy, width, height = source._area(area)
        done(f.BBIBltTrueBlend(self, source, x, y, width, height, sx, sy, opacity), "blend")
        return self

    def fade(
        self, source: Image, opacity: float, x: int = 0, y: int = 0, area: Optional[Area] = None
    ) -> Image:
        """Cross-fades to an image, whatever its alpha; opacity 1 shows it alone."""
        sx, sy, width, height = source._area(area)
        done(f.BBIFlip(self, source, x, y, width, height, sx, sy, opacity), "fade")
        return self

    def stretch(
        self,
        source: Image,
        to: Optional[Area] = None,
        area: Optional[Area] = None,
        opacity: float = 1.0,
        by_alpha: bool = False,
        smooth: bool = False,
    ) -> Image:
        """Brings an area of an image in, stretched onto an area of this one.

        By nearest sample with an opacity, by the alpha of the source too; or smooth, which replaces.
        """
        rectangles = (*self._area(to), *source._area(area))
        if smooth:
            if by_alpha or opacity != 1.0:
                raise ValueError("a smooth stretch replaces: it takes no opacity and no alpha")
            done(f.BBILinearBlt(self._whole(), source._whole(), *rectangles), "stretch")
        else:
            rule = f.BBIExpandBlendBlt if by_alpha else f.BBIExpandBlt
            done(rule(self, source, *rectangles, opacity), "stretch")
        return self

    def _whole(self):
        if self.pitch != 4 * self.width:
            raise ValueError("smooth stretching asks for rows that follow one another: use copy()")
        return self

    # Whole images.

    def opaque(self) -> Image:
        """Makes all pixels opaque."""
        f.BBIClearMask(self, 0, 0, 0, 255, 0x00FFFFFF)
        return self

    def mirror(self) -> Image:
        """Mirrors left to right."""
        done(f.BBIMirror(self), "mirror")
        return self

    def flip(self) -> Image:
        """Mirrors top to bottom."""
        done(f.BBIVMirror(self), "flip")
        return self

    def key(self, colour: int, clean: bool = False) -> Image:
        """Makes a colour transparent, the others opaque; clean ones take the colour of their neighbours."""
        done(f.BBIKeying(self, colour), "key")
        if clean:
            f.BBIKeyingFilter(self)
        return self

    def blur(self, radius: int, area: Optional[Area] = None) -> Image:
        """Blurs with a box of 2 * radius + 1 pixels in both directions."""
        x, y, width, height = self._area(area)
        done(f.BBIBltUBlur(self, self, x, y, width, height, x, y, radius), "blur")
        done(f.BBIBltVBlur(self, self, x, y, width, height, x, y, radius), "blur")
        return self

    def levels(self, threshold: Optional[int] = None, how: str = "balance") -> Image:
        """Stretches the levels by what is in the image: by balance, channels, reverse or gentle.

        `threshold` is how many values at either end are given up, one in two hundred unless it is said.
        """
        if how not in _levels:
            raise ValueError(f"unknown way {how!r}: one of {', '.join(_levels)}")
        if threshold is None:
            threshold = self.width * self.height * (3 if how == "balance" else 1) // 200
        done(_levels[how](self, threshold), "levels")
        return self

    def saturate(self, saturation: float, area: Optional[Area] = None) -> Image:
        """Changes the saturation: 0 is grey, 1 as it was."""
        x, y, width, height = self._area(area)
        place = (x, y, width, height)
        status = f.BBIExpandChooseBlt(
            self, self, *place, *place, 1.0, saturation, 0, 0xFFFFFF, 0, 0xFFFFFFFF, 0, 0, 0, 0, 0, 0
        )
        done(status, "saturate")
        return self

    def alpha_from(self, source: Image) -> Image:
        """Takes the brightness of an image for alpha, from the upper left corner of both on."""
        done(f.BBIChooseCA(self, source, Choose.COLOUR | Choose.DST, Choose.COLOUR), "alpha_from")
        return self

    def trim(self, colour: int = 0, mask: int = 0xFFFFFFFF) -> Area:
        """The smallest area around all pixels that differ from a colour in the bits of a mask."""
        edges = [ctypes.c_int32() for _ in range(4)]
        f.BBITrim(self, 0, mask, colour, *edges)
        x, y, width, height = (edge.value for edge in edges)
        return x, y, width, height

    def count_colours(self) -> int:
        """How many colours there are, alpha aside."""
        return f.BBIColorCount(self, 0)

    def _area(self, area: Optional[Area]) -> Area:
        if area is None:
            return 0, 0, self.width, self.height
        x, y, width, height = area
        return x, y, width, height


def _check_size(width, height):
    if width < 0 or height < 0:
        raise ValueError(f"an image cannot have {width} x {height} pixels")
    if width > MAX_WIDTH:
        raise ValueError(
            f"a row of {width} pixels is too long: the library's rows end at {MAX_WIDTH} pixels. "
            f"Cut the picture into strips of that width at most, one after another, or resize it first"
        )
    if height > MAX_HEIGHT:
        raise ValueError(
            f"{height} rows are too many: images end at {MAX_HEIGHT}. Cut the picture into parts"
        )


def _shaped(data, picture, depth):
    shape = (picture.height, picture.width) + ((depth,) if depth > 1 else ())
    return memoryview(data).cast("B", shape) if 0 not in shape else memoryview(data)


class _Rows:
    """Rows of bytes of a foreign array, copied only where they are not dense."""

    def __init__(self, array):
        numpy = numpy_or_none()
        if numpy and not isinstance(array, memoryview):
            array = numpy.asarray(array)
            if array.dtype != numpy.uint8:
                raise TypeError(f"the array holds {array.dtype}: convert it to bytes first")
        else:
            array = memoryview(array)
            if array.format != "B":
                raise TypeError(f"the array holds items of format {array.format!r}: bytes are needed")
        if array.ndim not in (2, 3):
            raise ValueError(f"an image has 2 or 3 dimensions, (height, width[, channels]), not {array.ndim}")
        self.height, self.width = array.shape[:2]
        self.depth = array.shape[2] if array.ndim == 3 else 1
        _check_size(self.width, self.height)
        dense = array.strides[1:] == ((self.depth, 1) if array.ndim == 3 else (1,))
        self.stride = array.strides[0]
        if numpy and not isinstance(array, memoryview):
            if not dense or abs(self.stride) >= 1 << 31:
                array = numpy.ascontiguousarray(array)
                self.stride = array.strides[0]
            self.first = array.__array_interface__["data"][0]
            self.kept = array
        else:
            data = array.tobytes() if not array.c_contiguous else array.cast("B") if array.nbytes else b""
            self.stride = self.width * self.depth
            self.kept = (
                ctypes.create_string_buffer(bytes(data), max(len(data), 1))
                if getattr(data, "readonly", True)
                else ctypes.c_ubyte.from_buffer(data)
            )
            self.first = ctypes.addressof(self.kept)

    def into(self, convert, image, *palette):
        """Hands the rows to a conversion, which takes them from the last one on."""
        last = self.first + (self.height - 1) * self.stride
        convert(image._record().pointer, ctypes.c_void_p(last), *palette, -self.stride)
