// Dialogs of the real main window by keys: opened in their fields, cancelled, confirmed, and used to
// mend what was refused.

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "elements/CPositionDlg.h"
#include "fakes/sample_observation.h"
#include "real_world.h"
#include "text/ids.h"
#include "text/strings.h"
#include "ui/dump.h"
#include "widget_views.h"
#include "win32/help.h"
#include "win32/message_window.h"
#include "win32/utf.h"

namespace {

using tests::press;
using tests::type;

class DialogKeys : public testing::Test {
 protected:
  DialogKeys() {
    screen.open();
    window = std::make_unique<win32::ScreenWindow>(screen, nullptr);
    window->show_up();
    win32::deal_with_waiting();
    world.windows.on_asked = [this](win32::MessageWindow& box) {
      told.push_back(win32::with_plain_ends(win32::text_on(box.text())));
      PostMessageW(box.buttons().front(), WM_KEYDOWN, VK_RETURN, 1);
    };
  }
  void go_to(const char* field) {
    ASSERT_TRUE(screen.move_focus(*screen.find(field))) << field;
    window->refresh();
    win32::deal_with_waiting();
  }
  void expect_at(const char* field) {
    ASSERT_NE(screen.focused(), nullptr);
    EXPECT_EQ(screen.focused()->name, field);
    EXPECT_TRUE(window->widget(field)->owns(GetFocus())) << field;
    tests::expect_in_step(*window, screen, field);
  }

