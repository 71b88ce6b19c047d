// Regions of one colour filled.
#include "pixel/paint.hpp"

#include "core/clip.hpp"
#include "core/heap.hpp"
#include "tessaro/tessaro.h"

using namespace tessaro;

extern "C" {

int32_t TESSARO_CALL BBIPaint(ImageRecord* image, int32_t x, int32_t y, uint32_t colour, int32_t* left,
                              int32_t* top, int32_t* right, int32_t* bottom) {
  const ImageView view = ImageView::of(image);
  if (!view.contains(x, y)) return status_nothing;
  const uint32_t old = view.get(x, y);
  if (old == colour) return status_nothing;
  // Taken at once and at its largest, so that a fill never stops halfway; memory that is not used is never
  // touched.
  const size_t room = static_cast<size_t>(view.height) * ((static_cast<size_t>(view.width) + 1) / 2);
  HeapArray<PaintSpan> pending(room);
  if (!pending) return status_nothing;
  Paint paint = {view, x, y, old, colour, pending.data(), room, 0, 0, 0, 0};
  kernels<PaintKernels>().flood(paint);
  store(left, paint.left);
  store(top, paint.top);
  store(right, paint.right);
  store(bottom, paint.bottom);
  return status_done;
}

}  // extern "C"
