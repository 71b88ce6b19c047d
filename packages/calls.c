/* Calls of several shapes by a program without a runtime: says 0 where the linker found the functions, the stack came back as
   it was and the results are right. */
#include <tessaro/tessaro.h>

static struct {
  ImageRecord record;
  ImageDims dims;
  uint32_t pixels[8 * 8];
} image = {{4, 12}, {8, 8, 32}, {0}};

int _fltused = 1; /* what a runtime would define for programs with floats */

int start(void) {
  int wrong = 0;
  for (int i = 0; i < 1000; ++i) {
    wrong |= BBIBltColor(&image.record, 0, 0, 8, 8, 0, 0, 0xFF000000u + (uint32_t)i) != 0;
    wrong |= GetDWORD(image.pixels, i % 64) != 0xFF000000u + (uint32_t)i;
    wrong |= BBIFlipBlend(&image.record, &image.record, 0, 0, 8, 8, 0, 0, 1.0f) != 0;
    wrong |= BBIDrawBox(&image.record, 0, 0, 8, 8, 0, 1, 1, 1, 1) != 0 || image.pixels[63] != 1;
  }
  return wrong;
}
