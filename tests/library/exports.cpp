#include <algorithm>
#include <iterator>

#include "library/calls.hpp"

namespace host {

namespace {

// What a decoder is to read: data of the same seed as encoded by its partner.
template <class Encoder>
std::vector<uint8_t> encode(Encoder encoder, uint64_t seed) {
  Random random(seed + 1000);
  std::vector<uint32_t> source(64), stream(1024);
  for (size_t i = 0; i < source.size(); ++i)
    source[i] = i > 0 && random.one_in(2) ? source[i - 1] : random.word();
  uint32_t written = 0;
  encoder(source.data(), stream.data(), 4 * 64, &written);
  const auto* bytes = reinterpret_cast<const uint8_t*>(stream.data());
  return {bytes, bytes + std::min<size_t>(written, 4096)};
}

Export* find(std::vector<Export>& all, const std::string& name) {
  const auto found =
      std::find_if(all.begin(), all.end(), [&](const Export& row) { return row.name == name; });
  return found == all.end() ? nullptr : &*found;
}

std::vector<uint8_t> partner_encodes(const Export& decoder, uint64_t seed) {
  std::string name = decoder.name.substr(0, decoder.name.size() - (decoder.name.ends_with("Safe") ? 4 : 0));
  name.replace(name.find("Decoder"), 7, "Encoder");
  const Export* partner = find(exports(), name);
  if (partner == nullptr) return {};
  using Encoder = int32_t(TESSARO_CALL*)(const void*, void*, uint32_t, uint32_t*);
  return encode(reinterpret_cast<Encoder>(partner->function), seed);
}

std::vector<Export> describe_all() {
  std::vector<Export> all = {
#define EXPORT(Name) describe(#Name, Name),
#include "exports.inc"
#undef EXPORT
  };
  // They depend on the processor, on the clock that seeds the generator, on the system's windows and threads, or on its
  // picture loader.
  for (const char* name : {"GetCpuID", "GetRandom", "waveBltAddNoise", "ThreadBegin", "ThreadKill",
                           "WindowProcLoad", "WindowProcUnload", "DecodeImage", "DecodeImageHead"})
    if (Export* row = find(all, name)) row->comparable = false;
  for (Export& row : all)
    if (row.name.find("Decoder") != std::string::npos) row.feed = partner_encodes;
  return all;
}

}  // namespace

std::vector<Export>& exports() {
  static std::vector<Export> all = describe_all();
  return all;
}

}  // namespace host
