// The logbook of F4 with real keys on real widgets, from the main window and back.

#include <gtest/gtest.h>

#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <algorithm>
#include <functional>
#include <memory>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include "desktop_world.h"
#include "explain/CLogbookDlg.h"
#include "fakes/fake_files.h"
#include "fakes/sample_logbook.h"
#include "fakes/sample_ship.h"
#include "mainwindow/CVelmaranDlg.h"
#include "officer.h"
#include "ui/access_keys.h"

namespace {

using fakes::logbook_line;
using tests::press;

constexpr const char* kFolder = "C:\\log\\";
constexpr const char* kLog = "C:\\log\\immt5.log";

// Sound, sound, damaged, sound: the lowest pressure is in the first, the strongest wind in the last.
std::string log_with_a_damaged_line() {
  std::string log = logbook_line(14, 0, {{"PPPP", "9900"}}) + "\n";
  log += logbook_line(14, 3) + "\n";
  log += "3201411cut off\n";
  log += logbook_line(14, 6, {{"ff", "40"}}) + "\n";
  return log;
}

/// A widget of the dialog on top, by the name of its control.
template <class Widget>
Widget& on_top(std::string_view name) {
  auto* const window = qobject_cast<desktop::ScreenWindow*>(QApplication::activeModalWidget());
  auto* const widget = dynamic_cast<Widget*>(window->binding(name)->widget());
  if (widget == nullptr) throw std::runtime_error("another kind of widget: " + std::string(name));
  return *widget;
}

// ---- The dialog by itself

struct OwnLog {
  fakes::FakeFiles files;
  ShipFixedData ship = fakes::sample_ship();
  KeyObservationItems items;
};

/// The dialog in a window, over files of its own.
struct LogbookKeys : OwnLog {
  tests::DesktopWorld world;
  ui::Services services = world.over(files);
  std::unique_ptr<CLogbookDlg> screen;
  std::unique_ptr<desktop::ScreenWindow> window;

