// Whole images turned and mirrored.
#include "pixel/turn.hpp"

#include "core/overlap.hpp"
#include "tessaro/tessaro.h"

using namespace tessaro;

extern "C" {

int32_t TESSARO_CALL BBIMirror(ImageRecord* image) {
  Area area;
  if (!clip_whole(image, area)) return status_nothing;
  kernels<TurnKernels>().mirror(area);
  return status_done;
}

int32_t TESSARO_CALL BBIVMirror(ImageRecord* image) {
  Area area;
  if (!clip_whole(image, area)) return status_nothing;
  for (ptrdiff_t y = 0; y < area.height / 2; ++y)
    kernels<TurnKernels>().swap_rows(area.at + y * area.pitch, area.at + (area.height - 1 - y) * area.pitch,
                                     static_cast<size_t>(area.width));
  return status_done;
}

int32_t TESSARO_CALL BBIRotation(ImageRecord* dst, const ImageRecord* src, int32_t mode) {
  const ImageView d = ImageView::of(dst), s = ImageView::of(src);
  if (mode < 0 || mode > 2) return status_done;
  if (mode == 1 ? d.width != s.width || d.height != s.height : d.width != s.height || d.height != s.width)
    return status_nothing;
  if (s.height < 1 || s.width < 1) return status_done;
  AreaPair areas = {d.pixels, d.pitch, s.pixels, s.pitch, s.width, s.height};
  if (mode == 1) {
    kernels<TurnKernels>().half_turn(areas);
    return status_done;
  }
  if (!rows_apart({d.pixels, d.pitch, d.width, d.height})) {  // the last pixel written to a place stays
    for (int32_t y = 0; y < s.height; ++y)
      for (int32_t x = 0; x < s.width; ++x)
        mode == 0 ? d.set(s.height - 1 - y, x, s.get(x, y)) : d.set(y, s.width - 1 - x, s.get(x, y));
    return status_done;
  }
  // A quarter turn is a transposition with the rows of one of the images upside down.
  if (mode == 0) {
    areas.src += areas.src_pitch * (areas.height - 1);
    areas.src_pitch = -areas.src_pitch;
  } else {
    areas.dst += areas.dst_pitch * (areas.width - 1);
    areas.dst_pitch = -areas.dst_pitch;
  }
  kernels<TurnKernels>().transpose(areas);
  return status_done;
}

}  // extern "C"
