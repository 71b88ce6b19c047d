// Draws the arguments of a call and the memory they point to, and sees afterwards what the call did to it.
#pragma once

#include <deque>

#include "library/calls.hpp"
#include "library/guarded.hpp"

namespace host {

// What a coder is given: pixels, and the stream that their format's encoder makes of them.
struct Coded {
  std::vector<uint8_t> source, stream;
};

// What the description does not tell: which values reach the work.
//   w  a size                   s  0 to 3              p  a power of two
//   f  frames, all of which are worked through, wherever they lie
//   S  a source of n bytes      D  its stream          n  length of the source   N  length of its stream
//   O  an image of one colour with strays              o  that colour
//   M  a map                    W  256 weights         E  memory like the last, but for a byte
//   R  an image that is also written between its rows: its description tells of other distances than the pitch
// and how much memory an address needs:
//   2  a halfword, 4 a word at the index               D  as above, and more for those who ask for too much
// A row is for the functions and the parameters that it names, a star standing for anything. The first counts.
struct Drawn {
  const char* functions;
  const char* parameters;
  char letter;
};
inline constexpr Drawn drawn[] = {
    {"*Encoder*", "source", 'S'},
    {"*Encoder*", "length", 'n'},
    {"*Decoder*", "source stream", 'D'},
    {"*Decoder*", "stream_size", 'N'},
    {"*Decoder*", "count size length", 'n'},
    {"GetWORD GetInt SetWORD SetInt", "base", '2'},
    {"GetDWORD GetLong SetDWORD SetLong", "base", '4'},
    {"dllComp", "b", 'E'},
    {"BBIMap*", "map", 'M'},
    {"BBIDotThick BBILineThick", "image", 'O'},
    {"BBIDotThick BBILineThick", "colour", 'o'},
    {"BBILinearRender", "table", 'W'},
    {"BBILinearBlt BBILinearRender BBIFlipLineY", "dst image", 'R'},
    {"BBIBltHalfSize", "dx dy cx cy", 's'},
    {"waveBltAddNoise waveBltSin", "dst_start src_start count", 'f'},
    {"wavefft*", "n", 'p'},
    {"*", "cx cy dw dh sw sh tile_cx tile_cy thickness length", 'w'},
};
std::string letters_for(const Export& self);

// Memory that later calls use again.
struct Region {
  Guarded memory;
  std::vector<uint8_t> before = {};  // what it holds when the call begins
};

class Arguments {
 public:
  // With `other`, memory that is only written holds something else before the call.
  Arguments(const Export& self, uint64_t seed, Range range, const Coded& coded, bool other);

  const Values& values() const { return values_; }
  const auto& blocks() const { return blocks_; }
  bool changed() const;
  // What the call wrote that it may not write; empty if nothing.
  std::string harm() const;
  void digest_memory(uint64_t& into) const;
  // Memory that came out differently of a first call, from which this one differs in `other` alone.
  std::string difference(const Arguments& first) const;
  void keep_results();

 private:
  struct Block {
    const Parameter* parameter;
    Region* region;
    uint8_t* data;
    size_t size;
    bool written = false;
    size_t rows_at = 0, rows = 0, row = 0, step = 0;  // of an image: only its pixels are written
    std::vector<uint8_t> after = {};
    const uint8_t* before() const { return region->before.data(); }
    bool may_change(size_t at) const {
      return written && (row == 0 || (at - rows_at < rows * step && (at - rows_at) % step < row));
    }
  };

  void number(const Parameter& parameter, Value& value);
  double range_number(const Parameter& parameter);
  uint32_t integer(const Parameter& parameter);
  double real(const Parameter& parameter);
  void image(const Parameter& parameter, Value& value);
  void sound(const Parameter& parameter, Value& value);
  void memory(const Parameter& parameter, Value& value);
  Block& block(const Parameter& parameter, size_t size);
  void fill_words(uint8_t* at, size_t bytes);
  void fill_reals(uint8_t* at, size_t bytes, size_t count);

  const Export& self_;
  Random random_;
  Range range_;
  const Coded& coded_;
  bool other_;
  char letter_ = '.';
  int32_t width_, height_;
  uint32_t colours_[4];
  Values values_;
  size_t last_image_ = SIZE_MAX;
  Value last_record_ = {};
  std::deque<Block> blocks_;
  std::deque<WaveBuffer> sounds_;
  std::deque<WaveBuffer> sounds_before_;
};

// A format's pixels and stream. Each has pixels of its own, or all decoders would give back the same.
Coded code(const Export& self, uint64_t seed);

}  // namespace host
