// "Cannot tell" is not "not there". One error at any look, read or other file call of a whole
// start-up, or a file that never answers, leaves the settings and the ship's files as they are, and
// no default comes into force without a word.

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <string>
#include <utility>

#include "app/CVelmaranApp.h"
#include "fakes/fake_files.h"
#include "fakes/fake_ports.h"
#include "fakes/sample_ship.h"
#include "ship/data/ship_files.h"
#include "text/ids.h"

namespace {

using platform::FileError;

constexpr const char* kLive = "C:\\kavrel\\kavrel.ini";
constexpr const char* kSeed = "C:\\program\\kavrel.ini";
constexpr const char* kFixed = "C:\\kavrel\\file\\FIXDATA.DAT";
constexpr const char* kItems = "C:\\kavrel\\file\\MOKSDATA.DAT";
constexpr const char* kReports = "C:\\tlx\\";
constexpr const char* kLogbook = "C:\\log\\";
constexpr const char* kSettings =
    "[KAVREL]\nLANG=ENG\nTLX=C:\\tlx\\\nLOG=C:\\log\\\nTLXC=D:\\t\nLOGC=D:\\l\nFD=\n";

// What an operating system says instead of an answer: no permission, input or output error, too
// many open files, no medium, links in a circle, no memory.
constexpr FileError kErrors[] = {FileError::kAccessDenied, FileError::kOther,
                                 FileError::kTooManyOpen,  FileError::kMediumMissing,
                                 FileError::kBadLink,      FileError::kNoMemory};

/// Files of which one call goes wrong, counted over all that can.
class OneCallFails : public fakes::FakeFiles {
 public:
  int fails = 0;  ///< which call, from 1; none when 0
  FileError with = FileError::kNone;
  mutable int calls = 0;

  [[nodiscard]] platform::Look look(const std::string& path) const override {
    if (is_it()) return {platform::There::kCannotTell, with};
    return FakeFiles::look(path);
  }
  [[nodiscard]] platform::Result<std::string> read(const std::string& path,
                                                   std::uint64_t largest) const override {
    if (is_it()) return with;
    return FakeFiles::read(path, largest);
  }
  [[nodiscard]] platform::Result<std::string> read_part(const std::string& path, std::uint64_t from,
                                                        std::uint64_t count) const override {
    if (is_it()) return with;
    return FakeFiles::read_part(path, from, count);
  }
  [[nodiscard]] platform::Result<platform::StagedFile> stage(const std::string& path,
                                                             std::string_view content) override {
    if (is_it()) return with;
    return FakeFiles::stage(path, content);
  }
  [[nodiscard]] platform::Result<std::vector<platform::FolderEntry>> list(
      const std::string& folder) const override {
    if (is_it()) return with;
    return FakeFiles::list(folder);
  }
  [[nodiscard]] FileError create_folder(const std::string& path) override {
    return is_it() ? with : FakeFiles::create_folder(path);
  }
  [[nodiscard]] FileError copy(const std::string& from, const std::string& to) override {
    return is_it() ? with : FakeFiles::copy(from, to);
  }
  [[nodiscard]] FileError clear_read_only(const std::string& path) override {
    return is_it() ? with : FakeFiles::clear_read_only(path);
  }

 private:
  [[nodiscard]] bool is_it() const { return ++calls == fails; }
};

ShipFixedData ship() {
  ShipFixedData data = fakes::sample_ship();
  data.card = fakes::total_card("+1.5");
  return data;
}

KeyObservationItems items() {
  KeyObservationItems result;
  result.set_observed(ObservationItem::VV, false);
  return result;
}

/// A ship that has been in use, started once more; whatever comes is answered with Yes or OK, and a
/// screen closed by its close box.
struct Start {
  OneCallFails files;
  fakes::World world{files};
  ShipFixedData saved;
  bool main_window_shown = false;
  ShipFixedData ship_in_force;
  KeyObservationItems items_in_force;
  mainwindow::Folders folders;

  Start() {
    for (const char* folder : {kReports, kLogbook, "C:\\kavrel\\data"}) files.add_folder(folder);
    files.add_file(kSeed, "[KAVREL]\nLANG=JPN\nTLX=\nLOG=\n");
    files.add_file(kLive, kSettings);
    files.add_file(kFixed, encode_fixed_data(ship(), world.clock.local_time, world.code_page));
    files.add_file(kItems, encode_key_items(items()));
    saved = as_read_back(ship(), world.clock.utc_time, world.code_page);
    world.windows.answer_all("yes");
  }

