// Made by bindings/node/generate.py from the description of the functions. Do not edit.
import { ImageLike, Memory, Sound } from '..';

/** A host's function of one argument; on 32-bit Windows the caller removes it. */
export type TessaroMethod1 = (a: number) => number;
/** A host's function of four arguments; on 32-bit Windows the caller removes them. */
export type TessaroMethod4 = (a: number, b: number, c: number, d: number) => number;
/** A host's function of two arguments; on 32-bit Windows it removes them itself, as the library's own functions do. */
export type TessaroCallback2 = (a: number, b: number) => number;
/** What the worker thread calls. */
export type TessaroWorker = () => void;
/** A function that is offered the messages of a hooked window. */
export type TessaroHook = (window: number, message: number, first: number, second: number, value: number) => number;

/**
 * Differences of bytes, the reference one place before, 128 before the start.
 * @param source (at least length bytes) What is transformed.
 * @param destination (at least length bytes) What comes of it; of an odd length of 16-bit words the last byte
 *   is left alone.
 * @param length The size of both.
 * @param written (at least 1 words) The number of bytes made: the length, or for 16-bit words the even part
 *   of it.
 * @returns 0: Always.
 */
export function iwave11Encoder(source: Memory, destination: Memory, length: number, written: Memory): number;

/**
 * Undoes `iwave11Encoder`.
 * @param source (at least length bytes) What is transformed.
 * @param destination (at least length bytes) What comes of it; of an odd length of 16-bit words the last byte
 *   is left alone.
 * @param length The size of both.
 * @returns 0: Always.
 */
export function iwave11Decoder(source: Memory, destination: Memory, length: number): number;

/**
 * Differences of bytes, the reference two places before, 128 before the start.
 * @param source (at least length bytes) What is transformed.
 * @param destination (at least length bytes) What comes of it; of an odd length of 16-bit words the last byte
 *   is left alone.
 * @param length The size of both.
 * @param written (at least 1 words) The number of bytes made: the length, or for 16-bit words the even part
 *   of it.
 * @returns 0: Always.
 */
export function iwave12Encoder(source: Memory, destination: Memory, length: number, written: Memory): number;

/**
 * Undoes `iwave12Encoder`.
 * @param source (at least length bytes) What is transformed.
 * @param destination (at least length bytes) What comes of it; of an odd length of 16-bit words the last byte
 *   is left alone.
 * @param length The size of both.
 * @returns 0: Always.
 */
export function iwave12Decoder(source: Memory, destination: Memory, length: number): number;

/**
 * Differences of bytes, the reference four places before, 128 before the start.
 * @param source (at least length bytes) What is transformed.
 * @param destination (at least length bytes) What comes of it; of an odd length of 16-bit words the last byte
 *   is left alone.
 * @param length The size of both.
 * @param written (at least 1 words) The number of bytes made: the length, or for 16-bit words the even part
 *   of it.
 * @returns 0: Always.
 */
export function iwave32Encoder(source: Memory, destination: Memory, length: number, written: Memory): number;

/**
 * Undoes `iwave32Encoder`.
 * @param source (at least length bytes) What is transformed.
 * @param destination (at least length bytes) What comes of it; of an odd length of 16-bit words the last byte
 *   is left alone.
 * @param length The size of both.
 * @returns 0: Always.
 */
export function iwave32Decoder(source: Memory, destination: Memory, length: number): number;

/**
 * Differences of little-endian 16-bit words, the reference one word before, 0 before the start.
 *
 * The last byte of an odd length is neither coded nor copied: the host carries it.
 * @param source (at least length bytes) What is transformed.
 * @param destination (at least length bytes) What comes of it; of an odd length of 16-bit words the last byte
 *   is left alone.
 * @param length The size of both.
 * @param written (at least 1 words) The number of bytes made: the length, or for 16-bit words the even part
 *   of it.
 * @returns 0: Always.
 */
export function iwave21Encoder(source: Memory, destination: Memory, length: number, written: Memory): number;

/**
 * Undoes `iwave21Encoder`.
 * @param source (at least length bytes) What is transformed.
 * @param destination (at least length bytes) What comes of it; of an odd length of 16-bit words the last byte
 *   is left alone.
 * @param length The size of both.
 * @returns 0: Always.
 */
export function iwave21Decoder(source: Memory, destination: Memory, length: number): number;

/**
 * Differences of little-endian 16-bit words, the reference two words before, 0 before the start.
 *
 * The last byte of an odd length is neither coded nor copied: the host carries it.
 * @param source (at least length bytes) What is transformed.
 * @param destination (at least length bytes) What comes of it; of an odd length of 16-bit words the last byte
 *   is left alone.
 * @param length The size of both.
 * @param written (at least 1 words) The number of bytes made: the length, or for 16-bit words the even part
 *   of it.
 * @returns 0: Always.
 */
export function iwave22Encoder(source: Memory, destination: Memory, length: number, written: Memory): number;

/**
 * Undoes `iwave22Encoder`.
 * @param source (at least length bytes) What is transformed.
 * @param destination (at least length bytes) What comes of it; of an odd length of 16-bit words the last byte
 *   is left alone.
 * @param length The size of both.
 * @returns 0: Always.
 */
export function iwave22Decoder(source: Memory, destination: Memory, length: number): number;

/**
 * Parts bytes into two planes.
 * @param source (at least length bytes) What is transformed.
 * @param destination (at least length bytes) What comes of it.
 * @param length The size of both.
 * @param written (at least 1 words) The number of bytes made: the length.
 * @returns 0: Always.
 */
export function ichshift2Encoder(source: Memory, destination: Memory, length: number, written: Memory): number;

/**
 * Puts two planes together again.
 * @param source (at least length bytes) What is transformed.
 * @param destination (at least length bytes) What comes of it.
 * @param length The size of both.
 * @returns 0: Always.
 */
export function ichshift2Decoder(source: Memory, destination: Memory, length: number): number;

/**
 * Parts bytes into three planes.
 * @param source (at least length bytes) What is transformed.
 * @param destination (at least length bytes) What comes of it.
 * @param length The size of both.
 * @param written (at least 1 words) The number of bytes made: the length.
 * @returns 0: Always.
 */
export function ichshift3Encoder(source: Memory, destination: Memory, length: number, written: Memory): number;

/**
 * Puts three planes together again.
 * @param source (at least length bytes) What is transformed.
 * @param destination (at least length bytes) What comes of it.
 * @param length The size of both.
 * @returns 0: Always.
 */
export function ichshift3Decoder(source: Memory, destination: Memory, length: number): number;

/**
 * Parts bytes into four planes.
 * @param source (at least length bytes) What is transformed.
 * @param destination (at least length bytes) What comes of it.
 * @param length The size of both.
 * @param written (at least 1 words) The number of bytes made: the length.
 * @returns 0: Always.
 */
export function ichshift4Encoder(source: Memory, destination: Memory, length: number, written: Memory): number;

/**
 * Puts four planes together again.
 * @param source (at least length bytes) What is transformed.
 * @param destination (at least length bytes) What comes of it.
 * @param length The size of both.
 * @returns 0: Always.
 */
export function ichshift4Decoder(source: Memory, destination: Memory, length: number): number;

/**
 * Codes pairs of bytes, each against the pair before.
 *
 * A pair costs 3 bits (equal to the one before) to 19.
 * @param source (at least length bytes) What is coded.
 * @param destination (at least length bytes) The stream.
 * @param length The size of the source, and of the memory at the destination.
 * @param written (at least 1 words) Bytes of the stream; untouched where the source is shorter than the
 *   minimum.
 * @returns 0: The stream is complete and shorter than the limit.
 *   1: The data does not compress; keep the source. Below the minimum nothing is written, otherwise
 *   the first `*written` bytes of a stream that was given up.
 */
export function iEncoder(source: Memory, destination: Memory, length: number, written: Memory): number;

/**
 * Decodes a trusted stream of `i`.
 *
 * An array has an end, so the work is done by `iDecoderSafe`: a stream that is damaged or cut off returns 1
 * here, and nothing behind it is read.
 * @param stream The stream.
 * @param destination (at least count bytes) What was coded.
 * @param count The length of the source, and the memory at the destination.
 * @returns 0: Done.
 *   1: The count is 0.
 */
export function iDecoder(stream: Memory, destination: Memory, count: number): number;

/**
 * Decodes any stream of `i`, safely.
 * @param stream (at least stream_size bytes) The stream.
 * @param destination (at least count bytes) What was coded.
 * @param stream_size Its size.
 * @param count The length of the source, and the memory at the destination.
 * @returns 0: Done.
 *   1: The stream ended early or the count is 0 (nothing is changed then). The destination begins with
 *   the bytes that were made.
 */
export function iDecoderSafe(stream: Memory, destination: Memory, stream_size: number, count: number): number;

/**
 * Codes pixels that repeat the one before.
 *
 * A group of four bytes that equals the one before costs one bit, any other 33.
 * @param source (at least length bytes) What is coded.
 * @param destination (at least length bytes) The stream.
 * @param length The size of the source, and of the memory at the destination.
 * @param written (at least 1 words) Bytes of the stream; untouched where the source is shorter than the
 *   minimum.
 * @returns 0: The stream is complete and shorter than the limit.
 *   1: The data does not compress; keep the source. Below the minimum nothing is written, otherwise
 *   the first `*written` bytes of a stream that was given up.
 */
export function ioEncoder(source: Memory, destination: Memory, length: number, written: Memory): number;

/**
 * Decodes a trusted stream of `io`.
 *
 * An array has an end, so the work is done by `ioDecoderSafe`: a stream that is damaged or cut off returns 1
 * here, and nothing behind it is read.
 * @param stream The stream.
 * @param destination (at least count bytes) What was coded.
 * @param count The length of the source, and the memory at the destination.
 * @returns 0: Done.
 *   1: The count is 0.
 */
export function ioDecoder(stream: Memory, destination: Memory, count: number): number;

/**
 * Decodes any stream of `io`, safely.
 * @param stream (at least stream_size bytes) The stream.
 * @param destination (at least count bytes) What was coded.
 * @param stream_size Its size.
 * @param count The length of the source, and the memory at the destination.
 * @returns 0: Done.
 *   1: The stream ended early or the count is 0 (nothing is changed then). The destination begins with
 *   the bytes that were made.
 */
export function ioDecoderSafe(stream: Memory, destination: Memory, stream_size: number, count: number): number;

/**
 * Codes blocks of six bytes that repeat the byte before, or are the one that most often follows it in this
 * source, or are sent.
 *
 * 256 bytes of every stream are the table of successors.
 * @param source (at least length bytes) What is coded.
 * @param destination (at least length bytes) The stream.
 * @param length The size of the source, and of the memory at the destination.
 * @param written (at least 1 words) Bytes of the stream; untouched where the source is shorter than the
 *   minimum.
 * @returns 0: The stream is complete and shorter than the limit.
 *   1: The data does not compress; keep the source. Below the minimum nothing is written, otherwise
 *   the first `*written` bytes of a stream that was given up.
 */
export function ib18Encoder(source: Memory, destination: Memory, length: number, written: Memory): number;

/**
 * Decodes a trusted stream of `ib18`.
 *
 * An array has an end, so the work is done by `ib18DecoderSafe`: a stream that is damaged or cut off returns 1
 * here, and nothing behind it is read.
 * @param stream The stream.
 * @param destination (at least count bytes) What was coded.
 * @param count The length of the source, and the memory at the destination.
 * @returns 0: Done; also for a count of 0.
 */
export function ib18Decoder(stream: Memory, destination: Memory, count: number): number;

/**
 * Decodes any stream of `ib18`, safely.
 * @param stream (at least stream_size bytes) The stream.
 * @param destination (at least count bytes) What was coded.
 * @param stream_size Its size.
 * @param count The length of the source, and the memory at the destination.
 * @returns 0: Done.
 *   1: The stream ended early or the count is 0 (nothing is changed then). The destination begins with
 *   the bytes that were made.
 */
export function ib18DecoderSafe(stream: Memory, destination: Memory, stream_size: number, count: number): number;

/**
 * Codes as `ib18Encoder` does, one channel of 32-bit pixels after another.
 *
 * The table of successors is that of the plain order. Only a length that is a multiple of 4 is restored.
 * @param source (at least length bytes) What is coded.
 * @param destination (at least length bytes) The stream.
 * @param length The size of the source, and of the memory at the destination.
 * @param written (at least 1 words) Bytes of the stream; untouched where the source is shorter than the
 *   minimum.
 * @returns 0: The stream is complete and shorter than the limit.
 *   1: The data does not compress; keep the source. Below the minimum nothing is written, otherwise
 *   the first `*written` bytes of a stream that was given up.
 */
export function ib18EncoderEx(source: Memory, destination: Memory, length: number, written: Memory): number;

/**
 * Decodes a trusted stream of `ib18`, one channel after another.
 *
 * An array has an end, so the work is done by `ib18DecoderExSafe`: a stream that is damaged or cut off returns
 * 1 here, and nothing behind it is read.
 * @param stream The stream.
 * @param destination (at least count bytes) What was coded.
 * @param count The length of the source, and the memory at the destination.
 * @returns 0: Done; also for a count of 0.
 */
export function ib18DecoderEx(stream: Memory, destination: Memory, count: number): number;

/**
 * Decodes any stream of `ib18`, one channel after another, safely.
 * @param stream (at least stream_size bytes) The stream.
 * @param destination (at least count bytes) What was coded.
 * @param stream_size Its size.
 * @param count The length of the source, and the memory at the destination.
 * @returns 0: Done.
 *   1: The stream ended early or the count is 0 (nothing is changed then). What was made lies at
 *   positions 0, 4, 8, ..., then 1, 5, ....
 */
export function ib18DecoderExSafe(stream: Memory, destination: Memory, stream_size: number, count: number): number;

/**
 * Codes groups of 4, 8, 16, ...
 *
 * bytes, each group with 8, 5, 3 or 0 bits a byte, whatever differs from the byte before.
 *
 * A stream that is given up ends with one more byte.
 * @param source (at least length bytes) What is coded.
 * @param destination (at least length bytes) The stream.
 * @param length The size of the source, and of the memory at the destination.
 * @param written (at least 1 words) Bytes of the stream; untouched where the source is shorter than the
 *   minimum.
 * @returns 0: The stream is complete and shorter than the limit.
 *   1: The data does not compress; keep the source. Below the minimum nothing is written, otherwise
 *   the first `*written` bytes of a stream that was given up.
 */
export function iabrEncoder(source: Memory, destination: Memory, length: number, written: Memory): number;

/**
 * Decodes a trusted stream of `iabr`.
 *
 * An array has an end, so the work is done by `iabrDecoderSafe`: a stream that is damaged or cut off returns 1
 * here, and nothing behind it is read.
 * @param stream The stream.
 * @param destination (at least count bytes) What was coded.
 * @param count The length of the source, and the memory at the destination.
 * @returns 0: Done.
 *   1: The count is 0.
 */
export function iabrDecoder(stream: Memory, destination: Memory, count: number): number;

/**
 * Decodes any stream of `iabr`, safely.
 * @param stream (at least stream_size bytes) The stream.
 * @param destination (at least count bytes) What was coded.
 * @param stream_size Its size.
 * @param count The length of the source, and the memory at the destination.
 * @returns 0: Done.
 *   1: The stream ended early or the count is 0 (nothing is changed then). The destination begins with
 *   the bytes that were made.
 */
export function iabrDecoderSafe(stream: Memory, destination: Memory, stream_size: number, count: number): number;

/**
 * Codes groups of `4 * 2^k` bytes that agree in their top bits, in a few bits each, with an escape for those
 * that do not fit.
 *
 * A stream that is given up ends with one more byte.
 * @param source (at least length bytes) What is coded.
 * @param destination (at least length bytes) The stream.
 * @param length The size of the source, and of the memory at the destination.
 * @param written (at least 1 words) Bytes of the stream; untouched where the source is shorter than the
 *   minimum.
 * @returns 0: The stream is complete and shorter than the limit.
 *   1: The data does not compress; keep the source. Below the minimum nothing is written, otherwise
 *   the first `*written` bytes of a stream that was given up.
 */
export function inabeEncoder(source: Memory, destination: Memory, length: number, written: Memory): number;

/**
 * Decodes a trusted stream of `inabe`.
 *
 * An array has an end, so the work is done by `inabeDecoderSafe`: a stream that is damaged or cut off returns
 * 1 here, and nothing behind it is read.
 * @param stream The stream.
 * @param destination (at least count bytes) What was coded.
 * @param count The length of the source, and the memory at the destination.
 * @returns 0: Done; also for a count of 0.
 */
export function inabeDecoder(stream: Memory, destination: Memory, count: number): number;

/**
 * Decodes a trusted stream of `inabe` and undoes two transforms in the same pass.
 *
 * Pixels that were prepared with `ichshift4Encoder`, then `iwave11Encoder`, then coded, come back with one
 * call; any length does.
 *
 * An array has an end, so the work is done by `inabeDecoderExSafe`: a stream that is damaged or cut off
 * returns 1 here, and nothing behind it is read.
 * @param stream The stream.
 * @param destination (at least count bytes) What was coded.
 * @param count The length of the source, and the memory at the destination.
 * @returns 0: Done; also for a count of 0.
 */
export function inabeDecoderEx(stream: Memory, destination: Memory, count: number): number;

/**
 * Decodes any stream of `inabe`, safely.
 * @param stream (at least stream_size bytes) The stream.
 * @param destination (at least count bytes) What was coded.
 * @param stream_size Its size.
 * @param count The length of the source, and the memory at the destination.
 * @returns 0: Done.
 *   1: The stream ended early or the count is 0 (nothing is changed then). From the last four whole
 *   codes on, everything up to the end of the group may be wrong.
 */
export function inabeDecoderSafe(stream: Memory, destination: Memory, stream_size: number, count: number): number;

/**
 * Decodes any stream of `inabe` and undoes the transforms as `inabeDecoderEx` does, safely.
 * @param stream (at least stream_size bytes) The stream.
 * @param destination (at least count bytes) What was coded.
 * @param stream_size Its size.
 * @param count The length of the source, and the memory at the destination.
 * @returns 0: Done.
 *   1: The stream ended early or the count is 0 (nothing is changed then). What was made lies at
 *   positions 0, 4, 8, ..., then 1, 5, ..., and its end may be wrong as for `inabeDecoderSafe`.
 */
export function inabeDecoderExSafe(stream: Memory, destination: Memory, stream_size: number, count: number): number;

/**
 * Codes pixels against the pixel before, in two pairs of channels: blue and red, green and alpha.
 *
 * A pixel costs 6 to 34 bits.
 * @param source (at least length bytes) What is coded.
 * @param destination (at least length bytes) The stream.
 * @param length The size of the source, and of the memory at the destination.
 * @param written (at least 1 words) Bytes of the stream; untouched where the source is shorter than the
 *   minimum.
 * @returns 0: The stream is complete and shorter than the limit.
 *   1: The data does not compress; keep the source. Below the minimum nothing is written, otherwise
 *   the first `*written` bytes of a stream that was given up.
 */
