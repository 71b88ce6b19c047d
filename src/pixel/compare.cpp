// Images compared, and searched for pixels and their bounds.
#include "pixel/compare.hpp"

#include "tessaro/tessaro.h"

using namespace tessaro;

namespace {

// Both images whole; their sizes are equal and may be empty.
AreaPair both(const ImageView& a, const ImageView& b) {
  return {a.pixels, a.pitch, b.pixels, b.pitch, a.width, a.height};
}

}  // namespace

extern "C" {

int32_t TESSARO_CALL BBICompare(const ImageRecord* a, const ImageRecord* b, int32_t mode) {
  constexpr int32_t holds = 0, fails = 1, unknown_mode = 2;
  static constexpr CompareTest tests[] = {equal_pixels, equal_colours, equal_alphas,   compare_test_count,
                                          transparent,  opaque,        black_or_white, grey};
  const ImageView va = ImageView::of(a), vb = ImageView::of(b);
  if (va.width != vb.width || va.height != vb.height) return fails;
  if (va.height < 1) return holds;
  if (mode < 0 || mode > 7 || mode == 3) return unknown_mode;
  if (va.width < 1) return holds;
  return kernels<CompareKernels>().holds[tests[mode]](both(va, vb)) ? holds : fails;
}

int32_t TESSARO_CALL BBICompareAny(const ImageRecord* a, const ImageRecord* b, uint32_t mask,
                                   int32_t tolerance) {
  const ImageView va = ImageView::of(a), vb = ImageView::of(b);
  if (va.width != vb.width || va.height != vb.height) return -1;
  if (va.width < 1 || va.height < 1) return 0;
  return kernels<CompareKernels>().count_near(both(va, vb), mask, tolerance < 1 ? 1 : clamp_byte(tolerance));
}

int32_t TESSARO_CALL BBITrim(const ImageRecord* image, int32_t flag, uint32_t mask, uint32_t key,
                             int32_t* left, int32_t* top, int32_t* width, int32_t* height) {
  if (flag != 0) return status_nothing;
  const CompareKernels& k = kernels<CompareKernels>();
  Area n{};  // and so it stays for an image without pixels
  clip_whole(image, n);
  const auto row = [&n](ptrdiff_t y) { return n.at + y * n.pitch; };
  const size_t all = static_cast<size_t>(n.width);
  ptrdiff_t first = 0, last = n.height - 1;
  while (first <= last && k.first_content(row(first), all, mask, key) == all) ++first;
  if (first > last) {
    store(left, int32_t{0});
    store(top, int32_t{0});
    store(width, int32_t{1});
    store(height, int32_t{1});
    return status_done;
  }
  while (k.first_content(row(last), all, mask, key) == all) --last;
  // Only what lies outside the columns found so far is looked at.
  size_t begin = all, end = 0;
  for (ptrdiff_t y = first; y <= last; ++y) {
    begin = k.first_content(row(y), begin, mask, key);
    end += k.end_of_content(row(y) + 4 * end, all - end, mask, key);
  }
  store(left, static_cast<int32_t>(begin));
  store(top, static_cast<int32_t>(first));
  store(width, static_cast<int32_t>(end - begin));
  store(height, static_cast<int32_t>(last - first + 1));
  return status_done;
}

}  // extern "C"
