// What keys and clicks do in a window, whatever its screen.

#include "win32/screen_window.h"

#include <commctrl.h>
#include <gtest/gtest.h>
#include <imm.h>

#include <initializer_list>
#include <stdexcept>
#include <string>
#include <vector>

#include "real_world.h"
#include "text/ids.h"
#include "ui/dialog.h"
#include "widget_views.h"
#include "win32/message_window.h"
#include "win32/utf.h"

namespace {

class CManyDlg : public ui::OkCancelHelpDialog {
 public:
  explicit CManyDlg(ui::Services& services)
      : OkCancelHelpDialog(services, "CManyDlg", {text::id::kHelpLabel}) {
    title_label.literal_caption = "Opens";
    title_label.on_press = [this] { ++opened; };
    name.literal_caption = "Name";
    box.items = {"10", "20", "30"};
    lines.items = {"alpha", "beta", "gamma"};
    lines.item_ticked = {false, false, false};
    lines.on_press = [this] { ++pressed; };
    kind.items = {"first & last", "second", "third"};
    kind.item_disabled = {false, true, false};
    tick.literal_caption = "Tick";
    tree.rows = {{"root", "r", 0, true, false, false}, {"other", "o", 0, false, false, true}};
    tree.on_expand = [this](std::size_t row) {
      tree.rows.insert(tree.rows.begin() + static_cast<std::ptrdiff_t>(row) + 1,
                       {"child", "c", 1, false, false, false});
    };
    go.literal_caption = "Go";
    go.on_press = [this] {
      ++pressed;
      if (fails) throw std::runtime_error("disk on fire");
    };
    go.shortcut = "F9";
    name.on_leave = [this] {
      if (name.content != "no") return true;
      this->services().messages.error(text::id::kHelpLabel);
      return false;
    };
  }
  ui::Label title_label{*this, "title_label"};
  ui::Edit name{*this, "name", {}, 20};
  ui::Combo box{*this, "box", {}, 3};
  ui::List lines{*this, "lines"};
  ui::Choice kind{*this, "kind", {}, {}};
  ui::Tick tick{*this, "tick"};
  ui::Tree tree{*this, "tree"};
  ui::Button go{*this, "go", {}};
  int opened = 0;
  int pressed = 0;
  bool fails = false;
};

class Keys : public testing::Test {
 protected:
  void focus(ui::Control& control) {
    ASSERT_TRUE(screen.move_focus(control));
    shown.window.refresh();
    win32::deal_with_waiting();
  }
  [[nodiscard]] HWND window_of(const ui::Control& control) const {
    return shown.window.widget(control)->window();
  }
  void in_step() { tests::expect_in_step(shown.window, screen, "now"); }

