/**
 * @file
 * @brief Byte-stream codecs: reversible transforms, stream formats, picture files.
 *
 * Buffers need no alignment. No pointer may be null, and none is checked. A length, count or size beside a
 * plain pointer is trusted: that much memory must be there.
 */
#ifndef TESSARO_CODEC_H
#define TESSARO_CODEC_H

#include "tessaro/types.h"

#ifdef __cplusplus
extern "C" {
#endif

/**
 * @defgroup differences Difference transforms
 * @brief Each sample becomes its folded difference to an earlier one: small codes for a codec behind it.
 *
 * The difference to the reference, modulo the width of a sample and taken as a signed number `d`, becomes `2
 * * d`, or `-2 * d - 1` where `d` is negative: 0, -1, 1, -2, 2 become 0, 1, 2, 3, 4. A decoder adds the
 * difference to the reference and wraps.
 *
 * Transforms make as many bytes as they take and fail never. Source and destination may be the same memory;
 * where they overlap otherwise the results are those of one sample after another.
 *
 * @param[in] source [length bytes] What is transformed.
 * @param[out] destination [length bytes] What comes of it; of an odd length of 16-bit words the last byte is
 *   left alone.
 * @param length [bytes, trusted] The size of both.
 * @param[out] written [1 words] The number of bytes made: the length, or for 16-bit words the even part of
 *   it.
 * @retval 0 Always.
 * @{
 */

/** Differences of bytes, the reference one place before, 128 before the start. */
TESSARO_API int32_t TESSARO_CALL iwave11Encoder(const void* source, void* destination, uint32_t length,
                                                uint32_t* written);
/** Undoes `iwave11Encoder`. */
TESSARO_API int32_t TESSARO_CALL iwave11Decoder(const void* source, void* destination, uint32_t length);
/** Differences of bytes, the reference two places before, 128 before the start. */
TESSARO_API int32_t TESSARO_CALL iwave12Encoder(const void* source, void* destination, uint32_t length,
                                                uint32_t* written);
/** Undoes `iwave12Encoder`. */
TESSARO_API int32_t TESSARO_CALL iwave12Decoder(const void* source, void* destination, uint32_t length);
/** Differences of bytes, the reference four places before, 128 before the start. */
TESSARO_API int32_t TESSARO_CALL iwave32Encoder(const void* source, void* destination, uint32_t length,
                                                uint32_t* written);
/** Undoes `iwave32Encoder`. */
TESSARO_API int32_t TESSARO_CALL iwave32Decoder(const void* source, void* destination, uint32_t length);
/**
 * @brief Differences of little-endian 16-bit words, the reference one word before, 0 before the start. The
 * last byte of an odd length is neither coded nor copied: the host carries it.
 */
TESSARO_API int32_t TESSARO_CALL iwave21Encoder(const void* source, void* destination, uint32_t length,
                                                uint32_t* written);
/** Undoes `iwave21Encoder`. */
TESSARO_API int32_t TESSARO_CALL iwave21Decoder(const void* source, void* destination, uint32_t length);
/**
 * @brief Differences of little-endian 16-bit words, the reference two words before, 0 before the start. The
 * last byte of an odd length is neither coded nor copied: the host carries it.
 */
TESSARO_API int32_t TESSARO_CALL iwave22Encoder(const void* source, void* destination, uint32_t length,
                                                uint32_t* written);
/** Undoes `iwave22Encoder`. */
TESSARO_API int32_t TESSARO_CALL iwave22Decoder(const void* source, void* destination, uint32_t length);

/** @} */

/**
 * @defgroup planes Channel planes
 * @brief Bytes that take turns in 2, 3 or 4 channels become one channel after another.
 *
 * First come the bytes at positions that are a multiple of the number of channels, then those at one more,
 * and so on: 0 1 2 3 4 5 6 becomes 0 3 6 1 4 2 5 with three. Where the length is no multiple, later planes
 * are shorter. Source and destination must not overlap.
 *
 * @param[in] source [length bytes] What is transformed.
 * @param[out] destination [length bytes] What comes of it.
 * @param length [bytes, trusted] The size of both.
 * @param[out] written [1 words] The number of bytes made: the length.
 * @retval 0 Always.
 * @{
 */

/** Parts bytes into two planes. */
TESSARO_API int32_t TESSARO_CALL ichshift2Encoder(const void* source, void* destination, uint32_t length,
                                                  uint32_t* written);
/** Puts two planes together again. */
TESSARO_API int32_t TESSARO_CALL ichshift2Decoder(const void* source, void* destination, uint32_t length);
/** Parts bytes into three planes. */
TESSARO_API int32_t TESSARO_CALL ichshift3Encoder(const void* source, void* destination, uint32_t length,
                                                  uint32_t* written);
/** Puts three planes together again. */
TESSARO_API int32_t TESSARO_CALL ichshift3Decoder(const void* source, void* destination, uint32_t length);
/** Parts bytes into four planes. */
TESSARO_API int32_t TESSARO_CALL ichshift4Encoder(const void* source, void* destination, uint32_t length,
                                                  uint32_t* written);
/** Puts four planes together again. */
TESSARO_API int32_t TESSARO_CALL ichshift4Decoder(const void* source, void* destination, uint32_t length);

/** @} */

/**
 * @defgroup streams Stream formats
 * @brief Lossless codecs for blocks of bytes, most of them made for 32-bit pixels.
 *
 * A stream is bytes without a head: the host keeps the name of the format and the length of the source beside
 * it. `docs/formats.md` describes every format, bit for bit. Source and destination must not overlap.
 *
 * **Encoders** make a stream only if it is shorter than the format's limit, the length of the source less a
 * margin. A source shorter than the format's minimum is refused at once, and `*written` is not touched: to
 * tell the two results of 1 apart, set it to 0 before the call (a stream that was given up has at least one
 * byte). Nothing behind the written bytes is changed, and no more than `length` bytes are written.
 *
 * | format | minimum | margin | unit | made for |
 * |---|---|---|---|---|
 * | `i` | 49 | 48 | 2 bytes | bytes that stay near those before |
 * | `io` | 65 | 64 | 4 bytes | repeated pixels |
 * | `inda` | 65 | 64 | 8 bytes | bytes that share bits with one 1 to 8 places back |
 * | `ica` | 129 | 128 | 4 bytes | pixels that stay near the one before |
 * | `imist` | 129 | 128 | 4 bytes | the same, in two pairs of channels |
 * | `iabr` | 257 | 256 | 4 bytes | groups of bytes that stay near the one before |
 * | `inabe` | 257 | 256 | 4 bytes | small values, as the transforms make them |
 * | `ib18`, `ib18 Ex` | 512 | 32 | 6 bytes | bytes that often follow one another |
 * | `c2f` | none | none | 32 bytes | pixels with constant channels and flat areas |
 *
 * **Decoders** make `count` bytes, the length of the source. The classic ones trust the stream and are not
 * told how long it is: only what the same format's encoder made, with its own length, may be given to them.
 * The ones whose names end in `Safe` are for streams from elsewhere: whatever the stream holds, nothing is
 * read behind `stream_size` bytes and nothing written behind `count` bytes. Streams that are given up are of
 * no use to either.
 *
 * @param[in] source [length bytes] What is coded.
 * @param[out] destination [count bytes] What was coded.
 * @param length [bytes, trusted] The size of the source, and of the memory at the destination.
 * @param[in,out] written [1 words] Bytes of the stream; untouched where the source is shorter than the
 *   minimum.
 * @param[in] stream [stream_size bytes] The stream.
 * @param stream_size [bytes, trusted] Its size.
 * @param count [bytes, trusted] The length of the source, and the memory at the destination.
 * @{
 */

/**
 * @brief Codes pairs of bytes, each against the pair before.
 *
 * A pair costs 3 bits (equal to the one before) to 19.
 *
 * @param[out] destination [length bytes] The stream.
 * @retval 0 The stream is complete and shorter than the limit.
 * @retval 1 The data does not compress; keep the source. Below the minimum nothing is written, otherwise the
 *   first `*written` bytes of a stream that was given up.
 */
TESSARO_API int32_t TESSARO_CALL iEncoder(const void* source, void* destination, uint32_t length,
                                          uint32_t* written);

/**
 * @brief Decodes a trusted stream of `i`.
 * @param[in] stream [address] The stream: exactly the bytes that are needed are read, without a check.
 * @retval 0 Done.
 * @retval 1 [untouched] The count is 0.
 */
TESSARO_API int32_t TESSARO_CALL iDecoder(const void* stream, void* destination, uint32_t count);

/**
 * @brief Decodes any stream of `i`, safely.
 * @retval 0 Done.
 * @retval 1 The stream ended early or the count is 0 (nothing is changed then). The destination begins with
 *   the bytes that were made.
 */
TESSARO_API int32_t TESSARO_CALL iDecoderSafe(const void* stream, void* destination, uint32_t stream_size,
                                              uint32_t count);

/**
 * @brief Codes pixels that repeat the one before.
 *
 * A group of four bytes that equals the one before costs one bit, any other 33.
 *
 * @param[out] destination [length bytes] The stream.
 * @retval 0 The stream is complete and shorter than the limit.
 * @retval 1 The data does not compress; keep the source. Below the minimum nothing is written, otherwise the
 *   first `*written` bytes of a stream that was given up.
 */
TESSARO_API int32_t TESSARO_CALL ioEncoder(const void* source, void* destination, uint32_t length,
                                           uint32_t* written);

/**
 * @brief Decodes a trusted stream of `io`.
 * @param[in] stream [address] The stream: exactly the bytes that are needed are read, without a check.
 * @retval 0 Done.
 * @retval 1 [untouched] The count is 0.
 */
TESSARO_API int32_t TESSARO_CALL ioDecoder(const void* stream, void* destination, uint32_t count);

/**
 * @brief Decodes any stream of `io`, safely.
 * @retval 0 Done.
 * @retval 1 The stream ended early or the count is 0 (nothing is changed then). The destination begins with
 *   the bytes that were made.
 */
TESSARO_API int32_t TESSARO_CALL ioDecoderSafe(const void* stream, void* destination, uint32_t stream_size,
                                               uint32_t count);

/**
 * @brief Codes blocks of six bytes that repeat the byte before, or are the one that most often follows it in
 * this source, or are sent.
 *
 * 256 bytes of every stream are the table of successors.
 *
 * @param[out] destination [length bytes] The stream.
 * @retval 0 The stream is complete and shorter than the limit.
 * @retval 1 The data does not compress; keep the source. Below the minimum nothing is written, otherwise the
 *   first `*written` bytes of a stream that was given up.
 */
TESSARO_API int32_t TESSARO_CALL ib18Encoder(const void* source, void* destination, uint32_t length,
                                             uint32_t* written);

/**
 * @brief Decodes a trusted stream of `ib18`.
 * @param[in] stream [address] The stream: exactly the bytes that are needed are read, without a check.
 * @retval 0 Done; also for a count of 0.
 */
TESSARO_API int32_t TESSARO_CALL ib18Decoder(const void* stream, void* destination, uint32_t count);

/**
 * @brief Decodes any stream of `ib18`, safely.
 * @retval 0 Done.
 * @retval 1 The stream ended early or the count is 0 (nothing is changed then). The destination begins with
 *   the bytes that were made.
 */
TESSARO_API int32_t TESSARO_CALL ib18DecoderSafe(const void* stream, void* destination, uint32_t stream_size,
                                                 uint32_t count);

/**
 * @brief Codes as `ib18Encoder` does, one channel of 32-bit pixels after another.
 *
 * The table of successors is that of the plain order. Only a length that is a multiple of 4 is restored.
 *
 * @param[out] destination [length bytes] The stream.
 * @retval 0 The stream is complete and shorter than the limit.
 * @retval 1 The data does not compress; keep the source. Below the minimum nothing is written, otherwise the
 *   first `*written` bytes of a stream that was given up.
 */
TESSARO_API int32_t TESSARO_CALL ib18EncoderEx(const void* source, void* destination, uint32_t length,
                                               uint32_t* written);

/**
 * @brief Decodes a trusted stream of `ib18`, one channel after another.
 * @param[in] stream [address] The stream: exactly the bytes that are needed are read, without a check.
 * @retval 0 Done; also for a count of 0.
 */
TESSARO_API int32_t TESSARO_CALL ib18DecoderEx(const void* stream, void* destination, uint32_t count);

/**
 * @brief Decodes any stream of `ib18`, one channel after another, safely.
 * @retval 0 Done.
 * @retval 1 The stream ended early or the count is 0 (nothing is changed then). What was made lies at
 *   positions 0, 4, 8, ..., then 1, 5, ....
 */
TESSARO_API int32_t TESSARO_CALL ib18DecoderExSafe(const void* stream, void* destination,
                                                   uint32_t stream_size, uint32_t count);

/**
 * @brief Codes groups of 4, 8, 16, ... bytes, each group with 8, 5, 3 or 0 bits a byte, whatever differs from
 * the byte before.
 *
 * A stream that is given up ends with one more byte.
 *
 * @param[out] destination [length bytes] The stream.
 * @retval 0 The stream is complete and shorter than the limit.
 * @retval 1 The data does not compress; keep the source. Below the minimum nothing is written, otherwise the
 *   first `*written` bytes of a stream that was given up.
 */
TESSARO_API int32_t TESSARO_CALL iabrEncoder(const void* source, void* destination, uint32_t length,
                                             uint32_t* written);

/**
 * @brief Decodes a trusted stream of `iabr`.
 * @param[in] stream [address] The stream: exactly the bytes that are needed are read, without a check.
 * @retval 0 Done.
 * @retval 1 [untouched] The count is 0.
 */
TESSARO_API int32_t TESSARO_CALL iabrDecoder(const void* stream, void* destination, uint32_t count);

/**
 * @brief Decodes any stream of `iabr`, safely.
 * @retval 0 Done.
 * @retval 1 The stream ended early or the count is 0 (nothing is changed then). The destination begins with
 *   the bytes that were made.
 */
TESSARO_API int32_t TESSARO_CALL iabrDecoderSafe(const void* stream, void* destination, uint32_t stream_size,
                                                 uint32_t count);

/**
 * @brief Codes groups of `4 * 2^k` bytes that agree in their top bits, in a few bits each, with an escape for
 * those that do not fit.
 *
 * A stream that is given up ends with one more byte.
 *
 * @param[out] destination [length bytes] The stream.
 * @retval 0 The stream is complete and shorter than the limit.
 * @retval 1 The data does not compress; keep the source. Below the minimum nothing is written, otherwise the
 *   first `*written` bytes of a stream that was given up.
 */
TESSARO_API int32_t TESSARO_CALL inabeEncoder(const void* source, void* destination, uint32_t length,
                                              uint32_t* written);

/**
 * @brief Decodes a trusted stream of `inabe`.
 * @param[in] stream [address] The stream: exactly the bytes that are needed are read, without a check.
 * @retval 0 Done; also for a count of 0.
 */
TESSARO_API int32_t TESSARO_CALL inabeDecoder(const void* stream, void* destination, uint32_t count);

/**
 * @brief Decodes a trusted stream of `inabe` and undoes two transforms in the same pass.
 *
 * Pixels that were prepared with `ichshift4Encoder`, then `iwave11Encoder`, then coded, come back with one
 * call; any length does.
 *
 * @param[in] stream [address] The stream: exactly the bytes that are needed are read, without a check.
 * @retval 0 Done; also for a count of 0.
 */
TESSARO_API int32_t TESSARO_CALL inabeDecoderEx(const void* stream, void* destination, uint32_t count);

/**
 * @brief Decodes any stream of `inabe`, safely.
 * @retval 0 Done.
 * @retval 1 The stream ended early or the count is 0 (nothing is changed then). From the last four whole
 *   codes on, everything up to the end of the group may be wrong.
 */
TESSARO_API int32_t TESSARO_CALL inabeDecoderSafe(const void* stream, void* destination, uint32_t stream_size,
                                                  uint32_t count);

/**
 * @brief Decodes any stream of `inabe` and undoes the transforms as `inabeDecoderEx` does, safely.
 * @retval 0 Done.
 * @retval 1 The stream ended early or the count is 0 (nothing is changed then). What was made lies at
 *   positions 0, 4, 8, ..., then 1, 5, ..., and its end may be wrong as for `inabeDecoderSafe`.
 */
TESSARO_API int32_t TESSARO_CALL inabeDecoderExSafe(const void* stream, void* destination,
                                                    uint32_t stream_size, uint32_t count);

/**
 * @brief Codes pixels against the pixel before, in two pairs of channels: blue and red, green and alpha.
 *
 * A pixel costs 6 to 34 bits.
 *
 * @param[out] destination [length bytes] The stream.
 * @retval 0 The stream is complete and shorter than the limit.
 * @retval 1 The data does not compress; keep the source. Below the minimum nothing is written, otherwise the
 *   first `*written` bytes of a stream that was given up.
 */
TESSARO_API int32_t TESSARO_CALL imistEncoder(const void* source, void* destination, uint32_t length,
                                              uint32_t* written);

/**
 * @brief Decodes a trusted stream of `imist`.
 * @param[in] stream [address] The stream: exactly the bytes that are needed are read, without a check.
 * @retval 0 Done.
 * @retval 1 [untouched] The count is 0.
 */
TESSARO_API int32_t TESSARO_CALL imistDecoder(const void* stream, void* destination, uint32_t count);

/**
 * @brief Decodes any stream of `imist`, safely.
 * @retval 0 Done.
 * @retval 1 The stream ended early or the count is 0 (nothing is changed then). The destination begins with
 *   the bytes that were made.
 */
TESSARO_API int32_t TESSARO_CALL imistDecoderSafe(const void* stream, void* destination, uint32_t stream_size,
                                                  uint32_t count);

/**
 * @brief Codes blocks of eight bytes, each byte whole or as the bits in which it differs from a byte one to
 * eight places back.
 *
 * The encoder tries every distance and every number of bits.
 *
 * @param[out] destination [length bytes] The stream.
 * @retval 0 The stream is complete and shorter than the limit.
 * @retval 1 The data does not compress; keep the source. Below the minimum nothing is written, otherwise the
 *   first `*written` bytes of a stream that was given up.
 */
TESSARO_API int32_t TESSARO_CALL indaEncoder(const void* source, void* destination, uint32_t length,
                                             uint32_t* written);

/**
 * @brief Decodes a trusted stream of `inda`.
 * @param[in] stream [address] The stream: exactly the bytes that are needed are read, without a check.
 * @retval 0 Done.
 * @retval 1 [untouched] The count is 0.
 */
TESSARO_API int32_t TESSARO_CALL indaDecoder(const void* stream, void* destination, uint32_t count);

/**
 * @brief Decodes any stream of `inda`, safely.
 * @retval 0 Done.
 * @retval 1 The stream ended early or the count is 0 (nothing is changed then). The destination begins with
 *   the bytes that were made; several are made at once, and the last of them may be missing.
 */
TESSARO_API int32_t TESSARO_CALL indaDecoderSafe(const void* stream, void* destination, uint32_t stream_size,
                                                 uint32_t count);

/**
 * @brief Codes pixels against the pixel before, each byte whole or cut to its low 3 or 5 bits.
 *
 * A repeated pixel costs 5 bits, any other 17 to 37.
 *
 * @param[out] destination [length bytes] The stream.
 * @retval 0 The stream is complete and shorter than the limit.
 * @retval 1 The data does not compress; keep the source. Below the minimum nothing is written, otherwise the
 *   first `*written` bytes of a stream that was given up.
 */
TESSARO_API int32_t TESSARO_CALL icaEncoder(const void* source, void* destination, uint32_t length,
                                            uint32_t* written);

/**
 * @brief Decodes a trusted stream of `ica`.
 * @param[in] stream [address] The stream: exactly the bytes that are needed are read, without a check.
 * @retval 0 Done.
 * @retval 1 [untouched] The count is 0.
 */
TESSARO_API int32_t TESSARO_CALL icaDecoder(const void* stream, void* destination, uint32_t count);

/**
 * @brief Decodes any stream of `ica`, safely.
 * @retval 0 Done.
 * @retval 1 The stream ended early or the count is 0 (nothing is changed then). The destination begins with
 *   the bytes that were made.
 */
TESSARO_API int32_t TESSARO_CALL icaDecoderSafe(const void* stream, void* destination, uint32_t stream_size,
                                                uint32_t count);

/**
 * @brief Codes pixels whose channels stay constant, in blocks of eight pixels. Takes any length.
 *
 * The stream can be longer than the source.
 *
 * @param[out] destination [length + ceil_div(length, 32) + 3 bytes] The stream.
 * @param[out] written [1 words] Bytes of the stream.
 * @retval 0 Always.
 */
TESSARO_API int32_t TESSARO_CALL c2fEncoder(const void* source, void* destination, uint32_t length,
                                            uint32_t* written);

/**
 * @brief Decodes `c2f`. It checks both sizes, and is safe with any stream.
 *
 * The zeros at the end of a source whose length is not a multiple of 32 are not stored: behind the last byte
 * of the stream every second byte up to `size` becomes 0, beginning with the first, and the ones between keep
 * what they held. A host therefore clears the destination first. An end part that is longer than the room
 * left is cut, with result 0.
 *
 * @param[in,out] destination [size bytes] What was coded.
 * @param size [bytes, trusted] The length of the source.
 * @retval 0 Done.
 * @retval 1 The stream ended early, or describes more than `size` bytes before its end part; the destination
 *   begins with what was decoded before that.
 */
TESSARO_API int32_t TESSARO_CALL c2fDecoder(const void* stream, void* destination, uint32_t stream_size,
                                            uint32_t size);

/** @} */

/**
 * @defgroup pictures Picture files
 * @brief Decode a picture file that lies in memory.
 *
 * Windows loads it with the OLE picture loader and knows what that knows. Elsewhere JPEG, PNG, GIF (the first
 * image) and bitmap files (1, 4, 8, 16, 24 or 32 bits, those of 4 and 8 bits also run-length coded) are
 * known, up to 32767 pixels an edge and 512 MiB of pixels, in a PNG file together with its samples; JPEG, PNG
 * and GIF files only where `libtessaro-pictures.so.0` lies beside the library. Rows that a damaged file does
 * not give are not drawn; pixels that a run-length coded bitmap skips are black. A sample of `n` bits becomes
 * the byte `(v * 255 + max / 2) / max` with `max = 2^n - 1`; 16-bit bitmaps without masks are 555.
 *
 * @param[in] file [size bytes] The file as it lies on disk.
 * @param size [bytes, 64..8388608, trusted] Its size.
 * @retval 0 Handled; also for a file that is no picture, for a picture that is no bitmap (an icon, a cursor,
 *   a metafile), and where there is no memory for it.
 * @retval 1 The size is out of range.
 * @{
 */

/**
 * @brief The extents of a bitmap in HIMETRIC units, hundredths of a millimetre, not in pixels.
 *
 * Elsewhere than on Windows at 96 pixels an inch, rounded to nearest: 8 pixels are 212, and `pixels =
 * round(extent * 96 / 2540)`; so too on Windows where the screen has 96 pixels an inch. Both are set to 0
 * before anything else and stay 0 where there is no bitmap.
 *
 * @param[out] width [1 words] The width.
 * @param[out] height [1 words] The height.
 */
TESSARO_API int32_t TESSARO_CALL DecodeImageHead(const void* file, int32_t size, int32_t* width,
                                                 int32_t* height);

/**
 * @brief Draws a bitmap at (0, 0) of a device context.
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
 *
 * @param[in,out] device [image] Elsewhere than on Windows an `ImageRecord`; on Windows an HDC.
 */
TESSARO_API int32_t TESSARO_CALL DecodeImage(void* device, const void* file, int32_t size);

/** @} */

#ifdef __cplusplus
}
#endif

#endif
