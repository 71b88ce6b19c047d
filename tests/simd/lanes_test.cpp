// Each back end's operations on lanes against their definitions, which are what the scalar one has.
#include <cmath>
#include <cstring>

#include "simd/lane_operations.hpp"
#include "support/images.hpp"

namespace tessaro::test {
namespace {

using Room = std::array<uint8_t, lane_room>;

void fill(Room& in, LaneInput takes, Random& random) {
  static constexpr uint8_t turns[] = {0, 1, 127, 128, 255};
  static const double edges[] = {
      0.0,          -0.9,   0x1p31,  std::nextafter(0x1p31, 0), -0x1p31, -0x1p31 - 0.5,
      -0x1p31 - 1,  0x1p63, -0x1p63, std::nextafter(0x1p63, 0), 1e300,   -INFINITY,
      std::nan(""), 5e-324};
  const int kind = random.between(0, 3);
  for (uint8_t& byte : in)
    byte = kind == 0 || takes == LaneInput::products ? random.byte()
           : kind == 1                               ? turns[random.byte() % 5]
                                                     : 0;
  if (kind >= 2) in[random.byte() % (kind == 2 ? 32 : lane_room)] = random.byte();
  for (size_t i = 0; i < lane_room; i += 8)
    if (takes == LaneInput::doubles) {
      const auto word = static_cast<double>(static_cast<int32_t>(random.word()));
      const double v = kind == 0 ? word * 1.3 : kind == 1 ? edges[random.byte() % 14] : word / 65536;
      std::memcpy(&in[i], &v, 8);
    } else if (takes == LaneInput::products) {
      in[i] |= 1;  // every other number is none of -32768, whose square twice is too much
      in[i + 4] |= 1;
    }
}

TEST(Lanes, EveryOperationIsItsDefinition) {
  const LaneKernels& definition = kernels<LaneKernels>(Backend::scalar);
  Random random(11);
  for (size_t i = 0; i < static_cast<size_t>(definition.end - definition.begin); ++i)
    for (int round = 0; round < 3000; ++round) {
      Room in, want;
      fill(in, definition.begin[i].takes, random);
      want.fill(0xA5);
      definition.begin[i].run(in.data(), want.data());
      for (const Forced backend : supported_backends()) {
        Room got;
        got.fill(0xA5);
        kernels<LaneKernels>().begin[i].run(in.data(), got.data());
        ASSERT_EQ(got, want) << definition.begin[i].name;
      }
    }
}

}  // namespace
}  // namespace tessaro::test
