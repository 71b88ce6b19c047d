// Each back end's operations against those of single pixels, which define them.
#include <algorithm>
#include <vector>

#include "simd/operations.hpp"
#include "support/images.hpp"

namespace tessaro::test {
namespace {

const VocabularyKernels& definition() { return kernels<VocabularyKernels>(Backend::scalar); }

// Values at which lanes of 16 bits turn over, and some between.
constexpr uint16_t turns[] = {0,     1,     127,   128,   255,   256,   510,   765,  21846,
                              32512, 32513, 32767, 32768, 33024, 65280, 65534, 65535};

// The inputs of an operation: words that hold what it takes, in runs.
struct Inputs {
  std::vector<uint32_t> a, b, c;
  explicit Inputs(Takes takes) {
    Random random(7);
    const auto add = [&](uint32_t x, uint32_t y) {
      switch (takes) {
        case Takes::bytes_in_halves:
          return push(x & 0x00FF00FF, y & 0x00FF00FF, 0);
        case Takes::sums:  // the second at most 255, the sum above -32512
          for (const int at : {0, 16}) {
            const int p = static_cast<int16_t>(x >> at), q = static_cast<int16_t>(y >> at);
            if (q > 255 || p + q <= -32512) return;
          }
          return push(x, y, 0);
        case Takes::lengths: {  // signed, up to 510 and its neighbours
          const auto small = [](uint32_t v) {
            return static_cast<uint32_t>(static_cast<uint16_t>(static_cast<int>(v % 1181) - 590));
          };
          return push(small(x & 0xFFFF) | small(x >> 16) << 16, small(y & 0xFFFF) | y << 16, 0);
        }
        case Takes::lowest_byte:
          return push(x & 255, 0, 0);
        case Takes::any:
          return push(x, y, random.pixel());
      }
    };
    for (uint32_t x = 0; x < 256; ++x)  // all pairs of bytes, in every place
      for (uint32_t y = 0; y < 256; ++y)
        add((x | (x + 1) << 8 | (x + 2) << 16) | (x + 3) << 24, y * 0x01010101);
    for (uint32_t x = 0; x < 65536; ++x)  // all values of 16 bits with those at which they turn
      for (const uint32_t y : turns) add(x | (x ^ 0x5A5A) << 16, y * 0x10001);
    while (a.size() % run_pixels != 0) push(0, 0, 0);
  }