  int run() {
    app::Dialogs dialogs = app::real_dialogs();
    dialogs.main_window = [this](ui::Services&, const mainwindow::MainWindowContext& context) {
      main_window_shown = true;
      ship_in_force = context.ship;
      items_in_force = context.items;
      folders = context.folders;
    };
    return run(std::move(dialogs));
  }

  int run(app::Dialogs dialogs) {
    return app::CVelmaranApp({world.clock, world.locale, world.drives, files, world.code_page,
                              world.printer, world.windows, world.help_viewer},
                             std::move(dialogs))
        .run();
  }

  [[nodiscard]] bool was_told_of(const std::string& name) const {
    return std::any_of(world.windows.boxes.begin(), world.windows.boxes.end(),
                       [&](const auto& box) { return box.text.find(name) != std::string::npos; });
  }

  /// What must be true whatever went wrong.
  void check(const std::map<std::string, std::string>& before) const {
    EXPECT_EQ(files.snapshot(), before);
    EXPECT_EQ(std::count(world.windows.notices.begin(), world.windows.notices.end(),
                         "modal CLogDiskSavePathDlg"),
              0)
        << "the folders are there";
    if (!main_window_shown) return;
    EXPECT_EQ(folders.reports, kReports);
    EXPECT_EQ(folders.logbook, kLogbook);
    if (ship_in_force != saved) {
      EXPECT_TRUE(was_told_of(kFixed));
    }
    if (items_in_force != items()) {
      EXPECT_TRUE(was_told_of(kItems));
    }
  }
};

TEST(CannotTell, ErrorAtAnyOneFileCallOfAStartUpChangesNothingAndIsNeverADefaultUntold) {
  Start whole;
  ASSERT_EQ(whole.run(), 0);
  ASSERT_TRUE(whole.world.windows.boxes.empty());
  ASSERT_EQ(whole.ship_in_force, whole.saved);
  const int calls = whole.files.calls;
  ASSERT_GT(calls, 8);
  for (const FileError error : kErrors) {
    for (int n = 1; n <= calls; ++n) {
      SCOPED_TRACE("error " + std::to_string(static_cast<int>(error)) + " at call " +
                   std::to_string(n));
      Start start;
      const auto before = start.files.snapshot();
      start.files.fails = n;
      start.files.with = error;
      const int status = start.run();
      EXPECT_EQ(status, start.main_window_shown ? 0 : 1);
      start.check(before);
    }
  }
}

TEST(CannotTell, FileOrFolderThatNeverAnswersIsNamedWithTheReasonAndStaysAsItIs) {
  const struct {
    const char* path;
    bool starts;
  } rows[] = {{kLive, false}, {kFixed, true}, {kItems, true}, {kReports, true}, {kLogbook, true}};
  for (const FileError error : kErrors) {
    for (const auto& row : rows) {
      SCOPED_TRACE(std::string(row.path) + " error " + std::to_string(static_cast<int>(error)));
      Start start;
      const auto before = start.files.snapshot();
      start.files.fail_look(row.path, error);
      start.files.fail_path(row.path, error);
      EXPECT_EQ(start.run(), row.starts ? 0 : 1);
      EXPECT_EQ(start.main_window_shown, row.starts);
      EXPECT_EQ(start.was_told_of(row.path), row.starts);
      start.check(before);
    }
  }
}

TEST(CannotTell, FolderInPlaceOfAShipFileIsUnreadableNotMissing) {
  for (const char* const path : {kFixed, kItems}) {
    Start start;
    ASSERT_EQ(start.files.remove(path), FileError::kNone);
    start.files.add_folder(path);
    EXPECT_EQ(start.run(), 0);
    EXPECT_TRUE(start.was_told_of(path));
    EXPECT_TRUE(start.files.is_folder(path));
  }
}

// Between the look and the read the file may go, or what it links to.
TEST(CannotTell, SettingsThatVanishWhileTheyAreOpenedAreNotMadeAnew) {
  for (const FileError error : {FileError::kNotFound, FileError::kBadLink}) {
    Start start;
    const auto before = start.files.snapshot();
    start.files.fail_next(fakes::FakeFiles::Operation::kRead, error);
    EXPECT_EQ(start.run(), 1);
    EXPECT_EQ(start.files.snapshot(), before);
  }
}

TEST(CannotTell, SettingsThatCannotBeLookedAtAtExitAreToldAndKept) {
  Start start;
  start.files.add_file(kLive, "[KAVREL]\nLANG=ENG\nTLX=C:\\tlx\\\nLOG=C:\\log\\\n");
  const auto before = start.files.snapshot();
  app::Dialogs dialogs = app::real_dialogs();
  dialogs.main_window = [&](ui::Services&, const mainwindow::MainWindowContext&) {
    start.files.fail_look(kLive, FileError::kAccessDenied);
  };
  EXPECT_EQ(start.run(dialogs), 0);
  EXPECT_TRUE(start.was_told_of(kLive));
  EXPECT_EQ(start.files.snapshot(), before);
}

TEST(CannotTell, FixedDataEnteredWhileTheFileDidNotAnswerAreWrittenOnlyWhenThereIsNone) {
  for (const bool exists : {true, false}) {
    Start start;
    if (!exists) {
      ASSERT_EQ(start.files.remove(kFixed), FileError::kNone);
    }
    const auto before = start.files.content(kFixed);
    start.files.fail_look(kFixed, FileError::kOther);
    app::Dialogs dialogs = app::real_dialogs();
    dialogs.fixed_data = [&](ui::Services&, const app::FixedDataQuestion& question) {
      EXPECT_FALSE(question.exists) << "it must not accept itself";
      start.files.heal();
      ShipFixedData entered = ship();
      entered.call_sign = "NEW";
      return app::Answer<ShipFixedData>{true, entered};
    };
    dialogs.main_window = [](ui::Services&, const mainwindow::MainWindowContext&) {};
    EXPECT_EQ(start.run(dialogs), 0);
    EXPECT_EQ(start.files.content(kFixed) == before, exists);
    EXPECT_TRUE(start.files.is_file(kFixed));
  }
}

TEST(CannotTell, AnotherFolderMayBeChosenForOneThatCannotBeLookedAt) {
  for (const bool choose : {true, false}) {
    Start start;
    start.files.fail_look(kReports, FileError::kAccessDenied);
    start.world.windows.answer_all("no");
    app::Dialogs dialogs = app::real_dialogs();
    dialogs.working_folder = [&](ui::Services&, app::WorkingFolder which, const std::string&,
                                 const app::Dialogs::Write& write) -> std::optional<std::string> {
      EXPECT_EQ(which, app::WorkingFolder::kReports);
      if (!choose) return std::nullopt;
      write("TLX", "C:\\other\\");
      return "C:\\other\\";
    };
    std::string in_force;
    dialogs.main_window = [&](ui::Services&, const mainwindow::MainWindowContext& context) {
      in_force = context.folders.reports;
    };
    EXPECT_EQ(start.run(dialogs), 0);
    ASSERT_EQ(start.world.windows.boxes.size(), 1U);
    EXPECT_EQ(start.world.windows.boxes[0].text,
              "The folder C:\\tlx\\ cannot be checked (not permitted).\n"
              "Use it all the same? Choose NO to pick another one.");
    EXPECT_EQ(in_force, choose ? "C:\\other\\" : kReports);
    EXPECT_EQ(start.files.content(kLive)->find("TLX=C:\\tlx\\\n") == std::string::npos, choose);
  }
}

// A drive that has been taken away and a name that no folder can have are answers.
TEST(CannotTell, FolderOfADriveThatIsGoneIsAskedForAgain) {
  const fakes::FakeDrives drives;
  fakes::FakeFiles files;
  files.set_medium_missing('D');
  files.fail_look("C:\\a\\", FileError::kBadName);
  files.fail_look("C:\\b\\", FileError::kMediumMissing);
  // The drive that one cannot look at may be there.
  files.fail_look("E:\\tlx", FileError::kOther);
  const struct {
    const char* folder;
    app::FolderState state;
  } rows[] = {{"", app::FolderState::kGone},           {"D:\\tlx\\", app::FolderState::kGone},
              {"d:\\tlx\\", app::FolderState::kGone},  {"C:\\none", app::FolderState::kGone},
              {"C:\\a\\", app::FolderState::kGone},    {"C:\\b\\", app::FolderState::kUncertain},
              {"c:\\b", app::FolderState::kUncertain}, {"C:\\", app::FolderState::kUsable},
              {"A:\\tlx", app::FolderState::kUsable},  {"E:\\tlx", app::FolderState::kUncertain}};
  for (const auto& row : rows)
    EXPECT_EQ(app::check_working_folder(row.folder, "A:\\", files, drives).state, row.state)
        << row.folder;
}

}  // namespace
