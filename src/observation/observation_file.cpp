#include "observation/observation_file.h"

#include <algorithm>

#include "observation/ship_values.h"
#include "text/strings.h"

namespace observation {
namespace {

constexpr std::size_t kLongestName = 40;
constexpr std::string_view kShipPrefix = "ship.";
constexpr std::string_view kItemPrefix = "item.";

ObservationFault fault_of(Stored stored) {
  switch (stored) {
    case Stored::kUnknownName:
      return ObservationFault::kUnknownName;
    case Stored::kBadNumber:
      return ObservationFault::kBadNumber;
    default:
      return ObservationFault::kNotStorable;
  }
}

}  // namespace

bool is_storable(const WeatherField& field, std::string_view value) {
  if (field.member == &Struct_Weather::CallSign) return value.empty() || is_report_call_sign(value);
  return std::all_of(value.begin(), value.end(),
                     [](char c) { return c >= ' ' && c < '\x7f' && c != '*'; });
}

ObservationReader::Step ObservationReader::take(std::string_view line) {
  if (error_) return Step::kError;
  ++line_;
  if (line.size() > kLongestLine) return fail(ObservationFault::kLineTooLong, {});
  line = text::trim(line);
  if (line.empty()) return end_block();
  if (line.front() == '#') return Step::kMore;
  if (block_size_ == 0) first_line_ = line_;
  block_size_ += line.size();
  if (block_size_ > kLongestBlock) return fail(ObservationFault::kRecordTooLong, {});
  return take_setting(line);
}

ObservationReader::Step ObservationReader::finish() {
  return error_ ? Step::kError : end_block();
}

ObservationReader::Step ObservationReader::take_setting(std::string_view line) {
  const auto equals = line.find('=');
  if (equals == std::string_view::npos) return fail(ObservationFault::kNoEquals, line);
  const std::string_view name = text::trim(line.substr(0, equals));
  const std::string_view value = text::trim(line.substr(equals + 1));
  if (name.starts_with(kShipPrefix) || name.starts_with(kItemPrefix)) {
    const Stored stored = name.starts_with(kShipPrefix)
                              ? store_ship_value(ship_, name.substr(kShipPrefix.size()), value)
                              : store_item_value(items_, name.substr(kItemPrefix.size()), value);
    return stored == Stored::kStored ? Step::kMore : fail(fault_of(stored), name);
  }
  const WeatherField* field = find_weather_field(name);
  if (field == nullptr) return fail(ObservationFault::kUnknownName, name);
  if (!is_storable(*field, value)) return fail(ObservationFault::kNotStorable, name);
  settings_.emplace_back(field, value);
  return Step::kMore;
}

ObservationReader::Step ObservationReader::end_block() {
  block_size_ = 0;
  if (settings_.empty()) return Step::kMore;
  record_ = Struct_Weather(ship_, items_);
  for (const auto& [field, value] : settings_) record_.*field->member = value;
  settings_.clear();
  return Step::kObservation;
}

ObservationReader::Step ObservationReader::fail(ObservationFault fault, std::string_view name) {
  error_ = ObservationError{line_, fault, std::string(name.substr(0, kLongestName))};
  return Step::kError;
}

void write_observation(std::string& out, const Struct_Weather& record,
                       const Struct_Weather& fresh) {
  for (const WeatherField& field : weather_fields()) {
    const std::string& value = record.*field.member;
    if (value.empty() && (fresh.*field.member).empty()) continue;
    out.append(field.name).append("=").append(value).append("\n");
  }
}

}  // namespace observation
