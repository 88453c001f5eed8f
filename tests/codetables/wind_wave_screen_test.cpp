// The dialog of the wind waves.

#include "codetables/CWindDlg.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "text/ids.h"
#include "ui/dump.h"
#include "wave_checks.h"

namespace {

namespace id = text::id;
using wave_checks::kBothLanguages;
using wave_checks::Notice;
using Values = CWindDlg::Values;

struct Wind {
  explicit Wind(Values values, std::optional<codetables::Knot> wind = {},
                text::Language language = text::Language::kEnglish)
      : screen(world.services, std::move(values), wind) {
    world.texts.language = language;
    screen.open();
  }
  fakes::World world;
  CWindDlg screen;

  void ok() { screen.press(screen.ok); }
  [[nodiscard]] std::string shown() const {
    return screen.period.content + "|" + screen.height.content;
  }
  [[nodiscard]] std::string result() const {
    return screen.values().period + "|" + screen.values().height;
  }
  /// Ticked and open boxes, in order: "period_unknown" or "(period_unknown)" when it is locked.
  [[nodiscard]] std::string ticked() const {
    std::string all;
    for (const ui::Control* const control : screen.controls()) {
      if (control->kind == ui::Kind::kTick && control->checked)
        all += control->enabled ? control->name + " " : "(" + control->name + ") ";
    }
    return all;
  }
};

TEST(WindWave, NoWindWaveGivesZeroForBoth) {
  for (const Values& before : {Values{"05", "1.5"}, Values{"", ""}, Values{"//", "//"}}) {
    Wind w(before);
    w.screen.tick(w.screen.no_wind_wave, true);
    EXPECT_EQ(w.shown(), "00|00");
    w.ok();
    EXPECT_EQ(w.screen.result(), ui::kOk);
    EXPECT_EQ(w.result(), "00|00");
  }
}

TEST(WindWave, NotObservedClearsAndLocksBothAndChosenAgainOpensThem) {
  Wind w({"05", "1.5"});
  w.screen.tick(w.screen.not_observed, true);
  EXPECT_EQ(w.shown(), "|");
  for (const ui::Control* const locked :
       {static_cast<ui::Control*>(&w.screen.period), static_cast<ui::Control*>(&w.screen.height),
        static_cast<ui::Control*>(&w.screen.period_unknown),
        static_cast<ui::Control*>(&w.screen.period_confused),
        static_cast<ui::Control*>(&w.screen.height_unknown)})
    EXPECT_FALSE(locked->enabled) << locked->name;
  EXPECT_TRUE(w.screen.no_wind_wave.enabled);
  w.screen.tick(w.screen.not_observed, false);
  EXPECT_EQ(w.shown(), "05|1.5");
  EXPECT_TRUE(w.screen.period.enabled && w.screen.height.enabled);
  EXPECT_TRUE(w.screen.period_unknown.enabled && w.screen.height_unknown.enabled);
  w.screen.tick(w.screen.not_observed, true);
  w.ok();
  EXPECT_EQ(w.result(), "|");
}

TEST(WindWave, OnlyOneOfNoWindWaveAndNotObservedIsTicked) {
  Wind w({"05", "1.5"});
  w.screen.tick(w.screen.no_wind_wave, true);
  w.screen.tick(w.screen.not_observed, true);
  EXPECT_EQ(w.ticked(), "not_observed ");
  EXPECT_EQ(w.shown(), "|");
  w.screen.tick(w.screen.no_wind_wave, true);
  EXPECT_EQ(w.ticked(), "no_wind_wave ");
  EXPECT_EQ(w.shown(), "00|00");
  w.screen.tick(w.screen.no_wind_wave, false);
  EXPECT_EQ(w.shown(), "05|1.5");
}

TEST(WindWave, ABoxSaysItsFigureLocksTheFieldAndGivesItsTextBack) {
  struct Row {
    CWaveBox CWindDlg::*box;
    CWaveField CWindDlg::*field;
    const char* shown;
  };
  for (const Row& row : {Row{&CWindDlg::period_unknown, &CWindDlg::period, "//|1.5"},
                         Row{&CWindDlg::period_confused, &CWindDlg::period, "99|1.5"},
                         Row{&CWindDlg::height_unknown, &CWindDlg::height, "05|//"}}) {
    Wind w({"05", "1.5"});
    w.screen.tick(w.screen.*row.box, true);
    EXPECT_EQ(w.shown(), row.shown);
    EXPECT_EQ(w.screen.period.enabled, row.field != &CWindDlg::period);
    EXPECT_EQ(w.screen.height.enabled, row.field != &CWindDlg::height);
    w.screen.tick(w.screen.*row.box, false);
    EXPECT_EQ(w.shown(), "05|1.5");
    EXPECT_TRUE((w.screen.*row.field).enabled);
    w.screen.tick(w.screen.*row.box, true);
    w.ok();
    EXPECT_EQ(w.result(), row.shown);
  }
}

TEST(WindWave, AnUnknownPeriodIsNotAConfusedOneAsWell) {
  Wind w({"05", "1.5"});
  w.screen.tick(w.screen.period_unknown, true);
  w.screen.tick(w.screen.period_confused, true);
  EXPECT_EQ(w.ticked(), "period_confused ");
  EXPECT_EQ(w.shown(), "99|1.5");
  w.screen.tick(w.screen.period_unknown, true);
  EXPECT_EQ(w.ticked(), "period_unknown ");
  EXPECT_EQ(w.shown(), "//|1.5");
  w.screen.tick(w.screen.period_unknown, false);
  EXPECT_EQ(w.shown(), "05|1.5");
}

TEST(WindWave, BoxesThatWereSetAsideComeBackWithTheTexts) {
  Wind w({"05", "//"});
  w.screen.tick(w.screen.period_confused, true);
  w.screen.tick(w.screen.no_wind_wave, true);
  EXPECT_EQ(w.ticked(), "no_wind_wave ");
  EXPECT_EQ(w.shown(), "00|00");
  w.screen.tick(w.screen.no_wind_wave, false);
  EXPECT_EQ(w.ticked(), "period_confused height_unknown ");
  EXPECT_EQ(w.shown(), "99|//");
  w.screen.tick(w.screen.period_confused, false);
  w.screen.tick(w.screen.height_unknown, false);
  EXPECT_EQ(w.shown(), "05|");
}

TEST(WindWave, OpensWithTheBoxesOfItsValues) {
  struct Row {
    Values values;
    const char* ticked;
  };
  for (const Row& row : {Row{{"//", "1.5"}, "period_unknown "},
                         {{"99", "1.5"}, "period_confused "},
                         {{"05", "//"}, "height_unknown "},
                         {{"//", "//"}, "period_unknown height_unknown "},
                         {{"00", "00"}, "no_wind_wave "},
                         {{"00", "0.0"}, "no_wind_wave "},
                         {{"00", "1.0"}, ""},
                         {{"05", "0.0"}, ""},
                         {{"05", "1.5"}, ""},
                         {{"*", "/"}, ""},
                         {{"", ""}, ""}}) {
    Wind w(row.values);
    EXPECT_EQ(w.ticked(), row.ticked) << row.values.period << "|" << row.values.height;
    const bool none = w.screen.no_wind_wave.checked;
    EXPECT_EQ(w.screen.period.enabled,
              !none && !w.screen.period_unknown.checked && !w.screen.period_confused.checked);
    EXPECT_EQ(w.screen.height.enabled, !none && !w.screen.height_unknown.checked);
  }
}

// By OK, and by Enter in the field that has the focus.
TEST(WindWave, ConfirmedAsItOpenedHandsBackWhatItWasGiven) {
  const char* const figures[] = {
      "",  "00", "01", "5",   "25",  "26",  "30",  "45",   "77",   "98",   "99",     "//",   "/",
      "*", "**", "x",  "0.0", "0.2", "0.5", "1.3", "14.5", "14.6", "49.5", "1013.2", "\xff", " 1"};
  for (const text::Language language : kBothLanguages) {
    for (const char* const period : figures) {
      for (const char* const height : figures) {
        Wind w({period, height}, codetables::Knot{12}, language);
        if (height == period) {
          w.ok();
        } else {
          w.screen.key(ui::Key::kEnter);
        }
        ASSERT_EQ(w.screen.result(), ui::kOk) << period << "|" << height;
        EXPECT_EQ(w.result(), std::string(period) + "|" + height);
      }
    }
  }
}

TEST(WindWave, TheSmallestHeightIsShownSoAndHandedBackAsItWas) {
  for (const text::Language language : kBothLanguages) {
    Wind typed({"05", "0.2"}, {}, language);
    EXPECT_EQ(typed.shown(), "05|< 0.25");
    EXPECT_EQ(typed.screen.height.selected, 0);
    typed.ok();
    EXPECT_EQ(typed.result(), "05|0.2");
    // Read back from a report: no half metre, but a period.
    Wind read({"05", "0.0"}, {}, language);
    EXPECT_EQ(read.shown(), "05|< 0.25");
    read.ok();
    EXPECT_EQ(read.result(), "05|0.0");
    // Chosen.
    Wind chosen({"05", "1.5"}, {}, language);
    chosen.screen.choose(chosen.screen.height, 0);
    EXPECT_EQ(chosen.shown(), "05|< 0.25");
    chosen.ok();
    EXPECT_EQ(chosen.result(), "05|0.2");
  }
}

TEST(WindWave, OffersItsLines) {
  Wind w({"", ""});
  const auto& periods = w.screen.period.items;
  ASSERT_EQ(periods.size(), 27U);
  EXPECT_EQ(periods[0] + periods[24] + periods[25] + periods[26], "0125//99");
  const auto& heights = w.screen.height.items;
  ASSERT_EQ(heights.size(), 31U);
  EXPECT_EQ(heights[0] + heights[1] + heights[29] + heights[30], "< 0.250.514.5//");
}

TEST(WindWave, WhatIsTypedIsKeptInItsForm) {
  struct Row {
    const char* period;
    const char* height;
    const char* result;
  };
  for (const Row& row : {Row{"7", "2", "07|2.0"},
                         {"０８", "１．５", "08|1.5"},
                         {"99", "//", "99|//"},
                         {"//", "0.2", "//|0.2"},
                         {"12", "<0.25", "12|0.2"},
                         {"12", "< 0.25", "12|0.2"},
                         {"00", "00", "00|00"},
                         {"", "", "|"},
                         {"25", "14.5", "25|14.5"}}) {
    Wind w({"05", "1.0"});
    ASSERT_TRUE(fakes::enter(w.screen, w.screen.period, row.period));
    ASSERT_TRUE(fakes::enter(w.screen, w.screen.height, row.height));
    w.ok();
    EXPECT_EQ(w.screen.result(), ui::kOk) << row.result;
    EXPECT_EQ(w.result(), row.result);
  }
}

TEST(WindWave, ATypedPeriodOrHeightThatIsNoNumberIsRefused) {
  for (const bool japanese : {false, true}) {
    const Notice notice =
        japanese ? Notice{id::kNotANumber, "数字を入力して下さい", "数字を入力して下さい"}
                 : Notice{id::kNotANumber, "Please input number", "No digital string"};
    for (CWaveField CWindDlg::*const field : {&CWindDlg::period, &CWindDlg::height}) {
      for (const char* const typed : {"x", "/", "*", "1x", "--", "\xff"}) {
        Wind w({"05", "1.5"}, {}, japanese ? kBothLanguages[1] : kBothLanguages[0]);
        ASSERT_TRUE(fakes::enter(w.screen, w.screen.*field, typed));
        wave_checks::refused(w.world, w.screen, w.screen.*field, notice,
                             [&] { w.screen.key(ui::Key::kTab); });
        wave_checks::refused(w.world, w.screen, w.screen.*field, notice, [&] { w.ok(); });
        EXPECT_EQ(w.result(), "05|1.5");
        w.screen.key(ui::Key::kEscape);
        EXPECT_EQ(w.screen.result(), ui::kCancel);
        EXPECT_EQ(w.result(), "05|1.5");
      }
    }
  }
}

TEST(WindWave, WhatTheFormWouldRefuseIsRefusedHereToo) {
  struct Row {
    CWaveField CWindDlg::*field;
    const char* typed;
    text::Id message;
  };
  for (const bool japanese : {false, true}) {
    for (const Row& row : {Row{&CWindDlg::period, "30", id::kWindWavePeriodRange},
                           Row{&CWindDlg::period, "98", id::kWindWavePeriodRange},
                           Row{&CWindDlg::period, "-1", id::kWindWavePeriodRange},
                           Row{&CWindDlg::height, "14.6", id::kWaveHeightRange},
                           Row{&CWindDlg::height, "-1", id::kWaveHeightRange}}) {
      Wind w({"05", "1.5"}, {}, kBothLanguages[japanese ? 1 : 0]);
      ASSERT_TRUE(fakes::enter(w.screen, w.screen.*row.field, row.typed));
      wave_checks::refused(w.world, w.screen, w.screen.*row.field,
                           {row.message, japanese ? "入力できない値です" : "Number Impossable",
                            std::string(w.world.texts.get(row.message))},
                           [&] { w.ok(); });
    }
  }
}

TEST(WindWave, APeriodBeyondTheLinesIsAskedAboutOnce) {
  Wind w({"05", "1.5"});
  ASSERT_TRUE(fakes::enter(w.screen, w.screen.period, "27"));
  w.world.windows.expect(id::kWindWavePeriodQuestion, "no");
  w.screen.key(ui::Key::kTab);
  EXPECT_EQ(w.screen.focused(), &w.screen.period);
  EXPECT_EQ(w.shown(), "27|1.5");
  w.world.windows.expect(id::kWindWavePeriodQuestion, "yes");
  w.screen.key(ui::Key::kTab);
  EXPECT_EQ(w.screen.focused(), &w.screen.height);
  w.ok();
  EXPECT_EQ(w.result(), "27|1.5");
  // Of those that are offered none is.
  Wind longest({"05", "1.5"});
  longest.screen.choose(longest.screen.period, 24);
  longest.ok();
  EXPECT_EQ(longest.result(), "25|1.5");
}

TEST(WindWave, ShowsTheProbableHeightForTheWind) {
  struct Row {
    std::optional<codetables::Knot> wind;
    const char* height;
  };
  for (const Row& row :
       {Row{std::nullopt, " -"}, Row{codetables::Knot{0}, " -"}, Row{codetables::Knot{1}, "0.1"},
        Row{codetables::Knot{4}, "0.2"}, Row{codetables::Knot{7}, "0.6"},
        Row{codetables::Knot{11}, "1.0"}, Row{codetables::Knot{17}, "2.0"},
        Row{codetables::Knot{22}, "3.0"}, Row{codetables::Knot{28}, "4.0"},
        Row{codetables::Knot{34}, "5.5"}, Row{codetables::Knot{41}, "7.0"},
        Row{codetables::Knot{48}, "9.0"}, Row{codetables::Knot{56}, "11.5"},
        Row{codetables::Knot{64}, "14.0"}, Row{codetables::Knot{120}, "14.0"}}) {
    Wind w({"", ""}, row.wind);
    EXPECT_EQ(w.screen.reference_height.content, row.height);
    EXPECT_EQ(w.screen.unit(w.screen.reference_height), row.height[0] == ' ' ? "" : "m");
  }
}

bool draws(const ui::Picture& picture, const std::string& line) {
  const auto lines = ui::describe(*picture.drawing);
  return std::find(lines.begin(), lines.end(), line) != lines.end();
}

// Surfaces, each with its name at a crest unless it is flat.
int drawn_waves(const ui::Picture& picture) {
  int surfaces = 0;
  int names = 0;
  for (const std::string& line : ui::describe(*picture.drawing)) {
    surfaces += line.starts_with("thick line mark") ? 1 : 0;
    names += line.find(" above ") != std::string::npos ? 1 : 0;
  }
  EXPECT_LE(names, surfaces);
  return surfaces;
}

TEST(WindWave, DrawsTheHeightAsItIsEntered) {
  Wind w({"05", "1.5"}, codetables::Knot{18});
  EXPECT_TRUE(draws(w.screen.side, "text text \"1.5 m\" above (56 1.5)"));
  EXPECT_TRUE(draws(w.screen.side, "dashed line caution (12 2) (100 2)"));
  w.screen.type(w.screen.height, "4");
  EXPECT_TRUE(draws(w.screen.side, "text text \"4 m\" above (56 4)"));
  w.screen.tick(w.screen.height_unknown, true);
  EXPECT_EQ(drawn_waves(w.screen.side), 0);
}

TEST(WindWave, DrawsNoHeightThatItWouldRefuse) {
  for (const char* const height : {"1,5", "15", "-1", "x", "//", "", "49.5"}) {
    Wind w({"05", height});
    EXPECT_EQ(drawn_waves(w.screen.side), 0) << height;
    w.screen.type(w.screen.height, height);
    EXPECT_EQ(drawn_waves(w.screen.side), 0) << height;
  }
  // No waves are a flat sea without a name.
  Wind none({"00", "00"});
  EXPECT_EQ(drawn_waves(none.screen.side), 1);
}

TEST(WindWave, CancelAndTheCloseBoxChangeNothing) {
  for (int way = 0; way < 3; ++way) {
    Wind w({"05", "1.5"});
    ASSERT_TRUE(fakes::enter(w.screen, w.screen.period, "x"));
    if (way == 0) w.screen.press(w.screen.cancel);
    if (way == 1) w.screen.key(ui::Key::kEscape);
    if (way == 2) w.screen.close_box();
    EXPECT_EQ(w.screen.result(), ui::kCancel);
    EXPECT_EQ(w.result(), "05|1.5");
  }
}

TEST(WindWave, HelpSkipsTheCheckAndOkMakesUpForIt) {
  Wind w({"05", "1.5"});
  ASSERT_TRUE(fakes::enter(w.screen, w.screen.period, "x"));
  w.screen.press(w.screen.help);
  EXPECT_EQ(w.world.help_viewer.shown,
            std::vector<std::string>{"C:\\program\\help\\Kavrel_E.CHM::/Capter11-10_E.htm"});
  wave_checks::refused(w.world, w.screen, w.screen.period,
                       {id::kNotANumber, "Please input number", "No digital string"},
                       [&] { w.ok(); });
  w.world.japanese();
  w.screen.key(ui::Key::kF1);
  EXPECT_EQ(w.world.help_viewer.shown.back(),
            "C:\\program\\help\\Kavrel_J.CHM::/Capter11-10_J.htm");
}

// Setting a figure aside and taking it up again is no check of it.
TEST(WindWave, ChecksByOkWhatComesBackUnchecked) {
  for (const char* const name : {"period", "height"}) {
    for (const std::string& box : {std::string(name) + "_unknown", std::string("no_wind_wave"),
                                   std::string("not_observed")}) {
      Wind w({"05", "1.5"});
      ui::Control& field = *w.screen.find(name);
      ASSERT_TRUE(fakes::enter(w.screen, field, "x"));
      w.screen.press(w.screen.help);  // the check waits
      w.screen.tick(*w.screen.find(box), true);
      w.screen.tick(*w.screen.find(box), false);
      wave_checks::refused(w.world, w.screen, field,
                           {id::kNotANumber, "Please input number", "No digital string"},
                           [&] { w.ok(); });
    }
  }
}

TEST(WindWave, ReadsAsItShould) {
  Wind w({"05", "1.5"});
  EXPECT_EQ(w.screen.title(), "Wind wave");
  const std::pair<const ui::Control*, const char*> captions[] = {
      {&w.screen.observation_group, "Observation of wind wave"},
      {&w.screen.no_wind_wave, "No wind wave"},
      {&w.screen.not_observed, "Not observed"},
      {&w.screen.wave_group, "Wind wave"},
      {&w.screen.period, "Period (s)"},
      {&w.screen.height, "Wave height (m)"},
      {&w.screen.reference_group, "Reference wave"},
      {&w.screen.reference_height, "Reference wave height"},
      {&w.screen.period_unknown, "Period is unknown"},
      {&w.screen.period_confused, "Period couldn't decided because of confused sea surface"},
      {&w.screen.height_unknown, "Wave height is unknown"}};
  for (const auto& [control, caption] : captions) EXPECT_EQ(w.screen.caption(*control), caption);
  w.world.japanese();
  EXPECT_EQ(w.screen.title(), "風浪の観測入力補助画面");
  for (const auto& [control, caption] : captions) EXPECT_NE(w.screen.caption(*control), caption);
}

}  // namespace
