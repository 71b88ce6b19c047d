/* Resampling and geometric transforms. */
#ifndef TESSARO_TRANSFORM_H
#define TESSARO_TRANSFORM_H

#include "tessaro/types.h"

#ifdef __cplusplus
extern "C" {
#endif

#ifdef __cplusplus
}
#endif

#endif
