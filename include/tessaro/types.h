/* Types that every header of tessaro shares. C and C++; needs no macro of the user's. */
#ifndef TESSARO_TYPES_H
#define TESSARO_TYPES_H

#include <stdint.h>

/* The calling convention of every export: on 32-bit Windows the callee removes its arguments; elsewhere the
 * platform's C convention. */
#if defined(_WIN32) && !defined(_WIN64)
#define TESSARO_CALL __stdcall
#define TESSARO_CDECL __cdecl
#else
#define TESSARO_CALL
#define TESSARO_CDECL
#endif

#if !defined(_WIN32) && defined(__GNUC__)
#define TESSARO_API __attribute__((visibility("default")))
#else
#define TESSARO_API
#endif

#ifdef __cplusplus
extern "C" {
#endif

/* An image record: a block of the host's memory that begins with these two words and is never allocated,
 * resized or freed by the library. Both offsets are counted in bytes from the start of the record and may be
 * negative:
 *   dims_offset    to an ImageDims
 *   pixel_offset   to the first pixel of the first row
 * The pixel at column x, row y lies at record + pixel_offset + y * pitch + 4 * x: a 32-bit word 0xAARRGGBB, in
 * memory the bytes blue, green, red, alpha. Neither the record nor its pixels need any alignment. The record
 * must be consistent: every row's 4 * width bytes belong to the host. That is all a caller guarantees;
 * rectangles and other arguments may be anything. */
typedef struct ImageRecord {
  int16_t dims_offset;
  int16_t pixel_offset;
} ImageRecord;

/* width in pixels, height in rows, and the bytes from the start of one row to the start of the next; a
 * negative pitch describes rows stored bottom-up, whose first row lies last in memory: there the record has to lie
 * within 32 KiB of it, behind the pixels as a rule. Rows of more than 8191 pixels cannot follow one another: their
 * pitch would not fit. */
typedef struct ImageDims {
  int16_t width;
  int16_t height;
  int16_t pitch;
} ImageDims;

#ifdef __cplusplus
}
#endif

#endif
