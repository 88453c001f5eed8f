// A full field of fixed width moves on by itself, as Tab would, and Tab passes by what nothing is
// asked of.

#include <gtest/gtest.h>

#include <string>

#include "fakes/fake_ports.h"
#include "text/ids.h"

namespace {

using ui::Key;

class CCodesDlg : public ui::Screen {
 public:
  explicit CCodesDlg(ui::Services& services)
      : Screen(services, "CCodesDlg", {text::id::kHelpLabel}) {
    for (ui::Control* const code : std::initializer_list<ui::Control*>{&two, &tenths, &text})
      code->moves_on_when_full = true;
    whole.continues_in = &tenths;
    text.narrow = false;
    two.on_leave = [this] { return two.content != "99"; };
  }
  ui::Edit two{*this, "two", {}, 2};
  ui::Edit whole{*this, "whole", {}, 3};
  ui::Combo tenths{*this, "tenths", {}, 1};
  ui::Edit passed{*this, "passed", {}, 2};
  ui::Edit text{*this, "text", {}, 2};
  ui::Button act{*this, "act", {}};
  ui::Button ok{*this, "ok", {}, ui::Role::kAccept};
  std::string tabs;

 protected:
  void on_tab(Key key) override { tabs += key == Key::kTab ? 'T' : 'S'; }
};

class MoveOn : public testing::Test {
 protected:
  MoveOn() { screen.open(); }
  [[nodiscard]] std::string focus() const { return screen.focused()->name; }
  fakes::World world;
  CCodesDlg screen{world.services};
};

TEST_F(MoveOn, WithTheLastFigureAsTabMoves) {
  screen.type_by_key(screen.two, "0");
  EXPECT_EQ(focus(), "two");
  EXPECT_EQ(screen.tabs, "");
  screen.type_by_key(screen.two, "07");
  EXPECT_EQ(focus(), "whole");
  EXPECT_EQ(screen.tabs, "T");
  EXPECT_EQ(screen.two.content, "07");
  EXPECT_FALSE(screen.two.unchecked);
}

TEST_F(MoveOn, CountsHalfWidthFigures) {
  struct Row {
    const char* typed;
    const char* held;
    const char* focus;
  };
  for (const Row& row :
       {Row{"／", "／", "two"}, Row{"０７", "07", "whole"}, Row{"//", "//", "whole"},
        Row{"0７", "07", "whole"}, Row{"*", "*", "two"}}) {
    CCodesDlg fresh(world.services);
    fresh.open();
    fresh.type_by_key(fresh.two, row.typed);
    EXPECT_EQ(fresh.focused()->name, row.focus) << row.typed;
    EXPECT_EQ(fresh.two.content, row.held) << row.typed;
  }
}

TEST_F(MoveOn, NeverPastARefusal) {
  const unsigned serial = screen.focus_serial();
  screen.type_by_key(screen.two, "99");
  EXPECT_EQ(focus(), "two");
  EXPECT_GT(screen.focus_serial(), serial) << "the front end selects the text anew";
  EXPECT_EQ(screen.selection_length(), -1);
  screen.type_by_key(screen.two, "98");
  EXPECT_EQ(focus(), "whole");
}

TEST_F(MoveOn, NotWhenTheTextCameAnotherWay) {
  screen.type(screen.two, "07");
  EXPECT_EQ(focus(), "two");
  EXPECT_EQ(screen.tabs, "");
}

TEST_F(MoveOn, NotFromAFieldWithoutAFixedWidth) {
  ASSERT_TRUE(screen.move_focus(screen.whole));
  screen.type_by_key(screen.whole, "-10");
  EXPECT_EQ(focus(), "whole");
}

TEST_F(MoveOn, NotWhereTheOfficerSwitchedItOff) {
  world.services.moves_on = false;
  screen.type_by_key(screen.two, "07");
  EXPECT_EQ(focus(), "two");
  EXPECT_EQ(screen.two.content, "07");
}

// With a point the decimals' field gets the focus; what stood there is nobody's last figure.
TEST_F(MoveOn, FromTheDecimalsBehindAPointOnceTheyAreTyped) {
  screen.tenths.set("4");
  ASSERT_TRUE(screen.move_focus(screen.whole));
  screen.type_by_key(screen.whole, "12.");
  EXPECT_EQ(focus(), "tenths");
  screen.type_by_key(screen.tenths, "5");
  EXPECT_EQ(focus(), "passed");
  ASSERT_TRUE(screen.move_focus(screen.whole));
  screen.type_by_key(screen.whole, "１２．７");
  EXPECT_EQ(focus(), "passed");
  EXPECT_EQ(screen.tenths.content, "7");
}

// Enter behind the last figure means OK.
TEST_F(MoveOn, NotToAButtonOtherThanOk) {
  ASSERT_TRUE(screen.move_focus(screen.text));
  screen.type_by_key(screen.text, "ab");
  EXPECT_EQ(focus(), "text");
  screen.act.visible = false;
  screen.type_by_key(screen.text, "ab");
  EXPECT_EQ(focus(), "ok");
}

TEST_F(MoveOn, AndTabPassByWhatNothingIsAskedOf) {
  screen.passed.passed_over = true;
  ASSERT_TRUE(screen.move_focus(screen.tenths));
  screen.type_by_key(screen.tenths, "5");
  EXPECT_EQ(focus(), "text");
  screen.key(Key::kShiftTab);
  EXPECT_EQ(focus(), "passed");
  screen.key(Key::kTab);
  EXPECT_EQ(focus(), "text");
  EXPECT_TRUE(screen.move_focus(screen.passed)) << "a click";
  screen.passed.passed_over = false;
  screen.passed.read_only = true;
  ASSERT_TRUE(screen.move_focus(screen.tenths));
  screen.key(Key::kTab);
  EXPECT_EQ(focus(), "text");
}

// The value that is taken on the way may ask for another field, or no longer for the next one.
TEST_F(MoveOn, ToWhatIsAskedOnceTheFieldWasTaken) {
  for (const bool asked : {false, true}) {
    CCodesDlg fresh(world.services);
    fresh.whole.passed_over = asked;
    fresh.two.on_leave = [&fresh, asked] {
      fresh.whole.passed_over = !asked;
      return true;
    };
    fresh.open();
    fresh.key(Key::kTab);
    EXPECT_EQ(fresh.focused()->name, asked ? "whole" : "tenths");
  }
}

// The Tab that a hand presses behind every figure.
TEST_F(MoveOn, TakesTheNextTabForItsOwnOnce) {
  screen.type_by_key(screen.two, "07");
  screen.key(Key::kTab);
  EXPECT_EQ(focus(), "whole");
  EXPECT_EQ(screen.tabs, "T") << "the first one was pressed by nobody, the second did nothing";
  screen.key(Key::kTab);
  EXPECT_EQ(focus(), "tenths");
  EXPECT_EQ(screen.tabs, "TT");
}

// The officer may look up between the two, and a script pauses before each line.
TEST_F(MoveOn, TakesALateTabForItsOwn) {
  screen.type_by_key(screen.two, "07");
  screen.idle();
  screen.key(Key::kTab);
  EXPECT_EQ(focus(), "whole");
}

TEST_F(MoveOn, LeavesEveryOtherTabAsItIs) {
  const auto focus_after = [this](const auto& between) {
    CCodesDlg fresh(world.services);
    fresh.open();
    fresh.type_by_key(fresh.two, "07");
    between(fresh);
    fresh.key(Key::kTab);
    return fresh.focused()->name;
  };
  EXPECT_EQ(focus_after([](CCodesDlg&) {}), "whole");
  EXPECT_EQ(focus_after([](CCodesDlg& s) { s.key(Key::kShiftTab); }), "whole") << "to two and back";
  EXPECT_EQ(focus_after([](CCodesDlg& s) { s.type_by_key(s.whole, "1"); }), "tenths");
  EXPECT_EQ(focus_after([](CCodesDlg& s) { s.key(Key::kDown); }), "tenths");
  EXPECT_EQ(focus_after([](CCodesDlg& s) { s.move_focus(s.whole); }), "tenths") << "a click";
  EXPECT_EQ(focus_after([](CCodesDlg& s) { s.did_something_else(); }), "tenths");
}

TEST_F(MoveOn, LeavesATabBehindAFieldThatStayed) {
  screen.type_by_key(screen.two, "99");
  screen.two.on_leave = nullptr;
  screen.key(Key::kTab);
  EXPECT_EQ(focus(), "whole") << "it was refused, and is taken now";
  world.services.moves_on = false;
  CCodesDlg fresh(world.services);
  fresh.open();
  fresh.type_by_key(fresh.two, "07");
  fresh.key(Key::kTab);
  EXPECT_EQ(fresh.focused()->name, "whole") << "switched off";
}

TEST_F(MoveOn, LeavesATabBehindAMessage) {
  screen.two.on_leave = [this] {
    world.messages.error(text::id::kInputError);
    return true;
  };
  world.windows.expect(text::id::kInputError);
  screen.type_by_key(screen.two, "07");
  ASSERT_EQ(focus(), "whole");
  screen.two.on_leave = nullptr;
  screen.key(Key::kTab);
  EXPECT_EQ(focus(), "tenths");
}

TEST_F(MoveOn, StaysWhereEverythingElseIsPassedOver) {
  for (ui::Control* const control : screen.controls()) control->passed_over = true;
  screen.two.passed_over = false;
  screen.key(Key::kTab);
  EXPECT_EQ(focus(), "two");
}

}  // namespace
