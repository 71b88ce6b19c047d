/* Load state and scalar helpers: shifts, peeks and pokes, hashes, calls through pointers, a random generator.
 */
#ifndef TESSARO_FRAME_H
#define TESSARO_FRAME_H

#include "tessaro/types.h"

#ifdef __cplusplus
extern "C" {
#endif

/* The processor level found at load: 2 = no packed integers, 3 = conditional moves besides, 4 = MMX, 12 = MMX
 * and SSE, 20 = MMX and SSE2 without SSE, 28 = MMX, SSE and SSE2. */
TESSARO_API int32_t TESSARO_CALL GetCpuID(void);

/* Sets the wide-path switch, which is 0 after loading, and returns flag. Kept for hosts that set it: the
 * operations that used to read it have one implementation, and their results never depended on it. */
TESSARO_API int32_t TESSARO_CALL MMX(int32_t flag);

/* Returns x: lets a host see that the library is there. One function under two names. */
TESSARO_API int32_t TESSARO_CALL BBI(int32_t x);
TESSARO_API int32_t TESSARO_CALL wave(int32_t x);

/* value shifted right (logically, arithmetically) or left by count modulo 32. */
TESSARO_API uint32_t TESSARO_CALL SHR(uint32_t value, uint32_t count);
TESSARO_API int32_t TESSARO_CALL SAR(int32_t value, uint32_t count);
TESSARO_API uint32_t TESSARO_CALL SHL(uint32_t value, uint32_t count);

/* The 16-bit word at base + 2 * index, any alignment; index may be negative. The result is 16 bits wide: the
 * upper half of the register it comes in is undefined. GetInt is the same function. */
TESSARO_API uint16_t TESSARO_CALL GetWORD(const void* base, int32_t index);
TESSARO_API uint16_t TESSARO_CALL GetInt(const void* base, int32_t index);

/* Stores the low 16 bits of value at base + 2 * index and returns them (16 bits wide, as above). */
TESSARO_API uint16_t TESSARO_CALL SetWORD(void* base, int32_t index, uint32_t value);
TESSARO_API uint16_t TESSARO_CALL SetInt(void* base, int32_t index, uint32_t value);

/* The 32-bit word at base + 4 * index, any alignment; index may be negative. */
TESSARO_API uint32_t TESSARO_CALL GetDWORD(const void* base, int32_t index);
TESSARO_API uint32_t TESSARO_CALL GetLong(const void* base, int32_t index);

/* Stores value at base + 4 * index and returns it. */
TESSARO_API uint32_t TESSARO_CALL SetDWORD(void* base, int32_t index, uint32_t value);
TESSARO_API uint32_t TESSARO_CALL SetLong(void* base, int32_t index, uint32_t value);

/* Compares count bytes: 0 = equal, also when count is below 1; 1 = different. */
TESSARO_API int32_t TESSARO_CALL dllComp(const void* a, const void* b, int32_t count);

/* Exclusive-ors (despite the name) a block of `rows` rows of `words` 32-bit words of src into dst, in order;
 * both move on by pitch bytes a row, which may be negative. Applied twice it restores dst. Returns 0; rows or
 * words below 1 do nothing. */
TESSARO_API int32_t TESSARO_CALL CopyMemoryEx(void* dst, const void* src, int32_t words, int32_t rows,
                                              int32_t pitch);

/* A 32-bit hash of a zero-terminated byte string; at most its first 64 bytes are read. */
TESSARO_API uint32_t TESSARO_CALL hash32A(const void* text);

/* A 32-bit hash of length bytes, another function than hash32A. Zero bytes are skipped, so that a 16-bit
 * string of ASCII characters hashes like its 8-bit form. A length below 1 gives the hash of nothing,
 * 0xA82976E5. */
TESSARO_API uint32_t TESSARO_CALL hash32W(const void* bytes, int32_t length);

/* Mixes two pixel words: every channel, alpha included, becomes (c0 * (256 - k) + c1 * k) >> 8 with
 * k = trunc(factor * 256). A factor that is negative or not a number counts as 0, one above 1 as 1. */
TESSARO_API uint32_t TESSARO_CALL dwColorBlend(uint32_t colour0, uint32_t colour1, float factor);

/* Functions of the host's that the library calls. The first two follow the caller-cleans convention of the
 * platform, the third the convention of the exports themselves; they differ on 32-bit Windows only. */
typedef intptr_t(TESSARO_CDECL* TessaroMethod1)(intptr_t a);
typedef intptr_t(TESSARO_CDECL* TessaroMethod4)(intptr_t a, intptr_t b, intptr_t c, intptr_t d);
typedef intptr_t(TESSARO_CALL* TessaroCallback2)(intptr_t a, intptr_t b);

/* Call fn with the given pointer-sized words and return what it returns. */
TESSARO_API intptr_t TESSARO_CALL dllMethod1(TessaroMethod1 fn, intptr_t a);
TESSARO_API intptr_t TESSARO_CALL dllMethod4(TessaroMethod4 fn, intptr_t a, intptr_t b, intptr_t c,
                                             intptr_t d);
TESSARO_API intptr_t TESSARO_CALL StdCallBack(TessaroCallback2 fn, intptr_t a, intptr_t b);

/* The next 32-bit output of a Mersenne Twister (MT19937), seeded at load from the clock, modulo n (unsigned).
 * One state for the process, without a lock: calls from several threads need one of the caller's. n = 0 is a
 * division by zero and faults. */
TESSARO_API uint32_t TESSARO_CALL GetRandom(uint32_t n);

#ifdef __cplusplus
}
#endif

#endif
