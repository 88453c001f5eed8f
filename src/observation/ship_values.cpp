#include "observation/ship_values.h"

#include <algorithm>
#include <array>
#include <string>

#include "ship/data/barometer_date.h"
#include "text/numbers.h"
#include "text/strings.h"

namespace observation {
namespace {

using Ship = ShipFixedData;

bool is_printable(std::string_view value) {
  return std::all_of(value.begin(), value.end(), [](char c) { return c >= ' ' && c < '\x7f'; });
}

// ---- One function per kind of item: tests, then stores

Stored store_text(std::string& into, std::string_view value, bool storable) {
  if (!storable) return Stored::kNotStorable;
  into = value;
  return Stored::kStored;
}

template <class T>
Stored store_choice(T& into, std::string_view value, int first, int last) {
  if (!text::is_number(value, text::kSignedWhole)) return Stored::kBadNumber;
  const int number = text::leading_int(value);
  if (number < first || number > last) return Stored::kNotStorable;
  into = static_cast<T>(number);
  return Stored::kStored;
}

// Which number says so follows the order of the lines on the screen: "Yes" is 0 for the recorder
// and VOSClim, 1 for the station.
Stored store_yes(bool& into, std::string_view value, int yes) {
  int number = 0;
  const Stored result = store_choice(number, value, 0, 1);
  if (result == Stored::kStored) into = number == yes;
  return result;
}

Stored store_unit(double& into, std::string_view value, std::initializer_list<double> allowed) {
  if (!text::is_number(value, text::kSignedDecimal)) return Stored::kBadNumber;
  const double number = text::leading_number(value);
  // "0.1" reads as the very double that 0.1 in the source is, so comparing exactly is right.
  const auto* const at = std::find(allowed.begin(), allowed.end(), number);
  if (at == allowed.end()) return Stored::kNotStorable;
  into = *at;
  return Stored::kStored;
}

Stored store_number(std::string& into, std::string_view value, double least, double most) {
  if (!text::is_number(value, text::kSignedDecimal)) return Stored::kBadNumber;
  const double number = text::leading_number(value);
  return store_text(into, value, number >= least && number <= most);
}

Stored store_height(std::string& into, std::string_view value) {
  if (!text::is_all_digits(value)) return Stored::kBadNumber;
  // Metres above the waterline, at most what a card may say.
  return store_text(into, value, value.size() <= 3 && text::leading_int(value) <= 200);
}

Stored store_figures(std::string& into, std::string_view value, std::size_t most) {
  if (!value.empty() && !text::is_all_digits(value)) return Stored::kBadNumber;
  return store_text(into, value, value.size() <= most);
}

// In figures, or the letters that stand for no date.
bool is_date_text(std::string_view value) {
  return value == kCheckDatePlaceholder || is_slashed_date(value);
}

bool is_port(std::string_view value) {
  constexpr std::size_t kMost = 24;
  return text::length(value) <= kMost && std::none_of(value.begin(), value.end(), [](char c) {
           return static_cast<unsigned char>(c) < ' ' || c == '\x7f';
         });
}

bool is_manufacturer(std::string_view value) {
  return value.size() <= 60 && is_printable(value);
}

// ---- The items by name

struct ShipRow {
  std::string_view name;
  Stored (*store)(Ship& ship, std::string_view value);
};

using Text = std::string_view;

constexpr ShipRow kShip[] = {
    {"call_sign",
     [](Ship& s, Text v) {
       return store_text(s.call_sign, v, v.empty() || is_report_call_sign(v));
     }},
    {"barometer_check_date",
     [](Ship& s, Text v) { return store_text(s.card.check_date, v, is_date_text(v)); }},
    {"barometer_check_port",
     [](Ship& s, Text v) { return store_text(s.card.check_port, v, is_port(v)); }},
    {"card_type", [](Ship& s, Text v) { return store_choice(s.card.type, v, -1, 1); }},
    // hPa. A total correction holds the reduction to sea level too, hence the larger upper bound.
    {"total_correction",
     [](Ship& s, Text v) { return store_number(s.card.total_correction, v, -50, 80); }},
    {"instrumental_correction",
     [](Ship& s, Text v) { return store_number(s.card.instrumental_correction, v, -50, 50); }},
    {"loading_state", [](Ship& s, Text v) { return store_choice(s.card.loading_state, v, -1, 1); }},
    {"height_full_load", [](Ship& s, Text v) { return store_height(s.card.height_full_load, v); }},
    {"total_correction_full_load",
     [](Ship& s, Text v) { return store_number(s.card.total_correction_full_load, v, -50, 80); }},
    {"height_ballast", [](Ship& s, Text v) { return store_height(s.card.height_ballast, v); }},
    {"total_correction_ballast",
     [](Ship& s, Text v) { return store_number(s.card.total_correction_ballast, v, -50, 80); }},
    {"wind_input_method",
     [](Ship& s, Text v) { return store_choice(s.wind_input_method, v, 0, 1); }},
    {"wind_speed_method",
     [](Ship& s, Text v) { return store_choice(s.wind_speed_method, v, 0, 1); }},
    {"sea_temperature_method",
     [](Ship& s, Text v) { return store_choice(s.sea_temperature_method, v, -1, 3); }},
    {"dew_point_method", [](Ship& s, Text v) { return store_choice(s.dew_point_method, v, 0, 1); }},
    {"wave_recorder", [](Ship& s, Text v) { return store_yes(s.wave_recorder, v, 0); }},
    {"vosclim", [](Ship& s, Text v) { return store_yes(s.vosclim, v, 0); }},
    {"temperature_unit",
     [](Ship& s, Text v) {
       return store_unit(s.temperature_unit, v, {0.1, 0.5, 1.0});
     }},
    {"vosclim_cargo_height",
     [](Ship& s, Text v) { return store_figures(s.vosclim_cargo_height, v, 2); }},
    {"vosclim_load_line_departure",
     [](Ship& s, Text v) {
       if (!v.empty() && !text::is_number(v, text::kSignedWhole)) return Stored::kBadNumber;
       return store_text(s.vosclim_load_line_departure, v, v.size() <= 3);
     }},
    {"imo_number", [](Ship& s, Text v) { return store_figures(s.imo_number, v, 7); }},
    {"humidity_method", [](Ship& s, Text v) { return store_choice(s.humidity_method, v, 0, 1); }},
    {"humidity_unit",
     [](Ship& s, Text v) {
       return store_unit(s.humidity_unit, v, {0.1, 1.0});
     }},
    {"aws_fitted", [](Ship& s, Text v) { return store_yes(s.aws_fitted, v, 1); }},
    {"aws_manufacturer",
     [](Ship& s, Text v) { return store_text(s.aws_manufacturer, v, is_manufacturer(v)); }},
};

}  // namespace

Stored store_ship_value(ShipFixedData& ship, std::string_view name, std::string_view value) {
  const auto* const row = std::find_if(std::begin(kShip), std::end(kShip),
                                       [&](const ShipRow& each) { return each.name == name; });
  return row == std::end(kShip) ? Stored::kUnknownName : row->store(ship, value);
}

Stored store_item_value(KeyObservationItems& items, std::string_view name, std::string_view value) {
  const auto& names = kObservationItemNames;
  const auto* const at = std::find(names.begin(), names.end(), name);
  if (at == names.end()) return Stored::kUnknownName;
  return store_yes(items.not_observed.at(static_cast<std::size_t>(at - names.begin())), value, 1);
}

bool is_report_call_sign(std::string_view text) {
  return !text.empty() && std::all_of(text.begin(), text.end(), [](char c) {
    return c > ' ' && c < '\x7f' && c != '=' && c != '.' && c != '&';
  });
}

}  // namespace observation
