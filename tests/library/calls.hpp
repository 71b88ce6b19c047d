// Calls any export with seeded arguments that are made from the types of its parameters, through the built library
// as a host would, and digests what comes of it.
#pragma once

#include <cstdint>
#include <cstring>
#include <limits>
#include <memory>
#include <string>
#include <tuple>
#include <type_traits>
#include <vector>

#include "tessaro/tessaro.h"

namespace host {

class Random {
 public:
  explicit Random(uint64_t seed) : state_(seed * 0x9E3779B97F4A7C15u + 1) {}
  uint32_t word() {
    state_ ^= state_ << 13, state_ ^= state_ >> 7, state_ ^= state_ << 17;
    return static_cast<uint32_t>(state_ >> 16);
  }
  int32_t between(int32_t low, int32_t high) {
    return low + static_cast<int32_t>(word() % static_cast<uint32_t>(high - low + 1));
  }
  bool one_in(uint32_t n) { return word() % n == 0; }
  template <class T, size_t N>
  T one_of(const T (&values)[N]) {
    return values[word() % N];
  }

 private:
  uint64_t state_;
};

inline void digest(uint64_t& into, const void* data, size_t bytes) {
  const auto* at = static_cast<const uint8_t*>(data);
  for (; bytes >= 8; at += 8, bytes -= 8) {
    uint64_t word;
    std::memcpy(&word, at, 8);
    into = (into ^ word) * 0x9E3779B97F4A7C15u;
    into ^= into >> 32;
  }
  for (; bytes > 0; ++at, --bytes) into = (into ^ *at) * 0x100000001B3u;
}

enum class Range {
  ordinary,  // what a host would pass, a little beyond the edges included
  extreme    // anything that 32 bits hold
};

// The arguments of one call and the memory that they point to.
class Arguments {
 public:
  // words: unsigned arguments are colours and masks, not lengths.
  Arguments(uint64_t seed, Range range, bool words) : random_(seed), range_(range), words_(words) {
    width_ = random_.between(1, 40);
    height_ = random_.between(1, 24);
  }

  template <class T>
  T make() {
    if constexpr (std::is_pointer_v<T>)
      return point(T{});
    else if constexpr (std::is_floating_point_v<T>)
      return real<T>();
    else
      return static_cast<T>(integer(std::is_unsigned_v<T>));
  }

  // What the raw memory that a function only reads is to begin with.
  void feed(std::vector<uint8_t> bytes) { feed_ = std::move(bytes); }

  void digest_memory(uint64_t& into) const {
    for (const auto& block : blocks_)
      if (block->written) digest(into, block->bytes.data(), block->bytes.size());
  }
  // Whether every byte that no image, sound or buffer holds is as it was.
  bool margins_intact() const {
    for (const auto& block : blocks_)
      for (size_t i = 0; i < margin; ++i)
        if (block->bytes[i] != fence || block->bytes[block->bytes.size() - 1 - i] != fence) return false;
    return true;
  }

 private:
  static constexpr size_t margin = 64;
  static constexpr uint8_t fence = 0xA5;
  struct Block {
    std::vector<uint8_t> bytes;
    bool written;
    WaveBuffer sound;
    uint8_t* data() { return bytes.data() + margin; }
  };

  Block& block(size_t bytes, bool written) {
    blocks_.push_back(std::make_unique<Block>());
    blocks_.back()->bytes.assign(bytes + 2 * margin, fence);
    blocks_.back()->written = written;
    return *blocks_.back();
  }

  ImageRecord* image() {
    if (last_image_ != nullptr && random_.one_in(6)) return last_image_;
    const bool alike = !random_.one_in(3);
    const int32_t width = alike ? width_ : random_.between(0, 50),
                  height = alike ? height_ : random_.between(0, 30);
    const int32_t step = 4 * width + (random_.one_in(4) ? random_.between(0, 9) : 0);
    const bool upwards = random_.one_in(4);
    const int32_t head = 12 + random_.between(0, 5), rows = step * height;
    Block& memory = block(static_cast<size_t>(head + rows), true);
    uint8_t* record = memory.data();
    const int16_t fields[5] = {4, static_cast<int16_t>(head + (upwards && height > 0 ? rows - step : 0)),
                               static_cast<int16_t>(width), static_cast<int16_t>(height),
                               static_cast<int16_t>(upwards ? -step : step)};
    std::memcpy(record, fields, sizeof fields);
    for (int32_t i = 0; i < rows; ++i) {
      const uint32_t v = random_.word();
      record[head + i] = v & 0x700 ? static_cast<uint8_t>(v) : v & 0x800 ? uint8_t{255} : uint8_t{0};
    }
    return last_image_ = reinterpret_cast<ImageRecord*>(record);
  }

