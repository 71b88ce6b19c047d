/* Texture mapping and stencils. */
#ifndef TESSARO_MAPPING_H
#define TESSARO_MAPPING_H

#include "tessaro/types.h"

#ifdef __cplusplus
extern "C" {
#endif

#ifdef __cplusplus
}
#endif

#endif