  tests::RealWorld world;
  CManyDlg screen{world.services};
  tests::OnDisplay shown{screen};
};

TEST_F(Keys, GoFromFieldToFieldWithTab) {
  EXPECT_EQ(screen.focused(), &screen.name);
  tests::press(VK_TAB);
  EXPECT_EQ(screen.focused(), &screen.box);
  tests::press(VK_TAB, true);
  EXPECT_EQ(screen.focused(), &screen.name);
  in_step();
}

TEST_F(Keys, TypeAndTakeBack) {
  tests::type("abc");
  EXPECT_EQ(screen.name.content, "abc");
  tests::press(VK_BACK);
  EXPECT_EQ(screen.name.content, "ab");
  tests::press(VK_HOME);
  tests::press(VK_DELETE);
  EXPECT_EQ(screen.name.content, "b");
  in_step();
}

TEST_F(Keys, TakeWhatAnInputMethodGives) {
  tests::type("雲量");
  EXPECT_EQ(screen.name.content, "雲量");
  in_step();
}

TEST_F(Keys, AreNoInputMethodsWhereNothingIsWritten) {
  const auto has_method = [](HWND window) {
    const HIMC context = ImmGetContext(window);
    if (context != nullptr) ImmReleaseContext(window, context);
    return context != nullptr;
  };
  EXPECT_TRUE(has_method(window_of(screen.name)));
  EXPECT_TRUE(has_method(shown.window.widget(screen.box)->focus_window()));
  for (const ui::Control* const control :
       std::initializer_list<const ui::Control*>{&screen.lines, &screen.tick, &screen.go})
    EXPECT_FALSE(has_method(window_of(*control))) << control->name;
  for (const HWND line : shown.window.widget(screen.kind)->windows())
    EXPECT_FALSE(has_method(line));
}

TEST_F(Keys, PutFiguresIntoADropDownWithoutCompletingThem) {
  focus(screen.box);
  tests::type("2");
  EXPECT_EQ(screen.box.content, "2");
  tests::press(VK_DOWN);
  EXPECT_EQ(screen.box.content, "10");
  tests::press(VK_DOWN);
  EXPECT_EQ(screen.box.content, "20");
  in_step();
}

TEST_F(Keys, GoThroughLinesAndTickThem) {
  focus(screen.lines);
  tests::press(VK_DOWN);
  tests::press(VK_SPACE);
  EXPECT_EQ(screen.lines.selected, 0);
  EXPECT_EQ(screen.lines.item_ticked, (std::vector<bool>{true, false, false}));
  tests::type("g");
  EXPECT_EQ(screen.lines.selected, 2);
  in_step();
}

TEST_F(Keys, StepOverALineThatCannotBeChosen) {
  focus(screen.kind);
  tests::press(VK_DOWN);
  EXPECT_EQ(screen.kind.selected, 0);
  tests::press(VK_DOWN);
  EXPECT_EQ(screen.kind.selected, 2);
  in_step();
}

TEST_F(Keys, OpenARowOfATree) {
  focus(screen.tree);
  tests::press(VK_DOWN);
  EXPECT_EQ(screen.tree.selected, 0);
  tests::press(VK_RIGHT);
  EXPECT_EQ(screen.tree.rows.size(), 3U);
  in_step();
  tests::press(VK_LEFT);
  EXPECT_EQ(screen.tree.rows.size(), 2U);
  in_step();
}

TEST_F(Keys, PressAButtonFromAnyField) {
  tests::press(VK_F9);
  EXPECT_EQ(screen.pressed, 1);
}

TEST_F(Keys, LeadToAControlByItsLetterWithAlt) {
  const char letter = shown.window.widget(screen.tick)->access_key;
  ASSERT_NE(letter, '\0');
  PostMessageW(GetFocus(), WM_SYSCHAR, static_cast<WPARAM>(letter), 1 << 29);
  win32::deal_with_waiting();
  EXPECT_TRUE(screen.tick.checked);
  EXPECT_EQ(screen.focused(), &screen.tick);
  in_step();
}

TEST_F(Keys, CloseTheWindowWithEnterAndEscape) {
  tests::press(VK_ESCAPE);
  EXPECT_EQ(screen.result(), ui::kCancel);
  EXPECT_TRUE(shown.window.finished());
}

TEST_F(Keys, GiveTheFocusBackWhereAFieldIsRefused) {
  int told = 0;
  world.windows.on_asked = [&](win32::MessageWindow& box) {
    ++told;
    PostMessageW(box.buttons().front(), WM_KEYDOWN, VK_RETURN, 1);
  };
  tests::type("no");
  tests::press(VK_TAB);
  EXPECT_EQ(told, 1);
  EXPECT_EQ(screen.focused(), &screen.name);
  EXPECT_EQ(GetFocus(), window_of(screen.name));
  // A click elsewhere is refused like Tab.
  tests::click(window_of(screen.lines));
  EXPECT_EQ(told, 2);
  EXPECT_EQ(GetFocus(), window_of(screen.name));
  in_step();
}

TEST_F(Keys, LeaveTheWindowUsableWhereAHandlerThrows) {
  std::string told;
  world.windows.on_asked = [&](win32::MessageWindow& box) {
    told = win32::narrow(win32::text_on(box.text()));
    PostMessageW(box.buttons().front(), WM_KEYDOWN, VK_RETURN, 1);
  };
  screen.fails = true;
  tests::press(VK_F9);
  EXPECT_NE(told.find("disk on fire"), std::string::npos) << told;
  screen.fails = false;
  tests::press(VK_F9);
  EXPECT_EQ(screen.pressed, 2);
  in_step();
}

TEST_F(Keys, ClicksDoWhatKeysDo) {
  tests::click(window_of(screen.tick));
  EXPECT_TRUE(screen.tick.checked);
  tests::click(window_of(screen.title_label));
  EXPECT_EQ(screen.opened, 1);
  // The third button of the choice.
  tests::click(shown.window.widget(screen.kind)->windows().back());
  EXPECT_EQ(screen.kind.selected, 2);
  EXPECT_EQ(screen.focused(), &screen.kind);
  in_step();
  // Another line than the one that has the focus of the choice.
  tests::click(window_of(screen.name));
  tests::click(shown.window.widget(screen.kind)->windows().front());
  EXPECT_EQ(screen.kind.selected, 0);
  in_step();
}

TEST_F(Keys, NothingIsPressedWhereAClickIsLetGoBesideALabel) {
  const HWND label = window_of(screen.title_label);
  PostMessageW(label, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(2, 2));
  PostMessageW(label, WM_LBUTTONUP, 0, MAKELPARAM(2, 500));
  win32::deal_with_waiting();
  EXPECT_EQ(screen.opened, 0);
}

TEST_F(Keys, WhatTheProgramWritesIsNoTyping) {
  screen.name.content = "program";
  screen.name.unchecked = false;
  shown.window.refresh();
  win32::deal_with_waiting();
  EXPECT_FALSE(screen.name.unchecked);
  in_step();
}

// What the window's own part hears of a wheel, whose pointer is on this control.
void turn_wheel(HWND window, int by) {
  RECT place{};
  GetWindowRect(window, &place);
  PostMessageW(window, WM_MOUSEWHEEL, MAKEWPARAM(0, by), MAKELPARAM(place.left + 3, place.top + 3));
  win32::deal_with_waiting();
}

TEST_F(Keys, AListThatIsLeftWithoutChoosingShowsAgainWhatIsHeld) {
  screen.box.content = "10";
  screen.box.selected = 0;
  focus(screen.box);
  const HWND box = window_of(screen.box);
  SendMessageW(box, CB_SHOWDROPDOWN, TRUE, 0);
  tests::press(VK_DOWN);
  tests::press(VK_ESCAPE);
  EXPECT_FALSE(screen.result()) << "Escape is the list's";
  EXPECT_EQ(screen.box.content, "10");
  in_step();
  // And where it is closed from elsewhere.
  SendMessageW(box, CB_SHOWDROPDOWN, TRUE, 0);
  SendMessageW(box, CB_SETCURSEL, 2, 0);
  SendMessageW(box, CB_SHOWDROPDOWN, FALSE, 0);
  win32::deal_with_waiting();
  EXPECT_EQ(screen.box.content, "10");
  in_step();
}

TEST_F(Keys, TabTakesTheLineOnWhichAnOpenListStands) {
  focus(screen.box);
  SendMessageW(window_of(screen.box), CB_SHOWDROPDOWN, TRUE, 0);
  tests::press(VK_DOWN);
  tests::press(VK_DOWN);
  tests::press(VK_TAB);
  EXPECT_EQ(screen.box.content, "20");
  EXPECT_EQ(screen.focused(), &screen.lines);
  in_step();
}

TEST_F(Keys, AWheelOverAClosedListChangesNoObservation) {
  screen.box.content = "10";
  screen.box.selected = 0;
  focus(screen.box);
  turn_wheel(window_of(screen.box), -WHEEL_DELTA);
  EXPECT_EQ(screen.box.content, "10");
  in_step();
}

TEST_F(Keys, SmallTurnsOfAWheelAddUpAndScroll) {
  SetWindowPos(shown.window.frame(), nullptr, 0, 0, 300, 160, SWP_NOMOVE | SWP_NOZORDER);
  win32::deal_with_waiting();
  const HWND viewport = GetParent(shown.window.content());
  const int before = GetScrollPos(viewport, SB_VERT);
  turn_wheel(viewport, -WHEEL_DELTA / 3);
  turn_wheel(viewport, -WHEEL_DELTA / 3);
  EXPECT_EQ(GetScrollPos(viewport, SB_VERT), before);
  turn_wheel(viewport, -WHEEL_DELTA / 3);
  EXPECT_GT(GetScrollPos(viewport, SB_VERT), before);
}

TEST_F(Keys, TheSecondOfTwoQuickClicksCountsToo) {
  const HWND tick = window_of(screen.tick);
  tests::click(tick);
  ASSERT_TRUE(screen.tick.checked);
  PostMessageW(tick, WM_LBUTTONDBLCLK, MK_LBUTTON, MAKELPARAM(3, 3));
  PostMessageW(tick, WM_LBUTTONUP, 0, MAKELPARAM(3, 3));
  win32::deal_with_waiting();
  EXPECT_FALSE(screen.tick.checked);
  in_step();
}

TEST_F(Keys, ALetterWithoutAltPressesNothing) {
  const char letter = shown.window.widget(screen.tick)->access_key;
  PostMessageW(GetFocus(), WM_SYSCHAR, static_cast<WPARAM>(letter), 1);
  win32::deal_with_waiting();
  EXPECT_FALSE(screen.tick.checked);
}

TEST_F(Keys, BringAFieldIntoViewWhereTheWindowIsLow) {
  SetWindowPos(shown.window.frame(), nullptr, 0, 0, 300, 160, SWP_NOMOVE | SWP_NOZORDER);
  win32::deal_with_waiting();
  focus(screen.go);
  RECT button{};
  GetWindowRect(window_of(screen.go), &button);
  RECT frame{};
  GetWindowRect(shown.window.frame(), &frame);
  EXPECT_GE(button.top, frame.top);
  EXPECT_LE(button.bottom, frame.bottom);
}

}  // namespace
