// Made by bindings/node/generate.py from the description of the functions. Do not edit.
/** Levels of a processor. */
export declare const CpuLevel: {
  /** No packed integers. */
  readonly BASIC: 2;
  /** No packed integers, but conditional moves. */
  readonly CMOV: 3;
  /** MMX. */
  readonly MMX: 4;
  /** MMX and SSE. */
  readonly MMX_SSE: 12;
  /** MMX and SSE2 without SSE. */
  readonly MMX_SSE2: 20;
  /** MMX, SSE and SSE2. */
  readonly SSE2: 28;
};

/** Pixel formats, with A, R, G and B the bytes of a pixel. */
export declare const Format: {
  /** 4 bytes: the word 0xAARRGGBB. */
  readonly FORMAT_8888: 8888;
  /** 3 bytes: blue, green, red. Unpacked with alpha 0. */
  readonly FORMAT_888: 888;
  /** 2 bytes: `R >> 3 << 11 | G >> 2 << 5 | B >> 3`. Unpacked with alpha 0. */
  readonly FORMAT_565: 565;
  /** 2 bytes: `R >> 3 << 10 | G >> 3 << 5 | B >> 3`. Unpacked with alpha 0, whatever bit 15 is. */
  readonly FORMAT_555: 555;
  /** 2 bytes: `A >> 7 << 15`, the rest as in 555. Unpacked with alpha 0x80 or 0. */
  readonly FORMAT_1555: 1555;
  /** 2 bytes: `A >> 4 << 12 | R >> 4 << 8 | G >> 4 << 4 | B >> 4`. Unpacked with each four bits on top of their byte. */
  readonly FORMAT_4444: 4444;
};

/** What `BBICompare` tests. */
export declare const Compare: {
  /** All 32 bits of both are equal. */
  readonly PIXELS: 0;
  /** The colours of both are equal. */
  readonly COLOURS: 1;
  /** The alphas of both are equal. */
  readonly ALPHAS: 2;
  /** The alpha of `a` is 0. */
  readonly TRANSPARENT: 4;
  /** The alpha of `a` is 255. */
  readonly OPAQUE: 5;
  /** The colour of `a` is 0x000000 or 0xFFFFFF. */
  readonly BLACK_WHITE: 6;
  /** Blue, green and red of `a` are equal. */
  readonly GREY: 7;
};

/** Turns of an image. */
export declare const Turn: {
  /** A quarter clockwise: column x, row y goes to column `height - 1 - y`, row `x`. */
  readonly RIGHT: 0;
  /** A half: to column `width - 1 - x`, row `height - 1 - y`. */
  readonly HALF: 1;
  /** A quarter counter-clockwise: to column `y`, row `width - 1 - x`. */
  readonly LEFT: 2;
};

/** What BBILinearRender does with a sample s, with the weight a = table[alpha of s]. */
export declare const Render: {
  /** d = mix(d, s, a); any number but the others as well. */
  readonly MIX: 0;
  /** `d = min(d + (s * a >> 8), 255)` per channel, alpha included. */
  readonly ADD: 1;
  /** The colours of s become mix(s, tint, table[alpha of tint]), then as mixing. */
  readonly TINT: 2;
  /** The same tint, then as adding. */
  readonly TINT_ADD: 3;
};

/** What BBIChooseCA and its relatives build from; other bits count for nothing. */
export declare const Choose: {
  /** The colour: as colours, or as alpha its brightness. */
  readonly COLOUR: 0;
  /** The alpha: as colours a grey of it, or as alpha. */
  readonly ALPHA: 1;
  /** Added: the pixel of `dst`; else that of `src`. */
  readonly DST: 2;
};

/** What a channel is copied from by BBIChooseRGBA; other bits count for nothing. */
export declare const From: {
  /** The red. */
  readonly RED: 0;
  /** The green. */
  readonly GREEN: 1;
  /** The blue. */
  readonly BLUE: 2;
  /** The alpha. */
  readonly ALPHA: 3;
  /** Added: of the pixel of `dst`; else of that of `src`. */
  readonly DST: 4;
};

/** The operations of BBIPaintChoose. */
export declare const Paint: {
  /** Key pixels become `colour`. */
  readonly KEY: 0;
  /** All others become `colour`. */
  readonly REST: 1;
  /** All others become `colour`, with a border on either side of the key. */
  readonly BORDERED: 2;
  /** Key pixels with a neighbour that is not key become `colour`. */
  readonly KEY_RIM: 3;
  /** Others with a neighbour that is key become `colour`. */
  readonly OUTLINE: 4;
  /** Connected regions of few key pixels become `colour`. */
  readonly SMALL_REGIONS: 5;
  /** Key pixels take the commonest of their neighbours' colours. */
  readonly MAJORITY: 6;
  /** Grey pixels take the commonest of their neighbours' colours. */
  readonly GREY: 7;
  /** Pixels that are not grey become `colour`. */
  readonly COLOURED: 8;
  /** Key pixels take the average of their neighbours. */
  readonly AVERAGE: 9;
  /** Pixels p with `(p & extra) == key` become `colour`. */
  readonly MASKED: 10;
};

/** Widths of a stored sample. */
export declare const SampleBits: {
  /** One byte, 128 is silence. */
  readonly BITS_8: 8;
  /** Signed, little-endian, two bytes. */
  readonly BITS_16: 16;
  /** Signed, little-endian, three bytes. */
  readonly BITS_24: 24;
  /** A double, -1 to 1. */
  readonly BITS_64: 64;
};

/** Samples a frame. */
export declare const Channels: {
  /** One sample. */
  readonly MONO: 1;
  /** Left, then right. */
  readonly STEREO: 2;
};

/** Sizes that the reverb is built on. */
export declare const Reverb: {
  /** Frames of the ring, of two doubles each: 8 MiB. */
  readonly RING_FRAMES: 524288;
  /** Entries of each of the three parts of a tap table. */
  readonly TAPS: 10000;
};
