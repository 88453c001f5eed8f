// Fields that move on when they are full, and what is typed, pasted or given by an input method in them.

#include <gtest/gtest.h>

#include <cstring>
#include <initializer_list>
#include <string>
#include <string_view>

#include "real_world.h"
#include "text/ids.h"
#include "widget_views.h"
#include "win32/message_window.h"

namespace {

using tests::press;
using tests::type;

class CCodesDlg : public ui::Screen {
 public:
  explicit CCodesDlg(ui::Services& services)
      : Screen(services, "CCodesDlg", {text::id::kNoValueInput}) {
    for (ui::Control* const code : std::initializer_list<ui::Control*>{&edit, &combo}) {
      code->moves_on_when_full = true;
      code->figures = true;
      code->on_leave = [this, code] {
        if (code->content != "99") return true;
        this->services().messages.error(text::id::kInputError);
        return false;
      };
    }
    combo.items = {"01", "02", "03"};
  }
  ui::Edit edit{*this, "edit", {}, 2};
  ui::Combo combo{*this, "combo", {}, 2};
  ui::Edit last{*this, "last", {}, 9};
  ui::Button ok{*this, "ok", {text::id::kOkLabel}, ui::Role::kAccept};
};

class FullFields : public testing::TestWithParam<const char*> {
 protected:
  FullFields() {
    world.services.moves_on = true;
    world.windows.on_asked = [this](win32::MessageWindow& box) {
      ++told;
      PostMessageW(box.buttons().front(), WM_KEYDOWN, VK_RETURN, 1);
    };
    go();
  }
  void go() {
    screen.move_focus(field());
    shown.window.refresh();
    win32::deal_with_waiting();
  }
  [[nodiscard]] ui::Control& field() const { return *screen.find(GetParam()); }
  [[nodiscard]] bool has_focus() const { return screen.focused() == &field(); }
  void expect_keyboard_at_focus() {
    EXPECT_TRUE(shown.window.widget(*screen.focused())->owns(GetFocus()));
    tests::expect_in_step(shown.window, screen, "now");
  }

  tests::RealWorld world;
  CCodesDlg screen{world.services};
  tests::OnDisplay shown{screen};
  int told = 0;
};

TEST_P(FullFields, MoveOnBehindTheLastFigure) {
  type("0");
  EXPECT_TRUE(has_focus());
  type("7");
  EXPECT_FALSE(has_focus());
  EXPECT_EQ(field().content, "07");
  expect_keyboard_at_focus();
}

TEST_P(FullFields, TakeTheTabOfAHandThatDoesNotLookForTheirOwn) {
  type("07");
  const ui::Control* const next = screen.focused();
  ASSERT_NE(next, &field());
  press(VK_TAB);
  EXPECT_EQ(screen.focused(), next);
  press(VK_TAB);
  EXPECT_NE(screen.focused(), next);
  expect_keyboard_at_focus();
}

// No screen hears of these.
TEST_P(FullFields, LetATabBehindAnotherKeyGoOn) {
  for (const WPARAM key : {WPARAM{VK_SHIFT}, WPARAM{VK_CONTROL}, WPARAM{VK_F9}}) {
    go();
    type("07");
    const ui::Control* const next = screen.focused();
    ASSERT_NE(next, &field());
    press(key);
    ASSERT_EQ(screen.focused(), next);
    press(VK_TAB);
    EXPECT_NE(screen.focused(), next) << key;
  }
}

TEST_P(FullFields, LetATabBehindAClickGoOn) {
  type("07");
  const ui::Control* const next = screen.focused();
  ASSERT_NE(next, &field());
  tests::click(GetFocus());
  ASSERT_EQ(screen.focused(), next);
  press(VK_TAB);
  EXPECT_NE(screen.focused(), next);
}

TEST_P(FullFields, LeadBackWithShiftTabAtOnce) {
  type("07");
  press(VK_TAB, true);
  EXPECT_TRUE(has_focus());
}

TEST_P(FullFields, StayWithTheirTextSelectedAtARefusal) {
  type("99");
  EXPECT_EQ(told, 1);
  EXPECT_TRUE(has_focus());
  expect_keyboard_at_focus();
  DWORD from = 1;
  DWORD to = 0;
  SendMessageW(GetFocus(), EM_GETSEL, reinterpret_cast<WPARAM>(&from),
               reinterpret_cast<LPARAM>(&to));
  EXPECT_EQ(from, 0U);
  EXPECT_EQ(to, 2U);
  type("03");
  EXPECT_FALSE(has_focus());
  EXPECT_EQ(field().content, "03");
}

TEST_P(FullFields, TakeFullWidthFiguresOfAnInputMethod) {
  type("\xEF\xBC\x90\xEF\xBC\x97");  // 0 and 7, as wide as a Japanese letter
  EXPECT_EQ(field().content, "07");
  EXPECT_FALSE(has_focus());
}

TEST_P(FullFields, StayWhereAFigureIsCorrectedBeforeTheEnd) {
  type("7");
  press(VK_HOME);
  type("0");
  EXPECT_EQ(field().content, "07");
  EXPECT_TRUE(has_focus());
}

void put_on_clipboard(const wchar_t* text) {
  ASSERT_NE(OpenClipboard(nullptr), FALSE);
  EmptyClipboard();
  const std::size_t bytes = (std::wcslen(text) + 1) * sizeof(wchar_t);
  const HGLOBAL block = GlobalAlloc(GMEM_MOVEABLE, bytes);
  std::memcpy(GlobalLock(block), text, bytes);
  GlobalUnlock(block);
  SetClipboardData(CF_UNICODETEXT, block);
  CloseClipboard();
}

TEST_P(FullFields, StayAtWhatIsPastedOrTakenBack) {
  put_on_clipboard(L"07");
  press('V', false, true);
  EXPECT_EQ(field().content, "07");
  EXPECT_TRUE(has_focus());
  press('Z', false, true);
  EXPECT_EQ(field().content, "");
  EXPECT_TRUE(has_focus());
  tests::expect_in_step(shown.window, screen, "taken back");
}

TEST_P(FullFields, CutAndCopyAsAnywhere) {
  type("7");
  press('A', false, true);
  press('C', false, true);
  press(VK_DELETE);
  EXPECT_EQ(field().content, "");
  press('V', false, true);
  EXPECT_EQ(field().content, "7");
  press('A', false, true);
  press('X', false, true);
  EXPECT_EQ(field().content, "");
  press('V', false, true);
  EXPECT_EQ(field().content, "7");
}

TEST_P(FullFields, TakeOfAPastedTextWhatTheyHaveRoomFor) {
  put_on_clipboard(L"0123");
  press('V', false, true);
  EXPECT_EQ(field().content, "01");
  tests::expect_in_step(shown.window, screen, "pasted");
}

TEST_P(FullFields, WaitForTabWhereTheOfficerSwitchedItOff) {
  world.services.moves_on = false;
  type("07");
  EXPECT_TRUE(has_focus());
  press(VK_TAB);
  EXPECT_FALSE(has_focus());
}

INSTANTIATE_TEST_SUITE_P(Kinds, FullFields, testing::Values("edit", "combo"),
                         [](const testing::TestParamInfo<const char*>& kind) {
                           return std::string(kind.param);
                         });

}  // namespace
