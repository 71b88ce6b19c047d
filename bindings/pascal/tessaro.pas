// Made by bindings/pascal/generate.py from the description of the functions. Do not edit.
//
// For Free Pascal and Delphi. Memory is passed by its address, and nothing is measured: what a parameter needs is told
// with it.
unit Tessaro;

{$IFDEF FPC} {$MODE DELPHI} {$PACKRECORDS C} {$ENDIF}

interface

const
  TessaroLibrary = {$IFDEF MSWINDOWS} 'tessaro.dll' {$ELSE} {$IFDEF FPC} 'tessaro' {$ELSE} 'libtessaro.so' {$ENDIF} {$ENDIF};

// CpuLevel: Levels of a processor.
const
  TESSARO_CPU_BASIC = 2;  // No packed integers.
  TESSARO_CPU_CMOV = 3;  // No packed integers, but conditional moves.
  TESSARO_CPU_MMX = 4;  // MMX.
  TESSARO_CPU_MMX_SSE = 12;  // MMX and SSE.
  TESSARO_CPU_MMX_SSE2 = 20;  // MMX and SSE2 without SSE.
  TESSARO_CPU_SSE2 = 28;  // MMX, SSE and SSE2.

// Format: Pixel formats, with A, R, G and B the bytes of a pixel.
const
  TESSARO_FORMAT_8888 = 8888;  // 4 bytes: the word 0xAARRGGBB.
  TESSARO_FORMAT_888 = 888;  // 3 bytes: blue, green, red. Unpacked with alpha 0.
  TESSARO_FORMAT_565 = 565;  // 2 bytes: `R >> 3 << 11 | G >> 2 << 5 | B >> 3`. Unpacked with alpha 0.
  TESSARO_FORMAT_555 = 555;  // 2 bytes: `R >> 3 << 10 | G >> 3 << 5 | B >> 3`. Unpacked with alpha 0, whatever bit 15 is.
  TESSARO_FORMAT_1555 = 1555;  // 2 bytes: `A >> 7 << 15`, the rest as in 555. Unpacked with alpha 0x80 or 0.
  TESSARO_FORMAT_4444 = 4444;  // 2 bytes: `A >> 4 << 12 | R >> 4 << 8 | G >> 4 << 4 | B >> 4`. Unpacked with each four bits on top of their byte.

// Compare: What `BBICompare` tests.
const
  TESSARO_COMPARE_PIXELS = 0;  // All 32 bits of both are equal.
  TESSARO_COMPARE_COLOURS = 1;  // The colours of both are equal.
  TESSARO_COMPARE_ALPHAS = 2;  // The alphas of both are equal.
  TESSARO_COMPARE_TRANSPARENT = 4;  // The alpha of `a` is 0.
  TESSARO_COMPARE_OPAQUE = 5;  // The alpha of `a` is 255.
  TESSARO_COMPARE_BLACK_WHITE = 6;  // The colour of `a` is 0x000000 or 0xFFFFFF.
  TESSARO_COMPARE_GREY = 7;  // Blue, green and red of `a` are equal.

// Turn: Turns of an image.
const
  TESSARO_TURN_RIGHT = 0;  // A quarter clockwise: column x, row y goes to column `height - 1 - y`, row `x`.
  TESSARO_TURN_HALF = 1;  // A half: to column `width - 1 - x`, row `height - 1 - y`.
  TESSARO_TURN_LEFT = 2;  // A quarter counter-clockwise: to column `y`, row `width - 1 - x`.

// Render: What BBILinearRender does with a sample s, with the weight a = table[alpha of s].
const
  TESSARO_RENDER_MIX = 0;  // d = mix(d, s, a); any number but the others as well.
  TESSARO_RENDER_ADD = 1;  // `d = min(d + (s * a >> 8), 255)` per channel, alpha included.
  TESSARO_RENDER_TINT = 2;  // The colours of s become mix(s, tint, table[alpha of tint]), then as mixing.
  TESSARO_RENDER_TINT_ADD = 3;  // The same tint, then as adding.

// Choose: What BBIChooseCA and its relatives build from; other bits count for nothing.
const
  TESSARO_CHOOSE_COLOUR = 0;  // The colour: as colours, or as alpha its brightness.
  TESSARO_CHOOSE_ALPHA = 1;  // The alpha: as colours a grey of it, or as alpha.
  TESSARO_CHOOSE_DST = 2;  // Added: the pixel of `dst`; else that of `src`.

// From: What a channel is copied from by BBIChooseRGBA; other bits count for nothing.
const
  TESSARO_FROM_RED = 0;  // The red.
  TESSARO_FROM_GREEN = 1;  // The green.
  TESSARO_FROM_BLUE = 2;  // The blue.
  TESSARO_FROM_ALPHA = 3;  // The alpha.
  TESSARO_FROM_DST = 4;  // Added: of the pixel of `dst`; else of that of `src`.

// Paint: The operations of BBIPaintChoose.
const
  TESSARO_PAINT_KEY = 0;  // Key pixels become `colour`.
  TESSARO_PAINT_REST = 1;  // All others become `colour`.
  TESSARO_PAINT_BORDERED = 2;  // All others become `colour`, with a border on either side of the key.
  TESSARO_PAINT_KEY_RIM = 3;  // Key pixels with a neighbour that is not key become `colour`.
  TESSARO_PAINT_OUTLINE = 4;  // Others with a neighbour that is key become `colour`.
  TESSARO_PAINT_SMALL_REGIONS = 5;  // Connected regions of few key pixels become `colour`.
  TESSARO_PAINT_MAJORITY = 6;  // Key pixels take the commonest of their neighbours' colours.
  TESSARO_PAINT_GREY = 7;  // Grey pixels take the commonest of their neighbours' colours.
  TESSARO_PAINT_COLOURED = 8;  // Pixels that are not grey become `colour`.
  TESSARO_PAINT_AVERAGE = 9;  // Key pixels take the average of their neighbours.
  TESSARO_PAINT_MASKED = 10;  // Pixels p with `(p & extra) == key` become `colour`.

// SampleBits: Widths of a stored sample.
const
  TESSARO_BITS_8 = 8;  // One byte, 128 is silence.
  TESSARO_BITS_16 = 16;  // Signed, little-endian, two bytes.
  TESSARO_BITS_24 = 24;  // Signed, little-endian, three bytes.
  TESSARO_BITS_64 = 64;  // A double, -1 to 1.

// Channels: Samples a frame.
const
  TESSARO_MONO = 1;  // One sample.
  TESSARO_STEREO = 2;  // Left, then right.

// Reverb: Sizes that the reverb is built on.
const
  TESSARO_REVERB_RING_FRAMES = 524288;  // Frames of the ring, of two doubles each: 8 MiB.
  TESSARO_REVERB_TAPS = 10000;  // Entries of each of the three parts of a tap table.

type
  // An image: a block of the host's memory that begins with these two words.
  PImageRecord = ^TImageRecord;
  TImageRecord = record
    dims_offset: SmallInt;
    pixel_offset: SmallInt;
  end;

  // The dimensions of an image.
  PImageDims = ^TImageDims;
  TImageDims = record
    width: SmallInt;
    height: SmallInt;
    pitch: SmallInt;
  end;

  // A buffer of samples of the host's.
  PWaveBuffer = ^TWaveBuffer;
  TWaveBuffer = record
    format: Integer;
    count: Integer;
    data: Pointer;
  end;

  // A host's function of one argument; on 32-bit Windows the caller removes it.
  TessaroMethod1 = function(a: NativeInt): NativeInt; cdecl;

  // A host's function of four arguments; on 32-bit Windows the caller removes them.
  TessaroMethod4 = function(a, b, c, d: NativeInt): NativeInt; cdecl;

  // A host's function of two arguments; on 32-bit Windows it removes them itself, as the library's own functions
  // do.
  TessaroCallback2 = function(a, b: NativeInt): NativeInt; {$IFDEF WIN32} stdcall {$ELSE} cdecl {$ENDIF};

  // What the worker thread calls.
  TessaroWorker = procedure; cdecl;

  // A function that is offered the messages of a hooked window.
  TessaroHook = function(window: Pointer; message, first: NativeUInt; second, value: NativeInt): Integer; {$IFDEF WIN32} stdcall {$ELSE} cdecl {$ENDIF};

// Differences of bytes, the reference one place before, 128 before the start.
//   source: What is transformed. At least length bytes.
//   destination: What comes of it; of an odd length of 16-bit words the last byte is left alone. At least length
//     bytes.
//   length: The size of both.
//   written: The number of bytes made: the length, or for 16-bit words the even part of it. At least 1 words.
//   Result 0: Always.
function iwave11Encoder(source, destination: Pointer; length: Cardinal; written: PCardinal): Integer;
  {$IFDEF WIN32} stdcall {$ELSE} cdecl {$ENDIF}; external TessaroLibrary name 'iwave11Encoder';

// Undoes `iwave11Encoder`.
//   source: What is transformed. At least length bytes.
//   destination: What comes of it; of an odd length of 16-bit words the last byte is left alone. At least length
//     bytes.
//   length: The size of both.
//   Result 0: Always.
function iwave11Decoder(source, destination: Pointer; length: Cardinal): Integer;
  {$IFDEF WIN32} stdcall {$ELSE} cdecl {$ENDIF}; external TessaroLibrary name 'iwave11Decoder';

// Differences of bytes, the reference two places before, 128 before the start.
//   source: What is transformed. At least length bytes.
//   destination: What comes of it; of an odd length of 16-bit words the last byte is left alone. At least length
//     bytes.
//   length: The size of both.
//   written: The number of bytes made: the length, or for 16-bit words the even part of it. At least 1 words.
//   Result 0: Always.
function iwave12Encoder(source, destination: Pointer; length: Cardinal; written: PCardinal): Integer;
  {$IFDEF WIN32} stdcall {$ELSE} cdecl {$ENDIF}; external TessaroLibrary name 'iwave12Encoder';

// Undoes `iwave12Encoder`.
//   source: What is transformed. At least length bytes.
//   destination: What comes of it; of an odd length of 16-bit words the last byte is left alone. At least length
//     bytes.
//   length: The size of both.
//   Result 0: Always.
function iwave12Decoder(source, destination: Pointer; length: Cardinal): Integer;
  {$IFDEF WIN32} stdcall {$ELSE} cdecl {$ENDIF}; external TessaroLibrary name 'iwave12Decoder';

// Differences of bytes, the reference four places before, 128 before the start.
//   source: What is transformed. At least length bytes.
//   destination: What comes of it; of an odd length of 16-bit words the last byte is left alone. At least length
//     bytes.
//   length: The size of both.
//   written: The number of bytes made: the length, or for 16-bit words the even part of it. At least 1 words.
//   Result 0: Always.
function iwave32Encoder(source, destination: Pointer; length: Cardinal; written: PCardinal): Integer;
  {$IFDEF WIN32} stdcall {$ELSE} cdecl {$ENDIF}; external TessaroLibrary name 'iwave32Encoder';

// Undoes `iwave32Encoder`.
//   source: What is transformed. At least length bytes.
//   destination: What comes of it; of an odd length of 16-bit words the last byte is left alone. At least length
//     bytes.
//   length: The size of both.
//   Result 0: Always.
function iwave32Decoder(source, destination: Pointer; length: Cardinal): Integer;
  {$IFDEF WIN32} stdcall {$ELSE} cdecl {$ENDIF}; external TessaroLibrary name 'iwave32Decoder';

// Differences of little-endian 16-bit words, the reference one word before, 0 before the start.
//
// The last byte of an odd length is neither coded nor copied: the host carries it.
//   source: What is transformed. At least length bytes.
//   destination: What comes of it; of an odd length of 16-bit words the last byte is left alone. At least length
//     bytes.
//   length: The size of both.
//   written: The number of bytes made: the length, or for 16-bit words the even part of it. At least 1 words.
//   Result 0: Always.
function iwave21Encoder(source, destination: Pointer; length: Cardinal; written: PCardinal): Integer;
  {$IFDEF WIN32} stdcall {$ELSE} cdecl {$ENDIF}; external TessaroLibrary name 'iwave21Encoder';

// Undoes `iwave21Encoder`.
//   source: What is transformed. At least length bytes.
//   destination: What comes of it; of an odd length of 16-bit words the last byte is left alone. At least length
//     bytes.
//   length: The size of both.
//   Result 0: Always.
function iwave21Decoder(source, destination: Pointer; length: Cardinal): Integer;
  {$IFDEF WIN32} stdcall {$ELSE} cdecl {$ENDIF}; external TessaroLibrary name 'iwave21Decoder';

// Differences of little-endian 16-bit words, the reference two words before, 0 before the start.
//
// The last byte of an odd length is neither coded nor copied: the host carries it.
//   source: What is transformed. At least length bytes.
//   destination: What comes of it; of an odd length of 16-bit words the last byte is left alone. At least length
//     bytes.
//   length: The size of both.
//   written: The number of bytes made: the length, or for 16-bit words the even part of it. At least 1 words.
//   Result 0: Always.
function iwave22Encoder(source, destination: Pointer; length: Cardinal; written: PCardinal): Integer;
  {$IFDEF WIN32} stdcall {$ELSE} cdecl {$ENDIF}; external TessaroLibrary name 'iwave22Encoder';

// Undoes `iwave22Encoder`.
//   source: What is transformed. At least length bytes.
//   destination: What comes of it; of an odd length of 16-bit words the last byte is left alone. At least length
//     bytes.
//   length: The size of both.
//   Result 0: Always.
function iwave22Decoder(source, destination: Pointer; length: Cardinal): Integer;
  {$IFDEF WIN32} stdcall {$ELSE} cdecl {$ENDIF}; external TessaroLibrary name 'iwave22Decoder';

// Parts bytes into two planes.
//   source: What is transformed. At least length bytes.
//   destination: What comes of it. At least length bytes.
//   length: The size of both.
//   written: The number of bytes made: the length. At least 1 words.
//   Result 0: Always.
function ichshift2Encoder(source, destination: Pointer; length: Cardinal; written: PCardinal): Integer;
  {$IFDEF WIN32} stdcall {$ELSE} cdecl {$ENDIF}; external TessaroLibrary name 'ichshift2Encoder';

// Puts two planes together again.
//   source: What is transformed. At least length bytes.
//   destination: What comes of it. At least length bytes.
//   length: The size of both.
//   Result 0: Always.
function ichshift2Decoder(source, destination: Pointer; length: Cardinal): Integer;
  {$IFDEF WIN32} stdcall {$ELSE} cdecl {$ENDIF}; external TessaroLibrary name 'ichshift2Decoder';

// Parts bytes into three planes.
//   source: What is transformed. At least length bytes.
//   destination: What comes of it. At least length bytes.
//   length: The size of both.
//   written: The number of bytes made: the length. At least 1 words.
//   Result 0: Always.
function ichshift3Encoder(source, destination: Pointer; length: Cardinal; written: PCardinal): Integer;
  {$IFDEF WIN32} stdcall {$ELSE} cdecl {$ENDIF}; external TessaroLibrary name 'ichshift3Encoder';

// Puts three planes together again.
//   source: What is transformed. At least length bytes.
//   destination: What comes of it. At least length bytes.
//   length: The size of both.
//   Result 0: Always.
function ichshift3Decoder(source, destination: Pointer; length: Cardinal): Integer;
  {$IFDEF WIN32} stdcall {$ELSE} cdecl {$ENDIF}; external TessaroLibrary name 'ichshift3Decoder';

// Parts bytes into four planes.
//   source: What is transformed. At least length bytes.
//   destination: What comes of it. At least length bytes.
//   length: The size of both.
//   written: The number of bytes made: the length. At least 1 words.
//   Result 0: Always.
function ichshift4Encoder(source, destination: Pointer; length: Cardinal; written: PCardinal): Integer;
  {$IFDEF WIN32} stdcall {$ELSE} cdecl {$ENDIF}; external TessaroLibrary name 'ichshift4Encoder';

// Puts four planes together again.
//   source: What is transformed. At least length bytes.
//   destination: What comes of it. At least length bytes.
//   length: The size of both.
//   Result 0: Always.
function ichshift4Decoder(source, destination: Pointer; length: Cardinal): Integer;
  {$IFDEF WIN32} stdcall {$ELSE} cdecl {$ENDIF}; external TessaroLibrary name 'ichshift4Decoder';

// Codes pairs of bytes, each against the pair before.
//
// A pair costs 3 bits (equal to the one before) to 19.
//   source: What is coded. At least length bytes.
//   destination: The stream. At least length bytes.
//   length: The size of the source, and of the memory at the destination.
//   written: Bytes of the stream; untouched where the source is shorter than the minimum. At least 1 words.
//   Result 0: The stream is complete and shorter than the limit.
//   Result 1: The data does not compress; keep the source. Below the minimum nothing is written, otherwise the
//     first `*written` bytes of a stream that was given up.
function iEncoder(source, destination: Pointer; length: Cardinal; written: PCardinal): Integer;
  {$IFDEF WIN32} stdcall {$ELSE} cdecl {$ENDIF}; external TessaroLibrary name 'iEncoder';

// Decodes a trusted stream of `i`.
//   stream: The stream: exactly the bytes that are needed are read, without a check.
//   destination: What was coded. At least count bytes.
//   count: The length of the source, and the memory at the destination.
//   Result 0: Done.
//   Result 1: The count is 0.
function iDecoder(stream, destination: Pointer; count: Cardinal): Integer;
  {$IFDEF WIN32} stdcall {$ELSE} cdecl {$ENDIF}; external TessaroLibrary name 'iDecoder';

// Decodes any stream of `i`, safely.
//   stream: The stream. At least stream_size bytes.
//   destination: What was coded. At least count bytes.
//   stream_size: Its size.
//   count: The length of the source, and the memory at the destination.
//   Result 0: Done.
//   Result 1: The stream ended early or the count is 0 (nothing is changed then). The destination begins with
//     the bytes that were made.
function iDecoderSafe(stream, destination: Pointer; stream_size, count: Cardinal): Integer;
  {$IFDEF WIN32} stdcall {$ELSE} cdecl {$ENDIF}; external TessaroLibrary name 'iDecoderSafe';

// Codes pixels that repeat the one before.
//
// A group of four bytes that equals the one before costs one bit, any other 33.
//   source: What is coded. At least length bytes.
//   destination: The stream. At least length bytes.
//   length: The size of the source, and of the memory at the destination.
//   written: Bytes of the stream; untouched where the source is shorter than the minimum. At least 1 words.
//   Result 0: The stream is complete and shorter than the limit.
//   Result 1: The data does not compress; keep the source. Below the minimum nothing is written, otherwise the
//     first `*written` bytes of a stream that was given up.
function ioEncoder(source, destination: Pointer; length: Cardinal; written: PCardinal): Integer;
  {$IFDEF WIN32} stdcall {$ELSE} cdecl {$ENDIF}; external TessaroLibrary name 'ioEncoder';

// Decodes a trusted stream of `io`.
//   stream: The stream: exactly the bytes that are needed are read, without a check.
//   destination: What was coded. At least count bytes.
//   count: The length of the source, and the memory at the destination.
//   Result 0: Done.
//   Result 1: The count is 0.
function ioDecoder(stream, destination: Pointer; count: Cardinal): Integer;
  {$IFDEF WIN32} stdcall {$ELSE} cdecl {$ENDIF}; external TessaroLibrary name 'ioDecoder';

// Decodes any stream of `io`, safely.
//   stream: The stream. At least stream_size bytes.
//   destination: What was coded. At least count bytes.
//   stream_size: Its size.
//   count: The length of the source, and the memory at the destination.
//   Result 0: Done.
//   Result 1: The stream ended early or the count is 0 (nothing is changed then). The destination begins with
//     the bytes that were made.
function ioDecoderSafe(stream, destination: Pointer; stream_size, count: Cardinal): Integer;
  {$IFDEF WIN32} stdcall {$ELSE} cdecl {$ENDIF}; external TessaroLibrary name 'ioDecoderSafe';

// Codes blocks of six bytes that repeat the byte before, or are the one that most often follows it in this source,
// or are sent.
//
// 256 bytes of every stream are the table of successors.
//   source: What is coded. At least length bytes.
//   destination: The stream. At least length bytes.
//   length: The size of the source, and of the memory at the destination.
//   written: Bytes of the stream; untouched where the source is shorter than the minimum. At least 1 words.
//   Result 0: The stream is complete and shorter than the limit.
//   Result 1: The data does not compress; keep the source. Below the minimum nothing is written, otherwise the
//     first `*written` bytes of a stream that was given up.
function ib18Encoder(source, destination: Pointer; length: Cardinal; written: PCardinal): Integer;
  {$IFDEF WIN32} stdcall {$ELSE} cdecl {$ENDIF}; external TessaroLibrary name 'ib18Encoder';

// Decodes a trusted stream of `ib18`.
//   stream: The stream: exactly the bytes that are needed are read, without a check.
//   destination: What was coded. At least count bytes.
//   count: The length of the source, and the memory at the destination.
//   Result 0: Done; also for a count of 0.
function ib18Decoder(stream, destination: Pointer; count: Cardinal): Integer;
  {$IFDEF WIN32} stdcall {$ELSE} cdecl {$ENDIF}; external TessaroLibrary name 'ib18Decoder';

// Decodes any stream of `ib18`, safely.
//   stream: The stream. At least stream_size bytes.
//   destination: What was coded. At least count bytes.
//   stream_size: Its size.
//   count: The length of the source, and the memory at the destination.
//   Result 0: Done.
//   Result 1: The stream ended early or the count is 0 (nothing is changed then). The destination begins with
//     the bytes that were made.
function ib18DecoderSafe(stream, destination: Pointer; stream_size, count: Cardinal): Integer;
  {$IFDEF WIN32} stdcall {$ELSE} cdecl {$ENDIF}; external TessaroLibrary name 'ib18DecoderSafe';

// Codes as `ib18Encoder` does, one channel of 32-bit pixels after another.
//
// The table of successors is that of the plain order. Only a length that is a multiple of 4 is restored.
//   source: What is coded. At least length bytes.
//   destination: The stream. At least length bytes.
//   length: The size of the source, and of the memory at the destination.
//   written: Bytes of the stream; untouched where the source is shorter than the minimum. At least 1 words.
//   Result 0: The stream is complete and shorter than the limit.
//   Result 1: The data does not compress; keep the source. Below the minimum nothing is written, otherwise the
//     first `*written` bytes of a stream that was given up.
function ib18EncoderEx(source, destination: Pointer; length: Cardinal; written: PCardinal): Integer;
  {$IFDEF WIN32} stdcall {$ELSE} cdecl {$ENDIF}; external TessaroLibrary name 'ib18EncoderEx';

