// Calls any export with seeded arguments that are made from the types of its parameters, through the built library
// as a host would, and digests what comes of it.
#pragma once

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <limits>
#include <memory>
#include <sstream>
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

// What to draw for the parameters of an export, one letter each; those that no letter is left for are drawn by type.
//   x  a position           b  a flag, 0 as a rule     k  a mode, 0..11
//   w  a size               l  a level, 0..255         0..9  a mode, from 0 to the digit
//   F  a pixel format       V  a sample                B H R  sample bits, channels, rate
//   P  a power of two       n  length of the source    N  length of its stream
//   S  a source of n bytes  D  its stream              E  memory like the last, but for a byte
//   O  an image of one colour with strays              o  that colour
//   M  a map                W  256 weights             T  a table of reverb taps   Q  the reverb's ring
// A row is for the exports that it names, a star standing for any end, or for those whose parameters begin with the
// types in its parenthesis: I image, S sound, p and P memory that is read and written, i u f d numbers. The first counts.
struct Drawn {
  const char* exports;
  const char* letters;
};
inline constexpr Drawn drawn[] = {
    {"BBIBltHalfSize", "..223322"},
    {"BBIBltAlpha", "..xxwwxxbbbb"},
    {"BBIBltKeyingFX", "..xxwwxxbl"},
    {"BBIBltUScale BBIBltVScale", "..xxwwxx99"},
    {"BBILinearRender", "..xxwwxxwwW3b"},
    {"BBIMap*", "..Mxxwwxx"},
    {"BBIClear*", ".llll"},
    {"BBIPaintChoose", ".k"},
    {"BBIDotThick BBILineThick", "Oxxww.o"},
    {"BBICompare", "..8"},
    {"BBIRotation", "..2"},
    {"BBIChooseRGBA", "..7777"},
    {"BBIChoose*", "..33"},
    {"BBIColorPalette", "..l"},
    {"BBITrim BBIColorCount", ".b"},
    {"BBIBltToBBIGet", "...F"},
    {"waveFormatEnc", "BHR"},
    {"waveEffectReverbA1", "..Q...99lT"},
    {"wavefft*", ".9P"},
    {"dllComp", ".El"},
    {"SHR SAR SHL", "Vl"},
    // Blits and what is called like them, one, two, three and four images; lines and boxes.
    {"(IIiiiiiiii", "..xxwwxxww"},
    {"(IIiiiiii", "..xxwwxx"},
    {"(IIIiiiiii", "...xxwwxx"},
    {"(IIIIiiiiii", "....xxwwxx"},
    {"(IIiiii", "..xxww"},
    {"(Iiiiiii", ".xxxxxx"},
    {"(Iiiii", ".xxww"},
    {"(Iii", ".xxw"},
    // Packed pixels: with a colour, and from two sources.
    {"(Ppiiuf", "...F"},
    {"(Pppiif", "....F"},
    // Samples that are read, and written.
    {"(piiiiPP", ".9BHw"},
    {"(Piiii", ".9BHwVV"},
    // Encoders, decoders, and decoders that know the size of the stream.
    {"(pPuP", "S.n"},
    {"(pPuu", "D.Nn"},
    {"(pPu", "D.n"},
};

template <class T>
constexpr char letter_of() {
  if constexpr (std::is_pointer_v<T>) {
    using Pointed = std::remove_pointer_t<T>;
    if constexpr (std::is_same_v<std::remove_cv_t<Pointed>, ImageRecord>)
      return 'I';
    else if constexpr (std::is_same_v<std::remove_cv_t<Pointed>, WaveBuffer>)
      return 'S';
    else
      return std::is_const_v<Pointed> ? 'p' : 'P';
  } else if constexpr (std::is_floating_point_v<T>) {
    return sizeof(T) == 4 ? 'f' : 'd';
  } else {
    return std::is_unsigned_v<T> ? 'u' : 'i';
  }
}

inline std::string letters_for(const std::string& name, const std::string& types) {
  for (const Drawn& row : drawn) {
    std::istringstream patterns(row.exports);
    for (std::string pattern; patterns >> pattern;) {
      const bool fits = pattern[0] == '('       ? types.starts_with(pattern.substr(1))
                        : pattern.back() == '*' ? name.starts_with(pattern.substr(0, pattern.size() - 1))
                                                : name == pattern;
      if (fits) return row.letters;
    }
  }
  return "";
}

