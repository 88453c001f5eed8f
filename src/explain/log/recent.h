#pragma once
// What is remembered of each of the ships seen last.

#include <cstddef>
#include <list>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>

namespace explain {

/// Of so many keys at most: a new one drives out the one that was asked for longest ago.
template <class Value>
class Recent {
 public:
  explicit Recent(std::size_t most) : most_(most) {}

  /// Made anew for a key that is not remembered. Valid until the next call.
  Value& of(std::string_view key) {
    // The lines of a ship stand together.
    if (!all_.empty() && all_.front().first == key) return all_.front().second;
    if (const auto at = by_key_.find(key); at != by_key_.end()) {
      all_.splice(all_.begin(), all_, at->second);
      return all_.front().second;
    }
    all_.emplace_front(std::string(key), Value());
    by_key_.emplace(all_.front().first, all_.begin());
    if (all_.size() > most_) {
      by_key_.erase(all_.back().first);
      all_.pop_back();
    }
    return all_.front().second;
  }

  /// All that are remembered, with their keys, the one asked for last in front.
  [[nodiscard]] std::list<std::pair<std::string, Value>>& all() { return all_; }

 private:
  using List = std::list<std::pair<std::string, Value>>;

  std::size_t most_;
  List all_;
  /// The keys are those of the list.
  std::unordered_map<std::string_view, typename List::iterator> by_key_;
};

}  // namespace explain
