#include "elements/form/field_codes.h"

#include <algorithm>
#include <array>
#include <iterator>

#include "codetables/tables/code_metres.h"
#include "codetables/tables/sea_temperature_figures.h"
#include "elements/formulas/pressure_tendency.h"
#include "text/numbers.h"
#include "text/strings.h"

namespace elements {
std::string figures_of(Field field, std::string_view shown) {
  switch (row_of(field).codec) {
    case Codec::kHalfMetres:
      return half_metre_figures(shown);
    case Codec::kCloudBase:
      return cloud_base_code(shown);
    case Codec::kTendency:
      return tendency_stored(shown);
    default:
      return std::string(shown);
  }
}

// An iced bulb (2) has no sign of its own: it is below zero, or at 0.0.
bool wet_bulb_is_negative(const Struct_Weather& record) {
  return record.Sw == "1" || (record.Sw == "2" && record.TbTbTb != "000");
}

std::string shown_from_record(Field field, const Struct_Weather& record) {
  const FieldRow& row = row_of(field);
  if (row.codec == Codec::kNone) return {};
  const std::string& figures = record.*row.member;
  switch (row.codec) {
    case Codec::kNone:
    case Codec::kFigures:
      break;
    case Codec::kHalfMetres:
      return metres_of_figures(figures);
    case Codec::kCloudBase:
      return figures == "/" ? figures : cloud_base_metres(figures);
    case Codec::kTendency:
      return tendency_shown(figures);
    case Codec::kPressure:
      return pressure_shown(figures);
    case Codec::kTemperature:
      return temperature_shown(record.*row.beside, figures);
    case Codec::kWetBulb:
      return temperature_shown(wet_bulb_is_negative(record) ? "1" : "0", figures);
    case Codec::kSeaTemperature:
      return temperature_shown(is_below_zero(record.*row.beside) ? "1" : "0", figures);
    case Codec::kSpeed:
      return (record.*row.beside).empty() ? figures : record.*row.beside;
    case Codec::kHumidity:
      if (!text::is_all_digits(figures)) return {};
      return text::format_fixed(text::leading_int(figures) / 10.0, 1, 4, '0');
  }
  return figures;
}

std::string temperature_shown(std::string_view sign, std::string_view figures) {
  if (!text::is_all_digits(figures)) return std::string(figures);
  const std::string value = text::format_fixed(text::leading_int(figures) / 10.0, 1);
  return sign == "1" ? "-" + value : value;
}

std::string pressure_shown(std::string_view pppp) {
  if (!text::is_all_digits(pppp)) return std::string(pppp);
  const int tenths = text::leading_int(pppp);
  // The thousands are dropped in the report; pressures at sea level lie between 870 and 1070 hPa.
  constexpr int kNoThousands = 5000;
  return text::format_fixed((tenths < kNoThousands ? tenths + 10000 : tenths) / 10.0, 1, 6, '0');
}

std::string cloud_base_code(std::string_view metres) {
  if (!text::is_all_digits(metres)) return std::string(metres);
  static constexpr std::array kLowerLimits = {50, 100, 200, 300, 600, 1000, 1500, 2000, 2500};
  const auto above =
      std::upper_bound(kLowerLimits.begin(), kLowerLimits.end(), text::leading_int(metres));
  return text::format_int(std::distance(kLowerLimits.begin(), above));
}

std::string quadrant_of(int north_south, int east_west) {
  if (north_south < 0 || east_west < 0) return {};
  if (north_south == 0) return east_west == 0 ? "1" : "7";
  return east_west == 0 ? "3" : "5";
}

int north_south_of(std::string_view quadrant) {
  if (quadrant == "1" || quadrant == "7") return 0;
  return quadrant == "3" || quadrant == "5" ? 1 : -1;
}

int east_west_of(std::string_view quadrant) {
  if (quadrant == "1" || quadrant == "3") return 0;
  return quadrant == "5" || quadrant == "7" ? 1 : -1;
}

}  // namespace elements