// Decodes a trusted stream of `ib18`, one channel after another.
//   stream: The stream: exactly the bytes that are needed are read, without a check.
//   destination: What was coded. At least count bytes.
//   count: The length of the source, and the memory at the destination.
//   Result 0: Done; also for a count of 0.
function ib18DecoderEx(stream, destination: Pointer; count: Cardinal): Integer;
  {$IFDEF WIN32} stdcall {$ELSE} cdecl {$ENDIF}; external TessaroLibrary name 'ib18DecoderEx';

// Decodes any stream of `ib18`, one channel after another, safely.
//   stream: The stream. At least stream_size bytes.
//   destination: What was coded. At least count bytes.
//   stream_size: Its size.
//   count: The length of the source, and the memory at the destination.
//   Result 0: Done.
//   Result 1: The stream ended early or the count is 0 (nothing is changed then). What was made lies at
//     positions 0, 4, 8, ..., then 1, 5, ....
function ib18DecoderExSafe(stream, destination: Pointer; stream_size, count: Cardinal): Integer;
  {$IFDEF WIN32} stdcall {$ELSE} cdecl {$ENDIF}; external TessaroLibrary name 'ib18DecoderExSafe';

// Codes groups of 4, 8, 16, ...
//
// bytes, each group with 8, 5, 3 or 0 bits a byte, whatever differs from the byte before.
//
// A stream that is given up ends with one more byte.
//   source: What is coded. At least length bytes.
//   destination: The stream. At least length bytes.
//   length: The size of the source, and of the memory at the destination.
//   written: Bytes of the stream; untouched where the source is shorter than the minimum. At least 1 words.
//   Result 0: The stream is complete and shorter than the limit.
//   Result 1: The data does not compress; keep the source. Below the minimum nothing is written, otherwise the
//     first `*written` bytes of a stream that was given up.
function iabrEncoder(source, destination: Pointer; length: Cardinal; written: PCardinal): Integer;
  {$IFDEF WIN32} stdcall {$ELSE} cdecl {$ENDIF}; external TessaroLibrary name 'iabrEncoder';

// Decodes a trusted stream of `iabr`.
//   stream: The stream: exactly the bytes that are needed are read, without a check.
//   destination: What was coded. At least count bytes.
//   count: The length of the source, and the memory at the destination.
//   Result 0: Done.
//   Result 1: The count is 0.
function iabrDecoder(stream, destination: Pointer; count: Cardinal): Integer;
  {$IFDEF WIN32} stdcall {$ELSE} cdecl {$ENDIF}; external TessaroLibrary name 'iabrDecoder';

// Decodes any stream of `iabr`, safely.
//   stream: The stream. At least stream_size bytes.
//   destination: What was coded. At least count bytes.
//   stream_size: Its size.
//   count: The length of the source, and the memory at the destination.
//   Result 0: Done.
//   Result 1: The stream ended early or the count is 0 (nothing is changed then). The destination begins with
//     the bytes that were made.
function iabrDecoderSafe(stream, destination: Pointer; stream_size, count: Cardinal): Integer;
  {$IFDEF WIN32} stdcall {$ELSE} cdecl {$ENDIF}; external TessaroLibrary name 'iabrDecoderSafe';

// Codes groups of `4 * 2^k` bytes that agree in their top bits, in a few bits each, with an escape for those that
// do not fit.
//
// A stream that is given up ends with one more byte.
//   source: What is coded. At least length bytes.
//   destination: The stream. At least length bytes.
//   length: The size of the source, and of the memory at the destination.
//   written: Bytes of the stream; untouched where the source is shorter than the minimum. At least 1 words.
//   Result 0: The stream is complete and shorter than the limit.
//   Result 1: The data does not compress; keep the source. Below the minimum nothing is written, otherwise the
//     first `*written` bytes of a stream that was given up.
function inabeEncoder(source, destination: Pointer; length: Cardinal; written: PCardinal): Integer;
  {$IFDEF WIN32} stdcall {$ELSE} cdecl {$ENDIF}; external TessaroLibrary name 'inabeEncoder';

// Decodes a trusted stream of `inabe`.
//   stream: The stream: exactly the bytes that are needed are read, without a check.
//   destination: What was coded. At least count bytes.
//   count: The length of the source, and the memory at the destination.
//   Result 0: Done; also for a count of 0.
function inabeDecoder(stream, destination: Pointer; count: Cardinal): Integer;
  {$IFDEF WIN32} stdcall {$ELSE} cdecl {$ENDIF}; external TessaroLibrary name 'inabeDecoder';

// Decodes a trusted stream of `inabe` and undoes two transforms in the same pass.
//
// Pixels that were prepared with `ichshift4Encoder`, then `iwave11Encoder`, then coded, come back with one
// call; any length does.
//   stream: The stream: exactly the bytes that are needed are read, without a check.
//   destination: What was coded. At least count bytes.
//   count: The length of the source, and the memory at the destination.
//   Result 0: Done; also for a count of 0.
function inabeDecoderEx(stream, destination: Pointer; count: Cardinal): Integer;
  {$IFDEF WIN32} stdcall {$ELSE} cdecl {$ENDIF}; external TessaroLibrary name 'inabeDecoderEx';

// Decodes any stream of `inabe`, safely.
//   stream: The stream. At least stream_size bytes.
//   destination: What was coded. At least count bytes.
//   stream_size: Its size.
//   count: The length of the source, and the memory at the destination.
//   Result 0: Done.
//   Result 1: The stream ended early or the count is 0 (nothing is changed then). From the last four whole codes
//     on, everything up to the end of the group may be wrong.
function inabeDecoderSafe(stream, destination: Pointer; stream_size, count: Cardinal): Integer;
  {$IFDEF WIN32} stdcall {$ELSE} cdecl {$ENDIF}; external TessaroLibrary name 'inabeDecoderSafe';

// Decodes any stream of `inabe` and undoes the transforms as `inabeDecoderEx` does, safely.
//   stream: The stream. At least stream_size bytes.
//   destination: What was coded. At least count bytes.
//   stream_size: Its size.
//   count: The length of the source, and the memory at the destination.
//   Result 0: Done.
//   Result 1: The stream ended early or the count is 0 (nothing is changed then). What was made lies at
//     positions 0, 4, 8, ..., then 1, 5, ..., and its end may be wrong as for `inabeDecoderSafe`.
function inabeDecoderExSafe(stream, destination: Pointer; stream_size, count: Cardinal): Integer;
  {$IFDEF WIN32} stdcall {$ELSE} cdecl {$ENDIF}; external TessaroLibrary name 'inabeDecoderExSafe';

// Codes pixels against the pixel before, in two pairs of channels: blue and red, green and alpha.
//
// A pixel costs 6 to 34 bits.
//   source: What is coded. At least length bytes.
//   destination: The stream. At least length bytes.
//   length: The size of the source, and of the memory at the destination.
//   written: Bytes of the stream; untouched where the source is shorter than the minimum. At least 1 words.
//   Result 0: The stream is complete and shorter than the limit.
//   Result 1: The data does not compress; keep the source. Below the minimum nothing is written, otherwise the
//     first `*written` bytes of a stream that was given up.
function imistEncoder(source, destination: Pointer; length: Cardinal; written: PCardinal): Integer;
  {$IFDEF WIN32} stdcall {$ELSE} cdecl {$ENDIF}; external TessaroLibrary name 'imistEncoder';

// Decodes a trusted stream of `imist`.
//   stream: The stream: exactly the bytes that are needed are read, without a check.
//   destination: What was coded. At least count bytes.
//   count: The length of the source, and the memory at the destination.
//   Result 0: Done.
//   Result 1: The count is 0.
function imistDecoder(stream, destination: Pointer; count: Cardinal): Integer;
  {$IFDEF WIN32} stdcall {$ELSE} cdecl {$ENDIF}; external TessaroLibrary name 'imistDecoder';

// Decodes any stream of `imist`, safely.
//   stream: The stream. At least stream_size bytes.
//   destination: What was coded. At least count bytes.
//   stream_size: Its size.
//   count: The length of the source, and the memory at the destination.
//   Result 0: Done.
//   Result 1: The stream ended early or the count is 0 (nothing is changed then). The destination begins with
//     the bytes that were made.
function imistDecoderSafe(stream, destination: Pointer; stream_size, count: Cardinal): Integer;
  {$IFDEF WIN32} stdcall {$ELSE} cdecl {$ENDIF}; external TessaroLibrary name 'imistDecoderSafe';

// Codes blocks of eight bytes, each byte whole or as the bits in which it differs from a byte one to eight places
// back.
//
// The encoder tries every distance and every number of bits.
//   source: What is coded. At least length bytes.
//   destination: The stream. At least length bytes.
//   length: The size of the source, and of the memory at the destination.
//   written: Bytes of the stream; untouched where the source is shorter than the minimum. At least 1 words.
//   Result 0: The stream is complete and shorter than the limit.
//   Result 1: The data does not compress; keep the source. Below the minimum nothing is written, otherwise the
//     first `*written` bytes of a stream that was given up.
function indaEncoder(source, destination: Pointer; length: Cardinal; written: PCardinal): Integer;
  {$IFDEF WIN32} stdcall {$ELSE} cdecl {$ENDIF}; external TessaroLibrary name 'indaEncoder';

// Decodes a trusted stream of `inda`.
//   stream: The stream: exactly the bytes that are needed are read, without a check.
//   destination: What was coded. At least count bytes.
//   count: The length of the source, and the memory at the destination.
//   Result 0: Done.
//   Result 1: The count is 0.
function indaDecoder(stream, destination: Pointer; count: Cardinal): Integer;
  {$IFDEF WIN32} stdcall {$ELSE} cdecl {$ENDIF}; external TessaroLibrary name 'indaDecoder';

// Decodes any stream of `inda`, safely.
//   stream: The stream. At least stream_size bytes.
//   destination: What was coded. At least count bytes.
//   stream_size: Its size.
//   count: The length of the source, and the memory at the destination.
//   Result 0: Done.
//   Result 1: The stream ended early or the count is 0 (nothing is changed then). The destination begins with
//     the bytes that were made; several are made at once, and the last of them may be missing.
function indaDecoderSafe(stream, destination: Pointer; stream_size, count: Cardinal): Integer;
  {$IFDEF WIN32} stdcall {$ELSE} cdecl {$ENDIF}; external TessaroLibrary name 'indaDecoderSafe';

// Codes pixels against the pixel before, each byte whole or cut to its low 3 or 5 bits.
//
// A repeated pixel costs 5 bits, any other 17 to 37.
//   source: What is coded. At least length bytes.
//   destination: The stream. At least length bytes.
//   length: The size of the source, and of the memory at the destination.
//   written: Bytes of the stream; untouched where the source is shorter than the minimum. At least 1 words.
//   Result 0: The stream is complete and shorter than the limit.
//   Result 1: The data does not compress; keep the source. Below the minimum nothing is written, otherwise the
//     first `*written` bytes of a stream that was given up.
function icaEncoder(source, destination: Pointer; length: Cardinal; written: PCardinal): Integer;
  {$IFDEF WIN32} stdcall {$ELSE} cdecl {$ENDIF}; external TessaroLibrary name 'icaEncoder';

// Decodes a trusted stream of `ica`.
//   stream: The stream: exactly the bytes that are needed are read, without a check.
//   destination: What was coded. At least count bytes.
//   count: The length of the source, and the memory at the destination.
//   Result 0: Done.
//   Result 1: The count is 0.
function icaDecoder(stream, destination: Pointer; count: Cardinal): Integer;
  {$IFDEF WIN32} stdcall {$ELSE} cdecl {$ENDIF}; external TessaroLibrary name 'icaDecoder';

// Decodes any stream of `ica`, safely.
//   stream: The stream. At least stream_size bytes.
//   destination: What was coded. At least count bytes.
//   stream_size: Its size.
//   count: The length of the source, and the memory at the destination.
//   Result 0: Done.
//   Result 1: The stream ended early or the count is 0 (nothing is changed then). The destination begins with
//     the bytes that were made.
function icaDecoderSafe(stream, destination: Pointer; stream_size, count: Cardinal): Integer;
  {$IFDEF WIN32} stdcall {$ELSE} cdecl {$ENDIF}; external TessaroLibrary name 'icaDecoderSafe';

// Codes pixels whose channels stay constant, in blocks of eight pixels.
//
// Takes any length.
//
// The stream can be longer than the source.
//   source: What is coded. At least length bytes.
//   destination: The stream. At least length + ceil_div(length, 32) + 3 bytes.
//   length: The size of the source, and of the memory at the destination.
//   written: Bytes of the stream. At least 1 words.
//   Result 0: Always.
function c2fEncoder(source, destination: Pointer; length: Cardinal; written: PCardinal): Integer;
  {$IFDEF WIN32} stdcall {$ELSE} cdecl {$ENDIF}; external TessaroLibrary name 'c2fEncoder';

// Decodes `c2f`.
//
// It checks both sizes, and is safe with any stream.
//
// The zeros at the end of a source whose length is not a multiple of 32 are not stored: behind the last byte
// of the stream every second byte up to `size` becomes 0, beginning with the first, and the ones between keep
// what they held. A host therefore clears the destination first. An end part that is longer than the room
// left is cut, with result 0.
//   stream: The stream. At least stream_size bytes.
//   destination: What was coded. At least size bytes.
//   stream_size: Its size.
//   size: The length of the source.
//   Result 0: Done.
//   Result 1: The stream ended early, or describes more than `size` bytes before its end part; the destination
//     begins with what was decoded before that.
function c2fDecoder(stream, destination: Pointer; stream_size, size: Cardinal): Integer;
  {$IFDEF WIN32} stdcall {$ELSE} cdecl {$ENDIF}; external TessaroLibrary name 'c2fDecoder';

// The extents of a bitmap in HIMETRIC units, hundredths of a millimetre, not in pixels.
//
// Elsewhere than on Windows at 96 pixels an inch, rounded to nearest: 8 pixels are 212, and `pixels =
// round(extent * 96 / 2540)`; so too on Windows where the screen has 96 pixels an inch. Both are set to 0
// before anything else and stay 0 where there is no bitmap.
//   file: The file as it lies on disk. At least size bytes.
//   size: Its size.
//   width: The width. At least 1 words.
//   height: The height. At least 1 words.
//   Result 0: Handled; also for a file that is no picture, for a picture that is no bitmap (an icon, a cursor, a
//     metafile), and where there is no memory for it.
//   Result 1: The size is out of range.
function DecodeImageHead(&file: Pointer; size: Integer; width, height: PInteger): Integer;
  {$IFDEF WIN32} stdcall {$ELSE} cdecl {$ENDIF}; external TessaroLibrary name 'DecodeImageHead';

// Draws a bitmap at (0, 0) of a device context.
//
// Pixels are `0xAARRGGBB` with alpha 0 where the file has none (`BBIClearMask(image, 0, 0, 0, 255,
// 0x00FFFFFF)` makes them opaque); the fourth byte of 32-bit bitmaps becomes alpha. The rectangle drawn has
// as many columns as the number of the picture's HIMETRIC height, and as many rows as that of its HIMETRIC
// width, cut to the picture and to the destination: all of a picture, unless one edge is over 26 times as
// long as the other.
//
// Elsewhere than on Windows a call takes at most 1 GiB of memory, and time for what the destination shows at
// most: of the worst files known, of 8 MiB or less and drawn to their last row, a bitmap took 0.4 s, a JPEG
// file 1.4 s, a PNG file 1.8 s and a GIF file 0.8 s of a server's processor.
//   device: Elsewhere than on Windows an `ImageRecord`; on Windows an HDC.
//   file: The file as it lies on disk. At least size bytes.
//   size: Its size.
//   Result 0: Handled; also for a file that is no picture, for a picture that is no bitmap (an icon, a cursor, a
//     metafile), and where there is no memory for it.
//   Result 1: The size is out of range.
function DecodeImage(device, &file: Pointer; size: Integer): Integer;
  {$IFDEF WIN32} stdcall {$ELSE} cdecl {$ENDIF}; external TessaroLibrary name 'DecodeImage';

// Draws the points of the walk; where both ends are one, that pixel.
//   image: The image that is drawn on.
//   x0: The first corner or end.
//   y0: The first corner or end.
//   x1: The other corner or end.
//   y1: The other corner or end.
//   mask: Bits that the image keeps: `(~mask & colour) | (old & mask)`. 0 stores the colour.
//   colour: The colour.
//   Result 0: Done, also when nothing lies inside the image.
function BBIDrawLine(image: PImageRecord; x0, y0, x1, y1: Integer; mask, colour: Cardinal): Integer;
  {$IFDEF WIN32} stdcall {$ELSE} cdecl {$ENDIF}; external TessaroLibrary name 'BBIDrawLine';

// Fills holes along a line: writes each point of the walk of whose neighbours three or four equal the colour.
//
// Neighbours are the pixels left, right, above and below, inside the image; they are compared in all 32 bits,
// and count as they are when the walk gets there, those that it has written too. Where both ends are one
// nothing happens.
//   image: The image that is drawn on.
//   x0: The first corner or end.
//   y0: The first corner or end.
//   x1: The other corner or end.
//   y1: The other corner or end.
//   mask: Bits that the image keeps: `(~mask & colour) | (old & mask)`. 0 stores the colour.
//   colour: The colour.
//   Result 0: Done, also when nothing lies inside the image.
function BBIDotThick(image: PImageRecord; x0, y0, x1, y1: Integer; mask, colour: Cardinal): Integer;
  {$IFDEF WIN32} stdcall {$ELSE} cdecl {$ENDIF}; external TessaroLibrary name 'BBIDotThick';

// Grows strokes of the colour towards a line.
//
// Each point of the walk, which may lie outside the image and is not written itself, has four arms: right,
// left, down, up, in this order. An arm is scanned inwards, at the distances d = `thickness` to 1: where the
// pixel lies inside the image and equals the colour in all 32 bits, `found = thickness + 1 - d`; then, where
// it lies inside and `found >= d`, it is written. found starts at 0 for each arm. So the colour at distance d
// paints its arm from distance `min(d, thickness + 1 - d)` inwards.
//   image: The image that is drawn on.
//   x0: The first corner or end.
//   y0: The first corner or end.
//   x1: The other corner or end.
//   y1: The other corner or end.
//   mask: Bits that the image keeps: `(~mask & colour) | (old & mask)`. 0 stores the colour.
//   colour: The colour.
//   thickness: The length of an arm.
//   Result 0: Done, also where both ends are one, which does nothing.
//   Result 1: The thickness is below 1, or the pitch of the image is not 4 * width.
function BBILineThick(image: PImageRecord; x0, y0, x1, y1: Integer; mask, colour: Cardinal; thickness: Integer): Integer;
  {$IFDEF WIN32} stdcall {$ELSE} cdecl {$ENDIF}; external TessaroLibrary name 'BBILineThick';

// Draws a gradient line, one step late.
//
// The walk here has n + 1 steps, in which an error term drops only when it exceeds n, and every step i = 0..n
// draws the point it reaches. So from n = 2 on the line runs from one past its start to one past its end: a
// line from (0, 0) to (4, 0) draws x = 1 to 5. For n = 1 it draws its two ends, for n = 0 its start.
//
// All four bytes are stored: with c0, c1 the bytes of the two colours, t = i / n (0 for n = 0) and
// `u = (float)(1 - t)`, each is `trunc(c1 * t + c0 * u)`. Between equal colours a byte may come out one less.
//   image: The image that is drawn on.
//   colours: The first two pixels of its first row are the colours of (x0, y0) and (x1, y1).
//   x0: The first corner or end.
//   y0: The first corner or end.
//   x1: The other corner or end.
//   y1: The other corner or end.
//   Result 0: Done.
//   Result 1: `colours` is narrower than 2 or has no row.
function BBIDrawGradationLine(image, colours: PImageRecord; x0, y0, x1, y1: Integer): Integer;
  {$IFDEF WIN32} stdcall {$ELSE} cdecl {$ENDIF}; external TessaroLibrary name 'BBIDrawGradationLine';

// Draws an antialiased gradient line, blended by the alpha of its colours, which is part of the gradient.
//
// M is the greater of |x1 - x0| and |y1 - y0|, N the other; the line goes along x where |x1 - x0| is greater,
// else along y. It begins at the end where that coordinate is less, and the colours c0 and c1 change places
// with the ends. The other coordinate moves by s: 1 where the last end's is greater or the same, else -1.
//
// Two tracks share the coverage: A begins at the start, B at one pixel from it, at s. With
// `h = (float)(N / M * 0.5)` and `q = (float)((N - h) / M)`, the coverage of A begins at 1 and falls by q a
// step; below 0 it grows by 1 and A moves by s. That of B begins at h / 2 and grows by q a step; above 1 it
// falls by 1 and B moves by s. These sums are exact.
//
// For i = 0..M, both ends included, the colour is c = mix(c0, c1, `trunc((float)(i / M) * 256)`), and a pixel
// of coverage v becomes mix(pixel, c, `trunc(min(alpha * 0.003921569f * v, 1) * 256)`), alpha being that of
// c: first A, then B, then, where B is two pixels ahead of A, the one between them with v = 1. Where A or B
// lies outside the image, none of them is drawn: a horizontal line in the last row draws nothing, nor does a
// vertical one in the last column. Where both ends are one nothing happens.
//   image: The image that is drawn on.
//   colours: The first two pixels of its first row are the colours of (x0, y0) and (x1, y1).
//   x0: The first corner or end.
//   y0: The first corner or end.
//   x1: The other corner or end.
//   y1: The other corner or end.
//   Result 0: Done.
//   Result 1: `colours` is narrower than 2 or has no row.
function BBIDrawAlphaLine(image, colours: PImageRecord; x0, y0, x1, y1: Integer): Integer;
  {$IFDEF WIN32} stdcall {$ELSE} cdecl {$ENDIF}; external TessaroLibrary name 'BBIDrawAlphaLine';

