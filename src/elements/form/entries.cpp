#include "elements/form/entries.h"

#include <algorithm>
#include <utility>

#include "codetables/tables/humidity_figures.h"
#include "codetables/tables/pressure_figures.h"
#include "codetables/tables/quadrant.h"
#include "codetables/tables/sea_temperature_figures.h"
#include "codetables/tables/temperature_figures.h"
#include "codetables/tables/wind_figures.h"
#include "elements/form/field_codes.h"
#include "elements/formulas/psychrometer.h"
#include "text/numbers.h"

namespace elements {
namespace {

void store_temperature(Entries& entries, const FieldRow& row, const std::string& value,
                       const ShipFixedData& ship) {
  if (!text::number_at_start(value)) return;  // "///": its group has stored it
  const Celsius t{text::leading_number(value)};
  const codetables::TemperatureFigures figures = codetables::temperature_figures(t);
  std::string sign = figures.sign;
  if (row.codec == Codec::kWetBulb) {
    // The word on ice was for a colder bulb.
    if (entries.wet_bulb == WetBulbState::kIced && !can_be_iced(t))
      entries.wet_bulb = WetBulbState::kNotSet;
    sign = codetables::wet_bulb_sign(figures, entries.wet_bulb);
  } else if (row.codec == Codec::kSeaTemperature) {
    // A method that was chosen for this observation stays; the ship's is for the first entry.
    const auto method = codetables::sea_temperature_method(entries.record.*row.beside);
    sign = codetables::sea_temperature_sign(method.value_or(ship.sea_temperature_method),
                                            figures.sign == "1");
  }
  entries.record.*row.beside = sign;
  entries.record.*row.member = figures.figures;
}

std::array<std::string, 9> time_and_place(const Struct_Weather& r) {
  return {r.Year, r.Month, r.YY, r.GG, r.Qc, r.LaDeg, r.LaMin, r.LoDeg, r.LoMin};
}

}  // namespace

std::optional<Field> field_of(std::string Struct_Weather::*member, const ShipFixedData& ship) {
  std::optional<Field> found;
  for (const FieldRow& row : field_rows()) {
    if (member == nullptr || (row.member != member && row.beside != member)) continue;
    if (!row.shown_with || *row.shown_with == ship.dew_point_method) return row.field;
    // A member with one field only belongs to it with every method.
    found = row.field;
  }
  return found;
}

std::string shown(const FieldRow& row, const Struct_Weather& record, const ShipFixedData& ship) {
  if (row.shown_with && *row.shown_with != ship.dew_point_method) return {};
  return shown_from_record(row.field, record);
}

void store(Entries& entries, Field field, const std::string& value, const ShipFixedData& ship) {
  const FieldRow& row = row_of(field);
  Struct_Weather& record = entries.record;
  switch (row.codec) {
    case Codec::kNone:
      break;
    case Codec::kFigures:
    case Codec::kHalfMetres:
    case Codec::kCloudBase:
    case Codec::kTendency:
      record.*row.member = figures_of(field, value);
      break;
    case Codec::kPressure:
      store_pppp(record, codetables::pppp_of(value));
      break;
    case Codec::kTemperature:
    case Codec::kWetBulb:
    case Codec::kSeaTemperature:
      store_temperature(entries, row, value, ship);
      break;
    case Codec::kSpeed: {
      // What is entered is in knots; a report that was sent by others may have had another unit.
      if (codetables::is_metres_per_second(record.iw))
        record.iw = Struct_Weather(ship, KeyObservationItems()).iw;
      const codetables::WindFigures figures = codetables::wind_figures({}, value);
      record.*row.member = figures.ff;
      record.*row.beside = figures.fff;
      break;
    }
    case Codec::kHumidity:
      record.*row.member = codetables::humidity_texts(Percent{text::leading_number(value)}).logbook;
      break;
  }
}

void clear(Entries& entries, Field field) {
  const FieldRow& row = row_of(field);
  entries[field].text.clear();
  if (row.member != nullptr) (entries.record.*row.member).clear();
  if (row.beside != nullptr) (entries.record.*row.beside).clear();
  if (row.codec == Codec::kWetBulb) entries.wet_bulb = WetBulbState::kNotSet;
  // The pressure at sea level is the reading's.
  if (field == Field::kReading) clear(entries, Field::kPPPP);
}

void show_changes(Entries& entries, const Struct_Weather& before, const ShipFixedData& ship,
                  std::span<const Field> but) {
  const Struct_Weather& record = entries.record;
  for (const FieldRow& row : field_rows()) {
    if (std::find(but.begin(), but.end(), row.field) != but.end()) continue;
    std::string now = shown(row, record, ship);
    if (now != shown(row, before, ship)) entries[row.field].show(std::move(now));
  }
  if (record.Qc != before.Qc) {
    entries.north_south = codetables::north_south_of(record.Qc);
    entries.east_west = codetables::east_west_of(record.Qc);
  }
  if (time_and_place(record) != time_and_place(before)) entries.review_due = true;
  // The state is chosen beside the figures, too: only new figures may overrule it.
  if (record.Sw == before.Sw && record.TbTbTb == before.TbTbTb) return;
  if (codetables::has_iced_bulb(record.Sw, record.TbTbTb)) {
    entries.wet_bulb = WetBulbState::kIced;
  } else if (entries.wet_bulb == WetBulbState::kIced) {
    entries.wet_bulb = WetBulbState::kNotSet;
  }
}

}  // namespace elements
