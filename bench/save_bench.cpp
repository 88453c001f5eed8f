// What the journal costs a save: the whole of it beside the same writing without a journal, which
// is a staged report, one locked and flushed line and the rename. The counter "flushes" is fsync
// calls a save. In a folder of the temporary directory, so on a disk where that is one.

#include <benchmark/benchmark.h>

#include <cstdlib>
#include <filesystem>
#include <string>

#include "observation/report_file.h"
#include "platform/posix/posix_files.h"

namespace {

constexpr std::size_t kRecord = 172;

class CountedCalls : public platform::posix::SystemCalls {
 public:
  int flushes = 0;
  int fsync(int file) override {
    ++flushes;
    return SystemCalls::fsync(file);
  }
};

class Place {
 public:
  Place() {
    std::string pattern = (std::filesystem::temp_directory_path() / "kavrel-bench-XXXXXX").string();
    if (::mkdtemp(pattern.data()) != nullptr) root_ = pattern;
  }
  ~Place() {
    std::error_code ignored;
    if (!root_.empty()) std::filesystem::remove_all(root_, ignored);
  }
  Place(const Place&) = delete;
  Place& operator=(const Place&) = delete;

  [[nodiscard]] const std::string& root() const { return root_; }

 private:
  std::string root_;
};

observation::SaveRequest request() {
  return {"C:\\14111512.tlx", "C:\\immt5.log", std::string(200, 'r'), std::string(kRecord, 'l'),
          true};
}

bool save_without_journal(platform::Files& files, const observation::SaveRequest& request) {
  const auto staged =
      files.stage(request.report_path, observation::report_file_content(request.message));
  const auto log = files.lock_log(request.logbook_path);
  return staged.ok() && log.ok() &&
         (*log.value)->append(request.logbook_line + "\n") == platform::FileError::kNone &&
         files.commit(*staged.value) == platform::FileError::kNone;
}

bool save_with_journal(platform::Files& files, const observation::SaveRequest& request) {
  return observation::save(files, request).outcome == observation::SaveOutcome::kSaved;
}

void measure(benchmark::State& state,
             bool (*save)(platform::Files&, const observation::SaveRequest&)) {
  const Place place;
  if (place.root().empty()) return state.SkipWithError("no temporary folder");
  CountedCalls calls;
  const platform::posix::PosixDriveMap map(place.root());
  platform::posix::PosixFiles files(map, calls);
  const auto wanted = request();
  for (auto _ : state)
    if (!save(files, wanted)) return state.SkipWithError("not saved");
  state.counters["flushes"] = benchmark::Counter(calls.flushes, benchmark::Counter::kAvgIterations);
}

void BM_SaveWithoutJournal_Floor(benchmark::State& state) {
  measure(state, save_without_journal);
}
BENCHMARK(BM_SaveWithoutJournal_Floor);

void BM_Save(benchmark::State& state) {
  measure(state, save_with_journal);
}
BENCHMARK(BM_Save);

}  // namespace
