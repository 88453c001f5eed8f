// A logbook read back, without and with its check: records a second. The floor cuts the same bytes
// into lines and copies them.

#include <benchmark/benchmark.h>

#include <string>
#include <vector>

#include "explain/log/logbook_check.h"
#include "observation/logbook_encoder.h"
#include "observation/logbook_record.h"
#include "observation/records.h"

namespace {

std::string two(int number) {
  std::string text = std::to_string(number);
  return text.size() < 2 ? "0" + text : text;
}

/// A year of three-hourly observations of a ship under way, each with every element.
std::vector<std::string> lines() {
  constexpr int kDays = 28;
  constexpr int kHours = 24;
  std::vector<std::string> lines;
  for (int month = 1; month <= 12; ++month) {
    for (int day = 1; day <= kDays; ++day) {
      for (int hour = 0; hour < kHours; hour += 3) {
        const int n = (day * kHours + hour) / 3;
        Struct_Weather record = records::full();
        // Thirteen knots to the east; nothing that a rule or a doubt speaks against, but where a
        // month begins anew.
        const int longitude = 1000 + n * 8 % 700;
        records::set(record, {{"Month", two(month)},
                              {"YY", two(day)},
                              {"GG", two(hour)},
                              {"LoDeg", std::to_string(longitude / 10)},
                              {"LoMin", two(longitude % 10 * 6)},
                              {"TTT", "1" + two(n % 100)},
                              {"TdTdTd", "0" + two(n % 90)},
                              {"PPPP", "01" + two(n % 100)},
                              {"ppp", "001"},
                              {"ff", two(10 + n % 9)},
                              {"fff", ""},
                              {"ww", "03"},
                              {"W1", "2"},
                              {"TwTwTw", "1" + two(n * 7 % 100)}});
        for (const auto field :
             {&Struct_Weather::Is, &Struct_Weather::EsEs, &Struct_Weather::Rs, &Struct_Weather::ci,
              &Struct_Weather::Si, &Struct_Weather::bi, &Struct_Weather::Di, &Struct_Weather::zi,
              &Struct_Weather::Sw, &Struct_Weather::TbTbTb})
          (record.*field).clear();
        lines.push_back(observation::encode_logbook(record, records::ship(), {}));
      }
    }
  }
  return lines;
}

void Floor(benchmark::State& state) {
  const auto log = lines();
  for (auto _ : state) {
    for (const std::string& line : log) {
      std::string copy = line;
      benchmark::DoNotOptimize(copy);
    }
  }
  state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(log.size()));
}

void Reading(benchmark::State& state) {
  const auto log = lines();
  for (auto _ : state) {
    for (const std::string& line : log) {
      auto read = observation::record_of_line(line, {}, {});
      benchmark::DoNotOptimize(read);
    }
  }
  state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(log.size()));
}

void ReadingAndChecking(benchmark::State& state) {
  const auto log = lines();
  for (auto _ : state) {
    explain::LogbookCheck check(text::Language::kEnglish);
    for (const std::string& line : log) check.take(line);
    if (check.finish().with_errors() > 0) state.SkipWithError("the log is not sound");
  }
  state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(log.size()));
}

BENCHMARK(Floor)->Unit(benchmark::kMillisecond);
BENCHMARK(Reading)->Unit(benchmark::kMillisecond);
BENCHMARK(ReadingAndChecking)->Unit(benchmark::kMillisecond);

}  // namespace
