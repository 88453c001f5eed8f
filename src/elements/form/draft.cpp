#include "elements/form/draft.h"

#include <algorithm>
#include <map>
#include <optional>
#include <utility>

#include "elements/form/field_codes.h"
#include "observation/observation_file.h"
#include "text/numbers.h"
#include "text/strings.h"

namespace elements {
namespace {

using std::string_view;

// The first one knew of no corrections, and is written still where there is none.
constexpr int kVersion = 1;
constexpr int kVersionOfCorrection = 2;
// Of one whose line of the logbook has VOSClim values.
constexpr int kVersionOfVosclim = 3;
constexpr string_view kVersionName = "draft=";
constexpr string_view kCheckName = "check=";
constexpr string_view kFigures = "0123456789ABCDEF";
constexpr std::size_t kCheckFigures = 8;

unsigned byte_of(char c) {
  return static_cast<unsigned char>(c);
}

// CRC-32. It finds every error of up to 32 bits in a row, so every byte that was changed.
std::string checksum(string_view text) {
  constexpr std::uint32_t kPolynomial = 0xEDB88320U;
  std::uint32_t rest = 0xFFFFFFFFU;
  for (const char c : text) {
    rest ^= byte_of(c);
    for (int i = 0; i < 8; ++i) rest = (rest >> 1U) ^ ((rest & 1U) != 0 ? kPolynomial : 0U);
  }
  rest = ~rest;
  std::string figures(kCheckFigures, '0');
  for (auto at = figures.rbegin(); at != figures.rend(); ++at, rest >>= 4U)
    *at = kFigures[rest & 0xFU];
  return figures;
}

// Bytes of the well-formed UTF-8 character at the start of a non-empty text; 0 when there is none.
std::size_t character(string_view text) {
  const unsigned first = byte_of(text.front());
  if (first < 0x80U) return 1;
  const std::size_t size = first >= 0xF0U ? 4 : first >= 0xE0U ? 3 : 2;
  if (first < 0xC2U || first > 0xF4U || text.size() < size) return 0;
  for (std::size_t i = 1; i < size; ++i) {
    if ((byte_of(text[i]) & 0xC0U) != 0x80U) return 0;
  }
  // Longer than need be, a half of a pair, beyond the last character.
  const unsigned second = byte_of(text[1]);
  const bool none = (first == 0xE0U && second < 0xA0U) || (first == 0xEDU && second > 0x9FU) ||
                    (first == 0xF0U && second < 0x90U) || (first == 0xF4U && second > 0x8FU);
  return none ? 0 : size;
}

std::string escaped(string_view text) {
  std::string result;
  for (std::size_t at = 0; at < text.size();) {
    const std::size_t size = character(text.substr(at));
    const unsigned byte = byte_of(text[at]);
    const bool at_an_end = at == 0 || at + 1 == text.size();
    const bool as_it_is = size > 1 || (size == 1 && byte > ' ' && byte != 0x7FU && byte != '%') ||
                          (byte == ' ' && !at_an_end);
    if (as_it_is) {
      result.append(text.substr(at, size));
    } else {
      result.append({'%', kFigures[byte >> 4U], kFigures[byte & 0xFU]});
    }
    at += std::max<std::size_t>(size, 1);
  }
  return result;
}

// What escaped() was made from. Of a text that it never gives something else comes out, which
// encodes to another text.
std::string unescaped(string_view text) {
  std::string result;
  for (std::size_t at = 0; at < text.size(); ++at) {
    if (text[at] != '%' || at + 2 >= text.size()) {
      result += text[at];
      continue;
    }
    const auto figure = [&](std::size_t place) {
      const auto value = kFigures.find(text[place]);
      return static_cast<unsigned>(value == string_view::npos ? 0 : value);
    };
    result += static_cast<char>(figure(at + 1) * 16 + figure(at + 2));
    at += 2;
  }
  return result;
}

// The lines of a draft. Writer and Reader are told of the same values in the same order, so that
// each stands in describe() once.

class Writer {
 public:
  void text(string_view name, const std::string& value) {
    if (!value.empty()) line(name, escaped(value));
  }
  void text_or_none(string_view name, const std::optional<std::string>& value) {
    if (value) line(name, escaped(*value));
  }
  void flag(string_view name, bool value) {
    if (value) line(name, "1");
  }
  void number(string_view name, int value, int none, int /*lowest*/, int /*highest*/) {
    if (value != none) line(name, text::format_int(value));
  }
  /// True when a list goes on with a line of this name and number.
  [[nodiscard]] bool goes_on(string_view /*name*/, std::size_t at, std::size_t size) const {
    return at < size;
  }
  [[nodiscard]] std::string& out() { return out_; }

