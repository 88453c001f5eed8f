#include "explain/curves.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <utility>

#include "archive/CFindFile.h"
#include "observation/report_file.h"
#include "platform/calendar.h"
#include "text/ids.h"
#include "text/numbers.h"
#include "text/strings.h"
#include "ui/printer.h"

namespace explain {
namespace {

namespace id = text::id;
using observation::Values;
using ui::Ink;
using ui::Point;
using ui::ShortText;

constexpr int kHoursOfDay = 24;

// ---- The curves, one row each

using ValueOf = std::optional<double> (*)(const Values& values, bool knots);

struct CurveRow {
  Chart chart;
  text::Id name;
  std::string_view unit;  ///< none: that of the wind
  ValueOf value;
  Ink ink;
  bool thick = false;
  bool dashed = false;  ///< told from its neighbours on paper too
};

std::optional<double> wind_speed(const Values& values, bool knots) {
  if (values.wind_calm) return 0.0;
  return knots ? observation::knots_of(values) : observation::metres_per_second_of(values);
}

constexpr std::array<CurveRow, kCurves> kCurveRows = {{
    {Chart::kPressure, id::kCurvePressure, "hPa", [](const Values& v, bool) { return v.pressure; },
     Ink::kMark},
    {Chart::kTemperature, id::kCurveAir, "°C", [](const Values& v, bool) { return v.air; },
     Ink::kMark},
    {Chart::kTemperature, id::kCurveSea, "°C", [](const Values& v, bool) { return v.sea; },
     Ink::kText, false, true},
    {Chart::kWind, id::kCurveWind, {}, wind_speed, Ink::kMark},
    {Chart::kWaves, id::kCurveMeasuredWaves, "m",
     [](const Values& v, bool) { return v.measured_waves.height; }, Ink::kMark, true},
    {Chart::kWaves, id::kCurveWindWaves, "m",
     [](const Values& v, bool) { return v.wind_waves.height; }, Ink::kMark},
    {Chart::kWaves, id::kCurveSwell1, "m", [](const Values& v, bool) { return v.swell1.height; },
     Ink::kText, false, true},
    {Chart::kWaves, id::kCurveSwell2, "m", [](const Values& v, bool) { return v.swell2.height; },
     Ink::kCoast},
}};

const CurveRow& row_of(Curve curve) {
  return kCurveRows[static_cast<std::size_t>(curve)];
}

// ---- The charts, one row each

struct ChartRow {
  text::Id title;        ///< with the unit
  text::Id title_other;  ///< where wind speeds are in metres a second
  std::string_view unit;
  double least;    ///< what the scale covers at least
  double reach;    ///< what is further from the values before lies beyond the scale
  bool from_zero;  ///< no value is less
  int lines;       ///< height of the drawing
};

constexpr std::array<ChartRow, kCharts> kChartRows = {{
    {id::kChartPressure, id::kChartPressure, "hPa", 8, 25, false, 6},
    {id::kChartTemperature, id::kChartTemperature, "°C", 4, 12, false, 6},
    {id::kChartWindKnots, id::kChartWindMetres, "", 10, 40, true, 8},
    {id::kChartWaves, id::kChartWaves, "m", 2, 6, true, 6},
}};

const ChartRow& row_of(Chart chart) {
  return kChartRows[static_cast<std::size_t>(chart)];
}

std::vector<Curve> curves_of(const Days& days, Chart chart) {
  std::vector<Curve> curves;
  for (int i = 0; i < kCurves; ++i) {
    const auto curve = static_cast<Curve>(i);
    if (chart_of(curve) == chart && has_values(days, curve)) curves.push_back(curve);
  }
  return curves;
}

std::optional<double> value_at(const Days& days, CurvePoint point, bool knots) {
  const ValueOf value = row_of(point.curve).value;
  if (days.entered && point.hour == days.last) return value(*days.entered, knots);
  const auto at = std::find_if(
      days.past.begin(), days.past.end(),
      [&](const observation::PastObservation& past) { return past.hour == point.hour; });
  return at == days.past.end() ? std::nullopt : value(at->values, knots);
}

const Values* values_at(const Days& days, int hour) {
  if (days.entered && hour == days.last) return &*days.entered;
  for (const observation::PastObservation& past : days.past)
    if (past.hour == hour) return &past.values;
  return nullptr;
}

std::string_view unit_of(Curve curve, bool knots) {
  const std::string_view unit = row_of(curve).unit;
  if (!unit.empty()) return unit;
  if (knots) return "kn";
  return "m/s";
}

// A knot is a whole number; all others have tenths.
std::string number_of(Curve curve, double value) {
  return text::format_fixed(value, curve == Curve::kWind ? 0 : 1);
}

int floored(int value, int by) {
  const int rest = value % by;
  return value - (rest < 0 ? rest + by : rest);
}

struct Date {
  int year, month, day;
};
Date date_of(int hour) {
  int day = floored(hour, kHoursOfDay) / kHoursOfDay;
  int year = 2000;
  const auto days_in_year = [](int of) { return platform::days_in_month(of, 2) + 337; };
  while (day >= days_in_year(year)) day -= days_in_year(year++);
  int month = 1;
  while (day >= platform::days_in_month(year, month)) day -= platform::days_in_month(year, month++);
  return {year, month, day + 1};
}

// The month in so many characters at most.
std::string day_name(int hour, const text::Texts& texts, std::size_t of_month) {
  const Date date = date_of(hour);
  const std::string_view name =
      text::first(texts.get(id::kMonthJanuary + (date.month - 1)), of_month);
  const std::string number = text::format_int(date.day);
  const std::string_view form = texts.get(id::kCurveDay);
  if (texts.language == text::Language::kJapanese) return text::fill(form, {name, number});
  return text::fill(form, {number, name});
}

// ---- Scales

double round_step(double least) {
  double power = std::pow(10.0, std::floor(std::log10(least)));
  for (const double times : {1.0, 2.0, 5.0})
    if (power * times >= least * (1 - 1e-9)) return power * times;
  return power * 10;
}

struct Range {
  double lowest = std::numeric_limits<double>::infinity();
  double highest = -std::numeric_limits<double>::infinity();