  tests::RealWorld world;
  fakes::SampleMainWindow screen{world.services};
  std::unique_ptr<win32::ScreenWindow> window;
  std::vector<std::string> told;
};

struct F1Row {
  const char* field;
  const char* dialog;
};
constexpr F1Row kF1[] = {
    {"Year", "CUTCTimeDlg1"},
    {"LaDeg", "CPositionDlg"},
    {"east_west", "CPositionDlg"},
    {"Ds", "CDvDsDlg"},
    {"reading", "CSeaSurfacePressureDlg"},
    {"a", "CPresureTendencyDlg"},
    {"dry_bulb", "CCountDewDlg"},
    {"dd", "CTrueDirWindDlg"},
    {"TwTwTw", "CSea_SurfaceTemperatureDlg"},
    {"HwHw", "CWindDlg"},
    {"dw1dw1", "CSwellWaveDlg"},
    {"VV", "CEyeShotDlg"},
    {"ww", "CNowWeatherDlg"},
    {"W2", "CPastWeatherDlg1"},
    {"N", "CCloudAgeDlg"},
    {"Nh", "CBottomLayerCloudDlg"},
    {"CH", "CTopCloudDlg"},
    {"CM", "CMidCloudDlg"},
    {"CL", "CBottomCloudDlg"},
    {"h", "CCloudHeightDlg"},
};

TEST_F(DialogKeys, OpenWithF1InTheirFieldsAndCancelledChangeNothing) {
  for (const F1Row& row : kF1) {
    go_to(row.field);
    const std::string before = ui::dump(screen);
    std::string opened;
    world.windows.on_shown = [&](win32::ScreenWindow& dialog) {
      opened = dialog.shown_screen().class_name();
      tests::post_key(VK_ESCAPE);
    };
    press(VK_F1);
    EXPECT_EQ(opened, row.dialog) << row.field;
    EXPECT_EQ(ui::dump(screen), before) << row.field;
    expect_at(row.field);
  }
}

// Visibility: the first Down chooses "not observed", the next one 50 km or more.
TEST_F(DialogKeys, MendAFieldThatWasRefused) {
  go_to("VV");
  type("7");
  press(VK_TAB);
  ASSERT_EQ(told.size(), 1U);
  EXPECT_EQ(told.front(), text::bilingual(text::id::kVisibilityRange, text::Language::kEnglish));
  expect_at("VV");
  EXPECT_EQ(screen.find("VV")->content, "7");
  world.windows.on_shown = [](win32::ScreenWindow& /*dialog*/) {
    for (const WPARAM key : {VK_DOWN, VK_DOWN, VK_RETURN}) tests::post_key(key);
  };
  press(VK_F1);
  EXPECT_EQ(told.size(), 1U);
  EXPECT_EQ(screen.find("VV")->content, "99");
  expect_at("ww");
  // And it stays right.
  press(VK_TAB, true);
  expect_at("VV");
  press(VK_TAB);
  EXPECT_EQ(told.size(), 1U);
}

class HelpThenOk : public testing::Test {
 protected:
  HelpThenOk() {
    world.windows.on_asked = [this](win32::MessageWindow& box) {
      told.push_back(win32::with_plain_ends(win32::text_on(box.text())));
      PostMessageW(box.buttons().front(), WM_KEYDOWN, VK_RETURN, 1);
    };
  }
  tests::RealWorld world;
  CPositionDlg screen{world.services, {}, "", {}};
  tests::OnDisplay shown{screen};
  std::vector<std::string> told;
};

TEST_F(HelpThenOk, ASlipOnAltLeavesTheFieldAsItIs) {
  const HWND degrees = shown.window.widget(screen.latitude_degrees)->focus_window();
  ASSERT_EQ(GetFocus(), degrees);
  type("12");
  const std::string before = ui::dump(screen);
  // No caption of this dialog has the letter.
  tests::press_with_alt('z');
  EXPECT_EQ(ui::dump(screen), before);
  EXPECT_EQ(GetFocus(), degrees);
  EXPECT_EQ(win32::narrow(win32::text_on(degrees)), "12");
}

// Help lets a wrong field be left, to be read about; OK does not.
TEST_F(HelpThenOk, StillChecksTheFieldThatHelpLetPass) {
  type("99");
  tests::click(shown.window.widget(screen.help)->window());
  EXPECT_EQ(world.fake.help_viewer.shown.size(), 1U);
  EXPECT_TRUE(told.empty());
  tests::click(shown.window.widget(screen.ok)->window());
  ASSERT_EQ(told.size(), 1U);
  EXPECT_EQ(told.front(),
            text::bilingual(text::id::kLatitudeDegreesRange, text::Language::kEnglish));
  EXPECT_FALSE(screen.result());
  EXPECT_EQ(screen.focused(), &screen.latitude_degrees);
  EXPECT_TRUE(shown.window.widget(screen.latitude_degrees)->owns(GetFocus()));
  tests::expect_in_step(shown.window, screen, "refused");
}

TEST_F(HelpThenOk, OpensTheDialogsPageWithF1AndGoesOn) {
  type("35");
  press(VK_F1);
  EXPECT_EQ(world.fake.help_viewer.shown.size(), 1U);
  type("");
  EXPECT_EQ(screen.focused(), &screen.latitude_degrees);
  EXPECT_EQ(screen.latitude_degrees.content, "35");
  EXPECT_TRUE(told.empty());
}

// ---- Help whose page is not there

TEST(MissingPage, IsToldByTheProgramsOwnMessageAndTheDialogGoesOn) {
  for (const text::Language language : {text::Language::kEnglish, text::Language::kJapanese}) {
    tests::RealWorld world;
    world.fake.texts.language = language;
    win32::Help viewer([](const std::string& /*path*/) { return std::nullopt; },
                       [&world](const std::string& title, const std::string& words) {
                         world.windows.tell(title, words);
                       });
    text::HelpLauncher help(world.fake.texts, viewer, "C:\\program");
    ui::Services services{world.fake.clock,
                          world.fake.locale,
                          world.fake.drives,
                          world.fake.no_files,
                          world.fake.code_page,
                          world.fake.printer,
                          world.windows,
                          world.fake.texts,
                          world.messages,
                          help,
                          false};
    CPositionDlg screen(services, {}, "", {});
    std::vector<std::string> told;
    world.windows.on_asked = [&](win32::MessageWindow& box) {
      told.push_back(win32::narrow(win32::text_on(box.frame())));
      told.push_back(win32::with_plain_ends(win32::text_on(box.text())));
      PostMessageW(box.buttons().front(), WM_KEYDOWN, VK_RETURN, 1);
    };
    world.windows.on_shown = [&](win32::ScreenWindow& dialog) {
      type("35");
      press(VK_F1);
      EXPECT_TRUE(dialog.widget(screen.latitude_degrees)->owns(GetFocus()));
      EXPECT_EQ(screen.latitude_degrees.content, "35");
      tests::post_key(VK_ESCAPE);
    };
    EXPECT_EQ(world.windows.run_modal(screen), ui::kCancel);
    ASSERT_EQ(told.size(), 2U);
    EXPECT_EQ(told[0], language == text::Language::kEnglish ? "Help" : "ヘルプ");
    EXPECT_TRUE(told[1].starts_with(language == text::Language::kEnglish
                                        ? "The help page was not found.\nC:\\program"
                                        : "ヘルプのページが見つかりません。\nC:\\program"))
        << told[1];
  }
}

}  // namespace