// Fills with one colour.
//   image: The image that is drawn on.
//   x: The upper left corner.
//   y: The upper left corner.
//   cx: The size.
//   cy: The size.
//   mask: Bits that the image keeps: `(~mask & colour) | (old & mask)`. 0 stores the colour.
//   colour: The colour.
//   Result 0: Done.
//   Result 1: Clipping left nothing.
function BBIDrawColorFill(image: PImageRecord; x, y, cx, cy: Integer; mask, colour: Cardinal): Integer;
  {$IFDEF WIN32} stdcall {$ELSE} cdecl {$ENDIF}; external TessaroLibrary name 'BBIDrawColorFill';

// Fills with a checkerboard of four colours: pixel (i, j) of the image has colour number `(i / tile_cx & 1) + 2 *
// (j / tile_cy & 1)`.
//
// The pattern begins at the image's corner, not at the box's.
//   image: The image that is drawn on.
//   x: The upper left corner.
//   y: The upper left corner.
//   cx: The size.
//   cy: The size.
//   mask: Bits that the image keeps: `(~mask & colour) | (old & mask)`. 0 stores the colour.
//   tile_cx: The width of a tile; below 1 counts as 1.
//   tile_cy: The height of a tile; below 1 counts as 1.
//   colour0: Even columns of tiles in even rows.
//   colour1: Odd columns in even rows.
//   colour2: Even columns in odd rows.
//   colour3: Odd columns in odd rows.
//   Result 0: Done.
//   Result 1: Clipping left nothing.
function BBIDrawColorTile(image: PImageRecord; x, y, cx, cy: Integer; mask: Cardinal; tile_cx, tile_cy: Integer; colour0, colour1, colour2, colour3: Cardinal): Integer;
  {$IFDEF WIN32} stdcall {$ELSE} cdecl {$ENDIF}; external TessaroLibrary name 'BBIDrawColorTile';

// Fills with a gradient between four corner colours, of which a clipped box shows its part.
//
// With (sx, sy, sw, sh) the clipped source rectangle, the visible part begins at `(float)(sx / W)` and ends
// at `(float)((sx + sw) / W)` across, down likewise with H. Column i of n visible ones lies at
// `u = (1 - f) * begin + f * end` with `f = i / (n - 1)`; rows likewise, but v is rounded to float. A weight
// is `trunc(max(min(u, 1), 0) * 256)`. With the weights wu and wv the pixel is
// `mix(mix(top_left, bottom_left, wv), mix(top_right, bottom_right, wv), wu)`.
//
// Where one column (row) is visible, its weight is 0: it shows the left (top) colours, wherever it lies in
// the box.
//   image: The image that is drawn on.
//   x: The upper left corner.
//   y: The upper left corner.
//   cx: The size.
//   cy: The size.
//   mask: Bits that the image keeps: `(~mask & colour) | (old & mask)`. 0 stores the colour.
//   top_left: The colour of the corner.
//   top_right: The colour of the corner.
//   bottom_left: The colour of the corner.
//   bottom_right: The colour of the corner.
//   Result 0: Done.
//   Result 1: Clipping left nothing.
function BBIDrawBox(image: PImageRecord; x, y, cx, cy: Integer; mask, top_left, top_right, bottom_left, bottom_right: Cardinal): Integer;
  {$IFDEF WIN32} stdcall {$ELSE} cdecl {$ENDIF}; external TessaroLibrary name 'BBIDrawBox';

// Fills with a gradient between the upper left 2 x 2 pixels of the pattern, one for each corner.
//
// With p(column, row) a byte of the pattern, read before the first pixel is written,
// `left = (float)(v * p(0, 1) + (1 - v) * p(0, 0))` and `right = (float)(v * p(1, 1) + (1 - v) * p(1, 0))`,
// the byte is `trunc((1 - u) * left + u * right)`.
//   image: The image that is drawn on.
//   pattern: At least 2 x 2 pixels. It may be part of the image.
//   x0: The first corner or end.
//   y0: The first corner or end.
//   x1: The other corner or end.
//   y1: The other corner or end.
//   Result 0: Done, also when nothing lies inside the image.
//   Result 1: The pattern is smaller than 2 x 2.
function BBIDrawGradationBox(image, pattern: PImageRecord; x0, y0, x1, y1: Integer): Integer;
  {$IFDEF WIN32} stdcall {$ELSE} cdecl {$ENDIF}; external TessaroLibrary name 'BBIDrawGradationBox';

// Multiplies a colour chosen along x with one chosen along y: `a * b / 255` rounded down, byte by byte.
//
// a is column `trunc(u * (pattern width - 1))` of the pattern's first row, read for each pixel; b is column
// `trunc(v * (pattern width - 1))` of its second row, read for each row.
//   image: The image that is drawn on.
//   pattern: At least 2 x 2 pixels. It may be part of the image.
//   x0: The first corner or end.
//   y0: The first corner or end.
//   x1: The other corner or end.
//   y1: The other corner or end.
//   Result 0: Done, also when nothing lies inside the image.
//   Result 1: The pattern is smaller than 2 x 2.
function BBIDrawMultiplyLineBox(image, pattern: PImageRecord; x0, y0, x1, y1: Integer): Integer;
  {$IFDEF WIN32} stdcall {$ELSE} cdecl {$ENDIF}; external TessaroLibrary name 'BBIDrawMultiplyLineBox';

// As BBIDrawMultiplyLineBox, with `a + b`, above 255 folded back to `510 - (a + b)`.
//   image: The image that is drawn on.
//   pattern: At least 2 x 2 pixels. It may be part of the image.
//   x0: The first corner or end.
//   y0: The first corner or end.
//   x1: The other corner or end.
//   y1: The other corner or end.
//   Result 0: Done, also when nothing lies inside the image.
//   Result 1: The pattern is smaller than 2 x 2.
function BBIDrawExclusiveLineBox(image, pattern: PImageRecord; x0, y0, x1, y1: Integer): Integer;
  {$IFDEF WIN32} stdcall {$ELSE} cdecl {$ENDIF}; external TessaroLibrary name 'BBIDrawExclusiveLineBox';

// Fills the pixels strictly inside: E(0, 1), E(1, 2) and E(2, 0) are all negative or all positive.
//
// No pixel on an edge is drawn, and none of a triangle without area.
//   image: The image that is drawn on.
//   x0: The first corner or end.
//   y0: The first corner or end.
//   x1: The other corner or end.
//   y1: The other corner or end.
//   x2: The third corner.
//   y2: The third corner.
//   mask: Bits that the image keeps: `(~mask & colour) | (old & mask)`. 0 stores the colour.
//   colour: The colour.
//   Result 0: Always.
function BBIDrawTriangle(image: PImageRecord; x0, y0, x1, y1, x2, y2: Integer; mask, colour: Cardinal): Integer;
  {$IFDEF WIN32} stdcall {$ELSE} cdecl {$ENDIF}; external TessaroLibrary name 'BBIDrawTriangle';

// Fills the pixels inside and on the edges: where E(0, 1) is positive the other two are 0 or more, else they are 0
// or less.
//
// Of a triangle without area these are the pixels exactly on its segment. Where the corners are in clockwise
// order as seen on the screen, as (0, 0), (4, 0), (0, 4) are, the edge from the first to the second is left
// out.
//   image: The image that is drawn on.
//   x0: The first corner or end.
//   y0: The first corner or end.
//   x1: The other corner or end.
//   y1: The other corner or end.
//   x2: The third corner.
//   y2: The third corner.
//   mask: Bits that the image keeps: `(~mask & colour) | (old & mask)`. 0 stores the colour.
//   colour: The colour.
//   Result 0: Always.
function BBIDrawTriangleA(image: PImageRecord; x0, y0, x1, y1, x2, y2: Integer; mask, colour: Cardinal): Integer;
  {$IFDEF WIN32} stdcall {$ELSE} cdecl {$ENDIF}; external TessaroLibrary name 'BBIDrawTriangleA';

// Fills with rings: from the first row of the palette.
//   image: The image that is drawn on.
//   palette: The colours.
//   x0: The first corner or end.
//   y0: The first corner or end.
//   x1: The other corner or end.
//   y1: The other corner or end.
//   Result 0: Done, also when nothing lies inside the image.
//   Result 1: The palette is narrower than 2 or has no row.
function BBIDrawLineCircle(image, palette: PImageRecord; x0, y0, x1, y1: Integer): Integer;
  {$IFDEF WIN32} stdcall {$ELSE} cdecl {$ENDIF}; external TessaroLibrary name 'BBIDrawLineCircle';

// Fills with rings and rays: from the row of the palette that the angle selects.
//
// Here `v * v` in r is rounded to float. The fraction t of a turn is `atan(u / v) * 0.159154976`, plus 0.25
// where v is negative and 0.75 where it is positive; where v is 0 it is 0.5 for a negative u, else 0. So 0 is
// to the right, 0.25 above, 0.5 to the left, 0.75 below, if the corners are the upper left and the lower
// right. The row is `min(trunc(t * palette height), palette height - 1)`. The arctangent is within one unit
// in the last place of the exact one and the same on every target.
//   image: The image that is drawn on.
//   palette: The colours.
//   x0: The first corner or end.
//   y0: The first corner or end.
//   x1: The other corner or end.
//   y1: The other corner or end.
//   Result 0: Done, also when nothing lies inside the image.
//   Result 1: The palette is smaller than 2 x 2.
function BBIDrawPolaCircle(image, palette: PImageRecord; x0, y0, x1, y1: Integer): Integer;
  {$IFDEF WIN32} stdcall {$ELSE} cdecl {$ENDIF}; external TessaroLibrary name 'BBIDrawPolaCircle';

// Tells the level of the processor, found when the library was loaded.
//   Result The level: no result of another function depends on it.
function GetCpuID: Integer;
  {$IFDEF WIN32} stdcall {$ELSE} cdecl {$ENDIF}; external TessaroLibrary name 'GetCpuID';

// Returns its argument.
//
// Kept for hosts that choose wide code paths with it; the library chooses by itself, and no result depends on
// it.
//   flag: Any number.
//   Result `flag`.
function MMX(flag: Integer): Integer;
  {$IFDEF WIN32} stdcall {$ELSE} cdecl {$ENDIF}; external TessaroLibrary name 'MMX';

// Returns its argument: lets a host see that the library is there.
//   x: Any number.
//   Result `x`.
function BBI(x: Integer): Integer;
  {$IFDEF WIN32} stdcall {$ELSE} cdecl {$ENDIF}; external TessaroLibrary name 'BBI';

// Returns its argument: lets a host see that the library is there.
//   x: Any number.
//   Result `x`.
function wave(x: Integer): Integer;
  {$IFDEF WIN32} stdcall {$ELSE} cdecl {$ENDIF}; external TessaroLibrary name 'wave';

// Shifts right and fills with zeros.
//   value: The number that is shifted or stored.
//   count: By how many bits; only its low five bits count, so that 33 shifts by 1.
//   Result `value >> (count & 31)`, unsigned.
function &SHR(value, count: Cardinal): Cardinal;
  {$IFDEF WIN32} stdcall {$ELSE} cdecl {$ENDIF}; external TessaroLibrary name 'SHR';

// Shifts right and fills with the sign.
//   value: The number that is shifted or stored.
//   count: By how many bits; only its low five bits count, so that 33 shifts by 1.
//   Result `value >> (count & 31)`, signed: -8 by 1 is -4, -1 by anything -1.
function SAR(value: Integer; count: Cardinal): Integer;
  {$IFDEF WIN32} stdcall {$ELSE} cdecl {$ENDIF}; external TessaroLibrary name 'SAR';

// Shifts left.
//   value: The number that is shifted or stored.
//   count: By how many bits; only its low five bits count, so that 33 shifts by 1.
//   Result The low 32 bits of `value << (count & 31)`.
function &SHL(value, count: Cardinal): Cardinal;
  {$IFDEF WIN32} stdcall {$ELSE} cdecl {$ENDIF}; external TessaroLibrary name 'SHL';

// Reads the 16-bit word at `base + 2 * index`.
//
// The result is 16 bits wide: a host that takes it for 32 finds undefined bits in the upper half.
//   base: Where index 0 lies.
//   index: Which word, counted from `base`; may be negative.
//   Result The word.
function GetWORD(base: Pointer; index: Integer): Word;
  {$IFDEF WIN32} stdcall {$ELSE} cdecl {$ENDIF}; external TessaroLibrary name 'GetWORD';

// Reads the 16-bit word at `base + 2 * index`.
//
// The result is 16 bits wide: a host that takes it for 32 finds undefined bits in the upper half.
//   base: Where index 0 lies.
//   index: Which word, counted from `base`; may be negative.
//   Result The word.
function GetInt(base: Pointer; index: Integer): Word;
  {$IFDEF WIN32} stdcall {$ELSE} cdecl {$ENDIF}; external TessaroLibrary name 'GetInt';

// Stores the low 16 bits of a number at `base + 2 * index`.
//   base: Where index 0 lies.
//   index: Which word, counted from `base`; may be negative.
//   value: The number that is shifted or stored.
//   Result What was stored; 16 bits wide, as with GetWORD.
function SetWORD(base: Pointer; index: Integer; value: Cardinal): Word;
  {$IFDEF WIN32} stdcall {$ELSE} cdecl {$ENDIF}; external TessaroLibrary name 'SetWORD';

// Stores the low 16 bits of a number at `base + 2 * index`.
//   base: Where index 0 lies.
//   index: Which word, counted from `base`; may be negative.
//   value: The number that is shifted or stored.
//   Result What was stored; 16 bits wide, as with GetWORD.
function SetInt(base: Pointer; index: Integer; value: Cardinal): Word;
  {$IFDEF WIN32} stdcall {$ELSE} cdecl {$ENDIF}; external TessaroLibrary name 'SetInt';

// Reads the 32-bit word at `base + 4 * index`.
//   base: Where index 0 lies.
//   index: Which word, counted from `base`; may be negative.
//   Result The word.
function GetDWORD(base: Pointer; index: Integer): Cardinal;
  {$IFDEF WIN32} stdcall {$ELSE} cdecl {$ENDIF}; external TessaroLibrary name 'GetDWORD';

// Reads the 32-bit word at `base + 4 * index`.
//   base: Where index 0 lies.
//   index: Which word, counted from `base`; may be negative.
//   Result The word.
function GetLong(base: Pointer; index: Integer): Cardinal;
  {$IFDEF WIN32} stdcall {$ELSE} cdecl {$ENDIF}; external TessaroLibrary name 'GetLong';

// Stores a number at `base + 4 * index`.
//   base: Where index 0 lies.
//   index: Which word, counted from `base`; may be negative.
//   value: The number that is shifted or stored.
//   Result `value`.
function SetDWORD(base: Pointer; index: Integer; value: Cardinal): Cardinal;
  {$IFDEF WIN32} stdcall {$ELSE} cdecl {$ENDIF}; external TessaroLibrary name 'SetDWORD';

// Stores a number at `base + 4 * index`.
//   base: Where index 0 lies.
//   index: Which word, counted from `base`; may be negative.
//   value: The number that is shifted or stored.
//   Result `value`.
function SetLong(base: Pointer; index: Integer; value: Cardinal): Cardinal;
  {$IFDEF WIN32} stdcall {$ELSE} cdecl {$ENDIF}; external TessaroLibrary name 'SetLong';

// Compares bytes.
//
// The count may reach beyond the end of the memory if a difference lies before it: no page of 4096 bytes
// behind that of the first difference is touched.
//   a: The one. At least count bytes.
//   b: The other. At least count bytes.
//   count: How many are compared; trusted up to the first difference.
//   Result 0: They are equal, or `count` is below 1.
//   Result 1: They differ.
function dllComp(a, b: Pointer; count: Integer): Integer;
  {$IFDEF WIN32} stdcall {$ELSE} cdecl {$ENDIF}; external TessaroLibrary name 'dllComp';

// Exclusive-ors a block of words into another, despite the name: onto zeros it copies, applied twice it undoes
// itself.
//
// In each row `dst[i] ^= src[i]`, word after word; then both move on by `pitch` bytes. Rows or words below 1
// do nothing.
//   dst: The block that is changed, from the first word of its first row. At least abs(pitch) * (rows - 1) + 4 *
//     words bytes.
//   src: The block that is read. At least abs(pitch) * (rows - 1) + 4 * words bytes.
//   words: 32-bit words in a row.
//   rows: Rows.
//   pitch: From the start of one row to that of the next, in both blocks; may be negative.
//   Result 0: Always.
function CopyMemoryEx(dst, src: Pointer; words, rows, pitch: Integer): Integer;
  {$IFDEF WIN32} stdcall {$ELSE} cdecl {$ENDIF}; external TessaroLibrary name 'CopyMemoryEx';

// Hashes a zero-terminated text, or the first 64 bytes of a longer one.
//
// The value is the same on all targets and in all versions, so that it may be stored. In unsigned 32-bit
// arithmetic:
//
// ```
// h1 = 0x22A83D, h2 = 0x1476E5
// for each byte ch before the zero, at most 64:
//   h2 = h2 & 0x3FFFFF
//   h1 = (h1 & 0x3FFFFF) + (h2 >> 1) + ch + 520 * h2
//   h2 = h2 + ch + 162 * h1
// result = (h1 << 16) ^ h2
// ```
//   text: The text; nothing behind its zero is read. At least 64 bytes.
//   Result The hash; that of nothing is 0xA82976E5.
function hash32A(text: Pointer): Cardinal;
  {$IFDEF WIN32} stdcall {$ELSE} cdecl {$ENDIF}; external TessaroLibrary name 'hash32A';

// Hashes bytes of a given number, by another function than `hash32A`.
//
// Zero bytes are skipped, so that a 16-bit text of ASCII characters hashes like its 8-bit form. The value is
// the same on all targets and in all versions. In unsigned 32-bit arithmetic:
//
// ```
// h1 = 0x12A83D, h2 = 0x1476E5
// for each byte ch that is not 0:
//   h2 = h2 & 0x1FFFFF
//   h1 = (h1 & 0x1FFFFF) + (h2 >> 1) + ch + 520 * h2
//   h2 = h2 + ch + 38 * h1
// result = (h1 << 16) ^ h2
// ```
//   bytes: What is hashed. At least length bytes.
//   length: How many bytes; below 1 there are none.
//   Result The hash; that of nothing is 0xA82976E5.
function hash32W(bytes: Pointer; length: Integer): Cardinal;
  {$IFDEF WIN32} stdcall {$ELSE} cdecl {$ENDIF}; external TessaroLibrary name 'hash32W';

// Mixes two colours, alpha included.
//   colour0: The colour at factor 0.
//   colour1: The colour at factor 1.
//   factor: How much of `colour1`: negative, or not a number, counts as 0, above 1 as 1.
//   Result Of each byte `(c0 * (256 - k) + c1 * k) >> 8` with `k = trunc(factor * 256)`.
function dwColorBlend(colour0, colour1: Cardinal; factor: Single): Cardinal;
  {$IFDEF WIN32} stdcall {$ELSE} cdecl {$ENDIF}; external TessaroLibrary name 'dwColorBlend';

// Calls a function of one argument, which follows C's convention.
//   fn: The function that is called.
//   a: Its arguments, each as wide as a pointer.
//   Result What `fn` returns.
function dllMethod1(fn: TessaroMethod1; a: NativeInt): NativeInt;
  {$IFDEF WIN32} stdcall {$ELSE} cdecl {$ENDIF}; external TessaroLibrary name 'dllMethod1';

// Calls a function of four arguments, which follows C's convention.
//   fn: The function that is called.
//   a: Its arguments, each as wide as a pointer.
//   b: Its arguments, each as wide as a pointer.
//   c: Its arguments, each as wide as a pointer.
//   d: Its arguments, each as wide as a pointer.
//   Result What `fn` returns.
function dllMethod4(fn: TessaroMethod4; a, b, c, d: NativeInt): NativeInt;
  {$IFDEF WIN32} stdcall {$ELSE} cdecl {$ENDIF}; external TessaroLibrary name 'dllMethod4';

// Calls a function of two arguments, which follows the library's own convention.
//   fn: The function that is called.
//   a: Its arguments, each as wide as a pointer.
//   b: Its arguments, each as wide as a pointer.
//   Result What `fn` returns.
function StdCallBack(fn: TessaroCallback2; a, b: NativeInt): NativeInt;
  {$IFDEF WIN32} stdcall {$ELSE} cdecl {$ENDIF}; external TessaroLibrary name 'StdCallBack';

// Draws a random number below a limit.
//
// The generator is the Mersenne Twister MT19937 of M. Matsumoto and T. Nishimura (1998) with the seeding of
// its revision of October 1999 (each word joins the high halves of two steps of `s = 69069 * s + 1`), seeded
// with the milliseconds since the system started when the library is loaded. It has one state for the process
// and no lock: of two threads that draw at the same moment both may get the same number, and a host that
// minds locks for itself.
//   n: The limit, unsigned. 0 divides by zero and faults.
//   Result The next output modulo `n`; each call draws one, also with 1.
function GetRandom(n: Cardinal): Cardinal;
  {$IFDEF WIN32} stdcall {$ELSE} cdecl {$ENDIF}; external TessaroLibrary name 'GetRandom';

// Runs a function in a thread of its own, again and again, and returns when that thread has ended.
//
// The call blocks, yielding in a loop, so `ThreadKill` has to come from another thread. The function runs at
// least once unless `ThreadKill` came before the thread did. Two threads must not call `ThreadBegin` at the
// same moment.
//   fn: What the thread calls.
//   Result 0: The thread has ended, or the system could not make one.
//   Result 1: There is a worker already; told at once. One that ended in another way than by `ThreadKill`, its
//     function having left by `ExitThread` or `pthread_exit`, still counts until `ThreadKill`.
function ThreadBegin(fn: TessaroWorker): Integer;
  {$IFDEF WIN32} stdcall {$ELSE} cdecl {$ENDIF}; external TessaroLibrary name 'ThreadBegin';

// Stops the worker after its current call, and waits until it has ended, without a time limit.
//
// Then `ThreadBegin` may be called again. Called from within the worker's function it waits for ever. Two
// threads must not call it at the same moment.
//   Result 0: The worker has ended.
//   Result 1: There is no worker.
function ThreadKill: Integer;
  {$IFDEF WIN32} stdcall {$ELSE} cdecl {$ENDIF}; external TessaroLibrary name 'ThreadKill';

