// The observation items screen.

#include <gtest/gtest.h>

#include <string>

#include "fakes/fake_files.h"
#include "fakes/fake_ports.h"
#include "ship/CKeyObserveDlg.h"
#include "text/ids.h"

namespace {

namespace id = text::id;
using fakes::dump;
using text::Language;

const std::string kPath = "C:\\kavrel\\file\\MOKSDATA.DAT";

struct Bench {
  fakes::FakeFiles files;
  fakes::World world{files};
  explicit Bench(Language language = Language::kEnglish) { world.texts.language = language; }
};

TEST(ItemsScreen, AcceptsItselfWhenTheFileIsThere) {
  Bench bench;
  bench.files.add_file(kPath, "010000000001");
  CKeyObserveDlg screen(bench.world.services, kPath, true);
  EXPECT_EQ(bench.world.windows.run_modal(screen), ui::kOk);
  EXPECT_FALSE(screen.values().observed(ObservationItem::VV));
  EXPECT_FALSE(screen.values().observed(ObservationItem::ciSibiDizi));
  EXPECT_TRUE(screen.values().observed(ObservationItem::h));
  EXPECT_EQ(bench.files.content(kPath), "010000000001");
}

TEST(ItemsScreen, AcceptsItselfWhenItWasToldOfAFileThatIsMissing) {
  Bench bench;
  CKeyObserveDlg screen(bench.world.services, kPath, true);
  EXPECT_EQ(bench.world.windows.run_modal(screen), ui::kOk);
  EXPECT_EQ(screen.values(), KeyObservationItems{});
  EXPECT_FALSE(bench.files.content(kPath));
}

TEST(ItemsScreen, ShowsDefaultsAndStaysOpenForAFileOfAWrongSize) {
  for (const char* content : {"", "11111111111", "1111111111111"}) {
    Bench bench;
    bench.files.add_file(kPath, content);
    CKeyObserveDlg screen(bench.world.services, kPath, true);
    screen.open();
    EXPECT_FALSE(screen.result());
    for (const ui::Choice& item : screen.items) EXPECT_EQ(item.selected, 0) << item.name;
    screen.press(screen.cancel);
    EXPECT_EQ(bench.files.content(kPath), content);
    EXPECT_EQ(screen.values(), KeyObservationItems{});
  }
}

TEST(ItemsScreen, TellsTheOfficerOfAFileThatCannotBeRead) {
  for (const Language language : {Language::kEnglish, Language::kJapanese}) {
    Bench bench(language);
    bench.files.add_file(kPath, "000000000000");
    bench.files.fail_path(kPath, platform::FileError::kAccessDenied);
    bench.world.windows.expect(id::kShipFileUnreadable);
    CKeyObserveDlg screen(bench.world.services, kPath, true);
    screen.open();
    EXPECT_FALSE(screen.result());
  }
}

TEST(ItemsScreen, WritesTheTwelveDigitsOnOk) {
  const char* const names[] = {"h",    "VV",   "N",         "Nh",        "CLCMCH",   "ww",
                               "W1W2", "PwHw", "dw1Pw1Hw1", "dw2Pw2Hw2", "IsEsEsRs", "ciSibiDizi"};
  for (std::size_t i = 0; i < std::size(names); ++i) {
    Bench bench;
    bench.files.add_folder("C:\\kavrel\\file");
    CKeyObserveDlg screen(bench.world.services, kPath, false);
    screen.open();
    ASSERT_NE(screen.find(names[i]), nullptr) << names[i];
    screen.choose(*screen.find(names[i]), 1);
    screen.press(screen.ok);
    EXPECT_EQ(screen.result(), ui::kOk);
    std::string digits(12, '0');
    digits[i] = '1';
    EXPECT_EQ(bench.files.content(kPath), digits) << names[i];
    EXPECT_TRUE(screen.values().not_observed[i]);
  }
}

TEST(ItemsScreen, WritesNothingOnCancel) {
  Bench bench;
  bench.files.add_file(kPath, "000000000001");
  CKeyObserveDlg screen(bench.world.services, kPath, false);
  screen.open();
  screen.choose(screen.items[0], 1);
  screen.key(ui::Key::kEscape);
  EXPECT_EQ(screen.result(), ui::kCancel);
  EXPECT_EQ(bench.files.content(kPath), "000000000001");
  EXPECT_TRUE(screen.values().observed(ObservationItem::h));
  EXPECT_FALSE(screen.values().observed(ObservationItem::ciSibiDizi));
}

TEST(ItemsScreen, SaysSoWhenTheFileCannotBeWrittenAndKeepsTheChoiceForThisRun) {
  for (const Language language : {Language::kEnglish, Language::kJapanese}) {
    Bench bench(language);
    bench.files.add_file(kPath, "000000000000");
    CKeyObserveDlg screen(bench.world.services, kPath, false);
    screen.open();
    screen.choose(screen.items[0], 1);
    bench.files.fail_next(fakes::FakeFiles::Operation::kStage, platform::FileError::kNoSpace);
    bench.world.windows.expect(id::kFileNotSaved);
    screen.press(screen.ok);
    EXPECT_EQ(screen.result(), ui::kOk);
    EXPECT_EQ(bench.files.content(kPath), "000000000000");
    EXPECT_FALSE(screen.values().observed(ObservationItem::h));
  }
}

// Later the program hands in what is in force: a file that could not be written, or was changed or
// damaged meanwhile, says nothing about it.
TEST(ItemsScreen, ShowsWhatIsInForceWhateverTheFileHolds) {
  for (const Language language : {Language::kEnglish, Language::kJapanese}) {
    for (const char* const file : {"000000000000", "111111111111", "", "0000", "none", "locked"}) {
      const std::string_view content = file;
      for (std::size_t off = 0; off < kObservationItems; ++off) {
        Bench bench(language);
        if (content != "none")
          bench.files.add_file(kPath, content == "locked" ? "000000000000" : file);
        const auto before = bench.files.snapshot();
        if (content == "locked") {
          bench.files.fail_path(kPath, platform::FileError::kAccessDenied);
          bench.world.windows.expect(id::kShipFileUnreadableInForce);
        }
        KeyObservationItems in_force;
        in_force.not_observed[off] = true;
        CKeyObserveDlg screen(bench.world.services, kPath, false, in_force);
        screen.open();
        for (std::size_t i = 0; i < kObservationItems; ++i)
          EXPECT_EQ(screen.items[i].selected, i == off ? 1 : 0) << content << screen.items[i].name;
        screen.choose(screen.items[0], 1);
        screen.press(screen.cancel);
        EXPECT_EQ(screen.values(), in_force) << content;
        EXPECT_EQ(bench.files.snapshot(), before);
      }
    }
  }
}

TEST(ItemsScreen, ShowsTheChoiceAgainThatCouldNotBeWritten) {
  Bench bench;
  bench.files.add_file(kPath, "000000000000");
  KeyObservationItems in_force;
  for (int round = 0; round < 3; ++round) {
    CKeyObserveDlg screen(bench.world.services, kPath, false, in_force);
    screen.open();
    EXPECT_EQ(screen.items[4].selected, round == 0 ? 0 : 1);
    screen.choose(screen.items[4], 1);
    if (round < 2) {
      bench.files.fail_next(fakes::FakeFiles::Operation::kStage, platform::FileError::kNoSpace);
      bench.world.windows.expect(id::kFileNotSaved);
    }
    screen.press(screen.ok);
    in_force = screen.values();
  }
  EXPECT_EQ(bench.files.content(kPath), "000010000000") << "the next OK writes it";
}

TEST(ItemsScreen, HasItsTextsInBothLanguages) {
  Bench bench;
  CKeyObserveDlg screen(bench.world.services, kPath, false);
  screen.open();
  EXPECT_EQ(screen.title(), "Select observation item");
  for (const ui::Choice& item : screen.items) {
    EXPECT_EQ(item.items, (std::vector<std::string>{"Observed", "Not observed"}));
    const std::string english = screen.caption(item);
    EXPECT_NE(english.find("(" + item.name + ")"), std::string::npos) << english;
    bench.world.japanese();
    EXPECT_FALSE(screen.caption(item).empty());
    EXPECT_NE(screen.caption(item), english);
    bench.world.texts.language = Language::kEnglish;
  }
  bench.world.japanese();
  EXPECT_EQ(screen.title(), "観測項目の選択");
}

TEST(ItemsScreen, OpensItsHelpTopic) {
  Bench bench(Language::kJapanese);
  CKeyObserveDlg screen(bench.world.services, kPath, false);
  screen.open();
  screen.key(ui::Key::kF1);
  EXPECT_EQ(bench.world.help_viewer.shown,
            (std::vector<std::string>{"C:\\program\\help\\Kavrel_J.CHM::/Capter4-2_J.htm"}));
}

}  // namespace
