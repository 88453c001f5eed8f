#pragma once
// The entry fields of the main form: one row a field, with all that is known of it. A field shows
// what a person reads and types (hPa, degrees, metres, knots); the record holds code figures.
//
// A new field is an enumerator here and a row in fields.cpp; the compiler names what the row lacks.

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "elements/form/element_numbers.h"
#include "observation/Struct_Weather.h"
#include "ship/data/KeyObservationItems.h"
#include "text/id.h"
#include "text/texts.h"

namespace elements {

/// In the form's tab order.
enum class Field : std::uint8_t {
  kYear,
  kMonth,
  kYY,
  kGG,
  kGGExact,
  kgg,
  kLaDeg,
  kLaMin,
  kLoDeg,
  kLoMin,
  kDs,
  kVs,
  kReading,  ///< barometer reading, hPa
  kPPPP,     ///< pressure at sea level, hPa; four figures typed without a point are the code
  ka,
  kppp,      ///< hPa
  kDryBulb,  ///< psychrometer, degrees Celsius
  kWetBulb,
  kAirTemperature,  ///< beside a dew point read directly
  kDewPoint,
  kHumidity,  ///< percent
  kdd,
  kff,  ///< knots; 99 and more go to fff
  kApparentDirection,
  kApparentSpeed,
  kHeading,
  kCourse,
  kShipSpeed,
  kTwTwTw,  ///< degrees Celsius
  kPwPw,
  kHwHw,  ///< metres
  kdw1dw1,
  kPw1Pw1,
  kHw1Hw1,
  kdw2dw2,
  kPw2Pw2,
  kHw2Hw2,
  kPwaPwa,
  kHwaHwa,
  kVV,
  kww,
  kW1,
  kW2,
  kN,
  kNh,
  kCH,
  kCM,
  kCL,
  kh,  ///< metres
  kIs,
  kEsEs,
  kRs,
  kci,
  kSi,
  kbi,
  kDi,
  kzi,
};
inline constexpr std::size_t kFields = static_cast<std::size_t>(Field::kzi) + 1;

/// Main labels: the English text stands this much behind the Japanese one.
inline constexpr int kLabelsToEnglish = 74;
[[nodiscard]] constexpr text::Ref label_ref(text::Id id) {
  return {id, id ? kLabelsToEnglish : 0};
}

/// How the record holds what a field shows; field_codes.h converts.
enum class Codec : std::uint8_t {
  kNone,            ///< not at all: the barometer reading, the apparent wind
  kFigures,         ///< as it is shown
  kHalfMetres,      ///< metres as half metres
  kCloudBase,       ///< metres as code table 1600
  kTendency,        ///< hPa as tenths, three figures
  kPressure,        ///< hPa as tenths without the thousands
  kTemperature,     ///< degrees as tenths, and a sign beside
  kWetBulb,         ///< the same; the sign tells ice on the bulb too (code table 3855)
  kSeaTemperature,  ///< the same; the sign tells the method too (code table 3850)
  kSpeed,           ///< two figures; 99 and more stand in three beside
  kHumidity,        ///< percent as tenths, four figures of the logbook
};

/// What is computed anew once an entry was stored.
enum class Follows : std::uint8_t {
  kNothing = 0,
  kReview = 1,          ///< nothing, but the position is to be reviewed
  kReduction = 2,       ///< the pressure of a new barometer reading
  kReductionAgain = 4,  ///< the pressure of the same reading
  kDewPoint = 8,        ///< and the humidity with it
  kHumidity = 16,
  kTrueWind = 32,
};
[[nodiscard]] constexpr Follows operator|(Follows a, Follows b) {
  return static_cast<Follows>(static_cast<unsigned>(a) | static_cast<unsigned>(b));
}
[[nodiscard]] constexpr Follows without(Follows all, Follows one) {
  return static_cast<Follows>(static_cast<unsigned>(all) & ~static_cast<unsigned>(one));
}
[[nodiscard]] constexpr bool has(Follows all, Follows one) {
  return (static_cast<unsigned>(all) & static_cast<unsigned>(one)) != 0;
}

enum class Accepts : std::uint8_t {
  kFigures,  ///< whole figures, at most as many as the width, in the range
  kNumber,   ///< a decimal number in the range, sign and one point allowed; shown with one decimal
};

/// What a field accepts when it is left, and which message refuses it.
struct Editor {
  Accepts accepts = Accepts::kFigures;
  double low = 0;
  double high = 0;
  std::string_view also = {};  ///< further accepted texts, separated by a blank: "99 //"
  std::size_t width = 0;       ///< figures are filled with zeros to this width; 0 leaves them
  text::Id message = {};       ///< of the refusal; none shows the check text
  text::Id check_text = {};
  double asks_from = 0;    ///< a value from here up (above, for a number) asks …
  text::Id question = {};  ///< … this question; none never asks
  /// The refusal shows the check text below the message: the message's range is wider than what is
  /// accepted.
  bool shows_check = false;
};

struct FieldRow {
  Field field = {};
  std::string_view name = {};  ///< of its control, in scripts and drafts ("YY", "reading")

  // On the form.
  text::Id label = {};  ///< main label, or none
  text::Ref unit = {};
  int max_length = 0;
  Element element = kNoElement;  ///< the dialog that F1 opens
  bool computed = false;  ///< with the other method the program computes it: locked, but shown

  // Who switches it off.
  std::optional<ObservationItem> item = {};
  std::string_view not_observed = {};  ///< what the record then holds, for its group to say so
  bool needs_wave_recorder = false;    ///< nothing else measures it

  // In the record.
  Codec codec = Codec::kNone;
  std::string Struct_Weather::*member = nullptr;
  std::string Struct_Weather::*beside = nullptr;  ///< sign of `member`, or a speed too large for it
  /// Two fields show one member, each with its method.
  std::optional<DewPointMethod> shown_with = {};
  Follows follows = Follows::kNothing;

  Editor editor = {};
};

/// All rows in the order of Field.
[[nodiscard]] std::span<const FieldRow> field_rows();
[[nodiscard]] const FieldRow& row_of(Field field);
[[nodiscard]] std::optional<Field> field_named(std::string_view name);
[[nodiscard]] inline std::string_view name_of(Field field) {
  return row_of(field).name;
}

/// A code of one or two figures, filled with zeros: as soon as so many are typed it is whole. Longer
/// ones are typed with fewer figures as well ("5" degrees of longitude).
[[nodiscard]] constexpr bool is_of_fixed_width(const FieldRow& row) {
  constexpr int kMost = 2;
  return row.max_length <= kMost && row.editor.width == static_cast<std::size_t>(row.max_length);
}

/// Its item says "Not observed".
[[nodiscard]] inline bool is_switched_off(const FieldRow& row, const KeyObservationItems& items) {
  return row.item && !items.observed(*row.item);
}

}  // namespace elements
