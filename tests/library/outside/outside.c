/* A program of somebody else's: C, and nothing but the installed header. */
#include <string.h>
#include <tessaro/tessaro.h>

struct picture {
  ImageRecord record;
  ImageDims dims;
  int16_t gap;
  uint32_t pixels[4 * 3];
};

int main(void) {
  struct picture a, b;
  memset(&a, 0, sizeof a);
  a.record.dims_offset = sizeof(ImageRecord);
  a.record.pixel_offset = (int16_t)((char*)a.pixels - (char*)&a);
  a.dims.width = 4;
  a.dims.height = 3;
  a.dims.pitch = 16;
  b = a;
  b.pixels[5] = 0x80102030u;
  if (BBIBltAdd(&a.record, &b.record, 0, 0, 4, 3, 0, 0) != 0) return 1;
  if (BBIBltAdd(&a.record, &b.record, 0, 0, 4, 3, 0, 0) != 0) return 2;
  if (a.pixels[5] != 0xFF204060u || a.pixels[6] != 0) return 3;
  if (BBIBltAdd(&a.record, &b.record, 9, 9, 4, 3, 0, 0) != 1) return 4;
  return GetInt(&a.pixels[5], 0) == 0x4060 ? 0 : 5;
}
