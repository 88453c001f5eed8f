#pragma once
// Asking again for what somebody else has, and may have done with soon.

#include <algorithm>
#include <cstdint>
#include <utility>

namespace platform {

/// Pauses that double from one millisecond to fifty, until the time is up. The clock is the caller's,
/// in milliseconds.
class Patience {
 public:
  explicit Patience(std::int64_t until) : until_(until) {}

  /// How long to wait before asking again, 1 to 50; zero when the time is up.
  [[nodiscard]] int next_pause(std::int64_t now) {
    return now < until_ ? std::exchange(pause_, std::min(2 * pause_, kLongestPause)) : 0;
  }

 private:
  static constexpr int kLongestPause = 50;

  std::int64_t until_;
  int pause_ = 1;
};

}  // namespace platform