// Offers the messages of a window to a function first, by giving the window a procedure of the library's.
//
// Procedures are read, set and called by the system's ANSI functions (`GetWindowLongPtrA` and its like), so
// that texts in messages are ANSI ones. A window that is hooked a second time gets a second entry whose
// previous procedure is the library's own, while its messages find the first: unhook it before hooking it
// again.
//   window: A window, an `HWND`.
//   hook: What sees the messages.
//   value: A number that `hook` is given with each message.
//   Result 0: The window is hooked.
//   Result 1: The table is full, or the window has no procedure that can be read. So it is always where there
//     are no such windows: everywhere but on Windows.
function WindowProcLoad(window: Pointer; hook: TessaroHook; value: NativeInt): Integer;
  {$IFDEF WIN32} stdcall {$ELSE} cdecl {$ENDIF}; external TessaroLibrary name 'WindowProcLoad';

// Gives a window its previous procedure back.
//   window: A window, an `HWND`.
//   Result 0: The window is unhooked.
//   Result 1: The window is not hooked.
function WindowProcUnload(window: Pointer): Integer;
  {$IFDEF WIN32} stdcall {$ELSE} cdecl {$ENDIF}; external TessaroLibrary name 'WindowProcUnload';

// A tone curve for each channel: row 0 for every pixel, columns from s.
//   dst: The image that is changed.
//   src: What is recoloured, or selects the row.
//   map: At least 256 pixels wide, of which the first 256 columns count, and one row high.
//   dx: Where the rectangle begins in `dst`.
//   dy: Where the rectangle begins in `dst`.
//   cx: The size of the rectangle.
//   cy: The size of the rectangle.
//   sx: Where the rectangle begins in the images that are read.
//   sy: Where the rectangle begins in the images that are read.
//   Result 0: Done.
//   Result 1: Clipping left nothing, or the map is too small.
function BBIMapUC(dst, src, map: PImageRecord; dx, dy, cx, cy, sx, sy: Integer): Integer;
  {$IFDEF WIN32} stdcall {$ELSE} cdecl {$ENDIF}; external TessaroLibrary name 'BBIMapUC';

// Row by the alpha of s, with the factor `(float)((H - 1) * 0.003921569f)`; columns from s.
//
// The constant is a little above 1 / 255. With 256 rows the row is the alpha.
//   dst: The image that is changed.
//   src: What is recoloured, or selects the row.
//   map: At least 256 pixels wide, of which the first 256 columns count, and one row high.
//   dx: Where the rectangle begins in `dst`.
//   dy: Where the rectangle begins in `dst`.
//   cx: The size of the rectangle.
//   cy: The size of the rectangle.
//   sx: Where the rectangle begins in the images that are read.
//   sy: Where the rectangle begins in the images that are read.
//   Result 0: Done.
//   Result 1: Clipping left nothing, or the map is too small.
function BBIMapUCVA(dst, src, map: PImageRecord; dx, dy, cx, cy, sx, sy: Integer): Integer;
  {$IFDEF WIN32} stdcall {$ELSE} cdecl {$ENDIF}; external TessaroLibrary name 'BBIMapUCVA';

// The row of BBIMapUCVA, columns from d: s only selects the row.
//   dst: The image that is changed.
//   src: What is recoloured, or selects the row.
//   map: At least 256 pixels wide, of which the first 256 columns count, and one row high.
//   dx: Where the rectangle begins in `dst`.
//   dy: Where the rectangle begins in `dst`.
//   cx: The size of the rectangle.
//   cy: The size of the rectangle.
//   sx: Where the rectangle begins in the images that are read.
//   sy: Where the rectangle begins in the images that are read.
//   Result 0: Done.
//   Result 1: Clipping left nothing, or the map is too small.
function BBIMapUDVA(dst, src, map: PImageRecord; dx, dy, cx, cy, sx, sy: Integer): Integer;
  {$IFDEF WIN32} stdcall {$ELSE} cdecl {$ENDIF}; external TessaroLibrary name 'BBIMapUDVA';

// As BBIMapUCVA, but the alpha of d stays.
//   dst: The image that is changed.
//   src: What is recoloured, or selects the row.
//   map: At least 256 x 256 pixels.
//   dx: Where the rectangle begins in `dst`.
//   dy: Where the rectangle begins in `dst`.
//   cx: The size of the rectangle.
//   cy: The size of the rectangle.
//   sx: Where the rectangle begins in the images that are read.
//   sy: Where the rectangle begins in the images that are read.
//   Result 0: Done.
//   Result 1: Clipping left nothing, or the map is too small.
function BBIMapMCUCVA(dst, src, map: PImageRecord; dx, dy, cx, cy, sx, sy: Integer): Integer;
  {$IFDEF WIN32} stdcall {$ELSE} cdecl {$ENDIF}; external TessaroLibrary name 'BBIMapMCUCVA';

// As BBIMapUDVA, but the alpha of d stays.
//   dst: The image that is changed.
//   src: What is recoloured, or selects the row.
//   map: At least 256 x 256 pixels.
//   dx: Where the rectangle begins in `dst`.
//   dy: Where the rectangle begins in `dst`.
//   cx: The size of the rectangle.
//   cy: The size of the rectangle.
//   sx: Where the rectangle begins in the images that are read.
//   sy: Where the rectangle begins in the images that are read.
//   Result 0: Done.
//   Result 1: Clipping left nothing, or the map is too small.
function BBIMapMCUDVA(dst, src, map: PImageRecord; dx, dy, cx, cy, sx, sy: Integer): Integer;
  {$IFDEF WIN32} stdcall {$ELSE} cdecl {$ENDIF}; external TessaroLibrary name 'BBIMapMCUDVA';

// Row by blue + green + red of s, with the factor `(float)((H - 1) * 0.0013071896f)`; columns from s.
//
// The constant is about 1 / 765.
//   dst: The image that is changed.
//   src: What is recoloured, or selects the row.
//   map: At least 256 pixels wide, of which the first 256 columns count, and one row high.
//   dx: Where the rectangle begins in `dst`.
//   dy: Where the rectangle begins in `dst`.
//   cx: The size of the rectangle.
//   cy: The size of the rectangle.
//   sx: Where the rectangle begins in the images that are read.
//   sy: Where the rectangle begins in the images that are read.
//   Result 0: Done.
//   Result 1: Clipping left nothing, or the map is too small.
function BBIMapUCVC(dst, src, map: PImageRecord; dx, dy, cx, cy, sx, sy: Integer): Integer;
  {$IFDEF WIN32} stdcall {$ELSE} cdecl {$ENDIF}; external TessaroLibrary name 'BBIMapUCVC';

// The row of BBIMapUCVC, columns from d.
//   dst: The image that is changed.
//   src: What is recoloured, or selects the row.
//   map: At least 256 pixels wide, of which the first 256 columns count, and one row high.
//   dx: Where the rectangle begins in `dst`.
//   dy: Where the rectangle begins in `dst`.
//   cx: The size of the rectangle.
//   cy: The size of the rectangle.
//   sx: Where the rectangle begins in the images that are read.
//   sy: Where the rectangle begins in the images that are read.
//   Result 0: Done.
//   Result 1: Clipping left nothing, or the map is too small.
function BBIMapUDVC(dst, src, map: PImageRecord; dx, dy, cx, cy, sx, sy: Integer): Integer;
  {$IFDEF WIN32} stdcall {$ELSE} cdecl {$ENDIF}; external TessaroLibrary name 'BBIMapUDVC';

// Row by the column in the clipped rectangle: in column i, `trunc(4 * i * (float)((H - 1) / (4.0 * (cx - 1))))`;
// columns from s.
//
// So the left edge has the first row of the map and the right edge the last, or the one before it, as the
// rounding of the factor goes. One pixel wide, it has row 0.
//   dst: The image that is changed.
//   src: What is recoloured, or selects the row.
//   map: At least 256 pixels wide, of which the first 256 columns count, and one row high.
//   dx: Where the rectangle begins in `dst`.
//   dy: Where the rectangle begins in `dst`.
//   cx: The size of the rectangle.
//   cy: The size of the rectangle.
//   sx: Where the rectangle begins in the images that are read.
//   sy: Where the rectangle begins in the images that are read.
//   Result 0: Done.
//   Result 1: Clipping left nothing, or the map is too small.
function BBIMapUCVX(dst, src, map: PImageRecord; dx, dy, cx, cy, sx, sy: Integer): Integer;
  {$IFDEF WIN32} stdcall {$ELSE} cdecl {$ENDIF}; external TessaroLibrary name 'BBIMapUCVX';

// The same downward: in row i of the rectangle, `trunc(i * (float)((H - 1) / (cy - 1.0)))`; one pixel high, row 0.
//   dst: The image that is changed.
//   src: What is recoloured, or selects the row.
//   map: At least 256 pixels wide, of which the first 256 columns count, and one row high.
//   dx: Where the rectangle begins in `dst`.
//   dy: Where the rectangle begins in `dst`.
//   cx: The size of the rectangle.
//   cy: The size of the rectangle.
//   sx: Where the rectangle begins in the images that are read.
//   sy: Where the rectangle begins in the images that are read.
//   Result 0: Done.
//   Result 1: Clipping left nothing, or the map is too small.
function BBIMapUCVY(dst, src, map: PImageRecord; dx, dy, cx, cy, sx, sy: Integer): Integer;
  {$IFDEF WIN32} stdcall {$ELSE} cdecl {$ENDIF}; external TessaroLibrary name 'BBIMapUCVY';

// A wipe or fade in which the incoming picture's own alpha is the stencil.
//   dst: The image that is changed.
//   outgoing: The picture that progress 0 shows.
//   incoming: The picture that progress 1 shows.
//   dx: Where the rectangle begins in `dst`.
//   dy: Where the rectangle begins in `dst`.
//   cx: The size of the rectangle.
//   cy: The size of the rectangle.
//   sx: Where the rectangle begins in the images that are read.
//   sy: Where the rectangle begins in the images that are read.
//   progress: How far the transition has gone; clamped, not a number counts as 0.
//   softness: The width of the edge.
//   unused: Counts for nothing.
//   Result 0: Done.
//   Result 1: Clipping left nothing.
function BBIStencilFlip(dst, outgoing, incoming: PImageRecord; dx, dy, cx, cy, sx, sy: Integer; progress, softness: Single; unused: Integer): Integer;
  {$IFDEF WIN32} stdcall {$ELSE} cdecl {$ENDIF}; external TessaroLibrary name 'BBIStencilFlip';

// A wipe or fade with a stencil of its own.
//   dst: The image that is changed.
//   outgoing: The picture that progress 0 shows.
//   incoming: The picture that progress 1 shows.
//   stencil: Its alpha decides.
//   dx: Where the rectangle begins in `dst`.
//   dy: Where the rectangle begins in `dst`.
//   cx: The size of the rectangle.
//   cy: The size of the rectangle.
//   sx: Where the rectangle begins in the images that are read.
//   sy: Where the rectangle begins in the images that are read.
//   progress: How far the transition has gone; clamped, not a number counts as 0.
//   softness: The width of the edge.
//   Result 0: Done.
//   Result 1: Clipping left nothing.
function BBIStencilFlipLE(dst, outgoing, incoming, stencil: PImageRecord; dx, dy, cx, cy, sx, sy: Integer; progress, softness: Single): Integer;
  {$IFDEF WIN32} stdcall {$ELSE} cdecl {$ENDIF}; external TessaroLibrary name 'BBIStencilFlipLE';

// As BBIStencilFlipLE, with the two pictures in the other order.
//   dst: The image that is changed.
//   incoming: The picture that progress 1 shows.
//   outgoing: The picture that progress 0 shows.
//   stencil: Its alpha decides.
//   dx: Where the rectangle begins in `dst`.
//   dy: Where the rectangle begins in `dst`.
//   cx: The size of the rectangle.
//   cy: The size of the rectangle.
//   sx: Where the rectangle begins in the images that are read.
//   sy: Where the rectangle begins in the images that are read.
//   progress: How far the transition has gone; clamped, not a number counts as 0.
//   softness: The width of the edge.
//   Result 0: Done.
//   Result 1: Clipping left nothing.
function BBIStencilFlipLEFix(dst, incoming, outgoing, stencil: PImageRecord; dx, dy, cx, cy, sx, sy: Integer; progress, softness: Single): Integer;
  {$IFDEF WIN32} stdcall {$ELSE} cdecl {$ENDIF}; external TessaroLibrary name 'BBIStencilFlipLEFix';

// Shifts colours up or down where the stencil, the alpha of `src`, is.
//
// d becomes mix(d, T, w): the colours of T are `min(max(d + 2 * c - 255, 0), 255)` with c the byte of
// `colour`, its alpha is 0. So 128 adds 1, 127 takes 1, 255 adds 255, 0 takes 255; and the alpha of `dst`
// falls to 0 where the stencil is opaque. w is `trunc(a * opacity * 0.003921569f * 256)` for a stencil of a,
// products from left to right.
//   dst: The image that is changed.
//   src: The stencil.
//   dx: Where the rectangle begins in `dst`.
//   dy: Where the rectangle begins in `dst`.
//   cx: The size of the rectangle.
//   cy: The size of the rectangle.
//   sx: Where the rectangle begins in the images that are read.
//   sy: Where the rectangle begins in the images that are read.
//   opacity: Clamped; not a number counts as 0.
//   colour: The shift; its alpha counts for nothing.
//   Result 0: Done.
//   Result 1: Clipping left nothing.
function BBIStencilAddsigned(dst, src: PImageRecord; dx, dy, cx, cy, sx, sy: Integer; opacity: Single; colour: Cardinal): Integer;
  {$IFDEF WIN32} stdcall {$ELSE} cdecl {$ENDIF}; external TessaroLibrary name 'BBIStencilAddsigned';

// Copies: `s`.
//   dst: The image that is changed.
//   src: The image that is read.
//   dx: Left column and top row of the rectangle in `dst`.
//   dy: Left column and top row of the rectangle in `dst`.
//   cx: Width and height of the rectangle.
//   cy: Width and height of the rectangle.
//   sx: Left column and top row of the rectangle in `src`.
//   sy: Left column and top row of the rectangle in `src`.
//   Result 0: Done.
//   Result 1: Clipping left nothing.
function BBIBlt(dst, src: PImageRecord; dx, dy, cx, cy, sx, sy: Integer): Integer;
  {$IFDEF WIN32} stdcall {$ELSE} cdecl {$ENDIF}; external TessaroLibrary name 'BBIBlt';

// Fills with a colour, all bits of it or some: `((d ^ invert_bits) & mask) | (colour & ~mask)`.
//
// A mask of 0 fills; one of 0xFFFFFFFF only inverts.
//   dst: The image that is changed.
//   dx: Left column and top row of the rectangle in `dst`.
//   dy: Left column and top row of the rectangle in `dst`.
//   cx: Width and height of the rectangle.
//   cy: Width and height of the rectangle.
//   mask: Bits that the image keeps.
//   invert_bits: Bits that are inverted first; those that `mask` has not set do not show.
//   colour: A colour.
//   Result 0: Done.
//   Result 1: Clipping left nothing.
function BBIBltColor(dst: PImageRecord; dx, dy, cx, cy: Integer; mask, invert_bits, colour: Cardinal): Integer;
  {$IFDEF WIN32} stdcall {$ELSE} cdecl {$ENDIF}; external TessaroLibrary name 'BBIBltColor';

// Mixes a colour into a rectangle, with the weight `trunc(factor * 256)`.
//   dst: The image that is changed.
//   dx: Left column and top row of the rectangle in `dst`.
//   dy: Left column and top row of the rectangle in `dst`.
//   cx: Width and height of the rectangle.
//   cy: Width and height of the rectangle.
//   colour: A colour.
//   factor: How much of the colour: 1 and above fill.
//   Result 0: Done.
//   Result 1: Clipping left nothing, or the factor is negative or not a number.
function BBIBltColorBlend(dst: PImageRecord; dx, dy, cx, cy: Integer; colour: Cardinal; factor: Single): Integer;
  {$IFDEF WIN32} stdcall {$ELSE} cdecl {$ENDIF}; external TessaroLibrary name 'BBIBltColorBlend';

// Combines alphas and keeps the colours of `dst`.
//
// With `da` the alpha of `d` and `a` that of `s`, these act if their flags are on, in this order, the reverse
// of that of the arguments:
//
// 1. `subtract_from_dest`: `a = da - a`
// 2. `invert`: `a = 255 - a`
// 3. `min_with_dest`: `a = min(a, da)`
// 4. `max_with_dest`: `a = max(a, da)`
//
// The low eight bits of `a` are stored: what lies outside 0 to 255 wraps (10 - 20 gives 246). With the last
// two on `da` stays.
//   dst: The image that is changed.
//   src: The image that is read.
//   dx: Left column and top row of the rectangle in `dst`.
//   dy: Left column and top row of the rectangle in `dst`.
//   cx: Width and height of the rectangle.
//   cy: Width and height of the rectangle.
//   sx: Left column and top row of the rectangle in `src`.
//   sy: Left column and top row of the rectangle in `src`.
//   max_with_dest: Step 4.
//   min_with_dest: Step 3.
//   invert: Step 2.
//   subtract_from_dest: Step 1.
//   Result 0: Done.
//   Result 1: Clipping left nothing.
function BBIBltAlpha(dst, src: PImageRecord; dx, dy, cx, cy, sx, sy, max_with_dest, min_with_dest, invert, subtract_from_dest: Integer): Integer;
  {$IFDEF WIN32} stdcall {$ELSE} cdecl {$ENDIF}; external TessaroLibrary name 'BBIBltAlpha';

// Adds: `min(d + s, 255)`.
//   dst: The image that is changed.
//   src: The image that is read.
//   dx: Left column and top row of the rectangle in `dst`.
//   dy: Left column and top row of the rectangle in `dst`.
//   cx: Width and height of the rectangle.
//   cy: Width and height of the rectangle.
//   sx: Left column and top row of the rectangle in `src`.
//   sy: Left column and top row of the rectangle in `src`.
//   Result 0: Done.
//   Result 1: Clipping left nothing.
function BBIBltAdd(dst, src: PImageRecord; dx, dy, cx, cy, sx, sy: Integer): Integer;
  {$IFDEF WIN32} stdcall {$ELSE} cdecl {$ENDIF}; external TessaroLibrary name 'BBIBltAdd';

// Multiplies: `(d * s + 255) >> 8`.
//   dst: The image that is changed.
//   src: The image that is read.
//   dx: Left column and top row of the rectangle in `dst`.
//   dy: Left column and top row of the rectangle in `dst`.
//   cx: Width and height of the rectangle.
//   cy: Width and height of the rectangle.
//   sx: Left column and top row of the rectangle in `src`.
//   sy: Left column and top row of the rectangle in `src`.
//   Result 0: Done.
//   Result 1: Clipping left nothing.
function BBIBltMul(dst, src: PImageRecord; dx, dy, cx, cy, sx, sy: Integer): Integer;
  {$IFDEF WIN32} stdcall {$ELSE} cdecl {$ENDIF}; external TessaroLibrary name 'BBIBltMul';

// Subtracts: `max(d - s, 0)`.
//   dst: The image that is changed.
//   src: The image that is read.
//   dx: Left column and top row of the rectangle in `dst`.
//   dy: Left column and top row of the rectangle in `dst`.
//   cx: Width and height of the rectangle.
//   cy: Width and height of the rectangle.
//   sx: Left column and top row of the rectangle in `src`.
//   sy: Left column and top row of the rectangle in `src`.
//   Result 0: Done.
//   Result 1: Clipping left nothing.
function BBIBltSub(dst, src: PImageRecord; dx, dy, cx, cy, sx, sy: Integer): Integer;
  {$IFDEF WIN32} stdcall {$ELSE} cdecl {$ENDIF}; external TessaroLibrary name 'BBIBltSub';

// Takes the difference: `abs(d - s)`, despite the name no exclusive-or.
//   dst: The image that is changed.
//   src: The image that is read.
//   dx: Left column and top row of the rectangle in `dst`.
//   dy: Left column and top row of the rectangle in `dst`.
//   cx: Width and height of the rectangle.
//   cy: Width and height of the rectangle.
//   sx: Left column and top row of the rectangle in `src`.
//   sy: Left column and top row of the rectangle in `src`.
//   Result 0: Done.
//   Result 1: Clipping left nothing.
function BBIBltXor(dst, src: PImageRecord; dx, dy, cx, cy, sx, sy: Integer): Integer;
  {$IFDEF WIN32} stdcall {$ELSE} cdecl {$ENDIF}; external TessaroLibrary name 'BBIBltXor';

// Takes the signed difference: `(d - s + 128) & 255`, which `BBIBltXor3` with the same source undoes.
//   dst: The image that is changed.
//   src: The image that is read.
//   dx: Left column and top row of the rectangle in `dst`.
//   dy: Left column and top row of the rectangle in `dst`.
//   cx: Width and height of the rectangle.
//   cy: Width and height of the rectangle.
//   sx: Left column and top row of the rectangle in `src`.
//   sy: Left column and top row of the rectangle in `src`.
//   Result 0: Done.
//   Result 1: Clipping left nothing.
function BBIBltXor2(dst, src: PImageRecord; dx, dy, cx, cy, sx, sy: Integer): Integer;
  {$IFDEF WIN32} stdcall {$ELSE} cdecl {$ENDIF}; external TessaroLibrary name 'BBIBltXor2';

// Adds a signed difference: `(d + s - 128) & 255`.
//   dst: The image that is changed.
//   src: The image that is read.
//   dx: Left column and top row of the rectangle in `dst`.
//   dy: Left column and top row of the rectangle in `dst`.
//   cx: Width and height of the rectangle.
//   cy: Width and height of the rectangle.
//   sx: Left column and top row of the rectangle in `src`.
//   sy: Left column and top row of the rectangle in `src`.
//   Result 0: Done.
//   Result 1: Clipping left nothing.
function BBIBltXor3(dst, src: PImageRecord; dx, dy, cx, cy, sx, sy: Integer): Integer;
  {$IFDEF WIN32} stdcall {$ELSE} cdecl {$ENDIF}; external TessaroLibrary name 'BBIBltXor3';

