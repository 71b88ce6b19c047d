/* Byte-stream codecs. */
#ifndef TESSARO_CODEC_H
#define TESSARO_CODEC_H

#include "tessaro/types.h"

#ifdef __cplusplus
extern "C" {
#endif

/* ---- Transforms ----
 *
 * Reversible steps in front of a codec: they make as many bytes as they take, and small, repetitive values out of
 * pixels and samples. Every one returns 0 whatever it is given. The encoders set *written to the number of bytes made.
 *
 * iwave: each sample becomes its difference to an earlier one, modulo the sample's width, folded so that small
 * differences of either sign are small codes (0, -1, 1, -2 become 0, 1, 2, 3).
 *   11, 12, 32   bytes; the one 1, 2, 4 places before, 128 before the start
 *   21, 22       little-endian 16-bit words; the one 1, 2 words before, 0 before the start. The last byte of an odd
 *                length is neither coded nor copied, nor counted in *written: the host carries it.
 * source and destination may be the same memory; where they overlap otherwise, the results are those of one sample
 * after another.
 *
 * ichshift: bytes that take turns in 2, 3 or 4 channels become one channel after another: first every byte whose
 * position is a multiple of that number, then those at one more, and so on. Where the length is not a multiple, later
 * planes are shorter. source and destination should not overlap. */
TESSARO_API int32_t TESSARO_CALL iwave11Encoder(const void* source, void* destination, uint32_t length,
                                                uint32_t* written);
TESSARO_API int32_t TESSARO_CALL iwave11Decoder(const void* source, void* destination, uint32_t length);
TESSARO_API int32_t TESSARO_CALL iwave12Encoder(const void* source, void* destination, uint32_t length,
                                                uint32_t* written);
TESSARO_API int32_t TESSARO_CALL iwave12Decoder(const void* source, void* destination, uint32_t length);
TESSARO_API int32_t TESSARO_CALL iwave32Encoder(const void* source, void* destination, uint32_t length,
                                                uint32_t* written);
TESSARO_API int32_t TESSARO_CALL iwave32Decoder(const void* source, void* destination, uint32_t length);
TESSARO_API int32_t TESSARO_CALL iwave21Encoder(const void* source, void* destination, uint32_t length,
                                                uint32_t* written);
TESSARO_API int32_t TESSARO_CALL iwave21Decoder(const void* source, void* destination, uint32_t length);
TESSARO_API int32_t TESSARO_CALL iwave22Encoder(const void* source, void* destination, uint32_t length,
                                                uint32_t* written);
TESSARO_API int32_t TESSARO_CALL iwave22Decoder(const void* source, void* destination, uint32_t length);
TESSARO_API int32_t TESSARO_CALL ichshift2Encoder(const void* source, void* destination, uint32_t length,
                                                  uint32_t* written);
TESSARO_API int32_t TESSARO_CALL ichshift2Decoder(const void* source, void* destination, uint32_t length);
TESSARO_API int32_t TESSARO_CALL ichshift3Encoder(const void* source, void* destination, uint32_t length,
                                                  uint32_t* written);
TESSARO_API int32_t TESSARO_CALL ichshift3Decoder(const void* source, void* destination, uint32_t length);
TESSARO_API int32_t TESSARO_CALL ichshift4Encoder(const void* source, void* destination, uint32_t length,
                                                  uint32_t* written);
TESSARO_API int32_t TESSARO_CALL ichshift4Decoder(const void* source, void* destination, uint32_t length);

/* ---- Stream formats ----
 *
 * Lossless codecs for blocks of bytes, most of them made for 32-bit pixels. A stream is bytes without a head:
 * the host keeps the name of the format and the length of the source beside it. docs/formats.md describes every
 * format.
 *
 * <name>Encoder codes `length` bytes of source. The result is 0 when the stream is complete and shorter than the
 * format's limit, the source length less a margin; *written is then its length in bytes. The result is 1 when the
 * data does not compress: *written is untouched when the source is shorter than the format's minimum, otherwise
 * destination holds the first *written bytes of a stream that was given up, and the host keeps the source instead.
 * destination has room for `length` bytes; nothing behind the written bytes is changed.
 *
 * <name>Decoder makes `count` bytes, the length of the source: 0 = done, 1 = count is 0, nothing done. It trusts the
 * stream and reads exactly the bytes that it needs; only what the same format's encoder made may be given to it,
 * with its own length.
 *
 * <name>DecoderSafe is for streams from elsewhere. It takes the stream's size in bytes and makes the same bytes,
 * or returns 1 when the stream ends before count bytes are made (destination then begins with those that were made;
 * inda, inabe and inabeEx make several at once, the last of which may be missing or wrong) or when count is 0.
 * Whatever the stream holds, nothing is read behind it and nothing written behind count bytes.
 *
 * Buffers need no alignment; source and destination must not overlap. */

/* i: pairs of bytes, each against the pair before. Minimum length 49, margin 48. A pair costs 3 bits (equal to the one
 * before) to 19. */
TESSARO_API int32_t TESSARO_CALL iEncoder(const void* source, void* destination, uint32_t length,
                                          uint32_t* written);
TESSARO_API int32_t TESSARO_CALL iDecoder(const void* stream, void* destination, uint32_t count);
TESSARO_API int32_t TESSARO_CALL iDecoderSafe(const void* stream, void* destination, uint32_t stream_size,
                                              uint32_t count);

/* io: pixels that repeat the pixel before them. Minimum length 65, margin 64. A group of four bytes that equals the
 * one before costs one bit, any other 33. */
TESSARO_API int32_t TESSARO_CALL ioEncoder(const void* source, void* destination, uint32_t length,
                                           uint32_t* written);
TESSARO_API int32_t TESSARO_CALL ioDecoder(const void* stream, void* destination, uint32_t count);
TESSARO_API int32_t TESSARO_CALL ioDecoderSafe(const void* stream, void* destination, uint32_t stream_size,
                                               uint32_t count);

/* ib18: blocks of six bytes that repeat the byte before, or are the byte that most often follows it in this source, or
 * are sent. Minimum length 512, margin 32; 256 bytes of every stream are the table of successors. The Ex pair codes one
 * channel of 32-bit pixels after another; a length that is not a multiple of 4 is not restored by it. The encoders
 * need 256 KiB of stack. Unlike the other decoders the classic ones return 0 for a count of 0, too. */
TESSARO_API int32_t TESSARO_CALL ib18Encoder(const void* source, void* destination, uint32_t length,
                                             uint32_t* written);
TESSARO_API int32_t TESSARO_CALL ib18Decoder(const void* stream, void* destination, uint32_t count);
TESSARO_API int32_t TESSARO_CALL ib18DecoderSafe(const void* stream, void* destination, uint32_t stream_size,
                                                 uint32_t count);
TESSARO_API int32_t TESSARO_CALL ib18EncoderEx(const void* source, void* destination, uint32_t length,
                                               uint32_t* written);
TESSARO_API int32_t TESSARO_CALL ib18DecoderEx(const void* stream, void* destination, uint32_t count);
TESSARO_API int32_t TESSARO_CALL ib18DecoderExSafe(const void* stream, void* destination,
                                                   uint32_t stream_size, uint32_t count);

/* iabr: groups of 4, 8, 16, ... bytes, each group with 8, 5, 3 or 0 bits a byte, whatever differs from the byte before.
 * Minimum length 257, margin 256. A stream that is given up at the limit ends with one more byte. */
TESSARO_API int32_t TESSARO_CALL iabrEncoder(const void* source, void* destination, uint32_t length,
                                             uint32_t* written);
TESSARO_API int32_t TESSARO_CALL iabrDecoder(const void* stream, void* destination, uint32_t count);
TESSARO_API int32_t TESSARO_CALL iabrDecoderSafe(const void* stream, void* destination, uint32_t stream_size,
                                                 uint32_t count);

/* inabe: groups of 4 * 2^k bytes that agree in their top bits, coded in a few bits each with an escape for the ones
 * that do not fit. Minimum length 257, margin 256. A stream that was given up is flushed: *written counts that byte
 * too. inabeDecoder and inabeDecoderEx do not check for a count of 0, which makes nothing and returns 0.
 *
 * inabeDecoderEx undoes ichshift4Encoder and iwave11Encoder in the same pass: pixels that were prepared with the one,
 * then the other, then coded, come back with one call. */
TESSARO_API int32_t TESSARO_CALL inabeEncoder(const void* source, void* destination, uint32_t length,
                                              uint32_t* written);
TESSARO_API int32_t TESSARO_CALL inabeDecoder(const void* stream, void* destination, uint32_t count);
TESSARO_API int32_t TESSARO_CALL inabeDecoderEx(const void* stream, void* destination, uint32_t count);
TESSARO_API int32_t TESSARO_CALL inabeDecoderSafe(const void* stream, void* destination, uint32_t stream_size,
                                                  uint32_t count);
TESSARO_API int32_t TESSARO_CALL inabeDecoderExSafe(const void* stream, void* destination,
                                                    uint32_t stream_size, uint32_t count);

/* imist: pixels against the pixel before, in two pairs of channels: blue and red, green and alpha. Minimum length 129,
 * margin 128. A pixel costs 6 to 34 bits. */
TESSARO_API int32_t TESSARO_CALL imistEncoder(const void* source, void* destination, uint32_t length,
                                              uint32_t* written);
TESSARO_API int32_t TESSARO_CALL imistDecoder(const void* stream, void* destination, uint32_t count);
TESSARO_API int32_t TESSARO_CALL imistDecoderSafe(const void* stream, void* destination, uint32_t stream_size,
                                                  uint32_t count);

/* inda: blocks of eight bytes, each byte whole or as the bits in which it differs from a byte one to eight places
 * back; the encoder tries every distance and every number of bits. Minimum length 65, margin 64. */
TESSARO_API int32_t TESSARO_CALL indaEncoder(const void* source, void* destination, uint32_t length,
                                             uint32_t* written);
TESSARO_API int32_t TESSARO_CALL indaDecoder(const void* stream, void* destination, uint32_t count);
TESSARO_API int32_t TESSARO_CALL indaDecoderSafe(const void* stream, void* destination, uint32_t stream_size,
                                                 uint32_t count);

/* ica: pixels against the pixel before; each byte whole or cut to its low 3 or 5 bits. Minimum length 129, margin
 * 128. A repeated pixel costs 5 bits, any other 17 to 37. */
TESSARO_API int32_t TESSARO_CALL icaEncoder(const void* source, void* destination, uint32_t length,
                                            uint32_t* written);
TESSARO_API int32_t TESSARO_CALL icaDecoder(const void* stream, void* destination, uint32_t count);
TESSARO_API int32_t TESSARO_CALL icaDecoderSafe(const void* stream, void* destination, uint32_t stream_size,
                                                uint32_t count);

/* c2f: blocks of eight 32-bit pixels; the bytes of a pixel (blue, green, red or alpha) that do not change
 * within a block against the pixel before it are left out. For pixels with a constant alpha and flat areas.
 *
 * c2fEncoder takes any length and always returns 0. The stream can be longer than the source: destination
 * must hold length + length / 32 + 3 bytes, rounded up. */
TESSARO_API int32_t TESSARO_CALL c2fEncoder(const void* source, void* destination, uint32_t length,
                                            uint32_t* written);

/* Unlike the other decoders it takes both sizes and checks them: 0 = done; 1 = the stream ended early or
 * describes more than size bytes, destination holds what was decoded before that. Any stream is safe. The
 * zero bytes at the end of a source whose length is not a multiple of 32 are not stored: behind the last
 * byte of the stream, every second byte up to size becomes 0 and the ones between keep what they held, so a
 * host clears the destination first. */
TESSARO_API int32_t TESSARO_CALL c2fDecoder(const void* stream, void* destination, uint32_t stream_size,
                                            uint32_t size);

/* ---- Pictures ----
 *
 * A picture file as it lies on disk, in memory: `file` points to its `size` bytes. Windows loads it with the OLE
 * picture loader and knows what that knows. Elsewhere JPEG, PNG, GIF (the first image) and bitmap files without
 * compression (1 to 32 bits) are known, up to 32767 pixels an edge and 512 MiB of pixels; rows that a damaged
 * file does not give are not drawn.
 *
 * Both return 1 when size is below 64 or above 8388608 or there is no memory for the file, and otherwise 0: also
 * for a file that is no picture, and for a picture that is no bitmap (an icon, a cursor, a metafile). */

/* The extents of a bitmap in HIMETRIC units, hundredths of a millimetre, not in pixels; elsewhere than on Windows
 * at 96 pixels an inch, rounded to nearest: 8 pixels are 212. pixels = round(extent * 96 / 2540). Both are set to
 * 0 before anything else and stay 0 where there is no bitmap. */
TESSARO_API int32_t TESSARO_CALL DecodeImageHead(const void* file, int32_t size, int32_t* width,
                                                 int32_t* height);

/* Draws a bitmap at (0, 0) of a device context: an HDC on Windows, elsewhere an ImageRecord*, which receives
 * pixels 0xAARRGGBB with alpha 0 where the file has none (BBIClearMask(image, 0, 0, 0, 255, 0x00FFFFFF) makes them
 * opaque). The rectangle drawn has as many columns as the number of
 * the picture's HIMETRIC height, and as many rows as that of its HIMETRIC width, cut to the picture and to the
 * destination: all of a picture, unless one edge is over 26 times as long as the other. */
TESSARO_API int32_t TESSARO_CALL DecodeImage(void* device, const void* file, int32_t size);

#ifdef __cplusplus
}
#endif

#endif
