/* Byte-stream codecs. */
#ifndef TESSARO_CODEC_H
#define TESSARO_CODEC_H

#include "tessaro/types.h"

#ifdef __cplusplus
extern "C" {
#endif

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

#ifdef __cplusplus
}
#endif

#endif
