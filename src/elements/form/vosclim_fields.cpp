#include "elements/form/vosclim_fields.h"

#include <algorithm>
#include <optional>

#include "codetables/tables/wind_figures.h"
#include "text/numbers.h"
#include "text/strings.h"

namespace elements {
namespace {

constexpr int kFullCircle = 360;
constexpr int kDirectionFigures = 3;

struct Row {
  std::string Struct_Weather::*value;
  Field field;
  bool is_speed;
};
constexpr Row kRows[] = {
    {&Struct_Weather::VosClim1, Field::kApparentDirection, false},
    {&Struct_Weather::VosClim2, Field::kApparentSpeed, true},
    {&Struct_Weather::VosClim3, Field::kHeading, false},
    {&Struct_Weather::VosClim4, Field::kShipSpeed, true},
    {&Struct_Weather::VosClim5, Field::kCourse, false},
};

// Whole knots of what is entered; nothing where no number is.
std::optional<double> knots_in(const Entries& entries, Field field) {
  const auto knots = text::strict_number(text::trim(entries.entered(field)));
  if (!knots || *knots < 0.0) return std::nullopt;
  return codetables::whole_units({*knots});
}

std::optional<int> degrees_in(const Entries& entries, Field field) {
  return text::whole_number(entries.entered(field), 0, kFullCircle);
}

std::string figures(int value, int width) {
  std::string result = text::format_int(value, width, '0');
  if (result.size() > static_cast<std::size_t>(width)) result.clear();
  return result;
}

std::string speed_figures(std::optional<double> knots, int width) {
  // Compared as doubles: what was typed may be larger than any int.
  if (!knots || *knots > codetables::kLargestSpeed) return {};
  return figures(static_cast<int>(*knots), width);
}

std::string direction_figures(std::optional<int> degrees, std::optional<double> knots) {
  const bool has_none = knots && *knots == 0.0;
  if (!degrees || (*degrees == 0 && !knots)) return {};
  if (has_none) return figures(0, kDirectionFigures);
  return figures(*degrees == 0 ? kFullCircle : *degrees, kDirectionFigures);
}

}  // namespace

bool tells_vosclim(const ShipFixedData& ship, const Struct_Weather& record) {
  return ship.vosclim && ship.wind_input_method == WindInputMethod::kApparentWind &&
         !codetables::is_metres_per_second(record.iw);
}

void set_vosclim(Entries& entries, const ShipFixedData& ship) {
  Struct_Weather& record = entries.record;
  for (const Row& row : kRows) (record.*row.value).clear();
  if (!tells_vosclim(ship, record)) return;
  const auto wind = knots_in(entries, Field::kApparentSpeed);
  const auto speed = knots_in(entries, Field::kShipSpeed);
  record.VosClim1 = direction_figures(degrees_in(entries, Field::kApparentDirection), wind);
  record.VosClim2 = speed_figures(wind, 3);
  record.VosClim3 = direction_figures(degrees_in(entries, Field::kHeading), std::nullopt);
  record.VosClim4 = speed_figures(speed, 2);
  record.VosClim5 = direction_figures(degrees_in(entries, Field::kCourse), speed);
}

void show_vosclim(Entries& entries, const ShipFixedData& ship) {
  if (!tells_vosclim(ship, entries.record)) return;
  for (const Row& row : kRows) {
    const std::string& value = entries.record.*row.value;
    Entry& entry = entries[row.field];
    // Figures are all that a line of the logbook gives.
    if (!entry.text.empty() || entry.before_typing || !text::is_all_digits(value)) continue;
    const int number = text::leading_int(value);
    entry.show(row.is_speed ? text::format_fixed(number, 1) : text::format_int(number));
  }
}

bool has_any_vosclim(const Struct_Weather& record) {
  return std::ranges::any_of(kRows, [&](const Row& row) { return !(record.*row.value).empty(); });
}

}  // namespace elements
