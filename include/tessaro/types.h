/**
 * @file
 * @brief What every header shares: the calling convention and the image record.
 *
 * C and C++; needs no macro of the user's. On 32-bit Windows every export removes its arguments itself, each
 * of which takes four bytes of stack (a pointer and a float too; a double takes eight); elsewhere calls
 * follow the platform's C convention.
 */
#ifndef TESSARO_TYPES_H
#define TESSARO_TYPES_H

#include <stdint.h>

/* The calling conventions of the exports, and of those host functions that follow C's. */
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

/**
 * An image: a block of the host's memory that begins with these two words.
 *
 * The library reads the record and its dimensions, reads or writes the pixels in place, and never allocates,
 * resizes or frees any of them. Both offsets are signed, so that dimensions and pixels may lie before or
 * behind the record, within 32 KiB of it.
 *
 * The pixel at column x, row y is the 32-bit word 0xAARRGGBB at `record + pixel_offset + y * pitch + 4 * x`;
 * in memory that is the bytes blue, green, red, alpha. Row 0 is the top one. Neither record, dimensions nor
 * pixels need any alignment. The record must be consistent: the `4 * width` bytes of each row belong to the
 * host. An image whose width or height is below 1 has no pixels. Rows should not share memory (a pitch
 * shorter than a row): what `BBIMirror`, `BBIVMirror`, `BBIPaint` and `BBIPaintChoose` then make of the
 * pixels is undefined.
 */
typedef struct ImageRecord {
  int16_t dims_offset;  /**< Bytes from the start of the record to its ImageDims. */
  int16_t pixel_offset; /**< Bytes from the start of the record to the first pixel of row 0. */
} ImageRecord;

/** The dimensions of an image. */
typedef struct ImageDims {
  int16_t width;  /**< Pixels in a row. */
  int16_t height; /**< Rows. */
  /**
   * Bytes from the start of one row to the start of the next. Negative for rows stored bottom-up: row 0 then
   * lies last in memory, and the record within 32 KiB of that, behind the pixels as a rule. Rows of more than
   * 8191 pixels cannot follow one another, since their pitch would not fit.
   */
  int16_t pitch;
} ImageDims;

#ifdef __cplusplus
}
#endif

#endif
