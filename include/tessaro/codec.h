/* Byte-stream codecs. */
#ifndef TESSARO_CODEC_H
#define TESSARO_CODEC_H

#include "tessaro/types.h"

#ifdef __cplusplus
extern "C" {
#endif

#ifdef __cplusplus
}
#endif

#endif
