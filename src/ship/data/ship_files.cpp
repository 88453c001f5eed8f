#include "ship/data/ship_files.h"

#include <string>

#include "ship/data/barometer_card.h"
#include "ship/data/ship_text.h"
#include "text/numbers.h"
#include "text/strings.h"

namespace {

using platform::DateTime;

// A field of the line: where its bytes lie, and the two ways between its text and the data.
struct Field {
  std::size_t offset;
  std::size_t width;
  char padding;
  std::string (*encode)(const ShipFixedData&);
  void (*decode)(std::string_view, ShipFixedData&);
};

template <std::string ShipFixedData::*member>
std::string text_of(const ShipFixedData& data) {
  return data.*member;
}

template <std::string ShipFixedData::*member>
void text_into(std::string_view field, ShipFixedData& data) {
  data.*member = text::without_spaces(field);
}

template <std::string BarometerCard::*member>
std::string card_text_of(const ShipFixedData& data) {
  return data.card.*member;
}

// Inner blanks go as well ("PORT A" comes back as "PORTA"): the format has always lost them.
template <std::string BarometerCard::*member>
void card_text_into(std::string_view field, ShipFixedData& data) {
  data.card.*member = text::without_spaces(field);
}

// Older copies of the file hold a correction of zero with two figures before the point.
template <std::string BarometerCard::*member>
void correction_into(std::string_view field, ShipFixedData& data) {
  std::string value = text::without_spaces(field);
  data.card.*member = value == "+00.0" ? "+0.0" : std::move(value);
}

std::string flag(bool on) {
  return on ? "1" : "0";
}

bool is_one(std::string_view field) {
  return field == "1";
}

bool is_near(double value, double wanted) {
  return value > wanted - 0.01 && value < wanted + 0.01;
}

std::string encode_date(const ShipFixedData& data) {
  return text::replace_all(data.card.check_date, "/", "");
}

// An all-blank date stays empty here; the caller puts the clock's in.
void decode_date(std::string_view field, ShipFixedData& data) {
  std::string& date = data.card.check_date;
  date.clear();
  if (text::without_spaces(field).empty()) return;
  // Characters, not bytes: a damaged file may hold any there.
  const std::string_view year = text::first(field, 4);
  field.remove_prefix(year.size());
  const std::string_view month = text::first(field, 2);
  field.remove_prefix(month.size());
  date = text::without_spaces(year) + "/" + text::without_spaces(month) + "/" +
         text::without_spaces(field);
}

// The file has no figure for a type that is not chosen: that one comes back as card type "1".
std::string encode_card_type(const ShipFixedData& data) {
  return flag(data.card.type == CardType::kTotalCorrection);
}

void decode_card_type(std::string_view field, ShipFixedData& data) {
  data.card.type = field == "0"    ? CardType::kHeightAndTemperature
                   : is_one(field) ? CardType::kTotalCorrection
                                   : CardType::kNotChosen;
}

std::string encode_loading_state(const ShipFixedData& data) {
  if (data.card.type == CardType::kTotalCorrection) return {};
  if (data.card.loading_state == LoadingState::kNotChosen) return {};
  return flag(data.card.loading_state == LoadingState::kInBallast);
}

void decode_loading_state(std::string_view field, ShipFixedData& data) {
  data.card.loading_state = field == "0"    ? LoadingState::kFullLoad
                            : is_one(field) ? LoadingState::kInBallast
                                            : LoadingState::kNotChosen;
}

std::string encode_wind_input(const ShipFixedData& data) {
  return flag(data.wind_input_method == WindInputMethod::kApparentWind);
}

void decode_wind_input(std::string_view field, ShipFixedData& data) {
  data.wind_input_method =
      is_one(field) ? WindInputMethod::kApparentWind : WindInputMethod::kTrueWind;
}

// The wind speed indicator iw of a report in knots: 3 estimated, 4 by anemometer.
std::string encode_wind_speed(const ShipFixedData& data) {
  return data.wind_speed_method == WindSpeedMethod::kAnemometer ? "4" : "3";
}

void decode_wind_speed(std::string_view field, ShipFixedData& data) {
  data.wind_speed_method =
      field == "4" ? WindSpeedMethod::kAnemometer : WindSpeedMethod::kBeaufortScale;
}

// Sign and type of the sea temperature, the figure for a positive one.
std::string encode_sea_temperature(const ShipFixedData& data) {
  return codetables::sea_temperature_sign(data.sea_temperature_method, false);
}

void decode_sea_temperature(std::string_view field, ShipFixedData& data) {
  const auto method = codetables::sea_temperature_method(field);
  // The file knows the figures for zero and above only; any other is its default.
  data.sea_temperature_method = codetables::is_below_zero(field)
                                    ? SeaTemperatureMethod::kIntake
                                    : method.value_or(SeaTemperatureMethod::kIntake);
}

std::string encode_dew_point(const ShipFixedData& data) {
  return flag(data.dew_point_method == DewPointMethod::kComputed);
}

void decode_dew_point(std::string_view field, ShipFixedData& data) {
  data.dew_point_method = is_one(field) ? DewPointMethod::kComputed : DewPointMethod::kDirect;
}

template <bool ShipFixedData::*member>
std::string flag_of(const ShipFixedData& data) {
  return flag(data.*member);
}

template <bool ShipFixedData::*member>
void flag_into(std::string_view field, ShipFixedData& data) {
  data.*member = is_one(field);
}

std::string encode_temperature_unit(const ShipFixedData& data) {
  if (is_near(data.temperature_unit, 0.1)) return "3";
  if (is_near(data.temperature_unit, 0.5)) return "4";
  if (is_near(data.temperature_unit, 1.0)) return "5";
  return "0";
}

void decode_temperature_unit(std::string_view field, ShipFixedData& data) {
  data.temperature_unit = field == "4" ? 0.5 : field == "5" ? 1.0 : 0.1;
}

// The sign goes as a figure: "+04" is written "004", "-12" "112". No sign counts as plus.
std::string encode_departure(const ShipFixedData& data) {
  std::string_view value = data.vosclim_load_line_departure;
  if (value.empty()) return {};
  const bool signed_value = value.front() == '+' || value.front() == '-';
  const char sign = value.front() == '-' ? '1' : '0';
  if (signed_value) value.remove_prefix(1);
  return sign + std::string(value);
}

void decode_departure(std::string_view field, ShipFixedData& data) {
  std::string& departure = data.vosclim_load_line_departure;
  departure.clear();
  if (text::without_spaces(field).empty()) return;
  departure = field.substr(text::first(field, 1).size());
  // Any figure but 0 is a minus.
  departure.insert(departure.begin(), field.front() == '0' ? '+' : '-');
}

std::string encode_humidity_method(const ShipFixedData& data) {
  return flag(data.humidity_method == HumidityMethod::kComputed);
}

void decode_humidity_method(std::string_view field, ShipFixedData& data) {
  data.humidity_method = is_one(field) ? HumidityMethod::kComputed : HumidityMethod::kDirect;
}

std::string encode_humidity_unit(const ShipFixedData& data) {
  return flag(is_near(data.humidity_unit, 1.0));
}

void decode_humidity_unit(std::string_view field, ShipFixedData& data) {
  // Any figure but 0 is whole percent, and what is computed has no tenths.
  const bool whole = field != "0" || data.humidity_method == HumidityMethod::kComputed;
  data.humidity_unit = whole ? 1.0 : 0.1;
}

std::string encode_manufacturer(const ShipFixedData& data) {
  return text::replace_all(data.aws_manufacturer, "_", "");
}

void decode_manufacturer(std::string_view field, ShipFixedData& data) {
  data.aws_manufacturer.clear();
  if (data.aws_fitted) data.aws_manufacturer = text::replace_all(field, "_", "");
}

using Data = ShipFixedData;
using Card = BarometerCard;

// In file order, each right behind the one before it, from the end of the date written to the end
// of the line. Decoding also runs in this order: the humidity unit and the manufacturer depend on
// the field before them.
constexpr Field kFields[] = {
    {6, 7, ' ', text_of<&Data::call_sign>, text_into<&Data::call_sign>},
    {13, 8, ' ', encode_date, decode_date},
    {21, kCheckPortWidth, ' ', card_text_of<&Card::check_port>, card_text_into<&Card::check_port>},
    {45, 1, ' ', encode_card_type, decode_card_type},
    {46, 5, ' ', card_text_of<&Card::total_correction>, correction_into<&Card::total_correction>},
    {51, 5, ' ', card_text_of<&Card::instrumental_correction>,
     correction_into<&Card::instrumental_correction>},
    {56, 1, ' ', encode_loading_state, decode_loading_state},
    {57, 3, ' ', card_text_of<&Card::height_full_load>, card_text_into<&Card::height_full_load>},
    {60, 5, ' ', card_text_of<&Card::total_correction_full_load>,
     correction_into<&Card::total_correction_full_load>},
    {65, 3, ' ', card_text_of<&Card::height_ballast>, card_text_into<&Card::height_ballast>},
    {68, 5, ' ', card_text_of<&Card::total_correction_ballast>,
     correction_into<&Card::total_correction_ballast>},
    {73, 1, ' ', encode_wind_input, decode_wind_input},
    {74, 1, ' ', encode_wind_speed, decode_wind_speed},
    {75, 1, ' ', encode_sea_temperature, decode_sea_temperature},
    {76, 1, ' ', encode_dew_point, decode_dew_point},
    {77, 1, ' ', flag_of<&Data::wave_recorder>, flag_into<&Data::wave_recorder>},
    {78, 1, ' ', flag_of<&Data::vosclim>, flag_into<&Data::vosclim>},
    {79, 1, ' ', encode_temperature_unit, decode_temperature_unit},
    {80, 2, ' ', text_of<&Data::vosclim_cargo_height>, text_into<&Data::vosclim_cargo_height>},
    {82, 3, ' ', encode_departure, decode_departure},
    {85, 7, ' ', text_of<&Data::imo_number>, text_into<&Data::imo_number>},
    {92, 1, ' ', encode_humidity_method, decode_humidity_method},
    {93, 1, ' ', encode_humidity_unit, decode_humidity_unit},
    {94, 1, ' ', flag_of<&Data::aws_fitted>, flag_into<&Data::aws_fitted>},
    {95, 60, '_', encode_manufacturer, decode_manufacturer},
};

constexpr std::size_t kDateWrittenWidth = 6;

constexpr bool fields_touch() {
  std::size_t at = kDateWrittenWidth;
  for (const Field& field : kFields) {
    if (field.offset != at) return false;
    at += field.width;
  }
  return at == kFixedDataSize;
}
static_assert(fields_touch(), "a field of FIXDATA.DAT overlaps its neighbour or leaves a gap");

// As many whole characters as fit, then padding.
std::string fitted(std::string_view value, std::size_t width, char padding,
                   const platform::CodePage& code_page) {
  std::string result = to_ship_bytes(value, width, code_page);
  result.resize(width, padding);
  return result;
}

std::string two_digits(int value) {
  return text::format_int(value % 100, 2, '0');
}

// Reads a file of a known size; nothing of another size is even looked at.
template <class T, class Decode>
Loaded<T> load(const platform::Files& files, const std::string& path, std::size_t size,
               Decode decode) {
  const platform::Look found = files.look(path);
  if (found.there == platform::There::kNo) return {FileRead::kMissing, {}};
  if (const auto error = platform::why_no_file(found); error != platform::FileError::kNone)
    return {FileRead::kUnreadable, {}, error};
  if (found.size != size) return {FileRead::kWrongSize, {}};
  const auto content = files.read(path);
  if (!content.ok()) return {FileRead::kUnreadable, {}, content.error};
  const std::optional<T> values = decode(*content.value);
  // A control character makes it as useless as a wrong size does.
  if (!values) return {FileRead::kWrongSize, {}};
  return {FileRead::kRead, *values};
}

}  // namespace

