/* Drawing. */
#ifndef TESSARO_DRAW_H
#define TESSARO_DRAW_H

#include "tessaro/types.h"

#ifdef __cplusplus
extern "C" {
#endif

#ifdef __cplusplus
}
#endif

#endif
