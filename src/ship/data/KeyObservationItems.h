#pragma once
// Which of the visually observed elements the ship reports.

#include <algorithm>
#include <array>
#include <cstddef>
#include <string_view>

/// The twelve switches in the order of MOKSDATA.DAT.
enum class ObservationItem : std::size_t {
  h,
  VV,
  N,
  Nh,
  CLCMCH,
  ww,
  W1W2,
  PwHw,
  dw1Pw1Hw1,
  dw2Pw2Hw2,
  IsEsEsRs,
  ciSibiDizi,
};
inline constexpr std::size_t kObservationItems = 12;

/// What scripts and observation files call them, in that order.
inline constexpr std::array<std::string_view, kObservationItems> kObservationItemNames = {
    "h",    "VV",   "N",         "Nh",        "CLCMCH",   "ww",
    "W1W2", "PwHw", "dw1Pw1Hw1", "dw2Pw2Hw2", "IsEsEsRs", "ciSibiDizi"};

/// True where an element is not observed (file digit "1"); everything is observed at first.
struct KeyObservationItems {
  std::array<bool, kObservationItems> not_observed{};

  [[nodiscard]] bool observed(ObservationItem item) const {
    return !not_observed[static_cast<std::size_t>(item)];
  }
  void set_observed(ObservationItem item, bool observed) {
    not_observed[static_cast<std::size_t>(item)] = !observed;
  }
  [[nodiscard]] bool none_observed() const {
    return std::all_of(not_observed.begin(), not_observed.end(), [](bool off) { return off; });
  }
  bool operator==(const KeyObservationItems&) const = default;
};
