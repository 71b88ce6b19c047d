-- Made by bindings/lua/generate.py from the description of the functions. Do not edit.
return {
  -- Levels of a processor.
  CpuLevel = {
    BASIC = 2,  -- No packed integers.
    CMOV = 3,  -- No packed integers, but conditional moves.
    MMX = 4,  -- MMX.
    MMX_SSE = 12,  -- MMX and SSE.
    MMX_SSE2 = 20,  -- MMX and SSE2 without SSE.
    SSE2 = 28,  -- MMX, SSE and SSE2.
  },
  -- Pixel formats, with A, R, G and B the bytes of a pixel.
  Format = {
    FORMAT_8888 = 8888,  -- 4 bytes: the word 0xAARRGGBB.
    FORMAT_888 = 888,  -- 3 bytes: blue, green, red. Unpacked with alpha 0.
    FORMAT_565 = 565,  -- 2 bytes: `R >> 3 << 11 | G >> 2 << 5 | B >> 3`. Unpacked with alpha 0.
    FORMAT_555 = 555,  -- 2 bytes: `R >> 3 << 10 | G >> 3 << 5 | B >> 3`. Unpacked with alpha 0, whatever bit 15 is.
    FORMAT_1555 = 1555,  -- 2 bytes: `A >> 7 << 15`, the rest as in 555. Unpacked with alpha 0x80 or 0.
    FORMAT_4444 = 4444,  -- 2 bytes: `A >> 4 << 12 | R >> 4 << 8 | G >> 4 << 4 | B >> 4`. Unpacked with each four bits on top of their byte.
  },
  -- What `BBICompare` tests.
  Compare = {
    PIXELS = 0,  -- All 32 bits of both are equal.
    COLOURS = 1,  -- The colours of both are equal.
    ALPHAS = 2,  -- The alphas of both are equal.
    TRANSPARENT = 4,  -- The alpha of `a` is 0.
    OPAQUE = 5,  -- The alpha of `a` is 255.
    BLACK_WHITE = 6,  -- The colour of `a` is 0x000000 or 0xFFFFFF.
    GREY = 7,  -- Blue, green and red of `a` are equal.
  },
  -- Turns of an image.
  Turn = {
    RIGHT = 0,  -- A quarter clockwise: column x, row y goes to column `height - 1 - y`, row `x`.
    HALF = 1,  -- A half: to column `width - 1 - x`, row `height - 1 - y`.
    LEFT = 2,  -- A quarter counter-clockwise: to column `y`, row `width - 1 - x`.
  },
  -- What BBILinearRender does with a sample s, with the weight a = table[alpha of s].
  Render = {
    MIX = 0,  -- d = mix(d, s, a); any number but the others as well.
    ADD = 1,  -- `d = min(d + (s * a >> 8), 255)` per channel, alpha included.
    TINT = 2,  -- The colours of s become mix(s, tint, table[alpha of tint]), then as mixing.
    TINT_ADD = 3,  -- The same tint, then as adding.
  },
  -- What BBIChooseCA and its relatives build from; other bits count for nothing.
  Choose = {
    COLOUR = 0,  -- The colour: as colours, or as alpha its brightness.
    ALPHA = 1,  -- The alpha: as colours a grey of it, or as alpha.
    DST = 2,  -- Added: the pixel of `dst`; else that of `src`.
  },
  -- What a channel is copied from by BBIChooseRGBA; other bits count for nothing.
  From = {
    RED = 0,  -- The red.
    GREEN = 1,  -- The green.
    BLUE = 2,  -- The blue.
    ALPHA = 3,  -- The alpha.
    DST = 4,  -- Added: of the pixel of `dst`; else of that of `src`.
  },
  -- The operations of BBIPaintChoose.
  Paint = {
    KEY = 0,  -- Key pixels become `colour`.
    REST = 1,  -- All others become `colour`.
    BORDERED = 2,  -- All others become `colour`, with a border on either side of the key.
    KEY_RIM = 3,  -- Key pixels with a neighbour that is not key become `colour`.
    OUTLINE = 4,  -- Others with a neighbour that is key become `colour`.
    SMALL_REGIONS = 5,  -- Connected regions of few key pixels become `colour`.
    MAJORITY = 6,  -- Key pixels take the commonest of their neighbours' colours.
    GREY = 7,  -- Grey pixels take the commonest of their neighbours' colours.
    COLOURED = 8,  -- Pixels that are not grey become `colour`.
    AVERAGE = 9,  -- Key pixels take the average of their neighbours.
    MASKED = 10,  -- Pixels p with `(p & extra) == key` become `colour`.
  },
  -- Widths of a stored sample.
  SampleBits = {
    BITS_8 = 8,  -- One byte, 128 is silence.
    BITS_16 = 16,  -- Signed, little-endian, two bytes.
    BITS_24 = 24,  -- Signed, little-endian, three bytes.
    BITS_64 = 64,  -- A double, -1 to 1.
  },
  -- Samples a frame.
  Channels = {
    MONO = 1,  -- One sample.
    STEREO = 2,  -- Left, then right.
  },
  -- Sizes that the reverb is built on.
  Reverb = {
    RING_FRAMES = 524288,  -- Frames of the ring, of two doubles each: 8 MiB.
    TAPS = 10000,  -- Entries of each of the three parts of a tap table.
  },
}
