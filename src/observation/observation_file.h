#pragma once
// Observations as lines NAME=VALUE.
//
//   # a comment
//   ship.call_sign=JXKV          the ship and its observation items stay in force
//   item.ww=1
//   YY=15                        any other NAME is a field of the record
//   TTT=152
//                                a blank line ends one observation
//
// Everything behind the first "=" is the value, blanks at both ends taken off. A block that names
// no field is no observation.

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "observation/Struct_Weather.h"

namespace observation {

inline constexpr std::size_t kLongestLine = 1024;         ///< bytes of a line
inline constexpr std::size_t kLongestBlock = 64U << 10U;  ///< bytes of an observation's lines

enum class ObservationFault : std::uint8_t {
  kNoEquals,
  kUnknownName,
  kBadNumber,
  kNotStorable,    ///< a value that its field cannot hold
  kLineTooLong,    ///< above kLongestLine
  kRecordTooLong,  ///< above kLongestBlock without a blank line
};

struct ObservationError {
  std::size_t line = 0;  ///< counted from 1
  ObservationFault fault = ObservationFault::kNoEquals;
  std::string name;  ///< the NAME concerned, cut to a length that can be shown
};

/// Takes the lines of a file one by one, so that a file of any length needs no more memory than its
/// longest observation.
class ObservationReader {
 public:
  enum class Step : std::uint8_t {
    kMore,         ///< nothing complete yet
    kObservation,  ///< record(), ship() and items() hold an observation
    kError,        ///< error() tells; every further call gives the same
  };

  explicit ObservationReader(ShipFixedData ship = {}, KeyObservationItems items = {})
      : ship_(std::move(ship)), items_(items), record_(ship_, items_) {}

  /// One line without its line end.
  [[nodiscard]] Step take(std::string_view line);
  /// The end of the file, which ends the last observation.
  [[nodiscard]] Step finish();

  [[nodiscard]] const Struct_Weather& record() const { return record_; }
  [[nodiscard]] const ShipFixedData& ship() const { return ship_; }
  [[nodiscard]] const KeyObservationItems& items() const { return items_; }
  /// Line in which the observation begins.
  [[nodiscard]] std::size_t first_line() const { return first_line_; }
  [[nodiscard]] const ObservationError& error() const { return *error_; }

 private:
  [[nodiscard]] Step end_block();
  [[nodiscard]] Step take_setting(std::string_view line);
  [[nodiscard]] Step fail(ObservationFault fault, std::string_view name);

  ShipFixedData ship_;
  KeyObservationItems items_;
  Struct_Weather record_;
  /// The block's fields, set only when it is complete: its ship lines may still follow.
  std::vector<std::pair<const WeatherField*, std::string>> settings_;
  std::size_t line_ = 0;
  std::size_t first_line_ = 0;
  std::size_t block_size_ = 0;
  std::optional<ObservationError> error_;
};

/// True when the field can hold the value: printable ASCII without "*", which marks a masked digit
/// inside the encoder; a call sign may be masked, but holds no blank and nothing that ends a
/// report.
[[nodiscard]] bool is_storable(const WeatherField& field, std::string_view value);

/// Appends the record as lines NAME=VALUE: every field that is set, and as empty those that
/// `fresh`, a new record, holds something in.
void write_observation(std::string& out, const Struct_Weather& record, const Struct_Weather& fresh);

}  // namespace observation
