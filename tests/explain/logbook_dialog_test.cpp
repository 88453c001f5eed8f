// The logbook as a table.

#include <gtest/gtest.h>

#include <algorithm>

#include "explain/CLogbookDlg.h"
#include "fakes/fake_ports.h"
#include "fakes/sample_logbook.h"
#include "fakes/sample_ship.h"
#include "text/ids.h"
#include "ui/dump.h"
#include "ui/printer.h"

namespace {

namespace id = text::id;
using fakes::logbook_line;

constexpr const char* kFolder = "C:\\log\\";
constexpr const char* kLog = "C:\\log\\immt5.log";

struct Shown {
  fakes::FakeFiles files;
  fakes::World world{files};
  ShipFixedData ship = fakes::sample_ship();
  KeyObservationItems items;

  [[nodiscard]] std::unique_ptr<CLogbookDlg> open(const std::string& folder = kFolder) {
    auto screen = std::make_unique<CLogbookDlg>(world.services, folder, ship, items);
    screen->open();
    return screen;
  }
};

/// The first words of each line.
std::vector<std::string> dates(const CLogbookDlg& screen) {
  std::vector<std::string> dates;
  for (const std::string& item : screen.observations.items) dates.push_back(item.substr(0, 13));
  return dates;
}

using Names = std::vector<std::string>;

TEST(LogbookDlg, TellsAnObservationInWordsAndFigures) {
  Shown shown;
  shown.files.add_file(kLog, logbook_line(14, 12, {{"LoDeg", "064"}, {"PPPP", "0129"}}) + "\n");
  const auto screen = shown.open();
  ASSERT_EQ(screen->observations.items.size(), 1U);
  EXPECT_EQ(screen->observations.items[0].substr(0, 32), "2014/11/14 12  35.7N   64.3E  27");
  EXPECT_NE(screen->observations.items[0].find("1012.9"), std::string::npos)
      << screen->observations.items[0];
  EXPECT_NE(screen->observations.items[0].find("  02 State of sky"), std::string::npos)
      << screen->observations.items[0];
  EXPECT_EQ(screen->remark.literal_caption, "Shown: 1 of 1 observations");
}

// A row is one line, whatever the weather is called; plain words tell the rest.
TEST(LogbookDlg, CutsLongWordsOffSoThatARowStaysOneLine) {
  constexpr std::size_t kMostColumns = 132;  // of a small screen with large letters
  for (const bool japanese : {false, true}) {
    Shown shown;
    if (japanese) shown.world.japanese();
    std::string log;
    for (int ww = 0; ww < 100; ++ww)
      log += logbook_line(14, ww % 24,
                          {{"ww", ww < 10 ? "0" + std::to_string(ww) : std::to_string(ww)}}) +
             "\n";
    shown.files.add_file(kLog, log);
    const auto screen = shown.open();
    ASSERT_EQ(screen->observations.items.size(), 100U);
    std::size_t cut = 0;
    for (const std::string& row : screen->observations.items) {
      EXPECT_LE(ui::columns_of(row), kMostColumns) << row;
      if (!row.ends_with("...")) continue;
      ++cut;
      EXPECT_TRUE(ui::is_utf8(row)) << row;
    }
    EXPECT_GT(cut, 0U);
    EXPECT_LT(cut, 100U);
  }
}

TEST(LogbookDlg, ShowsTheNewestFirstAndSortsByChoice) {
  Shown shown;
  shown.files.add_file(
      kLog, logbook_line(14, 6, {{"ff", "30"}, {"PPPP", "9900"}, {"LaDeg", "10"}}) + "\nx\n" +
                logbook_line(14, 0, {{"ff", "10"}, {"PPPP", ""}}) + "\n" +
                logbook_line(14, 3, {{"ff", "20"}, {"PPPP", "0300"}, {"Qc", "3"}}) + "\n");
  const auto screen = shown.open();
  const std::string damaged = "[line 2 is da";
  const std::string a = "2014/11/14 00";
  const std::string b = "2014/11/14 03";
  const std::string c = "2014/11/14 06";
  EXPECT_EQ(dates(*screen), (Names{c, b, a, damaged}));
  const std::pair<int, Names> rows[] = {{1, {a, b, c, damaged}}, {2, {a, c, b, damaged}},
                                        {4, {c, b, a, damaged}}, {5, {c, b, damaged, a}},
                                        {7, {damaged, c, a, b}}, {8, {c, damaged, a, b}},
                                        {0, {c, b, a, damaged}}};
  for (const auto& [order, wanted] : rows) {
    screen->choose(screen->order, order);
    EXPECT_EQ(dates(*screen), wanted) << order;
    EXPECT_EQ(screen->observations.selected, 0);
  }
}

TEST(LogbookDlg, EnterAndTheButtonOpenTheLineInPlainWords) {
  Shown shown;
  shown.files.add_file(kLog, logbook_line(14, 12, {{"PPPP", "0130"}}) + "\n");
  const auto screen = shown.open();
  for (const bool by_key : {true, false}) {
    shown.world.windows.expect_screen("CPlainWordsDlg", [](ui::Screen& words) {
      EXPECT_EQ(words.find("words")->literal_caption, "JXKV 2014/11/14 12 UTC");
      const auto& told = words.find("words")->items;
      EXPECT_TRUE(std::ranges::any_of(told, [](const std::string& line) {
        return line.find("1013.0") != std::string::npos;
      })) << testing::PrintToString(told);
      words.press(*words.find("ok"));
    });
    if (by_key)
      screen->key(ui::Key::kEnter);
    else
      screen->press(screen->open_line);
    EXPECT_FALSE(screen->result());
  }
}

TEST(LogbookDlg, EnterInTheChoiceOfOrderLeadsToTheList) {
  Shown shown;
  shown.files.add_file(kLog, logbook_line(14, 12) + "\n");
  const auto screen = shown.open();
  ASSERT_TRUE(screen->move_focus(screen->order));
  screen->key(ui::Key::kEnter);
  EXPECT_EQ(screen->focused(), &screen->observations);
  EXPECT_FALSE(screen->result());
}

TEST(LogbookDlg, SaysThatADamagedLineCannotBeOpened) {
  Shown shown;
  shown.files.add_file(kLog, "x\n");
  const auto screen = shown.open();
  shown.world.windows.expect(id::kLogLineDamaged);
  screen->key(ui::Key::kEnter);
}

TEST(LogbookDlg, CheckShowsTheSummary) {
  Shown shown;
  shown.files.add_file(kLog, logbook_line(14, 12) + "\nx\n");
  const auto screen = shown.open();
  shown.world.windows.expect_screen("CLogbookCheckDlg", [](ui::Screen& found) {
    EXPECT_TRUE(found.find("summary")->content.starts_with(
        "Lines: 2 (sound: 1, with errors: 1, with doubts: 0)\n"))
        << found.find("summary")->content;
    found.press(*found.find("ok"));
  });
  screen->press(screen->check);
}

TEST(LogbookDlg, SaysWhyThereIsNothing) {
  for (const bool japanese : {false, true}) {
    Shown shown;
    if (japanese) shown.world.japanese();
    const auto remark = [&](const std::string& folder = kFolder) {
      const auto screen = shown.open(folder);
      EXPECT_TRUE(screen->observations.items.empty());
      for (const ui::Button* const button :
           {&screen->open_line, &screen->check, &screen->show_all}) {
        EXPECT_FALSE(button->enabled);
        EXPECT_NE(button->why_locked, "");
      }
      screen->key(ui::Key::kEnter);
      EXPECT_EQ(screen->result(), ui::kOk) << "Enter is OK where nothing can be opened";
      return screen->remark.literal_caption;
    };
    EXPECT_EQ(remark(""), japanese ? "船舶気象観測表のフォルダが設定されていません。"
                                   : "No folder is set for the logbook.");
    EXPECT_EQ(remark(), japanese ? "C:\\log\\immt5.log：船舶気象観測表はまだありません。"
                                 : "C:\\log\\immt5.log: there is no logbook yet.");
    shown.files.add_file(kLog, "");
    EXPECT_EQ(remark(), japanese ? "C:\\log\\immt5.logに行がありません。"
                                 : "C:\\log\\immt5.log holds no line.");
    shown.files.fail_path(kLog, platform::FileError::kAccessDenied);
    EXPECT_EQ(remark(),
              japanese ? "C:\\log\\immt5.logを読み込めません（許可されていません）。読み込んだ行：0"
                       : "C:\\log\\immt5.log cannot be read (not permitted). Lines read: 0");
  }
}

TEST(LogbookDlg, ShowsAThousandOfALongLogbookAndAllOnRequest) {
  Shown shown;
  std::string log;
  for (int i = 0; i < 1200; ++i) log += logbook_line(14, 12) + "\n";
  shown.files.add_file(kLog, log);
  const auto screen = shown.open();
  EXPECT_EQ(screen->observations.items.size(), CLogbookDlg::kShownAtFirst);
  EXPECT_EQ(screen->remark.literal_caption, "Shown: 1000 of 1200 observations");
  screen->press(screen->show_all);
  EXPECT_EQ(screen->observations.items.size(), 1200U);
  EXPECT_FALSE(screen->show_all.enabled);
}

TEST(LogbookDlg, OnlyReads) {
  Shown shown;
  const std::string log = logbook_line(14, 12) + "\nx";
  shown.files.add_file(kLog, log);
  const auto screen = shown.open();
  screen->choose(screen->order, 4);
  screen->press(screen->ok);
  EXPECT_EQ(shown.files.snapshot(), (std::map<std::string, std::string>{{kLog, log}}));
}

}  // namespace
