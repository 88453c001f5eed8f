// The line that a key leads to and the line that typed characters stand for.

#include "ui/line_keys.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

#include "fakes/fake_ports.h"
#include "text/ids.h"

namespace {

using ui::Key;
using ui::Kind;

constexpr Key kEveryKey[] = {Key::kF1,  Key::kEnter,  Key::kEscape,   Key::kTab,   Key::kShiftTab,
                             Key::kUp,  Key::kDown,   Key::kLeft,     Key::kRight, Key::kHome,
                             Key::kEnd, Key::kPageUp, Key::kPageDown, Key::kSpace};

// One control of each kind that has lines.
class CLinesDlg : public ui::Screen {
 public:
  explicit CLinesDlg(ui::Services& services) : Screen(services, "CLinesDlg", {}) {
    codes.item_codes = {"//", "99", "98", "1", "10"};
    codes.items = {"unknown", "far", "near", "one", "ten"};
    list.items = {"  Same", " Steady", "Risen", "&Sunk"};
    for (ui::Control* const c :
         {static_cast<ui::Control*>(&codes), static_cast<ui::Control*>(&list)})
      c->on_change = [this] { ++changes; };
  }
  ui::Edit edit{*this, "edit"};
  ui::Choice codes{*this, "codes", {}, {}};
  ui::List list{*this, "list"};
  ui::Memo pages{*this, "pages"};
  int changes = 0;
};

struct ALine : testing::Test {
  fakes::World world;
  CLinesDlg screen{world.services};

