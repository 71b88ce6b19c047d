/**
 * @file
 * @brief Raster images, byte-stream codecs and waveforms for hosts without fast loops.
 *
 * Every function works on memory of the host's and keeps nothing between calls but what its description
 * names.
 *
 * **Arguments.** What a record describes is clipped: rectangles, positions in images and waves, factors and
 * colours may be anything, and nothing outside the image or the wave is touched. What stands beside a plain
 * pointer is believed: a count, length, stride, format or table size is marked as trusted and must be true of
 * the memory. No pointer is checked, and none may be null. A component of a colour that is an argument of its
 * own (red, green, blue, alpha) counts as 0 below 0 and as 255 above 255; whole colours are taken as they
 * are. Flags are on when they are not 0.
 *
 * **Numbers.** Integers are exact, however large the sums become, where a description does not say that they
 * wrap. `trunc` drops what lies behind the point, toward zero, and gives, unless told otherwise, -2147483648
 * for what does not fit in 32 bits and for what is not a number. `/` between integers drops the remainder,
 * `>>` rounds down. Where the precision of a product shows, the text names it.
 *
 * **Results.** Unless a description says otherwise a function returns a status: 0 = done, 1 = nothing done
 * because an argument was unusable or clipping left nothing.
 *
 * **Order.** Nothing is copied first: where what is read and what is written share memory, results are those
 * of one pixel or frame after another, rows from top to bottom and pixels from left to right unless a
 * description says otherwise.
 *
 * **Threads.** Calls on different memory may run at the same time on any threads, but for those that share
 * what the library keeps: GetRandom and waveBltAddNoise draw from one generator, and the worker and the
 * window hooks are one each.
 */
#ifndef TESSARO_H
#define TESSARO_H

#include "tessaro/types.h"

#include "tessaro/codec.h"
#include "tessaro/draw.h"
#include "tessaro/frame.h"
#include "tessaro/mapping.h"
#include "tessaro/pixel.h"
#include "tessaro/transform.h"
#include "tessaro/wave.h"

#endif
