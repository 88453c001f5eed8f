// Light and dark: what a person reads on what, and the change from one to the other while the program
// runs.

#include "win32/look.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <string>
#include <vector>

#include "real_world.h"
#include "text/ids.h"
#include "ui/dialog.h"
#include "widget_views.h"

namespace {

// How light a colour is to the eye, and the contrast of two, as WCAG 2 defines them.
double lightness(COLORREF colour) {
  const auto part = [](int value) {
    const double share = value / 255.0;
    return share <= 0.04045 ? share / 12.92 : std::pow((share + 0.055) / 1.055, 2.4);
  };
  return 0.2126 * part(GetRValue(colour)) + 0.7152 * part(GetGValue(colour)) +
         0.0722 * part(GetBValue(colour));
}

double contrast(COLORREF a, COLORREF b) {
  const double light = std::max(lightness(a), lightness(b));
  const double dark = std::min(lightness(a), lightness(b));
  return (light + 0.05) / (dark + 0.05);
}

// Of small letters in poor light, and of what is no text.
constexpr double kReadable = 4.5;
constexpr double kSeen = 3;

class LookOf : public testing::TestWithParam<bool> {
 protected:
  win32::Look look{96, text::Language::kEnglish, GetParam()};
};

TEST_P(LookOf, EveryTextCanBeRead) {
  const win32::Colours& c = look.colours();
  EXPECT_GE(contrast(c.text, c.window), kReadable);
  EXPECT_GE(contrast(c.ink, c.paper), kReadable);
  EXPECT_GE(contrast(c.faint, c.window), kReadable);
  EXPECT_GE(contrast(c.selected_ink, c.selected), kReadable);
  for (const win32::Dress dress :
       {win32::Dress::kPlain, win32::Dress::kLocked, win32::Dress::kMissing, win32::Dress::kWrong})
    EXPECT_GE(contrast(look.ink(dress), look.paper(dress)), kReadable) << static_cast<int>(dress);
  EXPECT_GE(contrast(look.ink(win32::Dress::kLink), c.window), kReadable);
}

TEST_P(LookOf, FramesAreSeen) {
  const win32::Colours& c = look.colours();
  EXPECT_GE(contrast(c.focus, c.window), kSeen);
  EXPECT_GE(contrast(c.frame, c.window), kSeen);
  EXPECT_GE(contrast(c.wrong_frame, c.window), kSeen);
}

TEST_P(LookOf, WhatADressTellsIsToldApart) {
  std::vector<COLORREF> papers;
  for (const win32::Dress dress :
       {win32::Dress::kPlain, win32::Dress::kLocked, win32::Dress::kMissing, win32::Dress::kWrong})
    papers.push_back(look.paper(dress));
  std::sort(papers.begin(), papers.end());
  EXPECT_EQ(std::unique(papers.begin(), papers.end()), papers.end());
}

INSTANTIATE_TEST_SUITE_P(LightAndDark, LookOf, testing::Bool(),
                         [](const testing::TestParamInfo<bool>& dark) {
                           return dark.param ? "Dark" : "Light";
                         });

// ---- As the person has it in the system

constexpr const wchar_t* kKey =
    L"Software\\Microsoft\\Windows\\CurrentVersion\\Themes\\Personalize";
constexpr const wchar_t* kValue = L"AppsUseLightTheme";

class CFieldsDlg : public ui::OkCancelDialog {
 public:
  explicit CFieldsDlg(ui::Services& services)
      : OkCancelDialog(services, "CFieldsDlg", {text::id::kHelpLabel}) {
    name.literal_caption = "Name";
    lines.items = {"alpha", "beta"};
  }
  ui::Edit name{*this, "name", {}, 20};
  ui::List lines{*this, "lines"};
};

class PersonsChoice : public testing::Test {
 protected:
  void TearDown() override { RegDeleteKeyValueW(HKEY_CURRENT_USER, kKey, kValue); }

  void choose(bool dark) {
    const DWORD light = dark ? 0 : 1;
    RegSetKeyValueW(HKEY_CURRENT_USER, kKey, kValue, REG_DWORD, &light, sizeof light);
    // As the system tells every window.
    SendMessageW(shown.window.frame(), WM_SETTINGCHANGE, 0,
                 reinterpret_cast<LPARAM>(L"ImmersiveColorSet"));
    win32::deal_with_waiting();
    RedrawWindow(shown.window.frame(), nullptr, nullptr,
                 RDW_UPDATENOW | RDW_ALLCHILDREN | RDW_INVALIDATE | RDW_ERASE);
    GdiFlush();
  }
  static COLORREF pixel(HWND window, int x, int y) {
    const HDC canvas = GetDC(window);
    const COLORREF colour = GetPixel(canvas, x, y);
    ReleaseDC(window, canvas);
    return colour;
  }
  void expect_painted() {
    const win32::Colours& colours = shown.window.look().colours();
    EXPECT_EQ(pixel(shown.window.content(), 1, 1), colours.window);
    RECT field{};
    GetClientRect(shown.window.widget("name")->window(), &field);
    EXPECT_EQ(pixel(shown.window.widget("name")->window(), field.right - 6, field.bottom / 2),
              colours.paper);
    RECT list{};
    GetClientRect(shown.window.widget("lines")->window(), &list);
    EXPECT_EQ(pixel(shown.window.widget("lines")->window(), list.right - 4, 4), colours.paper);
    tests::expect_in_step(shown.window, screen, "in other colours");
  }

  tests::RealWorld world;
  CFieldsDlg screen{world.services};
  tests::OnDisplay shown{screen};
};

TEST_F(PersonsChoice, IsFollowedWhileTheProgramRuns) {
  EXPECT_FALSE(shown.window.look().dark());
  tests::type("ab");
  choose(true);
  EXPECT_TRUE(shown.window.look().dark());
  expect_painted();
  EXPECT_EQ(screen.name.content, "ab");
  choose(false);
  EXPECT_FALSE(shown.window.look().dark());
  expect_painted();
}

}  // namespace
