#include "library/arguments.hpp"

#include <algorithm>
#include <sstream>

namespace host {

namespace {

constexpr uint8_t fence = 0xA5;
constexpr uint8_t other_bits = 0x5A;
constexpr size_t fenced = 512;  // bytes on the side that no guard is next to

// By the place of a block in its call.
Region* region(size_t place, size_t bytes) {
  static std::deque<Region> all;
  while (all.size() <= place) all.push_back({Guarded(65536)});
  Guarded& memory = all[place].memory;
  if (static_cast<size_t>(memory.end - memory.begin) < bytes) memory = Guarded(2 * bytes);
  return &all[place];
}

bool fits(const char* patterns, const std::string& name) {
  std::istringstream all(patterns);
  for (std::string one; all >> one;) {
    const bool open_front = one.front() == '*', open_back = one.back() == '*';
    if (one == "*" || one == name) return true;
    if (open_back) one.pop_back();
    if (open_front) one.erase(0, 1);
    if (open_front && open_back ? name.find(one) != name.npos : open_back && name.starts_with(one))
      return true;
  }
  return false;
}

}  // namespace

std::string letters_for(const Export& self) {
  std::string letters;
  for (const Parameter& parameter : self.parameters) {
    const auto* found = std::find_if(std::begin(drawn), std::end(drawn), [&](const Drawn& row) {
      return fits(row.functions, self.name) && fits(row.parameters, parameter.name);
    });
    letters += found == std::end(drawn) ? '.' : found->letter;
  }
  return letters;
}

Arguments::Arguments(const Export& self, uint64_t seed, Range range, const Coded& coded, bool other)
    : self_(self), random_(seed), range_(range), coded_(coded), other_(other) {
  width_ = random_.between(4, 48);
  height_ = random_.between(4, 32);
  for (uint32_t& colour : colours_) {
    static constexpr uint32_t plain[] = {0, 0xFF000000, 0xFFFFFFFF, 0xFF808080, 0x00FFFFFF};
    colour = random_.one_in(2) ? random_.one_of(plain) : random_.word();
  }
  // The sizes of memory depend on numbers and on images.
  const size_t count = self.parameters.size();
  values_.resize(count);
  for (const bool sized : {false, true})
    for (size_t i = 0; i < count; ++i) {
      const Parameter& parameter = self.parameters[i];
      letter_ = self.letters[i];
      if (sized != (parameter.kind == Kind::memory || parameter.kind == Kind::address)) continue;
      if (sized)
        memory(parameter, values_.at(i));
      else if (parameter.kind == Kind::image)
        image(parameter, values_.at(i));
      else if (parameter.kind == Kind::sound)
        sound(parameter, values_.at(i));
      else
        number(parameter, values_.at(i));
    }
  for (Block& one : blocks_) one.region->before.assign(one.data, one.data + one.size);
  sounds_before_ = sounds_;
}

bool Arguments::changed() const {
  return std::any_of(blocks_.begin(), blocks_.end(), [](const Block& one) {
    return one.size > 0 && std::memcmp(one.data, one.before(), one.size) != 0;
  });
}

std::string Arguments::harm() const {
  for (const Block& one : blocks_) {
    const std::string name = one.parameter->name;
    const Guarded& memory = one.region->memory;
    const uint8_t *low =
                      std::max(memory.begin, one.data - std::min<ptrdiff_t>(fenced, one.data - memory.begin)),
                  *high = one.data + one.size;
    for (const uint8_t* at = low; at < one.data; ++at)
      if (*at != fence) return "wrote before " + name;
    for (const uint8_t* at = high; at < high + std::min<ptrdiff_t>(fenced, memory.end - high); ++at)
      if (*at != fence) return "wrote behind " + name;
    if (one.size == 0 || std::memcmp(one.data, one.before(), one.size) == 0) continue;
    if (!one.written) return "wrote to " + name + ", which is only read";
    for (size_t i = 0; one.row > 0 && i < one.size; ++i)
      if (one.data[i] != one.before()[i] && !one.may_change(i)) return "wrote beside the pixels of " + name;
  }
  for (size_t i = 0; i < sounds_.size(); ++i)
    if (sounds_[i].format != sounds_before_[i].format || sounds_[i].count != sounds_before_[i].count ||
        sounds_[i].data != sounds_before_[i].data)
      return "wrote to the record of a sound";
  return "";
}

void Arguments::digest_memory(uint64_t& into) const {
  for (const Block& one : blocks_)
    if (one.written) digest(into, one.data, one.size);
}

void Arguments::keep_results() {
  for (Block& one : blocks_) one.after.assign(one.data, one.data + one.size);
}

std::string Arguments::difference(const Arguments& first) const {
  for (size_t b = 0; b < blocks_.size(); ++b) {
    const Block& one = blocks_[b];
    const std::vector<uint8_t>& after = first.blocks_[b].after;
    for (size_t i = 0; i < one.size; ++i) {
      if (one.data[i] == after[i]) continue;
      const bool untouched =
          !one.parameter->in && one.data[i] == one.before()[i] && after[i] == (one.before()[i] ^ other_bits);
      if (!untouched)
        return std::string("depends on what lay in memory that is only written, in ") + one.parameter->name;
    }
  }
  return "";
}

Arguments::Block& Arguments::block(const Parameter& parameter, size_t size) {
  Region* const here = region(blocks_.size(), size + fenced);
  const bool at_end = blocks_.size() % 2 == 0 ? random_.one_in(2) : !random_.one_in(2);
  uint8_t* const data = at_end ? here->memory.end - size : here->memory.begin;
  std::memset(at_end ? data - fenced : data + size, fence, fenced);
  blocks_.push_back({&parameter, here, data, size});
  blocks_.back().written = parameter.out;
  return blocks_.back();
}

void Arguments::image(const Parameter& parameter, Value& value) {
  if (last_image_ != SIZE_MAX && letter_ != 'M' && random_.one_in(6)) {
    blocks_[last_image_].written |= parameter.out;
    value = last_record_;
    return;
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
  // Behind the last pixel there is nothing, neither the rest of its row nor anything else of the host's; with the
  // record behind the pixels, the same holds for what lies before the first.
  const int32_t step = 4 * width + (random_.one_in(4) ? random_.between(0, 9) : 0);
  const int32_t rows = width > 0 && height > 0 ? step * (height - 1) + 4 * width : 0;
  const bool upwards = letter_ != 'M' && random_.one_in(4), behind = rows < 30000 && random_.one_in(2);
  const int32_t record_size = static_cast<int32_t>(sizeof(ImageRecord) + sizeof(ImageDims)),
                gap = random_.between(0, 5);
  Block& all = block(parameter, static_cast<size_t>(rows + gap + record_size));
  const int32_t pixels_at = behind ? 0 : record_size + gap, record_at = behind ? rows + gap : 0;
  const int32_t first_row = pixels_at - record_at + (upwards && rows > 0 ? step * (height - 1) : 0);
  std::memset(all.data, fence, all.size);
  const int16_t fields[5] = {4, static_cast<int16_t>(first_row), static_cast<int16_t>(width),
                             static_cast<int16_t>(height), static_cast<int16_t>(upwards ? -step : step)};
  std::memcpy(all.data + record_at, fields, sizeof fields);
  all.rows_at = static_cast<size_t>(pixels_at);
  all.rows = static_cast<size_t>(height);
  all.step = static_cast<size_t>(std::max(step, 1));
  all.row = letter_ == 'R' ? all.step : static_cast<size_t>(std::max(4 * width, 1));
  last_image_ = blocks_.size() - 1;
  value.pointer = all.data + record_at;
  last_record_ = value;

  const bool flat = letter_ == 'O' || random_.one_in(2);  // few colours, in patches
  const uint32_t run = letter_ == 'O' ? 5 : random_.one_in(4) ? 1u << 30 : 3;
  uint32_t colour = random_.one_of(colours_);
  static constexpr int32_t most = 16384;  // bytes that are drawn, and then repeated
  for (int32_t i = 0; i < std::min(rows, most); i += 4) {
    const uint32_t v = random_.word();
    if (v % run == 0)
      colour = colours_[v >> 30];
    else if (letter_ == 'O')
      colour = colours_[0];
    // Random bytes, and more than their share of those at which rules turn.
    const uint32_t noise = v % 4 == 0 ? v | 0xFF000000 : v % 4 == 1 ? v & 0x00FFFF00 : random_.word();
    const uint32_t pixel = flat ? colour : noise;
    std::memcpy(all.data + pixels_at + i, &pixel, static_cast<size_t>(std::min(4, rows - i)));
  }
  for (int32_t i = most; i < rows; i += most)
    std::memcpy(all.data + pixels_at + i, all.data + pixels_at,
                static_cast<size_t>(std::min(most, rows - i)));
}

void Arguments::sound(const Parameter& parameter, Value& value) {
  static constexpr int32_t all_bits[] = {8, 16, 24, 64}, rates[] = {8000, 22050, 44100, 96000};
  // One that must be larger than its record says is full of reals, as a rule.
  const int64_t least = parameter.size != nullptr ? parameter.size(values_) : 0;
  const bool full = least > 0 && !random_.one_in(4);
  const int32_t bits = full ? 64 : random_.one_of(all_bits), channels = full ? 2 : random_.between(1, 2);
  const int32_t count = full                ? static_cast<int32_t>(least / 16)
                        : random_.one_in(8) ? 0
                                            : random_.between(1, 90);
  const size_t stored = static_cast<size_t>(count * channels * (bits / 8));
  Block& all = block(parameter, std::max(stored, static_cast<size_t>(least)));
  if (least > 0) std::memset(all.data, 0, all.size);
  if (bits == 64)
    fill_reals(all.data, stored, full ? 1000 : stored);
  else
    for (size_t i = 0; i < stored; ++i) all.data[i] = static_cast<uint8_t>(random_.word());
  sounds_.push_back({random_.one_of(rates) * 256 + bits + channels, count, all.data});
  if (range_ == Range::extreme && least == 0 && random_.one_in(8))
    sounds_.back().format =
        static_cast<int32_t>(random_.one_in(2) ? random_.word() : random_.word() & 0xFFFF);
  value.pointer = &sounds_.back();
}

void Arguments::memory(const Parameter& parameter, Value& value) {
  int64_t size = 0, offset = 0;
  if (parameter.kind == Kind::memory) {
    size = std::max<int64_t>(parameter.size(values_), 0);
    offset = parameter.offset != nullptr && size > 0 ? parameter.offset(values_) : 0;
  } else if (letter_ == 'D') {
    size = static_cast<int64_t>(coded_.stream.size()) + 16384;
  } else {  // an address with an index
    const int64_t item = letter_ - '0';
    size = item;
    offset = item * values_[1];
  }
  Block& all = block(parameter, static_cast<size_t>(size));
  const std::string type = parameter.type;
  if (!parameter.in) {
    // What is only written says nothing before the call.
    for (size_t i = 0; i < all.size; ++i)
      all.data[i] = static_cast<uint8_t>(i * 73 ^ (other_ ? other_bits : 0));
  } else if (letter_ == 'E') {
    std::memcpy(all.data, blocks_[blocks_.size() - 2].data, all.size);
    if (all.size > 0 && !random_.one_in(4)) all.data[random_.word() % all.size] ^= 1;
  } else if (type.ends_with("double*")) {
    fill_reals(all.data, all.size, all.size);
  } else if (type == "int32_t*") {
    for (size_t i = 0; i + 4 <= all.size; i += 4) {
      const int32_t position = random_.between(-5, 100);
      std::memcpy(all.data + i, &position, 4);
    }
  } else {
    fill_words(all.data, all.size);
  }
  const auto& given = letter_ == 'S' ? coded_.source : coded_.stream;
  if ((letter_ == 'S' || letter_ == 'D') && !given.empty())
    std::memcpy(all.data, given.data(), std::min(given.size(), all.size));
  value.pointer = all.data - offset;
}

void Arguments::fill_words(uint8_t* at, size_t bytes) {
  uint32_t v = 0;
  for (size_t i = 0; i < bytes; i += 4) {
    if (!random_.one_in(4)) v = letter_ == 'W' ? random_.word() % 257 : random_.word();
    std::memcpy(at + i, &v, std::min<size_t>(4, bytes - i));
  }
}

void Arguments::fill_reals(uint8_t* at, size_t bytes, size_t most) {
  for (size_t i = 0; i < std::min(bytes, most) / 8; ++i) {
    const double v = random_.between(-1100, 1100) / 1024.0;
    std::memcpy(at + 8 * i, &v, 8);
  }
}

void Arguments::number(const Parameter& parameter, Value& value) {
  const char kind = parameter.type[0];
  if (kind == 'f' || kind == 'd') {
    value.real = real(parameter);
    if (kind == 'f') value.real = static_cast<float>(value.real);
    return;
  }
  const uint32_t drawn_word = integer(parameter);
  value.number = kind == 'u' ? int64_t{drawn_word} : int64_t{static_cast<int32_t>(drawn_word)};
}

uint32_t Arguments::integer(const Parameter& parameter) {
  const auto between = [&](int32_t low, int32_t high) {
    return static_cast<uint32_t>(random_.between(low, high));
  };
  if (range_ == Range::extreme && !parameter.trusted && letter_ != 'f' && !random_.one_in(3)) {
    static constexpr uint32_t values[] = {0,          1,          0xFFFFFFFF, 255,        256,
                                          32767,      0xFFFF8000, 0x7FFFFFFF, 0x80000000, 0x7FFFFFFE,
                                          0x80000001, 0x40000000, 0xC0000000, 0x00800000, 46341,
                                          65536,      0x3FFFFFFF, 0xFFFF0000};
    return random_.one_of(values);
  }
  const int32_t length = static_cast<int32_t>(coded_.source.size()),
                stream = static_cast<int32_t>(coded_.stream.size());
  switch (letter_) {
    case 'w':
      return random_.one_in(6) ? between(-3, 70) : between(1, 40);
    case 'n':
      return random_.one_in(6) ? between(std::max(length - 9, 0), length + 9) : static_cast<uint32_t>(length);
    case 'N':
      return random_.one_in(3) ? between(0, stream) : static_cast<uint32_t>(stream);
    case 'o':
      return colours_[0];
    case 's':
      return between(0, 3);
    case 'p':
      return random_.one_in(8) ? between(-3, 70) : 1u << random_.between(0, 6);
    default:
      break;
  }
  const std::string unit = parameter.unit;
  if (!parameter.constants.empty())
    return random_.one_in(8) ? between(-1, 17) : static_cast<uint32_t>(random_.one_of(parameter.constants));
  const double low = parameter.low.of(values_), high = parameter.high.of(values_);
  if (low > -3e9 || high < 3e9) {  // its lower end as a rule, where most differs
    const int32_t first = static_cast<int32_t>(std::max(low, -2147483648.0));
    const int32_t last = static_cast<int32_t>(std::min(high, first + (random_.one_in(4) ? 1e6 : 255.0)));
    if (random_.one_in(8) && !parameter.trusted) return between(first - 9, first + 300);
    return random_.one_in(3) ? between(first, std::min(last, first + 9)) : between(first, last);
  }
  if (unit == "flag") return random_.one_in(3) ? 1 : 0;
  if (unit == "pixels" && !parameter.trusted)
    return random_.one_in(8) ? between(-10, 50) : between(0, random_.one_in(5) ? 30 : 6);
  if (parameter.trusted) return random_.one_in(4) ? between(-20, 90) : between(0, 70);
  if (parameter.type[0] == 'u')
    return random_.one_in(3)   ? colours_[0]
           : random_.one_in(3) ? random_.one_of(colours_)
           : random_.one_in(2) ? random_.word()
                               : between(0, 250);
  if (unit == "value" && random_.one_in(2))
    return random_.one_in(2) ? between(-40000, 40000) : random_.word();
  return random_.one_in(4) ? between(-20, 90) : between(0, 30);
}

double Arguments::real(const Parameter& parameter) {
  if (range_ == Range::extreme && !random_.one_in(3)) {
    static constexpr double infinity = std::numeric_limits<double>::infinity();
    static constexpr double values[] = {
        -infinity, infinity, std::numeric_limits<double>::quiet_NaN(), 3e38, -3e38, 1e-40, -1e9, 3e9, -0.0};
    return random_.one_of(values);
  }
  const double low = std::max(parameter.low.of(values_), -5.0),
               high = std::min(parameter.high.of(values_), low + 10);
  if (random_.one_in(2)) return low + (high - low) * random_.between(0, 100) / 100;
  return (random_.one_in(4) ? random_.between(-200, 500) : random_.between(0, 100)) / 100.0;
}

}  // namespace host
