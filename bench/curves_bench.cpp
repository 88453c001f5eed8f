// The curves of five days: reading forty reports, drawing the four charts, saying a point; beside the
// floors of copying the same drawings and of reading the same files.

#include <benchmark/benchmark.h>
#include <unistd.h>

#include <array>
#include <cstdlib>
#include <fstream>
#include <string>
#include <vector>

#include "explain/curves.h"
#include "platform/posix/posix_files.h"
#include "text/numbers.h"

namespace {

constexpr int kLast = 130380;  // 15 November 2014, 12 UTC
constexpr int kReports = 40;
constexpr int kHoursBetween = 3;

// A folder with a report every three hours, for as long as this lives.
class Folder {
 public:
  Folder() {
    std::string name = "/tmp/curves_bench_XXXXXX";
    path_ = mkdtemp(name.data());
    for (int i = 1; i <= kReports; ++i) {
      const int hour = kLast - i * kHoursBetween;
      const int of_november = hour - (kLast - 12 - 14 * 24);  // since its beginning
      std::string file = path_ + "/1411" + text::format_int(of_november / 24 + 1, 2, '0');
      file += text::format_int(of_november % 24, 2, '0') + ".tlx";
      std::ofstream(file) << "BBXX JXKV 15124 99357 11653 41497 62718 10152 20114 4"
                          << text::format_int(i, 4, '0')
                          << " 52014 72582 84531 22213 00178 20604 32531 40905 51103\r\n";
      files_.push_back(file);
    }
  }
  ~Folder() {
    for (const std::string& file : files_) unlink(file.c_str());
    rmdir(path_.c_str());
  }
  Folder(const Folder&) = delete;
  Folder& operator=(const Folder&) = delete;

  [[nodiscard]] explain::Days days() {
    observation::Values entered;
    entered.hour = kLast;
    entered.pressure = 1013.2;
    return explain::days_before(entered, port_, {"Z:" + path_ + "/", ""}, ShipFixedData(),
                                KeyObservationItems());
  }
  [[nodiscard]] std::size_t read_all() const {
    std::size_t size = 0;
    for (const std::string& file : files_) size += port_.read("Z:" + file, 10000).value->size();
    return size;
  }

 private:
  std::string path_;
  std::vector<std::string> files_;
  platform::posix::PosixDriveMap drives_{"/"};
  platform::posix::SystemCalls calls_;
  platform::posix::PosixFiles port_{drives_, calls_};
};

std::array<ui::Drawing, explain::kCharts> drawn(const explain::Days& days) {
  std::array<ui::Drawing, explain::kCharts> drawings;
  const text::Texts texts;
  for (int i = 0; i < explain::kCharts; ++i)
    drawings[static_cast<std::size_t>(i)] =
        explain::drawing_of(days, static_cast<explain::Chart>(i), texts,
                            explain::CurvePoint{explain::Curve::kPressure, kLast});
  return drawings;
}

void BM_ReadFiles_Floor(benchmark::State& state) {
  const Folder folder;
  for (auto _ : state) benchmark::DoNotOptimize(folder.read_all());
}
BENCHMARK(BM_ReadFiles_Floor);

void BM_FindDays(benchmark::State& state) {
  Folder folder;
  if (explain::hours_of(folder.days()).size() != kReports + 1)
    return state.SkipWithError("not all reports were found");
  for (auto _ : state) benchmark::DoNotOptimize(folder.days());
}
BENCHMARK(BM_FindDays);

void BM_CopyDrawings_Floor(benchmark::State& state) {
  Folder folder;
  const auto drawings = drawn(folder.days());
  for (auto _ : state) {
    auto copy = drawings;
    benchmark::DoNotOptimize(copy);
  }
}
BENCHMARK(BM_CopyDrawings_Floor);

// What a key press in the dialog costs.
void BM_DrawCharts(benchmark::State& state) {
  Folder folder;
  const explain::Days days = folder.days();
  if (drawn(days)[0].shapes.size() < 4) return state.SkipWithError("nothing is drawn");
  for (auto _ : state) benchmark::DoNotOptimize(drawn(days));
}
BENCHMARK(BM_DrawCharts);

void BM_SayPoint(benchmark::State& state) {
  Folder folder;
  const explain::Days days = folder.days();
  const text::Texts texts;
  for (auto _ : state)
    benchmark::DoNotOptimize(explain::words_of(days, {explain::Curve::kPressure, kLast}, texts));
}
BENCHMARK(BM_SayPoint);

}  // namespace
