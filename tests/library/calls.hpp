// Calls any export with seeded arguments, through the built library as a host would, as its description says: memory
// of the stated size, between pages that nobody may touch.
#pragma once

#include <cstdint>
#include <cstring>
#include <limits>
#include <string>
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
  int64_t one_of(const std::vector<int64_t>& values) { return values[word() % values.size()]; }

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
  extreme    // anything that 32 bits hold, but for what is trusted
};

// An argument: a number, or memory.
struct Value {
  int64_t number = 0;
  double real = 0;
  void* pointer = nullptr;
};

// The arguments of a call, as the description's formulas see them.
class Values : public std::vector<Value> {
 public:
  int64_t operator[](size_t place) const { return at(place).number; }
  int64_t width(size_t place) const { return dims(place).width; }
  int64_t height(size_t place) const { return dims(place).height; }
  int64_t pitch(size_t place) const { return dims(place).pitch; }
  int64_t format(size_t place) const { return static_cast<const WaveBuffer*>(at(place).pointer)->format; }
  int64_t count(size_t place) const { return static_cast<const WaveBuffer*>(at(place).pointer)->count; }

 private:
  ImageDims dims(size_t place) const {
    const auto* record = static_cast<const uint8_t*>(at(place).pointer);
    ImageRecord image;
    ImageDims found;
    std::memcpy(&image, record, sizeof image);
    std::memcpy(&found, record + image.dims_offset, sizeof found);
    return found;
  }
};
using Formula = int64_t (*)(const Values& of);

// The end of a range.
struct Limit {
  Limit(double number) : number_(number) {}
  Limit(Formula formula) : formula_(formula) {}
  double of(const Values& values) const { return formula_ ? static_cast<double>(formula_(values)) : number_; }

 private:
  double number_ = 0;
  Formula formula_ = nullptr;
};

enum class Kind { number, image, sound, memory, address, function, handle };

// A parameter as api/tessaro.json describes it.
struct Parameter {
  const char* name = "";
  const char* type = "";
  Kind kind = Kind::number;
  bool in = false, out = false;
  Formula size = nullptr, offset = nullptr;  // of memory, in bytes
  const char* unit = "";                     // of numbers
  bool trusted = false;
  Limit low = -std::numeric_limits<double>::infinity(), high = std::numeric_limits<double>::infinity();
  std::vector<int64_t> constants = {};  // of its enumeration
};

struct Case {
  int64_t value;
  bool untouched;  // no memory changes with it
};
struct Results {
  const char* type = "";
  bool is_value = false;  // of `value`, or one of the cases
  std::vector<Case> cases = {};
  Parameter value = {};
};

// What came of a call.
struct Outcome {
  int64_t result = 0;
  uint64_t digest = 0xCBF29CE484222325u;  // of the result and of all memory
  bool changed = false;                   // memory
  std::string wrong = {};                 // what it did that its description does not say
};

// One export. Calls with the same seed are the same call.
struct Export {
  std::string name;
  std::string first_name;  // of the same function
  struct Caller {
    void* function;
    bool is_void;
    // Calls the function. Leaves in `unbalanced` how many bytes too few it took off the stack.
    int64_t (*call)(void* function, const Values& values, uint64_t seed, int32_t& unbalanced);
  } caller;
  std::vector<Parameter> parameters;
  Results results;
  bool callable = true;       // no window, and no function of the host's
  bool comparable = true;     // the outcome depends on nothing but the arguments
  bool writes = false;        // it may change memory
  std::string letters = {};   // see `drawn`
  Export* encoder = nullptr;  // whose streams a decoder reads
};

Outcome call(const Export& self, uint64_t seed, Range range);

// Every export, in the order of the description.
std::vector<Export>& exports();

}  // namespace host
