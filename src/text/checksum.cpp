#include "text/checksum.h"

namespace text {

void Checksum::add(std::string_view piece) {
  constexpr std::uint64_t kPrime = 1099511628211U;
  for (const char c : piece) sum_ = (sum_ ^ static_cast<unsigned char>(c)) * kPrime;
}

}  // namespace text