  void SetUp() override { screen.open(); }
  // The lines chosen after each character, -1 for none.
  std::vector<int> typing(ui::Control& control, std::string_view characters) {
    control.selected = -1;
    screen.move_focus(screen.edit);
    screen.move_focus(control);
    std::vector<int> chosen;
    for (const char& c : characters) {
      screen.find_line({&c, 1});
      chosen.push_back(control.selected);
    }
    return chosen;
  }
};

using Chosen = std::vector<int>;

TEST(LineKeys, AreArrowsHomeAndEndWhereThereAreOnlyLinesAndThePageKeysInAList) {
  for (const Kind kind : {Kind::kChoice, Kind::kList, Kind::kDropDown}) {
    EXPECT_EQ(kind == Kind::kList ? 8 : 6, std::ranges::count_if(kEveryKey, [kind](Key key) {
                return ui::goes_through_lines(kind, key);
              }));
    EXPECT_FALSE(ui::goes_through_lines(kind, Key::kEnter));
    EXPECT_TRUE(ui::finds_lines(kind));
  }
}

TEST(LineKeys, LeaveACombosTextAndATreesRowsTheirOwnKeys) {
  const auto keys_of = [](Kind kind) {
    std::vector<Key> keys;
    std::ranges::copy_if(kEveryKey, std::back_inserter(keys),
                         [kind](Key key) { return ui::goes_through_lines(kind, key); });
    return keys;
  };
  EXPECT_EQ((std::vector{Key::kUp, Key::kDown}), keys_of(Kind::kCombo));
  EXPECT_EQ(
      (std::vector{Key::kUp, Key::kDown, Key::kHome, Key::kEnd, Key::kPageUp, Key::kPageDown}),
      keys_of(Kind::kTree));
  for (const Kind kind : {Kind::kLabel, Kind::kReadOnly, Kind::kEdit, Kind::kMemo, Kind::kTick,
                          Kind::kButton, Kind::kPicture})
    EXPECT_TRUE(keys_of(kind).empty()) << ui::name_of(kind);
  EXPECT_FALSE(ui::finds_lines(Kind::kCombo));
  EXPECT_FALSE(ui::finds_lines(Kind::kEdit));
}

TEST_F(ALine, HasKeysThatAWidgetLeavesToTheScreen) {
  EXPECT_TRUE(ui::means_line(screen.list, Key::kUp));
  EXPECT_FALSE(ui::means_line(screen.list, Key::kSpace));
  screen.list.item_ticked.assign(4, false);
  EXPECT_TRUE(ui::means_line(screen.list, Key::kSpace));
  // In a text the keys move the caret, unless it is only read and somebody asks for them.
  EXPECT_FALSE(ui::means_line(screen.edit, Key::kUp));
  screen.edit.on_arrow = [](Key) {};
  EXPECT_FALSE(ui::means_line(screen.edit, Key::kUp));
  screen.edit.read_only = true;
  EXPECT_TRUE(ui::means_line(screen.edit, Key::kUp));
  EXPECT_FALSE(ui::means_line(screen.edit, Key::kSpace));
  EXPECT_FALSE(ui::means_line(screen.pages, Key::kPageDown));
  screen.pages.on_page = [](bool) {};
  EXPECT_TRUE(ui::means_line(screen.pages, Key::kPageDown));
  EXPECT_FALSE(ui::means_line(screen.pages, Key::kDown));
}

TEST_F(ALine, IsNotReachedWhereNoLineIsOpen) {
  screen.codes.item_disabled = {true, true, true, true, true};
  for (const Key key : {Key::kUp, Key::kDown, Key::kHome, Key::kEnd})
    EXPECT_FALSE(ui::line_after(screen.codes, key));
  screen.list.items.clear();
  for (const Key key : {Key::kUp, Key::kDown, Key::kHome, Key::kEnd})
    EXPECT_FALSE(ui::line_after(screen.list, key));
  EXPECT_EQ((Chosen{-1}), typing(screen.list, "S"));
}

TEST_F(ALine, IsReachedByPagesUpToTheLastThatCanBeChosen) {
  screen.list.items.assign(25, "line");
  struct Row {
    int from;
    Key key;
    int to;  // -1: there is no further line
  };
  const Row rows[] = {{-1, Key::kPageDown, 0},  {-1, Key::kPageUp, 24},   {0, Key::kPageDown, 10},
                      {15, Key::kPageDown, 24}, {24, Key::kPageDown, -1}, {24, Key::kPageUp, 14},
                      {9, Key::kPageUp, 0},     {0, Key::kPageUp, -1}};
  for (const Row& row : rows) {
    screen.list.selected = row.from;
    EXPECT_EQ(ui::line_after(screen.list, row.key).value_or(-1), row.to) << row.from;
  }
  screen.list.item_disabled.assign(25, false);
  screen.list.item_disabled[24] = screen.list.item_disabled[10] = true;
  screen.list.selected = 15;
  EXPECT_EQ(ui::line_after(screen.list, Key::kPageDown), 23);
  screen.list.selected = 0;
  EXPECT_EQ(ui::line_after(screen.list, Key::kPageDown), 9);
  screen.list.item_disabled.assign(25, true);
  EXPECT_FALSE(ui::line_after(screen.list, Key::kPageDown));
}

TEST_F(ALine, IsTickedBySpaceWhereLinesHaveBoxes) {
  screen.move_focus(screen.list);
  screen.key(Key::kDown);
  screen.changes = 0;
  screen.key(Key::kSpace);  // it has no boxes yet
  EXPECT_EQ(screen.changes, 0);
  screen.list.item_ticked = {true, true, true, true};
  screen.key(Key::kDown);
  screen.changes = 0;
  screen.key(Key::kSpace);
  EXPECT_EQ(screen.list.item_ticked, (std::vector{true, false, true, true}));
  EXPECT_EQ(screen.list.selected, 1);
  screen.key(Key::kSpace);
  EXPECT_EQ(screen.list.item_ticked, (std::vector{true, true, true, true}));
  EXPECT_EQ(screen.changes, 2);
  screen.list.selected = -1;
  screen.key(Key::kSpace);
  EXPECT_EQ(screen.changes, 2);
}

TEST_F(ALine, IsTickedOnlyWhereThereIsOneAndTheListIsFree) {
  screen.list.item_ticked = {true, false, false, false};
  for (const int line : {-1, 4}) screen.tick_line(screen.list, line, true);
  screen.tick_line(screen.list, 0, true);  // it is
  screen.tick_line(screen.codes, 0, true);
  screen.list.enabled = false;
  screen.tick_line(screen.list, 1, true);
  screen.list.enabled = true;
  screen.list.read_only = true;
  screen.tick_line(screen.list, 1, true);
  EXPECT_EQ(screen.changes, 0);
  EXPECT_EQ(screen.list.item_ticked, (std::vector{true, false, false, false}));
  screen.list.read_only = false;
  screen.tick_line(screen.list, 3, true);
  EXPECT_EQ(screen.list.item_ticked, (std::vector{true, false, false, true}));
  EXPECT_EQ(screen.list.selected, -1);
}

TEST_F(ALine, IsChosenByItsWholeCodeOrWhenNoOtherCanBeMeant) {
  EXPECT_EQ((Chosen{-1, 2}), typing(screen.codes, "98"));
  EXPECT_EQ((Chosen{0, 0}), typing(screen.codes, "//"));
  EXPECT_EQ((Chosen{3, 4}), typing(screen.codes, "10"));
  EXPECT_EQ((Chosen{-1, -1, -1, 2}), typing(screen.codes, "9x98"));
  EXPECT_EQ((Chosen{0, 0, 1}), typing(screen.codes, "/99"));
  screen.codes.item_disabled = {false, true, false, false, false};
  EXPECT_EQ((Chosen{2}), typing(screen.codes, "9"));  // 99 is not to be had
}

TEST_F(ALine, IsFoundByTheBeginningOfItsTextInAnyCaseFromTheChosenOneOn) {
  EXPECT_EQ((Chosen{0, 1, 1}), typing(screen.list, "ste"));
  EXPECT_EQ((Chosen{0, 1, 3, 0}), typing(screen.list, "SSSS"));
  EXPECT_EQ((Chosen{0, 2}), typing(screen.list, "sr"));
  EXPECT_EQ((Chosen{0, 3}), typing(screen.list, "su"));
  EXPECT_EQ((Chosen{-1}), typing(screen.list, "x"));
}

TEST_F(ALine, IsLookedForAnewAfterAnyOtherEvent) {
  EXPECT_EQ((Chosen{-1}), typing(screen.codes, "9"));
  screen.key(Key::kF1);
  screen.find_line("8");
  EXPECT_EQ(-1, screen.codes.selected);
  screen.find_line("9");
  screen.find_line("8");
  EXPECT_EQ(2, screen.codes.selected);
}

TEST_F(ALine, IsToldOfOnlyWhenItChanges) {
  typing(screen.codes, "98");
  screen.find_line("9");
  screen.find_line("8");
  EXPECT_EQ(1, screen.changes);
  screen.key(Key::kEnd);
  screen.key(Key::kEnd);
  screen.key(Key::kDown);
  EXPECT_EQ(2, screen.changes);
}

TEST_F(ALine, IsNotChosenInALockedOrDisabledControlNorWithoutTheFocus) {
  screen.move_focus(screen.list);
  screen.list.read_only = true;
  screen.key(Key::kDown);
  screen.find_line("R");
  EXPECT_EQ(-1, screen.list.selected);
  screen.list.read_only = false;
  screen.list.enabled = false;
  screen.key(Key::kDown);
  screen.find_line("R");
  EXPECT_EQ(-1, screen.list.selected);
  screen.move_focus(screen.edit);
  screen.key(Key::kDown);
  screen.find_line("R");
  EXPECT_EQ(0, screen.changes);
  EXPECT_EQ("", screen.edit.content);
}

}  // namespace