// Pixels in runs, as coders like them: on the average once in `run` the next one is near the last one, or of any grey or
// colour.
inline std::vector<uint8_t> pixels_in_runs(Random& random, size_t bytes, uint32_t run) {
  std::vector<uint8_t> source(bytes);
  uint32_t pixel = 0;
  for (size_t i = 0; i < bytes; ++i) {
    if (i % 4 == 0 && random.one_in(run))
      pixel = random.one_in(3)   ? pixel + 0x01010101
              : random.one_in(3) ? random.word()
                                 : 0x01010101 * (random.word() & 255);
    source[i] = static_cast<uint8_t>(pixel >> i % 4 * 8);
  }
  return source;
}

// What a coder is given: pixels, and the stream that their format's encoder makes of them.
struct Coded {
  std::vector<uint8_t> source, stream;
};

// The arguments of one call and the memory that they point to.
class Arguments {
 public:
  Arguments(uint64_t seed, Range range, std::string letters, Coded coded)
      : random_(seed), range_(range), letters_(std::move(letters)), coded_(std::move(coded)) {
    width_ = random_.between(4, 48);
    height_ = random_.between(4, 32);
    for (uint32_t& colour : colours_) {
      static constexpr uint32_t plain[] = {0, 0xFF000000, 0xFFFFFFFF, 0xFF808080, 0x00FFFFFF};
      colour = random_.one_in(2) ? random_.one_of(plain) : random_.word();
    }
  }

  template <class T>
  T make() {
    letter_ = place_ < letters_.size() ? letters_[place_] : '.';
    ++place_;
    if constexpr (std::is_pointer_v<T>)
      return point(T{});
    else if constexpr (std::is_floating_point_v<T>)
      return real<T>();
    else
      return static_cast<T>(integer(std::is_unsigned_v<T>));
  }

  // Notes what the memory holds before the call.
  void seal() {
    for (const auto& block : blocks_) block->before = block->contents();
  }
  void digest_memory(uint64_t& into) const {
    for (const auto& block : blocks_)
      if (block->written || block->image) digest(into, block->bytes.data(), block->bytes.size());
  }
  bool memory_changed() const {
    for (const auto& block : blocks_)
      if (block->written && block->contents() != block->before) return true;
    return false;
  }
  // Whether what is only read, and every byte that no image, sound or buffer holds, is as it was.
  bool rest_intact() const {
    for (const auto& block : blocks_) {
      for (size_t i = 0; i < margin; ++i)
        if (block->bytes[i] != fence || block->bytes[block->bytes.size() - 1 - i] != fence) return false;
      if (!block->written && block->contents() != block->before) return false;
    }
    return true;
  }

 private:
  static constexpr size_t margin = 64;
  static constexpr uint8_t fence = 0xA5;
  struct Block {
    std::vector<uint8_t> bytes;
    bool written, image;
    WaveBuffer sound;
    uint64_t before;
    uint8_t* data() { return bytes.data() + margin; }
    uint64_t contents() const {
      uint64_t all = 0;
      digest(all, bytes.data(), bytes.size());
      return all;
    }
  };

  Block& block(size_t bytes, bool written) {
    blocks_.push_back(std::make_unique<Block>());
    blocks_.back()->bytes.assign(bytes + 2 * margin, fence);
    blocks_.back()->written = written;
    return *blocks_.back();
  }

  ImageRecord* image(bool written) {
    if (last_image_ != nullptr && letter_ != 'M' && random_.one_in(6)) {
      last_image_->written |= written;
      return reinterpret_cast<ImageRecord*>(last_image_->data());
    }
    const bool alike = !random_.one_in(3), turned = !alike && random_.one_in(2);
    int32_t width = alike    ? width_
                    : turned ? height_
                             : random_.between(0, 50),
            height = alike    ? height_
                     : turned ? width_
                              : random_.between(0, 30);
    if (letter_ == 'M' && !random_.one_in(8)) {
      width = random_.between(256, 258);
      height = random_.one_in(range_ == Range::extreme ? 64 : 2) ? random_.between(256, 258)
                                                                 : random_.between(1, 20);
    }
    const int32_t step = 4 * width + (random_.one_in(4) ? random_.between(0, 9) : 0);
    const bool upwards = letter_ != 'M' && random_.one_in(4);
    const int32_t head = 12 + random_.between(0, 5), rows = step * height;
    Block& memory = block(static_cast<size_t>(head + rows), written);
    memory.image = true;
    last_image_ = &memory;
    uint8_t* record = memory.data();
    const int16_t fields[5] = {4, static_cast<int16_t>(head + (upwards && height > 0 ? rows - step : 0)),
                               static_cast<int16_t>(width), static_cast<int16_t>(height),
                               static_cast<int16_t>(upwards ? -step : step)};
    std::memcpy(record, fields, sizeof fields);
    const bool flat = letter_ == 'O' || random_.one_in(2);  // few colours, in patches
    const uint32_t run = letter_ == 'O' ? 5 : random_.one_in(4) ? 1u << 30 : 3;
    uint32_t colour = random_.one_of(colours_);
    for (int32_t i = 0; i < rows; i += 4) {
      const uint32_t v = random_.word();
      if (v % run == 0)
        colour = colours_[v >> 30];
      else if (letter_ == 'O')
        colour = colours_[0];
      // Random bytes, and more than their share of those at which rules turn.
      const uint32_t noise = v % 4 == 0 ? v | 0xFF000000 : v % 4 == 1 ? v & 0x00FFFF00 : random_.word();
      const uint32_t pixel = flat ? colour : noise;
      std::memcpy(record + head + i, &pixel, static_cast<size_t>(std::min(4, rows - i)));
    }
    return reinterpret_cast<ImageRecord*>(record);
  }

