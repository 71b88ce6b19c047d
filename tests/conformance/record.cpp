// Writes calls of the library with the memory they were given and what came of it: the set that every language replays.
// README.md tells the form.
#include <algorithm>
#include <array>
#include <cstdio>
#include <set>

#include "library/arguments.hpp"

namespace {

constexpr uint64_t seeds = 64;   // that are looked at for a function
constexpr size_t small = 1500;   // bytes of a call that is not too large
constexpr size_t filled = 4096;  // of memory that is larger than 64 KiB, the bytes that are not 0
constexpr size_t of_work = 3;    // calls that did something,
constexpr size_t of_rest = 1;    // and that did not

// Memory as the set has it: from the address that an argument points to, if that lies before it.
struct Memory {
  uint8_t* data;
  size_t size, zeros;  // those stand before the data, in the set only
  std::vector<uint8_t> before;
};

std::string hex(size_t zeros, const uint8_t* data, size_t size) {
  std::string text;
  char token[32];
  const auto at = [&](size_t i) { return i < zeros ? 0 : data[i - zeros]; };
  bool open = false;
  for (size_t i = 0, run; i < zeros + size; i += run) {
    for (run = 1; i + run < zeros + size && at(i + run) == at(i);) ++run;
    const bool folded = run >= 8;
    if (!folded) run = 1;
    if (folded || !open) text += ' ';
    std::snprintf(token, sizeof token, folded ? "%02x*%zu" : "%02x", at(i), run);
    text += token;
    open = !folded;
  }
  return text;
}

class Recorded {
 public:
  // A damaged stream has some bytes that its encoder did not write.
  Recorded(const host::Export& self, uint64_t seed, bool damaged)
      : self_(self),
        seed_(seed),
        coded_(host::code(self, seed)),
        arguments_(self, seed, host::Range::ordinary, coded_, false) {
    for (const auto& block : arguments_.blocks()) {
      if (block.size > 65536) std::memset(block.data + filled, 0, block.size - filled);
      memory_.push_back({block.data, block.size, 0, {}});
    }
    host::Random random(seed);
    for (size_t i = 0; i < self.parameters.size(); ++i) {
      const host::Parameter& parameter = self.parameters[i];
      if (!is_memory(parameter)) continue;
      Memory& memory = memory_[block_of(i)];
      const ptrdiff_t ahead = memory.data - pointer(i);
      if (parameter.kind == host::Kind::address && ahead > 0) memory.zeros = static_cast<size_t>(ahead);
      // One that is not told where its stream ends reads behind it, which says nothing.
      if (parameter.kind == host::Kind::address && self.letters[i] == 'D')
        memory.size = coded_.stream.size() + 512;
      if (damaged && self.letters[i] == 'D' && memory.size > 0)
        for (int turn = 0; turn < 3; ++turn)
          memory.data[random.word() % memory.size] ^= static_cast<uint8_t>(1 << random.word() % 8);
    }
    for (Memory& memory : memory_) memory.before.assign(memory.data, memory.data + memory.size);
  }

  size_t size() const {
    size_t all = 0;
    for (const Memory& memory : memory_) all += memory.size + memory.zeros;
    return all;
  }
  // Whether every argument lies in its memory.
  bool plain() const {
    for (size_t i = 0; i < self_.parameters.size(); ++i)
      if (self_.parameters[i].kind == host::Kind::address && pointer(i) > memory_[block_of(i)].data)
        return false;
    return true;
  }
  // Whether memory begins before the address of an argument.
  bool points_behind() const {
    for (size_t i = 0; i < self_.parameters.size(); ++i)
      if (self_.parameters[i].kind == host::Kind::memory && pointer(i) > memory_[block_of(i)].data)
        return true;
    return false;
  }
  void call() {
    int32_t unbalanced;
    result_ = self_.caller.call(self_.caller.function, arguments_.values(), seed_, unbalanced);
  }
  int64_t result() const { return result_; }
  bool refused() const { return self_.encoder != nullptr && result_ != 0; }
  bool changed() const {
    return std::any_of(memory_.begin(), memory_.end(), [](const Memory& one) {
      return !std::equal(one.before.begin(), one.before.end(), one.data);
    });
  }

  void write(std::FILE* out) const {
    std::fprintf(out, "\ncall %s\n", self_.name.c_str());
    for (size_t b = 0; b < memory_.size(); ++b)
      std::fprintf(out, "block %zu%s\n", b,
                   hex(memory_[b].zeros, memory_[b].before.data(), memory_[b].size).c_str());
    for (size_t i = 0; i < self_.parameters.size(); ++i) write_argument(out, i);
    std::fprintf(out, "result %s %lld\n", self_.results.type, static_cast<long long>(result_));
    for (size_t b = 0; b < memory_.size(); ++b) {
      const Memory& one = memory_[b];
      if (std::equal(one.before.begin(), one.before.end(), one.data)) continue;
      if (refused())
        std::fprintf(out, "any %zu\n", b);
      else
        std::fprintf(out, "after %zu%s\n", b, hex(one.zeros, one.data, one.size).c_str());
    }
  }

