// What every screen shares, whatever is on it.

#include "ui/screen.h"

#include <gtest/gtest.h>

#include "fakes/fake_ports.h"
#include "text/ids.h"

namespace {

using ui::Key;

// Two fields that are checked, a locked and a disabled one, and the three usual buttons. What the
// handlers are told is kept in `log`.
class CSampleDlg : public ui::Screen {
 public:
  explicit CSampleDlg(ui::Services& services)
      : Screen(services, "CFixDataDlg", {text::id::kHelpLabel}) {
    locked.read_only = true;
    disabled.enabled = false;
    drop_down.items = {"a", "b", "c"};
    choice.item_disabled = {false, true};
    first.on_leave = [this] {
      log += "check(" + first.content + ")";
      return first.content != "bad";
    };
    first.on_change = [this] { log += "changed(" + first.content + ")"; };
    second.on_enter = [this] { log += "enter second "; };
    drop_down.on_change = [this] { log += "chosen(" + drop_down.selected_text() + ")"; };
    tick_box.on_change = [this] { log += "ticked "; };
    link.on_press = [this] { log += "link "; };
    act.on_press = [this] { log += "act "; };
  }
  ui::Edit first{*this, "first", {}, 5};
  ui::Edit second{*this, "second"};
  ui::Edit locked{*this, "locked"};
  ui::Edit disabled{*this, "disabled"};
  ui::DropDown drop_down{*this, "drop_down"};
  ui::Choice choice{*this, "choice", {}, {{text::id::kButtonYes}, {text::id::kButtonNo}}};
  ui::Tick tick_box{*this, "tick_box"};
  ui::Label link{*this, "link"};
  ui::Label plain{*this, "plain"};
  ui::Button act{*this, "act", {}};
  ui::Button ok{*this, "ok", {}, ui::Role::kAccept};
  ui::Button cancel{*this, "cancel", {}, ui::Role::kDismiss};
  ui::Button help{*this, "help", {}, ui::Role::kHelp};

  std::string log;
  bool swallow_enter = false;

  using Screen::close;
  using Screen::focus;
  using Screen::relabel;
  using Screen::select_on_focus;

 protected:
  bool on_enter_or_escape(Key) override { return swallow_enter; }
};

class AScreen : public testing::Test {
 protected:
  AScreen() { screen.open(); }
  std::string take_log() { return std::exchange(screen.log, {}); }

