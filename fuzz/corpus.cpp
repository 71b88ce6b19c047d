// Makes the seeds of the fuzz programs: corpus FOLDER PICTURE...
// Streams of every encoder, checked to decode, and pictures; of each of them also damaged ones.
#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <string>
#include <vector>

#include "tessaro/codec.h"

namespace {

using Bytes = std::vector<uint8_t>;
using Encode = int32_t(TESSARO_CALL*)(const void*, void*, uint32_t length, uint32_t* written);
using Decode = int32_t(TESSARO_CALL*)(const void*, void*, uint32_t stream_size, uint32_t count);

// Every encoder takes so many bytes; a multiple of four, which all of them give back whole.
constexpr uint32_t length = 600;
// Shorter ones are no pictures.
constexpr size_t least = 64;

std::filesystem::path folder;
std::minstd_rand generator;  // the same on every machine
uint8_t any() { return static_cast<uint8_t>(generator() >> 8); }

// Bytes and pixels that wander, a cycle with exceptions, flat areas, and stretches that keep all, five, three or none of the bits of the byte before.
const char* const kinds[] = {"wander", "pixels", "cycle", "flat", "stretches"};
Bytes data_of(const std::string& kind) {
  generator.seed(1);
  Bytes data(length, 128);
  for (size_t i = 4; i < length; ++i) {
    if (kind == "wander") data[i] = static_cast<uint8_t>(data[i - 1] + any() % 3 - 1);
    if (kind == "pixels") data[i] = i % 4 == 3 ? 255 : static_cast<uint8_t>(data[i - 4] + any() % 7 - 3);
    if (kind == "cycle") data[i] = any() % 16 == 0 ? any() : static_cast<uint8_t>(5 * (data[i - 1] & 7) + 1);
    if (kind == "flat") data[i] = i % 60 == 0 ? any() : data[i - 1];
    const int kept[] = {0xFF, 0xF8, 0xE0, 0};
    const int mask = kept[i / 50 % 4];
    if (kind == "stretches") data[i] = static_cast<uint8_t>((data[i - 1] & mask) | (any() & ~mask));
  }
  return data;
}

void write(const std::string& target, const std::string& name, const Bytes& bytes) {
  std::filesystem::create_directories(folder / target);
  std::ofstream file(folder / target / name, std::ios::binary);
  file.write(reinterpret_cast<const char*>(bytes.data()), static_cast<std::streamsize>(bytes.size()));
  if (!file.flush()) std::exit((std::perror(name.c_str()), 1));
}

// `fixed` bytes at the start stay.
void write_damaged(const std::string& target, const std::string& name, const Bytes& bytes, size_t fixed) {
  const size_t rest = std::min(bytes.size() - 1, std::max<size_t>(bytes.size() * 2 / 3, least));
  write(target, "cut_" + name, Bytes(bytes.begin(), bytes.begin() + static_cast<ptrdiff_t>(rest)));
  Bytes changed = bytes;
  for (int i = 0; i < 6; ++i)
    changed[fixed + generator() % (bytes.size() - fixed)] ^= static_cast<uint8_t>(1 << any() % 8);
  write(target, "changed_" + name, changed);
}

void write_streams(const std::string& target, Encode encode, Decode decode, bool prepared = false) {
  bool first = true;
  for (const char* kind : kinds) {
    const Bytes data = data_of(kind);
    Bytes input = data, stream(2 * length), again(length);
    uint32_t written;
    if (prepared) {  // as for inabeDecoderEx
      ichshift4Encoder(data.data(), stream.data(), length, &written);
      iwave11Encoder(stream.data(), input.data(), length, &written);
    }
    if (encode(input.data(), stream.data(), length, &written) != 0) continue;  // would not become shorter
    if (decode(stream.data(), again.data(), written, length) != 0 || again != data) {
      std::fprintf(stderr, "%s does not give %s back\n", target.c_str(), kind);
      std::exit(1);
    }
    Bytes seed = {length & 255, length >> 8};  // what the programs take for the count
    seed.insert(seed.end(), stream.begin(), stream.begin() + written);
    write(target, kind, seed);
    if (first) write_damaged(target, kind, seed, 2);
    first = false;
  }
  if (first) {
    std::fprintf(stderr, "%s shortens none of the data\n", target.c_str());
    std::exit(1);
  }
}

}  // namespace

int main(int argc, char** argv) {
  if (argc < 3) return 2;
  folder = argv[1];
  write_streams("i", iEncoder, iDecoderSafe);
  write_streams("io", ioEncoder, ioDecoderSafe);
  write_streams("iabr", iabrEncoder, iabrDecoderSafe);
  write_streams("ica", icaEncoder, icaDecoderSafe);
  write_streams("imist", imistEncoder, imistDecoderSafe);
  write_streams("inabe", inabeEncoder, inabeDecoderSafe);
  write_streams("inabeEx", inabeEncoder, inabeDecoderExSafe, true);
  write_streams("inda", indaEncoder, indaDecoderSafe);
  write_streams("ib18", ib18Encoder, ib18DecoderSafe);
  write_streams("ib18Ex", ib18EncoderEx, ib18DecoderExSafe);
  write_streams("c2f", c2fEncoder, c2fDecoder);
  for (int i = 2; i < argc; ++i) {
    const std::filesystem::path path = argv[i];
    std::ifstream file(path, std::ios::binary);
    const Bytes bytes((std::istreambuf_iterator<char>(file)), std::istreambuf_iterator<char>());
    if (bytes.size() >= least && bytes.size() <= 1500)  // small ones will do
      write_damaged("picture", path.filename().string(), bytes, 16);
  }
}
