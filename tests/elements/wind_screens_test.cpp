#include <gtest/gtest.h>

#include "codetables/tables/wind_figures.h"
#include "elements/CLookWindDlg.h"
#include "elements/CTrueDirWindDlg.h"
#include "elements/dialog_checks.h"
#include "text/ids.h"

namespace {

namespace id = text::id;
using elements::ApparentWindTexts;

struct Apparent {
  explicit Apparent(ApparentWindTexts values, text::Language language = text::Language::kEnglish)
      : screen(world.services, std::move(values)) {
    world.texts.language = language;
    screen.open();
  }
  fakes::World world;
  CLookWindDlg screen;
  void press_ok() { screen.press(screen.ok); }
  void type(ui::Control& field, const char* text) {
    EXPECT_TRUE(fakes::enter(screen, field, text));
  }
};

const ApparentWindTexts kBeamWind{"90", " 10.0", "360", "0", "10.0"};

TEST(ApparentWindScreen, ShowsTheTrueWindWhileTyping) {
  Apparent a({});
  a.type(a.screen.heading, "360");
  a.type(a.screen.ship_speed, "10");
  a.type(a.screen.direction, "90");
  EXPECT_EQ(a.screen.true_direction.content, "");
  a.type(a.screen.speed, "10");
  EXPECT_EQ(a.screen.true_direction.content, "14");
  EXPECT_EQ(a.screen.true_speed.content, "14");
  a.type(a.screen.direction, "");
  EXPECT_EQ(a.screen.true_direction.content, "");
  EXPECT_EQ(a.screen.true_speed.content, "");
}

TEST(ApparentWindScreen, ShowsNoTrueWindOfWhatOkWouldRefuse) {
  struct Row {
    ui::Edit CLookWindDlg::*field;
    const char* typed;
  };
  for (const Row& row : {Row{&CLookWindDlg::heading, "0"}, Row{&CLookWindDlg::course, "361"},
                         Row{&CLookWindDlg::direction, "x"}, Row{&CLookWindDlg::ship_speed, "100"},
                         Row{&CLookWindDlg::speed, "1.2.3"}}) {
    Apparent a(kBeamWind);
    EXPECT_EQ(a.screen.true_direction.content, "14");
    a.type(a.screen.*row.field, row.typed);
    EXPECT_EQ(a.screen.true_direction.content, "") << row.typed;
    EXPECT_EQ(a.screen.true_speed.content, "") << row.typed;
  }
}

TEST(ApparentWindScreen, FullWidthFiguresCountWhenTheirFieldIsLeft) {
  Apparent a(kBeamWind);
  a.type(a.screen.direction, "９０");
  EXPECT_EQ(a.screen.true_direction.content, "");
  a.screen.move_focus(a.screen.speed);
  EXPECT_EQ(a.screen.true_direction.content, "14");
}

TEST(ApparentWindScreen, SpeedsAreKeptInTheirFormats) {
  Apparent a({});
  a.type(a.screen.ship_speed, "9");
  a.type(a.screen.speed, "12.34");
  a.press_ok();
  EXPECT_EQ(a.screen.values(), (ApparentWindTexts{"", " 12.3", "", "", " 9.0"}));
}

TEST(ApparentWindScreen, FieldsAcceptTheirRangesAndRefuseWhatLiesOutside) {
  struct Row {
    ui::Edit CLookWindDlg::*field;
    const char* typed;
    text::Id message;  // 0: accepted
  };
  const Row rows[] = {
      {&CLookWindDlg::heading, "1", 0},
      {&CLookWindDlg::heading, "360", 0},
      {&CLookWindDlg::heading, "0", id::kHeadingRange},
      {&CLookWindDlg::heading, "000", id::kHeadingRange},
      {&CLookWindDlg::heading, "361", id::kHeadingRange},
      {&CLookWindDlg::heading, "x", id::kHeadingRange},
      {&CLookWindDlg::course, "0", 0},
      {&CLookWindDlg::course, "360", 0},
      {&CLookWindDlg::course, "361", id::kCourseRange},
      {&CLookWindDlg::course, "-1", id::kCourseRange},
      {&CLookWindDlg::direction, "0", 0},
      {&CLookWindDlg::direction, "360", 0},
      {&CLookWindDlg::direction, "361", id::kApparentDirectionRange},
      {&CLookWindDlg::direction, "\xFF", id::kApparentDirectionRange},
      {&CLookWindDlg::ship_speed, "0", 0},
      {&CLookWindDlg::ship_speed, "99.9", 0},
      {&CLookWindDlg::ship_speed, "100", id::kInputError},
      {&CLookWindDlg::ship_speed, "99.91", id::kInputError},
      {&CLookWindDlg::ship_speed, "x", id::kNotANumber},
      {&CLookWindDlg::ship_speed, "-1", id::kInputError},
      {&CLookWindDlg::ship_speed, "-0.1", id::kInputError},
      {&CLookWindDlg::ship_speed, "1.2.3", id::kNotANumber},
      {&CLookWindDlg::speed, "0", 0},
      {&CLookWindDlg::speed, "999.9", 0},
      {&CLookWindDlg::speed, "1000", id::kInputError},
      {&CLookWindDlg::speed, "-0.1", id::kInputError},
      {&CLookWindDlg::speed, "-0", 0},
      {&CLookWindDlg::speed, ".", id::kNotANumber},
      {&CLookWindDlg::speed, "1e3", id::kNotANumber},
  };
  for (const text::Language language : checks::kBothLanguages) {
    for (const Row& row : rows) {
      Apparent a(kBeamWind, language);
      ui::Edit& field = a.screen.*row.field;
      SCOPED_TRACE(field.name + " " + row.typed);
      a.type(field, row.typed);
      if (!row.message) {
        a.press_ok();
        EXPECT_EQ(a.screen.result(), ui::kOk);
      } else {
        checks::refused(
            a.world, a.screen, [&] { a.press_ok(); }, row.message, field);
        EXPECT_EQ(a.screen.values(), kBeamWind);
      }
    }
  }
}

TEST(ApparentWindScreen, OkChecksValuesItOpenedWith) {
  struct Row {
    ApparentWindTexts values;
    text::Id message;
    const char* focus;
  };
  for (const Row& row :
       {Row{{"400", " 10.0", "1", "1", "10.0"}, id::kApparentDirectionRange, "direction"},
        Row{{"1", "x", "1", "1", "10.0"}, id::kNotANumber, "speed"}}) {
    Apparent a(row.values);
    checks::refused(
        a.world, a.screen, [&] { a.press_ok(); }, row.message, *a.screen.find(row.focus));
    EXPECT_EQ(a.screen.values(), row.values);
  }
}

TEST(ApparentWindScreen, EveryFieldMayBeEmpty) {
  Apparent a({});
  a.press_ok();
  EXPECT_EQ(a.screen.result(), ui::kOk);
  EXPECT_EQ(a.screen.values(), ApparentWindTexts{});
}

TEST(ApparentWindScreen, HasTextsAndHelp) {
  Apparent a(kBeamWind);
  EXPECT_EQ(a.screen.title(), "Apparent wind");
  EXPECT_EQ(a.screen.caption(a.screen.hint),
            "Enter apparent wind direction in degrees, which is clockwise direction from bow. Ex. "
            "Port 30 degrees is 330 degrees.");
  EXPECT_EQ(a.screen.caption(a.screen.heading), "degrees Heading");
  EXPECT_EQ(a.screen.caption(a.screen.course), "degrees Course");
  EXPECT_EQ(a.screen.caption(a.screen.ship_speed), "knots Ship speed");
  EXPECT_EQ(a.screen.caption(a.screen.direction), "degrees Wind dir");
  EXPECT_EQ(a.screen.caption(a.screen.speed), "knots Wind speed");
  checks::has_texts_and_help(a.world, a.screen, a.screen.help, "11-9");
}

// --- true wind

struct True {
  True(const char* direction, const char* speed, text::Language language = text::Language::kEnglish)
      : screen(world.services, direction, speed) {
    world.texts.language = language;
    screen.open();
  }
  fakes::World world;
  CTrueDirWindDlg screen;
  void press_ok() { screen.press(screen.ok); }
  [[nodiscard]] std::string result() const { return screen.direction() + "|" + screen.speed(); }
};

TEST(TrueWindScreen, GoesFromTheDirectionToTheSpeedWithTab) {
  fakes::World world;
  CTrueDirWindDlg screen(world.services, "", "");
  screen.open();
  EXPECT_EQ(screen.focused(), &screen.direction_field);
  screen.type(screen.direction_field, "18");
  screen.key(ui::Key::kTab);
  ASSERT_EQ(screen.focused(), &screen.speed_field);
  screen.type(*screen.focused(), "12");
  screen.key(ui::Key::kEnter);
  EXPECT_EQ(screen.direction() + "|" + screen.speed(), "18|12");
}

TEST(TrueWindScreen, ChecksDirectionAgainstSpeedOnOk) {
  struct Row {
    const char* direction;
    const char* speed;
    text::Id message;
    const char* result;
  };
  const Row rows[] = {
      {"00", "0", 0, "00|0"},
      {"0", "0", 0, "00|0"},
      {"00", "0.3", 0, "00|0.3"},
      {"00", "0.5", id::kCalmDirectionWithSpeed, ""},
      {"0", "12", id::kCalmDirectionWithSpeed, ""},
      {"18", "0", id::kDirectionWithoutSpeed, ""},
      {"", "0", id::kDirectionWithoutSpeed, ""},
      {"18", "0.3", id::kDirectionBelowOneKnot, ""},
      {"18", "0.5", 0, "18|0.5"},
      {"18", "//", 0, "18|//"},
      {"18", "", 0, "18|"},
      {"//", "12", 0, "//|12"},
      {"  ", "0", 0, "|0"},
      {"", "", 0, "|"},
      {"5", "12", 0, "05|12"},
      {"99", "120", 0, "99|120"},
  };
  for (const text::Language language : checks::kBothLanguages) {
    for (const Row& row : rows) {
      SCOPED_TRACE(std::string(row.direction) + "|" + row.speed);
      True t("27", "8", language);
      ASSERT_TRUE(fakes::enter(t.screen, t.screen.direction_field, row.direction));
      ASSERT_TRUE(fakes::enter(t.screen, t.screen.speed_field, row.speed));
      if (!row.message) {
        t.press_ok();
        EXPECT_EQ(t.screen.result(), ui::kOk);
        EXPECT_EQ(t.result(), row.result);
      } else {
        checks::refused(
            t.world, t.screen, [&] { t.press_ok(); }, row.message, t.screen.direction_field);
        EXPECT_EQ(t.result(), "27|8");
      }
    }
  }
}

TEST(TrueWindScreen, AnUnknownBoxReplacesItsField) {
  True t("18", "12");
  t.screen.tick(t.screen.direction_unknown, true);
  EXPECT_EQ(t.screen.direction_field.content, "//");
  EXPECT_FALSE(t.screen.direction_field.enabled);
  t.screen.tick(t.screen.speed_unknown, true);
  t.press_ok();
  EXPECT_EQ(t.result(), "//|//");

  True back("18", "12");
  back.screen.tick(back.screen.speed_unknown, true);
  back.screen.tick(back.screen.speed_unknown, false);
  EXPECT_EQ(back.screen.speed_field.content, "12");
  EXPECT_TRUE(back.screen.speed_field.enabled);
}

TEST(TrueWindScreen, OpensWithTheBoxesTickedForUnknownValues) {
  True t("//", "//");
  EXPECT_TRUE(t.screen.direction_unknown.checked);
  EXPECT_TRUE(t.screen.speed_unknown.checked);
  EXPECT_FALSE(t.screen.direction_field.enabled);
  t.screen.tick(t.screen.direction_unknown, false);
  EXPECT_EQ(t.screen.direction_field.content, "");
  t.screen.tick(t.screen.direction_unknown, true);
  t.press_ok();
  EXPECT_EQ(t.result(), "//|//");
}

TEST(TrueWindScreen, RefusesWildTexts) {
  struct Row {
    ui::Edit CTrueDirWindDlg::*field;
    const char* typed;
    text::Id message;
  };
  for (const text::Language language : checks::kBothLanguages) {
    for (const Row& row : {Row{&CTrueDirWindDlg::direction_field, "37", id::kInputError},
                           Row{&CTrueDirWindDlg::direction_field, "98", id::kInputError},
                           Row{&CTrueDirWindDlg::direction_field, "x", id::kInputError},
                           Row{&CTrueDirWindDlg::direction_field, "/", id::kInputError},
                           Row{&CTrueDirWindDlg::direction_field, "\xFF", id::kInputError},
                           Row{&CTrueDirWindDlg::speed_field, "999.1", id::kInputError},
                           Row{&CTrueDirWindDlg::speed_field, "-1", id::kNotANumber},
                           Row{&CTrueDirWindDlg::speed_field, "x", id::kNotANumber}}) {
      True t("27", "8", language);
      ASSERT_TRUE(fakes::enter(t.screen, t.screen.*row.field, row.typed));
      checks::refused(
          t.world, t.screen, [&] { t.press_ok(); }, row.message, t.screen.*row.field);
      EXPECT_EQ(t.result(), "27|8");
      t.screen.key(ui::Key::kEscape);
      EXPECT_EQ(t.screen.result(), ui::kCancel);
    }
  }
}

TEST(TrueWindScreen, HasTextsAndHelp) {
  True t("18", "12");
  checks::has_texts_and_help(t.world, t.screen, t.screen.help, "11-26");
  EXPECT_EQ(t.screen.title(), "真風向・風速");
}

TEST(TrueDirection, IsTensOfDegreesVariableOrUnknown) {
  for (const char* good : {"0", "00", "36", "99", "//"})
    EXPECT_TRUE(codetables::is_true_direction(good)) << good;
  for (const char* bad : {"", "37", "98", "100", "036", "/", "-1"})
    EXPECT_FALSE(codetables::is_true_direction(bad)) << bad;
}

TEST(WindMessages, ReadAsTheyAlwaysDid) {
  const std::string range = "Error: Input data is out of range.\nIt must be ";
  checks::english_is(id::kHeadingRange, range + "\"0<Ship heading<=360\"");
  checks::english_is(id::kCourseRange, range + "\"0<=Ship course<=360\"");
  checks::english_is(id::kApparentDirectionRange, range + "\"0<=Apparent wind dir<=360\"");
  checks::english_is(id::kNotANumber, "No digital string");
  checks::english_is(id::kInputError, "Input error ");
  checks::english_is(id::kCalmDirectionWithSpeed,
                     "Error: If Element(True dir) equal 00\nElement(True wind) equal 00.");
  checks::english_is(id::kDirectionWithoutSpeed,
                     "Error: If Element(True wind) equal 00\nElement(True dir) equal 00.");
  checks::english_is(
      id::kDirectionBelowOneKnot,
      "Error: If true wind speed is less than 1knot, true wind direction must be 00.");
}

}  // namespace
