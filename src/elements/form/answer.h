#pragma once
// What an entry is answered with. Nobody is told anything here: who took the entry shows the notice
// and, when it is a question, hands the entry in again once it is confirmed.

#include <array>
#include <cstdint>
#include <limits>
#include <string>
#include <utility>

#include "text/id.h"

namespace elements {

/// A text of the table with what stands in its places.
struct Notice {
  text::Id message = {};                ///< none: nothing is said
  std::array<std::string, 2> bounds{};  ///< for the places of the message, where it has some
  text::Id below = {};                  ///< a second line, or none

  bool operator==(const Notice&) const = default;
};

struct Answer {
  enum class Kind : std::uint8_t {
    kAccepted,
    kRefused,  ///< the notice says why
    kAsks,     ///< the notice is a Yes/No question; until it is confirmed the entry is refused
  };
  Kind kind = Kind::kAccepted;
  Notice notice{};

  [[nodiscard]] bool accepted() const { return kind == Kind::kAccepted; }
};

[[nodiscard]] inline Answer refused(Notice notice) {
  return {Answer::Kind::kRefused, std::move(notice)};
}
[[nodiscard]] inline Answer refused(text::Id message) {
  return refused(Notice{message});
}

/// How many questions about this one entry were answered Yes so far.
using Confirmed = int;
/// Every question counts as answered Yes: nobody is there to be asked.
inline constexpr Confirmed kEveryQuestion = std::numeric_limits<int>::max();

}  // namespace elements
