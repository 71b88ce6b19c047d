#include <algorithm>
#include <limits>
#include <set>
#include <tuple>
#include <type_traits>
#include <utility>

#include "library/arguments.hpp"

namespace host {

namespace formula {  // the calls that the description's expressions know

[[maybe_unused]] constexpr int64_t min(int64_t a, int64_t b) { return a < b ? a : b; }
[[maybe_unused]] constexpr int64_t max(int64_t a, int64_t b) { return a < b ? b : a; }
[[maybe_unused]] constexpr int64_t abs(int64_t a) { return a < 0 ? -a : a; }
[[maybe_unused]] constexpr int64_t ceil_div(int64_t a, int64_t b) { return (a + b - 1) / b; }
[[maybe_unused]] constexpr int64_t bytes_of(int64_t format) {
  switch (format) {
    case TESSARO_FORMAT_8888:
      return 4;
    case TESSARO_FORMAT_888:
      return 3;
    case TESSARO_FORMAT_565:
    case TESSARO_FORMAT_555:
    case TESSARO_FORMAT_1555:
    case TESSARO_FORMAT_4444:
      return 2;
    default:
      return 0;
  }
}

}  // namespace formula

namespace {

#if defined(__i386__)
// Calls a callee-cleans function with the stack at any multiple of 4, as 32-bit hosts do. Leaves in `unbalanced`
// how many bytes too few the function removed.
uint32_t call_at(void* function, const uint32_t* arguments, uint32_t count, uint32_t misalignment,
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

template <class T>
T to(const Value& value) {
  if constexpr (std::is_pointer_v<T>)
    return reinterpret_cast<T>(value.pointer);
  else if constexpr (std::is_floating_point_v<T>)
    return static_cast<T>(value.real);
  else
    return static_cast<T>(value.number);
}

template <class R, class... A>
int64_t call_with(void* function, const Values& values, [[maybe_unused]] uint64_t seed, int32_t& unbalanced) {
  const std::tuple<A...> arguments = [&]<size_t... I>(std::index_sequence<I...>) {
    return std::tuple<A...>{to<A>(values.at(I))...};
  }
  (std::index_sequence_for<A...>{});
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
      arguments);
  const uint32_t result =
      call_at(function, words.data(), static_cast<uint32_t>(words.size()), seed % 4 * 4, unbalanced);
  if constexpr (std::is_void_v<R>)
    return 0;
  else
    return static_cast<int64_t>(static_cast<R>(result));
#else
  unbalanced = 0;
  const auto typed = reinterpret_cast<R(TESSARO_CALL*)(A...)>(function);
  if constexpr (std::is_void_v<R>)
    return std::apply(typed, arguments), 0;
  else
    return static_cast<int64_t>(std::apply(typed, arguments));
#endif
}

template <class R, class... A>
Export::Caller caller(R(TESSARO_CALL* function)(A...)) {
  return {reinterpret_cast<void*>(function), std::is_void_v<R>, call_with<R, A...>};
}

Export* find(std::vector<Export>& all, const std::string& name) {
  const auto found =
      std::find_if(all.begin(), all.end(), [&](const Export& row) { return row.name == name; });
  return found == all.end() ? nullptr : &*found;
}

// inabeDecoderExSafe reads what inabeEncoder makes, ib18DecoderExSafe what ib18EncoderEx makes.
Export* encoder_for(std::vector<Export>& all, std::string name) {
  const size_t at = name.find("Decoder");
  if (at == name.npos) return nullptr;
  name.replace(at, 7, "Encoder");
  for (const char* end : {"Safe", "Ex"}) {
    if (Export* row = find(all, name)) return row;
    if (name.ends_with(end)) name.resize(name.size() - std::strlen(end));
  }
  return find(all, name);
}

std::vector<Export> read_description() {
  struct Row {
    const char *name, *first_name;
    Export::Caller caller;
    std::vector<Parameter> parameters;
    Results results;
  };
#define FORMULA(...) +[](const Values& of) -> int64_t { return static_cast<void>(of), __VA_ARGS__; }
  const Row rows[] = {
#include "calls.inc"
  };
#undef FORMULA
  // They depend on the processor, on the clock that seeds the generator, on threads, or on the system's picture loader.
  static const std::set<std::string> varying = {"GetCpuID",   "GetRandom",   "waveBltAddNoise",
                                                "ThreadKill", "DecodeImage", "DecodeImageHead"};
  std::vector<Export> all;
  for (const Row& row : rows) {
    Export one{row.name, row.first_name, row.caller, row.parameters, row.results};
    for (const Parameter& parameter : one.parameters) {
      one.callable &= parameter.kind != Kind::function && parameter.kind != Kind::handle;
      one.writes |= parameter.out;
    }
    one.comparable = one.callable && !varying.contains(one.name);
    one.letters = letters_for(one);
    all.push_back(std::move(one));
  }
  for (Export& row : all) row.encoder = encoder_for(all, row.name);
  return all;
}

// Pixels in runs, as coders like them: on the average once in `run` the next one is near the last one, or of any grey or
// colour.
std::vector<uint8_t> pixels_in_runs(Random& random, size_t bytes, uint32_t run) {
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

}  // namespace

Coded code(const Export& self, uint64_t seed) {
  if (self.letters.find_first_of("SD") == std::string::npos) return {};
  uint64_t format = seed;
  if (self.encoder != nullptr) digest(format, self.encoder->name.data(), self.encoder->name.size());
  Random random(format);
  if (self.encoder == nullptr) {  // an encoder: few bytes and noise too, which no format makes shorter
    const int32_t length = random.one_in(6) ? random.between(0, 64) : random.between(520, 1500);
    const uint32_t run = static_cast<uint32_t>(random.between(1, 40));
    std::vector<uint8_t> source = pixels_in_runs(random, static_cast<size_t>(length), run);
    if (random.one_in(3))
      for (uint8_t& byte : source) byte = static_cast<uint8_t>(random.word() % 255 + 1);
    return {source, {}};
  }
  // At least what the formats ask for; a decoder may be given only what was coded to the end, so pixels are repeated
  // until they are.
  const size_t length = static_cast<size_t>(random.between(520, 1500));
  for (uint32_t run = static_cast<uint32_t>(random.between(1, 12));; run *= 2) {
    Coded coded{pixels_in_runs(random, length, run), {}};
    if (random.one_in(4)) std::fill(coded.source.end() - 100, coded.source.end(), uint8_t{0});
    coded.stream.resize(4 * length);
    uint32_t written = 0;
    using Encoder = int32_t(TESSARO_CALL*)(const void*, void*, uint32_t, uint32_t*);
    const auto encode = reinterpret_cast<Encoder>(self.encoder->caller.function);
    if (encode(coded.source.data(), coded.stream.data(), static_cast<uint32_t>(length), &written) != 0)
      continue;
    coded.stream.resize(written);
    return coded;
  }
}

namespace {

// Why a result is none of those that are listed; empty if it is.
std::string result_harm(const Export& self, const Values& values, int64_t result, bool changed) {
  if (self.caller.is_void) return "";
  for (const Case& one : self.results.cases)
    if (one.value == result)
      return one.untouched && changed ? "changed memory in spite of the result " + std::to_string(result)
                                      : "";
  const Parameter& value = self.results.value;
  const auto& constants = value.constants;
  const double number = static_cast<double>(result);
  const bool is_one =
      self.results.is_value && number >= value.low.of(values) && number <= value.high.of(values) &&
      (constants.empty() || std::find(constants.begin(), constants.end(), result) != constants.end());
  return is_one ? "" : "gave the result " + std::to_string(result) + ", which is not described";
}

}  // namespace

Outcome call(const Export& self, uint64_t seed, Range range) {
  const Coded coded = code(self, seed);
  Outcome outcome;
  const auto run = [&](const Arguments& arguments) {
    int32_t unbalanced;
    const int64_t result = self.caller.call(self.caller.function, arguments.values(), seed, unbalanced);
    if (unbalanced != 0) outcome.wrong = "left the stack unbalanced";
    return result;
  };
  Arguments arguments(self, seed, range, coded, false);
  outcome.result = run(arguments);
  // A decoder leaves unspecified bytes behind when its stream is cut.
  const bool refused = self.encoder != nullptr && outcome.result != 0;
  const bool changed = arguments.changed();
  outcome.changed = !refused && changed;
  digest(outcome.digest, &outcome.result, sizeof outcome.result);
  if (!refused) arguments.digest_memory(outcome.digest);
  const auto note = [&](const std::string& wrong) {
    if (outcome.wrong.empty()) outcome.wrong = wrong;
  };
  note(arguments.harm());
  note(result_harm(self, arguments.values(), outcome.result, changed));
  if (self.comparable && self.writes && seed % 4 == 0 && outcome.wrong.empty() && !refused) {
    arguments.keep_results();
    const Arguments again(self, seed, range, coded, true);
    if (run(again) != outcome.result) note("gives a result that depends on memory that is only written");
    note(again.difference(arguments));
  }
  return outcome;
}

std::vector<Export>& exports() {
  static std::vector<Export> all = read_description();
  return all;
}

}  // namespace host
