/* Load state and scalar helpers (shifts, peeks and pokes, hashes, calls through pointers, a random generator),
 * the worker thread and the window hooks. */
#ifndef TESSARO_FRAME_H
#define TESSARO_FRAME_H

#include "tessaro/types.h"

#ifdef __cplusplus
extern "C" {
#endif

/* The processor level found at load: 2 = no packed integers, 3 = conditional moves besides, 4 = MMX, 12 = MMX
 * and SSE, 20 = MMX and SSE2 without SSE, 28 = MMX, SSE and SSE2. */
TESSARO_API int32_t TESSARO_CALL GetCpuID(void);

/* Returns flag. Kept for hosts that choose wide paths by it: no result depends on it. */
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

/* Compares count bytes: 0 = equal, also when count is below 1; 1 = different. No page of memory behind that of the first
 * difference is touched, so that count may reach beyond the end of what is there. */
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

/* A function that the worker thread calls over and over. What it returns is not looked at, and as it takes no
 * arguments, either calling convention of 32-bit Windows will do. */
typedef void(TESSARO_CDECL* TessaroWorker)(void);

/* Runs function in a thread of its own, again and again until ThreadKill, and returns 0 when that thread has
 * ended: the call blocks, yielding in a loop, so ThreadKill has to come from another thread. function runs at
 * least once unless ThreadKill came before the thread did. There is one worker a process: while one is there,
 * also one that ended in another way than by ThreadKill (its function left by ExitThread or pthread_exit), the
 * result is 1 at once. A thread that the system cannot make gives 0 at once. Two threads must not call
 * ThreadBegin at the same moment. */
TESSARO_API int32_t TESSARO_CALL ThreadBegin(TessaroWorker function);

/* Stops the worker after its current call, waits until it has ended, without a time limit, and returns 0; then
 * ThreadBegin may be called again. 1 = there is no worker. Called from within the worker's function it waits
 * for ever. Two threads must not call it at the same moment. */
TESSARO_API int32_t TESSARO_CALL ThreadKill(void);

/* A function that is offered the messages of a hooked window: the message with its two parameters, and the
 * value that was given with the hook. Not 0 = handled: the window's procedure returns 0 (not this value); 0 =
 * the window's previous procedure goes on with the message. On 32-bit Windows it may follow either calling
 * convention; message is widened to a word, and only 32 bits of the result count. */
typedef int32_t(TESSARO_CALL* TessaroHook)(void* window, uintptr_t message, uintptr_t first, intptr_t second,
                                           intptr_t value);

/* Offers the messages of window (a HWND) to hook first, by giving the window a procedure of the library's. 0 =
 * hooked; 1 = 256 hooks are in place already, or the window's procedure could not be read (always so where
 * there are no such windows: everywhere but on Windows), and nothing was changed.
 *   A window that is hooked a second time gets a second entry whose previous procedure is the library's own,
 * while its messages find the first: unhook it before hooking it again. Hooks belong to the thread that owns
 * the windows; calls from several threads at once are not guarded. */
TESSARO_API int32_t TESSARO_CALL WindowProcLoad(void* window, TessaroHook hook, intptr_t value);

/* Gives the window its previous procedure back. 0 = unhooked; 1 = the window is not hooked.
 *   Hooks come off cleanly in the reverse order of WindowProcLoad. In any other order the entry that leaves
 * takes over the previous procedure of the newest one but keeps its own window, and the newest window, though
 * it still has the library's procedure, is no longer known: its messages give 0. With A, B and C hooked,
 * unhooking A restores A, leaves an entry of A with C's previous procedure, and silences C.
 *   Unloading the library takes all hooks off in the same way, always the first entry: one hooked window is
 * restored; of several the first ends with the second one's procedure and the others keep a procedure that is
 * gone. Unhook windows before letting go of the library. */
TESSARO_API int32_t TESSARO_CALL WindowProcUnload(void* window);

#ifdef __cplusplus
}
#endif

#endif
