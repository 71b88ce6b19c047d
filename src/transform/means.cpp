// The dividers of means, proved for every sum when the library is compiled.
#include "transform/means.hpp"

namespace tessaro {

namespace {

// See Divider; {0, 0, 0} where neither rounding is exact.
constexpr Divider divider_of(uint32_t count) {
  uint32_t k = 0;
  while (2u << k <= count) ++k;
  const auto exact = [&](Divider by) {
    for (uint32_t q = 0; q <= 255; ++q)
      if (by.divide(q * count) != q || (q < 255 && by.divide(q * count + count - 1) != q)) return false;
    return true;
  };
  const uint64_t scaled = uint64_t{65536} << k;
  const auto second = static_cast<uint16_t>(65536u >> k);
  // A power of two would need 65536; one less serves with the bias.
  const Divider down{static_cast<uint16_t>(scaled / count < 65535 ? scaled / count : 65535), second, 1};
  const Divider up{static_cast<uint16_t>(scaled / count + 1), second, 0};
  return exact(down) ? down : exact(up) ? up : Divider{0, 0, 0};
}

constexpr Dividers all_dividers() {
  Dividers all;
  for (uint32_t count = 2; count < 256; ++count) {
    const Divider by = divider_of(count);
    for (uint32_t lane = 0; lane < 4; ++lane)
      for (const uint32_t at : {4 * count + lane, 4 * (511 - count) + lane}) {
        all.first[at] = by.first;
        all.second[at] = by.second;
        all.bias[at] = by.bias;
      }
  }
  return all;
}
constexpr Dividers made = all_dividers();
static_assert([] {
  for (size_t count = 2; count < 256; ++count)
    if (made.of(count).first == 0) return false;
  return true;
}());

}  // namespace

constinit const Dividers dividers = made;

}  // namespace tessaro
