// What it costs to list a logbook of 100,000 records for the printer, from the file to the last line
// of the last page, beside the floor: the system's fold over the same file, in the same run. The
// counter "largest" is the most bytes that were asked for at once.

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>

#include "archive/logbook_listing.h"
#include "platform/posix/posix_files.h"

namespace {

constexpr std::size_t kRecords = 100000;

class Logbook {
 public:
  Logbook() {
    std::string pattern = (std::filesystem::temp_directory_path() / "kavrel-bench-XXXXXX").string();
    if (::mkdtemp(pattern.data()) == nullptr) std::abort();
    root_ = pattern;
    std::ofstream out(path());
    for (std::size_t i = 0; i < kRecords; ++i) {
      std::string record = std::to_string(i);
      record.resize(172, '.');
      out << record << '\n';
    }
  }
  ~Logbook() {
    std::error_code ignored;
    std::filesystem::remove_all(root_, ignored);
  }
  Logbook(const Logbook&) = delete;
  Logbook& operator=(const Logbook&) = delete;
  [[nodiscard]] const std::string& root() const { return root_; }
  [[nodiscard]] std::string path() const { return root_ + "/immt5.log"; }

 private:
  std::string root_;
};

class CountedFiles : public platform::posix::PosixFiles {
 public:
  using PosixFiles::PosixFiles;
  mutable std::uint64_t largest = 0;
  [[nodiscard]] platform::Result<std::string> read_part(const std::string& path, std::uint64_t from,
                                                        std::uint64_t count) const override {
    largest = std::max(largest, count);
    return PosixFiles::read_part(path, from, count);
  }
};

void listing_page_by_page(benchmark::State& state) {
  constexpr std::size_t kPage = 58;
  const Logbook logbook;
  platform::posix::SystemCalls calls;
  const platform::posix::PosixDriveMap map{logbook.root()};
  const CountedFiles files{map, calls};
  for (auto _ : state) {
    const archive::LogbookListing listing(files, "C:\\immt5.log", {2014, 11, 15, 11, 50, 0});
    std::size_t lines = 0;
    for (std::size_t first = 0; first < listing.size(); first += kPage)
      lines += listing.lines(first, kPage).size();
    if (lines != 2 + 3 * kRecords) state.SkipWithError("lines are missing");
  }
  state.counters["largest"] = static_cast<double>(files.largest);
}
BENCHMARK(listing_page_by_page)->UseRealTime()->Unit(benchmark::kMillisecond);

/// A page in the middle, as it is turned to.
void page_in_the_middle(benchmark::State& state) {
  const Logbook logbook;
  platform::posix::SystemCalls calls;
  const platform::posix::PosixDriveMap map{logbook.root()};
  const CountedFiles files{map, calls};
  const archive::LogbookListing listing(files, "C:\\immt5.log", {2014, 11, 15, 11, 50, 0});
  std::size_t page = 0;
  for (auto _ : state) {
    page = (page + 1999) % 5000;
    benchmark::DoNotOptimize(listing.lines(page * 60, 60));
  }
}
BENCHMARK(page_in_the_middle)->UseRealTime();

void floor_of_the_listing(benchmark::State& state) {
  const Logbook logbook;
  const std::string command = "fold -w 78 " + logbook.path() + " >/dev/null";
  for (auto _ : state) {
    if (std::system(command.c_str()) != 0) state.SkipWithError("fold failed");
  }
}
BENCHMARK(floor_of_the_listing)->UseRealTime()->Unit(benchmark::kMillisecond);

}  // namespace