  WaveBuffer* sound() {
    static constexpr int32_t bits[] = {8, 16, 24, 64}, rates[] = {8000, 22050, 44100, 96000};
    const bool ring = letter_ == 'Q' && !random_.one_in(4);
    const int32_t width = ring ? 64 : random_.one_of(bits), channels = random_.between(1, 2);
    const int32_t count = ring ? 524288 : random_.one_in(8) ? 0 : random_.between(1, 90);
    const size_t samples = static_cast<size_t>(count) * static_cast<size_t>(ring ? 2 : channels);
    Block& memory = block(samples * static_cast<size_t>(width / 8), true);
    if (ring) std::memset(memory.data(), 0, samples * 8);
    if (width == 64)
      fill_reals(memory.data(), ring ? 1000 : samples);
    else
      for (size_t i = 0; i < samples * static_cast<size_t>(width / 8); ++i)
        memory.data()[i] = static_cast<uint8_t>(random_.word());
    memory.sound = {random_.one_of(rates) * 256 + width + channels, count, memory.data()};
    return &memory.sound;
  }

  // Raw memory, far larger than any ordinary count asks for; the pointer leaves room for negative offsets too.
  static constexpr size_t before = 4096;
  template <class T>
  T* buffer(bool written) {
    const size_t after = letter_ == 'T' ? 30000 * sizeof(double) : 16384;
    Block& memory = block(before + after, written);
    uint8_t* at = memory.data();
    if (letter_ == 'E') {
      std::memcpy(at, (blocks_.end() - 2)->get()->data(), before + after);
      at[before + static_cast<size_t>(random_.between(0, 200))] ^= 1;
    } else if constexpr (std::is_same_v<T, double>) {
      fill_reals(at, (before + after) / sizeof(double));
    } else if constexpr (std::is_same_v<T, int32_t>) {
      for (size_t i = 0; i < before + after; i += 4) {
        const int32_t position = random_.between(-5, 100);
        std::memcpy(at + i, &position, 4);
      }
    } else {
      uint32_t v = 0;
      for (size_t i = 0; i < before + after; i += 4) {
        if (!random_.one_in(4)) v = letter_ == 'W' ? random_.word() % 257 : random_.word();
        std::memcpy(at + i, &v, 4);
      }
    }
    const auto& given = letter_ == 'S' ? coded_.source : coded_.stream;
    if ((letter_ == 'S' || letter_ == 'D') && !given.empty())
      std::memcpy(at + before, given.data(), given.size());
    return reinterpret_cast<T*>(at + before);
  }

  void fill_reals(uint8_t* at, size_t count) {
    for (size_t i = 0; i < count; ++i) {
      const double v = random_.between(-1100, 1100) / 1024.0;
      std::memcpy(at + 8 * i, &v, 8);
    }
  }