 private:
  void push(uint32_t x, uint32_t y, uint32_t z) {
    a.push_back(x);
    b.push_back(y);
    c.push_back(z);
  }
};

TEST(Vocabulary, EveryOperationIsWhatSinglePixelsSay) {
  for (const Takes takes :
       {Takes::any, Takes::bytes_in_halves, Takes::sums, Takes::lengths, Takes::lowest_byte}) {
    const Inputs in(takes);
    const auto results = [&](const Operation& operation) {
      std::vector<uint32_t> out(in.a.size());
      // A run at a time, so that packed pixels of each lie where its own do.
      for (size_t x = 0; x < in.a.size(); x += run_pixels)
        operation.run(&in.a[x], &in.b[x], &in.c[x], &out[x], run_pixels);
      return out;
    };
    for (size_t i = 0; i < static_cast<size_t>(definition().end - definition().begin); ++i) {
      if (definition().begin[i].takes != takes) continue;
      const auto want = results(definition().begin[i]);
      for (const Forced backend : supported_backends()) {
        const Operation& operation = kernels<VocabularyKernels>().begin[i];
        const auto got = results(operation);
        const auto at =
            static_cast<size_t>(std::mismatch(got.begin(), got.end(), want.begin()).first - got.begin());
        if (at < got.size())
          ADD_FAILURE() << operation.name << std::hex << " of " << in.a[at] << ", " << in.b[at] << ", "
                        << in.c[at] << " is " << got[at] << ", not " << want[at];
      }
    }
  }
}

TEST(Vocabulary, PixelsMoveAndPartsTouchNothingElse) {
  Random random(3);
  for (const Forced backend : supported_backends()) {
    const VocabularyKernels& k = kernels<VocabularyKernels>();
    const size_t lanes = k.lanes;
    for (int round = 0; round < 200; ++round) {
      uint32_t in[64], where[16];
      alignas(64) uint32_t out[64];
      for (uint32_t& word : in) word = random.word() % 3 == 0 ? 0 : random.pixel();
      for (uint32_t& word : where) word = random.word() % static_cast<uint32_t>(2 * lanes);
      for (size_t n = 0; n <= (lanes > 1 ? lanes - 1 : 0); ++n) {
        std::fill(std::begin(out), std::end(out), 0xA5A5A5A5);
        const std::vector<uint32_t> exact(in, in + n);  // so that ASan sees what is read beyond
        k.part(n == 0 ? in : exact.data(), in, n, out);
        for (size_t i = 0; i < 2 * lanes; ++i)
          ASSERT_EQ(out[i], i < lanes       ? (i < n ? in[i] : 0)
                            : i - lanes < n ? in[i - lanes]
                                            : 0xA5A5A5A5)
              << n;
      }
      k.unzip(in, out);
      for (size_t i = 0; i < lanes; ++i) {
        ASSERT_EQ(out[i], in[2 * i]);
        ASSERT_EQ(out[lanes + i], in[2 * i + 1]);
      }
      k.halve(in, out);
      for (size_t i = 0; i < 4 * lanes; ++i) {
        const auto* bytes = reinterpret_cast<uint8_t*>(in) + 8 * (i / 4) + i % 4;
        ASSERT_EQ(reinterpret_cast<uint8_t*>(out)[i], (bytes[0] + bytes[4]) / 2);
      }
      uint16_t four[4];
      k.quads(in, four);
      for (size_t i = 0; i < 4; ++i)
        ASSERT_EQ(four[i], static_cast<uint16_t>(
                               (in[0] >> 8 * i & 255) * (in[2 + i / 2] >> 16 * (i % 2) & 0xFFFF) + 40000));
      k.reverse(in, out);
      for (size_t i = 0; i < lanes; ++i) ASSERT_EQ(out[i], in[lanes - 1 - i]);
      k.pick(in, where, out);
      for (size_t i = 0; i < lanes; ++i) {
        ASSERT_EQ(out[i], in[where[i] % lanes]);
        ASSERT_EQ(out[lanes + i], in[where[i]]);
        ASSERT_EQ(out[2 * lanes + i], in[where[i]]);
      }
      uint32_t zeros = 0;
      for (size_t i = 0; i < lanes; ++i) zeros |= (in[i] == 0 ? 1u : 0u) << i;
      ASSERT_EQ(k.zeros(in), zeros);
      uint32_t square[256];
      for (uint32_t i = 0; i < 256; ++i) square[i] = i;
      k.transpose(square);
      for (uint32_t y = 0; y < lanes; ++y)
        for (uint32_t x = 0; x < lanes; ++x) ASSERT_EQ(square[y * lanes + x], x * lanes + y);
      uint8_t table[256], bits[9] = {};
      for (uint8_t& byte : table) byte = random.byte();
      k.look_up(table, in, out);
      for (size_t i = 0; i < 4 * lanes; ++i)
        ASSERT_EQ(reinterpret_cast<uint8_t*>(out)[i], table[reinterpret_cast<uint8_t*>(in)[i]]);
      for (uint32_t& word : in) word = random.word() & 255;
      k.bits(in, bits);
      for (size_t i = 0; i < 8 * sizeof bits; ++i)
        ASSERT_EQ(bits[i / 8] >> (7 - i % 8) & 1, i < 4 * lanes ? in[i] >> 7 : 0) << i;
    }
  }
}

}  // namespace
}  // namespace tessaro::test