std::string encode_fixed_data(const ShipFixedData& data, const DateTime& written,
                              const platform::CodePage& code_page) {
  std::string line = two_digits(written.year) + two_digits(written.month) + two_digits(written.day);
  line.resize(kDateWrittenWidth, ' ');
  for (const Field& field : kFields) {
    line += fitted(field.encode(data), field.width, field.padding, code_page);
  }
  // The file must be readable again, whatever was pasted into a field (the port takes nearly any
  // text).
  std::replace_if(line.begin(), line.end(), text::is_control, ' ');
  return line;
}

std::optional<ShipFixedData> decode_fixed_data(std::string_view line, const DateTime& utc,
                                               const platform::CodePage& code_page) {
  if (line.size() != kFixedDataSize || text::has_control(line)) return std::nullopt;
  ShipFixedData data;
  for (const Field& field : kFields)
    field.decode(from_ship_bytes(line.substr(field.offset, field.width), code_page), data);
  if (data.card.check_date.empty()) {
    // Without leading zeros, as ever: most of the year such a date is refused until corrected.
    data.card.check_date = text::format_int(utc.year) + "/" + text::format_int(utc.month) + "/" +
                           text::format_int(utc.day);
  }
  return data;
}

ShipFixedData as_read_back(const ShipFixedData& data, const DateTime& utc,
                           const platform::CodePage& code_page) {
  return *decode_fixed_data(encode_fixed_data(data, utc, code_page), utc, code_page);
}