 private:
  static bool is_memory(const host::Parameter& parameter) {
    return parameter.kind == host::Kind::memory || parameter.kind == host::Kind::address;
  }
  uint8_t* pointer(size_t i) const { return static_cast<uint8_t*>(arguments_.values().at(i).pointer); }
  const WaveBuffer& sound(size_t i) const { return *reinterpret_cast<WaveBuffer*>(pointer(i)); }

  // Images may share a block; everything else has its own.
  size_t block_of(size_t i) const {
    const host::Parameter& parameter = self_.parameters[i];
    for (size_t b = 0; b < memory_.size(); ++b) {
      const auto& block = arguments_.blocks()[b];
      if (parameter.kind == host::Kind::image
              ? pointer(i) >= block.data && pointer(i) < block.data + block.size
              : block.parameter == &parameter)
        return b;
    }
    return memory_.size();
  }

  void write_argument(std::FILE* out, size_t i) const {
    const host::Parameter& parameter = self_.parameters[i];
    const size_t b = parameter.kind == host::Kind::number ? 0 : block_of(i);
    if (parameter.kind == host::Kind::number) {
      const host::Value& value = arguments_.values().at(i);
      if (parameter.type == std::string("float")) {
        const float real = static_cast<float>(value.real);
        uint32_t bits;
        std::memcpy(&bits, &real, sizeof bits);
        std::fprintf(out, "float %08x\n", static_cast<unsigned>(bits));
      } else if (parameter.type == std::string("double")) {
        uint64_t bits;
        std::memcpy(&bits, &value.real, sizeof bits);
        std::fprintf(out, "double %016llx\n", static_cast<unsigned long long>(bits));
      } else {
        std::fprintf(out, "number %lld\n", static_cast<long long>(value.number));
      }
    } else if (parameter.kind == host::Kind::sound) {
      std::fprintf(out, "sound %zu %d %d\n", b, sound(i).format, sound(i).count);
    } else {
      const char* kind = parameter.kind == host::Kind::image ? "image" : "memory";
      std::fprintf(
          out, "%s %zu %td\n", kind, b,
          memory_[b].size == 0 ? 0 : pointer(i) - memory_[b].data + static_cast<ptrdiff_t>(memory_[b].zeros));
    }
  }

  const host::Export& self_;
  uint64_t seed_;
  host::Coded coded_;
  host::Arguments arguments_;
  std::vector<Memory> memory_;
  int64_t result_ = 0;
};

// The first calls that did something and the first that did not, of large ones only where small ones do not reach the work.
size_t record(const host::Export& self, std::FILE* out) {
  std::vector<std::pair<size_t, uint64_t>> order;
  for (uint64_t seed = 0; seed < seeds; ++seed) order.emplace_back(Recorded(self, seed, false).size(), seed);
  std::sort(order.begin(), order.end(), [](const auto& a, const auto& b) {
    return std::max(a, {small, a.second}) < std::max(b, {small, b.second});
  });
  std::set<int64_t> results;
  size_t work = 0, rest = 0;
  const bool decoder = self.letters.ends_with("Nn");
  // One first whose memory does not begin at its pointer, where there is such a thing.
  for (const bool behind : {true, false})
    for (const auto& [size, seed] : order) {
      Recorded one(self, seed, decoder && work == 1);
      if (!one.plain() || one.points_behind() != behind) continue;
      if (work > 0 && (behind || (size > small && size > 4 * order[0].first))) continue;
      one.call();
      const bool worked = self.writes ? one.changed() && !one.refused() : results.insert(one.result()).second;
      size_t& count = worked ? work : rest;
      if (count == (worked ? of_work : of_rest)) continue;
      ++count;
      one.write(out);
      if (work + rest == of_work + of_rest) return work;
    }
  return work;
}

}  // namespace

int main(int argc, char** argv) {
  std::FILE* const out = argc == 2 ? std::fopen(argv[1], "wb") : nullptr;
  if (out == nullptr) return std::fprintf(stderr, "record FILE\n"), 2;
  std::fprintf(out, "tessaro calls 1\n");
  int failed = 0;
  for (const host::Export& self : host::exports())
    if (self.comparable && record(self, out) == 0 && self.name != "BBIAntiAreas") {
      std::fprintf(stderr, "%s: no call of it does anything\n", self.name.c_str());
      failed = 1;
    }
  return std::fclose(out) == 0 ? failed : 1;
}
