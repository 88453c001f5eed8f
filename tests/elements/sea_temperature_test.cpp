#include <gtest/gtest.h>

#include "codetables/tables/sea_temperature_figures.h"
#include "elements/CSea_SurfaceTemperatureDlg.h"
#include "elements/dialog_checks.h"
#include "fakes/fake_ports.h"
#include "text/ids.h"

namespace {

using codetables::sea_temperature;
using codetables::sea_temperature_figures;
using codetables::sea_temperature_text;
using Method = SeaTemperatureMethod;
using Values = CSea_SurfaceTemperatureDlg::Values;

constexpr Method kMethods[] = {Method::kIntake, Method::kBucket, Method::kHullContactSensor,
                               Method::kOther};

TEST(SeaTemperature, IsAcceptedFromMinus2To37) {
  for (const char* good :
       {"-2", "-2.0", "-1.9", "0", "+5", ".5", "5.", "12.34", "37", "37.0", " 8 "})
    EXPECT_TRUE(sea_temperature(good)) << good;
  for (const char* bad : {"",    " ", "-2.1", "-2.01", "37.01", "37.1", "99",  "x",   "1x", "1.2.3",
                          "--1", "-", ".",    "1e1",   "1,5",   "0x1",  "1 2", "nan", "//", "\xff"})
    EXPECT_FALSE(sea_temperature(bad)) << bad;
}

struct FigureRow {
  double value;
  bool below_zero;
  const char* figures;
  const char* text;
};
constexpr FigureRow kFigures[] = {
    {12.3, false, "123", "12.3"}, {0.0, false, "000", "0.0"},   {-0.04, false, "000", "0.0"},
    {-0.1, true, "001", "-0.1"},  {-2.0, true, "020", "-2.0"},  {-1.8, true, "018", "-1.8"},
    {5.0, false, "050", "5.0"},   {37.0, false, "370", "37.0"}, {0.06, false, "001", "0.1"},
};

TEST(SeaTemperature, FiguresFollowTheCodeTableOfSignAndMethod) {
  for (const FigureRow& row : kFigures) {
    for (const Method method : kMethods) {
      const auto figures = sea_temperature_figures({row.value}, method);
      const int even = 2 * static_cast<int>(method);
      EXPECT_EQ(figures.Ss, std::to_string(even + (row.below_zero ? 1 : 0))) << row.value;
      EXPECT_EQ(figures.TwTwTw, row.figures) << row.value;
      EXPECT_EQ(sea_temperature_text(figures.Ss, figures.TwTwTw), row.text) << row.value;
      EXPECT_EQ(codetables::sea_temperature_method(figures.Ss), method);
    }
  }
}

TEST(SeaTemperature, WhatIsNoFiguresHasNoText) {
  EXPECT_EQ(sea_temperature_text("0", ""), "");
  EXPECT_EQ(sea_temperature_text("0", "///"), "");
  EXPECT_EQ(sea_temperature_text("", "123"), "12.3");
  for (const char* bad : {"", "8", "9", "/", "00"})
    EXPECT_FALSE(codetables::sea_temperature_method(bad)) << bad;
}

TEST(SeaTemperature, EveryTenthComesBackThroughItsFigures) {
  for (int tenths = -20; tenths <= 370; ++tenths) {
    for (const Method method : kMethods) {
      const auto there = sea_temperature_figures({tenths / 10.0}, method);
      const auto text = sea_temperature_text(there.Ss, there.TwTwTw);
      const auto value = sea_temperature(text);
      ASSERT_TRUE(value) << text;
      EXPECT_EQ(sea_temperature_figures(*value, method), there) << text;
    }
  }
}

struct SeaScreen : testing::Test {
  fakes::World world;
};

TEST_F(SeaScreen, HasItsTextsInBothLanguages) {
  CSea_SurfaceTemperatureDlg dialog(world.services, {}, Method::kIntake);
  dialog.open();
  EXPECT_EQ(dialog.title(), "Sea surface temperature");
  EXPECT_EQ(dialog.method.items, (std::vector<std::string>{"Condenser intake water", "Bucket",
                                                           "Hull contact sensor", "Other"}));
  world.japanese();
  EXPECT_EQ(dialog.title(), "海面水温");
  EXPECT_EQ(text::bilingual(text::Id{35017}, text::Language::kEnglish),
            "Error: Input data is out of range.\nIt must be \"-2<=Sea surface temp(degC)<=37.0\"");
}

TEST_F(SeaScreen, MethodIsTheShipsAndThatOfAnObservationThatHasOne) {
  for (const Method method : kMethods) {
    CSea_SurfaceTemperatureDlg fresh(world.services, {}, method);
    fresh.open();
    EXPECT_EQ(fresh.method.selected, static_cast<int>(method));
    EXPECT_EQ(fresh.temperature.content, "");
  }
  CSea_SurfaceTemperatureDlg again(world.services, {"3", "018"}, Method::kIntake);
  again.open();
  EXPECT_EQ(again.method.selected, 1);
  EXPECT_EQ(again.temperature.content, "-1.8");
}

TEST_F(SeaScreen, MethodCanBeChangedForThisObservation) {
  const struct {
    const char* typed;
    int method;
    Values out;
  } rows[] = {{"12.3", 0, {"0", "123"}}, {"-1.2", 0, {"1", "012"}}, {"0", 1, {"2", "000"}},
              {"-0.5", 1, {"3", "005"}}, {"8", 2, {"4", "080"}},    {"-2", 2, {"5", "020"}},
              {"37.0", 3, {"6", "370"}}, {"-2.0", 3, {"7", "020"}}, {"１２．３", 3, {"6", "123"}},
              {"-0.0", 0, {"0", "000"}}};
  for (const auto& row : rows) {
    CSea_SurfaceTemperatureDlg dialog(world.services, {}, Method::kIntake);
    dialog.open();
    fakes::enter(dialog, dialog.temperature, row.typed);
    dialog.choose(dialog.method, row.method);
    dialog.key(ui::Key::kEnter);
    EXPECT_EQ(dialog.result(), ui::kOk) << row.typed;
    EXPECT_EQ(dialog.values(), row.out) << row.typed << " " << row.method;
  }
}

TEST_F(SeaScreen, LeavingRewritesToTenths) {
  CSea_SurfaceTemperatureDlg dialog(world.services, {}, Method::kIntake);
  dialog.open();
  fakes::enter(dialog, dialog.temperature, "5");
  dialog.move_focus(dialog.method);
  EXPECT_EQ(dialog.temperature.content, "5.0");
}

TEST_F(SeaScreen, RefusesOutOfRangeAndNoNumberAndKeepsEverything) {
  const Values in{"0", "123"};
  for (const text::Language language : {text::Language::kEnglish, text::Language::kJapanese}) {
    world.texts.language = language;
    for (const char* bad : {"-2.1", "37.1", "x", "1,5", "//"}) {
      CSea_SurfaceTemperatureDlg dialog(world.services, in, Method::kBucket);
      dialog.open();
      fakes::enter(dialog, dialog.temperature, bad);
      const std::string before = fakes::dump(dialog);
      world.windows.expect(text::Id{35017});
      dialog.press(dialog.ok);
      EXPECT_FALSE(dialog.result()) << bad;
      EXPECT_EQ(fakes::dump(dialog), before) << bad;
      EXPECT_EQ(dialog.values(), in) << bad;
      EXPECT_EQ(dialog.focused(), &dialog.temperature);
      EXPECT_EQ(world.windows.boxes.back().text, text::bilingual(text::Id{35017}, language));
      dialog.press(dialog.cancel);
      EXPECT_EQ(dialog.values(), in);
    }
  }
}

TEST_F(SeaScreen, StoredValueOutOfRangeIsRefusedOnOkOnly) {
  CSea_SurfaceTemperatureDlg dialog(world.services, {"0", "999"}, Method::kIntake);
  dialog.open();
  EXPECT_TRUE(dialog.move_focus(dialog.method));
  const std::string before = fakes::dump(dialog);
  world.windows.expect(text::Id{35017});
  dialog.press(dialog.ok);
  EXPECT_FALSE(dialog.result());
  EXPECT_EQ(fakes::dump(dialog), before);
  EXPECT_EQ(dialog.values(), (Values{"0", "999"}));
  EXPECT_EQ(dialog.focused(), &dialog.temperature);
}

TEST_F(SeaScreen, EmptyTemperatureClearsBothFields) {
  CSea_SurfaceTemperatureDlg dialog(world.services, {"0", "123"}, Method::kIntake);
  dialog.open();
  fakes::enter(dialog, dialog.temperature, "");
  dialog.press(dialog.ok);
  EXPECT_EQ(dialog.result(), ui::kOk);
  EXPECT_EQ(dialog.values(), Values{});
}

TEST_F(SeaScreen, HelpOpensItsTopic) {
  CSea_SurfaceTemperatureDlg dialog(world.services, {}, Method::kIntake);
  dialog.open();
  checks::help_opens(world, dialog, dialog.help, "11-8");
}

}  // namespace
