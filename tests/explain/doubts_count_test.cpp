// How often each doubt is raised where nothing is wrong, and which slips the doubts find:
// docs/doubts.md holds the tables, and this test that they are true.

#include <gtest/gtest.h>

#include <cmath>
#include <fstream>
#include <map>
#include <optional>
#include <span>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

#include "explain/doubts/doubts.h"
#include "explain/plausible_voyage.h"
#include "fakes/sample_ship.h"
#include "observation/report_reader.h"
#include "observation/values.h"
#include "text/texts.h"

namespace {

using explain::DoubtRow;
using observation::PastObservation;
using observation::Values;
using text::Language;

constexpr int kVoyages = 250;
constexpr int kObservations = kVoyages * plausible::kObservationsOfAVoyage;
constexpr int kOnceInAtMost = 200;

struct Count {
  std::map<std::string_view, int> of_row;
  int observations = 0;
  int with_any = 0;

  void add(const Values& now, std::span<const PastObservation> past) {
    const auto doubts = explain::doubts_of(now, past, Language::kEnglish);
    ++observations;
    with_any += doubts.empty() ? 0 : 1;
    for (const explain::Doubt& doubt : doubts) ++of_row[doubt.row->name];
  }
  [[nodiscard]] int of(std::string_view name) const {
    const auto found = of_row.find(name);
    return found == of_row.end() ? 0 : found->second;
  }
};

const std::vector<std::vector<PastObservation>>& voyages() {
  static const auto all = [] {
    std::vector<std::vector<PastObservation>> made;
    for (std::uint64_t number = 1; number <= kVoyages; ++number)
      made.push_back(plausible::voyage(number));
    return made;
  }();
  return all;
}

Count count_plausible() {
  Count count;
  for (const auto& voyage : voyages())
    for (const PastObservation& one : voyage) count.add(one.values, voyage);
  return count;
}

// They came from many ships, so none is another's past.
Count count_real() {
  Count count;
  std::ifstream in(KAVREL_TEST_DATA "/ship_reports.txt");
  const Struct_Weather start(fakes::sample_ship(), KeyObservationItems());
  for (std::string line; std::getline(in, line);) {
    if (line.empty() || line.front() == '#') continue;
    const auto report = observation::read_report(line, start);
    if (report) count.add(observation::values_of(report->record), {});
  }
  return count;
}

// A slip of the pen: false where it would change nothing of this observation.
struct Slip {
  std::string_view what;
  bool (*make)(Values& now, const Values& last);
};

bool turn_sign(std::optional<double>& value) {
  if (!value || std::abs(*value) < 3.0) return false;
  value = -*value;
  return true;
}
// 15 as 51.
bool swap_figures(std::optional<double>& value) {
  if (!value) return false;
  const int old = static_cast<int>(*value);
  if (old < 10 || old > 99) return false;
  value = old % 10 * 10 + old / 10;
  return std::abs(*value - old) >= 20.0;
}

constexpr Slip kSlips[] = {
    {"North and south exchanged",
     [](Values& now, const Values& last) {
       now.latitude = -*now.latitude;
       return last.latitude && std::abs(*now.latitude) > 2.0;
     }},
    {"East and west exchanged",
     [](Values& now, const Values& last) {
       now.longitude = -*now.longitude;
       return last.longitude && std::abs(*now.longitude) > 2.0 && std::abs(*now.longitude) < 178.0;
     }},
    {"Latitude ten degrees off",
     [](Values& now, const Values& /*last*/) {
       *now.latitude += *now.latitude > 0.0 ? -10.0 : 10.0;
       return true;
     }},
    {"Latitude one degree off",
     [](Values& now, const Values& /*last*/) {
       *now.latitude += *now.latitude > 0.0 ? -1.0 : 1.0;
       return true;
     }},
    {"Course the other way",
     [](Values& now, const Values& /*last*/) {
       if (!now.course || *now.course == 0) return false;
       now.course = (*now.course + 3) % 8 + 1;
       return true;
     }},
    {"Pressure ten hectopascals off",
     [](Values& now, const Values& /*last*/) {
       if (!now.pressure) return false;
       *now.pressure += 10.0;
       return true;
     }},
    {"Pressure two hectopascals off",
     [](Values& now, const Values& /*last*/) {
       if (!now.pressure) return false;
       *now.pressure += 2.0;
       return true;
     }},
    {"Rising for falling, or falling for rising (1 hPa or more)",
     [](Values& now, const Values& /*last*/) {
       if (!now.change || std::abs(*now.change) < 1.0) return false;
       now.change = -*now.change;
       now.tendency = *now.change > 0.0 ? 2 : 7;
       return true;
     }},
    {"Sign of the air temperature (from 3 °C)",
     [](Values& now, const Values& /*last*/) {
       // A dew point above the air is refused.
       now.dew_point = std::nullopt;
       return turn_sign(now.air);
     }},
    {"Sign of the dew point (from 3 °C)",
     [](Values& now, const Values& /*last*/) {
       return now.air && now.dew_point && *now.dew_point > 0.0 && turn_sign(now.dew_point);
     }},
    {"Figures of the air temperature exchanged (20 °C or more)",
     [](Values& now, const Values& /*last*/) {
       now.dew_point = std::nullopt;
       return swap_figures(now.air) && *now.air <= 40.0;
     }},
    {"Air temperature ten degrees off",
     [](Values& now, const Values& /*last*/) {
       if (!now.air) return false;
       *now.air += 10.0;
       return true;
     }},
    {"Sea temperature ten degrees off",
     [](Values& now, const Values& /*last*/) {
       if (!now.sea) return false;
       *now.sea += *now.sea > 15.0 ? -10.0 : 10.0;
       return true;
     }},
    {"Figures of the wind speed exchanged (20 knots or more)",
     [](Values& now, const Values& /*last*/) { return swap_figures(now.wind_speed); }},
    {"Height of the wind waves five times too large",
     [](Values& now, const Values& /*last*/) {
       if (!now.wind_waves.height || *now.wind_waves.height < 1.0) return false;
       *now.wind_waves.height *= 5.0;
       return true;
     }},
    {"Visibility 98 in fog",
     [](Values& now, const Values& /*last*/) {
       if (!now.weather || !now.visibility || *now.weather < 42 || *now.weather > 49) return false;
       now.visibility = 98;
       return true;
     }},
    {"Weather 02 in fog",
     [](Values& now, const Values& /*last*/) {
       if (!now.weather || !now.visibility || *now.weather < 42 || *now.weather > 49) return false;
       now.weather = 2;
       return true;
     }},
    {"The last observation left standing",
     [](Values& now, const Values& last) {
       const Values entered = now;
       now = last;
       now.hour = entered.hour;
       now.actual_hour = entered.actual_hour;
       now.actual_minute = entered.actual_minute;
       now.latitude = entered.latitude;
       now.longitude = entered.longitude;
       now.course = entered.course;
       now.speed = entered.speed;
       return now.air && now.sea && now.pressure && now.wind_direction;
     }},
};

struct Found {
  int made = 0;
  int found = 0;
};

// In every plausible observation that has one before it and raises nothing by itself.
Found count_found(const Slip& slip) {
  Found count;
  for (const auto& voyage : voyages()) {
    for (std::size_t i = 1; i < voyage.size(); ++i) {
      Values now = voyage[i].values;
      if (!now.latitude || !now.longitude) continue;
      if (!explain::doubts_of(now, voyage, Language::kEnglish).empty()) continue;
      if (!slip.make(now, voyage[i - 1].values)) continue;
      ++count.made;
      count.found += explain::doubts_of(now, voyage, Language::kEnglish).empty() ? 0 : 1;
    }
  }
  return count;
}

std::string plain_text(const DoubtRow& row) {
  return text::fill(text::bilingual(row.text, Language::kEnglish), {"…", "…", "…", "…"});
}

std::string tables() {
  const Count plausible = count_plausible();
  const Count real = count_real();
  std::ostringstream out;
  out << "| Doubt | Text | Source | of " << real.observations << " real reports | of "
      << plausible.observations << " plausible observations |\n|---|---|---|---|---|\n";
  for (const DoubtRow& row : explain::doubt_rows())
    out << "| `" << row.name << "` | " << plain_text(row) << " | " << row.source << " | "
        << real.of(row.name) << " | " << plausible.of(row.name) << " |\n";
  out << "| *any of them* | | | " << real.with_any << " | " << plausible.with_any << " |\n\n";
  out << "| Slip | made | doubted | |\n|---|---|---|---|\n";
  constexpr int kPercent = 100;
  for (const Slip& slip : kSlips) {
    const Found found = count_found(slip);
    out << "| " << slip.what << " | " << found.made << " | " << found.found << " | "
        << (found.made == 0 ? 0 : found.found * kPercent / found.made) << " % |\n";
  }
  return out.str();
}

TEST(DoubtCounts, NoDoubtCriesInMoreThanOneOfTwoHundredGoodObservations) {
  const Count count = count_plausible();
  ASSERT_EQ(count.observations, kObservations);
  for (const DoubtRow& row : explain::doubt_rows())
    EXPECT_LE(count.of(row.name) * kOnceInAtMost, kObservations) << row.name;
}

TEST(DoubtCounts, StandInTheDocument) {
  std::ifstream in(KAVREL_SOURCE "/docs/doubts.md");
  std::stringstream document;
  document << in.rdbuf();
  const std::string wanted = tables();
  if (document.str().find(wanted) != std::string::npos) return;
  const std::string path = testing::TempDir() + "doubts_tables.md";
  std::ofstream(path) << wanted;
  ADD_FAILURE() << "docs/doubts.md holds other figures: put in those of " << path;
}

// A doubt that is never raised says something only where what it is about occurs often enough.
TEST(PlausibleVoyages, AreWide) {
  struct Kind {
    std::string_view what;
    bool (*is)(const Values& v);
    int found = 0;
  };
  Kind kinds[] = {
      {"fog", [](const Values& v) { return v.weather >= 42 && v.weather <= 49; }},
      {"poor visibility", [](const Values& v) { return v.visibility && *v.visibility <= 93; }},
      {"hidden sky", [](const Values& v) { return v.cloud == 9; }},
      {"clear sky", [](const Values& v) { return v.cloud == 0; }},
      {"high clouds alone", [](const Values& v) { return v.CL == 0 && v.CM == 0 && v.CH > 0; }},
      {"medium clouds alone", [](const Values& v) { return v.CL == 0 && v.CM > 0; }},
      {"overcast by low clouds", [](const Values& v) { return v.low_cloud == 8 && v.CL > 0; }},
      {"rain", [](const Values& v) { return v.weather >= 50 && v.weather <= 65; }},
      {"snow", [](const Values& v) { return v.weather >= 70 && v.weather <= 77; }},
      {"showers", [](const Values& v) { return v.weather >= 80 && v.weather <= 90; }},
      {"thunder", [](const Values& v) { return v.weather == 17 || v.weather >= 95; }},
      {"freezing rain",
       [](const Values& v) { return v.weather == 56 || v.weather == 66 || v.weather == 67; }},
      {"mist", [](const Values& v) { return v.weather == 10; }},
      {"storm", [](const Values& v) { return v.wind_speed >= 48.0; }},
      {"near gale with waves",
       [](const Values& v) { return v.wind_speed >= 28.0 && v.wind_waves.height; }},
      {"calm with swell", [](const Values& v) { return v.wind_calm && v.swell1.height >= 1.0; }},
      {"second swell", [](const Values& v) { return v.swell2.height > 0.0; }},
      {"steep fall or rise",
       [](const Values& v) { return v.change && std::abs(*v.change) >= 5.0; }},
      {"no change", [](const Values& v) { return v.change == 0.0; }},
      {"cold outbreak", [](const Values& v) { return v.air && v.sea && *v.sea - *v.air > 8.0; }},
      {"warm air", [](const Values& v) { return v.air && v.sea && *v.air - *v.sea > 4.0; }},
      {"frost", [](const Values& v) { return v.air && *v.air < -5.0; }},
      {"tropics", [](const Values& v) { return v.latitude && std::abs(*v.latitude) < 20.0; }},
      {"dry air",
       [](const Values& v) { return v.air && v.dew_point && *v.air - *v.dew_point > 9.0; }},
      {"sea ice", [](const Values& v) { return v.ci >= 2; }},
      {"icebergs", [](const Values& v) { return v.bi > 0; }},
      {"icing", [](const Values& v) { return v.ice_rate > 0; }},
      {"actual time", [](const Values& v) { return v.actual_minute.has_value(); }},
      {"whole degrees",
       [](const Values& v) {
         return v.air && v.sea && std::floor(*v.air) == *v.air && std::floor(*v.sea) == *v.sea;
       }},
  };
  for (const auto& voyage : voyages())
    for (const PastObservation& one : voyage)
      for (Kind& kind : kinds) kind.found += kind.is(one.values) ? 1 : 0;
  constexpr int kEnough = 20;
  for (const Kind& kind : kinds) EXPECT_GE(kind.found, kEnough) << kind.what;
}

}  // namespace
