#pragma once
// What a ship's observation becomes in the template TM 308009 "synoptic reports from sea stations
// suitable for SHIP observation data from VOS stations": one row for each element that the program
// has something for. Every other element of the template stays missing. docs/bufr.md says the rules
// in words.

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "observation/Struct_Weather.h"
#include "observation/values.h"

namespace bufr {

/// What an element is made of.
struct Source {
  const Struct_Weather& record;
  const observation::Values& values;  ///< of the record
  const ShipFixedData& ship;          ///< nothing is known of a ship that only sent a report
};

/// Nothing for a value that is missing or that the element has no number for (a variable wind's
/// direction); `odd` when something was entered that no code table or calendar knows.
struct Reading {
  std::optional<double> value;
  bool odd = false;
};

struct Element {
  std::string_view descriptor;  ///< of WMO's table B: "012101"
  std::string_view key;         ///< ecCodes' name with its rank: "#1#airTemperature"
  std::string_view fields;      ///< of the record, with blanks between: "SnT TTT"
  double lowest, highest;       ///< in the element's own unit; anything beyond is odd
  Reading (*read)(const Source&);
};

/// In the order of the template, which is that of their descriptors there.
[[nodiscard]] std::span<const Element> elements();

/// An element and its number in the unit and to the decimals that the template gives it.
struct ElementValue {
  const Element* element;
  double value;
};

/// An observation ready to be encoded.
struct Contents {
  std::string call_sign;             ///< empty when it is missing
  int year, month, day, hour;        ///< standard time of the observation, UTC
  std::vector<ElementValue> values;  ///< what is not missing
  /// What had to be left missing because nobody could know what it means ("dd=45").
  std::vector<std::string> odd;
};

/// The record's date and hour must be valid (observation::has_valid_date).
[[nodiscard]] Contents contents_of(const Struct_Weather& record, const ShipFixedData& ship);

}  // namespace bufr