export function imistEncoder(source: Memory, destination: Memory, length: number, written: Memory): number;

/**
 * Decodes a trusted stream of `imist`.
 *
 * An array has an end, so the work is done by `imistDecoderSafe`: a stream that is damaged or cut off returns
 * 1 here, and nothing behind it is read.
 * @param stream The stream.
 * @param destination (at least count bytes) What was coded.
 * @param count The length of the source, and the memory at the destination.
 * @returns 0: Done.
 *   1: The count is 0.
 */
export function imistDecoder(stream: Memory, destination: Memory, count: number): number;

/**
 * Decodes any stream of `imist`, safely.
 * @param stream (at least stream_size bytes) The stream.
 * @param destination (at least count bytes) What was coded.
 * @param stream_size Its size.
 * @param count The length of the source, and the memory at the destination.
 * @returns 0: Done.
 *   1: The stream ended early or the count is 0 (nothing is changed then). The destination begins with
 *   the bytes that were made.
 */
export function imistDecoderSafe(stream: Memory, destination: Memory, stream_size: number, count: number): number;

/**
 * Codes blocks of eight bytes, each byte whole or as the bits in which it differs from a byte one to eight
 * places back.
 *
 * The encoder tries every distance and every number of bits.
 * @param source (at least length bytes) What is coded.
 * @param destination (at least length bytes) The stream.
 * @param length The size of the source, and of the memory at the destination.
 * @param written (at least 1 words) Bytes of the stream; untouched where the source is shorter than the
 *   minimum.
 * @returns 0: The stream is complete and shorter than the limit.
 *   1: The data does not compress; keep the source. Below the minimum nothing is written, otherwise
 *   the first `*written` bytes of a stream that was given up.
 */
export function indaEncoder(source: Memory, destination: Memory, length: number, written: Memory): number;

/**
 * Decodes a trusted stream of `inda`.
 *
 * An array has an end, so the work is done by `indaDecoderSafe`: a stream that is damaged or cut off returns 1
 * here, and nothing behind it is read.
 * @param stream The stream.
 * @param destination (at least count bytes) What was coded.
 * @param count The length of the source, and the memory at the destination.
 * @returns 0: Done.
 *   1: The count is 0.
 */
export function indaDecoder(stream: Memory, destination: Memory, count: number): number;

/**
 * Decodes any stream of `inda`, safely.
 * @param stream (at least stream_size bytes) The stream.
 * @param destination (at least count bytes) What was coded.
 * @param stream_size Its size.
 * @param count The length of the source, and the memory at the destination.
 * @returns 0: Done.
 *   1: The stream ended early or the count is 0 (nothing is changed then). The destination begins with
 *   the bytes that were made; several are made at once, and the last of them may be missing.
 */
export function indaDecoderSafe(stream: Memory, destination: Memory, stream_size: number, count: number): number;

/**
 * Codes pixels against the pixel before, each byte whole or cut to its low 3 or 5 bits.
 *
 * A repeated pixel costs 5 bits, any other 17 to 37.
 * @param source (at least length bytes) What is coded.
 * @param destination (at least length bytes) The stream.
 * @param length The size of the source, and of the memory at the destination.
 * @param written (at least 1 words) Bytes of the stream; untouched where the source is shorter than the
 *   minimum.
 * @returns 0: The stream is complete and shorter than the limit.
 *   1: The data does not compress; keep the source. Below the minimum nothing is written, otherwise
 *   the first `*written` bytes of a stream that was given up.
 */
export function icaEncoder(source: Memory, destination: Memory, length: number, written: Memory): number;

/**
 * Decodes a trusted stream of `ica`.
 *
 * An array has an end, so the work is done by `icaDecoderSafe`: a stream that is damaged or cut off returns 1
 * here, and nothing behind it is read.
 * @param stream The stream.
 * @param destination (at least count bytes) What was coded.
 * @param count The length of the source, and the memory at the destination.
 * @returns 0: Done.
 *   1: The count is 0.
 */
export function icaDecoder(stream: Memory, destination: Memory, count: number): number;

/**
 * Decodes any stream of `ica`, safely.
 * @param stream (at least stream_size bytes) The stream.
 * @param destination (at least count bytes) What was coded.
 * @param stream_size Its size.
 * @param count The length of the source, and the memory at the destination.
 * @returns 0: Done.
 *   1: The stream ended early or the count is 0 (nothing is changed then). The destination begins with
 *   the bytes that were made.
 */
export function icaDecoderSafe(stream: Memory, destination: Memory, stream_size: number, count: number): number;

/**
 * Codes pixels whose channels stay constant, in blocks of eight pixels.
 *
 * Takes any length.
 *
 * The stream can be longer than the source.
 * @param source (at least length bytes) What is coded.
 * @param destination (at least length + ceil_div(length, 32) + 3 bytes) The stream.
 * @param length The size of the source, and of the memory at the destination.
 * @param written (at least 1 words) Bytes of the stream.
 * @returns 0: Always.
 */
export function c2fEncoder(source: Memory, destination: Memory, length: number, written: Memory): number;

/**
 * Decodes `c2f`.
 *
 * It checks both sizes, and is safe with any stream.
 *
 * The zeros at the end of a source whose length is not a multiple of 32 are not stored: behind the last byte
 * of the stream every second byte up to `size` becomes 0, beginning with the first, and the ones between keep
 * what they held. A host therefore clears the destination first. An end part that is longer than the room
 * left is cut, with result 0.
 * @param stream (at least stream_size bytes) The stream.
 * @param destination (at least size bytes) What was coded.
 * @param stream_size Its size.
 * @param size The length of the source.
 * @returns 0: Done.
 *   1: The stream ended early, or describes more than `size` bytes before its end part; the
 *   destination begins with what was decoded before that.
 */
export function c2fDecoder(stream: Memory, destination: Memory, stream_size: number, size: number): number;

/**
 * The extents of a bitmap in HIMETRIC units, hundredths of a millimetre, not in pixels.
 *
 * Elsewhere than on Windows at 96 pixels an inch, rounded to nearest: 8 pixels are 212, and `pixels =
 * round(extent * 96 / 2540)`; so too on Windows where the screen has 96 pixels an inch. Both are set to 0
 * before anything else and stay 0 where there is no bitmap.
 * @param file (at least size bytes) The file as it lies on disk.
 * @param size Its size.
 * @param width (at least 1 words) The width.
 * @param height (at least 1 words) The height.
 * @returns 0: Handled; also for a file that is no picture, for a picture that is no bitmap (an icon, a
 *   cursor, a metafile), and where there is no memory for it.
 *   1: The size is out of range.
 */
export function DecodeImageHead(file: Memory, size: number, width: Memory, height: Memory): number;

/**
 * Draws a bitmap at (0, 0) of a device context.
 *
 * Pixels are `0xAARRGGBB` with alpha 0 where the file has none (`BBIClearMask(image, 0, 0, 0, 255,
 * 0x00FFFFFF)` makes them opaque); the fourth byte of 32-bit bitmaps becomes alpha. The rectangle drawn has
 * as many columns as the number of the picture's HIMETRIC height, and as many rows as that of its HIMETRIC
 * width, cut to the picture and to the destination: all of a picture, unless one edge is over 26 times as
 * long as the other.
 *
 * Elsewhere than on Windows a call takes at most 1 GiB of memory, and time for what the destination shows at
 * most: of the worst files known, of 8 MiB or less and drawn to their last row, a bitmap took 0.4 s, a JPEG
 * file 1.4 s, a PNG file 1.8 s and a GIF file 0.8 s of a server's processor.
 * @param device Elsewhere than on Windows an `ImageRecord`; on Windows an HDC.
 * @param file (at least size bytes) The file as it lies on disk.
 * @param size Its size.
 * @returns 0: Handled; also for a file that is no picture, for a picture that is no bitmap (an icon, a
 *   cursor, a metafile), and where there is no memory for it.
 *   1: The size is out of range.
 */
export function DecodeImage(device: ImageLike, file: Memory, size: number): number;

/**
 * Draws the points of the walk; where both ends are one, that pixel.
 * @param image The image that is drawn on.
 * @param x0 The first corner or end.
 * @param y0 The first corner or end.
 * @param x1 The other corner or end.
 * @param y1 The other corner or end.
 * @param mask Bits that the image keeps: `(~mask & colour) | (old & mask)`. 0 stores the colour.
 * @param colour The colour.
 * @returns 0: Done, also when nothing lies inside the image.
 */
export function BBIDrawLine(image: ImageLike, x0: number, y0: number, x1: number, y1: number, mask: number, colour: number): number;

/**
 * Fills holes along a line: writes each point of the walk of whose neighbours three or four equal the colour.
 *
 * Neighbours are the pixels left, right, above and below, inside the image; they are compared in all 32 bits,
 * and count as they are when the walk gets there, those that it has written too. Where both ends are one
 * nothing happens.
 * @param image The image that is drawn on.
 * @param x0 The first corner or end.
 * @param y0 The first corner or end.
 * @param x1 The other corner or end.
 * @param y1 The other corner or end.
 * @param mask Bits that the image keeps: `(~mask & colour) | (old & mask)`. 0 stores the colour.
 * @param colour The colour.
 * @returns 0: Done, also when nothing lies inside the image.
 */
export function BBIDotThick(image: ImageLike, x0: number, y0: number, x1: number, y1: number, mask: number, colour: number): number;

/**
 * Grows strokes of the colour towards a line.
 *
 * Each point of the walk, which may lie outside the image and is not written itself, has four arms: right,
 * left, down, up, in this order. An arm is scanned inwards, at the distances d = `thickness` to 1: where the
 * pixel lies inside the image and equals the colour in all 32 bits, `found = thickness + 1 - d`; then, where
 * it lies inside and `found >= d`, it is written. found starts at 0 for each arm. So the colour at distance d
 * paints its arm from distance `min(d, thickness + 1 - d)` inwards.
 * @param image The image that is drawn on.
 * @param x0 The first corner or end.
 * @param y0 The first corner or end.
 * @param x1 The other corner or end.
 * @param y1 The other corner or end.
 * @param mask Bits that the image keeps: `(~mask & colour) | (old & mask)`. 0 stores the colour.
 * @param colour The colour.
 * @param thickness The length of an arm.
 * @returns 0: Done, also where both ends are one, which does nothing.
 *   1: The thickness is below 1, or the pitch of the image is not 4 * width.
 */
export function BBILineThick(image: ImageLike, x0: number, y0: number, x1: number, y1: number, mask: number, colour: number, thickness: number): number;

/**
 * Draws a gradient line, one step late.
 *
 * The walk here has n + 1 steps, in which an error term drops only when it exceeds n, and every step i = 0..n
 * draws the point it reaches. So from n = 2 on the line runs from one past its start to one past its end: a
 * line from (0, 0) to (4, 0) draws x = 1 to 5. For n = 1 it draws its two ends, for n = 0 its start.
 *
 * All four bytes are stored: with c0, c1 the bytes of the two colours, t = i / n (0 for n = 0) and
 * `u = (float)(1 - t)`, each is `trunc(c1 * t + c0 * u)`. Between equal colours a byte may come out one less.
 * @param image The image that is drawn on.
 * @param colours The first two pixels of its first row are the colours of (x0, y0) and (x1, y1).
 * @param x0 The first corner or end.
 * @param y0 The first corner or end.
 * @param x1 The other corner or end.
 * @param y1 The other corner or end.
 * @returns 0: Done.
 *   1: `colours` is narrower than 2 or has no row.
 */
export function BBIDrawGradationLine(image: ImageLike, colours: ImageLike, x0: number, y0: number, x1: number, y1: number): number;

/**
 * Draws an antialiased gradient line, blended by the alpha of its colours, which is part of the gradient.
 *
 * M is the greater of |x1 - x0| and |y1 - y0|, N the other; the line goes along x where |x1 - x0| is greater,
 * else along y. It begins at the end where that coordinate is less, and the colours c0 and c1 change places
 * with the ends. The other coordinate moves by s: 1 where the last end's is greater or the same, else -1.
 *
 * Two tracks share the coverage: A begins at the start, B at one pixel from it, at s. With
 * `h = (float)(N / M * 0.5)` and `q = (float)((N - h) / M)`, the coverage of A begins at 1 and falls by q a
 * step; below 0 it grows by 1 and A moves by s. That of B begins at h / 2 and grows by q a step; above 1 it
 * falls by 1 and B moves by s. These sums are exact.
 *
 * For i = 0..M, both ends included, the colour is c = mix(c0, c1, `trunc((float)(i / M) * 256)`), and a pixel
 * of coverage v becomes mix(pixel, c, `trunc(min(alpha * 0.003921569f * v, 1) * 256)`), alpha being that of
 * c: first A, then B, then, where B is two pixels ahead of A, the one between them with v = 1. Where A or B
 * lies outside the image, none of them is drawn: a horizontal line in the last row draws nothing, nor does a
 * vertical one in the last column. Where both ends are one nothing happens.
 * @param image The image that is drawn on.
 * @param colours The first two pixels of its first row are the colours of (x0, y0) and (x1, y1).
 * @param x0 The first corner or end.
 * @param y0 The first corner or end.
 * @param x1 The other corner or end.
 * @param y1 The other corner or end.
 * @returns 0: Done.
 *   1: `colours` is narrower than 2 or has no row.
 */
export function BBIDrawAlphaLine(image: ImageLike, colours: ImageLike, x0: number, y0: number, x1: number, y1: number): number;

/**
 * Fills with one colour.
 * @param image The image that is drawn on.
 * @param x The upper left corner.
 * @param y The upper left corner.
 * @param cx The size.
 * @param cy The size.
 * @param mask Bits that the image keeps: `(~mask & colour) | (old & mask)`. 0 stores the colour.
 * @param colour The colour.
 * @returns 0: Done.
 *   1: Clipping left nothing.
 */
export function BBIDrawColorFill(image: ImageLike, x: number, y: number, cx: number, cy: number, mask: number, colour: number): number;

/**
 * Fills with a checkerboard of four colours: pixel (i, j) of the image has colour number `(i / tile_cx & 1) +
 * 2 * (j / tile_cy & 1)`.
 *
 * The pattern begins at the image's corner, not at the box's.
 * @param image The image that is drawn on.
 * @param x The upper left corner.
 * @param y The upper left corner.
 * @param cx The size.
 * @param cy The size.
 * @param mask Bits that the image keeps: `(~mask & colour) | (old & mask)`. 0 stores the colour.
 * @param tile_cx The width of a tile; below 1 counts as 1.
 * @param tile_cy The height of a tile; below 1 counts as 1.
 * @param colour0 Even columns of tiles in even rows.
 * @param colour1 Odd columns in even rows.
 * @param colour2 Even columns in odd rows.
 * @param colour3 Odd columns in odd rows.
 * @returns 0: Done.
 *   1: Clipping left nothing.
 */
export function BBIDrawColorTile(image: ImageLike, x: number, y: number, cx: number, cy: number, mask: number, tile_cx: number, tile_cy: number, colour0: number, colour1: number, colour2: number, colour3: number): number;

/**
 * Fills with a gradient between four corner colours, of which a clipped box shows its part.
 *
 * With (sx, sy, sw, sh) the clipped source rectangle, the visible part begins at `(float)(sx / W)` and ends
 * at `(float)((sx + sw) / W)` across, down likewise with H. Column i of n visible ones lies at
 * `u = (1 - f) * begin + f * end` with `f = i / (n - 1)`; rows likewise, but v is rounded to float. A weight
 * is `trunc(max(min(u, 1), 0) * 256)`. With the weights wu and wv the pixel is
 * `mix(mix(top_left, bottom_left, wv), mix(top_right, bottom_right, wv), wu)`.
 *
 * Where one column (row) is visible, its weight is 0: it shows the left (top) colours, wherever it lies in
 * the box.
 * @param image The image that is drawn on.
 * @param x The upper left corner.
 * @param y The upper left corner.
 * @param cx The size.
 * @param cy The size.
 * @param mask Bits that the image keeps: `(~mask & colour) | (old & mask)`. 0 stores the colour.
 * @param top_left The colour of the corner.
 * @param top_right The colour of the corner.
 * @param bottom_left The colour of the corner.
 * @param bottom_right The colour of the corner.
 * @returns 0: Done.
 *   1: Clipping left nothing.
 */
export function BBIDrawBox(image: ImageLike, x: number, y: number, cx: number, cy: number, mask: number, top_left: number, top_right: number, bottom_left: number, bottom_right: number): number;

/**
 * Fills with a gradient between the upper left 2 x 2 pixels of the pattern, one for each corner.
 *
 * With p(column, row) a byte of the pattern, read before the first pixel is written,
 * `left = (float)(v * p(0, 1) + (1 - v) * p(0, 0))` and `right = (float)(v * p(1, 1) + (1 - v) * p(1, 0))`,
 * the byte is `trunc((1 - u) * left + u * right)`.
 * @param image The image that is drawn on.
 * @param pattern At least 2 x 2 pixels. It may be part of the image.
 * @param x0 The first corner or end.
 * @param y0 The first corner or end.
 * @param x1 The other corner or end.
 * @param y1 The other corner or end.
 * @returns 0: Done, also when nothing lies inside the image.
 *   1: The pattern is smaller than 2 x 2.
 */
export function BBIDrawGradationBox(image: ImageLike, pattern: ImageLike, x0: number, y0: number, x1: number, y1: number): number;

/**
 * Multiplies a colour chosen along x with one chosen along y: `a * b / 255` rounded down, byte by byte.
 *
 * a is column `trunc(u * (pattern width - 1))` of the pattern's first row, read for each pixel; b is column
 * `trunc(v * (pattern width - 1))` of its second row, read for each row.
 * @param image The image that is drawn on.
 * @param pattern At least 2 x 2 pixels. It may be part of the image.
 * @param x0 The first corner or end.
 * @param y0 The first corner or end.
 * @param x1 The other corner or end.
 * @param y1 The other corner or end.
 * @returns 0: Done, also when nothing lies inside the image.
 *   1: The pattern is smaller than 2 x 2.
 */
export function BBIDrawMultiplyLineBox(image: ImageLike, pattern: ImageLike, x0: number, y0: number, x1: number, y1: number): number;

/**
 * As BBIDrawMultiplyLineBox, with `a + b`, above 255 folded back to `510 - (a + b)`.
 * @param image The image that is drawn on.
 * @param pattern At least 2 x 2 pixels. It may be part of the image.
 * @param x0 The first corner or end.
 * @param y0 The first corner or end.
 * @param x1 The other corner or end.
 * @param y1 The other corner or end.
 * @returns 0: Done, also when nothing lies inside the image.
 *   1: The pattern is smaller than 2 x 2.
 */
