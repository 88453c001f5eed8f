// The dialog of past weather: what every combination of its boxes gives, and what every pair of
// codes ticks.

#include <gtest/gtest.h>

#include <set>
#include <string>
#include <vector>

#include "codetables/CPastWeatherDlg1.h"
#include "fakes/fake_ports.h"
#include "text/texts.h"

namespace {

using codetables::PastWeather;

constexpr int kNone = -1;
constexpr int kUnknown = 10;

struct Box {
  const char* name;
  int code;
  const char* english;
  const char* japanese;
};
constexpr Box kBoxes[] = {
    {"thunder", 9, "Thunder(s)", "雷電"},
    {"shower", 8, "Shower(s)", "しゅう雨性降水"},
    {"snow", 7, "Snow, or rain and snow mixed", "雪、またはみぞれ"},
    {"rain", 6, "Rain", "雨"},
    {"drizzle", 5, "Drizzle", "霧雨"},
    {"fog", 4, "Fog or ice fog, visibility less than 1 km; or thick haze visibility less than 2km",
     "霧または氷霧（視程1km未満）、または濃煙霧（視程2km未満）"},
    {"sandstorm", 3, "Sandstorm, duststorm, or blowing snow, visibility less than 1km",
     "砂じんあらし、または高い地ふぶき（視程1km未満）"},
    {"cloud_more_than_half", 2,
     "Cloud covering more than 1/2 of the sky throughout the appropriate period",
     "対象期間を通じて雲量が全天の1/2超"},
    {"cloud_changing", 1,
     "Cloud covering more than 1/2 of the sky during part of the appropriate period and covering "
     "1/2 or less during part of the period",
     "対象期間の一部で雲量が全天の1/2超、一部で1/2以下"},
    {"cloud_half_or_less", 0,
     "Cloud covering 1/2 or less of the sky throughout the appropriate period",
     "対象期間を通じて雲量が全天の1/2以下"},
    {"not_observed", kUnknown, "Not observed/Unclear", "観測せず／不明"},
};

struct Dialog {
  explicit Dialog(int W1 = kNone, int W2 = kNone) : screen(world.services, W1, W2) {
    screen.open();
  }
  [[nodiscard]] ui::Control& box(int code) {
    for (const Box& row : kBoxes)
      if (row.code == code) return *screen.find(row.name);
    ADD_FAILURE() << code;
    return *screen.find("ok");
  }
  void tick(const std::vector<int>& codes) {
    for (const int code : codes) screen.tick(box(code), true);
  }
  [[nodiscard]] std::set<int> ticked() {
    std::set<int> codes;
    for (const Box& row : kBoxes)
      if (box(row.code).checked) codes.insert(row.code);
    return codes;
  }
  PastWeather ok() {
    screen.press(screen.ok);
    EXPECT_EQ(screen.result(), ui::kOk);
    return {screen.W1(), screen.W2()};
  }

