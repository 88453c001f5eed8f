#pragma once
// Any record that the program can hold, for properties that must hold of all of them.

#include <algorithm>
#include <initializer_list>
#include <random>
#include <string>

#include "observation/Struct_Weather.h"
#include "observation/report_groups.h"

namespace records {

class Random {
 public:
  explicit Random(unsigned seed) : engine_(seed) {}
  int below(int n) { return std::uniform_int_distribution<int>(0, n - 1)(engine_); }
  bool one_in(int n) { return below(n) == 0; }
  std::string one_of(std::initializer_list<const char*> texts) {
    return *(texts.begin() + below(static_cast<int>(texts.size())));
  }
  /// What the program's dialogs leave in a field of that width: nothing, figures, solidi, or
  /// figures of which some were not observed.
  std::string figures(std::size_t width) {
    const int kind = below(8);
    if (kind == 0) return "";
    if (kind == 1) return std::string(width, '/');
    std::string text;
    for (std::size_t i = 0; i < width; ++i)
      text.push_back(kind == 2 && one_in(2) ? '/' : static_cast<char>('0' + below(10)));
    return text;
  }

 private:
  std::mt19937 engine_;
};

inline Struct_Weather random_record(Random& random) {
  ShipFixedData ship;
  ship.wind_speed_method =
      random.one_in(2) ? WindSpeedMethod::kAnemometer : WindSpeedMethod::kBeaufortScale;
  ship.call_sign = random.one_of(
      {"*******", "A", "JXKV", "7ABC", "ABCDEFG", "ABCDEFGHI", "12345", "99123", "22212", ""});
  KeyObservationItems items;
  for (bool& off : items.not_observed) off = random.one_in(2);
  Struct_Weather record(ship, items);
  // One record in eight has next to nothing in it.
  const bool sparse = random.one_in(8);
  for (const observation::GroupRow& row : observation::group_rows()) {
    if (sparse && random.below(4) > 0) continue;
    for (const observation::Symbol& symbol : row.used())
      if (symbol.figures == observation::Figures::kNormalised &&
          symbol.field != &Struct_Weather::iw)
        record.*symbol.field = random.figures(symbol.width);
  }
  record.Qc = random.one_of({"", "1", "3", "5", "7"});
  record.SnTd = random.one_of({"", "0", "1", "/"});
  for (auto minutes : {&Struct_Weather::LaMin, &Struct_Weather::LoMin}) {
    const int minute = random.below(60);
    record.*minutes = random.one_in(6)
                          ? ""
                          : (minute < 10 && random.one_in(2) ? "0" : "") + std::to_string(minute);
  }
  if (random.one_in(3)) record.fff = std::to_string(99 + random.below(100)).substr(0, 3);
  if (record.fff.size() == 2) record.fff = "0" + record.fff;
  if (random.one_in(3)) {
    record.GGExact = random.one_of({"00", "11", "23"});
    record.gg = random.one_of({"00", "50", "59"});
  }
  if (random.one_in(3)) record.dw1dw1 = random.one_of({"00", "27", "//", ""});
  if (random.one_in(3)) record.dw2dw2 = random.one_of({"00", "31", "//", ""});
  return record;
}

}  // namespace records