export function BBIDrawExclusiveLineBox(image: ImageLike, pattern: ImageLike, x0: number, y0: number, x1: number, y1: number): number;

/**
 * Fills the pixels strictly inside: E(0, 1), E(1, 2) and E(2, 0) are all negative or all positive.
 *
 * No pixel on an edge is drawn, and none of a triangle without area.
 * @param image The image that is drawn on.
 * @param x0 The first corner or end.
 * @param y0 The first corner or end.
 * @param x1 The other corner or end.
 * @param y1 The other corner or end.
 * @param x2 The third corner.
 * @param y2 The third corner.
 * @param mask Bits that the image keeps: `(~mask & colour) | (old & mask)`. 0 stores the colour.
 * @param colour The colour.
 * @returns 0: Always.
 */
export function BBIDrawTriangle(image: ImageLike, x0: number, y0: number, x1: number, y1: number, x2: number, y2: number, mask: number, colour: number): number;

/**
 * Fills the pixels inside and on the edges: where E(0, 1) is positive the other two are 0 or more, else they
 * are 0 or less.
 *
 * Of a triangle without area these are the pixels exactly on its segment. Where the corners are in clockwise
 * order as seen on the screen, as (0, 0), (4, 0), (0, 4) are, the edge from the first to the second is left
 * out.
 * @param image The image that is drawn on.
 * @param x0 The first corner or end.
 * @param y0 The first corner or end.
 * @param x1 The other corner or end.
 * @param y1 The other corner or end.
 * @param x2 The third corner.
 * @param y2 The third corner.
 * @param mask Bits that the image keeps: `(~mask & colour) | (old & mask)`. 0 stores the colour.
 * @param colour The colour.
 * @returns 0: Always.
 */
export function BBIDrawTriangleA(image: ImageLike, x0: number, y0: number, x1: number, y1: number, x2: number, y2: number, mask: number, colour: number): number;

/**
 * Fills with rings: from the first row of the palette.
 * @param image The image that is drawn on.
 * @param palette The colours.
 * @param x0 The first corner or end.
 * @param y0 The first corner or end.
 * @param x1 The other corner or end.
 * @param y1 The other corner or end.
 * @returns 0: Done, also when nothing lies inside the image.
 *   1: The palette is narrower than 2 or has no row.
 */
export function BBIDrawLineCircle(image: ImageLike, palette: ImageLike, x0: number, y0: number, x1: number, y1: number): number;

/**
 * Fills with rings and rays: from the row of the palette that the angle selects.
 *
 * Here `v * v` in r is rounded to float. The fraction t of a turn is `atan(u / v) * 0.159154976`, plus 0.25
 * where v is negative and 0.75 where it is positive; where v is 0 it is 0.5 for a negative u, else 0. So 0 is
 * to the right, 0.25 above, 0.5 to the left, 0.75 below, if the corners are the upper left and the lower
 * right. The row is `min(trunc(t * palette height), palette height - 1)`. The arctangent is within one unit
 * in the last place of the exact one and the same on every target.
 * @param image The image that is drawn on.
 * @param palette The colours.
 * @param x0 The first corner or end.
 * @param y0 The first corner or end.
 * @param x1 The other corner or end.
 * @param y1 The other corner or end.
 * @returns 0: Done, also when nothing lies inside the image.
 *   1: The palette is smaller than 2 x 2.
 */
export function BBIDrawPolaCircle(image: ImageLike, palette: ImageLike, x0: number, y0: number, x1: number, y1: number): number;

/**
 * Tells the level of the processor, found when the library was loaded.
 * @returns The level: no result of another function depends on it.
 */
export function GetCpuID(): number;

/**
 * Returns its argument.
 *
 * Kept for hosts that choose wide code paths with it; the library chooses by itself, and no result depends on
 * it.
 * @param flag Any number.
 * @returns `flag`.
 */
export function MMX(flag: number): number;

/**
 * Returns its argument: lets a host see that the library is there.
 * @param x Any number.
 * @returns `x`.
 */
export function BBI(x: number): number;

/**
 * Returns its argument: lets a host see that the library is there.
 * @param x Any number.
 * @returns `x`.
 */
export function wave(x: number): number;

/**
 * Shifts right and fills with zeros.
 * @param value The number that is shifted or stored.
 * @param count By how many bits; only its low five bits count, so that 33 shifts by 1.
 * @returns `value >> (count & 31)`, unsigned.
 */
export function SHR(value: number, count: number): number;

/**
 * Shifts right and fills with the sign.
 * @param value The number that is shifted or stored.
 * @param count By how many bits; only its low five bits count, so that 33 shifts by 1.
 * @returns `value >> (count & 31)`, signed: -8 by 1 is -4, -1 by anything -1.
 */
export function SAR(value: number, count: number): number;

/**
 * Shifts left.
 * @param value The number that is shifted or stored.
 * @param count By how many bits; only its low five bits count, so that 33 shifts by 1.
 * @returns The low 32 bits of `value << (count & 31)`.
 */
export function SHL(value: number, count: number): number;

/**
 * Reads the 16-bit word at `base + 2 * index`.
 *
 * The result is 16 bits wide: a host that takes it for 32 finds undefined bits in the upper half.
 * @param base Where index 0 lies.
 * @param index Which word, counted from `base`; may be negative.
 * @returns The word.
 */
export function GetWORD(base: Memory, index: number): number;

/**
 * Reads the 16-bit word at `base + 2 * index`.
 *
 * The result is 16 bits wide: a host that takes it for 32 finds undefined bits in the upper half.
 * @param base Where index 0 lies.
 * @param index Which word, counted from `base`; may be negative.
 * @returns The word.
 */
export function GetInt(base: Memory, index: number): number;

/**
 * Stores the low 16 bits of a number at `base + 2 * index`.
 * @param base Where index 0 lies.
 * @param index Which word, counted from `base`; may be negative.
 * @param value The number that is shifted or stored.
 * @returns What was stored; 16 bits wide, as with GetWORD.
 */
export function SetWORD(base: Memory, index: number, value: number): number;

/**
 * Stores the low 16 bits of a number at `base + 2 * index`.
 * @param base Where index 0 lies.
 * @param index Which word, counted from `base`; may be negative.
 * @param value The number that is shifted or stored.
 * @returns What was stored; 16 bits wide, as with GetWORD.
 */
export function SetInt(base: Memory, index: number, value: number): number;

/**
 * Reads the 32-bit word at `base + 4 * index`.
 * @param base Where index 0 lies.
 * @param index Which word, counted from `base`; may be negative.
 * @returns The word.
 */
export function GetDWORD(base: Memory, index: number): number;

/**
 * Reads the 32-bit word at `base + 4 * index`.
 * @param base Where index 0 lies.
 * @param index Which word, counted from `base`; may be negative.
 * @returns The word.
 */
export function GetLong(base: Memory, index: number): number;

/**
 * Stores a number at `base + 4 * index`.
 * @param base Where index 0 lies.
 * @param index Which word, counted from `base`; may be negative.
 * @param value The number that is shifted or stored.
 * @returns `value`.
 */
export function SetDWORD(base: Memory, index: number, value: number): number;

/**
 * Stores a number at `base + 4 * index`.
 * @param base Where index 0 lies.
 * @param index Which word, counted from `base`; may be negative.
 * @param value The number that is shifted or stored.
 * @returns `value`.
 */
export function SetLong(base: Memory, index: number, value: number): number;

/**
 * Compares bytes.
 *
 * The count may reach beyond the end of the memory if a difference lies before it: no page of 4096 bytes
 * behind that of the first difference is touched.
 * @param a (at least count bytes) The one.
 * @param b (at least count bytes) The other.
 * @param count How many are compared; trusted up to the first difference.
 * @returns 0: They are equal, or `count` is below 1.
 *   1: They differ.
 */
export function dllComp(a: Memory, b: Memory, count: number): number;

/**
 * Exclusive-ors a block of words into another, despite the name: onto zeros it copies, applied twice it undoes
 * itself.
 *
 * In each row `dst[i] ^= src[i]`, word after word; then both move on by `pitch` bytes. Rows or words below 1
 * do nothing.
 * @param dst (at least abs(pitch) * (rows - 1) + 4 * words bytes) The block that is changed, from the first
 *   word of its first row.
 * @param src (at least abs(pitch) * (rows - 1) + 4 * words bytes) The block that is read.
 * @param words 32-bit words in a row.
 * @param rows Rows.
 * @param pitch From the start of one row to that of the next, in both blocks; may be negative.
 * @returns 0: Always.
 */
export function CopyMemoryEx(dst: Memory, src: Memory, words: number, rows: number, pitch: number): number;

/**
 * Hashes a zero-terminated text, or the first 64 bytes of a longer one.
 *
 * The value is the same on all targets and in all versions, so that it may be stored. In unsigned 32-bit
 * arithmetic:
 *
 * ```
 * h1 = 0x22A83D, h2 = 0x1476E5
 * for each byte ch before the zero, at most 64:
 *   h2 = h2 & 0x3FFFFF
 *   h1 = (h1 & 0x3FFFFF) + (h2 >> 1) + ch + 520 * h2
 *   h2 = h2 + ch + 162 * h1
 * result = (h1 << 16) ^ h2
 * ```
 * @param text (at least 64 bytes) The text; nothing behind its zero is read.
 * @returns The hash; that of nothing is 0xA82976E5.
 */
export function hash32A(text: Memory): number;

/**
 * Hashes bytes of a given number, by another function than `hash32A`.
 *
 * Zero bytes are skipped, so that a 16-bit text of ASCII characters hashes like its 8-bit form. The value is
 * the same on all targets and in all versions. In unsigned 32-bit arithmetic:
 *
 * ```
 * h1 = 0x12A83D, h2 = 0x1476E5
 * for each byte ch that is not 0:
 *   h2 = h2 & 0x1FFFFF
 *   h1 = (h1 & 0x1FFFFF) + (h2 >> 1) + ch + 520 * h2
 *   h2 = h2 + ch + 38 * h1
 * result = (h1 << 16) ^ h2
 * ```
 * @param bytes (at least length bytes) What is hashed.
 * @param length How many bytes; below 1 there are none.
 * @returns The hash; that of nothing is 0xA82976E5.
 */
export function hash32W(bytes: Memory, length: number): number;

/**
 * Mixes two colours, alpha included.
 * @param colour0 The colour at factor 0.
 * @param colour1 The colour at factor 1.
 * @param factor How much of `colour1`: negative, or not a number, counts as 0, above 1 as 1.
 * @returns Of each byte `(c0 * (256 - k) + c1 * k) >> 8` with `k = trunc(factor * 256)`.
 */
export function dwColorBlend(colour0: number, colour1: number, factor: number): number;

/**
 * Calls a function of one argument, which follows C's convention.
 * @param fn The function that is called.
 * @param a Its arguments, each as wide as a pointer.
 * @returns What `fn` returns.
 */
export function dllMethod1(fn: TessaroMethod1, a: number): number;

/**
 * Calls a function of four arguments, which follows C's convention.
 * @param fn The function that is called.
 * @param a Its arguments, each as wide as a pointer.
 * @param b Its arguments, each as wide as a pointer.
 * @param c Its arguments, each as wide as a pointer.
 * @param d Its arguments, each as wide as a pointer.
 * @returns What `fn` returns.
 */
export function dllMethod4(fn: TessaroMethod4, a: number, b: number, c: number, d: number): number;

/**
 * Calls a function of two arguments, which follows the library's own convention.
 * @param fn The function that is called.
 * @param a Its arguments, each as wide as a pointer.
 * @param b Its arguments, each as wide as a pointer.
 * @returns What `fn` returns.
 */
export function StdCallBack(fn: TessaroCallback2, a: number, b: number): number;

/**
 * Draws a random number below a limit.
 *
 * The generator is the Mersenne Twister MT19937 of M. Matsumoto and T. Nishimura (1998) with the seeding of
 * its revision of October 1999 (each word joins the high halves of two steps of `s = 69069 * s + 1`), seeded
 * with the milliseconds since the system started when the library is loaded. It has one state for the process
 * and no lock: of two threads that draw at the same moment both may get the same number, and a host that
 * minds locks for itself.
 * @param n The limit, unsigned. 0 divides by zero and faults.
 * @returns The next output modulo `n`; each call draws one, also with 1.
 */
export function GetRandom(n: number): number;

/**
 * Runs a function in a thread of its own, again and again, and returns when that thread has ended.
 *
 * The call blocks, yielding in a loop, so `ThreadKill` has to come from another thread. The function runs at
 * least once unless `ThreadKill` came before the thread did. Two threads must not call `ThreadBegin` at the
 * same moment.
 * @param fn What the thread calls.
 * @returns 0: The thread has ended, or the system could not make one.
 *   1: There is a worker already; told at once. One that ended in another way than by `ThreadKill`,
 *   its function having left by `ExitThread` or `pthread_exit`, still counts until `ThreadKill`.
 */
export function ThreadBegin(fn: TessaroWorker): Promise<number>;

/**
 * Stops the worker after its current call, and waits until it has ended, without a time limit.
 *
 * Then `ThreadBegin` may be called again. Called from within the worker's function it waits for ever. Two
 * threads must not call it at the same moment.
 * @returns 0: The worker has ended.
 *   1: There is no worker.
 */
export function ThreadKill(): Promise<number>;

/**
 * Offers the messages of a window to a function first, by giving the window a procedure of the library's.
 *
 * Procedures are read, set and called by the system's ANSI functions (`GetWindowLongPtrA` and its like), so
 * that texts in messages are ANSI ones. A window that is hooked a second time gets a second entry whose
 * previous procedure is the library's own, while its messages find the first: unhook it before hooking it
 * again.
 * @param window A window, an `HWND`.
 * @param hook What sees the messages.
 * @param value A number that `hook` is given with each message.
 * @returns 0: The window is hooked.
 *   1: The table is full, or the window has no procedure that can be read. So it is always where there
 *   are no such windows: everywhere but on Windows.
 */
export function WindowProcLoad(window: bigint | null, hook: TessaroHook, value: number): number;

/**
 * Gives a window its previous procedure back.
 * @param window A window, an `HWND`.
 * @returns 0: The window is unhooked.
 *   1: The window is not hooked.
 */
export function WindowProcUnload(window: bigint | null): number;

/**
 * A tone curve for each channel: row 0 for every pixel, columns from s.
 * @param dst The image that is changed.
 * @param src What is recoloured, or selects the row.
 * @param map At least 256 pixels wide, of which the first 256 columns count, and one row high.
 * @param dx Where the rectangle begins in `dst`.
 * @param dy Where the rectangle begins in `dst`.
 * @param cx The size of the rectangle.
 * @param cy The size of the rectangle.
 * @param sx Where the rectangle begins in the images that are read.
 * @param sy Where the rectangle begins in the images that are read.
 * @returns 0: Done.
 *   1: Clipping left nothing, or the map is too small.
 */
export function BBIMapUC(dst: ImageLike, src: ImageLike, map: ImageLike, dx: number, dy: number, cx: number, cy: number, sx: number, sy: number): number;

/**
 * Row by the alpha of s, with the factor `(float)((H - 1) * 0.003921569f)`; columns from s.
 *
 * The constant is a little above 1 / 255. With 256 rows the row is the alpha.
 * @param dst The image that is changed.
 * @param src What is recoloured, or selects the row.
 * @param map At least 256 pixels wide, of which the first 256 columns count, and one row high.
 * @param dx Where the rectangle begins in `dst`.
 * @param dy Where the rectangle begins in `dst`.
 * @param cx The size of the rectangle.
 * @param cy The size of the rectangle.
 * @param sx Where the rectangle begins in the images that are read.
 * @param sy Where the rectangle begins in the images that are read.
 * @returns 0: Done.
 *   1: Clipping left nothing, or the map is too small.
 */
export function BBIMapUCVA(dst: ImageLike, src: ImageLike, map: ImageLike, dx: number, dy: number, cx: number, cy: number, sx: number, sy: number): number;

/**
 * The row of BBIMapUCVA, columns from d: s only selects the row.
 * @param dst The image that is changed.
 * @param src What is recoloured, or selects the row.
 * @param map At least 256 pixels wide, of which the first 256 columns count, and one row high.
 * @param dx Where the rectangle begins in `dst`.
 * @param dy Where the rectangle begins in `dst`.
 * @param cx The size of the rectangle.
 * @param cy The size of the rectangle.
 * @param sx Where the rectangle begins in the images that are read.
 * @param sy Where the rectangle begins in the images that are read.
 * @returns 0: Done.
 *   1: Clipping left nothing, or the map is too small.
 */
export function BBIMapUDVA(dst: ImageLike, src: ImageLike, map: ImageLike, dx: number, dy: number, cx: number, cy: number, sx: number, sy: number): number;

/**
 * As BBIMapUCVA, but the alpha of d stays.
 * @param dst The image that is changed.
 * @param src What is recoloured, or selects the row.
 * @param map At least 256 x 256 pixels.
 * @param dx Where the rectangle begins in `dst`.
 * @param dy Where the rectangle begins in `dst`.
 * @param cx The size of the rectangle.
 * @param cy The size of the rectangle.
 * @param sx Where the rectangle begins in the images that are read.
 * @param sy Where the rectangle begins in the images that are read.
 * @returns 0: Done.
 *   1: Clipping left nothing, or the map is too small.
 */
export function BBIMapMCUCVA(dst: ImageLike, src: ImageLike, map: ImageLike, dx: number, dy: number, cx: number, cy: number, sx: number, sy: number): number;

/**
 * As BBIMapUDVA, but the alpha of d stays.
 * @param dst The image that is changed.
 * @param src What is recoloured, or selects the row.
 * @param map At least 256 x 256 pixels.
 * @param dx Where the rectangle begins in `dst`.
 * @param dy Where the rectangle begins in `dst`.
 * @param cx The size of the rectangle.
 * @param cy The size of the rectangle.
 * @param sx Where the rectangle begins in the images that are read.
 * @param sy Where the rectangle begins in the images that are read.
 * @returns 0: Done.
 *   1: Clipping left nothing, or the map is too small.
 */
export function BBIMapMCUDVA(dst: ImageLike, src: ImageLike, map: ImageLike, dx: number, dy: number, cx: number, cy: number, sx: number, sy: number): number;

/**
 * Row by blue + green + red of s, with the factor `(float)((H - 1) * 0.0013071896f)`; columns from s.
 *
 * The constant is about 1 / 765.
 * @param dst The image that is changed.
 * @param src What is recoloured, or selects the row.
 * @param map At least 256 pixels wide, of which the first 256 columns count, and one row high.
 * @param dx Where the rectangle begins in `dst`.
 * @param dy Where the rectangle begins in `dst`.
 * @param cx The size of the rectangle.
 * @param cy The size of the rectangle.
 * @param sx Where the rectangle begins in the images that are read.
 * @param sy Where the rectangle begins in the images that are read.
 * @returns 0: Done.
 *   1: Clipping left nothing, or the map is too small.
 */
