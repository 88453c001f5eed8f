// Start-up and shut-down, every branch, with screens that are functions.

#include <gtest/gtest.h>

#include "app/CVelmaranApp.h"
#include "fakes/fake_files.h"
#include "fakes/fake_ports.h"
#include "observation/report_file.h"
#include "ship/data/ship_files.h"
#include "text/ids.h"

namespace {

using app::Dialogs;
using app::WorkingFolder;
using fakes::FakeFiles;
using platform::DriveType;
using platform::FileError;
using text::Language;

constexpr const char* kLive = "C:\\kavrel\\kavrel.ini";
constexpr const char* kSeed = "C:\\program\\kavrel.ini";
constexpr const char* kFixed = "C:\\kavrel\\file\\FIXDATA.DAT";
constexpr const char* kItems = "C:\\kavrel\\file\\MOKSDATA.DAT";
constexpr unsigned kJapaneseLocale = 0x0411;

class StartUp : public ::testing::Test {
 protected:
  FakeFiles files;
  fakes::World world{files};
  std::vector<std::string> asked;  ///< the screens, in order, with what they were told
  std::optional<std::string> chosen_folder = "C:\\chosen\\";
  bool confirm = true;
  ShipFixedData ship;
  KeyObservationItems items;
  std::function<void(ui::Services&, const mainwindow::MainWindowContext&)> in_main_window;

  StartUp() {
    files.add_folder("C:\\chosen");
    files.add_file(kSeed, ini("JPN"));
    ship.call_sign = "TEST1";
    items.set_observed(ObservationItem::VV, false);
  }

  /// A settings file with both working folders in place.
  static std::string ini(const std::string& language, const std::string& reports = "",
                         const std::string& logbook = "") {
    return "[KAVREL]\nLANG=" + language + "\nTLX=" + reports + "\nLOG=" + logbook + "\n";
  }
  void settle(const std::string& language = "ENG") {
    files.add_folder("C:\\tlx");
    files.add_folder("C:\\log");
    files.add_file(kLive, ini(language, "C:\\tlx\\", "C:\\log\\"));
  }
  void japanese_system() { world.locale.id = kJapaneseLocale; }

