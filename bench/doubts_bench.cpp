// What the doubts cost a save: an observation that raises none beside taking its figures as numbers,
// and the reports and lines of three days found in a folder of 3,000 reports with as many lines in
// the logbook. The floor of the second is listing the folder, which a save does in any case.

#include <benchmark/benchmark.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include "archive/CFindFile.h"
#include "explain/doubts/doubts.h"
#include "explain/past_observations.h"
#include "fakes/sample_ship.h"
#include "observation/logbook_encoder.h"
#include "observation/report_file.h"
#include "observation/report_reader.h"
#include "observation/values.h"
#include "platform/posix/posix_files.h"
#include "text/numbers.h"

namespace {

constexpr int kReports = 3000;
constexpr const char* kReport =
    "BBXX JXKV 15124 99357 11653 41497 62718 10152 20114 40108 52014 70211 84531 22213 00178 20604 "
    "32531 40905 51003 .....";
constexpr const char* kFolder = "C:\\";

Struct_Weather record_at(int day_of_all, int hour) {
  constexpr int kDays = 28;
  constexpr int kMonths = 12;
  constexpr int kFirstYear = 2012;
  auto record =
      observation::read_report(kReport, {fakes::sample_ship(), KeyObservationItems()})->record;
  record.Year = text::format_int(kFirstYear + day_of_all / kDays / kMonths);
  record.Month = text::format_int(day_of_all / kDays % kMonths + 1, 2, '0');
  record.YY = text::format_int(day_of_all % kDays + 1, 2, '0');
  record.GG = text::format_int(hour, 2, '0');
  return record;
}

// The report `number` of a ship that reports every three hours.
Struct_Weather record_of(int number) {
  constexpr int kADay = 8;
  constexpr int kEvery = 3;
  return record_at(number / kADay, number % kADay * kEvery);
}

class Ship {
 public:
  Ship() {
    if (root_.empty()) return;
    const std::filesystem::path drive = root_;
    std::ofstream log(drive / "immt5.log");
    for (int i = 0; i < kReports; ++i) {
      const Struct_Weather record = record_of(i);
      std::ofstream(drive / observation::report_file_name(record)) << kReport;
      log << observation::encode_logbook(record, ship_, items_) << '\n';
    }
  }
  ~Ship() {
    std::error_code ignored;
    if (!root_.empty()) std::filesystem::remove_all(root_, ignored);
  }
  Ship(const Ship&) = delete;
  Ship& operator=(const Ship&) = delete;

  [[nodiscard]] platform::Files& files() { return files_; }
  [[nodiscard]] std::size_t past() {
    const int hour = observation::values_of(record_of(kReports)).hour.value_or(0);
    return explain::past_observations(files_, {kFolder, kFolder}, ship_, items_,
                                      hour - explain::kLongestPast, hour)
        .size();
  }

 private:
  static std::string new_folder() {
    std::string pattern = (std::filesystem::temp_directory_path() / "kavrel-bench-XXXXXX").string();
    return ::mkdtemp(pattern.data()) != nullptr ? pattern : std::string();
  }

  std::string root_ = new_folder();
  ShipFixedData ship_ = fakes::sample_ship();
  KeyObservationItems items_;
  platform::posix::SystemCalls calls_;
  platform::posix::PosixDriveMap map_{root_};
  platform::posix::PosixFiles files_{map_, calls_};
};

void BM_ValuesOfAnObservation_Floor(benchmark::State& state) {
  const Struct_Weather record = record_of(kReports);
  for (auto _ : state) benchmark::DoNotOptimize(observation::values_of(record));
}
BENCHMARK(BM_ValuesOfAnObservation_Floor);

void BM_DoubtsOfAGoodObservation(benchmark::State& state) {
  const auto now = observation::values_of(record_of(kReports));
  const auto last = observation::values_of(record_of(kReports - 1));
  explain::Before before{&last, 3, &last};
  for (auto _ : state)
    benchmark::DoNotOptimize(explain::doubts_of(now, before, text::Language::kEnglish));
}
BENCHMARK(BM_DoubtsOfAGoodObservation);

void BM_ListAFolderOfReports_Floor(benchmark::State& state) {
  Ship ship;
  for (auto _ : state) {
    std::vector<std::string> found;
    CFindFile(ship.files()).find(kFolder, observation::kReportExtension, found);
    if (found.size() != kReports) return state.SkipWithError("not all found");
  }
}
BENCHMARK(BM_ListAFolderOfReports_Floor)->Unit(benchmark::kMillisecond);

void BM_ThreeDaysOfAFolderOfReports(benchmark::State& state) {
  constexpr std::size_t kThreeDays = 24;
  Ship ship;
  for (auto _ : state)
    if (ship.past() != kThreeDays) return state.SkipWithError("not three days");
}
BENCHMARK(BM_ThreeDaysOfAFolderOfReports)->Unit(benchmark::kMillisecond);

}  // namespace
