#include "codec/streams.hpp"

namespace {

using namespace tessaro;
using namespace tessaro::test;

struct Row {
  const char* name;
  Encoder encoder;
  Decoder decoder;
  int width, distance, start;  // of a sample in bytes; width 0: channels
  friend std::ostream& operator<<(std::ostream& out, const Row& r) { return out << r.name; }
};
constexpr Row rows[] = {{"iwave11", iwave11Encoder, iwave11Decoder, 1, 1, 128},
                        {"iwave12", iwave12Encoder, iwave12Decoder, 1, 2, 128},
                        {"iwave32", iwave32Encoder, iwave32Decoder, 1, 4, 128},
                        {"iwave21", iwave21Encoder, iwave21Decoder, 2, 1, 0},
                        {"iwave22", iwave22Encoder, iwave22Decoder, 2, 2, 0},
                        {"ichshift2", ichshift2Encoder, ichshift2Decoder, 0, 2, 0},
                        {"ichshift3", ichshift3Encoder, ichshift3Decoder, 0, 3, 0},
                        {"ichshift4", ichshift4Encoder, ichshift4Decoder, 0, 4, 0}};

// One sample after another in one memory, from any place in it to any other.
void model(const Row& row, bool encode, Bytes& memory, size_t from, size_t to, size_t n) {
  if (row.width == 0) {
    const auto step = static_cast<size_t>(row.distance);
    for (size_t k = 0, i = 0; k < step; ++k)
      for (size_t j = k; j < n; j += step, ++i)
        memory[to + (encode ? i : j)] = memory[from + (encode ? j : i)];
    return;
  }
  const int half = row.width == 1 ? 128 : 32768;
  std::vector<int> history(static_cast<size_t>(row.distance), row.start);
  for (size_t i = 0; i + static_cast<size_t>(row.width) <= n; i += static_cast<size_t>(row.width)) {
    int x = memory[from + i] | (row.width == 2 ? memory[from + i + 1] << 8 : 0), out;
    if (encode) {
      int d = x - history.front();
      d = d >= half ? d - 2 * half : d < -half ? d + 2 * half : d;
      out = d >= 0 ? 2 * d : -2 * d - 1;
    } else {
      out = (history.front() + (x % 2 ? -(x + 1) / 2 : x / 2) + 2 * half) % (2 * half);
      x = out;
    }
    history.erase(history.begin());
    history.push_back(x);
    memory[to + i] = static_cast<uint8_t>(out);
    if (row.width == 2) memory[to + i + 1] = static_cast<uint8_t>(out >> 8);
  }
}

class Transforms : public testing::TestWithParam<Row> {};
INSTANTIATE_TEST_SUITE_P(All, Transforms, testing::ValuesIn(rows),
                         [](const auto& info) { return info.param.name; });

TEST_P(Transforms, EqualOneSampleAfterAnother) {
  const Row& row = GetParam();
  for (const Forced backend : supported_backends())
    for (size_t n = 0; n < 300; n += n < 140 ? 1 : 37)
      // Apart, in place, and close together on either side.
      for (int distance : {1000, -1000, 0, 1, 3, 16, 40, 63, 64, 65, 130, -1, -5, -40, -64}) {
        const size_t from = distance < 0 ? static_cast<size_t>(-distance) + 3 : 3;
        const size_t to = static_cast<size_t>(static_cast<int>(from) + distance);
        Bytes memory = make_data(1 + distance % 2, std::max(from, to) + n + 7, static_cast<uint32_t>(n + 5));
        for (bool encode : {true, false}) {
          Bytes expected = memory;
          model(row, encode, expected, from, to, n);
          uint32_t written = 77;
          const auto length = static_cast<uint32_t>(n);
          if (encode) {
            EXPECT_EQ(row.encoder(memory.data() + from, memory.data() + to, length, &written), 0);
            EXPECT_EQ(written, row.width == 2 ? length / 2 * 2 : length);
          } else {
            EXPECT_EQ(row.decoder(memory.data() + from, memory.data() + to, length), 0);
          }
          EXPECT_TRUE(memory == expected)
              << n << " bytes, " << distance << " apart, " << (encode ? "encoder" : "decoder");
        }
      }
}

}  // namespace