  void open(const std::string& folder = kFolder) {
    window.reset();
    screen = std::make_unique<CLogbookDlg>(services, folder, ship, items);
    screen->open();
    window = std::make_unique<desktop::ScreenWindow>(*screen, nullptr);
    tests::show(*window);
  }
  [[nodiscard]] QListWidget& list() const {
    return *dynamic_cast<QListWidget*>(window->binding("observations")->widget());
  }
  /// The first words of the row that the widget shows as chosen.
  [[nodiscard]] std::string row() const {
    const auto chosen = list().selectedItems();
    return chosen.isEmpty() ? std::string() : chosen.front()->text().left(13).toStdString();
  }
  void press_access_key(std::string_view name) const {
    const auto keys = ui::access_keys_of(*screen, ui::plan_of(*screen));
    const auto at =
        std::ranges::find_if(keys, [&](const auto& entry) { return entry.first->name == name; });
    ASSERT_NE(at, keys.end()) << name;
    QTest::keyClick(window.get(), static_cast<Qt::Key>(Qt::Key_A + (at->second - 'A')),
                    Qt::AltModifier);
    QApplication::processEvents();
  }
};

struct LogbookInAWindow : testing::Test, LogbookKeys {};

TEST_F(LogbookInAWindow, IsGoneThroughWithTheArrows) {
  files.add_file(kLog, log_with_a_damaged_line());
  open();
  EXPECT_EQ(QApplication::focusWidget(), &list());
  EXPECT_EQ(row(), "2014/11/14 06");
  press(Qt::Key_Down);
  EXPECT_EQ(row(), "2014/11/14 03");
  press(Qt::Key_End);
  EXPECT_EQ(row(), "[line 3 is da");
  press(Qt::Key_Up);
  EXPECT_EQ(row(), "2014/11/14 00");
  press(Qt::Key_Home);
  EXPECT_EQ(row(), "2014/11/14 06");
  EXPECT_FALSE(screen->result());
}

// Each order by the arrows in the choice itself, and Enter leads to the rows.
TEST_F(LogbookInAWindow, IsSortedWithTheKeyboard) {
  files.add_file(kLog, log_with_a_damaged_line());
  open();
  press(Qt::Key_Tab);
  ASSERT_EQ(screen->focused(), &screen->order);
  struct Row {
    const char* order;
    const char* first;
  };
  for (const Row& wanted :
       {Row{"Date, oldest first", "2014/11/14 00"}, Row{"Latitude, from north", "2014/11/14 00"},
        Row{"Longitude, from west", "2014/11/14 06"}, Row{"Wind, strongest first", "2014/11/14 06"},
        Row{"Pressure, lowest first", "2014/11/14 00"}}) {
    press(Qt::Key_Down);
    auto* const combo = qobject_cast<QComboBox*>(window->binding("order")->widget());
    EXPECT_EQ(combo->currentText().toStdString(), wanted.order);
    EXPECT_EQ(row(), wanted.first) << wanted.order;
  }
  press(Qt::Key_Return);
  EXPECT_EQ(QApplication::focusWidget(), &list());
  EXPECT_FALSE(screen->result());
  EXPECT_EQ(screen->order.selected, 5);
}

TEST_F(LogbookInAWindow, OpensPlainWordsWithEnterAndComesBackToTheRow) {
  files.add_file(kLog, log_with_a_damaged_line());
  open();
  press(Qt::Key_Down);
  for (const Qt::Key back : {Qt::Key_Escape, Qt::Key_Return}) {
    std::string title;
    tests::Officer officer({{"CPlainWordsDlg", [&] {
                               title = on_top<QListWidget>("words").item(1)->text().toStdString();
                               press(back);
                             }}});
    officer.begin();
    press(Qt::Key_Return);
    officer.expect_done();
    EXPECT_EQ(title, "JXKV  Call sign JXKV.");
    tests::show(*window);
    EXPECT_EQ(QApplication::focusWidget(), &list());
    EXPECT_EQ(row(), "2014/11/14 03");
    EXPECT_FALSE(screen->result());
  }
}

TEST_F(LogbookInAWindow, TellsWhyADamagedLineIsNotOpenedAndGoesOn) {
  files.add_file(kLog, log_with_a_damaged_line());
  open();
  press(Qt::Key_End);
  const auto told = tests::messages_of([] { press(Qt::Key_Return); });
  EXPECT_EQ(told, std::vector<std::string>{"Line 3 is damaged and cannot be read."});
  // No window manager makes the window active again.
  tests::show(*window);
  EXPECT_EQ(row(), "[line 3 is da");
  press(Qt::Key_Up);
  EXPECT_EQ(row(), "2014/11/14 00");
}

// What it says is scrolled by the keys and not typed over; Help leads to the page and back.
TEST_F(LogbookInAWindow, IsCheckedByTheAccessKey) {
  files.add_file(kLog, log_with_a_damaged_line());
  open();
  std::string words;
  tests::Officer officer({{"CLogbookCheckDlg", [&] {
                             auto& memo = on_top<QPlainTextEdit>("summary");
                             EXPECT_EQ(QApplication::focusWidget(), &memo);
                             tests::type("x");
                             press(Qt::Key_F1);
                             words = memo.toPlainText().toStdString();
                             press(Qt::Key_Escape);
                           }}});
  officer.begin();
  press_access_key("check");
  // A button pressed by its letter is seen to go down first.
  static_cast<void>(QTest::qWaitFor([&] { return !words.empty(); }));
  officer.expect_done();
  EXPECT_TRUE(words.starts_with("Lines: 4 (sound: ")) << words;
  EXPECT_NE(words.find("    Line 3\n"), std::string::npos) << words;
  ASSERT_EQ(world.fake.help_viewer.shown.size(), 1U);
  EXPECT_NE(world.fake.help_viewer.shown.front().find("Capter33"), std::string::npos);
  EXPECT_FALSE(screen->result());
}

TEST_F(LogbookInAWindow, IsStillThereAfterHelp) {
  files.add_file(kLog, log_with_a_damaged_line());
  open();
  press(Qt::Key_Down);
  press(Qt::Key_F1);
  ASSERT_EQ(world.fake.help_viewer.shown.size(), 1U);
  EXPECT_NE(world.fake.help_viewer.shown.front().find("Capter33"), std::string::npos);
  EXPECT_EQ(row(), "2014/11/14 03");
  EXPECT_FALSE(screen->result());
  press(Qt::Key_Escape);
  EXPECT_TRUE(screen->result());
}

TEST_F(LogbookInAWindow, IsClosedByItsOwnKeyFromEachControl) {
  files.add_file(kLog, log_with_a_damaged_line());
  for (int tabs = 0; tabs < 6; ++tabs) {
    open();
    for (int i = 0; i < tabs; ++i) press(Qt::Key_Tab);
    press(Qt::Key_F4);
    EXPECT_TRUE(screen->result()) << tabs;
  }
}

TEST_F(LogbookInAWindow, SaysWhyThereIsNothingAndIsLeftByEitherKey) {
  struct Row {
    const char* name;
    const char* folder;
    const char* said;
    std::function<void()> make;
  };
  const Row rows[] = {
      {"no folder", "", "No folder is set for the logbook.", [] {}},
      {"no logbook", kFolder, "C:\\log\\immt5.log: there is no logbook yet.", [] {}},
      {"empty", kFolder, "C:\\log\\immt5.log holds no line.", [this] { files.add_file(kLog, ""); }},
      {"unreadable", kFolder, "C:\\log\\immt5.log cannot be read (not permitted). Lines read: 0",
       [this] { files.fail_path(kLog, platform::FileError::kAccessDenied); }}};
  for (const Row& place : rows) {
    place.make();
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Escape, Qt::Key_F4}) {
      open(place.folder);
      EXPECT_EQ(list().count(), 0) << place.name;
      const auto* const label = qobject_cast<QLabel*>(window->binding("remark")->widget());
      ASSERT_NE(label, nullptr);
      EXPECT_EQ(label->text().toStdString(), place.said);
      for (const Qt::Key arrow : {Qt::Key_Down, Qt::Key_Up, Qt::Key_End, Qt::Key_Home})
        press(arrow);
      EXPECT_FALSE(screen->result()) << place.name;
      press(key);
      EXPECT_TRUE(screen->result()) << place.name << " " << key;
    }
  }
}