export function BBIMapUCVC(dst: ImageLike, src: ImageLike, map: ImageLike, dx: number, dy: number, cx: number, cy: number, sx: number, sy: number): number;

/**
 * The row of BBIMapUCVC, columns from d.
 * @param dst The image that is changed.
 * @param src What is recoloured, or selects the row.
 * @param map At least 256 pixels wide, of which the first 256 columns count, and one row high.
 * @param dx Where the rectangle begins in `dst`.
 * @param dy Where the rectangle begins in `dst`.
 * @param cx The size of the rectangle.
 * @param cy The size of the rectangle.
 * @param sx Where the rectangle begins in the images that are read.
 * @param sy Where the rectangle begins in the images that are read.
 * @returns 0: Done.
 *   1: Clipping left nothing, or the map is too small.
 */
export function BBIMapUDVC(dst: ImageLike, src: ImageLike, map: ImageLike, dx: number, dy: number, cx: number, cy: number, sx: number, sy: number): number;

/**
 * Row by the column in the clipped rectangle: in column i, `trunc(4 * i * (float)((H - 1) / (4.0 * (cx -
 * 1))))`; columns from s.
 *
 * So the left edge has the first row of the map and the right edge the last, or the one before it, as the
 * rounding of the factor goes. One pixel wide, it has row 0.
 * @param dst The image that is changed.
 * @param src What is recoloured, or selects the row.
 * @param map At least 256 pixels wide, of which the first 256 columns count, and one row high.
 * @param dx Where the rectangle begins in `dst`.
 * @param dy Where the rectangle begins in `dst`.
 * @param cx The size of the rectangle.
 * @param cy The size of the rectangle.
 * @param sx Where the rectangle begins in the images that are read.
 * @param sy Where the rectangle begins in the images that are read.
 * @returns 0: Done.
 *   1: Clipping left nothing, or the map is too small.
 */
export function BBIMapUCVX(dst: ImageLike, src: ImageLike, map: ImageLike, dx: number, dy: number, cx: number, cy: number, sx: number, sy: number): number;

/**
 * The same downward: in row i of the rectangle, `trunc(i * (float)((H - 1) / (cy - 1.0)))`; one pixel high,
 * row 0.
 * @param dst The image that is changed.
 * @param src What is recoloured, or selects the row.
 * @param map At least 256 pixels wide, of which the first 256 columns count, and one row high.
 * @param dx Where the rectangle begins in `dst`.
 * @param dy Where the rectangle begins in `dst`.
 * @param cx The size of the rectangle.
 * @param cy The size of the rectangle.
 * @param sx Where the rectangle begins in the images that are read.
 * @param sy Where the rectangle begins in the images that are read.
 * @returns 0: Done.
 *   1: Clipping left nothing, or the map is too small.
 */
export function BBIMapUCVY(dst: ImageLike, src: ImageLike, map: ImageLike, dx: number, dy: number, cx: number, cy: number, sx: number, sy: number): number;

/**
 * A wipe or fade in which the incoming picture's own alpha is the stencil.
 * @param dst The image that is changed.
 * @param outgoing The picture that progress 0 shows.
 * @param incoming The picture that progress 1 shows.
 * @param dx Where the rectangle begins in `dst`.
 * @param dy Where the rectangle begins in `dst`.
 * @param cx The size of the rectangle.
 * @param cy The size of the rectangle.
 * @param sx Where the rectangle begins in the images that are read.
 * @param sy Where the rectangle begins in the images that are read.
 * @param progress How far the transition has gone; clamped, not a number counts as 0.
 * @param softness The width of the edge.
 * @param unused Counts for nothing.
 * @returns 0: Done.
 *   1: Clipping left nothing.
 */
export function BBIStencilFlip(dst: ImageLike, outgoing: ImageLike, incoming: ImageLike, dx: number, dy: number, cx: number, cy: number, sx: number, sy: number, progress: number, softness: number, unused: number): number;

/**
 * A wipe or fade with a stencil of its own.
 * @param dst The image that is changed.
 * @param outgoing The picture that progress 0 shows.
 * @param incoming The picture that progress 1 shows.
 * @param stencil Its alpha decides.
 * @param dx Where the rectangle begins in `dst`.
 * @param dy Where the rectangle begins in `dst`.
 * @param cx The size of the rectangle.
 * @param cy The size of the rectangle.
 * @param sx Where the rectangle begins in the images that are read.
 * @param sy Where the rectangle begins in the images that are read.
 * @param progress How far the transition has gone; clamped, not a number counts as 0.
 * @param softness The width of the edge.
 * @returns 0: Done.
 *   1: Clipping left nothing.
 */
export function BBIStencilFlipLE(dst: ImageLike, outgoing: ImageLike, incoming: ImageLike, stencil: ImageLike, dx: number, dy: number, cx: number, cy: number, sx: number, sy: number, progress: number, softness: number): number;

/**
 * As BBIStencilFlipLE, with the two pictures in the other order.
 * @param dst The image that is changed.
 * @param incoming The picture that progress 1 shows.
 * @param outgoing The picture that progress 0 shows.
 * @param stencil Its alpha decides.
 * @param dx Where the rectangle begins in `dst`.
 * @param dy Where the rectangle begins in `dst`.
 * @param cx The size of the rectangle.
 * @param cy The size of the rectangle.
 * @param sx Where the rectangle begins in the images that are read.
 * @param sy Where the rectangle begins in the images that are read.
 * @param progress How far the transition has gone; clamped, not a number counts as 0.
 * @param softness The width of the edge.
 * @returns 0: Done.
 *   1: Clipping left nothing.
 */
export function BBIStencilFlipLEFix(dst: ImageLike, incoming: ImageLike, outgoing: ImageLike, stencil: ImageLike, dx: number, dy: number, cx: number, cy: number, sx: number, sy: number, progress: number, softness: number): number;

/**
 * Shifts colours up or down where the stencil, the alpha of `src`, is.
 *
 * d becomes mix(d, T, w): the colours of T are `min(max(d + 2 * c - 255, 0), 255)` with c the byte of
 * `colour`, its alpha is 0. So 128 adds 1, 127 takes 1, 255 adds 255, 0 takes 255; and the alpha of `dst`
 * falls to 0 where the stencil is opaque. w is `trunc(a * opacity * 0.003921569f * 256)` for a stencil of a,
 * products from left to right.
 * @param dst The image that is changed.
 * @param src The stencil.
 * @param dx Where the rectangle begins in `dst`.
 * @param dy Where the rectangle begins in `dst`.
 * @param cx The size of the rectangle.
 * @param cy The size of the rectangle.
 * @param sx Where the rectangle begins in the images that are read.
 * @param sy Where the rectangle begins in the images that are read.
 * @param opacity Clamped; not a number counts as 0.
 * @param colour The shift; its alpha counts for nothing.
 * @returns 0: Done.
 *   1: Clipping left nothing.
 */
export function BBIStencilAddsigned(dst: ImageLike, src: ImageLike, dx: number, dy: number, cx: number, cy: number, sx: number, sy: number, opacity: number, colour: number): number;

/**
 * Copies: `s`.
 * @param dst The image that is changed.
 * @param src The image that is read.
 * @param dx Left column and top row of the rectangle in `dst`.
 * @param dy Left column and top row of the rectangle in `dst`.
 * @param cx Width and height of the rectangle.
 * @param cy Width and height of the rectangle.
 * @param sx Left column and top row of the rectangle in `src`.
 * @param sy Left column and top row of the rectangle in `src`.
 * @returns 0: Done.
 *   1: Clipping left nothing.
 */
export function BBIBlt(dst: ImageLike, src: ImageLike, dx: number, dy: number, cx: number, cy: number, sx: number, sy: number): number;

/**
 * Fills with a colour, all bits of it or some: `((d ^ invert_bits) & mask) | (colour & ~mask)`.
 *
 * A mask of 0 fills; one of 0xFFFFFFFF only inverts.
 * @param dst The image that is changed.
 * @param dx Left column and top row of the rectangle in `dst`.
 * @param dy Left column and top row of the rectangle in `dst`.
 * @param cx Width and height of the rectangle.
 * @param cy Width and height of the rectangle.
 * @param mask Bits that the image keeps.
 * @param invert_bits Bits that are inverted first; those that `mask` has not set do not show.
 * @param colour A colour.
 * @returns 0: Done.
 *   1: Clipping left nothing.
 */
export function BBIBltColor(dst: ImageLike, dx: number, dy: number, cx: number, cy: number, mask: number, invert_bits: number, colour: number): number;

/**
 * Mixes a colour into a rectangle, with the weight `trunc(factor * 256)`.
 * @param dst The image that is changed.
 * @param dx Left column and top row of the rectangle in `dst`.
 * @param dy Left column and top row of the rectangle in `dst`.
 * @param cx Width and height of the rectangle.
 * @param cy Width and height of the rectangle.
 * @param colour A colour.
 * @param factor How much of the colour: 1 and above fill.
 * @returns 0: Done.
 *   1: Clipping left nothing, or the factor is negative or not a number.
 */
export function BBIBltColorBlend(dst: ImageLike, dx: number, dy: number, cx: number, cy: number, colour: number, factor: number): number;

/**
 * Combines alphas and keeps the colours of `dst`.
 *
 * With `da` the alpha of `d` and `a` that of `s`, these act if their flags are on, in this order, the reverse
 * of that of the arguments:
 *
 * 1. `subtract_from_dest`: `a = da - a`
 * 2. `invert`: `a = 255 - a`
 * 3. `min_with_dest`: `a = min(a, da)`
 * 4. `max_with_dest`: `a = max(a, da)`
 *
 * The low eight bits of `a` are stored: what lies outside 0 to 255 wraps (10 - 20 gives 246). With the last
 * two on `da` stays.
 * @param dst The image that is changed.
 * @param src The image that is read.
 * @param dx Left column and top row of the rectangle in `dst`.
 * @param dy Left column and top row of the rectangle in `dst`.
 * @param cx Width and height of the rectangle.
 * @param cy Width and height of the rectangle.
 * @param sx Left column and top row of the rectangle in `src`.
 * @param sy Left column and top row of the rectangle in `src`.
 * @param max_with_dest Step 4.
 * @param min_with_dest Step 3.
 * @param invert Step 2.
 * @param subtract_from_dest Step 1.
 * @returns 0: Done.
 *   1: Clipping left nothing.
 */
export function BBIBltAlpha(dst: ImageLike, src: ImageLike, dx: number, dy: number, cx: number, cy: number, sx: number, sy: number, max_with_dest: number, min_with_dest: number, invert: number, subtract_from_dest: number): number;

/**
 * Adds: `min(d + s, 255)`.
 * @param dst The image that is changed.
 * @param src The image that is read.
 * @param dx Left column and top row of the rectangle in `dst`.
 * @param dy Left column and top row of the rectangle in `dst`.
 * @param cx Width and height of the rectangle.
 * @param cy Width and height of the rectangle.
 * @param sx Left column and top row of the rectangle in `src`.
 * @param sy Left column and top row of the rectangle in `src`.
 * @returns 0: Done.
 *   1: Clipping left nothing.
 */
export function BBIBltAdd(dst: ImageLike, src: ImageLike, dx: number, dy: number, cx: number, cy: number, sx: number, sy: number): number;

/**
 * Multiplies: `(d * s + 255) >> 8`.
 * @param dst The image that is changed.
 * @param src The image that is read.
 * @param dx Left column and top row of the rectangle in `dst`.
 * @param dy Left column and top row of the rectangle in `dst`.
 * @param cx Width and height of the rectangle.
 * @param cy Width and height of the rectangle.
 * @param sx Left column and top row of the rectangle in `src`.
 * @param sy Left column and top row of the rectangle in `src`.
 * @returns 0: Done.
 *   1: Clipping left nothing.
 */
export function BBIBltMul(dst: ImageLike, src: ImageLike, dx: number, dy: number, cx: number, cy: number, sx: number, sy: number): number;

/**
 * Subtracts: `max(d - s, 0)`.
 * @param dst The image that is changed.
 * @param src The image that is read.
 * @param dx Left column and top row of the rectangle in `dst`.
 * @param dy Left column and top row of the rectangle in `dst`.
 * @param cx Width and height of the rectangle.
 * @param cy Width and height of the rectangle.
 * @param sx Left column and top row of the rectangle in `src`.
 * @param sy Left column and top row of the rectangle in `src`.
 * @returns 0: Done.
 *   1: Clipping left nothing.
 */
export function BBIBltSub(dst: ImageLike, src: ImageLike, dx: number, dy: number, cx: number, cy: number, sx: number, sy: number): number;

/**
 * Takes the difference: `abs(d - s)`, despite the name no exclusive-or.
 * @param dst The image that is changed.
 * @param src The image that is read.
 * @param dx Left column and top row of the rectangle in `dst`.
 * @param dy Left column and top row of the rectangle in `dst`.
 * @param cx Width and height of the rectangle.
 * @param cy Width and height of the rectangle.
 * @param sx Left column and top row of the rectangle in `src`.
 * @param sy Left column and top row of the rectangle in `src`.
 * @returns 0: Done.
 *   1: Clipping left nothing.
 */
export function BBIBltXor(dst: ImageLike, src: ImageLike, dx: number, dy: number, cx: number, cy: number, sx: number, sy: number): number;

/**
 * Takes the signed difference: `(d - s + 128) & 255`, which `BBIBltXor3` with the same source undoes.
 * @param dst The image that is changed.
 * @param src The image that is read.
 * @param dx Left column and top row of the rectangle in `dst`.
 * @param dy Left column and top row of the rectangle in `dst`.
 * @param cx Width and height of the rectangle.
 * @param cy Width and height of the rectangle.
 * @param sx Left column and top row of the rectangle in `src`.
 * @param sy Left column and top row of the rectangle in `src`.
 * @returns 0: Done.
 *   1: Clipping left nothing.
 */
export function BBIBltXor2(dst: ImageLike, src: ImageLike, dx: number, dy: number, cx: number, cy: number, sx: number, sy: number): number;

/**
 * Adds a signed difference: `(d + s - 128) & 255`.
 * @param dst The image that is changed.
 * @param src The image that is read.
 * @param dx Left column and top row of the rectangle in `dst`.
 * @param dy Left column and top row of the rectangle in `dst`.
 * @param cx Width and height of the rectangle.
 * @param cy Width and height of the rectangle.
 * @param sx Left column and top row of the rectangle in `src`.
 * @param sy Left column and top row of the rectangle in `src`.
 * @returns 0: Done.
 *   1: Clipping left nothing.
 */
export function BBIBltXor3(dst: ImageLike, src: ImageLike, dx: number, dy: number, cx: number, cy: number, sx: number, sy: number): number;

/**
 * Copies inverted: `255 - s`, alpha too.
 * @param dst The image that is changed.
 * @param src The image that is read.
 * @param dx Left column and top row of the rectangle in `dst`.
 * @param dy Left column and top row of the rectangle in `dst`.
 * @param cx Width and height of the rectangle.
 * @param cy Width and height of the rectangle.
 * @param sx Left column and top row of the rectangle in `src`.
 * @param sy Left column and top row of the rectangle in `src`.
 * @returns 0: Done.
 *   1: Clipping left nothing.
 */
export function BBIBltNot(dst: ImageLike, src: ImageLike, dx: number, dy: number, cx: number, cy: number, sx: number, sy: number): number;

/**
 * Takes the darker: `min(d, s)`.
 * @param dst The image that is changed.
 * @param src The image that is read.
 * @param dx Left column and top row of the rectangle in `dst`.
 * @param dy Left column and top row of the rectangle in `dst`.
 * @param cx Width and height of the rectangle.
 * @param cy Width and height of the rectangle.
 * @param sx Left column and top row of the rectangle in `src`.
 * @param sy Left column and top row of the rectangle in `src`.
 * @returns 0: Done.
 *   1: Clipping left nothing.
 */
export function BBIBltMin(dst: ImageLike, src: ImageLike, dx: number, dy: number, cx: number, cy: number, sx: number, sy: number): number;

/**
 * Takes the brighter: `max(d, s)`.
 * @param dst The image that is changed.
 * @param src The image that is read.
 * @param dx Left column and top row of the rectangle in `dst`.
 * @param dy Left column and top row of the rectangle in `dst`.
 * @param cx Width and height of the rectangle.
 * @param cy Width and height of the rectangle.
 * @param sx Left column and top row of the rectangle in `src`.
 * @param sy Left column and top row of the rectangle in `src`.
 * @returns 0: Done.
 *   1: Clipping left nothing.
 */
export function BBIBltMax(dst: ImageLike, src: ImageLike, dx: number, dy: number, cx: number, cy: number, sx: number, sy: number): number;

/**
 * Copies all pixels but those that equal a key.
 *
 * The key is the word at column 0, row 0 of the source image, wherever the rectangle lies, read once before
 * the first pixel is written. Whole words are compared, alpha included.
 * @param dst The image that is changed.
 * @param src The image that is read.
 * @param dx Left column and top row of the rectangle in `dst`.
 * @param dy Left column and top row of the rectangle in `dst`.
 * @param cx Width and height of the rectangle.
 * @param cy Width and height of the rectangle.
 * @param sx Left column and top row of the rectangle in `src`.
 * @param sy Left column and top row of the rectangle in `src`.
 * @returns 0: Done.
 *   1: Clipping left nothing.
 */
export function BBIBltKeying(dst: ImageLike, src: ImageLike, dx: number, dy: number, cx: number, cy: number, sx: number, sy: number): number;

/**
 * Cross-fades: a mix with the weight `level`, of all pixels or of all but those that equal a key.
 *
 * At 255 and above it is `BBIBlt`, with `keyed` on `BBIBltKeying`. At 0 and below nothing changes; the result
 * is 0, or 1 where clipping leaves nothing.
 * @param dst The image that is changed.
 * @param src The image that is read.
 * @param dx Left column and top row of the rectangle in `dst`.
 * @param dy Left column and top row of the rectangle in `dst`.
 * @param cx Width and height of the rectangle.
 * @param cy Width and height of the rectangle.
 * @param sx Left column and top row of the rectangle in `src`.
 * @param sy Left column and top row of the rectangle in `src`.
 * @param keyed Whether pixels that equal the key of `BBIBltKeying` are left out.
 * @param level How much of the source.
 * @returns 0: Done.
 *   1: Clipping left nothing.
 */
export function BBIBltKeyingFX(dst: ImageLike, src: ImageLike, dx: number, dy: number, cx: number, cy: number, sx: number, sy: number, keyed: number, level: number): number;