 private:
  void line(string_view name, string_view value) {
    out_.append(name).append("=").append(value).append("\n");
  }
  std::string out_;
};

class Reader {
 public:
  explicit Reader(std::map<string_view, string_view> lines) : lines_(std::move(lines)) {}

  void text(string_view name, std::string& value) { value = unescaped(of(name).value_or("")); }
  void text_or_none(string_view name, std::optional<std::string>& value) {
    if (const auto found = of(name)) value = unescaped(*found);
  }
  void flag(string_view name, bool& value) { value = of(name).has_value(); }
  void number(string_view name, int& value, int none, int lowest, int highest) {
    const auto found = of(name);
    value = found ? std::clamp(text::leading_int(*found), lowest, highest) : none;
  }

  [[nodiscard]] bool goes_on(string_view name, std::size_t /*at*/, std::size_t /*size*/) const {
    return of(name).has_value();
  }

 private:
  [[nodiscard]] std::optional<string_view> of(string_view name) const {
    const auto at = lines_.find(name);
    return at == lines_.end() ? std::nullopt : std::optional(at->second);
  }
  std::map<string_view, string_view> lines_;
};

template <class Lines, class Enum>
void describe_enum(Lines& lines, string_view name, Enum& value, int none, int highest) {
  int number = static_cast<int>(value);
  lines.number(name, number, none, none, highest);
  value = static_cast<Enum>(number);
}

template <class Lines>
void describe_fields(Lines& lines, Entries& entries) {
  for (const FieldRow& row : field_rows()) {
    const std::string name(row.name);
    Entry& entry = entries[row.field];
    lines.text("text." + name, entry.text);
    lines.text_or_none("typed." + name, entry.before_typing);
    lines.flag("wrong." + name, entry.wrong);
    lines.text_or_none("aside." + name, entry.put_aside);
  }
}

template <class Lines>
void describe_correction(Lines& lines, Correction& correction) {
  lines.text("correcting", correction.file);
  lines.text("goes_to", correction.goes_to);
  auto& unplaced = correction.unplaced;
  for (std::size_t at = 0;; ++at) {
    const std::string number = text::format_int(static_cast<int>(at));
    if (!lines.goes_on("unplaced." + number, at, unplaced.size())) break;
    if (at == unplaced.size()) unplaced.emplace_back();
    lines.text("unplaced." + number, unplaced[at].text);
    describe_enum(lines, "why." + number, unplaced[at].why, 0, observation::kUnplacedReasons - 1);
  }
}

template <class Lines>
void describe(Lines& lines, Draft& draft) {
  Entries& form = draft.form;
  lines.text("call_sign", draft.call_sign);
  lines.text("ship", draft.ship_mark);
  for (const WeatherField& field : weather_fields())
    lines.text("record." + std::string(field.name), form.record.*field.member);
  describe_fields(lines, form);
  describe_enum(lines, "wet_bulb", form.wet_bulb, -1, 1);
  lines.number("north_south", form.north_south, -1, -1, 1);
  lines.number("east_west", form.east_west, -1, -1, 1);
  lines.text("PPPP_of_reading", form.pppp_of_reading);
  lines.text("dew_point_of_bulbs", form.dew_point_of_bulbs);
  describe_enum(lines, "dew_point_method", form.dew_point_method, 0, 1);
  describe_enum(lines, "sea_temperature_method", form.sea_temperature_method, -1, 3);
  lines.flag("refused", form.error_flag);
  lines.flag("modified", form.modified);
  lines.flag("review_due", form.review_due);
  lines.flag("doubled_pressure_due", form.doubled_pressure_due);
  lines.text("typing_in", draft.typing_in);
  lines.text("group_text", draft.group_text);
  lines.flag("dew_point_as_sent", form.dew_point_as_sent);
  lines.flag("VosClim_as_sent", form.vosclim_as_sent);
  describe_correction(lines, draft.correction);
}

int version_of(const Draft& draft) {
  if (draft.form.vosclim_as_sent) return kVersionOfVosclim;
  return draft.correction.file.empty() && !draft.form.dew_point_as_sent ? kVersion
                                                                        : kVersionOfCorrection;
}

// The lines between version and checksum; nothing when one is no NAME=VALUE.
std::optional<std::map<string_view, string_view>> lines_of(string_view text) {
  std::map<string_view, string_view> lines;
  while (!text.empty()) {
    const auto end = std::min(text.find('\n'), text.size());
    const string_view line = text.substr(0, end);
    text.remove_prefix(std::min(end + 1, text.size()));
    const auto equals = line.find('=');
    if (equals == string_view::npos) return std::nullopt;
    lines.emplace(line.substr(0, equals), line.substr(equals + 1));
  }
  return lines;
}

// The record holds what an observation file can: so much is sure of every form, and the encoders
// rely on it. Call sign and IMO number are the ship's.
bool is_sound(const Struct_Weather& record) {
  return std::ranges::all_of(weather_fields(), [&](const WeatherField& field) {
    return field.member == &Struct_Weather::CallSign ||
           field.member == &Struct_Weather::ShipFixed ||
           observation::is_storable(field, record.*field.member);
  });
}

// Texts that may be stored again without a test, when their element is switched on or off.
bool is_sound(const Entries& entries) {
  return std::ranges::all_of(field_rows(), [&](const FieldRow& row) {
    // Other elements are never put aside.
    if (!row.item && !row.needs_wave_recorder) return !entries[row.field].put_aside;
    const auto member = std::ranges::find(weather_fields(), row.member, &WeatherField::member);
    const auto fits = [&](const std::string& text) {
      return observation::is_storable(*member, figures_of(row.field, text));
    };
    const Entry& entry = entries[row.field];
    return fits(entry.entered()) && fits(entry.put_aside.value_or(std::string()));
  });
}

}  // namespace

std::string ship_mark(const ShipFixedData& ship) {
  const BarometerCard& card = ship.card;
  std::string values;
  // As numbers: "+1.0" and "1.0" are one card.
  const auto add = [&](double value) { values.append(text::format_fixed(value, 1)).append(" "); };
  for (const std::string* const value :
       {&card.total_correction, &card.instrumental_correction, &card.height_full_load,
        &card.total_correction_full_load, &card.height_ballast, &card.total_correction_ballast})
    add(text::leading_number(*value));
  for (const int value :
       {static_cast<int>(card.type), static_cast<int>(card.loading_state),
        static_cast<int>(ship.wind_input_method), static_cast<int>(ship.wind_speed_method),
        static_cast<int>(ship.sea_temperature_method), static_cast<int>(ship.dew_point_method),
        static_cast<int>(ship.wave_recorder), static_cast<int>(ship.humidity_method)})
    add(value);
  add(ship.humidity_unit);
  // Only where it is so: to a ship that is not registered its mark is that of earlier versions.
  if (ship.vosclim) values.append("VOSClim ");
  return checksum(values.append(ship.call_sign).append(" ").append(ship.imo_number));
}

std::string encode_draft(const Draft& draft) {
  Writer writer;
  writer.out().append(kVersionName).append(text::format_int(version_of(draft))).append("\n");
  Draft copy = draft;
  describe(writer, copy);
  std::string text = std::move(writer.out());
  const std::string check = checksum(text);
  return text.append(kCheckName).append(check).append("\n");
}

DraftRead decode_draft(string_view text) {
  constexpr std::size_t kCheckLine = kCheckName.size() + kCheckFigures + 1;
  if (text.size() < kCheckLine || !text.starts_with(kVersionName)) return {};
  const string_view body = text.substr(0, text.size() - kCheckLine);
  if (text.substr(body.size()) != std::string(kCheckName) + checksum(body) + "\n") return {};
  const string_view version = body.substr(kVersionName.size(), body.find('\n') + 1);
  // Behind the checksum: a draft of a later version is whole, not damaged.
  if (text::leading_int(version) > kVersionOfVosclim) return {DraftFault::kLaterVersion, {}};
  const auto lines = lines_of(body);
  if (!lines) return {};
  DraftRead read{DraftFault::kNone, {}};
  Reader reader(*lines);
  describe(reader, read.draft);
  // What is written back otherwise was not understood whole.
  if (!is_sound(read.draft.form.record) || !is_sound(read.draft.form) ||
      encode_draft(read.draft) != text)
    return {};
  return read;
}

}  // namespace elements