  Dialogs dialogs() {
    return {
        [this](ui::Services&, WorkingFolder which, const std::string& proposed,
               const Dialogs::Write& write) {
          const bool reports = which == WorkingFolder::kReports;
          asked.push_back((reports ? "reports " : "logbook ") + proposed);
          if (chosen_folder) write(reports ? "TLX" : "LOG", *chosen_folder);
          return chosen_folder;
        },
        [this](ui::Services&, const app::FixedDataQuestion& question) {
          asked.push_back("ship " + question.path + (question.exists ? " exists" : "") + " " +
                          question.reports + " " + question.logbook);
          return app::Answer<ShipFixedData>{confirm, ship};
        },
        [this](ui::Services&, const std::string& path, bool exists) {
          asked.push_back("items " + path + (exists ? " exists" : ""));
          return app::Answer<KeyObservationItems>{confirm, items};
        },
        [this](ui::Services& services, const mainwindow::MainWindowContext& context) {
          asked.push_back(services.texts.language == Language::kJapanese ? "main JPN" : "main ENG");
          if (in_main_window) in_main_window(services, context);
        }};
  }
  app::CVelmaranApp program() {
    return app::CVelmaranApp({world.clock, world.locale, world.drives, files, world.code_page,
                              world.printer, world.windows, world.help_viewer},
                             dialogs());
  }
  int run() { return program().run(); }
  std::string live() { return files.content(kLive).value_or("(none)"); }
};

using Asked = std::vector<std::string>;

TEST_F(StartUp, FirstStartSeedsAsksAndWritesBack) {
  EXPECT_EQ(run(), 0);
  EXPECT_EQ(asked, (Asked{"reports C:\\kavrel\\data", "logbook C:\\kavrel\\data",
                          std::string("ship ") + kFixed + " C:\\chosen\\ C:\\chosen\\",
                          std::string("items ") + kItems, "main ENG"}));
  EXPECT_EQ(live(), "[KAVREL]\nLANG=ENG\nTLX=C:\\chosen\\\nLOG=C:\\chosen\\\nFD=\n");
  EXPECT_TRUE(files.is_folder("C:\\kavrel\\file"));
  EXPECT_TRUE(files.is_folder("C:\\kavrel\\data"));
  EXPECT_EQ(files.content(kFixed),
            encode_fixed_data(ship, world.clock.local_time, world.code_page));
  EXPECT_EQ(files.content(kSeed), ini("JPN")) << "the seed stays as it was";
}

TEST_F(StartUp, AnInterruptedSaveIsFinishedAndToldBeforeAnythingElseIsAsked) {
  settle();
  const observation::SaveRequest request = {"C:\\tlx\\14111512.tlx", "C:\\log\\immt5.log", "BBXX",
                                            "LINE", false};
  FakeFiles trial = files;
  EXPECT_EQ(observation::save(trial, request).outcome, observation::SaveOutcome::kSaved);
  int commit = 1;
  while (!trial.log()[static_cast<std::size_t>(commit) - 1].starts_with("commit")) ++commit;
  files.kill_before(commit);
  EXPECT_THROW((void)observation::save(files, request), FakeFiles::Killed);
  files.heal();
  files.restart();
  world.windows.expect(text::id::kSaveFinished);
  EXPECT_EQ(run(), 0);
  world.windows.verify();
  EXPECT_EQ(files.content("C:\\tlx\\14111512.tlx"), "BBXX");
  EXPECT_EQ(files.content("C:\\log\\immt5.log"), "LINE\n");
  EXPECT_FALSE(files.content("C:\\log\\.kavrel-save"));
  asked.clear();
  EXPECT_EQ(run(), 0) << "and told once";
}

TEST_F(StartUp, SecondStartAsksForNoFolderAndTellsThatTheFilesExist) {
  settle();
  files.add_file(kFixed, "x");
  files.add_file(kItems, "y");
  EXPECT_EQ(run(), 0);
  EXPECT_EQ(asked, (Asked{std::string("ship ") + kFixed + " exists C:\\tlx\\ C:\\log\\",
                          std::string("items ") + kItems + " exists", "main ENG"}));
  EXPECT_EQ(files.content(kFixed), "x") << "an existing file is never written at start-up";
  EXPECT_EQ(files.content(kItems), "y");
}

TEST_F(StartUp, EndsSilentlyWithoutASettingsFileInBothPlaces) {
  ASSERT_EQ(files.remove(kSeed), FileError::kNone);
  const auto before = files.snapshot();
  EXPECT_EQ(run(), 1);
  EXPECT_EQ(asked, Asked{});
  EXPECT_EQ(files.snapshot(), before);
  EXPECT_TRUE(world.windows.boxes.empty());
}

TEST_F(StartUp, EndsSilentlyWhenTheSettingsFileCannotBeRead) {
  settle();
  files.fail_path(kLive, FileError::kAccessDenied);
  const auto before = files.snapshot();
  EXPECT_EQ(run(), 1);
  EXPECT_EQ(asked, Asked{});
  EXPECT_EQ(files.snapshot(), before);
  EXPECT_TRUE(world.windows.boxes.empty());
}

TEST_F(StartUp, EndsSilentlyWhenTheSeedCannotBeCopied) {
  files.fail_next(FakeFiles::Operation::kCopy, FileError::kNoSpace);
  EXPECT_EQ(run(), 1);
  EXPECT_EQ(asked, Asked{});
  EXPECT_FALSE(files.is_file(kLive));
}

TEST_F(StartUp, LanguageComesFromLocaleAndSettings) {
  const struct {
    unsigned locale;
    std::string lang;
    int status;
    std::string main;
    std::string written;
  } rows[] = {
      {0x0409, "JPN", 0, "main ENG", "ENG"},  {0x0409, "ENG", 0, "main ENG", "ENG"},
      {0x0409, "", 0, "main ENG", "ENG"},     {0x0411, "JPN", 0, "main JPN", "JPN"},
      {0x0411, "ENG", 0, "main ENG", "ENG"},  {0x0411, "jpn", 0, "main ENG", "ENG"},
      {0x0411, "JPN ", 0, "main ENG", "ENG"}, {0x0411, "", 1, "", ""},
      {0x0411, ";JPN", 1, "", ";JPN"},        {0x0C11, "JPN", 0, "main JPN", "JPN"},
      {0x0412, "JPN", 0, "main ENG", "ENG"},
  };
  for (const auto& row : rows) {
    asked.clear();
    settle(row.lang);
    world.locale.id = row.locale;
    EXPECT_EQ(run(), row.status) << row.lang;
    EXPECT_EQ(asked.empty() ? "" : asked.back(), row.main) << row.lang;
    EXPECT_NE(live().find("LANG=" + row.written + "\n"), std::string::npos) << live();
  }
}

TEST_F(StartUp, MissingLanguageKeyEndsSilentlyOnAJapaneseSystemOnly) {
  files.add_file(kLive, "[KAVREL]\nTLX=\n");
  japanese_system();
  EXPECT_EQ(run(), 1);
  EXPECT_EQ(asked, Asked{});
  EXPECT_EQ(live(), "[KAVREL]\nTLX=\n");
  EXPECT_FALSE(files.is_folder("C:\\kavrel\\file")) << "nothing is created then";
  world.locale.id = 0x0409;
  EXPECT_EQ(run(), 0);
}

TEST_F(StartUp, KeysAreFoundInAnyCase) {
  files.add_folder("C:\\tlx");
  files.add_file(kLive, "[kavrel]\nlang=JPN\ntlx=C:\\tlx;old\nLog=C:\\tlx\n");
  japanese_system();
  EXPECT_EQ(run(), 0);
  EXPECT_EQ(asked.front(), std::string("ship ") + kFixed + " C:\\tlx C:\\tlx");
  EXPECT_EQ(asked.back(), "main JPN");
}

TEST_F(StartUp, LanguageOfTheMomentIsWrittenAtExit) {
  settle("JPN");
  japanese_system();
  in_main_window = [](ui::Services& services, const auto&) {
    services.texts.language = Language::kEnglish;
  };
  EXPECT_EQ(run(), 0);
  EXPECT_NE(live().find("LANG=ENG\n"), std::string::npos);
}

// ---- Removable drive

TEST_F(StartUp, FirstFloppyDriveGivesLetterAndRoot) {
  settle();
  world.drives.list = {{'B', DriveType::kRemovable, 2},
                       {'C', DriveType::kFixed, 12},
                       {'E', DriveType::kRemovable, 2}};
  auto application = program();
  ASSERT_TRUE(application.read_settings());
  application.find_removable();
  EXPECT_EQ(application.settings().removable_letter, "B");
  EXPECT_EQ(application.settings().folders.removable_root, "B:\\");
  EXPECT_EQ(run(), 0);
  EXPECT_NE(live().find("FD=B\n"), std::string::npos);
}

TEST_F(StartUp, DriveOfTheLastRunIsNotReadBack) {
  files.add_file(kLive, ini("ENG", "A:\\tlx", "A:\\tlx") + "FD=A\n");
  chosen_folder = std::nullopt;
  EXPECT_EQ(run(), 0);
  EXPECT_EQ(asked.front(), "reports C:\\kavrel\\data");
  EXPECT_NE(live().find("FD=\n"), std::string::npos);
}

TEST(RemovableDrive, LetterThatIsSetGivesTheRoot) {
  const struct {
    const char* letter;
    const char* root;
  } rows[] = {{"A", "A:\\"}, {"A:", "A:\\"}, {"A:\\", "A:\\"}, {"B:\\x", "B:\\x\\"}};
  const fakes::FakeDrives drives;
  for (const auto& row : rows) {
    app::Settings settings;
    settings.removable_letter = row.letter;
    app::find_removable_drive(settings, drives);
    EXPECT_EQ(settings.folders.removable_root, row.root);
    EXPECT_EQ(settings.removable_letter, row.letter);
  }
}

// ---- Working folders

TEST_F(StartUp, FolderOnTheFloppyDriveIsAcceptedWithoutItsDisk) {
  files.add_file(kLive, ini("ENG", "A:\\TLX", "A:\\LOG"));
  files.set_medium_missing('A');
  world.drives.list = {{'A', DriveType::kRemovable, 2}, {'C', DriveType::kFixed, 12}};
  EXPECT_EQ(run(), 0);
  EXPECT_EQ(asked.front(), std::string("ship ") + kFixed + " A:\\TLX A:\\LOG");
}

TEST_F(StartUp, FolderOnAFloppyIsAskedForAgainWithoutAFloppyDrive) {
  files.add_file(kLive, ini("ENG", "A:\\TLX", "A:\\LOG"));
  files.set_medium_missing('A');
  EXPECT_EQ(run(), 0);
  EXPECT_EQ(asked[0], "reports C:\\kavrel\\data");
  EXPECT_EQ(asked[1], "logbook C:\\kavrel\\data");
  EXPECT_NE(live().find("TLX=C:\\chosen\\\nLOG=C:\\chosen\\\n"), std::string::npos) << live();
}

TEST_F(StartUp, CancelledFolderStaysEmptyAndTheProgramGoesOn) {
  files.add_file(kLive, ini("ENG", "C:\\gone", "C:\\gone"));
  chosen_folder = std::nullopt;
  mainwindow::Folders seen;
  in_main_window = [&](ui::Services&, const mainwindow::MainWindowContext& context) {
    seen = context.folders;
  };
  EXPECT_EQ(run(), 0);
  EXPECT_EQ(asked.back(), "main ENG");
  EXPECT_EQ(seen.reports, "");
  EXPECT_EQ(seen.logbook, "");
  EXPECT_EQ(live(), ini("ENG", "C:\\gone", "C:\\gone") + "FD=\n") << "the file keeps what it has";
}

TEST_F(StartUp, FileInPlaceOfAFolderIsAskedForAgain) {
  files.add_file("C:\\tlx", "a file");
  files.add_file(kLive, ini("ENG", "C:\\tlx", "C:\\chosen"));
  EXPECT_EQ(run(), 0);
  EXPECT_EQ(asked[0], "reports C:\\kavrel\\data");
  EXPECT_EQ(asked[1].substr(0, 4), "ship");
}

TEST_F(StartUp, OfficerIsToldWhenTheChosenFolderCannotBeKept) {
  files.add_file(kLive, ini("ENG", "", "C:\\chosen"));
  files.fail_next(FakeFiles::Operation::kStage, FileError::kNoSpace);
  world.windows.expect(text::id::kSettingsNotSaved);
  mainwindow::Folders seen;
  in_main_window = [&](ui::Services&, const mainwindow::MainWindowContext& context) {
    seen = context.folders;
  };
  EXPECT_EQ(run(), 0);
  EXPECT_EQ(seen.reports, "C:\\chosen\\") << "for this run it holds";
}

TEST_F(StartUp, FoldersThatCannotBeCreatedAreNotReported) {
  settle();
  files.fail_path("C:\\kavrel\\file", FileError::kAccessDenied);
  files.fail_path("C:\\kavrel\\data", FileError::kAccessDenied);
  EXPECT_EQ(run(), 0);
  EXPECT_TRUE(world.windows.boxes.empty());
}

// ---- Ship files

TEST_F(StartUp, ShipDataAreTakenWhateverTheAnswerButWrittenOnlyWhenConfirmed) {
  settle();
  confirm = false;
  auto seen = std::make_pair(ShipFixedData{}, KeyObservationItems{});
  in_main_window = [&](ui::Services&, const mainwindow::MainWindowContext& context) {
    seen = {context.ship, context.items};
  };
  EXPECT_EQ(run(), 0);
  EXPECT_EQ(seen.first, ship);
  EXPECT_EQ(seen.second, items);
  EXPECT_FALSE(files.is_file(kFixed));
}

TEST_F(StartUp, ShipFileThatCannotBeWrittenIsNotReported) {
  settle();
  files.fail_path(kFixed, FileError::kAccessDenied);
  EXPECT_EQ(run(), 0);
  EXPECT_FALSE(files.is_file(kFixed));
  EXPECT_TRUE(world.windows.boxes.empty());
}

TEST_F(StartUp, MainWindowSavesShipDataThroughTheApplication) {
  settle();
  files.add_file(kFixed, "x");
  in_main_window = [&](ui::Services&, const mainwindow::MainWindowContext& context) {
    context.ship.call_sign = "NEW";
    context.save_fixed_data();
  };
  EXPECT_EQ(run(), 0);
  ship.call_sign = "NEW";
  EXPECT_EQ(files.content(kFixed),
            encode_fixed_data(ship, world.clock.local_time, world.code_page));
}

TEST_F(StartUp, OfficerIsToldWhenTheMainWindowCannotSaveTheShipData) {
  settle();
  files.add_file(kFixed, "x");
  in_main_window = [&](ui::Services&, const mainwindow::MainWindowContext& context) {
    files.fail_path(kFixed, FileError::kAccessDenied);
    world.windows.expect_text(
        "The file C:\\kavrel\\file\\FIXDATA.DAT cannot be saved (not permitted).");
    context.save_fixed_data();
  };
  EXPECT_EQ(run(), 0);
  EXPECT_EQ(files.content(kFixed), "x");
}

// ---- Shut-down

TEST_F(StartUp, OfficerIsToldWhenTheSettingsCannotBeWrittenAtExit) {
  settle("JPN");
  files.fail_next(FakeFiles::Operation::kCommit, FileError::kAccessDenied);
  files.add_file(kFixed, "x");
  world.windows.expect(text::id::kSettingsNotSaved);
  EXPECT_EQ(run(), 0);
  EXPECT_EQ(live(), ini("JPN", "C:\\tlx\\", "C:\\log\\")) << "the old file, whole";
}

TEST_F(StartUp, SettingsFileThatVanishedIsSeededAgainAtExit) {
  settle();
  in_main_window = [&](ui::Services&, const auto&) {
    ASSERT_EQ(files.remove(kLive), FileError::kNone);
  };
  EXPECT_EQ(run(), 0);
  EXPECT_EQ(live(), "[KAVREL]\nLANG=ENG\nTLX=\nLOG=\nFD=\n");
}

TEST_F(StartUp, TheWindowsPlaceIsWrittenAtExitAndHandedToTheNextStart) {
  settle();
  in_main_window = [](ui::Services&, const mainwindow::MainWindowContext& context) {
    EXPECT_EQ(context.place, "");
    context.keep_place("100 50 1200 700 1");
  };
  EXPECT_EQ(run(), 0);
  EXPECT_EQ(live(), ini("ENG", "C:\\tlx\\", "C:\\log\\") + "FD=\nWINDOW=100 50 1200 700 1\n");
  const auto before = files.snapshot();
  std::string handed;
  in_main_window = [&](ui::Services&, const mainwindow::MainWindowContext& context) {
    handed = context.place;
  };
  EXPECT_EQ(run(), 0);
  EXPECT_EQ(handed, "100 50 1200 700 1");
  EXPECT_EQ(files.snapshot(), before) << "a front end without windows leaves it as it is";
}

TEST_F(StartUp, NothingIsWrittenWhenNothingChanged) {
  settle();
  files.add_file(kLive, "; mine\n" + ini("ENG", "C:\\tlx", "C:\\log") + "FD=\n");
  files.add_file(kFixed, "x");
  const auto before = files.snapshot();
  EXPECT_EQ(run(), 0);
  EXPECT_EQ(files.snapshot(), before);
}

TEST_F(StartUp, SeedLiesInTheCurrentFolderWhenTheProgramWasStartedWithoutAPath) {
  ASSERT_EQ(files.remove(kSeed), FileError::kNone);
  world.drives.program = "kavrel.exe";
  files.add_folder("C:\\here");
  files.set_current_folder("C:\\here");
  files.add_file("C:\\here\\kavrel.ini", ini("ENG"));
  EXPECT_EQ(run(), 0);
}

TEST_F(StartUp, SystemRootIsThatOfTheSystemsFolder) {
  world.drives.system = "D:\\system";
  EXPECT_EQ(run(), 0);
  EXPECT_TRUE(files.is_file("D:\\kavrel\\kavrel.ini"));
  EXPECT_TRUE(files.is_folder("D:\\kavrel\\data"));
}

TEST_F(StartUp, AKillAtAnyFileOperationLeavesEverySettingsAndShipFileWhole) {
  const std::vector<std::string> whole = {
      "", ini("JPN"), "[KAVREL]\nLANG=JPN\nTLX=C:\\chosen\\\nLOG=\n",
      "[KAVREL]\nLANG=JPN\nTLX=C:\\chosen\\\nLOG=C:\\chosen\\\n",
      "[KAVREL]\nLANG=ENG\nTLX=C:\\chosen\\\nLOG=C:\\chosen\\\nFD=\n"};
  const FakeFiles at_first = files;
  EXPECT_EQ(run(), 0);
  const int operations = files.operations() - at_first.operations();
  ASSERT_GT(operations, 10);
  for (int n = 1; n <= operations; ++n) {
    files = at_first;
    files.kill_before(n);
    EXPECT_THROW(run(), FakeFiles::Killed) << n;
    const auto text = files.content(kLive).value_or("");
    EXPECT_NE(std::find(whole.begin(), whole.end(), text), whole.end()) << n << text;
    const auto line = files.content(kFixed);
    EXPECT_TRUE(!line || line->size() == kFixedDataSize) << n;
    files.heal();
    EXPECT_EQ(run(), 0) << "the next start goes through, " << n;
  }
}

// For those who dislike it. The program never writes the line, and never takes it away.
TEST_F(StartUp, LetsAFullFieldMoveOnUnlessTheSettingsSayOff) {
  struct Row {
    const char* line;
    bool moves_on;
  };
  for (const Row& row :
       {Row{"", true}, Row{"MOVEON=OFF\n", false}, Row{"moveon=off\n", false},
        Row{"MOVEON= Off ;no\n", false}, Row{"MOVEON=ON\n", true}, Row{"MOVEON=\n", true},
        Row{"MOVEON=OFFICE\n", true}, Row{"MOVEON=NO\n", true}, Row{"MOVEON\n", true}}) {
    settle();
    files.add_file(kLive, ini("ENG", "C:\\tlx\\", "C:\\log\\") + row.line);
    std::optional<bool> told;
    in_main_window = [&told](ui::Services& services, const mainwindow::MainWindowContext&) {
      told = services.moves_on;
    };
    EXPECT_EQ(program().run(), 0);
    EXPECT_EQ(told, row.moves_on) << row.line;
    // A line without "=" gets one, as any other that the program does not know.
    if (const std::string_view line = row.line; line.find('=') != std::string_view::npos) {
      EXPECT_NE(files.content(kLive)->find(line), std::string::npos) << *files.content(kLive);
    }
  }
}

}  // namespace