/**
 * Mixes a source in by its own alpha `a`, in one of two ways.
 *
 * - `whole` off: 0 keeps `d`, 255 gives `s`, between them `(s * a + d * (255 - a)) >> 8`, which darkens a
 *   little.
 * - `whole` on: a mix with the weight `a * 256 / 255`, which does not; a byte may be greater by one or two.
 * @param dst The image that is changed.
 * @param src The image that is read.
 * @param dx Left column and top row of the rectangle in `dst`.
 * @param dy Left column and top row of the rectangle in `dst`.
 * @param cx Width and height of the rectangle.
 * @param cy Width and height of the rectangle.
 * @param sx Left column and top row of the rectangle in `src`.
 * @param sy Left column and top row of the rectangle in `src`.
 * @param whole Whether weights add up to 256.
 * @returns 0: Done.
 *   1: Clipping left nothing.
 */
export function BBIBltBlend(dst: ImageLike, src: ImageLike, dx: number, dy: number, cx: number, cy: number, sx: number, sy: number, whole: number): number;

/**
 * Mixes half and half: `(s >> 1) + (d >> 1)`, where two odd bytes lose one.
 * @param dst The image that is changed.
 * @param src The image that is read.
 * @param dx Left column and top row of the rectangle in `dst`.
 * @param dy Left column and top row of the rectangle in `dst`.
 * @param cx Width and height of the rectangle.
 * @param cy Width and height of the rectangle.
 * @param sx Left column and top row of the rectangle in `src`.
 * @param sy Left column and top row of the rectangle in `src`.
 * @returns 0: Done.
 *   1: Clipping left nothing.
 */
export function BBIBltHalfBlend(dst: ImageLike, src: ImageLike, dx: number, dy: number, cx: number, cy: number, sx: number, sy: number): number;

/**
 * Shows alpha as grey: all four bytes become the alpha of `s`.
 * @param dst The image that is changed.
 * @param src The image that is read.
 * @param dx Left column and top row of the rectangle in `dst`.
 * @param dy Left column and top row of the rectangle in `dst`.
 * @param cx Width and height of the rectangle.
 * @param cy Width and height of the rectangle.
 * @param sx Left column and top row of the rectangle in `src`.
 * @param sy Left column and top row of the rectangle in `src`.
 * @returns 0: Done.
 *   1: Clipping left nothing.
 */
export function BBIBltShiftAlpha(dst: ImageLike, src: ImageLike, dx: number, dy: number, cx: number, cy: number, sx: number, sy: number): number;

/**
 * Marks pixels: where the whole word `s` is above 128, `(~d & 0x007FC0C0) | 0x00800000`, elsewhere `d`.
 * @param dst The image that is changed.
 * @param src The image that is read.
 * @param dx Left column and top row of the rectangle in `dst`.
 * @param dy Left column and top row of the rectangle in `dst`.
 * @param cx Width and height of the rectangle.
 * @param cy Width and height of the rectangle.
 * @param sx Left column and top row of the rectangle in `src`.
 * @param sy Left column and top row of the rectangle in `src`.
 * @returns 0: Done.
 *   1: Clipping left nothing.
 */
export function BBIBltShiftBlock(dst: ImageLike, src: ImageLike, dx: number, dy: number, cx: number, cy: number, sx: number, sy: number): number;

/**
 * Fills an image from a bottom-up bitmap of one bit a pixel.
 *
 * Row y of the image (0 is the top) comes from `bits + (height - 1 - y) * stride`, here and in the three
 * functions below. An image without pixels is left alone. Each row starts with a new byte, the first of eight
 * pixels in its highest bit; a byte is read once for its eight pixels.
 * @param image The image that is filled.
 * @param bits (at least abs(stride) * (image.height - 1) + ceil_div(image.width, 8) bytes) The bottom row.
 * @param palette (at least 2 words) The colours of a 0 and a 1.
 * @param stride From the start of a row to that of the row above it; may be 0 or negative.
 * @returns 0: Always.
 */
export function BBIBltTo32from1(image: ImageLike, bits: Memory, palette: Memory, stride: number): number;

/**
 * Fills an image from a bottom-up bitmap of one byte a pixel, the number of a colour.
 * @param image The image that is filled.
 * @param bits (at least abs(stride) * (image.height - 1) + image.width bytes) The bottom row.
 * @param palette (at least 256 words) The colours.
 * @param stride From the start of a row to that of the row above it; may be 0 or negative.
 * @returns 0: Always.
 */
export function BBIBltTo32from8(image: ImageLike, bits: Memory, palette: Memory, stride: number): number;

/**
 * Fills an image from a bottom-up bitmap of blue, green and red; alpha becomes 0.
 * @param image The image that is filled.
 * @param bits (at least abs(stride) * (image.height - 1) + 3 * image.width bytes) The bottom row.
 * @param stride From the start of a row to that of the row above it; may be 0 or negative.
 * @returns 0: Always.
 */
export function BBIBltTo32from24(image: ImageLike, bits: Memory, stride: number): number;

/**
 * Fills an image from a bottom-up bitmap of whole words, alpha included.
 * @param image The image that is filled.
 * @param bits (at least abs(stride) * (image.height - 1) + 4 * image.width bytes) The bottom row.
 * @param stride From the start of a row to that of the row above it; may be 0 or negative.
 * @returns 0: Always.
 */
export function BBIBltTo32from32(image: ImageLike, bits: Memory, stride: number): number;

/**
 * Unpacks pixels of a format.
 * @param dst (at least count words) The pixels.
 * @param src (at least count * bytes_of(format) bytes) The packed pixels.
 * @param count How many.
 * @param format How the pixels are packed.
 * @returns 0: Always; an unknown format does nothing.
 */
export function BBIBltToBBIGet(dst: Memory, src: Memory, count: number, format: number): number;

/**
 * Packs pixels as 888.
 * @param dst (at least 3 * count bytes) The packed pixels.
 * @param src (at least count words) The pixels.
 * @param count How many.
 * @returns 0: Always.
 */
export function BBIBltTo24As888(dst: Memory, src: Memory, count: number): number;

/**
 * Packs pixels as 4444, alpha included.
 * @param dst (at least count halfwords) The packed pixels.
 * @param src (at least count words) The pixels.
 * @param count How many.
 * @returns 0: Always.
 */
export function BBIBltTo16As444(dst: Memory, src: Memory, count: number): number;

/**
 * Packs pixels as 565.
 * @param dst (at least count halfwords) The packed pixels.
 * @param src (at least count words) The pixels.
 * @param count How many.
 * @returns 0: Always.
 */
export function BBIBltTo16As565(dst: Memory, src: Memory, count: number): number;

/**
 * Packs pixels as 555.
 * @param dst (at least count halfwords) The packed pixels.
 * @param src (at least count words) The pixels.
 * @param count How many.
 * @returns 0: Always.
 */
export function BBIBltTo16As555(dst: Memory, src: Memory, count: number): number;

/**
 * Packs pixels as 1555.
 * @param dst (at least count halfwords) The packed pixels.
 * @param src (at least count words) The pixels.
 * @param count How many.
 * @returns 0: Always.
 */
export function BBIBltTo16As1555(dst: Memory, src: Memory, count: number): number;

/**
 * Takes the blue byte of each pixel: the grey of a grey picture; no luminance is formed.
 * @param dst (at least count bytes) A byte a pixel.
 * @param src (at least count words) The pixels.
 * @param count How many.
 * @returns 0: Always.
 */
export function BBIBltTo8AsGray(dst: Memory, src: Memory, count: number): number;

/**
 * Takes the alpha of each pixel.
 * @param dst (at least count bytes) A byte a pixel.
 * @param src (at least count words) The pixels.
 * @param count How many.
 * @returns 0: Always.
 */
export function BBIBltTo8AsAlpha(dst: Memory, src: Memory, count: number): number;

/**
 * Packs one bit a pixel, 1 where the blue byte is at least 128.
 *
 * A byte is written when its pixels have been read, the first of eight in its highest bit; bits of the last
 * byte that belong to no pixel are 0.
 * @param dst (at least ceil_div(count, 8) bytes) The bits.
 * @param src (at least count words) The pixels.
 * @param count How many.
 * @returns 0: Always.
 */
export function BBIBltTo1(dst: Memory, src: Memory, count: number): number;

/**
 * Mixes pixels with a colour and packs them: factor 1 keeps the pixel, 0 gives the colour.
 * @param dst (at least count * bytes_of(format) bytes) The packed pixels.
 * @param src (at least count words) The pixels.
 * @param count How many.
 * @param format How the pixels are packed.
 * @param colour What is mixed in where the factor is below 1.
 * @param factor The weight of the pixel: negative, or not a number, counts as 0, above 1 as 1.
 * @returns 0: Always; an unknown format does nothing.
 */
export function BBIBltToX(dst: Memory, src: Memory, count: number, format: number, colour: number, factor: number): number;

/**
 * Mixes two runs of pixels and packs the result: factor 0 gives those of `a`, 1 those of `b`.
 * @param dst (at least count * bytes_of(format) bytes) The packed pixels.
 * @param a (at least count words) The pixels with the weight `256 - k`.
 * @param b (at least count words) The pixels with the weight `k`.
 * @param count How many.
 * @param format How the pixels are packed.
 * @param factor How much of `b`: negative, or not a number, counts as 0, above 1 as 1.
 * @returns 0: Done.
 *   1: The format is unknown, whatever the count.
 */
export function BBIBltToXF(dst: Memory, a: Memory, b: Memory, count: number, format: number, factor: number): number;

/**
 * Changes saturation, looks levels up, mixes with a colour and packs.
 *
 * Each pixel in this order, its alpha untouched by the first two steps:
 *
 * 1. Unless the saturation is exactly 1: with `m = trunc(saturation * 1024)` and `t = (1024 - m) / 3`,
 *   truncated toward zero, each colour byte c becomes `(c * m >> 10) + ((B + G + R) * t >> 10)`, kept within
 *   0 to 255. At 0 that is a grey a little below the mean.
 * 2. With `use_table` on: B, G and R become `table[B]`, `table[256 + G]` and `table[512 + R]`.
 * 3. The mix with the colour, and the packing, as by `BBIBltToX`.
 * @param dst (at least count * bytes_of(format) bytes) The packed pixels.
 * @param src (at least count words) The pixels.
 * @param count How many.
 * @param format How the pixels are packed.
 * @param colour What is mixed in where the factor is below 1.
 * @param factor The weight of the pixel: negative, or not a number, counts as 0, above 1 as 1.
 * @param saturation Negative, or not a number, counts as 0, above 256 as 256.
 * @param use_table Whether levels are looked up.
 * @param table (at least 768 bytes) Tables for blue, green and red, 256 bytes each; only read with
 *   `use_table` on.
 * @returns 0: Done.
 *   1: The format is unknown, whatever the count.
 */
export function BBIBltToF(dst: Memory, src: Memory, count: number, format: number, colour: number, factor: number, saturation: number, use_table: number, table: Memory): number;

/**
 * Compares two images, or tests the first.
 *
 * Both have to be images in every mode: their sizes are compared first, also where only the pixels of `a` are
 * read.
 * @param a The images that are compared.
 * @param b The images that are compared.
 * @param mode What is tested.
 * @returns 0: The test holds for every pixel, or the images have no rows.
 *   1: It fails for one, or the sizes differ.
 *   2: The mode is unknown, and the images are of one size and have rows.
 */
export function BBICompare(a: ImageLike, b: ImageLike, mode: number): number;

/**
 * Counts pixels that differ, but not by much in every byte.
 *
 * With `p` and `q` the pixels of both images under the mask, a pixel counts if `p` is not `q` and at least
 * one of the four bytes differs by no more than the tolerance. Bytes that are equal or masked away differ by
 * 0: so with a byte masked away all pixels that differ count; pixels that differ by more in all four bytes do
 * not.
 * @param a The images that are compared.
 * @param b The images that are compared.
 * @param mask The bits that are compared.
 * @param tolerance Kept within these limits.
 * @returns The number of such pixels; 0 for images without pixels.
 *   -1: The sizes differ.
 */
export function BBICompareAny(a: ImageLike, b: ImageLike, mask: number, tolerance: number): number;

/**
 * Counts the different colours of an image, alpha aside.
 * @param image The image that is read.
 * @param reserved Has to be 0.
 * @returns The number of colours; 0 also if `reserved` is not 0, or if working memory (at most 2 MiB) cannot
 *   be had.
 */
export function BBIColorCount(image: ImageLike, reserved: number): number;

/**
 * Collects the colours of an image into a palette, and replaces each pixel's alpha by the number of its colour
 * there.
 *
 * Colours are collected in order of appearance, with alpha 0, until the palette is full; pixels whose colour
 * found no room get an alpha of 0. Entries of the palette that no colour takes are left alone.
 * @param image The image that is changed.
 * @param palette (at least max words) The colours.
 * @param max The room in the palette; otherwise nothing is done and 0 returned.
 * @returns The colours collected, plus the pixels whose colour found no room: above `max` the palette was too
 *   small. 0 for an image without pixels.
 */
export function BBIColorPalette(image: ImageLike, palette: Memory, max: number): number;

/**
 * Finds the smallest rectangle around all content, that is pixels with `(pixel & mask) != key`.
 *
 * It is told by its first column and row and its size (`BBIPaint` tells last column and row); without content
 * it is 0, 0, 1, 1.
 * @param image The image that is read.
 * @param reserved Has to be 0.
 * @param mask The bits of a pixel that are compared. Bits of `key` that it has not set make every pixel
 *   content.
 * @param key What is no content.
 * @param left (at least 1 words) The first column.
 * @param top (at least 1 words) The first row.
 * @param cx (at least 1 words) The number of columns.
 * @param cy (at least 1 words) The number of rows.
 * @returns 0: Done.
 *   1: `reserved` is not 0.
 */
export function BBITrim(image: ImageLike, reserved: number, mask: number, key: number, left: Memory, top: Memory, cx: Memory, cy: Memory): number;

/**
 * Fills an image.
 * @param image The image that is changed.
 * @param red The bytes of a colour; below 0 counts as 0, above 255 as 255.
 * @param green The bytes of a colour; below 0 counts as 0, above 255 as 255.
 * @param blue The bytes of a colour; below 0 counts as 0, above 255 as 255.
 * @param alpha The bytes of a colour; below 0 counts as 0, above 255 as 255.
 * @returns 0: Done.
 *   1: The image has no pixels.
 */
export function BBIClear(image: ImageLike, red: number, green: number, blue: number, alpha: number): number;

/**
 * Fills an image and keeps its alpha.
 * @param image The image that is changed.
 * @param red The bytes of a colour; below 0 counts as 0, above 255 as 255.
 * @param green The bytes of a colour; below 0 counts as 0, above 255 as 255.
 * @param blue The bytes of a colour; below 0 counts as 0, above 255 as 255.
 * @returns 0: Done.
 *   1: The image has no pixels.
 */
export function BBIClearRGB(image: ImageLike, red: number, green: number, blue: number): number;

/**
 * Fills some bits of an image: `(pixel & mask) | (colour & ~mask)`.
 * @param image The image that is changed.
 * @param red The bytes of a colour; below 0 counts as 0, above 255 as 255.
 * @param green The bytes of a colour; below 0 counts as 0, above 255 as 255.
 * @param blue The bytes of a colour; below 0 counts as 0, above 255 as 255.
 * @param alpha The bytes of a colour; below 0 counts as 0, above 255 as 255.
 * @param mask The bits that the image keeps.
 * @returns 0: Done.
 *   1: The image has no pixels.
 */
export function BBIClearMask(image: ImageLike, red: number, green: number, blue: number, alpha: number, mask: number): number;

/**
 * Mirrors an image in place, left to right.
 * @param image The image that is changed.
 * @returns 0: Done.
 *   1: The image has no pixels.
 */
export function BBIMirror(image: ImageLike): number;

/**
 * Mirrors an image in place, top to bottom.
 * @param image The image that is changed.
 * @returns 0: Done.
 *   1: The image has no pixels.
 */
export function BBIVMirror(image: ImageLike): number;

/**
 * Turns an image into another.
 *
 * The two must not share pixels: what `dst` holds afterwards is undefined if they do.
 * @param dst The turned image, of the size of `src`, with width and height exchanged for a quarter.
 * @param src The image that is read.
 * @param mode Which turn.
 * @returns 0: Done; also, without anything done, for any other mode, whatever the sizes, and for images
 *   without pixels whose sizes fit.
 *   1: The sizes do not fit.
 */
export function BBIRotation(dst: ImageLike, src: ImageLike, mode: number): number;

/**
 * Makes a colour transparent and all others opaque.
 *
 * Alpha becomes 0 for pixels of the key's colour and 255 for all others; alphas are not compared.
 * @param image The image that is changed.
 * @param key The colour; its alpha does not count.
 * @returns 0: Done.
 *   1: The image has no pixels.
 */
export function BBIKeying(image: ImageLike, key: number): number;

/**
 * Gives transparent pixels the colour of their neighbours, so that the edges of a keyed picture stay clean
 * when it is scaled.
 *
 * A pixel with alpha 0 gets the mean of blue, of green and of red, truncated, of those of its neighbours
 * left, right, above and below whose alpha is not 0; its alpha stays 0. Without such a neighbour it stays as
 * it is.
 * @param image The image that is changed.
 * @returns 0: Done.
 *   1: The image has no pixels.
 */
export function BBIKeyingFilter(image: ImageLike): number;

/**
 * Does nothing.
 * @param a Not looked at.
 * @param b Not looked at.
 * @param c Not looked at.
 * @returns 0: Always.
 */
export function BBIAntiAreas(a: number, b: number, c: number): number;

/**
 * Fills an area: the pixel at a place and all that are connected to it through their four neighbours and equal
 * it in all 32 bits.
 *
 * It tells the rectangle filled by its first and last column and row (`BBITrim` tells a size).
 * @param image The image that is changed.
 * @param x The column of a pixel of the area.
 * @param y Its row.
 * @param colour What the area takes.
 * @param left (at least 1 words) The first column.
 * @param top (at least 1 words) The first row.
 * @param right (at least 1 words) The last column.
 * @param bottom (at least 1 words) The last row.
 * @returns 0: Done.
 *   1: The place lies outside or has the colour already, or working memory cannot be had: at most `6 *
 *   height * ((width + 1) / 2)` bytes, of which only what the fill needs is touched.
 */
export function BBIPaint(image: ImageLike, x: number, y: number, colour: number, left: Memory, top: Memory, right: Memory, bottom: Memory): number;

