// The C++ header as a program uses it.
#include "tessaro/tessaro.hpp"

#include <gtest/gtest.h>

#include <cstring>
#include <string>
#include <type_traits>

namespace {

TEST(Cpp, ImagesOwnTheirMemoryAndAreTakenByTheFunctions) {
  static_assert(!std::is_copy_constructible_v<tessaro::Image> &&
                std::is_nothrow_move_assignable_v<tessaro::Image>);
  tessaro::Image image(tessaro::Image::max_width, 3), none(tessaro::Image::max_width + 1, 3);
  ASSERT_TRUE(image);
  EXPECT_FALSE(none);
  EXPECT_EQ(none.width(), 0);
  EXPECT_FALSE(tessaro::Image(0, 5));
  EXPECT_EQ(image.at(tessaro::Image::max_width - 1, 2), 0u);
  EXPECT_EQ(reinterpret_cast<uintptr_t>(image.row(0)) % 64, 0u);
  EXPECT_EQ(BBIBltColor(image, 0, 0, 1 << 20, 1 << 20, 0, 0, 0xFF102030), 0);
  EXPECT_EQ(image.at(tessaro::Image::max_width - 1, 2), 0xFF102030);
  const tessaro::Image copy = image.clone();
  tessaro::Image moved = std::move(image);
  EXPECT_FALSE(image);
  EXPECT_EQ(std::memcmp(copy.row(0), moved.row(0), size_t{12} * tessaro::Image::max_width), 0);
  moved = tessaro::Image();
  EXPECT_FALSE(moved);

  // Upwards and with gaps, in memory of the host.
  struct {
    uint32_t pixels[3][4];
    ImageRecord record;
    ImageDims dims;
  } host = {};
  host.record = {sizeof host.record, -16};
  host.dims = {3, 3, -16};
  const tessaro::ImageView view(&host.record);
  view.at(2, 2) = 7;
  EXPECT_EQ(host.pixels[0][2], 7u);
  const tessaro::Image down(3, 3, view.row(0), view.pitch());
  EXPECT_EQ(down.at(2, 2), 7u);
}

TEST(Cpp, SoundsBeginSilentAndDescribeThemselves) {
  using tessaro::Channels, tessaro::SampleBits;
  tessaro::Sound sound(SampleBits::b8, Channels::stereo, 22050, 5);
  ASSERT_TRUE(sound);
  EXPECT_EQ(sound.rate(), 22050);
  EXPECT_EQ(sound.size_bytes(), 10u);
  EXPECT_EQ(static_cast<const uint8_t*>(sound.data())[9], 128);
  int16_t samples[] = {1, 2, 3};
  const tessaro::SoundView view(SampleBits::b16, Channels::mono, 22050, 3, samples);
  EXPECT_EQ(waveBltAdd(sound, view, 0, 0, 3, 1.0f), 0);
  EXPECT_FALSE(tessaro::Sound(SampleBits::b8, Channels::mono, 22050, -1));
  EXPECT_FALSE(tessaro::Sound(static_cast<SampleBits>(9), Channels::mono, 22050, 1));
}

TEST(Cpp, EveryCodecRestoresWhatItCodes) {
  const std::string source = [] {
    std::string text;
    for (int i = 0; i < 4096; ++i) text += static_cast<char>(i / 64);
    return text;
  }();
  for (int32_t i = 0; i <= static_cast<int32_t>(tessaro::Codec::c2f); ++i) {
    const auto codec = static_cast<tessaro::Codec>(i);
    SCOPED_TRACE(tessaro::functions_of(codec).name);
    const auto stream = tessaro::encode(codec, source);
    ASSERT_TRUE(stream);
    const auto back = tessaro::decode(codec, *stream, source.size());
    ASSERT_TRUE(back);
    EXPECT_EQ(std::string(back->begin(), back->end()), source);
    EXPECT_FALSE(tessaro::decode(codec, {stream->data(), stream->size() / 2}, source.size()))
        << "half a stream";
  }
  EXPECT_FALSE(tessaro::encode(tessaro::Codec::i, std::string("short")));
  EXPECT_TRUE(tessaro::encode(tessaro::Codec::c2f, tessaro::Bytes())) << "takes anything";
}

}  // namespace
