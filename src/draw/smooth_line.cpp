// Antialiased lines.
#include "draw/line_walk.hpp"
#include "draw/pen.hpp"
#include "draw/search.hpp"
#include "tessaro/tessaro.h"

using namespace tessaro;

namespace {

// Coverages as fractions of one: exact sums of single-precision steps. 57 bits are as many as it takes: the
// smallest that is not 0, a quarter of 1 / (2^32 - 1), is at least 2^-34 and has 24 bits. Two whole ones
// still fit a word.
constexpr int coverage_bits = 57;
constexpr int64_t full_coverage = int64_t{1} << coverage_bits;
int64_t coverage_of(float v) {
  return static_cast<int64_t>(static_cast<double>(v) * static_cast<double>(full_coverage));
}

// start + step * rate, from which full_coverage is taken whenever it is exceeded: how often that has
// happened, and what is left.
struct Wraps {
  int64_t count, rest;
  Wraps(int64_t start, int64_t step, int64_t rate) {
    // The 96-bit sum in two parts: the upper one in units of 2^32.
    const auto low_word = [](int64_t v) { return static_cast<uint64_t>(v) & 0xFFFFFFFF; };
    const uint64_t low = low_word(rate) * static_cast<uint64_t>(step) + low_word(start);
    const uint64_t high = static_cast<uint64_t>(rate >> 32) * static_cast<uint64_t>(step) +
                          static_cast<uint64_t>(start >> 32) + (low >> 32);
    constexpr int whole = coverage_bits - 32;
    count = static_cast<int64_t>(high >> whole);
    rest = static_cast<int64_t>((high & ((1u << whole) - 1)) << 32 | (low & 0xFFFFFFFF));
    if (rest == 0 && count > 0) --count, rest = full_coverage;
  }
};

}  // namespace

extern "C" int32_t TESSARO_CALL BBIDrawAlphaLine(ImageRecord* image, const ImageRecord* colours, int32_t x0,
                                                 int32_t y0, int32_t x1, int32_t y1) {
  ColourPair pair;
  if (!pair.read(colours)) return status_nothing;
  const ImageView view = ImageView::of(image);
  int64_t xs = x0, ys = y0, xe = x1, ye = y1;
  if (xs == xe && ys == ye) return status_done;
  const int64_t dx = xs < xe ? xe - xs : xs - xe, dy = ys < ye ? ye - ys : ys - ye;
  const bool flat = dy < dx;
  if (flat ? xe < xs : ye < ys) {
    xs = x1, ys = y1, xe = x0, ye = y0;
    const uint32_t c = pair.c0;
    pair.c0 = pair.c1;
    pair.c1 = c;
  }
  const int64_t major = flat ? dx : dy, minor = flat ? dy : dx;
  const int64_t along = flat ? xs : ys, across = flat ? ys : xs;
  const int64_t length = flat ? view.width : view.height, breadth = flat ? view.height : view.width;
  const int s = (flat ? ye < ys : xe < xs) ? -1 : 1;

  // Everything that is kept is single precision; the sums of the coverages are exact.
  const double span = static_cast<double>(major);
  const float h = static_cast<float>(static_cast<double>(minor) / span * 0.5);
  const float q = static_cast<float>((static_cast<double>(minor) - static_cast<double>(h)) / span);
  const int64_t rate = coverage_of(q), begin = coverage_of(h * 0.5f);

  // Track A loses coverage, track B, one pixel further, gains it: both move on when a whole pixel is used up.
  // Both have to lie inside the image: the one that lags behind has to have come in, the one ahead not to
  // have gone out.
  const Steps moves = s > 0 ? Steps{-across, breadth - 1 - across} : Steps{across - breadth + 1, across};
  Steps steps = Steps{0, major}.common({-along, length - 1 - along});
  const auto come = [&](int64_t i) { return Wraps(0, i, rate).count >= moves.first; };
  if (!steps.empty() && !come(steps.first)) steps.first = first_where(0, major, come);
  const auto gone = [&](int64_t i) { return Wraps(begin, i, rate).count + 1 > moves.last; };
  if (!steps.empty() && gone(steps.last)) steps.last = first_where(0, steps.last, gone) - 1;
  if (steps.empty()) return status_done;

  Wraps a(0, steps.first, rate), b(begin, steps.first, rate);
  for (int64_t i = steps.first;; ++i) {
    const float t = static_cast<float>(static_cast<double>(i) / span);
    const uint32_t colour = mixed(pair.c0, pair.c1, static_cast<uint32_t>(trunc32(t * 256.0f)));
    const double alpha = static_cast<double>(colour >> 24) * static_cast<double>(0.003921569f);
    const auto blend = [&](int64_t track, double strength) {
      const int64_t m = across + s * track;
      uint8_t* at = flat ? view.at(along + i, m) : view.at(m, along + i);
      const auto weight = static_cast<uint32_t>(strength < 1.0 ? trunc32(strength * 256.0) : 256);
      store(at, mixed(load<uint32_t>(at), colour, weight));
    };
    constexpr double unit = 1.0 / static_cast<double>(full_coverage);
    blend(a.count, alpha * (static_cast<double>(full_coverage - a.rest) * unit));
    blend(b.count + 1, alpha * (static_cast<double>(b.rest) * unit));
    if (b.count > a.count) blend(a.count + 1, alpha);
    if (i == steps.last) return status_done;
    if ((a.rest += rate) > full_coverage) a.rest -= full_coverage, ++a.count;
    if ((b.rest += rate) > full_coverage) b.rest -= full_coverage, ++b.count;
  }
}