  WaveBuffer* sound() {
    static constexpr int32_t bits[] = {8, 16, 24, 64}, rates[] = {8000, 22050, 44100, 96000};
    const int32_t width = random_.one_of(bits), channels = random_.between(1, 2);
    const int32_t count = random_.one_in(8) ? 0 : random_.between(1, 90);
    const size_t samples = static_cast<size_t>(count * channels);
    Block& memory = block(samples * static_cast<size_t>(width / 8), true);
    if (width == 64)
      fill_reals(memory.data(), samples);
    else
      for (size_t i = 0; i < samples * static_cast<size_t>(width / 8); ++i)
        memory.data()[i] = static_cast<uint8_t>(random_.word());
    memory.sound = {random_.one_of(rates) * 256 + width + channels, count, memory.data()};
    return &memory.sound;
  }

  // Raw memory, far larger than any ordinary count asks for; the pointer leaves room for negative offsets too.
  static constexpr size_t before = 16384, after = 65536;
  template <class T>
  T* buffer(bool written) {
    Block& memory = block(before + after, written);
    uint8_t* at = memory.data();
    if constexpr (std::is_same_v<T, double>) {
      fill_reals(at, (before + after) / sizeof(double));
    } else if constexpr (std::is_same_v<T, int32_t>) {
      for (size_t i = 0; i < before + after; i += 4) {
        const int32_t position = random_.between(-5, 100);
        std::memcpy(at + i, &position, 4);
      }
    } else {
      const bool weights = std::is_same_v<T, uint32_t> && last_image_ != nullptr;  // 0..256, for tables
      uint32_t v = 0;
      for (size_t i = 0; i < before + after; i += 4) {
        if (!random_.one_in(4)) v = weights ? random_.word() % 257 : random_.word();  // runs for the coders
        std::memcpy(at + i, &v, 4);
      }
    }
    if (!written && !feed_.empty()) std::memcpy(at + before, feed_.data(), feed_.size());
    return reinterpret_cast<T*>(at + before);
  }

  void fill_reals(uint8_t* at, size_t count) {
    for (size_t i = 0; i < count; ++i) {
      const double v = random_.between(-1100, 1100) / 1024.0;
      std::memcpy(at + 8 * i, &v, 8);
    }
  }

  ImageRecord* point(ImageRecord*) { return image(); }
  const ImageRecord* point(const ImageRecord*) { return image(); }
  WaveBuffer* point(WaveBuffer*) { return sound(); }
  const WaveBuffer* point(const WaveBuffer*) { return sound(); }
  template <class T>
  T* point(T*) {
    return buffer<T>(true);
  }
  template <class T>
  const T* point(const T*) {
    return buffer<T>(false);
  }

  uint32_t integer(bool is_unsigned) {
    if (range_ == Range::extreme && !random_.one_in(3)) {
      static constexpr uint32_t values[] = {0,          1,          0xFFFFFFFF, 255,        256,
                                            32767,      0xFFFF8000, 0x7FFFFFFF, 0x80000000, 0x7FFFFFFE,
                                            0x80000001, 0x40000000, 0xC0000000, 0x00800000, 46341,
                                            65536,      0x3FFFFFFF, 0xFFFF0000};
      return random_.one_of(values);
    }
    if (is_unsigned)
      return words_ && !random_.one_in(3)
                 ? random_.word()
                 : static_cast<uint32_t>(random_.between(0, random_.one_in(2) ? 250 : 90));
    return static_cast<uint32_t>(random_.one_in(4) ? random_.between(-20, 90) : random_.between(0, 30));
  }

  template <class T>
  T real() {
    static constexpr T most = std::numeric_limits<T>::max(), infinity = std::numeric_limits<T>::infinity();
    static constexpr T extremes[] = {-infinity, infinity, std::numeric_limits<T>::quiet_NaN(),
                                     most,      -most,    std::numeric_limits<T>::denorm_min(),
                                     T{-1e9},   T{3e9},   T{-0.0}};
    if (range_ == Range::extreme && !random_.one_in(3)) return random_.one_of(extremes);
    return static_cast<T>(random_.one_in(4) ? random_.between(-200, 500) : random_.between(0, 100)) / T{100};
  }

