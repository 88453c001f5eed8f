#pragma once
// How much a test tries of what it draws by chance, or of cases that are very many.

#include <cstdlib>
#include <string_view>

namespace fakes {

/// Whether an answer is wanted soon, as "ctest --preset quick" tells by its environment. A program that is run by hand, and
/// every long run, tries everything.
[[nodiscard]] inline bool soon() {
  const char* const wanted = std::getenv("KAVREL_TESTS");
  return wanted != nullptr && std::string_view(wanted) == "soon";
}

/// All of them, or a tenth where an answer is wanted soon.
[[nodiscard]] inline int rounds(int all) {
  return soon() ? (all + 9) / 10 : all;
}

/// From one of many cases to the next that is tried: the next one, or one beyond six others. Seven is a divisor of no number of
/// bits or bytes, so all kinds of cases come up.
[[nodiscard]] inline int stride() {
  return soon() ? 7 : 1;
}

}  // namespace fakes