// Copies inverted: `255 - s`, alpha too.
//   dst: The image that is changed.
//   src: The image that is read.
//   dx: Left column and top row of the rectangle in `dst`.
//   dy: Left column and top row of the rectangle in `dst`.
//   cx: Width and height of the rectangle.
//   cy: Width and height of the rectangle.
//   sx: Left column and top row of the rectangle in `src`.
//   sy: Left column and top row of the rectangle in `src`.
//   Result 0: Done.
//   Result 1: Clipping left nothing.
function BBIBltNot(dst, src: PImageRecord; dx, dy, cx, cy, sx, sy: Integer): Integer;
  {$IFDEF WIN32} stdcall {$ELSE} cdecl {$ENDIF}; external TessaroLibrary name 'BBIBltNot';

// Takes the darker: `min(d, s)`.
//   dst: The image that is changed.
//   src: The image that is read.
//   dx: Left column and top row of the rectangle in `dst`.
//   dy: Left column and top row of the rectangle in `dst`.
//   cx: Width and height of the rectangle.
//   cy: Width and height of the rectangle.
//   sx: Left column and top row of the rectangle in `src`.
//   sy: Left column and top row of the rectangle in `src`.
//   Result 0: Done.
//   Result 1: Clipping left nothing.
function BBIBltMin(dst, src: PImageRecord; dx, dy, cx, cy, sx, sy: Integer): Integer;
  {$IFDEF WIN32} stdcall {$ELSE} cdecl {$ENDIF}; external TessaroLibrary name 'BBIBltMin';

// Takes the brighter: `max(d, s)`.
//   dst: The image that is changed.
//   src: The image that is read.
//   dx: Left column and top row of the rectangle in `dst`.
//   dy: Left column and top row of the rectangle in `dst`.
//   cx: Width and height of the rectangle.
//   cy: Width and height of the rectangle.
//   sx: Left column and top row of the rectangle in `src`.
//   sy: Left column and top row of the rectangle in `src`.
//   Result 0: Done.
//   Result 1: Clipping left nothing.
function BBIBltMax(dst, src: PImageRecord; dx, dy, cx, cy, sx, sy: Integer): Integer;
  {$IFDEF WIN32} stdcall {$ELSE} cdecl {$ENDIF}; external TessaroLibrary name 'BBIBltMax';

// Copies all pixels but those that equal a key.
//
// The key is the word at column 0, row 0 of the source image, wherever the rectangle lies, read once before
// the first pixel is written. Whole words are compared, alpha included.
//   dst: The image that is changed.
//   src: The image that is read.
//   dx: Left column and top row of the rectangle in `dst`.
//   dy: Left column and top row of the rectangle in `dst`.
//   cx: Width and height of the rectangle.
//   cy: Width and height of the rectangle.
//   sx: Left column and top row of the rectangle in `src`.
//   sy: Left column and top row of the rectangle in `src`.
//   Result 0: Done.
//   Result 1: Clipping left nothing.
function BBIBltKeying(dst, src: PImageRecord; dx, dy, cx, cy, sx, sy: Integer): Integer;
  {$IFDEF WIN32} stdcall {$ELSE} cdecl {$ENDIF}; external TessaroLibrary name 'BBIBltKeying';

// Cross-fades: a mix with the weight `level`, of all pixels or of all but those that equal a key.
//
// At 255 and above it is `BBIBlt`, with `keyed` on `BBIBltKeying`. At 0 and below nothing changes; the result
// is 0, or 1 where clipping leaves nothing.
//   dst: The image that is changed.
//   src: The image that is read.
//   dx: Left column and top row of the rectangle in `dst`.
//   dy: Left column and top row of the rectangle in `dst`.
//   cx: Width and height of the rectangle.
//   cy: Width and height of the rectangle.
//   sx: Left column and top row of the rectangle in `src`.
//   sy: Left column and top row of the rectangle in `src`.
//   keyed: Whether pixels that equal the key of `BBIBltKeying` are left out.
//   level: How much of the source.
//   Result 0: Done.
//   Result 1: Clipping left nothing.
function BBIBltKeyingFX(dst, src: PImageRecord; dx, dy, cx, cy, sx, sy, keyed, level: Integer): Integer;
  {$IFDEF WIN32} stdcall {$ELSE} cdecl {$ENDIF}; external TessaroLibrary name 'BBIBltKeyingFX';

// Mixes a source in by its own alpha `a`, in one of two ways.
//
// - `whole` off: 0 keeps `d`, 255 gives `s`, between them `(s * a + d * (255 - a)) >> 8`, which darkens a
//   little.
// - `whole` on: a mix with the weight `a * 256 / 255`, which does not; a byte may be greater by one or two.
//   dst: The image that is changed.
//   src: The image that is read.
//   dx: Left column and top row of the rectangle in `dst`.
//   dy: Left column and top row of the rectangle in `dst`.
//   cx: Width and height of the rectangle.
//   cy: Width and height of the rectangle.
//   sx: Left column and top row of the rectangle in `src`.
//   sy: Left column and top row of the rectangle in `src`.
//   whole: Whether weights add up to 256.
//   Result 0: Done.
//   Result 1: Clipping left nothing.
function BBIBltBlend(dst, src: PImageRecord; dx, dy, cx, cy, sx, sy, whole: Integer): Integer;
  {$IFDEF WIN32} stdcall {$ELSE} cdecl {$ENDIF}; external TessaroLibrary name 'BBIBltBlend';

// Mixes half and half: `(s >> 1) + (d >> 1)`, where two odd bytes lose one.
//   dst: The image that is changed.
//   src: The image that is read.
//   dx: Left column and top row of the rectangle in `dst`.
//   dy: Left column and top row of the rectangle in `dst`.
//   cx: Width and height of the rectangle.
//   cy: Width and height of the rectangle.
//   sx: Left column and top row of the rectangle in `src`.
//   sy: Left column and top row of the rectangle in `src`.
//   Result 0: Done.
//   Result 1: Clipping left nothing.
function BBIBltHalfBlend(dst, src: PImageRecord; dx, dy, cx, cy, sx, sy: Integer): Integer;
  {$IFDEF WIN32} stdcall {$ELSE} cdecl {$ENDIF}; external TessaroLibrary name 'BBIBltHalfBlend';

// Shows alpha as grey: all four bytes become the alpha of `s`.
//   dst: The image that is changed.
//   src: The image that is read.
//   dx: Left column and top row of the rectangle in `dst`.
//   dy: Left column and top row of the rectangle in `dst`.
//   cx: Width and height of the rectangle.
//   cy: Width and height of the rectangle.
//   sx: Left column and top row of the rectangle in `src`.
//   sy: Left column and top row of the rectangle in `src`.
//   Result 0: Done.
//   Result 1: Clipping left nothing.
function BBIBltShiftAlpha(dst, src: PImageRecord; dx, dy, cx, cy, sx, sy: Integer): Integer;
  {$IFDEF WIN32} stdcall {$ELSE} cdecl {$ENDIF}; external TessaroLibrary name 'BBIBltShiftAlpha';

// Marks pixels: where the whole word `s` is above 128, `(~d & 0x007FC0C0) | 0x00800000`, elsewhere `d`.
//   dst: The image that is changed.
//   src: The image that is read.
//   dx: Left column and top row of the rectangle in `dst`.
//   dy: Left column and top row of the rectangle in `dst`.
//   cx: Width and height of the rectangle.
//   cy: Width and height of the rectangle.
//   sx: Left column and top row of the rectangle in `src`.
//   sy: Left column and top row of the rectangle in `src`.
//   Result 0: Done.
//   Result 1: Clipping left nothing.
function BBIBltShiftBlock(dst, src: PImageRecord; dx, dy, cx, cy, sx, sy: Integer): Integer;
  {$IFDEF WIN32} stdcall {$ELSE} cdecl {$ENDIF}; external TessaroLibrary name 'BBIBltShiftBlock';

// Fills an image from a bottom-up bitmap of one bit a pixel.
//
// Row y of the image (0 is the top) comes from `bits + (height - 1 - y) * stride`, here and in the three
// functions below. An image without pixels is left alone. Each row starts with a new byte, the first of eight
// pixels in its highest bit; a byte is read once for its eight pixels.
//   image: The image that is filled.
//   bits: The bottom row. At least abs(stride) * (image.height - 1) + ceil_div(image.width, 8) bytes.
//   palette: The colours of a 0 and a 1. At least 2 words.
//   stride: From the start of a row to that of the row above it; may be 0 or negative.
//   Result 0: Always.
function BBIBltTo32from1(image: PImageRecord; bits: Pointer; palette: PCardinal; stride: Integer): Integer;
  {$IFDEF WIN32} stdcall {$ELSE} cdecl {$ENDIF}; external TessaroLibrary name 'BBIBltTo32from1';

// Fills an image from a bottom-up bitmap of one byte a pixel, the number of a colour.
//   image: The image that is filled.
//   bits: The bottom row. At least abs(stride) * (image.height - 1) + image.width bytes.
//   palette: The colours. At least 256 words.
//   stride: From the start of a row to that of the row above it; may be 0 or negative.
//   Result 0: Always.
function BBIBltTo32from8(image: PImageRecord; bits: Pointer; palette: PCardinal; stride: Integer): Integer;
  {$IFDEF WIN32} stdcall {$ELSE} cdecl {$ENDIF}; external TessaroLibrary name 'BBIBltTo32from8';

// Fills an image from a bottom-up bitmap of blue, green and red; alpha becomes 0.
//   image: The image that is filled.
//   bits: The bottom row. At least abs(stride) * (image.height - 1) + 3 * image.width bytes.
//   stride: From the start of a row to that of the row above it; may be 0 or negative.
//   Result 0: Always.
function BBIBltTo32from24(image: PImageRecord; bits: Pointer; stride: Integer): Integer;
  {$IFDEF WIN32} stdcall {$ELSE} cdecl {$ENDIF}; external TessaroLibrary name 'BBIBltTo32from24';

// Fills an image from a bottom-up bitmap of whole words, alpha included.
//   image: The image that is filled.
//   bits: The bottom row. At least abs(stride) * (image.height - 1) + 4 * image.width bytes.
//   stride: From the start of a row to that of the row above it; may be 0 or negative.
//   Result 0: Always.
function BBIBltTo32from32(image: PImageRecord; bits: Pointer; stride: Integer): Integer;
  {$IFDEF WIN32} stdcall {$ELSE} cdecl {$ENDIF}; external TessaroLibrary name 'BBIBltTo32from32';

// Unpacks pixels of a format.
//   dst: The pixels. At least count words.
//   src: The packed pixels. At least count * bytes_of(format) bytes.
//   count: How many.
//   format: How the pixels are packed.
//   Result 0: Always; an unknown format does nothing.
function BBIBltToBBIGet(dst: PCardinal; src: Pointer; count, format: Integer): Integer;
  {$IFDEF WIN32} stdcall {$ELSE} cdecl {$ENDIF}; external TessaroLibrary name 'BBIBltToBBIGet';

// Packs pixels as 888.
//   dst: The packed pixels. At least 3 * count bytes.
//   src: The pixels. At least count words.
//   count: How many.
//   Result 0: Always.
function BBIBltTo24As888(dst: Pointer; src: PCardinal; count: Integer): Integer;
  {$IFDEF WIN32} stdcall {$ELSE} cdecl {$ENDIF}; external TessaroLibrary name 'BBIBltTo24As888';

// Packs pixels as 4444, alpha included.
//   dst: The packed pixels. At least count halfwords.
//   src: The pixels. At least count words.
//   count: How many.
//   Result 0: Always.
function BBIBltTo16As444(dst: Pointer; src: PCardinal; count: Integer): Integer;
  {$IFDEF WIN32} stdcall {$ELSE} cdecl {$ENDIF}; external TessaroLibrary name 'BBIBltTo16As444';

// Packs pixels as 565.
//   dst: The packed pixels. At least count halfwords.
//   src: The pixels. At least count words.
//   count: How many.
//   Result 0: Always.
function BBIBltTo16As565(dst: Pointer; src: PCardinal; count: Integer): Integer;
  {$IFDEF WIN32} stdcall {$ELSE} cdecl {$ENDIF}; external TessaroLibrary name 'BBIBltTo16As565';

// Packs pixels as 555.
//   dst: The packed pixels. At least count halfwords.
//   src: The pixels. At least count words.
//   count: How many.
//   Result 0: Always.
function BBIBltTo16As555(dst: Pointer; src: PCardinal; count: Integer): Integer;
  {$IFDEF WIN32} stdcall {$ELSE} cdecl {$ENDIF}; external TessaroLibrary name 'BBIBltTo16As555';

// Packs pixels as 1555.
//   dst: The packed pixels. At least count halfwords.
//   src: The pixels. At least count words.
//   count: How many.
//   Result 0: Always.
function BBIBltTo16As1555(dst: Pointer; src: PCardinal; count: Integer): Integer;
  {$IFDEF WIN32} stdcall {$ELSE} cdecl {$ENDIF}; external TessaroLibrary name 'BBIBltTo16As1555';

// Takes the blue byte of each pixel: the grey of a grey picture; no luminance is formed.
//   dst: A byte a pixel. At least count bytes.
//   src: The pixels. At least count words.
//   count: How many.
//   Result 0: Always.
function BBIBltTo8AsGray(dst: Pointer; src: PCardinal; count: Integer): Integer;
  {$IFDEF WIN32} stdcall {$ELSE} cdecl {$ENDIF}; external TessaroLibrary name 'BBIBltTo8AsGray';

// Takes the alpha of each pixel.
//   dst: A byte a pixel. At least count bytes.
//   src: The pixels. At least count words.
//   count: How many.
//   Result 0: Always.
function BBIBltTo8AsAlpha(dst: Pointer; src: PCardinal; count: Integer): Integer;
  {$IFDEF WIN32} stdcall {$ELSE} cdecl {$ENDIF}; external TessaroLibrary name 'BBIBltTo8AsAlpha';

// Packs one bit a pixel, 1 where the blue byte is at least 128.
//
// A byte is written when its pixels have been read, the first of eight in its highest bit; bits of the last
// byte that belong to no pixel are 0.
//   dst: The bits. At least ceil_div(count, 8) bytes.
//   src: The pixels. At least count words.
//   count: How many.
//   Result 0: Always.
function BBIBltTo1(dst: Pointer; src: PCardinal; count: Integer): Integer;
  {$IFDEF WIN32} stdcall {$ELSE} cdecl {$ENDIF}; external TessaroLibrary name 'BBIBltTo1';

// Mixes pixels with a colour and packs them: factor 1 keeps the pixel, 0 gives the colour.
//   dst: The packed pixels. At least count * bytes_of(format) bytes.
//   src: The pixels. At least count words.
//   count: How many.
//   format: How the pixels are packed.
//   colour: What is mixed in where the factor is below 1.
//   factor: The weight of the pixel: negative, or not a number, counts as 0, above 1 as 1.
//   Result 0: Always; an unknown format does nothing.
function BBIBltToX(dst: Pointer; src: PCardinal; count, format: Integer; colour: Cardinal; factor: Single): Integer;
  {$IFDEF WIN32} stdcall {$ELSE} cdecl {$ENDIF}; external TessaroLibrary name 'BBIBltToX';

// Mixes two runs of pixels and packs the result: factor 0 gives those of `a`, 1 those of `b`.
//   dst: The packed pixels. At least count * bytes_of(format) bytes.
//   a: The pixels with the weight `256 - k`. At least count words.
//   b: The pixels with the weight `k`. At least count words.
//   count: How many.
//   format: How the pixels are packed.
//   factor: How much of `b`: negative, or not a number, counts as 0, above 1 as 1.
//   Result 0: Done.
//   Result 1: The format is unknown, whatever the count.
function BBIBltToXF(dst: Pointer; a, b: PCardinal; count, format: Integer; factor: Single): Integer;
  {$IFDEF WIN32} stdcall {$ELSE} cdecl {$ENDIF}; external TessaroLibrary name 'BBIBltToXF';

// Changes saturation, looks levels up, mixes with a colour and packs.
//
// Each pixel in this order, its alpha untouched by the first two steps:
//
// 1. Unless the saturation is exactly 1: with `m = trunc(saturation * 1024)` and `t = (1024 - m) / 3`,
//   truncated toward zero, each colour byte c becomes `(c * m >> 10) + ((B + G + R) * t >> 10)`, kept within
//   0 to 255. At 0 that is a grey a little below the mean.
// 2. With `use_table` on: B, G and R become `table[B]`, `table[256 + G]` and `table[512 + R]`.
// 3. The mix with the colour, and the packing, as by `BBIBltToX`.
//   dst: The packed pixels. At least count * bytes_of(format) bytes.
//   src: The pixels. At least count words.
//   count: How many.
//   format: How the pixels are packed.
//   colour: What is mixed in where the factor is below 1.
//   factor: The weight of the pixel: negative, or not a number, counts as 0, above 1 as 1.
//   saturation: Negative, or not a number, counts as 0, above 256 as 256.
//   use_table: Whether levels are looked up.
//   table: Tables for blue, green and red, 256 bytes each; only read with `use_table` on. At least 768 bytes.
//   Result 0: Done.
//   Result 1: The format is unknown, whatever the count.
function BBIBltToF(dst: Pointer; src: PCardinal; count, format: Integer; colour: Cardinal; factor, saturation: Single; use_table: Integer; table: Pointer): Integer;
  {$IFDEF WIN32} stdcall {$ELSE} cdecl {$ENDIF}; external TessaroLibrary name 'BBIBltToF';

// Compares two images, or tests the first.
//
// Both have to be images in every mode: their sizes are compared first, also where only the pixels of `a` are
// read.
//   a: The images that are compared.
//   b: The images that are compared.
//   mode: What is tested.
//   Result 0: The test holds for every pixel, or the images have no rows.
//   Result 1: It fails for one, or the sizes differ.
//   Result 2: The mode is unknown, and the images are of one size and have rows.
function BBICompare(a, b: PImageRecord; mode: Integer): Integer;
  {$IFDEF WIN32} stdcall {$ELSE} cdecl {$ENDIF}; external TessaroLibrary name 'BBICompare';

// Counts pixels that differ, but not by much in every byte.
//
// With `p` and `q` the pixels of both images under the mask, a pixel counts if `p` is not `q` and at least
// one of the four bytes differs by no more than the tolerance. Bytes that are equal or masked away differ by
// 0: so with a byte masked away all pixels that differ count; pixels that differ by more in all four bytes do
// not.
//   a: The images that are compared.
//   b: The images that are compared.
//   mask: The bits that are compared.
//   tolerance: Kept within these limits.
//   Result The number of such pixels; 0 for images without pixels.
//   Result -1: The sizes differ.
function BBICompareAny(a, b: PImageRecord; mask: Cardinal; tolerance: Integer): Integer;
  {$IFDEF WIN32} stdcall {$ELSE} cdecl {$ENDIF}; external TessaroLibrary name 'BBICompareAny';

// Counts the different colours of an image, alpha aside.
//   image: The image that is read.
//   reserved: Has to be 0.
//   Result The number of colours; 0 also if `reserved` is not 0, or if working memory (at most 2 MiB) cannot be
//     had.
function BBIColorCount(image: PImageRecord; reserved: Integer): Integer;
  {$IFDEF WIN32} stdcall {$ELSE} cdecl {$ENDIF}; external TessaroLibrary name 'BBIColorCount';

// Collects the colours of an image into a palette, and replaces each pixel's alpha by the number of its colour
// there.
//
// Colours are collected in order of appearance, with alpha 0, until the palette is full; pixels whose colour
// found no room get an alpha of 0. Entries of the palette that no colour takes are left alone.
//   image: The image that is changed.
//   palette: The colours. At least max words.
//   max: The room in the palette; otherwise nothing is done and 0 returned.
//   Result The colours collected, plus the pixels whose colour found no room: above `max` the palette was too
//     small. 0 for an image without pixels.
function BBIColorPalette(image: PImageRecord; palette: PCardinal; max: Integer): Integer;
  {$IFDEF WIN32} stdcall {$ELSE} cdecl {$ENDIF}; external TessaroLibrary name 'BBIColorPalette';

// Finds the smallest rectangle around all content, that is pixels with `(pixel & mask) != key`.
//
// It is told by its first column and row and its size (`BBIPaint` tells last column and row); without content
// it is 0, 0, 1, 1.
//   image: The image that is read.
//   reserved: Has to be 0.
//   mask: The bits of a pixel that are compared. Bits of `key` that it has not set make every pixel content.
//   key: What is no content.
//   left: The first column. At least 1 words.
//   top: The first row. At least 1 words.
//   cx: The number of columns. At least 1 words.
//   cy: The number of rows. At least 1 words.
//   Result 0: Done.
//   Result 1: `reserved` is not 0.
function BBITrim(image: PImageRecord; reserved: Integer; mask, key: Cardinal; left, top, cx, cy: PInteger): Integer;
  {$IFDEF WIN32} stdcall {$ELSE} cdecl {$ENDIF}; external TessaroLibrary name 'BBITrim';

// Fills an image.
//   image: The image that is changed.
//   red: The bytes of a colour; below 0 counts as 0, above 255 as 255.
//   green: The bytes of a colour; below 0 counts as 0, above 255 as 255.
//   blue: The bytes of a colour; below 0 counts as 0, above 255 as 255.
//   alpha: The bytes of a colour; below 0 counts as 0, above 255 as 255.
//   Result 0: Done.
//   Result 1: The image has no pixels.
function BBIClear(image: PImageRecord; red, green, blue, alpha: Integer): Integer;
  {$IFDEF WIN32} stdcall {$ELSE} cdecl {$ENDIF}; external TessaroLibrary name 'BBIClear';

// Fills an image and keeps its alpha.
//   image: The image that is changed.
//   red: The bytes of a colour; below 0 counts as 0, above 255 as 255.
//   green: The bytes of a colour; below 0 counts as 0, above 255 as 255.
//   blue: The bytes of a colour; below 0 counts as 0, above 255 as 255.
//   Result 0: Done.
//   Result 1: The image has no pixels.
function BBIClearRGB(image: PImageRecord; red, green, blue: Integer): Integer;
  {$IFDEF WIN32} stdcall {$ELSE} cdecl {$ENDIF}; external TessaroLibrary name 'BBIClearRGB';

