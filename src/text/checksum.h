#pragma once
// One number for a content of any length, which is handed over piece by piece.

#include <cstdint>
#include <string_view>

namespace text {

/// Finds damage and chance, which is all it has to do: nobody is kept from making two contents of
/// one sum. Kept in files, so it stays what it is.
class Checksum {
 public:
  void add(std::string_view piece);
  [[nodiscard]] std::uint64_t value() const { return sum_; }

 private:
  // Fowler, Noll and Vo's 1a with 64 bits.
  std::uint64_t sum_ = 14695981039346656037U;
};

}  // namespace text
