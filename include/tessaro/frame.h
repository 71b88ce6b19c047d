/**
 * @file
 * @brief The frame: processor level, scalar helpers, the worker thread and window hooks.
 */
#ifndef TESSARO_FRAME_H
#define TESSARO_FRAME_H

#include "tessaro/types.h"

#ifdef __cplusplus
extern "C" {
#endif

/**
 * @defgroup scalars Processor and scalars
 * @brief What a host's language may lack: shifts, peeks and pokes, hashes, calls through pointers, a random
 *   generator.
 *
 * Peeks and pokes reach all memory of the host, at any alignment; nothing is checked. `GetInt`, `GetLong`,
 * `SetInt`, `SetLong` and `wave` are second names of a function.
 *
 * @param x [value] Any number.
 * @param value [value] The number that is shifted or stored.
 * @param count [bits] By how many bits; only its low five bits count, so that 33 shifts by 1.
 * @param[in] base [address] Where index 0 lies.
 * @param index [index] Which word, counted from `base`; may be negative.
 * @param fn [function] The function that is called.
 * @param a, b, c, d [value] Its arguments, each as wide as a pointer.
 * @{
 */

/** Levels of a processor. */
enum TessaroCpuLevel {
  TESSARO_CPU_BASIC = 2,     /**< No packed integers. */
  TESSARO_CPU_CMOV = 3,      /**< No packed integers, but conditional moves. */
  TESSARO_CPU_MMX = 4,       /**< MMX. */
  TESSARO_CPU_MMX_SSE = 12,  /**< MMX and SSE. */
  TESSARO_CPU_MMX_SSE2 = 20, /**< MMX and SSE2 without SSE. */
  TESSARO_CPU_SSE2 = 28      /**< MMX, SSE and SSE2. */
};

/**
 * Tells the level of the processor, found when the library was loaded.
 *
 * @return [one of TessaroCpuLevel] The level: no result of another function depends on it.
 */
TESSARO_API int32_t TESSARO_CALL GetCpuID(void);

/**
 * Returns its argument.
 *
 * Kept for hosts that choose wide code paths with it; the library chooses by itself, and no result depends on
 * it.
 *
 * @param flag [value] Any number.
 * @return [value] `flag`.
 */
TESSARO_API int32_t TESSARO_CALL MMX(int32_t flag);

/**
 * Returns its argument: lets a host see that the library is there.
 *
 * @return [value] `x`.
 */
TESSARO_API int32_t TESSARO_CALL BBI(int32_t x);
TESSARO_API int32_t TESSARO_CALL wave(int32_t x);

/**
 * Shifts right and fills with zeros.
 *
 * @return [value] `value >> (count & 31)`, unsigned.
 */
TESSARO_API uint32_t TESSARO_CALL SHR(uint32_t value, uint32_t count);

/**
 * Shifts right and fills with the sign.
 *
 * @return [value] `value >> (count & 31)`, signed: -8 by 1 is -4, -1 by anything -1.
 */
TESSARO_API int32_t TESSARO_CALL SAR(int32_t value, uint32_t count);

/**
 * Shifts left.
 *
 * @return [value] The low 32 bits of `value << (count & 31)`.
 */
TESSARO_API uint32_t TESSARO_CALL SHL(uint32_t value, uint32_t count);

/**
 * Reads the 16-bit word at `base + 2 * index`.
 *
 * The result is 16 bits wide: a host that takes it for 32 finds undefined bits in the upper half.
 *
 * @return [value, 0..65535] The word.
 */
TESSARO_API uint16_t TESSARO_CALL GetWORD(const void* base, int32_t index);
TESSARO_API uint16_t TESSARO_CALL GetInt(const void* base, int32_t index);

/**
 * Stores the low 16 bits of a number at `base + 2 * index`.
 *
 * @param[out] base [address] Where index 0 lies.
 * @return [value, 0..65535] What was stored; 16 bits wide, as with GetWORD.
 */
TESSARO_API uint16_t TESSARO_CALL SetWORD(void* base, int32_t index, uint32_t value);
TESSARO_API uint16_t TESSARO_CALL SetInt(void* base, int32_t index, uint32_t value);

/**
 * Reads the 32-bit word at `base + 4 * index`.
 *
 * @return [value] The word.
 */
TESSARO_API uint32_t TESSARO_CALL GetDWORD(const void* base, int32_t index);
TESSARO_API uint32_t TESSARO_CALL GetLong(const void* base, int32_t index);

/**
 * Stores a number at `base + 4 * index`.
 *
 * @param[out] base [address] Where index 0 lies.
 * @return [value] `value`.
 */
TESSARO_API uint32_t TESSARO_CALL SetDWORD(void* base, int32_t index, uint32_t value);
TESSARO_API uint32_t TESSARO_CALL SetLong(void* base, int32_t index, uint32_t value);

/**
 * Compares bytes.
 *
 * The count may reach beyond the end of the memory if a difference lies before it: no page of 4096 bytes
 * behind that of the first difference is touched.
 *
 * @param[in] a [count bytes] The one.
 * @param[in] b [count bytes] The other.
 * @param count [bytes, trusted] How many are compared; trusted up to the first difference.
 * @retval 0 They are equal, or `count` is below 1.
 * @retval 1 They differ.
 */
TESSARO_API int32_t TESSARO_CALL dllComp(const void* a, const void* b, int32_t count);

/**
 * Exclusive-ors a block of words into another, despite the name: onto zeros it copies, applied twice it
 * undoes itself.
 *
 * In each row `dst[i] ^= src[i]`, word after word; then both move on by `pitch` bytes. Rows or words below 1
 * do nothing.
 *
 * @param[in,out] dst [abs(pitch) * (rows - 1) + 4 * words bytes at min(0, pitch * (rows - 1)) bytes] The
 *   block that is changed, from the first word of its first row.
 * @param[in] src [abs(pitch) * (rows - 1) + 4 * words bytes at min(0, pitch * (rows - 1)) bytes] The block
 *   that is read.
 * @param words [words, trusted] 32-bit words in a row.
 * @param rows [rows, trusted] Rows.
 * @param pitch [bytes, trusted] From the start of one row to that of the next, in both blocks; may be
 *   negative.
 * @retval 0 Always.
 */
TESSARO_API int32_t TESSARO_CALL CopyMemoryEx(void* dst, const void* src, int32_t words, int32_t rows,
                                              int32_t pitch);

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
 *
 * @param[in] text [64 bytes] The text; nothing behind its zero is read.
 * @return [value] The hash; that of nothing is 0xA82976E5.
 */
TESSARO_API uint32_t TESSARO_CALL hash32A(const void* text);

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
 *
 * @param[in] bytes [length bytes] What is hashed.
 * @param length [bytes, trusted] How many bytes; below 1 there are none.
 * @return [value] The hash; that of nothing is 0xA82976E5.
 */
TESSARO_API uint32_t TESSARO_CALL hash32W(const void* bytes, int32_t length);

/**
 * Mixes two colours, alpha included.
 *
 * @param colour0 [colour] The colour at factor 0.
 * @param colour1 [colour] The colour at factor 1.
 * @param factor [factor, 0..1] How much of `colour1`: negative, or not a number, counts as 0, above 1 as 1.
 * @return [colour] Of each byte `(c0 * (256 - k) + c1 * k) >> 8` with `k = trunc(factor * 256)`.
 * @see BBIBltColorBlend
 */
TESSARO_API uint32_t TESSARO_CALL dwColorBlend(uint32_t colour0, uint32_t colour1, float factor);

/** A host's function of one argument; on 32-bit Windows the caller removes it. */
typedef intptr_t(TESSARO_CDECL* TessaroMethod1)(intptr_t a);
/** A host's function of four arguments; on 32-bit Windows the caller removes them. */
typedef intptr_t(TESSARO_CDECL* TessaroMethod4)(intptr_t a, intptr_t b, intptr_t c, intptr_t d);
/**
 * A host's function of two arguments; on 32-bit Windows it removes them itself, as the library's own
 * functions do.
 */
typedef intptr_t(TESSARO_CALL* TessaroCallback2)(intptr_t a, intptr_t b);

/**
 * Calls a function of one argument, which follows C's convention.
 *
 * @return [value] What `fn` returns.
 */
TESSARO_API intptr_t TESSARO_CALL dllMethod1(TessaroMethod1 fn, intptr_t a);

/**
 * Calls a function of four arguments, which follows C's convention.
 *
 * @return [value] What `fn` returns.
 */
TESSARO_API intptr_t TESSARO_CALL dllMethod4(TessaroMethod4 fn, intptr_t a, intptr_t b, intptr_t c,
                                             intptr_t d);

/**
 * Calls a function of two arguments, which follows the library's own convention.
 *
 * @return [value] What `fn` returns.
 */
TESSARO_API intptr_t TESSARO_CALL StdCallBack(TessaroCallback2 fn, intptr_t a, intptr_t b);

/**
 * Draws a random number below a limit.
 *
 * The generator is the Mersenne Twister MT19937 of M. Matsumoto and T. Nishimura (1998) with the seeding of
 * its revision of October 1999 (each word joins the high halves of two steps of `s = 69069 * s + 1`), seeded
 * with the milliseconds since the system started when the library is loaded. It has one state for the process
 * and no lock: of two threads that draw at the same moment both may get the same number, and a host that
 * minds locks for itself.
 *
 * @param n [count, 1.., trusted] The limit, unsigned. 0 divides by zero and faults.
 * @return [value, 0..n - 1] The next output modulo `n`; each call draws one, also with 1.
 */
TESSARO_API uint32_t TESSARO_CALL GetRandom(uint32_t n);

/** @} */

/**
 * @defgroup worker Worker thread
 * @brief One thread that calls a function of the host's over and over.
 *
 * There is one worker a process. It is not stopped when the library is unloaded: its function would return
 * into code that is gone, so call `ThreadKill` first.
 *
 * @{
 */

/**
 * What the worker thread calls.
 *
 * Its result is not looked at, and as it takes no arguments, either calling convention of 32-bit Windows will
 * do.
 */
typedef void(TESSARO_CDECL* TessaroWorker)(void);

/**
 * Runs a function in a thread of its own, again and again, and returns when that thread has ended.
 *
 * The call blocks, yielding in a loop, so `ThreadKill` has to come from another thread. The function runs at
 * least once unless `ThreadKill` came before the thread did. Two threads must not call `ThreadBegin` at the
 * same moment.
 *
 * @param fn [function] What the thread calls.
 * @retval 0 The thread has ended, or the system could not make one.
 * @retval 1 [untouched] There is a worker already; told at once. One that ended in another way than by
 *   `ThreadKill`, its function having left by `ExitThread` or `pthread_exit`, still counts until
 *   `ThreadKill`.
 */
TESSARO_API int32_t TESSARO_CALL ThreadBegin(TessaroWorker fn);

/**
 * Stops the worker after its current call, and waits until it has ended, without a time limit.
 *
 * Then `ThreadBegin` may be called again. Called from within the worker's function it waits for ever. Two
 * threads must not call it at the same moment.
 *
 * @retval 0 The worker has ended.
 * @retval 1 [untouched] There is no worker.
 */
TESSARO_API int32_t TESSARO_CALL ThreadKill(void);

/** @} */

/**
 * @defgroup hooks Window hooks
 * @brief Let a function of the host's see the messages of a window first.
 *
 * The library keeps a table of at most 256 entries, each with a window, the procedure that the window had
 * before, the host's function and a value for it. Hooks belong to the thread that owns the windows; calls
 * from several threads at once are not guarded.
 *
 * Hooks come off cleanly in the reverse order of `WindowProcLoad`. In any other order the entry that leaves
 * keeps its place in the table and its window, takes over the previous procedure of the newest entry, and the
 * newest entry goes: that window still has the library's procedure but is no longer known, and its messages
 * give 0. With A, B and C hooked, unhooking A restores A, leaves an entry of A with C's previous procedure,
 * and silences C.
 *
 * Unhook a window before it is destroyed: its entry stays otherwise, and the system may give its handle to
 * another window. Unhook all windows before the library is unloaded: unloading takes hooks off by itself, but
 * always the first entry in the way told above, so that one hooked window is restored, while of several the
 * first ends with the second one's previous procedure and the others keep a procedure that is gone.
 *
 * @param window [handle] A window, an `HWND`.
 * @{
 */

/**
 * A function that is offered the messages of a hooked window.
 *
 * Its arguments are the window, the message widened to a word, the message's two parameters, and the value
 * that was given with the hook. It returns not 0 when it has handled the message: the window's procedure then
 * returns 0, not this value. After 0 the previous procedure in the window's entry goes on with the message.
 * The entry is looked at when the function has returned: one that unhooks its own window and returns 0 hands
 * the message to what its place in the table holds then, its own previous procedure if its entry was the
 * newest, else that of the newest.
 *
 * On 32-bit Windows it may follow either calling convention. Only 32 bits of the result count.
 */
typedef int32_t(TESSARO_CALL* TessaroHook)(void* window, uintptr_t message, uintptr_t first, intptr_t second,
                                           intptr_t value);

/**
 * Offers the messages of a window to a function first, by giving the window a procedure of the library's.
 *
 * Procedures are read, set and called by the system's ANSI functions (`GetWindowLongPtrA` and its like), so
 * that texts in messages are ANSI ones. A window that is hooked a second time gets a second entry whose
 * previous procedure is the library's own, while its messages find the first: unhook it before hooking it
 * again.
 *
 * @param hook [function] What sees the messages.
 * @param value [value] A number that `hook` is given with each message.
 * @retval 0 The window is hooked.
 * @retval 1 [untouched] The table is full, or the window has no procedure that can be read. So it is always
 *   where there are no such windows: everywhere but on Windows.
 */
TESSARO_API int32_t TESSARO_CALL WindowProcLoad(void* window, TessaroHook hook, intptr_t value);

/**
 * Gives a window its previous procedure back.
 *
 * @retval 0 The window is unhooked.
 * @retval 1 [untouched] The window is not hooked.
 */
TESSARO_API int32_t TESSARO_CALL WindowProcUnload(void* window);

/** @} */

#ifdef __cplusplus
}
#endif

#endif
