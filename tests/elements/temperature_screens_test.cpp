#include <gtest/gtest.h>

#include "elements/CCountDewDlg.h"
#include "elements/CTemperatureAndDewDlg.h"
#include "elements/CThumidityDlg.h"
#include "elements/dialog_checks.h"
#include "elements/formulas/relative_humidity.h"
#include "fakes/sample_ship.h"
#include "text/ids.h"

namespace {

namespace id = text::id;
using elements::WetBulbState;

// Lines of the wet bulb's choice.
constexpr int kNotIcedLine = 0;
constexpr int kIcedLine = 1;
constexpr int kUnknownLine = 2;

/// A screen with its world, opened in a language.
template <class Screen>
struct Shown {
  template <class... Values>
  explicit Shown(text::Language language, const Values&... values)
      : screen(world.services, values...) {
    world.texts.language = language;
    screen.open();
  }
  fakes::World world;
  Screen screen;
  void press_ok() { screen.press(screen.ok); }
  void type(ui::Control& field, const char* text) {
    EXPECT_TRUE(fakes::enter(screen, field, text));
  }
};

struct Psychrometer : Shown<CCountDewDlg> {
  Psychrometer(const char* dry, const char* wet, WetBulbState state = WetBulbState::kNotSet,
               text::Language language = text::Language::kEnglish)
      : Shown(language, CCountDewDlg::Values{dry, wet, state, "1013.2", fakes::total_card()}) {}
  [[nodiscard]] std::string result() const {
    return screen.values().dry + "|" + screen.values().wet + "|" +
           std::to_string(static_cast<int>(screen.values().state));
  }
};

TEST(PsychrometerScreen, OpensOnTheLastValuesWithTheDewPoint) {
  Psychrometer p("10.0", "5.0", WetBulbState::kNotIced);
  EXPECT_EQ(p.screen.dry.whole.content, "10");
  EXPECT_EQ(p.screen.dry.tenths.selected_text(), "0");
  EXPECT_EQ(p.screen.wet_bulb_state.selected, kNotIcedLine);
  EXPECT_EQ(p.screen.dew_point.content, "-01.8");
  EXPECT_EQ(p.screen.humidity.content, "44.0");
  EXPECT_EQ(Psychrometer("", "", WetBulbState::kIced).screen.wet_bulb_state.selected, kIcedLine);
  EXPECT_EQ(Psychrometer("", "").screen.wet_bulb_state.selected, kUnknownLine);
  p.press_ok();
  EXPECT_EQ(p.result(), "10.0|5.0|1");
}

TEST(PsychrometerScreen, KeepsTheSignOfTemperaturesBetweenZeroAndMinusOne) {
  Psychrometer p("-0.4", "-0.8");
  EXPECT_EQ(p.screen.dry.whole.content, "-0");
  EXPECT_EQ(p.screen.dry.tenths.content, "4");
  p.press_ok();
  EXPECT_EQ(p.result(), "-0.4|-0.8|-1");
}

TEST(PsychrometerScreen, RecomputesWhileTyping) {
  Psychrometer p("", "");
  p.type(p.screen.dry.whole, "27");
  p.type(p.screen.dry.tenths, "5");
  EXPECT_EQ(p.screen.dew_point.content, "");
  p.type(p.screen.wet.whole, "27");
  p.type(p.screen.wet.tenths, "5");
  EXPECT_EQ(p.screen.dew_point.content, "27.5");
  EXPECT_EQ(p.screen.humidity.content, "100.0");
  p.type(p.screen.wet.whole, "x");
  EXPECT_EQ(p.screen.dew_point.content, "");
}

TEST(PsychrometerScreen, FullWidthFiguresCountWhenTheirFieldIsLeft) {
  Psychrometer p("10.0", "");
  ASSERT_TRUE(fakes::enter(p.screen, p.screen.wet.whole, "５"));
  EXPECT_EQ(p.screen.dew_point.content, "");
  p.screen.move_focus(p.screen.wet_bulb_state);
  EXPECT_EQ(p.screen.dew_point.content, "-01.8");
}

TEST(PsychrometerScreen, TheIcedFormulaGivesAnotherDewPoint) {
  Psychrometer p("-2.0", "-3.0", WetBulbState::kNotIced);
  const std::string water = p.screen.dew_point.content;
  p.screen.choose(p.screen.wet_bulb_state, kIcedLine);
  EXPECT_NE(p.screen.dew_point.content, water);
  p.screen.choose(p.screen.wet_bulb_state, kUnknownLine);
  EXPECT_EQ(p.screen.dew_point.content, water);
}

TEST(PsychrometerScreen, EmptyTenthsCountAsZero) {
  Psychrometer p("", "");
  p.type(p.screen.dry.whole, "12");
  p.type(p.screen.wet.whole, "１１");
  p.press_ok();
  EXPECT_EQ(p.result(), "12.0|11.0|-1");
}

TEST(PsychrometerScreen, EmptyFieldsStayEmpty) {
  Psychrometer p("10.0", "5.0");
  for (ui::Control* const field : std::initializer_list<ui::Control*>{
           &p.screen.dry.whole, &p.screen.wet.whole, &p.screen.wet.tenths})
    p.type(*field, "");
  p.press_ok();
  EXPECT_EQ(p.result(), "||-1");
}

TEST(PsychrometerScreen, RefusesAWetBulbAboveTheDryBulb) {
  for (const text::Language language : checks::kBothLanguages) {
    Psychrometer p("10.0", "10.1", WetBulbState::kNotSet, language);
    checks::refused(
        p.world, p.screen, [&] { p.press_ok(); }, id::kWetBulbAboveDryBulb, p.screen.wet.whole);
    p.type(p.screen.wet.tenths, "0");
    p.press_ok();
    EXPECT_EQ(p.result(), "10.0|10.0|-1");
  }
}

TEST(PsychrometerScreen, RefusesIceFromATenthOfADegreeUp) {
  for (const text::Language language : checks::kBothLanguages) {
    Psychrometer warm("5.0", "0.1", WetBulbState::kNotIced, language);
    warm.screen.move_focus(warm.screen.wet_bulb_state);
    checks::refused(
        warm.world, warm.screen, [&] { warm.screen.choose(warm.screen.wet_bulb_state, kIcedLine); },
        id::kIcedWetBulbTooWarm, warm.screen.wet_bulb_state);
    EXPECT_EQ(warm.screen.wet_bulb_state.selected, kNotIcedLine);

    Psychrometer cold("5.0", "0.0", WetBulbState::kNotIced, language);
    cold.screen.choose(cold.screen.wet_bulb_state, kIcedLine);
    EXPECT_EQ(cold.screen.wet_bulb_state.selected, kIcedLine);
    // Iced first, warm afterwards: OK sees it.
    cold.type(cold.screen.wet.tenths, "1");
    checks::refused(
        cold.world, cold.screen, [&] { cold.press_ok(); }, id::kIcedWetBulbTooWarm,
        cold.screen.wet.whole);
    cold.type(cold.screen.wet.tenths, "0");
    cold.press_ok();
    EXPECT_EQ(cold.result(), "5.0|0.0|0");
  }
}

TEST(PsychrometerScreen, RefusesWhatIsNoTemperature) {
  for (const text::Language language : checks::kBothLanguages) {
    for (const char* wild : {"x", "--1", "-", "+", "/", "\xFF", "1 2"}) {
      Psychrometer p("10.0", "5.0", WetBulbState::kNotSet, language);
      p.type(p.screen.dry.whole, wild);
      checks::refused(
          p.world, p.screen, [&] { p.screen.move_focus(p.screen.wet.whole); }, id::kInvalidValue,
          p.screen.dry.whole);
    }
    Psychrometer p("10.0", "5.0", WetBulbState::kNotSet, language);
    p.type(p.screen.wet.tenths, "-");
    checks::refused(
        p.world, p.screen, [&] { p.press_ok(); }, id::kInvalidValue, p.screen.wet.tenths);
    EXPECT_EQ(p.result(), "10.0|5.0|-1");
  }
}

// Unusual temperatures of all four entries: No keeps the focus, Yes the value, and it is asked
// once.
template <class World, class Entry>
void expect_questions(World& p, ui::Screen& screen, Entry& entry, const ui::Control& ok,
                      text::Id high, text::Id low) {
  struct Row {
    const char* whole;
    text::Id question;
  };
  for (const Row& row : {Row{"41", high}, Row{"40", 0}, Row{"-26", low}, Row{"-25", 0}}) {
    SCOPED_TRACE(row.whole);
    p.type(entry.whole, row.whole);
    ui::Control& next = entry.tenths;
    if (!row.question) {
      EXPECT_TRUE(screen.move_focus(next));
      continue;
    }
    checks::refused(
        p.world, screen, [&] { screen.move_focus(next); }, row.question, entry.whole, "no");
    checks::refused(
        p.world, screen, [&] { screen.move_focus(next); }, row.question, entry.whole, "close");
    checks::asked_and_kept(
        p.world, [&] { EXPECT_TRUE(screen.move_focus(next)); }, row.question);
    EXPECT_EQ(entry.whole.content, row.whole);
    EXPECT_TRUE(screen.move_focus(entry.whole));
    EXPECT_TRUE(screen.move_focus(next));  // not asked again
  }
  EXPECT_FALSE(screen.result());
  EXPECT_TRUE(ok.enabled);
}

TEST(PsychrometerScreen, AsksAboutUnusualTemperatures) {
  for (const text::Language language : checks::kBothLanguages) {
    Psychrometer p("10.0", "5.0", WetBulbState::kNotSet, language);
    expect_questions(p, p.screen, p.screen.dry, p.screen.ok, id::kAirTemperatureHighQuestion,
                     id::kAirTemperatureLowQuestion);
    expect_questions(p, p.screen, p.screen.wet, p.screen.ok, id::kWetBulbHighQuestion,
                     id::kWetBulbLowQuestion);
  }
}

TEST(PsychrometerScreen, TenthsDoNotCountForTheQuestion) {
  Psychrometer p("40.9", "-25.9");
  p.press_ok();
  EXPECT_EQ(p.result(), "40.9|-25.9|-1");
}

TEST(PsychrometerScreen, AsksOnOkAboutAValueItOpenedWith) {
  Psychrometer p("41.0", "30.0");
  checks::refused(
      p.world, p.screen, [&] { p.press_ok(); }, id::kAirTemperatureHighQuestion, p.screen.dry.whole,
      "no");
  checks::asked_and_kept(
      p.world, [&] { p.press_ok(); }, id::kAirTemperatureHighQuestion);
  EXPECT_EQ(p.result(), "41.0|30.0|-1");
}

TEST(PsychrometerScreen, CancelKeepsWhatWasHandedIn) {
  Psychrometer p("10.0", "5.0");
  p.type(p.screen.dry.whole, "x");
  p.screen.press(p.screen.cancel);
  EXPECT_EQ(p.screen.result(), ui::kCancel);
  EXPECT_EQ(p.result(), "10.0|5.0|-1");
}

TEST(PsychrometerScreen, HasTextsAndHelp) {
  Psychrometer p("10.0", "5.0");
  EXPECT_EQ(p.screen.title(), "Dry-bulb temperature (air temperature) and wet-bulb temperature");
  checks::has_texts_and_help(p.world, p.screen, p.screen.help, "11-6");
  p.world.japanese();
  Psychrometer japanese("", "", WetBulbState::kNotSet, text::Language::kJapanese);
  EXPECT_EQ(japanese.screen.wet_bulb_state.items,
            (std::vector<std::string>{"湿球が凍結していない", "湿球が凍結している", "不明"}));
}

TEST(FreezeButton, TakesTurnsBelowATenthOfADegree) {
  using elements::toggled_wet_bulb;
  EXPECT_EQ(toggled_wet_bulb(WetBulbState::kNotSet, {0.0}), WetBulbState::kIced);
  EXPECT_EQ(toggled_wet_bulb(WetBulbState::kIced, {0.0}), WetBulbState::kNotSet);
  EXPECT_EQ(toggled_wet_bulb(WetBulbState::kNotIced, {-5.0}), WetBulbState::kIced);
  EXPECT_EQ(toggled_wet_bulb(WetBulbState::kNotSet, {0.1}), WetBulbState::kNotSet);
  EXPECT_EQ(toggled_wet_bulb(WetBulbState::kIced, {0.1}), WetBulbState::kNotSet);
}

// --- air temperature and dew point

struct AirAndDew : Shown<CTemperatureAndDewDlg> {
  AirAndDew(const char* air, const char* dew, text::Language language = text::Language::kEnglish)
      : Shown(language, CTemperatureAndDewDlg::Values{air, dew}) {}
  [[nodiscard]] std::string result() const {
    return screen.values().air + "|" + screen.values().dew;
  }
};

TEST(AirAndDewScreen, ShowsTheHumidityWhileTyping) {
  AirAndDew a("20.0", "10.0");
  EXPECT_EQ(a.screen.humidity.content, "53.0");
  a.type(a.screen.dew.whole, "20");
  EXPECT_EQ(a.screen.humidity.content, "100.0");
  a.type(a.screen.dew.tenths, "1");
  EXPECT_EQ(a.screen.humidity.content, "");
  a.type(a.screen.dew.whole, "");
  EXPECT_EQ(a.screen.humidity.content, "");
}

TEST(AirAndDewScreen, RefusesADewPointAboveTheAir) {
  for (const text::Language language : checks::kBothLanguages) {
    AirAndDew a("20.0", "20.1", language);
    checks::refused(
        a.world, a.screen, [&] { a.press_ok(); }, id::kDewPointAboveAir, a.screen.dew.whole);
    EXPECT_EQ(a.result(), "20.0|20.1");
    a.type(a.screen.dew.tenths, "0");
    a.press_ok();
    EXPECT_EQ(a.result(), "20.0|20.0");
  }
}

TEST(AirAndDewScreen, AsksAboutUnusualTemperatures) {
  for (const text::Language language : checks::kBothLanguages) {
    AirAndDew a("20.0", "10.0", language);
    expect_questions(a, a.screen, a.screen.air, a.screen.ok, id::kAirTemperatureHighQuestion,
                     id::kAirTemperatureLowQuestion);
    expect_questions(a, a.screen, a.screen.dew, a.screen.ok, id::kDewPointHighQuestion,
                     id::kDewPointLowQuestion);
  }
}

TEST(AirAndDewScreen, RefusesWhatIsNoTemperature) {
  for (const text::Language language : checks::kBothLanguages) {
    AirAndDew a("20.0", "10.0", language);
    a.type(a.screen.dew.whole, "1x");
    checks::refused(
        a.world, a.screen, [&] { a.press_ok(); }, id::kInvalidValue, a.screen.dew.whole);
  }
}

TEST(AirAndDewScreen, OneOfBothMayBeEmpty) {
  AirAndDew a("20.0", "");
  a.press_ok();
  EXPECT_EQ(a.result(), "20.0|");
}

TEST(AirAndDewScreen, HasTextsAndHelp) {
  AirAndDew a("20.0", "10.0");
  EXPECT_EQ(a.screen.title(), "Air temperature and dew-point temperature");
  checks::has_texts_and_help(a.world, a.screen, a.screen.help, "11-7");
}

// --- relative humidity

struct Humidity : Shown<CThumidityDlg> {
  Humidity(const char* humidity, double unit, text::Language language = text::Language::kEnglish)
      : Shown(language, humidity, unit) {}
};

TEST(HumidityScreen, ShowsWholePercentWithTwoFigures) {
  struct Row {
    const char* typed;
    double unit;
    const char* shown;
    const char* logbook;
  };
  for (const Row& row : {Row{"5", 1.0, "05", "0050"}, Row{"53", 1.0, "53", "0530"},
                         Row{"100", 1.0, "100", "1000"}, Row{"0", 1.0, "00", "0000"},
                         Row{"53.0", 1.0, "53", "0530"}, Row{"53.7", 0.1, "53.7", "0537"},
                         Row{"5", 0.1, "05.0", "0050"}, Row{"１００", 0.1, "100.0", "1000"}}) {
    Humidity h("", row.unit);
    ASSERT_TRUE(fakes::enter(h.screen, h.screen.value, row.typed));
    h.press_ok();
    EXPECT_EQ(h.screen.result(), ui::kOk) << row.typed;
    EXPECT_EQ(h.screen.humidity(), row.shown) << row.typed;
    EXPECT_EQ(codetables::humidity_texts({std::stod(h.screen.humidity())}).logbook, row.logbook);
    EXPECT_EQ(Humidity(row.shown, row.unit).screen.value.content, row.shown);
  }
}

TEST(HumidityScreen, RefusesValuesOutside0To100) {
  for (const text::Language language : checks::kBothLanguages) {
    for (const double unit : {1.0, 0.1}) {
      for (const char* out : {"101", "-1", "99999", "-0"}) {
        Humidity h("53", unit, language);
        ASSERT_TRUE(fakes::enter(h.screen, h.screen.value, out));
        checks::refused(
            h.world, h.screen, [&] { h.press_ok(); }, id::kHumidityRange, h.screen.value);
        EXPECT_EQ(h.screen.humidity(), "53");
      }
      for (const char* wild : {"x", ".5", "5.", "5,5", "\xFF", "5 5", "/", "-"}) {
        Humidity h("53", unit, language);
        ASSERT_TRUE(fakes::enter(h.screen, h.screen.value, wild));
        checks::refused(
            h.world, h.screen, [&] { h.press_ok(); }, id::kInvalidValue, h.screen.value);
      }
    }
    Humidity tenths("53", 1.0, language);
    ASSERT_TRUE(fakes::enter(tenths.screen, tenths.screen.value, "53.7"));
    checks::refused(
        tenths.world, tenths.screen, [&] { tenths.press_ok(); }, id::kInvalidValue,
        tenths.screen.value);
    Humidity above("53", 0.1, language);
    ASSERT_TRUE(fakes::enter(above.screen, above.screen.value, "100.1"));
    checks::refused(
        above.world, above.screen, [&] { above.press_ok(); }, id::kHumidityRange,
        above.screen.value);
  }
}

TEST(HumidityScreen, MayBeEmptied) {
  Humidity h("53", 1.0);
  ASSERT_TRUE(fakes::enter(h.screen, h.screen.value, ""));
  h.press_ok();
  EXPECT_EQ(h.screen.humidity(), "");
}

TEST(HumidityScreen, HasTextsAndHelp) {
  Humidity h("53", 1.0);
  EXPECT_EQ(h.screen.title(), "Relative Humidity");
  checks::has_texts_and_help(h.world, h.screen, h.screen.help, "11-27");
}

TEST(TemperatureMessages, ReadAsTheyAlwaysDid) {
  checks::english_is(id::kWetBulbAboveDryBulb,
                     "Wet-point temperature is higher than air temperature( sDry, sWet)");
  checks::english_is(id::kIcedWetBulbTooWarm,
                     "Error: Input data is out of range.\nIt must be\"Wet bulb temp > 0.1 degC\"");
  checks::english_is(id::kDewPointAboveAir,
                     "Error: Element(Dew point temp) must be smaller or equal than Element(Air "
                     "temp)");
  checks::english_is(id::kHumidityRange,
                     "Error: Input data is out of range.\nIt must be \"0<=Relative "
                     "Humidity(%)<=100\"");
  struct Row {
    text::Id question;
    const char* range;
  };
  for (const Row& row : {Row{id::kAirTemperatureHighQuestion, "Air temp<=40"},
                         Row{id::kAirTemperatureLowQuestion, "-25<=Air temp"}}) {
    checks::english_is(row.question,
                       "Warning: Input data is out of standard range.\nIt takes normally the value "
                       "of \"" +
                           std::string(row.range) + "\"\nIs it correct ");
  }
}

}  // namespace
