#pragma once
// What of an observation is to be doubted: not wrong by any rule, but rarely so. Each doubt is a
// row of one table with the document that it is taken from (docs/doubts.md tells how often each is
// raised without cause). A doubt never refuses anything.

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "observation/Struct_Weather.h"
#include "observation/past_observation.h"
#include "observation/values.h"
#include "text/id.h"
#include "text/texts.h"

namespace explain {

/// The observations that another one is held against.
struct Before {
  const observation::Values* last = nullptr;  ///< the last one before it; none: nothing is known
  int hours = 0;                              ///< so long before it, 1 to kLongestPast
  const observation::Values* three_hours_ago = nullptr;
};

/// What lies longer back says nothing of now, in hours.
inline constexpr int kLongestPast = 72;

enum class DoubtKind : std::uint8_t {
  kAgainstThePast,   ///< needs an observation before
  kBetweenElements,  ///< within the observation alone
};

/// What a text names, in the order of its places; empty behind the last.
using DoubtWords = std::array<std::string, 4>;

struct DoubtRow {
  static constexpr std::size_t kMostElements = 6;
  using Elements = std::array<std::string Struct_Weather::*, kMostElements>;

  std::string_view name;  ///< for lists that a program reads; never changes
  DoubtKind kind;
  text::Id text;
  /// False where anything that it needs is missing. Allocates nothing.
  bool (*raised)(const observation::Values& now, const Before& before);
  /// Of an observation that raised it.
  DoubtWords (*words)(const observation::Values& now, const Before& before);
  std::string_view source;  ///< the document and where in it; "Own choice" with the reason
  /// The figures that it speaks of, all of which are reported where it is raised; nullptr behind
  /// the last.
  Elements about;
};

[[nodiscard]] std::span<const DoubtRow> doubt_rows();

/// What an observation of that hour is held against: the ship's observations, the oldest first,
/// may go on behind it. Nothing without an hour.
[[nodiscard]] Before before_of(const observation::Values& now,
                               std::span<const observation::PastObservation> past);

/// One that was raised.
struct Doubt {
  const DoubtRow* row;
  std::string text;  ///< in one line, without a mark that it is a doubt
};

/// In the table's order; empty, and then nothing was allocated, for an observation that nothing
/// speaks against.
[[nodiscard]] std::vector<Doubt> doubts_of(const observation::Values& now, const Before& before,
                                           text::Language language);
[[nodiscard]] std::vector<Doubt> doubts_of(const observation::Values& now,
                                           std::span<const observation::PastObservation> past,
                                           text::Language language);

}  // namespace explain
