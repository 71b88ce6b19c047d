#include <algorithm>
#include <cstring>

#include "library/calls.hpp"

namespace host {

namespace {

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

std::vector<Export> describe_all() {
  std::vector<Export> all = {
#define EXPORT(Name, First) describe(#Name, #First, Name),
#include "exports.inc"
#undef EXPORT
  };
  // They depend on the processor, on the clock that seeds the generator, on the system's windows and threads, or on its
  // picture loader.
  for (const char* name : {"GetCpuID", "GetRandom", "waveBltAddNoise", "ThreadBegin", "ThreadKill",
                           "WindowProcLoad", "WindowProcUnload", "DecodeImage", "DecodeImageHead"})
    if (Export* row = find(all, name)) row->comparable = false;
  for (Export& row : all) row.encoder = encoder_for(all, row.name);
  return all;
}

}  // namespace

Coded code(const Export& self, uint64_t seed) {
  if (self.letters.find_first_of("SD") == std::string::npos) return {};
  uint64_t format = seed;
  if (self.encoder != nullptr) digest(format, self.encoder->name.data(), self.encoder->name.size());
  Random random(format);
  // At least what the formats ask for; a decoder may be given only what was coded to the end, so pixels are repeated until
  // they are.
  const size_t length = static_cast<size_t>(random.between(520, 1500));
  for (uint32_t run = static_cast<uint32_t>(random.between(1, 12));; run *= 2) {
    Coded coded{pixels_in_runs(random, length, run), {}};
    if (self.encoder == nullptr) return coded;
    coded.stream.resize(4 * length);
    uint32_t written = 0;
    using Encoder = int32_t(TESSARO_CALL*)(const void*, void*, uint32_t, uint32_t*);
    const auto encode = reinterpret_cast<Encoder>(self.encoder->function);
    if (encode(coded.source.data(), coded.stream.data(), static_cast<uint32_t>(length), &written) != 0)
      continue;
    coded.stream.resize(written);
    return coded;
  }
}

std::vector<Export>& exports() {
  static std::vector<Export> all = describe_all();
  return all;
}

}  // namespace host
