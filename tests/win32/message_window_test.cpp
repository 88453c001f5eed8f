// Messages and questions: the program's texts, in its order, answered with keys.

#include "win32/message_window.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "real_world.h"
#include "text/ids.h"
#include "ui/dialog.h"
#include "win32/utf.h"

namespace {

ui::MessageBox question() {
  ui::MessageBox box;
  box.title = "kavrel";
  box.text = "はじめの行\nThe second line & more";
  box.buttons = {{"はい(&Y)", "yes", ui::kYes},
                 {"いいえ(&N)", "no", ui::kNo},
                 {"キャンセル", "cancel", ui::kCancel}};
  box.close_result = ui::kCancel;
  box.sign = ui::Sign::kQuestion;
  return box;
}

struct Keys {
  std::vector<WPARAM> pressed;
  WPARAM character;
  int result;
};

class Answer : public testing::TestWithParam<Keys> {};

TEST_P(Answer, IsThatOfTheKeysThatWerePressed) {
  const ui::MessageBox box = question();
  win32::MessageWindow window(box, nullptr, text::Language::kJapanese, std::nullopt);
  for (const WPARAM key : GetParam().pressed)
    PostMessageW(window.buttons().front(), WM_KEYDOWN, key, 1);
  if (GetParam().character != 0)
    PostMessageW(window.buttons().front(), WM_CHAR, GetParam().character, 1);
  EXPECT_EQ(window.ask(), GetParam().result);
}

INSTANTIATE_TEST_SUITE_P(MessageWindow, Answer,
                         testing::Values(Keys{{VK_RETURN}, 0, ui::kYes},
                                         Keys{{VK_ESCAPE}, 0, ui::kCancel},
                                         Keys{{VK_TAB, VK_RETURN}, 0, ui::kNo},
                                         Keys{{VK_RIGHT, VK_RIGHT, VK_RETURN}, 0, ui::kCancel},
                                         Keys{{VK_LEFT, VK_RETURN}, 0, ui::kCancel},
                                         Keys{{}, L'n', ui::kNo}, Keys{{}, L'C', ui::kCancel}));

TEST(MessageWindow, HasTheProgramsTextsAndNotTheSystems) {
  const ui::MessageBox box = question();
  const win32::MessageWindow window(box, nullptr, text::Language::kJapanese, std::nullopt);
  EXPECT_EQ(win32::narrow(win32::text_on(window.frame())), "kavrel");
  EXPECT_EQ(win32::with_plain_ends(win32::text_on(window.text())), box.text);
  std::vector<std::string> labels;
  for (const HWND button : window.buttons())
    labels.push_back(win32::narrow(win32::text_on(button)));
  EXPECT_EQ(labels, (std::vector<std::string>{"はい(&Y)", "いいえ(&N)", "キャンセル(&C)"}));
}

TEST(MessageWindow, GivesItsOnlyButtonNoLetter) {
  ui::MessageBox box = question();
  box.buttons.resize(1);
  box.buttons.front().label = "OK";
  const win32::MessageWindow window(box, nullptr, text::Language::kEnglish, std::nullopt);
  EXPECT_EQ(win32::narrow(win32::text_on(window.buttons().front())), "OK");
}

TEST(MessageWindow, FindsItsButtonAgainBehindALookIntoAnotherProgram) {
  win32::MessageWindow window(question(), nullptr, text::Language::kEnglish, std::nullopt);
  ShowWindow(window.frame(), SW_SHOW);
  SetFocus(window.buttons().front());
  EXPECT_TRUE(window.filter({window.buttons().front(), WM_KEYDOWN, VK_TAB, 1, 0, {}}));
  ASSERT_EQ(GetFocus(), window.buttons()[1]);
  SetFocus(nullptr);
  // What the system does when the person comes back.
  SetFocus(window.frame());
  EXPECT_EQ(GetFocus(), window.buttons()[1]);
}

class CAskingDlg : public ui::OkCancelDialog {
 public:
  explicit CAskingDlg(ui::Services& services)
      : OkCancelDialog(services, "CAskingDlg", {text::id::kHelpLabel}) {
    ask.on_press = [this] {
      answer = this->services().messages.question("?", "?", ui::QuestionMode::kYesNo);
    };
  }
  ui::Button ask{*this, "ask", {text::id::kHelpLabel}};
  int answer = 0;
};

TEST(MessageWindow, IsAnsweredBeforeTheWindowBehindItGoesOn) {
  tests::RealWorld world;
  CAskingDlg screen(world.services);
  HWND behind = nullptr;
  world.windows.on_shown = [&](win32::ScreenWindow& window) {
    behind = window.frame();
    PostMessageW(window.widget(screen.ask)->window(), WM_KEYDOWN, VK_RETURN, 1);
    SetTimer(behind, 7, 300, [](HWND window_behind, UINT, UINT_PTR timer, DWORD) {
      // Not while the question is open: the window waits for it.
      if (IsWindowEnabled(window_behind) == FALSE) return;
      KillTimer(window_behind, timer);
      PostMessageW(window_behind, WM_CLOSE, 0, 0);
    });
  };
  world.windows.on_asked = [&](win32::MessageWindow& box) {
    EXPECT_EQ(GetWindow(box.frame(), GW_OWNER), behind);
    // A click on the close box of the window behind, had it got through, is dropped.
    PostMessageW(behind, WM_CLOSE, 0, 0);
    PostMessageW(box.buttons().front(), WM_KEYDOWN, VK_TAB, 1);
    PostMessageW(box.buttons().front(), WM_KEYDOWN, VK_RETURN, 1);
  };
  EXPECT_EQ(world.windows.run_modal(screen), ui::kCancel);
  EXPECT_EQ(screen.answer, ui::kNo);
}

}  // namespace
