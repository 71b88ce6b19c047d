#include <cmath>

#include "support/unscaled.hpp"

namespace tessaro::test {
namespace {

using Bytes = std::vector<uint8_t>;

// Keeps the upper bits of each channel, one behind the other.
uint32_t packed(int format, uint32_t p) {
  const uint32_t b = channel(p, 0), g = channel(p, 8), r = channel(p, 16), a = channel(p, 24);
  if (format == 565) return r / 8 * 2048 + g / 4 * 32 + b / 8;
  if (format == 555) return r / 8 * 1024 + g / 8 * 32 + b / 8;
  if (format == 1555) return a / 128 * 32768 + packed(555, p);
  if (format == 4444) return a / 16 * 4096 + r / 16 * 256 + g / 16 * 16 + b / 16;
  return p;
}
uint32_t unpacked(int format, uint32_t v) {
  if (format == 565) return v / 2048 * 8 << 16 | v / 32 % 64 * 4 << 8 | v % 32 * 8;
  if (format == 555) return v / 1024 % 32 * 8 << 16 | v / 32 % 32 * 8 << 8 | v % 32 * 8;
  if (format == 1555) return v / 32768 << 31 | unpacked(555, v);
  if (format == 4444) return v / 4096 << 28 | v / 256 % 16 << 20 | v / 16 % 16 << 12 | v % 16 << 4;
  return v;
}

struct Row {
  std::string name;
  size_t dst_bytes, src_bytes;
  std::function<int32_t(uint32_t* dst, const uint32_t* src, int32_t count)> run;
  std::function<uint32_t(uint32_t)> model;
};

// Runs one conversion between two places of one memory, on all back ends, and compares with one pixel after
// another.
void check(const Row& row, const Bytes& memory, size_t dst, size_t src, int32_t count) {
  Bytes model = memory;
  for (size_t i = 0; i < static_cast<size_t>(count); ++i) {
    uint32_t v = 0;
    std::memcpy(&v, model.data() + src + i * row.src_bytes, row.src_bytes);
    v = row.model(v);
    std::memcpy(model.data() + dst + i * row.dst_bytes, &v, row.dst_bytes);
  }
  for (const Forced backend : supported_backends()) {
    Bytes got = memory;
    ASSERT_EQ(row.run(reinterpret_cast<uint32_t*>(got.data() + dst),
                      reinterpret_cast<const uint32_t*>(got.data() + src), count),
              0);
    ASSERT_EQ(got, model) << row.name << " count " << count << " dst " << dst << " src " << src;
  }
}

std::vector<Row> all_rows(const Bytes& table) {
  std::vector<Row> rows{
      {"888", 3, 4, BBIBltTo24As888, [](uint32_t p) { return p; }},
      {"444", 2, 4, BBIBltTo16As444, [](uint32_t p) { return packed(4444, p); }},
      {"565", 2, 4, BBIBltTo16As565, [](uint32_t p) { return packed(565, p); }},
      {"555", 2, 4, BBIBltTo16As555, [](uint32_t p) { return packed(555, p); }},
      {"1555", 2, 4, BBIBltTo16As1555, [](uint32_t p) { return packed(1555, p); }},
      {"gray", 1, 4, BBIBltTo8AsGray, [](uint32_t p) { return p & 255; }},
      {"alpha", 1, 4, BBIBltTo8AsAlpha, [](uint32_t p) { return p >> 24; }},
  };
  const std::pair<float, uint32_t> factors[] = {{0.f, 0},   {0.3f, 76}, {0.999f, 255}, {1.f, 256},
                                                {7.f, 256}, {-2.f, 0},  {NAN, 0}};
  const float saturations[] = {0.f, 0.4f, 1.f, 2.5f, 31.999f, 32.f, 63.99f, 64.f, 1e9f, -1.f, NAN};
  const std::pair<int, size_t> formats[] = {{8888, 4}, {888, 3}, {565, 2}, {555, 2}, {1555, 2}, {4444, 2}};
  size_t i = 0;
  for (const auto& [f, size] : formats) {
    const int format = f;
    const std::string name = std::to_string(format);
    rows.push_back({"get" + name, 4, size,
                    [=](auto* d, auto* s, int32_t n) { return BBIBltToBBIGet(d, s, n, format); },
                    [=](uint32_t v) { return unpacked(format, v); }});
    for (const auto& [factor_, weight_] : factors) {
      const float factor = factor_, saturation = saturations[++i % std::size(saturations)];
      const uint32_t weight = weight_, colour = 0x91F27C05u * static_cast<uint32_t>(i);
      const bool tabled = i % 2 != 0;
      rows.push_back({"X" + name, size, 4,
                      [=](auto* d, auto* s, int32_t n) { return BBIBltToX(d, s, n, format, colour, factor); },
                      [=](uint32_t p) { return packed(format, mixed(colour, p, weight)); }});
      rows.push_back({"F" + name + " saturation " + std::to_string(saturation), size, 4,
                      [=, &table](auto* d, auto* s, int32_t n) {
                        return BBIBltToF(d, s, n, format, colour, factor, saturation, tabled, table.data());
                      },
                      [=, &table](uint32_t p) {
                        const uint32_t v = per_channel([=, &table, s = saturated(p, saturation)](int at) {
                          const uint32_t level = channel(s, at);
                          return at < 24 && tabled ? table[static_cast<size_t>(32 * at) + level] : level;
                        });
                        return packed(format, mixed(colour, v, weight));
                      }});
    }
  }
  return rows;
}

TEST(Format, ConvertsRunsAsOnePixelAfterAnother) {
  Random random(22);
  Bytes memory(12000), table(768);
  for (auto& b : table) b = random.byte();
  for (const Row& row : all_rows(table)) {
    for (auto& b : memory) b = random.byte();
    for (int32_t count = 0; count < 150; count += count < 70 ? 1 : 13) {
      check(row, memory, 5 + static_cast<size_t>(count % 4), 2001, count);  // apart
      // One run over the other, from far before it to far behind it.
      const auto shift = static_cast<size_t>(random.between(0, 400) * random.between(0, 2));
      check(row, memory, 800, 800 + shift, count);
      check(row, memory, 800 + shift, 800, count);
    }
    check(row, memory, 0, 6003, 1400);  // longer than the pieces in which stages work
  }
}

// Every packed value comes back, and every colour byte is packed as the formula has it.
TEST(Format, PacksEveryColourByteAndUnpacksEveryWord) {
  const Bytes table(768);
  Bytes memory(65536 * 6);
  for (uint32_t i = 0; i < 65536; ++i)
    store<uint16_t>(memory.data() + 4 * 65536 + 2 * i, static_cast<uint16_t>(i));
  for (const Row& row : all_rows(table))
    if (row.dst_bytes == 4 && row.src_bytes == 2) check(row, memory, 0, 4 * 65536, 65536);
  for (uint32_t i = 0; i < 65536; ++i)
    store<uint32_t>(memory.data() + 2 * 65536 + 4 * i, (i & 255) * 0x01010101u ^ (i >> 8) << 8);
  for (const Row& row : all_rows(table))
    if (row.dst_bytes <= 2) check(row, memory, 0, 2 * 65536, 65536);
}

TEST(Format, BlendsTwoRunsAndPacksBits) {
  Random random(5);
  Bytes memory(6000);
  for (auto& b : memory) b = random.byte();
  for (const Forced backend : supported_backends())
    for (int32_t count = 0; count < 300; count += 1 + count / 20) {
      const auto n = static_cast<size_t>(count);
      for (const size_t dst : {size_t{0}, size_t{2496}, size_t{2503}, size_t{2000}, size_t{3990}}) {
        Bytes model = memory, got = memory;
        for (size_t i = 0; i < n; ++i) {
          const uint32_t v = packed(
              565, mixed(load<uint32_t>(&model[4001 + 4 * i]), load<uint32_t>(&model[2500 + 4 * i]), 192));
          store<uint16_t>(&model[dst + 2 * i], static_cast<uint16_t>(v));
        }
        const auto word = [&](size_t place) { return reinterpret_cast<const uint32_t*>(got.data() + place); };
        ASSERT_EQ(BBIBltToXF(got.data() + dst, word(4001), word(2500), count, 565, 0.75f), 0);
        ASSERT_EQ(got, model) << count << " at " << dst;

        model = got = memory;
        for (size_t i = 0; i < n; i += 8) {
          uint8_t bits = 0;
          for (size_t k = 0; k < 8; ++k)
            if (i + k < n && model[2500 + 4 * (i + k)] >= 128) bits = static_cast<uint8_t>(bits | 128 >> k);
          model[dst + i / 8] = bits;
        }
        ASSERT_EQ(BBIBltTo1(got.data() + dst, word(2500), count), 0);
        ASSERT_EQ(got, model) << count << " at " << dst;
      }
    }
}

TEST(Format, FillsImagesFromBottomUpBuffers) {
  Random random(6);
  Bytes bits(4000);
  for (auto& b : bits) b = random.byte();
  uint32_t palette[256];
  for (auto& p : palette) p = random.pixel();
  for (const Forced backend : supported_backends())
    for (int32_t width = 0; width < 70; width += 1 + width / 10)
      for (const int32_t stride : {280, 0, -283}) {
        Image images[4] = {
            {width, 4, 4 * width + 3}, {width, 4, 4 * width + 3}, {width, 4, -4 * width - 1}, {width, 4}};
        Image models[4] = {images[0], images[1], images[2], images[3]};
        const uint8_t* start = bits.data() + 1500;
        for_pixels(models[0], [&](int32_t x, int32_t y) {
          const uint8_t* row = start + (3 - y) * stride;
          models[0].set(x, y, palette[row[x / 8] >> (7 - x % 8) & 1]);
          models[1].set(x, y, palette[row[x]]);
          models[2].set(x, y, load<uint32_t>(row + 3 * x) & 0xFFFFFF);
          models[3].set(x, y, load<uint32_t>(row + 4 * x));
        });
        ASSERT_EQ(BBIBltTo32from1(images[0], start, palette, stride), 0);
        ASSERT_EQ(BBIBltTo32from8(images[1], start, palette, stride), 0);
        ASSERT_EQ(BBIBltTo32from24(images[2], start, stride), 0);
        ASSERT_EQ(BBIBltTo32from32(images[3], start, stride), 0);
        for (int i = 0; i < 4; ++i) ASSERT_EQ(images[i], models[i]) << width << ' ' << i;
      }
}

TEST(Format, RefusesUnknownFormatsAndEmptyRuns) {
  const uint32_t src[2] = {1, 2};
  uint32_t dst[2] = {7, 8};
  const auto run = [&](int32_t count, int32_t format) {
    return std::vector<int32_t>{
        BBIBltToBBIGet(dst, src, count, format), BBIBltToX(dst, src, count, format, 5, 1),
        BBIBltToXF(dst, src, src, count, format, 1), BBIBltToF(dst, src, count, format, 5, 1, 0, 0, nullptr)};
  };
  for (const int32_t format : {0, 16, 444, -565, INT32_MIN})
    for (const int32_t count : {2, 0}) EXPECT_EQ(run(count, format), (std::vector<int32_t>{0, 0, 1, 1}));
  for (const int32_t count : {0, -1, INT32_MIN}) {
    EXPECT_EQ(run(count, 565), std::vector<int32_t>(4));
    EXPECT_EQ(BBIBltTo1(dst, src, count) | BBIBltTo16As565(dst, src, count), 0);
  }
  EXPECT_EQ(dst[0], 7u);
  EXPECT_EQ(dst[1], 8u);
}

}  // namespace
}  // namespace tessaro::test
