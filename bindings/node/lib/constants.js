// Made by bindings/node/generate.py from the description of the functions. Do not edit.
'use strict';

exports.CpuLevel = Object.freeze({
  BASIC: 2,
  CMOV: 3,
  MMX: 4,
  MMX_SSE: 12,
  MMX_SSE2: 20,
  SSE2: 28,
});

exports.Format = Object.freeze({
  FORMAT_8888: 8888,
  FORMAT_888: 888,
  FORMAT_565: 565,
  FORMAT_555: 555,
  FORMAT_1555: 1555,
  FORMAT_4444: 4444,
});

exports.Compare = Object.freeze({
  PIXELS: 0,
  COLOURS: 1,
  ALPHAS: 2,
  TRANSPARENT: 4,
  OPAQUE: 5,
  BLACK_WHITE: 6,
  GREY: 7,
});

exports.Turn = Object.freeze({
  RIGHT: 0,
  HALF: 1,
  LEFT: 2,
});

exports.Render = Object.freeze({
  MIX: 0,
  ADD: 1,
  TINT: 2,
  TINT_ADD: 3,
});

exports.Choose = Object.freeze({
  COLOUR: 0,
  ALPHA: 1,
  DST: 2,
});

exports.From = Object.freeze({
  RED: 0,
  GREEN: 1,
  BLUE: 2,
  ALPHA: 3,
  DST: 4,
});

exports.Paint = Object.freeze({
  KEY: 0,
  REST: 1,
  BORDERED: 2,
  KEY_RIM: 3,
  OUTLINE: 4,
  SMALL_REGIONS: 5,
  MAJORITY: 6,
  GREY: 7,
  COLOURED: 8,
  AVERAGE: 9,
  MASKED: 10,
});

exports.SampleBits = Object.freeze({
  BITS_8: 8,
  BITS_16: 16,
  BITS_24: 24,
  BITS_64: 64,
});

exports.Channels = Object.freeze({
  MONO: 1,
  STEREO: 2,
});

exports.Reverb = Object.freeze({
  RING_FRAMES: 524288,
  TAPS: 10000,
});