// Fills some bits of an image: `(pixel & mask) | (colour & ~mask)`.
//   image: The image that is changed.
//   red: The bytes of a colour; below 0 counts as 0, above 255 as 255.
//   green: The bytes of a colour; below 0 counts as 0, above 255 as 255.
//   blue: The bytes of a colour; below 0 counts as 0, above 255 as 255.
//   alpha: The bytes of a colour; below 0 counts as 0, above 255 as 255.
//   mask: The bits that the image keeps.
//   Result 0: Done.
//   Result 1: The image has no pixels.
function BBIClearMask(image: PImageRecord; red, green, blue, alpha: Integer; mask: Cardinal): Integer;
  {$IFDEF WIN32} stdcall {$ELSE} cdecl {$ENDIF}; external TessaroLibrary name 'BBIClearMask';

// Mirrors an image in place, left to right.
//   image: The image that is changed.
//   Result 0: Done.
//   Result 1: The image has no pixels.
function BBIMirror(image: PImageRecord): Integer;
  {$IFDEF WIN32} stdcall {$ELSE} cdecl {$ENDIF}; external TessaroLibrary name 'BBIMirror';

// Mirrors an image in place, top to bottom.
//   image: The image that is changed.
//   Result 0: Done.
//   Result 1: The image has no pixels.
function BBIVMirror(image: PImageRecord): Integer;
  {$IFDEF WIN32} stdcall {$ELSE} cdecl {$ENDIF}; external TessaroLibrary name 'BBIVMirror';

// Turns an image into another.
//
// The two must not share pixels: what `dst` holds afterwards is undefined if they do.
//   dst: The turned image, of the size of `src`, with width and height exchanged for a quarter.
//   src: The image that is read.
//   mode: Which turn.
//   Result 0: Done; also, without anything done, for any other mode, whatever the sizes, and for images without
//     pixels whose sizes fit.
//   Result 1: The sizes do not fit.
function BBIRotation(dst, src: PImageRecord; mode: Integer): Integer;
  {$IFDEF WIN32} stdcall {$ELSE} cdecl {$ENDIF}; external TessaroLibrary name 'BBIRotation';

// Makes a colour transparent and all others opaque.
//
// Alpha becomes 0 for pixels of the key's colour and 255 for all others; alphas are not compared.
//   image: The image that is changed.
//   key: The colour; its alpha does not count.
//   Result 0: Done.
//   Result 1: The image has no pixels.
function BBIKeying(image: PImageRecord; key: Cardinal): Integer;
  {$IFDEF WIN32} stdcall {$ELSE} cdecl {$ENDIF}; external TessaroLibrary name 'BBIKeying';

// Gives transparent pixels the colour of their neighbours, so that the edges of a keyed picture stay clean when it
// is scaled.
//
// A pixel with alpha 0 gets the mean of blue, of green and of red, truncated, of those of its neighbours
// left, right, above and below whose alpha is not 0; its alpha stays 0. Without such a neighbour it stays as
// it is.
//   image: The image that is changed.
//   Result 0: Done.
//   Result 1: The image has no pixels.
function BBIKeyingFilter(image: PImageRecord): Integer;
  {$IFDEF WIN32} stdcall {$ELSE} cdecl {$ENDIF}; external TessaroLibrary name 'BBIKeyingFilter';

// Does nothing.
//   a: Not looked at.
//   b: Not looked at.
//   c: Not looked at.
//   Result 0: Always.
function BBIAntiAreas(a, b, c: Integer): Integer;
  {$IFDEF WIN32} stdcall {$ELSE} cdecl {$ENDIF}; external TessaroLibrary name 'BBIAntiAreas';

// Fills an area: the pixel at a place and all that are connected to it through their four neighbours and equal it
// in all 32 bits.
//
// It tells the rectangle filled by its first and last column and row (`BBITrim` tells a size).
//   image: The image that is changed.
//   x: The column of a pixel of the area.
//   y: Its row.
//   colour: What the area takes.
//   left: The first column. At least 1 words.
//   top: The first row. At least 1 words.
//   right: The last column. At least 1 words.
//   bottom: The last row. At least 1 words.
//   Result 0: Done.
//   Result 1: The place lies outside or has the colour already, or working memory cannot be had: at most `6 *
//     height * ((width + 1) / 2)` bytes, of which only what the fill needs is touched.
function BBIPaint(image: PImageRecord; x, y: Integer; colour: Cardinal; left, top, right, bottom: PInteger): Integer;
  {$IFDEF WIN32} stdcall {$ELSE} cdecl {$ENDIF}; external TessaroLibrary name 'BBIPaint';

// Gives a source the brightness of what it covers.
//
// With the brightness `(B + G + R + 1) / 3`, each colour becomes `s` plus the brightness of `d` less that of
// `s`, kept within 0 to 255. The alpha of `d` stays.
//   dst: The image that is changed.
//   src: The image that is read.
//   dx: Left column and top row of the rectangle in `dst`.
//   dy: Left column and top row of the rectangle in `dst`.
//   cx: Width and height of the rectangle.
//   cy: Width and height of the rectangle.
//   sx: Left column and top row of the rectangle in `src`.
//   sy: Left column and top row of the rectangle in `src`.
//   Result 0: Done.
//   Result 1: Clipping left nothing.
function BBIBltTone(dst, src: PImageRecord; dx, dy, cx, cy, sx, sy: Integer): Integer;
  {$IFDEF WIN32} stdcall {$ELSE} cdecl {$ENDIF}; external TessaroLibrary name 'BBIBltTone';

// Mixes a source in the more, the closer its colour is to what it covers, compared at equal brightness.
//
// With the brightness `(B + G + R) / 3`, `e = d - s` plus the brightness of `s` less that of `d` for each
// colour, and `distance` the square root of the sum of the three squares of `e`, truncated, all four bytes
// are mixed with the weight `trunc(256 - distance * factor)`, formed in double precision and kept within 0 to
// 256; 0 if it is not a number.
//   dst: The image that is changed.
//   src: The image that is read.
//   dx: Left column and top row of the rectangle in `dst`.
//   dy: Left column and top row of the rectangle in `dst`.
//   cx: Width and height of the rectangle.
//   cy: Width and height of the rectangle.
//   sx: Left column and top row of the rectangle in `src`.
//   sy: Left column and top row of the rectangle in `src`.
//   factor: How fast the weight falls: at 1 it is 0 at a distance of 256. 0 and below copy.
//   Result 0: Done.
//   Result 1: Clipping left nothing.
function BBIBltToneWB(dst, src: PImageRecord; dx, dy, cx, cy, sx, sy: Integer; factor: Single): Integer;
  {$IFDEF WIN32} stdcall {$ELSE} cdecl {$ENDIF}; external TessaroLibrary name 'BBIBltToneWB';

// Lays a source over a destination that may itself be partly transparent.
//
// With `a` the alpha of `s` and `da` that of `d`, the first of these that applies:
//
// 1. `a` is 0: `d` stays.
// 2. `a` is 255, or `da` is 0: `s` replaces it, whatever the opacity.
// 3. The colours are mixed with the weight `trunc(a * opacity * 0.003921569f * 256)`, formed in double
//   precision from the two floats (the constant is a little above 1 / 255); the alpha becomes
//   `da + (255 - da) * a / 255`.
//   dst: The image that is changed.
//   src: The image that is read.
//   dx: Left column and top row of the rectangle in `dst`.
//   dy: Left column and top row of the rectangle in `dst`.
//   cx: Width and height of the rectangle.
//   cy: Width and height of the rectangle.
//   sx: Left column and top row of the rectangle in `src`.
//   sy: Left column and top row of the rectangle in `src`.
//   opacity: Weakens the partly transparent pixels of the source; above 1 counts as 1.
//   Result 0: Done.
//   Result 1: Clipping left nothing, or the opacity is negative or not a number.
function BBIBltTrueBlend(dst, src: PImageRecord; dx, dy, cx, cy, sx, sy: Integer; opacity: Single): Integer;
  {$IFDEF WIN32} stdcall {$ELSE} cdecl {$ENDIF}; external TessaroLibrary name 'BBIBltTrueBlend';

// Stretches the levels of each channel, blue by the bounds of red and red by those of blue.
//
// The crossing does not show where the two have the same histogram.
//   image: The image.
//   threshold: How many pixels at either end are given up; a negative one makes the bounds 0 and 255.
//   Result 0: Done.
//   Result 1: The image has no pixels.
function BBIAutoLevelRGB(image: PImageRecord; threshold: Integer): Integer;
  {$IFDEF WIN32} stdcall {$ELSE} cdecl {$ENDIF}; external TessaroLibrary name 'BBIAutoLevelRGB';

// Stretches the levels of each channel by the mean bounds of the two others.
//   image: The image.
//   threshold: How many pixels at either end are given up; a negative one makes the bounds 0 and 255.
//   Result 0: Done.
//   Result 1: The image has no pixels.
function BBIAutoLevelRGBRev(image: PImageRecord; threshold: Integer): Integer;
  {$IFDEF WIN32} stdcall {$ELSE} cdecl {$ENDIF}; external TessaroLibrary name 'BBIAutoLevelRGBRev';

// Stretches the levels of each channel by its own high bound and a low one that is a quarter of the others' mean.
//   image: The image.
//   threshold: How many pixels at either end are given up; a negative one makes the bounds 0 and 255.
//   Result 0: Done.
//   Result 1: The image has no pixels.
function BBIAutoLevelRGBMul(image: PImageRecord; threshold: Integer): Integer;
  {$IFDEF WIN32} stdcall {$ELSE} cdecl {$ENDIF}; external TessaroLibrary name 'BBIAutoLevelRGBMul';

// Stretches the levels of all channels alike, which keeps their balance.
//
// L and H are measured in one histogram of blue, green and red of every pixel: three counts a pixel, which
// the threshold is compared with.
//   image: The image.
//   threshold: How many pixels at either end are given up; a negative one makes the bounds 0 and 255.
//   Result 0: Done.
//   Result 1: The image has no pixels.
function BBIAutoLevelWB(image: PImageRecord; threshold: Integer): Integer;
  {$IFDEF WIN32} stdcall {$ELSE} cdecl {$ENDIF}; external TessaroLibrary name 'BBIAutoLevelWB';

// Stretches with one opacity: d = mix(d, s, constant weight), at opacity 1 a copy.
//   dst: The image that is changed.
//   src: The image that is read.
//   dx: Where the rectangle begins in `dst`.
//   dy: Where the rectangle begins in `dst`.
//   dw: The size of the rectangle in `dst`.
//   dh: The size of the rectangle in `dst`.
//   sx: Where the rectangle begins in `src`.
//   sy: Where the rectangle begins in `src`.
//   sw: The size of the rectangle in `src`.
//   sh: The size of the rectangle in `src`.
//   opacity: Above 1 counts as 1; negative or not a number returns 1.
//   Result 0: Done.
//   Result 1: An argument is unusable, or clipping left nothing.
function BBIExpandBlt(dst, src: PImageRecord; dx, dy, dw, dh, sx, sy, sw, sh: Integer; opacity: Single): Integer;
  {$IFDEF WIN32} stdcall {$ELSE} cdecl {$ENDIF}; external TessaroLibrary name 'BBIExpandBlt';

// Stretches by the alpha of the source: d = mix(d, s, alpha weight of s).
//   dst: The image that is changed.
//   src: The image that is read.
//   dx: Where the rectangle begins in `dst`.
//   dy: Where the rectangle begins in `dst`.
//   dw: The size of the rectangle in `dst`.
//   dh: The size of the rectangle in `dst`.
//   sx: Where the rectangle begins in `src`.
//   sy: Where the rectangle begins in `src`.
//   sw: The size of the rectangle in `src`.
//   sh: The size of the rectangle in `src`.
//   opacity: Above 1 counts as 1; negative or not a number returns 1.
//   Result 0: Done.
//   Result 1: An argument is unusable, or clipping left nothing.
function BBIExpandBlendBlt(dst, src: PImageRecord; dx, dy, dw, dh, sx, sy, sw, sh: Integer; opacity: Single): Integer;
  {$IFDEF WIN32} stdcall {$ELSE} cdecl {$ENDIF}; external TessaroLibrary name 'BBIExpandBlendBlt';

// Replaces bits of each sample by a gradient between four corner colours, then mixes it in.
//
// The gradient spans the clipped destination rectangle. With
// `w(k, n) = trunc((float)((double)k / (n - 1)) * 256)`, 0 where n is 1, pixel (j, i) of it has
// `G = mix(mix(top_left, bottom_left, w(i, dh)), mix(top_right, bottom_right, w(i, dh)), w(j, dw))`. The
// sample becomes `(s & mask) | (G & ~mask)`, is mixed into d by its weight, and `keep_mask` is applied.
//
// Returns 1 also when there is no memory for the weights of a row.
//   dst: The image that is changed.
//   src: The image that is read.
//   dx: Where the rectangle begins in `dst`.
//   dy: Where the rectangle begins in `dst`.
//   dw: The size of the rectangle in `dst`.
//   dh: The size of the rectangle in `dst`.
//   sx: Where the rectangle begins in `src`.
//   sy: Where the rectangle begins in `src`.
//   sw: The size of the rectangle in `src`.
//   sh: The size of the rectangle in `src`.
//   opacity: Above 1 counts as 1; negative or not a number returns 1.
//   keep_mask: The bits of d that stay: `(d & keep_mask) | (new & ~keep_mask)`.
//   mask: The bits of the sample that stay.
//   top_left: The gradient's corner.
//   top_right: The gradient's corner.
//   bottom_left: The gradient's corner.
//   bottom_right: The gradient's corner.
//   use_source_alpha: Weight by the alpha of the sample as replaced; off: the constant weight.
//   Result 0: Done.
//   Result 1: An argument is unusable, or clipping left nothing.
function BBIExpandColorBlt(dst, src: PImageRecord; dx, dy, dw, dh, sx, sy, sw, sh: Integer; opacity: Single; keep_mask, mask, top_left, top_right, bottom_left, bottom_right: Cardinal; use_source_alpha: Integer): Integer;
  {$IFDEF WIN32} stdcall {$ELSE} cdecl {$ENDIF}; external TessaroLibrary name 'BBIExpandColorBlt';

// The general stretched blit.
//
// For each destination pixel d, in this order:
//
// 1. base = d, or with `source_is_base` the sample as read
// 2. mask: `s = (s & mask) | (((~s & invert_bits) | colour) & ~mask)`
// 3. saturation, in the colours: with `k = trunc(saturation * 1024)`, `m = (1024 - k) / 3` and
//    `g = (red + green + blue) * m >> 10`, each becomes `(colour * k >> 10) + g`, clamped to 0..255
// 4. levels, in the colours: with lo and hi, a colour's bytes of `level_low` and `level_high`, v becomes,
//    whichever fits first, 255 - lo for v = lo = hi, 0 for `v <= lo`, 255 for `v >= hi`, else
//    `255 * (v - lo) / (hi - lo)`
// 5. weight: with `use_source_alpha` the alpha weight of s as it is now, else the constant weight
// 6. mix: s = mix(base, s, weight). With `add_colour` the colours become `min(base + (s * weight >> 8), 255)`
//    instead; with `add_alpha` the alpha does. Each works for itself.
// 7. keep: d = `(base & keep_mask) | (s & ~keep_mask)`
//
// A constant weight of 0 (an opacity below 1 / 256) without `source_is_base` returns 1, even with
// `use_source_alpha`.
//
// A call is simple with saturation 1, levels of 0 and 0xFFFFFF in their lower three bytes and the last three
// flags off. Simple calls return 0, not 2, and two of them, where the clipped sizes are equal and `keep_mask`
// is 0, do something else (the weight is the constant one, or with `use_source_alpha` that of s as read):
//
// | `mask` | and | does |
// |---|---|---|
// | 0xFFFFFFFF | `use_source_alpha`, constant weight 256 | BBIBltBlend with 0 as its last argument |
// | 0xFF000000 | `invert_bits` 0 | d = mix(d, colour, weight), its alpha byte too |
//   dst: The image that is changed.
//   src: The image that is read.
//   dx: Where the rectangle begins in `dst`.
//   dy: Where the rectangle begins in `dst`.
//   dw: The size of the rectangle in `dst`.
//   dh: The size of the rectangle in `dst`.
//   sx: Where the rectangle begins in `src`.
//   sy: Where the rectangle begins in `src`.
//   sw: The size of the rectangle in `src`.
//   sh: The size of the rectangle in `src`.
//   opacity: Above 1 counts as 1; negative or not a number counts as 0.
//   saturation: 0 is grey, 1 as it was. Below 0 and not a number count as 0, above 256 as 256.
//   level_low: What becomes 0, for each colour; the top byte counts for nothing.
//   level_high: What becomes 255, for each colour; the top byte counts for nothing.
//   keep_mask: The bits of the base that stay.
//   mask: The bits of the sample that stay.
//   colour: What comes into the others.
//   invert_bits: Where the sample comes into the others inverted.
//   use_source_alpha: Weight by the alpha of s; off: the constant weight for all pixels.
//   add_colour: Add the colours.
//   add_alpha: Add the alpha.
//   source_is_base: Mix with the sample as read, not with d.
//   Result 0: Done, by a simple call.
//   Result 1: Clipping left nothing, or the constant weight is 0.
//   Result 2: Done.
//   Result 513: Filled, by a simple call.
function BBIExpandChooseBlt(dst, src: PImageRecord; dx, dy, dw, dh, sx, sy, sw, sh: Integer; opacity, saturation: Single; level_low, level_high, keep_mask, mask, colour, invert_bits: Cardinal; use_source_alpha, add_colour, add_alpha, source_is_base: Integer): Integer;
  {$IFDEF WIN32} stdcall {$ELSE} cdecl {$ENDIF}; external TessaroLibrary name 'BBIExpandChooseBlt';

// Stretches with bilinear interpolation: the sample replaces d.
//   dst: The image that is changed.
//   src: The image that is read.
//   dx: Where the rectangle begins in `dst`.
//   dy: Where the rectangle begins in `dst`.
//   dw: The size of the rectangle in `dst`.
//   dh: The size of the rectangle in `dst`.
//   sx: Where the rectangle begins in `src`.
//   sy: Where the rectangle begins in `src`.
//   sw: The size of the rectangle in `src`.
//   sh: The size of the rectangle in `src`.
//   Result 0: Done.
//   Result 1: An argument is unusable, or clipping left nothing.
function BBILinearBlt(dst, src: PImageRecord; dx, dy, dw, dh, sx, sy, sw, sh: Integer): Integer;
  {$IFDEF WIN32} stdcall {$ELSE} cdecl {$ENDIF}; external TessaroLibrary name 'BBILinearBlt';

// Brings each sample into d by a table of weights and a mode.
//   dst: The image that is changed.
//   src: The image that is read.
//   dx: Where the rectangle begins in `dst`.
//   dy: Where the rectangle begins in `dst`.
//   dw: The size of the rectangle in `dst`.
//   dh: The size of the rectangle in `dst`.
//   sx: Where the rectangle begins in `src`.
//   sy: Where the rectangle begins in `src`.
//   sw: The size of the rectangle in `src`.
//   sh: The size of the rectangle in `src`.
//   table: Weights of 0..256 by alpha, for example from BBIAlphaTableCreate. With larger ones channels run over
//     into their neighbours: with `L = 0x00FF00FF` and sums modulo 2^32, mixing `d` and `s` gives `((d & L) * (256
//     - w) + (s & L) * w) >> 8 & L | ((d >> 8 & L) * (256 - w) + (s >> 8 & L) * w) & ~L`, the tint likewise, and
//     adding the saturated sum of `d` and that with `d` and `256 - w` left out. Read once, before the first pixel
//     is written. At least 256 words.
//   mode: What becomes of the sample.
//   smooth: Interpolate; off: always the nearest sample.
//   tint: The colour of the tint.
//   Result 0: Done.
//   Result 1: An argument is unusable, or clipping left nothing.
function BBILinearRender(dst, src: PImageRecord; dx, dy, dw, dh, sx, sy, sw, sh: Integer; table: PCardinal; mode, smooth: Integer; tint: Cardinal): Integer;
  {$IFDEF WIN32} stdcall {$ELSE} cdecl {$ENDIF}; external TessaroLibrary name 'BBILinearRender';

// Fills a table with the weights of an opacity.
//   table: The weights by alpha, 0..256. Needs no alignment. At least 256 words.
//   opacity: Below 0 and not a number count as 0, above 1 as 1.
//   by_alpha: The alpha weights; off: the constant weight throughout.
procedure BBIAlphaTableCreate(table: PCardinal; opacity: Single; by_alpha: Integer);
  {$IFDEF WIN32} stdcall {$ELSE} cdecl {$ENDIF}; external TessaroLibrary name 'BBIAlphaTableCreate';

// Resizes all of `src` to all of `dst` with a cubic kernel.
//
// The corners of the images coincide: destination column x lies at x times the quotient of width - 1 of `src`
// and of `dst`, or at 0 for a destination of one column; i is its integer part and t the rest. The four
// columns from i - 1 on have the weights k(1 + t), k(t), k(1 - t), k(2 - t), where k(v) is
// `1.0 - 2.0 * v * v + v * v * v` for `v < 1` and `4.0 - 8.0 * v + 5.0 * v * v - v * v * v` else; rows
// likewise, all in double precision.
//
// A tap's weight is the product of its column's and its row's, rounded to single precision; below 0 it counts
// as 0, so that negative lobes act only where two meet. Taps outside the source are 0x00000000. The 16 taps,
// row by row from 0, are merged in pairs: (0, 1), (2, 3) .. (14, 15), then (0, 2), (4, 6), (8, 10), (12, 14),
// then (0, 4), (8, 12), then (0, 8). To merge b into a, a becomes mix(a, b, `trunc(wb / (wa + wb) * 256)`),
// formed in double precision and 0 where both weights are 0; the weight of a becomes wa + wb, rounded to
// single precision.
//   dst: The image that is changed.
//   src: The image that is read.
//   Result 0: Done.
//   Result 1: An image has no pixels.
function BBILinear(dst, src: PImageRecord): Integer;
  {$IFDEF WIN32} stdcall {$ELSE} cdecl {$ENDIF}; external TessaroLibrary name 'BBILinear';

