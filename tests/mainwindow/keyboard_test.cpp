// Keys of the main window.

#include <gtest/gtest.h>

#include <memory>
#include <set>
#include <string>
#include <vector>

#include "mainwindow/element_openers.h"
#include "window.h"

namespace {

namespace id = text::id;
using main_window::Opened;
using ui::Key;

TEST(MainWindowKeys, EnterAndEscapeDoNothingInAnyField) {
  const auto opened = std::make_unique<Opened>();
  int fields = 0;
  for (ui::Control* const control : opened->window.controls()) {
    if (!control->can_focus()) continue;
    ASSERT_TRUE(opened->window.move_focus(*control)) << control->name;
    const std::string before = opened->state();
    for (const Key key : {Key::kEnter, Key::kEscape}) {
      opened->window.key(key);
      EXPECT_FALSE(opened->window.result().has_value()) << control->name;
      EXPECT_EQ(control, opened->window.focused()) << control->name;
      EXPECT_EQ(before, opened->state()) << control->name;
    }
    ++fields;
  }
  EXPECT_LT(40, fields);
}

TEST(MainWindowKeys, FirstFieldHasTheFocusWhenTheWindowOpens) {
  const auto opened = std::make_unique<Opened>();
  ASSERT_NE(nullptr, opened->window.focused());
  EXPECT_EQ("Year", opened->window.focused()->name);
}

TEST(MainWindowKeys, AFieldThatGetsTheFocusHasItsFirstTenCharactersSelected) {
  const auto opened = std::make_unique<Opened>();
  opened->window.key(Key::kTab);
  EXPECT_EQ("Month", opened->window.focused()->name);
  EXPECT_EQ(10, opened->window.selection_length());
}

TEST(MainWindowKeys, TabGoesThroughTheFieldsInTheOrderOfAnObservation) {
  const auto opened = std::make_unique<Opened>();
  std::vector<std::string> walked;
  do {
    walked.push_back(opened->window.focused()->name);
    opened->window.key(Key::kTab);
  } while (opened->window.focused()->name != "Year" && walked.size() < 200);
  // What an empty observation on this ship asks nothing of. With Shift every field is reached.
  const std::set<std::string> passed_by = {"GGExact", "gg",     "loading_state", "freeze",
                                           "dw2dw2",  "Pw2Pw2", "Hw2Hw2"};
  std::vector<std::string> expected;
  std::vector<std::string> all;
  for (const mainwindow::FieldRow& row : mainwindow::field_rows()) {
    if (!opened->control(row.name).can_focus()) continue;
    all.emplace_back(row.name);
    if (!passed_by.contains(all.back())) expected.push_back(all.back());
  }
  for (const mainwindow::ReportGroupRow& row : mainwindow::report_group_rows()) {
    expected.emplace_back(row.name);
    all.emplace_back(row.name);
  }
  EXPECT_EQ(expected, walked);
  std::vector<std::string> back;
  for (std::size_t i = 0; i < all.size(); ++i) {
    opened->window.key(Key::kShiftTab);
    back.insert(back.begin(), opened->window.focused()->name);
  }
  EXPECT_EQ(all, back);
}

TEST(MainWindowKeys, F1InAFieldWithoutADialogSaysSo) {
  ShipFixedData ship = main_window::sample_ship();
  ship.wave_recorder = true;
  for (const bool japanese : {false, true}) {
    const auto opened = std::make_unique<Opened>(ship);
    if (japanese) opened->world.japanese();
    ASSERT_TRUE(opened->window.move_focus(opened->control("PwaPwa")));
    const std::string before = opened->state();
    opened->world.windows.expect(id::kNoSubWindow);
    opened->window.key(Key::kF1);
    ASSERT_EQ(1U, opened->world.windows.boxes.size());
    EXPECT_EQ(
        japanese ? "この要素には補助画面はありません。" : "This element does not have sub window.",
        opened->world.windows.boxes[0].text);
    EXPECT_EQ("KAVREL for WIN", opened->world.windows.boxes[0].title);
    EXPECT_EQ(before, opened->state());
  }
}

TEST(TabFlags, TellWhichWayTabLeftTheField) {
  struct Row {
    std::vector<bool> shifts;
    int first;
    int second;
  };
  for (const Row& row :
       {Row{{}, 1, 1}, Row{{true}, 2, 5}, Row{{false}, 3, 3}, Row{{true, false}, 4, 5},
        Row{{true, true}, 2, 5}, Row{{false, true}, 3, 3}, Row{{true, false, true}, 4, 5}}) {
    mainwindow::TabFlags flags;
    flags.arm();
    for (const bool shift : row.shifts) flags.advance(shift);
    EXPECT_EQ(row.first, flags.first) << row.shifts.size();
    EXPECT_EQ(row.second, flags.second) << row.shifts.size();
  }
  mainwindow::TabFlags idle;
  idle.advance(false);
  idle.advance(true);
  EXPECT_EQ(0, idle.first);
  EXPECT_EQ(0, idle.second);
}

TEST(TabFlags, WaitForTheNextTabWhereverTheFocusCameFrom) {
  const auto opened = std::make_unique<Opened>();
  const auto waiting = [&] {
    return opened->window.tab_flags().first == 1 && opened->window.tab_flags().second == 1;
  };
  EXPECT_TRUE(waiting());  // the first field of a window that has just opened
  opened->window.key(Key::kTab);
  EXPECT_TRUE(waiting());  // the field that Tab went to
  opened->control("Month").on_leave = [&] {
    EXPECT_EQ(3, opened->window.tab_flags().first);
    return false;
  };
  opened->window.key(Key::kTab);
  EXPECT_FALSE(waiting());  // Tab was refused
  opened->control("Month").on_leave = nullptr;
  opened->world.windows.expect_screen("CDvDsDlg",
                                      [](ui::Screen& screen) { screen.press(*screen.find("ok")); });
  opened->press("label_ship_speed");
  EXPECT_EQ("reading", opened->window.focused()->name);  // the loading state is passed by
  EXPECT_TRUE(waiting());                                // the field behind a dialog's element
}

TEST(TabFlags, AreSetBeforeTheFieldLeftIsChecked) {
  const auto opened = std::make_unique<Opened>();
  ASSERT_TRUE(opened->window.move_focus(opened->control("VV")));
  EXPECT_EQ(1, opened->window.tab_flags().first);
  opened->control("VV").on_leave = [&] {
    EXPECT_EQ(2, opened->window.tab_flags().first);
    EXPECT_EQ(5, opened->window.tab_flags().second);
    return false;
  };
  opened->window.key(Key::kShiftTab);
  EXPECT_EQ("VV", opened->window.focused()->name);
}

}  // namespace