// ---- From the main window

struct Voyage : OwnLog {
  tests::DesktopWorld world;
  mainwindow::Folders folders;
  ui::Services services = world.over(files);
};

TEST(LogbookFromTheMainWindow, LeavesAHalfTypedFieldAsItIs) {
  const auto voyage = std::make_unique<Voyage>();
  voyage->folders.logbook = kFolder;
  voyage->files.add_file(kLog, log_with_a_damaged_line());
  const auto screen = std::make_unique<CVelmaranDlg>(
      voyage->services,
      mainwindow::MainWindowContext{voyage->ship, voyage->items, voyage->folders, {}});
  screen->open();
  desktop::ScreenWindow window(*screen, nullptr);
  tests::show(window);
  for (const char* const text : {"2014", "11", "15", "12"}) {
    tests::type(text);
    press(Qt::Key_Tab);
  }
  while (screen->focused()->name != "PPPP") press(Qt::Key_Tab);
  tests::type("1031.");
  for (const Qt::Key back : {Qt::Key_Escape, Qt::Key_F4}) {
    int rows = 0;
    tests::Officer officer({{"CLogbookDlg", [&] {
                               rows = on_top<QListWidget>("observations").count();
                               press(back);
                             }}});
    officer.begin();
    press(Qt::Key_F4);
    officer.expect_done();
    EXPECT_EQ(rows, 4);
    // No window manager makes the window active again.
    tests::show(window);
    auto* const field = qobject_cast<QLineEdit*>(QApplication::focusWidget());
    ASSERT_NE(field, nullptr);
    EXPECT_TRUE(window.binding("PPPP")->owns(field));
    EXPECT_EQ(field->cursorPosition(), field->text().size()) << "typing goes on where it was";
    EXPECT_FALSE(field->hasSelectedText());
    tests::type("2");
    press(Qt::Key_Backspace);
    EXPECT_EQ(field->text().toStdString(), "1031.");
    EXPECT_EQ(screen->form().entered(elements::Field::kPPPP), "") << "nothing is taken yet";
  }
}

TEST(LogbookFromTheMainWindow, OpensOnTheFirstVoyageToo) {
  const auto voyage = std::make_unique<Voyage>();
  const auto screen = std::make_unique<CVelmaranDlg>(
      voyage->services,
      mainwindow::MainWindowContext{voyage->ship, voyage->items, voyage->folders, {}});
  screen->open();
  desktop::ScreenWindow window(*screen, nullptr);
  tests::show(window);
  tests::Officer officer({{"CLogbookDlg", [] { press(Qt::Key_Return); }}});
  officer.begin();
  press(Qt::Key_F4);
  officer.expect_done();
}

}  // namespace
