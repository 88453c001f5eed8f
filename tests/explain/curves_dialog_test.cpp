// The curves gone through with the keyboard, as every front end tells it.

#include "explain/CCurvesDlg.h"

#include <gtest/gtest.h>

#include <variant>

#include "fakes/fake_files.h"
#include "fakes/fake_ports.h"
#include "fakes/sample_days.h"
#include "text/ids.h"
#include "ui/dump.h"

namespace {

namespace id = text::id;
using explain::Curve;
using explain::CurvePoint;
using ui::Key;

constexpr int kLast = fakes::kSampleHour;

struct Opened {
  explicit Opened(explain::Days days = fakes::sample_days(), Curve start = Curve::kPressure)
      : dialog(world.services, std::move(days), start, "C:\\out\\", "JXKV") {
    dialog.open();
  }
  [[nodiscard]] CurvePoint at() const { return dialog.chosen().value_or(CurvePoint{}); }
  [[nodiscard]] std::string said() const { return dialog.point.content; }
  fakes::FakeFiles files;
  fakes::World world{files};
  CCurvesDlg dialog;
};

TEST(CurvesDialog, OpensOnTheObservationThatIsBeingEntered) {
  Opened opened;
  EXPECT_EQ(opened.at(), (CurvePoint{Curve::kPressure, kLast}));
  EXPECT_EQ(opened.dialog.focused(), &opened.dialog.point);
  EXPECT_EQ(opened.said(),
            "15 November 12 UTC: air pressure 1012.6 hPa, 2.0 more than 3 hours before (being "
            "entered)");
  EXPECT_FALSE(opened.dialog.remark.visible);
}

TEST(CurvesDialog, OpensOnTheCurveOfTheFieldThatOneComesFrom) {
  EXPECT_EQ(Opened(fakes::sample_days(), Curve::kSea).at().curve, Curve::kSea);
  EXPECT_EQ(Opened(fakes::sample_days(), Curve::kMeasuredWaves).at().curve, Curve::kWindWaves)
      << "nothing was measured: the next one that has values";
}

TEST(CurvesDialog, GoesFromObservationToObservation) {
  Opened opened;
  const auto go = [&](Key key) {
    opened.dialog.key(key);
    return opened.at().hour - kLast;
  };
  EXPECT_EQ(go(Key::kRight), 0) << "there is none behind the last";
  EXPECT_EQ(go(Key::kLeft), -3);
  EXPECT_EQ(go(Key::kLeft), -6);
  EXPECT_EQ(go(Key::kRight), -3);
  EXPECT_EQ(go(Key::kHome), -120);
  EXPECT_EQ(go(Key::kLeft), -120);
  EXPECT_EQ(go(Key::kPageDown), -84) << "a day on there is none, nor for half a day more";
  EXPECT_EQ(go(Key::kPageDown), -60);
  EXPECT_EQ(go(Key::kPageUp), -84);
  EXPECT_EQ(go(Key::kEnd), 0);
  EXPECT_EQ(go(Key::kPageUp), -24);
  EXPECT_EQ(go(Key::kPageDown), 0);
  EXPECT_EQ(opened.at().curve, Curve::kPressure);
}

TEST(CurvesDialog, GoesFromCurveToCurveAndRoundPassingByThoseWithoutValues) {
  Opened opened;
  opened.dialog.key(Key::kLeft);
  for (const Curve wanted : {Curve::kAir, Curve::kSea, Curve::kWind, Curve::kWindWaves,
                             Curve::kSwell1, Curve::kPressure}) {
    opened.dialog.key(Key::kDown);
    EXPECT_EQ(opened.at(), (CurvePoint{wanted, kLast - 3}));
  }
  opened.dialog.key(Key::kUp);
  EXPECT_EQ(opened.at(), (CurvePoint{Curve::kSwell1, kLast - 3}));
}

TEST(CurvesDialog, SaysAMissingValueWhereOneComesToIt) {
  Opened opened(fakes::sample_days(), Curve::kSea);
  for (int i = 0; i < 12; ++i) opened.dialog.key(Key::kLeft);
  EXPECT_EQ(opened.said(), "14 November 00 UTC: sea temperature not reported");
}

TEST(CurvesDialog, MarksThePointThatItSays) {
  Opened opened;
  opened.dialog.key(Key::kDown);
  opened.dialog.key(Key::kLeft);
  const double air = *fakes::sample_days().past.back().values.air;
  const ui::Marker dot{{-3, air}, ui::Marker::Sign::kDot, ui::Ink::kText};
  int dots = 0;
  for (const ui::Shape& shape : opened.dialog.temperature.drawing->shapes)
    if (const auto* const marker = std::get_if<ui::Marker>(&shape)) dots += *marker == dot ? 1 : 0;
  EXPECT_EQ(dots, 1);
}

TEST(CurvesDialog, ChoosesThePointThatIsClicked) {
  Opened opened;
  opened.dialog.press_at(opened.dialog.waves, {-17.8, 40});
  EXPECT_EQ(opened.at(), (CurvePoint{Curve::kPressure, kLast})) << "outside of the picture";
  opened.dialog.press_at(opened.dialog.waves, {-17.8, 0.1});
  EXPECT_EQ(opened.at(), (CurvePoint{Curve::kWindWaves, kLast - 18}));
  EXPECT_EQ(opened.dialog.focused(), &opened.dialog.point);
}

TEST(CurvesDialog, IsClosedByEnterEscapeAndItsOwnKey) {
  for (const Key key : {Key::kEnter, Key::kEscape}) {
    Opened opened;
    opened.dialog.key(key);
    EXPECT_TRUE(opened.dialog.result());
  }
  Opened opened;
  ASSERT_EQ(opened.dialog.pressed_by("F3"), &opened.dialog.ok);
}

TEST(CurvesDialog, CanNotBeTypedInto) {
  Opened opened;
  const std::string before = opened.said();
  opened.dialog.type(opened.dialog.point, "1");
  opened.dialog.type_by_key(opened.dialog.point, "1");
  opened.dialog.find_line("1");
  EXPECT_EQ(opened.said(), before);
}

TEST(CurvesDialog, IsComeBackToByTab) {
  Opened opened;
  opened.dialog.key(Key::kTab);
  EXPECT_EQ(opened.dialog.focused(), &opened.dialog.print);
  opened.dialog.key(Key::kShiftTab);
  EXPECT_EQ(opened.dialog.focused(), &opened.dialog.point);
  for (int i = 0; i < 5; ++i) opened.dialog.key(Key::kTab);
  EXPECT_EQ(opened.dialog.focused(), &opened.dialog.point);
}

TEST(CurvesDialog, SaysThatThereIsNothing) {
  Opened opened{explain::Days{}};
  EXPECT_EQ(opened.said(),
            "No reports of these days, and nothing entered yet: there is nothing to draw.");
  EXPECT_FALSE(opened.dialog.print.enabled);
  EXPECT_FALSE(opened.dialog.print.why_locked.empty());
  for (const Key key : {Key::kLeft, Key::kRight, Key::kUp, Key::kDown, Key::kHome, Key::kEnd,
                        Key::kPageUp, Key::kPageDown})
    opened.dialog.key(key);
  opened.dialog.press_at(opened.dialog.wind, {0, 0.5});
  EXPECT_FALSE(opened.dialog.chosen());
  opened.dialog.key(Key::kEscape);
  EXPECT_TRUE(opened.dialog.result());
}

TEST(CurvesDialog, SaysThatWhatIsEnteredHasNoHourYet) {
  explain::Days days = fakes::sample_days();
  days.entered.reset();
  days.last -= 3;
  Opened opened(days);
  EXPECT_TRUE(opened.dialog.remark.visible);
  EXPECT_EQ(opened.dialog.caption(opened.dialog.remark),
            "The observation that is being entered has no date and hour yet, so it is not among "
            "the curves.");
  EXPECT_EQ(opened.at().hour, days.last);
}

TEST(CurvesDialog, OfAnObservationWithoutAnyValueSaysSo) {
  explain::Days days;
  days.last = kLast;
  days.entered.emplace();
  days.entered->hour = kLast;
  Opened opened(days);
  EXPECT_EQ(opened.said(), "15 November 12 UTC: air pressure not reported (being entered)");
  opened.dialog.key(Key::kDown);
  opened.dialog.key(Key::kLeft);
  EXPECT_EQ(opened.at(), (CurvePoint{Curve::kPressure, kLast}));
}

TEST(CurvesDialog, PrintsAllChartsWithoutTheMarkOfThePoint) {
  Opened opened;
  opened.dialog.key(Key::kLeft);
  opened.world.windows.expect(id::kPrintSuccess);
  opened.dialog.press(opened.dialog.print);
  ASSERT_EQ(opened.world.printer.printed.size(), 1U);
  const ui::Sheets& sheets = opened.world.printer.printed[0];
  EXPECT_EQ(sheets.lines->lines(0, 9),
            (std::vector<std::string>{"Curves of the last five days   JXKV",
                                      "10 November 2014, 12 UTC, to 15 November 2014, 12 UTC"}));
  ASSERT_EQ(sheets.drawings.size(), 4U);
  for (const ui::Drawing& drawing : sheets.drawings)
    for (const ui::Shape& shape : drawing.shapes)
      if (const auto* const marker = std::get_if<ui::Marker>(&shape)) {
        EXPECT_NE(marker->sign, ui::Marker::Sign::kDot);
      }
  EXPECT_EQ(sheets.drawings[1].y.name, "°C");
}

TEST(CurvesDialog, TellsWhatHindersPrinting) {
  Opened opened;
  opened.world.printer.installed = false;
  opened.world.windows.expect(id::kNoPrinter);
  opened.world.windows.expect(id::kPrintFailed);
  opened.dialog.press(opened.dialog.print);
  EXPECT_TRUE(opened.world.printer.printed.empty());
}

TEST(CurvesDialog, IsSavedAsAPdfFile) {
  Opened opened;
  opened.files.add_folder("C:\\keep\\");
  opened.world.windows.browse_answer = "C:\\keep";
  opened.world.windows.expect(id::kPdfSaved);
  opened.dialog.press(opened.dialog.save_pdf);
  EXPECT_TRUE(opened.files.read("C:\\keep\\curves_20141115_2050.pdf", 100000).ok());
}

TEST(CurvesDialog, OpensItsPageOfTheHelp) {
  Opened opened;
  opened.dialog.key(Key::kF1);
  ASSERT_EQ(opened.world.help_viewer.shown.size(), 1U);
  EXPECT_NE(opened.world.help_viewer.shown[0].find("Capter34_E.htm"), std::string::npos);
}

}  // namespace