// An experiment: the nearest sample, averaged with neighbours along a spiral.
//
// The sample v at source pixel (x, y) takes in its neighbours one after another, later ones weighing more:
// `v = (v + p) >> 1` per channel for p at (x, y) plus
//
//     (1, 0) (0, -1) (-1, 0) (0, 1)   (1, -1) (-1, -1) (-1, 1) (1, 1)   (2, 0) (0, -2) (-2, 0) (0, 2)
//     (2, -1) (-1, -2) (-2, 1) (1, 2)   (1, -2) (-2, -1) (-1, 2) (2, 1)
//
// Of these the first `min((sw / dw + sh / dh + 5) & ~3, 20)` take part, and only where they lie at `sx < x`,
// `x < sw`, `sy < y` and `y < sh`: the clipped sizes serve as limits of coordinates. d becomes v. Rows of
// `src` are taken to lie `pitch / 4 * 4` bytes apart.
//   dst: The image that is changed.
//   src: The image that is read.
//   dx: Where the rectangle begins in `dst`.
//   dy: Where the rectangle begins in `dst`.
//   dw: The size of the rectangle in `dst`.
//   dh: The size of the rectangle in `dst`.
//   sx: Where the rectangle begins in `src`.
//   sy: Where the rectangle begins in `src`.
//   sw: The size of the rectangle in `src`.
//   sh: The size of the rectangle in `src`.
//   Result 0: Done.
//   Result 1: An argument is unusable, or clipping left nothing.
function BBILinearBltTest(dst, src: PImageRecord; dx, dy, dw, dh, sx, sy, sw, sh: Integer): Integer;
  {$IFDEF WIN32} stdcall {$ELSE} cdecl {$ENDIF}; external TessaroLibrary name 'BBILinearBltTest';

// Cross-fades with one opacity: d = mix(d, s, constant weight).
//   dst: The image that is changed.
//   src: The image that is read.
//   dx: Where the rectangle begins in `dst`.
//   dy: Where the rectangle begins in `dst`.
//   cx: The size of the rectangle.
//   cy: The size of the rectangle.
//   sx: Where the rectangle begins in `src`.
//   sy: Where the rectangle begins in `src`.
//   opacity: Above 1 counts as 1; negative or not a number returns 1.
//   Result 0: Done.
//   Result 1: An argument is unusable, or clipping left nothing.
function BBIFlip(dst, src: PImageRecord; dx, dy, cx, cy, sx, sy: Integer; opacity: Single): Integer;
  {$IFDEF WIN32} stdcall {$ELSE} cdecl {$ENDIF}; external TessaroLibrary name 'BBIFlip';

// Mixes by the alpha of the source: d = mix(d, s, alpha weight of s).
//   dst: The image that is changed.
//   src: The image that is read.
//   dx: Where the rectangle begins in `dst`.
//   dy: Where the rectangle begins in `dst`.
//   cx: The size of the rectangle.
//   cy: The size of the rectangle.
//   sx: Where the rectangle begins in `src`.
//   sy: Where the rectangle begins in `src`.
//   opacity: Above 1 counts as 1; negative or not a number returns 1.
//   Result 0: Done.
//   Result 1: An argument is unusable, or clipping left nothing.
function BBIFlipBlend(dst, src: PImageRecord; dx, dy, cx, cy, sx, sy: Integer; opacity: Single): Integer;
  {$IFDEF WIN32} stdcall {$ELSE} cdecl {$ENDIF}; external TessaroLibrary name 'BBIFlipBlend';

// Alpha as depth: s replaces d where the alpha of s is greater; on equal alpha d stays.
//   dst: The image that is changed.
//   src: The image that is read.
//   dx: Where the rectangle begins in `dst`.
//   dy: Where the rectangle begins in `dst`.
//   cx: The size of the rectangle.
//   cy: The size of the rectangle.
//   sx: Where the rectangle begins in `src`.
//   sy: Where the rectangle begins in `src`.
//   Result 0: Done.
//   Result 1: An argument is unusable, or clipping left nothing.
function BBIDepth(dst, src: PImageRecord; dx, dy, cx, cy, sx, sy: Integer): Integer;
  {$IFDEF WIN32} stdcall {$ELSE} cdecl {$ENDIF}; external TessaroLibrary name 'BBIDepth';

// As BBIDepth, but d becomes `(d & keep_mask) | (s & ~keep_mask)`.
//   dst: The image that is changed.
//   src: The image that is read.
//   dx: Where the rectangle begins in `dst`.
//   dy: Where the rectangle begins in `dst`.
//   cx: The size of the rectangle.
//   cy: The size of the rectangle.
//   sx: Where the rectangle begins in `src`.
//   sy: Where the rectangle begins in `src`.
//   keep_mask: The bits of d that stay: `(d & keep_mask) | (new & ~keep_mask)`.
//   Result 0: Done.
//   Result 1: An argument is unusable, or clipping left nothing.
function BBIDepthMask(dst, src: PImageRecord; dx, dy, cx, cy, sx, sy: Integer; keep_mask: Cardinal): Integer;
  {$IFDEF WIN32} stdcall {$ELSE} cdecl {$ENDIF}; external TessaroLibrary name 'BBIDepthMask';

// Fills `length` pixels from (x, y) to the right.
//
// 1 when y lies outside the image or nothing is left.
//   image: The image that is changed.
//   x: The first pixel of the run.
//   y: The first pixel of the run.
//   length: The length of the run, which is cut to the image.
//   colour: The new colour.
//   Result 0: Done.
//   Result 1: An argument is unusable, or clipping left nothing.
function BBIFlipLineX(image: PImageRecord; x, y, length: Integer; colour: Cardinal): Integer;
  {$IFDEF WIN32} stdcall {$ELSE} cdecl {$ENDIF}; external TessaroLibrary name 'BBIFlipLineX';

// Fills `length` pixels from (x, y) downward.
//
// 1 when x lies outside the image or nothing is left.
//
// From the first pixel drawn, rows are stepped by `pitch & ~3`: with a pitch that is no multiple of 4 the
// line drifts to the left, by up to 3 bytes a row. It ends where it would begin below the lowest address of
// the image.
//   image: The image that is changed.
//   x: The first pixel of the run.
//   y: The first pixel of the run.
//   length: The length of the run, which is cut to the image.
//   colour: The new colour.
//   Result 0: Done.
//   Result 1: An argument is unusable, or clipping left nothing.
function BBIFlipLineY(image: PImageRecord; x, y, length: Integer; colour: Cardinal): Integer;
  {$IFDEF WIN32} stdcall {$ELSE} cdecl {$ENDIF}; external TessaroLibrary name 'BBIFlipLineY';

// Box blur of rows: the mean of pixels max(i - radius, 0) to min(i + radius, n - 1).
//
// The window is cut at the ends, never padded. `dst` and `src` may be one image and one rectangle. The time
// does not depend on the radius.
//   dst: The image that is changed.
//   src: The image that is read.
//   dx: Where the rectangle begins in `dst`.
//   dy: Where the rectangle begins in `dst`.
//   cx: The size of the rectangle.
//   cy: The size of the rectangle.
//   sx: Where the rectangle begins in `src`.
//   sy: Where the rectangle begins in `src`.
//   radius: How far the window reaches to either side. Lowered to `n / 2 - 1` and to 127; below 1, given or
//     lowered, the rectangle is copied as by BBIBlt.
//   Result 0: Done.
//   Result 1: An argument is unusable, or clipping left nothing.
function BBIBltUBlur(dst, src: PImageRecord; dx, dy, cx, cy, sx, sy, radius: Integer): Integer;
  {$IFDEF WIN32} stdcall {$ELSE} cdecl {$ENDIF}; external TessaroLibrary name 'BBIBltUBlur';

// As BBIBltUBlur, along columns.
//   dst: The image that is changed.
//   src: The image that is read.
//   dx: Where the rectangle begins in `dst`.
//   dy: Where the rectangle begins in `dst`.
//   cx: The size of the rectangle.
//   cy: The size of the rectangle.
//   sx: Where the rectangle begins in `src`.
//   sy: Where the rectangle begins in `src`.
//   radius: How far the window reaches to either side. Lowered to `n / 2 - 1` and to 127; below 1, given or
//     lowered, the rectangle is copied as by BBIBlt.
//   Result 0: Done.
//   Result 1: An argument is unusable, or clipping left nothing.
function BBIBltVBlur(dst, src: PImageRecord; dx, dy, cx, cy, sx, sy, radius: Integer): Integer;
  {$IFDEF WIN32} stdcall {$ELSE} cdecl {$ENDIF}; external TessaroLibrary name 'BBIBltVBlur';

// Box blur of rows for images that tile: the mean of pixels i - radius to i + radius, counted modulo n.
//
// The pixels at both ends are read a second time, in the order of the window: the last radius, all, and the
// first radius pixels. So the destination must not overlap the source; if it does, what was written is
// blurred again.
//   dst: The image that is changed.
//   src: The image that is read.
//   dx: Where the rectangle begins in `dst`.
//   dy: Where the rectangle begins in `dst`.
//   cx: The size of the rectangle.
//   cy: The size of the rectangle.
//   sx: Where the rectangle begins in `src`.
//   sy: Where the rectangle begins in `src`.
//   radius: How far the window reaches to either side. Lowered to `n / 2 - 1` and to 127; below 1, given or
//     lowered, the rectangle is copied as by BBIBlt.
//   Result 0: Done.
//   Result 1: An argument is unusable, or clipping left nothing.
function BBIBltUBlurLoop(dst, src: PImageRecord; dx, dy, cx, cy, sx, sy, radius: Integer): Integer;
  {$IFDEF WIN32} stdcall {$ELSE} cdecl {$ENDIF}; external TessaroLibrary name 'BBIBltUBlurLoop';

// As BBIBltUBlurLoop, along columns.
//   dst: The image that is changed.
//   src: The image that is read.
//   dx: Where the rectangle begins in `dst`.
//   dy: Where the rectangle begins in `dst`.
//   cx: The size of the rectangle.
//   cy: The size of the rectangle.
//   sx: Where the rectangle begins in `src`.
//   sy: Where the rectangle begins in `src`.
//   radius: How far the window reaches to either side. Lowered to `n / 2 - 1` and to 127; below 1, given or
//     lowered, the rectangle is copied as by BBIBlt.
//   Result 0: Done.
//   Result 1: An argument is unusable, or clipping left nothing.
function BBIBltVBlurLoop(dst, src: PImageRecord; dx, dy, cx, cy, sx, sy, radius: Integer): Integer;
  {$IFDEF WIN32} stdcall {$ELSE} cdecl {$ENDIF}; external TessaroLibrary name 'BBIBltVBlurLoop';

// Rescales rows by num / den within the same length, with a box filter.
//
// A source pixel counts as num units, a destination pixel is the mean of den units.
//
// - Shrinking (`num < den`) starts at the first pixel: destination pixel k is made of den units from k * den
//   on, and unit u is source pixel `min(u / num, n - 1)`. The end of the row repeats the last pixel.
// - Enlarging (and num = den) starts at the last pixel: destination pixel n - 1 - k is made of the same
//   units, and unit u is source pixel `max(m - 1 - u / num, 0)` with `m = n * den / num`. What is left over
//   at the start repeats pixel 0.
//
// So `dst` and `src` may be one image and one rectangle. `num` and `den` are lowered each for itself, and 256
// / 512 is a copy: reduce the fraction first. Below 1, either returns 1.
//   dst: The image that is changed.
//   src: The image that is read.
//   dx: Where the rectangle begins in `dst`.
//   dy: Where the rectangle begins in `dst`.
//   cx: The size of the rectangle.
//   cy: The size of the rectangle.
//   sx: Where the rectangle begins in `src`.
//   sy: Where the rectangle begins in `src`.
//   num: The numerator of the scale; above 128 counts as 128.
//   den: The denominator, likewise.
//   Result 0: Done.
//   Result 1: An argument is unusable, or clipping left nothing.
function BBIBltUScale(dst, src: PImageRecord; dx, dy, cx, cy, sx, sy, num, den: Integer): Integer;
  {$IFDEF WIN32} stdcall {$ELSE} cdecl {$ENDIF}; external TessaroLibrary name 'BBIBltUScale';

// As BBIBltUScale, along columns.
//   dst: The image that is changed.
//   src: The image that is read.
//   dx: Where the rectangle begins in `dst`.
//   dy: Where the rectangle begins in `dst`.
//   cx: The size of the rectangle.
//   cy: The size of the rectangle.
//   sx: Where the rectangle begins in `src`.
//   sy: Where the rectangle begins in `src`.
//   num: The numerator of the scale; above 128 counts as 128.
//   den: The denominator, likewise.
//   Result 0: Done.
//   Result 1: An argument is unusable, or clipping left nothing.
function BBIBltVScale(dst, src: PImageRecord; dx, dy, cx, cy, sx, sy, num, den: Integer): Integer;
  {$IFDEF WIN32} stdcall {$ELSE} cdecl {$ENDIF}; external TessaroLibrary name 'BBIBltVScale';

// Halves a rectangle of 2 cx x 2 cy pixels of `src` to cx x cy: the mean of 2 x 2 pixels.
//
// Nothing is clipped: 1 unless both rectangles lie inside their images and `cx` and `cy` are at least 1.
//   dst: The image that is changed.
//   src: The image that is read.
//   dx: Where the rectangle begins in `dst`.
//   dy: Where the rectangle begins in `dst`.
//   cx: The size of the rectangle.
//   cy: The size of the rectangle.
//   sx: Where the rectangle begins in `src`.
//   sy: Where the rectangle begins in `src`.
//   Result 0: Done.
//   Result 1: An argument is unusable, or clipping left nothing.
function BBIBltHalfSize(dst, src: PImageRecord; dx, dy, cx, cy, sx, sy: Integer): Integer;
  {$IFDEF WIN32} stdcall {$ELSE} cdecl {$ENDIF}; external TessaroLibrary name 'BBIBltHalfSize';

// Dithers for 5 bits a colour: c becomes `min((c & 248) + ((c & 7) < m ? 0 : 8), 255)`.
//
// m at row y % 4, column x % 4 of
//
//     0 4 1 5
//     6 2 7 3
//     1 5 0 4
//     7 3 6 2
//   image: The image that is changed.
//   Result 0: Done.
//   Result 1: The image has no pixels.
function BBIColorCutDown1555(image: PImageRecord): Integer;
  {$IFDEF WIN32} stdcall {$ELSE} cdecl {$ENDIF}; external TessaroLibrary name 'BBIColorCutDown1555';

// Dithers for 4 bits a colour: c becomes `min((c & 240) + ((c & 15) < m ? 0 : 16), 255)`.
//
// m at row y % 4, column x % 4 of
//
//      0  8  2 10
//     12  4 14  6
//      3 11  1  9
//     15  7 13  5
//   image: The image that is changed.
//   Result 0: Done.
//   Result 1: The image has no pixels.
function BBIColorCutDown4444(image: PImageRecord): Integer;
  {$IFDEF WIN32} stdcall {$ELSE} cdecl {$ENDIF}; external TessaroLibrary name 'BBIColorCutDown4444';

// Dithers for one bit a colour: c becomes `(c >> 2) < m ? 0 : 255`.
//
// m at row y % 8, column x % 8 of
//
//      3 11 23 31 24 12  4  0
//     10 22 39 51 40 32 13  5
//     21 38 50 59 52 41 33 14
//     30 49 58 63 60 53 42 25
//     29 48 57 62 61 54 43 26
//     20 37 47 56 55 44 34 15
//      9 19 36 46 45 35 16  6
//      2  8 18 28 27 17  7  1
//   image: The image that is changed.
//   Result 0: Done.
//   Result 1: The image has no pixels.
function BBIColorCutDown1111(image: PImageRecord): Integer;
  {$IFDEF WIN32} stdcall {$ELSE} cdecl {$ENDIF}; external TessaroLibrary name 'BBIColorCutDown1111';

// Makes colours and alpha from colours or alpha; brightness is `(red + green + blue) / 3`.
//   dst: The image that is changed.
//   src: The image that is read.
//   colour_from: What the colours come from.
//   alpha_from: What the alpha comes from.
//   Result 0: Done.
//   Result 1: The images have no part in common.
function BBIChooseCA(dst, src: PImageRecord; colour_from, alpha_from: Integer): Integer;
  {$IFDEF WIN32} stdcall {$ELSE} cdecl {$ENDIF}; external TessaroLibrary name 'BBIChooseCA';

// As BBIChooseCA; brightness is `trunc(green * 0.7154 + blue * 0.0721 + red * 0.2125)`, in double precision.
//   dst: The image that is changed.
//   src: The image that is read.
//   colour_from: What the colours come from.
//   alpha_from: What the alpha comes from.
//   Result 0: Done.
//   Result 1: The images have no part in common.
function BBIChooseCATR(dst, src: PImageRecord; colour_from, alpha_from: Integer): Integer;
  {$IFDEF WIN32} stdcall {$ELSE} cdecl {$ENDIF}; external TessaroLibrary name 'BBIChooseCATR';

// As BBIChooseCA; brightness is `trunc(green * green_weight + blue * blue_weight + red * red_weight)`, in double
// precision.
//
// The low 8 bits of that integer are taken, so that 256 gives 0. A sum that fits no 32-bit integer, or is not
// a number, gives 0.
//   dst: The image that is changed.
//   src: The image that is read.
//   colour_from: What the colours come from.
//   alpha_from: What the alpha comes from.
//   red_weight: The share of red.
//   green_weight: The share of green.
//   blue_weight: The share of blue.
//   Result 0: Done.
//   Result 1: The images have no part in common.
function BBIChooseCATS(dst, src: PImageRecord; colour_from, alpha_from: Integer; red_weight, green_weight, blue_weight: Single): Integer;
  {$IFDEF WIN32} stdcall {$ELSE} cdecl {$ENDIF}; external TessaroLibrary name 'BBIChooseCATS';

// Copies each channel from one that is named.
//   dst: The image that is changed.
//   src: The image that is read.
//   red_from: What becomes red.
//   green_from: What becomes green.
//   blue_from: What becomes blue.
//   alpha_from: What becomes alpha.
//   Result 0: Done.
//   Result 1: The images have no part in common.
function BBIChooseRGBA(dst, src: PImageRecord; red_from, green_from, blue_from, alpha_from: Integer): Integer;
  {$IFDEF WIN32} stdcall {$ELSE} cdecl {$ENDIF}; external TessaroLibrary name 'BBIChooseRGBA';

// Runs one of eleven operations on a whole image in place.
//
// What the arguments are depends on the operation:
//
// | `op` | `colour` | `key` | `extra` | `outer` | result |
// |---|---|---|---|---|---|
// | 0, 1 | new colour | key | | | 0 |
// | 2 | fill colour | key | border on the others' side | border on the key's side | 0 |
// | 3, 4 | new colour | key | | | 0 |
// | 5 | new colour | key | most pixels of a region, signed | | regions painted |
// | 6, 9 | colour that does not count | key | | | key pixels left |
// | 7 | darkest grey, low byte | lightest grey, low byte | | | pixels left |
// | 8 | new colour | | | | pixels painted |
// | 10 | new colour | bits wanted | mask | | 0 |
//
// 2, 3 and 4 ask what the neighbours were before the call. In 2, others with a key neighbour become `extra`
// instead of `colour`, key pixels with another neighbour `outer`.
//
// 6, 7 and 9 visit the pixels in four sweeps, row by row: even columns of even rows, odd columns of even
// rows, even columns of odd rows, odd columns of odd rows. A pixel that was filled is a neighbour with its
// new colour from then on. A pixel without neighbours that count stays and is counted.
//
// - In 6 and 9 neighbours count that are neither key nor `colour`. One pass is made.
// - In 7 grey pixels whose blue lies from the darkest to the lightest are to be filled, and neighbours count
//   that are not grey or were filled. Passes repeat until no pixel is left or one fills nothing.
// - Commonest: the earlier of left, right, above, below on a tie.
// - Average: per channel, alpha included, from the sum of those that count: of one the sum, of two
//   `sum >> 1`, of three `(sum + 3) * 85 >> 8`, of four `(sum + 2) >> 2`.
//
// Any other operation, an image without pixels and a lack of working memory change nothing and return 0.
//   image: The image that is changed.
//   op: The operation.
//   colour: A colour, see the table.
//   key: The key, see the table.
//   extra: Another colour, a number or a mask, see the table.
//   outer: Another colour, see the table.
//   Result A number of pixels or regions, see the table.
function BBIPaintChoose(image: PImageRecord; op, colour, key, extra, outer: Cardinal): Integer;
  {$IFDEF WIN32} stdcall {$ELSE} cdecl {$ENDIF}; external TessaroLibrary name 'BBIPaintChoose';

// Reads a frame at the 16-bit scale.
//   data: Frame 0: 1, 2 or 3 bytes a sample, 1 or 2 samples. At least max(count, 0) * (2 * min(abs(bits - 8), 1)
//     + min(abs(bits - 16), 1)) * (2 - min(abs(channels - 2), 1)) bytes.
//   index: The frame.
//   bits: The width of a stored sample.
//   channels: Samples a frame.
//   count: Frames that the memory holds.
//   left: The left sample, or the only one. At least 1 words.
//   right: The right sample, or the only one. At least 1 words.
//   Result 0: Always.
function GetWave(data: Pointer; index, bits, channels, count: Integer; left, right: PInteger): Integer;
  {$IFDEF WIN32} stdcall {$ELSE} cdecl {$ENDIF}; external TessaroLibrary name 'GetWave';

// Writes a frame at the 16-bit scale, without clamping.
//   data: Frame 0. At least max(count, 0) * (2 * min(abs(bits - 8), 1) + min(abs(bits - 16), 1)) * (2 -
//     min(abs(channels - 2), 1)) bytes.
//   index: The frame.
//   bits: The width of a stored sample.
//   channels: Samples a frame.
//   count: Frames that the memory holds.
//   left: The left value; what does not fit loses its high bits.
//   right: The right one.
//   Result 0: Always.
function LetWave(data: Pointer; index, bits, channels, count, left, right: Integer): Integer;
  {$IFDEF WIN32} stdcall {$ELSE} cdecl {$ENDIF}; external TessaroLibrary name 'LetWave';

