// F3 in the main window: what is being typed is among the curves, and stays in its field as it is.

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <string>
#include <variant>

#include "explain/CCurvesDlg.h"
#include "text/numbers.h"
#include "window.h"

namespace {

using main_window::Opened;

std::string report(int pressure) {
  return "BBXX JXKV 15124 99357 11653 41497 62718 10152 20114 4" +
         text::format_digits(pressure, 4) + " 52014 22213 00178 20604 32531 40905 51103";
}

std::unique_ptr<Opened> with_reports(const ShipFixedData& ship = fakes::sample_ship()) {
  auto opened = std::make_unique<Opened>(ship);
  opened->files.add_file("C:\\out\\14111506.tlx", report(118));
  opened->files.add_file("C:\\out\\14111509.tlx", report(125));
  return opened;
}

void enter_date(Opened& opened) {
  for (const auto& [name, text] :
       {std::pair{"Year", "2014"}, {"Month", "11"}, {"YY", "15"}, {"GG", "12"}})
    opened.type(name, text);
}

// Opens the curves with F3 and gives what they say; nothing else may open, and nothing change.
std::string said(Opened& opened) {
  std::string words;
  const std::string before = opened.state();
  const ui::Control* const focused = opened.window.focused();
  opened.world.windows.expect_screen("CCurvesDlg", [&](ui::Screen& screen) {
    words = screen.find("point")->content;
    screen.key(ui::Key::kEscape);
  });
  ui::Control* const command = opened.window.pressed_by("F3");
  if (command == nullptr) return "no command";
  opened.window.press(*command);
  opened.world.windows.verify();
  EXPECT_EQ(opened.state(), before);
  EXPECT_EQ(opened.window.focused(), focused);
  return words;
}

TEST(CurvesCommand, DrawsAValueThatIsStillBeingTyped) {
  const auto opened = with_reports();
  enter_date(*opened);
  opened->window.move_focus(opened->control("PPPP"));
  opened->window.type(opened->control("PPPP"), "1013.2");
  EXPECT_EQ(said(*opened),
            "15 November 12 UTC: air pressure 1013.2 hPa, 0.7 more than 3 hours before (being "
            "entered)");
  EXPECT_EQ(opened->shown("PPPP"), "1013.2");
  EXPECT_EQ(opened->window.form().entered(elements::Field::kPPPP), "") << "it was not taken";
  opened->window.type(opened->control("PPPP"), "1031.2");
  EXPECT_EQ(said(*opened),
            "15 November 12 UTC: air pressure 1031.2 hPa, 18.7 more than 3 hours before (being "
            "entered)");
}

TEST(CurvesCommand, PointsAtASlip) {
  const auto opened = with_reports();
  enter_date(*opened);
  opened->window.move_focus(opened->control("PPPP"));
  opened->window.type(opened->control("PPPP"), "913.2");
  EXPECT_EQ(said(*opened),
            "15 November 12 UTC: air pressure 913.2 hPa, 99.3 less than 3 hours before, far from "
            "the values before: beyond the scale (being entered)");
}

TEST(CurvesCommand, DrawsWhatFollowsFromWhatIsTyped) {
  ShipFixedData ship = fakes::sample_ship();
  ship.dew_point_method = DewPointMethod::kComputed;
  const auto opened = with_reports(ship);
  enter_date(*opened);
  opened->type("dry_bulb", "15.2");
  opened->window.move_focus(opened->control("dry_bulb"));
  opened->window.type(opened->control("dry_bulb"), "16.4");
  EXPECT_EQ(said(*opened),
            "15 November 12 UTC: air temperature 16.4 °C, 1.2 more than 3 hours before (being "
            "entered)");
}

TEST(CurvesCommand, DrawsAGroupThatIsStillBeingTyped) {
  const auto opened = with_reports();
  enter_date(*opened);
  ui::Control& group = opened->control("group_4PPPP");
  opened->window.move_focus(group);
  opened->window.type(group, "40140");
  EXPECT_EQ(said(*opened),
            "15 November 12 UTC: air pressure 1014.0 hPa, 1.5 more than 3 hours before (being "
            "entered)");
}

TEST(CurvesCommand, LeavesOutWhatCanNotBeReadYet) {
  const auto opened = with_reports();
  enter_date(*opened);
  opened->window.move_focus(opened->control("PPPP"));
  for (const char* const typed : {"1", "10", "*", "/", "x", "99999", "-"}) {
    opened->window.type(opened->control("PPPP"), typed);
    const std::string words = said(*opened);
    EXPECT_EQ(words, "15 November 12 UTC: air pressure not reported (being entered)") << typed;
  }
}

TEST(CurvesCommand, TriesTheHourThatIsBeingTyped) {
  const auto opened = with_reports();
  for (const auto& [name, text] : {std::pair{"Year", "2014"}, {"Month", "11"}, {"YY", "15"}})
    opened->type(name, text);
  opened->window.move_focus(opened->control("GG"));
  opened->window.type(opened->control("GG"), "12");
  EXPECT_EQ(said(*opened), "15 November 12 UTC: air pressure not reported (being entered)");
}

TEST(CurvesCommand, ShowsTheReportsWithoutADate) {
  const auto opened = with_reports();
  EXPECT_EQ(said(*opened),
            "15 November 09 UTC: air pressure 1012.5 hPa, 0.7 more than 3 hours before");
}

TEST(CurvesCommand, SaysThatThereIsNothingOnAFirstVoyage) {
  Opened opened;
  EXPECT_EQ(said(opened),
            "No reports of these days, and nothing entered yet: there is nothing to draw.");
}

TEST(CurvesCommand, WorksWithoutFolders) {
  Opened opened;
  opened.folders.reports.clear();
  opened.folders.logbook.clear();
  EXPECT_EQ(said(opened),
            "No reports of these days, and nothing entered yet: there is nothing to draw.");
}

TEST(CurvesCommand, BeginsWithTheCurveOfTheField) {
  const auto opened = with_reports();
  enter_date(*opened);
  struct Row {
    const char* field;
    const char* curve;
  };
  for (const Row& row : {Row{"PPPP", "air pressure"}, Row{"air_temperature", "air temperature"},
                         Row{"TwTwTw", "sea temperature"}, Row{"dd", "wind"}, Row{"ff", "wind"},
                         Row{"HwHw", "wind waves"}, Row{"Hw1Hw1", "swell 1"},
                         Row{"Hw2Hw2", "swell 2"}, Row{"VV", "air pressure"}}) {
    opened->window.move_focus(opened->control(row.field));
    EXPECT_EQ(said(*opened),
              "15 November 12 UTC: " + std::string(row.curve) + " not reported (being entered)");
  }
}

// ---- Beside the form

// Where the ring of what is being entered stands on the value axis; nothing where none is drawn.
std::optional<double> ring(Opened& opened) {
  for (const ui::Shape& shape : opened.control("curve").drawing->shapes) {
    const auto* const marker = std::get_if<ui::Marker>(&shape);
    if (marker != nullptr && marker->sign == ui::Marker::Sign::kRing) return marker->at.y;
  }
  return std::nullopt;
}

std::vector<std::string> texts_of(Opened& opened) {
  std::vector<std::string> texts;
  const ui::Drawing& drawing = *opened.control("curve").drawing;
  for (const auto* const shapes : {&drawing.shapes, &drawing.ground})
    for (const ui::Shape& shape : *shapes)
      if (const auto* const text = std::get_if<ui::ShortText>(&shape)) texts.push_back(text->text);
  return texts;
}

bool says(Opened& opened, std::string_view text) {
  const auto texts = texts_of(opened);
  return std::find(texts.begin(), texts.end(), text) != texts.end();
}

// The values that it goes through, what is being entered last.
std::vector<double> curve(Opened& opened) {
  std::vector<double> values;
  for (const ui::Shape& shape : opened.control("curve").drawing->shapes) {
    const auto* const line = std::get_if<ui::Polyline>(&shape);
    if (line == nullptr || !line->specks) continue;
    for (const ui::Point& point : line->points) values.push_back(point.y);
  }
  if (const auto entered = ring(opened)) values.push_back(*entered);
  return values;
}

// They are wide for its days, and stand below the scale.
TEST(CurveBesideTheForm, LeavesTheNamesOfTheDaysWithoutALineThroughThem) {
  const auto opened = with_reports();
  enter_date(*opened);
  const ui::Drawing& drawing = *opened->control("curve").drawing;
  int days = 0;
  double lowest_day = drawing.y.last;
  double lowest_value = drawing.y.last;
  for (const ui::Shape& shape : drawing.ground) {
    const auto* const line = std::get_if<ui::Polyline>(&shape);
    if (line == nullptr) continue;
    const double low = std::min(line->points.front().y, line->points.back().y);
    const bool is_day = line->points.front().x == line->points.back().x;
    days += is_day ? 1 : 0;
    double& lowest = is_day ? lowest_day : lowest_value;
    lowest = std::min(lowest, low);
  }
  EXPECT_GE(days, 10) << "two a day";
  EXPECT_EQ(lowest_day, lowest_value);
  EXPECT_GT(lowest_day, drawing.y.first);
}

TEST(CurveBesideTheForm, FollowsEachKeyOfAPressure) {
  const auto opened = with_reports();
  enter_date(*opened);
  ui::Control& field = opened->control("PPPP");
  ASSERT_TRUE(opened->window.move_focus(field));
  EXPECT_EQ(ring(*opened), std::nullopt);
  opened->window.type(field, "9");
  EXPECT_EQ(ring(*opened), std::nullopt);
  opened->window.type(field, "91");
  EXPECT_EQ(ring(*opened), std::nullopt);
  opened->window.type(field, "913.2");
  EXPECT_EQ(ring(*opened), std::nullopt) << "far from the values before: an arrow";
  EXPECT_TRUE(says(*opened, "913.2"));
  opened->window.type(field, "1013.2");
  EXPECT_EQ(ring(*opened), 1013.2);
  opened->window.type(field, "1014.2");
  EXPECT_EQ(ring(*opened), 1014.2);
  EXPECT_EQ(opened->window.form().entered(elements::Field::kPPPP), "") << "nothing is taken";
}

TEST(CurveBesideTheForm, DrawsNoPointOfWhatCanNotBeRead) {
  const auto opened = with_reports();
  enter_date(*opened);
  ui::Control& field = opened->control("PPPP");
  ASSERT_TRUE(opened->window.move_focus(field));
  for (const char* const typed : {"", "1", "10", "*", "/", "x", "99999", "-", "////"}) {
    opened->window.type(field, "1013.2");
    ASSERT_EQ(ring(*opened), 1013.2);
    opened->window.type(field, typed);
    EXPECT_EQ(ring(*opened), std::nullopt) << typed;
  }
}

TEST(CurveBesideTheForm, ReadsNoFileAtAKey) {
  const auto opened = with_reports();
  enter_date(*opened);
  for (const char* const name : {"PPPP", "TwTwTw", "ff", "GG", "group_4PPPP"}) {
    ui::Control& field = opened->control(name);
    ASSERT_TRUE(opened->window.move_focus(field));
    const int before = opened->files.operations();
    for (const char* const typed : {"1", "10", "15", "06"}) opened->window.type(field, typed);
    EXPECT_EQ(opened->files.operations(), before) << name;
    opened->window.type(field, name == std::string_view("GG") ? "12" : "");
  }
}

TEST(CurveBesideTheForm, IsThatOfTheFieldAndElseTheLastOne) {
  const auto opened = with_reports();
  enter_date(*opened);
  struct Row {
    const char* field;
    const char* title;
  };
  constexpr const char* kPressure = "Air pressure at sea level, hPa";
  constexpr const char* kWaves = "Wave height, m";
  EXPECT_TRUE(says(*opened, kPressure)) << "at first";
  for (const Row& row :
       {Row{"air_temperature", "Temperature, °C"}, Row{"TwTwTw", "Temperature, °C"},
        Row{"dd", "Wind, kn"}, Row{"ff", "Wind, kn"}, Row{"HwHw", kWaves}, Row{"Hw1Hw1", kWaves},
        Row{"VV", kWaves}, Row{"ppp", kPressure}, Row{"VV", kPressure},
        Row{"group_Nddff", "Wind, kn"}, Row{"group_5appp", kPressure}, Row{"PPPP", kPressure}}) {
    ASSERT_TRUE(opened->window.move_focus(opened->control(row.field)));
    EXPECT_TRUE(says(*opened, row.title)) << row.field;
  }
}

TEST(CurveBesideTheForm, ShowsTheReportsOnceTheWindowWasSeen) {
  const auto opened = with_reports();
  EXPECT_FALSE(says(*opened, "15 Nov")) << "nothing is read before the first paint";
  opened->window.idle();
  EXPECT_TRUE(says(*opened, "15 Nov"));
  EXPECT_EQ(ring(*opened), std::nullopt);
  const int before = opened->files.operations();
  opened->window.idle();
  EXPECT_EQ(opened->files.operations(), before) << "read once";
}

// The report before is another one meanwhile, and nobody has told the window.
TEST(CurveBesideTheForm, ReadsTheReportsAnewAfterASave) {
  const auto opened = with_reports();
  enter_date(*opened);
  opened->type("PPPP", "1013.2");
  EXPECT_EQ(curve(*opened), (std::vector<double>{1011.8, 1012.5, 1013.2}));
  opened->files.add_file("C:\\out\\14111509.tlx", report(121));
  opened->type("VV", "97");
  EXPECT_EQ(curve(*opened), (std::vector<double>{1011.8, 1012.5, 1013.2})) << "read once";
  // Most groups are missing; the officer saves it as it is.
  opened->world.windows.expect_screen(
      "CSaveErrorInfoDlg", [](ui::Screen& screen) { screen.press(*screen.find("save_as")); });
  opened->world.windows.expect(text::id::kSaved);
  opened->menu("Save weather report");
  EXPECT_EQ(curve(*opened), (std::vector<double>{1011.8, 1012.1, 1013.2}));
}

TEST(CurveBesideTheForm, LooksAtTheHourThatIsEntered) {
  const auto opened = with_reports();
  enter_date(*opened);
  opened->type("PPPP", "1013.2");
  EXPECT_TRUE(says(*opened, "15 Nov"));
  opened->type("YY", "25");
  EXPECT_FALSE(says(*opened, "15 Nov")) << "ten days later";
  EXPECT_TRUE(says(*opened, "25 Nov"));
  EXPECT_EQ(ring(*opened), 1013.2);
}

TEST(CurveBesideTheForm, SpeaksTheLanguageOfTheMoment) {
  Opened opened({}, {}, true);
  enter_date(opened);
  opened.menu("Language/日本語（Japanese）");
  EXPECT_TRUE(says(opened, "海面気圧（hPa）"));
}

TEST(CurveBesideTheForm, BeginsAnewWithTheNextWatch) {
  const auto opened = with_reports();
  enter_date(*opened);
  opened->type("PPPP", "1013.2");
  ASSERT_EQ(ring(*opened), 1013.2);
  opened->world.windows.expect(text::id::kAskSaveBeforeCorrecting, "no");
  opened->window.press(*opened->window.pressed_by("Ctrl+N"));
  EXPECT_EQ(ring(*opened), std::nullopt);
  EXPECT_TRUE(says(*opened, "15 Nov")) << "the reports up to the newest one";
}

TEST(CurveBesideTheForm, IsAnEmptyFrameOnAFirstVoyage) {
  Opened opened;
  opened.window.idle();
  EXPECT_EQ(texts_of(opened), std::vector<std::string>{"Air pressure at sea level, hPa"});
}

TEST(CurveBesideTheForm, OpensAllCurvesByAClickAndTakesNoFocus) {
  const auto opened = with_reports();
  enter_date(*opened);
  ui::Control& field = opened->control("PPPP");
  ASSERT_TRUE(opened->window.move_focus(field));
  opened->window.type(field, "10");
  EXPECT_FALSE(opened->control("curve").can_focus());
  for (const char* const name : {"curve", "label_curve"}) {
    bool shown = false;
    opened->world.windows.expect_screen("CCurvesDlg", [&](ui::Screen& screen) {
      shown = true;
      screen.key(ui::Key::kEscape);
    });
    opened->press(name);
    EXPECT_TRUE(shown) << name;
    EXPECT_EQ(field.content, "10") << "what is half typed stays";
    EXPECT_EQ(opened->window.focused(), &field);
  }
}

}  // namespace
