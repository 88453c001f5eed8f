#pragma once
// What every fuzz target shares.

#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <iostream>
#include <memory>
#include <string_view>

namespace fuzz {

/// The input in a block of its own size, so that the sanitizer sees a read of one byte too many.
class Input {
 public:
  Input(const std::uint8_t* data, std::size_t size) : block_(new char[size]), size_(size) {
    if (size > 0) std::memcpy(block_.get(), data, size);
  }
  [[nodiscard]] std::string_view text() const { return {block_.get(), size_}; }

 private:
  std::unique_ptr<char[]> block_;
  std::size_t size_;
};

/// The oracle: ends the run with what was expected.
inline void expect(bool holds, std::string_view rule, std::string_view a = {},
                   std::string_view b = {}) {
  if (holds) return;
  std::cerr << "broken: " << rule << "\n[" << a << "]\n[" << b << "]\n";
  std::abort();
}

}  // namespace fuzz
