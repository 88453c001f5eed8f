#include "elements/form/field_codes.h"

#include "codetables/tables/cloud_base.h"
#include "codetables/tables/humidity_figures.h"
#include "codetables/tables/pressure_figures.h"
#include "codetables/tables/pressure_tendency.h"
#include "codetables/tables/sea_temperature_figures.h"
#include "codetables/tables/temperature_figures.h"
#include "codetables/tables/wave_height.h"
#include "codetables/tables/wind_figures.h"

namespace elements {

std::string figures_of(Field field, std::string_view shown) {
  switch (row_of(field).codec) {
    case Codec::kHalfMetres:
      return codetables::half_metre_figures(shown);
    case Codec::kCloudBase:
      return codetables::cloud_base_code(shown);
    case Codec::kTendency:
      return codetables::tendency_stored(shown);
    default:
      return std::string(shown);
  }
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
      return codetables::metres_of_figures(figures);
    case Codec::kCloudBase:
      // A solidus has no metres; the field shows it as it was typed.
      return figures == "/" ? figures : codetables::cloud_base_metres(figures);
    case Codec::kTendency:
      return codetables::tendency_shown(figures);
    case Codec::kPressure:
      return codetables::pressure_shown(figures);
    case Codec::kTemperature:
      return codetables::temperature_shown(record.*row.beside, figures);
    case Codec::kWetBulb:
      return codetables::temperature_shown(
          codetables::wet_bulb_value_sign(record.*row.beside, figures), figures);
    case Codec::kSeaTemperature:
      return codetables::temperature_shown(
          codetables::is_below_zero(record.*row.beside) ? "1" : "0", figures);
    case Codec::kSpeed:
      return codetables::speed_shown(figures, record.*row.beside);
    case Codec::kHumidity:
      return codetables::humidity_of_logbook(figures);
  }
  return figures;
}

void store_pppp(Struct_Weather& record, const std::string& pppp) {
  // The characteristic was that of a curve which ended at another pressure.
  if (!pppp.empty() && pppp != record.PPPP) record.a.clear();
  record.PPPP = pppp;
}

}  // namespace elements
