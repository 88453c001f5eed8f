// What it costs to keep the entries, beside the floor: the same bytes put into the same place on
// the disk. Run where the ship's files lie: in memory a flush costs nothing.

#include <benchmark/benchmark.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <string>

#include "elements/form/draft.h"
#include "mainwindow/draft_keeper.h"
#include "platform/posix/posix_files.h"

namespace {

/// A full form: every field shows something.
elements::Draft draft() {
  elements::Draft draft;
  draft.call_sign = "JXKV";
  draft.ship_mark = elements::ship_mark({});
  for (const WeatherField& field : weather_fields()) draft.form.record.*field.member = "12";
  for (elements::Entry& entry : draft.form.fields) entry.text = "1012.5";
  draft.form.modified = true;
  return draft;
}

class Folder {
 public:
  Folder() {
    std::string pattern = (std::filesystem::current_path() / "kavrel-bench-XXXXXX").string();
    if (::mkdtemp(pattern.data()) == nullptr) std::abort();
    path_ = pattern;
    std::filesystem::create_directory(path_ / "file");
  }
  ~Folder() { std::filesystem::remove_all(path_); }
  Folder(const Folder&) = delete;
  Folder& operator=(const Folder&) = delete;
  [[nodiscard]] std::string path() const { return path_.string(); }

 private:
  std::filesystem::path path_;
};

void encode(benchmark::State& state) {
  const elements::Draft full = draft();
  for (auto _ : state) benchmark::DoNotOptimize(elements::encode_draft(full));
}
BENCHMARK(encode);

void decode(benchmark::State& state) {
  const std::string text = elements::encode_draft(draft());
  for (auto _ : state) benchmark::DoNotOptimize(elements::decode_draft(text));
}
BENCHMARK(decode);

/// The main window when nothing has changed: the draft is made and compared.
void pause_without_an_entry(benchmark::State& state) {
  const Folder folder;
  platform::posix::SystemCalls calls;
  const platform::posix::PosixDriveMap map{folder.path()};
  platform::posix::PosixFiles files{map, calls};
  mainwindow::DraftKeeper keeper(files, "C:\\file");
  (void)keeper.next_left();
  const elements::Draft full = draft();
  for (auto _ : state) {
    if (!keeper.keep(elements::encode_draft(full))) state.SkipWithError("not kept");
  }
}
BENCHMARK(pause_without_an_entry);

void pause_after_an_entry(benchmark::State& state) {
  const Folder folder;
  platform::posix::SystemCalls calls;
  const platform::posix::PosixDriveMap map{folder.path()};
  platform::posix::PosixFiles files{map, calls};
  mainwindow::DraftKeeper keeper(files, "C:\\file");
  (void)keeper.next_left();
  elements::Draft full = draft();
  for (auto _ : state) {
    std::string& year = full.form[elements::Field::kYear].text;
    year.back() = year.back() == '4' ? '5' : '4';
    if (!keeper.keep(elements::encode_draft(full))) state.SkipWithError("not kept");
  }
}
BENCHMARK(pause_after_an_entry)->UseRealTime();

void floor_of_a_pause_after_an_entry(benchmark::State& state) {
  const Folder folder;
  platform::posix::SystemCalls calls;
  const platform::posix::PosixDriveMap map{folder.path()};
  platform::posix::PosixFiles files{map, calls};
  const std::string text = elements::encode_draft(draft());
  for (auto _ : state) {
    if (files.replace("C:\\file\\DRAFT1.DAT", text) != platform::FileError::kNone)
      state.SkipWithError("not written");
  }
}
BENCHMARK(floor_of_a_pause_after_an_entry)->UseRealTime();

}  // namespace