/**
 * Gives a source the brightness of what it covers.
 *
 * With the brightness `(B + G + R + 1) / 3`, each colour becomes `s` plus the brightness of `d` less that of
 * `s`, kept within 0 to 255. The alpha of `d` stays.
 * @param dst The image that is changed.
 * @param src The image that is read.
 * @param dx Left column and top row of the rectangle in `dst`.
 * @param dy Left column and top row of the rectangle in `dst`.
 * @param cx Width and height of the rectangle.
 * @param cy Width and height of the rectangle.
 * @param sx Left column and top row of the rectangle in `src`.
 * @param sy Left column and top row of the rectangle in `src`.
 * @returns 0: Done.
 *   1: Clipping left nothing.
 */
export function BBIBltTone(dst: ImageLike, src: ImageLike, dx: number, dy: number, cx: number, cy: number, sx: number, sy: number): number;

/**
 * Mixes a source in the more, the closer its colour is to what it covers, compared at equal brightness.
 *
 * With the brightness `(B + G + R) / 3`, `e = d - s` plus the brightness of `s` less that of `d` for each
 * colour, and `distance` the square root of the sum of the three squares of `e`, truncated, all four bytes
 * are mixed with the weight `trunc(256 - distance * factor)`, formed in double precision and kept within 0 to
 * 256; 0 if it is not a number.
 * @param dst The image that is changed.
 * @param src The image that is read.
 * @param dx Left column and top row of the rectangle in `dst`.
 * @param dy Left column and top row of the rectangle in `dst`.
 * @param cx Width and height of the rectangle.
 * @param cy Width and height of the rectangle.
 * @param sx Left column and top row of the rectangle in `src`.
 * @param sy Left column and top row of the rectangle in `src`.
 * @param factor How fast the weight falls: at 1 it is 0 at a distance of 256. 0 and below copy.
 * @returns 0: Done.
 *   1: Clipping left nothing.
 */
export function BBIBltToneWB(dst: ImageLike, src: ImageLike, dx: number, dy: number, cx: number, cy: number, sx: number, sy: number, factor: number): number;

/**
 * Lays a source over a destination that may itself be partly transparent.
 *
 * With `a` the alpha of `s` and `da` that of `d`, the first of these that applies:
 *
 * 1. `a` is 0: `d` stays.
 * 2. `a` is 255, or `da` is 0: `s` replaces it, whatever the opacity.
 * 3. The colours are mixed with the weight `trunc(a * opacity * 0.003921569f * 256)`, formed in double
 *   precision from the two floats (the constant is a little above 1 / 255); the alpha becomes
 *   `da + (255 - da) * a / 255`.
 * @param dst The image that is changed.
 * @param src The image that is read.
 * @param dx Left column and top row of the rectangle in `dst`.
 * @param dy Left column and top row of the rectangle in `dst`.
 * @param cx Width and height of the rectangle.
 * @param cy Width and height of the rectangle.
 * @param sx Left column and top row of the rectangle in `src`.
 * @param sy Left column and top row of the rectangle in `src`.
 * @param opacity Weakens the partly transparent pixels of the source; above 1 counts as 1.
 * @returns 0: Done.
 *   1: Clipping left nothing, or the opacity is negative or not a number.
 */
export function BBIBltTrueBlend(dst: ImageLike, src: ImageLike, dx: number, dy: number, cx: number, cy: number, sx: number, sy: number, opacity: number): number;

/**
 * Stretches the levels of each channel, blue by the bounds of red and red by those of blue.
 *
 * The crossing does not show where the two have the same histogram.
 * @param image The image.
 * @param threshold How many pixels at either end are given up; a negative one makes the bounds 0 and 255.
 * @returns 0: Done.
 *   1: The image has no pixels.
 */
export function BBIAutoLevelRGB(image: ImageLike, threshold: number): number;

/**
 * Stretches the levels of each channel by the mean bounds of the two others.
 * @param image The image.
 * @param threshold How many pixels at either end are given up; a negative one makes the bounds 0 and 255.
 * @returns 0: Done.
 *   1: The image has no pixels.
 */
export function BBIAutoLevelRGBRev(image: ImageLike, threshold: number): number;

/**
 * Stretches the levels of each channel by its own high bound and a low one that is a quarter of the others'
 * mean.
 * @param image The image.
 * @param threshold How many pixels at either end are given up; a negative one makes the bounds 0 and 255.
 * @returns 0: Done.
 *   1: The image has no pixels.
 */
export function BBIAutoLevelRGBMul(image: ImageLike, threshold: number): number;

/**
 * Stretches the levels of all channels alike, which keeps their balance.
 *
 * L and H are measured in one histogram of blue, green and red of every pixel: three counts a pixel, which
 * the threshold is compared with.
 * @param image The image.
 * @param threshold How many pixels at either end are given up; a negative one makes the bounds 0 and 255.
 * @returns 0: Done.
 *   1: The image has no pixels.
 */
export function BBIAutoLevelWB(image: ImageLike, threshold: number): number;

/**
 * Stretches with one opacity: d = mix(d, s, constant weight), at opacity 1 a copy.
 * @param dst The image that is changed.
 * @param src The image that is read.
 * @param dx Where the rectangle begins in `dst`.
 * @param dy Where the rectangle begins in `dst`.
 * @param dw The size of the rectangle in `dst`.
 * @param dh The size of the rectangle in `dst`.
 * @param sx Where the rectangle begins in `src`.
 * @param sy Where the rectangle begins in `src`.
 * @param sw The size of the rectangle in `src`.
 * @param sh The size of the rectangle in `src`.
 * @param opacity Above 1 counts as 1; negative or not a number returns 1.
 * @returns 0: Done.
 *   1: An argument is unusable, or clipping left nothing.
 */
export function BBIExpandBlt(dst: ImageLike, src: ImageLike, dx: number, dy: number, dw: number, dh: number, sx: number, sy: number, sw: number, sh: number, opacity: number): number;

/**
 * Stretches by the alpha of the source: d = mix(d, s, alpha weight of s).
 * @param dst The image that is changed.
 * @param src The image that is read.
 * @param dx Where the rectangle begins in `dst`.
 * @param dy Where the rectangle begins in `dst`.
 * @param dw The size of the rectangle in `dst`.
 * @param dh The size of the rectangle in `dst`.
 * @param sx Where the rectangle begins in `src`.
 * @param sy Where the rectangle begins in `src`.
 * @param sw The size of the rectangle in `src`.
 * @param sh The size of the rectangle in `src`.
 * @param opacity Above 1 counts as 1; negative or not a number returns 1.
 * @returns 0: Done.
 *   1: An argument is unusable, or clipping left nothing.
 */
export function BBIExpandBlendBlt(dst: ImageLike, src: ImageLike, dx: number, dy: number, dw: number, dh: number, sx: number, sy: number, sw: number, sh: number, opacity: number): number;

/**
 * Replaces bits of each sample by a gradient between four corner colours, then mixes it in.
 *
 * The gradient spans the clipped destination rectangle. With
 * `w(k, n) = trunc((float)((double)k / (n - 1)) * 256)`, 0 where n is 1, pixel (j, i) of it has
 * `G = mix(mix(top_left, bottom_left, w(i, dh)), mix(top_right, bottom_right, w(i, dh)), w(j, dw))`. The
 * sample becomes `(s & mask) | (G & ~mask)`, is mixed into d by its weight, and `keep_mask` is applied.
 *
 * Returns 1 also when there is no memory for the weights of a row.
 * @param dst The image that is changed.
 * @param src The image that is read.
 * @param dx Where the rectangle begins in `dst`.
 * @param dy Where the rectangle begins in `dst`.
 * @param dw The size of the rectangle in `dst`.
 * @param dh The size of the rectangle in `dst`.
 * @param sx Where the rectangle begins in `src`.
 * @param sy Where the rectangle begins in `src`.
 * @param sw The size of the rectangle in `src`.
 * @param sh The size of the rectangle in `src`.
 * @param opacity Above 1 counts as 1; negative or not a number returns 1.
 * @param keep_mask The bits of d that stay: `(d & keep_mask) | (new & ~keep_mask)`.
 * @param mask The bits of the sample that stay.
 * @param top_left The gradient's corner.
 * @param top_right The gradient's corner.
 * @param bottom_left The gradient's corner.
 * @param bottom_right The gradient's corner.
 * @param use_source_alpha Weight by the alpha of the sample as replaced; off: the constant weight.
 * @returns 0: Done.
 *   1: An argument is unusable, or clipping left nothing.
 */
export function BBIExpandColorBlt(dst: ImageLike, src: ImageLike, dx: number, dy: number, dw: number, dh: number, sx: number, sy: number, sw: number, sh: number, opacity: number, keep_mask: number, mask: number, top_left: number, top_right: number, bottom_left: number, bottom_right: number, use_source_alpha: number): number;

/**
 * The general stretched blit.
 *
 * For each destination pixel d, in this order:
 *
 * 1. base = d, or with `source_is_base` the sample as read
 * 2. mask: `s = (s & mask) | (((~s & invert_bits) | colour) & ~mask)`
 * 3. saturation, in the colours: with `k = trunc(saturation * 1024)`, `m = (1024 - k) / 3` and
 *    `g = (red + green + blue) * m >> 10`, each becomes `(colour * k >> 10) + g`, clamped to 0..255
 * 4. levels, in the colours: with lo and hi, a colour's bytes of `level_low` and `level_high`, v becomes,
 *    whichever fits first, 255 - lo for v = lo = hi, 0 for `v <= lo`, 255 for `v >= hi`, else
 *    `255 * (v - lo) / (hi - lo)`
 * 5. weight: with `use_source_alpha` the alpha weight of s as it is now, else the constant weight
 * 6. mix: s = mix(base, s, weight). With `add_colour` the colours become `min(base + (s * weight >> 8), 255)`
 *    instead; with `add_alpha` the alpha does. Each works for itself.
 * 7. keep: d = `(base & keep_mask) | (s & ~keep_mask)`
 *
 * A constant weight of 0 (an opacity below 1 / 256) without `source_is_base` returns 1, even with
 * `use_source_alpha`.
 *
 * A call is simple with saturation 1, levels of 0 and 0xFFFFFF in their lower three bytes and the last three
 * flags off. Simple calls return 0, not 2, and two of them, where the clipped sizes are equal and `keep_mask`
 * is 0, do something else (the weight is the constant one, or with `use_source_alpha` that of s as read):
 *
 * | `mask` | and | does |
 * |---|---|---|
 * | 0xFFFFFFFF | `use_source_alpha`, constant weight 256 | BBIBltBlend with 0 as its last argument |
 * | 0xFF000000 | `invert_bits` 0 | d = mix(d, colour, weight), its alpha byte too |
 * @param dst The image that is changed.
 * @param src The image that is read.
 * @param dx Where the rectangle begins in `dst`.
 * @param dy Where the rectangle begins in `dst`.
 * @param dw The size of the rectangle in `dst`.
 * @param dh The size of the rectangle in `dst`.
 * @param sx Where the rectangle begins in `src`.
 * @param sy Where the rectangle begins in `src`.
 * @param sw The size of the rectangle in `src`.
 * @param sh The size of the rectangle in `src`.
 * @param opacity Above 1 counts as 1; negative or not a number counts as 0.
 * @param saturation 0 is grey, 1 as it was. Below 0 and not a number count as 0, above 256 as 256.
 * @param level_low What becomes 0, for each colour; the top byte counts for nothing.
 * @param level_high What becomes 255, for each colour; the top byte counts for nothing.
 * @param keep_mask The bits of the base that stay.
 * @param mask The bits of the sample that stay.
 * @param colour What comes into the others.
 * @param invert_bits Where the sample comes into the others inverted.
 * @param use_source_alpha Weight by the alpha of s; off: the constant weight for all pixels.
 * @param add_colour Add the colours.
 * @param add_alpha Add the alpha.
 * @param source_is_base Mix with the sample as read, not with d.
 * @returns 0: Done, by a simple call.
 *   1: Clipping left nothing, or the constant weight is 0.
 *   2: Done.
 *   513: Filled, by a simple call.
 */
export function BBIExpandChooseBlt(dst: ImageLike, src: ImageLike, dx: number, dy: number, dw: number, dh: number, sx: number, sy: number, sw: number, sh: number, opacity: number, saturation: number, level_low: number, level_high: number, keep_mask: number, mask: number, colour: number, invert_bits: number, use_source_alpha: number, add_colour: number, add_alpha: number, source_is_base: number): number;

/**
 * Stretches with bilinear interpolation: the sample replaces d.
 * @param dst The image that is changed.
 * @param src The image that is read.
 * @param dx Where the rectangle begins in `dst`.
 * @param dy Where the rectangle begins in `dst`.
 * @param dw The size of the rectangle in `dst`.
 * @param dh The size of the rectangle in `dst`.
 * @param sx Where the rectangle begins in `src`.
 * @param sy Where the rectangle begins in `src`.
 * @param sw The size of the rectangle in `src`.
 * @param sh The size of the rectangle in `src`.
 * @returns 0: Done.
 *   1: An argument is unusable, or clipping left nothing.
 */
export function BBILinearBlt(dst: ImageLike, src: ImageLike, dx: number, dy: number, dw: number, dh: number, sx: number, sy: number, sw: number, sh: number): number;

/**
 * Brings each sample into d by a table of weights and a mode.
 * @param dst The image that is changed.
 * @param src The image that is read.
 * @param dx Where the rectangle begins in `dst`.
 * @param dy Where the rectangle begins in `dst`.
 * @param dw The size of the rectangle in `dst`.
 * @param dh The size of the rectangle in `dst`.
 * @param sx Where the rectangle begins in `src`.
 * @param sy Where the rectangle begins in `src`.
 * @param sw The size of the rectangle in `src`.
 * @param sh The size of the rectangle in `src`.
 * @param table (at least 256 words) Weights of 0..256 by alpha, for example from BBIAlphaTableCreate. With
 *   larger ones channels run over into their neighbours: with `L = 0x00FF00FF` and sums modulo 2^32,
 *   mixing `d` and `s` gives `((d & L) * (256 - w) + (s & L) * w) >> 8 & L | ((d >> 8 & L) * (256 - w) +
 *   (s >> 8 & L) * w) & ~L`, the tint likewise, and adding the saturated sum of `d` and that with `d`
 *   and `256 - w` left out. Read once, before the first pixel is written.
 * @param mode What becomes of the sample.
 * @param smooth Interpolate; off: always the nearest sample.
 * @param tint The colour of the tint.
 * @returns 0: Done.
 *   1: An argument is unusable, or clipping left nothing.
 */
export function BBILinearRender(dst: ImageLike, src: ImageLike, dx: number, dy: number, dw: number, dh: number, sx: number, sy: number, sw: number, sh: number, table: Memory, mode: number, smooth: number, tint: number): number;

/**
 * Fills a table with the weights of an opacity.
 * @param table (at least 256 words) The weights by alpha, 0..256. Needs no alignment.
 * @param opacity Below 0 and not a number count as 0, above 1 as 1.
 * @param by_alpha The alpha weights; off: the constant weight throughout.
 */
export function BBIAlphaTableCreate(table: Memory, opacity: number, by_alpha: number): void;

/**
 * Resizes all of `src` to all of `dst` with a cubic kernel.
 *
 * The corners of the images coincide: destination column x lies at x times the quotient of width - 1 of `src`
 * and of `dst`, or at 0 for a destination of one column; i is its integer part and t the rest. The four
 * columns from i - 1 on have the weights k(1 + t), k(t), k(1 - t), k(2 - t), where k(v) is
 * `1.0 - 2.0 * v * v + v * v * v` for `v < 1` and `4.0 - 8.0 * v + 5.0 * v * v - v * v * v` else; rows
 * likewise, all in double precision.
 *
 * A tap's weight is the product of its column's and its row's, rounded to single precision; below 0 it counts
 * as 0, so that negative lobes act only where two meet. Taps outside the source are 0x00000000. The 16 taps,
 * row by row from 0, are merged in pairs: (0, 1), (2, 3) .. (14, 15), then (0, 2), (4, 6), (8, 10), (12, 14),
 * then (0, 4), (8, 12), then (0, 8). To merge b into a, a becomes mix(a, b, `trunc(wb / (wa + wb) * 256)`),
 * formed in double precision and 0 where both weights are 0; the weight of a becomes wa + wb, rounded to
 * single precision.
 * @param dst The image that is changed.
 * @param src The image that is read.
 * @returns 0: Done.
 *   1: An image has no pixels.
 */
export function BBILinear(dst: ImageLike, src: ImageLike): number;

/**
 * An experiment: the nearest sample, averaged with neighbours along a spiral.
 *
 * The sample v at source pixel (x, y) takes in its neighbours one after another, later ones weighing more:
 * `v = (v + p) >> 1` per channel for p at (x, y) plus
 *
 *     (1, 0) (0, -1) (-1, 0) (0, 1)   (1, -1) (-1, -1) (-1, 1) (1, 1)   (2, 0) (0, -2) (-2, 0) (0, 2)
 *     (2, -1) (-1, -2) (-2, 1) (1, 2)   (1, -2) (-2, -1) (-1, 2) (2, 1)
 *
 * Of these the first `min((sw / dw + sh / dh + 5) & ~3, 20)` take part, and only where they lie at `sx < x`,
 * `x < sw`, `sy < y` and `y < sh`: the clipped sizes serve as limits of coordinates. d becomes v. Rows of
 * `src` are taken to lie `pitch / 4 * 4` bytes apart.
 * @param dst The image that is changed.
 * @param src The image that is read.
 * @param dx Where the rectangle begins in `dst`.
 * @param dy Where the rectangle begins in `dst`.
 * @param dw The size of the rectangle in `dst`.
 * @param dh The size of the rectangle in `dst`.
 * @param sx Where the rectangle begins in `src`.
 * @param sy Where the rectangle begins in `src`.
 * @param sw The size of the rectangle in `src`.
 * @param sh The size of the rectangle in `src`.
 * @returns 0: Done.
 *   1: An argument is unusable, or clipping left nothing.
 */
export function BBILinearBltTest(dst: ImageLike, src: ImageLike, dx: number, dy: number, dw: number, dh: number, sx: number, sy: number, sw: number, sh: number): number;

/**
 * Cross-fades with one opacity: d = mix(d, s, constant weight).
 * @param dst The image that is changed.
 * @param src The image that is read.
 * @param dx Where the rectangle begins in `dst`.
 * @param dy Where the rectangle begins in `dst`.
 * @param cx The size of the rectangle.
 * @param cy The size of the rectangle.
 * @param sx Where the rectangle begins in `src`.
 * @param sy Where the rectangle begins in `src`.
 * @param opacity Above 1 counts as 1; negative or not a number returns 1.
 * @returns 0: Done.
 *   1: An argument is unusable, or clipping left nothing.
 */
export function BBIFlip(dst: ImageLike, src: ImageLike, dx: number, dy: number, cx: number, cy: number, sx: number, sy: number, opacity: number): number;

