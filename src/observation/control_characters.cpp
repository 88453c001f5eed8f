#include "observation/control_characters.h"

#include "text/strings.h"

namespace observation {
namespace {

/// What the logbook takes from the ship itself; the call sign comes to it by the record.
struct ShipText {
  std::string_view name;
  std::string ShipFixedData::*member;
};
constexpr ShipText kShipTexts[] = {
    {"ship.vosclim_cargo_height", &ShipFixedData::vosclim_cargo_height},
    {"ship.vosclim_load_line_departure", &ShipFixedData::vosclim_load_line_departure},
    {"ship.imo_number", &ShipFixedData::imo_number},
};

}  // namespace

std::optional<std::string_view> control_character_field(const Struct_Weather& record,
                                                        const ShipFixedData& ship) {
  for (const WeatherField& field : weather_fields())
    if (text::has_control(record.*field.member)) return field.name;
  for (const ShipText& field : kShipTexts)
    if (text::has_control(ship.*field.member)) return field.name;
  return std::nullopt;
}

}  // namespace observation
