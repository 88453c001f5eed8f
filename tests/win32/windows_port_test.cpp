// What the port does beside screens and messages: notices, pauses, the clipboard, and the tips of a
// window.

#include "win32/windows_port.h"

#include <commctrl.h>
#include <gtest/gtest.h>

#include <future>
#include <string>
#include <thread>
#include <vector>

#include "real_world.h"
#include "text/ids.h"
#include "ui/dialog.h"
#include "win32/utf.h"

namespace {

class CTipsDlg : public ui::OkCancelDialog {
 public:
  explicit CTipsDlg(ui::Services& services)
      : OkCancelDialog(services, "CTipsDlg", {text::id::kHelpLabel}) {
    name.literal_caption = "Name";
    go.literal_caption = "Go";
    go.shortcut = "F9";
  }
  ui::Edit name{*this, "name", {}, 20};
  ui::Button go{*this, "go", {}};
};

class Port : public testing::Test {
 protected:
  [[nodiscard]] HWND window_of(const ui::Control& control) const {
    return shown.window.widget(control)->window();
  }
  tests::RealWorld world;
  CTipsDlg screen{world.services};
  tests::OnDisplay shown{screen};
};

// ---- Notices and pauses

class CNotice : public ui::Screen {
 public:
  explicit CNotice(ui::Services& services) : Screen(services, "CNotice", {text::id::kHelpLabel}) {
    words.literal_caption = "Calculating";
  }
  ui::Label words{*this, "words"};
};

std::vector<HWND> windows_shown() {
  std::vector<HWND> all;
  const auto add = [](HWND window, LPARAM into) -> BOOL {
    wchar_t kind[32]{};
    GetClassNameW(window, kind, 31);
    if (std::wstring(kind) == L"KavrelWindow" && IsWindowVisible(window) != FALSE)
      reinterpret_cast<std::vector<HWND>*>(into)->push_back(window);
    return TRUE;
  };
  EnumThreadWindows(GetCurrentThreadId(), add, reinterpret_cast<LPARAM>(&all));
  return all;
}

TEST_F(Port, ShowsANoticeThatTakesNoKeysUntilItIsHidden) {
  const HWND focus = GetFocus();
  CNotice notice(world.services);
  ASSERT_EQ(windows_shown().size(), 1U);
  world.windows.show_notice(notice);
  EXPECT_EQ(windows_shown().size(), 2U);
  EXPECT_EQ(GetFocus(), focus);
  world.windows.hide_notice(notice);
  EXPECT_EQ(windows_shown(), std::vector<HWND>{shown.window.frame()});
}

TEST_F(Port, PausesAndLeavesKeysForWhatComesThen) {
  PostMessageW(window_of(screen.name), WM_CHAR, L'a', 1);
  InvalidateRect(shown.window.content(), nullptr, TRUE);
  const ULONGLONG begin = GetTickCount64();
  constexpr int kPause = 150;
  world.windows.pause(kPause);
  // The system's clock goes in steps.
  EXPECT_GE(GetTickCount64() - begin, static_cast<ULONGLONG>(kPause - 16));
  EXPECT_EQ(screen.name.content, "");
  EXPECT_EQ(GetUpdateRect(shown.window.content(), nullptr, FALSE), FALSE) << "painted";
  win32::deal_with_waiting();
  EXPECT_EQ(screen.name.content, "a");
}

// ---- The clipboard

TEST_F(Port, CopiesATextThatAFieldPastes) {
  EXPECT_TRUE(world.windows.copy_text("\xE9\x9B\xB2 BBXX 15124"));
  tests::press('V', false, true);
  EXPECT_EQ(screen.name.content, "\xE9\x9B\xB2 BBXX 15124");
}

TEST_F(Port, TellsThatAnotherDoesNotLetGoOfTheClipboard) {
  ASSERT_TRUE(world.windows.copy_text("before"));
  std::promise<bool> held;
  std::promise<void> enough;
  std::thread other([&] {
    const HWND own =
        CreateWindowExW(0, L"STATIC", L"", 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr, nullptr, nullptr);
    held.set_value(OpenClipboard(own) != FALSE);
    enough.get_future().wait();
    CloseClipboard();
    DestroyWindow(own);
  });
  ASSERT_TRUE(held.get_future().get());
  EXPECT_FALSE(world.windows.copy_text("BBXX"));
  enough.set_value();
  other.join();
  EXPECT_TRUE(world.windows.copy_text("BBXX"));
  tests::press('V', false, true);
  EXPECT_EQ(screen.name.content, "BBXX");
}

// ---- Tips

// The window's own: a list or a tree may have some for itself.
HWND tips_of(HWND frame) {
  struct Search {
    HWND frame;
    HWND found;
  } search{frame, nullptr};
  const auto look = [](HWND window, LPARAM into) -> BOOL {
    auto& wanted = *reinterpret_cast<Search*>(into);
    wchar_t kind[32]{};
    GetClassNameW(window, kind, 31);
    if (std::wstring(kind) != TOOLTIPS_CLASSW || GetWindow(window, GW_OWNER) != wanted.frame)
      return TRUE;
    wanted.found = window;
    return FALSE;
  };
  EnumThreadWindows(GetCurrentThreadId(), look, reinterpret_cast<LPARAM>(&search));
  return search.found;
}

class Tips : public Port {
 protected:
  // What is told where the pointer rests on the window, as the person reads it; empty for nothing.
  [[nodiscard]] std::string told_at(HWND window) const {
    const HWND tips = tips_of(shown.window.frame());
    SendMessageW(tips, TTM_SETDELAYTIME, TTDT_INITIAL, 10);
    RECT place{};
    GetWindowRect(window, &place);
    const POINT middle{(place.left + place.right) / 2, (place.top + place.bottom) / 2};
    SetCursorPos(middle.x, middle.y);
    // What is disabled hears nothing of the pointer; the system tells what is around it.
    const HWND hears = IsWindowEnabled(window) != FALSE ? window : GetParent(window);
    POINT at = middle;
    ScreenToClient(hears, &at);
    // Each move begins the delay anew: a pointer that rests moves no more.
    constexpr ULONGLONG kPatience = 10'000;
    constexpr ULONGLONG kRest = 500;
    const ULONGLONG end = GetTickCount64() + kPatience;
    ULONGLONG next_move = 0;
    while (GetTickCount64() < end && IsWindowVisible(tips) == FALSE) {
      if (GetTickCount64() >= next_move) {
        PostMessageW(hears, WM_MOUSEMOVE, 0, MAKELPARAM(at.x, at.y));
        next_move = GetTickCount64() + kRest;
      }
      win32::deal_with_waiting();
      Sleep(5);
    }
    return IsWindowVisible(tips) == FALSE ? std::string() : win32::narrow(win32::text_on(tips));
  }
};

TEST_F(Tips, TellTheKeysOfAButton) {
  EXPECT_EQ(told_at(window_of(screen.go)), "Go (F9)");
}

TEST_F(Tips, TellWhyAFieldIsLocked) {
  screen.name.read_only = true;
  screen.name.why_locked = "Computed";
  shown.window.show_controls();
  EXPECT_EQ(told_at(window_of(screen.name)), "Computed");
}

TEST_F(Tips, TellWhyADisabledFieldIsLocked) {
  screen.name.enabled = false;
  screen.name.why_locked = "No wave is observed";
  shown.window.show_controls();
  EXPECT_EQ(told_at(window_of(screen.name)), "No wave is observed");
}

}  // namespace