  Random random_;
  Range range_;
  bool words_;
  int32_t width_, height_;
  ImageRecord* last_image_ = nullptr;
  std::vector<uint8_t> feed_;
  std::vector<std::unique_ptr<Block>> blocks_;
};

#if defined(__i386__)
// Calls a callee-cleans function with the stack at any multiple of 4, as 32-bit hosts do. Leaves in `unbalanced`
// how many bytes too few the function removed.
inline uint32_t call_at(void* function, const uint32_t* arguments, uint32_t count, uint32_t misalignment,
                        int32_t& unbalanced) {
  uint32_t result, original, after = count, scratch;
  const uint32_t shift = (misalignment - 4 * count) & 12;
  asm volatile(
      "movl %%esp, %%ebx\n\t"
      "andl $-16, %%esp\n\t"
      "subl $16, %%esp\n\t"
      "addl %%edx, %%esp\n"
      "1: testl %%ecx, %%ecx\n\t"
      "jz 2f\n\t"
      "decl %%ecx\n\t"
      "pushl (%%esi,%%ecx,4)\n\t"
      "jmp 1b\n"
      "2: call *%%edi\n\t"
      "movl %%esp, %%ecx\n\t"
      "movl %%ebx, %%esp"
      : "=a"(result), "=&b"(original), "+c"(after), "=d"(scratch), "+S"(arguments), "+D"(function)
      : "d"(shift)
      : "cc", "memory", "st", "st(1)", "st(2)", "st(3)", "st(4)", "st(5)", "st(6)", "st(7)", "xmm0", "xmm1",
        "xmm2", "xmm3", "xmm4", "xmm5", "xmm6", "xmm7");
  unbalanced = static_cast<int32_t>((original & ~15u) - 16 + shift - after);
  return result;
}
#endif

// One export. Calls with the same seed are the same call.
struct Export {
  std::string name;
  bool comparable = false;  // the outcome depends on nothing but the arguments
  bool images = false;      // takes images, and otherwise numbers and tables only
  // Returns the digest of the result and of all memory; `intact` tells whether it kept to its memory and balanced the stack.
  uint64_t (*call)(const Export& self, uint64_t seed, Range range, bool& intact) = nullptr;
  void* function = nullptr;
  std::vector<uint8_t> (*feed)(const Export& self, uint64_t seed) = nullptr;
};

template <class T>
inline constexpr bool is_image = std::is_same_v<std::remove_cv_t<std::remove_pointer_t<T>>, ImageRecord>;
template <class T>
inline constexpr bool is_raw = std::is_pointer_v<T> && !is_image<T> && !std::is_same_v<T, const uint32_t*>;

template <class R, class... A>
uint64_t call(const Export& self, uint64_t seed, Range range, bool& intact) {
  Arguments arguments(seed, range, self.name.starts_with("BBI"));
  if (self.feed != nullptr) arguments.feed(self.feed(self, seed));
  std::tuple<A...> values{arguments.make<A>()...};
  uint64_t outcome = 0xCBF29CE484222325u;
  bool refused = false;  // a decoder leaves unspecified bytes behind when its stream is cut
  intact = true;
  const auto note = [&]<class Result>(Result result) {
    digest(outcome, &result, sizeof result);
    refused = self.feed != nullptr && result != 0;
  };
#if defined(__i386__)
  std::vector<uint32_t> words;
  std::apply(
      [&](const auto&... value) {
        (
            [&] {
              words.resize(words.size() + (sizeof value + 3) / 4);
              std::memcpy(&words.back() + 1 - (sizeof value + 3) / 4, &value, sizeof value);
            }(),
            ...);
      },
      values);
  int32_t unbalanced;
  const uint32_t result =
      call_at(self.function, words.data(), static_cast<uint32_t>(words.size()), seed % 4 * 4, unbalanced);
  intact = unbalanced == 0;
  if constexpr (!std::is_void_v<R>) note(static_cast<R>(result));
#else
  const auto function = reinterpret_cast<R(TESSARO_CALL*)(A...)>(self.function);
  if constexpr (std::is_void_v<R>)
    std::apply(function, values);
  else
    note(std::apply(function, values));
#endif
  intact = intact && arguments.margins_intact();
  if (!refused) arguments.digest_memory(outcome);
  return outcome;
}

template <class R, class... A>
Export describe(const char* name, R(TESSARO_CALL* function)(A...)) {
  Export row{name};
  row.function = reinterpret_cast<void*>(function);
  if constexpr (!((std::is_pointer_v<A> && std::is_function_v<std::remove_pointer_t<A>>) || ...)) {
    row.call = call<R, A...>;
    row.comparable = true;
    row.images = (is_image<A> || ...) && !(is_raw<A> || ...);
  }
  return row;
}

// Every export, in the order of the table.
std::vector<Export>& exports();

}  // namespace host
