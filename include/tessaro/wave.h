/* Waveforms. */
#ifndef TESSARO_WAVE_H
#define TESSARO_WAVE_H

#include "tessaro/types.h"

#ifdef __cplusplus
extern "C" {
#endif

#ifdef __cplusplus
}
#endif

#endif
