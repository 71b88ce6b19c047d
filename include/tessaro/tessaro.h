/* tessaro: raster images, byte-stream codecs and waveforms for hosts without fast loops.
 *
 * Every function works on memory of the host's and keeps nothing between calls but what its description
 * names. Unless a description says otherwise the result is a status: 0 = done, 1 = nothing done because an
 * argument was unusable or clipping left nothing. Flags are on when they are not zero.
 *
 * Calls on different memory may run at the same time on any threads, but for those that share what the library keeps:
 * GetRandom and waveBltAddNoise draw from one generator, and the worker and the window hooks are one each. */
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
