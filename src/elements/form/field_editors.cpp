#include "elements/form/field_editors.h"

#include <algorithm>
#include <array>
#include <utility>

#include "text/ids.h"
#include "text/numbers.h"
#include "text/strings.h"

namespace elements {
namespace {

namespace id = text::id;
constexpr auto kFigures = Accepts::kFigures;
constexpr auto kNumber = Accepts::kNumber;

// Columns: field, test, low, high, also, zero-filled width, decimals, message, check text, warn
// from, warning, shows check. The upper bounds of day and year are those of a long month and a far
// year; the form hands in the true ones.
constexpr std::array<EditorRow, elements::kFields> kRows{{
    {Field::kYear, kFigures, 2000, 9999, "", 4, 0, id::kYearRange, {}},
    {Field::kMonth, kFigures, 1, 12, "", 2, 0, id::kMonthRange, {}},
    {Field::kYY, kFigures, 1, 31, "", 2, 0, id::kDayRange, {}},
    // Only the synoptic and intermediate hours stand in the table of hours.
    {Field::kGG,
     kFigures,
     1,
     0,
     "00 03 06 09 12 15 18 21 0 3 6 9",
     2,
     0,
     id::kHourRange,
     id::kCheckHour,
     0,
     {},
     true},
    {Field::kGGExact, kFigures, 0, 23, "", 2, 0, id::kHourRange, {}},
    {Field::kgg, kFigures, 0, 59, "", 2, 0, id::kMinuteRange, {}},
    {Field::kLaDeg, kFigures, 0, 90, "", 2, 0, id::kLatitudeDegreesRange, {}},
    {Field::kLaMin, kFigures, 0, 59, "", 2, 0, id::kLatitudeMinutesRange, {}},
    {Field::kLoDeg, kFigures, 0, 180, "", 3, 0, id::kLongitudeDegreesRange, {}},
    {Field::kLoMin, kFigures, 0, 59, "", 2, 0, id::kLongitudeMinutesRange, {}},
    {Field::kDs, kFigures, 0, 9, "/", 1, 0, id::kDsRange, {}},
    {Field::kVs, kFigures, 0, 9, "/", 1, 0, id::kVsRange, {}},
    {Field::kReading, kNumber, 0, 9999, "", 0, 1, id::kBarometerReadingRange, {}},
    {Field::kPPPP, kNumber, 0, 9999, "", 0, 1, id::kSeaLevelPressureRange, id::kCheckPressure},
    {Field::ka, kFigures, 0, 8, "/", 1, 0, id::kTendencyTypeRange, {}},
    {Field::kppp, kNumber, 0, 25, "", 0, 1, id::kTendencyAmountRange, id::kCheckTendency},
    {Field::kDryBulb, kNumber, -25, 40, "", 0, 1, id::kAirTemperatureRange, {}},
    {Field::kWetBulb, kNumber, -25, 40, "", 0, 1, id::kWetBulbRange, {}},
    {Field::kAirTemperature, kNumber, -25, 40, "", 0, 1, id::kAirTemperatureRange, {}},
    {Field::kDewPoint, kNumber, -25, 40, "", 0, 1, id::kDewPointRange, {}},
    {Field::kHumidity, kNumber, 0, 100, "", 0, 1, id::kHumidityRange, id::kCheckOneDecimal},
    {Field::kdd, kFigures, 0, 36, "99 //", 2, 0, id::kTrueDirectionRange, id::kCheckDirection},
    {Field::kff, kNumber, 0, 999, "", 0, 1, id::kTrueSpeedRange, id::kCheckNotNumber, 80,
     id::kWindSpeedQuestion},
    {Field::kApparentDirection, kFigures, 0, 360, "", 0, 0, id::kApparentDirectionRange,
     id::kCheckApparentDirection},
    {Field::kApparentSpeed, kNumber, 0, 999, "", 0, 1, id::kApparentSpeedRange, {}},
    {Field::kHeading, kFigures, 1, 360, "", 0, 0, id::kHeadingRange, id::kCheckNotNumber},
    {Field::kCourse, kFigures, 0, 360, "", 0, 0, id::kCourseRange, id::kCheckNotNumber},
    {Field::kShipSpeed, kNumber, 0, 99.9, "", 0, 1, id::kShipSpeedRange, {}},
    {Field::kTwTwTw, kNumber, -2, 37, "", 0, 1, id::kSeaTemperatureRange, id::kCheckOneDecimal},
    {Field::kPwPw, kFigures, 0, 29, "99 //", 2, 0, id::kWindWavePeriodRange, id::kCheckWavePeriod,
     20, id::kWindWavePeriodQuestion},
    {Field::kHwHw, kNumber, 0, 14.5, "//", 0, 1, {}, id::kCheckWaveHeight},
    {Field::kdw1dw1, kFigures, 0, 36, "99 //", 2, 0, id::kSwell1DirectionRange, id::kCheckSwell},
    {Field::kPw1Pw1,
     kFigures,
     0,
     29,
     "//",
     2,
     0,
     id::kSwellPeriodRange,
     {},
     25,
     id::kSwellPeriodQuestion},
    {Field::kHw1Hw1, kNumber, 0, 14.5, "//", 0, 1, {}, id::kCheckWaveHeight},
    {Field::kdw2dw2, kFigures, 0, 36, "//", 2, 0, id::kSwell2DirectionRange, id::kCheckSwell},
    {Field::kPw2Pw2,
     kFigures,
     0,
     29,
     "//",
     2,
     0,
     id::kSwellPeriodRange,
     {},
     25,
     id::kSwellPeriodQuestion},
    {Field::kHw2Hw2, kNumber, 0, 14.5, "//", 0, 1, {}, id::kCheckWaveHeight},
    // The wave recorder measures what the wind-wave fields hold when it is estimated.
    {Field::kPwaPwa, kFigures, 0, 29, "99 //", 2, 0, id::kWindWavePeriodRange, id::kCheckWavePeriod,
     20, id::kWindWavePeriodQuestion},
    {Field::kHwaHwa, kNumber, 0, 14.5, "//", 0, 1, {}, id::kCheckWaveHeight},
    {Field::kVV, kFigures, 90, 99, "//", 2, 0, id::kVisibilityRange, {}},
    {Field::kww, kFigures, 0, 99, "//", 2, 0, id::kPresentWeatherRange, id::kCheckPresentWeather},
    {Field::kW1, kFigures, 0, 9, "/", 1, 0, id::kPastWeatherRange, {}},
    {Field::kW2, kFigures, 0, 9, "/", 1, 0, id::kPastWeatherRange, {}},
    {Field::kN, kFigures, 0, 9, "/", 1, 0, id::kTotalCloudRange, {}},
    {Field::kNh, kFigures, 0, 9, "/", 1, 0, id::kLowestCloudRange, {}},
    {Field::kCH, kFigures, 0, 9, "/", 1, 0, id::kUpperCloudRange, {}},
    {Field::kCM, kFigures, 0, 9, "/", 1, 0, id::kMiddleCloudRange, {}},
    {Field::kCL, kFigures, 0, 9, "/", 1, 0, id::kLowerCloudRange, {}},
    {Field::kh, kFigures, 0, 9999, "/", 0, 0, id::kCloudHeightRange, {}},
    {Field::kIs, kFigures, 1, 5, "", 1, 0, id::kIceCauseRange, {}},
    {Field::kEsEs, kFigures, 0, 99, "", 2, 0, id::kIceThicknessRange, {}},
    {Field::kRs, kFigures, 0, 5, "", 1, 0, id::kIceRateRange, {}},
    {Field::kci, kFigures, 1, 9, "/", 1, 0, id::kIceConcentrationRange, {}},
    {Field::kSi, kFigures, 1, 9, "/", 1, 0, id::kIceStageRange, {}},
    {Field::kbi, kFigures, 1, 9, "/", 1, 0, id::kIceLandOriginRange, {}},
    {Field::kDi, kFigures, 1, 9, "/", 1, 0, id::kIceBearingRange, {}},
    {Field::kzi, kFigures, 1, 9, "/", 1, 0, id::kIceTrendRange, {}},
}};

constexpr bool rows_are_in_order() {
  for (std::size_t i = 0; i < kRows.size(); ++i) {
    if (kRows[i].field != static_cast<Field>(i)) return false;
  }
  return true;
}
static_assert(rows_are_in_order());

bool listed(std::string_view list, std::string_view text) {
  while (!list.empty()) {
    const auto end = std::min(list.find(' '), list.size());
    if (list.substr(0, end) == text) return true;
    list.remove_prefix(std::min(end + 1, list.size()));
  }
  return false;
}

std::string filled(std::string_view text, std::size_t width) {
  std::string result(text);
  if (result.size() < width) result.insert(0, width - result.size(), '0');
  return result;
}

Checked check_figures(const EditorRow& row, std::string_view text, Bounds bounds) {
  // No row takes more than four figures; where no width is given the range limits them.
  const std::size_t longest = row.width > 0 ? row.width : 4;
  if (!text::is_all_digits(text) || text.size() > longest) return {};
  const int value = text::leading_int(text);
  if (value < bounds.low || value > bounds.high) return {};
  const bool asks = row.warning && value >= row.warn_from;
  return {asks ? Verdict::kAsks : Verdict::kAccepted, filled(text, row.width)};
}

Checked check_number(const EditorRow& row, std::string_view text, Bounds bounds) {
  const auto value = text::strict_number(text);
  if (!value || *value < bounds.low || *value > bounds.high) return {};
  const bool asks = row.warning && *value > row.warn_from;
  std::string shown = text::format_fixed(*value, row.decimals);
  // Minus zero is zero, also where it only comes of the rounding.
  if (text::leading_number(shown) == 0.0) shown = text::format_fixed(0.0, row.decimals);
  return {asks ? Verdict::kAsks : Verdict::kAccepted, std::move(shown)};
}

}  // namespace

std::span<const EditorRow> editor_rows() {
  return kRows;
}

const EditorRow& editor_of(Field field) {
  return kRows[static_cast<std::size_t>(field)];
}

Checked check_field(const EditorRow& row, std::string_view text, std::optional<Bounds> bounds) {
  if (listed(row.also, text)) {
    // Solidi stand as they are; a figure of the list is filled like any other.
    return {Verdict::kAccepted, text.front() == '/' ? std::string(text) : filled(text, row.width)};
  }
  const Bounds range = bounds.value_or(Bounds{row.low, row.high});
  return row.accepts == Accepts::kFigures ? check_figures(row, text, range)
                                          : check_number(row, text, range);
}

}  // namespace elements