  fakes::World world;
  CPastWeatherDlg1 screen;
};

std::string written(const PastWeather& codes) {
  const auto figure = [](int code) {
    return code == kUnknown ? std::string("/") : code == kNone ? "_" : std::to_string(code);
  };
  return figure(codes.W1) + figure(codes.W2);
}

std::string written(const std::set<int>& ticked) {
  std::string result;
  for (const int code : ticked) result += std::to_string(code) + " ";
  return result;
}

std::string after(const std::vector<int>& codes) {
  Dialog dialog;
  dialog.tick(codes);
  return written(dialog.ok());
}

TEST(PastWeather, ShowsItsBoxesInOrderInBothLanguages) {
  for (const bool japanese : {false, true}) {
    Dialog dialog;
    if (japanese) dialog.world.japanese();
    EXPECT_EQ(dialog.screen.title(), japanese ? "過去天気" : "Past weather");
    std::vector<const ui::Control*> ticks;
    for (const ui::Control* const control : dialog.screen.controls())
      if (control->kind == ui::Kind::kTick) ticks.push_back(control);
    ASSERT_EQ(ticks.size(), std::size(kBoxes));
    for (std::size_t i = 0; i < ticks.size(); ++i) {
      EXPECT_EQ(ticks[i]->name, kBoxes[i].name);
      EXPECT_EQ(dialog.screen.caption(*ticks[i]),
                japanese ? kBoxes[i].japanese : kBoxes[i].english);
    }
  }
  Dialog dialog;
  EXPECT_EQ(dialog.screen.caption(dialog.screen.hint),
            "Select past weathers which have occurred since the last synoptic hour "
            "(00,06,12,18 UTC)");
  EXPECT_EQ(dialog.screen.caption(dialog.screen.heading), "Past weather (W1W2)");
  EXPECT_EQ(dialog.screen.caption(dialog.screen.group),
            "[W1,W2] [Past weather (More than one choice is possible)]");
}

// The rule in words of its own: the codes that are ticked from the highest down; where one is
// missing, "not observed" fills what it may, else the only code stands twice.
std::string by_the_rule(const std::set<int>& ticked) {
  const bool unknown = ticked.contains(kUnknown);
  std::string codes;
  for (int code = 9; code >= 0; --code)
    if (ticked.contains(code)) codes += static_cast<char>('0' + code);
  if (codes.size() >= 2) return codes.substr(0, 2);
  if (codes.size() == 1) return codes + (unknown ? "/" : codes);
  return unknown ? "//" : "__";
}

TEST(PastWeather, GivesTheTwoHighestCodesOfEveryCombination) {
  int combinations = 0;
  for (unsigned bits = 0; bits < 1U << 11U; ++bits) {
    std::vector<int> codes;
    for (int code = 0; code <= kUnknown; ++code)
      if ((bits >> static_cast<unsigned>(code) & 1U) != 0) codes.push_back(code);
    // Ticked one after the other, of the three states of the sky the last one stays.
    std::set<int> stays(codes.begin(), codes.end());
    if (stays.contains(2)) stays.erase(1);
    if (stays.contains(2) || stays.contains(1)) stays.erase(0);
    Dialog dialog;
    dialog.tick(codes);
    EXPECT_EQ(written(dialog.ticked()), written(stays)) << bits;
    if (codes.empty()) continue;
    ++combinations;
    const std::string wanted = by_the_rule(stays);
    EXPECT_EQ(dialog.screen.find("code")->content, wanted) << bits;
    EXPECT_EQ(written(dialog.ok()), wanted) << written(stays);
  }
  EXPECT_EQ(combinations, 2047);
}

// Also those that the boxes never show together.
TEST(PastWeather, RuleHoldsForEveryCombinationOfTicks) {
  for (unsigned bits = 0; bits < 1U << 11U; ++bits) {
    std::set<int> codes;
    codetables::PastWeatherTicks ticks{};
    for (int code = 0; code <= kUnknown; ++code) {
      if ((bits >> static_cast<unsigned>(code) & 1U) == 0) continue;
      codes.insert(code);
      ticks.at(static_cast<std::size_t>(code)) = true;
    }
    const PastWeather result = codetables::past_weather_of(ticks);
    EXPECT_EQ(written(result), by_the_rule(codes)) << bits;
    if (result.W2 != kUnknown) {
      EXPECT_GE(result.W1, result.W2) << bits;
    }
  }
}

TEST(PastWeather, OfOneKindStandsTwice) {
  EXPECT_EQ(after({6}), "66");
  EXPECT_EQ(after({0}), "00");
}

TEST(PastWeather, OfTwoKindsHasTheHigherFirstWhicheverWasTickedFirst) {
  EXPECT_EQ(after({9, 5}), "95");
  EXPECT_EQ(after({5, 9}), "95");
  EXPECT_EQ(after({5, 9, 7, 3}), "97");
}

TEST(PastWeather, NotObservedIsSolidiAloneAndTheSecondFigureBesideOneCode) {
  EXPECT_EQ(after({kUnknown}), "//");
  EXPECT_EQ(after({6, kUnknown}), "6/");
  EXPECT_EQ(after({kUnknown, 0}), "0/");
  EXPECT_EQ(after({9, 5, kUnknown}), "95");
}

TEST(PastWeather, StatesOfTheSkyExcludeEachOther) {
  for (const int first : {0, 1, 2}) {
    for (const int second : {0, 1, 2}) {
      if (first == second) continue;
      Dialog dialog;
      dialog.tick({6, first, kUnknown, second});
      EXPECT_EQ(dialog.ticked(), (std::set<int>{6, second, kUnknown}));
      // Taking a tick back brings none of the others.
      dialog.screen.tick(dialog.box(second), false);
      EXPECT_EQ(dialog.ticked(), (std::set<int>{6, kUnknown}));
    }
  }
}

// Whatever the record holds, also pairs that no ticks give.
TEST(PastWeather, OpensOnTheBoxesOfBothCodesAndOkChangesNothing) {
  for (int W1 = kNone; W1 <= kUnknown; ++W1) {
    for (int W2 = kNone; W2 <= kUnknown; ++W2) {
      SCOPED_TRACE(written(PastWeather{W1, W2}));
      std::set<int> boxes{W1, W2};
      boxes.erase(kNone);
      Dialog dialog(W1, W2);
      EXPECT_EQ(dialog.ticked(), boxes);
      EXPECT_EQ(written(dialog.ok()), written(PastWeather{W1, W2}));
    }
  }
}

TEST(PastWeather, OfTwoStatesOfTheSkyKeepsBothUntilOneIsTicked) {
  Dialog kept(2, 1);
  kept.tick({6});
  EXPECT_EQ(kept.ticked(), (std::set<int>{1, 2, 6}));
  EXPECT_EQ(written(kept.ok()), "62");
  Dialog ticked(2, 1);
  ticked.tick({0});
  EXPECT_EQ(ticked.ticked(), (std::set<int>{0}));
  EXPECT_EQ(written(ticked.ok()), "00");
}

TEST(PastWeather, AllTakenBackIsEmpty) {
  for (const auto& [W1, W2] : {std::pair{6, 6}, {9, 5}, {6, kUnknown}, {kUnknown, kUnknown}}) {
    Dialog dialog(W1, W2);
    for (const Box& row : kBoxes) dialog.screen.tick(dialog.box(row.code), false);
    EXPECT_EQ(dialog.screen.find("code")->content, "");
    EXPECT_EQ(written(dialog.ok()), "__");
  }
}

// One figure without the other, or in the wrong order, is put right by the first tick.
TEST(PastWeather, OddPairsBecomeWhatTheTicksSayOnceOneIsTouched) {
  for (const auto& [W1, W2, wanted] :
       {std::tuple{6, kNone, "66"}, {kNone, 6, "66"}, {3, 6, "63"}, {kUnknown, 6, "6/"}}) {
    Dialog dialog(W1, W2);
    ui::Control& box = dialog.box(6);
    dialog.screen.tick(box, !box.checked);
    dialog.screen.tick(box, !box.checked);
    EXPECT_EQ(written(dialog.ok()), wanted);
  }
}

TEST(PastWeather, ChangesNothingUnlessItIsConfirmed) {
  for (int way = 0; way < 3; ++way) {
    Dialog dialog(6, 2);
    dialog.tick({9, 0});
    if (way == 0) dialog.screen.press(dialog.screen.cancel);
    if (way == 1) dialog.screen.key(ui::Key::kEscape);
    if (way == 2) dialog.screen.close_box();
    EXPECT_EQ(dialog.screen.result(), ui::kCancel);
    EXPECT_EQ(dialog.screen.W1(), 6);
    EXPECT_EQ(dialog.screen.W2(), 2);
  }
}

TEST(PastWeather, OpensItsHelpTopicAndGoesOn) {
  Dialog dialog(6, 2);
  dialog.tick({9});
  dialog.screen.press(dialog.screen.help);
  dialog.world.japanese();
  dialog.screen.key(ui::Key::kF1);
  EXPECT_EQ(dialog.world.help_viewer.shown,
            (std::vector<std::string>{"C:\\program\\help\\Kavrel_E.CHM::/Capter11-14_E.htm",
                                      "C:\\program\\help\\Kavrel_J.CHM::/Capter11-14_J.htm"}));
  EXPECT_EQ(written(dialog.ok()), "96");
}

TEST(PastWeather, NumbersAreTheFiguresOfTheRecord) {
  for (const auto& [figure, number] : {std::pair{"", kNone}, {"0", 0}, {"9", 9}, {"/", kUnknown}}) {
    EXPECT_EQ(codetables::past_weather_number(figure), number) << figure;
    EXPECT_EQ(codetables::past_weather_figure(number), figure);
  }
  for (const char* const odd : {" ", "*", "x", "10", "-1", "\xff"})
    EXPECT_EQ(codetables::past_weather_number(odd), kNone) << odd;
}

}  // namespace
