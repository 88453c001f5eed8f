// F3 in the main window: what is being typed is among the curves, and stays in its field as it is.

#include <gtest/gtest.h>

#include <memory>
#include <string>

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

}  // namespace