// Reads a frame at the 24-bit scale.
//   data: Frame 0: 1, 2 or 3 bytes a sample, 1 or 2 samples. At least max(count, 0) * (2 * min(abs(bits - 8), 1)
//     + min(abs(bits - 16), 1)) * (2 - min(abs(channels - 2), 1)) bytes.
//   index: The frame.
//   bits: The width of a stored sample.
//   channels: Samples a frame.
//   count: Frames that the memory holds.
//   left: The left sample, or the only one. At least 1 words.
//   right: The right sample, or the only one. At least 1 words.
//   Result 0: Always.
function GetWave24(data: Pointer; index, bits, channels, count: Integer; left, right: PInteger): Integer;
  {$IFDEF WIN32} stdcall {$ELSE} cdecl {$ENDIF}; external TessaroLibrary name 'GetWave24';

// Writes a frame at the 24-bit scale, without clamping.
//   data: Frame 0. At least max(count, 0) * (2 * min(abs(bits - 8), 1) + min(abs(bits - 16), 1)) * (2 -
//     min(abs(channels - 2), 1)) bytes.
//   index: The frame.
//   bits: The width of a stored sample.
//   channels: Samples a frame.
//   count: Frames that the memory holds.
//   left: The left value; what does not fit loses its high bits.
//   right: The right one.
//   Result 0: Always.
function LetWave24(data: Pointer; index, bits, channels, count, left, right: Integer): Integer;
  {$IFDEF WIN32} stdcall {$ELSE} cdecl {$ENDIF}; external TessaroLibrary name 'LetWave24';

// Reads a frame at the float scale.
//   data: Frame 0. At least max(count, 0) * min(bits / 8, 8) * (2 - min(abs(channels - 2), 1)) bytes.
//   index: The frame.
//   bits: The width of a stored sample.
//   channels: Samples a frame.
//   count: Frames that the memory holds.
//   left: The left sample, or the only one; untouched for unknown bits. At least 1 doubles.
//   right: The right sample, or the only one; untouched for unknown bits. At least 1 doubles.
//   Result 0: Always.
function GetWave64(data: Pointer; index, bits, channels, count: Integer; left, right: PDouble): Integer;
  {$IFDEF WIN32} stdcall {$ELSE} cdecl {$ENDIF}; external TessaroLibrary name 'GetWave64';

// Writes a frame at the float scale, clamped to -1..1.
//   data: Frame 0. At least max(count, 0) * min(bits / 8, 8) * (2 - min(abs(channels - 2), 1)) bytes.
//   index: The frame.
//   bits: The width of a stored sample.
//   channels: Samples a frame.
//   count: Frames that the memory holds.
//   left: The left value; not a number counts as -1.
//   right: The right one.
//   Result 0: Always.
function LetWave64(data: Pointer; index, bits, channels, count: Integer; left, right: Double): Integer;
  {$IFDEF WIN32} stdcall {$ELSE} cdecl {$ENDIF}; external TessaroLibrary name 'LetWave64';

// Packs a format code: `rate * 256 + bits + channels`.
//   bits: The width of a sample.
//   channels: Samples a frame.
//   rate: Frames a second. Not checked here: the functions that take the code refuse other rates.
//   Result The code, in the low 32 bits; 0 for other bits or channels.
function waveFormatEnc(bits, channels, rate: Integer): Integer;
  {$IFDEF WIN32} stdcall {$ELSE} cdecl {$ENDIF}; external TessaroLibrary name 'waveFormatEnc';

// Converts a whole buffer at the 16-bit scale: frames `0..dst->count - 1`, silence past the end of `src`.
//
// 24-bit samples lose their lowest byte. For full resolution and for 64-bit buffers use `waveBlt64`.
//   dst: The buffer that is filled.
//   src: The buffer that is read.
//   Result 0: Done.
//   Result 1: One of the formats is invalid.
function waveFormat(dst, src: PWaveBuffer): Integer;
  {$IFDEF WIN32} stdcall {$ELSE} cdecl {$ENDIF}; external TessaroLibrary name 'waveFormat';

// Copies with a gain at the 24-bit scale: `(s * trunc(gain * 64)) >> 6`.
//   dst: The buffer that is written.
//   src: The buffer that is read.
//   dst_start: The first frame written; may be negative or past the end.
//   src_start: The first frame read; may be negative or past the end.
//   count: How many frames; below 1 does nothing and returns 0.
//   gain: Limited to this range; not a number counts as 0. From 1 to below 1 + 1/64 frames are copied exactly.
//   Result 0: Done.
//   Result 1: A format is invalid, or a parameter is refused.
function waveBlt(dst, src: PWaveBuffer; dst_start, src_start, count: Integer; gain: Single): Integer;
  {$IFDEF WIN32} stdcall {$ELSE} cdecl {$ENDIF}; external TessaroLibrary name 'waveBlt';

// Moving average at the 16-bit scale: the sum of the source frames from `radius` before to `radius` after, divided
// by `2 * radius + 1` and truncated toward zero.
//
// Frames before `src_start + radius` count as silence, so the first `2 * radius` results fade in. The cost
// does not depend on the radius.
//   dst: The buffer that is written.
//   src: The buffer that is read.
//   dst_start: The first frame written; may be negative or past the end.
//   src_start: The first frame read; may be negative or past the end.
//   count: How many frames; below 1 does nothing and returns 0.
//   radius: Below 1 is refused; above 511 counts as 511.
//   Result 0: Done.
//   Result 1: A format is invalid, or a parameter is refused.
function waveBltBlur(dst, src: PWaveBuffer; dst_start, src_start, count, radius: Integer): Integer;
  {$IFDEF WIN32} stdcall {$ELSE} cdecl {$ENDIF}; external TessaroLibrary name 'waveBltBlur';

// Exclusive-or at the 16-bit scale: `d ^ s`, with `s` read `offset` frames further on.
//
// Between 16-bit buffers, the same call undoes it.
//   dst: The buffer that is written.
//   src: The buffer that is read.
//   dst_start: The first frame written; may be negative or past the end.
//   src_start: The first frame read; may be negative or past the end.
//   count: How many frames; below 1 does nothing and returns 0.
//   offset: Below 1 is refused.
//   Result 0: Done.
//   Result 1: A format is invalid, or a parameter is refused.
function waveBltGluder(dst, src: PWaveBuffer; dst_start, src_start, count, offset: Integer): Integer;
  {$IFDEF WIN32} stdcall {$ELSE} cdecl {$ENDIF}; external TessaroLibrary name 'waveBltGluder';

// Copies with noise at the 16-bit scale: `s + (((noise - 32768) * trunc(amount * 256)) >> 8)`.
//
// `noise` is `GetRandom(65536)`, drawn for the left and then for the right channel of every frame, whatever
// the formats, the amount and the ends of the buffers: the result depends on every other draw in the process.
// A run of 2^31 frames therefore takes seconds.
//   dst: The buffer that is written.
//   src: The buffer that is read.
//   dst_start: The first frame written; may be negative or past the end.
//   src_start: The first frame read; may be negative or past the end.
//   count: How many frames; below 1 does nothing and returns 0.
//   amount: Limited to this range; not a number counts as 0.
//   Result 0: Done.
//   Result 1: A format is invalid, or a parameter is refused.
function waveBltAddNoise(dst, src: PWaveBuffer; dst_start, src_start, count: Integer; amount: Single): Integer;
  {$IFDEF WIN32} stdcall {$ELSE} cdecl {$ENDIF}; external TessaroLibrary name 'waveBltAddNoise';

// Copies with a tone at the 16-bit scale: `s + trunc(sin(phase) * amplitude * 32768)`, the same tone in both
// channels.
//
// From `phase = modulation = 0` and `increment = frequency`, after every frame: `phase += increment` (the old
// one), `modulation += rate`, `increment += sin(modulation) * depth` (the new modulation). The three are kept
// in single precision; sines, the product `sin(phase) * amplitude * 32768` and the sum that becomes the
// increment are formed in double. Every call begins anew. From a far negative position the tone is worked
// through.
//   dst: The buffer that is written.
//   src: The buffer that is read.
//   dst_start: The first frame written; may be negative or past the end.
//   src_start: The first frame read; may be negative or past the end.
//   count: How many frames; below 1 does nothing and returns 0.
//   amplitude: Limited to this range; not a number counts as -1.
//   frequency: The first increment: radians a frame, not hertz. `2 * pi * hertz / rate_of_the_buffer`.
//   depth: How much the increment moves in a frame at most.
//   rate: The speed of that movement: radians a frame, not hertz.
//   Result 0: Done.
//   Result 1: A format is invalid, or a parameter is refused.
function waveBltSin(dst, src: PWaveBuffer; dst_start, src_start, count: Integer; amplitude, frequency, depth, rate: Single): Integer;
  {$IFDEF WIN32} stdcall {$ELSE} cdecl {$ENDIF}; external TessaroLibrary name 'waveBltSin';

// Mixes at the 16-bit scale: `d + ((s * trunc(gain * 256)) >> 8)`.
//   dst: The buffer that is written.
//   src: The buffer that is read.
//   dst_start: The first frame written; may be negative or past the end.
//   src_start: The first frame read; may be negative or past the end.
//   count: How many frames; below 1 does nothing and returns 0.
//   gain: A negative gain and not a number are refused; above 4 counts as 4.
//   Result 0: Done.
//   Result 1: A format is invalid, or a parameter is refused.
function waveBltAdd(dst, src: PWaveBuffer; dst_start, src_start, count: Integer; gain: Single): Integer;
  {$IFDEF WIN32} stdcall {$ELSE} cdecl {$ENDIF}; external TessaroLibrary name 'waveBltAdd';

// Subtracts at the 16-bit scale: `d - ((s * trunc(gain * 256)) >> 8)`.
//   dst: The buffer that is written.
//   src: The buffer that is read.
//   dst_start: The first frame written; may be negative or past the end.
//   src_start: The first frame read; may be negative or past the end.
//   count: How many frames; below 1 does nothing and returns 0.
//   gain: A negative gain and not a number are refused; above 4 counts as 4.
//   Result 0: Done.
//   Result 1: A format is invalid, or a parameter is refused.
function waveBltSub(dst, src: PWaveBuffer; dst_start, src_start, count: Integer; gain: Single): Integer;
  {$IFDEF WIN32} stdcall {$ELSE} cdecl {$ENDIF}; external TessaroLibrary name 'waveBltSub';

// Ring modulation by the magnitude of the source, at the 16-bit scale: `(abs(s) * d) >> 15`.
//
// The gain can refuse, and does nothing else.
//   dst: The buffer that is written.
//   src: The buffer that is read.
//   dst_start: The first frame written; may be negative or past the end.
//   src_start: The first frame read; may be negative or past the end.
//   count: How many frames; below 1 does nothing and returns 0.
//   gain: A negative gain and not a number are refused; above 4 counts as 4.
//   Result 0: Done.
//   Result 1: A format is invalid, or a parameter is refused.
function waveBltMul(dst, src: PWaveBuffer; dst_start, src_start, count: Integer; gain: Single): Integer;
  {$IFDEF WIN32} stdcall {$ELSE} cdecl {$ENDIF}; external TessaroLibrary name 'waveBltMul';

// Copies at the float scale: converts between all formats, and keeps what they can hold to within one unit.
//   dst: The buffer that is written.
//   src: The buffer that is read.
//   dst_start: The first frame written; may be negative or past the end.
//   src_start: The first frame read; may be negative or past the end.
//   count: How many frames; below 1 does nothing and returns 0.
//   Result 0: Done.
//   Result 1: A format is invalid, or a parameter is refused.
function waveBlt64(dst, src: PWaveBuffer; dst_start, src_start, count: Integer): Integer;
  {$IFDEF WIN32} stdcall {$ELSE} cdecl {$ENDIF}; external TessaroLibrary name 'waveBlt64';

// Multiplies by `target / 0.01` at the float scale, clamped to -1..1.
//
// Despite the name the level of the material plays no part.
//
// The quotient is formed in double precision from the single-precision target.
//   dst: The buffer that is written.
//   src: The buffer that is read.
//   dst_start: The first frame written; may be negative or past the end.
//   src_start: The first frame read; may be negative or past the end.
//   count: How many frames; below 1 does nothing and returns 0.
//   target: Limited to this range; not a number counts as 0. 0.01 keeps the level, 1 multiplies it by 100.
//   Result 0: Done.
//   Result 1: A format is invalid, or a parameter is refused.
function waveNormal(dst, src: PWaveBuffer; dst_start, src_start, count: Integer; target: Single): Integer;
  {$IFDEF WIN32} stdcall {$ELSE} cdecl {$ENDIF}; external TessaroLibrary name 'waveNormal';

// Silences frames `start..start + count - 1`.
//   dst: The buffer that is written.
//   start: The first frame; may be negative or past the end.
//   count: How many frames; below 1 does nothing and returns 0.
//   Result 0: Done.
//   Result 1: A format is invalid, or a parameter is refused.
function waveClear64(dst: PWaveBuffer; start, count: Integer): Integer;
  {$IFDEF WIN32} stdcall {$ELSE} cdecl {$ENDIF}; external TessaroLibrary name 'waveClear64';

// Fills `dst` with `src` read at a constant speed: frame `i` is the blend of the two source frames around `p = i *
// ratio`.
//
// `p` is formed in double precision, `n = trunc(p)`.
// - Same bits and channels, 8 or 16 bits: stored samples are blended, `(sample(n + 1) * f + sample(n) * (256
// - f)) >> 8` with `f = trunc((p - n) * 256)`. The last source frame is held; frames from `src->count` on are
//   silence.
// - Same bits and channels, 24 or 64 bits: nothing is written, and 0 returned. Go through a buffer of other
//   bits.
// - All else at the 16-bit scale: `((32768 - f) * s(n) + f * s(n + 1)) >> 15` with `f = trunc((p - n) *
//   32768)`; behind the last frame lies silence, into which it fades.
//   dst: The buffer that is filled, all of it.
//   src: The buffer that is read.
//   ratio: Source frames for each destination frame: above 1 is faster and higher. Negative and not a number are
//     refused.
//   Result 0: Done, or nothing to do.
//   Result 1: A format is invalid or the ratio refused.
function waveExpand(dst, src: PWaveBuffer; ratio: Single): Integer;
  {$IFDEF WIN32} stdcall {$ELSE} cdecl {$ENDIF}; external TessaroLibrary name 'waveExpand';

// Raises quiet passages, in place, at the 24-bit scale.
//
// In the `count` frames at the look position, magnitudes are limited to 8388607 and their bits joined by or.
// Each channel's new gain is `gain * growth`, at least 1 and at most 8; at most 4 with bit 20, 2 with bit 21,
// 1 with bit 22 (the highest that is set decides). The gain thus grows once a call. Frames at the write
// position are multiplied by `old, old + step, old + 2 * step, ...` with `step = (new - old) / count`, by
// repeated addition, and truncated. Where a loud block follows, the first products may not fit and then wrap;
// beyond 32 bits, and where the gain is not a number, they count as -2^31. A gain that is not a number stays
// so.
//   buffer: The sound.
//   look_position: The first frame whose loudness is looked at. A host keeps it a block or more ahead of the
//     write position. At least 1 words.
//   write_position: The first frame that is changed. At least 1 words.
//   count: The length of the block. Below 1 is refused.
//   growth: Limited to this range; not a number counts as 1.0001.
//   left_gain: The gain of the left channel; a host begins with 1.0. At least 1 doubles.
//   right_gain: The gain of the right channel. At least 1 doubles.
//   Result 0: Done.
//   Result 1: A format is invalid or the count is below 1.
function waveEffectMaximizer24(buffer: PWaveBuffer; look_position, write_position: PInteger; count: Integer; growth: Double; left_gain, right_gain: PDouble): Integer;
  {$IFDEF WIN32} stdcall {$ELSE} cdecl {$ENDIF}; external TessaroLibrary name 'waveEffectMaximizer24';

// Raises quiet passages at the float scale, from `src` to `dst`, both at the write position.
//
// Results are clamped to -1..1.
//
// A state is the gain less 16. It becomes `state + step`, but at least -15 (a gain of 1), and then at most
// `limit - 16`: for loud material the limit wins. The limit follows from the peak `p` of the `count` source
// frames at the look position, the largest magnitude in the channel:
//
// | p from | limit |
// |---|---|
// | 0 | 16 |
// | 0.06249 | 14 |
// | 0.07142 | 12 |
// | 0.08333 | 10 |
// | 0.09999 | 8 |
// | 0.1249 | 6 |
// | 0.1666 | 4 |
// | 0.249 | 2 |
// | 0.49 | 1 |
// | 0.99 | 0.5 |
// | 1.99 | 0.25 |
// | 3.99 | 0.125 |
// | 7.99 | 0 |
//
// A state that is not a number stays so; samples that are not a number do not count in the peak. The gain
// moves over the block as in `waveEffectMaximizer24`, from `old state + 16` to `new state + 16`.
//   dst: The buffer that is written.
//   src: The buffer that is read.
//   look_position: The first frame whose loudness is looked at. A host keeps it a block or more ahead of the
//     write position. At least 1 words.
//   write_position: The first frame that is changed. At least 1 words.
//   count: The length of the block. Below 1 is refused.
//   step: Limited to this range; not a number counts as 0.
//   left_state: The state of the left channel; a host begins with -15.0. At least 1 doubles.
//   right_state: The state of the right channel. At least 1 doubles.
//   Result 0: Done.
//   Result 1: A format is invalid or the count is below 1.
function waveEffectMaximizer64(dst, src: PWaveBuffer; look_position, write_position: PInteger; count: Integer; step: Double; left_state, right_state: PDouble): Integer;
  {$IFDEF WIN32} stdcall {$ELSE} cdecl {$ENDIF}; external TessaroLibrary name 'waveEffectMaximizer64';

// Adds echoes to `count` frames from the frame position on, in place, at the float scale.
//
// For every frame, with `r` the ring position:
// 1. ring frame `r + 199`, times 0.005, is added to the frame, which is written clamped;
// 2. ring frame `r` is cleared;
// 3. with `e = (left + right) * (level * 0.5)` of the frame as it was read, unless that is 0 or not a number:
//    from `x = r + predelay`, for each tap, with `i = trunc(x)` in 64 bits (-2^63 for what does not fit or is
//    not a number) and `f = x - i`, ring frame `i` receives `(1
// - f) * e * gain` and ring frame `i + 1` receives `f * e * gain` of each channel's gain; then `x += spread *
//   distance`;
// 4. both positions advance by one.
//
// Ring frames are taken modulo 524288. So an echo is heard 199 frames before its delay is over, and one of
// less than 200 frames never. Calls that pass on the ring and both positions make one continuous reverb.
// Frames outside the buffer are silence, and only clear the ring.
//   buffer: The sound. A count of 0 is refused; a negative one is silence.
//   frame_position: The first frame; advanced by `count`. At least 1 words.
//   ring: A 64-bit buffer of at least 524288 frames by its count, whatever its channels used as 524288 frames of
//     two doubles: its data must be 8 MiB, cleared by the host before the first call. Its format and count may say
//     one channel, but not less memory.
//   ring_position: The place in the ring, 0..524287; other values are taken modulo 524288. At least 1 words.
//   count: The length of the block. Below 1 is refused.
//   level: How loud the echoes are sent; limited to this range, not a number counts as 0.
//   predelay: From a frame to its first echo; limited to this range.
//   spread: Multiplies the distances of the taps; limited to this range.
//   taps: How many echoes a frame has; limited to this range.
//   tap_table: 10000 left gains, 10000 right gains, 10000 distances from a tap to the next in frames; the first
//     `taps` of each are read. At least 30000 doubles.
//   Result 0: Done.
//   Result 1: The count is below 1; the buffer is invalid or has a count of 0; the ring is invalid, has fewer
//     frames or other bits; or there is no memory for the distances of the taps, 8 bytes each.
function waveEffectReverbA1(buffer: PWaveBuffer; frame_position: PInteger; ring: PWaveBuffer; ring_position: PInteger; count: Integer; level: Double; predelay, spread, taps: Integer; tap_table: PDouble): Integer;
  {$IFDEF WIN32} stdcall {$ELSE} cdecl {$ENDIF}; external TessaroLibrary name 'waveEffectReverbA1';

// Real and imaginary parts of the spectrum.
//   buffer: The sound.
//   start: The first frame.
//   n: The length of the run and of both arrays.
//   re: Real parts. Must not share memory with the sound or with `im`. At least n doubles.
//   im: Imaginary parts. At least n doubles.
//   Result 0: Done.
//   Result 1: The format is invalid.
//   Result 2: `n` is below 1 or `start` negative.
//   Result 3: The run leaves the buffer.
function wavefft(buffer: PWaveBuffer; start, n: Integer; re, im: PDouble): Integer;
  {$IFDEF WIN32} stdcall {$ELSE} cdecl {$ENDIF}; external TessaroLibrary name 'wavefft';

// Magnitude and angle: after `wavefft`, `re[k]` becomes `sqrt(re * re + im * im)` and `im[k]` becomes `atan2(re,
// im)`, in radians from the imaginary axis.
//
// The arctangent is within one unit in the last place of the exact one, and the same on every target. The
// arrays are converted whatever the result, if `n` is at least 1: what they hold must be defined.
//   buffer: The sound.
//   start: The first frame.
//   n: The length of the run and of both arrays.
//   re: Real parts. Must not share memory with the sound or with `im`. At least n doubles.
//   im: Imaginary parts. At least n doubles.
//   Result 0: Done.
//   Result 1: The format is invalid; the arrays are converted all the same.
//   Result 2: `n` is below 1, or `start` is negative and the arrays are converted all the same.
//   Result 3: The run leaves the buffer; the arrays are converted all the same.
function wavefft2(buffer: PWaveBuffer; start, n: Integer; re, im: PDouble): Integer;
  {$IFDEF WIN32} stdcall {$ELSE} cdecl {$ENDIF}; external TessaroLibrary name 'wavefft2';

implementation

uses
  Math;

initialization
  // The library expects what C promises: arithmetic that raises nothing. Threads that Pascal did not begin need it too.
  SetExceptionMask([exInvalidOp, exDenormalized, exZeroDivide, exOverflow, exUnderflow, exPrecision]);

end.