  ImageRecord* point(ImageRecord*) { return image(true); }
  const ImageRecord* point(const ImageRecord*) { return image(false); }
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
    static constexpr int32_t formats[] = {8888, 888, 565, 555, 1555, 4444, 777}, rates[] = {0, 8000, 44100},
                             bits[] = {8, 16, 24, 64, 64, 12};
    const auto between = [&](int32_t low, int32_t high) {
      return static_cast<uint32_t>(random_.between(low, high));
    };
    const uint32_t length = static_cast<uint32_t>(coded_.source.size()),
                   stream = static_cast<uint32_t>(coded_.stream.size());
    switch (letter_) {
      case 'x':
        return random_.one_in(8) ? between(-10, 50) : between(0, random_.one_in(5) ? 30 : 6);
      case 'w':
        return random_.one_in(6) ? between(-3, 70) : between(1, 40);
      case 'b':
        return random_.one_in(3) ? 1 : 0;
      case 'l':
        return random_.one_in(8) ? between(-5, 300) : between(0, 255);
      case 'k':
        return between(0, 11);
      case 'F':
        return static_cast<uint32_t>(random_.one_of(formats));
      case 'B':
        return static_cast<uint32_t>(random_.one_of(bits));
      case 'H':
        return random_.one_in(8) ? 3 : between(1, 2);
      case 'R':
        return static_cast<uint32_t>(random_.one_of(rates));
      case 'V':
        return random_.one_in(2) ? between(-40000, 40000) : random_.word();
      case 'n':
        return random_.one_in(6) ? length + between(-9, 9) : length;
      case 'N':
        return random_.one_in(3) ? between(0, static_cast<int32_t>(stream)) : stream;
      case 'o':
        return colours_[0];
      case 'P':
        return 1u << between(0, 6);
      default:
        break;
    }
    if (letter_ >= '0' && letter_ <= '9') return between(0, letter_ - '0');
    if (is_unsigned)
      return random_.one_in(3)   ? colours_[0]
             : random_.one_in(3) ? random_.one_of(colours_)
             : random_.one_in(2) ? random_.word()
                                 : between(0, 250);
    return random_.one_in(4) ? between(-20, 90) : between(0, 30);
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
  std::string letters_;
  Coded coded_;
  size_t place_ = 0;
  char letter_ = '.';
  int32_t width_, height_;
  uint32_t colours_[4];
  Block* last_image_ = nullptr;
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

struct Outcome {
  uint64_t digest = 0xCBF29CE484222325u;  // of the result and of all memory
  uint64_t result = 0;
  bool changed = false;  // memory
  bool intact = false;   // it kept to its memory and balanced the stack
};

// One export. Calls with the same seed are the same call.
struct Export {
  std::string name = {};
  std::string first_name = {};  // of the same function
  bool comparable = false;      // the outcome depends on nothing but the arguments
  bool images = false;          // takes images, and otherwise numbers and tables only
  bool writes = false;          // its types let it change memory
  Outcome (*call)(const Export& self, uint64_t seed, Range range) = nullptr;
  void* function = nullptr;
  std::string letters = {};   // see `drawn`
  Export* encoder = nullptr;  // whose streams a decoder reads
};

// A format's pixels and stream. Each has pixels of its own, or all decoders would give back the same.
Coded code(const Export& self, uint64_t seed);

template <class T>
inline constexpr bool is_image = std::is_same_v<std::remove_cv_t<std::remove_pointer_t<T>>, ImageRecord>;
template <class T>
inline constexpr bool is_raw = std::is_pointer_v<T> && !is_image<T> && !std::is_same_v<T, const uint32_t*>;

template <class R, class... A>
Outcome call(const Export& self, uint64_t seed, Range range) {
  Arguments arguments(seed, range, self.letters, code(self, seed));
  std::tuple<A...> values{arguments.make<A>()...};
  arguments.seal();
  Outcome outcome;
  bool refused = false, balanced = true;  // a decoder leaves unspecified bytes behind when its stream is cut
  const auto note = [&]<class Result>(Result result) {
    digest(outcome.digest, &result, sizeof result);
    outcome.result = static_cast<uint64_t>(result);
    refused = self.encoder != nullptr && result != 0;
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
  balanced = unbalanced == 0;
  if constexpr (!std::is_void_v<R>) note(static_cast<R>(result));
#else
  const auto function = reinterpret_cast<R(TESSARO_CALL*)(A...)>(self.function);
  if constexpr (std::is_void_v<R>)
    std::apply(function, values);
  else
    note(std::apply(function, values));
#endif
  outcome.intact = balanced && arguments.rest_intact();
  outcome.changed = !refused && arguments.memory_changed();
  if (!refused) arguments.digest_memory(outcome.digest);
  return outcome;
}

template <class R, class... A>
Export describe(const char* name, const char* first_name, R(TESSARO_CALL* function)(A...)) {
  Export row;
  row.name = name;
  row.first_name = first_name;
  row.function = reinterpret_cast<void*>(function);
  if constexpr (!((std::is_pointer_v<A> && std::is_function_v<std::remove_pointer_t<A>>) || ...)) {
    row.call = call<R, A...>;
    row.comparable = true;
    row.images = (is_image<A> || ...) && !(is_raw<A> || ...);
    const std::string types = {letter_of<A>()...};
    row.writes = types.find_first_of("PS") != types.npos || (std::is_same_v<A, ImageRecord*> || ...);
    row.letters = letters_for(name, types);
  }
  return row;
}

// Every export, in the order of the table.
std::vector<Export>& exports();

}  // namespace host