  fakes::World world;
  CSampleDlg screen{world.services};
};

TEST_F(AScreen, OpensWithTheFocusOnItsFirstField) {
  EXPECT_EQ(screen.focused(), &screen.first);
  EXPECT_EQ(screen.choice.items, (std::vector<std::string>{"YES", "NO"}));
}

TEST_F(AScreen, ChecksAFieldWhenTheFocusLeavesIt) {
  screen.type(screen.first, "good");
  EXPECT_EQ(take_log(), "changed(good)");
  EXPECT_TRUE(screen.move_focus(screen.second));
  EXPECT_EQ(take_log(), "check(good)enter second ");
  EXPECT_EQ(screen.focused(), &screen.second);
}

TEST_F(AScreen, GivesTheFocusBackAndSelectsTheTextAfterARefusal) {
  screen.type(screen.first, "bad");
  const std::string before = fakes::dump(screen);
  const unsigned serial = screen.focus_serial();
  EXPECT_FALSE(screen.move_focus(screen.second));
  EXPECT_EQ(screen.focused(), &screen.first);
  EXPECT_GT(screen.focus_serial(), serial) << "the front end must set the focus anew";
  EXPECT_EQ(screen.selection_length(), -1);
  EXPECT_EQ(fakes::dump(screen), before);
}

TEST_F(AScreen, PressesNothingWhileTheFieldWithTheFocusIsRefused) {
  screen.type(screen.first, "bad");
  take_log();
  for (ui::Control* const control :
       {static_cast<ui::Control*>(&screen.act), static_cast<ui::Control*>(&screen.ok),
        static_cast<ui::Control*>(&screen.link)}) {
    screen.press(*control);
    EXPECT_EQ(take_log(), "check(bad)") << control->name;
    EXPECT_FALSE(screen.result());
    EXPECT_EQ(screen.focused(), &screen.first);
  }
  screen.key(Key::kEnter);
  EXPECT_EQ(take_log(), "check(bad)");
  EXPECT_FALSE(screen.result());
}

TEST_F(AScreen, ChecksTheFieldBeforeALabelIsClickedButLeavesItTheFocus) {
  screen.type(screen.first, "good");
  take_log();
  screen.press(screen.link);
  EXPECT_EQ(take_log(), "check(good)link ");
  EXPECT_EQ(screen.focused(), &screen.first);
}

TEST_F(AScreen, SkipsTheCheckForCancelAndHelp) {
  screen.type(screen.first, "bad");
  take_log();
  screen.press(screen.help);
  EXPECT_EQ(take_log(), "");
  EXPECT_EQ(world.help_viewer.shown.size(), 1U);
  EXPECT_EQ(screen.focused(), &screen.help);
  EXPECT_TRUE(screen.move_focus(screen.first));
  screen.press(screen.cancel);
  EXPECT_EQ(take_log(), "");
  EXPECT_EQ(screen.result(), ui::kCancel);
}

TEST_F(AScreen, ClosesWithCancelOnEscapeAndOnItsCloseBoxWithoutACheck) {
  screen.type(screen.first, "bad");
  take_log();
  screen.key(Key::kEscape);
  EXPECT_EQ(take_log(), "");
  EXPECT_EQ(screen.result(), ui::kCancel);

  CSampleDlg other(world.services);
  other.open();
  other.type(other.first, "bad");
  other.log.clear();
  other.close_box();
  EXPECT_EQ(other.log, "");
  EXPECT_EQ(other.result(), ui::kCancel);
}

TEST_F(AScreen, TakesEnterForOkFromAField) {
  screen.key(Key::kEnter);
  EXPECT_EQ(screen.result(), ui::kOk);
}

TEST_F(AScreen, TakesEnterForTheButtonThatHasTheFocus) {
  ASSERT_TRUE(screen.move_focus(screen.act));
  take_log();
  screen.key(Key::kEnter);
  EXPECT_EQ(take_log(), "act ");
  EXPECT_FALSE(screen.result());
  ASSERT_TRUE(screen.move_focus(screen.cancel));
  screen.key(Key::kEnter);
  EXPECT_EQ(screen.result(), ui::kCancel);
}

TEST_F(AScreen, DoesNothingOnEnterWhenOkIsDisabled) {
  screen.ok.enabled = false;
  screen.key(Key::kEnter);
  EXPECT_FALSE(screen.result());
}

TEST_F(AScreen, LetsItsClassDealWithEnterAndEscape) {
  screen.swallow_enter = true;
  screen.key(Key::kEnter);
  screen.key(Key::kEscape);
  EXPECT_FALSE(screen.result());
}

TEST_F(AScreen, OpensTheTopicOfItsClassOnF1WithoutACheck) {
  screen.type(screen.first, "bad");
  take_log();
  screen.key(Key::kF1);
  EXPECT_EQ(take_log(), "");
  EXPECT_EQ(world.help_viewer.shown,
            (std::vector<std::string>{"C:\\program\\help\\Kavrel_E.CHM::/Capter4-1_E.htm"}));
}

TEST_F(AScreen, GoesRoundWithTabAndPassesOverWhatTakesNoFocus) {
  std::string seen;
  for (int i = 0; i < 10; ++i) {
    seen += screen.focused()->name + " ";
    screen.key(Key::kTab);
  }
  EXPECT_EQ(seen, "first second drop_down choice tick_box act ok cancel help first ");
  screen.focus(screen.first);
  screen.key(Key::kShiftTab);
  EXPECT_EQ(screen.focused(), &screen.help);
}

TEST_F(AScreen, ChecksTheFieldOnTab) {
  screen.type(screen.first, "bad");
  screen.key(Key::kTab);
  EXPECT_EQ(screen.focused(), &screen.first);
}

TEST_F(AScreen, NarrowsFullWidthCharactersBeforeTheCheck) {
  screen.type(screen.first, "Ａ１\u3000");
  EXPECT_EQ(screen.first.content, "Ａ１\u3000") << "not while typing: an input method is at work";
  take_log();
  screen.move_focus(screen.second);
  EXPECT_EQ(take_log(), "check(A1 )enter second ");
  EXPECT_EQ(screen.first.content, "A1 ");
}

TEST_F(AScreen, LeavesFullWidthCharactersToAFieldThatNarrowsForItself) {
  screen.first.narrow = false;
  screen.type(screen.first, "Ａ");
  screen.move_focus(screen.second);
  EXPECT_EQ(screen.first.content, "Ａ");
}

TEST_F(AScreen, CutsTypedTextAtItsLargestNumberOfCharacters) {
  screen.type(screen.first, "１２３４５６");
  EXPECT_EQ(screen.first.content, "１２３４５");
}

TEST_F(AScreen, RefusesWhatIsTooLongForTwoFieldsOnLeaving) {
  screen.first.continues_in = &screen.second;
  screen.second.max_length = 1;
  screen.type(screen.first, "1009.34");
  take_log();
  for (const bool by_help : {false, true}) {
    if (by_help) screen.press(screen.help);
    const std::string before = fakes::dump(screen);
    world.windows.expect(text::id::kTextTooLong);
    screen.press(screen.ok);
    EXPECT_EQ(world.windows.boxes.back().text,
              "Input error: at most 5 characters can be entered here.");
    EXPECT_EQ(fakes::dump(screen), before) << "all of it is there to be seen";
    EXPECT_EQ(take_log(), "") << "the field's own check is not asked";
    EXPECT_EQ(screen.focused(), &screen.first);
    EXPECT_FALSE(screen.result());
  }
  screen.type(screen.first, "1009.3");
  EXPECT_EQ(screen.first.content, "1009");
  screen.press(screen.ok);
  EXPECT_EQ(screen.result(), ui::kOk);
}

TEST_F(AScreen, RefusesNoLongTextThatNobodyTyped) {
  screen.first.set("123456");
  screen.press(screen.ok);
  EXPECT_EQ(screen.result(), ui::kOk);
}

// ---- OK makes up for what was skipped

TEST_F(AScreen, ChecksOnOkWhatHelpLeftUnchecked) {
  screen.type(screen.first, "ｂad");
  screen.press(screen.help);
  take_log();
  for (int i = 0; i < 2; ++i) {
    screen.press(screen.ok);
    EXPECT_EQ(take_log(), "check(bad)") << "narrowed first";
    EXPECT_FALSE(screen.result());
    EXPECT_EQ(screen.focused(), &screen.first);
    EXPECT_EQ(screen.selection_length(), -1);
    screen.press(screen.help);
  }
  screen.key(Key::kEnter);  // Help has the focus: its topic again, nothing is checked
  EXPECT_EQ(take_log(), "");
  screen.move_focus(screen.second);
  screen.key(Key::kEnter);
  EXPECT_EQ(take_log(), "enter second check(bad)");
  EXPECT_FALSE(screen.result());
}

TEST_F(AScreen, ForgetsWhatWasSkippedOnceTheFieldWasLeftAsUsual) {
  screen.type(screen.first, "good");
  screen.press(screen.help);
  screen.move_focus(screen.first);
  screen.move_focus(screen.second);
  take_log();
  screen.press(screen.ok);
  EXPECT_EQ(take_log(), "");
  EXPECT_EQ(screen.result(), ui::kOk);
}

TEST_F(AScreen, MakesUpForNoCheckOfWhatWasSwitchedOffHiddenOrLockedMeanwhile) {
  for (int way = 0; way < 2; ++way) {
    CSampleDlg other(world.services);
    other.open();
    other.type(other.first, "bad");
    other.press(other.help);
    (way == 0 ? other.first.enabled : other.first.visible) = false;
    other.log.clear();
    other.press(other.ok);
    EXPECT_EQ(other.log, "") << way;
    EXPECT_EQ(other.result(), ui::kOk) << way;
  }
}

TEST_F(AScreen, ChecksAFieldThatIsSwitchedOnAgainByATick) {
  screen.tick_box.on_change = [this] { screen.first.enabled = !screen.tick_box.checked; };
  screen.type(screen.first, "bad");
  screen.tick(screen.tick_box, true);
  screen.move_focus(screen.second);
  screen.tick(screen.tick_box, false);
  take_log();
  screen.press(screen.ok);
  EXPECT_EQ(take_log(), "check(bad)");
  EXPECT_FALSE(screen.result());
}

TEST_F(AScreen, ChecksOnOkWhatAHandlerTookTheFocusFrom) {
  screen.type(screen.first, "bad");
  screen.focus(screen.second);
  take_log();
  screen.press(screen.ok);
  EXPECT_EQ(take_log(), "check(bad)");
  EXPECT_FALSE(screen.result());
  EXPECT_EQ(screen.focused(), &screen.first);
}

TEST_F(AScreen, ChecksSkippedFieldsInReadingOrderUpToTheFirstRefusal) {
  screen.second.on_leave = [this] {
    screen.log += "check2(" + screen.second.content + ")";
    return screen.second.content != "bad";
  };
  for (ui::Edit* const field : {&screen.second, &screen.first}) {
    fakes::enter(screen, *field, "bad");
    screen.press(screen.help);
  }
  take_log();
  screen.press(screen.ok);
  EXPECT_EQ(take_log(), "check(bad)");
  screen.type(screen.first, "good");
  take_log();
  screen.press(screen.ok);
  EXPECT_EQ(take_log(), "check(good)check2(bad)");
  EXPECT_EQ(screen.focused(), &screen.second);
}

// ---- A field that continues in another

TEST_F(AScreen, GoesOnToTheDecimalsAtAPoint) {
  struct Row {
    const char* typed;
    const char* whole;
    const char* tenths;
  };
  const Row rows[] = {
      {"1009.3", "1009", "3"},  {"1009,3", "1009", "3"},  {"１００９．３", "1009", "３"},
      {"1009。3", "1009", "3"}, {"1009、3", "1009", "3"}, {"1009，3", "1009", "3"},
      {"1009｡3", "1009", "3"},  {"1009､3", "1009", "3"},  {" 1009.3 ", "1009", "3"},
      {".3", "", "3"},          {"1009.", "1009", "7"},   {"1009.x", "1009", "x"}};
  for (const Row& row : rows) {
    CSampleDlg split(world.services);
    split.first.continues_in = &split.second;
    split.second.max_length = 1;
    split.open();
    split.second.set("7");
    const unsigned serial = split.focus_serial();
    split.type(split.first, row.typed);
    EXPECT_EQ(split.first.content, row.whole) << row.typed;
    EXPECT_EQ(split.second.content, row.tenths) << row.typed;
    EXPECT_EQ(split.focused(), &split.second) << row.typed;
    EXPECT_GT(split.focus_serial(), serial);
    EXPECT_EQ(split.selection_length(), -1) << "the next key replaces what stands there";
  }
}

TEST_F(AScreen, KeepsWholeWhatDoesNotFitBeforeAndBehindThePoint) {
  for (const char* const typed :
       {"1009.34", "123456.3", "1.2.3", "1..", "1009.3x", "１００９．３４"}) {
    CSampleDlg split(world.services);
    split.first.continues_in = &split.second;
    split.second.max_length = 1;
    split.open();
    split.second.set("7");
    split.type(split.first, typed);
    EXPECT_EQ(split.first.content, typed);
    EXPECT_EQ(split.second.content, "7") << typed;
    EXPECT_EQ(split.focused(), &split.first) << typed;
  }
}

TEST_F(AScreen, StaysOnTheWholeFiguresWhenTheyAreRefusedAtThePoint) {
  screen.first.continues_in = &screen.second;
  screen.type(screen.first, "bad.3");
  EXPECT_EQ(screen.first.content, "bad");
  EXPECT_EQ(screen.second.content, "3") << "nothing typed is dropped";
  EXPECT_EQ(screen.focused(), &screen.first);
}

TEST_F(AScreen, TakesAPointForALetterWhereTheDecimalsCannotBeTyped) {
  screen.first.continues_in = &screen.second;
  screen.second.enabled = false;
  screen.type(screen.first, "1.3");
  EXPECT_EQ(screen.first.content, "1.3");
  EXPECT_EQ(screen.focused(), &screen.first);
}

TEST_F(AScreen, LetsNothingHappenToWhatIsLockedDisabledHiddenOrOfAnotherKind) {
  screen.second.visible = false;
  screen.drop_down.enabled = false;
  screen.act.enabled = false;
  screen.tick_box.enabled = false;
  const std::string before = fakes::dump(screen);
  screen.type(screen.locked, "x");
  screen.type(screen.disabled, "x");
  screen.type(screen.second, "x");
  screen.type(screen.ok, "x");
  screen.choose(screen.drop_down, 1);
  screen.choose(screen.choice, 1);
  screen.tick(screen.tick_box, true);
  screen.press(screen.act);
  screen.press(screen.plain);
  EXPECT_FALSE(screen.move_focus(screen.second));
  EXPECT_FALSE(screen.move_focus(screen.disabled));
  EXPECT_FALSE(screen.move_focus(screen.plain));
  EXPECT_EQ(fakes::dump(screen), before);
  EXPECT_EQ(screen.focused(), &screen.first);
  EXPECT_EQ(take_log(), "check()") << "the click on the label checked the field, nothing else";
}

TEST_F(AScreen, LetsALockedFieldHaveTheFocus) {
  EXPECT_TRUE(screen.move_focus(screen.locked));
}

TEST_F(AScreen, PicksALineAndNoneWhenThereIsNoSuchLine) {
  screen.choose(screen.drop_down, 1);
  EXPECT_EQ(screen.drop_down.content, "b");
  screen.choose(screen.drop_down, 3);
  EXPECT_EQ(screen.drop_down.selected, -1);
  screen.choose(screen.drop_down, -5);
  EXPECT_EQ(screen.drop_down.selected, -1);
  EXPECT_EQ(take_log(), "chosen(b)chosen()chosen()");
}

TEST_F(AScreen, TellsOfATickOnlyWhenItChanges) {
  screen.tick(screen.tick_box, false);
  screen.tick(screen.tick_box, true);
  screen.tick(screen.tick_box, true);
  EXPECT_EQ(take_log(), "ticked ");
}

TEST_F(AScreen, DropsEventsThatComeWhileAnotherIsHandled) {
  screen.act.on_press = [this] {
    screen.type(screen.second, "x");
    screen.press(screen.ok);
    EXPECT_FALSE(screen.move_focus(screen.first));
  };
  screen.press(screen.act);
  EXPECT_EQ(screen.second.content, "");
  EXPECT_FALSE(screen.result());
}

TEST_F(AScreen, TakesNoEventOnceItIsClosed) {
  screen.key(Key::kEscape);
  screen.type(screen.first, "x");
  screen.key(Key::kEnter);
  EXPECT_EQ(screen.first.content, "");
  EXPECT_EQ(screen.result(), ui::kCancel);
}

TEST_F(AScreen, LetsACheckMoveTheFocusElsewhere) {
  screen.first.on_leave = [this] {
    screen.focus(screen.tick_box);
    return true;
  };
  EXPECT_FALSE(screen.move_focus(screen.second));
  EXPECT_EQ(screen.focused(), &screen.tick_box);
}

TEST_F(AScreen, LetsACheckSwitchOffTheFieldThatWasToHaveTheFocus) {
  screen.first.on_leave = [this] {
    screen.second.enabled = false;
    return true;
  };
  EXPECT_FALSE(screen.move_focus(screen.second));
  EXPECT_EQ(screen.focused(), &screen.first);
}

TEST_F(AScreen, LetsACheckCloseIt) {
  screen.first.on_leave = [this] {
    screen.close(ui::kYes);
    return true;
  };
  screen.press(screen.act);
  EXPECT_EQ(screen.result(), ui::kYes);
  EXPECT_EQ(take_log(), "");
}

TEST_F(AScreen, ChecksNoFieldThatWasSwitchedOffMeanwhile) {
  screen.type(screen.first, "bad");
  screen.first.enabled = false;
  take_log();
  EXPECT_TRUE(screen.move_focus(screen.second));
  EXPECT_EQ(take_log(), "enter second ");
}

TEST_F(AScreen, SelectsAsManyCharactersAsItIsToldWhenAFieldGetsTheFocus) {
  screen.select_on_focus(1);
  screen.move_focus(screen.second);
  EXPECT_EQ(screen.selection_length(), 1);
  screen.focus(screen.first);
  EXPECT_EQ(screen.selection_length(), -1) << "after a refusal all of it";
}

TEST_F(AScreen, ShowsItsTextsInTheNewLanguageAfterASwitch) {
  EXPECT_EQ(screen.title(), "Help");
  world.japanese();
  screen.relabel();
  EXPECT_EQ(screen.title(), "ヘルプ");
  EXPECT_EQ(screen.choice.items, (std::vector<std::string>{"はい(&Y)", "いいえ(&N)"}));
}

TEST_F(AScreen, FindsAControlByItsName) {
  EXPECT_EQ(screen.find("act"), &screen.act);
  EXPECT_EQ(screen.find("Act"), nullptr);
  EXPECT_EQ(screen.find(""), nullptr);
}

TEST(AScreenWithoutControls, TakesEveryKey) {
  class CEmptyDlg : public ui::Screen {
   public:
    explicit CEmptyDlg(ui::Services& services) : Screen(services, "CEmptyDlg", {}) {}
  };
  fakes::World world;
  for (const Key key : {Key::kTab, Key::kShiftTab, Key::kF1, Key::kEnter, Key::kEscape}) {
    CEmptyDlg screen(world.services);
    screen.open();
    screen.key(key);
    EXPECT_EQ(screen.result().has_value(), key == Key::kEscape);
  }
  EXPECT_TRUE(world.help_viewer.shown.empty()) << "no topic for this class";
}

// A tree of two levels beneath each row.
class CTreeDlg : public ui::Screen {
 public:
  explicit CTreeDlg(ui::Services& services) : Screen(services, "CTreeDlg", {}) {
    tree.rows = {{"C:", "C:\\", 0}, {"D:", "D:\\", 0}};
    tree.on_expand = [this](std::size_t row) {
      ++read;
      const ui::TreeRow above = tree.rows[row];
      tree.rows.insert(tree.rows.begin() + static_cast<std::ptrdiff_t>(row) + 1,
                       {above.text + "a", above.path + "a\\", above.depth + 1});
    };
    tree.on_change = [this] { ++changes; };
    tree.on_reveal = [this](std::string_view path) {
      if (path != "E:\\") return false;
      tree.rows.push_back({"E:", "E:\\", 0});
      tree.selected = static_cast<int>(tree.rows.size()) - 1;
      return true;
    };
  }
  ui::Tree tree{*this, "tree"};
  int read = 0;
  int changes = 0;
};

class ATree : public testing::Test {
 protected:
  ATree() { screen.open(); }
  std::string rows() {
    std::string result;
    for (const ui::TreeRow& row : screen.tree.rows)
      result += std::string(static_cast<std::size_t>(row.depth), '.') + row.text + " ";
    return result;
  }
  fakes::World world;
  CTreeDlg screen{world.services};
};

TEST_F(ATree, ReadsALevelWhenItsRowIsOpenedAndNotBefore) {
  EXPECT_EQ(screen.read, 0);
  screen.expand(screen.tree, 0);
  EXPECT_EQ(rows(), "C: .C:a D: ");
  screen.expand(screen.tree, 0);
  EXPECT_EQ(screen.read, 1) << "it is open already";
  screen.expand(screen.tree, 99);
  EXPECT_EQ(screen.read, 1);
}

TEST_F(ATree, KeepsTheSelectionOnItsRowWhenRowsComeAndGoAboveIt) {
  screen.choose(screen.tree, 1);
  screen.expand(screen.tree, 0);
  EXPECT_EQ(screen.tree.selected_text(), "D:\\");
  screen.collapse(screen.tree, 0);
  EXPECT_EQ(screen.tree.selected_text(), "D:\\");
  EXPECT_EQ(screen.changes, 1);
}

TEST_F(ATree, SelectsTheRowThatIsClosedOverTheSelection) {
  screen.expand(screen.tree, 0);
  screen.expand(screen.tree, 1);
  screen.choose(screen.tree, 2);
  screen.collapse(screen.tree, 0);
  EXPECT_EQ(rows(), "C: D: ");
  EXPECT_EQ(screen.tree.selected_text(), "C:\\");
  EXPECT_EQ(screen.changes, 2);
}

TEST_F(ATree, OpensDownToAPathOrLeavesEverythingAsItWas) {
  EXPECT_TRUE(screen.reveal(screen.tree, "D:\\"));
  EXPECT_EQ(screen.tree.selected_text(), "D:\\");
  EXPECT_TRUE(screen.reveal(screen.tree, "E:\\"));
  EXPECT_EQ(screen.tree.selected_text(), "E:\\");
  EXPECT_EQ(screen.changes, 2);
  EXPECT_FALSE(screen.reveal(screen.tree, "F:\\"));
  EXPECT_EQ(screen.tree.selected_text(), "E:\\");
  EXPECT_EQ(screen.changes, 2);
}

}  // namespace