  [[nodiscard]] bool is_empty() const { return lowest > highest; }
  void add(double value) {
    lowest = std::min(lowest, value);
    highest = std::max(highest, value);
  }
};

bool is_within_scale(const Scale& scale, double value) {
  return value >= scale.low && value <= scale.high;
}

// ---- Drawing

// Beside the hours that are drawn, for the numbers of the lines and the value at the last hour.
constexpr int kHoursLeft = 11;
constexpr int kHoursRight = 12;
constexpr int kCharacters = 100;
constexpr double kRoomy = 1.4;  // four of them then fill a small display
constexpr double kHoursOfCharacter =
    static_cast<double>(kHoursLeft + kHoursShown + kHoursRight) / kCharacters;
// Room above and below the scale, in lines of text.
constexpr double kTitleLines = 1.5;
constexpr double kBarbLines = 2.2;
constexpr double kDayLines = 1.1;

// Where what is beside the lines lies, in the units of the value axis.
struct Frame {
  Scale scale;
  double bottom = 0;
  double top = 1;
  double line = 1;  ///< height of a line of text in the smallest room
};

Frame frame_of(const Scale& scale, double lines, double above) {
  Frame frame;
  frame.scale = scale;
  frame.line = (scale.high - scale.low) / (lines - above - kDayLines);
  frame.bottom = scale.low - kDayLines * frame.line;
  frame.top = scale.high + above * frame.line;
  return frame;
}

// Every so many lines are named.
void add_value_lines(ui::Drawing& drawing, const Scale& scale, long named_each) {
  constexpr int kBeforeFirst = 3;  // hours: the numbers stand left of that
  const int decimals = scale.step < 1 ? 1 : 0;
  const auto count = std::lround((scale.high - scale.low) / scale.step);
  for (long i = 0; i <= count; ++i) {
    const double value = scale.low + static_cast<double>(i) * scale.step;
    drawing.ground.emplace_back(
        ui::Polyline{{{-kHoursShown - kBeforeFirst, value}, {drawing.x.last, value}}, Ink::kFaint});
    if (i % named_each == 0)
      drawing.ground.emplace_back(ShortText{
          {drawing.x.first, value}, text::format_fixed(value, decimals), ShortText::Side::kRight});
  }
}

// A line at each midnight, named by the day that begins, and one at each noon. The newest come
// first: where there is not room for all names, those are left out that matter least.
// The lines of the days end at `bottom`.
void add_days(ui::Drawing& drawing, const Days& days, double bottom, double top,
              const text::Texts& texts) {
  constexpr int kNoon = kHoursOfDay / 2;
  constexpr std::size_t kBriefMonth = 3;  // "Nov", and all of a Japanese one
  std::vector<ui::Shape> noons;
  for (int hour = floored(days.last, kNoon); hour >= std::max(days.last - kHoursShown, 0);
       hour -= kNoon) {
    const double x = hour - days.last;
    const bool midnight = hour % kHoursOfDay == 0;
    drawing.ground.emplace_back(
        ui::Polyline{{{x, bottom}, {x, top}}, Ink::kFaint, false, !midnight});
    ShortText name{
        {x, drawing.y.first}, {}, ShortText::Side::kCentre, Ink::kText, ShortText::Edge::kBottom};
    name.text = midnight ? day_name(hour, texts, kBriefMonth) : std::string("12 UTC");
    // Where there is no room for both, the day is named.
    if (midnight) {
      drawing.ground.emplace_back(std::move(name));
    } else {
      noons.emplace_back(std::move(name));
    }
  }
  for (ui::Shape& noon : noons) drawing.ground.push_back(std::move(noon));
}

double columns(std::string_view text) {
  return static_cast<double>(ui::columns_of(text)) * kHoursOfCharacter;
}

std::string title_of(const Days& days, Chart chart, const text::Texts& texts) {
  const ChartRow& row = row_of(chart);
  return std::string(texts.get(in_knots(days) ? row.title : row.title_other));
}

// Title, and what stands for what where that is to be told.
void add_title(ui::Drawing& drawing, const Days& days, Chart chart, double line,
               const text::Texts& texts) {
  constexpr double kBetween = 3;  // characters
  constexpr double kSample = 5;
  const double y = drawing.y.last - line * 0.6;
  const std::string title = title_of(days, chart, texts);
  drawing.shapes.emplace_back(ShortText{{drawing.x.first, y}, title, ShortText::Side::kRight});
  double x = drawing.x.first + columns(title) + kBetween * kHoursOfCharacter;
  const std::vector<Curve> curves = curves_of(days, chart);
  if (curves.size() > 1) {
    for (const Curve curve : curves) {
      const CurveRow& drawn = row_of(curve);
      const double end = x + kSample * kHoursOfCharacter;
      const std::string name(texts.get(drawn.name));
      drawing.shapes.emplace_back(
          ui::Polyline{{{x, y}, {end, y}}, drawn.ink, drawn.thick, drawn.dashed});
      drawing.shapes.emplace_back(ShortText{{end, y}, name, ShortText::Side::kRight});
      x = end + columns(name) + kBetween * kHoursOfCharacter;
    }
  }
  if (!days.entered || curves.empty()) return;
  drawing.shapes.emplace_back(
      ui::Marker{{x + kHoursOfCharacter, y}, ui::Marker::Sign::kRing, Ink::kCaution});
  drawing.shapes.emplace_back(ShortText{{x + 1.5 * kHoursOfCharacter, y},
                                        std::string(texts.get(id::kCurveLegendEntered)),
                                        ShortText::Side::kRight,
                                        Ink::kCaution});
}

// The value before the one at the last hour that a line leads from; nothing where none does.
std::optional<Point> before_last(const Days& days, Curve curve, bool knots) {
  if (days.past.empty()) return std::nullopt;
  const int hour = days.past.back().hour;
  const auto value = value_at(days, {curve, hour}, knots);
  if (!value || days.last - hour > kHoursJoined) return std::nullopt;
  return Point{static_cast<double>(hour - days.last), *value};
}

// A missing value and a long gap break the line.
void add_line(ui::Drawing& drawing, const Days& days, Curve curve, bool knots) {
  const CurveRow& row = row_of(curve);
  ui::Polyline line{{}, row.ink, row.thick, row.dashed, false, true};
  const auto end_line = [&] {
    if (!line.points.empty()) drawing.shapes.emplace_back(line);
    line.points.clear();
  };
  for (const observation::PastObservation& past : days.past) {
    const double x = past.hour - days.last;
    if (!line.points.empty() && x - line.points.back().x > kHoursJoined) end_line();
    const auto value = row.value(past.values, knots);
    if (value) {
      line.points.push_back({x, *value});
    } else {
      end_line();
    }
  }
  end_line();
}

void add_entered(ui::Drawing& drawing, const Days& days, Curve curve, const Frame& frame,
                 bool knots) {
  if (!days.entered) return;
  const auto value = row_of(curve).value(*days.entered, knots);
  if (!value) return;
  const Point at{0, *value};
  if (is_within_scale(frame.scale, *value)) {
    if (const auto before = before_last(days, curve, knots))
      drawing.shapes.emplace_back(ui::Polyline{{*before, at}, Ink::kCaution, false, true});
    drawing.shapes.emplace_back(ui::Marker{at, ui::Marker::Sign::kRing, Ink::kCaution});
    return;
  }
  // The arrow leaves the scale on its side, and the number says where it leads.
  const Scale& scale = frame.scale;
  const double length = (scale.high - scale.low) * 0.4;
  const bool above = *value > scale.high;
  const double tip = above ? scale.high : scale.low;
  const double foot = above ? tip - length : tip + length;
  drawing.shapes.emplace_back(ui::Polyline{{{0, foot}, {0, tip}}, Ink::kAlarm, true, false, true});
  drawing.shapes.emplace_back(
      ShortText{{0, foot}, number_of(curve, *value), ShortText::Side::kRight, Ink::kAlarm});
}

// Above the line, the newest first; those for which there is no room are left out.
void add_barbs(ui::Drawing& drawing, const Days& days, const Frame& frame) {
  constexpr int kHoursOfBarb = 6;
  const double y = frame.scale.high + frame.line * kBarbLines / 2;
  std::optional<int> drawn;
  const auto add = [&](const Values& values, int hour, Ink ink) {
    const bool is_wind = values.wind_calm || values.wind_variable || values.wind_direction;
    if (!is_wind || (drawn && *drawn - hour < kHoursOfBarb)) return;
    drawn = hour;
    ui::WindBarb barb;
    barb.at = {static_cast<double>(hour - days.last), y};
    barb.from = values.wind_direction;
    barb.knots = observation::knots_of(values);
    barb.calm = values.wind_calm;
    barb.southern = values.latitude.value_or(0) < 0;
    barb.ink = ink;
    drawing.shapes.emplace_back(barb);
  };
  if (days.entered) add(*days.entered, days.last, Ink::kCaution);
  std::for_each(
      days.past.rbegin(), days.past.rend(),
      [&](const observation::PastObservation& past) { add(past.values, past.hour, Ink::kMark); });
}

// With its axis up only.
ui::Drawing empty_drawing(const Days& days, Chart chart, const Frame& frame) {
  ui::Drawing drawing;
  std::string unit(row_of(chart).unit);
  if (unit.empty()) unit = unit_of(Curve::kWind, in_knots(days));
  drawing.y = {std::move(unit), frame.bottom, frame.top};
  return drawing;
}

void add_chosen(ui::Drawing& drawing, const Days& days, Chart chart, CurvePoint chosen,
                const Frame& frame, bool knots) {
  const double x = chosen.hour - days.last;
  drawing.shapes.emplace_back(ui::Polyline{{{x, frame.bottom}, {x, frame.scale.high}}, Ink::kText});
  if (chart_of(chosen.curve) != chart) return;
  const auto value = value_at(days, chosen, knots);
  if (value && is_within_scale(frame.scale, *value))
    drawing.shapes.emplace_back(ui::Marker{{x, *value}, ui::Marker::Sign::kDot, Ink::kText});
}

// ---- Words

std::string wind_words(const Values& values, bool knots, const text::Texts& texts) {
  if (values.wind_calm) return std::string(texts.get(id::kCurveWindCalm));
  const auto speed = wind_speed(values, knots);
  const std::string number = speed ? number_of(Curve::kWind, *speed) : std::string();
  const std::string_view unit = unit_of(Curve::kWind, knots);
  if (values.wind_direction) {
    const std::string from = text::format_int(*values.wind_direction, 3, '0');
    if (!speed) return text::fill(texts.get(id::kCurveWindNoSpeed), {from});
    return text::fill(texts.get(id::kCurveWindFrom), {from, number, unit});
  }
  if (!speed) return {};
  return text::fill(
      texts.get(values.wind_variable ? id::kCurveWindVariable : id::kCurveWindNoDirection),
      {number, unit});
}

// Against the value before, as far as a line leads from it.
std::string change_words(const Days& days, CurvePoint point, double value, bool knots,
                         const text::Texts& texts) {
  int before = point.hour;
  for (const observation::PastObservation& past : days.past)
    if (past.hour < point.hour) before = past.hour;
  if (before == point.hour || point.hour - before > kHoursJoined) return {};
  const auto other = value_at(days, {point.curve, before}, knots);
  if (!other) return {};
  const std::string hours = text::format_int(point.hour - before);
  const std::string change = number_of(point.curve, std::abs(value - *other));
  if (change.find_first_not_of("0.") == std::string::npos)
    return text::fill(texts.get(id::kCurveSame), {hours});
  return text::fill(texts.get(value > *other ? id::kCurveMore : id::kCurveLess), {change, hours});
}

std::string value_words(const Days& days, CurvePoint point, const text::Texts& texts) {
  const bool knots = in_knots(days);
  const Values* const values = values_at(days, point.hour);
  const auto value = value_at(days, point, knots);
  const std::string_view name = texts.get(row_of(point.curve).name);
  std::string words;
  if (point.curve == Curve::kWind && values != nullptr) {
    words = wind_words(*values, knots, texts);
  } else if (value) {
    words.append(name).append(" ").append(number_of(point.curve, *value));
    words.append(" ").append(unit_of(point.curve, knots));
  }
  if (words.empty()) return text::fill(texts.get(id::kCurveMissing), {name});
  if (!value) return words;
  words.append(change_words(days, point, *value, knots, texts));
  if (days.entered && point.hour == days.last &&
      !is_within_scale(scale_of(days, chart_of(point.curve)), *value))
    words.append(texts.get(id::kCurveBeyond));
  return words;
}

// The newest report of the folder by its name; where there is none, the newest line of the logbook.
std::optional<int> newest_hour(platform::Files& files, const Archive& archive,
                               const ShipFixedData& ship, const KeyObservationItems& items) {
  std::vector<std::string> found;
  if (!archive.reports.empty())
    CFindFile(files).find(archive.reports, observation::kReportExtension, found);
  std::optional<int> newest;
  for (const std::string& path : found)
    if (const auto hour = observation::report_hour(path)) newest = std::max(newest, hour);
  if (newest) return newest;
  const auto all =
      past_observations(files, archive, ship, items, 0, std::numeric_limits<int>::max());
  if (all.empty()) return std::nullopt;
  return all.back().hour;
}

}  // namespace

Chart chart_of(Curve curve) {
  return row_of(curve).chart;
}

Days days_before(const Values& entered, platform::Files& files, const Archive& archive,
                 const ShipFixedData& ship, const KeyObservationItems& items) {
  Days days;
  if (entered.hour) {
    days.last = *entered.hour;
    days.entered = entered;
    days.past = past_observations(files, archive, ship, items, days.last - kHoursShown, days.last);
    return days;
  }
  if (const auto newest = newest_hour(files, archive, ship, items)) {
    days.last = *newest;
    days.past =
        past_observations(files, archive, ship, items, days.last - kHoursShown, days.last + 1);
  }
  return days;
}

std::vector<int> hours_of(const Days& days) {
  std::vector<int> hours;
  hours.reserve(days.past.size() + 1);
  for (const observation::PastObservation& past : days.past) hours.push_back(past.hour);
  if (days.entered) hours.push_back(days.last);
  return hours;
}

bool has_values(const Days& days, Curve curve) {
  const ValueOf value = row_of(curve).value;
  if (days.entered && value(*days.entered, true)) return true;
  return std::any_of(
      days.past.begin(), days.past.end(),
      [&](const observation::PastObservation& past) { return value(past.values, true); });
}

bool in_knots(const Days& days) {
  if (days.entered && days.entered->wind_speed) return days.entered->wind_in_knots;
  const auto latest = std::find_if(
      days.past.rbegin(), days.past.rend(),
      [](const observation::PastObservation& past) { return past.values.wind_speed.has_value(); });
  return latest == days.past.rend() || latest->values.wind_in_knots;
}

Scale scale_of(double lowest, double highest, double least) {
  constexpr int kMostSteps = 4;
  if (const double lacking = least - (highest - lowest); lacking > 0) {
    lowest -= lacking / 2;
    highest += lacking / 2;
  }
  constexpr double kLittle = 1e-9;  // of a step: a tenth is no exact number
  for (double step = round_step((highest - lowest) / kMostSteps);;
       step = round_step(step * 1.0001)) {
    const double low = std::floor(lowest / step + kLittle);
    const double high = std::ceil(highest / step - kLittle);
    if (high - low <= kMostSteps) return {low * step, high * step, step};
  }
}

Scale scale_of(const Days& days, Chart chart) {
  const ChartRow& row = row_of(chart);
  const bool knots = in_knots(days);
  Range range;
  if (row.from_zero) range.add(0);
  Range before;
  for (const Curve curve : curves_of(days, chart)) {
    for (const observation::PastObservation& past : days.past)
      if (const auto value = row_of(curve).value(past.values, knots)) before.add(*value);
  }
  if (!before.is_empty()) {
    range.add(before.lowest);
    range.add(before.highest);
  }
  if (days.entered) {
    for (const Curve curve : curves_of(days, chart)) {
      const auto value = row_of(curve).value(*days.entered, knots);
      const bool far = value && !before.is_empty() &&
                       (*value < before.lowest - row.reach || *value > before.highest + row.reach);
      if (value && !far) range.add(*value);
    }
  }
  if (range.is_empty()) range.add(0);
  if (row.from_zero) range.add(row.least);
  return scale_of(range.lowest, range.highest, row.least);
}

ui::Drawing drawing_of(const Days& days, Chart chart, const text::Texts& texts,
                       std::optional<CurvePoint> chosen) {
  const bool knots = in_knots(days);
  const Frame frame = frame_of(scale_of(days, chart), row_of(chart).lines,
                               kTitleLines + (chart == Chart::kWind ? kBarbLines : 0));
  ui::Drawing drawing = empty_drawing(days, chart, frame);
  drawing.x = {"hours", -kHoursShown - kHoursLeft, kHoursRight};
  drawing.characters = kCharacters;
  drawing.lines = row_of(chart).lines;
  drawing.grows = true;
  drawing.roomy = kRoomy;
  add_title(drawing, days, chart, frame.line, texts);
  const std::vector<Curve> curves = curves_of(days, chart);
  if (curves.empty()) return drawing;
  add_value_lines(drawing, frame.scale, 1);
  add_days(drawing, days, drawing.y.first, frame.scale.high, texts);
  if (chosen) add_chosen(drawing, days, chart, *chosen, frame, knots);
  for (const Curve curve : curves) add_line(drawing, days, curve, knots);
  for (const Curve curve : curves) add_entered(drawing, days, curve, frame, knots);
  if (chart == Chart::kWind) add_barbs(drawing, days, frame);
  return drawing;
}

ui::Drawing small_drawing_of(const Days& days, Chart chart, const text::Texts& texts) {
  // What a field beside a form can spare. Beside the hours four figures stand on either side.
  constexpr int kSmallCharacters = 28;
  constexpr int kSmallLines = 6;
  constexpr int kHoursBeside = 26;
  constexpr double kTitleAt = 0.6;
  const bool knots = in_knots(days);
  const Frame frame = frame_of(scale_of(days, chart), kSmallLines, kTitleLines);
  ui::Drawing drawing = empty_drawing(days, chart, frame);
  drawing.x = {"hours", -kHoursShown - kHoursBeside, kHoursBeside};
  drawing.characters = kSmallCharacters;
  drawing.lines = kSmallLines;
  drawing.grows = true;
  drawing.low = true;
  drawing.shapes.emplace_back(ShortText{{drawing.x.first, frame.top - frame.line * kTitleAt},
                                        title_of(days, chart, texts),
                                        ShortText::Side::kRight});
  const std::vector<Curve> curves = curves_of(days, chart);
  if (curves.empty()) return drawing;
  const long steps = std::lround((frame.scale.high - frame.scale.low) / frame.scale.step);
  add_value_lines(drawing, frame.scale, steps % 2 == 0 ? steps / 2 : steps);
  // The names of the days are as wide as half a day and more: a line would go through them.
  add_days(drawing, days, frame.scale.low, frame.scale.high, texts);
  for (const Curve curve : curves) add_line(drawing, days, curve, knots);
  for (const Curve curve : curves) add_entered(drawing, days, curve, frame, knots);
  return drawing;
}

std::string words_of(const Days& days, CurvePoint point, const text::Texts& texts) {
  const int hour = point.hour - floored(point.hour, kHoursOfDay);
  std::string words = text::fill(texts.get(id::kCurvePoint),
                                 {day_text(point.hour, texts), text::format_int(hour, 2, '0'),
                                  value_words(days, point, texts)});
  if (days.entered && point.hour == days.last) words.append(texts.get(id::kCurveEntered));
  return words;
}

std::string day_text(int hour, const text::Texts& texts) {
  return day_name(hour, texts, std::string_view::npos);
}

std::string date_text(int hour, const text::Texts& texts) {
  const std::string year = text::format_int(date_of(hour).year);
  const std::string day = day_text(hour, texts);
  const std::string_view form = texts.get(id::kCurveDate);
  if (texts.language == text::Language::kJapanese) return text::fill(form, {year, day});
  return text::fill(form, {day, year});
}

std::optional<CurvePoint> nearest(const Days& days, Chart chart, Point place) {
  const std::vector<int> hours = hours_of(days);
  const std::vector<Curve> curves = curves_of(days, chart);
  if (hours.empty() || curves.empty()) return std::nullopt;
  const auto hour = *std::min_element(hours.begin(), hours.end(), [&](int a, int b) {
    return std::abs(a - days.last - place.x) < std::abs(b - days.last - place.x);
  });
  CurvePoint found{curves.front(), hour};
  double least = std::numeric_limits<double>::infinity();
  for (const Curve curve : curves) {
    const auto value = value_at(days, {curve, hour}, in_knots(days));
    if (!value || std::abs(*value - place.y) >= least) continue;
    least = std::abs(*value - place.y);
    found.curve = curve;
  }
  return found;
}

}  // namespace explain