/**
 * Mixes by the alpha of the source: d = mix(d, s, alpha weight of s).
 * @param dst The image that is changed.
 * @param src The image that is read.
 * @param dx Where the rectangle begins in `dst`.
 * @param dy Where the rectangle begins in `dst`.
 * @param cx The size of the rectangle.
 * @param cy The size of the rectangle.
 * @param sx Where the rectangle begins in `src`.
 * @param sy Where the rectangle begins in `src`.
 * @param opacity Above 1 counts as 1; negative or not a number returns 1.
 * @returns 0: Done.
 *   1: An argument is unusable, or clipping left nothing.
 */
export function BBIFlipBlend(dst: ImageLike, src: ImageLike, dx: number, dy: number, cx: number, cy: number, sx: number, sy: number, opacity: number): number;

/**
 * Alpha as depth: s replaces d where the alpha of s is greater; on equal alpha d stays.
 * @param dst The image that is changed.
 * @param src The image that is read.
 * @param dx Where the rectangle begins in `dst`.
 * @param dy Where the rectangle begins in `dst`.
 * @param cx The size of the rectangle.
 * @param cy The size of the rectangle.
 * @param sx Where the rectangle begins in `src`.
 * @param sy Where the rectangle begins in `src`.
 * @returns 0: Done.
 *   1: An argument is unusable, or clipping left nothing.
 */
export function BBIDepth(dst: ImageLike, src: ImageLike, dx: number, dy: number, cx: number, cy: number, sx: number, sy: number): number;

/**
 * As BBIDepth, but d becomes `(d & keep_mask) | (s & ~keep_mask)`.
 * @param dst The image that is changed.
 * @param src The image that is read.
 * @param dx Where the rectangle begins in `dst`.
 * @param dy Where the rectangle begins in `dst`.
 * @param cx The size of the rectangle.
 * @param cy The size of the rectangle.
 * @param sx Where the rectangle begins in `src`.
 * @param sy Where the rectangle begins in `src`.
 * @param keep_mask The bits of d that stay: `(d & keep_mask) | (new & ~keep_mask)`.
 * @returns 0: Done.
 *   1: An argument is unusable, or clipping left nothing.
 */
export function BBIDepthMask(dst: ImageLike, src: ImageLike, dx: number, dy: number, cx: number, cy: number, sx: number, sy: number, keep_mask: number): number;

/**
 * Fills `length` pixels from (x, y) to the right.
 *
 * 1 when y lies outside the image or nothing is left.
 * @param image The image that is changed.
 * @param x The first pixel of the run.
 * @param y The first pixel of the run.
 * @param length The length of the run, which is cut to the image.
 * @param colour The new colour.
 * @returns 0: Done.
 *   1: An argument is unusable, or clipping left nothing.
 */
export function BBIFlipLineX(image: ImageLike, x: number, y: number, length: number, colour: number): number;

/**
 * Fills `length` pixels from (x, y) downward.
 *
 * 1 when x lies outside the image or nothing is left.
 *
 * From the first pixel drawn, rows are stepped by `pitch & ~3`: with a pitch that is no multiple of 4 the
 * line drifts to the left, by up to 3 bytes a row. It ends where it would begin below the lowest address of
 * the image.
 * @param image The image that is changed.
 * @param x The first pixel of the run.
 * @param y The first pixel of the run.
 * @param length The length of the run, which is cut to the image.
 * @param colour The new colour.
 * @returns 0: Done.
 *   1: An argument is unusable, or clipping left nothing.
 */
export function BBIFlipLineY(image: ImageLike, x: number, y: number, length: number, colour: number): number;

/**
 * Box blur of rows: the mean of pixels max(i - radius, 0) to min(i + radius, n - 1).
 *
 * The window is cut at the ends, never padded. `dst` and `src` may be one image and one rectangle. The time
 * does not depend on the radius.
 * @param dst The image that is changed.
 * @param src The image that is read.
 * @param dx Where the rectangle begins in `dst`.
 * @param dy Where the rectangle begins in `dst`.
 * @param cx The size of the rectangle.
 * @param cy The size of the rectangle.
 * @param sx Where the rectangle begins in `src`.
 * @param sy Where the rectangle begins in `src`.
 * @param radius How far the window reaches to either side. Lowered to `n / 2 - 1` and to 127; below 1, given
 *   or lowered, the rectangle is copied as by BBIBlt.
 * @returns 0: Done.
 *   1: An argument is unusable, or clipping left nothing.
 */
export function BBIBltUBlur(dst: ImageLike, src: ImageLike, dx: number, dy: number, cx: number, cy: number, sx: number, sy: number, radius: number): number;

/**
 * As BBIBltUBlur, along columns.
 * @param dst The image that is changed.
 * @param src The image that is read.
 * @param dx Where the rectangle begins in `dst`.
 * @param dy Where the rectangle begins in `dst`.
 * @param cx The size of the rectangle.
 * @param cy The size of the rectangle.
 * @param sx Where the rectangle begins in `src`.
 * @param sy Where the rectangle begins in `src`.
 * @param radius How far the window reaches to either side. Lowered to `n / 2 - 1` and to 127; below 1, given
 *   or lowered, the rectangle is copied as by BBIBlt.
 * @returns 0: Done.
 *   1: An argument is unusable, or clipping left nothing.
 */
export function BBIBltVBlur(dst: ImageLike, src: ImageLike, dx: number, dy: number, cx: number, cy: number, sx: number, sy: number, radius: number): number;

/**
 * Box blur of rows for images that tile: the mean of pixels i - radius to i + radius, counted modulo n.
 *
 * The pixels at both ends are read a second time, in the order of the window: the last radius, all, and the
 * first radius pixels. So the destination must not overlap the source; if it does, what was written is
 * blurred again.
 * @param dst The image that is changed.
 * @param src The image that is read.
 * @param dx Where the rectangle begins in `dst`.
 * @param dy Where the rectangle begins in `dst`.
 * @param cx The size of the rectangle.
 * @param cy The size of the rectangle.
 * @param sx Where the rectangle begins in `src`.
 * @param sy Where the rectangle begins in `src`.
 * @param radius How far the window reaches to either side. Lowered to `n / 2 - 1` and to 127; below 1, given
 *   or lowered, the rectangle is copied as by BBIBlt.
 * @returns 0: Done.
 *   1: An argument is unusable, or clipping left nothing.
 */
export function BBIBltUBlurLoop(dst: ImageLike, src: ImageLike, dx: number, dy: number, cx: number, cy: number, sx: number, sy: number, radius: number): number;

/**
 * As BBIBltUBlurLoop, along columns.
 * @param dst The image that is changed.
 * @param src The image that is read.
 * @param dx Where the rectangle begins in `dst`.
 * @param dy Where the rectangle begins in `dst`.
 * @param cx The size of the rectangle.
 * @param cy The size of the rectangle.
 * @param sx Where the rectangle begins in `src`.
 * @param sy Where the rectangle begins in `src`.
 * @param radius How far the window reaches to either side. Lowered to `n / 2 - 1` and to 127; below 1, given
 *   or lowered, the rectangle is copied as by BBIBlt.
 * @returns 0: Done.
 *   1: An argument is unusable, or clipping left nothing.
 */
export function BBIBltVBlurLoop(dst: ImageLike, src: ImageLike, dx: number, dy: number, cx: number, cy: number, sx: number, sy: number, radius: number): number;

/**
 * Rescales rows by num / den within the same length, with a box filter.
 *
 * A source pixel counts as num units, a destination pixel is the mean of den units.
 *
 * - Shrinking (`num < den`) starts at the first pixel: destination pixel k is made of den units from k * den
 *   on, and unit u is source pixel `min(u / num, n - 1)`. The end of the row repeats the last pixel.
 * - Enlarging (and num = den) starts at the last pixel: destination pixel n - 1 - k is made of the same
 *   units, and unit u is source pixel `max(m - 1 - u / num, 0)` with `m = n * den / num`. What is left over
 *   at the start repeats pixel 0.
 *
 * So `dst` and `src` may be one image and one rectangle. `num` and `den` are lowered each for itself, and 256
 * / 512 is a copy: reduce the fraction first. Below 1, either returns 1.
 * @param dst The image that is changed.
 * @param src The image that is read.
 * @param dx Where the rectangle begins in `dst`.
 * @param dy Where the rectangle begins in `dst`.
 * @param cx The size of the rectangle.
 * @param cy The size of the rectangle.
 * @param sx Where the rectangle begins in `src`.
 * @param sy Where the rectangle begins in `src`.
 * @param num The numerator of the scale; above 128 counts as 128.
 * @param den The denominator, likewise.
 * @returns 0: Done.
 *   1: An argument is unusable, or clipping left nothing.
 */
export function BBIBltUScale(dst: ImageLike, src: ImageLike, dx: number, dy: number, cx: number, cy: number, sx: number, sy: number, num: number, den: number): number;

/**
 * As BBIBltUScale, along columns.
 * @param dst The image that is changed.
 * @param src The image that is read.
 * @param dx Where the rectangle begins in `dst`.
 * @param dy Where the rectangle begins in `dst`.
 * @param cx The size of the rectangle.
 * @param cy The size of the rectangle.
 * @param sx Where the rectangle begins in `src`.
 * @param sy Where the rectangle begins in `src`.
 * @param num The numerator of the scale; above 128 counts as 128.
 * @param den The denominator, likewise.
 * @returns 0: Done.
 *   1: An argument is unusable, or clipping left nothing.
 */
export function BBIBltVScale(dst: ImageLike, src: ImageLike, dx: number, dy: number, cx: number, cy: number, sx: number, sy: number, num: number, den: number): number;

/**
 * Halves a rectangle of 2 cx x 2 cy pixels of `src` to cx x cy: the mean of 2 x 2 pixels.
 *
 * Nothing is clipped: 1 unless both rectangles lie inside their images and `cx` and `cy` are at least 1.
 * @param dst The image that is changed.
 * @param src The image that is read.
 * @param dx Where the rectangle begins in `dst`.
 * @param dy Where the rectangle begins in `dst`.
 * @param cx The size of the rectangle.
 * @param cy The size of the rectangle.
 * @param sx Where the rectangle begins in `src`.
 * @param sy Where the rectangle begins in `src`.
 * @returns 0: Done.
 *   1: An argument is unusable, or clipping left nothing.
 */
export function BBIBltHalfSize(dst: ImageLike, src: ImageLike, dx: number, dy: number, cx: number, cy: number, sx: number, sy: number): number;

/**
 * Dithers for 5 bits a colour: c becomes `min((c & 248) + ((c & 7) < m ? 0 : 8), 255)`.
 *
 * m at row y % 4, column x % 4 of
 *
 *     0 4 1 5
 *     6 2 7 3
 *     1 5 0 4
 *     7 3 6 2
 * @param image The image that is changed.
 * @returns 0: Done.
 *   1: The image has no pixels.
 */
export function BBIColorCutDown1555(image: ImageLike): number;

/**
 * Dithers for 4 bits a colour: c becomes `min((c & 240) + ((c & 15) < m ? 0 : 16), 255)`.
 *
 * m at row y % 4, column x % 4 of
 *
 *      0  8  2 10
 *     12  4 14  6
 *      3 11  1  9
 *     15  7 13  5
 * @param image The image that is changed.
 * @returns 0: Done.
 *   1: The image has no pixels.
 */
export function BBIColorCutDown4444(image: ImageLike): number;

/**
 * Dithers for one bit a colour: c becomes `(c >> 2) < m ? 0 : 255`.
 *
 * m at row y % 8, column x % 8 of
 *
 *      3 11 23 31 24 12  4  0
 *     10 22 39 51 40 32 13  5
 *     21 38 50 59 52 41 33 14
 *     30 49 58 63 60 53 42 25
 *     29 48 57 62 61 54 43 26
 *     20 37 47 56 55 44 34 15
 *      9 19 36 46 45 35 16  6
 *      2  8 18 28 27 17  7  1
 * @param image The image that is changed.
 * @returns 0: Done.
 *   1: The image has no pixels.
 */
export function BBIColorCutDown1111(image: ImageLike): number;

/**
 * Makes colours and alpha from colours or alpha; brightness is `(red + green + blue) / 3`.
 * @param dst The image that is changed.
 * @param src The image that is read.
 * @param colour_from What the colours come from.
 * @param alpha_from What the alpha comes from.
 * @returns 0: Done.
 *   1: The images have no part in common.
 */
export function BBIChooseCA(dst: ImageLike, src: ImageLike, colour_from: number, alpha_from: number): number;

/**
 * As BBIChooseCA; brightness is `trunc(green * 0.7154 + blue * 0.0721 + red * 0.2125)`, in double precision.
 * @param dst The image that is changed.
 * @param src The image that is read.
 * @param colour_from What the colours come from.
 * @param alpha_from What the alpha comes from.
 * @returns 0: Done.
 *   1: The images have no part in common.
 */
export function BBIChooseCATR(dst: ImageLike, src: ImageLike, colour_from: number, alpha_from: number): number;

/**
 * As BBIChooseCA; brightness is `trunc(green * green_weight + blue * blue_weight + red * red_weight)`, in
 * double precision.
 *
 * The low 8 bits of that integer are taken, so that 256 gives 0. A sum that fits no 32-bit integer, or is not
 * a number, gives 0.
 * @param dst The image that is changed.
 * @param src The image that is read.
 * @param colour_from What the colours come from.
 * @param alpha_from What the alpha comes from.
 * @param red_weight The share of red.
 * @param green_weight The share of green.
 * @param blue_weight The share of blue.
 * @returns 0: Done.
 *   1: The images have no part in common.
 */
export function BBIChooseCATS(dst: ImageLike, src: ImageLike, colour_from: number, alpha_from: number, red_weight: number, green_weight: number, blue_weight: number): number;

/**
 * Copies each channel from one that is named.
 * @param dst The image that is changed.
 * @param src The image that is read.
 * @param red_from What becomes red.
 * @param green_from What becomes green.
 * @param blue_from What becomes blue.
 * @param alpha_from What becomes alpha.
 * @returns 0: Done.
 *   1: The images have no part in common.
 */
export function BBIChooseRGBA(dst: ImageLike, src: ImageLike, red_from: number, green_from: number, blue_from: number, alpha_from: number): number;

/**
 * Runs one of eleven operations on a whole image in place.
 *
 * What the arguments are depends on the operation:
 *
 * | `op` | `colour` | `key` | `extra` | `outer` | result |
 * |---|---|---|---|---|---|
 * | 0, 1 | new colour | key | | | 0 |
 * | 2 | fill colour | key | border on the others' side | border on the key's side | 0 |
 * | 3, 4 | new colour | key | | | 0 |
 * | 5 | new colour | key | most pixels of a region, signed | | regions painted |
 * | 6, 9 | colour that does not count | key | | | key pixels left |
 * | 7 | darkest grey, low byte | lightest grey, low byte | | | pixels left |
 * | 8 | new colour | | | | pixels painted |
 * | 10 | new colour | bits wanted | mask | | 0 |
 *
 * 2, 3 and 4 ask what the neighbours were before the call. In 2, others with a key neighbour become `extra`
 * instead of `colour`, key pixels with another neighbour `outer`.
 *
 * 6, 7 and 9 visit the pixels in four sweeps, row by row: even columns of even rows, odd columns of even
 * rows, even columns of odd rows, odd columns of odd rows. A pixel that was filled is a neighbour with its
 * new colour from then on. A pixel without neighbours that count stays and is counted.
 *
 * - In 6 and 9 neighbours count that are neither key nor `colour`. One pass is made.
 * - In 7 grey pixels whose blue lies from the darkest to the lightest are to be filled, and neighbours count
 *   that are not grey or were filled. Passes repeat until no pixel is left or one fills nothing.
 * - Commonest: the earlier of left, right, above, below on a tie.
 * - Average: per channel, alpha included, from the sum of those that count: of one the sum, of two
 *   `sum >> 1`, of three `(sum + 3) * 85 >> 8`, of four `(sum + 2) >> 2`.
 *
 * Any other operation, an image without pixels and a lack of working memory change nothing and return 0.
 * @param image The image that is changed.
 * @param op The operation.
 * @param colour A colour, see the table.
 * @param key The key, see the table.
 * @param extra Another colour, a number or a mask, see the table.
 * @param outer Another colour, see the table.
 * @returns A number of pixels or regions, see the table.
 */
export function BBIPaintChoose(image: ImageLike, op: number, colour: number, key: number, extra: number, outer: number): number;

/**
 * Reads a frame at the 16-bit scale.
 * @param data (at least max(count, 0) * (2 * min(abs(bits - 8), 1) + min(abs(bits - 16), 1)) * (2 -
 *   min(abs(channels - 2), 1)) bytes) Frame 0: 1, 2 or 3 bytes a sample, 1 or 2 samples.
 * @param index The frame.
 * @param bits The width of a stored sample.
 * @param channels Samples a frame.
 * @param count Frames that the memory holds.
 * @param left (at least 1 words) The left sample, or the only one.
 * @param right (at least 1 words) The right sample, or the only one.
 * @returns 0: Always.
 */
export function GetWave(data: Memory, index: number, bits: number, channels: number, count: number, left: Memory, right: Memory): number;

/**
 * Writes a frame at the 16-bit scale, without clamping.
 * @param data (at least max(count, 0) * (2 * min(abs(bits - 8), 1) + min(abs(bits - 16), 1)) * (2 -
 *   min(abs(channels - 2), 1)) bytes) Frame 0.
 * @param index The frame.
 * @param bits The width of a stored sample.
 * @param channels Samples a frame.
 * @param count Frames that the memory holds.
 * @param left The left value; what does not fit loses its high bits.
 * @param right The right one.
 * @returns 0: Always.
 */
export function LetWave(data: Memory, index: number, bits: number, channels: number, count: number, left: number, right: number): number;

/**
 * Reads a frame at the 24-bit scale.
 * @param data (at least max(count, 0) * (2 * min(abs(bits - 8), 1) + min(abs(bits - 16), 1)) * (2 -
 *   min(abs(channels - 2), 1)) bytes) Frame 0: 1, 2 or 3 bytes a sample, 1 or 2 samples.
 * @param index The frame.
 * @param bits The width of a stored sample.
 * @param channels Samples a frame.
 * @param count Frames that the memory holds.
 * @param left (at least 1 words) The left sample, or the only one.
 * @param right (at least 1 words) The right sample, or the only one.
 * @returns 0: Always.
 */
export function GetWave24(data: Memory, index: number, bits: number, channels: number, count: number, left: Memory, right: Memory): number;

/**
 * Writes a frame at the 24-bit scale, without clamping.
 * @param data (at least max(count, 0) * (2 * min(abs(bits - 8), 1) + min(abs(bits - 16), 1)) * (2 -
 *   min(abs(channels - 2), 1)) bytes) Frame 0.
 * @param index The frame.
 * @param bits The width of a stored sample.
 * @param channels Samples a frame.
 * @param count Frames that the memory holds.
 * @param left The left value; what does not fit loses its high bits.
 * @param right The right one.
 * @returns 0: Always.
 */
