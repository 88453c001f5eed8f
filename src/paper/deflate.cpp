#include "paper/deflate.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <vector>

namespace paper {
namespace {

constexpr std::size_t kLeast = 3;  // what is shorter is no repetition
constexpr std::size_t kMost = 258;
constexpr std::size_t kFarthest = 32768;
constexpr int kTries = 32;  // places that are compared with, the nearest first

// Bits from the lowest of each byte on.
class Bits {
 public:
  explicit Bits(std::string& to) : to_(to) {}
  ~Bits() {
    if (used_ > 0) to_.push_back(static_cast<char>(held_));
  }
  Bits(const Bits&) = delete;
  Bits& operator=(const Bits&) = delete;

  void put(std::uint32_t value, unsigned count) {
    held_ |= static_cast<std::uint64_t>(value) << used_;
    for (used_ += count; used_ >= 8; used_ -= 8) {
      to_.push_back(static_cast<char>(held_ & 0xFFU));
      held_ >>= 8U;
    }
  }
  /// Codes begin with their highest bit.
  void put_code(std::uint32_t code, unsigned count) {
    std::uint32_t turned = 0;
    for (unsigned i = 0; i < count; ++i) turned |= ((code >> i) & 1U) << (count - 1 - i);
    put(turned, count);
  }

 private:
  std::string& to_;
  std::uint64_t held_ = 0;
  unsigned used_ = 0;
};

// A letter, the end (256) or a length (257 …).
void put_symbol(Bits& bits, std::uint32_t symbol) {
  if (symbol < 144) return bits.put_code(0x30 + symbol, 8);
  if (symbol < 256) return bits.put_code(0x190 + symbol - 144, 9);
  if (symbol < 280) return bits.put_code(symbol - 256, 7);
  bits.put_code(0xC0 + symbol - 280, 8);
}

// Numbers in classes, each twice as wide as the one `group` classes before: which class, and the
// bits that tell where in it.
struct Class {
  std::uint32_t index = 0;
  std::uint32_t rest = 0;
  unsigned bits = 0;
};
Class class_of(std::uint32_t number, unsigned group_bits) {
  const std::uint32_t group = 1U << group_bits;
  unsigned bits = 0;
  while ((number >> bits) >= 2 * group) ++bits;
  const std::uint32_t index = number < group ? number : bits * group + (number >> bits);
  return {index, number & ((1U << bits) - 1), bits};
}

void put_repetition(Bits& bits, std::size_t length, std::size_t distance) {
  if (length == kMost) {
    put_symbol(bits, 285);
  } else {
    const Class of = class_of(static_cast<std::uint32_t>(length - kLeast), 2);
    put_symbol(bits, 257 + of.index);
    bits.put(of.rest, of.bits);
  }
  const Class of = class_of(static_cast<std::uint32_t>(distance - 1), 1);
  bits.put_code(of.index, 5);
  bits.put(of.rest, of.bits);
}

// Where the same three bytes stood before.
class Places {
 public:
  explicit Places(std::string_view bytes) : bytes_(bytes), before_(bytes.size()) {
    last_.fill(kNowhere);
  }
  void add(std::size_t at) {
    if (at + kLeast > bytes_.size()) return;
    std::size_t& last = last_[key(at)];
    before_[at] = last;
    last = at;
  }
  struct Match {
    std::size_t length = 0;
    std::size_t distance = 0;
  };
  [[nodiscard]] Match longest(std::size_t at) const {
    Match best;
    if (at + kLeast > bytes_.size()) return best;
    const std::size_t most = std::min(kMost, bytes_.size() - at);
    std::size_t place = last_[key(at)];
    for (int tries = kTries; tries > 0 && place != kNowhere && at - place <= kFarthest; --tries) {
      std::size_t length = 0;
      while (length < most && bytes_[place + length] == bytes_[at + length]) ++length;
      if (length > best.length) best = {length, at - place};
      if (length == most) break;
      place = before_[place];
    }
    return best;
  }

 private:
  static constexpr std::size_t kNowhere = static_cast<std::size_t>(-1);
  static constexpr unsigned kKeyBits = 15;
  [[nodiscard]] std::size_t key(std::size_t at) const {
    std::uint32_t three = 0;
    for (std::size_t i = 0; i < kLeast; ++i)
      three = (three << 8U) | static_cast<unsigned char>(bytes_[at + i]);
    return (three * 2654435761U) >> (32U - kKeyBits);
  }

  std::string_view bytes_;
  std::vector<std::size_t> before_;
  std::array<std::size_t, std::size_t{1} << kKeyBits> last_{};
};

std::uint32_t adler_of(std::string_view bytes) {
  constexpr std::uint32_t kPrime = 65521;
  std::uint32_t a = 1;
  std::uint32_t b = 0;
  for (const char byte : bytes) {
    a = (a + static_cast<unsigned char>(byte)) % kPrime;
    b = (b + a) % kPrime;
  }
  return (b << 16U) | a;
}

}  // namespace

std::string deflate(std::string_view bytes) {
  std::string packed("\x78\x9C");
  {
    Bits bits(packed);
    bits.put(1, 1);  // the last block
    bits.put(1, 2);  // of fixed codes
    const auto places = std::make_unique<Places>(bytes);
    for (std::size_t at = 0; at < bytes.size();) {
      const Places::Match match = places->longest(at);
      std::size_t taken = 1;
      if (match.length >= kLeast) {
        put_repetition(bits, match.length, match.distance);
        taken = match.length;
      } else {
        put_symbol(bits, static_cast<unsigned char>(bytes[at]));
      }
      for (; taken > 0; --taken) places->add(at++);
    }
    put_symbol(bits, 256);
  }
  const std::uint32_t sum = adler_of(bytes);
  for (int shift = 24; shift >= 0; shift -= 8)
    packed.push_back(static_cast<char>((sum >> static_cast<unsigned>(shift)) & 0xFFU));
  return packed;
}

}  // namespace paper
