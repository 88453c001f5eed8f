#include "codetables/tables/temperature_figures.h"

#include <utility>

#include "text/numbers.h"
#include "text/strings.h"

namespace codetables {
namespace {

// Code tables 3845 and 3855.
constexpr std::string_view kNotBelowZero = "0";
constexpr std::string_view kBelowZero = "1";
constexpr std::string_view kIced = "2";

}  // namespace

std::string zero_filled_tenths(double value) {
  // The rounded value decides on the form: 9.96 is "10.0". What rounds to -0.0 is zero, and so has
  // no sign: in a report a 1 in front of 000 would say that it froze.
  const double rounded = text::leading_number(text::format_fixed(value, 1, 2)) + 0.0;
  if (rounded >= 0.0) return text::format_fixed(rounded, 1, 4, '0');
  if (rounded > -10.0) return text::format_fixed(rounded, 1, 5, '0');
  return text::without_spaces(text::format_fixed(rounded, 1, 5));
}

namespace {

TemperatureFigures figures_of(std::string text) {
  TemperatureFigures result;
  result.sign = (text.starts_with('-') ? kBelowZero : kNotBelowZero).front();
  result.figures = text;
  result.text = std::move(text);
  std::erase_if(result.figures, [](char c) { return c == '.' || c == '-'; });
  result.figures.resize(result.figures.size() < 3 ? result.figures.size() : 3);
  if (result.figures.size() < 3) result.figures.insert(0, 1, '0');
  return result;
}

}  // namespace

TemperatureFigures temperature_figures(Celsius t) {
  return figures_of(zero_filled_tenths(t.value));
}

TemperatureFigures computed_dew_point_figures(Celsius td) {
  const std::string printed = text::format_fixed(td.value, 1, 2);
  return figures_of(printed == "-0.0" ? printed : zero_filled_tenths(td.value));
}

std::string temperature_shown(std::string_view sign, std::string_view figures) {
  if (!text::is_all_digits(figures)) return std::string(figures);
  std::string value = text::format_fixed(text::leading_int(figures) / 10.0, 1);
  if (sign == kBelowZero) value.insert(0, 1, '-');
  return value;
}

std::optional<int> signed_tenths(std::string_view sign, std::string_view figures) {
  if (!text::is_all_digits(sign) || !text::is_all_digits(figures)) return std::nullopt;
  const int value = text::leading_int(figures);
  return sign == kBelowZero ? -value : value;
}

std::string wet_bulb_sign(const TemperatureFigures& wet, WetBulbState state) {
  if (state == WetBulbState::kIced) return {kIced.front()};
  return wet.sign;
}

bool is_iced(std::string_view Sw) {
  return Sw == kIced;
}

bool has_iced_bulb(std::string_view Sw, std::string_view TbTbTb) {
  return is_iced(Sw) && text::is_all_digits(TbTbTb);
}

std::string wet_bulb_value_sign(std::string_view Sw, std::string_view TbTbTb) {
  if (!is_iced(Sw)) return std::string(Sw);
  return {(TbTbTb == "000" ? kNotBelowZero : kBelowZero).front()};
}

std::string joined_temperature(std::string_view whole, std::string_view tenths) {
  whole = text::trim(whole);
  tenths = text::trim(tenths);
  if (whole.empty()) return {};
  std::string joined = std::string(whole).append(".").append(tenths.empty() ? "0" : tenths);
  if (joined.starts_with('-') && text::leading_number(joined) == 0.0) joined.erase(0, 1);
  return joined;
}

TemperatureRange temperature_range(std::string_view text) {
  const long long tenths = 10LL * text::leading_int(text);
  if (tenths > 400) return TemperatureRange::kAbove;
  return tenths < -250 ? TemperatureRange::kBelow : TemperatureRange::kUsual;
}

}  // namespace codetables