export function LetWave24(data: Memory, index: number, bits: number, channels: number, count: number, left: number, right: number): number;

/**
 * Reads a frame at the float scale.
 * @param data (at least max(count, 0) * min(bits / 8, 8) * (2 - min(abs(channels - 2), 1)) bytes) Frame 0.
 * @param index The frame.
 * @param bits The width of a stored sample.
 * @param channels Samples a frame.
 * @param count Frames that the memory holds.
 * @param left (at least 1 doubles) The left sample, or the only one; untouched for unknown bits.
 * @param right (at least 1 doubles) The right sample, or the only one; untouched for unknown bits.
 * @returns 0: Always.
 */
export function GetWave64(data: Memory, index: number, bits: number, channels: number, count: number, left: Memory, right: Memory): number;

/**
 * Writes a frame at the float scale, clamped to -1..1.
 * @param data (at least max(count, 0) * min(bits / 8, 8) * (2 - min(abs(channels - 2), 1)) bytes) Frame 0.
 * @param index The frame.
 * @param bits The width of a stored sample.
 * @param channels Samples a frame.
 * @param count Frames that the memory holds.
 * @param left The left value; not a number counts as -1.
 * @param right The right one.
 * @returns 0: Always.
 */
export function LetWave64(data: Memory, index: number, bits: number, channels: number, count: number, left: number, right: number): number;

/**
 * Packs a format code: `rate * 256 + bits + channels`.
 * @param bits The width of a sample.
 * @param channels Samples a frame.
 * @param rate Frames a second. Not checked here: the functions that take the code refuse other rates.
 * @returns The code, in the low 32 bits; 0 for other bits or channels.
 */
export function waveFormatEnc(bits: number, channels: number, rate: number): number;

/**
 * Converts a whole buffer at the 16-bit scale: frames `0..dst->count - 1`, silence past the end of `src`.
 *
 * 24-bit samples lose their lowest byte. For full resolution and for 64-bit buffers use `waveBlt64`.
 * @param dst The buffer that is filled.
 * @param src The buffer that is read.
 * @returns 0: Done.
 *   1: One of the formats is invalid.
 */
export function waveFormat(dst: Sound, src: Sound): number;

/**
 * Copies with a gain at the 24-bit scale: `(s * trunc(gain * 64)) >> 6`.
 * @param dst The buffer that is written.
 * @param src The buffer that is read.
 * @param dst_start The first frame written; may be negative or past the end.
 * @param src_start The first frame read; may be negative or past the end.
 * @param count How many frames; below 1 does nothing and returns 0.
 * @param gain Limited to this range; not a number counts as 0. From 1 to below 1 + 1/64 frames are copied
 *   exactly.
 * @returns 0: Done.
 *   1: A format is invalid, or a parameter is refused.
 */
export function waveBlt(dst: Sound, src: Sound, dst_start: number, src_start: number, count: number, gain: number): number;

/**
 * Moving average at the 16-bit scale: the sum of the source frames from `radius` before to `radius` after,
 * divided by `2 * radius + 1` and truncated toward zero.
 *
 * Frames before `src_start + radius` count as silence, so the first `2 * radius` results fade in. The cost
 * does not depend on the radius.
 * @param dst The buffer that is written.
 * @param src The buffer that is read.
 * @param dst_start The first frame written; may be negative or past the end.
 * @param src_start The first frame read; may be negative or past the end.
 * @param count How many frames; below 1 does nothing and returns 0.
 * @param radius Below 1 is refused; above 511 counts as 511.
 * @returns 0: Done.
 *   1: A format is invalid, or a parameter is refused.
 */
export function waveBltBlur(dst: Sound, src: Sound, dst_start: number, src_start: number, count: number, radius: number): number;

/**
 * Exclusive-or at the 16-bit scale: `d ^ s`, with `s` read `offset` frames further on.
 *
 * Between 16-bit buffers, the same call undoes it.
 * @param dst The buffer that is written.
 * @param src The buffer that is read.
 * @param dst_start The first frame written; may be negative or past the end.
 * @param src_start The first frame read; may be negative or past the end.
 * @param count How many frames; below 1 does nothing and returns 0.
 * @param offset Below 1 is refused.
 * @returns 0: Done.
 *   1: A format is invalid, or a parameter is refused.
 */
export function waveBltGluder(dst: Sound, src: Sound, dst_start: number, src_start: number, count: number, offset: number): number;

/**
 * Copies with noise at the 16-bit scale: `s + (((noise - 32768) * trunc(amount * 256)) >> 8)`.
 *
 * `noise` is `GetRandom(65536)`, drawn for the left and then for the right channel of every frame, whatever
 * the formats, the amount and the ends of the buffers: the result depends on every other draw in the process.
 * A run of 2^31 frames therefore takes seconds.
 * @param dst The buffer that is written.
 * @param src The buffer that is read.
 * @param dst_start The first frame written; may be negative or past the end.
 * @param src_start The first frame read; may be negative or past the end.
 * @param count How many frames; below 1 does nothing and returns 0.
 * @param amount Limited to this range; not a number counts as 0.
 * @returns 0: Done.
 *   1: A format is invalid, or a parameter is refused.
 */
export function waveBltAddNoise(dst: Sound, src: Sound, dst_start: number, src_start: number, count: number, amount: number): number;

/**
 * Copies with a tone at the 16-bit scale: `s + trunc(sin(phase) * amplitude * 32768)`, the same tone in both
 * channels.
 *
 * From `phase = modulation = 0` and `increment = frequency`, after every frame: `phase += increment` (the old
 * one), `modulation += rate`, `increment += sin(modulation) * depth` (the new modulation). The three are kept
 * in single precision; sines, the product `sin(phase) * amplitude * 32768` and the sum that becomes the
 * increment are formed in double. Every call begins anew. From a far negative position the tone is worked
 * through.
 * @param dst The buffer that is written.
 * @param src The buffer that is read.
 * @param dst_start The first frame written; may be negative or past the end.
 * @param src_start The first frame read; may be negative or past the end.
 * @param count How many frames; below 1 does nothing and returns 0.
 * @param amplitude Limited to this range; not a number counts as -1.
 * @param frequency The first increment: radians a frame, not hertz. `2 * pi * hertz / rate_of_the_buffer`.
 * @param depth How much the increment moves in a frame at most.
 * @param rate The speed of that movement: radians a frame, not hertz.
 * @returns 0: Done.
 *   1: A format is invalid, or a parameter is refused.
 */
export function waveBltSin(dst: Sound, src: Sound, dst_start: number, src_start: number, count: number, amplitude: number, frequency: number, depth: number, rate: number): number;

/**
 * Mixes at the 16-bit scale: `d + ((s * trunc(gain * 256)) >> 8)`.
 * @param dst The buffer that is written.
 * @param src The buffer that is read.
 * @param dst_start The first frame written; may be negative or past the end.
 * @param src_start The first frame read; may be negative or past the end.
 * @param count How many frames; below 1 does nothing and returns 0.
 * @param gain A negative gain and not a number are refused; above 4 counts as 4.
 * @returns 0: Done.
 *   1: A format is invalid, or a parameter is refused.
 */
export function waveBltAdd(dst: Sound, src: Sound, dst_start: number, src_start: number, count: number, gain: number): number;

/**
 * Subtracts at the 16-bit scale: `d - ((s * trunc(gain * 256)) >> 8)`.
 * @param dst The buffer that is written.
 * @param src The buffer that is read.
 * @param dst_start The first frame written; may be negative or past the end.
 * @param src_start The first frame read; may be negative or past the end.
 * @param count How many frames; below 1 does nothing and returns 0.
 * @param gain A negative gain and not a number are refused; above 4 counts as 4.
 * @returns 0: Done.
 *   1: A format is invalid, or a parameter is refused.
 */
export function waveBltSub(dst: Sound, src: Sound, dst_start: number, src_start: number, count: number, gain: number): number;

/**
 * Ring modulation by the magnitude of the source, at the 16-bit scale: `(abs(s) * d) >> 15`.
 *
 * The gain can refuse, and does nothing else.
 * @param dst The buffer that is written.
 * @param src The buffer that is read.
 * @param dst_start The first frame written; may be negative or past the end.
 * @param src_start The first frame read; may be negative or past the end.
 * @param count How many frames; below 1 does nothing and returns 0.
 * @param gain A negative gain and not a number are refused; above 4 counts as 4.
 * @returns 0: Done.
 *   1: A format is invalid, or a parameter is refused.
 */
export function waveBltMul(dst: Sound, src: Sound, dst_start: number, src_start: number, count: number, gain: number): number;

/**
 * Copies at the float scale: converts between all formats, and keeps what they can hold to within one unit.
 * @param dst The buffer that is written.
 * @param src The buffer that is read.
 * @param dst_start The first frame written; may be negative or past the end.
 * @param src_start The first frame read; may be negative or past the end.
 * @param count How many frames; below 1 does nothing and returns 0.
 * @returns 0: Done.
 *   1: A format is invalid, or a parameter is refused.
 */
export function waveBlt64(dst: Sound, src: Sound, dst_start: number, src_start: number, count: number): number;

/**
 * Multiplies by `target / 0.01` at the float scale, clamped to -1..1.
 *
 * Despite the name the level of the material plays no part.
 *
 * The quotient is formed in double precision from the single-precision target.
 * @param dst The buffer that is written.
 * @param src The buffer that is read.
 * @param dst_start The first frame written; may be negative or past the end.
 * @param src_start The first frame read; may be negative or past the end.
 * @param count How many frames; below 1 does nothing and returns 0.
 * @param target Limited to this range; not a number counts as 0. 0.01 keeps the level, 1 multiplies it by
 *   100.
 * @returns 0: Done.
 *   1: A format is invalid, or a parameter is refused.
 */
export function waveNormal(dst: Sound, src: Sound, dst_start: number, src_start: number, count: number, target: number): number;

/**
 * Silences frames `start..start + count - 1`.
 * @param dst The buffer that is written.
 * @param start The first frame; may be negative or past the end.
 * @param count How many frames; below 1 does nothing and returns 0.
 * @returns 0: Done.
 *   1: A format is invalid, or a parameter is refused.
 */
export function waveClear64(dst: Sound, start: number, count: number): number;

/**
 * Fills `dst` with `src` read at a constant speed: frame `i` is the blend of the two source frames around `p =
 * i * ratio`.
 *
 * `p` is formed in double precision, `n = trunc(p)`.
 * - Same bits and channels, 8 or 16 bits: stored samples are blended, `(sample(n + 1) * f + sample(n) * (256
 * - f)) >> 8` with `f = trunc((p - n) * 256)`. The last source frame is held; frames from `src->count` on are
 *   silence.
 * - Same bits and channels, 24 or 64 bits: nothing is written, and 0 returned. Go through a buffer of other
 *   bits.
 * - All else at the 16-bit scale: `((32768 - f) * s(n) + f * s(n + 1)) >> 15` with `f = trunc((p - n) *
 *   32768)`; behind the last frame lies silence, into which it fades.
 * @param dst The buffer that is filled, all of it.
 * @param src The buffer that is read.
 * @param ratio Source frames for each destination frame: above 1 is faster and higher. Negative and not a
 *   number are refused.
 * @returns 0: Done, or nothing to do.
 *   1: A format is invalid or the ratio refused.
 */
export function waveExpand(dst: Sound, src: Sound, ratio: number): number;

/**
 * Raises quiet passages, in place, at the 24-bit scale.
 *
 * In the `count` frames at the look position, magnitudes are limited to 8388607 and their bits joined by or.
 * Each channel's new gain is `gain * growth`, at least 1 and at most 8; at most 4 with bit 20, 2 with bit 21,
 * 1 with bit 22 (the highest that is set decides). The gain thus grows once a call. Frames at the write
 * position are multiplied by `old, old + step, old + 2 * step, ...` with `step = (new - old) / count`, by
 * repeated addition, and truncated. Where a loud block follows, the first products may not fit and then wrap;
 * beyond 32 bits, and where the gain is not a number, they count as -2^31. A gain that is not a number stays
 * so.
 * @param buffer The sound.
 * @param look_position (at least 1 words) The first frame whose loudness is looked at. A host keeps it a
 *   block or more ahead of the write position.
 * @param write_position (at least 1 words) The first frame that is changed.
 * @param count The length of the block. Below 1 is refused.
 * @param growth Limited to this range; not a number counts as 1.0001.
 * @param left_gain (at least 1 doubles) The gain of the left channel; a host begins with 1.0.
 * @param right_gain (at least 1 doubles) The gain of the right channel.
 * @returns 0: Done.
 *   1: A format is invalid or the count is below 1.
 */
export function waveEffectMaximizer24(buffer: Sound, look_position: Memory, write_position: Memory, count: number, growth: number, left_gain: Memory, right_gain: Memory): number;

/**
 * Raises quiet passages at the float scale, from `src` to `dst`, both at the write position.
 *
 * Results are clamped to -1..1.
 *
 * A state is the gain less 16. It becomes `state + step`, but at least -15 (a gain of 1), and then at most
 * `limit - 16`: for loud material the limit wins. The limit follows from the peak `p` of the `count` source
 * frames at the look position, the largest magnitude in the channel:
 *
 * | p from | limit |
 * |---|---|
 * | 0 | 16 |
 * | 0.06249 | 14 |
 * | 0.07142 | 12 |
 * | 0.08333 | 10 |
 * | 0.09999 | 8 |
 * | 0.1249 | 6 |
 * | 0.1666 | 4 |
 * | 0.249 | 2 |
 * | 0.49 | 1 |
 * | 0.99 | 0.5 |
 * | 1.99 | 0.25 |
 * | 3.99 | 0.125 |
 * | 7.99 | 0 |
 *
 * A state that is not a number stays so; samples that are not a number do not count in the peak. The gain
 * moves over the block as in `waveEffectMaximizer24`, from `old state + 16` to `new state + 16`.
 * @param dst The buffer that is written.
 * @param src The buffer that is read.
 * @param look_position (at least 1 words) The first frame whose loudness is looked at. A host keeps it a
 *   block or more ahead of the write position.
 * @param write_position (at least 1 words) The first frame that is changed.
 * @param count The length of the block. Below 1 is refused.
 * @param step Limited to this range; not a number counts as 0.
 * @param left_state (at least 1 doubles) The state of the left channel; a host begins with -15.0.
 * @param right_state (at least 1 doubles) The state of the right channel.
 * @returns 0: Done.
 *   1: A format is invalid or the count is below 1.
 */
export function waveEffectMaximizer64(dst: Sound, src: Sound, look_position: Memory, write_position: Memory, count: number, step: number, left_state: Memory, right_state: Memory): number;

/**
 * Adds echoes to `count` frames from the frame position on, in place, at the float scale.
 *
 * For every frame, with `r` the ring position:
 * 1. ring frame `r + 199`, times 0.005, is added to the frame, which is written clamped;
 * 2. ring frame `r` is cleared;
 * 3. with `e = (left + right) * (level * 0.5)` of the frame as it was read, unless that is 0 or not a number:
 *    from `x = r + predelay`, for each tap, with `i = trunc(x)` in 64 bits (-2^63 for what does not fit or is
 *    not a number) and `f = x - i`, ring frame `i` receives `(1
 * - f) * e * gain` and ring frame `i + 1` receives `f * e * gain` of each channel's gain; then `x += spread *
 *   distance`;
 * 4. both positions advance by one.
 *
 * Ring frames are taken modulo 524288. So an echo is heard 199 frames before its delay is over, and one of
 * less than 200 frames never. Calls that pass on the ring and both positions make one continuous reverb.
 * Frames outside the buffer are silence, and only clear the ring.
 * @param buffer The sound. A count of 0 is refused; a negative one is silence.
 * @param frame_position (at least 1 words) The first frame; advanced by `count`.
 * @param ring A 64-bit buffer of at least 524288 frames by its count, whatever its channels used as 524288
 *   frames of two doubles: its data must be 8 MiB, cleared by the host before the first call. Its format
 *   and count may say one channel, but not less memory.
 * @param ring_position (at least 1 words) The place in the ring, 0..524287; other values are taken modulo
 *   524288.
 * @param count The length of the block. Below 1 is refused.
 * @param level How loud the echoes are sent; limited to this range, not a number counts as 0.
 * @param predelay From a frame to its first echo; limited to this range.
 * @param spread Multiplies the distances of the taps; limited to this range.
 * @param taps How many echoes a frame has; limited to this range.
 * @param tap_table (at least 30000 doubles) 10000 left gains, 10000 right gains, 10000 distances from a tap
 *   to the next in frames; the first `taps` of each are read.
 * @returns 0: Done.
 *   1: The count is below 1; the buffer is invalid or has a count of 0; the ring is invalid, has fewer
 *   frames or other bits; or there is no memory for the distances of the taps, 8 bytes each.
 */
export function waveEffectReverbA1(buffer: Sound, frame_position: Memory, ring: Sound, ring_position: Memory, count: number, level: number, predelay: number, spread: number, taps: number, tap_table: Memory): number;

/**
 * Real and imaginary parts of the spectrum.
 * @param buffer The sound.
 * @param start The first frame.
 * @param n The length of the run and of both arrays.
 * @param re (at least n doubles) Real parts. Must not share memory with the sound or with `im`.
 * @param im (at least n doubles) Imaginary parts.
 * @returns 0: Done.
 *   1: The format is invalid.
 *   2: `n` is below 1 or `start` negative.
 *   3: The run leaves the buffer.
 */
export function wavefft(buffer: Sound, start: number, n: number, re: Memory, im: Memory): number;

/**
 * Magnitude and angle: after `wavefft`, `re[k]` becomes `sqrt(re * re + im * im)` and `im[k]` becomes
 * `atan2(re, im)`, in radians from the imaginary axis.
 *
 * The arctangent is within one unit in the last place of the exact one, and the same on every target. The
 * arrays are converted whatever the result, if `n` is at least 1: what they hold must be defined.
 * @param buffer The sound.
 * @param start The first frame.
 * @param n The length of the run and of both arrays.
 * @param re (at least n doubles) Real parts. Must not share memory with the sound or with `im`.
 * @param im (at least n doubles) Imaginary parts.
 * @returns 0: Done.
 *   1: The format is invalid; the arrays are converted all the same.
 *   2: `n` is below 1, or `start` is negative and the arrays are converted all the same.
 *   3: The run leaves the buffer; the arrays are converted all the same.
 */
export function wavefft2(buffer: Sound, start: number, n: number, re: Memory, im: Memory): number;

/** Lossless stream formats. */
export type Codec =
  | 'i'
  | 'io'
  | 'ib18'
  | 'ib18_ex'
  | 'iabr'
  | 'inabe'
  | 'imist'
  | 'inda'
  | 'ica'
  | 'c2f';
