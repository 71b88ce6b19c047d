// Colours cut down to few, and alphas and channels taken from elsewhere.
#include "transform/reduce.hpp"

#include "tessaro/tessaro.h"

using namespace tessaro;

namespace {

constexpr uint8_t matrix_1555[] = {0, 4, 1, 5,  //
                                   6, 2, 7, 3,  //
                                   1, 5, 0, 4,  //
                                   7, 3, 6, 2};
constexpr uint8_t matrix_4444[] = {0,  8,  2,  10,  //
                                   12, 4,  14, 6,   //
                                   3,  11, 1,  9,   //
                                   15, 7,  13, 5};
// A clustered pattern: its smallest values lie in the middle. Complemented before use.
constexpr uint8_t matrix_1111[] = {60, 52, 40, 32, 39, 51, 59, 63,  //
                                   53, 41, 24, 12, 23, 31, 50, 58,  //
                                   42, 25, 13, 4,  11, 22, 30, 49,  //
                                   33, 14, 5,  0,  3,  10, 21, 38,  //
                                   34, 15, 6,  1,  2,  9,  20, 37,  //
                                   43, 26, 16, 7,  8,  19, 29, 48,  //
                                   54, 44, 27, 17, 18, 28, 47, 57,  //
                                   61, 55, 45, 35, 36, 46, 56, 62};

using Dither = void (*)(uint8_t*, size_t, const DitherRow&);

int32_t cut_down(const ImageRecord* image, const uint8_t* matrix, uint32_t side, uint32_t flip,
                 Dither dither) {
  Area n;
  if (!clip_whole(image, n)) return status_nothing;
  DitherRow rows[8];
  for (uint32_t y = 0; y < side; ++y)
    for (uint32_t x = 0; x < 16; ++x) rows[y].at[x] = (matrix[y * side + x % side] ^ flip) * 0x010101u;
  for (ptrdiff_t y = 0; y < n.height; ++y)
    dither(n.at + y * n.pitch, static_cast<size_t>(n.width), rows[static_cast<size_t>(y) % side]);
  return status_done;
}

// The part that both images have, anchored at the top left of both.
bool clip_common(const ImageRecord* dst, const ImageRecord* src, AreaPair& areas) {
  const ImageView s = ImageView::of(src);
  return clip_two(dst, src, 0, 0, s.width, s.height, 0, 0, areas);
}

constexpr int32_t from_destination = 2, other_kind = 1;  // bits of the selectors

// Products of a byte and a single-precision weight, and their sums, are exact in doubles; with weights that
// are multiples of 2 to the -29 they are so in integers too. Other weights are rounded up.
IntegerWeights integer_weights(const Weights& weights) {
  IntegerWeights w{};
  w.usable = true;
  const auto put = [&w](double weight, uint32_t& upper, uint32_t& lower, int at) {
    if (!(weight >= 0 && weight < 2 - 1e-6)) {
      w.usable = false;
      return;
    }
    const double scaled = weight * (1 << 29);
    const auto whole = static_cast<uint32_t>(scaled), units = whole + (whole < scaled);
    w.rounded_up |= units > whole;
    upper |= units >> 15 << at;
    lower |= (units & 0x7FFF) << at;
  };
  put(weights.green, w.upper_odd, w.lower_odd, 0);
  put(weights.blue, w.upper_even, w.lower_even, 0);
  put(weights.red, w.upper_even, w.lower_even, 16);
  return w;
}

int32_t choose(ImageRecord* dst, const ImageRecord* src, int32_t colour_from, int32_t alpha_from,
               AlphaFrom brightness, const Weights& weights = {}, bool may_round_up = false) {
  AreaPair n;
  if (!clip_common(dst, src, n)) return status_nothing;
  Assembly assembly{(colour_from & other_kind) != 0, alpha_from & other_kind ? AlphaFrom::alpha : brightness,
                    weights, integer_weights(weights)};
  assembly.integer.usable &= may_round_up || !assembly.integer.rounded_up;
  const ReduceKernels& k = kernels<ReduceKernels>();
  for (; n.height > 0; --n.height, n.dst += n.dst_pitch, n.src += n.src_pitch) {
    const auto row = [&](int32_t from) { return from & from_destination ? n.dst : n.src; };
    k.choose({n.dst, row(colour_from), row(alpha_from)}, static_cast<size_t>(n.width), assembly);
  }
  return status_done;
}

}  // namespace

extern "C" {

int32_t TESSARO_CALL BBIColorCutDown1555(ImageRecord* image) {
  return cut_down(image, matrix_1555, 4, 0, kernels<ReduceKernels>().to_1555);
}
int32_t TESSARO_CALL BBIColorCutDown4444(ImageRecord* image) {
  return cut_down(image, matrix_4444, 4, 0, kernels<ReduceKernels>().to_4444);
}
int32_t TESSARO_CALL BBIColorCutDown1111(ImageRecord* image) {
  return cut_down(image, matrix_1111, 8, 63, kernels<ReduceKernels>().to_1111);
}

int32_t TESSARO_CALL BBIChooseCA(ImageRecord* dst, const ImageRecord* src, int32_t colour_from,
                                 int32_t alpha_from) {
  return choose(dst, src, colour_from, alpha_from, AlphaFrom::mean);
}
int32_t TESSARO_CALL BBIChooseCATR(ImageRecord* dst, const ImageRecord* src, int32_t colour_from,
                                   int32_t alpha_from) {
  return choose(dst, src, colour_from, alpha_from, AlphaFrom::weights, luma, true);
}
int32_t TESSARO_CALL BBIChooseCATS(ImageRecord* dst, const ImageRecord* src, int32_t colour_from,
                                   int32_t alpha_from, float red_weight, float green_weight,
                                   float blue_weight) {
  return choose(
      dst, src, colour_from, alpha_from, AlphaFrom::weights,
      {static_cast<double>(green_weight), static_cast<double>(blue_weight), static_cast<double>(red_weight)});
}

int32_t TESSARO_CALL BBIChooseRGBA(ImageRecord* dst, const ImageRecord* src, int32_t red_from,
                                   int32_t green_from, int32_t blue_from, int32_t alpha_from) {
  AreaPair n;
  if (!clip_common(dst, src, n)) return status_nothing;
  const int32_t selectors[] = {blue_from, green_from, red_from, alpha_from};
  constexpr int byte_of[] = {2, 1, 0, 3};  // selectors count red, green, blue, alpha
  Routing routing{};
  for (int i = 0; i < 4; ++i) {
    routing.from_dest[i] = (selectors[i] & 4) != 0;
    routing.channel[i] = byte_of[selectors[i] & 3];
  }
  kernels<ReduceKernels>().route(n, routing);
  return status_done;
}

}  // extern "C"
