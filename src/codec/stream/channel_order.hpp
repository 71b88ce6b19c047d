// The order of pixels that are sent channel by channel, and the code of a difference: what decoders undo in
// the same pass.
#pragma once

#include <cstdint>

namespace tessaro {

// Differences are folded so that small ones of either sign become small codes: 0, -1, 1, -2 become 0, 1, 2,
// 3.
constexpr uint8_t unfold(uint8_t code) { return static_cast<uint8_t>(code >> 1 ^ (0 - (code & 1))); }

// The positions of `count` interleaved bytes, one channel of four after another: 0, 4, 8, ..., 1, 5, ..., 2,
// ..., 3, ...
class ChannelOrder {
 public:
  explicit ChannelOrder(uint32_t count) : count_(count) {}
  uint64_t position() const { return at_; }
  // Moves on; false behind the last one.
  bool next() {
    at_ += 4;
    if (at_ < count_) [[likely]]
      return true;
    at_ = (at_ & 3) + 1;
    return at_ < 4 && at_ < count_;
  }

  // Whether the next n positions and one more are 4 apart.
  bool has(uint32_t n) const { return at_ + 4 * uint64_t{n} < count_; }
  void skip(uint32_t n) { at_ += 4 * uint64_t{n}; }

  // How many positions the channel at hand still has.
  uint32_t left_in_channel() const { return static_cast<uint32_t>((count_ - at_ + 3) / 4); }

 private:
  uint64_t at_ = 0;
  uint32_t count_;
};

}  // namespace tessaro