std::string encode_key_items(const KeyObservationItems& items) {
  std::string digits;
  for (const bool off : items.not_observed) digits += flag(off);
  return digits;
}

std::optional<KeyObservationItems> decode_key_items(std::string_view digits) {
  if (digits.size() != kKeyItemsSize || text::has_control(digits)) return std::nullopt;
  KeyObservationItems items;
  for (std::size_t i = 0; i < kKeyItemsSize; ++i) items.not_observed[i] = digits[i] != '0';
  return items;
}

Loaded<ShipFixedData> load_fixed_data(const platform::Files& files, const std::string& path,
                                      const platform::Clock& clock,
                                      const platform::CodePage& code_page) {
  return load<ShipFixedData>(files, path, kFixedDataSize, [&](std::string_view line) {
    return decode_fixed_data(line, clock.utc(), code_page);
  });
}

Loaded<KeyObservationItems> load_key_items(const platform::Files& files, const std::string& path) {
  return load<KeyObservationItems>(files, path, kKeyItemsSize, decode_key_items);
}

platform::FileError save_fixed_data(platform::Files& files, const std::string& path,
                                    const ShipFixedData& data, const platform::Clock& clock,
                                    const platform::CodePage& code_page) {
  return files.replace(path, encode_fixed_data(data, clock.local(), code_page));
}

platform::FileError save_key_items(platform::Files& files, const std::string& path,
                                   const KeyObservationItems& items) {
  return files.replace(path, encode_key_items(items));
}
