// The last days as curves, as values: which range, what is joined, what is said.

#include "explain/curves.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <variant>

#include "fakes/fake_files.h"
#include "fakes/sample_days.h"
#include "fakes/sample_ship.h"
#include "observation/logbook_encoder.h"

namespace {

using explain::Chart;
using explain::Curve;
using explain::CurvePoint;
using explain::Days;
using explain::Scale;
using observation::Values;
using ui::Ink;

constexpr int kLast = fakes::kSampleHour;

Values with_pressure(std::optional<double> pressure) {
  Values values;
  values.pressure = pressure;
  return values;
}

// Past pressures by hours before the last one, the oldest first.
Days days_of(const std::vector<std::pair<int, std::optional<double>>>& past,
             std::optional<double> entered) {
  Days days;
  days.last = kLast;
  for (const auto& [before, pressure] : past)
    days.past.push_back({kLast - before, with_pressure(pressure)});
  if (entered) {
    days.entered = with_pressure(entered);
    days.entered->hour = kLast;
  }
  return days;
}

template <class Shape>
std::vector<Shape> all_of(const std::vector<ui::Shape>& shapes) {
  std::vector<Shape> found;
  for (const ui::Shape& shape : shapes)
    if (const auto* const of = std::get_if<Shape>(&shape)) found.push_back(*of);
  return found;
}

std::vector<ui::Polyline> lines_of(const ui::Drawing& drawing, Ink ink) {
  auto lines = all_of<ui::Polyline>(drawing.shapes);
  std::erase_if(lines, [&](const ui::Polyline& line) { return line.ink != ink; });
  return lines;
}

ui::Drawing drawn(const Days& days, Chart chart, std::optional<CurvePoint> chosen = std::nullopt) {
  return explain::drawing_of(days, chart, text::Texts(), chosen);
}

std::string said(const Days& days, Curve curve, int hours_before,
                 text::Language language = text::Language::kEnglish) {
  text::Texts texts;
  texts.language = language;
  return explain::words_of(days, {curve, kLast - hours_before}, texts);
}

TEST(CurveScale, HasFewRoundSteps) {
  struct Row {
    double lowest, highest, least;
    Scale scale;
  };
  const Row rows[] = {
      {1013.2, 1013.2, 8, {1005, 1020, 5}},
      {1000, 1020, 8, {1000, 1020, 5}},
      {999.9, 1020, 8, {990, 1020, 10}},
      {1000.1, 1019.9, 8, {1000, 1020, 5}},
      {-1.8, 2.2, 4, {-2, 4, 2}},
      {0, 10, 10, {0, 10, 5}},
      {0, 99, 10, {0, 100, 50}},
      {0, 2, 2, {0, 2, 0.5}},
      {0, 2.5, 2, {0, 3, 1}},
      {913.2, 1016, 8, {900, 1050, 50}},
      {-30.5, -30.1, 4, {-34, -28, 2}},
  };
  for (const Row& row : rows) {
    const Scale scale = explain::scale_of(row.lowest, row.highest, row.least);
    EXPECT_DOUBLE_EQ(scale.low, row.scale.low) << row.lowest << " to " << row.highest;
    EXPECT_DOUBLE_EQ(scale.high, row.scale.high) << row.lowest << " to " << row.highest;
    EXPECT_DOUBLE_EQ(scale.step, row.scale.step) << row.lowest << " to " << row.highest;
  }
}

TEST(CurveScale, HoldsEveryRangeInOneToFourSteps) {
  for (int low = -400; low <= 11000; low += 37) {
    for (const int span : {0, 1, 3, 9, 10, 17, 44, 99, 250, 1001, 9999}) {
      const double lowest = low / 10.0;
      const double highest = (low + span) / 10.0;
      const Scale scale = explain::scale_of(lowest, highest, 2);
      const double steps = (scale.high - scale.low) / scale.step;
      EXPECT_LE(scale.low, lowest + 1e-6);
      EXPECT_GE(scale.high, highest - 1e-6);
      EXPECT_GE(steps, 0.99) << lowest << " " << highest;
      EXPECT_LE(steps, 4.01) << lowest << " " << highest;
    }
  }
}

TEST(CurveScale, IsWidenedByWhatIsEnteredNearTheValuesBefore) {
  const Scale scale =
      explain::scale_of(days_of({{6, 1012.0}, {3, 1013.0}}, 991.0), Chart::kPressure);
  EXPECT_LE(scale.low, 991.0);
  EXPECT_GE(scale.high, 1013.0);
}

TEST(CurveScale, IsThatOfTheValuesBeforeWhereTheEnteredOneIsFar) {
  const auto past = {std::pair{6, std::optional(1012.0)}, {3, std::optional(1013.0)}};
  const Scale before = explain::scale_of(days_of(past, std::nullopt), Chart::kPressure);
  for (const double slip : {913.2, 1113.2, 1061.3}) {
    EXPECT_EQ(explain::scale_of(days_of(past, slip), Chart::kPressure), before) << slip;
  }
}

TEST(CurveScale, IsThatOfTheEnteredValueWhereThereIsNoOther) {
  const Scale scale = explain::scale_of(days_of({}, 913.2), Chart::kPressure);
  EXPECT_LE(scale.low, 913.2);
  EXPECT_GE(scale.high, 913.2);
}

TEST(CurveScale, BeginsAtNoWindAndNoWaves) {
  const Days days = fakes::sample_days();
  EXPECT_EQ(explain::scale_of(days, Chart::kWind).low, 0);
  EXPECT_EQ(explain::scale_of(days, Chart::kWaves).low, 0);
}

TEST(Curves, JoinReportsThatAreAtMostTwelveHoursApart) {
  const auto lines = lines_of(
      drawn(days_of({{40, 1010.0}, {28, 1011.0}, {15, 1012.0}, {12, 1013.0}}, std::nullopt),
            Chart::kPressure),
      Ink::kMark);
  ASSERT_EQ(lines.size(), 2U);
  EXPECT_EQ(lines[0].points, (std::vector<ui::Point>{{-40, 1010}, {-28, 1011}}));
  EXPECT_EQ(lines[1].points, (std::vector<ui::Point>{{-15, 1012}, {-12, 1013}}));
}

TEST(Curves, AreBrokenByAMissingValue) {
  const auto lines = lines_of(
      drawn(days_of({{9, 1010.0}, {6, std::nullopt}, {3, 1012.0}}, std::nullopt), Chart::kPressure),
      Ink::kMark);
  ASSERT_EQ(lines.size(), 2U) << "6 hours apart, but the value between is not known";
  EXPECT_EQ(lines[0].points, (std::vector<ui::Point>{{-9, 1010}}));
  EXPECT_EQ(lines[1].points, (std::vector<ui::Point>{{-3, 1012}}));
  EXPECT_TRUE(lines[0].specks) << "a point alone would not be seen";
}

TEST(Curves, LeadToTheEnteredValueInAnotherInkAndWithARing) {
  const ui::Drawing drawing = drawn(days_of({{3, 1012.0}}, 1013.5), Chart::kPressure);
  const auto lead = lines_of(drawing, Ink::kCaution);
  ASSERT_EQ(lead.size(), 1U);
  EXPECT_EQ(lead[0].points, (std::vector<ui::Point>{{-3, 1012}, {0, 1013.5}}));
  const auto signs = all_of<ui::Marker>(drawing.shapes);
  const ui::Marker ring{{0, 1013.5}, ui::Marker::Sign::kRing, Ink::kCaution};
  EXPECT_EQ(std::count(signs.begin(), signs.end(), ring), 1);
}

TEST(Curves, DoNotLeadToTheEnteredValueOverAGapOrAMissingValue) {
  for (const auto& past : {std::vector<std::pair<int, std::optional<double>>>{{13, 1012.0}},
                           {{6, 1012.0}, {3, std::nullopt}}}) {
    const ui::Drawing drawing = drawn(days_of(past, 1013.5), Chart::kPressure);
    EXPECT_TRUE(lines_of(drawing, Ink::kCaution).empty());
  }
}

TEST(Curves, PointAtASlipBeyondTheScale) {
  for (const double slip : {1113.2, 913.2}) {
    const Days days = days_of({{6, 1012.0}, {3, 1013.2}}, slip);
    const ui::Drawing drawing = drawn(days, Chart::kPressure);
    const auto arrows = lines_of(drawing, Ink::kAlarm);
    ASSERT_EQ(arrows.size(), 1U);
    EXPECT_TRUE(arrows[0].arrow);
    const Scale scale = explain::scale_of(days, Chart::kPressure);
    EXPECT_DOUBLE_EQ(arrows[0].points.back().y, slip > 1013 ? scale.high : scale.low);
    bool told = false;
    for (const ui::ShortText& text : all_of<ui::ShortText>(drawing.shapes))
      told = told || (text.ink == Ink::kAlarm && text.text == (slip > 1013 ? "1113.2" : "913.2"));
    EXPECT_TRUE(told);
    EXPECT_NE(said(days, Curve::kPressure, 0).find("far from the values before"),
              std::string::npos);
  }
}

// In the order in which they are drawn: where there is not room for all, the newest have it.
TEST(Curves, NameTheDaysInUtcAndTheLinesByRoundNumbers) {
  const ui::Drawing drawing = drawn(fakes::sample_days(), Chart::kPressure);
  std::vector<std::string> names;
  for (const ui::ShortText& text : all_of<ui::ShortText>(drawing.ground))
    if (text.edge == ui::ShortText::Edge::kBottom) names.push_back(text.text);
  EXPECT_EQ(names,
            (std::vector<std::string>{"15 Nov", "14 Nov", "13 Nov", "12 Nov", "11 Nov", "12 UTC",
                                      "12 UTC", "12 UTC", "12 UTC", "12 UTC", "12 UTC"}));
  names.clear();
  for (const ui::ShortText& text : all_of<ui::ShortText>(drawing.ground))
    if (text.edge == ui::ShortText::Edge::kNone) names.push_back(text.text);
  EXPECT_EQ(names, (std::vector<std::string>{"980", "990", "1000", "1010", "1020"}));
}

TEST(Curves, NameDaysOfMonthsAndYearsThatEnd) {
  text::Texts texts;
  constexpr int kLeapDay = 59 * 24;  // of the year 2000
  EXPECT_EQ(explain::day_text(0, texts), "1 January");
  EXPECT_EQ(explain::day_text(23, texts), "1 January");
  EXPECT_EQ(explain::day_text(kLeapDay, texts), "29 February");
  EXPECT_EQ(explain::day_text(kLeapDay + 24, texts), "1 March");
  EXPECT_EQ(explain::day_text(366 * 24 - 1, texts), "31 December");
  EXPECT_EQ(explain::day_text(366 * 24, texts), "1 January");
  EXPECT_EQ(explain::day_text(kLast, texts), "15 November");
  EXPECT_EQ(explain::date_text(kLast, texts), "15 November 2014");
  texts.language = text::Language::kJapanese;
  EXPECT_EQ(explain::day_text(kLast, texts), "11月15日");
  EXPECT_EQ(explain::date_text(kLast, texts), "2014年11月15日");
}

TEST(Curves, DrawNothingBeforeTheYear2000) {
  Days days = days_of({}, 1013.0);
  days.last = 6;
  const ui::Drawing drawing = drawn(days, Chart::kPressure);
  for (const ui::ShortText& text : all_of<ui::ShortText>(drawing.ground)) {
    if (text.edge == ui::ShortText::Edge::kBottom) {
      EXPECT_EQ(text.text, "1 Jan");
    }
  }
}

TEST(Curves, TellASpeedInTheUnitOfTheLatest) {
  Days days;
  days.last = kLast;
  Values knots;
  knots.wind_speed = 20;
  knots.wind_in_knots = true;
  knots.wind_direction = 270;
  Values metres = knots;
  metres.wind_in_knots = false;
  days.past = {{kLast - 6, knots}, {kLast - 3, metres}};
  EXPECT_FALSE(explain::in_knots(days));
  EXPECT_EQ(said(days, Curve::kWind, 6), "15 November 06 UTC: wind from 270°, 10 m/s");
  EXPECT_EQ(said(days, Curve::kWind, 3),
            "15 November 09 UTC: wind from 270°, 20 m/s, 10 more than 3 hours before");
  days.entered = knots;
  EXPECT_TRUE(explain::in_knots(days));
  EXPECT_EQ(said(days, Curve::kWind, 3),
            "15 November 09 UTC: wind from 270°, 39 kn, 19 more than 3 hours before");
  EXPECT_EQ(drawn(days, Chart::kWind).y.name, "kn");
}

TEST(Curves, HaveABarbEverySixHoursWithFeathersByTheHemisphere) {
  Days days;
  days.last = kLast;
  Values values;
  values.wind_in_knots = true;
  values.wind_direction = 270;
  values.wind_speed = 18;
  values.latitude = -35.7;
  for (const int before : {12, 9, 6, 3}) days.past.push_back({kLast - before, values});
  days.past[0].values.wind_calm = true;
  days.past[2].values.wind_direction.reset();
  days.past[2].values.wind_variable = true;
  days.entered = values;
  const auto barbs = all_of<ui::WindBarb>(drawn(days, Chart::kWind).shapes);
  ASSERT_EQ(barbs.size(), 3U);
  EXPECT_EQ(barbs[0].at.x, 0);
  EXPECT_EQ(barbs[0].ink, Ink::kCaution);
  EXPECT_EQ(barbs[0].from, 270);
  EXPECT_EQ(barbs[0].knots, 18);
  EXPECT_TRUE(barbs[0].southern);
  EXPECT_EQ(barbs[1].at.x, -6);
  EXPECT_EQ(barbs[1].from, std::nullopt);
  EXPECT_EQ(barbs[2].at.x, -12);
  EXPECT_TRUE(barbs[2].calm);
  for (const ui::WindBarb& barb : barbs) EXPECT_EQ(barb.at.y, barbs[0].at.y);
}

TEST(Curves, MarkTheChosenHourInEveryChartAndThePointInItsOwn) {
  const Days days = fakes::sample_days();
  const CurvePoint chosen{Curve::kSea, kLast - 6};
  for (int i = 0; i < explain::kCharts; ++i) {
    const auto chart = static_cast<Chart>(i);
    const ui::Drawing drawing = drawn(days, chart, chosen);
    bool marked = false;
    for (const ui::Polyline& line : lines_of(drawing, Ink::kText))
      marked =
          marked || (line.points.size() == 2 && line.points[0].x == -6 && line.points[1].x == -6);
    EXPECT_TRUE(marked) << i;
    const auto signs = all_of<ui::Marker>(drawing.shapes);
    const auto dots = std::count_if(signs.begin(), signs.end(), [](const ui::Marker& sign) {
      return sign.sign == ui::Marker::Sign::kDot;
    });
    EXPECT_EQ(dots, chart == Chart::kTemperature ? 1 : 0);
  }
}

TEST(Curves, AreToldApartWithoutColours) {
  Days days = fakes::sample_days();
  for (auto& past : days.past) {
    past.values.measured_waves.height = 1;
    past.values.swell2.height = 2;
  }
  for (const Chart chart : {Chart::kTemperature, Chart::kWaves}) {
    std::vector<std::pair<bool, bool>> looks;
    for (const ui::Polyline& line : all_of<ui::Polyline>(drawn(days, chart).shapes))
      if (!line.specks && line.ink != Ink::kCaution) looks.emplace_back(line.thick, line.dashed);
    EXPECT_EQ(looks.size(), chart == Chart::kWaves ? 4U : 2U) << "a sample for each curve";
    if (chart == Chart::kTemperature) {
      EXPECT_NE(looks[0], looks[1]);
    }
  }
}

TEST(CurveWords, SayAPointAndItsChange) {
  const Days days = days_of({{21, 1011.8}, {9, 1011.8}, {6, std::nullopt}, {3, 1014.6}}, 1013.2);
  EXPECT_EQ(said(days, Curve::kPressure, 21), "14 November 15 UTC: air pressure 1011.8 hPa");
  EXPECT_EQ(said(days, Curve::kPressure, 9),
            "15 November 03 UTC: air pressure 1011.8 hPa, the same as 12 hours before");
  EXPECT_EQ(said(days, Curve::kPressure, 6), "15 November 06 UTC: air pressure not reported");
  EXPECT_EQ(said(days, Curve::kPressure, 3), "15 November 09 UTC: air pressure 1014.6 hPa");
  EXPECT_EQ(said(days, Curve::kPressure, 0),
            "15 November 12 UTC: air pressure 1013.2 hPa, 1.4 less than 3 hours before (being "
            "entered)");
  EXPECT_EQ(said(days, Curve::kPressure, 0, text::Language::kJapanese),
            "11月15日 12UTC：気圧 1013.2 hPa、-1.4（3時間前との差）（入力中）");
}

TEST(CurveWords, SayEachFormOfWind) {
  Days days;
  days.last = kLast;
  Values values;
  values.wind_in_knots = true;
  const auto words = [&] {
    days.past = {{kLast, values}};
    return said(days, Curve::kWind, 0).substr(std::string("15 November 12 UTC: ").size());
  };
  EXPECT_EQ(words(), "wind not reported");
  values.wind_direction = 10;
  EXPECT_EQ(words(), "wind from 010°, no speed");
  values.wind_speed = 8;
  EXPECT_EQ(words(), "wind from 010°, 8 kn");
  values.wind_direction.reset();
  EXPECT_EQ(words(), "wind without direction, 8 kn");
  values.wind_variable = true;
  EXPECT_EQ(words(), "wind variable, 8 kn");
  values = {};
  values.wind_calm = true;
  EXPECT_EQ(words(), "calm");
}

TEST(Curves, FindThePointThatIsNearestToAPlace) {
  const Days days = fakes::sample_days();
  EXPECT_EQ(explain::nearest(days, Chart::kPressure, {-7, 990}),
            (CurvePoint{Curve::kPressure, kLast - 6}));
  EXPECT_EQ(explain::nearest(days, Chart::kTemperature, {-6.4, 30}),
            (CurvePoint{Curve::kSea, kLast - 6}));
  EXPECT_EQ(explain::nearest(days, Chart::kTemperature, {-5.6, -30}),
            (CurvePoint{Curve::kAir, kLast - 6}));
  EXPECT_EQ(explain::nearest(days, Chart::kTemperature, {9, 30}), (CurvePoint{Curve::kSea, kLast}));
  EXPECT_EQ(explain::nearest(Days{}, Chart::kTemperature, {0, 0}), std::nullopt);
}

TEST(Curves, OfNothingAreATitleAlone) {
  for (int i = 0; i < explain::kCharts; ++i) {
    const ui::Drawing drawing = drawn(Days{}, static_cast<Chart>(i));
    EXPECT_EQ(drawing.shapes.size(), 1U);
    EXPECT_TRUE(drawing.ground.empty());
    EXPECT_NE(drawing.y.first, drawing.y.last);
  }
}

// ---- The days

std::string report(int pressure) {
  return "BBXX JXKV 15124 99357 11653 41497 62718 10152 20114 4" + std::to_string(pressure) +
         " 52014 22213";
}

Days found(fakes::FakeFiles& files, const Values& entered) {
  return explain::days_before(entered, files, {"C:\\out\\", ""}, fakes::sample_ship(),
                              KeyObservationItems());
}

TEST(CurveDays, AreTheFiveBeforeTheObservationThatIsEntered) {
  fakes::FakeFiles files;
  files.add_file("C:\\out\\14111011.tlx", report(1100));
  files.add_file("C:\\out\\14111012.tlx", report(1112));
  files.add_file("C:\\out\\14111509.tlx", report(1209));
  files.add_file("C:\\out\\14111512.tlx", report(1212));
  files.add_file("C:\\out\\14111515.tlx", report(1215));
  Values entered = with_pressure(1013.2);
  entered.hour = kLast;
  const Days days = found(files, entered);
  EXPECT_EQ(explain::hours_of(days), (std::vector<int>{kLast - 120, kLast - 3, kLast}));
  ASSERT_TRUE(days.entered);
  EXPECT_EQ(days.entered->pressure, 1013.2) << "and not what was sent for this hour before";
}

TEST(CurveDays, AreTheFiveUpToTheNewestReportWithoutADate) {
  fakes::FakeFiles files;
  files.add_file("C:\\out\\14111006.tlx", report(1100));
  files.add_file("C:\\out\\14111009.tlx", report(1112));
  files.add_file("C:\\out\\14111509.tlx", report(1209));
  const Days days = found(files, with_pressure(1013.2));
  EXPECT_EQ(explain::hours_of(days), (std::vector<int>{kLast - 123, kLast - 3}));
  EXPECT_FALSE(days.entered);
}

// A line of 15 November 2014.
std::string line(const char* day, const char* hour, const char* pressure) {
  Struct_Weather record(fakes::sample_ship(), KeyObservationItems());
  record.Year = "2014";
  record.Month = "11";
  record.YY = day;
  record.GG = hour;
  record.PPPP = pressure;
  return observation::encode_logbook(record, fakes::sample_ship(), KeyObservationItems()) + "\n";
}

TEST(CurveDays, AreThoseOfTheLogbookToo) {
  fakes::FakeFiles files;
  files.add_file("C:\\out\\14111509.tlx", report(1209));
  files.add_file("C:\\log\\immt5.log",
                 line("10", "06", "0061") + line("15", "03", "0123") + line("15", "06", "0131"));
  const auto with_logbook = [&](const char* reports, const Values& entered) {
    return explain::days_before(entered, files, {reports, "C:\\log\\"}, fakes::sample_ship(),
                                KeyObservationItems());
  };
  Values entered;
  entered.hour = kLast;
  const Days days = with_logbook("C:\\out\\", entered);
  EXPECT_EQ(explain::hours_of(days), (std::vector<int>{kLast - 9, kLast - 6, kLast - 3, kLast}));
  EXPECT_EQ(said(days, Curve::kPressure, 6),
            "15 November 06 UTC: air pressure 1013.1 hPa, 0.8 more than 3 hours before");
  // Without a date and without a report the newest line is the last one, and five days before it
  // the first one.
  EXPECT_EQ(explain::hours_of(with_logbook("", {})),
            (std::vector<int>{kLast - 126, kLast - 9, kLast - 6}));
}

TEST(CurveDays, AreEmptyWhereThereIsNothing) {
  fakes::FakeFiles files;
  const Days days = found(files, {});
  EXPECT_TRUE(explain::hours_of(days).empty());
  Values entered;
  entered.hour = kLast;
  EXPECT_EQ(explain::hours_of(found(files, entered)), std::vector<int>{kLast});
}

}  // namespace
